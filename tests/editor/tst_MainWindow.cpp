#include "editor/MainWindow.h"

#include "tests/editor/FileDialogRobot.h"
#include "tests/editor/Files.h"
#include "tests/editor/ShownWindow.h"

#include <QDockWidget>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QStatusBar>
#include <QTreeWidget>

using namespace tessel::editor;
using namespace tessel::test;

/// A day's work in the window.
class tst_MainWindow : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { folder.use("tst_MainWindow"); }
    void init() { WindowFolder::forget(); }

    void aDictionaryIsTypedFromNothing()
    {
        ShownWindow window;
        QTest::mouseClick(&window.part<QPushButton>("startNew"), Qt::LeftButton);
        QVERIFY(window.variables().isVisible());
        ShownWindow::press(Qt::Key_1, Qt::ControlModifier);
        QCOMPARE(ShownWindow::focused(), &window.entities());
        ShownWindow::press(Qt::Key_Insert);
        ShownWindow::enter("HOUSE");
        ShownWindow::press(Qt::Key_Insert);
        ShownWindow::enter("PERSON");
        QCOMPARE(treeOf(window.entities()), QStringList({"DICTIONARY", ".HOUSE", "..PERSON"}));
        ShownWindow::press(Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(ShownWindow::focused(), &window.variables());
        ShownWindow::press(Qt::Key_Insert);
        ShownWindow::enter("SEX", Qt::Key_Tab);
        ShownWindow::enter("P03", Qt::Key_Tab);
        ShownWindow::enter("Sex of the person");
        ShownWindow::press(Qt::Key_Insert);
        ShownWindow::enter("AGE");
        QCOMPARE(rowsOf(window.variables()), QStringList({"SEX|P03|Sex of the person||0000", "AGE||||0000"}));
        ShownWindow::press(Qt::Key_Up);
        QCOMPARE(currentIn(window.variables()), QString("SEX"));
        ShownWindow::press(Qt::Key_3, Qt::ControlModifier);
        QCOMPARE(ShownWindow::focused(), &window.labels());
        ShownWindow::press(Qt::Key_Insert);
        ShownWindow::enter("1", Qt::Key_Tab);
        ShownWindow::enter("Man");
        ShownWindow::enter("2", Qt::Key_Tab);
        ShownWindow::enter("Woman");
        ShownWindow::press(Qt::Key_Escape);
        ShownWindow::press(Qt::Key_Delete);
        QCOMPARE(rowsOf(window.labels()), QStringList({"1|Man", "2|Woman"}));
        QCOMPARE(window.counts(), QString("2 entities · 2 variables · 2 labels"));

        const QString file = folder.filePath("typed.json");
        const FileDialogRobot robot({file});
        ShownWindow::press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(robot.seen().size(), 1);
        QCOMPARE(window.title(), QString("typed.json — Tessel"));
        const QJsonObject saved = QJsonDocument::fromJson(contentOf(file)).object();
        const QJsonObject house = saved.value("entities").toArray().first().toObject();
        const QJsonObject person = house.value("entities").toArray().first().toObject();
        const QJsonObject sex = person.value("variables").toArray().first().toObject();
        QCOMPARE(house.value("name").toString(), QString("HOUSE"));
        QCOMPARE(person.value("name").toString(), QString("PERSON"));
        QCOMPARE(sex.value("alias").toString(), QString("P03"));
        QCOMPARE(
            sex.value("valueLabels").toArray().last().toObject().value("label").toString(), QString("Woman"));
        QCOMPARE(sex.value("valueLabels").toArray().last().toObject().value("value").toInt(), 2);
        QVERIFY(QFile::remove(file));
    }

    void theSampleIsSearchedEditedUndoneAndSaved()
    {
        ShownWindow window;
        QTest::mouseClick(&window.part<QPushButton>("startSample"), Qt::LeftButton);
        ShownWindow::settle();
        QCOMPARE(window.title(), QString("New dictionary — Tessel"));
        QCOMPARE(window.counts(), QString("7 entities · 145 variables · 458 labels"));
        QCOMPARE(window.entities().currentIndex().data().toString(), QString("COUNTRY"));
        const QByteArray before = textOf(window.document());
        QCOMPARE(before, contentOf(QStringLiteral(TESSEL_SAMPLES "/census.json")));

        window.goTo(personInSample());
        QCOMPARE(window.part<QLabel>("heading").text(), QString("PERSON ▸ variables"));
        ShownWindow::press(Qt::Key_2, Qt::ControlModifier);
        ShownWindow::press(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(ShownWindow::focused(), "age");
        QVERIFY(window.variables().model()->rowCount() < 20);
        ShownWindow::press(Qt::Key_Escape);
        QCOMPARE(ShownWindow::focused(), &window.variables());
        QCOMPARE(window.variables().model()->rowCount(), 60);

        window.goTo(personInSample() + "/variables/4");
        QCOMPARE(currentIn(window.variables()), QString("AGE"));
        QCOMPARE(rowsOf(window.labels()), QStringList("0|Under one year"));
        QCOMPARE(window.part<QDockWidget>("detailDock").windowTitle(), QString("AGE"));
        QVERIFY(!window.action("undo").isEnabled());
        ShownWindow::press(Qt::Key_F2);
        ShownWindow::enter("YEARS");
        QCOMPARE(window.action("undo").text(), QString("&Undo rename AGE"));
        QCOMPARE(window.action("redo").text(), QString("&Redo"));
        QCOMPARE(window.title(), QString("New dictionary* — Tessel"));
        ShownWindow::press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.action("undo").text(), QString("&Undo"));
        QVERIFY(!window.action("undo").isEnabled());
        QCOMPARE(window.action("redo").text(), QString("&Redo rename AGE"));
        QCOMPARE(window.title(), QString("New dictionary — Tessel"));
        QCOMPARE(textOf(window.document()), before);
        window.choose("redo");
        QCOMPARE(window.action("undo").text(), QString("&Undo rename AGE"));
        window.choose("undo");
        ShownWindow::press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(rowsOf(window.variables()).contains("YEARS|P03|Age in completed years|DEMOGRAPHY|0005"));

        const QString file = folder.filePath("census.json");
        {
            const FileDialogRobot robot({file});
            ShownWindow::press(Qt::Key_S, Qt::ControlModifier);
        }
        QCOMPARE(contentOf(file), QByteArray(before).replace("\"name\": \"AGE\"", "\"name\": \"YEARS\""));
        QCOMPARE(window.title(), QString("census.json — Tessel"));
        QVERIFY(window.main.statusBar()->currentMessage().startsWith("census.json saved at "));
        ShownWindow::press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.title(), QString("census.json* — Tessel"));
        ShownWindow::press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(contentOf(file), before);
        QVERIFY(QFile::remove(file));
    }

    void goingThereChoosesOneRowWhateverKeyIsHeld()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        QTest::keyPress(ShownWindow::focused(), Qt::Key_Shift, Qt::ShiftModifier);
        window.goTo("/entities/0/entities/0/variables/2");
        QTest::keyRelease(ShownWindow::focused(), Qt::Key_Shift);
        QCOMPARE(selectedIn(window.variables()), QString("NOTE"));
    }

    void problemsAreGoneToByKey()
    {
        ShownWindow window;
        QVERIFY(
            put(folder.filePath("faulty.json"), R"({"name": "D", "entities": [{"name": "HOUSE", "variables": [
            {"name": "ROOMS", "type": "integer"}, {"name": "ROOMS", "type": "integer",
             "metadata": {"range": [{"min": 1, "max": 2}, {"min": 9, "max": 3}]},
             "valueLabels": [{"value": 1, "label": "One"}]}]}, {"name": "HOUSE"}]})"));
        QVERIFY(window.main.files().openFile(folder.filePath("faulty.json")));
        ShownWindow::press(Qt::Key_F8);
        QCOMPARE(window.variables().currentIndex().row(), 1);
        QCOMPARE(ShownWindow::focused(), &window.variables());
        QVERIFY(window.main.statusBar()->currentMessage().startsWith("HOUSE/ROOMS: "));
        window.part<QDockWidget>("detailDock").hide();
        ShownWindow::press(Qt::Key_F8);
        QVERIFY(window.part<QDockWidget>("detailDock").isVisible());
        QCOMPARE(rowsOf(window.part<TableView>("ranges")), QStringList({"1|2", "9|3"}));
        QCOMPARE(window.part<TableView>("ranges").currentIndex().row(), 1);
        QVERIFY(window.part<TableView>("ranges").isVisible());
        ShownWindow::press(Qt::Key_F8);
        QCOMPARE(window.entities().currentIndex().row(), 1);
        QCOMPARE(ShownWindow::focused(), &window.entities());
        ShownWindow::press(Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(window.part<TableView>("ranges").currentIndex().row(), 1);
        QCOMPARE(window.part<QDockWidget>("problemsDock").windowTitle(), QString("Problems (3)"));
        ShownWindow::press(Qt::Key_F7);
        QCOMPARE(window.main.statusBar()->currentMessage(), QString("3 problems found."));
        QVERIFY(window.part<QTreeWidget>("problems").isVisible());
        QVERIFY(QFile::remove(folder.filePath("faulty.json")));
    }

private:
    WindowFolder folder;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
