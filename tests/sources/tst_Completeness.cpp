#include "sources/Completeness.h"

#include <QTemporaryFile>
#include <QtEndian>
#include <QtTest>

using namespace tessel::sources;

namespace {

const char kCutOff[] = "ends too early: it was cut off; get the whole file";

/// A SAS file of \a size bytes that says it has \a pages pages of 1024 bytes behind a head of 1024.
QByteArray sasFile(bool isWide, bool isPadded, bool isLittle, quint32 pages, int size)
{
    QByteArray bytes(size, '\0');
    bytes[32] = isWide ? '3' : '2';
    bytes[35] = isPadded ? '3' : '2';
    bytes[37] = isLittle ? '\1' : '\0';
    const int padding = isPadded ? 4 : 0;
    const auto put = [&](int place, quint32 number) {
        char *const start = bytes.data() + place + padding;
        isLittle ? qToLittleEndian(number, start) : qToBigEndian(number, start);
    };
    put(196, 1024);
    put(200, 1024);
    // Of eight bytes, the last four of a big-endian number hold what is small.
    put(isWide && !isLittle ? 208 : 204, pages);
    return bytes;
}

/// What is said of a file of \a bytes.
QString faultOf(const QByteArray &bytes, StatisticalFormat format)
{
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        qFatal("fixture: no file");
    return Completeness::faultOf(file, format);
}

} // namespace

class tst_Completeness : public QObject {
    Q_OBJECT

private slots:
    void pagesOfSas_data();
    void pagesOfSas();
    void tailOfStata_data();
    void tailOfStata();
    void recordsOfTransportFiles();
    void otherFormatsTellByThemselves();
    void labelSetsOfStata();
};

void tst_Completeness::pagesOfSas_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isWhole");
    for (const int form : {0, 1, 2, 3, 4, 5, 6, 7}) {
        const bool isWide = (form & 1) != 0;
        const bool isPadded = (form & 2) != 0;
        const bool isLittle = (form & 4) != 0;
        QTest::addRow("all pages are there, form %d", form)
            << sasFile(isWide, isPadded, isLittle, 2, 3072) << true;
        QTest::addRow("a byte is missing, form %d", form)
            << sasFile(isWide, isPadded, isLittle, 2, 3071) << false;
        QTest::addRow("a page is missing, form %d", form)
            << sasFile(isWide, isPadded, isLittle, 3, 3072) << false;
        QTest::addRow("more than all is there, form %d", form)
            << sasFile(isWide, isPadded, isLittle, 1, 3072) << true;
        QTest::addRow("enormous, form %d", form)
            << sasFile(isWide, isPadded, isLittle, 0xffffffff, 3072) << false;
        QTest::addRow("within the head, form %d", form)
            << sasFile(isWide, isPadded, isLittle, 0, 1023) << false;
    }
    QTest::newRow("too short to tell") << QByteArray(20, '\0') << true;
    QTest::newRow("without a size of pages") << QByteArray(1024, '\0') << true;
}

void tst_Completeness::pagesOfSas()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isWhole);
    QCOMPARE(faultOf(bytes, StatisticalFormat::Sas7bdat), isWhole ? QString() : QString(kCutOff));
    QTemporaryFile file;
    QVERIFY(file.open() && file.write(bytes) == bytes.size() && file.flush());
    QCOMPARE(Completeness::faultOfCatalogue(file), isWhole ? QString() : QString(kCutOff));
}

void tst_Completeness::tailOfStata_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("with the last tag") << QByteArray("<stata_dta>...</stata_dta>") << "";
    QTest::newRow("a line end behind it does not matter")
        << QByteArray("<stata_dta>...</stata_dta>\r\n") << "";
    QTest::newRow("half of the last tag") << QByteArray("<stata_dta>...</stata_dta") << kCutOff;
    QTest::newRow("a tag that is far from the end")
        << "<stata_dta></stata_dta>" + QByteArray(100, 'x') << kCutOff;
    QTest::newRow("old files have no tags") << QByteArray("r\2\1\0") << "";
}

void tst_Completeness::tailOfStata()
{
    QFETCH(QByteArray, bytes);
    QTEST(faultOf(bytes, StatisticalFormat::Dta), "expected");
}

void tst_Completeness::recordsOfTransportFiles()
{
    QCOMPARE(faultOf(QByteArray(160, ' '), StatisticalFormat::Xpt), QString());
    for (const int size : {161, 120})
        QCOMPARE(faultOf(QByteArray(size, ' '), StatisticalFormat::Xpt), QString(kCutOff));
}

void tst_Completeness::otherFormatsTellByThemselves()
{
    QCOMPARE(faultOf("$FL2", StatisticalFormat::Sav), QString());
    QCOMPARE(faultOf("x", StatisticalFormat::Por), QString());
}

void tst_Completeness::labelSetsOfStata()
{
    StatisticalContent content;
    content.variables.resize(2);
    content.variables[0].name = QStringLiteral("AGE");
    content.variables[1].name = QStringLiteral("SEX");
    QCOMPARE(Completeness::faultOf(content), QString());
    content.variables[1].labelSet = QStringLiteral("sexes");
    QCOMPARE(Completeness::faultOf(content),
        QStringLiteral(
            "does not hold the value labels \"sexes\" of the variable SEX: it was cut off or saved without "
            "them; get the whole file"));
    // A file that ends with a tag never had them.
    for (const int version : {117, 118, 119}) {
        content.version = version;
        QCOMPARE(Completeness::faultOf(content), QString());
    }
    content.version = 116;
    QVERIFY(!Completeness::faultOf(content).isEmpty());
    content.labelSets.insert(QStringLiteral("sexes"), {});
    QCOMPARE(Completeness::faultOf(content), QString());
}

QTEST_APPLESS_MAIN(tst_Completeness)

#include "tst_Completeness.moc"
