#include "tests/sources/SourceReading.h"

#include <QtTest>

Q_DECLARE_METATYPE(tessel::test::FileForm)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

constexpr FileForm kSav{FileKind::Sav};

/// A table whose texts are the bytes \a text: a title, a label, a value label and a value.
Table tableOf(const QByteArray &text, readstat_type_t type = READSTAT_TYPE_DOUBLE)
{
    return {
        {{"set", type == READSTAT_TYPE_DOUBLE ? type : READSTAT_TYPE_INT32, {{1.0, text}, {2.0, "Other"}}}},
        {{"X", type, 8, text, "", "set"}}, {}, text};
}

/// The title, the label and the categories that were read; or the problem.
QString textsOf(const SourceOutcome &outcome)
{
    if (!outcome.result)
        return problemOf(outcome);
    const TDmSourceField &field = *outcome.result->fields.front();
    return outcome.result->title + QLatin1Char('/') + field.label + QLatin1Char('/')
        + field.categories.section(QLatin1Char('\t'), 0, 0);
}

ReadOptions inEncoding(const char *name)
{
    ReadOptions options;
    options.encoding = QLatin1String(name);
    return options;
}

} // namespace

/// The encodings of the texts: the declared one, another one on demand, and bytes that fit none.
class tst_StatisticalEncodings : public QObject {
    Q_OBJECT

private slots:
    void utf8_data();
    void utf8();
    void declaredEncodingOfSav_data();
    void declaredEncodingOfSav();
    void invalidBytesOfSavAreAProblemThatAnEncodingMends();
    void undeclarableEncodingOfSavCanBeRetried();
    void unknownEncodingIsAProblemOfItsOwn_data();
    void unknownEncodingIsAProblemOfItsOwn();
    void wrongEncodingIsAProblem();
    void otherProblemsOfferNoEncoding();
    void invalidBytesOfDta118AreWindows1252AndTold();
    void oldDtaIsWindows1252_data();
    void oldDtaIsWindows1252();
    void oldDtaInAnotherEncoding();
    void sasInAnotherEncoding();
    void commonEncodingsAreKnownToTheReader_data();
    void commonEncodingsAreKnownToTheReader();
    void namesMayHaveAccents();
};

void tst_StatisticalEncodings::utf8_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::newRow("sav") << kSav;
    QTest::newRow("zsav") << FileForm{FileKind::Zsav};
    QTest::newRow("dta 118") << FileForm{FileKind::Dta, 118};
    QTest::newRow("dta 119") << FileForm{FileKind::Dta, 119};
}

void tst_StatisticalEncodings::utf8()
{
    QFETCH(FileForm, form);
    const SourceOutcome outcome = readingOf(tableOf("Ñandé São Brás 人口"), form);
    QCOMPARE(
        textsOf(outcome), QStringLiteral("Ñandé São Brás 人口/Ñandé São Brás 人口/1 Ñandé São Brás 人口"));
    QCOMPARE(outcome.result->encoding, QStringLiteral("UTF-8"));
}

void tst_StatisticalEncodings::declaredEncodingOfSav_data()
{
    QTest::addColumn<int>("codePage");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QString>("encoding");
    QTest::newRow("Windows, western") << 1252 << QByteArray("A\xF1o \x96") << "Año –"
                                      << "WINDOWS-1252";
    QTest::newRow("Latin-1") << 28591 << QByteArray("A\xF1o") << "Año"
                             << "ISO-8859-1";
    QTest::newRow("DOS, western") << 850 << QByteArray("A\xA4o") << "Año"
                                  << "CP850";
    QTest::newRow("Windows, Cyrillic") << 1251 << QByteArray("\xC3\xEE\xE4") << "Год"
                                       << "WINDOWS-1251";
}

void tst_StatisticalEncodings::declaredEncodingOfSav()
{
    QFETCH(int, codePage);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    const QByteArray sav = withCodePageOfSav(fileOf(tableOf(bytes), kSav), codePage);
    const SourceOutcome outcome = readingOf(sav, QStringLiteral("survey.sav"));
    QCOMPARE(textsOf(outcome), QStringLiteral("%1/%1/1 %1").arg(expected));
    QTEST(outcome.result->encoding.toUpper(), "encoding");
}

void tst_StatisticalEncodings::invalidBytesOfSavAreAProblemThatAnEncodingMends()
{
    const QByteArray sav = fileOf(tableOf("A\xF1o"), kSav);
    const QString name = QStringLiteral("survey.sav");
    const SourceOutcome refused = readingOf(sav, name);
    QCOMPARE(problemOf(refused),
        QStringLiteral(
            "holds texts that are not in the encoding UTF-8, which it declares; choose another one"));
    QVERIFY(refused.canRetryWithEncoding);
    QVERIFY(!refused.isCancelled);

    const SourceOutcome mended = readingOf(sav, name, inEncoding("windows-1252"));
    QCOMPARE(textsOf(mended), QStringLiteral("Año/Año/1 Año"));
    QCOMPARE(mended.result->encoding, QStringLiteral("windows-1252"));
    QVERIFY(!mended.canRetryWithEncoding);
}

void tst_StatisticalEncodings::undeclarableEncodingOfSavCanBeRetried()
{
    const QByteArray sav = withCodePageOfSav(fileOf(tableOf("A\xF1o"), kSav), 12345);
    const SourceOutcome refused = readingOf(sav, QStringLiteral("survey.sav"));
    QCOMPARE(problemOf(refused),
        QStringLiteral("holds texts that are not in the encoding that it declares; choose the encoding"));
    QVERIFY(refused.canRetryWithEncoding);
    QCOMPARE(textsOf(readingOf(sav, QStringLiteral("survey.sav"), inEncoding("windows-1252"))),
        QStringLiteral("Año/Año/1 Año"));
}

void tst_StatisticalEncodings::unknownEncodingIsAProblemOfItsOwn_data()
{
    QTest::addColumn<FileForm>("form");
    for (const FileKind kind :
        {FileKind::Sav, FileKind::Por, FileKind::Dta, FileKind::Sas7bdat, FileKind::Xpt})
        QTest::newRow(qPrintable(endingOf(kind))) << FileForm{kind};
}

void tst_StatisticalEncodings::unknownEncodingIsAProblemOfItsOwn()
{
    QFETCH(FileForm, form);
    const SourceOutcome outcome = readingOf(tableOf("Year"), form, inEncoding("windows-125"));
    QCOMPARE(problemOf(outcome),
        QStringLiteral("cannot be read in the encoding windows-125, which is not known; choose another one"));
    QVERIFY(outcome.canRetryWithEncoding);
}

void tst_StatisticalEncodings::wrongEncodingIsAProblem()
{
    const SourceOutcome outcome =
        readingOf(fileOf(tableOf("A\xF1o"), kSav), QStringLiteral("survey.sav"), inEncoding("UTF-8"));
    QCOMPARE(problemOf(outcome),
        QStringLiteral("holds texts that are not in the encoding UTF-8; choose another one"));
    QVERIFY(outcome.canRetryWithEncoding);
}

void tst_StatisticalEncodings::otherProblemsOfferNoEncoding()
{
    const QByteArray sav = fileOf(tableOf("Year"), kSav);
    const SourceOutcome outcome = readingOf(sav.left(sav.size() / 2), QStringLiteral("survey.sav"));
    QVERIFY(!outcome.result);
    QVERIFY(!outcome.canRetryWithEncoding);
}

void tst_StatisticalEncodings::invalidBytesOfDta118AreWindows1252AndTold()
{
    for (const uint8_t version : {uint8_t(118), uint8_t(119)}) {
        const SourceOutcome outcome =
            readingOf(tableOf("A\xF1o", READSTAT_TYPE_INT16), {FileKind::Dta, version});
        QCOMPARE(textsOf(outcome), QStringLiteral("Año/Año/1 Año"));
        QCOMPARE(remarksOf(outcome),
            (QStringList{"The title is not valid UTF-8 and was read as Windows-1252.",
                "Texts of 1 fields are not valid UTF-8 and were read as Windows-1252: X."}));
        QVERIFY(!outcome.canRetryWithEncoding);
    }
}

void tst_StatisticalEncodings::oldDtaIsWindows1252_data()
{
    QTest::addColumn<FileForm>("form");
    for (const int version : {105, 110, 113, 114, 115, 117})
        QTest::addRow("dta %d", version) << FileForm{FileKind::Dta, static_cast<uint8_t>(version)};
}

void tst_StatisticalEncodings::oldDtaIsWindows1252()
{
    QFETCH(FileForm, form);
    const SourceOutcome outcome = readingOf(tableOf("A\xF1o", READSTAT_TYPE_INT16), form);
    QCOMPARE(textsOf(outcome), QStringLiteral("Año/Año/1 Año"));
    QCOMPARE(outcome.result->encoding.toLower(), QStringLiteral("windows-1252"));
    QCOMPARE(remarksOf(outcome), QStringList());
}

void tst_StatisticalEncodings::oldDtaInAnotherEncoding()
{
    const Table table = tableOf("\xC3\xEE\xE4", READSTAT_TYPE_INT16);
    const SourceOutcome outcome = readingOf(table, {FileKind::Dta, 114}, inEncoding("windows-1251"));
    QCOMPARE(textsOf(outcome), QStringLiteral("Год/Год/1 Год"));
    QCOMPARE(outcome.result->encoding, QStringLiteral("windows-1251"));
}

void tst_StatisticalEncodings::sasInAnotherEncoding()
{
    const Table table{{}, {{"X", READSTAT_TYPE_DOUBLE, 8, "A\xF1o"}}};
    for (const FileKind kind : {FileKind::Sas7bdat, FileKind::Xpt}) {
        const SourceOutcome outcome = readingOf(table, {kind}, inEncoding("windows-1252"));
        QVERIFY2(outcome.result, qPrintable(problemOf(outcome)));
        QCOMPARE(outcome.result->fields.front()->label, QStringLiteral("Año"));
    }
}

void tst_StatisticalEncodings::commonEncodingsAreKnownToTheReader_data()
{
    QTest::addColumn<QString>("encoding");
    QVERIFY(commonEncodings().size() >= 5);
    for (const QString &encoding : commonEncodings())
        QTest::newRow(qPrintable(encoding)) << encoding;
}

void tst_StatisticalEncodings::commonEncodingsAreKnownToTheReader()
{
    QFETCH(QString, encoding);
    ReadOptions options;
    options.encoding = encoding;
    const SourceOutcome outcome = readingOf(tableOf("Year"), kSav, options);
    QCOMPARE(textsOf(outcome), QStringLiteral("Year/Year/1 Year"));
    QCOMPARE(outcome.result->encoding, encoding);
}

void tst_StatisticalEncodings::namesMayHaveAccents()
{
    const Table table{
        {}, {{"AÑO_DE_CONSTRUCCIÓN", READSTAT_TYPE_DOUBLE, 8}, {"edad", READSTAT_TYPE_DOUBLE, 8}}};
    for (const FileKind kind : {FileKind::Sav, FileKind::Dta}) {
        const SourceOutcome outcome = readingOf(table, {kind});
        QVERIFY2(outcome.result, qPrintable(problemOf(outcome)));
        QCOMPARE(outcome.result->fields.front()->name, QStringLiteral("AÑO_DE_CONSTRUCCIÓN"));
    }
}

QTEST_APPLESS_MAIN(tst_StatisticalEncodings)

#include "tst_StatisticalEncodings.moc"
