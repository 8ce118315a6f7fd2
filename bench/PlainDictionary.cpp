#include "bench/PlainDictionary.h"

#include <nlohmann/json.hpp>
#include <simdjson.h>

namespace tessel::bench {
namespace {

using Json = nlohmann::json;
using Element = simdjson::dom::element;

std::string textAt(const Json &object, const char *key) { return object.value(key, std::string()); }
int wholeAt(const Json &object, const char *key) { return object.value(key, 0); }
double realAt(const Json &object, const char *key) { return object.value(key, 0.0); }
bool flagAt(const Json &object, const char *key) { return object.value(key, false); }

std::string codeAt(const Json &object, const char *key)
{
    const Json &value = object.at(key);
    return value.is_string() ? value.get<std::string>() : value.dump();
}

const Json &objectAt(const Json &object, const char *key) { return object.at(key); }

template<typename Visit>
void forEachAt(const Json &object, const char *key, Visit &&visit)
{
    const auto found = object.find(key);
    if (found == object.end())
        return;
    for (const Json &item : *found)
        visit(item);
}

std::string textAt(const Element &object, const char *key)
{
    std::string_view text;
    return object[key].get(text) == simdjson::SUCCESS ? std::string(text) : std::string();
}

int wholeAt(const Element &object, const char *key)
{
    std::int64_t number = 0;
    return object[key].get(number) == simdjson::SUCCESS ? int(number) : 0;
}

double realAt(const Element &object, const char *key)
{
    double number = 0;
    return object[key].get(number) == simdjson::SUCCESS ? number : 0;
}

bool flagAt(const Element &object, const char *key)
{
    bool on = false;
    return object[key].get(on) == simdjson::SUCCESS && on;
}

std::string codeAt(const Element &object, const char *key)
{
    const Element value = object[key];
    return value.is_string() ? std::string(std::string_view(value)) : simdjson::minify(value);
}

Element objectAt(const Element &object, const char *key) { return object[key]; }

template<typename Visit>
void forEachAt(const Element &object, const char *key, Visit &&visit)
{
    simdjson::dom::array items;
    if (object[key].get(items) != simdjson::SUCCESS)
        return;
    for (const Element item : items)
        visit(item);
}

template<typename Object>
PlainVariable variableOf(const Object &object)
{
    PlainVariable variable;
    variable.name = textAt(object, "name");
    variable.alias = textAt(object, "alias");
    variable.label = textAt(object, "label");
    variable.group = textAt(object, "group");
    variable.type = textAt(object, "type");
    variable.tag = wholeAt(object, "tag");
    variable.notapp = wholeAt(object, "notapp");
    variable.missing = wholeAt(object, "missing");
    variable.size = wholeAt(object, "size");
    const auto &layout = objectAt(object, "metadata");
    variable.field = textAt(layout, "field");
    variable.start = wholeAt(layout, "start");
    variable.length = wholeAt(layout, "length");
    forEachAt(layout, "range", [&](const Object &range) {
        variable.ranges.push_back({realAt(range, "min"), realAt(range, "max")});
    });
    forEachAt(object, "valueLabels", [&](const Object &label) {
        variable.labels.push_back({codeAt(label, "value"), textAt(label, "label")});
    });
    return variable;
}

template<typename Object>
PlainEntity entityOf(const Object &object)
{
    PlainEntity entity;
    entity.name = textAt(object, "name");
    entity.selectable = flagAt(object, "selectable");
    entity.isVirtual = flagAt(object, "virtual");
    forEachAt(object, "variables",
        [&](const Object &variable) { entity.variables.push_back(variableOf(variable)); });
    forEachAt(object, "entities", [&](const Object &child) { entity.entities.push_back(entityOf(child)); });
    return entity;
}

} // namespace

PlainEntity plainByNlohmann(const QByteArray &text)
{
    return entityOf(Json::parse(text.cbegin(), text.cend()));
}

PlainEntity plainBySimdjson(const QByteArray &text)
{
    simdjson::dom::parser parser;
    const Element document = parser.parse(text.constData(), std::size_t(text.size()));
    return entityOf(document);
}

} // namespace tessel::bench
