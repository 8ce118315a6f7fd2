#pragma once

#include <QSet>

class TDmEntity;
class TDmVariable;

namespace tessel::editor {

/// The objects that an edit may change: what it looks at before and after.
class Scope {
public:
    /// The fields, labels, ranges and layout of one variable.
    static Scope ofVariable(TDmVariable &variable);

    /// The fields of one entity, its list of variables with all that they hold, and its list of children.
    static Scope ofEntity(TDmEntity &entity);

    /// The fields and lists of one entity and of all entities below it, without what variables hold.
    static Scope ofTree(TDmEntity &entity);

    Scope &operator|=(const Scope &other);

    const QSet<TDmEntity *> &entities() const { return entitySet; }
    const QSet<TDmVariable *> &variables() const { return variableSet; }

private:
    QSet<TDmEntity *> entitySet;
    QSet<TDmVariable *> variableSet;
};

} // namespace tessel::editor
