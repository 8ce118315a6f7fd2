#include "sources/CsvColumn.h"

#include "model/TDmSourceField.h"
#include "sources/CategoriesText.h"
#include "sources/CsvNumber.h"

#include <QLocale>

#include <algorithm>
#include <tuple>
#include <vector>

namespace tessel::sources {
namespace {

using Kind = CsvNumber::Kind;

constexpr unsigned bitOf(Kind kind) { return 1U << unsigned(kind); }

constexpr unsigned kWhole = bitOf(Kind::Whole);
constexpr unsigned kAnyWhole = kWhole | bitOf(Kind::Long);

/// A code with its place among others: numbers by their value, texts behind them. Digits with a zero before
/// them are no number but stand among the numbers all the same: "09" before "10".
struct Code {
    explicit Code(const QString &code)
        : text(code)
    {
        const CsvNumber number = CsvNumber::of(code);
        value = number.value;
        isText = number.kind == Kind::None;
        const bool isDigits = std::all_of(code.cbegin(), code.cend(),
            [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); });
        if (isText && isDigits) {
            value = code.toDouble();
            isText = false;
        }
    }

    bool operator<(const Code &other) const { return place() < other.place(); }

    std::tuple<bool, double, const QString &> place() const { return {isText, value, text}; }

    QString text;
    double value = 0;
    bool isText = false;
};

} // namespace

CsvColumn::CsvColumn(int most, bool isCommaDecimal)
    : mostCategories(most)
    , mayHaveCommas(isCommaDecimal)
{
}

void CsvColumn::add(const QString &value)
{
    if (value.isEmpty())
        return;
    longest = qMax(longest, value.size());
    keep(value);
    if (kinds & bitOf(Kind::None))
        return;
    count(CsvNumber::of(value));
}

QStringList CsvColumn::describe(TDmSourceField &field) const
{
    field.fieldType = type();
    field.size = longest;
    if (kinds == 0)
        return {tr("No value was found; the type STRING is a guess.")};
    QStringList remarks;
    if (field.fieldType == QLatin1String("STRING")) {
        giveCategories(field, remarks);
        return remarks;
    }
    giveRange(field);
    if (field.fieldType == QLatin1String("INTEGER")) {
        giveCategories(field, remarks);
        return remarks;
    }
    field.decimals = mostDecimals;
    if (kinds & bitOf(Kind::Comma))
        remarks.append(tr("Its numbers have a decimal comma; they were read as if it were a point."));
    return remarks;
}

QString CsvColumn::type() const
{
    if (kinds == kWhole)
        return QStringLiteral("INTEGER");
    const unsigned marked = kinds & ~kAnyWhole;
    const bool isReal = marked == bitOf(Kind::Point) || (mayHaveCommas && marked == bitOf(Kind::Comma));
    return isReal ? QStringLiteral("REAL") : QStringLiteral("STRING");
}

void CsvColumn::giveRange(TDmSourceField &field) const
{
    const QLocale plain = QLocale::c();
    field.rangeMin = plain.toString(lowest, 'f', QLocale::FloatingPointShortest);
    field.rangeMax = plain.toString(highest, 'f', QLocale::FloatingPointShortest);
}

void CsvColumn::giveCategories(TDmSourceField &field, QStringList &remarks) const
{
    if (hasTooMany)
        return;
    std::vector<Code> codes;
    for (const QString &value : values) {
        if (CategoriesText::isCarried(value))
            codes.emplace_back(value);
    }
    std::sort(codes.begin(), codes.end());
    QStringList categories;
    for (const Code &code : codes)
        categories.append(code.text + QLatin1Char(' ') + code.text);
    field.categories = categories.join(QLatin1Char('\t'));
    const int left = values.size() - int(codes.size());
    if (left == 1)
        remarks.append(tr("1 value holds blanks and is no category: a code cannot hold them."));
    if (left > 1)
        remarks.append(
            tr("%n values hold blanks and are no categories: a code cannot hold them.", nullptr, left));
}

void CsvColumn::keep(const QString &value)
{
    if (hasTooMany)
        return;
    values.insert(value);
    hasTooMany = values.size() > mostCategories || value.size() > kLongestCode;
    if (hasTooMany)
        values = {};
}

void CsvColumn::count(const CsvNumber &number)
{
    const bool isFirst = kinds == 0;
    kinds |= bitOf(number.kind);
    lowest = isFirst ? number.value : qMin(lowest, number.value);
    highest = isFirst ? number.value : qMax(highest, number.value);
    mostDecimals = qMax(mostDecimals, number.decimals);
}

} // namespace tessel::sources
