#include "business/models/VariablesDatasetProxyModel.h"

#include "business/Constants.h"

VariablesDatasetProxyModel::VariablesDatasetProxyModel(QObject *parent)
    : VariableFilterProxyModel(parent, {3, Numbers::Integers})
{
}
