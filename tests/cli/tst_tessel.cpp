#include "tests/cli/Tessel.h"

#include <QtTest>

using tessel::test::answer;
using tessel::test::Tessel;
using tessel::test::Told;

using Arguments = QList<QByteArray>;

class tst_tessel : public QObject {
    Q_OBJECT

private slots:
    void theVersionIsOneLine()
    {
        QCOMPARE(Tessel().run({"--version"}).all(), answer(0, "tessel " TESSEL_VERSION "\n"));
    }

    void helpTellsWhatCanBeAsked_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::addColumn<Arguments>("words");
        const Arguments all{"Usage: tessel [OPTIONS]", "--help", "--version", "--verbose", "show", "format",
            "Exit status: 0 nothing to report; 1 findings, differences or would-change; 2 wrong usage"};
        const Arguments show{
            "Usage: tessel show", "FILE", "PATH", "--help", "--format", "text", "json", "Exit status: 0"};
        const Arguments format{"Usage: tessel format", "FILE", "--help", "-o,--output", "-i,--in-place",
            "--check", "--diff", "--force", "Exit status: 0"};
        QTest::newRow("of the program") << Arguments{"--help"} << all;
        QTest::newRow("of the program, short") << Arguments{"-h"} << all;
        QTest::newRow("of show") << Arguments{"show", "--help"} << show;
        QTest::newRow("of show, short") << Arguments{"show", "-h"} << show;
        QTest::newRow("of format") << Arguments{"format", "--help"} << format;
        QTest::newRow("of format, with a file that is missing") << Arguments{"format", "x", "-h"} << format;
    }

    void helpTellsWhatCanBeAsked()
    {
        QFETCH(Arguments, arguments);
        QFETCH(Arguments, words);
        const Told told = Tessel().run(arguments);
        QCOMPARE(told.status, 0);
        QCOMPARE(told.err, QByteArray());
        for (const QByteArray &word : qAsConst(words))
            QVERIFY2(told.out.contains(word), word.constData());
        QVERIFY(told.out.endsWith('\n'));
    }

    void wrongUsageIsOneLineAndNothingElse_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::addColumn<QByteArrayList>("words");
        QTest::newRow("no verb") << Arguments{} << Arguments{"tessel: ", "--help"};
        QTest::newRow("only an option") << Arguments{"--verbose"} << Arguments{"tessel: ", "--help"};
        QTest::newRow("unknown verb")
            << Arguments{"shwo", "f.json"} << Arguments{"tessel: ", "shwo", "--help"};
        QTest::newRow("unknown option")
            << Arguments{"--colour"} << Arguments{"tessel: ", "--colour", "--help"};
        QTest::newRow("unknown option of show")
            << Arguments{"show", "--bogus", "f.json"} << Arguments{"tessel: ", "--bogus", "--help"};
        QTest::newRow("unknown option of format")
            << Arguments{"format", "f.json", "--bogus"} << Arguments{"tessel: ", "--bogus", "--help"};
        QTest::newRow("show without a file") << Arguments{"show"} << Arguments{"tessel: ", "FILE", "--help"};
        QTest::newRow("format without a file")
            << Arguments{"format"} << Arguments{"tessel: ", "FILE", "--help"};
        QTest::newRow("show with two paths")
            << Arguments{"show", "f.json", "A", "B"} << Arguments{"tessel: ", "B", "--help"};
        QTest::newRow("unknown form") << Arguments{"show", "--format", "xml", "f.json"}
                                      << Arguments{"tessel: ", "--format", "xml", "text", "json"};
        QTest::newRow("form without a name")
            << Arguments{"show", "f.json", "--format"} << Arguments{"tessel: ", "--format"};
        QTest::newRow("output without a name")
            << Arguments{"format", "f.json", "-o"} << Arguments{"tessel: ", "--output"};
        QTest::newRow("-i and -o") << Arguments{"format", "-i", "-o", "x", "f.json"}
                                   << Arguments{"tessel: ", "--in-place", "--output"};
        QTest::newRow("--check and -o") << Arguments{"format", "--check", "-o", "x", "f.json"}
                                        << Arguments{"tessel: ", "--check", "--output"};
        QTest::newRow("--check and -i") << Arguments{"format", "--check", "-i", "f.json"}
                                        << Arguments{"tessel: ", "--check", "--in-place"};
        QTest::newRow("--diff and -o") << Arguments{"format", "--diff", "-o", "x", "f.json"}
                                       << Arguments{"tessel: ", "--diff", "--output"};
        QTest::newRow("--diff and -i")
            << Arguments{"format", "--diff", "-i", "f.json"} << Arguments{"tessel: ", "--diff", "--in-place"};
        QTest::newRow("several files and one output") << Arguments{"format", "f.json", "g.json", "-o", "x"}
                                                      << Arguments{"tessel: ", "-i", "--check", "--diff"};
        QTest::newRow("several files and standard output")
            << Arguments{"format", "f.json", "g.json"} << Arguments{"tessel: ", "-i", "--check", "--diff"};
        QTest::newRow("standard input in place")
            << Arguments{"format", "-i", "-"} << Arguments{"tessel: standard input", "-i"};
    }

    void wrongUsageIsOneLineAndNothingElse()
    {
        QFETCH(Arguments, arguments);
        QFETCH(QByteArrayList, words);
        Tessel tessel;
        tessel.put("f.json", "{\"name\": \"A\"}");
        tessel.put("g.json", "{\"name\": \"B\"}");
        const Told told = tessel.run(arguments);
        QCOMPARE(told.status, 2);
        QCOMPARE(told.out, QByteArray());
        QCOMPARE(told.err.count('\n'), 1);
        QVERIFY(told.err.endsWith('\n'));
        for (const QByteArray &word : qAsConst(words))
            QVERIFY2(told.err.contains(word), (word + " in " + told.err).constData());
        QCOMPARE(tessel.names(), (Arguments{"f.json", "g.json"}));
        QCOMPARE(tessel.get("f.json"), QByteArray("{\"name\": \"A\"}"));
    }

    void theSamplesAreShownAndNormal_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("dictionary") << QByteArray(TESSEL_SAMPLES "/census.json");
        QTest::newRow("run") << QByteArray(TESSEL_SAMPLES "/run.json");
    }

    void theSamplesAreShownAndNormal()
    {
        QFETCH(QByteArray, file);
        const Tessel tessel;
        const Told shown = tessel.run({"show", file});
        QCOMPARE(shown.status, 0);
        QCOMPARE(shown.err, QByteArray());
        QVERIFY(shown.out.contains("PERSON"));
        QCOMPARE(tessel.run({"format", "--check", file}).all(), answer(0, ""));
        QCOMPARE(tessel.run({"format", "--diff", file}).all(), answer(0, ""));
        QCOMPARE(tessel.run({"format", file}).all(), answer(0, tessel.get(file)));
        QCOMPARE(tessel.run({"show", "--format", "json", file}).all(), answer(0, tessel.get(file)));
        QCOMPARE(tessel.run({"--verbose", "format", "--check", file}).all(), answer(0, ""));
    }

    void theLibrariesLogIsSilent_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::newRow("show") << Arguments{"show", TESSEL_SAMPLES "/census.json", "PERSON"};
        QTest::newRow("format") << Arguments{"format", TESSEL_SAMPLES "/census.json"};
        QTest::newRow("diff") << Arguments{"format", "--diff", TESSEL_SAMPLES "/census.json"};
    }

    void theLibrariesLogIsSilent()
    {
        QFETCH(Arguments, arguments);
        // Asks Qt for all that it has to say.
        qputenv("QT_LOGGING_RULES", "*.debug=true");
        const Told told = Tessel().run(arguments);
        qunsetenv("QT_LOGGING_RULES");
        QCOMPARE(told.status, 0);
        QCOMPARE(told.err, QByteArray());
    }

    void standardOutputThatTakesNothingIsAFailure_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::newRow("version") << Arguments{"--version"};
        QTest::newRow("help") << Arguments{"--help"};
        QTest::newRow("a little") << Arguments{"show", TESSEL_SAMPLES "/run.json"};
        QTest::newRow("much") << Arguments{"format", TESSEL_SAMPLES "/census.json"};
        QTest::newRow("much, for programs")
            << Arguments{"show", "--format", "json", TESSEL_SAMPLES "/census.json"};
    }

    void standardOutputThatTakesNothingIsAFailure()
    {
        QFETCH(Arguments, arguments);
        Tessel tessel;
        tessel.standardOutput = "/dev/full";
        const Told told = tessel.run(arguments);
        QCOMPARE(told.status, 2);
        QVERIFY2(told.err.startsWith("standard output: cannot be written: "), told.err.constData());
        QCOMPARE(told.err.count('\n'), 1);
    }

    void theReasonOfTheFailureIsTold_data() { standardOutputThatTakesNothingIsAFailure_data(); }

    void theReasonOfTheFailureIsTold()
    {
        QFETCH(Arguments, arguments);
        Tessel tessel;
        tessel.standardOutput = "/dev/full";
        QCOMPARE(tessel.run(arguments).all(),
            answer(2, "", "standard output: cannot be written: No space left on device\n"));
    }
};

QTEST_APPLESS_MAIN(tst_tessel)
#include "tst_tessel.moc"
