#include "tests/sources/SourceReading.h"

#include <QFile>
#include <QtEndian>
#include <QtTest>

Q_DECLARE_METATYPE(tessel::test::FileForm)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

constexpr FileForm kSav{FileKind::Sav};
constexpr FileForm kDta{FileKind::Dta};

ReadOptions withRows(qint64 rows)
{
    ReadOptions options;
    options.rows = rows;
    return options;
}

/// How many bytes this process has read, from files and elsewhere.
qint64 bytesReadSoFar()
{
    QFile file(QStringLiteral("/proc/self/io"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readLine().mid(int(qstrlen("rchar: "))).trimmed().toLongLong();
}

} // namespace

/// Files of which no records are wanted: their records do not matter, however many they are and whatever they
/// hold.
class tst_StatisticalMetadataOnly : public QObject {
    Q_OBJECT

private slots:
    void recordsAreNotReadUnlessAskedFor();
    void recordsAreNotTouchedUnlessAskedFor_data();
    void recordsAreNotTouchedUnlessAskedFor();
    void twoMillionDeclaredRecordsAreNotSearchedFor();
    void damagedDataIsAProblemOnlyWhenRead();
    void noProgressWithoutRecords();
};

void tst_StatisticalMetadataOnly::recordsAreNotReadUnlessAskedFor()
{
    const SourceOutcome outcome = readingOf(countedRecords(3), kSav);
    QCOMPARE(fieldsOf(outcome), QStringList{"X: INTEGER 8.0"});
    QCOMPARE(outcome.result->rows, qint64(3));
    QCOMPARE(outcome.result->rowsRead, qint64(0));
    QCOMPARE(remarksOf(outcome), QStringList());
}

void tst_StatisticalMetadataOnly::recordsAreNotTouchedUnlessAskedFor_data()
{
    QTest::addColumn<FileForm>("form");
    QTest::addColumn<int>("percent");
    QTest::newRow("sav") << kSav << 10;
    QTest::newRow("zsav") << FileForm{FileKind::Zsav} << 50;
    QTest::newRow("por") << FileForm{FileKind::Por} << 10;
    QTest::newRow("dta 114") << FileForm{FileKind::Dta, 114} << 10;
    QTest::newRow("dta 118") << kDta << 10;
    // Its pages may hold either: each is read, but once.
    QTest::newRow("sas7bdat") << FileForm{FileKind::Sas7bdat} << 110;
    // The first 64 MiB are searched for the beginning of another data set, which nothing else tells.
    QTest::newRow("xpt 5") << FileForm{FileKind::Xpt, 5} << 110;
}

void tst_StatisticalMetadataOnly::recordsAreNotTouchedUnlessAskedFor()
{
    QFETCH(FileForm, form);
    QFETCH(int, percent);
    const QByteArray bytes = fileOf(countedRecords(100000), form);
    const qint64 before = bytesReadSoFar();
    const SourceOutcome outcome = readingOf(bytes, QStringLiteral("survey.") + endingOf(form.kind));
    const qint64 read = bytesReadSoFar() - before;
    QCOMPARE(problemOf(outcome), QStringLiteral("read"));
    QVERIFY2(read <= qint64(bytes.size()) * percent / 100,
        qPrintable(QStringLiteral("%1 of %2 bytes").arg(read).arg(bytes.size())));
}

void tst_StatisticalMetadataOnly::twoMillionDeclaredRecordsAreNotSearchedFor()
{
    // The head of a file says that there are two million records; there is none. Who looks for them fails.
    QByteArray bytes = fileOf(countedRecords(0), kSav);
    constexpr int placeOfTheNumber = 80;
    qToLittleEndian<qint32>(2000000, bytes.data() + placeOfTheNumber);
    const SourceOutcome outcome = readingOf(bytes, QStringLiteral("survey.sav"));
    QCOMPARE(fieldsOf(outcome), QStringList{"X: INTEGER 8.0"});
    QCOMPARE(outcome.result->rows, qint64(2000000));
    QCOMPARE(problemOf(readingOf(bytes, QStringLiteral("survey.sav"), withRows(1))),
        QStringLiteral("ends too early: it was cut off or is damaged; get the whole file"));
}

void tst_StatisticalMetadataOnly::damagedDataIsAProblemOnlyWhenRead()
{
    const QByteArray whole = fileOf(countedRecords(1000), kSav);
    const QByteArray damaged = whole.left(whole.size() - 4000);
    const QString name = QStringLiteral("survey.sav");
    QCOMPARE(allOf(readingOf(damaged, name)), allOf(readingOf(whole, name)));
    QCOMPARE(problemOf(readingOf(damaged, name, withRows(1000))),
        QStringLiteral("ends too early: it was cut off or is damaged; get the whole file"));
    // The damage lies behind the records that are looked at.
    QCOMPARE(allOf(readingOf(damaged, name, withRows(100))), allOf(readingOf(whole, name, withRows(100))));
}

void tst_StatisticalMetadataOnly::noProgressWithoutRecords()
{
    int calls = 0;
    ReadOptions options;
    options.progress = [&calls](int) {
        ++calls;
        return false;
    };
    const SourceOutcome outcome = readingOf(countedRecords(30000), kSav, options);
    QCOMPARE(problemOf(outcome), QStringLiteral("read"));
    QCOMPARE(calls, 0);
}

QTEST_APPLESS_MAIN(tst_StatisticalMetadataOnly)

#include "tst_StatisticalMetadataOnly.moc"
