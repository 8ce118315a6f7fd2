#include "business/models/CsvPropertiesModel.h"
#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/LookupPropertiesModel.h"

#include "model/MetadataVariables.h"
#include "model/ValueLabelElement.h"
#include "tests/business/models/Desk.h"
#include "tests/business/models/Pictures.h"
#include "tests/support/LogCatcher.h"

#include <QHeaderView>
#include <QListView>
#include <QScreen>
#include <QSignalSpy>
#include <QTableView>
#include <QtTest>

#include <memory>

using namespace tessel::test;

namespace {

/// What a dropped variable holds besides what the table shows.
QString stateOf(const TDmVariable &variable)
{
    QStringList labels;
    for (const ValueLabelElement *label : qAsConst(*variable.getValueLabelElementList()))
        labels += label->getValue() + '=' + label->getLabel();
    return QStringLiteral("%1 %2.%3 missing %4 notappl %5 from %6 [%7]%8")
        .arg(variable.getVarType())
        .arg(variable.getSize())
        .arg(variable.getDecimals())
        .arg(variable.getMissing())
        .arg(variable.getNotappl())
        .arg(variable.getMetadataVariables()->getField(), labels.join(','),
            variable.getMetadataVariables()->getLookup() ? " lookup" : "");
}

/// Keeps what the display shows now, where somebody wants to look at it.
void keepPicture(const QWidget &window)
{
    const QString path = qEnvironmentVariable("TESSEL_DRAG_PICTURE");
    if (!path.isEmpty())
        QVERIFY(window.screen()->grabWindow(0).save(path));
}

/// Three fields of a dataset, each of its own type.
struct Dataset {
    Dataset()
    {
        fields[0]->fieldType = "INTEGER";
        fields[0]->rangeMin = "0";
        fields[0]->rangeMax = "98";
        fields[0]->size = 2;
        fields[0]->categories = "0 Newborn\t98 Old and older";
        fields[1]->fieldType = "STRING";
        fields[1]->size = 10;
        fields[2]->fieldType = "REAL";
        fields[2]->rangeMin = "0.5";
        fields[2]->rangeMax = "9.5";
        fields[2]->size = 6;
        fields[2]->decimals = 2;
    }
    Items<TDmSourceField> fields{{"AGE", "P12_JOB", "ID_PERSON"}};
    DatasetPropertiesFieldsModel model{nullptr, &fields.list, "*"};
};

} // namespace

class tst_RealDrag : public QObject {
    Q_OBJECT

private slots:
    void aFieldDroppedBelowTheLastRowBecomesAVariable_data()
    {
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QString>("shown");
        QTest::newRow("an empty table") << QStringList() << u8"Año||||-001";
        QTest::newRow("a table with rows")
            << QStringList({"SEX", "JOB"}) << u8"SEX||||0000\nJOB||||0000\nAño||||-001";
    }
    void aFieldDroppedBelowTheLastRowBecomesAVariable()
    {
        QFETCH(QStringList, before);
        QFETCH(QString, shown);
        Items<TDmSourceField> fields({"ZONE", QString::fromUtf8(u8"Año")});
        CsvPropertiesModel catalogue(nullptr, &fields.list);
        Desk desk(new QListView, &catalogue, before);
        QVERIFY(desk.isReady());
        QSignalSpy modified(desk.table.get(), &VariableDiccionaryModel::signalVariablesModified);
        QVERIFY(desk.pointer.drag(desk.inSource(1), desk.belowTheLastRow()));
        QCOMPARE(desk.table->drops, QStringList("copied at -1,-1 on no row"));
        QCOMPARE(desk.shown(), shown);
        QCOMPARE(desk.variable(before.size())->getMetadataVariables()->getField(), fields[1]->name);
        QCOMPARE(modified.count(), 1);
        QCOMPARE(desk.robot.texts(), QStringList());
    }

    void aFieldDroppedOntoARowGoesToTheEnd_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::newRow("the first row") << 0 << 0;
        QTest::newRow("the last row, another column") << 1 << 3;
    }
    void aFieldDroppedOntoARowGoesToTheEnd()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        Items<TDmSourceField> fields({"ID_PERSONA"});
        CsvPropertiesModel catalogue(nullptr, &fields.list);
        Desk desk(new QListView, &catalogue, {"SEX", "JOB"});
        QVERIFY(desk.isReady());
        QVERIFY(desk.pointer.drag(desk.inSource(0), desk.onRow(row, column)));
        QCOMPARE(desk.table->drops, QStringList(QStringLiteral("copied at -1,-1 on row %1").arg(row)));
        QCOMPARE(desk.shown(), QString("SEX||||0000\nJOB||||0000\nID|PERSONA|||-001"));
    }

    void betweenRowsOnlyTheFirstColumnTakesADrop_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("shown");
        QTest::newRow("the first column") << 0 << "SEX||||0000\nJOB||||0000\nAGE||||-001";
        QTest::newRow("the second column") << 1 << "SEX||||0000\nJOB||||0000";
        QTest::newRow("the last column") << 4 << "SEX||||0000\nJOB||||0000";
    }
    void betweenRowsOnlyTheFirstColumnTakesADrop()
    {
        QFETCH(int, column);
        QFETCH(QString, shown);
        Items<TDmSourceField> fields({"AGE"});
        CsvPropertiesModel catalogue(nullptr, &fields.list);
        Desk desk(new QListView, &catalogue, {"SEX", "JOB"});
        desk.target->setDragDropOverwriteMode(false);
        QVERIFY(desk.isReady());
        QVERIFY(desk.pointer.drag(desk.inSource(0), desk.aboveRow(1, column)));
        QCOMPARE(desk.table->drops, QStringList(QStringLiteral("copied at 1,%1 on no row").arg(column)));
        QCOMPARE(desk.shown(), shown);
    }

    void rowsDraggedWithAllColumnsMakeOneVariableEach()
    {
        LogCatcher log;
        Dataset dataset;
        Desk desk(new QTableView, &dataset.model, {"SEX"});
        QVERIFY(desk.isReady());
        QSignalSpy modified(desk.table.get(), &VariableDiccionaryModel::signalVariablesModified);
        QSignalSpy reset(desk.table.get(), &QAbstractItemModel::modelReset);
        QVERIFY(desk.pointer.click(desk.inSource(0, 0)));
        QVERIFY(desk.pointer.click(desk.inSource(2, 2), {"shift"}));
        QCOMPARE(desk.source->selectionModel()->selectedIndexes().size(), 9);
        QVERIFY(desk.pointer.drag(desk.inSource(1, 1), desk.belowTheLastRow()));
        QCOMPARE(textsOf(desk.table->payload).size(), 9);
        QCOMPARE(desk.shown(),
            QString("SEX||||0000\nAGE||label of AGE||0001\nP12|JOB|label of P12_JOB||0002\n"
                    "ID|PERSON|label of ID_PERSON||0003"));
        QCOMPARE(stateOf(*desk.variable(1)),
            QString("INTEGER 2.0 missing 99 notappl 100 from AGE [0=Newborn,98=Old and older]"));
        QCOMPARE(stateOf(*desk.variable(2)), QString("STRING 10.0 missing 0 notappl 0 from P12_JOB []"));
        QCOMPARE(stateOf(*desk.variable(3)), QString("REAL 6.2 missing 10 notappl 0 from ID_PERSON []"));
        QCOMPARE(desk.robot.texts(), QStringList());
        QCOMPARE(modified.count(), 3);
        QCOMPARE(reset.count(), 1);
        QTRY_COMPARE(desk.target->verticalHeader()->count(), 4);
        keepPicture(desk.window);
    }

    void theKeyForAllSelectsAllThatIsDragged()
    {
        LogCatcher log;
        Dataset dataset;
        Desk desk(new QTableView, &dataset.model);
        QVERIFY(desk.isReady());
        QVERIFY(desk.pointer.click(desk.inSource(1, 1)));
        QVERIFY(desk.pointer.type("ctrl+a"));
        QTRY_COMPARE(desk.source->selectionModel()->selectedIndexes().size(), 9);
        QVERIFY(desk.pointer.drag(desk.inSource(2, 0), desk.belowTheLastRow()));
        QCOMPARE(desk.entity->getVariables()->size(), 3);
        QCOMPARE(desk.table->rowCount(), 3);
    }

    void aCellAloneCarriesItsWholeField()
    {
        LogCatcher log;
        Dataset dataset;
        Desk desk(new QTableView, &dataset.model);
        QVERIFY(desk.isReady());
        QVERIFY(desk.pointer.drag(desk.inSource(1, 2), desk.belowTheLastRow()));
        QCOMPARE(textsOf(desk.table->payload).size(), 1);
        QCOMPARE(desk.shown(), QString("P12|JOB|label of P12_JOB||0002"));
    }

    void aFieldThatIsMovedStaysInItsCatalogue()
    {
        LogCatcher log;
        Dataset dataset;
        QString before;
        for (const TDmSourceField *field : qAsConst(dataset.fields.list))
            before += stateOf(*field);
        Desk desk(new QTableView, &dataset.model);
        QVERIFY(desk.isReady());
        QVERIFY(desk.pointer.drag(desk.inSource(0, 0), desk.belowTheLastRow(), {"shift"}));
        QCOMPARE(desk.table->drops, QStringList("moved at -1,-1 on no row"));
        QCOMPARE(desk.shown(), QString("AGE||label of AGE||0001"));
        QString after;
        for (const TDmSourceField *field : qAsConst(dataset.fields.list))
            after += stateOf(*field);
        QCOMPARE(after, before);
        QCOMPARE(dataset.model.rowCount(), 3);
    }

    void aLookupBecomesAVariableOfASelectableEntity()
    {
        Items<TDmLookup> lookups({"ISIC", "ISCO"});
        LookupPropertiesModel catalogue(nullptr, &lookups.list);
        Desk desk(new QListView, &catalogue, {"SEX"});
        desk.entity->setSelectable(true);
        QVERIFY(desk.isReady());
        QVERIFY(desk.pointer.drag(desk.inSource(1), desk.onRow(0, 2)));
        QCOMPARE(desk.shown(), QString("SEX||||0000\nISCO||label of ISCO||0000"));
        QCOMPARE(stateOf(*desk.variable(1)), QString("STRING 64.0 missing 0 notappl 0 from ISCO [] lookup"));
        QCOMPARE(shownBy(desk.table->data(desk.table->index(1, 0), Qt::DecorationRole)),
            drawing("48px-Project-save.png"));
        QCOMPARE(desk.robot.texts(), QStringList());
    }

    void aLookupIsRefusedWithABoxWhereTheEntityIsNotSelectable()
    {
        Items<TDmLookup> lookups({"ISIC"});
        LookupPropertiesModel catalogue(nullptr, &lookups.list);
        Desk desk(new QListView, &catalogue, {"SEX"}, {QMessageBox::Ok});
        desk.table->isRefusal = true;
        QVERIFY(desk.isReady());
        QVERIFY(desk.pointer.drag(desk.inSource(0), desk.belowTheLastRow()));
        QCOMPARE(desk.robot.texts(), QStringList("Error creating ISIC. Must be selectable entity."));
        QCOMPARE(desk.robot.unanswered(), 0);
        QCOMPARE(desk.shown(), QString("SEX||||0000"));
        QCOMPARE(desk.entity->getVariables()->size(), 1);
    }

    void aFieldDroppedOnItsOwnCatalogueChangesNothing()
    {
        LogCatcher log;
        Dataset dataset;
        QString before;
        for (const TDmSourceField *field : qAsConst(dataset.fields.list))
            before += stateOf(*field);
        Desk desk(new QTableView, &dataset.model);
        desk.source->setAcceptDrops(true);
        QVERIFY(desk.isReady());
        QVERIFY(desk.pointer.drag(desk.inSource(0, 0), desk.inSource(2, 1)));
        QString after;
        for (const TDmSourceField *field : qAsConst(dataset.fields.list))
            after += stateOf(*field);
        QCOMPARE(after, before);
        QCOMPARE(dataset.model.rowCount(), 3);
        QCOMPARE(desk.table->drops, QStringList());
    }
};

QTEST_MAIN(tst_RealDrag)
#include "tst_RealDrag.moc"
