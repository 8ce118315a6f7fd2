#pragma once

#include "editor/AutoSave.h"
#include "editor/DictionaryDocument.h"
#include "editor/FileHandling.h"
#include "editor/Structure.h"
#include "model/TDmEntity.h"
#include "tests/support/MessageBoxRobot.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QWidget>
#include <QtTest>

namespace tessel::test {

/// A window's document with all that its file handling tells.
class Desk {
public:
    Desk()
        : autoSave(document)
        , files(document, &window)
        , told(&files, &editor::FileHandling::told)
        , failed(&files, &editor::FileHandling::failed)
    {
        autoSave.setPause(60'000);
    }

    void edit() { editor::Structure(document).addEntity(document.root()); }

    /// The names of the top entities.
    QString tops() const
    {
        QStringList names;
        for (const TDmEntity *entity : qAsConst(*document.root().getChildren()))
            names.append(entity->getName());
        return names.join(QLatin1Char(' '));
    }

    /// The sentences since the last call, what is wrong with an exclamation mark before it, the time as
    /// HH:mm.
    QStringList sentences()
    {
        QStringList list;
        for (const QList<QVariant> &arguments : qAsConst(told))
            list << arguments.first().toString().replace(
                QRegularExpression(QStringLiteral("\\d\\d:\\d\\d")), QStringLiteral("HH:mm"));
        for (const QList<QVariant> &arguments : qAsConst(failed))
            list << QLatin1Char('!') + arguments.first().toString();
        told.clear();
        failed.clear();
        return list;
    }

    QWidget window;
    editor::DictionaryDocument document;
    editor::AutoSave autoSave;
    editor::FileHandling files;
    QSignalSpy told;
    QSignalSpy failed;
};

/// What all boxes of the editor have in common, and what the one that \a robot saw is about.
inline void compareBox(const MessageBoxRobot &robot, const QWidget &window, const char *title,
    const QString &text, QMessageBox::Icon icon, QMessageBox::StandardButtons buttons,
    QMessageBox::StandardButton byReturn)
{
    QCOMPARE(robot.boxes().size(), 1);
    const MessageBoxRobot::Box box = robot.boxes().first();
    QCOMPARE(box.title, QString::fromUtf8(title));
    QCOMPARE(box.text, text);
    QCOMPARE(box.icon, icon);
    QCOMPARE(box.buttons, buttons);
    QCOMPARE(box.defaultButton, byReturn);
    QCOMPARE(box.textFormat, Qt::PlainText);
    QCOMPARE(box.parent, &window);
    QVERIFY(box.isModal);
    QCOMPARE(robot.unanswered(), 0);
}

} // namespace tessel::test
