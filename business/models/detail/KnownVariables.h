#pragma once

#include "model/TDmVariable.h"

#include <QHash>

namespace tessel::detail {

/// Internal: the variables of an entity, to be asked for one that is the same as another: equal in name,
/// alias, label and group, to the letter. Borrows them. One look costs the same however many there are.
class KnownVariables {
public:
    explicit KnownVariables(int expected) { entries.reserve(expected); }

    /// Whether \a left and \a right are the same.
    static bool isSame(const TDmVariable &left, const TDmVariable &right)
    {
        return left.getName() == right.getName() && left.getAlias() == right.getAlias()
            && left.getLabel() == right.getLabel() && left.getGroup() == right.getGroup();
    }

    /// Adds \a variable behind those that are known.
    void append(TDmVariable *variable) { entries.insert(fingerprintOf(*variable), {variable, next++}); }

    /// The first that is the same as \a variable; null if there is none.
    TDmVariable *firstSame(const TDmVariable &variable) const
    {
        const auto found = entryOf(variable);
        return found == entries.cend() ? nullptr : found->variable;
    }

    /// Forgets the first that is the same as \a variable.
    void removeFirstSame(const TDmVariable &variable)
    {
        const auto found = entryOf(variable);
        if (found != entries.cend())
            entries.erase(found);
    }

private:
    struct Entry {
        TDmVariable *variable;
        int position;
    };
    using Entries = QMultiHash<uint, Entry>;

    static uint fingerprintOf(const TDmVariable &variable)
    {
        uint seed = qHash(variable.getName());
        seed = qHash(variable.getAlias(), seed);
        seed = qHash(variable.getLabel(), seed);
        return qHash(variable.getGroup(), seed);
    }

    Entries::const_iterator entryOf(const TDmVariable &variable) const
    {
        const uint fingerprint = fingerprintOf(variable);
        auto first = entries.cend();
        for (auto i = entries.constFind(fingerprint); i != entries.cend() && i.key() == fingerprint; ++i) {
            if ((first == entries.cend() || i->position < first->position) && isSame(*i->variable, variable))
                first = i;
        }
        return first;
    }

    Entries entries;
    int next = 0;
};

} // namespace tessel::detail
