#include "sources/OpenSource.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace tessel::sources {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("tessel::sources", text); }

} // namespace

QString openSource(QFile &file)
{
    const QFileInfo info(file);
    if (info.isDir())
        return tr("cannot be read: it is a folder; name a file");
    // Asked first, because opening a pipe waits for somebody to write into it.
    if (info.exists() && !info.isFile())
        return tr("cannot be read: it is no regular file; save its content in a file and name that");
    // Readers skip from page to page: a buffer would read what they pass over.
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return tr("cannot be read: %1").arg(file.errorString());
    if (file.size() == 0)
        return tr("is empty; expected a file with data");
    return QString();
}

} // namespace tessel::sources
