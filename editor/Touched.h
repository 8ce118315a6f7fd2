#pragma once

#include <QSet>

class TDmEntity;
class TDmVariable;

namespace tessel::editor {

/// What one edit, or its undoing, has changed.
struct Touched {
    QSet<TDmEntity *> entities; ///< Fields or lists differ.
    QSet<TDmEntity *> relisted; ///< Of these, those whose list of variables differs.
    QSet<TDmVariable *> variables; ///< Fields, labels, ranges or layout differ.
    bool isTree = false; ///< Some entity's list of children differs.
};

} // namespace tessel::editor
