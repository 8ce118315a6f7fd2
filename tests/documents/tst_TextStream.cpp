#include "documents/TextStream.h"

#include <QtTest>

#include <cstring>

using tessel::documents::TextStream;

namespace {

void put(TextStream &stream, const QByteArray &text)
{
    char *at = stream.room(std::size_t(text.size()));
    std::memcpy(at, text.constData(), std::size_t(text.size()));
    stream.wrote(at + text.size());
}

} // namespace

class tst_TextStream : public QObject {
    Q_OBJECT

private slots:
    void allIsHandedOnInOrder()
    {
        QByteArray received;
        QVector<std::size_t> lengths;
        TextStream stream([&](const char *piece, std::size_t length) {
            received.append(piece, int(length));
            lengths.append(length);
            return true;
        });
        QByteArray expected;
        // Smaller than a piece, and larger.
        for (int length : {1, 0, 40000, 40000, 200000, 3, 70000}) {
            const QByteArray text(length, char('a' + length % 26));
            expected += text;
            put(stream, text);
        }
        QVERIFY(received.size() < expected.size());
        stream.finish();
        QCOMPARE(received, expected);
        QVERIFY(stream.isWanted());
        QVERIFY(lengths.size() < 7);
    }

    void roomIsNotTextUntilItIsWritten()
    {
        QByteArray received;
        TextStream stream([&](const char *piece, std::size_t length) {
            received.append(piece, int(length));
            return true;
        });
        stream.room(100);
        char *at = stream.room(10);
        *at = 'x';
        stream.wrote(at + 1);
        stream.finish();
        QCOMPARE(received, QByteArray("x"));
    }

    void nothingIsHandedOnOnceNothingIsWanted()
    {
        int calls = 0;
        TextStream stream([&calls](const char *, std::size_t) { return ++calls > 1; });
        put(stream, "a");
        stream.finish();
        QVERIFY(!stream.isWanted());
        put(stream, QByteArray(100000, 'b'));
        put(stream, QByteArray(100000, 'c'));
        stream.finish();
        QCOMPARE(calls, 1);
        QVERIFY(!stream.isWanted());
    }
};

QTEST_APPLESS_MAIN(tst_TextStream)
#include "tst_TextStream.moc"
