#pragma once

#include <QString>

namespace tessel::cli {

/// Whether \a name means a standard stream.
bool isStandard(const QString &name);

/// Whether \a one and \a other are one existing file, links followed. A standard stream is no file.
bool isSameFile(const QString &one, const QString &other);

} // namespace tessel::cli
