#pragma once

#include <limits>

namespace tessel::detail {

/// Internal: whole numbers of numbers that an int may not hold.
class NearestInt {
public:
    NearestInt() = delete;

    /// \a number without its decimals; beyond what an int holds, the nearest int; 0 for what is not a number.
    static int of(double number)
    {
        using Limits = std::numeric_limits<int>;
        if (!(number == number))
            return 0;
        if (number >= Limits::max())
            return Limits::max();
        return number <= Limits::min() ? Limits::min() : static_cast<int>(number);
    }
};

} // namespace tessel::detail
