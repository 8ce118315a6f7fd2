#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <string_view>

namespace tessel::sources {

class CsvRecords;
class CsvText;

/// The texts of cells. Where a file does not say in what encoding it is, a cell is UTF-8 or, where it holds
/// other bytes, Windows-1252; a header that is Windows-1252 stands for the whole file.
class CsvCells {
    Q_DECLARE_TR_FUNCTIONS(tessel::sources::CsvCells)

public:
    /// The cells of \a source, which outlives this.
    explicit CsvCells(const CsvText &source);

    /// All cells of \a header, the first record: all of them are in one encoding.
    QStringList header(const CsvRecords &header);

    /// One cell of a record below.
    QString text(std::string_view cell);

    /// The encoding of what came so far.
    QString encoding() const;

    /// Whether a text holds what its encoding does not know.
    bool hasUnknown() const { return unknown > 0; }

    /// Sentences on cells that are not what the file or the header promises.
    QStringList remarks() const;

private:
    QString converted(std::string_view cell);

    const CsvText &source;
    bool isHeaderForeign = false; ///< Windows-1252, whatever the file says.
    bool hasWide = false; ///< Characters of UTF-8 were met beyond ASCII.
    int foreign = 0; ///< Cells below the header that are no UTF-8.
    int unknown = 0; ///< Cells with characters that nobody knows.
};

} // namespace tessel::sources
