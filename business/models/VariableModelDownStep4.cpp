#include "business/models/VariableModelDownStep4.h"

#include "business/Constants.h"
#include "business/models/detail/ReferenceNames.h"

using namespace tessel::detail;

Columns<TDmVariable> VariableModelDownStep4::columns()
{
    static const Column<TDmVariable> table[] = {
        {QT_TR_NOOP("Name"), [](const TDmVariable &v) -> QVariant { return v.getName(); }},
        {QT_TR_NOOP("Label"), [](const TDmVariable &v) -> QVariant { return v.getLabel(); }},
        {QT_TR_NOOP("Alias"), [](const TDmVariable &v) -> QVariant { return v.getAlias(); }},
    };
    return table;
}

VariableModelDownStep4::VariableModelDownStep4(
    QObject *parent, TDmEntity *entity, QList<TDmVariable *> *variables)
    : TickListModel(parent)
{
    const ReferenceNames references(entity);
    fill(variables, [&](const TDmVariable *variable) { return !variable || !references.hold(*variable); });
}
