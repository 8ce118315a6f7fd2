#pragma once

#include "model/TDmVariable.h"

#include <QHash>

#include <cstddef>
#include <vector>

namespace tessel::detail {

/// Internal: the variables of an entity, to be asked for one that is the same as another: equal in name,
/// alias, label and group, to the letter. Borrows them. One look costs the same however many there are.
///
/// A flat table, in which a variable stands at the place that its texts give, or at the next free one behind
/// it: with a node for each, fetching the nodes of a large entity from memory took most of the time.
class KnownVariables {
public:
    /// Room for \a most variables, and no more.
    explicit KnownVariables(int most)
        : table(sizeFor(most))
    {
    }

    /// Whether \a left and \a right are the same.
    static bool isSame(const TDmVariable &left, const TDmVariable &right)
    {
        return left.getName() == right.getName() && left.getAlias() == right.getAlias()
            && left.getLabel() == right.getLabel() && left.getGroup() == right.getGroup();
    }

    /// Adds \a variable behind those that are known.
    void append(TDmVariable *variable)
    {
        const uint fingerprint = fingerprintOf(*variable);
        std::size_t place = homeOf(fingerprint);
        // Places that were left are not taken again: equal ones stay in their order.
        while (table[place].isUsed)
            place = after(place);
        table[place] = {variable, fingerprint, true};
    }

    /// The first that is the same as \a variable; null if there is none.
    TDmVariable *firstSame(const TDmVariable &variable) const { return table[placeOf(variable)].variable; }

    /// Forgets the first that is the same as \a variable.
    void removeFirstSame(const TDmVariable &variable) { table[placeOf(variable)].variable = nullptr; }

private:
    struct Slot {
        TDmVariable *variable = nullptr; ///< Null: forgotten, or never there.
        uint fingerprint = 0;
        bool isUsed = false;
    };

    /// A power of two, at least twice as many as are wanted: a search always ends at a free place.
    static std::size_t sizeFor(int most)
    {
        std::size_t size = 2;
        while (size < 2 * std::size_t(most) + 1)
            size *= 2;
        return size;
    }

    static uint fingerprintOf(const TDmVariable &variable)
    {
        uint seed = qHash(variable.getName());
        seed = qHash(variable.getAlias(), seed);
        seed = qHash(variable.getLabel(), seed);
        return qHash(variable.getGroup(), seed);
    }

    std::size_t homeOf(uint fingerprint) const { return fingerprint & (table.size() - 1); }
    std::size_t after(std::size_t place) const { return (place + 1) & (table.size() - 1); }

    /// The place of the first that is the same as \a variable, or a free one.
    std::size_t placeOf(const TDmVariable &variable) const
    {
        const uint fingerprint = fingerprintOf(variable);
        std::size_t place = homeOf(fingerprint);
        for (; table[place].isUsed; place = after(place)) {
            const Slot &slot = table[place];
            if (slot.variable && slot.fingerprint == fingerprint && isSame(*slot.variable, variable))
                break;
        }
        return place;
    }

    std::vector<Slot> table;
};

} // namespace tessel::detail
