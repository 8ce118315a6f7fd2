#include "tests/editor/ShownWindow.h"

#include <QDockWidget>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>

using namespace tessel::editor;
using namespace tessel::test;

/// Where keys go.
class tst_MainWindowKeys : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { folder.use("tst_MainWindowKeys"); }
    void init() { WindowFolder::forget(); }

    void insertAddsWhereTheFocusIs_data()
    {
        QTest::addColumn<QString>("focus");
        QTest::addColumn<QString>("counts");
        QTest::newRow("tree") << "entities"
                              << "4 entities · 5 variables · 2 labels";
        QTest::newRow("variables") << "variables"
                                   << "3 entities · 6 variables · 2 labels";
        QTest::newRow("search") << "search"
                                << "3 entities · 6 variables · 2 labels";
        QTest::newRow("labels") << "labels"
                                << "3 entities · 5 variables · 3 labels";
        QTest::newRow("a field of a form") << "missing"
                                           << "3 entities · 5 variables · 2 labels";
    }
    void insertAddsWhereTheFocusIs()
    {
        QFETCH(QString, focus);
        ShownWindow window;
        load(window.document());
        QCOMPARE(window.counts(), QString("3 entities · 5 variables · 2 labels"));
        window.goTo("/entities/0/entities/0/variables/0");
        if (focus == "missing")
            window.part<QTabWidget>("details").setCurrentIndex(2);
        if (focus == "search")
            window.variables().parentWidget()->findChild<QWidget *>(focus)->setFocus();
        else
            window.part<QWidget>(focus).setFocus();
        ShownWindow::press(Qt::Key_Insert);
        QTEST(window.counts(), "counts");
    }

    void deleteIsForTheFocusedPane()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        window.part<QTabWidget>("details").setCurrentIndex(2);
        auto &missing = window.part<QSpinBox>("missing");
        missing.setFocus();
        missing.selectAll();
        ShownWindow::press(Qt::Key_Delete);
        window.part<QWidget>("virtual").setFocus();
        QCOMPARE(window.counts(), QString("3 entities · 5 variables · 2 labels"));
        window.labels().setFocus();
        window.part<QTabWidget>("details").setCurrentIndex(0);
        click(window.labels(), 0);
        ShownWindow::press(Qt::Key_Delete);
        QCOMPARE(window.counts(), QString("3 entities · 5 variables · 1 labels"));
        click(window.variables(), 2);
        ShownWindow::press(Qt::Key_Delete);
        QCOMPARE(window.counts(), QString("3 entities · 4 variables · 1 labels"));
        window.goTo("/entities/1");
        ShownWindow::press(Qt::Key_Delete);
        QCOMPARE(window.counts(), QString("2 entities · 4 variables · 1 labels"));
    }

    void altAndArrowsMove()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/1");
        ShownWindow::press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(rowsOf(window.variables()).first().section('|', 0, 0), QString("AGE"));
        ShownWindow::press(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(rowsOf(window.variables()).first().section('|', 0, 0), QString("SEX"));
        window.goTo("/entities/1");
        ShownWindow::press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(treeOf(window.entities()), QStringList({"DICTIONARY", ".PLOT", ".HOUSE", "..PERSON"}));
    }

    void sortedRowsSayWhyTheyStay()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/1");
        window.variables().sortByColumn(0, Qt::DescendingOrder);
        ShownWindow::press(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(window.main.statusBar()->currentMessage(),
            QString("The table is sorted; choose View, Order of the dictionary to move rows."));
        window.choose("unsort");
        QCOMPARE(rowsOf(window.variables()).first().section('|', 0, 0), QString("SEX"));
    }

    void escapeClearsOnlyTheSearchOfTheFocusedTable()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        ShownWindow::press(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(ShownWindow::focused(), "sex");
        window.part<QTabWidget>("details").setCurrentIndex(2);
        auto &missing = window.part<QSpinBox>("missing");
        missing.setFocus();
        ShownWindow::press(Qt::Key_Escape);
        QCOMPARE(ShownWindow::focused(), &missing);
        QCOMPARE(window.variables().model()->rowCount(), 1);
        window.variables().setFocus();
        ShownWindow::press(Qt::Key_Escape);
        QCOMPARE(window.variables().model()->rowCount(), 3);
    }

    void findIsForTheFocusedTable()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        for (const char *name : {"labels", "variables", "entities"}) {
            window.part<QWidget>(name).setFocus();
            ShownWindow::press(Qt::Key_F, Qt::ControlModifier);
            // The tree has no search of its own.
            auto &table = window.part<QWidget>(name == QByteArray("labels") ? "labels" : "variables");
            QCOMPARE(ShownWindow::focused(), table.parentWidget()->findChild<QWidget *>("search"));
        }
    }

    void panesAreGoneToByNumber()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        const auto goneTo = [](int key) {
            ShownWindow::press(key, Qt::ControlModifier);
            return ShownWindow::focused()->objectName();
        };
        QCOMPARE(goneTo(Qt::Key_1), QString("entities"));
        QCOMPARE(goneTo(Qt::Key_2), QString("variables"));
        QCOMPARE(goneTo(Qt::Key_3), QString("labels"));
        QCOMPARE(goneTo(Qt::Key_5), QString("problems"));
        auto &details = window.part<QTabWidget>("details");
        details.setCurrentIndex(1);
        QCOMPARE(goneTo(Qt::Key_3), QString("ranges"));
        details.setCurrentIndex(2);
        QCOMPARE(goneTo(Qt::Key_3), QString("type"));
        details.setCurrentIndex(3);
        QCOMPARE(goneTo(Qt::Key_3), QString("label"));
        window.part<QDockWidget>("entityDock").hide();
        QCOMPARE(goneTo(Qt::Key_1), QString("entities"));
        QVERIFY(window.entities().isVisible());
        ShownWindow::press(Qt::Key_4, Qt::ControlModifier);
        QVERIFY(!window.part<QDockWidget>("sourcesDock").visibleRegion().isEmpty());
    }

    void addingALabelShowsTheLabels()
    {
        ShownWindow window;
        load(window.document());
        window.goTo("/entities/0/entities/0/variables/0");
        window.part<QDockWidget>("detailDock").hide();
        window.part<QTabWidget>("details").setCurrentIndex(1);
        ShownWindow::press(Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(window.labels().isVisible());
        QVERIFY(isTyping(window.labels()));
        ShownWindow::enter("3");
        QCOMPARE(rowsOf(window.labels()).last(), QString("4|"));
    }

private:
    WindowFolder folder;
};

QTEST_MAIN(tst_MainWindowKeys)
#include "tst_MainWindowKeys.moc"
