#pragma once

#include <QMimeData>
#include <QStringList>

#include <memory>

class TDmEntity;
class VariableDiccionaryModel;

namespace tessel::editor {

/// Fields that are to become variables, judged all at once: the table's model would refuse one lookup after
/// the other, each with a box of its own.
class FieldDrop {
public:
    /// Judges \a fields as \a target does, which shows \a entity. Borrows \a fields.
    FieldDrop(const QMimeData &fields, const TDmEntity &entity, VariableDiccionaryModel &target);

    /// The names of the lookups that the entity does not take, when there are several; a single one is left
    /// to the model, whose box is not in the way then.
    const QStringList &refused() const { return refusedNames; }

    /// What the model is to have; null when there is nothing left.
    const QMimeData *rest() const { return own ? own.get() : all; }

private:
    const QMimeData *all;
    std::unique_ptr<const QMimeData> own;
    QStringList refusedNames;
};

} // namespace tessel::editor
