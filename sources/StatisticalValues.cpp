#include "sources/StatisticalValues.h"

#include "sources/SourceNumber.h"

#include <algorithm>
#include <limits>

namespace tessel::sources {
namespace {

/// ReadStat counts records with an int.
constexpr qint64 kMostRecords = std::numeric_limits<int>::max() - 1;

} // namespace

StatisticalValues::StatisticalValues(const StatisticalContent &content, const ReadOptions &options)
    : source(content)
    , wishes(options)
    , expected(std::min({options.rows, content.rows < 0 ? kMostRecords : content.rows, kMostRecords}))
{
}

readstat_error_t StatisticalValues::read(QFile &file, StatisticalFormat format, qint64 end)
{
    for (const StatisticalVariable &variable : source.variables)
        tallies.emplace_back(variable, wishes.mostCategories);
    if (expected == 0)
        return READSTAT_OK;
    // Whether there are more records than are looked at shows with the first of them, unless it is known.
    const qint64 limit = source.rows < 0 ? expected + 1 : expected;
    more = source.rows > expected;
    return ReadstatParse(file, wishes.encoding, end)
        .readValues(
            format, limit, [this](int place) { return isWanted(place); },
            [this](qint64 record, int place, const readstat_value_t &value) {
                return receive(record, place, value);
            });
}

const ValueTally *StatisticalValues::tally(int place) const
{
    return tallies.empty() ? nullptr : &tallies.at(std::size_t(place));
}

/// The first one is wanted because records are counted by it. Texts with labels have nothing left to tell.
bool StatisticalValues::isWanted(int place) const
{
    const StatisticalVariable &variable = source.variables.at(place);
    return place == 0 || !variable.isText() || !source.labelSets.contains(variable.labelSet);
}

bool StatisticalValues::receive(qint64 record, int place, const readstat_value_t &value)
{
    if (record >= expected) {
        more = true;
        return true;
    }
    if (place == 0 && !begin(record))
        return false;
    if (readstat_value_is_system_missing(value) || readstat_value_is_tagged_missing(value))
        return true;
    ValueTally &tally = tallies.at(std::size_t(place));
    TextMends mends;
    if (readstat_value_type_class(value) == READSTAT_TYPE_CLASS_STRING)
        tally.addText(sourceText(readstat_string_value(value), mends));
    else if (readstat_value_type(value) == READSTAT_TYPE_FLOAT)
        tally.addNumber(widened(readstat_float_value(value)));
    else
        tally.addNumber(readstat_double_value(value));
    return true;
}

/// Begins with the record \a record; false when nobody wants it any more.
bool StatisticalValues::begin(qint64 record)
{
    recordsRead = record + 1;
    const int now = int(record * 100 / expected);
    if (now == percent || !wishes.progress)
        return true;
    percent = now;
    cancelled = !wishes.progress(now);
    return !cancelled;
}

} // namespace tessel::sources
