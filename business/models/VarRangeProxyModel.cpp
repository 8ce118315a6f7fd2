#include "business/models/VarRangeProxyModel.h"

#include "business/Constants.h"

VarRangeProxyModel::VarRangeProxyModel(QObject *parent)
    : TextFilterProxyModel(parent, {2, Numbers::Integers})
{
}
