#pragma once

#include <QList>

#include <memory>

class TDmEntity;
class TDmVariable;

/// The tree that the run wizard ticks in.
namespace tessel::editor {

/// A copy of \a dictionary for choosing: its entities with their names, references and marks, its variables
/// with what lists show of them. Labels, ranges and documentation are left out. The dictionary is never
/// touched by what is ticked in the copy, so nothing has to be put back, and saving or undoing meanwhile sees
/// no mark of a run. All variables have level 1, so that the lists can tick them.
std::unique_ptr<TDmEntity> choiceTreeOf(const TDmEntity &dictionary);

/// All entities below \a root, in document order; not \a root, which is the dictionary itself.
QList<TDmEntity *> entitiesBelow(const TDmEntity &root);

/// The variables of \a entity that can be chosen: all but those that hold its code, label and weight.
QList<TDmVariable *> offeredVariables(const TDmEntity &entity);

/// The variables of \a entity that can be chosen and are ticked.
QList<TDmVariable *> tickedVariables(const TDmEntity &entity);

} // namespace tessel::editor
