#include "sources/CsvReader.h"

#include "sources/CsvText.h"

#include "tests/sources/CsvFixtures.h"

#include <QTemporaryDir>

using namespace tessel::sources;
using namespace tessel::test;

namespace {

/// "NAME TYPE size[.decimals] min..max [categories]", tabs as bars.
QString textOf(const TDmSourceField &field)
{
    QString text =
        field.name + QLatin1Char(' ') + field.fieldType + QLatin1Char(' ') + QString::number(field.size);
    if (field.decimals > 0)
        text += QLatin1Char('.') + QString::number(field.decimals);
    text += QStringLiteral(" %1..%2 [%3]").arg(field.rangeMin, field.rangeMax, field.categories);
    return text.replace(QLatin1Char('\t'), QLatin1Char('|'));
}

/// A line for each field and one for each remark; the first has encoding and number of records. Or what is
/// wrong.
QStringList textsOf(const SourceOutcome &outcome)
{
    if (!outcome.result)
        return {outcome.problem.message};
    QStringList texts{
        outcome.result->encoding + QLatin1Char(' ') + QString::number(outcome.result->rowsRead)};
    for (const auto &field : outcome.result->fields)
        texts.append(textOf(*field));
    return texts + remarksOf(*outcome.result);
}

ReadOptions allRows()
{
    ReadOptions options;
    options.rows = std::numeric_limits<qint64>::max();
    return options;
}

} // namespace

class tst_CsvReader : public QObject {
    Q_OBJECT

private slots:
    void recordsDescribeTheFields_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *tag, const QByteArray &bytes, const QStringList &expected) {
            QTest::newRow(tag) << bytes << expected;
        };
        const QString guess = "No value was found; the type STRING is a guess.";
        const QString comma = "Its numbers have a decimal comma; they were read as if it were a point.";
        row("fields of all types", "ID,CODE,W\n1,007,1.5\n2,x,-2\n",
            {"UTF-8 2", "ID INTEGER 1 1..2 [1 1|2 2]", "CODE STRING 3 .. [007 007|x x]",
                "W REAL 3.1 -2..1.5 []"});
        row("no record", "A,B\n",
            {"UTF-8 0", "A STRING 0 .. []", "B STRING 0 .. []", "A: " + guess, "B: " + guess});
        row("an empty column", "A;B\n1;\n;  \n",
            {"UTF-8 2", "A INTEGER 1 1..1 [1 1]", "B STRING 0 .. []", "B: " + guess});
        row("decimal commas", "A;B\n1,5;x\n2;y\n",
            {"UTF-8 2", "A REAL 3.1 1.5..2 []", "B STRING 1 .. [x x|y y]", "A: " + comma});
        row("decimal commas in one column", "A\n1,5\n2\n",
            {"UTF-8 2", "A REAL 3.1 1.5..2 []", "A: " + comma});
        row("a quoted comma where it separates", "A,B\n\"1,5\",2\n",
            {"UTF-8 1", "A STRING 3 .. [1,5 1,5]", "B INTEGER 1 2..2 [2 2]"});
        row("quoted numbers and padded ones", "A,B\n\"1\", 5\n\" 2 \",6 \n",
            {"UTF-8 2", "A INTEGER 1 1..2 [1 1|2 2]", "B INTEGER 1 5..6 [5 5|6 6]"});
        row("empty lines are no records", "\nA,B\n\n1,2\n\n",
            {"UTF-8 1", "A INTEGER 1 1..1 [1 1]", "B INTEGER 1 2..2 [2 2]",
                "The names stand in line 2, below empty lines."});
        row("no line end behind the last record", "A,B\n1,2\n3,4",
            {"UTF-8 2", "A INTEGER 1 1..3 [1 1|3 3]", "B INTEGER 1 2..4 [2 2|4 4]"});
        row("one uneven record", "A,B\n1,2\n3\n",
            {"UTF-8 2", "A INTEGER 1 1..3 [1 1|3 3]", "B INTEGER 1 2..2 [2 2]",
                "1 record, in line 3, has more or fewer cells than the header has fields."});
        row("several uneven records", "A,B\n1,\"2\n\"\n3,4,5\n6\n7,8\n9,,\n",
            {"UTF-8 5", "A INTEGER 1 1..9 [1 1|3 3|6 6|7 7|9 9]", "B INTEGER 1 2..8 [2 2|4 4|8 8]",
                "3 records have more or fewer cells than the header has fields, the first of them in line "
                "4."});
        row("an open quotation mark", "A,B\n1,2\n3,\"4\n5,6\n",
            {"UTF-8 1", "A INTEGER 1 1..1 [1 1]", "B INTEGER 1 2..2 [2 2]",
                "The record that begins in line 3 has a quotation mark that is never closed; it was left "
                "out."});
        row("names that stand twice", "A,A\n1,x\n",
            {"UTF-8 1", "A INTEGER 1 1..1 [1 1]", "A STRING 1 .. [x x]", "2 fields have the name A."});
        row("UTF-8 below a header of ASCII", "A\n\xc3\xb1\n",
            {"UTF-8 1", QStringLiteral("A STRING 1 .. [\u00f1 \u00f1]")});
        row("Windows-1252 below a header of ASCII", "A\n\xf1\n",
            {"Windows-1252 1", QStringLiteral("A STRING 1 .. [\u00f1 \u00f1]")});
        row("a header in Windows-1252 stands for all", "A\xf1o\n\xc3\xb1\n",
            {"Windows-1252 1", QStringLiteral("A\u00f1o STRING 2 .. [\u00c3\u00b1 \u00c3\u00b1]")});
        row("one cell in another encoding", "\xc3\xb1\n\xf1\n",
            {"UTF-8 1", QStringLiteral("\u00f1 STRING 1 .. [\u00f1 \u00f1]"),
                "1 cell is not in UTF-8 as others are; it was read as Windows-1252."});
        row("several cells in another encoding", "A\n\xf1\n\xc3\xb1\n\xf1\n",
            {"UTF-8 3", QStringLiteral("A STRING 1 .. [\u00f1 \u00f1]"),
                "2 cells are not in UTF-8 as others are; they were read as Windows-1252."});
        row("a mark of UTF-8 above other bytes",
            "\xef\xbb\xbf"
            "A\n\xf1\n",
            {"Windows-1252 1", QStringLiteral("A STRING 1 .. [\u00f1 \u00f1]"),
                "The file is marked as UTF-8 but holds other bytes; it was read as Windows-1252."});
        row("UTF-16", utf16(QStringLiteral("A;B\r\n\u4e2d;1,5\r\n"), false),
            {"UTF-16 1", QStringLiteral("A STRING 1 .. [\u4e2d \u4e2d]"), "B REAL 3.1 1.5..1.5 []",
                "B: " + comma});
        row("half a character at the end of UTF-16", utf16(QStringLiteral("A\r\n1\r\n"), true) + 'x',
            {"UTF-16 1", "A INTEGER 1 1..1 [1 1]",
                "The file ends in the middle of a character; it may have been cut off."});
    }

    void recordsDescribeTheFields()
    {
        QFETCH(QByteArray, bytes);
        QTEST(textsOf(outcomeOf(bytes, allRows())), "expected");
    }

    void remarksSayWhichFieldTheyMean()
    {
        const SourceOutcome outcome = outcomeOf("A,,A\n1,\n", allRows());
        QVERIFY(outcome.result.has_value());
        QStringList fields;
        for (const SourceRemark &remark : qAsConst(outcome.result->remarks))
            fields.append(remark.field);
        QCOMPARE(fields, (QStringList{"", "", "", "FIELD_2", "A"}));
    }

    void noMoreRecordsAreReadThanWanted()
    {
        ReadOptions options;
        options.rows = 2;
        QCOMPARE(textsOf(outcomeOf("A\n1\n2\nx\n\"", options)),
            (QStringList{"UTF-8 2", "A INTEGER 1 1..2 [1 1|2 2]"}));
        QByteArray bytes = "A\n1\n2\n" + QByteArray(10 * CsvText::kBlockSize, 'x');
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
        QVERIFY(readCsv(buffer, options).result.has_value());
        QCOMPARE(buffer.pos(), qint64(CsvText::kBlockSize));
    }

    void manyDifferentValuesAreNoCategories()
    {
        QByteArray bytes("ID,SEX\n");
        for (int i = 0; i < 1000; ++i)
            bytes += QByteArray::number(i) + ',' + QByteArray::number(1 + i % 2) + '\n';
        QCOMPARE(textsOf(outcomeOf(bytes, allRows())),
            (QStringList{"UTF-8 1000", "ID INTEGER 3 0..999 []", "SEX INTEGER 1 1..2 [1 1|2 2]"}));
        ReadOptions options = allRows();
        options.mostCategories = 1;
        QCOMPARE(textsOf(outcomeOf(bytes, options)).last(), QString("SEX INTEGER 1 1..2 []"));
    }

    void cellsThatAreNotInTheChosenEncodingAreTold()
    {
        ReadOptions options = allRows();
        options.encoding = QStringLiteral("UTF-8");
        QCOMPARE(textsOf(outcomeOf("A\nx\xf1\n", options)),
            (QStringList{"UTF-8 1", QStringLiteral("A STRING 2 .. [x\ufffd x\ufffd]"),
                "1 cell holds what is no text in UTF-8; choose another encoding if it matters."}));
        QCOMPARE(textsOf(outcomeOf("A\nx\xf1\ny\xf1\n", options)).last(),
            QString("2 cells hold what is no text in UTF-8; choose another encoding if it matters."));
    }

    void separatorsThatCannotBeAreRefused_data()
    {
        QTest::addColumn<QChar>("separator");
        QTest::newRow("a quotation mark") << QChar('"');
        QTest::newRow("CR") << QChar('\r');
        QTest::newRow("LF") << QChar('\n');
        QTest::newRow("a character beyond ASCII") << QChar(0xa7);
    }

    void separatorsThatCannotBeAreRefused()
    {
        QFETCH(QChar, separator);
        ReadOptions options;
        options.separator = separator;
        QCOMPARE(textsOf(outcomeOf("A\n", options)).first(),
            QStringLiteral(
                "cannot be taken apart at the separator %1; choose a comma, a semicolon, a tab or a bar")
                .arg(separator));
    }

    void theProgressIsToldAndCanCancel()
    {
        // Four blocks, the last one with half a block.
        const int wanted = 3 * CsvText::kBlockSize + CsvText::kBlockSize / 2;
        QByteArray bytes("A\n");
        while (bytes.size() < wanted)
            bytes += "12345\n";
        bytes.truncate(wanted);
        QList<int> told;
        ReadOptions options = allRows();
        options.progress = [&told](int percent) {
            told.append(percent);
            return true;
        };
        const SourceOutcome whole = outcomeOf(bytes, options);
        QVERIFY(whole.result.has_value());
        QVERIFY(!whole.isCancelled);
        QCOMPARE(told, (QList<int>{28, 57, 85, 100}));

        options.progress = [](int percent) { return percent < 50; };
        const SourceOutcome cancelled = outcomeOf(bytes, options);
        QVERIFY(!cancelled.result.has_value());
        QVERIFY(cancelled.isCancelled);
        QVERIFY(!cancelled.canRetryWithEncoding);
        QCOMPARE(cancelled.problem.message, QString());

        options.rows = 0;
        options.progress = [](int) { return false; };
        QVERIFY(outcomeOf(bytes, options).result.has_value());
    }

    void zeroBytesFarBelowTheHeaderAreAProblem()
    {
        QByteArray bytes("A\n");
        while (bytes.size() < 2 * CsvText::kBlockSize)
            bytes += "1\n";
        bytes += '\0';
        QVERIFY(outcomeOf(bytes).result.has_value());
        QVERIFY(textsOf(outcomeOf(bytes, allRows())).first().startsWith(QLatin1String("is no text file: ")));
    }

    void aRecordWithoutEndIsGivenUp()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("long.csv")));
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.write("A,B\n1,2\n3,\"");
        const QByteArray megabyte(1024 * 1024, 'x');
        for (int i = 0; i < 65; ++i)
            file.write(megabyte);
        QVERIFY(file.flush());
        QCOMPARE(textsOf(readCsv(file.fileName(), allRows())),
            QStringList{
                "has a record of more than 64 MiB, which begins in line 3; close its quotation marks, or "
                "choose another separator"});
        ReadOptions options;
        options.rows = 1;
        QVERIFY(readCsv(file.fileName(), options).result.has_value());
    }

    void everyPrefixOfAFileIsRead()
    {
        const QByteArray narrow(
            "\xef\xbb\xbf"
            "A\xc3\xb1o;\"B\"\"\n\";C\r\n1;\"x;\r\ny\";-2,5\r\n\n007;\"\xf1\";\"z\" \"\r\n");
        const QByteArray wide = utf16(QString::fromUtf8(narrow.left(40)), true);
        for (const QByteArray &bytes : {narrow, wide}) {
            for (int size = 0; size <= bytes.size(); ++size) {
                const SourceOutcome outcome = outcomeOf(bytes.left(size), allRows());
                QCOMPARE(outcome.result.has_value(), outcome.problem.message.isEmpty());
                QVERIFY(!outcome.result || outcome.result->fields.size() <= 3);
            }
        }
        QCOMPARE(textsOf(outcomeOf(narrow, allRows())),
            (QStringList{"UTF-8 2", QStringLiteral("A\u00f1o STRING 3 .. [1 1|007 007]"),
                QStringLiteral("B\" STRING 5 .. [\u00f1 \u00f1]"), "C STRING 4 .. [-2,5 -2,5|z\" z\"]",
                "1 cell is not in UTF-8 as others are; it was read as Windows-1252.",
                "B\": 1 value holds blanks and is no category: a code cannot hold them."}));
    }
};

QTEST_APPLESS_MAIN(tst_CsvReader)
#include "tst_CsvReader.moc"
