#include "editor/views/TableView.h"
#include "tests/editor/Answer.h"
#include "tests/editor/Hand.h"
#include "tests/editor/ShownWindow.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QStatusBar>
#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// Saves what \a window shows where the environment asks for pictures.
void picture(MainWindow &window, const char *name)
{
    const QString place = qEnvironmentVariable("TESSEL_SCREENSHOTS");
    if (!place.isEmpty())
        QVERIFY(window.grab().save(QString("%1/%2.png").arg(place, name)));
}

} // namespace

/// Typing into cells at a real display, where boxes take the focus and give it back.
class tst_TypingOnScreen : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QApplication::setStyle("fusion");
        folder.use("tst_TypingOnScreen");
    }
    void init() { WindowFolder::forget(); }

    void aRefusedTextIsCorrected_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<QString>("key");
        QTest::newRow("variable, Return") << "variables"
                                          << "Return";
        QTest::newRow("variable, Tab") << "variables"
                                       << "Tab";
        QTest::newRow("entity, Return") << "entities"
                                        << "Return";
    }
    void aRefusedTextIsCorrected()
    {
        QFETCH(QString, place);
        QFETCH(QString, key);
        MainWindow window;
        auto &view = opened(window, place);
        const QString before = currentIn(view);
        {
            const Answer ok(pressing(QMessageBox::Ok));
            Hand::type("PLOT");
            Hand::press(key);
            QTRY_VERIFY(ok.isGiven());
            QTRY_VERIFY(!QApplication::activeModalWidget());
        }
        backTo(window);
        QVERIFY(isTyping(view));
        QCOMPARE(currentIn(view), before);
        auto *field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(field);
        QCOMPARE(field->text(), QString("PLOT"));
        QCOMPARE(window.statusBar()->currentMessage(),
            QString(
                "\"PLOT\" was not taken: the rules of the dictionary do not allow it. Correct it, or press "
                "Esc to give it up."));
        picture(window, "refused");
        Hand::type("S");
        Hand::press(key);
        QTRY_COMPARE(window.document().undoStack()->undoText(), "rename " + before);
        QCOMPARE(window.document().undoStack()->count(), 1);
        QVERIFY(textOf(window.document()).contains("\"PLOTS\""));
    }

    void aRefusedTextIsGivenUp()
    {
        MainWindow window;
        auto &view = opened(window, "variables");
        const Answer ok(pressing(QMessageBox::Ok));
        Hand::type("PLOT");
        Hand::press("Return");
        QTRY_VERIFY(ok.isGiven());
        QTRY_VERIFY(!QApplication::activeModalWidget());
        backTo(window);
        QVERIFY(isTyping(view));
        Hand::press("Escape");
        QTRY_VERIFY(!isTyping(view));
        QCOMPARE(currentIn(view), QString("SEX"));
        QCOMPARE(QApplication::focusWidget(), &view);
        QCOMPARE(window.document().undoStack()->count(), 0);
        QVERIFY(!part<QLabel>(window, "notice").isVisible());
    }

    void nobodyIsHeldBack_data()
    {
        QTest::addColumn<bool>("isRefusedBefore");
        QTest::newRow("refused when the cell is left") << false;
        QTest::newRow("refused by Return, and left then") << true;
    }
    void nobodyIsHeldBack()
    {
        QFETCH(bool, isRefusedBefore);
        MainWindow window;
        auto &view = opened(window, "variables");
        auto &entities = part<QTreeView>(window, "entities");
        const QModelIndex house = entities.indexAbove(entities.currentIndex());
        {
            const Answer ok(pressing(QMessageBox::Ok));
            Hand::type("PLOT");
            if (isRefusedBefore)
                Hand::press("Return");
            else
                Hand::click(entities, house);
            QTRY_VERIFY(ok.isGiven());
            QTRY_VERIFY(!QApplication::activeModalWidget());
        }
        backTo(window);
        // No second box stands in the way of this click.
        Hand::click(entities, house);
        QTRY_COMPARE(entities.currentIndex().data().toString(), QString("HOUSE"));
        QVERIFY(!QApplication::activeModalWidget());
        QVERIFY(!isTyping(view));
        const auto &notice = part<QLabel>(window, "notice");
        QVERIFY(notice.isVisible());
        QCOMPARE(notice.text(),
            QString(
                "\"PLOT\" was not taken (rename SEX): the rules of the dictionary do not allow it. It can be "
                "copied from here."));
        QCOMPARE(window.document().undoStack()->count(), 0);
        picture(window, isRefusedBefore ? "left-later" : "left");
    }

    void theTreeTurnsToLabelsAndBack()
    {
        MainWindow window;
        opened(window, "entities");
        auto &entities = part<QTreeView>(window, "entities");
        // What is being typed is stored first.
        Hand::type("RESIDENT");
        Hand::press("ctrl+t");
        QTRY_COMPARE(treeOf(entities), QStringList({"DICTIONARY", ".House", "..RESIDENT", ".PLOT"}));
        picture(window, "labels");
        Hand::press("ctrl+t");
        QTRY_COMPARE(treeOf(entities), QStringList({"DICTIONARY", ".HOUSE", "..RESIDENT", ".PLOT"}));
        QCOMPARE(window.document().undoStack()->undoText(), QString("rename PERSON"));
    }

private:
    /// Shows the small dictionary in \a window and opens the name of PERSON, or of its variable SEX.
    static QAbstractItemView &opened(MainWindow &window, const QString &place)
    {
        window.resize(1000, 720);
        load(window.document());
        bringUp(window);
        window.goTo(place == "entities" ? "/entities/0/entities/0" : "/entities/0/entities/0/variables/0");
        auto &view = part<QAbstractItemView>(window, qPrintable(place));
        Hand::press("F2");
        if (!QTest::qWaitFor([&view] { return isTyping(view); }))
            qFatal("no cell is open");
        Hand::press("ctrl+a");
        return view;
    }

    /// Without a window manager nobody gives the keyboard back when a box goes.
    static void backTo(MainWindow &window) { bringUp(window); }

    WindowFolder folder;
};

QTEST_MAIN(tst_TypingOnScreen)
#include "tst_TypingOnScreen.moc"
