#include "business/models/VariableModelSplitStep3.h"

#include "business/Constants.h"

using namespace tessel::detail;

Columns<TDmVariable> VariableModelSplitStep3::columns()
{
    static const Column<TDmVariable> table[] = {
        {QT_TR_NOOP("Name"), [](const TDmVariable &v) -> QVariant { return v.getName(); }},
        {QT_TR_NOOP("Label"), [](const TDmVariable &v) -> QVariant { return v.getLabel(); }},
        {QT_TR_NOOP("Alias"), [](const TDmVariable &v) -> QVariant { return v.getAlias(); }},
    };
    return table;
}

VariableModelSplitStep3::VariableModelSplitStep3(
    QObject *parent, TDmEntity *, QList<TDmVariable *> *variables)
    : TickListModel(parent)
{
    fill(variables);
}
