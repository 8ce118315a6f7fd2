#pragma once

#include "util/Validate.h"

#include <QString>
#include <QStringList>

namespace tessel::detail {

/// Internal: the rules that an entity's name obeys, apart from the box that tells of them.
class EntityNameRules {
public:
    /// Longest name, blanks around it not counted.
    static constexpr int kLongest = 50;

    /// What is already in use in the dictionary. Without \a names an entity may keep its own.
    struct Taken {
        QStringList groups;
        QStringList names;
        QStringList aliases;
    };

    /// Why a text cannot name an entity, in the order in which it is judged.
    enum class Fault { None, Empty, NoName, Group, Entity, Alias, NoText, TooLong };

    static bool isTooLong(const QString &name) { return name.trimmed().size() > kLongest; }

    /// The first fault of \a text as a new name of an entity.
    static Fault faultOf(const QString &text, const Taken &taken, Validate &validate)
    {
        if (!validate.validateEmpty(text))
            return Fault::Empty;
        if (!validate.validateName(text))
            return Fault::NoName;
        if (validate.compare(taken.groups, text))
            return Fault::Group;
        if (!taken.names.isEmpty() && validate.compare(taken.names, text))
            return Fault::Entity;
        if (validate.compare(taken.aliases, text))
            return Fault::Alias;
        if (!validate.validateStringC(text))
            return Fault::NoText;
        return isTooLong(text) ? Fault::TooLong : Fault::None;
    }
};

} // namespace tessel::detail
