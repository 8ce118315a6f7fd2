#include "editor/commands/StateCommand.h"

#include "editor/DictionaryDocument.h"

namespace tessel::editor {
namespace {

/// Hands the attic what only one of two lists holds.
template<typename Object>
void keepDifference(Attic &attic, const QList<Object *> &left, const QList<Object *> &right)
{
    if (left == right)
        return;
    const QSet<Object *> leftSet(left.cbegin(), left.cend());
    const QSet<Object *> rightSet(right.cbegin(), right.cend());
    for (Object *object : (leftSet - rightSet) + (rightSet - leftSet))
        attic.keep(object);
}

template<typename State>
auto objectsOf(const QVector<State> &states)
{
    QList<decltype(State::object)> objects;
    for (const State &state : states)
        objects.append(state.object);
    return objects;
}

} // namespace

StateCommand::StateCommand(DictionaryDocument &editedDocument, const QString &text,
    EntityChanges entityChanges, VariableChanges variableChanges)
    : QUndoCommand(text)
    , document(editedDocument)
    , entities(std::move(entityChanges))
    , variables(std::move(variableChanges))
{
    keepUnlinked();
}

/// What is taken out, now or by undoing, must outlive the dictionary's hold on it.
void StateCommand::keepUnlinked()
{
    Attic &attic = document.attic();
    for (const auto &change : qAsConst(entities)) {
        keepDifference(attic, change.before.children, change.after.children);
        keepDifference(attic, change.before.variables, change.after.variables);
    }
    for (const auto &change : qAsConst(variables)) {
        keepDifference(attic, objectsOf(change.before.labels), objectsOf(change.after.labels));
        keepDifference(attic, objectsOf(change.before.ranges), objectsOf(change.after.ranges));
    }
}

void StateCommand::undo()
{
    for (const auto &change : qAsConst(entities))
        change.before.applyTo(*change.object);
    for (const auto &change : qAsConst(variables))
        change.before.applyTo(*change.object);
    document.announce(touched());
}

void StateCommand::redo()
{
    if (!isMade) {
        for (const auto &change : qAsConst(entities))
            change.after.applyTo(*change.object);
        for (const auto &change : qAsConst(variables))
            change.after.applyTo(*change.object);
    }
    isMade = false;
    document.announce(touched());
}

Touched StateCommand::touched() const
{
    Touched result;
    for (const auto &change : entities) {
        result.entities.insert(change.object);
        if (change.before.variables != change.after.variables)
            result.relisted.insert(change.object);
        if (change.before.children != change.after.children)
            result.isTree = true;
    }
    for (const auto &change : variables)
        result.variables.insert(change.object);
    return result;
}

} // namespace tessel::editor
