#include "editor/wizard/ChoiceTree.h"

#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QVector>

#include <algorithm>
#include <iterator>

namespace tessel::editor {
namespace {

TDmVariable *copyOf(const TDmVariable &variable)
{
    auto *copy = new TDmVariable;
    copy->setName(variable.getName());
    copy->setLabel(variable.getLabel());
    copy->setAlias(variable.getAlias());
    copy->setGroup(variable.getGroup());
    copy->setTag(variable.getTag());
    copy->setChecked(variable.getChecked());
    copy->setLevel(1);
    // The record type of a run's entity is read off its variables.
    copy->getMetadataVariables()->setRecord(variable.getMetadataVariables()->getRecord());
    return copy;
}

/// \a entity without its children.
std::unique_ptr<TDmEntity> copyOf(const TDmEntity &entity, int level)
{
    auto copy = std::make_unique<TDmEntity>();
    copy->setName(entity.getName());
    copy->setAlias(entity.getAlias());
    copy->setLabel(entity.getLabel());
    copy->setRefCode(entity.getRefCode());
    copy->setRefLabel(entity.getRefLabel());
    copy->setWeightVariable(entity.getWeightVariable());
    copy->setSelectable(entity.getSelectable());
    copy->setCheckDelete(entity.getCheckDelete());
    copy->setLevel(level);
    for (const TDmVariable *variable : qAsConst(*entity.getVariables()))
        copy->addVariables(copyOf(*variable));
    return copy;
}

} // namespace

std::unique_ptr<TDmEntity> choiceTreeOf(const TDmEntity &dictionary)
{
    struct Step {
        const TDmEntity *entity;
        TDmEntity *copy;
    };
    std::unique_ptr<TDmEntity> root = copyOf(dictionary, 1);
    QVector<Step> pending{{&dictionary, root.get()}};
    while (!pending.isEmpty()) {
        const Step step = pending.takeLast();
        for (const TDmEntity *child : qAsConst(*step.entity->getChildren())) {
            step.copy->getChildren()->append(copyOf(*child, step.copy->getLevel() + 1).release());
            pending.append({child, step.copy->getChildren()->last()});
        }
    }
    return root;
}

QList<TDmEntity *> entitiesBelow(const TDmEntity &root)
{
    const auto pushChildren = [](QVector<TDmEntity *> &pending, const TDmEntity &entity) {
        const QList<TDmEntity *> &children = *entity.getChildren();
        std::copy(children.crbegin(), children.crend(), std::back_inserter(pending));
    };
    QList<TDmEntity *> list;
    QVector<TDmEntity *> pending;
    pushChildren(pending, root);
    while (!pending.isEmpty()) {
        list.append(pending.takeLast());
        pushChildren(pending, *list.last());
    }
    return list;
}

QList<TDmVariable *> offeredVariables(const TDmEntity &entity)
{
    // The same rule as in VariableModel, letter case included.
    const QString references[] = {entity.getRefCode(), entity.getRefLabel(), entity.getWeightVariable()};
    QList<TDmVariable *> list;
    const QList<TDmVariable *> &variables = *entity.getVariables();
    std::copy_if(variables.cbegin(), variables.cend(), std::back_inserter(list),
        [&references](const TDmVariable *variable) {
            return std::find(std::begin(references), std::end(references), variable->getName())
                == std::end(references);
        });
    return list;
}

QList<TDmVariable *> tickedVariables(const TDmEntity &entity)
{
    QList<TDmVariable *> list = offeredVariables(entity);
    list.erase(std::remove_if(list.begin(), list.end(),
                   [](const TDmVariable *variable) { return variable->getChecked() == 0; }),
        list.end());
    return list;
}

} // namespace tessel::editor
