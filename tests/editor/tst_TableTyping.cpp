#include "model/TDmEntity.h"
#include "tests/editor/ShownTables.h"
#include "tests/support/MessageBoxRobot.h"

#include <QLineEdit>

using namespace tessel::editor;
using namespace tessel::test;

/// What is typed into the cells of the tables.
class tst_TableTyping : public QObject {
    Q_OBJECT

private slots:
    void boundsAreTypedAsTheyAre_data()
    {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("row");
        QTest::addColumn<int>("steps");
        QTest::newRow("as it stands") << "WEIGHT"
                                      << ""
                                      << "0.125|2.5" << 0;
        QTest::newRow("four decimals") << "WEIGHT"
                                       << "0.0625"
                                       << "0.0625|2.5" << 1;
        QTest::newRow("a power") << "WEIGHT"
                                 << "1e-3"
                                 << "0.001|2.5" << 1;
        QTest::newRow("below zero") << "WEIGHT"
                                    << "-7.25"
                                    << "-7.25|2.5" << 1;
        QTest::newRow("letters have no place") << "WEIGHT"
                                               << "a5b"
                                               << "5|2.5" << 1;
        QTest::newRow("a comma has none either") << "WEIGHT"
                                                 << "1,5"
                                                 << "15|2.5" << 1;
        QTest::newRow("whole numbers have no point") << "SEX"
                                                     << "1.9"
                                                     << "19|2" << 1;
    }
    void boundsAreTypedAsTheyAre()
    {
        QFETCH(QString, variable);
        QFETCH(QString, typed);
        QFETCH(int, steps);
        DictionaryDocument document;
        load(document, R"({"entities": [{"name": "E", "variables": [
            {"name": "SEX", "type": "integer", "metadata": {"range": [{"min": 1, "max": 2}]}},
            {"name": "WEIGHT", "type": "real", "metadata": {"range": [{"min": 0.125, "max": 2.5}]}}]}]})");
        RangePane pane(document);
        pane.show(&variableIn(document, "E", variable));
        activate(pane);
        click(*pane.view(), 0, 0);
        press(*pane.view(), Qt::Key_F2);
        if (typed.isEmpty())
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        else
            type(*pane.view(), typed, Qt::Key_Tab);
        QTEST(rowsOf(*pane.view()).first(), "row");
        QCOMPARE(document.undoStack()->count(), steps);
    }

    void theDictionarysRulesHoldAndLeaveNoStep_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("boxes");
        const QString taken = "The typed character string already exists";
        QTest::newRow("the name of an entity") << 1 << 0 << "PLOT" << QStringList(taken);
        QTest::newRow("the name of another variable and a blank")
            << 1 << 0 << "NOTE " << QStringList(taken + " as the alias of a variable");
        QTest::newRow("a label that is a name")
            << 1 << 2 << "NOTE"
            << QStringList("The value already exists as the name/alias of a variable alias ");
        QTest::newRow("no printable name") << 1 << 0 << "A\"B" << QStringList("Invalid string");
        QTest::newRow("the same name") << 1 << 0 << "AGE" << QStringList();
        QTest::newRow("the same alias") << 1 << 1 << "P2" << QStringList();
        QTest::newRow("the same label") << 1 << 2 << "Age in years" << QStringList();
        QTest::newRow("a tag that is no number") << 1 << 4 << "four" << QStringList();
    }
    void theDictionarysRulesHoldAndLeaveNoStep()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, typed);
        QFETCH(QStringList, boxes);
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        const QStringList before = rowsOf(view);
        const QByteArray text = textOf(tables.document);
        click(view, row, column);
        press(view, Qt::Key_F2);
        MessageBoxRobot robot({QMessageBox::Ok});
        type(view, typed);
        QCOMPARE(robot.texts(), boxes);
        QCOMPARE(rowsOf(view), before);
        QCOMPARE(textOf(tables.document), text);
        QCOMPARE(tables.stack().count(), 0);
        QVERIFY(!tables.document.isModified());
    }

    void eachColumnIsTypedAndUndone_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("row");
        QTest::addColumn<QString>("step");
        QTest::newRow("name") << 0 << "YEARS"
                              << "YEARS|P2|Age in years||0004"
                              << "rename AGE";
        QTest::newRow("alias") << 1 << "Q2"
                               << "AGE|Q2|Age in years||0004"
                               << "change Alias of AGE";
        QTest::newRow("label") << 2 << "Years"
                               << "AGE|P2|Years||0004"
                               << "change Label of AGE";
        QTest::newRow("group") << 3 << "TIME"
                               << "AGE|P2|Age in years|TIME|0004"
                               << "change Group of AGE";
        QTest::newRow("tag") << 4 << "77"
                             << "AGE|P2|Age in years||0077"
                             << "change Tag of AGE";
    }
    void eachColumnIsTypedAndUndone()
    {
        QFETCH(int, column);
        QFETCH(QString, typed);
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        const QByteArray text = textOf(tables.document);
        click(view, 1, column);
        press(view, Qt::Key_F2);
        type(view, typed);
        QTEST(rowsOf(view).at(1), "row");
        QTEST(tables.stack().undoText(), "step");
        QCOMPARE(tables.stack().count(), 1);
        tables.stack().undo();
        QCOMPARE(rowsOf(view).at(1), QString("AGE|P2|Age in years||0004"));
        QCOMPARE(textOf(tables.document), text);
        tables.stack().redo();
        QTEST(rowsOf(view).at(1), "row");
    }

    void aLetterBeginsTyping()
    {
        ShownTables tables;
        activate(tables.labels);
        TableView &view = *tables.labels.view();
        click(view, 1, 1);
        QTest::keyClicks(&view, "F");
        QVERIFY(isTyping(view));
        auto *field = view.viewport()->findChild<QLineEdit *>();
        QTest::keyClicks(field, "emale");
        QTest::keyClick(field, Qt::Key_Tab);
        QCOMPARE(rowsOf(view).at(1), QString("2|Female"));
        QCOMPARE(tables.stack().text(0), QString("change Label of label 2"));
    }

    void theCodeOfAnEntityAsksAndIsOneStep()
    {
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        TDmEntity &house = entityIn(tables.document, "HOUSE");
        tables.variables.show(&house);
        click(view, 0);
        press(view, Qt::Key_F2);
        MessageBoxRobot robot({QMessageBox::No});
        type(view, "H_NUMBER");
        QCOMPARE(robot.texts(), QStringList("Variable identified as RefCode.\nKeep it as RefCode?"));
        QCOMPARE(house.getRefCode(), QString());
        QVERIFY(!house.getSelectable());
        QCOMPARE(tables.stack().count(), 1);
        tables.stack().undo();
        QCOMPARE(house.getRefCode(), QString("H_CODE"));
        QVERIFY(house.getSelectable());
        QCOMPARE(tables.names(), QString("H_CODE ROOMS"));
    }

    void undoingWhileACellIsOpenClosesItAndShowsWhatIs()
    {
        ShownTables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        tables.variables.addRow();
        QVERIFY(isTyping(view));
        tables.stack().undo();
        QVERIFY(!isTyping(view));
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
    }
};

QTEST_MAIN(tst_TableTyping)
#include "tst_TableTyping.moc"
