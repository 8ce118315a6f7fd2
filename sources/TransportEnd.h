#pragma once

#include <QtGlobal>

class QFile;

namespace tessel::sources {

/// Where the first data set of a SAS transport file ends because another one begins, or another file that was
/// joined to it; -1 when none begins among the first \a most bytes of \a file, which is open. Moves the
/// file's position.
qint64 endOfFirstDataSet(QFile &file, qint64 most);

} // namespace tessel::sources
