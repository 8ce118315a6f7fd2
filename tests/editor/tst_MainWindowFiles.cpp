#include "editor/Settings.h"
#include "tests/editor/FileDialogRobot.h"
#include "tests/editor/Files.h"
#include "tests/editor/ShownWindow.h"
#include "tests/support/MessageBoxRobot.h"

#include <QDockWidget>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

using namespace tessel::editor;
using namespace tessel::test;

/// Nothing is lost, and what is remembered.
class tst_MainWindowFiles : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { folder.use("tst_MainWindowFiles"); }
    void init() { WindowFolder::forget(); }

    void closingAsks_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("saves");
        QTest::newRow("save") << int(QMessageBox::Save) << true << true;
        QTest::newRow("Return saves") << int(MessageBoxRobot::PressReturn) << true << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
        QTest::newRow("Escape") << int(MessageBoxRobot::PressEscape) << false << false;
    }
    void closingAsks()
    {
        QFETCH(int, answer);
        QFETCH(bool, closes);
        QFETCH(bool, saves);
        const QString file = folder.filePath("small.json");
        QVERIFY(put(file, smallDictionary()));
        ShownWindow window;
        QVERIFY(window.main.files().openFile(file));
        window.goTo("/entities/1");
        ShownWindow::press(Qt::Key_F2);
        ShownWindow::enter("FIELD");
        QCOMPARE(window.title(), QString("small.json* — Tessel"));
        MessageBoxRobot robot({QMessageBox::StandardButton(answer)});
        ShownWindow::press(Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(robot.texts(), QStringList("Save the changes to small.json before it is closed?"));
        QCOMPARE(robot.boxes().first().defaultButton, QMessageBox::Save);
        QCOMPARE(window.main.isVisible(), !closes);
        QCOMPARE(contentOf(file).contains("FIELD"), saves);
        if (!saves)
            QCOMPARE(contentOf(file), smallDictionary());
        QVERIFY(QFile::remove(file));
    }

    void closingWithoutAFileSavesUnderAName()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/1");
        ShownWindow::press(Qt::Key_F2);
        ShownWindow::enter("FIELD");
        {
            MessageBoxRobot robot({QMessageBox::Save});
            const FileDialogRobot cancels({});
            QVERIFY(!window.main.close());
            QCOMPARE(cancels.seen().size(), 1);
        }
        QVERIFY(window.main.isVisible());
        QVERIFY(window.document().isModified());
        const QString file = folder.filePath("late.json");
        MessageBoxRobot robot({QMessageBox::Save});
        const FileDialogRobot names({file});
        QVERIFY(window.main.close());
        QVERIFY(contentOf(file).contains("FIELD"));
        QVERIFY(QFile::remove(file));
    }

    void whatCannotBeSavedStays()
    {
        const QString file = folder.filePath("small.json");
        QVERIFY(put(file, smallDictionary()));
        ShownWindow window;
        QVERIFY(window.main.files().openFile(file));
        window.goTo("/entities/1");
        ShownWindow::press(Qt::Key_F2);
        ShownWindow::enter("FIELD");
        {
            const FileDialogRobot names({folder.filePath("no/such/folder/x.json")});
            MessageBoxRobot robot({QMessageBox::Ok});
            ShownWindow::press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        }
        if (!window.notice().isEmpty())
            QVERIFY2(window.notice().startsWith("x.json is not saved; the file is as it was. "),
                qPrintable(window.notice()));
        QVERIFY(window.document().isModified());
        QCOMPARE(window.title(), QString("small.json* — Tessel"));
        QCOMPARE(contentOf(file), smallDictionary());
        MessageBoxRobot robot({QMessageBox::Discard});
        QVERIFY(window.main.close());
        QVERIFY(QFile::remove(file));
    }

    void closeShowsTheStartPage()
    {
        ShownWindow window;
        window.openSample();
        QVERIFY(window.variables().isVisible());
        ShownWindow::press(Qt::Key_W, Qt::ControlModifier);
        QVERIFY(window.part<QPushButton>("startNew").isVisible());
        QVERIFY(!window.variables().isVisible());
        QCOMPARE(window.counts(), QString("0 entities · 0 variables · 0 labels"));
        QCOMPARE(window.part<QDockWidget>("detailDock").windowTitle(), QString("Variable"));
        QVERIFY(!window.document().isModified());
    }

    void aFileThatCannotBeReadLeavesEverything()
    {
        const QString file = folder.filePath("broken.json");
        QVERIFY(put(file, "{\n  \"name\": oops}"));
        Settings::addRecentFile(file);
        ShownWindow window;
        window.openSample();
        QVERIFY(!window.main.files().openFile(file));
        QVERIFY2(window.notice().startsWith("broken.json, line 2, column "), qPrintable(window.notice()));
        QCOMPARE(window.counts(), QString("7 entities · 145 variables · 458 labels"));
        QCOMPARE(Settings::recentFiles(), QStringList());
        QTest::mouseClick(&window.part<QToolButton>("noticeClose"), Qt::LeftButton);
        QCOMPARE(window.notice(), QString());
        QVERIFY(QFile::remove(file));
    }

    void recentFilesAreOffered()
    {
        const QString first = folder.filePath("R&D.json");
        const QString second = folder.filePath("second.json");
        for (const QString &file : {first, second})
            QVERIFY(put(file, smallDictionary()));
        {
            ShownWindow window;
            QVERIFY(window.main.files().openFile(first));
            QVERIFY(window.main.files().openFile(second));
        }
        ShownWindow window;
        auto &list = window.part<QListWidget>("recent");
        QCOMPARE(list.count(), 2);
        QVERIFY(list.item(1)->text().startsWith("R&D.json"));
        QMenu *recent = nullptr;
        for (QMenu *menu : window.main.findChildren<QMenu *>()) {
            if (menu->title() == "Open &recent")
                recent = menu;
        }
        QVERIFY(recent);
        emit recent->aboutToShow();
        QCOMPARE(recent->actions().size(), 2);
        QCOMPARE(recent->actions().at(1)->text(), QString(first).replace("&", "&&"));
        recent->actions().at(1)->trigger();
        QCOMPARE(window.title(), QString("R&D.json — Tessel"));
        QCOMPARE(Settings::recentFiles(), QStringList({first, second}));
        window.action("close").trigger();
        QCOMPARE(list.count(), 2);
        list.setCurrentRow(1);
        list.setFocus();
        ShownWindow::press(Qt::Key_Return);
        QCOMPARE(window.title(), QString("second.json — Tessel"));
        QVERIFY(QFile::remove(first) && QFile::remove(second));
    }

    void docksStayWhereTheyWere()
    {
        {
            ShownWindow window;
            window.part<QDockWidget>("entityDock").hide();
            window.main.addDockWidget(Qt::LeftDockWidgetArea, &window.part<QDockWidget>("problemsDock"));
            window.main.resize(1111, 777);
            QVERIFY(window.main.close());
        }
        QVERIFY(QSettings().fileName().startsWith(folder.path()));
        ShownWindow window;
        QVERIFY(!window.part<QDockWidget>("entityDock").isVisible());
        QVERIFY(window.part<QDockWidget>("detailDock").isVisible());
        QCOMPARE(
            window.main.dockWidgetArea(&window.part<QDockWidget>("problemsDock")), Qt::LeftDockWidgetArea);
    }

private:
    WindowFolder folder;
};

QTEST_MAIN(tst_MainWindowFiles)
#include "tst_MainWindowFiles.moc"
