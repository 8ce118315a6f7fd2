#include "tests/sources/SampleTables.h"
#include "tests/sources/SourceReading.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

using namespace tessel::sources;
using namespace tessel::test;

namespace {

QString sample(const char *name)
{
    return QDir(QStringLiteral(TESSEL_SAMPLES)).filePath(QLatin1String(name));
}

} // namespace

/// The sources of the folder samples/: they read without a problem, and show what their description says.
class tst_SampleSources : public QObject {
    Q_OBJECT

private slots:
    void householdOfSpss();
    void personOfStata();
    void householdOfSasTransport();
    void places();
    void recordsOfHouseholds();
    void samplesAreSmall();
    void samplesAreUpToDate();
};

void tst_SampleSources::householdOfSpss()
{
    const char expected[] = R"(SPSS, UTF-8, "Hogares, República de Altamar", 0 of 48 records
1 MUN_CODE "Código del municipio" SPSS [] STRING 6.0
2 HH_CODE "Número del hogar en la vivienda" SPSS [] INTEGER 2.0
3 WT_HH "Factor de expansión" SPSS [] REAL 9.4
4 DATE "Fecha de la entrevista" SPSS [] REAL 11.0
5 TENURE "Tenencia de la vivienda" SPSS [] INTEGER 1.0 from 1 to 5 missing 9 notapp 8 {1 Propia, pagada|2 Propia, pagándose|3 Alquilada|4 Prestada por familiares o amigos|5 Cedida por el empleador|8 No aplica|9 No responde}
6 RENT "Alquiler mensual en escudos" SPSS [] REAL 8.2 missing 99999 notapp 99998
7 BEDROOMS "Cuartos usados sólo para dormir" SPSS [] INTEGER 2.0
8 COOK_FUEL "Combustible para cocinar" SPSS [] INTEGER 1.0 from 1 to 5 missing 9 notapp 8 {1 Gas en garrafa|2 Gas por cañería|3 Electricidad|4 Leña|5 Carbón|8 No corresponde: no cocina|9 No responde}
9 INTERNET "Acceso a Internet" SPSS [] INTEGER 1.0 from 1 to 2 missing 9 {1 Sí|2 No|9 No responde}
10 LANGUAGE "Lengua del hogar" SPSS [] STRING 2.0 {es Español|pt Português|fr Français|gn Avañe'ẽ}
DATE: is a date of the format DATE11 and stays a number
BEDROOMS: the missing values from 98 to 99 are left out: a field carries single codes)";
    QCOMPARE(
        allOf(readSource(sample("household.sav"))), QString::fromUtf8(expected).split(QLatin1Char('\n')));
}

void tst_SampleSources::personOfStata()
{
    const char expected[] = R"(Stata, UTF-8, "Persons, República de Altamar", 0 of 96 records
1 mun_code "Municipality code" STATA [] STRING 6.0
2 line_no "Line number within the household" STATA [] INTEGER 4.0
3 wt_person "Expansion factor of the person" STATA [] REAL 9.4
4 relation "Relationship to the reference person" STATA [] INTEGER 4.0 from 1 to 5 {1 Reference person|2 Spouse or partner|3 Son or daughter|4 Other relative|5 Other non-relative}
5 sex "Sex of the person" STATA [] INTEGER 4.0 from 1 to 2 {1 Male|2 Female}
6 age "Age in completed years" STATA [] INTEGER 6.0
7 birth_date "Date of birth" STATA [] INTEGER 11.0
8 dif_see "Difficulty seeing, even with glasses" STATA [] INTEGER 4.0 from 1 to 4 {1 No difficulty|2 Some difficulty|3 A lot of difficulty|4 Cannot do at all}
9 dif_hear "Difficulty hearing, even with a hearing aid" STATA [] INTEGER 4.0 from 1 to 4 {1 No difficulty|2 Some difficulty|3 A lot of difficulty|4 Cannot do at all}
10 first_name "" STATA [] STRING 12.0
birth_date: is a date of the format %td and stays a number
dif_see: 2 missing codes are left out with their labels, because a category's code is a number or a text: .a, .b
dif_hear: 2 missing codes are left out with their labels, because a category's code is a number or a text: .a, .b)";
    QCOMPARE(allOf(readSource(sample("person.dta"))), QString::fromUtf8(expected).split(QLatin1Char('\n')));
}

void tst_SampleSources::householdOfSasTransport()
{
    const char expected[] = R"(SAS transport, , "Households", 0 of -1 records
1 MUN_CODE "Municipality code" SAS [] STRING 6.0
2 HH_CODE "Household number" SAS [] INTEGER 2.0
3 WT_HH "Expansion factor" SAS [] REAL 9.4
4 TENURE "Tenure of the dwelling" SAS [] INTEGER 1.0
5 RENT "Monthly rent in escudos" SAS [] REAL 10.2
6 VISIT "Day of the interview" SAS [] INTEGER 9.0
VISIT: is a date of the format DATE9 and stays a number)";
    QCOMPARE(
        allOf(readSource(sample("household.xpt"))), QString::fromUtf8(expected).split(QLatin1Char('\n')));
}

void tst_SampleSources::places()
{
    const SourceOutcome outcome = readSource(sample("places.csv"));
    QVERIFY2(outcome.result, qPrintable(problemOf(outcome)));
    QStringList names;
    for (const auto &field : outcome.result->fields)
        names << field->name;
    QCOMPARE(names, (QStringList{"Código", "Nombre", "Tipo", "Población", "Superficie km²", "Observación"}));
    QCOMPARE(outcome.result->format, QStringLiteral("CSV"));
    QCOMPARE(outcome.result->encoding.toLower(), QStringLiteral("windows-1252"));
}

void tst_SampleSources::recordsOfHouseholds()
{
    ReadOptions options;
    options.rows = 1000;
    const SourceOutcome outcome = readSource(sample("household.sav"), options);
    QVERIFY2(outcome.result, qPrintable(problemOf(outcome)));
    QCOMPARE(outcome.result->rowsRead, qint64(48));
    QCOMPARE(
        fieldOf(outcome, QStringLiteral("HH_CODE")), QStringLiteral("INTEGER 2.0 from 1 to 2 {1 1|2 2}"));
    QCOMPARE(fieldOf(outcome, QStringLiteral("MUN_CODE")),
        QStringLiteral(
            "STRING 6.0 {010101 010101|010204 010204|020101 020101|020301 020301|030102 030102|030201 "
            "030201|040101 040101|050102 050102}"));
    QCOMPARE(fieldOf(outcome, QStringLiteral("RENT")),
        QStringLiteral("REAL 8.2 from 390.25 to 2434.5 missing 99999 notapp 99998"));
}

void tst_SampleSources::samplesAreSmall()
{
    for (const Sample &written : sampleSources()) {
        const qint64 size = QFileInfo(sample(qPrintable(written.name))).size();
        QVERIFY2(size > 0 && size < 20000, qPrintable(written.name));
    }
}

void tst_SampleSources::samplesAreUpToDate()
{
    // By content, not byte for byte: another version of the writer may lay out the same content differently.
    ReadOptions options;
    options.rows = 1000;
    for (const Sample &written : sampleSources()) {
        const QStringList expected = allOf(readingOf(written.bytes, written.name, options));
        QVERIFY2(expected.size() > 5, qPrintable(expected.join(QLatin1Char('\n'))));
        QCOMPARE(allOf(readSource(sample(qPrintable(written.name)), options)), expected);
    }
}

QTEST_APPLESS_MAIN(tst_SampleSources)

#include "tst_SampleSources.moc"
