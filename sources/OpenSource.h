#pragma once

#include <QString>

class QFile;

namespace tessel::sources {

/// Opens \a file for reading. Returns why it cannot be read, as a sentence that stands behind its name; empty
/// when it is open. An empty file, a folder and what is no file (a pipe, a device) are refused.
QString openSource(QFile &file);

} // namespace tessel::sources
