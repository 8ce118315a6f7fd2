#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct csv_parser;

namespace tessel::sources {

/// Takes the text of a CSV file apart, record by record.
///
/// Records end with CR, LF or both; lines of nothing but blanks are passed over. Cells lose the blanks around
/// them and may stand in quotation marks, with separators, line ends and doubled quotation marks inside. A
/// quotation mark within a quoted cell closes it only where a separator or a line end follows, blanks left
/// aside: writers that forget to double them are understood. Any other quotation mark is a character.
class CsvRecords {
public:
    /// Cells end at \a separator, a byte of ASCII; a null byte, which no text holds: records are one cell
    /// each. Of a record, no more than \a mostCells cells are kept.
    CsvRecords(char separator, int mostCells);
    ~CsvRecords();

    /// Takes bytes of \a text from \a position on, which moves behind what was taken: up to the end of a
    /// record, true, or all of them. The record before is gone.
    bool take(const QByteArray &text, int &position);

    /// Says that nothing comes any more. True when that ends a record.
    bool finish();

    /// Whether the end, once it was said, stands within quotation marks; the cell that they open is not kept.
    bool isQuoteOpen() const { return isOpen; }

    /// The line in which the record begins, counted from 1.
    qint64 line() const { return firstLine; }

    /// How many bytes the record has so far, its line ends included.
    qint64 size() const { return bytesTaken; }

    /// How many cells the record has, kept or not.
    int cellCount() const { return count; }

    /// How many of them are kept.
    int keptCells() const { return int(ends.size()); }

    /// One of the kept cells, without its quotation marks; good until the next bytes are taken.
    std::string_view cell(int index) const;

private:
    void parse(const char *bytes, int size);
    void addCell(const char *bytes, std::size_t size);
    void endRecord();
    void startAnew();

    const std::unique_ptr<csv_parser> parser;
    const std::size_t mostKept;
    std::string kept;
    std::vector<std::size_t> ends;
    int count = 0;
    qint64 currentLine = 1;
    qint64 firstLine = 1;
    qint64 bytesTaken = 0;
    bool isCrLast = false;
    bool hasBegun = false; ///< The record shows more than blanks: its line is known.
    bool isComplete = false;
    bool isOpen = false;

    Q_DISABLE_COPY_MOVE(CsvRecords)
};

} // namespace tessel::sources
