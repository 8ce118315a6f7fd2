#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <readstat.h>

#include <cstdint>
#include <variant>
#include <vector>

namespace tessel::test {

/// What stands in one place of a record: nothing, a number, a text, or a tag of a tagged missing value ('a'
/// to 'z').
using Cell = std::variant<std::monostate, double, QByteArray, char>;

/// One code with its label.
struct LabelledCode {
    Cell code; ///< Never nothing.
    QByteArray label;
};

/// A set of value labels, which several columns may name.
struct LabelSet {
    QByteArray name;
    readstat_type_t type = READSTAT_TYPE_DOUBLE;
    std::vector<LabelledCode> labels = {};
};

/// A declared range of missing numbers; equal bounds: one code.
struct MissingSpan {
    double from = 0;
    double to = 0;
};

/// One column of a table: what a statistical package calls a variable.
struct Column {
    QByteArray name;
    readstat_type_t type = READSTAT_TYPE_DOUBLE;
    size_t width = 0; ///< Of a text, in bytes; of an .xpt number, 3 to 8 bytes.
    QByteArray label = {};
    QByteArray format = {}; ///< As the package writes it: "F8.2", "%9.0g"; empty: none.
    QByteArray labelSet = {}; ///< The name of one of the table's sets; empty: none.
    std::vector<MissingSpan> missing = {};
    std::vector<QByteArray> missingTexts = {};
    int displayWidth = 0;
};

/// What is to be written: a table with its dictionary.
struct Table {
    std::vector<LabelSet> sets = {};
    std::vector<Column> columns = {};
    std::vector<std::vector<Cell>> records = {};
    QByteArray title = {};
    std::vector<QByteArray> notes = {};
};

/// The kinds of file that a table can become.
enum class FileKind { Sav, Zsav, Por, Dta, Sas7bdat, Sas7bcat, Xpt };

/// How a table is written.
struct FileForm {
    FileKind kind = FileKind::Sav;
    uint8_t version =
        0; ///< As the writer numbers them: 104 to 119 for .dta, 5 or 8 for .xpt; 0: the newest usual one.
    readstat_compress_t compression = READSTAT_COMPRESS_NONE;
    bool is64bit = true; ///< Matters for .sas7bdat and .sas7bcat only.
};

/// The bytes of \a table as a file of the form \a form, always the same for the same table: the time in it
/// is a fixed one. Texts are written as they are, so that they are UTF-8 only where the table's are.
/// Ends the program, with the reason, when the writer refuses the table.
/// The writer makes a good catalogue of one set only: of two, the second is damaged.
QByteArray fileOf(const Table &table, const FileForm &form);

/// A table of \a count records of one number X: 0, 1, 2 and so on.
Table countedRecords(int count);

/// The ending of files of the kind \a kind, without a dot.
QString endingOf(FileKind kind);

/// \a sav, which the writer declares as UTF-8, with the number \a codePage declared instead: its texts stay.
QByteArray withCodePageOfSav(QByteArray sav, int codePage);

} // namespace tessel::test
