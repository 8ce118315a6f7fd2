#pragma once

#include <QString>

class Config;

namespace tessel::cli {

/// Shows a run configuration or, with a \a path, the entity of that name in it. Returns an ExitStatus; \a
/// file is only named in messages.
int showRun(const QString &file, Config &config, const QString &path, bool json);

} // namespace tessel::cli
