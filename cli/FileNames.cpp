#include "cli/FileNames.h"

#include <QFileInfo>

namespace tessel::cli {

bool isStandard(const QString &name) { return name == QLatin1String("-"); }

bool isSameFile(const QString &one, const QString &other)
{
    const QString path =
        isStandard(one) || isStandard(other) ? QString() : QFileInfo(one).canonicalFilePath();
    return !path.isEmpty() && QFileInfo(other).canonicalFilePath() == path;
}

} // namespace tessel::cli
