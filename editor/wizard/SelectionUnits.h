#pragma once

#include "model/SelectionTreeUnit.h"

#include <QHash>

#include <memory>

class TDmEntity;

namespace tessel::editor {

class RunPlan;

/// What has been chosen as a tree of selection units: the dictionary on top, below it the ticked entities,
/// each below the nearest entity above it that is ticked too. Owns the units and borrows the entities.
class SelectionUnits {
public:
    /// The entities below \a tree that are selectable, with the variables that are checked in it or that \a
    /// plan takes all of.
    SelectionUnits(const TDmEntity &tree, const RunPlan &plan);

    /// Of level 1; selected when all entities are, with all their variables.
    SelectionTreeUnit &root() const { return *rootUnit; }

    /// The entity that \a unit stands for; null for the root.
    const TDmEntity *entityOf(const SelectionTreeUnit *unit) const { return entities.value(unit); }

private:
    SelectionTreeUnit *addUnit(SelectionTreeUnit &parent, const TDmEntity &entity, const RunPlan &plan);

    std::unique_ptr<SelectionTreeUnit> rootUnit;
    QHash<const SelectionTreeUnit *, const TDmEntity *> entities;
};

} // namespace tessel::editor
