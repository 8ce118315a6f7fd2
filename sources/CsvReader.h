#pragma once

#include "sources/ReadOptions.h"
#include "sources/SourceOutcome.h"

#include <QString>

class QIODevice;

namespace tessel::sources {

/// No more than this is read of a CSV file for its header.
constexpr int kMostCsvHeaderBytes = 4 * 1024 * 1024;

/// A CSV header with more fields is taken for something else.
constexpr int kMostCsvFields = 100000;

/// A longer record of a CSV file is taken for a quotation mark that somebody forgot to close.
constexpr int kMostCsvRecordBytes = 64 * 1024 * 1024;

/// The fields that the header of the CSV file \a file names. Without options.rows only the header is read,
/// fields have no type; with them, type, size, decimals, range and categories come from the records read.
///
/// Empty lines are no records and may stand above the header. Without options.separator, the one of comma,
/// semicolon, tab and bar is taken that stands most often outside the header's quotation marks. Without
/// options.encoding, UTF-8 and UTF-16 are told by their byte-order marks; what has none is UTF-8 or, where it
/// holds other bytes, Windows-1252. A problem's message is to stand behind the file's name.
SourceOutcome readCsv(const QString &file, const ReadOptions &options = {});

/// The same for \a device, which is open; no more is read of it than it takes.
SourceOutcome readCsv(QIODevice &device, const ReadOptions &options = {});

} // namespace tessel::sources
