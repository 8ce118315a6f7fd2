#include "tests/editor/ShownWindow.h"

#include <QDockWidget>
#include <QTabWidget>
#include <QToolBar>

#include <functional>

using namespace tessel::editor;
using namespace tessel::test;

/// Menus, tool bar and their keys.
class tst_MainWindowMenus : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { folder.use("tst_MainWindowMenus"); }
    void init() { WindowFolder::forget(); }

    void theMenuOfPanesNamesPanes()
    {
        ShownWindow window;
        load(window.document(),
            R"({"entities": [{"name": "A", "codeVar": "NONE", "variables": [{"name": "V1"}]}]})");
        window.action("check").trigger();
        QCOMPARE(window.part<QDockWidget>("problemsDock").windowTitle(), QString("Problems (1)"));
        QCOMPARE(window.part<QDockWidget>("detailDock").windowTitle(), QString("V1"));
        QStringList names;
        for (const char *dock : {"entityDock", "detailDock", "sourcesDock", "problemsDock"})
            names += window.part<QDockWidget>(dock).toggleViewAction()->text();
        QCOMPARE(names, QStringList({"&Entities", "&Variable", "&Sources", "&Problems"}));
    }

    void everyActionHasATextAndItsOwnKeys()
    {
        ShownWindow window;
        QHash<QString, QString> keys;
        int count = 0;
        const std::function<void(const QList<QAction *> &, const QString &)> walk =
            [&](const QList<QAction *> &actions, const QString &menu) {
                QHash<QString, QString> mnemonics;
                for (const QAction *action : actions) {
                    if (action->isSeparator())
                        continue;
                    ++count;
                    QVERIFY2(!action->text().remove('&').trimmed().isEmpty(), qPrintable(menu));
                    const QString mnemonic = QKeySequence::mnemonic(action->text()).toString();
                    if (!mnemonic.isEmpty()) {
                        QVERIFY2(!mnemonics.contains(mnemonic),
                            qPrintable(menu + ": " + action->text() + ", " + mnemonics.value(mnemonic)));
                        mnemonics.insert(mnemonic, action->text());
                    } else {
                        // Files and languages have names of their own.
                        QVERIFY2(menu.endsWith("Lan&guage") || menu.endsWith("Open &recent"),
                            qPrintable(menu + action->text()));
                    }
                    for (const QKeySequence &key : action->shortcuts()) {
                        QVERIFY2(!keys.contains(key.toString()), qPrintable(key.toString()));
                        keys.insert(key.toString(), action->text());
                    }
                    if (action->menu())
                        walk(action->menu()->actions(), menu + '/' + action->text());
                }
            };
        walk(window.main.menuBar()->actions(), "menus");
        QVERIFY2(count > 50, qPrintable(QString::number(count)));
        QVERIFY2(keys.size() >= 30, qPrintable(QString::number(keys.size())));
        for (const char *key : {"Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+Shift+S", "Ctrl+W", "Ctrl+Q", "Ctrl+Z",
                 "Ctrl+Shift+Z", "Ins", "Del", "Alt+Up", "Alt+Down", "Ctrl+F", "Esc", "Ctrl+1", "Ctrl+2",
                 "Ctrl+3", "Ctrl+4", "Ctrl+5", "F7", "F8", "Shift+F8", "F1"})
            QVERIFY2(keys.contains(key), key);
    }

    void theTreeShowsNamesOrLabels()
    {
        const QStringList names = {"DICTIONARY", ".HOUSE", "..PERSON", ".PLOT"};
        const QStringList labels = {"DICTIONARY", ".House", "..PERSON", ".PLOT"};
        {
            ShownWindow window;
            load(window.document());
            const QAction &action = window.action("treeLabels");
            QVERIFY(!action.isChecked());
            QCOMPARE(action.shortcut(), QKeySequence("Ctrl+T"));
            QCOMPARE(treeOf(window.entities()), names);
            ShownWindow::press(Qt::Key_T, Qt::ControlModifier);
            QVERIFY(action.isChecked());
            QCOMPARE(treeOf(window.entities()), labels);
            ShownWindow::press(Qt::Key_T, Qt::ControlModifier);
            QCOMPARE(treeOf(window.entities()), names);
            window.choose("treeLabels");
            QCOMPARE(treeOf(window.entities()), labels);
            QCOMPARE(window.part<QLabel>("heading").text(), QString("HOUSE ▸ variables"));
        }
        {
            ShownWindow again;
            load(again.document());
            QVERIFY(again.action("treeLabels").isChecked());
            QCOMPARE(treeOf(again.entities()), labels);
            ShownWindow::press(Qt::Key_T, Qt::ControlModifier);
        }
        ShownWindow last;
        QVERIFY(!last.action("treeLabels").isChecked());
    }

    void toolButtonsHavePicturesAndStandInMenus()
    {
        ShownWindow window;
        int count = 0;
        for (const QAction *action : window.part<QToolBar>("tools").actions()) {
            if (action->isSeparator())
                continue;
            ++count;
            QVERIFY2(!action->icon().pixmap(22).isNull(), qPrintable(action->text()));
            QVERIFY2(!action->toolTip().isEmpty(), qPrintable(action->text()));
            const QList<QWidget *> places = action->associatedWidgets();
            QVERIFY2(std::any_of(places.cbegin(), places.cend(),
                         [](const QWidget *place) { return qobject_cast<const QMenu *>(place); }),
                qPrintable(action->text()));
        }
        QCOMPARE(count, 11);
    }

    void altOpensTheMenusWhateverIsShown()
    {
        ShownWindow window;
        // Of the pages 0 to 3 are those of the details; before, there is the start page.
        for (int page = -1; page < 4; ++page) {
            if (page == 0) {
                window.openSample();
                window.goTo(personInSample() + "/variables/4");
            }
            window.part<QTabWidget>("details").setCurrentIndex(qMax(page, 0));
            for (const int key : {Qt::Key_F, Qt::Key_E, Qt::Key_V, Qt::Key_D, Qt::Key_R, Qt::Key_H}) {
                window.entities().setFocus();
                ShownWindow::press(key, Qt::AltModifier);
                QWidget *popup = QApplication::activePopupWidget();
                QVERIFY2(popup, qPrintable(QString("page %1, Alt+%2").arg(page).arg(QChar(key))));
                QCOMPARE(QKeySequence::mnemonic(static_cast<QMenu *>(popup)->title()).toString(),
                    QString("Alt+") + QChar(key));
                popup->close();
                QTest::keyClick(window.main.menuBar(), Qt::Key_Escape);
            }
        }
    }

private:
    WindowFolder folder;
};

QTEST_MAIN(tst_MainWindowMenus)
#include "tst_MainWindowMenus.moc"
