#include "tests/cli/Tessel.h"

#include <QtTest>

using tessel::test::answer;
using tessel::test::Tessel;
using tessel::test::Told;

using Arguments = QList<QByteArray>;

namespace {

const char *const kLoose = "{\"name\":\"D\"}";
const char *const kNormal =
    "{\n    \"name\": \"D\",\n    \"selectable\": false,\n    \"virtual\": false\n}\n";

/// True when \a bytes hold nothing that a terminal would act upon but line ends.
bool isHarmless(const QByteArray &bytes)
{
    for (int i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes.at(i));
        if ((byte < 0x20 && byte != '\n') || byte == 0x7f)
            return false;
        // Controls of the upper half, in UTF-8.
        if (byte == 0xc2 && i + 1 < bytes.size() && static_cast<unsigned char>(bytes.at(i + 1)) < 0xa0)
            return false;
    }
    return true;
}

} // namespace

class tst_tessel_names : public QObject {
    Q_OBJECT

private slots:
    void aFileMayHaveAnyName_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("shown");
        for (const char *locale : {"C", "C.UTF-8"}) {
            const auto row = [locale](const char *tag, const QByteArray &name, const QByteArray &shown) {
                QTest::addRow("%s in %s", tag, locale) << QByteArray(locale) << name << shown;
            };
            row("accents in UTF-8", "a\xc3\xb1o.json", "a\xc3\xb1o.json");
            row("other planes in UTF-8", "\xf0\x9f\x98\x80", "\xf0\x9f\x98\x80");
            row("accents in Latin-1", "a\xf1o.json", "a\xf1o.json");
            row("bytes that are no text", "\xff\xfe\xc3\x28", "\xff\xfe\xc3\x28");
            row("blanks", " a  b ", " a  b ");
            row("a line feed", "a\nb", "a?b");
            row("a terminal's sequence", "\x1b[31mred\x07", "?[31mred?");
            row("a per cent sign", "%1%s%n", "%1%s%n");
            row("quotes and dollars", "'\"$(x)`;&|*?", "'\"$(x)`;&|*?");
            row("a leading dash", "-i", "-i");
            row("two leading dashes", "--check", "--check");
        }
    }

    void aFileMayHaveAnyName()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, shown);
        Tessel tessel;
        tessel.locale = locale;
        tessel.put(name, kLoose);
        QCOMPARE(tessel.run({"format", "--check", "--", name}).all(),
            answer(1, "", shown + ": is not in normal form; \"tessel format -i\" rewrites it\n"));
        QCOMPARE(tessel.run({"show", "--", name, "X"}).all(),
            answer(2, "",
                shown + ": holds no entity or variable \"X\"; \"tessel show FILE\" lists the entities\n"));
        QCOMPARE(tessel.run({"format", "-i", "--", name}).all(), answer(0, ""));
        QCOMPARE(tessel.get(name), QByteArray(kNormal));
        QCOMPARE(tessel.names(), Arguments{name});
        tessel.put(name, "{");
        QCOMPARE(tessel.run({"show", "--", name}).all(),
            answer(2, "",
                shown
                    + ":1:2: expected a key in double quotes, but the file ends here; it may have been cut "
                      "off\n"));
        tessel.put("in", kLoose);
        QCOMPARE(tessel.run({"format", "in", "--output=" + name}).all(), answer(0, ""));
        QCOMPARE(tessel.get(name), QByteArray(kNormal));
    }

    void aMissingFileIsNamedByItsOwnBytes_data() { aFileMayHaveAnyName_data(); }

    void aMissingFileIsNamedByItsOwnBytes()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, shown);
        Tessel tessel;
        tessel.locale = locale;
        QCOMPARE(tessel.run({"show", "--", name}).all(),
            answer(2, "", shown + ": cannot be read: No such file or directory\n"));
        tessel.put("in", kLoose);
        QCOMPARE(tessel.run({"format", "in", "-o", "none/" + name}).all(),
            answer(2, "",
                "none/" + shown + ": cannot be written: No such file or directory; nothing was changed\n"));
    }

    void aDiffNamesTheFileByItsOwnBytes()
    {
        Tessel tessel;
        for (const QByteArray name : {"a\xc3\xb1o", "a\xf1o", "--brief"}) {
            tessel.put(name, kLoose);
            const Told told = tessel.run({"format", "--diff", "--", name});
            QCOMPARE(told.status, 1);
            QCOMPARE(told.err, QByteArray());
            QVERIFY2(told.out.startsWith("--- " + name + "\n+++ " + name + " in normal form\n@@ "),
                told.out.constData());
        }
    }

    void nothingForATerminalIsSent_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::newRow("name of a missing file") << Arguments{"show", "\x1b]0;x\x07"};
        QTest::newRow("name of a missing file, upper half") << Arguments{"show",
            "\xc2\x9b"
            "31m"};
        QTest::newRow("name of a file") << Arguments{"format", "--check", "\x1b[31m"};
        QTest::newRow("name of a file in a diff") << Arguments{"format", "--diff", "\x1b[31m"};
        QTest::newRow("name of an output") << Arguments{"format", "\x1b[31m", "-o", "none/\x1b[31m"};
        QTest::newRow("path") << Arguments{"show", "\x1b[31m", "\x1b[31m\xc2\x9b"};
        QTest::newRow("argument too many") << Arguments{"show", "\x1b[31m", "A", "\x1b[31m"};
        QTest::newRow("unknown verb") << Arguments{"\x1b[31m"};
        QTest::newRow("unknown option") << Arguments{"show", "--\x1b[31m"};
        QTest::newRow("unknown form") << Arguments{"show", "\x1b[31m", "--format", "\x1b[31m\xc2\x9b"};
        QTest::newRow("names and values of losses") << Arguments{"format", "losses.json"};
    }

    void nothingForATerminalIsSent()
    {
        QFETCH(Arguments, arguments);
        Tessel tessel;
        tessel.locale = "C.UTF-8";
        tessel.put("\x1b[31m", kLoose);
        tessel.put("losses.json",
            "{\"entities\":[{\"name\":\"\\u001b[31m\\u009b\",\"\\u001b[32m\xc2\x9b\":\"\\u001b["
            "33m\x7f\xc2\x9b\"}]}");
        const Told told = tessel.run(arguments);
        QVERIFY(told.status > 0);
        QVERIFY2(isHarmless(told.err), told.err.toPercentEncoding(" \n:;,./[]\"").constData());
        // A document written to standard output keeps its bytes.
        if (!arguments.contains("losses.json"))
            QVERIFY2(isHarmless(told.out), told.out.toPercentEncoding(" \n:;,./[]\"").constData());
    }

    void aDashIsTheStreamAndNoFile()
    {
        Tessel tessel;
        tessel.put("-", "{\"name\":\"FILE\"}");
        tessel.input = "{\"name\":\"STREAM\"}";
        QVERIFY(tessel.run({"show", "-"}).out.startsWith("STREAM\n"));
        QVERIFY(tessel.run({"show", "./-"}).out.startsWith("FILE\n"));
        QVERIFY(tessel.run({"format", "-o", "-", "./-"}).out.contains("\"FILE\""));
        QCOMPARE(tessel.run({"format", "-", "-o", "./-"}).all(), answer(0, ""));
        QVERIFY(tessel.get("-").contains("\"STREAM\""));
    }
};

QTEST_APPLESS_MAIN(tst_tessel_names)
#include "tst_tessel_names.moc"
