#pragma once

#include "editor/ObjectState.h"
#include "editor/Scope.h"

#include <QHash>

namespace tessel::editor {

class DictionaryDocument;

/// One action of the user, undone and redone as a whole. Remembers what the objects of a scope hold, lets the
/// caller change them in whatever way, through the library's models above all, and puts the difference on the
/// document's undo stack.
class Edit {
public:
    /// To be made before anything changes.
    Edit(DictionaryDocument &document, const Scope &scope);

    /// To be called when everything has changed. \a text names the action in the menu ("rename AGE"). False,
    /// and nothing on the stack, when all is as it was.
    bool commit(const QString &text);

private:
    DictionaryDocument &document;
    QHash<TDmEntity *, EntityState> entities;
    QHash<TDmVariable *, VariableState> variables;

    Q_DISABLE_COPY_MOVE(Edit)
};

} // namespace tessel::editor
