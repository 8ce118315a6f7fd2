#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace tessel::editor {

/// What the editor remembers from one start to the next. Kept by QSettings under the application's name.
class Settings {
public:
    static QStringList recentFiles();

    /// Puts \a name in front of the list; at most ten are kept.
    static void addRecentFile(const QString &name);
    static void removeRecentFile(const QString &name);

    static QByteArray geometry();
    static QByteArray windowState();
    static void setWindow(const QByteArray &geometry, const QByteArray &state);

    /// Whether the tree of entities shows labels instead of names.
    static bool showsEntityLabels();
    static void setShowsEntityLabels(bool on);

    /// "en", "es", "fr" or "pt"; empty: the system's.
    static QString language();
    static void setLanguage(const QString &code);
};

} // namespace tessel::editor
