#include "business/models/CsvPropertiesModel.h"
#include "editor/DictionaryDocument.h"
#include "editor/FileHandling.h"
#include "editor/MainWindow.h"
#include "editor/views/TableView.h"
#include "model/TDmSourceField.h"
#include "tests/editor/Answer.h"
#include "tests/editor/EditorFixtures.h"
#include "tests/editor/Files.h"
#include "tests/editor/Hand.h"
#include "tests/editor/ShownWindow.h"
#include "tests/support/PointerRobot.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

#include <cmath>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

QPalette darkPalette()
{
    QPalette dark(QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    dark.setColor(QPalette::AlternateBase, QColor(0x2d, 0x2d, 0x2d));
    dark.setColor(QPalette::ToolTipBase, QColor(0x50, 0x50, 0x50));
    dark.setColor(QPalette::ToolTipText, Qt::white);
    dark.setColor(QPalette::PlaceholderText, QColor(0x90, 0x90, 0x90));
    dark.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    return dark;
}

/// How well \a colour is read on \a ground, from 1 to 21.
double contrast(const QColor &colour, const QColor &ground)
{
    const auto light = [](const QColor &shade) {
        const auto part = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(shade.redF()) + 0.7152 * part(shade.greenF()) + 0.0722 * part(shade.blueF());
    };
    const double one = light(colour) + 0.05;
    const double other = light(ground) + 0.05;
    return qMax(one, other) / qMin(one, other);
}

} // namespace

class tst_MainWindowOnScreen : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QApplication::setStyle("fusion");
        folder.use("tst_MainWindowOnScreen");
    }
    void init() { WindowFolder::forget(); }

    void aDayAtTheDisplay()
    {
        MainWindow window;
        window.resize(1000, 720);
        bringUp(window);
        auto &variables = part<TableView>(window, "variables");
        auto &entities = part<QTreeView>(window, "entities");
        const auto names = [&] {
            QStringList list;
            for (const QString &row : rowsOf(variables))
                list += row.section('|', 0, 0);
            return list;
        };

        // The sample is opened, and an entity and a variable chosen.
        Hand::click(part<QPushButton>(window, "startSample"));
        QTRY_VERIFY(variables.isVisible());
        const QByteArray before = textOf(window.document());
        Hand::click(entities, entities.indexBelow(entities.indexBelow(entities.currentIndex())));
        QTRY_COMPARE(entities.currentIndex().data().toString(), QString("PROVINCE"));
        QTRY_COMPARE(names().first(), QString("PROV_CODE"));
        Hand::click(variables, variables.model()->index(2, 0));
        QTRY_COMPARE(currentIn(variables), QString("PROV_STAT"));
        QCOMPARE(part<TableView>(window, "labels").model()->rowCount(), 3);

        // It is renamed, taken back by key and by menu.
        Hand::press("F2");
        QTRY_VERIFY(isTyping(variables));
        Hand::press("ctrl+a");
        Hand::type("STATUS");
        Hand::press("Return");
        QTRY_COMPARE(names().at(2), QString("STATUS"));
        auto *undo = window.findChild<QAction *>("undo");
        QTRY_COMPARE(undo->text(), QString("&Undo rename PROV_STAT"));
        Hand::press("ctrl+z");
        QTRY_COMPARE(names().at(2), QString("PROV_STAT"));
        Hand::press("ctrl+shift+z");
        QTRY_COMPARE(names().at(2), QString("STATUS"));
        QMenuBar &bar = *window.menuBar();
        Hand::click(bar, bar.actionGeometry(bar.actions().at(1)).center());
        QTRY_VERIFY(QApplication::activePopupWidget());
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        Hand::click(*menu, menu->actionGeometry(undo).center());
        QTRY_COMPARE(names().at(2), QString("PROV_STAT"));
        QCOMPARE(textOf(window.document()), before);
        QVERIFY(!window.isWindowModified());

        // Something is looked for.
        Hand::press("ctrl+f");
        Hand::type("name");
        QTRY_COMPARE(names(), QStringList({"PROV_CODE", "PROV_NAME"}).mid(1));
        Hand::press("Escape");
        QTRY_COMPARE(names().size(), 5);

        // What stands in the open cell is saved.
        Hand::click(variables, variables.model()->index(4, 2));
        QTRY_COMPARE(currentIn(variables), QString("PROV_CAPITAL"));
        Hand::press("F2");
        QTRY_VERIFY(isTyping(variables));
        Hand::press("ctrl+a");
        Hand::type("Seat of the prefect");
        const QString file = folder.filePath("saved.json");
        {
            const Answer name([file](QDialog &) {
                Hand::press("ctrl+a");
                Hand::type(file);
                Hand::press("Return");
            });
            Hand::press("ctrl+s");
            QTRY_VERIFY(name.isGiven());
        }
        QTRY_COMPARE(window.document().fileName(), file);
        QVERIFY(contentOf(file).contains("Seat of the prefect"));
        QTRY_VERIFY(!window.isWindowModified());
        QCOMPARE(window.windowTitle(), QString("saved.json[*] — Tessel"));

        // A row is moved, and the window asks before it closes.
        // No window manager gives the focus back here.
        bringUp(window);
        Hand::click(variables, variables.model()->index(4, 0));
        Hand::press("alt+Up");
        QTRY_COMPARE(names().at(3), QString("PROV_CAPITAL"));
        {
            const Answer cancels(pressing(QMessageBox::Cancel));
            Hand::press("ctrl+q");
            QTRY_VERIFY(cancels.isGiven());
        }
        QVERIFY(window.isVisible());
        bringUp(window);
        const Answer discards(pressing(QMessageBox::Discard));
        Hand::press("ctrl+q");
        QTRY_VERIFY(discards.isGiven());
        QTRY_VERIFY(!window.isVisible());
        QVERIFY(contentOf(file).indexOf("PROV_CAPITAL") > contentOf(file).indexOf("PROV_AREA"));
    }

    void aFieldIsDraggedOntoTheTable()
    {
        MainWindow window;
        window.resize(1000, 720);
        load(window.document());
        bringUp(window);
        window.goTo("/entities/0/entities/0/variables/0");
        auto &variables = part<TableView>(window, "variables");
        TDmSourceField weight;
        weight.name = "WEIGHT";
        TDmSourceField height;
        height.name = "HEIGHT";
        QList<TDmSourceField *> fields{&weight, &height};
        CsvPropertiesModel catalogue(nullptr, &fields);
        QListView view;
        view.setModel(&catalogue);
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.setDragDropMode(QAbstractItemView::DragOnly);
        view.setGeometry(40, 560, 200, 120);
        view.setParent(&window);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        PointerRobot robot;
        QVERIFY(robot.drag(
            {&view, view.visualRect(catalogue.index(1, 0)).center()}, {&variables, QPoint(80, 60)}));
        QCOMPARE(rowsOf(variables).last().section('|', 0, 0), QString("HEIGHT"));
        QCOMPARE(variables.model()->rowCount(), 4);
        QCOMPARE(currentIn(variables), QString("HEIGHT"));
        QCOMPARE(window.document().undoStack()->undoText(), QString("add fields to PERSON"));
        Hand::press("ctrl+z");
        QTRY_COMPARE(variables.model()->rowCount(), 3);
        // The drag is over: a click and a key are what they were.
        QVERIFY(robot.click({&variables, variables.visualRect(variables.model()->index(1, 0)).center()}));
        QCOMPARE(selectedIn(variables), QString("AGE"));
    }

    void itIsReadInLightAndInDark_data()
    {
        QTest::addColumn<bool>("isDark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void itIsReadInLightAndInDark()
    {
        QFETCH(bool, isDark);
        const QPalette usual = QApplication::palette();
        if (isDark)
            QApplication::setPalette(darkPalette());
        {
            MainWindow window;
            window.resize(1000, 720);
            bringUp(window);
            const auto picture = [&](const QString &name) {
                const QString place = qEnvironmentVariable("TESSEL_SCREENSHOTS");
                if (!place.isEmpty()) {
                    QVERIFY(window.grab().save(
                        QString("%1/%2-%3.png").arg(place, isDark ? "dark" : "light", name)));
                }
            };
            picture("start");
            window.findChild<QAction *>("sample")->trigger();
            window.goTo(personInSample() + "/variables/4");
            auto &details = part<QTabWidget>(window, "details");
            const char *const pages[] = {"labels", "ranges", "properties", "entity"};
            for (int page = 0; page < 4; ++page) {
                details.setCurrentIndex(page);
                QCoreApplication::processEvents();
                picture(pages[page]);
            }
            load(window.document(), R"({"entities": [{"name": "A", "codeVar": "NONE", "variables": []}]})");
            window.findChild<QAction *>("check")->trigger();
            auto &variables = part<TableView>(window, "variables");
            auto *search = variables.parentWidget()->findChild<QLineEdit *>("search");
            variables.parentWidget()->findChild<QToolButton *>("pattern")->click();
            QTest::keyClicks(search, "(");
            QVERIFY(!window.files().openFile("/no/such/file.json"));
            QCoreApplication::processEvents();
            picture("faults");
            const QPalette colours = variables.palette();
            const QColor base = colours.color(QPalette::Base);
            QCOMPARE(base.lightness() < 128, isDark);
            QVERIFY(contrast(colours.color(QPalette::Text), base) > 7);
            // A bad pattern is red, and read all the same.
            const QColor red = search->palette().color(QPalette::Text);
            QVERIFY(red.red() > 2 * red.green());
            QVERIFY2(contrast(red, base) > 3, qPrintable(QString::number(contrast(red, base))));
            const auto *notice = &part<QLabel>(window, "notice");
            QVERIFY(notice->isVisible());
            QVERIFY(contrast(notice->palette().color(notice->foregroundRole()),
                        notice->parentWidget()->palette().color(notice->parentWidget()->backgroundRole()))
                > 7);
        }
        QApplication::setPalette(usual);
    }

private:
    WindowFolder folder;
};

QTEST_MAIN(tst_MainWindowOnScreen)
#include "tst_MainWindowOnScreen.moc"
