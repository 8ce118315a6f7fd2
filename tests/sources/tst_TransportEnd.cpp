#include "sources/TransportEnd.h"

#include "tests/sources/SourceReading.h"

#include <QDir>
#include <QTemporaryFile>
#include <QtTest>

#include <limits>

Q_DECLARE_METATYPE(tessel::test::FileForm)

using namespace tessel::sources;
using namespace tessel::test;

namespace {

constexpr FileForm kOld{FileKind::Xpt, 5};
constexpr FileForm kNew{FileKind::Xpt, 8};
constexpr qint64 kAll = std::numeric_limits<qint64>::max();
const char kRemark[] =
    "The file holds more than one data set, of which only the first one is read; save each in "
    "a file of its own.";

/// Behind the three records about the file, a data set begins.
constexpr int kFileHeader = 240;

QByteArray persons(const FileForm &form)
{
    return fileOf(
        {{}, {{"AGE", READSTAT_TYPE_DOUBLE, 8, "Age", "F3.0"}, {"SEX", READSTAT_TYPE_DOUBLE, 3, "", "F1.0"}},
            {{31.0, 2.0}, {7.0, 1.0}, {66.0, 1.0}}},
        form);
}

QByteArray dwellings(const FileForm &form)
{
    return fileOf({{}, {{"ROOMS", READSTAT_TYPE_DOUBLE, 8, "Rooms", "F3.0"}}, {{4.0}, {900.0}}}, form);
}

qint64 endOf(const QByteArray &bytes, qint64 most = kAll)
{
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        qFatal("fixture: no file");
    return endOfFirstDataSet(file, most);
}

SourceOutcome reading(const QByteArray &bytes, qint64 rows = 0)
{
    ReadOptions options;
    options.rows = rows;
    return readingOf(bytes, QStringLiteral("survey.xpt"), options);
}

void addForms()
{
    QTest::addColumn<FileForm>("form");
    QTest::newRow("version 5") << kOld;
    QTest::newRow("version 8") << kNew;
}

} // namespace

/// Transport files that hold several data sets: the first one is read as if it were alone.
class tst_TransportEnd : public QObject {
    Q_OBJECT

private slots:
    void aSecondDataSetEndsTheFirst_data() { addForms(); }
    void aSecondDataSetEndsTheFirst();
    void whatBeginsIsToldByWholeRecords();
    void nothingIsSoughtBehindTheLimit();
    void theFirstOneIsReadAsIfItWereAlone_data() { addForms(); }
    void theFirstOneIsReadAsIfItWereAlone();
    void wantedRecordsAreSoughtAsFarAsTheyGo();
};

void tst_TransportEnd::aSecondDataSetEndsTheFirst()
{
    QFETCH(FileForm, form);
    const QByteArray first = persons(form);
    const QByteArray second = dwellings(form);
    QCOMPARE(endOf(first), qint64(-1));
    QCOMPARE(endOf(first + second.mid(kFileHeader)), qint64(first.size()));
    QCOMPARE(endOf(first + second.mid(kFileHeader) + second.mid(kFileHeader)), qint64(first.size()));
    // A file that was joined to another.
    QCOMPARE(endOf(first + second), qint64(first.size()));
}

void tst_TransportEnd::whatBeginsIsToldByWholeRecords()
{
    const QByteArray first = persons(kOld);
    const QByteArray second = dwellings(kOld).mid(kFileHeader);
    QCOMPARE(endOf(first + QByteArray(40, ' ') + second), qint64(-1));
    QCOMPARE(endOf(first + QByteArray(80, ' ') + second), qint64(first.size() + 80));
    QCOMPARE(endOf(first + second.left(79)), qint64(-1));
    QCOMPARE(endOf(QByteArray()), qint64(-1));
    // Records are read many at a time.
    const QByteArray far = first + QByteArray(80 * 20000, ' ');
    QCOMPARE(endOf(far + second), qint64(far.size()));
}

void tst_TransportEnd::nothingIsSoughtBehindTheLimit()
{
    const QByteArray first = persons(kOld);
    const QByteArray both = first + dwellings(kOld).mid(kFileHeader);
    QCOMPARE(endOf(both, first.size()), qint64(-1));
    QCOMPARE(endOf(both, first.size() + 1), qint64(first.size()));
}

void tst_TransportEnd::theFirstOneIsReadAsIfItWereAlone()
{
    QFETCH(FileForm, form);
    const QByteArray first = persons(form);
    const QByteArray both = first + dwellings(form).mid(kFileHeader);
    for (const qint64 rows : {0, 2, 3, 1000}) {
        const SourceOutcome alone = reading(first, rows);
        const SourceOutcome outcome = reading(both, rows);
        QCOMPARE(fieldsOf(outcome), fieldsOf(alone));
        QCOMPARE(outcome.result->rowsRead, alone.result->rowsRead);
        QCOMPARE(remarksOf(alone).contains(kRemark), false);
        QCOMPARE(remarksOf(outcome), QStringList(kRemark) + remarksOf(alone));
    }
    QCOMPARE(
        fieldsOf(reading(both, 1000)).first(), QString("AGE: INTEGER 3.0 from 7 to 66 {7 7|31 31|66 66}"));
}

void tst_TransportEnd::wantedRecordsAreSoughtAsFarAsTheyGo()
{
    // Of 20,000 bytes each.
    Table wide;
    for (int i = 0; i < 100; ++i)
        wide.columns.push_back({"T" + QByteArray::number(i), READSTAT_TYPE_STRING, 200});
    const QByteArray first = fileOf(wide, kOld);
    const QByteArray second = dwellings(kOld).mid(kFileHeader);
    constexpr qint64 hole = qint64(900000) * 80;
    QTemporaryFile file(QDir::tempPath() + QStringLiteral("/XXXXXX.xpt"));
    QVERIFY(file.open());
    QCOMPARE(file.write(first), qint64(first.size()));
    QVERIFY(file.seek(first.size() + hole));
    QCOMPARE(file.write(second), qint64(second.size()));
    QVERIFY(file.flush());
    // Without records, or with few, how long it takes does not depend on how many there are.
    QVERIFY(!remarksOf(readSource(file.fileName())).contains(kRemark));
    ReadOptions options;
    options.rows = 100;
    QVERIFY(!remarksOf(readSource(file.fileName(), options)).contains(kRemark));
    options.rows = 1000;
    QVERIFY(remarksOf(readSource(file.fileName(), options)).contains(kRemark));
}

QTEST_APPLESS_MAIN(tst_TransportEnd)

#include "tst_TransportEnd.moc"
