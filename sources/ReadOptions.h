#pragma once

#include <QChar>
#include <QString>

#include <functional>

namespace tessel::sources {

/// How a source is to be read. What stands here is good for a first try.
struct ReadOptions {
    QString encoding; ///< Of the texts, a name as iconv knows it; empty: what the source declares.
    QString
        catalogue; ///< The .sas7bcat with the labels; empty: the one beside the .sas7bdat, if there is any.
    QChar separator; ///< Of a CSV file, a character of ASCII; null: the one that its header shows.

    /// How many records are looked at, from the first, for the categories of fields that declare none and for
    /// the ranges of numeric fields; 0: metadata only, the time does not depend on the number of records.
    qint64 rows = 0;

    /// A field with more different values than these gets no categories from the data.
    int mostCategories = 100;

    /// Told the percentage that was read, now and then while records are read; false cancels. May be empty.
    std::function<bool(int percent)> progress;
};

} // namespace tessel::sources
