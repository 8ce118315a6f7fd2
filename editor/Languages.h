#pragma once

#include <QString>
#include <QVector>

class QCoreApplication;

namespace tessel::editor {

/// A language that the editor speaks.
struct Language {
    QString code; ///< As in a locale's name; empty: as the system.
    QString name; ///< In the language itself; empty: as the system.
};

/// All of them, the system's choice first.
QVector<Language> languages();

/// Makes \a application speak the language \a code; for an empty one that of the system, or else English.
/// Qt's own texts follow where Qt's translations are installed.
void speak(QCoreApplication &application, const QString &code);

} // namespace tessel::editor
