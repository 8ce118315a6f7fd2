#include "editor/Settings.h"

#include <QSettings>

namespace tessel::editor {
namespace {

constexpr int kRecentFiles = 10;

QString recentKey() { return QStringLiteral("recentFiles"); }
QString geometryKey() { return QStringLiteral("window/geometry"); }
QString stateKey() { return QStringLiteral("window/state"); }
QString entityLabelsKey() { return QStringLiteral("window/entityLabels"); }
QString languageKey() { return QStringLiteral("language"); }

} // namespace

QStringList Settings::recentFiles() { return QSettings().value(recentKey()).toStringList(); }

void Settings::addRecentFile(const QString &name)
{
    QStringList files = recentFiles();
    files.removeAll(name);
    files.prepend(name);
    QSettings().setValue(recentKey(), QStringList(files.mid(0, kRecentFiles)));
}

void Settings::removeRecentFile(const QString &name)
{
    QStringList files = recentFiles();
    files.removeAll(name);
    QSettings().setValue(recentKey(), files);
}

QByteArray Settings::geometry() { return QSettings().value(geometryKey()).toByteArray(); }
QByteArray Settings::windowState() { return QSettings().value(stateKey()).toByteArray(); }

void Settings::setWindow(const QByteArray &geometry, const QByteArray &state)
{
    QSettings settings;
    settings.setValue(geometryKey(), geometry);
    settings.setValue(stateKey(), state);
}

bool Settings::showsEntityLabels() { return QSettings().value(entityLabelsKey()).toBool(); }
void Settings::setShowsEntityLabels(bool on) { QSettings().setValue(entityLabelsKey(), on); }

QString Settings::language() { return QSettings().value(languageKey()).toString(); }
void Settings::setLanguage(const QString &code) { QSettings().setValue(languageKey(), code); }

} // namespace tessel::editor
