#include "model/TDmVariable.h"
#include "tests/editor/Files.h"
#include "tests/editor/ShownWindow.h"
#include "tests/support/MessageBoxRobot.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>

using namespace tessel::editor;
using namespace tessel::test;

/// What is being typed counts, whatever is done next.
class tst_MainWindowTyping : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { folder.use("tst_MainWindowTyping"); }
    void init() { WindowFolder::forget(); }

    void whatIsBeingTypedIsSaved_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("key");
        for (const char *place : {"variable cell", "label cell", "entity", "text", "number", "long text"}) {
            QTest::addRow("%s by key", place) << place << "Ctrl+S";
            QTest::addRow("%s with the tool bar", place) << place << "tool";
            QTest::addRow("%s by menu", place) << place << "menu";
        }
    }
    void whatIsBeingTypedIsSaved()
    {
        QFETCH(QString, place);
        QFETCH(QString, key);
        const QString file = folder.filePath("small.json");
        QVERIFY(put(file, smallDictionary()));
        ShownWindow window;
        QVERIFY(window.main.files().openFile(file));
        window.goTo("/entities/0/entities/0/variables/0");
        auto &details = window.part<QTabWidget>("details");
        if (place == "variable cell") {
            window.variables().edit(window.variables().model()->index(0, 2));
        } else if (place == "label cell") {
            window.labels().edit(window.labels().model()->index(0, 1));
        } else if (place == "entity") {
            window.entities().setFocus();
            ShownWindow::press(Qt::Key_F2);
        } else if (place == "text") {
            details.setCurrentIndex(3);
            details.currentWidget()->findChild<QLineEdit *>("label")->setFocus();
        } else {
            details.setCurrentIndex(2);
            details.currentWidget()
                ->findChild<QWidget *>(place == "number" ? "missing" : "documentation")
                ->setFocus();
        }
        QWidget *typedInto = ShownWindow::focused();
        // A name begins with a letter, a number with none.
        ShownWindow::typeOver(place == "number" ? "7777" : "X7777");
        if (key == "Ctrl+S") {
            ShownWindow::press(Qt::Key_S, Qt::ControlModifier);
        } else if (key == "menu") {
            window.choose("save");
        } else {
            auto &bar = window.part<QToolBar>("tools");
            QTest::mouseClick(bar.widgetForAction(&window.action("save")), Qt::LeftButton);
        }
        QVERIFY2(contentOf(file).contains("7777"), contentOf(file));
        QVERIFY(!window.document().isModified());
        QCOMPARE(window.document().undoStack()->count(), 1);
        // A field keeps the focus, so that one can go on.
        if (place.contains("text") || place == "number")
            QCOMPARE(ShownWindow::focused(), typedInto);
        QVERIFY(QFile::remove(file));
    }

    void whatIsBeingTypedCountsWhenTheWindowCloses_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"close", "quit", "new", "sample", "window"})
            QTest::newRow(way) << QString(way);
    }
    void whatIsBeingTypedCountsWhenTheWindowCloses()
    {
        QFETCH(QString, way);
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        auto &details = window.part<QTabWidget>("details");
        details.setCurrentIndex(2);
        auto *text = details.currentWidget()->findChild<QPlainTextEdit *>("documentation");
        text->setFocus();
        ShownWindow::typeOver("Much work.");
        MessageBoxRobot robot({QMessageBox::Cancel});
        if (way == "window")
            QVERIFY(!window.main.close());
        else
            window.action(way).trigger();
        QCOMPARE(robot.texts(), QStringList("Save the changes to the new dictionary before it is closed?"));
        QCOMPARE(variableIn(window.document(), "PERSON", "SEX").getDocumentation(), QString("Much work."));
        QVERIFY(window.main.isVisible());
    }

    void aKeyStoresWhatIsBeingTypedFirst_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("add") << "add" << QStringList({"X", "VARIABLE_1", "AGE", "NOTE"});
        QTest::newRow("move") << "down" << QStringList({"AGE", "X", "NOTE"});
        QTest::newRow("next problem") << "nextProblem" << QStringList({"X", "AGE", "NOTE"});
        QTest::newRow("find") << "find" << QStringList({"X", "AGE", "NOTE"});
        QTest::newRow("entities") << "pane1" << QStringList({"X", "AGE", "NOTE"});
    }
    void aKeyStoresWhatIsBeingTypedFirst()
    {
        QFETCH(QString, name);
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        ShownWindow::press(Qt::Key_F2);
        ShownWindow::typeOver("X");
        const QKeySequence key = window.action(name).shortcut();
        QTest::keySequence(ShownWindow::focused(), key);
        ShownWindow::settle();
        QStringList names;
        for (const QString &row : rowsOf(window.variables()))
            names += row.section('|', 0, 0);
        QTEST(names, "rows");
        QCOMPARE(window.document().undoStack()->text(0), QString("rename SEX"));
    }

    void theEditMenuNamesWhatIsBeingTyped()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/1");
        // A step that is there before.
        window.action("down").trigger();
        ShownWindow::press(Qt::Key_F2);
        ShownWindow::typeOver("YEARS");
        QMenuBar &bar = *window.main.menuBar();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(bar.actions().at(1)).center());
        QCOMPARE(window.action("undo").text(), QString("&Undo rename AGE"));
        QVERIFY(QApplication::activePopupWidget());
        QApplication::activePopupWidget()->close();
        window.choose("undo");
        QCOMPARE(window.action("undo").text(), QString("&Undo move AGE"));
        QCOMPARE(window.action("redo").text(), QString("&Redo rename AGE"));
        QCOMPARE(rowsOf(window.variables()).last().section('|', 0, 0), QString("AGE"));
    }

    void whatIsRefusedStaysToBeSeen_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("step");
        QTest::addColumn<QString>("reason");
        QTest::newRow("variable") << "variables" << 4 << "four"
                                  << "change Tag of SEX"
                                  << "a tag is a whole number";
        QTest::newRow("entity") << "entities" << 0 << "1A"
                                << "rename PERSON"
                                << "a name begins with a letter or _ and goes on with letters, digits and _";
        QTest::newRow("range") << "ranges" << 0 << "-"
                               << "change Minimum of SEX"
                               << "a whole number from -2147483648 to 2147483647 is expected";
    }
    void whatIsRefusedStaysToBeSeen()
    {
        QFETCH(QString, place);
        QFETCH(int, column);
        QFETCH(QString, typed);
        QFETCH(QString, step);
        QFETCH(QString, reason);
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0/metadata/range/0");
        if (place == "ranges")
            window.part<QTabWidget>("details").setCurrentIndex(1);
        auto &view = window.part<QAbstractItemView>(place);
        view.setFocus();
        view.setCurrentIndex(view.currentIndex().siblingAtColumn(column));
        ShownWindow::press(Qt::Key_F2);
        ShownWindow::enter(typed);
        QVERIFY(isTyping(view));
        QCOMPARE(window.main.statusBar()->currentMessage(),
            QString("\"%1\" was not taken: %2. Correct it, or press Esc to give it up.").arg(typed, reason));
        QCOMPARE(window.notice(), QString());
        // A key of the menus is not held up.
        ShownWindow::press(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(!isTyping(view));
        QCOMPARE(ShownWindow::focused()->objectName(), QString("search"));
        QCOMPARE(window.notice(),
            QString("\"%1\" was not taken (%2): %3. It can be copied from here.").arg(typed, step, reason));
        QCOMPARE(window.document().undoStack()->count(), 0);
    }

    void stepsAreNamedLetterByLetter()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0/valueLabels/0");
        ShownWindow::press(Qt::Key_3, Qt::ControlModifier);
        ShownWindow::press(Qt::Key_F2);
        ShownWindow::enter("A&B", Qt::Key_Tab);
        ShownWindow::enter("x");
        QCOMPARE(window.action("undo").text(), QString("&Undo change Label of label A&&B"));
    }

private:
    WindowFolder folder;
};

QTEST_MAIN(tst_MainWindowTyping)
#include "tst_MainWindowTyping.moc"
