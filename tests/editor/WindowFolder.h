#pragma once

#include "editor/AutoSave.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>
#include <QString>
#include <QTemporaryDir>

namespace tessel::test {

/// A folder for a test's files and for what the editor remembers, so that nothing of the user's is seen or
/// changed.
class WindowFolder {
public:
    /// To be called once, with the application there.
    void use(const char *program) const
    {
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
        QStandardPaths::setTestModeEnabled(true);
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QApplication::setOrganizationName(QStringLiteral("Tessel"));
        QApplication::setApplicationName(QString::fromLatin1(program));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    }

    /// Makes the editor forget what it remembers.
    static void forget()
    {
        QSettings().clear();
        editor::AutoSave::removeCopy(QString());
    }

    QString path() const { return folder.path(); }
    QString filePath(const char *name) const { return folder.filePath(QString::fromUtf8(name)); }

private:
    QTemporaryDir folder;
};

} // namespace tessel::test
