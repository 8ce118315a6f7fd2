#include "tests/sources/SourceReading.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace tessel::sources;
using namespace tessel::test;

namespace {

/// A data set whose columns name formats of the people who made it.
Table dataSet()
{
    return {{},
        {{"SEX", READSTAT_TYPE_DOUBLE, 8, "Sex", "SEXFMT"},
            {"AREA", READSTAT_TYPE_STRING, 2, "Area", "$AREAFMT"},
            {"AGE", READSTAT_TYPE_DOUBLE, 8, "Age", "F3"}}};
}

/// The catalogue of formats that belongs to it, as far as a catalogue of one format can.
Table catalogue(const char *male = "Male")
{
    return {{{"SEXFMT", READSTAT_TYPE_DOUBLE, {{1.0, male}, {2.0, "Female"}}}}, {}};
}

/// A catalogue that breaks off behind its first format.
Table damagedCatalogue()
{
    Table table = catalogue();
    table.sets.push_back({"OTHER", READSTAT_TYPE_DOUBLE, {{1.0, "One"}, {2.0, "Two"}}});
    return table;
}

const char kSex[] = "SEX: INTEGER 8.0 from 1 to 2 {1 Male|2 Female}";

} // namespace

/// The labels of a SAS data set, which lie in a file of their own.
class tst_SasCatalogue : public QObject {
    Q_OBJECT

private slots:
    void init();
    void labelsComeFromTheCatalogueBesideIt_data();
    void labelsComeFromTheCatalogueBesideIt();
    void labelsComeFromTheNamedCatalogue();
    void namedCatalogueGoesBeforeTheOneBeside();
    void nothingBesideIsTold();
    void nothingIsToldWhenNoFormatNeedsACatalogue();
    void formatThatTheCatalogueDoesNotHoldIsTold();
    void namedCatalogueThatIsMissingIsAProblem();
    void namedCatalogueThatIsNoneIsAProblem_data();
    void namedCatalogueThatIsNoneIsAProblem();
    void damagedCatalogueBesideGivesNoLabels();
    void catalogueInAnotherEncodingIsTold();
    void labelsOfTexts();
    void everyPrefixOfTheCatalogueIsRefusedOrWhole();

private:
    /// Puts \a bytes into the file \a name of the test's folder; returns where.
    QString put(const QString &name, const QByteArray &bytes);

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_SasCatalogue::init() { folder = std::make_unique<QTemporaryDir>(); }

QString tst_SasCatalogue::put(const QString &name, const QByteArray &bytes)
{
    QFile file(folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("fixture: %s cannot be written", qPrintable(name));
    return file.fileName();
}

void tst_SasCatalogue::labelsComeFromTheCatalogueBesideIt_data()
{
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("labels");
    QTest::addColumn<bool>("is64bit");
    QTest::newRow("small letters") << "survey.sas7bdat"
                                   << "survey.sas7bcat" << true;
    QTest::newRow("small letters, 32 bit") << "survey.sas7bdat"
                                           << "survey.sas7bcat" << false;
    QTest::newRow("capitals") << "SURVEY.SAS7BDAT"
                              << "SURVEY.SAS7BCAT" << true;
    QTest::newRow("capitals for one ending only") << "survey.sas7bdat"
                                                  << "survey.SAS7BCAT" << true;
    QTest::newRow("dots in the name") << "survey.2023.sas7bdat"
                                      << "survey.2023.sas7bcat" << true;
}

void tst_SasCatalogue::labelsComeFromTheCatalogueBesideIt()
{
    QFETCH(QString, data);
    QFETCH(QString, labels);
    QFETCH(bool, is64bit);
    put(labels, fileOf(catalogue(), {FileKind::Sas7bcat, 0, READSTAT_COMPRESS_NONE, is64bit}));
    const QString file =
        put(data, fileOf(dataSet(), {FileKind::Sas7bdat, 0, READSTAT_COMPRESS_NONE, is64bit}));
    QCOMPARE(fieldsOf(readSource(file)).first(), QString(kSex));
}

void tst_SasCatalogue::labelsComeFromTheNamedCatalogue()
{
    ReadOptions options;
    options.catalogue = put(QStringLiteral("formats.sas7bcat"), fileOf(catalogue(), {FileKind::Sas7bcat}));
    const QString file = put(QStringLiteral("survey.sas7bdat"), fileOf(dataSet(), {FileKind::Sas7bdat}));
    QCOMPARE(fieldsOf(readSource(file, options)).first(), QString(kSex));
}

void tst_SasCatalogue::namedCatalogueGoesBeforeTheOneBeside()
{
    put(QStringLiteral("survey.sas7bcat"), fileOf(catalogue("Wrong"), {FileKind::Sas7bcat}));
    labelsComeFromTheNamedCatalogue();
}

void tst_SasCatalogue::nothingBesideIsTold()
{
    const SourceOutcome outcome =
        readSource(put(QStringLiteral("survey.sas7bdat"), fileOf(dataSet(), {FileKind::Sas7bdat})));
    QCOMPARE(fieldsOf(outcome), (QStringList{"SEX: INTEGER 8.0", "AREA: STRING 2.0", "AGE: INTEGER 3.0"}));
    QCOMPARE(remarksOf(outcome),
        QStringList{"The value labels of 2 formats stand in a catalogue (.sas7bcat) that was not found; name "
                    "it, or put "
                    "it beside the file under the same name: SEXFMT, $AREAFMT."});
}

void tst_SasCatalogue::nothingIsToldWhenNoFormatNeedsACatalogue()
{
    const Table table{{},
        {{"AGE", READSTAT_TYPE_DOUBLE, 8, "", "F3"}, {"INCOME", READSTAT_TYPE_DOUBLE, 8, "", "COMMA12.2"},
            {"RATE", READSTAT_TYPE_DOUBLE, 8, "", "BEST12."},
            {"NAME", READSTAT_TYPE_STRING, 8, "", "$CHAR8."}, {"NONE", READSTAT_TYPE_DOUBLE, 8}}};
    QCOMPARE(remarksOf(readingOf(table, {FileKind::Sas7bdat})), QStringList());
}

void tst_SasCatalogue::formatThatTheCatalogueDoesNotHoldIsTold()
{
    put(QStringLiteral("survey.sas7bcat"), fileOf(catalogue(), {FileKind::Sas7bcat}));
    const SourceOutcome outcome =
        readSource(put(QStringLiteral("survey.sas7bdat"), fileOf(dataSet(), {FileKind::Sas7bdat})));
    QCOMPARE(remarksOf(outcome),
        QStringList{"AREA: the value labels of the format $AREAFMT are not in the catalogue"});
}

void tst_SasCatalogue::namedCatalogueThatIsMissingIsAProblem()
{
    ReadOptions options;
    options.catalogue = folder->filePath(QStringLiteral("none.sas7bcat"));
    const QString file = put(QStringLiteral("survey.sas7bdat"), fileOf(dataSet(), {FileKind::Sas7bdat}));
    QCOMPARE(problemOf(readSource(file, options)),
        QStringLiteral("its catalogue %1 cannot be read: No such file or directory").arg(options.catalogue));
}

void tst_SasCatalogue::namedCatalogueThatIsNoneIsAProblem_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    const QString isNone = QStringLiteral("its catalogue %1 is no SAS catalogue by its content");
    QTest::newRow("empty") << QByteArray() << "its catalogue %1 is empty; expected a file with data";
    QTest::newRow("text") << QByteArray("code,label\n1,Male\n") << isNone;
    QTest::newRow("a data set") << fileOf(dataSet(), {FileKind::Sas7bdat}) << isNone;
    QTest::newRow("a Stata file") << fileOf(dataSet(), {FileKind::Dta}) << isNone;
    QTest::newRow("damaged") << fileOf(damagedCatalogue(), {FileKind::Sas7bcat})
                             << "its catalogue %1 is damaged and cannot be read";
}

void tst_SasCatalogue::namedCatalogueThatIsNoneIsAProblem()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    ReadOptions options;
    options.catalogue = put(QStringLiteral("formats.sas7bcat"), bytes);
    const QString file = put(QStringLiteral("survey.sas7bdat"), fileOf(dataSet(), {FileKind::Sas7bdat}));
    QCOMPARE(problemOf(readSource(file, options)), expected.arg(options.catalogue));
}

void tst_SasCatalogue::damagedCatalogueBesideGivesNoLabels()
{
    put(QStringLiteral("survey.sas7bcat"), fileOf(damagedCatalogue(), {FileKind::Sas7bcat}));
    const SourceOutcome outcome =
        readSource(put(QStringLiteral("survey.sas7bdat"), fileOf(dataSet(), {FileKind::Sas7bdat})));
    QCOMPARE(fieldsOf(outcome), (QStringList{"SEX: INTEGER 8.0", "AREA: STRING 2.0", "AGE: INTEGER 3.0"}));
    QCOMPARE(remarksOf(outcome),
        QStringList{
            "There are no value labels: the catalogue survey.sas7bcat is damaged and cannot be read."});
}

void tst_SasCatalogue::catalogueInAnotherEncodingIsTold()
{
    const QString labels =
        put(QStringLiteral("survey.sas7bcat"), fileOf(catalogue("Var\xf3n"), {FileKind::Sas7bcat}));
    const QString file = put(QStringLiteral("survey.sas7bdat"), fileOf(dataSet(), {FileKind::Sas7bdat}));
    ReadOptions options;
    options.encoding = QStringLiteral("US-ASCII");
    const QString fault =
        QStringLiteral("holds texts that are not in the encoding US-ASCII; choose another one");
    QCOMPARE(remarksOf(readSource(file, options)),
        QStringList(
            QStringLiteral("There are no value labels: the catalogue survey.sas7bcat %1.").arg(fault)));
    options.catalogue = labels;
    QCOMPARE(problemOf(readSource(file, options)), QStringLiteral("its catalogue %1 %2").arg(labels, fault));
    options.encoding = QStringLiteral("ISO-8859-1");
    QCOMPARE(fieldsOf(readSource(file, options)).first(),
        QString::fromUtf8("SEX: INTEGER 8.0 from 1 to 2 {1 Varón|2 Female}"));
}

void tst_SasCatalogue::labelsOfTexts()
{
    const Table table{
        {{"$AREAFMT", READSTAT_TYPE_STRING, {{QByteArray("U"), "Urban"}, {QByteArray("R"), "Rural"}}}}, {}};
    put(QStringLiteral("survey.sas7bcat"), fileOf(table, {FileKind::Sas7bcat}));
    const SourceOutcome outcome =
        readSource(put(QStringLiteral("survey.sas7bdat"), fileOf(dataSet(), {FileKind::Sas7bdat})));
    QCOMPARE(fieldOf(outcome, QStringLiteral("AREA")), QStringLiteral("STRING 2.0 {U Urban|R Rural}"));
}

void tst_SasCatalogue::everyPrefixOfTheCatalogueIsRefusedOrWhole()
{
    const QByteArray labels = fileOf(catalogue(), {FileKind::Sas7bcat});
    const QString file = put(QStringLiteral("survey.sas7bdat"), fileOf(dataSet(), {FileKind::Sas7bdat}));
    ReadOptions options;
    options.catalogue = put(QStringLiteral("formats.sas7bcat"), labels);
    const QStringList whole = allOf(readSource(file, options));
    QVERIFY(whole.size() >= 4);
    QFile shrinking(options.catalogue);
    QStringList wrong;
    for (int length = labels.size() - 1; length >= 0; --length) {
        QVERIFY(shrinking.resize(length));
        const SourceOutcome outcome = readSource(file, options);
        if (outcome.result ? allOf(outcome) != whole : outcome.problem.message.isEmpty())
            wrong << QString::number(length);
    }
    QCOMPARE(wrong.join(QLatin1Char(' ')), QString());
}

QTEST_APPLESS_MAIN(tst_SasCatalogue)

#include "tst_SasCatalogue.moc"
