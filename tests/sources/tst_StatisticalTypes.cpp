#include "tests/sources/SourceReading.h"

#include <QtTest>

Q_DECLARE_METATYPE(tessel::test::Column)
Q_DECLARE_METATYPE(tessel::test::FileForm)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

constexpr FileForm kSav{FileKind::Sav};
constexpr FileForm kPor{FileKind::Por};
constexpr FileForm kDta{FileKind::Dta};
constexpr FileForm kOldDta{FileKind::Dta, 114};
constexpr FileForm kSas{FileKind::Sas7bdat};
constexpr FileForm kXpt{FileKind::Xpt, 5};
constexpr FileForm kXpt8{FileKind::Xpt, 8};

Column number(const char *format) { return {"X", READSTAT_TYPE_DOUBLE, 8, "", format}; }
Column text(size_t width) { return {"X", READSTAT_TYPE_STRING, width}; }
Column stata(readstat_type_t type, const char *format = "") { return {"X", type, 8, "", format}; }

/// A table of the one column \a column and no record.
Table tableOf(const Column &column) { return {{}, {column}}; }

} // namespace

/// The type, width and decimals that a field gets, and its place among the others.
class tst_StatisticalTypes : public QObject {
    Q_OBJECT

private slots:
    void typeOfSpss_data();
    void typeOfSpss() { compareType(); }
    void typeOfStata_data();
    void typeOfStata() { compareType(); }
    void typeOfSas_data();
    void typeOfSas() { compareType(); }
    void datesAreNumbersWithARemark_data();
    void datesAreNumbersWithARemark();
    void namesLabelsAndPositions_data();
    void namesLabelsAndPositions();
    void longNamesOfSavAreKept();
    void longTextsOfStataHaveTheSizeOfTheLongestThatIsRead();
    void fileTellsOfItself_data();
    void fileTellsOfItself();

private:
    static void columnsOfTypes();
    static void compareType();
};

void tst_StatisticalTypes::columnsOfTypes()
{
    QTest::addColumn<FileForm>("form");
    QTest::addColumn<Column>("column");
    QTest::addColumn<QString>("expected");
}

void tst_StatisticalTypes::compareType()
{
    QFETCH(FileForm, form);
    QFETCH(Column, column);
    QFETCH(QString, expected);
    const SourceOutcome outcome = readingOf(tableOf(column), form);
    QCOMPARE(fieldsOf(outcome), QStringList{"X: " + expected});
    QCOMPARE(remarksOf(outcome), QStringList());
}

void tst_StatisticalTypes::typeOfSpss_data()
{
    columnsOfTypes();
    QTest::newRow("no decimals make a whole number") << kSav << number("F3.0") << "INTEGER 3.0";
    QTest::newRow("decimals make a real number") << kSav << number("F8.2") << "REAL 8.2";
    QTest::newRow("width is the format's, not the eight bytes of storage")
        << kSav << number("F1.0") << "INTEGER 1.0";
    QTest::newRow("widest format") << kSav << number("F40.16") << "REAL 40.16";
    QTest::newRow("column width on screen does not matter")
        << kSav << Column{"X", READSTAT_TYPE_DOUBLE, 0, "", "F4.1", "", {}, {}, 30} << "REAL 4.1";
    QTest::newRow("commas for thousands") << kSav << number("COMMA10.2") << "REAL 10.2";
    QTest::newRow("dots for thousands") << kSav << number("DOT7.0") << "INTEGER 7.0";
    QTest::newRow("dollars") << kSav << number("DOLLAR9.2") << "REAL 9.2";
    QTest::newRow("per cent") << kSav << number("PCT6.1") << "REAL 6.1";
    QTest::newRow("exponents") << kSav << number("E10.3") << "REAL 10.3";
    QTest::newRow("leading zeroes") << kSav << number("N8.0") << "INTEGER 8.0";
    QTest::newRow("text") << kSav << text(12) << "STRING 12.0";
    QTest::newRow("text of one character") << kSav << text(1) << "STRING 1.0";
    QTest::newRow("text longer than one piece of storage") << kSav << text(300) << "STRING 300.0";
    QTest::newRow("zsav as sav") << FileForm{FileKind::Zsav} << number("F3.0") << "INTEGER 3.0";
    QTest::newRow("compressed sav") << FileForm{FileKind::Sav, 0, READSTAT_COMPRESS_ROWS} << number("F5.2")
                                    << "REAL 5.2";
    QTest::newRow("por without decimals") << kPor << number("F3.0") << "INTEGER 3.0";
    QTest::newRow("por with decimals") << kPor << number("F8.2") << "REAL 8.2";
    QTest::newRow("por text is counted in characters, not bits") << kPor << text(12) << "STRING 12.0";
}

void tst_StatisticalTypes::typeOfStata_data()
{
    columnsOfTypes();
    QTest::newRow("byte holds -127 to 100") << kDta << stata(READSTAT_TYPE_INT8) << "INTEGER 4.0";
    QTest::newRow("int holds -32767 to 32740") << kDta << stata(READSTAT_TYPE_INT16) << "INTEGER 6.0";
    QTest::newRow("long holds -2147483647 to 2147483620")
        << kDta << stata(READSTAT_TYPE_INT32) << "INTEGER 11.0";
    QTest::newRow("a whole type stays whole, whatever its format shows")
        << kDta << stata(READSTAT_TYPE_INT8, "%8.2f") << "INTEGER 4.0";
    QTest::newRow("double with decimals") << kDta << stata(READSTAT_TYPE_DOUBLE, "%10.2f") << "REAL 10.2";
    QTest::newRow("double without") << kDta << stata(READSTAT_TYPE_DOUBLE, "%8.0f") << "INTEGER 8.0";
    QTest::newRow("float with decimals") << kDta << stata(READSTAT_TYPE_FLOAT, "%6.1f") << "REAL 6.1";
    QTest::newRow("left-aligned") << kDta << stata(READSTAT_TYPE_DOUBLE, "%-10.3f") << "REAL 10.3";
    QTest::newRow("leading zeroes") << kDta << stata(READSTAT_TYPE_DOUBLE, "%010.0f") << "INTEGER 10.0";
    QTest::newRow("commas for thousands") << kDta << stata(READSTAT_TYPE_DOUBLE, "%12.2fc") << "REAL 12.2";
    QTest::newRow("a comma for decimals") << kDta << stata(READSTAT_TYPE_DOUBLE, "%9,2f") << "REAL 9.2";
    // The general format shows as many decimals as there is room for: to call it whole would cut them off.
    QTest::newRow("general format of a double")
        << kDta << stata(READSTAT_TYPE_DOUBLE, "%10.0g") << "REAL 10.0";
    QTest::newRow("general format of a float") << kDta << stata(READSTAT_TYPE_FLOAT, "%9.0g") << "REAL 9.0";
    QTest::newRow("text of twelve bytes") << kDta << text(12) << "STRING 12.0";
    QTest::newRow("longest text") << kDta << text(2045) << "STRING 2045.0";
    QTest::newRow("old file, byte") << kOldDta << stata(READSTAT_TYPE_INT8) << "INTEGER 4.0";
    QTest::newRow("old file, text") << kOldDta << text(12) << "STRING 12.0";
    QTest::newRow("old file, longest text") << kOldDta << text(244) << "STRING 244.0";
}

void tst_StatisticalTypes::typeOfSas_data()
{
    columnsOfTypes();
    QTest::newRow("no decimals") << kXpt << number("F3") << "INTEGER 3.0";
    QTest::newRow("decimals") << kXpt << number("F8.2") << "REAL 8.2";
    QTest::newRow("commas for thousands") << kXpt << number("COMMA12.2") << "REAL 12.2";
    QTest::newRow("text has its storage width") << kXpt << text(20) << "STRING 20.0";
    QTest::newRow("version 8, decimals") << kXpt8 << number("F8.2") << "REAL 8.2";
    QTest::newRow("version 8, text") << kXpt8 << text(300) << "STRING 300.0";
    QTest::newRow("sas7bdat text") << kSas << text(20) << "STRING 20.0";
    QTest::newRow("sas7bdat number of a format with decimals") << kSas << number("F8.2") << "REAL 8.2";
    // A number without a format, or of the best one, may hold anything: to call it whole would cut it off.
    QTest::newRow("no format") << kXpt << number("") << "REAL 8.0";
    QTest::newRow("best format") << kXpt << number("BEST12") << "REAL 12.0";
    QTest::newRow("sas7bdat, no format") << kSas << number("") << "REAL 8.0";
}

void tst_StatisticalTypes::datesAreNumbersWithARemark_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QString>("expected");
    // Days of SPSS are seconds since 1582, of SAS days since 1960: the former fit in no int.
    QTest::newRow("sav date") << kSav << QByteArray("DATE11") << "REAL 11.0";
    QTest::newRow("sav American date") << kSav << QByteArray("ADATE10") << "REAL 10.0";
    QTest::newRow("sav European date") << kSav << QByteArray("EDATE10") << "REAL 10.0";
    QTest::newRow("sav sortable date") << kSav << QByteArray("SDATE10") << "REAL 10.0";
    QTest::newRow("sav day of the year") << kSav << QByteArray("JDATE7") << "REAL 7.0";
    QTest::newRow("sav quarter") << kSav << QByteArray("QYR8") << "REAL 8.0";
    QTest::newRow("sav month") << kSav << QByteArray("MOYR8") << "REAL 8.0";
    QTest::newRow("sav week") << kSav << QByteArray("WKYR10") << "REAL 10.0";
    QTest::newRow("sav date and time") << kSav << QByteArray("DATETIME20") << "REAL 20.0";
    QTest::newRow("sav time") << kSav << QByteArray("TIME8") << "INTEGER 8.0";
    QTest::newRow("sav time with parts of seconds") << kSav << QByteArray("DTIME23.2") << "REAL 23.2";
    QTest::newRow("por date") << kPor << QByteArray("DATE11") << "REAL 11.0";
    QTest::newRow("xpt date") << kXpt << QByteArray("DATE9") << "INTEGER 9.0";
    QTest::newRow("xpt date and time") << kXpt << QByteArray("DATETIME18") << "REAL 18.0";
    QTest::newRow("xpt time") << kXpt << QByteArray("TIME8") << "INTEGER 8.0";
    QTest::newRow("dta day") << kDta << QByteArray("%td") << "INTEGER 8.0";
    QTest::newRow("dta day, old") << kOldDta << QByteArray("%d") << "INTEGER 8.0";
    QTest::newRow("dta month") << kDta << QByteArray("%tm") << "INTEGER 8.0";
    QTest::newRow("dta time of the clock") << kDta << QByteArray("%tc") << "REAL 8.0";
    QTest::newRow("dta day in a form of its own") << kDta << QByteArray("%tdD_m_Y") << "INTEGER 8.0";
    QTest::newRow("xpt American date") << kXpt << QByteArray("MMDDYY10") << "INTEGER 10.0";
}

void tst_StatisticalTypes::datesAreNumbersWithARemark()
{
    QFETCH(FileForm, form);
    QFETCH(QByteArray, format);
    QFETCH(QString, expected);
    const SourceOutcome outcome = readingOf(tableOf(number(format.constData())), form);
    QCOMPARE(fieldsOf(outcome), QStringList{"X: " + expected});
    QCOMPARE(remarksOf(outcome),
        QStringList{QStringLiteral("X: is a date of the format %1 and stays a number")
                        .arg(QString::fromLatin1(format))});
}

void tst_StatisticalTypes::namesLabelsAndPositions_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::addColumn<QString>("provider");
    QTest::newRow("sav") << kSav << "SPSS";
    QTest::newRow("zsav") << FileForm{FileKind::Zsav} << "SPSS";
    QTest::newRow("por") << kPor << "SPSS";
    QTest::newRow("dta") << kDta << "STATA";
    QTest::newRow("sas7bdat") << kSas << "SAS";
    QTest::newRow("xpt") << kXpt << "SAS";
}

void tst_StatisticalTypes::namesLabelsAndPositions()
{
    QFETCH(FileForm, form);
    QFETCH(QString, provider);
    const Table table{{},
        {{"DWELL", READSTAT_TYPE_DOUBLE, 8, "Number of the dwelling"}, {"NAME", READSTAT_TYPE_STRING, 12},
            {"AGE", READSTAT_TYPE_DOUBLE, 8, "Age in years"}}};
    const SourceOutcome outcome = readingOf(table, form);
    QVERIFY2(outcome.result, qPrintable(problemOf(outcome)));
    QStringList lines;
    for (const auto &field : outcome.result->fields)
        lines << QStringLiteral("%1 %2 \"%3\" %4 [%5]")
                     .arg(field->relativePosition)
                     .arg(field->name, field->label, field->dataProviderType, field->selection);
    QCOMPARE(lines,
        (QStringList{"1 DWELL \"Number of the dwelling\" " + provider + " []",
            "2 NAME \"\" " + provider + " []", "3 AGE \"Age in years\" " + provider + " []"}));
}

void tst_StatisticalTypes::longNamesOfSavAreKept()
{
    const Table table{{},
        {{"DWELLING_NUMBER_IN_MUNICIPALITY", READSTAT_TYPE_DOUBLE, 0, "", "F8.0"},
            {"DWELLING_NUMBER_IN_PROVINCE", READSTAT_TYPE_DOUBLE, 0, "", "F9.0"},
            {"address", READSTAT_TYPE_STRING, 700}, {"Floor", READSTAT_TYPE_DOUBLE, 0, "", "F2.0"}}};
    QCOMPARE(fieldsOf(readingOf(table, kSav)),
        (QStringList{"DWELLING_NUMBER_IN_MUNICIPALITY: INTEGER 8.0",
            "DWELLING_NUMBER_IN_PROVINCE: INTEGER 9.0", "address: STRING 700.0", "Floor: INTEGER 2.0"}));
}

void tst_StatisticalTypes::longTextsOfStataHaveTheSizeOfTheLongestThatIsRead()
{
    const Table table{
        {}, {{"X", READSTAT_TYPE_STRING_REF, 8}}, {{QByteArray("Rua do Sol")}, {QByteArray("Nr. 5")}}};
    const QStringList remark{"X: is a text of any length, for which no size is declared"};
    const SourceOutcome unread = readingOf(table, kDta);
    QCOMPARE(fieldsOf(unread), QStringList{"X: STRING 0.0"});
    QCOMPARE(remarksOf(unread), remark);
    ReadOptions options;
    options.rows = 10;
    options.mostCategories = 1;
    QCOMPARE(fieldsOf(readingOf(table, kDta, options)), QStringList{"X: STRING 10.0"});
}

void tst_StatisticalTypes::fileTellsOfItself_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::addColumn<QString>("expected");
    QTest::newRow("sav") << kSav << "SPSS, UTF-8, \"Census 2023\", 0 of 2 records";
    QTest::newRow("zsav") << FileForm{FileKind::Zsav} << "SPSS, UTF-8, \"Census 2023\", 0 of 2 records";
    QTest::newRow("por") << kPor << "SPSS portable, , \"Census 2023\", 0 of -1 records";
    QTest::newRow("dta 118") << kDta << "Stata, UTF-8, \"Census 2023\", 0 of 2 records";
    QTest::newRow("sas7bdat") << kSas << "SAS, UTF-8, \"Census 2023\", 0 of 2 records";
    QTest::newRow("xpt") << kXpt << "SAS transport, , \"Census 2023\", 0 of -1 records";
}

void tst_StatisticalTypes::fileTellsOfItself()
{
    QFETCH(FileForm, form);
    QFETCH(QString, expected);
    const Table table{{}, {number("")}, {{1.0}, {2.0}}, "Census 2023"};
    QCOMPARE(allOf(readingOf(table, form)).first(), expected);
}

QTEST_APPLESS_MAIN(tst_StatisticalTypes)

#include "tst_StatisticalTypes.moc"
