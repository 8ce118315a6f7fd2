#pragma once

#include "editor/ObjectState.h"
#include "editor/Touched.h"

#include <QUndoCommand>
#include <QVector>

namespace tessel::editor {

class DictionaryDocument;

/// One object before and after an edit.
template<typename Object, typename State>
struct Change {
    Object *object;
    State before;
    State after;
};

/// An edit that has been made and can be taken back: the states of all touched objects, before and after. One
/// class for all kinds of edits: what differs is who changes the objects, not how a change is taken back.
class StateCommand : public QUndoCommand {
public:
    using EntityChanges = QVector<Change<TDmEntity, EntityState>>;
    using VariableChanges = QVector<Change<TDmVariable, VariableState>>;

    /// Takes the edit as made: the first redo() changes nothing.
    StateCommand(DictionaryDocument &document, const QString &text, EntityChanges entityChanges,
        VariableChanges variableChanges);

    void undo() override;
    void redo() override;

private:
    Touched touched() const;
    void keepUnlinked();

    DictionaryDocument &document;
    EntityChanges entities;
    VariableChanges variables;
    bool isMade = true;
};

} // namespace tessel::editor
