#include "tests/cli/Tessel.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using tessel::test::answer;
using tessel::test::Tessel;
using tessel::test::Told;

using Arguments = QList<QByteArray>;

namespace {

const char *const kLoose = R"({"name":"D","entities":[{"name":"E","label":"Año"}]})";

const char *const kNormal = R"({
    "entities": [
        {
            "label": "Año",
            "name": "E",
            "selectable": false,
            "virtual": false
        }
    ],
    "name": "D",
    "selectable": false,
    "virtual": false
}
)";

const char *const kLossy =
    R"({"name":"D","colour":"red","entities":[{"name":"E","label":"Año","weigthVar":"W"}]})";

/// What kLossy loses, for the file l.json.
const char *const kLosses = "l.json: /colour (D): \"red\" is not written\n"
                            "l.json: /entities/0/weigthVar (E): \"W\" is not written\n";

const char *const kLooseRun = R"({"type":"config","database":{"name":"DB"},"entities":[]})";

const char *const kNormalRun = R"({
    "database": {
        "name": "DB"
    },
    "entities": [
    ],
    "options": {
        "createNoRanges": false,
        "createNotAppMissingInRange": false
    },
    "type": "config"
}
)";

} // namespace

class tst_tessel_format : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        tessel.reset(new Tessel);
        tessel->put("d.json", kLoose);
        tessel->put("l.json", kLossy);
        tessel->put("n.json", kNormal);
        tessel->put("r.json", kLooseRun);
    }

    void standardOutputIsTheDefault()
    {
        QCOMPARE(tessel->run({"format", "d.json"}).all(), answer(0, kNormal));
        QCOMPARE(tessel->run({"format", "-o", "-", "d.json"}).all(), answer(0, kNormal));
        QCOMPARE(tessel->run({"format", "n.json"}).all(), answer(0, kNormal));
        QCOMPARE(tessel->run({"format", "r.json"}).all(), answer(0, kNormalRun));
        QCOMPARE(tessel->run({"format", "l.json"}).all(), answer(1, kNormal, kLosses));
        QCOMPARE(tessel->get("d.json"), QByteArray(kLoose));
    }

    void standardInputIsADocument()
    {
        tessel->input = kLoose;
        QCOMPARE(tessel->run({"format", "-"}).all(), answer(0, kNormal));
        QCOMPARE(tessel->run({"format", "-", "-o", "o.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->get("o.json"), QByteArray(kNormal));
        const Told told = tessel->run({"format", "-", "--check"});
        QCOMPARE(told.status, 1);
        QCOMPARE(told.out, QByteArray());
        QVERIFY2(told.err.startsWith("standard input: is not in normal form"), told.err.constData());
        // Which cannot be done to it.
        QVERIFY2(!told.err.contains("format -i"), told.err.constData());
    }

    void anOutputFileIsWritten()
    {
        QCOMPARE(tessel->run({"format", "d.json", "-o", "o.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->get("o.json"), QByteArray(kNormal));
        QCOMPARE(tessel->run({"format", "--output=o.json", "r.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->get("o.json"), QByteArray(kNormalRun));
        QCOMPARE(tessel->get("d.json"), QByteArray(kLoose));
        QCOMPARE(tessel->names(), (Arguments{"d.json", "l.json", "n.json", "o.json", "r.json"}));
    }

    void anOutputFileTakesWhatIsLeftAndTheRestIsListed()
    {
        QCOMPARE(tessel->run({"format", "l.json", "-o", "o.json"}).all(), answer(1, "", kLosses));
        QCOMPARE(tessel->get("o.json"), QByteArray(kNormal));
        QCOMPARE(tessel->get("l.json"), QByteArray(kLossy));
    }

    void anInputThatIsNoFileIsWrittenToANewFile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("status");
        QTest::newRow("in normal form") << QByteArray(kNormal) << 0;
        QTest::newRow("not in normal form") << QByteArray(kLoose) << 0;
        QTest::newRow("with losses") << QByteArray(kLossy) << 1;
    }

    void anInputThatIsNoFileIsWrittenToANewFile()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, status);
        int ends[2];
        QCOMPARE(::pipe(ends), 0);
        QCOMPARE(int(::write(ends[1], text.constData(), size_t(text.size()))), text.size());
        ::close(ends[1]);
        // As a shell's <(...) names it.
        const QByteArray name = "/dev/fd/" + QByteArray::number(ends[0]);
        const Told told = tessel->run({"format", name, "-o", "o.json"});
        ::close(ends[0]);
        QCOMPARE(told.status, status);
        QCOMPARE(told.out, QByteArray());
        QCOMPARE(tessel->get("o.json"), QByteArray(kNormal));
    }

    void inPlaceReplacesTheFile()
    {
        QCOMPARE(tessel->run({"format", "-i", "d.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->get("d.json"), QByteArray(kNormal));
        QCOMPARE(tessel->run({"format", "--in-place", "r.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->get("r.json"), QByteArray(kNormalRun));
        QCOMPARE(tessel->names(), (Arguments{"d.json", "l.json", "n.json", "r.json"}));
    }

    void aNormalFileIsNotTouched_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::newRow("in place") << Arguments{"-i", "n.json"};
        QTest::newRow("in place, by force") << Arguments{"-i", "--force", "n.json"};
        QTest::newRow("as its own output") << Arguments{"n.json", "-o", "./n.json"};
    }

    void aNormalFileIsNotTouched()
    {
        QFETCH(Arguments, arguments);
        const QByteArray path = tessel->path("n.json");
        const timespec old[2] = {{1000000000, 0}, {1000000000, 0}};
        QCOMPARE(::utimensat(AT_FDCWD, path.constData(), old, 0), 0);
        struct stat before;
        QCOMPARE(::stat(path.constData(), &before), 0);
        QCOMPARE(tessel->run(Arguments{"format"} + arguments).all(), answer(0, ""));
        struct stat after;
        QCOMPARE(::stat(path.constData(), &after), 0);
        QCOMPARE(qint64(after.st_mtime), qint64(1000000000));
        QCOMPARE(quint64(after.st_ino), quint64(before.st_ino));
    }

    void inPlaceRefusesWhatWouldBeLost_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::newRow("in place") << Arguments{"-i", "l.json"};
        QTest::newRow("as its own output") << Arguments{"l.json", "-o", "l.json"};
        QTest::newRow("as its own output by another way") << Arguments{"l.json", "-o", "./l.json"};
        QTest::newRow("as its own output by a link") << Arguments{"l.json", "-o", "link.json"};
    }

    void inPlaceRefusesWhatWouldBeLost()
    {
        QFETCH(Arguments, arguments);
        QCOMPARE(::symlink("l.json", tessel->path("link.json").constData()), 0);
        const Told refused = tessel->run(Arguments{"format"} + arguments);
        QCOMPARE(refused.status, 1);
        QCOMPARE(refused.out, QByteArray());
        QVERIFY2(refused.err.startsWith(QByteArray(kLosses) + "l.json: is left as it is: 2 value"),
            refused.err.constData());
        QVERIFY(refused.err.endsWith("would be lost or changed; --force rewrites it all the same\n"));
        QCOMPARE(tessel->get("l.json"), QByteArray(kLossy));
        QCOMPARE(tessel->run(Arguments{"format", "--force"} + arguments).all(), answer(1, "", kLosses));
        QCOMPARE(tessel->get("l.json"), QByteArray(kNormal));
        QCOMPARE(tessel->run(Arguments{"format"} + arguments).all(), answer(0, ""));
    }

    void whatWouldBeLostIsCounted()
    {
        tessel->put("one.json", R"({"colour":"red"})");
        QCOMPARE(tessel->run({"format", "-i", "one.json"}).all(),
            answer(1, "",
                "one.json: /colour: \"red\" is not written\n"
                "one.json: is left as it is: 1 value would be lost or changed; --force rewrites it all the "
                "same\n"));
        QVERIFY(tessel->run({"format", "-i", "l.json"})
                    .err.endsWith("l.json: is left as it is: 2 values would be lost or changed; --force "
                                  "rewrites it all the same\n"));
    }

    void aKeyGivenTwiceIsALoss()
    {
        const QByteArray twice = R"({"name":"A","name":"B"})";
        tessel->put("t.json", twice);
        const Told told = tessel->run({"format", "-i", "t.json"});
        QCOMPARE(told.status, 1);
        QVERIFY2(told.err.startsWith(
                     "t.json: /name: the key is given more than once and only one of its values is kept\n"),
            told.err.constData());
        QCOMPARE(tessel->get("t.json"), twice);
    }

    void checkWritesNothing()
    {
        QCOMPARE(tessel->run({"format", "--check", "n.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->run({"format", "--check", "d.json"}).all(),
            answer(1, "", "d.json: is not in normal form; \"tessel format -i\" rewrites it\n"));
        QCOMPARE(tessel->run({"format", "--check", "l.json"}).all(),
            answer(1, "",
                QByteArray(kLosses) + "l.json: is not in normal form; \"tessel format -i\" rewrites it\n"));
        QCOMPARE(tessel->get("d.json"), QByteArray(kLoose));
        QCOMPARE(tessel->get("l.json"), QByteArray(kLossy));
    }

    void diffShowsWhatWouldChange()
    {
        tessel->put("d.json", QByteArray(kNormal).replace("\"D\"", "\"D\" "));
        const QByteArray diff = "--- d.json\n"
                                "+++ d.json in normal form\n"
                                "@@ -7,7 +7,7 @@\n"
                                "             \"virtual\": false\n"
                                "         }\n"
                                "     ],\n"
                                "-    \"name\": \"D\" ,\n"
                                "+    \"name\": \"D\",\n"
                                "     \"selectable\": false,\n"
                                "     \"virtual\": false\n"
                                " }\n";
        QCOMPARE(tessel->run({"format", "--diff", "d.json"}).all(), answer(1, diff));
        QCOMPARE(tessel->run({"format", "--diff", "--check", "d.json"}).all(),
            answer(1, diff, "d.json: is not in normal form; \"tessel format -i\" rewrites it\n"));
        QCOMPARE(tessel->run({"format", "--diff", "n.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->run({"format", "--diff", "--check", "n.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->names(), (Arguments{"d.json", "l.json", "n.json", "r.json"}));
    }

    void aBadFileDoesNotKeepTheOthersFromBeingDone_data()
    {
        QTest::addColumn<Arguments>("files");
        QTest::newRow("in the middle") << Arguments{"d.json", "bad.json", "r.json"};
        QTest::newRow("first") << Arguments{"bad.json", "d.json", "r.json"};
        QTest::newRow("last") << Arguments{"d.json", "r.json", "bad.json"};
    }

    void aBadFileDoesNotKeepTheOthersFromBeingDone()
    {
        QFETCH(Arguments, files);
        tessel->put("bad.json", "{");
        const QByteArray complaint =
            "bad.json:1:2: expected a key in double quotes, but the file ends here; it may "
            "have been cut off\n";
        QCOMPARE(tessel->run(Arguments{"format", "-i"} + files).all(), answer(2, "", complaint));
        QCOMPARE(tessel->get("d.json"), QByteArray(kNormal));
        QCOMPARE(tessel->get("r.json"), QByteArray(kNormalRun));
        QCOMPARE(tessel->get("bad.json"), QByteArray("{"));
        QCOMPARE(tessel->run(Arguments{"format", "--check"} + files).all(), answer(2, "", complaint));
        QCOMPARE(tessel->run(Arguments{"format", "--diff"} + files).all(), answer(2, "", complaint));
    }

    void theWorstOfSeveralFilesIsTold()
    {
        const Told told = tessel->run({"format", "-i", "n.json", "l.json", "d.json"});
        QCOMPARE(told.status, 1);
        QCOMPARE(tessel->get("l.json"), QByteArray(kLossy));
        QCOMPARE(tessel->get("d.json"), QByteArray(kNormal));
    }

    void aLinkStaysALink()
    {
        QCOMPARE(::symlink("d.json", tessel->path("link.json").constData()), 0);
        QCOMPARE(tessel->run({"format", "-i", "link.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->get("d.json"), QByteArray(kNormal));
        struct stat status;
        QCOMPARE(::lstat(tessel->path("link.json").constData(), &status), 0);
        QVERIFY(S_ISLNK(status.st_mode));
    }

    void aSecondRewritingChangesNothingMore()
    {
        // Without a type the codes are texts, and "integer" is what the type is written as.
        tessel->put("t.json", R"({"variables":[{"name":"V","valueLabels":[{"value":"A","label":"a"}]}]})");
        const Told first = tessel->run({"format", "t.json", "-o", "u.json"});
        if (first.status == 0)
            QCOMPARE(tessel->run({"format", "--check", "u.json"}).all(), answer(0, ""));
        else
            QVERIFY2(first.err.contains("/variables/0"), first.err.constData());
    }

private:
    QScopedPointer<Tessel> tessel;
};

QTEST_APPLESS_MAIN(tst_tessel_format)
#include "tst_tessel_format.moc"
