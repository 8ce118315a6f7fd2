#include "tests/editor/ShownTables.h"
#include "tests/support/MessageBoxRobot.h"

#include <QSignalSpy>

using namespace tessel::editor;
using namespace tessel::test;

/// Rows of the tables that are deleted and moved.
class tst_TableRows : public QObject {
    Q_OBJECT

private slots:
    void whatHoldsNoWorkIsDeletedAtOnce()
    {
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        MessageBoxRobot robot;
        click(view, 2);
        tables.variables.removeSelected();
        QCOMPARE(tables.names(), QString("SEX AGE"));
        QCOMPARE(currentIn(view), QString("AGE"));
        QCOMPARE(tables.stack().undoText(), QString("delete NOTE"));
        tables.stack().undo();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
        QVERIFY(robot.boxes().isEmpty());
    }

    void variablesWithLabelsOrRangesAreAskedFor_data()
    {
        QTest::addColumn<QVector<int>>("rows");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("count");
        QTest::addColumn<QString>("left");
        const int yes = QMessageBox::Yes;
        QTest::newRow("labels and ranges") << QVector<int>{0} << yes << "1"
                                           << "AGE NOTE";
        QTest::newRow("a range is enough") << QVector<int>{1} << yes << "1"
                                           << "SEX NOTE";
        QTest::newRow("two of three") << QVector<int>{0, 1, 2} << yes << "2"
                                      << "";
        QTest::newRow("no") << QVector<int>{0} << int(QMessageBox::No) << "1"
                            << "SEX AGE NOTE";
        QTest::newRow("Return is no") << QVector<int>{0} << int(MessageBoxRobot::PressReturn) << "1"
                                      << "SEX AGE NOTE";
        QTest::newRow("Escape is no") << QVector<int>{0} << int(MessageBoxRobot::PressEscape) << "1"
                                      << "SEX AGE NOTE";
    }
    void variablesWithLabelsOrRangesAreAskedFor()
    {
        QFETCH(QVector<int>, rows);
        QFETCH(int, answer);
        QFETCH(QString, count);
        QFETCH(QString, left);
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        const QByteArray before = textOf(tables.document);
        for (const int row : rows)
            click(view, row, 0, row == rows.first() ? Qt::NoModifier : Qt::ControlModifier);
        MessageBoxRobot robot({QMessageBox::StandardButton(answer)});
        tables.variables.removeSelected();
        QCOMPARE(robot.texts(),
            QStringList(
                count + " of the variables have value labels or ranges, which go with them. Delete?"));
        QCOMPARE(robot.boxes().first().title, QString("Delete variables"));
        QCOMPARE(robot.boxes().first().defaultButton, QMessageBox::No);
        QCOMPARE(robot.boxes().first().buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(tables.names(), left);
        QCOMPARE(tables.stack().count(), left == "SEX AGE NOTE" ? 0 : 1);
        tables.stack().undo();
        QCOMPARE(textOf(tables.document), before);
    }

    void labelsAndRangesAreDeletedAtOnce()
    {
        ShownTables tables;
        MessageBoxRobot robot;
        activate(tables.labels);
        click(*tables.labels.view(), 0);
        tables.labels.removeSelected();
        QCOMPARE(rowsOf(*tables.labels.view()), QStringList("2|Woman"));
        QCOMPARE(currentIn(*tables.labels.view()), QString("2"));
        QCOMPARE(tables.stack().undoText(), QString("delete labels of SEX"));
        activate(tables.ranges);
        click(*tables.ranges.view(), 0);
        tables.ranges.removeSelected();
        QCOMPARE(rowsOf(*tables.ranges.view()), QStringList());
        QCOMPARE(tables.stack().undoText(), QString("delete ranges of SEX"));
        tables.stack().undo();
        tables.stack().undo();
        QCOMPARE(rowsOf(*tables.labels.view()), QStringList({"1|Man", "2|Woman"}));
        QCOMPARE(rowsOf(*tables.ranges.view()), QStringList("1|2"));
        QVERIFY(robot.boxes().isEmpty());
    }

    void withoutASelectionNothingIsDeleted()
    {
        ShownTables tables;
        tables.variables.view()->clearSelection();
        tables.variables.removeSelected();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
        QCOMPARE(tables.stack().count(), 0);
    }

    void rowsMoveWithinTheirList_data()
    {
        QTest::addColumn<QVector<int>>("rows");
        QTest::addColumn<int>("steps");
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("step");
        QTest::newRow("down") << QVector<int>{0} << 1 << "AGE SEX NOTE"
                              << "move SEX";
        QTest::newRow("up") << QVector<int>{2} << -1 << "SEX NOTE AGE"
                            << "move NOTE";
        QTest::newRow("two down") << QVector<int>{0, 1} << 1 << "NOTE SEX AGE"
                                  << "move 2 variables";
        QTest::newRow("two apart up") << QVector<int>{1, 2} << -1 << "AGE NOTE SEX"
                                      << "move 2 variables";
        QTest::newRow("up from the top") << QVector<int>{0} << -1 << "SEX AGE NOTE"
                                         << "";
        QTest::newRow("down from the end") << QVector<int>{2} << 1 << "SEX AGE NOTE"
                                           << "";
        QTest::newRow("one of two has no room") << QVector<int>{0, 2} << 1 << "SEX AGE NOTE"
                                                << "";
    }
    void rowsMoveWithinTheirList()
    {
        QFETCH(QVector<int>, rows);
        QFETCH(int, steps);
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        for (const int row : rows)
            click(view, row, 0, row == rows.first() ? Qt::NoModifier : Qt::ControlModifier);
        QStringList selected = selectedIn(view).split(' ');
        tables.variables.moveSelected(steps);
        QTEST(tables.names(), "names");
        QTEST(tables.stack().undoText(), "step");
        QCOMPARE(selectedIn(view), selected.join(' '));
        tables.stack().undo();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
        QCOMPARE(selectedIn(view), selected.join(' '));
    }

    void aSortedTableRefusesToMove()
    {
        ShownTables tables;
        activate(tables.labels);
        TableView &view = *tables.labels.view();
        sortBy(view, 0);
        sortBy(view, 0);
        QCOMPARE(rowsOf(view), QStringList({"2|Woman", "1|Man"}));
        click(view, 0);
        QSignalSpy told(&tables.labels, &TablePane::told);
        tables.labels.moveSelected(1);
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.first().first().toString(),
            QString("The table is sorted; choose View, Order of the dictionary to move rows."));
        QCOMPARE(tables.stack().count(), 0);
        tables.labels.unsort();
        QCOMPARE(rowsOf(view), QStringList({"1|Man", "2|Woman"}));
        QCOMPARE(view.horizontalHeader()->sortIndicatorSection(), -1);
        tables.labels.moveSelected(-1);
        QCOMPARE(rowsOf(view), QStringList({"2|Woman", "1|Man"}));
        QCOMPARE(tables.stack().undoText(), QString("move labels of SEX"));
        QCOMPARE(told.size(), 1);
    }

    void rangesMoveToo()
    {
        ShownTables tables;
        activate(tables.ranges);
        tables.ranges.addRow();
        type(*tables.ranges.view(), "5", Qt::Key_Escape);
        tables.ranges.moveSelected(-1);
        QCOMPARE(rowsOf(*tables.ranges.view()), QStringList({"0|0", "1|2"}));
        QCOMPARE(tables.stack().undoText(), QString("move ranges of SEX"));
    }
};

QTEST_MAIN(tst_TableRows)
#include "tst_TableRows.moc"
