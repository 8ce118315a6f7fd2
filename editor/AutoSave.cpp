#include "editor/AutoSave.h"

#include "editor/DictionaryDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace tessel::editor {
namespace {

constexpr int kPauseMilliseconds = 45 * 1000;

} // namespace

AutoSave::AutoSave(DictionaryDocument &savedDocument, QObject *parent)
    : QObject(parent)
    , document(savedDocument)
{
    timer.setSingleShot(true);
    timer.setInterval(kPauseMilliseconds);
    connect(&timer, &QTimer::timeout, this, &AutoSave::write);
    // Not restarted by further edits: who types without a pause is safe too.
    connect(&document, &DictionaryDocument::changed, this, [this] {
        if (!timer.isActive())
            timer.start();
    });
    connect(&document, &DictionaryDocument::fileNameChanged, this, &AutoSave::follow);
    connect(&document, &DictionaryDocument::modifiedChanged, this, [this](bool modified) {
        if (modified) {
            isOwn = true;
            timer.start();
            return;
        }
        timer.stop();
        removeOwnCopy();
    });
}

QString AutoSave::copyOf(const QString &name)
{
    if (name.isEmpty()) {
        const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
        return folder.filePath(QStringLiteral("untitled.json.autosave"));
    }
    const QFileInfo info(name);
    return info.dir().filePath(QLatin1Char('.') + info.fileName() + QStringLiteral(".autosave"));
}

bool AutoSave::hasCopy(const QString &name)
{
    const QFileInfo copy(copyOf(name));
    return copy.isFile() && (name.isEmpty() || copy.lastModified() >= QFileInfo(name).lastModified());
}

void AutoSave::removeCopy(const QString &name) { QFile::remove(copyOf(name)); }

QString AutoSave::setAside(const QString &name)
{
    QString aside = copyOf(name) + QStringLiteral(".declined");
    QFile::remove(aside);
    QFile::rename(copyOf(name), aside);
    return aside;
}

void AutoSave::follow(const QString &name)
{
    // The work goes on under another name; the copy under the old one would be taken for lost work.
    if (name != known)
        removeOwnCopy();
    known = name;
}

void AutoSave::removeOwnCopy()
{
    // What an ended program left behind is the user's to judge, and is needed until recovered work is saved.
    if (isOwn)
        removeCopy(known);
    isOwn = false;
}

void AutoSave::write()
{
    if (!document.isModified())
        return;
    const QString copy = copyOf(document.fileName());
    QDir().mkpath(QFileInfo(copy).path());
    if (const auto problem = document.saveCopy(copy))
        emit failed(tr("No copy of the unsaved work could be kept in %1: %2.").arg(copy, problem->message));
}

} // namespace tessel::editor
