#include "tests/cli/Tessel.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <memory>

using tessel::test::answer;
using tessel::test::Tessel;
using tessel::test::Told;

using Arguments = QList<QByteArray>;

namespace {

const char *const kGood = "{\"name\":\"D\",\"entities\":[{\"name\":\"A\"}]}";

/// An entity that has no name, and a second one of the same name below another.
const char *const kBad = "{\"entities\":[{\"name\":\"A\",\"entities\":[{\"name\":\"\"},{\"name\":\"A\"}]}]}";

const char *const kRun = "{\"type\":\"config\"}";

/// What is printed for kBad in the file \a name.
QByteArray badLines(const QByteArray &name)
{
    return name + ": /entities/0/entities/0 (A/): the entity has no name; give it one [entity-name-empty]\n"
        + name
        + ": /entities/0/entities/1 (A/A): the name is already that of A; rename one of them "
          "[entity-name-duplicate]\n";
}

/// The same for programs: the elements of an array, without its brackets.
QByteArray badObjects(const QByteArray &name)
{
    return "    {\n"
           "        \"code\": \"entity-name-empty\",\n"
           "        \"file\": \""
        + name
        + "\",\n"
          "        \"message\": \"the entity has no name; give it one\",\n"
          "        \"path\": \"/entities/0/entities/0\",\n"
          "        \"place\": \"A/\",\n"
          "        \"severity\": \"error\"\n"
          "    },\n"
          "    {\n"
          "        \"code\": \"entity-name-duplicate\",\n"
          "        \"file\": \""
        + name
        + "\",\n"
          "        \"message\": \"the name is already that of A; rename one of them\",\n"
          "        \"path\": \"/entities/0/entities/1\",\n"
          "        \"place\": \"A/A\",\n"
          "        \"severity\": \"error\"\n"
          "    }";
}

const char *const kMissing = "none.json: cannot be read: No such file or directory\n";
const char *const kIsRun = "run.json: is a run configuration; only dictionaries are checked\n";
const char *const kCut =
    "cut.json:1:2: expected a key in double quotes, but the file ends here; it may have been cut off\n";

} // namespace

class tst_tessel_check : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        tessel = std::make_unique<Tessel>();
        tessel->put("good.json", kGood);
        tessel->put("bad.json", kBad);
        tessel->put("run.json", kRun);
        tessel->put("cut.json", "{");
    }

    void cleanup() { tessel.reset(); }

    void eachFileIsJudgedAndTheWorstStatusIsReturned_data()
    {
        QTest::addColumn<Arguments>("files");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QByteArray>("messages");
        const QByteArray lines = badLines("bad.json");
        const QByteArray none = "[\n]\n";
        const QByteArray objects = "[\n" + badObjects("bad.json") + "\n]\n";
        const auto row = [](const char *tag, const Arguments &files, int status, const QByteArray &text,
                             const QByteArray &json, const QByteArray &messages) {
            QTest::newRow(tag) << files << status << text << json << messages;
        };
        row("nothing wrong", {"good.json"}, 0, "", none, "");
        row("nothing wrong in several", {"good.json", "good.json"}, 0, "", none, "");
        row("faults", {"bad.json"}, 1, lines, objects, "");
        row("faults before a good file", {"bad.json", "good.json"}, 1, lines, objects, "");
        row("faults behind a good file", {"good.json", "bad.json"}, 1, lines, objects, "");
        row("faults in two files", {"bad.json", "bad.json"}, 1, lines + lines,
            "[\n" + badObjects("bad.json") + ",\n" + badObjects("bad.json") + "\n]\n", "");
        row("a missing file", {"none.json"}, 2, "", none, kMissing);
        row("a missing file before faults", {"none.json", "bad.json"}, 2, lines, objects, kMissing);
        row("a missing file behind faults", {"bad.json", "none.json"}, 2, lines, objects, kMissing);
        row("a missing file before a good one", {"none.json", "good.json"}, 2, "", none, kMissing);
        row("a broken file", {"cut.json"}, 2, "", none, kCut);
        row("a run configuration", {"run.json"}, 2, "", none, kIsRun);
        row("all that can happen", {"run.json", "bad.json", "none.json", "good.json", "cut.json"}, 2, lines,
            objects, QByteArray(kIsRun) + kMissing + kCut);
    }

    void eachFileIsJudgedAndTheWorstStatusIsReturned()
    {
        QFETCH(Arguments, files);
        QFETCH(int, status);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, json);
        QFETCH(QByteArray, messages);
        QCOMPARE(tessel->run(Arguments{"check"} + files).all(), answer(status, text, messages));
        QCOMPARE(tessel->run(Arguments{"check", "--format", "text"} + files).all(),
            answer(status, text, messages));
        QCOMPARE(tessel->run(Arguments{"check", "--format", "json"} + files).all(),
            answer(status, json, messages));
        QCOMPARE(tessel->run(Arguments{"check"} + files + Arguments{"--format=json"}).all(),
            answer(status, json, messages));
    }

    void everyFindingIsOneLine_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const char *tag, const QByteArray &document, const QByteArray &line) {
            QTest::newRow(tag) << document << "d.json: " + line + '\n';
        };
        row("entity-name-empty", R"({"entities":[{"name":" "}]})",
            "/entities/0 ( ): the entity has no name; give it one [entity-name-empty]");
        row("no key for the name", R"({"entities":[{}]})",
            "/entities/0: the entity has no name; give it one [entity-name-empty]");
        row("entity-name-invalid", R"({"entities":[{"name":"A-B"}]})",
            "/entities/0 (A-B): an entity's name is a letter or _ followed by letters, digits and _ "
            "[entity-name-invalid]");
        row("entity-name-unprintable", R"({"entities":[{"name":"\nA\t"}]})",
            "/entities/0 (\\u000aA\\u0009): an entity's name holds no control character, double quote or "
            "backslash [entity-name-unprintable]");
        row("entity-name-too-long", "{\"entities\":[{\"name\":\"" + QByteArray(51, 'A') + "\"}]}",
            "/entities/0 (" + QByteArray(51, 'A')
                + "): an entity's name has at most 50 characters; this one has 51 [entity-name-too-long]");
        row("entity-name-duplicate", R"({"name":"A","entities":[{"name":"A"}]})",
            "/entities/0 (A): the name is already that of the dictionary itself; rename one of them "
            "[entity-name-duplicate]");
        row("entity-name-is-alias", R"({"entities":[{"name":"A","alias":"A"}]})",
            "/entities/0 (A): the name is also an alias of an entity; change one of them "
            "[entity-name-is-alias]");
        row("entity-name-is-group", R"({"entities":[{"name":"A","variables":[{"name":"V","group":"A"}]}]})",
            "/entities/0 (A): the name is also a group of variables; change one of them "
            "[entity-name-is-group]");
        row("a name beyond ASCII is printed in UTF-8",
            "{\"entities\":[{\"name\":\"\xc3\x91\"},{\"name\":\"\xc3\x91\"}]}",
            "/entities/1 (\xc3\x91): the name is already that of \xc3\x91; rename one of them "
            "[entity-name-duplicate]");
    }

    void everyFindingIsOneLine()
    {
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, line);
        tessel->put("d.json", document);
        QCOMPARE(tessel->run({"check", "d.json"}).all(), answer(1, line));
    }

    void programsAreToldTheNamesThemselves()
    {
        tessel->put("d.json", "{\"entities\":[{\"name\":\"\\n\xc3\x91\\u0022\"}]}");
        const Told told = tessel->run({"check", "d.json", "--format", "json"});
        const QJsonArray findings = QJsonDocument::fromJson(told.out).array();
        QCOMPARE(findings.size(), 2);
        for (const QJsonValue &finding : findings)
            QCOMPARE(
                finding.toObject().value(QLatin1String("place")).toString(), QStringLiteral("\n\u00d1\""));
    }

    void standardInputIsJudgedToo()
    {
        tessel->input = kBad;
        QCOMPARE(tessel->run({"check", "-"}).all(), answer(1, badLines("standard input")));
        QCOMPARE(tessel->run({"check", "-", "--format", "json"}).all(),
            answer(1, "[\n" + badObjects("standard input") + "\n]\n"));
        QCOMPARE(tessel->run({"check", "good.json", "-", "bad.json"}).all(),
            answer(1, badLines("standard input") + badLines("bad.json")));
        tessel->input = kGood;
        QCOMPARE(tessel->run({"check", "-"}).all(), answer(0, ""));
        tessel->input = kRun;
        QCOMPARE(tessel->run({"check", "-"}).all(),
            answer(2, "", "standard input: is a run configuration; only dictionaries are checked\n"));
        tessel->input = "[]";
        QCOMPARE(tessel->run({"check", "-"}).all(),
            answer(2, "", "standard input:1:1: expected an object at the top, found an array\n"));
    }

    void whatCannotBeReadIsOneLine_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("complaint");
        QTest::newRow("below a file") << QByteArray("good.json/f.json")
                                      << QByteArray("good.json/f.json: cannot be read: Not a directory\n");
        QTest::newRow("a folder") << QByteArray(".")
                                  << QByteArray(".: cannot be read: it is a folder; name a file\n");
        QTest::newRow("an empty file")
            << QByteArray("/dev/null")
            << QByteArray("/dev/null:1:1: expected an object at the top, found nothing: the file is empty\n");
    }

    void whatCannotBeReadIsOneLine()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, complaint);
        QCOMPARE(tessel->run({"check", file}).all(), answer(2, "", complaint));
    }

    void fileNamesAreBytes()
    {
        tessel->put("\xc3\xb1\xff\n.json", kBad);
        QCOMPARE(
            tessel->run({"check", "\xc3\xb1\xff\n.json"}).all(), answer(1, badLines("\xc3\xb1\xff?.json")));
    }

    void theSampleIsInOrder()
    {
        QCOMPARE(tessel->run({"check", TESSEL_SAMPLES "/census.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->run({"check", TESSEL_SAMPLES "/census.json", "--format", "json"}).all(),
            answer(0, "[\n]\n"));
        QCOMPARE(tessel->run({"check", TESSEL_SAMPLES "/run.json"}).all(),
            answer(
                2, "", TESSEL_SAMPLES "/run.json: is a run configuration; only dictionaries are checked\n"));
    }

    void nothingIsWritten()
    {
        const QList<QByteArray> before = tessel->names();
        tessel->run({"check", "bad.json", "good.json", "run.json", "cut.json", "none.json"});
        QCOMPARE(tessel->names(), before);
        QCOMPARE(tessel->get("bad.json"), QByteArray(kBad));
        QCOMPARE(tessel->get("good.json"), QByteArray(kGood));
        QCOMPARE(tessel->get("run.json"), QByteArray(kRun));
        QCOMPARE(tessel->get("cut.json"), QByteArray("{"));
    }

    void wrongUsageIsOneLineOfHelp_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::addColumn<QByteArray>("complaint");
        QTest::newRow("no file") << Arguments{"check"} << QByteArray("FILE is required");
        QTest::newRow("an unknown format") << Arguments{"check", "bad.json", "--format", "xml"}
                                           << QByteArray("--format: xml not in {text,json}");
        QTest::newRow("a format without its name") << Arguments{
            "check", "bad.json", "--format"} << QByteArray("--format: 1 required TEXT:{text,json} missing");
    }

    void wrongUsageIsOneLineOfHelp()
    {
        QFETCH(Arguments, arguments);
        QFETCH(QByteArray, complaint);
        QCOMPARE(tessel->run(arguments).all(),
            answer(2, "", "tessel: " + complaint + "; \"tessel --help\" shows what can be asked\n"));
    }

    void outputThatCannotBeWrittenIsTheWorstOfAll()
    {
        tessel->standardOutput = "/dev/full";
        for (const char *form : {"text", "json"}) {
            const Told told = tessel->run({"check", "bad.json", "--format", form});
            QCOMPARE(told.status, 2);
            QVERIFY2(told.err.startsWith("standard output: cannot be written: "), told.err.constData());
            QCOMPARE(told.err.count('\n'), 1);
        }
    }

    void helpTellsWhatTheStatusMeans()
    {
        const Told told = tessel->run({"check", "--help"});
        QCOMPARE(told.status, 0);
        QCOMPARE(told.err, QByteArray());
        QVERIFY(told.out.contains("Exit status: 0 nothing to report; 1 findings"));
        QVERIFY(told.out.contains("--format"));
        QVERIFY(told.out.contains("FILE"));
    }

    void aFileWithAccentsIsNamedToPrograms()
    {
        tessel->put("a\xc3\xb1o.json", kBad);
        const Told told = tessel->run({"check", "--format", "json", "a\xc3\xb1o.json"});
        QCOMPARE(told.status, 1);
        QCOMPARE(told.out, QByteArray("[\n" + badObjects("a\xc3\xb1o.json") + "\n]\n"));
    }

private:
    std::unique_ptr<Tessel> tessel;
};

QTEST_APPLESS_MAIN(tst_tessel_check)
#include "tst_tessel_check.moc"
