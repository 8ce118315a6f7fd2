#pragma once

#include "documents/DocumentFile.h"
#include "model/TDmSourceField.h"

#include <QChar>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QIODevice;

namespace tessel::editor {

/// What the first record of a CSV file tells: the names of its fields. Owns the fields.
///
/// Records end with CR, LF or both; empty lines before the header are passed over. Names lose the blanks
/// around them and may stand in quotation marks, with line ends and doubled quotation marks inside. A field
/// without a name is called FIELD_n, n counted from 1; equal names stay.
struct CsvHeader {
    Q_DECLARE_TR_FUNCTIONS(tessel::editor::CsvHeader)

public:
    /// No more than this is read of a file, however long its header is.
    static constexpr int kMostBytes = 4 * 1024 * 1024;

    /// A header with more fields is taken for something else.
    static constexpr int kMostFields = 100000;

    /// Comma, semicolon, tab and bar, in the order in which they win when a header has as many of the one as
    /// of the other.
    static QString separators();

    /// The header at the start of \a device, which is open; reads only as much as it takes. Without a
    /// \a separator, the one is taken that stands most often outside quotation marks. UTF-8 and UTF-16 are
    /// told by their byte-order marks; a header without one is UTF-8 or, where it holds other bytes,
    /// Windows-1252.
    static documents::Outcome<CsvHeader> read(QIODevice &device, QChar separator = QChar());

    /// The header of the file \a name; the rest as above.
    static documents::Outcome<CsvHeader> readFile(const QString &name, QChar separator = QChar());

    std::vector<std::unique_ptr<TDmSourceField>> fields; ///< Never empty; the names are no longer in quotes.
    QString encoding; ///< "UTF-8", "UTF-16" or "Windows-1252".
    QChar separator; ///< Null when none was asked for and none was found: the file has one column.
    QStringList remarks; ///< Sentences on what may surprise.
};

} // namespace tessel::editor
