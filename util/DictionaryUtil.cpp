#include "util/DictionaryUtil.h"

#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QSet>
#include <QVector>

namespace {

/// Visits \a root and all entities below it, parents before children, in document order. Not by recursion: a
/// chain of entities may be longer than the stack is deep.
template<typename Visit>
void forEachEntity(TDmEntity *root, Visit &&visit)
{
    QVector<TDmEntity *> pending{root};
    while (!pending.isEmpty()) {
        TDmEntity *entity = pending.takeLast();
        if (!entity)
            continue;
        visit(*entity);
        if (const QList<TDmEntity *> *children = entity->getChildren()) {
            for (int i = children->size() - 1; i >= 0; --i)
                pending.append(children->at(i));
        }
    }
}

template<typename Visit>
void forEachVariable(const TDmEntity &entity, Visit &&visit)
{
    for (const TDmVariable *variable : qAsConst(*entity.getVariables())) {
        if (variable)
            visit(*variable);
    }
}

void appendText(QStringList &list, const QString &text)
{
    if (!text.isEmpty())
        list.append(text);
}

} // namespace

DictionaryUtil::DictionaryUtil() = default;

QStringList DictionaryUtil::getNamesEntitiesDictionary(TDmEntity *root, QStringList seed)
{
    forEachEntity(root, [&seed](const TDmEntity &entity) { appendText(seed, entity.getName()); });
    return seed;
}

QStringList DictionaryUtil::getAliasEntitiesDictionary(TDmEntity *root, QStringList seed)
{
    forEachEntity(root, [&seed](const TDmEntity &entity) { appendText(seed, entity.getAlias()); });
    return seed;
}

QStringList DictionaryUtil::getGroupEntitiesDictionary(TDmEntity *root, QStringList seed)
{
    QSet<QString> known(seed.cbegin(), seed.cend());
    forEachEntity(root, [&](const TDmEntity &entity) {
        forEachVariable(entity, [&](const TDmVariable &variable) {
            const QString group = variable.getGroup();
            if (known.contains(group))
                return;
            known.insert(group);
            appendText(seed, group);
        });
    });
    return seed;
}

QStringList DictionaryUtil::getNamesVariablesByEntities(TDmEntity *entity, QStringList seed)
{
    if (entity)
        forEachVariable(
            *entity, [&seed](const TDmVariable &variable) { appendText(seed, variable.getName()); });
    return seed;
}

QStringList DictionaryUtil::getAliasVariableByEntity(TDmEntity *entity, QStringList seed)
{
    if (entity)
        forEachVariable(
            *entity, [&seed](const TDmVariable &variable) { appendText(seed, variable.getAlias()); });
    return seed;
}

QList<TDmEntity *> *DictionaryUtil::getChildEntitiesChecked(TDmEntity *entity, QList<TDmEntity *> *found)
{
    forEachEntity(entity, [&](TDmEntity &below) {
        if (&below != entity && below.getSelectable())
            found->append(&below);
    });
    return found;
}
