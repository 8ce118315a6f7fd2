#include "business/models/CsvPropertiesModel.h"
#include "model/TDmEntity.h"
#include "model/TDmSourceField.h"
#include "model/TDmVariable.h"
#include "tests/business/models/DropTable.h"
#include "tests/editor/ShownTables.h"
#include "tests/support/MessageBoxRobot.h"

#include <QClipboard>
#include <QDropEvent>
#include <QSignalSpy>

using namespace tessel::editor;
using namespace tessel::test;

namespace {

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

} // namespace

/// Several rows at once: pasted, copied and dropped.
class tst_TableBlocks : public QObject {
    Q_OBJECT

private slots:
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
        ShownTables tables;
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
        ShownTables tables;
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

    void fieldsAreTakenInOneStep()
    {
        ShownTables tables;
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
        ShownTables tables;
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
        ShownTables tables;
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

    void manyRefusedLookupsAreToldOfOnce_data()
    {
        QTest::addColumn<QStringList>("fields");
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("told");
        const QStringList lookups{lookup("AREA"), lookup("ID_TOWN")};
        QTest::newRow("beside a field") << lookups + QStringList(field("WEIGHT")) << "SEX AGE NOTE WEIGHT"
                                        << "1 variables added to PERSON.";
        QTest::newRow("alone") << lookups << "SEX AGE NOTE"
                               << "No field was added.";
    }
    void manyRefusedLookupsAreToldOfOnce()
    {
        QFETCH(QStringList, fields);
        QFETCH(QString, names);
        ShownTables tables;
        QSignalSpy told(&tables.variables, &TablePane::told);
        QSignalSpy warned(&tables.variables, &TablePane::warned);
        const auto data = dataOf(payloadOf(fields));
        const MessageBoxRobot robot;
        tables.variables.take(data.get());
        QCOMPARE(robot.texts(), QStringList());
        QCOMPARE(warned,
            QList<QVariantList>(
                {{"2 lookups were not added: PERSON is not selectable. Mark it as selectable, or "
                  "choose another entity.",
                    "AREA\nID_TOWN"}}));
        QCOMPARE(told.size(), 1);
        QTEST(told.first().first().toString(), "told");
        QCOMPARE(tables.names(), names);
        QCOMPARE(tables.stack().count(), fields.size() - 2);
        tables.stack().undo();
        QCOMPARE(tables.names(), QString("SEX AGE NOTE"));
    }

    void aSelectableEntityTakesManyLookups()
    {
        ShownTables tables;
        tables.person().setSelectable(true);
        QSignalSpy warned(&tables.variables, &TablePane::warned);
        const auto data = dataOf(payloadOf({lookup("AREA"), lookup("TOWN")}));
        tables.variables.take(data.get());
        QCOMPARE(tables.names(), QString("SEX AGE NOTE AREA TOWN"));
        QCOMPARE(warned.size(), 0);
        QCOMPARE(tables.stack().count(), 1);
    }

    void withoutAnEntityNothingIsTaken()
    {
        ShownTables tables;
        tables.variables.show(static_cast<TDmEntity *>(nullptr));
        QSignalSpy told(&tables.variables, &TablePane::told);
        const auto data = dataOf(payloadOf({field("WEIGHT")}));
        tables.variables.take(data.get());
        QCOMPARE(told, QList<QVariantList>{{"Choose the entity that is to have the fields first."}});
        QCOMPARE(tables.stack().count(), 0);
    }

    void fieldsAreDroppedFromACatalogue()
    {
        ShownTables tables;
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
        ShownTables tables;
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
        ShownTables tables;
        activate(tables.variables);
        QMimeData text;
        text.setText("WEIGHT");
        QVERIFY(!dropOn(*tables.variables.view(), text));
        const auto data = dataOf(payloadOf({field("WEIGHT")}));
        QVERIFY(!dropOn(*tables.labels.view(), *data));
        QVERIFY(!dropOn(*tables.ranges.view(), *data));
        QCOMPARE(tables.stack().count(), 0);
    }
};

QTEST_MAIN(tst_TableBlocks)
#include "tst_TableBlocks.moc"
