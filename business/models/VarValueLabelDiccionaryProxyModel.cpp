#include "business/models/VarValueLabelDiccionaryProxyModel.h"

#include "business/Constants.h"

VarValueLabelDiccionaryProxyModel::VarValueLabelDiccionaryProxyModel(QObject *parent)
    : TextFilterProxyModel(parent, {2, Numbers::Converted})
{
}
