#include "business/models/VariablesProxyModelDownStep4.h"

#include "business/Constants.h"

VariablesProxyModelDownStep4::VariablesProxyModelDownStep4(QObject *parent)
    : VariableFilterProxyModel(parent, {3, Numbers::None})
{
}
