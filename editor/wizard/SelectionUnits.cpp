#include "editor/wizard/SelectionUnits.h"

#include "editor/wizard/ChoiceTree.h"
#include "editor/wizard/RunPlan.h"
#include "model/TDmEntity.h"

#include <QVector>

#include <algorithm>

namespace tessel::editor {
namespace {

enum State { NoneChosen = 0, SomeChosen = 1, AllChosen = 2 };

State stateOf(const TDmEntity &entity, const RunPlan &plan)
{
    if (plan.takesAllVariables(entity.getName()))
        return AllChosen;
    const int ticked = tickedVariables(entity).size();
    if (ticked == 0)
        return NoneChosen;
    return ticked == offeredVariables(entity).size() ? AllChosen : SomeChosen;
}

void describe(SelectionTreeUnit &unit, const TDmEntity &entity, int level)
{
    unit.setLevel(level);
    unit.setName(entity.getName());
    unit.setCode(entity.getAlias().isEmpty() ? entity.getName() : entity.getAlias());
    unit.setArea({entity.getName().toStdString(), entity.getLabel().toStdString()});
}

} // namespace

SelectionUnits::SelectionUnits(const TDmEntity &tree, const RunPlan &plan)
    : rootUnit(std::make_unique<SelectionTreeUnit>())
{
    struct Step {
        const TDmEntity *entity;
        SelectionTreeUnit *unit; ///< Of the entity itself or of the nearest one above it that has one.
    };
    describe(*rootUnit, tree, 1);
    // Not by recursion: a chain of entities may be longer than the stack is deep. From the last to the first,
    // so that children come in document order.
    QVector<Step> pending{{&tree, rootUnit.get()}};
    while (!pending.isEmpty()) {
        Step step = pending.takeLast();
        if (step.entity != &tree && step.entity->getSelectable())
            step.unit = addUnit(*step.unit, *step.entity, plan);
        const QList<TDmEntity *> &children = *step.entity->getChildren();
        for (auto child = children.crbegin(); child != children.crend(); ++child)
            pending.append({*child, step.unit});
    }

    const auto hasState = [this](int state) {
        return std::all_of(entities.keyBegin(), entities.keyEnd(),
            [state](const SelectionTreeUnit *unit) { return unit->getUnitState() == state; });
    };
    if (hasState(NoneChosen))
        rootUnit->setUnitState(NoneChosen);
    else
        rootUnit->setUnitState(hasState(AllChosen) ? AllChosen : SomeChosen);
}

SelectionTreeUnit *SelectionUnits::addUnit(
    SelectionTreeUnit &parent, const TDmEntity &entity, const RunPlan &plan)
{
    auto unit = std::make_unique<SelectionTreeUnit>();
    describe(*unit, entity, parent.getLevel() + 1);
    unit->setUnitState(stateOf(entity, plan));
    entities.insert(unit.get(), &entity);
    parent.addChild(unit.get());
    return unit.release();
}

} // namespace tessel::editor
