#include "business/models/CsvPropertiesModel.h"
#include "business/models/DatasetPropertiesFieldsModel.h"
#include "business/models/LookupPropertiesModel.h"
#include "model/TDmLookup.h"
#include "model/TDmSourceField.h"
#include "tests/business/models/DropTable.h"
#include "tests/support/LogCatcher.h"
#include "tests/support/MessageBoxRobot.h"

#include <QIcon>
#include <QtTest>

#include <utility>
#include <vector>

using namespace tessel::test;

namespace {

const QString kAllFields = QStringLiteral("*");

/// Fields of a source, and a catalogue of them.
template<typename Item>
struct Source {
    explicit Source(std::vector<Item> content)
        : items(std::move(content))
    {
        for (Item &item : items)
            list.append(&item);
    }

    std::vector<Item> items;
    QList<Item *> list;
};

TDmSourceField named(const QString &name)
{
    TDmSourceField field;
    field.name = name;
    return field;
}

TDmSourceField number(const QString &name, const QString &type, const QString &lowest, const QString &highest)
{
    TDmSourceField field = named(name);
    field.fieldType = type;
    field.rangeMin = lowest;
    field.rangeMax = highest;
    return field;
}

TDmLookup lookupOf(const QString &id, const QString &label)
{
    TDmLookup lookup;
    lookup.id = id;
    lookup.label = label;
    return lookup;
}

/// Every cell of \a rows, row by row.
QModelIndexList cellsOf(const QAbstractItemModel &catalogue, const QList<int> &rows)
{
    QModelIndexList cells;
    for (const int row : rows) {
        for (int column = 0; column < catalogue.columnCount(); ++column)
            cells += catalogue.index(row, column);
    }
    return cells;
}

/// Drags \a cells into \a table and lets go.
bool drag(const QAbstractItemModel &catalogue, const QModelIndexList &cells, DropTable &table)
{
    // Categories are logged while they are read.
    const LogCatcher quiet;
    const std::unique_ptr<QMimeData> data(catalogue.mimeData(cells));
    const QModelIndex below;
    return table.model->canDropMimeData(data.get(), Qt::CopyAction, -1, -1, below)
        && table.model->dropMimeData(data.get(), Qt::CopyAction, -1, -1, below);
}

bool dragRows(const QAbstractItemModel &catalogue, const QList<int> &rows, DropTable &table)
{
    return drag(catalogue, cellsOf(catalogue, rows), table);
}

/// Each variable of the entity of \a table, as text.
QStringList variablesOf(const DropTable &table)
{
    QStringList texts;
    for (const TDmVariable *variable : qAsConst(*table.entity.getVariables()))
        texts += textOf(*variable);
    return texts;
}

} // namespace

class tst_CatalogueToTable : public QObject {
    Q_OBJECT

private slots:
    void theCataloguesSpeakTheLanguageOfTheTable()
    {
        Source<TDmSourceField> fields({named("A")});
        Source<TDmLookup> lookups({lookupOf("A", "B")});
        const DropTable table;
        QCOMPARE(table.model->mimeTypes(), QStringList(transferType()));
        QCOMPARE(CsvPropertiesModel(nullptr, &fields.list).mimeTypes(), table.model->mimeTypes());
        QCOMPARE(DatasetPropertiesFieldsModel(nullptr, &fields.list, kAllFields).mimeTypes(),
            table.model->mimeTypes());
        QCOMPARE(LookupPropertiesModel(nullptr, &lookups.list).mimeTypes(), table.model->mimeTypes());
    }

    void fieldsOfACsvFileBecomeVariablesWithoutType()
    {
        Source<TDmSourceField> fields({named("ID_PERSONA"), named("P12_AGE"), named("ABC"), named("P1_"),
            named("A_BC"), named("P12_")});
        // Whatever else a field knows stays in the source.
        fields.items[0].label = "LABEL";
        fields.items[0].tag = 5;
        fields.items[0].fieldType = "STRING";
        fields.items[0].size = 7;
        const CsvPropertiesModel catalogue(nullptr, &fields.list);
        DropTable table;
        MessageBoxRobot robot({QMessageBox::Ok});
        QVERIFY(dragRows(catalogue, {0, 1, 2, 3, 4, 5}, table));
        QCOMPARE(
            robot.texts(), QStringList("Duplicated names:\nName: P12 - Alias: AGE\nName: P12 - Alias: \n"));
        const QString rest = QStringLiteral(" tag=-1 missing=1 notappl=2 position=1 range=0..0");
        QCOMPARE(variablesOf(table),
            QStringList({"name='ID' alias='PERSONA' field='ID_PERSONA'" + rest,
                "name='P12' alias='AGE' field='P12_AGE'" + rest, "name='ABC' field='ABC'" + rest,
                "name='P1_' field='P1_'" + rest, "name='A_BC' field='A_BC'" + rest,
                "name='P12' field='P12_'" + rest}));
        QCOMPARE(table.shown(), QString("ID P12 ABC P1_ A_BC P12"));
    }

    void aDatasetRowDraggedWithItsThreeColumnsIsOneVariable()
    {
        TDmSourceField field = number("P07_AREA", "INTEGER", "1", "9");
        field.label = "Kind of area";
        field.tag = 77;
        field.dataProviderType = "SPSS";
        field.relativePosition = 31;
        field.decimals = 2;
        field.size = 4;
        field.missing = "98";
        field.notApp = "99";
        field.categories = "1 Urban\t2 Rural area\t7\t3  Other\t\t";
        Source<TDmSourceField> fields({named("FIRST"), field});
        const DatasetPropertiesFieldsModel catalogue(nullptr, &fields.list, kAllFields);
        DropTable table;
        QCOMPARE(cellsOf(catalogue, {1}).size(), 3);
        QVERIFY(dragRows(catalogue, {1}, table));
        QCOMPARE(variablesOf(table),
            QStringList("name='P07' alias='AREA' field='P07_AREA' label='Kind of area' type='INTEGER' tag=2"
                        " missing=10 position=1 fieldSize=4 size=4 decimals=2 range=1..9"
                        " (1: Urban) (2: Rural area) (7: ) (3: Other)"));
    }

    void anyCellOfADatasetRowCarriesTheWholeField()
    {
        Source<TDmSourceField> fields({number("AGE", "STRING", "", "")});
        const DatasetPropertiesFieldsModel catalogue(nullptr, &fields.list, kAllFields);
        for (int column = 0; column < 3; ++column) {
            DropTable table;
            QVERIFY(drag(catalogue, {catalogue.index(0, column)}, table));
            QCOMPARE(
                variablesOf(table), QStringList("name='AGE' field='AGE' type='STRING' tag=1 position=1"));
        }
    }

    void rangesOfADatasetGiveCodes()
    {
        Source<TDmSourceField> fields({number("ONE", "INTEGER", "1", "9"), number("NIL", "INTEGER", "0", "9"),
            number("TWO", "INTEGER", "2", "9"), number("REAL", "REAL", "0.5", "9.9"),
            number("TEXT", "STRING", "0", "9"), number("LOWER", "integer", "0", "9.5")});
        const DatasetPropertiesFieldsModel catalogue(nullptr, &fields.list, kAllFields);
        DropTable table;
        QVERIFY(dragRows(catalogue, {0, 1, 2, 3, 4, 5}, table));
        QCOMPARE(variablesOf(table),
            QStringList({"name='ONE' field='ONE' type='INTEGER' tag=1 missing=10 position=1 range=1..9",
                "name='NIL' field='NIL' type='INTEGER' tag=2 missing=10 notappl=11 position=1 range=0..9",
                "name='TWO' field='TWO' type='INTEGER' tag=3 missing=1 position=1 range=2..9",
                "name='REAL' field='REAL' type='REAL' tag=4 missing=10 position=1 range=0.5..9.9",
                "name='TEXT' field='TEXT' type='STRING' tag=5 position=1",
                "name='LOWER' field='LOWER' type='integer' tag=6 missing=10 notappl=11 position=1"
                " range=0..9.5"}));
    }

    void fieldsBehindAFilterKeepTheNumberOfTheWholeList()
    {
        Source<TDmSourceField> fields(
            {number("A", "STRING", "", ""), number("B", "STRING", "", ""), number("C", "STRING", "", "")});
        fields.items[1].selection = fields.items[2].selection = "wanted";
        const DatasetPropertiesFieldsModel catalogue(nullptr, &fields.list, "wanted");
        DropTable table;
        QVERIFY(dragRows(catalogue, {1, 0}, table));
        QCOMPARE(variablesOf(table),
            QStringList({"name='C' field='C' type='STRING' tag=3 position=1",
                "name='B' field='B' type='STRING' tag=2 position=1"}));
    }

    void aLookupOnASelectableEntityIsAStringOf64CharactersWithTheIconOfLookups()
    {
        Source<TDmLookup> lookups({lookupOf("ID_AREA", "All areas"), lookupOf("PLACE", "")});
        const LookupPropertiesModel catalogue(nullptr, &lookups.list);
        DropTable table;
        table.entity.setSelectable(true);
        // The icon of a lookup stands before that of a code.
        table.entity.setRefCode("ID");
        QVERIFY(dragRows(catalogue, {0, 1}, table));
        const QString rest =
            QStringLiteral(" type='STRING' lookup=1 position=1 fieldSize=64 size=64 range=0..0");
        QCOMPARE(variablesOf(table),
            QStringList({"name='ID' alias='AREA' field='ID_AREA' label='All areas'" + rest,
                "name='PLACE' field='PLACE'" + rest}));
        const auto picture = [](const QIcon &icon) { return icon.pixmap(48).toImage(); };
        const QImage expected = picture(QIcon(":/icons/res/icons/48px-Project-save.png"));
        QVERIFY(!expected.isNull());
        for (int row = 0; row < 2; ++row) {
            const QVariant icon = table.model->index(row, 0).data(Qt::DecorationRole);
            QCOMPARE(picture(icon.value<QIcon>()), expected);
        }
    }

    void aLookupOnAnotherEntityIsRefusedOnceForEachTable()
    {
        Source<TDmLookup> lookups({lookupOf("AREA", "All areas"), lookupOf("PLACE", "All places")});
        const LookupPropertiesModel catalogue(nullptr, &lookups.list);
        DropTable table;
        MessageBoxRobot robot({QMessageBox::Ok, QMessageBox::Ok});
        {
            const LeftToNobody allowance;
            QVERIFY(dragRows(catalogue, {1, 0, 1}, table));
        }
        QCOMPARE(robot.texts(),
            QStringList({"Error creating PLACE. Must be selectable entity.",
                "Error creating AREA. Must be selectable entity."}));
        QCOMPARE(table.names(), QString());
    }

    void fieldsComeInTheOrderOfTheDragAndOnceEach()
    {
        Source<TDmSourceField> fields({named("ONE"), named("TWO"), named("THREE"), named("FOUR")});
        const CsvPropertiesModel catalogue(nullptr, &fields.list);
        DropTable table({"ZERO"});
        QVERIFY(dragRows(catalogue, {3, 1, 3, 0, 1}, table));
        QCOMPARE(table.shown(), QString("ZERO FOUR TWO ONE"));
    }

    void twoFieldsOfACsvFileWithTheSameNameAreOneDrag()
    {
        // They are written alike, so the second one is taken for a repetition.
        Source<TDmSourceField> fields({named("AGE"), named("AGE")});
        const CsvPropertiesModel csv(nullptr, &fields.list);
        DropTable table;
        QVERIFY(dragRows(csv, {0, 1}, table));
        QCOMPARE(table.shown(), QString("AGE"));
        // Those of a dataset are told apart by their numbers, and ask.
        const DatasetPropertiesFieldsModel dataset(nullptr, &fields.list, kAllFields);
        DropTable other;
        MessageBoxRobot robot({QMessageBox::No});
        {
            const LeftToNobody allowance;
            QVERIFY(dragRows(dataset, {0, 1}, other));
        }
        QCOMPARE(robot.texts(), QStringList("AGE already exists.Overwrite?"));
        QCOMPARE(other.shown(), QString("AGE"));
        QCOMPARE(other.variable(0)->getTag(), 1);
    }

    void theSameFieldDraggedAgainAsks()
    {
        Source<TDmSourceField> fields({named("AGE"), named("SEX")});
        const CsvPropertiesModel catalogue(nullptr, &fields.list);
        DropTable table;
        QVERIFY(dragRows(catalogue, {0, 1}, table));
        const std::unique_ptr<TDmVariable> replaced(table.variable(0));
        MessageBoxRobot robot({QMessageBox::Yes});
        QVERIFY(dragRows(catalogue, {0}, table));
        QCOMPARE(robot.texts(), QStringList("AGE already exists.Overwrite?"));
        QCOMPARE(table.shown(), QString("SEX AGE"));
        QVERIFY(table.variable(1) != replaced.get());
    }

    void aDragOfNothingAddsNothing()
    {
        Source<TDmSourceField> fields({named("AGE")});
        const CsvPropertiesModel catalogue(nullptr, &fields.list);
        DropTable table({"SEX"});
        table.add("LATER");
        const Announcements announced(*table.model);
        QVERIFY(drag(catalogue, {}, table));
        QVERIFY(drag(catalogue, {QModelIndex(), QModelIndex()}, table));
        QCOMPARE(table.shown(), QString("SEX LATER"));
        QCOMPARE(announced.text(), QString("reset 2"));
        QVERIFY(drag(catalogue, {QModelIndex(), catalogue.index(0, 0), QModelIndex()}, table));
        QCOMPARE(table.shown(), QString("SEX LATER AGE"));
    }

    void rowsOfTheTableItselfAreNotDragged()
    {
        DropTable table({"AGE"});
        QMimeData *data = table.model->mimeData({table.model->index(0, 0)});
        QVERIFY(!data);
        QVERIFY(!table.model->dropMimeData(data, Qt::MoveAction, -1, -1, QModelIndex()));
        QCOMPARE(table.shown(), QString("AGE"));
    }

    void textsArriveUnchanged_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("letters of many scripts") << QString(u8"A\u00f1o \u4e2d \u0643 \U00010400");
        QTest::newRow("quotation marks and backslashes") << QString("A\"B\\C/D'E\\n");
        QTest::newRow("line feeds and tabs") << QString("A\nB\tC\r");
        QTest::newRow("control characters") << QString("A\x01\x1f\x7f");
        QTest::newRow("a null character") << QString::fromLatin1("A\0B", 3);
        QTest::newRow("half a character") << QString("A") + QChar(0xd800) + "B";
        QTest::newRow("markup") << QString("<b>A&amp;B</b>");
        QTest::newRow("blanks around it") << QString("  A  ");
        QTest::newRow("JSON") << QString("{\"name\": \"A\"}, [");
        QTest::newRow("a hundred thousand letters") << QString(100'000, 'x');
    }
    void textsArriveUnchanged()
    {
        QFETCH(QString, text);
        TDmSourceField field = number(text, "STRING", "", "");
        field.label = text;
        Source<TDmSourceField> fields({field});
        const DatasetPropertiesFieldsModel catalogue(nullptr, &fields.list, kAllFields);
        DropTable table;
        QVERIFY(dragRows(catalogue, {0}, table));
        QCOMPARE(variablesOf(table),
            QStringList(QStringLiteral("name='%1' field='%1' label='%1' type='STRING' tag=1 position=1")
                            .replace("%1", text)));
    }

    void theThreeCataloguesFillOneTable()
    {
        Source<TDmSourceField> fields({number("AGE", "STRING", "", ""), named("SEX")});
        Source<TDmLookup> lookups({lookupOf("AREA", "All areas")});
        DropTable table({"OLD"});
        table.entity.setSelectable(true);
        const Announcements announced(*table.model);
        QVERIFY(dragRows(DatasetPropertiesFieldsModel(nullptr, &fields.list, kAllFields), {0}, table));
        QVERIFY(dragRows(LookupPropertiesModel(nullptr, &lookups.list), {0}, table));
        QVERIFY(dragRows(CsvPropertiesModel(nullptr, &fields.list), {1}, table));
        QCOMPARE(table.shown(), QString("OLD AGE AREA SEX"));
        QCOMPARE(announced.text(), QString("reset 3 modified 3"));
    }
};

QTEST_MAIN(tst_CatalogueToTable)
#include "tst_CatalogueToTable.moc"
