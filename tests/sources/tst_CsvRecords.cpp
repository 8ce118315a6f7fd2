#include "sources/CsvRecords.h"

#include <QtTest>

#include <csv.h>
#include <rapidcheck.h>

using tessel::sources::CsvRecords;

namespace {

using Record = std::vector<std::string>;

std::vector<std::string> cellsOf(const CsvRecords &records)
{
    std::vector<std::string> cells;
    for (int i = 0; i < records.keptCells(); ++i)
        cells.emplace_back(records.cell(i));
    return cells;
}

/// All records of \a text, which comes in pieces of \a size bytes.
std::vector<Record> recordsOf(const QByteArray &text, char separator, int size)
{
    CsvRecords records(separator, 100);
    std::vector<Record> all;
    for (int start = 0; start < text.size(); start += size) {
        const QByteArray piece = text.mid(start, size);
        int position = 0;
        while (records.take(piece, position))
            all.push_back(cellsOf(records));
    }
    if (records.finish())
        all.push_back(cellsOf(records));
    return all;
}

/// "LINE:[cell][cell]", a record each.
QStringList textsOf(const QByteArray &text, char separator = ',')
{
    CsvRecords records(separator, 100);
    QStringList texts;
    const auto append = [&] {
        QString line = QString::number(records.line()) + QLatin1Char(':');
        for (const std::string &cell : cellsOf(records))
            line += QLatin1Char('[') + QString::fromStdString(cell) + QLatin1Char(']');
        texts.append(line);
    };
    int position = 0;
    while (records.take(text, position))
        append();
    if (records.finish())
        append();
    if (records.isQuoteOpen())
        texts.append(QStringLiteral("open"));
    return texts;
}

/// Of characters that matter to a reader, and some that should not.
rc::Gen<std::string> anyCell()
{
    const auto part = rc::gen::element<std::string>("a", "B", "7", "\"", "\"\"", ",", ";", "\t", "|", "\n",
        "\r", "\r\n", " ", "'", "\\", "\xc3\xb1", "\xe4\xb8\xad", "\xf1", "\xff");
    return rc::gen::map(
        rc::gen::container<std::vector<std::string>>(part), [](const std::vector<std::string> &parts) {
            std::string cell;
            for (const std::string &each : parts)
                cell += each;
            return cell;
        });
}

std::string quoted(const std::string &cell)
{
    std::string text(csv_write(nullptr, 0, cell.data(), cell.size()), '\0');
    csv_write(text.data(), text.size(), cell.data(), cell.size());
    return text;
}

} // namespace

class tst_CsvRecords : public QObject {
    Q_OBJECT

private slots:
    void recordsAreTakenApart_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<char>("separator");
        QTest::addColumn<QStringList>("records");
        const auto row = [](const char *tag, const QByteArray &text, const QStringList &records,
                             char separator = ',') { QTest::newRow(tag) << text << separator << records; };
        row("nothing", "", {});
        row("blank lines", "\n \t \r\n\r", {});
        row("two records", "a,b\nc,d\n", {"1:[a][b]", "2:[c][d]"});
        row("no line end at the end", "a\nb", {"1:[a]", "2:[b]"});
        row("CR and LF are one line end", "a\r\nb\r\n\r\nc", {"1:[a]", "2:[b]", "4:[c]"});
        row("CR alone", "a\rb\r\rc", {"1:[a]", "2:[b]", "4:[c]"});
        row("LF and CR are two", "a\n\rb", {"1:[a]", "3:[b]"});
        row("blank lines between", "a\n\n  \nb\n", {"1:[a]", "4:[b]"});
        row("line ends within quotation marks", "\"a\n\r\nb\",c\nd,e\n", {"1:[a\n\r\nb][c]", "4:[d][e]"});
        row("a record that begins with a quotation mark and a line end", "\n\"\na\"\nb",
            {"2:[\na]", "4:[b]"});
        row("empty cells", ",\n\"\",\n,,", {"1:[][]", "2:[][]", "3:[][][]"});
        row("blanks around cells", " a b ,\t\" c \" ,d\t\n", {"1:[a b][ c ][d]"});
        row("a tab that separates", "\ta\t \n\t\n", {"1:[][a][]", "2:[][]"}, '\t');
        row("a tab that separates quoted cells", "\"a\t\"\t\"b\"\n", {"1:[a\t][b]"}, '\t');
        row("a space that separates", "a b\n c\n", {"1:[a][b]", "2:[][c]"}, ' ');
        row("nothing that separates", "a,b;c\t|d\n\"e,\"\n", {"1:[a,b;c\t|d]", "2:[e,]"}, '\0');
        row("quotation marks that nobody doubled", "\"a \"b\", c\"\nd", {"1:[a \"b][c\"]", "2:[d]"});
        row("a quotation mark within a word", "5\" pipe,x\n", {"1:[5\" pipe][x]"});
        row("an open quotation mark", "a\n\"b,c\n", {"1:[a]", "open"});
        row("an open quotation mark at the very end", "a,\"", {"open"});
        row("a closed one at the very end", "a,\"b\"", {"1:[a][b]"});
    }

    void recordsAreTakenApart()
    {
        QFETCH(QByteArray, text);
        QFETCH(char, separator);
        QTEST(textsOf(text, separator), "records");
    }

    void whatIsWrittenIsReadTheSame()
    {
        QVERIFY(rc::check("random cells", [] {
            const char separator = *rc::gen::element(',', ';', '\t', '|');
            // Many small files find more than a few large ones, in less time.
            const auto record = rc::gen::nonEmpty(rc::gen::scale(0.2, rc::gen::container<Record>(anyCell())));
            const auto written = *rc::gen::scale(0.2, rc::gen::container<std::vector<Record>>(record));
            std::string text;
            for (const Record &each : written) {
                for (std::size_t i = 0; i < each.size(); ++i)
                    text += (i == 0 ? std::string() : std::string(1, separator)) + quoted(each[i]);
                text += *rc::gen::element<std::string>("\n", "\r", "\r\n", "\n\n");
            }
            const int size = *rc::gen::inRange(1, 20);
            RC_ASSERT(recordsOf(QByteArray::fromStdString(text), separator, size) == written);
        }));
    }

    void whatIsTakenIsCounted()
    {
        CsvRecords records(',', 2);
        int position = 0;
        QVERIFY(!records.take(" \n a,\"b", position));
        QCOMPARE(position, 7);
        QCOMPARE(records.size(), qint64(7));
        QCOMPARE(records.line(), qint64(2));
        QCOMPARE(records.cellCount(), 1);
        position = 0;
        QVERIFY(records.take("\",,c\nx", position));
        QCOMPARE(position, 5);
        QCOMPARE(records.size(), qint64(12));
        QCOMPARE(records.cellCount(), 4);
        QCOMPARE(records.keptCells(), 2);
        QCOMPARE(cellsOf(records), (Record{"a", "b"}));
        QVERIFY(!records.take("\",,c\nx", position));
        QCOMPARE(records.size(), qint64(1));
        QCOMPARE(records.line(), qint64(3));
        QCOMPARE(records.cellCount(), 0);
        QVERIFY(records.finish());
        QCOMPARE(cellsOf(records), (Record{"x"}));
        QVERIFY(!records.finish());
    }

    void aLongCellIsTakenWhole()
    {
        const std::string cell(5'000'000, 'x');
        const auto all = recordsOf(QByteArray::fromStdString(cell + ",y\n"), ',', 1'000'000);
        QCOMPARE(all.size(), std::size_t(1));
        QVERIFY(all.front() == (Record{cell, "y"}));
    }
};

QTEST_APPLESS_MAIN(tst_CsvRecords)
#include "tst_CsvRecords.moc"
