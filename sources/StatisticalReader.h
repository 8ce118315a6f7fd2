#pragma once

#include "sources/ReadOptions.h"
#include "sources/SourceOutcome.h"

#include <QString>

namespace tessel::sources {

/// The formats of the statistical packages.
enum class StatisticalFormat { Sav, Por, Dta, Sas7bdat, Xpt };

/// The fields of the statistical file \a file, which is of the format \a format. Without options.rows no
/// value is read.
SourceOutcome readStatistical(const QString &file, StatisticalFormat format, const ReadOptions &options = {});

} // namespace tessel::sources
