#include "sources/CsvNumber.h"

#include <QLocale>
#include <QStringView>

namespace tessel::sources {
namespace {

/// Reads a text from its start.
class Scanner {
public:
    explicit Scanner(const QString &text)
        : rest(text)
    {
    }

    /// Passes over one of \a characters; which, or null.
    QChar one(const char *characters)
    {
        if (rest.isEmpty() || !QLatin1String(characters).contains(rest.front()))
            return {};
        const QChar c = rest.front();
        rest = rest.mid(1);
        return c;
    }

    /// Passes over the digits that stand here.
    QStringView digits()
    {
        qsizetype count = 0;
        while (
            count < rest.size() && rest.at(count) >= QLatin1Char('0') && rest.at(count) <= QLatin1Char('9'))
            ++count;
        const QStringView found = rest.left(count);
        rest = rest.mid(count);
        return found;
    }

    bool isAtEnd() const { return rest.isEmpty(); }

private:
    QStringView rest;
};

/// The parts of a text that is written like a number.
struct Parts {
    explicit Parts(const QString &text)
    {
        Scanner scanner(text);
        const bool isNegative = !scanner.one("-").isNull();
        const QStringView whole = scanner.digits();
        mark = scanner.one(".,");
        const QStringView fraction = mark.isNull() ? QStringView() : scanner.digits();
        hasExponent = !scanner.one("eE").isNull();
        const QChar sign = hasExponent ? scanner.one("+-") : QChar();
        const QStringView power = hasExponent ? scanner.digits() : QStringView();
        const int shift = (sign == QLatin1Char('-') ? -1 : 1) * power.toString().toInt();
        decimals = qMax(0, int(fraction.size()) - shift);

        const bool isPadded = whole.size() > 1 && whole.front() == QLatin1Char('0');
        const bool isMinusZero = isNegative && mark.isNull() && whole == QLatin1String("0");
        // "2E5" may be a code, "2e+05" is what programs make of 200000.
        const bool isExponentSure =
            (mark == QLatin1Char('.') || !sign.isNull()) && !power.isEmpty() && mark != QLatin1Char(',');
        isNumber = scanner.isAtEnd() && whole.size() + fraction.size() > 0 && !isPadded && !isMinusZero
            && (!hasExponent || isExponentSure);
    }

    QChar mark;
    int decimals = 0;
    bool hasExponent = false;
    bool isNumber = false;
};

CsvNumber::Kind kindOf(const QString &text, const Parts &parts)
{
    if (parts.mark == QLatin1Char(','))
        return CsvNumber::Kind::Comma;
    if (!parts.mark.isNull() || parts.hasExponent)
        return CsvNumber::Kind::Point;
    bool fits = false;
    text.toInt(&fits);
    return fits ? CsvNumber::Kind::Whole : CsvNumber::Kind::Long;
}

} // namespace

CsvNumber CsvNumber::of(const QString &text)
{
    const Parts parts(text);
    if (!parts.isNumber)
        return {};
    QString withPoint = text;
    withPoint.replace(QLatin1Char(','), QLatin1Char('.'));
    bool isInRange = false;
    const double value = QLocale::c().toDouble(withPoint, &isInRange);
    if (!isInRange)
        return {};
    // What is added makes a zero of a minus zero.
    return {kindOf(text, parts), value + 0.0, parts.decimals};
}

} // namespace tessel::sources
