#include "editor/views/SearchField.h"
#include "model/TDmVariable.h"
#include "tests/editor/ShownTables.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

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

/// What the tables show, and what of it survives edits.
class tst_TableView : public QObject {
    Q_OBJECT

private slots:
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
        ShownTables tables;
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
        ShownTables tables;
        tables.variables.show(&entityIn(tables.document, "HOUSE"));
        QCOMPARE(tables.variables.currentVariable()->getName(), QString("H_CODE"));
        tables.variables.show(&entityIn(tables.document, "PLOT"));
        QCOMPARE(tables.variables.currentVariable(), static_cast<TDmVariable *>(nullptr));
    }

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
        ShownTables tables;
        QTest::keyClicks(tables.variables.search()->focusProxy(), "nowhere");
        QCOMPARE(tables.names(), QString());
        QCOMPARE(tables.variables.view()->hintText(), QString("Nothing matches the search. Esc clears it."));
        tables.variables.search()->clear();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
    }
};

QTEST_MAIN(tst_TableView)
#include "tst_TableView.moc"
