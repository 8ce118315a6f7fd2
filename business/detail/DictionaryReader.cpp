#include "business/detail/DictionaryReader.h"

#include "business/Constants.h"
#include "business/detail/Guarded.h"
#include "business/detail/KeyTable.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "model/VarWipChoice.h"

#include <memory>

namespace tessel::detail {
namespace {

/// Appends to \a into a new item for each that \a value holds, once \a fill has set what the item's object
/// says. An exception on the way loses neither the item nor the list.
template<typename Item, typename Fill>
void readItems(const QVariant &value, QList<Item *> &into, Fill &&fill)
{
    const auto expect = [&into](int count) { into.reserve(into.size() + count); };
    forEachItem(value, expect, [&](const Object &object, Standing standing) {
        auto item = std::make_unique<Item>();
        fill(*item, object, standing);
        into.append(item.get());
        static_cast<void>(item.release());
    });
}

bool isChildList(const QString &key)
{
    return key == QLatin1String("entities") || key == QLatin1String("root");
}

const Key<TDmEntity> kEntityKeys[] = {
    {QLatin1String("name"), [](TDmEntity &e, const QVariant &v) { e.setName(textOf(v)); }},
    {QLatin1String("alias"), [](TDmEntity &e, const QVariant &v) { e.setAlias(textOf(v)); }},
    {QLatin1String("label"), [](TDmEntity &e, const QVariant &v) { e.setLabel(textOf(v)); }},
    {QLatin1String("codeVar"), [](TDmEntity &e, const QVariant &v) { e.setRefCode(textOf(v)); }},
    {QLatin1String("labelVar"), [](TDmEntity &e, const QVariant &v) { e.setRefLabel(textOf(v)); }},
    {QLatin1String("documentation"),
        [](TDmEntity &e, const QVariant &v) { e.setDocumentationEntity(textOf(v)); }},
    {QLatin1String("virtual"), [](TDmEntity &e, const QVariant &v) { e.setIsvirtual(v.toBool()); }},
    {QLatin1String("selectable"), [](TDmEntity &e, const QVariant &v) { e.setSelectable(v.toBool()); }},
    {QLatin1String("variables"),
        [](TDmEntity &e, const QVariant &v) { readVariables(v, *e.getVariables()); }},
};

const Key<MetadataVariables> kLayoutKeys[] = {
    {QLatin1String("record"), [](MetadataVariables &m, const QVariant &v) { m.setRecord(textOf(v)); }},
    {QLatin1String("field"), [](MetadataVariables &m, const QVariant &v) { m.setField(textOf(v)); }},
    {QLatin1String("lookup"), [](MetadataVariables &m, const QVariant &v) { m.setLookup(v.toBool()); }},
    {QLatin1String("range"), [](MetadataVariables &m, const QVariant &v) { readRanges(v, *m.getRange()); }},
    {QLatin1String("start"), [](MetadataVariables &m, const QVariant &v) { m.setStart(v.toInt()); }},
    {QLatin1String("length"), [](MetadataVariables &m, const QVariant &v) { m.setLength(v.toInt()); }},
};

/// "metadata": a new layout for the variable. Start and length are kept twice, in the layout and in the
/// variable, and only the variable's are ever written.
void readLayout(TDmVariable &variable, const QVariant &value)
{
    auto layout = std::make_unique<MetadataVariables>();
    withObject(value, [&](const Object &object) {
        readKeys(kLayoutKeys, object, *layout);
        if (object.contains(QStringLiteral("start")))
            variable.setFieldRelativePosition(layout->getStart());
        if (object.contains(QStringLiteral("length")))
            variable.setFieldSize(layout->getLength());
    });
    variable.setMetadataVariables(layout.release());
}

// "documentation" is written and not read: it is missing here on purpose.
const Key<TDmVariable> kVariableKeys[] = {
    {QLatin1String("name"), [](TDmVariable &t, const QVariant &v) { t.setName(textOf(v)); }},
    {QLatin1String("label"), [](TDmVariable &t, const QVariant &v) { t.setLabel(textOf(v)); }},
    {QLatin1String("group"), [](TDmVariable &t, const QVariant &v) { t.setGroup(textOf(v)); }},
    {QLatin1String("alias"), [](TDmVariable &t, const QVariant &v) { t.setAlias(textOf(v)); }},
    {QLatin1String("type"), [](TDmVariable &t, const QVariant &v) { t.setVarType(textOf(v)); }},
    {QLatin1String("fileName"), [](TDmVariable &t, const QVariant &v) { t.setFileName(textOf(v)); }},
    {QLatin1String("local"), [](TDmVariable &t, const QVariant &v) { t.setLocal(v.toBool()); }},
    {QLatin1String("size"), [](TDmVariable &t, const QVariant &v) { t.setSize(v.toInt()); }},
    {QLatin1String("notapp"), [](TDmVariable &t, const QVariant &v) { t.setNotappl(v.toInt()); }},
    {QLatin1String("missing"), [](TDmVariable &t, const QVariant &v) { t.setMissing(v.toInt()); }},
    {QLatin1String("tag"), [](TDmVariable &t, const QVariant &v) { t.setTag(v.toInt()); }},
    {QLatin1String("metadata"), &readLayout},
    {QLatin1String("valueLabels"),
        [](TDmVariable &t, const QVariant &v) { readValueLabels(v, *t.getValueLabelElementList()); }},
};

const Key<ValueLabelElement> kValueLabelKeys[] = {
    {QLatin1String("label"), [](ValueLabelElement &e, const QVariant &v) { e.setLabel(textOf(v)); }},
    {QLatin1String("value"), [](ValueLabelElement &e, const QVariant &v) { e.setValue(textOf(v)); }},
};

const Key<Range> kRangeKeys[] = {
    {QLatin1String("min"), [](Range &r, const QVariant &v) { r.setRangeMin(v.toDouble()); }},
    {QLatin1String("max"), [](Range &r, const QVariant &v) { r.setRangeMax(v.toDouble()); }},
};

// A range standing alone has whole-number bounds, one in an array has not: meant so.
const Key<Range> kLoneRangeKeys[] = {
    {QLatin1String("min"), [](Range &r, const QVariant &v) { r.setRangeMin(v.toInt()); }},
    {QLatin1String("max"), [](Range &r, const QVariant &v) { r.setRangeMax(v.toInt()); }},
};

const Key<VarWipChoice> kChoiceKeys[] = {
    {QLatin1String("recType"), [](VarWipChoice &c, const QVariant &v) { c.setRecType(textOf(v)); }},
    {QLatin1String("field"), [](VarWipChoice &c, const QVariant &v) { c.setField(textOf(v)); }},
    {QLatin1String("dataProvider"), [](VarWipChoice &c, const QVariant &v) { c.setDataProvider(textOf(v)); }},
    {QLatin1String("start"), [](VarWipChoice &c, const QVariant &v) { c.setStart(v.toInt()); }},
};

/// Sets all that \a object says of one entity, its descendants included.
void readEntity(const Object &object, Standing standing, int level, TDmEntity &entity)
{
    // The key of the weight variable depends on how the entity is given; the other spelling is skipped: meant
    // so.
    const QLatin1String weightKey(standing == Standing::InArray ? "weightVar" : "weigthVar");
    bool childrenRead = false;
    for (auto entry = object.cbegin(); entry != object.cend(); ++entry) {
        if (isChildList(entry.key())) {
            // With both names given, the child list comes from "entities" each time: reading it once is
            // enough.
            if (!childrenRead)
                readEntities(object, level + 1, *entity.getChildren());
            childrenRead = true;
        } else if (entry.key() == weightKey) {
            entity.setWeightVariable(textOf(entry.value()));
        } else {
            readKey(kEntityKeys, entry.key(), entry.value(), entity);
        }
    }
    entity.setLevel(level + 1);
}

} // namespace

void readEntities(const Object &node, int level, QList<TDmEntity *> &into)
{
    guarded([&] {
        auto childList = node.cbegin();
        while (childList != node.cend() && !isChildList(childList.key()))
            ++childList;
        if (childList == node.cend())
            return;
        readItems(
            childList.value(), into, [level](TDmEntity &entity, const Object &object, Standing standing) {
                readEntity(object, standing, level, entity);
            });
    });
}

void readVariables(const QVariant &value, QList<TDmVariable *> &into)
{
    guarded([&] {
        readItems(value, into, [](TDmVariable &variable, const Object &object, Standing) {
            for (auto entry = object.cbegin(); entry != object.cend(); ++entry)
                readVariableKey(entry.key(), entry.value(), variable);
        });
    });
}

void readVariableKey(const QString &key, const QVariant &value, TDmVariable &variable)
{
    guarded([&] { readKey(kVariableKeys, key, value, variable); });
}

void readRanges(const QVariant &value, QList<Range *> &into)
{
    guarded([&] {
        readItems(value, into, [](Range &range, const Object &object, Standing standing) {
            if (standing == Standing::InArray)
                readKeys(kRangeKeys, object, range);
            else
                readKeys(kLoneRangeKeys, object, range);
        });
    });
}

void readValueLabels(const QVariant &value, QList<ValueLabelElement *> &into)
{
    guarded([&] {
        readItems(value, into, [](ValueLabelElement &element, const Object &object, Standing) {
            readKeys(kValueLabelKeys, object, element);
        });
    });
}

void readValueLabelVectors(const QVariant &value, QList<ValueLabelElement *> &into)
{
    guarded([&] {
        bool found = false;
        const auto expectAny = [](int) {};
        forEachItem(value, expectAny, [&](const Object &object, Standing) {
            const auto entry = object.constFind(QStringLiteral("valueLabelElement"));
            if (found || entry == object.cend())
                return;
            found = true;
            readValueLabels(entry.value(), into);
        });
    });
}

void readChoice(const Object &object, const QString &key, VarWipChoice &choice)
{
    guarded([&] {
        withObject(
            object.value(key), [&choice](const Object &fields) { readKeys(kChoiceKeys, fields, choice); });
    });
}

} // namespace tessel::detail
