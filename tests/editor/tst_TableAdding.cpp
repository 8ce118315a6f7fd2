#include "editor/views/SearchField.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/editor/ShownTables.h"

using namespace tessel::editor;
using namespace tessel::test;

/// Rows that are added to the tables, by command and by Return.
class tst_TableAdding : public QObject {
    Q_OBJECT

private slots:
    void aVariableIsAddedBehindTheCurrentOneAndTyped()
    {
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        click(view, 0);
        tables.variables.addRow();
        QCOMPARE(tables.names(), QString("SEX VARIABLE_1 AGE NOTE"));
        QVERIFY(isTyping(view));
        type(view, "RELATION");
        QCOMPARE(tables.names(), QString("SEX RELATION AGE NOTE"));
        QCOMPARE(tables.stack().undoText(), QString("rename VARIABLE_1"));
        QCOMPARE(tables.stack().count(), 2);
        QCOMPARE(currentIn(view), QString("AGE"));
        tables.stack().undo();
        tables.stack().undo();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
    }

    void inASortedTableTheNewOneIsTheLastOfTheDictionary()
    {
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        sortBy(view, 0);
        QCOMPARE(tables.names(), QString("AGE NOTE SEX"));
        click(view, 0);
        tables.variables.addRow();
        type(view, "BIRTH");
        QCOMPARE(tables.names(), QString("AGE BIRTH NOTE SEX"));
        QCOMPARE(tables.person().getVariables()->last()->getName(), QString("BIRTH"));
    }

    void aNewRowIsSeenWhateverIsLookedFor()
    {
        ShownTables tables;
        activate(tables.variables);
        auto *line = tables.variables.search()->focusProxy();
        QTest::keyClicks(line, "age");
        QCOMPARE(tables.names(), QString("AGE"));
        click(*tables.variables.view(), 0);
        tables.variables.addRow();
        QCOMPARE(tables.variables.search()->text(), QString());
        QCOMPARE(tables.names(), QString("SEX AGE VARIABLE_1 NOTE"));
        QVERIFY(isTyping(*tables.variables.view()));
    }

    void returnInTheLastLabelRowMakesTheNextOne()
    {
        ShownTables tables;
        activate(tables.labels);
        TableView &view = *tables.labels.view();
        click(view, 0, 1);
        press(view, Qt::Key_F2);
        type(view, "Male");
        QVERIFY(!isTyping(view));
        QCOMPARE(view.currentIndex(), view.model()->index(1, 1));
        QCOMPARE(rowsOf(view), QStringList({"1|Male", "2|Woman"}));
        press(view, Qt::Key_Return);
        type(view, "Female");
        QCOMPARE(rowsOf(view), QStringList({"1|Male", "2|Female", "3|"}));
        QVERIFY(isTyping(view));
        QCOMPARE(view.currentIndex(), view.model()->index(2, 0));
        type(view, "9", Qt::Key_Tab);
        QVERIFY(isTyping(view));
        QCOMPARE(view.currentIndex(), view.model()->index(2, 1));
        type(view, "Not stated", Qt::Key_Tab);
        QCOMPARE(rowsOf(view), QStringList({"1|Male", "2|Female", "9|Not stated", "10|"}));
        type(view, "98", Qt::Key_Escape);
        QCOMPARE(rowsOf(view).last(), QString("10|"));
        QCOMPARE(tables.stack().count(), 6);
        while (tables.stack().canUndo())
            tables.stack().undo();
        QCOMPARE(rowsOf(view), QStringList({"1|Man", "2|Woman"}));
    }

    void returnInTheLastVariableRowMakesNone()
    {
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        click(view, 2);
        press(view, Qt::Key_Return);
        type(view, "REMARK");
        QCOMPARE(tables.names(), QString("SEX AGE REMARK"));
        QVERIFY(!isTyping(view));
        QCOMPARE(currentIn(view), QString("REMARK"));
    }

    void returnInTheLastRangeRowMakesTheNextOne()
    {
        ShownTables tables;
        activate(tables.ranges);
        TableView &view = *tables.ranges.view();
        QCOMPARE(rowsOf(view), QStringList("1|2"));
        click(view, 0, 1);
        press(view, Qt::Key_F2);
        type(view, "7");
        QCOMPARE(rowsOf(view), QStringList({"1|7", "0|0"}));
        QCOMPARE(tables.stack().text(0), QString("change Maximum of SEX"));
        QCOMPARE(tables.stack().undoText(), QString("add range to SEX"));
        type(view, "9", Qt::Key_Tab);
        type(view, "12", Qt::Key_Tab);
        QCOMPARE(rowsOf(view), QStringList({"1|7", "9|12", "0|0"}));
    }

    void nothingIsAddedWhereNothingIsChosen()
    {
        ShownTables tables;
        tables.variables.show(static_cast<TDmEntity *>(nullptr));
        tables.labels.show(static_cast<TDmVariable *>(nullptr));
        tables.ranges.show(static_cast<TDmVariable *>(nullptr));
        for (TablePane *pane : tables.all()) {
            pane->addRow();
            pane->removeSelected();
            pane->moveSelected(1);
            QCOMPARE(pane->view()->model()->rowCount(), 0);
        }
        tables.labels.paste();
        tables.labels.copy();
        QCOMPARE(tables.stack().count(), 0);
    }
};

QTEST_MAIN(tst_TableAdding)
#include "tst_TableAdding.moc"
