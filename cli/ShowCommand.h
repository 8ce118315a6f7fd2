#pragma once

#include <QString>

namespace tessel::cli {

/// Shows the document \a file: its tree with counts or, with a \a path, one entity's variables or one
/// variable with its labels and ranges; \a json for programs instead of people. Returns an ExitStatus.
int showDocument(const QString &file, const QString &path, bool json);

} // namespace tessel::cli
