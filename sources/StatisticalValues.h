#pragma once

#include "sources/ReadOptions.h"
#include "sources/ReadstatParse.h"
#include "sources/ValueTally.h"

#include <vector>

namespace tessel::sources {

/// The values of the first records of a statistical file, as far as its fields need them.
class StatisticalValues {
public:
    /// For the variables of \a content, as \a options wish; both outlive this.
    StatisticalValues(const StatisticalContent &content, const ReadOptions &options);

    /// Reads \a file, an open file of the format \a format, as far as \a end; -1: all of it. Being cancelled
    /// is an error too.
    readstat_error_t read(QFile &file, StatisticalFormat format, qint64 end);

    bool isCancelled() const { return cancelled; }
    qint64 rowsRead() const { return recordsRead; }

    /// Whether the file has records that were not looked at.
    bool hasMore() const { return more; }

    /// What the variable at \a place holds; null when nothing was read.
    const ValueTally *tally(int place) const;

private:
    bool isWanted(int place) const;
    bool receive(qint64 record, int place, const readstat_value_t &value);
    bool begin(qint64 record);

    const StatisticalContent &source;
    const ReadOptions &wishes;
    std::vector<ValueTally> tallies;
    const qint64 expected; ///< How many records will be looked at, at most.
    qint64 recordsRead = 0;
    int percent = -1;
    bool cancelled = false;
    bool more = false;
};

} // namespace tessel::sources
