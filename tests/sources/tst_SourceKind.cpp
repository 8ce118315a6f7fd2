#include "sources/SourceKind.h"

#include <QtTest>

using namespace tessel::sources;

Q_DECLARE_METATYPE(tessel::sources::SourceKind)

namespace {

QByteArray sas(const char *mark) { return QByteArray(12, '\0') + QByteArray(mark) + QByteArray(200, '\0'); }

/// A portable file in whose own characters "A" is the byte \a a, broken into lines of 80.
QByteArray portable(char a, const QByteArray &title = QByteArray(200, '\x40'))
{
    QByteArray bytes = title.leftJustified(200, ' ');
    QByteArray characters(256, '0');
    for (int letter = 0; letter < 26; ++letter)
        characters[74 + letter] = char(a + letter);
    bytes += characters;
    for (const char letter : QByteArray("SPSSPORT"))
        bytes += char(a + (letter - 'A'));
    bytes += "A8";
    for (int end = 80; end < bytes.size(); end += 82)
        bytes.insert(end, "\r\n");
    return bytes;
}

} // namespace

class tst_SourceKind : public QObject {
    Q_OBJECT

private slots:
    void content_data();
    void content();
    void ending_data();
    void ending();
    void usualEndingsAreOfTheirKind();
};

void tst_SourceKind::content_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<SourceKind>("expected");
    QTest::newRow("sav") << QByteArray("$FL2@(#) ") << SourceKind::Sav;
    QTest::newRow("zsav") << QByteArray("$FL3@(#) ") << SourceKind::Sav;
    QTest::newRow("sav that is cut off") << QByteArray("$FL") << SourceKind::Text;
    QTest::newRow("encrypted sav") << QByteArray("\x1c\0\0\0\0\0\0\0ENCRYPTEDSAV\x15\0", 22)
                                   << SourceKind::EncryptedSav;
    QTest::newRow("the word far behind") << QByteArray(65, 'x') + "ENCRYPTEDSAV" << SourceKind::Text;
    QTest::newRow("xpt") << QByteArray("HEADER RECORD*******LIBRARY HEADER RECORD!!!!!!!000")
                         << SourceKind::Xpt;
    QTest::newRow("xpt of version 8")
        << QByteArray("HEADER RECORD*******LIBV8   HEADER RECORD!!!!!!!000") << SourceKind::Xpt;
    QTest::newRow("sas7bdat") << sas("\xc2\xea\x81\x60\xb3\x14\x11") << SourceKind::Sas7bdat;
    QTest::newRow("sas7bcat") << sas("\xc2\xea\x81\x63\xb3\x14\x11") << SourceKind::Sas7bcat;
    QTest::newRow("another file of SAS") << sas("\xc2\xea\x81\x61\xb3\x14\x11") << SourceKind::Unknown;
    QTest::newRow("dta from 117 on") << QByteArray("<stata_dta><header>") << SourceKind::Dta;
    for (const int version : {102, 104, 110, 115, 119}) {
        QTest::addRow("dta %d", version)
            << QByteArray(1, char(version)) + QByteArray("\2\1\0\5", 4) << SourceKind::Dta;
        QTest::addRow("dta %d, big-endian", version)
            << QByteArray(1, char(version)) + QByteArray("\1\1\0\5", 4) << SourceKind::Dta;
    }
    QTest::newRow("dta of no known version") << QByteArray("\x65\2\1\0\5", 5) << SourceKind::Unknown;
    QTest::newRow("dta of no known byte order") << QByteArray("r\3\1\0\5", 5) << SourceKind::Unknown;
    QTest::newRow("dta of no known type") << QByteArray("r\2\2\0\5", 5) << SourceKind::Unknown;
    QTest::newRow("text that begins like an old dta") << QByteArray("region;sex\n1;2\n") << SourceKind::Text;
    QTest::newRow("por by its title") << portable('A', "ASCII SPSS PORT FILE") << SourceKind::Por;
    QTest::newRow("por by its mark") << portable('A') << SourceKind::Por;
    QTest::newRow("por in other characters") << portable('\xa1') << SourceKind::Por;
    QTest::newRow("the mark in other characters than the file's own")
        << portable('B').replace(portable('B').right(10), "SPSSPORTA8") << SourceKind::Text;
    QTest::newRow("one character again and again is no mark") << QByteArray(600, 'S') << SourceKind::Text;
    QTest::newRow("zeroes are no mark") << QByteArray(600, '\0') << SourceKind::Unknown;
    QTest::newRow("CSV") << QByteArray("AGE;NAME\r\n1;A\xf1o\t\f\n") << SourceKind::Text;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe\x41\x00\x3b\x00", 6) << SourceKind::Text;
    QTest::newRow("UTF-16, big-endian") << QByteArray("\xfe\xff\x00\x41\x00\x3b", 6) << SourceKind::Text;
    QTest::newRow("a spreadsheet") << QByteArray("PK\3\4\24\0\6\0", 8) << SourceKind::Unknown;
    QTest::newRow("an old spreadsheet")
        << QByteArray("\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1") << SourceKind::Unknown;
}

void tst_SourceKind::content()
{
    QFETCH(QByteArray, start);
    QTEST(sourceKind(start), "expected");
}

void tst_SourceKind::ending_data()
{
    QTest::addColumn<SourceKind>("expected");
    QTest::newRow("a.csv") << SourceKind::Text;
    QTest::newRow("a.tsv") << SourceKind::Text;
    QTest::newRow("a.txt") << SourceKind::Text;
    QTest::newRow("/folder.dta/a.b.SAV") << SourceKind::Sav;
    QTest::newRow("a.zsav") << SourceKind::Sav;
    QTest::newRow("a.por") << SourceKind::Por;
    QTest::newRow("a.Dta") << SourceKind::Dta;
    QTest::newRow("a.sas7bdat") << SourceKind::Sas7bdat;
    QTest::newRow("a.sas7bcat") << SourceKind::Sas7bcat;
    QTest::newRow("a.xpt") << SourceKind::Xpt;
    QTest::newRow("sav") << SourceKind::Unknown;
    QTest::newRow("a.sav.gz") << SourceKind::Unknown;
    QTest::newRow("/folder.sav/a") << SourceKind::Unknown;
}

void tst_SourceKind::ending()
{
    QTEST(sourceKindOfEnding(QString::fromLatin1(QTest::currentDataTag())), "expected");
}

void tst_SourceKind::usualEndingsAreOfTheirKind()
{
    for (const SourceKind kind : {SourceKind::Text, SourceKind::Sav, SourceKind::Por, SourceKind::Dta,
             SourceKind::Sas7bdat, SourceKind::Sas7bcat, SourceKind::Xpt})
        QCOMPARE(sourceKindOfEnding(QLatin1String("a.") + usualEnding(kind)), kind);
    QCOMPARE(usualEnding(SourceKind::EncryptedSav), QStringLiteral("sav"));
    QCOMPARE(usualEnding(SourceKind::Unknown), QString());
}

QTEST_APPLESS_MAIN(tst_SourceKind)

#include "tst_SourceKind.moc"
