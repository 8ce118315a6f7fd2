#include "tests/cli/Described.h"
#include "tests/cli/Tessel.h"

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using tessel::test::answer;
using tessel::test::header;
using tessel::test::quoted;
using tessel::test::Tessel;
using tessel::test::Told;

using Arguments = QList<QByteArray>;

class tst_tessel_from_data_problems : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        tessel.reset(new Tessel);
        tessel->put("a.csv", header("A B"));
        tessel->put("bad.sav", quoted("{'problem':'is cut off in Año; copy it again'}"));
        tessel->put("enc.sav", quoted("{'problem':'is not in UTF-8 (Ž)','retry':true}"));
        tessel->put("d.json", "{}");
        tessel->put("old.json", "old");
    }

    void aProblemIsOneLineAndNothingIsWritten_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::addColumn<QByteArray>("told");
        const QByteArray cut = "bad.sav: is cut off in Año; copy it again\n";
        const QByteArray encoding = "enc.sav: is not in UTF-8 (Ž) (for example --encoding windows-1252)\n";
        QTest::newRow("a file that cannot be read") << Arguments{"bad.sav"} << cut;
        QTest::newRow("a file in another encoding") << Arguments{"enc.sav"} << encoding;
        QTest::newRow("all problems are told") << Arguments{"bad.sav", "a.csv", "enc.sav"} << cut + encoding;
        QTest::newRow("a missing file") << Arguments{
            "a.csv", "none.csv"} << QByteArray("none.csv: cannot be read: No such file or directory\n");
        QTest::newRow("a name of odd bytes") << Arguments{
            "n\xf1\x1b\xff"} << QByteArray("n\xf1?\xff: cannot be read: No such file or directory\n");
        QTest::newRow("a missing dictionary") << Arguments{"a.csv", "--into",
            "none.json"} << QByteArray("none.json: cannot be read: No such file or directory\n");
        QTest::newRow("a dictionary and a source") << Arguments{"bad.sav", "--into",
            "none.json"} << cut + "none.json: cannot be read: No such file or directory\n";
        QTest::newRow("no dictionary")
            << Arguments{"a.csv", "--into", "old.json"}
            << QByteArray("old.json:1:1: expected a value: an object, an array, a text "
                          "in double quotes, a number, true, false or null\n");
        QTest::newRow("a run configuration")
            << Arguments{"a.csv", "--into", "run.json"}
            << QByteArray("run.json: is a run configuration; only a dictionary takes variables\n");
        QTest::newRow("standard input") << Arguments{
            "-"} << QByteArray("tessel: standard input cannot be a source of fields; name a file\n");
        QTest::newRow("no name of an entity") << Arguments{"a.csv", "--entity",
            " "} << QByteArray("tessel: --entity takes the name of an entity and not \" \"\n");
        QTest::newRow("an empty name of a file") << Arguments{""} << QByteArray("\"\": cannot be read: ");
    }

    void aProblemIsOneLineAndNothingIsWritten()
    {
        QFETCH(Arguments, arguments);
        QFETCH(QByteArray, told);
        tessel->put("run.json", quoted("{'type':'config'}"));
        for (const QByteArray output : {"-", "old.json", "new.json"}) {
            const Told all = tessel->run(Arguments{"from-data"} + arguments + Arguments{"-o", output});
            QCOMPARE(all.status, 2);
            QCOMPARE(all.out, QByteArray());
            if (told.endsWith('\n'))
                QCOMPARE(all.err, told);
            else
                QVERIFY2(all.err.startsWith(told), all.err.constData());
        }
        QCOMPARE(tessel->get("old.json"), QByteArray("old"));
        QCOMPARE(tessel->get("new.json"), QByteArray("(no file)"));
    }

    void recordsAreAWholeNumberAboveNothing_data()
    {
        QTest::addColumn<QByteArray>("number");
        for (const char *number : {"0", "-1", "1.5", "1e3", "x", "9223372036854775808", "10 000", "%1"})
            QTest::addRow("\"%s\"", number) << QByteArray(number);
    }

    void recordsAreAWholeNumberAboveNothing()
    {
        QFETCH(QByteArray, number);
        QCOMPARE(tessel->run({"from-data", "a.csv", "--categories-from-data=" + number}).all(),
            answer(2, "",
                "tessel: --categories-from-data takes a whole number of records above 0, for example 10000, "
                "and "
                "not \""
                    + number + "\"\n"));
    }

    void wrongUsageIsToldByTheParser_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::newRow("no file") << Arguments{};
        QTest::newRow("no such way with conflicts") << Arguments{"a.csv", "--on-conflict", "ask"};
        QTest::newRow("no such option") << Arguments{"a.csv", "--force"};
        QTest::newRow("an option without its value") << Arguments{"a.csv", "--into"};
    }

    void wrongUsageIsToldByTheParser()
    {
        QFETCH(Arguments, arguments);
        const Told told = tessel->run(Arguments{"from-data"} + arguments);
        QCOMPARE(told.status, 2);
        QCOMPARE(told.out, QByteArray());
        QVERIFY2(told.err.startsWith("tessel: ") && told.err.count('\n') == 1, told.err.constData());
        QVERIFY(told.err.endsWith("; \"tessel --help\" shows what can be asked\n"));
    }

    void aSourceIsNeverReplaced_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("by its name") << QByteArray("a.csv");
        QTest::newRow("by another way") << QByteArray("./a.csv");
        QTest::newRow("by a link") << QByteArray("link.csv");
    }

    void aSourceIsNeverReplaced()
    {
        QFETCH(QByteArray, output);
        QCOMPARE(::symlink("a.csv", tessel->path("link.csv").constData()), 0);
        QCOMPARE(tessel->run({"from-data", "bad.sav", "a.csv", "-o", output}).all(),
            answer(2, "", "tessel: the output would replace a source; name another file with -o\n"));
        QCOMPARE(tessel->get("a.csv"), header("A B"));
    }

    void anOutputThatCannotBeWrittenIsAProblem()
    {
        const Told told = tessel->run({"from-data", "a.csv", "-o", "none/o.json"});
        QCOMPARE(told.status, 2);
        QVERIFY2(told.err.endsWith(
                     "\nnone/o.json: cannot be written: No such file or directory; nothing was changed\n"),
            told.err.constData());
        QCOMPARE(tessel->run({"from-data", "a.csv", "-o", "."}).status, 2);
    }

    void aFullDiskLeavesTheOldFile()
    {
        tessel->put("t.sav", quoted("{'fields':[{'name':'A','type':'STRING'}]}"));
        tessel->largestFile = 200;
        const Told told = tessel->run({"from-data", "t.sav", "-o", "old.json"});
        QCOMPARE(told.status, 2);
        QVERIFY2(told.err.startsWith("old.json: cannot be written: "), told.err.constData());
        QCOMPARE(tessel->get("old.json"), QByteArray("old"));
        QCOMPARE(tessel->names(), (Arguments{"a.csv", "bad.sav", "d.json", "enc.sav", "old.json", "t.sav"}));
    }

    void aFolderThatTakesNothingIsAProblem()
    {
        tessel->put("t.sav", quoted("{'fields':[{'name':'A','type':'STRING'}]}"));
        QCOMPARE(::chmod(tessel->path(".").constData(), 0555), 0);
        const auto restored = qScopeGuard([this] { ::chmod(tessel->path(".").constData(), 0755); });
        QCOMPARE(::chmod(tessel->path("d.json").constData(), 0644), 0);
        tessel->obeysModes = true;
        for (const QByteArray output : {"d.json", "new.json"}) {
            const Told told = tessel->run({"from-data", "t.sav", "--into", "d.json", "-o", output});
            QCOMPARE(told.all(),
                answer(2, "", output + ": cannot be written: Permission denied; nothing was changed\n"));
        }
        QCOMPARE(tessel->get("d.json"), QByteArray("{}"));
    }

    void aStreamThatTakesNothingIsAProblem()
    {
        tessel->standardOutput = "/dev/full";
        const Told told = tessel->run({"from-data", "a.csv"});
        QCOMPARE(told.status, 2);
        QVERIFY2(told.err.endsWith("standard output: cannot be written: No space left on device\n"),
            told.err.constData());
    }

    void nothingForATerminalIsSent()
    {
        tessel->put("x.sav", quoted("{'problem':'\\u001b[31m \\u009b \\u0007'}"));
        QCOMPARE(tessel->run({"from-data", "x.sav"}).err, QByteArray("x.sav: \\u001b[31m \\u009b \\u0007\n"));
        tessel->put("y.sav",
            quoted("{'fields':[{'name':'\\u001b[31m'},{'name':'\\u001b[31m'}],'remarks':[{'field':'\\u001b','"
                   "reason':"
                   "'\\u009b'}]}"));
        const Told told = tessel->run({"from-data", "y.sav", "--entity", "\x1b"});
        QVERIFY2(!told.err.contains('\x1b') && !told.err.contains("\xc2\x9b"), told.err.constData());
        const Told conflict = tessel->run({"from-data", "y.sav"});
        QVERIFY(
            conflict.err.contains("y.sav: \\u001b[31m: an earlier field, \\u001b[31m, gives y a variable"));
        QVERIFY(!conflict.err.contains('\x1b'));
    }

private:
    QScopedPointer<Tessel> tessel;
};

QTEST_APPLESS_MAIN(tst_tessel_from_data_problems)
#include "tst_tessel_from_data_problems.moc"
