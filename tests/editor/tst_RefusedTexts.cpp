#include "editor/DictionaryDocument.h"
#include "editor/views/EntityPane.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/editor/ShownTables.h"
#include "tests/support/MessageBoxRobot.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTreeView>
#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

const QString kTaken = "The typed character string already exists";
const QString kRules = "the rules of the dictionary do not allow it";

/// The sentence about a text whose field is open still.
QString open(const QString &text, const QString &reason = kRules)
{
    return QString("\"%1\" was not taken: %2. Correct it, or press Esc to give it up.").arg(text, reason);
}

/// The sentence about a text whose field is gone.
QString gone(const QString &text, const QString &step, const QString &reason = kRules)
{
    return QString("\"%1\" was not taken (%2): %3. It can be copied from here.").arg(text, step, reason);
}

/// The tables and the tree, with all that they tell.
class Told : public ShownTables {
public:
    Told()
    {
        entities.resize(300, 300);
        bringUp(entities);
        for (TablePane *pane : all())
            listenTo(*pane);
        listenTo(entities);
    }

    /// The sentences since the last call; one that is to stay has an exclamation mark, and behind a bar what
    /// there is to read besides.
    QStringList sentences()
    {
        const QStringList list = said;
        said.clear();
        return list;
    }

    /// The cell, with the key that opens it pressed.
    QLineEdit &opened(TablePane &pane, int row, int column)
    {
        activate(pane);
        click(*pane.view(), row, column);
        press(*pane.view(), Qt::Key_F2);
        return fieldIn(*pane.view());
    }
    QLineEdit &opened(const char *entity)
    {
        activate(entities);
        entities.select(&entityIn(document, entity));
        QTest::keyClick(entities.view(), Qt::Key_F2);
        return fieldIn(*entities.view());
    }
    static QLineEdit &fieldIn(const QAbstractItemView &view)
    {
        auto *field = view.viewport()->findChild<QLineEdit *>();
        if (!field)
            qFatal("no cell is open");
        return *field;
    }

    /// Gives the keyboard to another part of the same pane, as a click there does.
    static void leave(QWidget &pane)
    {
        QApplication::setActiveWindow(pane.window());
        pane.findChild<QWidget *>("search")->setFocus();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    EntityPane entities{document};

private:
    template<typename Pane>
    void listenTo(Pane &pane)
    {
        QObject::connect(&pane, &Pane::told, [this](const QString &sentence) { said += sentence; });
        QObject::connect(&pane, &Pane::warned, [this](const QString &sentence, const QString &details) {
            said += '!' + sentence + (details.isEmpty() ? QString() : '|' + details);
        });
    }

    QStringList said;
};

} // namespace

/// What is typed into a cell and refused is not lost, and nobody is held back by it.
class tst_RefusedTexts : public QObject {
    Q_OBJECT

private slots:
    void aRefusedTextStaysOpen_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
        QTest::newRow("back with Tab") << int(Qt::Key_Backtab);
    }
    void aRefusedTextStaysOpen()
    {
        QFETCH(int, key);
        Told tables;
        const QByteArray before = textOf(tables.document);
        TableView &view = *tables.variables.view();
        QLineEdit &field = tables.opened(tables.variables, 1, 0);
        MessageBoxRobot robot({QMessageBox::Ok, QMessageBox::Ok});
        type(view, "PLOT", Qt::Key(key));
        QCOMPARE(robot.texts(), QStringList(kTaken));
        QVERIFY(isTyping(view));
        QCOMPARE(&Told::fieldIn(view), &field);
        QCOMPARE(field.text(), QString("PLOT"));
        QCOMPARE(view.currentIndex(), view.model()->index(1, 0));
        QCOMPARE(tables.sentences(), QStringList(open("PLOT")));
        QCOMPARE(view.focusWidget(), &field);
        // Asked for again, it is judged again.
        QTest::keyClick(&field, Qt::Key(key));
        QCoreApplication::processEvents();
        QCOMPARE(robot.texts(), QStringList({kTaken, kTaken}));
        QVERIFY(isTyping(view));
        QCOMPARE(tables.sentences(), QStringList(open("PLOT")));

        QTest::keyClick(&field, Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!isTyping(view));
        QCOMPARE(tables.sentences(), QStringList());
        QCOMPARE(textOf(tables.document), before);
        QCOMPARE(tables.stack().count(), 0);
        QCOMPARE(robot.boxes().size(), 2);
    }

    void aCorrectedTextIsTakenAndTheCursorGoesOn()
    {
        Told tables;
        TableView &view = *tables.variables.view();
        QLineEdit &field = tables.opened(tables.variables, 1, 0);
        MessageBoxRobot robot({QMessageBox::Ok});
        type(view, "PLOT");
        QCOMPARE(tables.sentences(), QStringList(open("PLOT")));
        QApplication::setActiveWindow(&tables.variables);
        QTest::keyClick(&field, Qt::Key_S);
        QTest::keyClick(&field, Qt::Key_Tab);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(rowsOf(view).at(1).section('|', 0, 0), QString("PLOTs"));
        QCOMPARE(view.currentIndex(), view.model()->index(1, 1));
        QVERIFY(isTyping(view));
        QCOMPARE(tables.sentences(), QStringList());
        QCOMPARE(tables.stack().count(), 1);
        QCOMPARE(robot.boxes().size(), 1);
    }

    void aTakenTextGoesTheWayOfItsKey_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<bool>("isOpen");
        QTest::newRow("Return") << int(Qt::Key_Return) << 2 << 1 << false;
        QTest::newRow("Enter") << int(Qt::Key_Enter) << 2 << 1 << false;
        QTest::newRow("Tab") << int(Qt::Key_Tab) << 1 << 2 << true;
        QTest::newRow("back with Tab") << int(Qt::Key_Backtab) << 1 << 0 << true;
    }
    void aTakenTextGoesTheWayOfItsKey()
    {
        QFETCH(int, key);
        QFETCH(int, row);
        QFETCH(int, column);
        Told tables;
        TableView &view = *tables.variables.view();
        tables.opened(tables.variables, 1, 1);
        type(view, "Q2", Qt::Key(key));
        QCOMPARE(rowsOf(view).at(1), QString("AGE|Q2|Age in years||0004"));
        QCOMPARE(view.currentIndex(), view.model()->index(row, column));
        QTEST(isTyping(view), "isOpen");
        QCOMPARE(tables.sentences(), QStringList());
    }

    void aRefusedTextThatIsLeftIsToldWithoutAnotherBox()
    {
        Told tables;
        TableView &view = *tables.variables.view();
        tables.opened(tables.variables, 1, 0);
        MessageBoxRobot robot({QMessageBox::Ok});
        type(view, "PLOT");
        QVERIFY(isTyping(view));
        tables.sentences();
        Told::leave(tables.variables);
        QVERIFY(!isTyping(view));
        QCOMPARE(robot.boxes().size(), 1);
        QCOMPARE(tables.sentences(), QStringList('!' + gone("PLOT", "rename AGE")));
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
    }

    void aTextThatIsRefusedWhenTheCellIsLeftClosesIt_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"another field", "another window", "another row", "another cell"})
            QTest::newRow(way) << QString(way);
    }
    void aTextThatIsRefusedWhenTheCellIsLeftClosesIt()
    {
        QFETCH(QString, way);
        Told tables;
        TableView &view = *tables.variables.view();
        QLineEdit &field = tables.opened(tables.variables, 1, 2);
        field.selectAll();
        QTest::keyClicks(&field, "NOTE");
        MessageBoxRobot robot({QMessageBox::Ok});
        if (way == "another field")
            tables.variables.findChild<QWidget *>("search")->setFocus();
        else if (way == "another window")
            QApplication::setActiveWindow(&tables.labels);
        else if (way == "another row")
            tables.variables.select(&variableIn(tables.document, "PERSON", "NOTE"));
        else
            click(view, 2, 1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!isTyping(view));
        QCOMPARE(
            robot.texts(), QStringList("The value already exists as the name/alias of a variable alias "));
        QCOMPARE(robot.unplanned(), 0);
        QCOMPARE(tables.sentences(), QStringList('!' + gone("NOTE", "change Label of AGE")));
        QCOMPARE(rowsOf(view).at(1), QString("AGE|P2|Age in years||0004"));
        QCOMPARE(tables.stack().count(), 0);
    }

    void anEntitysNameStaysOpenToo_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("boxes");
        QTest::addColumn<QString>("reason");
        QTest::newRow("in use") << "PLOT" << QStringList("Entity name already exists") << kRules;
        QTest::newRow("a group") << "DEMO" << QStringList("Entity name already exists as a group name")
                                 << kRules;
        QTest::newRow("no name") << "1A" << QStringList()
                                 << "a name begins with a letter or _ and goes on with letters, digits and _";
        QTest::newRow("no name, and a long one")
            << QString(60, 'A') + '-' << QStringList()
            << "a name begins with a letter or _ and goes on with letters, digits and _";
        QTest::newRow("nothing") << "" << QStringList() << "an entity needs a name";
        QTest::newRow("blanks") << "  " << QStringList() << "an entity needs a name";
    }
    void anEntitysNameStaysOpenToo()
    {
        QFETCH(QString, typed);
        QFETCH(QStringList, boxes);
        QFETCH(QString, reason);
        Told tables;
        QTreeView &view = *tables.entities.view();
        QLineEdit &field = tables.opened("PERSON");
        MessageBoxRobot robot({QMessageBox::Ok});
        type(view, typed);
        QCOMPARE(robot.texts(), boxes);
        QVERIFY(isTyping(view));
        QCOMPARE(field.text(), typed);
        QCOMPARE(tables.sentences(), QStringList(open(typed, reason)));
        // Nothing is lost with nothing.
        QApplication::setActiveWindow(&tables.entities);
        tables.entities.setFocus();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!isTyping(view));
        QCOMPARE(tables.sentences(),
            typed.trimmed().isEmpty() ? QStringList()
                                      : QStringList('!' + gone(typed, "rename PERSON", reason)));
        QCOMPARE(robot.boxes().size(), boxes.size());
        QCOMPARE(treeOf(view), QStringList({"DICTIONARY", ".HOUSE", "..PERSON", ".PLOT"}));
    }

    void whatStoodThereIsNoLoss_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("boxes");
        const QString box = "Entity name already exists as a group name";
        QTest::newRow("as it was") << "DEMO" << QStringList(box);
        QTest::newRow("with a blank") << "DEMO " << QStringList(box);
    }
    void whatStoodThereIsNoLoss()
    {
        // A name that came with the file, and which the rules would refuse.
        QFETCH(QString, typed);
        QFETCH(QStringList, boxes);
        Told tables;
        entityIn(tables.document, "PLOT").setName("DEMO");
        tables.opened("DEMO");
        MessageBoxRobot robot({QMessageBox::Ok});
        type(*tables.entities.view(), typed);
        QCOMPARE(robot.texts(), boxes);
        QVERIFY(!isTyping(*tables.entities.view()));
        QCOMPARE(tables.sentences(), QStringList());
    }

    void aTagThatIsNoNumberIsToldOf_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("tag");
        QTest::newRow("a word") << "four" << QString();
        QTest::newRow("a fraction") << "2.5" << QString();
        QTest::newRow("beyond all numbers") << "99999999999" << QString();
        QTest::newRow("a number") << "12"
                                  << "0012";
        QTest::newRow("with blanks") << " 12 "
                                     << "0012";
        QTest::newRow("too high") << "12000"
                                  << "9999";
        QTest::newRow("the same in short") << "4"
                                           << "0004";
    }
    void aTagThatIsNoNumberIsToldOf()
    {
        QFETCH(QString, typed);
        QFETCH(QString, tag);
        Told tables;
        TableView &view = *tables.variables.view();
        tables.opened(tables.variables, 1, 4);
        type(view, typed);
        QCOMPARE(isTyping(view), tag.isEmpty());
        QCOMPARE(tables.sentences(),
            tag.isEmpty() ? QStringList(open(typed, "a tag is a whole number")) : QStringList());
        QCOMPARE(rowsOf(view).at(1).section('|', 4), tag.isEmpty() ? QString("0004") : tag);
    }

    void aBoundThatIsNoNumberIsToldOf()
    {
        Told tables;
        TableView &view = *tables.ranges.view();
        const QString reason = "a whole number from -2147483648 to 2147483647 is expected";
        QLineEdit &field = tables.opened(tables.ranges, 0, 1);
        type(view, "-", Qt::Key_Tab);
        QVERIFY(isTyping(view));
        QCOMPARE(tables.sentences(), QStringList(open("-", reason)));
        QTest::keyClick(&field, Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(tables.sentences(), QStringList(open("-", reason)));
        Told::leave(tables.ranges);
        QVERIFY(!isTyping(view));
        QCOMPARE(tables.sentences(), QStringList('!' + gone("-", "change Maximum of SEX", reason)));
        QCOMPARE(rowsOf(view), QStringList("1|2"));

        tables.sex().setVarType("REAL");
        tables.ranges.show(static_cast<TDmVariable *>(nullptr));
        tables.ranges.show(&tables.sex());
        tables.opened(tables.ranges, 0, 0);
        type(view, "-", Qt::Key_Return);
        QCOMPARE(tables.sentences(), QStringList(open("-", "a number such as 12 or -0.5 is expected")));
        QTest::keyClick(&Told::fieldIn(view), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!isTyping(view));
        QCOMPARE(tables.sentences(), QStringList());
        tables.opened(tables.ranges, 0, 0);
        // A field that was emptied holds nothing to be told of.
        Told::fieldIn(view).clear();
        Told::leave(tables.ranges);
        QCOMPARE(tables.sentences(), QStringList());
        QCOMPARE(tables.stack().count(), 0);
    }

    void aLongTextIsToldInTwoParts()
    {
        Told tables;
        const QString text = QString(200, 'A') + '"';
        QLineEdit &field = tables.opened(tables.variables, 1, 0);
        field.setText(text);
        MessageBoxRobot robot({QMessageBox::Ok});
        Told::leave(tables.variables);
        QCOMPARE(robot.texts(), QStringList("Invalid string"));
        QCOMPARE(
            tables.sentences(), QStringList('!' + gone(QString(80, 'A') + "…", "rename AGE") + '|' + text));
    }

    void whoCancelsTheQuestionHasGivenTheTextUp()
    {
        Told tables;
        tables.variables.show(&entityIn(tables.document, "HOUSE"));
        tables.opened(tables.variables, 0, 0);
        MessageBoxRobot robot({QMessageBox::Cancel});
        type(*tables.variables.view(), "H_NUMBER");
        QCOMPARE(robot.boxes().size(), 1);
        QVERIFY(!isTyping(*tables.variables.view()));
        QCOMPARE(tables.names(), QString("H_CODE ROOMS"));
        QCOMPARE(tables.sentences(), QStringList());
    }

    void anotherTextInTheFieldIsJudgedAnew()
    {
        Told tables;
        TableView &view = *tables.variables.view();
        QLineEdit &field = tables.opened(tables.variables, 1, 0);
        MessageBoxRobot robot({QMessageBox::Ok, QMessageBox::Ok});
        type(view, "PLOT");
        field.setText("HOUSE");
        Told::leave(tables.variables);
        QCOMPARE(robot.texts(), QStringList({kTaken, kTaken}));
        QCOMPARE(tables.sentences(), QStringList({open("PLOT"), '!' + gone("HOUSE", "rename AGE")}));
        QLineEdit &again = tables.opened(tables.variables, 1, 0);
        again.setText("YEARS");
        Told::leave(tables.variables);
        QCOMPARE(tables.names(), QString("SEX YEARS NOTE"));
        QCOMPARE(tables.sentences(), QStringList());
    }

    void aDictionaryThatGoesTakesItsFieldAlong()
    {
        Told tables;
        tables.opened(tables.variables, 1, 0);
        MessageBoxRobot robot({QMessageBox::Ok});
        type(*tables.variables.view(), "PLOT");
        QVERIFY(isTyping(*tables.variables.view()));
        tables.document.clear();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!isTyping(*tables.variables.view()));
        QCOMPARE(robot.boxes().size(), 1);
    }
};

QTEST_MAIN(tst_RefusedTexts)
#include "tst_RefusedTexts.moc"
