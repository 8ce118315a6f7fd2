#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace tessel::editor {

/// One record of a CSV text, taken apart: fields as they stand, without their quotation marks.
///
/// Only a quotation mark at the start of a field, blanks before it left aside, opens a quoted part; any other
/// is a character like others, and so is what stands behind the closing one.
struct CsvRecord {
    /// The record that begins at \a start of \a text. Fields end at any character of \a separators.
    CsvRecord(const QString &text, int start, const QString &separators);

    QStringList fields; ///< One at least.
    QVector<int> separatorCounts; ///< How often each of the separators stands outside quotation marks.
    int end; ///< Where the line end stands, or the end of the text.
    bool isEnded = false; ///< Whether there is a line end.
    bool isQuoteOpen = false; ///< Whether the text ends within quotation marks; the last field is theirs.
};

} // namespace tessel::editor
