#pragma once

#include "business/Constants.h"

#include <QString>

namespace tessel::detail {

/// Internal: the types of variables that the dictionary knows, however they are written.
enum class VariableType { String, Integer, Real, Bool, Other };

/// The type that \a name means, blanks around it and letter case aside.
inline VariableType variableTypeOf(const QString &name)
{
    const QString folded = name.trimmed().toUpper();
    if (folded == constants::kTypeString)
        return VariableType::String;
    if (folded == constants::kTypeInteger)
        return VariableType::Integer;
    if (folded == constants::kTypeReal)
        return VariableType::Real;
    return folded == QLatin1String("BOOL") ? VariableType::Bool : VariableType::Other;
}

} // namespace tessel::detail
