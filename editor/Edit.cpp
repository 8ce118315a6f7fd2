#include "editor/Edit.h"

#include "editor/DictionaryDocument.h"
#include "editor/commands/StateCommand.h"

namespace tessel::editor {
namespace {

/// What became of each object of \a before that is not as it was.
template<typename Object, typename State>
QVector<Change<Object, State>> changesOf(const QHash<Object *, State> &before)
{
    QVector<Change<Object, State>> changes;
    for (auto i = before.cbegin(); i != before.cend(); ++i) {
        State after = State::of(*i.key());
        if (after != i.value())
            changes.append({i.key(), i.value(), after});
    }
    return changes;
}

} // namespace

Edit::Edit(DictionaryDocument &editedDocument, const Scope &scope)
    : document(editedDocument)
{
    for (TDmEntity *entity : scope.entities())
        entities.insert(entity, EntityState::of(*entity));
    for (TDmVariable *variable : scope.variables())
        variables.insert(variable, VariableState::of(*variable));
}

bool Edit::commit(const QString &text)
{
    auto entityChanges = changesOf(entities);
    auto variableChanges = changesOf(variables);
    if (entityChanges.isEmpty() && variableChanges.isEmpty())
        return false;
    document.undoStack()->push(
        new StateCommand(document, text, std::move(entityChanges), std::move(variableChanges)));
    return true;
}

} // namespace tessel::editor
