#include "fuzz/support/Input.h"

#include <QDateTime>

#include <array>
#include <climits>
#include <cmath>
#include <limits>

namespace tessel::fuzz {

int Input::anyInt()
{
    constexpr std::array<int, 8> odd = {INT_MIN, INT_MIN + 1, -1, 0, 1, 2, INT_MAX - 1, INT_MAX};
    const int which = number(0, 2 * int(odd.size()) - 1);
    return which < int(odd.size()) ? odd[std::size_t(which)] : bytes.ConsumeIntegral<int>();
}

double Input::anyDouble()
{
    using Limits = std::numeric_limits<double>;
    constexpr std::array<double, 8> odd = {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(),
        Limits::max(), Limits::lowest(), Limits::denorm_min(), -0.0, 9007199254740993.0};
    const int which = number(0, 2 * int(odd.size()) - 1);
    if (which < int(odd.size()))
        return odd[std::size_t(which)];
    return bytes.ConsumeIntegral<int>() / 8.0;
}

QString Input::text(int most)
{
    const std::string taken = bytes.ConsumeRandomLengthString(std::size_t(most));
    return QString::fromUtf8(taken.data(), int(taken.size()));
}

QVariant Input::value()
{
    // Names that the tables of the targets hold: a clash must not have to be guessed.
    constexpr std::array<const char *, 8> known = {"A1", "B2", "AGE", "PERSON", "LAND", " AGE ", "age", ".*"};
    switch (number(0, 10)) {
    case 0:
    case 1:
    case 2:
        return text(60);
    case 3:
    case 4:
        return QString::fromLatin1(known[std::size_t(number(0, int(known.size()) - 1))]);
    case 5:
        return anyInt();
    case 6:
        return anyDouble();
    case 7:
        return flag();
    case 8:
        return QVariantList{text(8), anyInt()};
    case 9:
        return QDateTime::fromSecsSinceEpoch(anyInt(), Qt::UTC);
    default:
        return {};
    }
}

QByteArray Input::rest()
{
    const std::string taken = bytes.ConsumeRemainingBytesAsString();
    return QByteArray(taken.data(), int(taken.size()));
}

} // namespace tessel::fuzz
