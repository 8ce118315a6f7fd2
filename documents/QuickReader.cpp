#include "documents/QuickReader.h"

#include "documents/QuickValues.h"
#include "documents/Refused.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <vector>

namespace tessel::documents {
namespace {

using Value = QuickValues::Value;
using Object = QuickValues::Object;

/// An entity that is being read, with what its keys depend on.
struct EntityInHand {
    TDmEntity &entity;
    int level;
    bool isAlone;
    bool hasChildList = false;
};

struct RangeInHand {
    Range &range;
    bool isAlone;
};

class Reader {
public:
    std::unique_ptr<TDmEntity> read(simdjson::ondemand::document &document)
    {
        auto root = std::make_unique<TDmEntity>();
        EntityInHand hand{*root, 0, false};
        readKeys(kEntityKeys, document.get_object(), hand);
        // Something more behind the object.
        if (document.current_location().error() == simdjson::SUCCESS)
            throw Refused();
        return root;
    }

private:
    /// One key of an object and what becomes of its value.
    template<typename Target>
    struct Key {
        std::string_view name;
        void (*read)(Reader &reader, Target &target, Value value);
    };

    static const Key<EntityInHand> kEntityKeys[14];
    static const Key<TDmVariable> kVariableKeys[14];
    static const Key<TDmVariable> kLayoutKeys[6];
    static const Key<RangeInHand> kRangeKeys[2];
    static const Key<ValueLabelElement> kLabelKeys[2];

    /// Where \a name stands in \a table. Documents mostly hold their keys sorted, as the tables are: so it is
    /// looked for from \a expected on.
    template<typename Target, std::size_t Size>
    static std::size_t indexOf(const Key<Target> (&table)[Size], std::string_view name, std::size_t expected)
    {
        for (std::size_t i = expected; i < Size; ++i) {
            if (table[i].name == name)
                return i;
        }
        for (std::size_t i = 0; i < expected; ++i) {
            if (table[i].name == name)
                return i;
        }
        return Size;
    }

    template<typename Target, std::size_t Size>
    void readKeys(const Key<Target> (&table)[Size], Object object, Target &target)
    {
        const QuickValues::Descent descent(values);
        unsigned seen = 0;
        std::size_t expected = 0;
        for (auto entry : object) {
            simdjson::ondemand::field field = std::move(entry);
            const std::size_t index = indexOf(table, QuickValues::nameOf(field), expected);
            if (index == Size) {
                values.pass(std::move(field).value());
                continue;
            }
            if ((seen >> index & 1U) != 0)
                throw Refused();
            seen |= 1U << index;
            table[index].read(*this, target, std::move(field).value());
            expected = index + 1;
        }
    }

    /// Gives \a into a new item for each that \a value holds, once \a fill has read the item's object.
    template<typename Item, typename Fill>
    void readItems(Value value, QList<Item *> &into, Fill &&fill)
    {
        if (QuickValues::isNull(value))
            return;
        if (value.type() == simdjson::ondemand::json_type::object) {
            Object object = value.get_object();
            // An empty object alone is no item.
            if (object.is_empty())
                throw Refused();
            auto item = std::make_unique<Item>();
            fill(*item, object, true);
            into.append(item.get());
            static_cast<void>(item.release());
            return;
        }
        const QuickValues::Descent descent(values);
        // Collected first, so that the list gets exactly the memory that it needs.
        constexpr std::size_t usual = 16;
        std::vector<std::unique_ptr<Item>> items;
        items.reserve(usual);
        for (auto entry : value.get_array()) {
            Object object = entry.get_object();
            items.push_back(std::make_unique<Item>());
            fill(*items.back(), object, false);
        }
        into.reserve(int(items.size()));
        for (std::unique_ptr<Item> &item : items)
            into.append(item.release());
    }

    void readChildren(EntityInHand &parent, Value value)
    {
        // The child list has two names, of which one hides the other.
        if (parent.hasChildList)
            throw Refused();
        parent.hasChildList = true;
        const auto fill = [this, &parent](TDmEntity &entity, Object object, bool isAlone) {
            EntityInHand hand{entity, parent.level + 1, isAlone};
            entity.setLevel(hand.level);
            readKeys(kEntityKeys, object, hand);
        };
        readItems(value, *parent.entity.getChildren(), fill);
    }

    void readVariables(TDmEntity &entity, Value value)
    {
        const auto fill = [this](TDmVariable &variable, Object object, bool) {
            readKeys(kVariableKeys, object, variable);
        };
        readItems(value, *entity.getVariables(), fill);
    }

    void readLabels(TDmVariable &variable, Value value)
    {
        const auto fill = [this](ValueLabelElement &element, Object object, bool) {
            readKeys(kLabelKeys, object, element);
        };
        readItems(value, *variable.getValueLabelElementList(), fill);
    }

    void readRanges(MetadataVariables &layout, Value value)
    {
        const auto fill = [this](Range &range, Object object, bool isAlone) {
            RangeInHand hand{range, isAlone};
            readKeys(kRangeKeys, object, hand);
        };
        readItems(value, *layout.getRange(), fill);
    }

    /// A range that stands alone has whole-number bounds.
    double bound(Value value, bool isAlone) { return isAlone ? values.whole(value) : values.real(value); }

    /// The weight variable of an entity that stands alone has another key than that of one in a list; the
    /// other spelling is passed.
    void readWeight(EntityInHand &hand, Value value, bool isForAlone)
    {
        if (hand.isAlone == isForAlone)
            hand.entity.setWeightVariable(values.text(value));
        else
            values.pass(value);
    }

    /// At the top it tells run configurations from dictionaries.
    void readType(const EntityInHand &hand, Value value)
    {
        if (hand.level == 0)
            throw Refused();
        values.pass(value);
    }

    void readLayout(TDmVariable &variable, Value value)
    {
        if (!QuickValues::isNull(value))
            readKeys(kLayoutKeys, value.get_object(), variable);
    }

    QuickValues values;
};

// The tables are sorted, as documents mostly are.
const Reader::Key<EntityInHand> Reader::kEntityKeys[] = {
    {"alias", [](Reader &r, EntityInHand &e, Value v) { e.entity.setAlias(r.values.text(v)); }},
    {"codeVar", [](Reader &r, EntityInHand &e, Value v) { e.entity.setRefCode(r.values.text(v)); }},
    {"documentation",
        [](Reader &r, EntityInHand &e, Value v) { e.entity.setDocumentationEntity(r.values.text(v)); }},
    {"entities", [](Reader &r, EntityInHand &e, Value v) { r.readChildren(e, v); }},
    {"label", [](Reader &r, EntityInHand &e, Value v) { e.entity.setLabel(r.values.text(v)); }},
    {"labelVar", [](Reader &r, EntityInHand &e, Value v) { e.entity.setRefLabel(r.values.text(v)); }},
    {"name", [](Reader &r, EntityInHand &e, Value v) { e.entity.setName(r.values.text(v)); }},
    {"root", [](Reader &r, EntityInHand &e, Value v) { r.readChildren(e, v); }},
    {"selectable", [](Reader &r, EntityInHand &e, Value v) { e.entity.setSelectable(r.values.flag(v)); }},
    {"type", [](Reader &r, EntityInHand &e, Value v) { r.readType(e, v); }},
    {"variables", [](Reader &r, EntityInHand &e, Value v) { r.readVariables(e.entity, v); }},
    {"virtual", [](Reader &r, EntityInHand &e, Value v) { e.entity.setIsvirtual(r.values.flag(v)); }},
    {"weightVar", [](Reader &r, EntityInHand &e, Value v) { r.readWeight(e, v, false); }},
    {"weigthVar", [](Reader &r, EntityInHand &e, Value v) { r.readWeight(e, v, true); }},
};

const Reader::Key<TDmVariable> Reader::kVariableKeys[] = {
    {"alias", [](Reader &r, TDmVariable &t, Value v) { t.setAlias(r.values.text(v)); }},
    {"documentation", [](Reader &r, TDmVariable &t, Value v) { t.setDocumentation(r.values.text(v)); }},
    {"fileName", [](Reader &r, TDmVariable &t, Value v) { t.setFileName(r.values.text(v)); }},
    {"group", [](Reader &r, TDmVariable &t, Value v) { t.setGroup(r.values.text(v)); }},
    {"label", [](Reader &r, TDmVariable &t, Value v) { t.setLabel(r.values.text(v)); }},
    {"local", [](Reader &r, TDmVariable &t, Value v) { t.setLocal(r.values.flag(v)); }},
    {"metadata", [](Reader &r, TDmVariable &t, Value v) { r.readLayout(t, v); }},
    {"missing", [](Reader &r, TDmVariable &t, Value v) { t.setMissing(r.values.whole(v)); }},
    {"name", [](Reader &r, TDmVariable &t, Value v) { t.setName(r.values.text(v)); }},
    {"notapp", [](Reader &r, TDmVariable &t, Value v) { t.setNotappl(r.values.whole(v)); }},
    {"size", [](Reader &r, TDmVariable &t, Value v) { t.setSize(r.values.whole(v)); }},
    {"tag", [](Reader &r, TDmVariable &t, Value v) { t.setTag(r.values.whole(v)); }},
    {"type", [](Reader &r, TDmVariable &t, Value v) { t.setVarType(r.values.text(v)); }},
    {"valueLabels", [](Reader &r, TDmVariable &t, Value v) { r.readLabels(t, v); }},
};

// The layout that a new variable has is filled. Start and length are kept twice.
const Reader::Key<TDmVariable> Reader::kLayoutKeys[] = {
    {"field",
        [](Reader &r, TDmVariable &t, Value v) { t.getMetadataVariables()->setField(r.values.text(v)); }},
    {"length",
        [](Reader &r, TDmVariable &t, Value v) {
            t.setFieldSize(r.values.whole(v));
            t.getMetadataVariables()->setLength(t.getFieldSize());
        }},
    {"lookup",
        [](Reader &r, TDmVariable &t, Value v) { t.getMetadataVariables()->setLookup(r.values.flag(v)); }},
    {"range", [](Reader &r, TDmVariable &t, Value v) { r.readRanges(*t.getMetadataVariables(), v); }},
    {"record",
        [](Reader &r, TDmVariable &t, Value v) { t.getMetadataVariables()->setRecord(r.values.text(v)); }},
    {"start",
        [](Reader &r, TDmVariable &t, Value v) {
            t.setFieldRelativePosition(r.values.whole(v));
            t.getMetadataVariables()->setStart(t.getFieldRelativePosition());
        }},
};

const Reader::Key<RangeInHand> Reader::kRangeKeys[] = {
    {"max", [](Reader &r, RangeInHand &h, Value v) { h.range.setRangeMax(r.bound(v, h.isAlone)); }},
    {"min", [](Reader &r, RangeInHand &h, Value v) { h.range.setRangeMin(r.bound(v, h.isAlone)); }},
};

const Reader::Key<ValueLabelElement> Reader::kLabelKeys[] = {
    {"label", [](Reader &r, ValueLabelElement &e, Value v) { e.setLabel(r.values.text(v)); }},
    {"value", [](Reader &r, ValueLabelElement &e, Value v) { e.setValue(r.values.code(v)); }},
};

std::unique_ptr<TDmEntity> read(const char *bytes, std::size_t size, std::size_t room)
{
    simdjson::ondemand::parser parser;
    simdjson::ondemand::document document = parser.iterate(bytes, size, room);
    return std::make_unique<Reader>()->read(document);
}

} // namespace

std::unique_ptr<TDmEntity> readQuickly(const QByteArray &bytes)
{
    const int mark = bytes.startsWith("\xef\xbb\xbf") ? 3 : 0;
    const char *const begin = bytes.constData() + mark;
    const auto size = std::size_t(bytes.size() - mark);
    const auto room = std::size_t(qMax(bytes.capacity() - mark, 0));
    try {
        // The parser looks at blocks, the last of which may reach beyond the text.
        if (room >= size + simdjson::SIMDJSON_PADDING)
            return read(begin, size, room);
        const simdjson::padded_string copy(begin, size);
        return read(copy.data(), size, size + simdjson::SIMDJSON_PADDING);
    } catch (const std::exception &) {
        return nullptr;
    }
}

} // namespace tessel::documents
