#include "sources/SourceNumber.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace tessel::sources {
namespace {

constexpr double kLargestExact = 9007199254740992.0; // 2^53: above, not every whole number is a double.

} // namespace

QString numberText(double number)
{
    if (std::trunc(number) == number && std::abs(number) <= kLargestExact)
        return QString::number(qint64(number));
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

std::optional<int> wholeCode(double number)
{
    const bool fits =
        number >= std::numeric_limits<int>::lowest() && number <= std::numeric_limits<int>::max();
    return fits && std::trunc(number) == number ? std::optional<int>(int(number)) : std::nullopt;
}

double widened(float number)
{
    for (int digits = std::numeric_limits<float>::digits10; digits < std::numeric_limits<float>::max_digits10;
         ++digits) {
        const double rounded = QString::number(double(number), 'g', digits).toDouble();
        if (float(rounded) == number)
            return rounded;
    }
    return double(number);
}

} // namespace tessel::sources
