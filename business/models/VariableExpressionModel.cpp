#include "business/models/VariableExpressionModel.h"

#include "business/Constants.h"
#include "model/TDmVariable.h"

using namespace tessel::detail;

Columns<TDmVariable> VariableExpressionModel::columns()
{
    static const Column<TDmVariable> table[] = {{nullptr, nullptr}};
    return table;
}

VariableExpressionModel::VariableExpressionModel(
    QObject *parent, QList<TDmVariable *> *variables, eEntityShowMode showMode)
    : TermListModel(parent, variables, showMode)
{
}
