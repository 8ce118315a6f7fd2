#include "business/models/CsvPropertiesModel.h"
#include "editor/DictionaryDocument.h"
#include "editor/views/LabelPane.h"
#include "editor/views/RangePane.h"
#include "editor/views/SearchField.h"
#include "editor/views/TableView.h"
#include "editor/views/VariablePane.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmSourceField.h"
#include "model/TDmVariable.h"
#include "tests/business/models/DropTable.h"
#include "tests/editor/EditorFixtures.h"
#include "tests/support/MessageBoxRobot.h"

#include <QClipboard>
#include <QDropEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

/// The three tables over the small dictionary: the variables of PERSON, labels and ranges of SEX.
struct Tables {
    Tables()
    {
        for (TablePane *pane : all()) {
            pane->resize(640, 300);
            bringUp(*pane);
        }
        load(document);
        variables.show(&person());
        labels.show(&sex());
        ranges.show(&sex());
    }

    QVector<TablePane *> all() { return {&variables, &labels, &ranges}; }
    TDmEntity &person() { return entityIn(document, "PERSON"); }
    TDmVariable &sex() { return variableIn(document, "PERSON", "SEX"); }

    /// The columns that tests read: of variables the name.
    QString names() const
    {
        QStringList list;
        for (const QString &row : rowsOf(*variables.view()))
            list += row.section('|', 0, 0);
        return list.join(' ');
    }
    QUndoStack &stack() { return *document.undoStack(); }

    DictionaryDocument document;
    VariablePane variables{document};
    LabelPane labels{document};
    RangePane ranges{document};
};

void activate(QWidget &pane)
{
    bringUp(pane);
    pane.setFocus();
}

void press(TableView &view, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(&view, key, modifiers);
}

void sortBy(TableView &view, int column)
{
    QHeaderView *header = view.horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
        {header->sectionViewportPosition(column) + header->sectionSize(column) / 2, header->height() / 2});
}

/// Sends \a data to \a view as a drag that ends there, and tells whether it was taken.
bool dropOn(TableView &view, const QMimeData &data)
{
    const QPoint place = view.viewport()->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    move.ignore();
    QCoreApplication::sendEvent(view.viewport(), &move);
    if (enter.isAccepted() != move.isAccepted())
        qFatal("one is not like the other");
    if (!move.isAccepted()) {
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(view.viewport(), &leave);
        return false;
    }
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view.viewport(), &drop);
    return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
}

/// PERSON with \a count variables V0, V1, ... of which every tenth has the label "tenth".
QByteArray longDictionary(int count)
{
    QByteArray variables;
    for (int i = 0; i < count; ++i)
        variables += QByteArray(i ? "," : "") + "{\"name\": \"V" + QByteArray::number(i) + "\", \"label\": \""
            + (i % 10 ? "other" : "tenth") + "\"}";
    return "{\"entities\": [{\"name\": \"PERSON\", \"variables\": [" + variables + "]}]}";
}

} // namespace

class tst_TablePanes : public QObject {
    Q_OBJECT

private slots:
    // Adding

    void aVariableIsAddedBehindTheCurrentOneAndTyped()
    {
        Tables tables;
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
        Tables tables;
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
        Tables tables;
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
        Tables tables;
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
        Tables tables;
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
        Tables tables;
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

    void nothingIsAddedWhereNothingIsChosen()
    {
        Tables tables;
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

    // Typing

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
        Tables tables;
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
        Tables tables;
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
        Tables tables;
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
        Tables tables;
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
        Tables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        tables.variables.addRow();
        QVERIFY(isTyping(view));
        tables.stack().undo();
        QVERIFY(!isTyping(view));
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
    }

    // Deleting

    void whatHoldsNoWorkIsDeletedAtOnce()
    {
        Tables tables;
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
        Tables tables;
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
        Tables tables;
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
        Tables tables;
        tables.variables.view()->clearSelection();
        tables.variables.removeSelected();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
        QCOMPARE(tables.stack().count(), 0);
    }

    // Moving

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
        Tables tables;
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
        Tables tables;
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
        Tables tables;
        activate(tables.ranges);
        tables.ranges.addRow();
        type(*tables.ranges.view(), "5", Qt::Key_Escape);
        tables.ranges.moveSelected(-1);
        QCOMPARE(rowsOf(*tables.ranges.view()), QStringList({"0|0", "1|2"}));
        QCOMPARE(tables.stack().undoText(), QString("move ranges of SEX"));
    }

    // What survives

    void selectionScrollSortAndFilterSurviveEditAndUndo()
    {
        DictionaryDocument document;
        VariablePane pane(document);
        pane.resize(640, 300);
        load(document, longDictionary(300));
        pane.show(&entityIn(document, "PERSON"));
        activate(pane);
        TableView &view = *pane.view();
        QTest::keyClicks(pane.search()->focusProxy(), "other");
        sortBy(view, 0);
        sortBy(view, 0);
        QCOMPARE(view.model()->rowCount(), 270);
        QCOMPARE(pane.search()->countText(), QString("270 of 300"));
        view.verticalScrollBar()->setValue(120);
        const int row = view.rowAt(40);
        click(view, row);
        click(view, row + 2, 0, Qt::ControlModifier);
        const QString selected = selectedIn(view);
        const QString current = currentIn(view);
        const int scroll = view.verticalScrollBar()->value();
        const int width = view.columnWidth(0) + 7;
        view.setColumnWidth(0, width);
        QVERIFY(scroll > 100);
        const auto isAsBefore = [&] {
            QCoreApplication::processEvents();
            return selectedIn(view) == selected && currentIn(view) == current
                && view.verticalScrollBar()->value() == scroll && view.columnWidth(0) == width
                && view.model()->rowCount() == 270 && view.horizontalHeader()->sortIndicatorSection() == 0
                && view.horizontalHeader()->sortIndicatorOrder() == Qt::DescendingOrder
                && pane.search()->text() == "other" && pane.search()->countText() == "270 of 300"
                && view.model()->index(0, 0).data().toString() == "V99";
        };
        QVERIFY(isAsBefore());

        press(view, Qt::Key_F2);
        auto *field = view.viewport()->findChild<QLineEdit *>();
        QTest::keyClicks(field, "X");
        QTest::mouseClick(pane.search()->focusProxy(), Qt::LeftButton);
        QCOMPARE(document.undoStack()->count(), 1);
        document.undoStack()->undo();
        QVERIFY(isAsBefore());
        Touched touched;
        touched.entities.insert(&entityIn(document, "PERSON"));
        document.announce(touched);
        QVERIFY(isAsBefore());
        document.undoStack()->redo();
        document.undoStack()->undo();
        QVERIFY(isAsBefore());
    }

    void anotherVariablesLabelsAreShownFromTheTop()
    {
        DictionaryDocument document;
        LabelPane pane(document);
        pane.resize(300, 200);
        QByteArray labels;
        for (int i = 0; i < 100; ++i)
            labels +=
                QByteArray(i ? "," : "") + R"({"value": )" + QByteArray::number(i) + R"(, "label": "x"})";
        load(document,
            R"({"entities": [{"name": "E", "variables": [
            {"name": "A", "type": "integer", "valueLabels": [)"
                + labels + R"(]},
            {"name": "B", "type": "integer", "valueLabels": [)"
                + labels + "]}]}]}");
        pane.show(&variableIn(document, "E", "A"));
        activate(pane);
        pane.view()->verticalScrollBar()->setValue(50);
        QCOMPARE(pane.view()->verticalScrollBar()->value(), 50);
        pane.show(&variableIn(document, "E", "A"));
        QCOMPARE(pane.view()->verticalScrollBar()->value(), 50);
        pane.show(&variableIn(document, "E", "B"));
        QCOMPARE(pane.view()->verticalScrollBar()->value(), 0);
    }

    void theCurrentObjectIsTold()
    {
        Tables tables;
        activate(tables.variables);
        QSignalSpy told(&tables.variables, &TablePane::currentObjectChanged);
        click(*tables.variables.view(), 1);
        QCOMPARE(told.count(), 1);
        QCOMPARE(tables.variables.currentVariable(), &variableIn(tables.document, "PERSON", "AGE"));
        click(*tables.variables.view(), 1, 2);
        QCOMPARE(told.count(), 1);
        tables.document.clear();
        QCOMPARE(tables.variables.currentVariable(), static_cast<TDmVariable *>(nullptr));
        QCOMPARE(tables.variables.entity(), static_cast<TDmEntity *>(nullptr));
    }

    void theFirstVariableOfAnEntityIsChosen()
    {
        Tables tables;
        tables.variables.show(&entityIn(tables.document, "HOUSE"));
        QCOMPARE(tables.variables.currentVariable()->getName(), QString("H_CODE"));
        tables.variables.show(&entityIn(tables.document, "PLOT"));
        QCOMPARE(tables.variables.currentVariable(), static_cast<TDmVariable *>(nullptr));
    }

    // Blocks

    void blocksArePasted_data()
    {
        QTest::addColumn<QString>("clipboard");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QString>("sentence");
        const QStringList before = {"1|Man", "2|Woman"};
        QTest::newRow("a spreadsheet")
            << "7\tOther\r\n9\tNot stated\r\n"
            << before + QStringList({"7|Other", "9|Not stated"}) << "2 labels pasted.";
        QTest::newRow("blanks") << "7 Some other\n\n  9   Not stated "
                                << before + QStringList({"7|Some other", "9|Not stated"})
                                << "2 labels pasted.";
        QTest::newRow("a code alone") << "7" << before + QStringList("7|") << "1 labels pasted.";
        QTest::newRow("a third column")
            << "7\tOther\tOtra" << before + QStringList("7|Other") << "1 labels pasted.";
        QTest::newRow("nothing") << "" << before << "The clipboard holds no lines of codes and labels.";
        QTest::newRow("empty lines") << "\n \n"
                                     << before << "The clipboard holds no lines of codes and labels.";
    }
    void blocksArePasted()
    {
        QFETCH(QString, clipboard);
        QFETCH(QStringList, rows);
        Tables tables;
        activate(tables.labels);
        QSignalSpy told(&tables.labels, &TablePane::told);
        QGuiApplication::clipboard()->setText(clipboard);
        QTest::keySequence(tables.labels.view(), QKeySequence::Paste);
        QCOMPARE(rowsOf(*tables.labels.view()), rows);
        QCOMPARE(told.size(), 1);
        QTEST(told.first().first().toString(), "sentence");
        QCOMPARE(tables.stack().count(), rows.size() > 2 ? 1 : 0);
        tables.stack().undo();
        QCOMPARE(rowsOf(*tables.labels.view()), QStringList({"1|Man", "2|Woman"}));
    }

    void blocksAreCopied()
    {
        Tables tables;
        activate(tables.labels);
        TableView &view = *tables.labels.view();
        QSignalSpy told(&tables.labels, &TablePane::told);
        view.clearSelection();
        QGuiApplication::clipboard()->setText("as it was");
        QTest::keySequence(&view, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("as it was"));
        view.selectAll();
        QTest::keySequence(&view, QKeySequence::Copy);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("1\tMan\n2\tWoman\n"));
        QCOMPARE(told, QList<QVariantList>{{"2 labels copied."}});
        tables.labels.show(&variableIn(tables.document, "PERSON", "AGE"));
        QTest::keySequence(&view, QKeySequence::Paste);
        QCOMPARE(rowsOf(view), QStringList({"1|Man", "2|Woman"}));
    }

    // Drops

    void fieldsAreTakenInOneStep()
    {
        Tables tables;
        QSignalSpy told(&tables.variables, &TablePane::told);
        const auto data = dataOf(payloadOf({field("WEIGHT"), field("HEIGHT")}));
        tables.variables.take(data.get());
        QCOMPARE(tables.names(), QString("SEX AGE NOTE WEIGHT HEIGHT"));
        QCOMPARE(tables.person().getVariables()->last()->getLevel(), 1);
        QCOMPARE(currentIn(*tables.variables.view()), QString("HEIGHT"));
        QCOMPARE(told, QList<QVariantList>{{"2 variables added to PERSON."}});
        QCOMPARE(tables.stack().count(), 1);
        QCOMPARE(tables.stack().undoText(), QString("add fields to PERSON"));
        tables.stack().undo();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
        tables.stack().redo();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE WEIGHT HEIGHT"));
    }

    void aFieldTakesThePlaceOfItsLike()
    {
        Tables tables;
        QSignalSpy told(&tables.variables, &TablePane::told);
        const auto data = dataOf(payloadOf({field("WEIGHT")}));
        tables.variables.take(data.get());
        MessageBoxRobot robot({QMessageBox::Yes});
        tables.variables.take(data.get());
        QCOMPARE(robot.texts(), QStringList("WEIGHT already exists.Overwrite?"));
        QCOMPARE(tables.names(), QString("SEX AGE NOTE WEIGHT"));
        QCOMPARE(told.last().first().toString(), QString("1 variables added to PERSON."));
        QCOMPARE(tables.stack().count(), 2);
        tables.stack().undo();
        tables.stack().undo();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
    }

    void whatIsRefusedIsNoStep()
    {
        Tables tables;
        QSignalSpy told(&tables.variables, &TablePane::told);
        const auto data = dataOf(payloadOf({lookup("AREA")}));
        MessageBoxRobot robot({QMessageBox::Ok});
        {
            const LeftToNobody allowance;
            tables.variables.take(data.get());
        }
        QCOMPARE(robot.texts().size(), 1);
        QCOMPARE(told, QList<QVariantList>{{"No field was added."}});
        QCOMPARE(tables.stack().count(), 0);
        QVERIFY(!tables.document.isModified());
    }

    void withoutAnEntityNothingIsTaken()
    {
        Tables tables;
        tables.variables.show(static_cast<TDmEntity *>(nullptr));
        QSignalSpy told(&tables.variables, &TablePane::told);
        const auto data = dataOf(payloadOf({field("WEIGHT")}));
        tables.variables.take(data.get());
        QCOMPARE(told, QList<QVariantList>{{"Choose the entity that is to have the fields first."}});
        QCOMPARE(tables.stack().count(), 0);
    }

    void fieldsAreDroppedFromACatalogue()
    {
        Tables tables;
        activate(tables.variables);
        TDmSourceField weight;
        weight.name = "WEIGHT";
        QList<TDmSourceField *> fields{&weight};
        const CsvPropertiesModel catalogue(nullptr, &fields);
        const std::unique_ptr<QMimeData> data(catalogue.mimeData({catalogue.index(0, 0)}));
        QVERIFY(dropOn(*tables.variables.view(), *data));
        QCOMPARE(tables.names(), QString("SEX AGE NOTE WEIGHT"));
        QCOMPARE(tables.stack().count(), 1);
    }

    void afterARefusedDropTheDragIsOver()
    {
        Tables tables;
        activate(tables.variables);
        TableView &view = *tables.variables.view();
        const auto data = dataOf(payloadOf({lookup("AREA")}));
        MessageBoxRobot robot({QMessageBox::Ok});
        {
            const LeftToNobody allowance;
            QVERIFY(dropOn(view, *data));
        }
        QCOMPARE(robot.unanswered(), 0);
        // Rows are chosen by dragging over them.
        const auto middleOf = [&view](
                                  int row) { return view.visualRect(view.model()->index(row, 0)).center(); };
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, middleOf(0));
        QMouseEvent move(QEvent::MouseMove, middleOf(2), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view.viewport(), &move);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, middleOf(2));
        QCOMPARE(selectedIn(view), QString("SEX AGE NOTE"));
    }

    void otherThingsAreNotDropped()
    {
        Tables tables;
        activate(tables.variables);
        QMimeData text;
        text.setText("WEIGHT");
        QVERIFY(!dropOn(*tables.variables.view(), text));
        const auto data = dataOf(payloadOf({field("WEIGHT")}));
        QVERIFY(!dropOn(*tables.labels.view(), *data));
        QVERIFY(!dropOn(*tables.ranges.view(), *data));
        QCOMPARE(tables.stack().count(), 0);
    }

    // Hints

    void emptyTablesSayWhatToDo()
    {
        DictionaryDocument document;
        load(document);
        VariablePane variables(document);
        LabelPane labels(document);
        RangePane ranges(document);
        QCOMPARE(variables.view()->hintText(), QString("Choose an entity to see its variables."));
        QCOMPARE(labels.view()->hintText(), QString("Choose a variable to see its value labels."));
        QCOMPARE(ranges.view()->hintText(), QString("Choose a variable to see its valid ranges."));
        variables.show(&entityIn(document, "PLOT"));
        TDmVariable &note = variableIn(document, "PERSON", "NOTE");
        labels.show(&note);
        ranges.show(&note);
        QCOMPARE(variables.view()->hintText(),
            QString("No variables yet. Drag fields from Sources, or press Ins."));
        QCOMPARE(labels.view()->hintText(),
            QString("No value labels yet. Press Ins, or paste codes and labels from a spreadsheet."));
        QCOMPARE(
            ranges.view()->hintText(), QString("No ranges: every value is valid. Press Ins to add one."));
        // Painted, and only where there are no rows.
        for (TablePane *pane : {static_cast<TablePane *>(&variables), static_cast<TablePane *>(&ranges)}) {
            pane->resize(500, 300);
            const QImage with = pane->view()->viewport()->grab().toImage();
            pane->view()->setHint(QString());
            QVERIFY(pane->view()->viewport()->grab().toImage() != with);
        }
    }

    void aSearchWithoutFindingsSaysSo()
    {
        Tables tables;
        QTest::keyClicks(tables.variables.search()->focusProxy(), "nowhere");
        QCOMPARE(tables.names(), QString());
        QCOMPARE(tables.variables.view()->hintText(), QString("Nothing matches the search. Esc clears it."));
        tables.variables.search()->clear();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
    }
};

QTEST_MAIN(tst_TablePanes)
#include "tst_TablePanes.moc"
