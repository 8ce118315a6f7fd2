#pragma once

#include "model/TDmEntity.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QVariantMap>

#include <memory>

class MetadataVariables;
class Range;
class TDmVariable;
class ValueLabelElement;
class VarWipChoice;

/// Dictionary objects as text, so that a failed comparison shows the whole object.
/// Only what differs from a fresh object is named: a fresh entity or variable is the empty text. Fields that
/// a document has a key for bear the key's name. Null pointers in lists are shown as "null".
namespace tessel::test {

QString describe(const Range &range);
QString describe(const ValueLabelElement &element);
QString describe(const MetadataVariables &layout);
QString describe(const TDmVariable &variable);
QString describe(const TDmEntity &entity);
QString describe(const VarWipChoice &choice);

/// "[item, item]", each item in braces; "null" for no list at all.
QString describe(const QList<Range *> *list);
QString describe(const QList<ValueLabelElement *> *list);
QString describe(const QList<TDmVariable *> *list);
QString describe(const QList<TDmEntity *> *list);

/// Frees a list that a reader returned and the objects in it.
struct DeleteAll {
    template<typename Item>
    void operator()(QList<Item *> *list) const
    {
        static_assert(sizeof(Item) > 0, "an item of unknown type would be freed without its destructor");
        qDeleteAll(*list);
        delete list;
    }
};

template<typename Item>
using Owned = std::unique_ptr<QList<Item *>, DeleteAll>;

using Entities = Owned<TDmEntity>;

/// What the reader makes of \a node. \a level is the node's own.
Entities entitiesOf(const QVariantMap &node, int level = 0);

/// The same for document text in which single quotes may stand for double ones.
Entities entitiesOf(const char *text, int level = 0);

/// Moves the entities of \a list, which may be null, below \a root.
void adopt(TDmEntity &root, Entities list);

/// A new child of \a parent, a new variable of \a entity; owned by what they are added to.
TDmEntity &addChild(TDmEntity &parent, const char *name);
TDmVariable &addVariable(TDmEntity &entity, const char *name = "");
void addLabel(TDmVariable &variable, const QString &value, const QString &label);
void addRange(TDmVariable &variable, double min, double max);

/// What the writer makes of \a entity.
QJsonObject exportOf(TDmEntity &entity);

/// The object of the first variable in the entity object \a entity.
QJsonObject firstVariableOf(const QJsonObject &entity);

/// \a object as compact document text, single quotes for double ones.
QByteArray compact(const QJsonObject &object);

} // namespace tessel::test
