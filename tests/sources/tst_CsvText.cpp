#include "sources/CsvText.h"

#include "tests/sources/CsvFixtures.h"

#include <QTextCodec>

using namespace tessel::sources;
using namespace tessel::test;

namespace {

QStringList namesOf(const SourceOutcome &outcome)
{
    QStringList names;
    if (!outcome.result)
        return {outcome.problem.message};
    for (const auto &field : outcome.result->fields)
        names.append(field->name);
    return names;
}

/// A device that counts what is read of it.
class CountingBuffer : public QBuffer {
public:
    explicit CountingBuffer(QByteArray *bytes)
        : QBuffer(bytes)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    qint64 bytesRead = 0;

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 count = QBuffer::readData(data, size);
        bytesRead += qMax(count, qint64(0));
        return count;
    }
};

/// A device that gives one byte at a time and never knows whether it is at its end, like a pipe.
class Drip : public QIODevice {
public:
    explicit Drip(const QByteArray &all)
        : bytes(all)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        if (given == bytes.size() || size == 0)
            return 0;
        *data = bytes.at(given++);
        return 1;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray bytes;
    int given = 0;
};

} // namespace

class tst_CsvText : public QObject {
    Q_OBJECT

private slots:
    void onlyWhatTheHeaderNeedsIsRead_data()
    {
        QTest::addColumn<int>("headerSize");
        QTest::addColumn<int>("mostRead");
        constexpr int first = 64 * 1024;
        QTest::newRow("a short header") << 10 << first;
        QTest::newRow("a line end as the last byte of the first block") << first - 1 << first;
        QTest::newRow("a line end as the first byte of the second block") << first << 2 * first;
        QTest::newRow("a long header") << 5 * first << 6 * first;
        QTest::newRow("the longest header") << kMostCsvHeaderBytes - 1 << kMostCsvHeaderBytes;
    }

    void onlyWhatTheHeaderNeedsIsRead()
    {
        QFETCH(int, headerSize);
        QFETCH(int, mostRead);
        QByteArray bytes = QByteArray(headerSize - 2, 'x') + ",y\n" + QByteArray(6 * 1024 * 1024, 'z');
        CountingBuffer buffer(&bytes);
        const SourceOutcome outcome = readCsv(buffer);
        QVERIFY(outcome.result.has_value());
        QCOMPARE(outcome.result->fields.size(), std::size_t(2));
        QCOMPARE(outcome.result->fields.front()->name.size(), headerSize - 2);
        QCOMPARE(buffer.bytesRead, qint64(mostRead));

        QVERIFY(buffer.seek(0));
        ReadOptions withComma;
        withComma.separator = QLatin1Char(',');
        const SourceOutcome chosen = readCsv(buffer, withComma);
        QVERIFY(chosen.result.has_value());
        QCOMPARE(chosen.result->fields.size(), std::size_t(2));
        QCOMPARE(buffer.bytesRead, qint64(2 * mostRead));
    }

    void theEndOfABlockDecidesNothing()
    {
        // For all that the first block tells, the quotation mark belongs to a field behind a bar.
        const QByteArray start("a,b|\"c\n");
        for (const int size : {100, 100'000}) {
            const SourceOutcome outcome = outcomeOf(start + QByteArray(size, 'x') + "\";;;\n");
            QCOMPARE(namesOf(outcome), (QStringList{"a,b|\"c"}));
            QCOMPARE(outcome.result->separator, QChar(QLatin1Char(';')));
        }
    }

    void aHeaderWithoutEndIsGivenUp_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("a line without end") << QByteArray("a,b");
        QTest::newRow("an open quotation mark") << QByteArray("a,\"b\n");
        QTest::newRow("empty lines without end") << QByteArray("\n");
    }

    void aHeaderWithoutEndIsGivenUp()
    {
        QFETCH(QByteArray, start);
        const char filler = start == "\n" ? '\n' : 'x';
        QByteArray bytes = start + QByteArray(kMostCsvHeaderBytes - start.size() + 1, filler);
        CountingBuffer buffer(&bytes);
        const SourceOutcome outcome = readCsv(buffer);
        QVERIFY(!outcome.result.has_value());
        QCOMPARE(outcome.problem.message,
            QString(
                "has no end of its header within 4 MiB; close its quotation marks, or choose another file"));
        QCOMPARE(buffer.bytesRead, qint64(kMostCsvHeaderBytes));
    }

    void aFileOfNothingButAHeaderMayBeAsLongAsTheLimit()
    {
        const SourceOutcome outcome = outcomeOf(QByteArray(kMostCsvHeaderBytes, 'x'));
        QVERIFY(outcome.result.has_value());
        QCOMPARE(outcome.result->fields.front()->name.size(), kMostCsvHeaderBytes);
    }

    void aCharacterMayStandAcrossTwoBlocks()
    {
        const QByteArray name = QByteArray(64 * 1024 - 1, 'x') + "\xc3\xb1";
        const SourceOutcome outcome = outcomeOf(name + ",b\n");
        QCOMPARE(outcome.result->encoding, QString("UTF-8"));
        QCOMPARE(outcome.result->fields.front()->name, QString::fromUtf8(name));
    }

    void aChosenEncodingIsTaken_data()
    {
        QTest::addColumn<QString>("encoding");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *tag, const char *encoding, const QByteArray &bytes,
                             const QStringList &names, const char *told) {
            QTest::newRow(tag) << QString(encoding) << bytes << names << QString(told);
        };
        const QString peso = QStringLiteral("A\u00f1o");
        row("Latin-1 by another name", "latin1", "A\xf1o,b", {peso, "b"}, "ISO-8859-1");
        row("what could be UTF-8 as well", "Windows-1252", "\xc3\xb1,b",
            {QStringLiteral("\u00c3\u00b1"), "b"}, "windows-1252");
        row("UTF-8", "UTF-8", "A\xc3\xb1o,b", {peso, "b"}, "UTF-8");
        row("UTF-8 with its mark", "utf-8", "\xef\xbb\xbf\"A\xc3\xb1o\",b", {peso, "b"}, "UTF-8");
        row("a mark of UTF-8 before another encoding", "Windows-1252", "\xef\xbb\xbfID,b", {"ID", "b"},
            "windows-1252");
        row("UTF-16 without a mark", "UTF-16LE", utf16(peso + ",b", false).mid(2), {peso, "b"}, "UTF-16LE");
        row("UTF-16 with its mark", "UTF-16LE", utf16(peso + ",b", false), {peso, "b"}, "UTF-16LE");
        row("UTF-16 whose mark gives the order", "UTF-16", utf16(peso + ",b", true), {peso, "b"}, "UTF-16");
        row("a separator's byte within a character", "Shift_JIS", "\x83\x7c\x83\x7c,b",
            {QStringLiteral("\u30dd\u30dd"), "b"}, "Shift_JIS");
    }

    void aChosenEncodingIsTaken()
    {
        QFETCH(QString, encoding);
        QFETCH(QByteArray, bytes);
        ReadOptions options;
        options.encoding = encoding;
        const SourceOutcome outcome = outcomeOf(bytes, options);
        QTEST(namesOf(outcome), "names");
        QTEST(outcome.result->encoding, "told");
        QCOMPARE(remarksOf(*outcome.result), QStringList());
    }

    void whatAnotherEncodingMayReadIsSaid_data()
    {
        QTest::addColumn<QString>("encoding");
        QTest::addColumn<QString>("message");
        QTest::newRow("an encoding that nobody knows")
            << "Klingon"
            << "cannot be read in Klingon, which is no known encoding; choose another";
        QTest::newRow("names that are not in it")
            << "UTF-8"
            << "has names of fields that are no text in UTF-8; choose another encoding";
    }

    void whatAnotherEncodingMayReadIsSaid()
    {
        QFETCH(QString, encoding);
        QFETCH(QString, message);
        ReadOptions options;
        options.encoding = encoding;
        const SourceOutcome outcome = outcomeOf("A\xf1o,b\n", options);
        QVERIFY(!outcome.result.has_value());
        QCOMPARE(outcome.problem.message, message);
        QVERIFY(outcome.canRetryWithEncoding);
        QVERIFY(!outcome.isCancelled);
    }

    void whatNoEncodingMendsIsNotTriedAgain()
    {
        const SourceOutcome outcome = outcomeOf("");
        QVERIFY(!outcome.result.has_value());
        QVERIFY(!outcome.canRetryWithEncoding);
    }

    void charactersAcrossTwoBlocksAreConverted()
    {
        // The first half of a character stands at the end of the first block, the second in the next one.
        const QString name =
            QString(CsvText::kBlockSize / 2 - 2, QLatin1Char('x')) + QStringLiteral("\U0001F600");
        QCOMPARE(namesOf(outcomeOf(utf16(name + QStringLiteral(",b\n"), false))), (QStringList{name, "b"}));
    }

    void aMarkThatComesInPiecesIsAMark()
    {
        Drip drip("\xef\xbb\xbf\"ID\";b\n1;2\n");
        QCOMPARE(namesOf(readCsv(drip)), (QStringList{"ID", "b"}));
    }

    void aDeviceWithoutSizeHasNoPercent()
    {
        Drip drip("ID;b\n1;2\n");
        QList<int> told;
        ReadOptions options;
        options.rows = 10;
        options.progress = [&told](int percent) {
            told.append(percent);
            return true;
        };
        const SourceOutcome outcome = readCsv(drip, options);
        QVERIFY(outcome.result.has_value());
        QCOMPARE(outcome.result->rowsRead, qint64(1));
        QCOMPARE(told, QList<int>{0});
    }

    void blocksAreOfOneSize()
    {
        QByteArray bytes = "\xef\xbb\xbf" + QByteArray(CsvText::kBlockSize, 'x');
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        CsvText text(buffer, nullptr);
        QCOMPARE(text.next(), QByteArray(CsvText::kBlockSize - 3, 'x'));
        QVERIFY(text.hasUtf8Mark());
        QVERIFY(!text.isConverted());
        QVERIFY(!text.isAtEnd());
        QCOMPARE(text.encoding(), QString());
        QCOMPARE(text.next(), QByteArray("xxx"));
        QVERIFY(text.isAtEnd());
        QVERIFY(!text.endsWithinCharacter());
        QCOMPARE(text.bytesRead(), qint64(bytes.size()));
        QCOMPARE(text.next(), QByteArray());
    }
};

QTEST_APPLESS_MAIN(tst_CsvText)
#include "tst_CsvText.moc"
