#pragma once

#include "sources/ReadOptions.h"
#include "sources/SourceOutcome.h"

#include <QString>

namespace tessel::sources {

/// The fields that the header of the CSV file \a file names. Without options.rows only the header is read,
/// fields have no type; with them, type, size, decimals, range and categories come from the records read.
SourceOutcome readCsv(const QString &file, const ReadOptions &options = {});

} // namespace tessel::sources
