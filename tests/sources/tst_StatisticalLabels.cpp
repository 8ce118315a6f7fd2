#include "tests/sources/SourceReading.h"
#include "tests/support/LogCatcher.h"

#include "business/models/DatasetPropertiesFieldsModel.h"

#include <QtTest>

Q_DECLARE_METATYPE(tessel::test::FileForm)
Q_DECLARE_METATYPE(tessel::test::Table)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

constexpr FileForm kSav{FileKind::Sav};
constexpr FileForm kDta{FileKind::Dta};

/// A table of one whole-number column X with the labels \a labels, fit for every format but SAS's.
Table labelled(std::vector<LabelledCode> labels, readstat_type_t type = READSTAT_TYPE_DOUBLE)
{
    return {{{"set", type, std::move(labels)}},
        {{"X", type, 0, "", type == READSTAT_TYPE_DOUBLE ? "F3.0" : "", "set"}}};
}

/// A table of one text column X with the labels \a labels.
Table labelledText(std::vector<LabelledCode> labels)
{
    return {
        {{"set", READSTAT_TYPE_STRING, std::move(labels)}}, {{"X", READSTAT_TYPE_STRING, 8, "", "", "set"}}};
}

QByteArray text(const char *bytes) { return bytes; }

} // namespace

/// The value labels that a field carries as its categories, and what it cannot carry.
class tst_StatisticalLabels : public QObject {
    Q_OBJECT

private slots:
    void labelsArriveWhateverTheOrderOfTheFormat_data();
    void labelsArriveWhateverTheOrderOfTheFormat();
    void labelSetsThatNobodyNamesAreNoMatter();
    void labelsWithoutTextAreCodesAlone_data();
    void labelsWithoutTextAreCodesAlone();
    void nullLabelsOfFieldsAreEmpty_data();
    void nullLabelsOfFieldsAreEmpty();
    void categories_data();
    void categories();
    void catalogueReadsTheCategoriesBack();
    void rangeComesFromTheCodes_data();
    void rangeComesFromTheCodes();
    void taggedCodesAreLeftOutAndTold_data();
    void taggedCodesAreLeftOutAndTold();
    void longLabelsAreCarriedWhole();
    void labelsThatAreNotInTheFileAreTold_data();
    void labelsThatAreNotInTheFileAreTold();
};

void tst_StatisticalLabels::labelsArriveWhateverTheOrderOfTheFormat_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::newRow("sav tells them first") << kSav;
    QTest::newRow("zsav tells them first") << FileForm{FileKind::Zsav};
    QTest::newRow("por tells them between") << FileForm{FileKind::Por};
    for (const int version : {104, 105, 108, 110, 111, 112, 113, 114, 115, 116, 117, 118, 119})
        QTest::addRow("dta %d tells them last", version)
            << FileForm{FileKind::Dta, static_cast<uint8_t>(version)};
}

void tst_StatisticalLabels::labelsArriveWhateverTheOrderOfTheFormat()
{
    QFETCH(FileForm, form);
    const bool isStata = form.kind == FileKind::Dta;
    const readstat_type_t type = isStata ? READSTAT_TYPE_INT16 : READSTAT_TYPE_DOUBLE;
    const QByteArray format = isStata ? "" : "F6.0";
    const Table table{{{"yesno", isStata ? READSTAT_TYPE_INT32 : type, {{1.0, "Yes"}, {2.0, "No"}}},
                          {"area", isStata ? READSTAT_TYPE_INT32 : type,
                              {{1.0, "Urban"}, {2.0, "Far off"}, {3.0, "Other"}}}},
        {{"WATER", type, 0, "Water", format, "yesno"}, {"AREA", type, 0, "Area", format, "area"},
            {"POWER", type, 0, "Power", format, "yesno"}, {"ROOMS", type, 0, "Rooms", format}}};
    const SourceOutcome outcome = readingOf(table, form);
    QCOMPARE(fieldsOf(outcome),
        (QStringList{"WATER: INTEGER 6.0 from 1 to 2 {1 Yes|2 No}",
            "AREA: INTEGER 6.0 from 1 to 3 {1 Urban|2 Far off|3 Other}",
            "POWER: INTEGER 6.0 from 1 to 2 {1 Yes|2 No}", "ROOMS: INTEGER 6.0"}));
    QCOMPARE(remarksOf(outcome), QStringList());
}

void tst_StatisticalLabels::labelSetsThatNobodyNamesAreNoMatter()
{
    Table table = labelled({{1.0, "Yes"}, {2.0, "No"}}, READSTAT_TYPE_INT32);
    table.columns.front().labelSet.clear();
    const SourceOutcome outcome = readingOf(table, kDta);
    QCOMPARE(fieldsOf(outcome), QStringList{"X: INTEGER 11.0"});
    QCOMPARE(remarksOf(outcome), QStringList());
}

void tst_StatisticalLabels::labelsWithoutTextAreCodesAlone_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::addColumn<Table>("table");
    QTest::addColumn<QString>("expected");
    QTest::newRow("sav") << kSav << labelled({{1.0, ""}, {2.0, "No"}})
                         << "X: INTEGER 3.0 from 1 to 2 {1|2 No}";
    QTest::newRow("dta") << kDta << labelled({{1.0, ""}, {2.0, "No"}}, READSTAT_TYPE_INT32)
                         << "X: INTEGER 11.0 from 1 to 2 {1|2 No}";
    QTest::newRow("only blanks") << kSav << labelled({{1.0, "  "}, {2.0, "No"}})
                                 << "X: INTEGER 3.0 from 1 to 2 {1|2 No}";
}

void tst_StatisticalLabels::labelsWithoutTextAreCodesAlone()
{
    QFETCH(FileForm, form);
    QFETCH(Table, table);
    QTEST(fieldsOf(readingOf(table, form)).join(QLatin1Char(';')), "expected");
}

void tst_StatisticalLabels::nullLabelsOfFieldsAreEmpty_data()
{
    QTest::addColumn<FileForm>("form");
    for (const FileKind kind :
        {FileKind::Sav, FileKind::Por, FileKind::Dta, FileKind::Sas7bdat, FileKind::Xpt})
        QTest::newRow(qPrintable(endingOf(kind))) << FileForm{kind};
}

void tst_StatisticalLabels::nullLabelsOfFieldsAreEmpty()
{
    QFETCH(FileForm, form);
    const SourceOutcome outcome = readingOf(Table{{}, {{"X", READSTAT_TYPE_DOUBLE, 8}}}, form);
    QVERIFY2(outcome.result, qPrintable(problemOf(outcome)));
    QCOMPARE(outcome.result->fields.size(), size_t(1));
    QCOMPARE(outcome.result->fields.front()->label, QString());
    QCOMPARE(outcome.result->title, QString());
    QCOMPARE(remarksOf(outcome), QStringList());
}

void tst_StatisticalLabels::categories_data()
{
    QTest::addColumn<Table>("table");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("remarks");
    const QStringList none;
    QTest::newRow("whole numbers have no .0")
        << labelled({{10.0, "Ten"}, {100000.0, "Many"}, {1e9, "Most"}})
        << "INTEGER 3.0 from 10 to 1000000000 {10 Ten|100000 Many|1000000000 Most}" << none;
    QTest::newRow("negative codes") << labelled({{-2.0, "Refused"}, {-1.0, "Unknown"}, {0.0, "None"}})
                                    << "INTEGER 3.0 from -2 to 0 {-2 Refused|-1 Unknown|0 None}" << none;
    QTest::newRow("codes with decimals") << labelled({{0.5, "Half"}, {1.25, "More"}})
                                         << "INTEGER 3.0 from 0 to 2 {0.5 Half|1.25 More}" << none;
    QTest::newRow("order of the source is kept")
        << labelled({{3.0, "C"}, {1.0, "A"}, {2.0, "B"}}) << "INTEGER 3.0 from 1 to 3 {3 C|1 A|2 B}" << none;
    QTest::newRow("labels keep their blanks inside")
        << labelled({{1.0, "Rural,  far away"}, {2.0, "Urban"}})
        << "INTEGER 3.0 from 1 to 2 {1 Rural,  far away|2 Urban}" << none;
    QTest::newRow("accents") << labelled({{1.0, "Ñandé"}, {2.0, "São Brás"}})
                             << "INTEGER 3.0 from 1 to 2 {1 Ñandé|2 São Brás}" << none;
    QTest::newRow("text codes") << labelledText({{text("M"), "Male"}, {text("F"), "Female"}})
                                << "STRING 8.0 {M Male|F Female}" << none;
    QTest::newRow("text codes lose the blanks that fill them")
        << labelledText({{text("M  "), "Male"}, {text("F"), "Female"}}) << "STRING 8.0 {M Male|F Female}"
        << none;
    QTest::newRow("text codes that look like numbers keep their zeroes")
        << labelledText({{text("01"), "North"}, {text("02"), "South"}}) << "STRING 8.0 {01 North|02 South}"
        << none;
    QTest::newRow("tabs in labels become blanks")
        << labelled({{1.0, "Rural\tfar"}, {2.0, "Urban"}}) << "INTEGER 3.0 from 1 to 2 {1 Rural far|2 Urban}"
        << QStringList{"X: tabs and line ends in 1 labels became blanks"};
    QTest::newRow("line ends in labels become blanks")
        << labelled({{1.0, "Rural\nfar"}, {2.0, "Urban\r\narea"}})
        << "INTEGER 3.0 from 1 to 2 {1 Rural far|2 Urban area}"
        << QStringList{"X: tabs and line ends in 2 labels became blanks"};
    QTest::newRow("text codes with blanks are left out and named")
        << labelledText({{text("N W"), "North-west"}, {text("S"), "South"}}) << "STRING 8.0 {S South}"
        << QStringList{"X: 1 codes are left out, because a category's code cannot hold a blank: \"N W\""};
    QTest::newRow("codes beyond the whole numbers give no range")
        << labelled({{1.0, "One"}, {3e9, "Many"}}) << "INTEGER 3.0 {1 One|3000000000 Many}"
        << QStringList{"X: the range from 1 to 3000000000 is left out: a field carries whole numbers from "
                       "-2147483648 to 2147483647"};
    QTest::newRow("empty text codes are left out and told")
        << labelledText({{text(""), "Unknown"}, {text("S"), "South"}}) << "STRING 8.0 {S South}"
        << QStringList{"X: 1 empty codes are left out with their labels, because a category needs a code"};
    QTest::newRow("text codes with tabs are left out and named")
        << labelledText({{text("N\tW"), "North-west"}, {text("S"), "South"}}) << "STRING 8.0 {S South}"
        << QStringList{"X: 1 codes are left out, because a category's code cannot hold a blank: \"N W\""};
}

void tst_StatisticalLabels::categories()
{
    QFETCH(Table, table);
    QFETCH(QStringList, remarks);
    const LogCatcher log;
    const SourceOutcome outcome = readingOf(table, kSav);
    QCOMPARE(log.messages(), QStringList());
    QTEST(fieldOf(outcome, QStringLiteral("X")), "expected");
    QCOMPARE(remarksOf(outcome), remarks);
}

void tst_StatisticalLabels::catalogueReadsTheCategoriesBack()
{
    const SourceOutcome outcome = readingOf(
        labelled({{1.0, "Rural,  far away"}, {2.0, ""}, {-3.0, "São Brás"}, {4.0, "Tab\there"}}), kSav);
    QVERIFY2(outcome.result, qPrintable(problemOf(outcome)));
    QList<TDmSourceField *> fields{outcome.result->fields.front().get()};
    DatasetPropertiesFieldsModel catalogue(nullptr, &fields, QStringLiteral("*"));
    QStringList read;
    for (const QJsonValue &category : catalogue.laodDataCategories(fields.first()))
        read << category[QStringLiteral("codigoCategoria")].toString() + QLatin1Char('=')
                + category[QStringLiteral("nombreCategoria")].toString();
    QCOMPARE(read, (QStringList{"1=Rural,  far away", "2=", "-3=São Brás", "4=Tab here"}));
}

void tst_StatisticalLabels::rangeComesFromTheCodes_data()
{
    QTest::addColumn<Table>("table");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one code is no range") << labelled({{1.0, "Yes"}}) << "INTEGER 3.0 {1 Yes}";
    QTest::newRow("two codes are one")
        << labelled({{5.0, "Yes"}, {7.0, "No"}}) << "INTEGER 3.0 from 5 to 7 {5 Yes|7 No}";
    QTest::newRow("bounds are the smallest and the greatest, not the first and the last")
        << labelled({{5.0, "E"}, {10.0, "J"}, {-1.0, "A"}, {9.0, "I"}})
        << "INTEGER 3.0 from -1 to 10 {5 E|10 J|-1 A|9 I}";
    Table withMissing = labelled({{1.0, "Yes"}, {2.0, "No"}, {9.0, "Unknown"}});
    withMissing.columns.front().missing = {{9, 9}};
    QTest::newRow("declared missing codes do not count")
        << withMissing << "INTEGER 3.0 from 1 to 2 missing 9 {1 Yes|2 No|9 Unknown}";
    Table oneLeft = labelled({{1.0, "Count"}, {9.0, "Unknown"}});
    oneLeft.columns.front().missing = {{9, 9}};
    QTest::newRow("one code beside a missing one is no range")
        << oneLeft << "INTEGER 3.0 missing 9 {1 Count|9 Unknown}";
    QTest::newRow("texts have no range")
        << labelledText({{text("1"), "A"}, {text("2"), "B"}}) << "STRING 8.0 {1 A|2 B}";
}

void tst_StatisticalLabels::rangeComesFromTheCodes()
{
    QFETCH(Table, table);
    QTEST(fieldOf(readingOf(table, kSav), QStringLiteral("X")), "expected");
}

void tst_StatisticalLabels::taggedCodesAreLeftOutAndTold_data()
{
    QTest::addColumn<FileForm>("form");
    for (const int version : {113, 114, 117, 118})
        QTest::addRow("dta %d", version) << FileForm{FileKind::Dta, static_cast<uint8_t>(version)};
}

void tst_StatisticalLabels::taggedCodesAreLeftOutAndTold()
{
    QFETCH(FileForm, form);
    const SourceOutcome outcome = readingOf(
        labelled({{1.0, "Yes"}, {2.0, "No"}, {'a', "Refused"}, {'z', "Skipped"}}, READSTAT_TYPE_INT32), form);
    QCOMPARE(fieldsOf(outcome), QStringList{"X: INTEGER 11.0 from 1 to 2 {1 Yes|2 No}"});
    QCOMPARE(remarksOf(outcome),
        QStringList{"X: 2 missing codes are left out with their labels, because a category's code is a "
                    "number or a text: .a, .z"});
}

void tst_StatisticalLabels::longLabelsAreCarriedWhole()
{
    const QByteArray longText(20000, 'x');
    const SourceOutcome outcome =
        readingOf(labelled({{1.0, longText}, {2.0, longText}, {3.0, "C"}}, READSTAT_TYPE_INT32), kDta);
    const QString whole = QString::fromLatin1(longText);
    QCOMPARE(fieldOf(outcome, QStringLiteral("X")),
        QStringLiteral("INTEGER 11.0 from 1 to 3 {1 %1|2 %1|3 C}").arg(whole));
    QCOMPARE(remarksOf(outcome), QStringList());
}

void tst_StatisticalLabels::labelsThatAreNotInTheFileAreTold_data()
{
    QTest::addColumn<int>("version");
    for (const int version : {117, 118, 119})
        QTest::addRow("dta %d", version) << version;
}

void tst_StatisticalLabels::labelsThatAreNotInTheFileAreTold()
{
    QFETCH(int, version);
    Table table = labelled({{1.0, "Yes"}, {2.0, "No"}}, READSTAT_TYPE_INT32);
    table.sets.front().name = "yesno";
    table.columns.front().labelSet = "yesno";
    table.columns.push_back({"Y", READSTAT_TYPE_INT32, 0, "", ""});
    QByteArray bytes = fileOf(table, {FileKind::Dta, static_cast<uint8_t>(version)});
    // The variable comes to name a set that is not the one in the file.
    QCOMPARE(bytes.count("yesno"), 2);
    bytes.replace(bytes.indexOf("yesno"), 5, "gone!");
    const SourceOutcome outcome = readingOf(bytes, QStringLiteral("survey.dta"));
    QCOMPARE(fieldsOf(outcome), (QStringList{"X: INTEGER 11.0", "Y: INTEGER 11.0"}));
    QCOMPARE(remarksOf(outcome), QStringList{"X: the value labels \"gone!\" are not in the file"});
}

QTEST_APPLESS_MAIN(tst_StatisticalLabels)

#include "tst_StatisticalLabels.moc"
