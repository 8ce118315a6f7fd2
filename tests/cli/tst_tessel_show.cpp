#include "tests/cli/Tessel.h"

#include <QtTest>

using tessel::test::answer;
using tessel::test::Tessel;
using tessel::test::Told;

using Arguments = QList<QByteArray>;

namespace {

const char *const kDictionary = R"({"name":"DEMO","label":"Small one","entities":[
{"name":"HH","alias":"H","label":"Hogar ñ","codeVar":"HID","labelVar":"HNAME","selectable":true,
 "weightVar":"W","documentation":"Who eats together",
 "variables":[
  {"name":"AGE","alias":"A","label":"Edad","type":"integer","tag":3,"missing":99,"notapp":98,"group":"g",
   "documentation":"In years","metadata":{"range":[{"min":0,"max":97},{"min":1.5,"max":2}],"field":"f",
   "record":"r","start":4,"length":2,"lookup":true},
   "valueLabels":[{"value":0,"label":"none"},{"value":10,"label":"ten"}]},
  {"name":"S","type":"string","size":3}],
 "entities":[{"name":"P","virtual":true,"variables":[{"name":"AGE","type":"real"},{"name":"A/B"}]}]},
{"name":"HH2","label":"Second"}]}
)";

const char *const kRun = R"({"type":"config","database":{"name":"DB","folder":"out","sourceFile":"in.txt",
"filter":"F","selectFilter":"SF","fileFilter":"FF","XXXproject":"PR"},
"options":{"createNoRanges":true,"createNotAppMissingInRange":false},
"entities":[{"name":"HH","allVariables":true,"createCompound":true,"recType":"1"},
{"name":"P","allVariables":false,"variables":["SEX","AGE"],"createSDC":true,"checkSequence":false}]}
)";

} // namespace

class tst_tessel_show : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        tessel.reset(new Tessel);
        tessel->put("d.json", kDictionary);
        tessel->put("r.json", kRun);
    }

    void aPlaceIsShownToPeople_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::addColumn<QByteArray>("out");
        QTest::newRow("the tree") << Arguments{"d.json"} << QByteArray(R"(DEMO  Small one
3 entities, 4 variables, 2 labels, 2 ranges

Entity  Alias  Variables  Labels  Ranges  Virtual  Label
HH      H              2       2       2           Hogar ñ
  P                    2       0       0  yes
HH2                    0       0       0           Second
)");
        QTest::newRow("an entity") << Arguments{"d.json", "HH"} << QByteArray(R"(HH  Hogar ñ
Alias            H
Code variable    HID
Label variable   HNAME
Weight variable  W
Virtual          no
Selectable       yes
Documentation    Who eats together

Variable  Alias  Type     Start  Length  Tag  Labels  Ranges  Group  Label
AGE       A      integer      4       2    3       2       2  g      Edad
S                string
)");
        QTest::newRow("an entity without variables")
            << Arguments{"d.json", "HH2"} << QByteArray(R"(HH2  Second
Virtual     no
Selectable  no

no variables
)");
        QTest::newRow("a variable") << Arguments{"d.json", "HH/AGE"} << QByteArray(R"(HH/AGE  Edad
Alias           A
Type            integer
Group           g
Tag             3
Missing         99
Not applicable  98
Field           f
Record          r
Start           4
Length          2
Lookup          yes
Documentation   In years

From  To
   0  97
 1.5   2

Code  Label
   0  none
  10  ten
)");
        QTest::newRow("a variable with little in it") << Arguments{"d.json", "S"} << QByteArray(R"(HH/S
Type            string
Size            3
Missing         0
Not applicable  0
)");
        QTest::newRow("a run") << Arguments{"r.json"} << QByteArray(R"(Run DB
Folder                                    out
Source file                               in.txt
Filter                                    F
Selection filter                          SF
File filter                               FF
Project                                   PR
Missing and not applicable inside ranges  no
Without ranges                            yes

Entity  Record type  Variables  Compound  SDC  Sequence checked
HH      1                  all  yes       no   yes
P                            2  no        yes  no
)");
        QTest::newRow("an entity of a run") << Arguments{"r.json", "P"} << QByteArray("SEX\nAGE\n");
        QTest::newRow("an entity of a run, all of it")
            << Arguments{"r.json", "HH"} << QByteArray("all variables\n");
        QTest::newRow("an entity of a run by pointer")
            << Arguments{"r.json", "/entities/1"} << QByteArray("SEX\nAGE\n");
    }

    void aPlaceIsShownToPeople()
    {
        QFETCH(Arguments, arguments);
        QFETCH(QByteArray, out);
        QCOMPARE(tessel->run(Arguments{"show"} + arguments).all(), answer(0, out));
    }

    void aPlaceIsFoundByNameTailAndPointer_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("title");
        QTest::newRow("whole path of an entity") << QByteArray("HH/P") << QByteArray("HH/P\n");
        QTest::newRow("last name of an entity") << QByteArray("P") << QByteArray("HH/P\n");
        QTest::newRow("last names of a variable") << QByteArray("P/AGE") << QByteArray("HH/P/AGE\n");
        QTest::newRow("whole path of a variable") << QByteArray("HH/P/AGE") << QByteArray("HH/P/AGE\n");
        QTest::newRow("a whole path is no tail of another")
            << QByteArray("HH/AGE") << QByteArray("HH/AGE  Edad\n");
        QTest::newRow("a name is no beginning of another") << QByteArray("HH") << QByteArray("HH  Hogar ñ\n");
        QTest::newRow("a name with a slash") << QByteArray("A/B") << QByteArray("HH/P/A/B\n");
        QTest::newRow("pointer to an entity") << QByteArray("/entities/0/entities/0") << QByteArray("HH/P\n");
        QTest::newRow("pointer to a variable")
            << QByteArray("/entities/0/entities/0/variables/0") << QByteArray("HH/P/AGE\n");
    }

    void aPlaceIsFoundByNameTailAndPointer()
    {
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, title);
        const Told told = tessel->run({"show", "d.json", path});
        QCOMPARE(told.err, QByteArray());
        QCOMPARE(told.status, 0);
        QCOMPARE(told.out.left(title.size()), title);
    }

    void aPathThatNamesNotOnePlaceIsRefused_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::addColumn<QByteArray>("err");
        QTest::newRow("unknown")
            << Arguments{"d.json", "NONE"}
            << QByteArray(
                   "d.json: holds no entity or variable \"NONE\"; \"tessel show FILE\" lists the entities\n");
        QTest::newRow("the end of a name") << Arguments{"d.json",
            "GE"} << QByteArray("d.json: holds no entity or variable \"GE\"; did you mean \"HH/AGE\"?\n");
        QTest::newRow("the beginning of a name")
            << Arguments{"d.json", "AG"}
            << QByteArray(
                   "d.json: holds no entity or variable \"AG\"; \"tessel show FILE\" lists the entities\n");
        QTest::newRow("a pointer behind the last")
            << Arguments{"d.json", "/entities/2"}
            << QByteArray("d.json: holds no entity or variable \"/entities/2\"; \"tessel show FILE\" lists "
                          "the entities\n");
        QTest::newRow("in the wrong case")
            << Arguments{"d.json", "p/age"}
            << QByteArray("d.json: holds no entity or variable \"p/age\"; did you mean \"HH/P/AGE\"?\n");
        QTest::newRow("two places")
            << Arguments{"d.json", "AGE"}
            << QByteArray("d.json: holds 2 places named \"AGE\": HH/AGE (/entities/0/variables/0), HH/P/AGE "
                          "(/entities/0/entities/0/variables/0); give more of the path or the pointer\n");
        QTest::newRow("unknown entity of a run")
            << Arguments{"r.json", "NONE"}
            << QByteArray("r.json: holds no entity \"NONE\"; \"tessel show FILE\" lists what it holds\n");
        QTest::newRow("in the wrong case, of a run") << Arguments{
            "r.json", "hh"} << QByteArray("r.json: holds no entity \"hh\"; did you mean \"HH\"?\n");
    }

    void aPathThatNamesNotOnePlaceIsRefused()
    {
        QFETCH(Arguments, arguments);
        QFETCH(QByteArray, err);
        QCOMPARE(tessel->run(Arguments{"show"} + arguments).all(), answer(2, "", err));
        QCOMPARE(tessel->run(Arguments{"show", "--format", "json"} + arguments).all(), answer(2, "", err));
    }

    void atMostFivePlacesOfANameAreListed()
    {
        tessel->put("six.json",
            "{\"entities\": [" + QByteArray("{\"name\": \"E\"},").repeated(5) + "{\"name\": \"E\"}]}");
        QCOMPARE(tessel->run({"show", "six.json", "E"}).all(),
            answer(2, "",
                "six.json: holds 6 places named \"E\": E (/entities/0), E (/entities/1), E (/entities/2), E "
                "(/entities/3), E (/entities/4), \xe2\x80\xa6; give more of the path or the pointer\n"));
        QCOMPARE(tessel->run({"show", "six.json", "/entities/5"}).status, 0);
    }

    void twoEntitiesOfARunWithOneNameAreNotTakenForOne()
    {
        tessel->put("two.json",
            R"({"type":"config","entities":[{"name":"P","variables":["A"]},{"name":"P","variables":["B"]}]})");
        const Told told = tessel->run({"show", "two.json", "P"});
        QCOMPARE(told.status, 2);
        QCOMPARE(told.out, QByteArray());
        QVERIFY2(told.err.startsWith("two.json: holds 2 "), told.err.constData());
        QCOMPARE(tessel->run({"show", "two.json", "/entities/1"}).all(), answer(0, "B\n"));
    }

    void aPlaceIsShownToPrograms_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::addColumn<QByteArray>("out");
        QTest::newRow("an entity without those below it") << Arguments{"d.json", "HH2"} << QByteArray(R"({
    "label": "Second",
    "name": "HH2",
    "selectable": false,
    "virtual": false
}
)");
        QTest::newRow("a variable") << Arguments{"d.json", "HH/AGE"} << QByteArray(R"({
    "alias": "A",
    "documentation": "In years",
    "fileName": "",
    "group": "g",
    "label": "Edad",
    "local": false,
    "metadata": {
        "field": "f",
        "length": 2,
        "lookup": true,
        "range": [
            {
                "max": 97,
                "min": 0
            },
            {
                "max": 2,
                "min": 1.5
            }
        ],
        "start": 4
    },
    "missing": 99,
    "name": "AGE",
    "notapp": 98,
    "tag": 3,
    "type": "integer",
    "valueLabels": [
        {
            "label": "none",
            "value": 0
        },
        {
            "label": "ten",
            "value": 10
        }
    ]
}
)");
        QTest::newRow("the second variable") << Arguments{"d.json", "S"} << QByteArray(R"({
    "fileName": "",
    "local": false,
    "metadata": {
    },
    "missing": 0,
    "name": "S",
    "notapp": 0,
    "size": 3,
    "type": "string"
}
)");
        QTest::newRow("an entity of a run") << Arguments{"r.json", "P"} << QByteArray(R"({
    "allVariables": false,
    "checkSequence": false,
    "createCompound": false,
    "createSDC": true,
    "name": "P",
    "variables": [
        "SEX",
        "AGE"
    ]
}
)");
    }

    void aPlaceIsShownToPrograms()
    {
        QFETCH(Arguments, arguments);
        QFETCH(QByteArray, out);
        QCOMPARE(tessel->run(Arguments{"show", "--format", "json"} + arguments).all(), answer(0, out));
        QCOMPARE(
            tessel->run(Arguments{"show"} + arguments + Arguments{"--format=json"}).all(), answer(0, out));
    }

    void anEntityIsShownToProgramsWithoutThoseBelowIt()
    {
        const Told told = tessel->run({"show", "d.json", "HH", "--format", "json"});
        QCOMPARE(told.status, 0);
        const QJsonObject object = QJsonDocument::fromJson(told.out).object();
        QCOMPARE(object.keys(),
            (QStringList{QStringLiteral("alias"), QStringLiteral("codeVar"), QStringLiteral("documentation"),
                QStringLiteral("label"), QStringLiteral("labelVar"), QStringLiteral("name"),
                QStringLiteral("selectable"), QStringLiteral("variables"), QStringLiteral("virtual"),
                QStringLiteral("weightVar")}));
        QCOMPARE(object.value(QLatin1String("variables")).toArray().size(), 2);
    }

    void theWholeDocumentIsShownToProgramsInNormalForm_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("dictionary") << QByteArray("d.json");
        QTest::newRow("run") << QByteArray("r.json");
    }

    void theWholeDocumentIsShownToProgramsInNormalForm()
    {
        QFETCH(QByteArray, file);
        const Told shown = tessel->run({"show", file, "--format", "json"});
        QCOMPARE(shown.status, 0);
        QCOMPARE(shown.err, QByteArray());
        QCOMPARE(tessel->run({"format", file}).out, shown.out);
    }

    void standardInputIsShown()
    {
        tessel->input = kRun;
        QCOMPARE(tessel->run({"show", "-", "P"}).all(), answer(0, "SEX\nAGE\n"));
        QCOMPARE(tessel->run({"show", "-", "X"}).all(),
            answer(
                2, "", "standard input: holds no entity \"X\"; \"tessel show FILE\" lists what it holds\n"));
    }

    void namesMayBeEmptyAndOfAnyScript()
    {
        tessel->put("n.json",
            "{\"entities\":[{\"name\":\"\xc3\x91\xf0\x9f\x98\x80\",\"alias\":\"a\",\"label\":\"l\"},{"
            "\"alias\":\"bb\"}]}");
        QCOMPARE(tessel->run({"show", "n.json"}).all(),
            answer(0,
                "2 entities, 0 variables, 0 labels, 0 ranges\n\n"
                "Entity  Alias  Variables  Labels  Ranges  Label\n"
                "\xc3\x91\xf0\x9f\x98\x80      a              0       0       0  l\n"
                "        bb             0       0       0\n"));
        QCOMPARE(tessel->run({"show", "n.json", "\xc3\x91\xf0\x9f\x98\x80"}).status, 0);
    }

    void oneOfAThingIsNotCalledMany()
    {
        tessel->put("one.json",
            R"({"entities":[{"name":"E","variables":[{"name":"V","metadata":{"range":[{"min":1,"max":2}]},
               "valueLabels":[{"value":"1"}]}]}]})");
        const Told told = tessel->run({"show", "one.json"});
        QCOMPARE(told.out.left(told.out.indexOf('\n')), QByteArray("1 entity, 1 variable, 1 label, 1 range"));
    }

    void variablesOfTheRootAreShown()
    {
        tessel->put("root.json",
            R"({"name":"R","variables":[{"name":"V","type":"real"}],"entities":[{"name":"E"}]})");
        const Told told = tessel->run({"show", "root.json"});
        QVERIFY2(told.out.startsWith("R\n1 "), told.out.constData());
        QVERIFY2(
            told.out.contains("\nR               1       0       0\nE               0       0       0\n"),
            told.out.constData());
        QVERIFY(tessel->run({"show", "root.json", "V"}).out.startsWith("V\nType"));
        QVERIFY(tessel->run({"show", "root.json", "/variables/0"}).out.startsWith("V\nType"));
    }

    void whatATerminalWouldActUponIsShown()
    {
        tessel->put("esc.json",
            "{\"name\":\"\\u001b[31m\\u009b1m\",\"entities\":[{\"name\":\"\\u0007E\",\"label\":\"a\\nb\","
            "\"variables\":[{\"name\":\"\\u001bV\",\"label\":\"\\u007f\"}]}]}");
        tessel->put("run.json",
            "{\"type\":\"config\",\"entities\":[{\"name\":\"\\u001bE\",\"variables\":[\"\\u001bV\"]}]}");
        const QList<Arguments> all{{"esc.json"}, {"esc.json", "/entities/0"},
            {"esc.json", "/entities/0/variables/0"}, {"esc.json", "\x1b[0m"}, {"run.json"},
            {"run.json", "/entities/0"}, {"run.json", "\x1b[0m"}};
        for (const Arguments &arguments : all) {
            const Told told = tessel->run(Arguments{"show"} + arguments);
            const QByteArray text = told.out + told.err;
            QVERIFY2(text.contains("\\u00"), text.constData());
            for (const char *sent : {"\x1b", "\x07", "\x7f", "\xc2\x9b"})
                QVERIFY2(!text.contains(sent), text.constData());
        }
        QVERIFY(tessel->run({"show", "esc.json"}).out.startsWith("\\u001b[31m\\u009b1m\n"));
    }

private:
    QScopedPointer<Tessel> tessel;
};

QTEST_APPLESS_MAIN(tst_tessel_show)
#include "tst_tessel_show.moc"
