#pragma once

#include <QSet>

class Range;
class TDmEntity;
class TDmVariable;
class ValueLabelElement;

namespace tessel::editor {

/// Keeps what edits take out of the dictionary, so that undo can put the very same objects back. What is in
/// the dictionary again when the attic is cleared belongs to the dictionary.
class Attic {
public:
    Attic() = default;

    void keep(TDmEntity *entity) { entities.insert(entity); }
    void keep(TDmVariable *variable) { variables.insert(variable); }
    void keep(ValueLabelElement *label) { labels.insert(label); }
    void keep(Range *range) { ranges.insert(range); }

    /// Deletes \a root with all that hangs below it and everything that was kept, each object once.
    void clear(TDmEntity *root);

private:
    QSet<TDmEntity *> entities;
    QSet<TDmVariable *> variables;
    QSet<ValueLabelElement *> labels;
    QSet<Range *> ranges;

    Q_DISABLE_COPY_MOVE(Attic)
};

} // namespace tessel::editor
