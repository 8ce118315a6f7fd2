#include "tests/sources/SourceReading.h"

#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(tessel::test::FileForm)
Q_DECLARE_METATYPE(tessel::test::Table)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

constexpr FileForm kSav{FileKind::Sav};
constexpr FileForm kDta{FileKind::Dta};
const Cell kNothing;

ReadOptions withRows(qint64 rows, int mostCategories = 100)
{
    ReadOptions options;
    options.rows = rows;
    options.mostCategories = mostCategories;
    return options;
}

/// A table of the one column \a column, with one record for each of \a cells.
Table columnOf(const Column &column, const std::vector<Cell> &cells)
{
    Table table{{}, {column}};
    for (const Cell &cell : cells)
        table.records.push_back({cell});
    return table;
}

Table numbers(const std::vector<Cell> &cells, const char *format = "F3.0")
{
    return columnOf({"X", READSTAT_TYPE_DOUBLE, 8, "", format}, cells);
}

Table texts(const std::vector<QByteArray> &values)
{
    return columnOf({"X", READSTAT_TYPE_STRING, 8}, {values.begin(), values.end()});
}

} // namespace

/// What the records add to the fields when they are asked for, how far they are read, progress and
/// cancelling.
class tst_StatisticalRows : public QObject {
    Q_OBJECT

private slots:
    void recordsAreReadUpToTheLimit_data();
    void recordsAreReadUpToTheLimit();
    void limitIsToldWhereTheTotalIsUnknown();
    void valuesGiveCategoriesAndRange_data();
    void valuesGiveCategoriesAndRange();
    void declaredCategoriesStay();
    void missingCodesAreOutOfTheRange();
    void taggedValuesCountAsNothing();
    void floatsAreShownAsTheyWereTyped();
    void mostCategories_data();
    void mostCategories();
    void everyFormatGivesTheSame_data();
    void everyFormatGivesTheSame();
    void progressGrowsToItsEnd();
    void cancelling();
};

void tst_StatisticalRows::recordsAreReadUpToTheLimit_data()
{
    QTest::addColumn<qint64>("limit");
    QTest::addColumn<qint64>("read");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QStringList>("remarks");
    const auto first = [](int count) {
        return QStringList{
            QStringLiteral("Categories and ranges come from the first %1 of 5 records.").arg(count)};
    };
    QTest::newRow("fewer than there are")
        << qint64(3) << qint64(3) << "INTEGER 3.0 from 3 to 5 {3 3|4 4|5 5}" << first(3);
    QTest::newRow("one less") << qint64(4) << qint64(4) << "INTEGER 3.0 from 2 to 5 {2 2|3 3|4 4|5 5}"
                              << first(4);
    QTest::newRow("as many as there are")
        << qint64(5) << qint64(5) << "INTEGER 3.0 from 1 to 5 {1 1|2 2|3 3|4 4|5 5}" << QStringList();
    QTest::newRow("more than there are")
        << qint64(6) << qint64(5) << "INTEGER 3.0 from 1 to 5 {1 1|2 2|3 3|4 4|5 5}" << QStringList();
    QTest::newRow("as many as can be said")
        << std::numeric_limits<qint64>::max() << qint64(5) << "INTEGER 3.0 from 1 to 5 {1 1|2 2|3 3|4 4|5 5}"
        << QStringList();
}

void tst_StatisticalRows::recordsAreReadUpToTheLimit()
{
    QFETCH(qint64, limit);
    QFETCH(qint64, read);
    QFETCH(QStringList, remarks);
    for (const FileForm &form : {kSav, kDta}) {
        const char *format = form.kind == FileKind::Dta ? "%3.0f" : "F3.0";
        const SourceOutcome outcome =
            readingOf(numbers({5.0, 4.0, 3.0, 2.0, 1.0}, format), form, withRows(limit));
        QTEST(fieldOf(outcome, QStringLiteral("X")), "field");
        QCOMPARE(outcome.result->rowsRead, read);
        QCOMPARE(outcome.result->rows, qint64(5));
        QCOMPARE(remarksOf(outcome), remarks);
    }
}

void tst_StatisticalRows::limitIsToldWhereTheTotalIsUnknown()
{
    for (const FileKind kind : {FileKind::Por, FileKind::Xpt}) {
        const SourceOutcome outcome = readingOf(numbers({1.0, 2.0, 3.0}), {kind}, withRows(2));
        QCOMPARE(fieldOf(outcome, QStringLiteral("X")), QStringLiteral("INTEGER 3.0 from 1 to 2 {1 1|2 2}"));
        QCOMPARE(outcome.result->rowsRead, qint64(2));
        QCOMPARE(remarksOf(outcome), QStringList{"Categories and ranges come from the first 2 records."});
    }
}

void tst_StatisticalRows::valuesGiveCategoriesAndRange_data()
{
    QTest::addColumn<Table>("table");
    QTest::addColumn<QString>("expected");
    QTest::newRow("categories are in the order of their numbers")
        << numbers({10.0, 9.0, 100.0, -1.0}) << "INTEGER 3.0 from -1 to 100 {-1 -1|9 9|10 10|100 100}";
    QTest::newRow("a value counts once")
        << numbers({1.0, 2.0, 1.0, 1.0}) << "INTEGER 3.0 from 1 to 2 {1 1|2 2}";
    QTest::newRow("nothing counts as no value")
        << numbers({1.0, kNothing, 3.0}) << "INTEGER 3.0 from 1 to 3 {1 1|3 3}";
    QTest::newRow("only nothing") << numbers({kNothing, kNothing}) << "INTEGER 3.0";
    QTest::newRow("no records") << numbers({}) << "INTEGER 3.0";
    QTest::newRow("one value is a range from it to it")
        << numbers({7.0, 7.0}) << "INTEGER 3.0 from 7 to 7 {7 7}";
    QTest::newRow("large numbers have no exponent") << numbers({1e9, 123456789.0}, "F10.0")
                                                    << "INTEGER 10.0 from 123456789 to 1000000000 "
                                                       "{123456789 123456789|1000000000 1000000000}";
    QTest::newRow("decimals give a range and no categories")
        << numbers({1.5, 2.25, -0.5}, "F8.2") << "REAL 8.2 from -0.5 to 2.25";
    QTest::newRow("decimals where the format shows none make a real number")
        << numbers({1.5, 2.0}) << "REAL 3.0 from 1.5 to 2";
    QTest::newRow("a number beyond the whole numbers makes a real number")
        << numbers({1.0, 3e9}) << "REAL 3.0 from 1 to 3000000000";
    QTest::newRow("texts in their order") << texts({"S", "N", "S", "E"}) << "STRING 8.0 {E E|N N|S S}";
    QTest::newRow("empty texts are no categories") << texts({"S", "", "N"}) << "STRING 8.0 {N N|S S}";
    QTest::newRow("a text with a blank leaves no categories") << texts({"S", "N W"}) << "STRING 8.0";
    QTest::newRow("only empty texts") << texts({"", ""}) << "STRING 8.0";
}

void tst_StatisticalRows::valuesGiveCategoriesAndRange()
{
    QFETCH(Table, table);
    const SourceOutcome outcome = readingOf(table, kSav, withRows(100));
    QTEST(fieldOf(outcome, QStringLiteral("X")), "expected");
    QCOMPARE(remarksOf(outcome), QStringList());
}

void tst_StatisticalRows::declaredCategoriesStay()
{
    Table table = numbers({2.0, 3.0, 3.0});
    table.sets = {{"set", READSTAT_TYPE_DOUBLE, {{1.0, "One"}, {2.0, "Two"}, {5.0, "Five"}}}};
    table.columns.front().labelSet = "set";
    QCOMPARE(fieldOf(readingOf(table, kSav, withRows(100)), QStringLiteral("X")),
        QStringLiteral("INTEGER 3.0 from 2 to 3 {1 One|2 Two|5 Five}"));
}

void tst_StatisticalRows::missingCodesAreOutOfTheRange()
{
    Table table = numbers({2.0, 99.0, 3.0, 98.0, -1.0, 97.0});
    table.columns.front().missing = {{98, 99}, {-1, -1}};
    table.sets = {{"set", READSTAT_TYPE_DOUBLE, {{99.0, "Unknown"}}}};
    table.columns.front().labelSet = "set";
    const SourceOutcome outcome = readingOf(table, kSav, withRows(100));
    QCOMPARE(fieldOf(outcome, QStringLiteral("X")),
        QStringLiteral("INTEGER 3.0 from 2 to 97 missing 99 notapp -1 {99 Unknown}"));
}

void tst_StatisticalRows::taggedValuesCountAsNothing()
{
    const Table table = columnOf({"X", READSTAT_TYPE_INT8}, {1.0, 'a', 3.0, kNothing, 'z'});
    QCOMPARE(fieldOf(readingOf(table, kDta, withRows(100)), QStringLiteral("X")),
        QStringLiteral("INTEGER 4.0 from 1 to 3 {1 1|3 3}"));
}

void tst_StatisticalRows::floatsAreShownAsTheyWereTyped()
{
    // As a double the float 0.1 is 0.10000000149.
    const Table table = columnOf({"X", READSTAT_TYPE_FLOAT, 0, "", "%4.1f"}, {0.1, 2.7});
    QCOMPARE(fieldOf(readingOf(table, kDta, withRows(100)), QStringLiteral("X")),
        QStringLiteral("REAL 4.1 from 0.1 to 2.7"));
}

void tst_StatisticalRows::mostCategories_data()
{
    QTest::addColumn<int>("most");
    QTest::addColumn<QString>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("as many as allowed") << 3 << "INTEGER 3.0 from 1 to 3 {1 1|2 2|3 3}"
                                        << "STRING 8.0 {A A|B B|C C}";
    QTest::newRow("one more than allowed") << 2 << "INTEGER 3.0 from 1 to 3"
                                           << "STRING 8.0";
    QTest::newRow("none allowed") << 0 << "INTEGER 3.0 from 1 to 3"
                                  << "STRING 8.0";
}

void tst_StatisticalRows::mostCategories()
{
    QFETCH(int, most);
    const ReadOptions options = withRows(100, most);
    QTEST(fieldOf(readingOf(numbers({1.0, 2.0, 3.0}), kSav, options), QStringLiteral("X")), "number");
    QTEST(fieldOf(readingOf(texts({"A", "B", "C", "A"}), kSav, options), QStringLiteral("X")), "text");
}

void tst_StatisticalRows::everyFormatGivesTheSame_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::newRow("sav") << kSav;
    QTest::newRow("sav, compressed") << FileForm{FileKind::Sav, 0, READSTAT_COMPRESS_ROWS};
    QTest::newRow("zsav") << FileForm{FileKind::Zsav};
    QTest::newRow("por") << FileForm{FileKind::Por};
    for (const int version : {105, 110, 114, 117, 118, 119})
        QTest::addRow("dta %d", version) << FileForm{FileKind::Dta, static_cast<uint8_t>(version)};
    QTest::newRow("sas7bdat") << FileForm{FileKind::Sas7bdat};
    QTest::newRow("sas7bdat, compressed") << FileForm{FileKind::Sas7bdat, 0, READSTAT_COMPRESS_ROWS, false};
    QTest::newRow("xpt 5") << FileForm{FileKind::Xpt, 5};
    QTest::newRow("xpt 8") << FileForm{FileKind::Xpt, 8};
}

void tst_StatisticalRows::everyFormatGivesTheSame()
{
    QFETCH(FileForm, form);
    const char *format = form.kind == FileKind::Dta ? "%4.0f" : "F4.0";
    const Table table{{},
        {{"N", READSTAT_TYPE_DOUBLE, 8, "", format}, {"T", READSTAT_TYPE_STRING, 8},
            {"E", READSTAT_TYPE_DOUBLE, 8, "", format}},
        {{12.0, QByteArray("N"), kNothing}, {-3.0, QByteArray("S"), kNothing},
            {kNothing, QByteArray(), kNothing}, {500.0, QByteArray("N"), kNothing}}};
    const SourceOutcome outcome = readingOf(table, form, withRows(100));
    QCOMPARE(fieldsOf(outcome),
        (QStringList{"N: INTEGER 4.0 from -3 to 500 {-3 -3|12 12|500 500}", "T: STRING 8.0 {N N|S S}",
            "E: INTEGER 4.0"}));
    QCOMPARE(outcome.result->rowsRead, qint64(4));
    QCOMPARE(remarksOf(outcome), QStringList());
}

void tst_StatisticalRows::progressGrowsToItsEnd()
{
    QVector<int> told;
    ReadOptions options = withRows(30000);
    options.progress = [&told](int percent) {
        told << percent;
        return true;
    };
    const SourceOutcome outcome = readingOf(countedRecords(30000), kSav, options);
    QVERIFY2(outcome.result, qPrintable(problemOf(outcome)));
    QVERIFY(told.size() >= 2);
    QVERIFY2(told.size() <= 1000, "not once for every record");
    QVERIFY(std::is_sorted(told.cbegin(), told.cend()));
    QVERIFY(told.first() >= 0 && told.first() < 50);
    QVERIFY(told.last() > 50 && told.last() <= 100);
}

void tst_StatisticalRows::cancelling()
{
    for (const int after : {0, 1}) {
        int calls = 0;
        ReadOptions options = withRows(30000);
        options.progress = [&calls, after](int) { return calls++ < after; };
        const SourceOutcome outcome = readingOf(countedRecords(30000), kSav, options);
        QVERIFY(!outcome.result);
        QVERIFY(outcome.isCancelled);
        QVERIFY(!outcome.canRetryWithEncoding);
        QCOMPARE(calls, after + 1);
    }
}

QTEST_APPLESS_MAIN(tst_StatisticalRows)

#include "tst_StatisticalRows.moc"
