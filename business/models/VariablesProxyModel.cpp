#include "business/models/VariablesProxyModel.h"

#include "business/Constants.h"

VariablesProxyModel::VariablesProxyModel(QObject *parent)
    : VariableFilterProxyModel(parent, {4, Numbers::None})
{
}
