#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace tessel::test {

/// Places of a test's own for what a program remembers: neither the user's settings nor their data are seen
/// or changed. To be made before the application.
class OwnPlaces {
public:
    OwnPlaces()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Tessel"));
        QCoreApplication::setApplicationName(QStringLiteral("tessel-editor"));
        qputenv("HOME", home.path().toLocal8Bit());
        qputenv("XDG_DATA_HOME", home.filePath(QStringLiteral("data")).toLocal8Bit());
        qputenv("XDG_RUNTIME_DIR", home.path().toLocal8Bit());
        QStandardPaths::setTestModeEnabled(true);
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    }

private:
    QTemporaryDir home;

    Q_DISABLE_COPY_MOVE(OwnPlaces)
};

} // namespace tessel::test
