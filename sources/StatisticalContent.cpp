#include "sources/StatisticalContent.h"

#include <algorithm>

namespace tessel::sources {

bool StatisticalVariable::isDeclaredMissing(double number) const
{
    return std::any_of(missing.cbegin(), missing.cend(),
        [number](const MissingRange &range) { return range.holds(number); });
}

} // namespace tessel::sources
