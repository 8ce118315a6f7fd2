#pragma once

#include "util/Validate.h"

#include <QString>
#include <QStringList>

namespace tessel::detail {

/// Internal: the rules that an entity's name obeys, apart from the box that tells of them.

/// Longest name of an entity, blanks around it not counted.
constexpr int kLongestEntityName = 50;

inline bool isTooLong(const QString &name) { return name.trimmed().size() > kLongestEntityName; }

/// What is already in use in the dictionary. Without \a names an entity may keep its own.
struct TakenNames {
    QStringList groups;
    QStringList names;
    QStringList aliases;
};

/// Why a text cannot name an entity, in the order in which it is judged.
enum class NameFault { None, Empty, NoName, Group, Entity, Alias, NoText, TooLong };

/// The first fault of \a text as a new name of an entity.
inline NameFault faultOf(const QString &text, const TakenNames &taken, Validate &validate)
{
    if (!validate.validateEmpty(text))
        return NameFault::Empty;
    if (!validate.validateName(text))
        return NameFault::NoName;
    if (validate.compare(taken.groups, text))
        return NameFault::Group;
    if (!taken.names.isEmpty() && validate.compare(taken.names, text))
        return NameFault::Entity;
    if (validate.compare(taken.aliases, text))
        return NameFault::Alias;
    if (!validate.validateStringC(text))
        return NameFault::NoText;
    return isTooLong(text) ? NameFault::TooLong : NameFault::None;
}

} // namespace tessel::detail
