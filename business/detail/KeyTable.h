#pragma once

#include "business/detail/VariantAccess.h"

#include <QLatin1String>

#include <cstddef>

/// Tables that say where the values of a document object go, and how they are visited.
namespace tessel::detail {

/// One key of a document object and what becomes of its value.
template<typename Target>
struct Key {
    QLatin1String name;
    void (*read)(Target &target, const QVariant &value);
};

/// Hands \a value to the entry of \a table that bears \a key; any other key is skipped.
template<typename Target, std::size_t Size>
void readKey(const Key<Target> (&table)[Size], const QString &key, const QVariant &value, Target &target)
{
    for (const Key<Target> &entry : table) {
        if (entry.name.size() == key.size() && key == entry.name) {
            entry.read(target, value);
            return;
        }
    }
}

/// Visits all keys of \a object, in sorted order.
template<typename Target, std::size_t Size>
void readKeys(const Key<Target> (&table)[Size], const Object &object, Target &target)
{
    for (auto entry = object.cbegin(); entry != object.cend(); ++entry)
        readKey(table, entry.key(), entry.value(), target);
}

} // namespace tessel::detail
