#include "business/models/VariablesDictionaryProxyModel.h"

#include "business/Constants.h"

VariablesDictionaryProxyModel::VariablesDictionaryProxyModel(QObject *parent)
    : VariableFilterProxyModel(parent, {5, Numbers::Integers})
{
}
