#pragma once

#include <QStringList>

namespace tessel::cli {

/// Judges each of the dictionaries \a files and prints what is wrong with them, a line each or, with \a json,
/// one array. Nothing is written. A file with a problem does not keep the others from being judged; the worst
/// status is returned.
int checkDocuments(const QStringList &files, bool json);

} // namespace tessel::cli
