#include "sources/ValueTally.h"

#include "sources/CategoriesText.h"
#include "sources/SourceNumber.h"

#include <algorithm>

namespace tessel::sources {
namespace {

template<typename Value>
QVector<Value> sorted(const QSet<Value> &values)
{
    QVector<Value> list(values.cbegin(), values.cend());
    std::sort(list.begin(), list.end());
    return list;
}

} // namespace

ValueTally::ValueTally(const StatisticalVariable &variable, int mostCategories)
    : tallied(variable)
    , most(mostCategories)
{
}

void ValueTally::addNumber(double number)
{
    if (!tallied.isDeclaredMissing(number)) {
        lowest = lowest ? std::min(*lowest, number) : number;
        highest = highest ? std::max(*highest, number) : number;
    }
    isWhole = isWhole && wholeCode(number);
    if (!isListing)
        return;
    numbers.insert(number);
    if (!isWhole || numbers.size() > most)
        stopListing();
}

void ValueTally::addText(const QString &text)
{
    const auto end =
        std::find_if(text.crbegin(), text.crend(), [](QChar c) { return c != QLatin1Char(' '); });
    const QString value = text.left(int(text.crend() - end));
    if (value.isEmpty())
        return;
    longest = std::max(longest, value.size());
    if (!isListing)
        return;
    texts.insert(value);
    if (!CategoriesText::isCarried(value) || texts.size() > most)
        stopListing();
}

QString ValueTally::categories() const
{
    CategoriesText categories;
    for (const double number : sorted(numbers))
        categories.add(numberText(number), numberText(number));
    for (const QString &text : sorted(texts))
        categories.add(text, text);
    return categories.text();
}

void ValueTally::stopListing()
{
    isListing = false;
    numbers.clear();
    texts.clear();
}

} // namespace tessel::sources
