#pragma once

#include "util/UtilExport.h"

#include <QList>
#include <QStringList>

class TDmEntity;

/// Gathers what is already in use in a dictionary. Holds no state: each call walks the tree as it stands
/// then.
///
/// Collectors append to the list that they are given and return it; empty texts are left out, order and
/// repetition are those of the document. A null entity adds nothing.
class UTILITARIAN_EXPORT DictionaryUtil {
public:
    DictionaryUtil();

    /// Names of \a root and of all entities below it.
    QStringList getNamesEntitiesDictionary(TDmEntity *root, QStringList seed);

    /// Aliases of \a root and of all entities below it.
    QStringList getAliasEntitiesDictionary(TDmEntity *root, QStringList seed);

    /// Groups of the variables of \a root and of all entities below it, each text once.
    QStringList getGroupEntitiesDictionary(TDmEntity *root, QStringList seed);

    /// Names of the variables of \a entity alone.
    QStringList getNamesVariablesByEntities(TDmEntity *entity, QStringList seed);

    /// Aliases of the variables of \a entity alone.
    QStringList getAliasVariableByEntity(TDmEntity *entity, QStringList seed);

    /// Appends to \a found all entities below \a entity, at any depth, that are selectable: parents before
    /// children, in document order. Returns the very list that was given, which stays the caller's.
    QList<TDmEntity *> *getChildEntitiesChecked(TDmEntity *entity, QList<TDmEntity *> *found);
};
