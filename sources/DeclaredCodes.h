#pragma once

#include <optional>

class TDmSourceField;
class TDmVariable;

namespace tessel::sources {

/// The codes for missing and not-applicable values that a source declares for one of its fields. A drop
/// derives such codes from the range and does not look at these: they are given in a step of its own.
struct DeclaredCodes {
    /// Those of \a field; a text that is no whole number is no code.
    static DeclaredCodes of(const TDmSourceField &field);

    /// Whether \a variable has a code that differs from a declared one.
    bool wouldChange(const TDmVariable &variable) const;

    /// Gives \a variable the declared codes; what is not declared stays.
    void giveTo(TDmVariable &variable) const;

    std::optional<int> missing;
    std::optional<int> notApplicable;
};

} // namespace tessel::sources
