#pragma once

#include <QString>

namespace tessel::sources {

/// What a cell of a CSV file is as a number. A text that a number would not give back, such as "007", is
/// none.
struct CsvNumber {
    enum class Kind {
        None, ///< A text.
        Whole, ///< A whole number that an int holds.
        Long, ///< A whole number that no int holds: a long code, as a rule.
        Point, ///< With a decimal point, or an exponent that has a sign or a decimal point before it.
        Comma, ///< With a decimal comma.
    };

    /// What \a text, which has no blanks around it, is.
    static CsvNumber of(const QString &text);

    Kind kind = Kind::None;
    double value = 0; ///< 0 for a text.
    int decimals = 0; ///< How many it takes to write it without an exponent.
};

} // namespace tessel::sources
