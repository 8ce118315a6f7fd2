#include "tests/cli/Tessel.h"

#include <QtTest>

using tessel::test::answer;
using tessel::test::Tessel;
using tessel::test::Told;

using Arguments = QList<QByteArray>;

namespace {

const char *const kGood = "{\"name\":\"D\"}";

const char *const kValue =
    "expected a value: an object, an array, a text in double quotes, a number, true, false or null";

QByteArray nested(int depth) { return QByteArray("{\"a\":").repeated(depth) + '1' + QByteArray(depth, '}'); }

} // namespace

class tst_tessel_bad_input : public QObject {
    Q_OBJECT

private slots:
    void badTextIsOneLineAndTheFileStays_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("complaint");
        const auto row = [](const char *tag, const QByteArray &bytes, const QByteArray &complaint) {
            QTest::newRow(tag) << bytes << "bad.json:" + complaint + '\n';
        };
        row("empty", "", "1:1: expected an object at the top, found nothing: the file is empty");
        row("truncated", "{\n  \"name\": \"D",
            "2:13: expected a double quote at the end of a text, but the file ends here; it may have been "
            "cut off");
        row("binary",
            QByteArray("\x7f"
                       "ELF\x02\x01\0\0\xff\n\n",
                11),
            QByteArray("1:1: ") + kValue);
        row("not UTF-8", "{\"name\":\"A\xf1o\"}",
            "1:11: expected text in UTF-8; save the file in that encoding");
        row("UTF-16", QByteArray("\xff\xfe{\0}\0", 6),
            "1:1: expected text in UTF-8, found UTF-16; save the file in UTF-8");
        row("deeply nested", nested(1025),
            "1:5121: objects and arrays stand more than 1024 deep in one another; expected fewer levels");
        row("very deeply nested", nested(100000),
            "1:5121: objects and arrays stand more than 1024 deep in one another; expected fewer levels");
        row("an array", "[{}]\n", "1:1: expected an object at the top, found an array");
        row("a text", "\"x\"", "1:1: expected an object at the top, found a text");
        row("a number", "12", "1:1: expected an object at the top, found a number");
        row("true", "true", "1:1: expected an object at the top, found true");
        row("null", "null\n", "1:1: expected an object at the top, found null");
        row("no comma", "{\n  \"a\": 1\n  \"b\": 2\n}",
            "3:3: expected \",\" or \"}\" after a value in an object");
    }

    void badTextIsOneLineAndTheFileStays()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, complaint);
        Tessel tessel;
        tessel.put("bad.json", bytes);
        tessel.put("old.json", "old");
        const QList<Arguments> all{{"show", "bad.json"}, {"show", "bad.json", "X", "--format", "json"},
            {"format", "bad.json"}, {"format", "-i", "bad.json"}, {"format", "-i", "--force", "bad.json"},
            {"format", "--check", "bad.json"}, {"format", "--diff", "bad.json"},
            {"format", "bad.json", "-o", "old.json"}, {"format", "bad.json", "-o", "new.json"}};
        for (const Arguments &arguments : all)
            QCOMPARE(tessel.run(arguments).all(), answer(2, "", complaint));
        tessel.input = bytes;
        QCOMPARE(tessel.run({"show", "-"}).all(),
            answer(2, "", QByteArray(complaint).replace("bad.json", "standard input")));
        QCOMPARE(tessel.get("bad.json"), bytes);
        QCOMPARE(tessel.get("old.json"), QByteArray("old"));
        QCOMPARE(tessel.names(), (Arguments{"bad.json", "old.json"}));
    }

    void theDeepestDocumentIsDone()
    {
        Tessel tessel;
        QByteArray deep = "{\"name\":\"E\"}";
        // Each level is an object in an array.
        for (int i = 1; i < 512; ++i)
            deep = "{\"name\":\"E\",\"entities\":[" + deep + "]}";
        tessel.put("deep.json", deep);
        QCOMPARE(tessel.run({"format", "deep.json", "-o", "normal.json"}).all(), answer(0, ""));
        QCOMPARE(tessel.run({"format", "--check", "normal.json"}).all(), answer(0, ""));
        const Told told = tessel.run({"show", "deep.json"});
        QCOMPARE(told.status, 0);
        QVERIFY2(told.out.startsWith("E\n511 entities, "), told.out.left(100).constData());
    }

    void whatCannotBeReadIsOneLine_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("complaint");
        QTest::newRow("missing") << QByteArray("none.json")
                                 << QByteArray("none.json: cannot be read: No such file or directory\n");
        QTest::newRow("in a missing folder") << QByteArray(
            "none/f.json") << QByteArray("none/f.json: cannot be read: No such file or directory\n");
        QTest::newRow("below a file") << QByteArray("good.json/f.json")
                                      << QByteArray("good.json/f.json: cannot be read: Not a directory\n");
        QTest::newRow("a folder") << QByteArray(".")
                                  << QByteArray(".: cannot be read: it is a folder; name a file\n");
        QTest::newRow("breaks while read") << QByteArray(
            "/proc/self/mem") << QByteArray("/proc/self/mem: cannot be read: Input/output error\n");
        QTest::newRow("a device without bytes")
            << QByteArray("/dev/null")
            << QByteArray("/dev/null:1:1: expected an object at the top, found nothing: the file is empty\n");
        QTest::newRow("a device without end") << QByteArray(
            "/dev/zero") << QByteArray("/dev/zero: is larger than 1 GiB; expected a smaller document\n");
    }

    void whatCannotBeReadIsOneLine()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, complaint);
        Tessel tessel;
        tessel.put("good.json", kGood);
        QCOMPARE(tessel.run({"show", file}).all(), answer(2, "", complaint));
        QCOMPARE(tessel.run({"format", "--check", file}).all(), answer(2, "", complaint));
    }

    void aNameWithoutALetterIsToldAsSuch_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::newRow("input") << Arguments{"show", ""};
        QTest::newRow("output") << Arguments{"format", "good.json", "-o", ""};
    }

    void aNameWithoutALetterIsToldAsSuch()
    {
        QFETCH(Arguments, arguments);
        Tessel tessel;
        tessel.put("good.json", kGood);
        const Told told = tessel.run(arguments);
        QCOMPARE(told.status, 2);
        QCOMPARE(told.out, QByteArray());
        QCOMPARE(told.err.count('\n'), 1);
        // Who reads ": cannot be read" looks for the name before the colon.
        QVERIFY2(!told.err.startsWith(':'), told.err.constData());
    }

    void anUnwritableOutputIsOneLine_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QByteArray>("complaint");
        QTest::newRow("in a missing folder")
            << QByteArray("none/o.json")
            << QByteArray("none/o.json: cannot be written: No such file or directory; nothing was changed\n");
        QTest::newRow("a folder") << QByteArray("/")
                                  << QByteArray("/: cannot be written: it is a folder; name a file\n");
        QTest::newRow("below a file")
            << QByteArray("good.json/o.json")
            << QByteArray("good.json/o.json: cannot be written: Not a directory; nothing was changed\n");
    }

    void anUnwritableOutputIsOneLine()
    {
        QFETCH(QByteArray, output);
        QFETCH(QByteArray, complaint);
        Tessel tessel;
        tessel.put("good.json", kGood);
        QCOMPARE(tessel.run({"format", "good.json", "-o", output}).all(), answer(2, "", complaint));
        QCOMPARE(tessel.names(), Arguments{"good.json"});
        QCOMPARE(tessel.get("good.json"), QByteArray(kGood));
    }

    void aFullDiskLeavesTheOldFile_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("a document smaller than any buffer")
            << QByteArray("{\"label\":\"" + QByteArray(3000, 'x') + "\"}");
        QTest::newRow("a large document") << QByteArray("{\"label\":\"" + QByteArray(300000, 'x') + "\"}");
    }

    void aFullDiskLeavesTheOldFile()
    {
        QFETCH(QByteArray, bytes);
        Tessel tessel;
        tessel.put("in.json", bytes);
        tessel.put("old.json", kGood);
        tessel.largestFile = 1024;
        const Told toOther = tessel.run({"format", "in.json", "-o", "old.json"});
        const Told toNew = tessel.run({"format", "in.json", "-o", "new.json"});
        const Told inPlace = tessel.run({"format", "-i", "in.json"});
        QCOMPARE(tessel.get("old.json"), QByteArray(kGood));
        QCOMPARE(tessel.get("in.json"), bytes);
        QCOMPARE(tessel.names(), (Arguments{"in.json", "old.json"}));
        for (const Told &told : {toOther, toNew, inPlace}) {
            QCOMPARE(told.status, 2);
            QCOMPARE(told.out, QByteArray());
            QVERIFY2(told.err.contains(".json: cannot be written: "), told.err.constData());
            QCOMPARE(told.err.count('\n'), 1);
        }
    }

    void theReasonOfAFailedWriteIsTold()
    {
        Tessel tessel;
        tessel.put("in.json", "{\"label\":\"" + QByteArray(300000, 'x') + "\"}");
        tessel.largestFile = 1024;
        QCOMPARE(tessel.run({"format", "in.json", "-o", "new.json"}).all(),
            answer(2, "", "new.json: cannot be written: File too large; nothing was changed\n"));
    }
};

QTEST_APPLESS_MAIN(tst_tessel_bad_input)
#include "tst_tessel_bad_input.moc"
