#include "tests/business/models/Transferred.h"

#include <QtTest>

using namespace tessel::test;

namespace {

/// A field of \a type with the bounds \a lowest and \a highest.
QString withBounds(const QString &type, const QString &lowest, const QString &highest)
{
    return transferred(
        QJsonObject{{"fieldType", type}, {"fieldRangeMin", lowest}, {"fieldRangeMax", highest}});
}

/// A row of bounds, and the codes and the range that follow from them.
void addBounds(const char *lowest, const char *highest, const char *outcome)
{
    QString tag = QStringLiteral("\"%1\" to \"%2\"").arg(lowest, highest);
    QTest::newRow(qUtf8Printable(tag.replace('\n', "\\n").replace('\t', "\\t")))
        << QString::fromUtf8(lowest) << QString::fromUtf8(highest) << QString(outcome);
}

void addColumns()
{
    QTest::addColumn<QString>("lowest");
    QTest::addColumn<QString>("highest");
    QTest::addColumn<QString>("outcome");
}

} // namespace

class tst_TransferredRange : public QObject {
    Q_OBJECT

private slots:
    void onlyTheExactTypeStringHasNoRange_data()
    {
        QTest::addColumn<QString>("outcome");
        const auto row = [](const char *json, const char *outcome) {
            QTest::newRow(json) << QString(outcome);
        };
        row("'STRING'", "type='STRING' position=1");
        row("'string'", "type='string' missing=10 notappl=11 position=1 range=0..9.5");
        row("'String'", "type='String' missing=10 notappl=11 position=1 range=0..9.5");
        row("'STRING '", "type='STRING ' missing=10 notappl=11 position=1 range=0..9.5");
        row("' STRING'", "type=' STRING' missing=10 notappl=11 position=1 range=0..9.5");
        row("'STRINGS'", "type='STRINGS' missing=10 notappl=11 position=1 range=0..9.5");
        row("''", "missing=10 notappl=11 position=1 range=0..9.5");
        row("'BOOL'", "type='BOOL' missing=10 notappl=11 position=1 range=0..9.5");
        row("'REAL'", "type='REAL' missing=10 notappl=11 position=1 range=0..9.5");
        row("'DATE'", "type='DATE' missing=10 notappl=11 position=1 range=0..9.5");
        // Only the exact type INTEGER reads whole numbers, and "9.5" is none.
        row("'INTEGER'", "type='INTEGER' missing=1 notappl=2 position=1 range=0..0");
        row("'integer'", "type='integer' missing=10 notappl=11 position=1 range=0..9.5");
        row("'Integer'", "type='Integer' missing=10 notappl=11 position=1 range=0..9.5");
        row("'INTEGER '", "type='INTEGER ' missing=10 notappl=11 position=1 range=0..9.5");
        row("' INTEGER'", "type=' INTEGER' missing=10 notappl=11 position=1 range=0..9.5");
        // Types that are no texts.
        row("5", "type='5' missing=10 notappl=11 position=1 range=0..9.5");
        row("true", "type='true' missing=10 notappl=11 position=1 range=0..9.5");
        row("null", "missing=10 notappl=11 position=1 range=0..9.5");
        row("['STRING']", "missing=10 notappl=11 position=1 range=0..9.5");
        row("{'fieldType': 'STRING'}", "missing=10 notappl=11 position=1 range=0..9.5");
    }
    void onlyTheExactTypeStringHasNoRange()
    {
        QFETCH(QString, outcome);
        const QByteArray type = QTest::currentDataTag();
        QCOMPARE(transferred("{'fieldType': " + type + ", 'fieldRangeMin': '0', 'fieldRangeMax': '9.5'}"),
            outcome);
    }

    void aFieldWithoutTypeKeepsTheEmptyTypeAndGetsARange()
    {
        QCOMPARE(transferred("{'name': 'AGE', 'tag': -1}"),
            QString("name='AGE' field='AGE' tag=-1 missing=1 notappl=2 position=1 range=0..0"));
        QCOMPARE(transferred("{'fieldRangeMin': '0.5', 'fieldRangeMax': '9.5'}"),
            QString("missing=10 position=1 range=0.5..9.5"));
    }

    void integersGetCodesBesideTheirRange_data()
    {
        addColumns();
        addBounds("1", "9", "missing=10 position=1 range=1..9");
        addBounds("0", "9", "missing=10 notappl=11 position=1 range=0..9");
        addBounds("-1", "9", "missing=10 notappl=11 position=1 range=-1..9");
        addBounds("-2147483648", "9", "missing=10 notappl=11 position=1 range=-2147483648..9");
        addBounds("1", "1", "missing=2 position=1 range=1..1");
        addBounds("1", "-5", "missing=-4 position=1 range=1..-5");
        addBounds("0", "-1", "notappl=1 position=1 range=0..-1");
        addBounds("0", "-2", "missing=-1 position=1 range=0..-2");
        addBounds("-9", "-5", "missing=-4 notappl=-3 position=1 range=-9..-5");
        // Near the end of int.
        addBounds("0", "2147483645", "missing=2147483646 notappl=2147483647 position=1 range=0..2147483645");
        addBounds("0", "2147483646", "missing=2147483647 notappl=2147483647 position=1 range=0..2147483646");
        addBounds("0", "2147483647", "missing=2147483647 notappl=2147483647 position=1 range=0..2147483647");
        addBounds("1", "2147483647", "missing=2147483647 position=1 range=1..2147483647");
        addBounds(
            "0", "-2147483648", "missing=-2147483647 notappl=-2147483646 position=1 range=0..-2147483648");
        // No base-10 integers.
        addBounds("9.0", "9.0", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("0x10", "0x10", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("abc", "abc", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("", "", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("1e2", "1e2", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("1,000", "1 000", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("9-", "--9", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("inf", "nan", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("1a", "9f", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("-2147483649", "2147483648", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("\u0661", "\u0669", "missing=1 notappl=2 position=1 range=0..0");
        // One of the two is an integer.
        addBounds("1", "9.0", "missing=1 position=1 range=1..0");
        addBounds("1.0", "9", "missing=10 notappl=11 position=1 range=0..9");
        // Integers, however they are written.
        addBounds(" 1 ", "\t9\n", "missing=10 position=1 range=1..9");
        addBounds("+1", "+9", "missing=10 position=1 range=1..9");
        addBounds("-0", "09", "missing=10 notappl=11 position=1 range=0..9");
        addBounds("01", "010", "missing=11 position=1 range=1..10");
    }
    void integersGetCodesBesideTheirRange()
    {
        QFETCH(QString, lowest);
        QFETCH(QString, highest);
        QFETCH(QString, outcome);
        QCOMPARE(withBounds("INTEGER", lowest, highest), "type='INTEGER' " + outcome);
    }

    void aRangeThatBeginsAboveOneMakesOneTheMissingCode_data()
    {
        QTest::addColumn<QString>("type");
        addColumns();
        const auto row = [](const char *type, const char *lowest, const char *highest) {
            QTest::newRow(qPrintable(QStringLiteral("%1 %2 to %3").arg(type, lowest, highest)))
                << type << lowest << highest
                << QStringLiteral("type='%1' missing=1 position=1 range=%2..%3").arg(type, lowest, highest);
        };
        row("INTEGER", "2", "9");
        row("INTEGER", "2", "2147483647");
        row("INTEGER", "2147483647", "2147483647");
        row("INTEGER", "2", "1");
        // Even where 1 is inside.
        row("INTEGER", "2", "-9");
        row("REAL", "1.0000001", "9");
        row("REAL", "1.5", "-3e+09");
        row("REAL", "1.0000000000000002", "0");
        row("REAL", "inf", "9");
        row("REAL", "2", "nan");
        row("REAL", "2", "inf");
        row("BOOL", "1.5", "9");
    }
    void aRangeThatBeginsAboveOneMakesOneTheMissingCode()
    {
        QFETCH(QString, type);
        QFETCH(QString, lowest);
        QFETCH(QString, highest);
        QFETCH(QString, outcome);
        QCOMPARE(withBounds(type, lowest, highest), outcome);
    }

    void otherNumbersGetTruncatedCodes_data()
    {
        addColumns();
        addBounds("1", "9", "missing=10 position=1 range=1..9");
        addBounds("1.0", "9.0", "missing=10 position=1 range=1..9");
        addBounds("0.9999999", "9", "missing=10 position=1 range=0.9999999..9");
        addBounds("0.5", "9", "missing=10 position=1 range=0.5..9");
        addBounds("0.0000001", "9", "missing=10 position=1 range=1e-07..9");
        addBounds("5e-324", "9", "missing=10 position=1 range=5e-324..9");
        addBounds("0", "9", "missing=10 notappl=11 position=1 range=0..9");
        addBounds("-0.0000001", "9", "missing=10 notappl=11 position=1 range=-1e-07..9");
        addBounds("-5", "9", "missing=10 notappl=11 position=1 range=-5..9");
        addBounds("-inf", "9", "missing=10 notappl=11 position=1 range=-inf..9");
        // Toward zero, on both sides of it.
        addBounds("0", "9.1", "missing=10 notappl=11 position=1 range=0..9.1");
        addBounds("0", "9.9", "missing=10 notappl=11 position=1 range=0..9.9");
        addBounds("0", "9.9999999", "missing=10 notappl=11 position=1 range=0..9.9999999");
        addBounds("0", "-0.5", "notappl=1 position=1 range=0..-0.5");
        addBounds("0", "-1.5", "position=1 range=0..-1.5");
        addBounds("0", "-2.5", "missing=-1 position=1 range=0..-2.5");
        addBounds("0", "-3.9", "missing=-2 notappl=-1 position=1 range=0..-3.9");
        addBounds("1", "-9.9", "missing=-8 position=1 range=1..-9.9");
        // Beyond int: the nearest one.
        addBounds(
            "0", "2147483645.9", "missing=2147483646 notappl=2147483647 position=1 range=0..2147483645.9");
        addBounds("0", "2147483647", "missing=2147483647 notappl=2147483647 position=1 range=0..2147483647");
        addBounds("0", "1e18", "missing=2147483647 notappl=2147483647 position=1 range=0..1e+18");
        addBounds("1", "1e300", "missing=2147483647 position=1 range=1..1e+300");
        addBounds("0", "inf", "missing=2147483647 notappl=2147483647 position=1 range=0..inf");
        addBounds("1", "inf", "missing=2147483647 position=1 range=1..inf");
        addBounds("0", "-2147483649.5",
            "missing=-2147483648 notappl=-2147483647 position=1 range=0..-2147483649.5");
        addBounds(
            "0", "-2147483651", "missing=-2147483648 notappl=-2147483648 position=1 range=0..-2147483651");
        addBounds("0", "-1e300", "missing=-2147483648 notappl=-2147483648 position=1 range=0..-1e+300");
        addBounds("0", "-inf", "missing=-2147483648 notappl=-2147483648 position=1 range=0..-inf");
        // What is not a number is no code.
        addBounds("0", "nan", "position=1 range=0..nan");
        addBounds("1", "nan", "position=1 range=1..nan");
        addBounds("nan", "nan", "position=1 range=nan..nan");
        // How numbers may be written.
        addBounds(" 0.5 ", "\t9.5\n", "missing=10 position=1 range=0.5..9.5");
        addBounds(".5", "5.", "missing=6 position=1 range=0.5..5");
        addBounds("+.5", "1E1", "missing=11 position=1 range=0.5..10");
        addBounds("-1e1", "1e1", "missing=11 notappl=12 position=1 range=-10..10");
        addBounds("0,5", "9,5", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("", "", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("abc", "0x10", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("0.5x", "1,000", "missing=1 notappl=2 position=1 range=0..0");
        addBounds("0.5", "abc", "missing=1 position=1 range=0.5..0");
    }
    void otherNumbersGetTruncatedCodes()
    {
        QFETCH(QString, lowest);
        QFETCH(QString, highest);
        QFETCH(QString, outcome);
        QCOMPARE(withBounds("REAL", lowest, highest), "type='REAL' " + outcome);
        QCOMPARE(withBounds("BOOL", lowest, highest), "type='BOOL' " + outcome);
        QCOMPARE(withBounds("", lowest, highest), outcome);
    }

    void boundsOfAnyJsonTypeAreReadAsTextFirst_data()
    {
        QTest::addColumn<QString>("integer");
        QTest::addColumn<QString>("real");
        const auto row = [](const char *json, const char *integer, const char *real) {
            QTest::newRow(json) << QString(integer) << QString(real);
        };
        row("5", "5..5", "5..5");
        row("'5'", "5..5", "5..5");
        row("5.0", "5..5", "5..5");
        row("5.5", "0..0", "5.5..5.5");
        row("'5.5'", "0..0", "5.5..5.5");
        row("'5.0'", "0..0", "5..5");
        // 2147483648 is no int, and no number wraps around.
        row("2147483648", "0..0", "2147483648..2147483648");
        row("true", "0..0", "0..0");
        row("null", "0..0", "0..0");
        row("[5]", "0..0", "0..0");
        row("{'5': 5}", "0..0", "0..0");
    }
    void boundsOfAnyJsonTypeAreReadAsTextFirst()
    {
        QFETCH(QString, integer);
        QFETCH(QString, real);
        const QByteArray bound = QTest::currentDataTag();
        const auto of = [&bound](const QByteArray &type) {
            const QString text = transferred("{'fieldType': '" + type + "', 'fieldRangeMin': " + bound
                + ", 'fieldRangeMax': " + bound + "}");
            return text.mid(text.indexOf("range=") + 6);
        };
        QCOMPARE(of("INTEGER"), integer);
        QCOMPARE(of("REAL"), real);
    }

    void aBoundThatIsMissingIsZero()
    {
        QCOMPARE(transferred("{'fieldType': 'INTEGER', 'fieldRangeMin': '1'}"),
            QString("type='INTEGER' missing=1 position=1 range=1..0"));
        QCOMPARE(transferred("{'fieldType': 'INTEGER', 'fieldRangeMax': '9'}"),
            QString("type='INTEGER' missing=10 notappl=11 position=1 range=0..9"));
        QCOMPARE(transferred("{'fieldType': 'REAL'}"), "type='REAL' " + nothingTransferred());
    }

    void aLookupIsAStringOf64Characters_data()
    {
        QTest::addColumn<QString>("json");
        QTest::addColumn<QString>("outcome");
        QTest::newRow("as the catalogue sends it")
            << "{'name': 'AREAS', 'label': 'All areas', 'tag': '*', 'type': 'LOOKUP'}"
            << "name='AREAS' field='AREAS' label='All areas' type='STRING' lookup=1 position=1 fieldSize=64"
               " size=64 range=0..0";
        QTest::newRow("its name is split like any other")
            << "{'name': 'ID_AREA', 'type': 'LOOKUP', 'fieldType': 'STRING'}"
            << "name='ID' alias='AREA' field='ID_AREA' type='STRING' lookup=1 position=1 fieldSize=64 "
               "size=64";
        QTest::newRow("a range that its first type had stays, its codes do not")
            << "{'type': 'LOOKUP', 'fieldType': 'INTEGER', 'fieldRangeMin': '0', 'fieldRangeMax': '9'}"
            << "type='STRING' lookup=1 position=1 fieldSize=64 size=64 range=0..9";
        QTest::newRow("the missing code of a range above one does not stay")
            << "{'type': 'LOOKUP', 'fieldType': 'REAL', 'fieldRangeMin': '2.5', 'fieldRangeMax': '9'}"
            << "type='STRING' lookup=1 position=1 fieldSize=64 size=64 range=2.5..9";
        QTest::newRow("its own size is not used, its decimals are")
            << "{'type': 'LOOKUP', 'fieldType': 'STRING', 'fieldSize': 200, 'fieldDecimals': 3, 'tag': 7}"
            << "type='STRING' lookup=1 tag=7 position=1 fieldSize=64 size=64 decimals=3";
        QTest::newRow("its categories are labels")
            << "{'type': 'LOOKUP', 'fieldType': 'STRING', 'categories': [{'codigoCategoria': '1',"
               " 'nombreCategoria': 'A'}]}"
            << "type='STRING' lookup=1 position=1 fieldSize=64 size=64 (1: A)";
    }
    void aLookupIsAStringOf64Characters()
    {
        QFETCH(QString, json);
        QFETCH(QString, outcome);
        QCOMPARE(transferred(qPrintable(json)), outcome);
    }

    void onlyTheExactTextIsALookup_data()
    {
        QTest::addColumn<QByteArray>("type");
        for (const char *type : {"'lookup'", "'Lookup'", "'LOOKUP '", "' LOOKUP'", "'LOOKUPS'", "''",
                 "'STRING'", "['LOOKUP']", "{'type': 'LOOKUP'}", "true", "1", "null"})
            QTest::newRow(type) << QByteArray(type);
    }
    void onlyTheExactTextIsALookup()
    {
        QFETCH(QByteArray, type);
        QCOMPARE(transferred("{'type': " + type + ", 'fieldSize': 5, 'fieldType': 'STRING'}"),
            QString("type='STRING' position=1 fieldSize=5 size=5"));
    }

    void otherKeysMakeNoLookup()
    {
        QCOMPARE(transferred("{'fieldType': 'LOOKUP', 'TYPE': 'LOOKUP', 'lookup': 'LOOKUP'}"),
            "type='LOOKUP' " + nothingTransferred());
    }

    void theRangeListOfAStringCanBeFilledLater()
    {
        VariableDiccionaryModel model(nullptr, nullptr, nullptr);
        const std::unique_ptr<TDmVariable> variable(
            model.getVariableFromJsonDrop("{\"fieldType\": \"STRING\", \"fieldRangeMax\": \"9\"}"));
        QVERIFY(variable->getMetadataVariables()->getRange());
        variable->getMetadataVariables()->addItemRange(new Range);
        QCOMPARE(textOf(*variable), QString("type='STRING' position=1 range=0..0"));
    }
};

QTEST_MAIN(tst_TransferredRange)
#include "tst_TransferredRange.moc"
