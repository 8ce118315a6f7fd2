#include "sources/SourceReader.h"

#include "sources/SourceKind.h"
#include "sources/StatisticalReader.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <sys/stat.h>

using namespace tessel::sources;

namespace {

const char kText[] = "AGE;SEX\n1;2\n";
const char kXpt[] = "HEADER RECORD*******LIBRARY HEADER RECORD!!!!!!!000000000000000000000000000000  ";

QByteArray sasMark(char kind) { return QByteArray(12, '\0') + "\xc2\xea\x81" + kind + QByteArray(300, '\0'); }

} // namespace

class tst_SourceReader : public QObject {
    Q_OBJECT

private slots:
    void init() { folder = std::make_unique<QTemporaryDir>(); }

    void refused_data();
    void refused();
    void cutOffFilesAreToldApart_data();
    void cutOffFilesAreToldApart();
    void folderIsRefused();
    void missingFileIsRefused();
    void pipeIsRefusedAtOnce();
    void contentGoesBeforeAnUnknownEnding();
    void textIsReadAsCsv();
    void unknownEncodingIsToldFirst();
    void endingsAreThoseOfReadableFiles();
    void commonEncodingsAreKnownToBothReaders();

private:
    QString put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(folder->filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("fixture: %s cannot be written", qPrintable(name));
        return file.fileName();
    }

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_SourceReader::refused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const QByteArray stata("r\2\1\0\5\0", 6);
    const QByteArray encrypted("\x1c\0\0\0\0\0\0\0ENCRYPTEDSAV\x15\0", 22);
    const QString catalogue = QStringLiteral("is a SAS catalogue, which holds value labels and no fields; "
                                             "open the .sas7bdat file that it belongs to");
    const QString unknown = QStringLiteral("is of a kind that cannot be read; expected a file whose name "
                                           "ends in .csv, .tsv, .txt, .sav, .zsav, .por, .dta, "
                                           ".sas7bdat, .xpt");
    QTest::newRow("stata.sav")
        << stata << "is a Stata file by its content, though its name ends in .sav; rename it to end in .dta";
    QTest::newRow("stata.CSV")
        << stata << "is a Stata file by its content, though its name ends in .CSV; rename it to end in .dta";
    QTest::newRow("spss.dta") << QByteArray(
        "$FL2") << "is an SPSS file by its content, though its name ends in .dta; rename it to end in .sav";
    QTest::newRow("portable.sav")
        << QByteArray("ASCII SPSS PORT FILE")
        << "is an SPSS portable file by its content, though its name ends in .sav; rename it to end in .por";
    QTest::newRow("sas.xpt")
        << sasMark('\x60')
        << "is a SAS file by its content, though its name ends in .xpt; rename it to end in .sas7bdat";
    QTest::newRow("transport.sas7bcat") << QByteArray(kXpt)
                                        << "is a SAS transport file by its content, though its name ends in "
                                           ".sas7bcat; rename it to end in .xpt";
    QTest::newRow("text.sav") << QByteArray(
        kText) << "is a text file by its content, though its name ends in .sav; rename it to end in .csv";
    QTest::newRow("zeroes.dta") << QByteArray(500, '\0')
                                << "is not a Stata file by its content, though its name ends in .dta; it is "
                                   "damaged or of another kind";
    QTest::newRow("empty.sav") << QByteArray() << "is empty; expected a file with data";
    QTest::newRow("empty.csv") << QByteArray() << "is empty; expected a file with data";
    QTest::newRow("encrypted.sav") << encrypted << "is encrypted; save it without a password";
    QTest::newRow("encrypted") << encrypted << "is encrypted; save it without a password";
    QTest::newRow("labels.sas7bcat") << sasMark('\x63') << catalogue;
    QTest::newRow("labels.sas7bdat") << sasMark('\x63') << catalogue;
    QTest::newRow("text.sas7bcat") << QByteArray(kText) << catalogue;
    QTest::newRow("sheet.xlsx") << QByteArray("PK\3\4\24\0", 6) << unknown;
    QTest::newRow("text") << QByteArray(kText) << unknown;
}

void tst_SourceReader::refused()
{
    QFETCH(QByteArray, bytes);
    const SourceOutcome outcome = readSource(put(QString::fromLatin1(QTest::currentDataTag()), bytes));
    QVERIFY(!outcome.result);
    QTEST(outcome.problem.message, "message");
    QVERIFY(!outcome.canRetryWithEncoding);
    QVERIFY(!outcome.isCancelled);
}

void tst_SourceReader::cutOffFilesAreToldApart_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");
    const QString tooEarly =
        QStringLiteral("ends too early: it was cut off or is damaged; get the whole file");
    QTest::newRow("a.sav") << QByteArray("$FL2@(#) SPSS") << tooEarly;
    QTest::newRow("a.por") << QByteArray("ASCII SPSS PORT FILE") << tooEarly;
    QTest::newRow("a.dta") << QByteArray("<stata_dta><header>")
                           << "ends too early: it was cut off; get the whole file";
    QTest::newRow("old.dta") << QByteArray("r\2\1\0\5\0", 6) << tooEarly;
    QTest::newRow("a.xpt") << QByteArray(kXpt) << tooEarly;
    QTest::newRow("part.xpt") << QByteArray(kXpt).chopped(1)
                              << "ends too early: it was cut off; get the whole file";
    QTest::newRow("a.sas7bdat") << sasMark('\x60').left(100) << tooEarly;
}

void tst_SourceReader::cutOffFilesAreToldApart()
{
    QFETCH(QByteArray, bytes);
    QTEST(readSource(put(QString::fromLatin1(QTest::currentDataTag()), bytes)).problem.message, "message");
}

void tst_SourceReader::folderIsRefused()
{
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("a.sav")));
    const QString name = folder->filePath(QStringLiteral("a.sav"));
    const QString message = QStringLiteral("cannot be read: it is a folder; name a file");
    QCOMPARE(readSource(name).problem.message, message);
    QCOMPARE(readStatistical(name, StatisticalFormat::Sav).problem.message, message);
}

void tst_SourceReader::missingFileIsRefused()
{
    const QString name = folder->filePath(QStringLiteral("a.sav"));
    const QString message = QStringLiteral("cannot be read: No such file or directory");
    QCOMPARE(readSource(name).problem.message, message);
    QCOMPARE(readStatistical(name, StatisticalFormat::Sav).problem.message, message);
}

void tst_SourceReader::pipeIsRefusedAtOnce()
{
    const QString name = folder->filePath(QStringLiteral("a.sav"));
    QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
    QCOMPARE(readSource(name).problem.message,
        QStringLiteral("cannot be read: it is no regular file; save its content in a file and name that"));
}

void tst_SourceReader::contentGoesBeforeAnUnknownEnding()
{
    for (const QString &name : {QStringLiteral("a.bak"), QStringLiteral("a")})
        QCOMPARE(readSource(put(name, "<stata_dta><header>")).problem.message,
            QStringLiteral("ends too early: it was cut off; get the whole file"));
}

void tst_SourceReader::textIsReadAsCsv()
{
    ReadOptions options;
    options.encoding = QStringLiteral("no such encoding");
    // The reader of texts has its own word on encodings, on bytes that no text has as well.
    const QString whole = readSource(put(QStringLiteral("a.csv"), kText), options).problem.message;
    const QString odd =
        readSource(put(QStringLiteral("odd.txt"), QByteArray("a\0b", 3)), options).problem.message;
    QVERIFY2(!whole.contains(QLatin1String("by its content")), qPrintable(whole));
    QVERIFY2(!odd.contains(QLatin1String("by its content")), qPrintable(odd));
}

void tst_SourceReader::unknownEncodingIsToldFirst()
{
    ReadOptions options;
    options.encoding = QStringLiteral("windows-125");
    const SourceOutcome outcome = readSource(put(QStringLiteral("a.sav"), "$FL2"), options);
    QCOMPARE(outcome.problem.message,
        QStringLiteral("cannot be read in the encoding windows-125, which is not known; choose another one"));
    QVERIFY(outcome.canRetryWithEncoding);
}

void tst_SourceReader::endingsAreThoseOfReadableFiles()
{
    QCOMPARE(
        sourceEndings(), (QStringList{"csv", "tsv", "txt", "sav", "zsav", "por", "dta", "sas7bdat", "xpt"}));
    const QStringList endings = sourceEndings();
    for (const QString &ending : endings)
        QVERIFY2(sourceKindOfEnding(QLatin1String("a.") + ending) != SourceKind::Unknown, qPrintable(ending));
}

void tst_SourceReader::commonEncodingsAreKnownToBothReaders()
{
    const QStringList encodings = commonEncodings();
    QCOMPARE(encodings.first(), QStringLiteral("UTF-8"));
    QCOMPARE(encodings.at(1), QStringLiteral("WINDOWS-1252"));
    for (const QString &encoding : encodings) {
        QVERIFY2(QTextCodec::codecForName(encoding.toLatin1()), qPrintable(encoding));
        ReadOptions options;
        options.encoding = encoding;
        const QString message = readSource(put(QStringLiteral("a.sav"), "$FL2"), options).problem.message;
        QVERIFY2(message.startsWith(QLatin1String("ends too early")), qPrintable(message));
    }
}

QTEST_APPLESS_MAIN(tst_SourceReader)

#include "tst_SourceReader.moc"
