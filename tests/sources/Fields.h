#pragma once

#include "sources/SourceFields.h"

namespace tessel::test {

/// A field with a name, a type and a label.
inline std::unique_ptr<TDmSourceField> field(
    const QString &name, const QString &type = QString(), const QString &label = QString())
{
    auto made = std::make_unique<TDmSourceField>();
    made->name = name;
    made->fieldType = type;
    made->label = label;
    return made;
}

/// A source with the fields \a fields.
template<typename... Field>
sources::SourceFields sourceOf(Field... fields)
{
    sources::SourceFields source;
    (source.fields.push_back(std::move(fields)), ...);
    return source;
}

} // namespace tessel::test
