#include "editor/views/VariablePane.h"

#include "business/models/VariableDiccionaryModel.h"
#include "business/models/VariablesDictionaryProxyModel.h"
#include "editor/DictionaryDocument.h"
#include "editor/Edit.h"
#include "editor/Question.h"
#include "editor/Structure.h"
#include "editor/views/FieldDrop.h"
#include "editor/views/TableView.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QHeaderView>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace tessel::editor {

VariablePane::VariablePane(DictionaryDocument &document, QWidget *parent)
    : TablePane(
        document, new VariablesDictionaryProxyModel(nullptr), tr("Variables"), tr("Search variables"), parent)
{
    view()->setObjectName(QStringLiteral("variables"));
    view()->setAcceptDrops(true);
    view()->setDragDropMode(QAbstractItemView::DropOnly);
    view()->setHint(tr("Choose an entity to see its variables."));
    connect(view(), &TableView::dropped, this, &VariablePane::take);
    connect(&document, &DictionaryDocument::aboutToReset, this, [this] { show(nullptr); });
}

void VariablePane::show(TDmEntity *entity)
{
    if (entity == shown)
        return;
    shown = entity;
    view()->setHint(shown ? tr("No variables yet. Drag fields from Sources, or press Ins.")
                          : tr("Choose an entity to see its variables."));
    rebuild();
    if (view()->model()->rowCount() > 0)
        choose(view()->model()->index(0, 0));
}

TDmVariable *VariablePane::currentVariable() const { return static_cast<TDmVariable *>(currentObject()); }

QList<TDmVariable *> VariablePane::selectedVariables() const
{
    return objectsAs<TDmVariable>(selectedObjects());
}

QAbstractItemModel *VariablePane::newModel()
{
    return shown ? new VariableDiccionaryModel(nullptr, shown, &document().root()) : nullptr;
}

Scope VariablePane::editScope(void *object) const
{
    // Renaming the variable that holds the code may clear the marks of all entities below.
    Scope scope = Scope::ofTree(*shown);
    scope |= Scope::ofVariable(*static_cast<TDmVariable *>(object));
    return scope;
}

QString VariablePane::editText(void *object, const QString &column) const
{
    const QString name = static_cast<TDmVariable *>(object)->getName();
    const bool isName = column == view()->model()->headerData(0, Qt::Horizontal).toString();
    return isName ? tr("rename %1").arg(name) : tr("change %1 of %2").arg(column, name);
}

QString VariablePane::silentFault(int column, const QString &typed) const
{
    constexpr int tag = 4;
    bool isNumber = column != tag;
    if (!isNumber)
        typed.toInt(&isNumber);
    return isNumber ? QString() : tr("a tag is a whole number");
}

bool VariablePane::concerns(const Touched &touched) const
{
    if (!shown)
        return false;
    return touched.entities.contains(shown)
        || std::any_of(shown->getVariables()->cbegin(), shown->getVariables()->cend(),
            [&touched](TDmVariable *variable) { return touched.variables.contains(variable); });
}

void *VariablePane::addObject(int row)
{
    return shown ? Structure(document()).addVariable(*shown, row) : nullptr;
}

void VariablePane::removeObjects(const QList<void *> &objects)
{
    const QList<TDmVariable *> variables = objectsAs<TDmVariable>(objects);
    const auto holdsWork = [](const TDmVariable *variable) {
        return !variable->getValueLabelElementList()->isEmpty()
            || !variable->getMetadataVariables()->getRange()->isEmpty();
    };
    const int filled = int(std::count_if(variables.cbegin(), variables.cend(), holdsWork));
    if (filled > 0
        && !isConfirmed(this, tr("Delete variables"),
            tr("%n of the variables have value labels or ranges, which go with them. Delete?", nullptr,
                filled)))
        return;
    Structure(document()).removeVariables(*shown, variables);
}

void VariablePane::moveObjects(const QList<void *> &objects, int steps)
{
    Structure(document()).moveVariables(*shown, objectsAs<TDmVariable>(objects), steps);
}

void VariablePane::sizeColumns()
{
    const int character = fontMetrics().averageCharWidth();
    QHeaderView *header = view()->horizontalHeader();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(2, QHeaderView::Stretch);
    header->resizeSection(0, character * 18);
    header->resizeSection(1, character * 10);
    header->resizeSection(3, character * 14);
    header->resizeSection(4, character * 7);
}

void VariablePane::take(const QMimeData *fields)
{
    if (!shown) {
        emit told(tr("Choose the entity that is to have the fields first."));
        return;
    }
    const QSet<TDmVariable *> before(shown->getVariables()->cbegin(), shown->getVariables()->cend());
    Edit edit(document(), Scope::ofEntity(*shown));
    // A model of its own: the table's is made anew when the edit is announced.
    VariableDiccionaryModel target(nullptr, shown, &document().root());
    const FieldDrop drop(*fields, *shown, target);
    if (drop.rest())
        target.dropMimeData(drop.rest(), Qt::CopyAction, -1, -1, QModelIndex());
    const QList<TDmVariable *> &variables = *shown->getVariables();
    for (TDmVariable *variable : variables)
        variable->setLevel(1);
    // Some may have taken the place of others.
    QList<TDmVariable *> added;
    std::copy_if(variables.cbegin(), variables.cend(), std::back_inserter(added),
        [&before](TDmVariable *variable) { return !before.contains(variable); });
    if (!drop.refused().isEmpty()) {
        emit warned(
            tr("%n lookups were not added: %1 is not selectable. Mark it as selectable, or choose another "
               "entity.",
                nullptr, drop.refused().size())
                .arg(shown->getName()),
            drop.refused().join(QLatin1Char('\n')));
    }
    if (!edit.commit(tr("add fields to %1").arg(shown->getName()))) {
        emit told(tr("No field was added."));
        return;
    }
    emit told(tr("%n variables added to %1.", nullptr, added.size()).arg(shown->getName()));
    select(variables.last());
    if (!added.isEmpty())
        emit taken(shown, added, fields);
}

} // namespace tessel::editor
