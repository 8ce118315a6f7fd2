#include "business/models/VariableModel.h"

#include "business/Constants.h"
#include "business/models/detail/ReferenceNames.h"

using namespace tessel::detail;

Columns<TDmVariable> VariableModel::columns()
{
    static const Column<TDmVariable> table[] = {
        {QT_TR_NOOP("Name"), [](const TDmVariable &v) -> QVariant { return v.getName(); }},
        {QT_TR_NOOP("Label"), [](const TDmVariable &v) -> QVariant { return v.getLabel(); }},
        {QT_TR_NOOP("Alias"), [](const TDmVariable &v) -> QVariant { return v.getAlias(); }},
        {QT_TR_NOOP("Group"), [](const TDmVariable &v) -> QVariant { return v.getGroup(); }},
        {QT_TR_NOOP("Tag"), [](const TDmVariable &v) -> QVariant { return v.getTag(); }},
    };
    return table;
}

VariableModel::VariableModel(QObject *parent, TDmEntity *entity, QList<TDmVariable *> *variables)
    : TickListModel(parent)
{
    const ReferenceNames references(entity);
    fill(variables, [&](const TDmVariable *variable) { return !variable || !references.hold(*variable); });
}

bool VariableModel::isTickable(const TDmVariable &variable) const { return variable.getLevel() == 1; }

Qt::ItemFlags VariableModel::flags(const QModelIndex &index) const
{
    // Qt's own: the other two lists have none for an invalid index.
    const Qt::ItemFlags flags = QAbstractItemModel::flags(index); // NOLINT(bugprone-parent-virtual-call)
    return index.column() == 0 ? flags | Qt::ItemIsUserCheckable : flags;
}
