#include "sources/SourceReader.h"

namespace tessel::sources {

SourceOutcome readSource(const QString &, const ReadOptions &) { return {}; }

QStringList sourceEndings() { return {}; }

QStringList commonEncodings() { return {}; }

} // namespace tessel::sources
