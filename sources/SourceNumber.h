#pragma once

#include <QString>

#include <optional>

namespace tessel::sources {

/// \a number as a text: whole numbers without a point, others with as many digits as tell them apart.
QString numberText(double number);

/// \a number as an int; nothing when it is no whole number or does not fit.
std::optional<int> wholeCode(double number);

/// The number that people mean by \a number: 0.1 for the float next to it, not 0.10000000149011612.
double widened(float number);

} // namespace tessel::sources
