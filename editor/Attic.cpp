#include "editor/Attic.h"

#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QVector>

namespace tessel::editor {

void Attic::clear(TDmEntity *root)
{
    // An object may hang below another one that was kept as well. All are gathered and taken apart first, so
    // that nobody deletes what is somebody else's turn.
    if (root)
        entities.insert(root);
    QVector<TDmEntity *> pending(entities.cbegin(), entities.cend());
    while (!pending.isEmpty()) {
        TDmEntity *entity = pending.takeLast();
        for (TDmEntity *child : qAsConst(*entity->getChildren())) {
            if (!entities.contains(child)) {
                entities.insert(child);
                pending.append(child);
            }
        }
        for (TDmVariable *variable : qAsConst(*entity->getVariables()))
            variables.insert(variable);
        entity->getChildren()->clear();
        entity->getVariables()->clear();
    }
    for (TDmVariable *variable : qAsConst(variables)) {
        for (ValueLabelElement *label : qAsConst(*variable->getValueLabelElementList()))
            labels.insert(label);
        for (Range *range : qAsConst(*variable->getMetadataVariables()->getRange()))
            ranges.insert(range);
        variable->getValueLabelElementList()->clear();
        variable->getMetadataVariables()->getRange()->clear();
    }
    qDeleteAll(entities);
    qDeleteAll(variables);
    qDeleteAll(labels);
    qDeleteAll(ranges);
    entities.clear();
    variables.clear();
    labels.clear();
    ranges.clear();
}

} // namespace tessel::editor
