#pragma once

#include "sources/ReadOptions.h"
#include "sources/SourceOutcome.h"

#include <QString>
#include <QStringList>

namespace tessel::sources {

/// The fields of the file \a file, whatever its format: told by its first bytes, and by its ending where they
/// do not tell. A file whose content belies its ending is a problem that names both.
SourceOutcome readSource(const QString &file, const ReadOptions &options = {});

/// The endings of the files that can be read, in small letters without a dot; "sas7bcat" is not among them,
/// because it holds labels and no fields.
QStringList sourceEndings();

/// Encodings worth offering when a file cannot be read with its own, the most frequent ones first.
QStringList commonEncodings();

} // namespace tessel::sources
