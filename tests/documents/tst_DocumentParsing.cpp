#include "documents/DocumentFile.h"

#include <QtTest>

using namespace tessel::documents;

namespace {

const char *const kValue =
    "expected a value: an object, an array, a text in double quotes, a number, true, false or null";
const char *const kKey = "expected a key in double quotes";
const char *const kColon = "expected \":\" after a key";
const char *const kNextInObject = "expected \",\" or \"}\" after a value in an object";
const char *const kNumber = "expected a number that JSON and double precision can hold";
const char *const kUtf8 = "expected text in UTF-8; save the file in that encoding";
const char *const kUtf16 = "expected text in UTF-8, found UTF-16; save the file in UTF-8";
const char *const kEmpty = "expected an object at the top, found nothing: the file is empty";
const char *const kMore = "expected nothing more after the end of the document";
const char *const kDeep =
    "objects and arrays stand more than 1024 deep in one another; expected fewer levels";
const char *const kEscape = "expected one of \\\" \\\\ \\/ \\b \\f \\n \\r \\t \\uXXXX after a backslash";
const char *const kCut = ", but the file ends here; it may have been cut off";

QByteArray arrays(int depth) { return QByteArray(depth, '[') + QByteArray(depth, ']'); }

QByteArray objects(int depth) { return QByteArray("{\"a\":").repeated(depth) + '1' + QByteArray(depth, '}'); }

/// "LINE:COLUMN message", or "accepted".
QString verdictOn(const QByteArray &bytes)
{
    const Outcome<QJsonObject> outcome = parseObject(bytes);
    if (outcome.result)
        return QStringLiteral("accepted");
    return QStringLiteral("%1:%2 %3")
        .arg(outcome.problem.line)
        .arg(outcome.problem.column)
        .arg(outcome.problem.message);
}

} // namespace

class tst_DocumentParsing : public QObject {
    Q_OBJECT

private slots:
    void eachFaultIsNamedWithItsPlace_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("verdict");
        const auto row = [](const char *tag, const QByteArray &bytes, const char *place,
                             const QString &message) {
            QTest::newRow(tag) << bytes << QLatin1String(place) + QLatin1Char(' ') + message;
        };
        row("no byte at all", "", "1:1", kEmpty);
        row("blanks only", " \n\t", "2:2", kEmpty);
        row("only a byte order mark", "\xef\xbb\xbf", "1:1", kEmpty);
        row("UTF-16, little end first", QByteArray("\xff\xfe{\0}\0", 6), "1:1", kUtf16);
        row("UTF-16, big end first", QByteArray("\xfe\xff\0{\0}", 6), "1:1", kUtf16);
        row("an array at the top", "[]", "1:1", "expected an object at the top, found an array");
        row("an array of objects at the top", "\n  [{\"name\": \"A\"}]\n", "2:3",
            "expected an object at the top, found an array");
        row("a text at the top", "\"abc\"", "1:1", "expected an object at the top, found a text");
        row("a number at the top", "42\n", "1:1", "expected an object at the top, found a number");
        row("a negative number at the top", " -7", "1:2", "expected an object at the top, found a number");
        row("true at the top", "true", "1:1", "expected an object at the top, found true");
        row("false at the top", "\nfalse\n", "2:1", "expected an object at the top, found false");
        row("null at the top", "null", "1:1", "expected an object at the top, found null");
        row("a word at the top", "hello world", "1:1", kValue);
        row("another markup", "<?xml version=\"1.0\"?>", "1:1", kValue);
        row("a program",
            QByteArray("\x7f"
                       "ELF\x02\x01\x01\0\0\0",
                10),
            "1:1", kValue);
        row("zero bytes", QByteArray(3, '\0'), "1:1", kValue);
        row("no colon", "{\"a\" 1}", "1:6", kColon);
        row("no comma on one line", "{\"a\":1 \"b\":2}", "1:8", kNextInObject);
        row("no comma between lines", "{\n  \"a\": 1\n  \"b\": 2\n}", "3:3", kNextInObject);
        row("no comma between lines of the other kind", "{\"a\": 1\r\n\"b\": 2}", "2:1", kNextInObject);
        row("no comma in an array", "{\"a\":[1 2]}", "1:9", "expected \",\" between two values");
        row("a comma behind the last key", "{\"a\":1,}", "1:8", kKey);
        row("a comma behind the last key, next line", "{\"a\":1,\n}", "2:1", kKey);
        row("a comma behind the last value of an array", "{\"a\":[1,2,]}", "1:11", kValue);
        row("two commas in an object", "{\"a\":1,,\"b\":2}", "1:8", kKey);
        row("a comma and no value", "{\"a\":[,]}", "1:7", kValue);
        row("a key without a value", "{\"a\":,}", "1:6", kValue);
        row("a key without quotes", "{a:1}", "1:2", kKey);
        row("a second key without quotes", "{\"a\":1, b:2}", "1:9", kKey);
        row("a key in single quotes", "{'a':1}", "1:2", kKey);
        row("a value without a key", "{\"a\":1, 2}", "1:9", kKey);
        row("a closing bracket for a value", "{\"a\":\n\n  ]}", "3:3", kValue);
        row("an object closed as an array", "{\"a\":1]", "1:7", kNextInObject);
        row("an array closed as an object", "{\"a\":[1}", "1:8", "expected \"]\" at the end of an array");
        row("a misspelt word", "{\"a\":tru}", "1:6", kValue);
        row("an unknown word", "{\"a\": x}", "1:7", kValue);
        row("a number that is none", "{\"a\":-}", "1:7", kNumber);
        row("a number out of range", "{\"a\":1e400}", "1:11", kNumber);
        row("a comment before", "// c\n{}", "1:1", kValue);
        row("a comment inside", "{\"a\":1 /* c */}", "1:8", kNextInObject);
        row("an escape of three digits", "{\"a\":\"\\u12G4\"}", "1:11", kEscape);
        row("a byte that is no UTF-8", "{\"a\":\"\xff\"}", "1:7", kUtf8);
        row("Latin-1", "{\"a\":\"ok\",\n\"b\":\"\xe9t\xe9\"}", "2:6", kUtf8);
        row("half a character", "{\"a\":\"b\xc3\"}", "1:8", kUtf8);
        row("a key that is no UTF-8", "{\"\xff\":1}", "1:3", kUtf8);
        row("a word at the end", "{\"a\":1} x", "1:9", kMore);
        row("a second document", "{\"a\":1}\n\n  {}", "3:3", kMore);
        row("a closing brace too many", "{\"a\":1}}", "1:8", kMore);
        row("a zero byte at the end", QByteArray("{\"a\":1}\0", 8), "1:8", kMore);
        row("columns count accented characters once", "{\"\xc3\xa9\xc3\xb1\": 1 2}", "1:10", kNextInObject);
        row("columns count other planes once", "{\"\xc3\xa9\xf0\x9f\x98\x80\" 1}", "1:7", kColon);
        row("columns begin behind a byte order mark", "\xef\xbb\xbf{a:1}", "1:2", kKey);
        row("columns count zero bytes", QByteArray("{\"a\":\"\0\0\" 1}", 13), "1:11", kNextInObject);
        row("1025 objects", objects(1025), "1:5121", kDeep);
        row("1025 arrays", arrays(1025), "1:1025", kDeep);
        row("1024 arrays in an object", "{\"a\":" + arrays(1024) + '}', "1:1029", kDeep);
    }

    void eachFaultIsNamedWithItsPlace()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, verdict);
        QCOMPARE(verdictOn(bytes), verdict);
    }

    void aCutOffFileIsNamedAsSuch_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("verdict");
        const auto row = [](const char *tag, const QByteArray &bytes, const char *place,
                             const char *message) {
            QTest::newRow(tag) << bytes
                               << QLatin1String(place) + QLatin1Char(' ') + QLatin1String(message)
                    + QLatin1String(kCut);
        };
        row("in an empty object", "{", "1:2", kKey);
        row("behind a key", "{\"a\"", "1:5", kColon);
        row("behind a colon", "{\"a\":", "1:6", kValue);
        row("in a text", "{\"a\":\"abc", "1:10", "expected a double quote at the end of a text");
        row("in a text, on the next line", "{\n\"a\":\"abc", "2:9",
            "expected a double quote at the end of a text");
        row("behind a backslash", "{\"a\":\"\\", "1:8", "expected a double quote at the end of a text");
        row("behind a number", "{\"a\":12", "1:8", "expected the rest of the document after a number");
        row("behind a number of an array", "{\"a\":[1", "1:8",
            "expected the rest of the document after a number");
        row("behind a text", "{\"a\":\"b\"", "1:9", kNextInObject);
        row("behind the comma of an object", "{\"a\":1,", "1:8", kKey);
        row("behind an inner object", "{\"a\":{\"b\":1}\n", "2:1", kNextInObject);
        row("in a word", "{\"a\":tr", "1:8", kValue);
        row("behind a sign", "{\"a\":-", "1:7", kNumber);
    }

    void aCutOffFileIsNamedAsSuch()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, verdict);
        QCOMPARE(verdictOn(bytes), verdict);
    }

    void aDocumentIsAccepted_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("keys");
        QTest::newRow("an empty object") << QByteArray("{}") << 0;
        QTest::newRow("blanks around") << QByteArray(" \r\n\t{}\n ") << 0;
        QTest::newRow("a byte order mark") << QByteArray("\xef\xbb\xbf{\"a\":1}") << 1;
        QTest::newRow("a byte order mark and blanks") << QByteArray("\xef\xbb\xbf\n{\"a\":1}") << 1;
        QTest::newRow("1024 objects") << objects(1024) << 1;
        QTest::newRow("1023 arrays in an object") << "{\"a\":" + arrays(1023) + '}' << 1;
        QTest::newRow("two keys") << QByteArray("{\"a\":1,\"b\":[true,null]}") << 2;
    }

    void aDocumentIsAccepted()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, keys);
        const Outcome<QJsonObject> outcome = parseObject(bytes);
        QVERIFY2(outcome.result, qPrintable(verdictOn(bytes)));
        QCOMPARE(outcome.result->size(), keys);
    }

    void everyBeginningOfADocumentIsAProblemInsideTheText_data()
    {
        QTest::addColumn<QByteArray>("whole");
        QTest::newRow("plain") << QByteArray(
            "{\n  \"a\\n\": [1, -2.5e3, \"x\\u00e9\\\\\", true,\n false, null, {}],\n \"b\": {\"c\": []}\n}");
        QTest::newRow("accents and other planes, behind a byte order mark") << QByteArray(
            "\xef\xbb\xbf{\"\xc3\xa9\": \"\xf0\x9f\x98\x80\",\n\"\xe2\x82\xac\": [\"\xc3\xb1\"]}");
    }

    void everyBeginningOfADocumentIsAProblemInsideTheText()
    {
        QFETCH(QByteArray, whole);
        QVERIFY(parseObject(whole).result);
        for (int size = 0; size < whole.size(); ++size) {
            const QByteArray bytes = whole.left(size);
            const Outcome<QJsonObject> outcome = parseObject(bytes);
            const QString shown = QStringLiteral("%1 bytes: %2").arg(size).arg(verdictOn(bytes));
            QVERIFY2(!outcome.result, qPrintable(shown));
            QVERIFY2(!outcome.problem.message.isEmpty(), qPrintable(shown));
            const QList<QByteArray> lines = bytes.split('\n');
            QVERIFY2(outcome.problem.line >= 1 && outcome.problem.line <= lines.size(), qPrintable(shown));
            const QByteArray line = lines.at(outcome.problem.line - 1);
            QVERIFY2(outcome.problem.column >= 1, qPrintable(shown));
            QVERIFY2(
                outcome.problem.column <= QString::fromUtf8(line).toUcs4().size() + 1, qPrintable(shown));
        }
    }
};

QTEST_APPLESS_MAIN(tst_DocumentParsing)
#include "tst_DocumentParsing.moc"
