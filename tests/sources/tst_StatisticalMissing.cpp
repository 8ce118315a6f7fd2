#include "tests/sources/SourceReading.h"

#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(tessel::test::Column)
Q_DECLARE_METATYPE(tessel::test::Table)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();

const FileKind kBoth[] = {FileKind::Sav, FileKind::Por};

/// A table of one number X that declares \a missing; its codes have the labels \a labels.
Table declaring(std::vector<MissingSpan> missing, std::vector<LabelledCode> labels = {})
{
    Column column{"X", READSTAT_TYPE_DOUBLE, 0, "", "F3.0", "", std::move(missing)};
    if (labels.empty())
        return {{}, {column}};
    column.labelSet = "set";
    return {{{"set", READSTAT_TYPE_DOUBLE, std::move(labels)}}, {column}};
}

/// The codes that \a outcome declares for its first field: "missing|not applicable".
QString codesOf(const SourceOutcome &outcome)
{
    if (!outcome.result)
        return problemOf(outcome);
    const TDmSourceField &field = *outcome.result->fields.front();
    return field.missing + QLatin1Char('|') + field.notApp;
}

} // namespace

/// The codes that a source declares as missing or not applicable, and what cannot be carried of them.
class tst_StatisticalMissing : public QObject {
    Q_OBJECT

private slots:
    void codes_data();
    void codes();
    void notApplicableIsToldByItsLabel_data();
    void notApplicableIsToldByItsLabel();
    void whatCannotBeCarriedIsTold_data();
    void whatCannotBeCarriedIsTold();
    void missingTextsAreTold();
    void taggedValuesOfStataAreNoCodes();
    void fieldsDoNotShareTheirCodes();
};

void tst_StatisticalMissing::codes_data()
{
    QTest::addColumn<Table>("table");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << declaring({}) << "|";
    QTest::newRow("one") << declaring({{9, 9}}) << "9|";
    QTest::newRow("two, the first is missing") << declaring({{8, 8}, {9, 9}}) << "8|9";
    QTest::newRow("two in the order of the source") << declaring({{9, 9}, {8, 8}}) << "9|8";
    QTest::newRow("a code that is declared twice counts once")
        << declaring({{8, 8}, {8, 8}, {9, 9}}) << "8|9";
    QTest::newRow("negative") << declaring({{-1, -1}}) << "-1|";
    QTest::newRow("zero") << declaring({{0, 0}}) << "0|";
    QTest::newRow("as large as a code may be") << declaring({{2147483647.0, 2147483647.0}}) << "2147483647|";
    QTest::newRow("as small as a code may be")
        << declaring({{-2147483648.0, -2147483648.0}}) << "-2147483648|";
    QTest::newRow("large ones without an exponent") << declaring({{99999999, 99999999}}) << "99999999|";
    QTest::newRow("every code of the range is labelled")
        << declaring({{98, 99}}, {{1.0, "Yes"}, {98.0, "Does not know"}, {99.0, "Does not answer"}})
        << "98|99";
}

void tst_StatisticalMissing::codes()
{
    QFETCH(Table, table);
    QFETCH(QString, expected);
    for (const FileKind kind : kBoth) {
        const SourceOutcome outcome = readingOf(table, {kind});
        QCOMPARE(codesOf(outcome), expected);
        QCOMPARE(remarksOf(outcome), QStringList());
    }
}

void tst_StatisticalMissing::notApplicableIsToldByItsLabel_data()
{
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QString>("expected");
    for (const char *label : {"Not applicable", "NOT APPLICABLE", "n/a", "N/A", "No aplica", "NO APLICA",
             "No corresponde", "Sans objet", "Non applicable", "Não se aplica", "NÃO SE APLICA",
             "Nao se aplica", "99 - No aplica", "Not applicable (under 15)"})
        QTest::newRow(label) << QByteArray(label) << "9|8";
    for (const char *label :
        {"Unknown", "Does not know", "No answer", "", "Applicable", "Ignorado", "Sino aplica"})
        QTest::addRow("not by \"%s\"", label) << QByteArray(label) << "8|9";
}

void tst_StatisticalMissing::notApplicableIsToldByItsLabel()
{
    QFETCH(QByteArray, label);
    QFETCH(QString, expected);
    // 8 comes first and would be the missing code.
    const Table table = declaring({{8, 8}, {9, 9}}, {{1.0, "Yes"}, {8.0, label}, {9.0, "Does not answer"}});
    QCOMPARE(codesOf(readingOf(table, {FileKind::Sav})), expected);
}

void tst_StatisticalMissing::whatCannotBeCarriedIsTold_data()
{
    QTest::addColumn<Table>("table");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("remark");
    const QString rest =
        QStringLiteral(" are left out but for whole numbers with labels: a field carries single codes");
    QTest::newRow("a third code") << declaring({{7, 7}, {8, 8}, {9, 9}}) << "7|8"
                                  << "X: 1 missing codes are left out, because a field carries two: 9";
    QTest::newRow("the third is kept when it is the not-applicable one")
        << declaring({{7, 7}, {8, 8}, {9, 9}}, {{1.0, "Yes"}, {9.0, "No aplica"}}) << "7|9"
        << "X: 1 missing codes are left out, because a field carries two: 8";
    QTest::newRow("more labelled codes in a range than two")
        << declaring({{96, 99}}, {{96.0, "A"}, {97.0, "B"}, {98.0, "C"}, {99.0, "D"}}) << "96|97"
        << "X: 2 missing codes are left out, because a field carries two: 98, 99";
    QTest::newRow("a range without labels")
        << declaring({{97, 99}}) << "|"
        << "X: the missing values from 97 to 99 are left out: a field carries single codes";
    QTest::newRow("a range without labels in it")
        << declaring({{97, 99}}, {{1.0, "Yes"}}) << "|"
        << "X: the missing values from 97 to 99 are left out: a field carries single codes";
    QTest::newRow("some codes of a range have labels")
        << declaring({{97, 99}}, {{97.0, "Does not know"}, {99.0, "Does not answer"}, {100.0, "Hundred"}})
        << "97|99"
        << "X: the missing values from 97 to 99" + rest;
    QTest::newRow("some codes of a range open upwards have labels")
        << declaring({{97, kInfinite}}, {{1.0, "Yes"}, {98.0, "Does not know"}}) << "98|"
        << "X: the missing values from 97 up" + rest;
    QTest::newRow("some codes of a range open downwards have labels")
        << declaring({{-kInfinite, 0}}, {{-5.0, "Refused"}, {1.0, "Yes"}}) << "-5|"
        << "X: the missing values up to 0" + rest;
    QTest::newRow("a range of which some have labels, and one code")
        << declaring({{97, 98}, {5, 5}}, {{1.0, "Yes"}, {97.0, "Refused"}}) << "97|5"
        << "X: the missing values from 97 to 98" + rest;
    QTest::newRow("a range below zero")
        << declaring({{-5, -1}}) << "|"
        << "X: the missing values from -5 to -1 are left out: a field carries single codes";
    QTest::newRow("a range open upwards")
        << declaring({{97, kInfinite}}) << "|"
        << "X: the missing values from 97 up are left out: a field carries single codes";
    QTest::newRow("a range open downwards")
        << declaring({{-kInfinite, 5}}) << "|"
        << "X: the missing values up to 5 are left out: a field carries single codes";
    constexpr double most = std::numeric_limits<double>::max();
    QTest::newRow("the system's own missing value is an open bound")
        << declaring({{-most, 5}}) << "|"
        << "X: the missing values up to 5 are left out: a field carries single codes";
    QTest::newRow("the highest number is an open bound")
        << declaring({{97, most}}) << "|"
        << "X: the missing values from 97 up are left out: a field carries single codes";
    QTest::newRow("a range without labels and one code")
        << declaring({{97, 98}, {5, 5}}) << "5|"
        << "X: the missing values from 97 to 98 are left out: a field carries single codes";
    QTest::newRow("a code with decimals") << declaring({{99.5, 99.5}}) << "|"
                                          << "X: the missing code 99.5 is left out: a field carries whole "
                                             "numbers from -2147483648 to 2147483647";
    QTest::newRow("a code above the whole numbers") << declaring({{2147483648.0, 2147483648.0}}) << "|"
                                                    << "X: the missing code 2147483648 is left out: a field "
                                                       "carries whole numbers from -2147483648 to 2147483647";
    QTest::newRow("a code below the whole numbers") << declaring({{-2147483649.0, -2147483649.0}}) << "|"
                                                    << "X: the missing code -2147483649 is left out: a field "
                                                       "carries whole numbers from -2147483648 to 2147483647";
    QTest::newRow("an enormous code") << declaring({{1e300, 1e300}}) << "|"
                                      << "X: the missing code 1e+300 is left out: a field carries whole "
                                         "numbers from -2147483648 to 2147483647";
    QTest::newRow("a code with decimals beside one without")
        << declaring({{0.5, 0.5}, {9, 9}}) << "9|"
        << "X: the missing code 0.5 is left out: a field carries whole numbers from -2147483648 to "
           "2147483647";
}

void tst_StatisticalMissing::whatCannotBeCarriedIsTold()
{
    QFETCH(Table, table);
    QFETCH(QString, expected);
    QFETCH(QString, remark);
    const SourceOutcome outcome = readingOf(table, {FileKind::Sav});
    QCOMPARE(codesOf(outcome), expected);
    QCOMPARE(remarksOf(outcome), QStringList{remark});
}

void tst_StatisticalMissing::missingTextsAreTold()
{
    const Table table{{}, {{"X", READSTAT_TYPE_STRING, 8, "", "", "", {}, {"NA", "9"}}}};
    const SourceOutcome outcome = readingOf(table, {FileKind::Sav});
    QCOMPARE(codesOf(outcome), QStringLiteral("|"));
    QCOMPARE(remarksOf(outcome),
        QStringList{"X: 2 missing codes are left out, because a field carries whole numbers: \"NA\", \"9\""});
}

void tst_StatisticalMissing::taggedValuesOfStataAreNoCodes()
{
    const Table table{{{"set", READSTAT_TYPE_INT32, {{1.0, "Yes"}, {'a', "No aplica"}}}},
        {{"X", READSTAT_TYPE_INT8, 0, "", "", "set"}}, {{1.0}, {'a'}}};
    const SourceOutcome outcome = readingOf(table, {FileKind::Dta});
    QCOMPARE(codesOf(outcome), QStringLiteral("|"));
    QCOMPARE(remarksOf(outcome),
        QStringList{"X: 1 missing codes are left out with their labels, because a category's code is a "
                    "number or a text: .a"});
}

void tst_StatisticalMissing::fieldsDoNotShareTheirCodes()
{
    const Table table{{{"set", READSTAT_TYPE_DOUBLE, {{1.0, "Yes"}, {8.0, "Unknown"}, {9.0, "No aplica"}}}},
        {{"A", READSTAT_TYPE_DOUBLE, 0, "", "F1.0", "set", {{8, 8}, {9, 9}}},
            {"B", READSTAT_TYPE_DOUBLE, 0, "", "F1.0", "set", {{9, 9}}},
            {"C", READSTAT_TYPE_DOUBLE, 0, "", "F1.0", "set"}}};
    QCOMPARE(fieldsOf(readingOf(table, {FileKind::Sav})),
        (QStringList{"A: INTEGER 1.0 missing 8 notapp 9 {1 Yes|8 Unknown|9 No aplica}",
            "B: INTEGER 1.0 from 1 to 8 notapp 9 {1 Yes|8 Unknown|9 No aplica}",
            "C: INTEGER 1.0 from 1 to 9 {1 Yes|8 Unknown|9 No aplica}"}));
}

QTEST_APPLESS_MAIN(tst_StatisticalMissing)

#include "tst_StatisticalMissing.moc"
