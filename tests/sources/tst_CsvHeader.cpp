#include "sources/CsvHeader.h"

#include "sources/CsvReader.h"

#include "tests/sources/CsvFixtures.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QtTest>

using namespace tessel::sources;
using namespace tessel::test;

namespace {

const char *const kEmpty = "is empty; expected the names of fields in its first line";
const char *const kBinary =
    "is no text file: it holds zero bytes; expected a CSV file in UTF-8, in UTF-16 with a "
    "byte-order mark or in Windows-1252";
const char *const kCutOff = "ends in the middle of a character; it may have been cut off";

QString unclosed(int field)
{
    return QStringLiteral(
        "has a quotation mark in field %1 of its header that is never closed; close it in the "
        "file, or choose another separator")
        .arg(field);
}

/// "[A][B] ENCODING SEPARATOR", remarks behind it in brackets of their own; or what is wrong.
QString textOf(const SourceOutcome &outcome)
{
    if (!outcome.result)
        return outcome.problem.message;
    QString text;
    for (const auto &field : outcome.result->fields)
        text += QLatin1Char('[') + field->name + QLatin1Char(']');
    const QChar separator = outcome.result->separator;
    text += QLatin1Char(' ') + outcome.result->encoding + QLatin1Char(' ');
    text += separator.isNull()           ? QStringLiteral("none")
        : separator == QLatin1Char('\t') ? QStringLiteral("tab")
                                         : QString(separator);
    for (const QString &remark : remarksOf(*outcome.result))
        text += QStringLiteral(" {%1}").arg(remark);
    return text;
}

SourceOutcome headerOf(const QByteArray &bytes, QChar separator = QChar())
{
    ReadOptions options;
    options.separator = separator;
    return outcomeOf(bytes, options);
}

} // namespace

class tst_CsvHeader : public QObject {
    Q_OBJECT

private slots:
    void headers_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *tag, const QByteArray &bytes, const QString &expected) {
            QTest::newRow(tag) << bytes << expected;
        };
        row("commas", "ID,SEX,AGE\n1,2,3\n", "[ID][SEX][AGE] UTF-8 ,");
        row("semicolons", "ID;SEX;AGE\n1,5;2,5;3,5\n", "[ID][SEX][AGE] UTF-8 ;");
        row("tabs", "ID\tSEX\n", "[ID][SEX] UTF-8 tab");
        row("bars", "ID|SEX\n", "[ID][SEX] UTF-8 |");
        row("one column", "ID\n1\n", "[ID] UTF-8 none");
        row("one column, separators further down", "ID\n1,2,3\n", "[ID] UTF-8 none");
        row("the most frequent separator wins", "Name, first;Age;Sex\n", "[Name, first][Age][Sex] UTF-8 ;");
        row("the comma wins over as many semicolons", "a;b,c\n", "[a;b][c] UTF-8 ,");
        row("the semicolon wins over as many tabs", "a;b\tc\n", "[a][b\tc] UTF-8 ;");
        row("the tab wins over as many bars", "a|b\tc\n", "[a|b][c] UTF-8 tab");
        row("separators in quotation marks do not count", "x;\"a,b,c\"\n", "[x][a,b,c] UTF-8 ;");
        row("separators in quotation marks at the very start do not count", "\"a,b,c\";x\n",
            "[a,b,c][x] UTF-8 ;");
        row("a quoted field", "\"ID\",\"SEX\"\n", "[ID][SEX] UTF-8 ,");
        row("a doubled quotation mark", "\"5\"\" pipe\",\"\"\"\"\n", "[5\" pipe][\"] UTF-8 ,");
        row("an empty quoted field", "a,\"\",b\n",
            "[a][FIELD_2][b] UTF-8 , {1 field has no name and is called FIELD_2.}");
        row("a line feed in quotation marks", "\"a\nb\",c\nd,e", "[a\nb][c] UTF-8 ,");
        row("a line end of two in quotation marks", "\"a\r\nb\",c\r\n", "[a\r\nb][c] UTF-8 ,");
        row("blanks before a quotation mark", "a, \"b,c\"\n", "[a][b,c] UTF-8 ,");
        row("a tab before a quotation mark", "a;\t\"b;c\";d\n", "[a][b;c][d] UTF-8 ;");
        row("quotation marks that nobody doubled", "\"a \"b\" c\",d\n", "[a \"b\" c][d] UTF-8 ,");
        row("a lone quotation mark within a quoted field", "\"5\" pipe, long\";d;\"e\"\n",
            "[5\" pipe, long][d][e] UTF-8 ;");
        row("blanks behind a closing quotation mark", "\"a,b\" ;\"c\"  \n", "[a,b][c] UTF-8 ;");
        row("a blank and two quotation marks in a quoted field", "\"a\" \",b;c\n", "[a\"][b;c] UTF-8 ,");
        row("a quotation mark within a field", "5\" pipe,6\" pipe\n", "[5\" pipe][6\" pipe] UTF-8 ,");
        row("CR ends the header", "a,b\rc,d\r", "[a][b] UTF-8 ,");
        row("CR and LF end the header", "a,b\r\nc,d\r\n", "[a][b] UTF-8 ,");
        row("the end of the file ends the header", "a,b", "[a][b] UTF-8 ,");
        row("padded names are trimmed", "  a ,\" b\t\", c d  \n", "[a][b][c d] UTF-8 ,");
        row("one empty name", "a,,b\n",
            "[a][FIELD_2][b] UTF-8 , {1 field has no name and is called FIELD_2.}");
        row("a blank name", "a, \n", "[a][FIELD_2] UTF-8 , {1 field has no name and is called FIELD_2.}");
        row("a separator at the end makes one more field", "a;\n",
            "[a][FIELD_2] UTF-8 ; {1 field has no name and is called FIELD_2.}");
        row("nothing but separators", ",,\n",
            "[FIELD_1][FIELD_2][FIELD_3] UTF-8 , {3 fields have no name and are called FIELD_1, FIELD_2, "
            "FIELD_3.}");
        row("nothing but a tab", "\t",
            "[FIELD_1][FIELD_2] UTF-8 tab {2 fields have no name and are called FIELD_1, FIELD_2.}");
        row("nothing but an empty quoted field", "\"\"\n",
            "[FIELD_1] UTF-8 none {1 field has no name and is called FIELD_1.}");
        row("many empty names are not all listed", ",,,,,,\n",
            "[FIELD_1][FIELD_2][FIELD_3][FIELD_4][FIELD_5][FIELD_6][FIELD_7] UTF-8 , {7 fields have no name "
            "and are "
            "called FIELD_1, FIELD_2, FIELD_3, FIELD_4, FIELD_5 and 2 more.}");
        row("a name that stands twice", "a,b,a\n", "[a][b][a] UTF-8 , {2 fields have the name a.}");
        row("a name that stands three times", "a,a,a\n", "[a][a][a] UTF-8 , {3 fields have the name a.}");
        row("two names that stand twice", "a,b,b,a\n",
            "[a][b][b][a] UTF-8 , {2 names belong to more than one field: b, a.}");
        row("names that differ in letter case are different", "a,A\n", "[a][A] UTF-8 ,");
        row("names that differ in blanks around them are equal", "a, a\n",
            "[a][a] UTF-8 , {2 fields have the name a.}");
        row("a given name that stands already", "FIELD_2,\n",
            "[FIELD_2][FIELD_2] UTF-8 , {1 field has no name and is called FIELD_2.} {2 fields have the name "
            "FIELD_2.}");
        row("a long name of two lines is shortened in a remark",
            "\"x\n" + QByteArray(50, 'y') + "\",\"x\n" + QByteArray(50, 'y') + "\"\n",
            QStringLiteral("[x\n%1][x\n%1] UTF-8 , {2 fields have the name x %2\u2026.}")
                .arg(QString(50, QLatin1Char('y')), QString(38, QLatin1Char('y'))));
        row("empty lines before the header", "\n\r\n  \n a,b\n",
            "[a][b] UTF-8 , {The names stand in line 4, below empty lines.}");
        row("empty lines of CR before the header", "\r\ra,b\r",
            "[a][b] UTF-8 , {The names stand in line 3, below empty lines.}");
        row("a mark for UTF-8", "\xef\xbb\xbfID,A\xc3\xb1o\n", QStringLiteral("[ID][A\u00f1o] UTF-8 ,"));
        row("a quotation mark behind a mark for UTF-8", "\xef\xbb\xbf\"a,b\";c\n", "[a,b][c] UTF-8 ;");
        row("UTF-8 without a mark", "ID,A\xc3\xb1o\n", QStringLiteral("[ID][A\u00f1o] UTF-8 ,"));
        row("another plane in UTF-8", "\xf0\x9f\x98\x80;x\n", QStringLiteral("[\U0001F600][x] UTF-8 ;"));
        row("Windows-1252", "ID,A\xf1o,\x80\n", QStringLiteral("[ID][A\u00f1o][\u20ac] Windows-1252 ,"));
        row("overlong UTF-8 is none", "\xc0\xaf\n", QStringLiteral("[\u00c0\u00af] Windows-1252 none"));
        row("a surrogate in UTF-8 is none", "a\xed\xa0\x80\n",
            QStringLiteral("[a\u00ed\u00a0\u20ac] Windows-1252 none"));
        row("half a character at the end of the header is no UTF-8", "a,b\xc3\nc",
            QStringLiteral("[a][b\u00c3] Windows-1252 ,"));
        row("other bytes below the header do not matter", "a,\xc3\xb1\nA\xf1o,1\n",
            QStringLiteral("[a][\u00f1] UTF-8 ,"));
        row("a mark for UTF-8 before other bytes", "\xef\xbb\xbfx,A\xf1o\n",
            QStringLiteral(
                "[x][A\u00f1o] Windows-1252 , {The file is marked as UTF-8 but holds other bytes; it was "
                "read as Windows-1252.}"));
        row("UTF-16, little end first", utf16(QStringLiteral("ID;A\u00f1o;\u4e2d\n1;2;3"), false),
            QStringLiteral("[ID][A\u00f1o][\u4e2d] UTF-16 ;"));
        row("UTF-16, big end first", utf16(QStringLiteral("ID\tA\u00f1o\r\n1\t2"), true),
            QStringLiteral("[ID][A\u00f1o] UTF-16 tab"));
        row("UTF-16 with empty lines first", utf16(QStringLiteral("\r\nID,B\r\n"), false),
            "[ID][B] UTF-16 , {The names stand in line 2, below empty lines.}");
        row("half a character below the header does not matter", utf16(QStringLiteral("a,b\n"), true) + 'x',
            "[a][b] UTF-16 ,");
    }

    void headers()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        QCOMPARE(textOf(headerOf(bytes)), expected);
    }

    void fieldsSayThatTheyComeFromCsv()
    {
        const SourceOutcome outcome = headerOf("ID,SEX\n1,2\n");
        QVERIFY(outcome.result.has_value());
        QCOMPARE(outcome.result->format, QString("CSV"));
        QCOMPARE(outcome.result->rows, qint64(-1));
        QCOMPARE(outcome.result->rowsRead, qint64(0));
        QCOMPARE(outcome.result->fields.size(), std::size_t(2));
        int position = 0;
        for (const auto &field : outcome.result->fields) {
            QCOMPARE(field->getDataProviderType(), QString("CSV"));
            QCOMPARE(field->getFieldType(), QString());
            QCOMPARE(field->tag, 0);
            QCOMPARE(field->size, 0);
            QCOMPARE(field->relativePosition, ++position);
        }
    }

    void theSeparatorCanBeChosen_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QChar>("separator");
        QTest::addColumn<QString>("expected");
        QTest::newRow("the rarer one") << QByteArray("a,b,c;d\n") << QChar(';') << "[a,b,c][d] UTF-8 ;";
        QTest::newRow("one that is not there") << QByteArray("a,b\n") << QChar('|') << "[a,b] UTF-8 |";
        QTest::newRow("one that nobody would guess") << QByteArray("a:b\n") << QChar(':') << "[a][b] UTF-8 :";
        QTest::newRow("only behind it does a quotation mark open a field")
            << QByteArray("a|\"b;c\nd\n") << QChar(';') << "[a|\"b][c] UTF-8 ;";
        QTest::newRow("in UTF-16") << utf16(QStringLiteral("a,b,c;d\n"), true) << QChar(';')
                                   << "[a,b,c][d] UTF-16 ;";
    }

    void theSeparatorCanBeChosen()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QChar, separator);
        QFETCH(QString, expected);
        QCOMPARE(textOf(headerOf(bytes, separator)), expected);
    }

    void problems_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *tag, const QByteArray &bytes, const QString &message) {
            QTest::newRow(tag) << bytes << message;
        };
        row("no byte at all", "", kEmpty);
        row("empty lines only", "\n\r\n  \r", kEmpty);
        row("nothing but a mark for UTF-8", "\xef\xbb\xbf", kEmpty);
        row("nothing but a mark for UTF-16", utf16(QString(), false), kEmpty);
        row("nothing but a mark and empty lines in UTF-16", utf16(QStringLiteral("\r\n"), true), kEmpty);
        row("zero bytes", QByteArray(3, '\0'), kBinary);
        row("a zero byte in the header", QByteArray("a,\0b\n", 5), kBinary);
        row("a zero byte below the header", QByteArray("PNG\r\n\0\0", 7), kBinary);
        row("UTF-16 without a mark", utf16(QStringLiteral("a,b\n"), false).mid(2), kBinary);
        row("a zero character in UTF-16", utf16(QString(QChar()), false), kBinary);
        row("UTF-32", QByteArray("\xff\xfe\0\0a\0\0\0", 8), kBinary);
        row("half a character in UTF-16", utf16(QStringLiteral("a,b"), false) + 'c', kCutOff);
        row("nothing but half a character in UTF-16", utf16(QString(), true) + '0', kCutOff);
        row("an open quotation mark", "\"a,b\nc,d\n", unclosed(1));
        row("an open quotation mark further on", "a,b,\"c\nd,e,f\n", unclosed(3));
        row("an open quotation mark that ends with a doubled one", "a,\"b\"\"", unclosed(2));
        row("text behind what would be a closing one", "\"a\"b\"c,d\n", unclosed(1));
        row("too many fields", QByteArray(kMostCsvFields, ',') + '\n',
            "has more than 100000 fields in its first line; expected fewer");
    }

    void problems()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        const SourceOutcome outcome = headerOf(bytes);
        QVERIFY(!outcome.result.has_value());
        QCOMPARE(outcome.problem.message, message);
        QCOMPARE(outcome.problem.line, 0);
    }

    void asManyFieldsAsAllowedAreRead()
    {
        const SourceOutcome outcome = headerOf(QByteArray(kMostCsvFields - 1, ',') + '\n');
        QVERIFY(outcome.result.has_value());
        QCOMPARE(outcome.result->fields.size(), std::size_t(kMostCsvFields));
        QCOMPARE(outcome.result->fields.back()->name, QString("FIELD_100000"));
        QCOMPARE(outcome.result->remarks.size(), 1);
    }

    void everyPrefixOfAFileGivesAHeaderOrOneProblem()
    {
        const QByteArray bytes("\xef\xbb\xbf \"A\xc3\xb1o\",\"b\"\"\n,c\",,a|\r\n1,2\r\n");
        const QString name = QStringLiteral("[A\u00f1o]");
        const QString remark = QStringLiteral(" UTF-8 , {1 field has no name and is called FIELD_%1.}");
        const QString third = QStringLiteral("[A\u00f1o][b\"\n,c]");
        // The mark itself is Windows-1252 until it is whole.
        QStringList expected{kEmpty, QStringLiteral("[\u00ef] Windows-1252 none"),
            QStringLiteral("[\u00ef\u00bb] Windows-1252 none"), kEmpty, kEmpty};
        for (int size = 5; size <= 9; ++size)
            expected.append(unclosed(1));
        expected << name + " UTF-8 none" << name + "[FIELD_2]" + remark.arg(2) << unclosed(2) << unclosed(2)
                 << name + "[b] UTF-8 ,";
        for (int size = 15; size <= 18; ++size)
            expected.append(unclosed(2));
        expected << third + " UTF-8 ," << third + "[FIELD_3]" + remark.arg(3)
                 << third
                + "[FIELD_3][FIELD_4] UTF-8 , {2 fields have no name and are called FIELD_3, FIELD_4.}"
                 << third + "[FIELD_3][a]" + remark.arg(3);
        while (expected.size() <= bytes.size())
            expected << third + "[FIELD_3][a|]" + remark.arg(3);
        for (int size = 0; size <= bytes.size(); ++size)
            QCOMPARE(textOf(headerOf(bytes.left(size))), expected.at(size));
    }

    void everyPrefixOfAWideFileGivesAHeaderOrOneProblem()
    {
        const QString text = QStringLiteral("\"a\",b\r\nc");
        const QByteArray bytes = utf16(text, false);
        const QStringList whole{kEmpty, unclosed(1), unclosed(1), "[a] UTF-16 none",
            "[a][FIELD_2] UTF-16 , {1 field has no name and is called FIELD_2.}", "[a][b] UTF-16 ,",
            "[a][b] UTF-16 ,", "[a][b] UTF-16 ,", "[a][b] UTF-16 ,"};
        for (int units = 0; units <= text.size(); ++units)
            QCOMPARE(textOf(headerOf(bytes.left(2 + 2 * units))), whole.at(units));
        for (int units = 0; units < text.size(); ++units) {
            const QString expected = units > 5 ? whole.at(units)
                : units == 1 || units == 2     ? unclosed(1)
                                               : kCutOff;
            QCOMPARE(textOf(headerOf(bytes.left(3 + 2 * units))), expected);
        }
    }

    void filesAreRead()
    {
        const QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("a\u00f1o.csv"));
        QFile file(name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("a;b,c\n");
        file.close();
        QCOMPARE(textOf(readCsv(name)), QString("[a;b][c] UTF-8 ,"));
        ReadOptions withSemicolon;
        withSemicolon.separator = QLatin1Char(';');
        QCOMPARE(textOf(readCsv(name, withSemicolon)), QString("[a][b,c] UTF-8 ;"));
        QCOMPARE(textOf(readCsv(folder.filePath(QStringLiteral("none.csv")))),
            QString("cannot be read: No such file or directory"));
        QCOMPARE(textOf(readCsv(folder.path())), QString("cannot be read: it is a folder; choose a file"));
    }
};

QTEST_APPLESS_MAIN(tst_CsvHeader)
#include "tst_CsvHeader.moc"
