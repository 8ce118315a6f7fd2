#include "editor/Scope.h"

#include "model/TDmEntity.h"

#include <QVector>

namespace tessel::editor {

Scope Scope::ofVariable(TDmVariable &variable)
{
    Scope scope;
    scope.variableSet.insert(&variable);
    return scope;
}

Scope Scope::ofEntity(TDmEntity &entity)
{
    Scope scope;
    scope.entitySet.insert(&entity);
    for (TDmVariable *variable : qAsConst(*entity.getVariables()))
        scope.variableSet.insert(variable);
    return scope;
}

Scope Scope::ofTree(TDmEntity &entity)
{
    Scope scope;
    // Not by recursion: a chain of entities may be longer than the stack is deep.
    QVector<TDmEntity *> pending{&entity};
    while (!pending.isEmpty()) {
        TDmEntity *next = pending.takeLast();
        scope.entitySet.insert(next);
        for (TDmEntity *child : qAsConst(*next->getChildren()))
            pending.append(child);
    }
    return scope;
}

Scope &Scope::operator|=(const Scope &other)
{
    entitySet |= other.entitySet;
    variableSet |= other.variableSet;
    return *this;
}

} // namespace tessel::editor
