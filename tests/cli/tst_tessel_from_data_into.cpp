#include "tests/cli/Described.h"
#include "tests/cli/Tessel.h"

#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using tessel::test::answer;
using tessel::test::header;
using tessel::test::outline;
using tessel::test::quoted;
using tessel::test::Tessel;
using tessel::test::Told;

using Arguments = QList<QByteArray>;

namespace {

const char *const kCensus = "{'name':'CENSUS','documentation':'all','entities':[{'name':'COUNTRY','alias':'"
                            "PAIS','variables':[{'name':"
                            "'C','group':'HEALTH','documentation':'words'}],'entities':[{'name':'PERSON','"
                            "variables':[{'name':'SEX'}]}"
                            "]},{'name':'TWICE'},{'name':'OTHER','entities':[{'name':'TWICE'}]}]}";

const QByteArray kNoTypes = ": tells no types, so that its variables are whole numbers from 0 to 0; "
                            "--categories-from-data finds types and ranges in the records\n";

const char *const kRest = " TWICE() OTHER()[TWICE()]";

} // namespace

class tst_tessel_from_data_into : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        tessel.reset(new Tessel);
        tessel->put("d.json", quoted(kCensus));
        tessel->put("a.csv", header("A B"));
    }

    void anEntityIsFoundAnywhere_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("expected");
        const QString rest = kRest;
        QTest::newRow("at the top") << QByteArray("COUNTRY") << "COUNTRY(C A B)[PERSON(SEX)]" + rest;
        QTest::newRow("below") << QByteArray("PERSON") << "COUNTRY(C)[PERSON(SEX A B)]" + rest;
        QTest::newRow("with blanks around") << QByteArray(" PERSON ") << "COUNTRY(C)[PERSON(SEX A B)]" + rest;
        QTest::newRow("letter case counts")
            << QByteArray("person") << "COUNTRY(C)[PERSON(SEX)]" + rest + " person(A B)";
        QTest::newRow("nowhere") << QByteArray("NEW") << "COUNTRY(C)[PERSON(SEX)]" + rest + " NEW(A B)";
    }

    void anEntityIsFoundAnywhere()
    {
        QFETCH(QByteArray, name);
        QFETCH(QString, expected);
        const Told told = tessel->run({"from-data", "a.csv", "--entity", name, "--into", "d.json"});
        QCOMPARE(told.status, 0);
        QCOMPARE(outline(told.out), expected);
        QCOMPARE(told.err, "a.csv" + kNoTypes);
        QCOMPARE(tessel->get("d.json"), quoted(kCensus));
    }

    void blanksAroundANameInTheDictionaryDoNotCount()
    {
        tessel->put("d.json", quoted("{'entities':[{'name':' E '}]}"));
        const Told told = tessel->run({"from-data", "a.csv", "--entity", "E", "--into", "d.json"});
        QCOMPARE(outline(told.out), QString(" E (A B)"));
    }

    void aFileIsFoundByItsName_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QByteArray>("told");
        const QString before = QString("COUNTRY(C)[PERSON(SEX)]") + kRest;
        const QByteArray taken = ", because the name %2 is taken; --entity gives it another name\n";
        const auto row = [&](const char *tag, const QByteArray &stem, const QString &expected,
                             const QByteArray &entity = QByteArray()) {
            const QByteArray told = entity.isEmpty()
                ? QByteArray()
                : stem + ".csv: becomes the entity " + entity + QByteArray(taken).replace("%2", stem);
            QTest::newRow(tag) << QByteArray(stem + ".csv") << expected << told;
        };
        row("an entity's name", "PERSON", QString("COUNTRY(C)[PERSON(SEX A B)]") + kRest);
        row("a new name", "NEW", before + " NEW(A B)");
        row("an alias", "PAIS", before + " PAIS_2(A B)", "PAIS_2");
        row("a group of variables", "HEALTH", before + " HEALTH_2(A B)", "HEALTH_2");
        row("the dictionary's own name", "CENSUS", before + " CENSUS_2(A B)", "CENSUS_2");
    }

    void aFileIsFoundByItsName()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, expected);
        QFETCH(QByteArray, told);
        tessel->put(file, header("A B"));
        const Told answered = tessel->run({"from-data", file, "--into", "d.json"});
        QCOMPARE(answered.status, 0);
        QCOMPARE(outline(answered.out), expected);
        QCOMPARE(answered.err, told + file + kNoTypes);
    }

    void anEntityIsFoundForOneFileOnly()
    {
        tessel->put("PERSON.csv", header("A"));
        tessel->put("PERSON.sav", header("B"));
        const Told told = tessel->run({"from-data", "PERSON.csv", "PERSON.sav", "--into", "d.json"});
        QCOMPARE(outline(told.out), QString("COUNTRY(C)[PERSON(SEX A)]") + kRest + " PERSON_2(B)");
    }

    void aNameThatSeveralHaveIsAProblem_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::newRow("asked for") << Arguments{"a.csv", "--entity", "TWICE"};
        QTest::newRow("of a file") << Arguments{"TWICE.csv"};
    }

    void aNameThatSeveralHaveIsAProblem()
    {
        QFETCH(Arguments, arguments);
        tessel->put("TWICE.csv", header("A"));
        QCOMPARE(tessel->run(Arguments{"from-data", "--into", "d.json", "-o", "o.json"} + arguments).all(),
            answer(2, "",
                "d.json: holds 2 entities named \"TWICE\": TWICE (/entities/1), OTHER/TWICE "
                "(/entities/2/entities/0); rename all but one of them\n"));
        QCOMPARE(tessel->get("o.json"), QByteArray("(no file)"));
    }

    void aNameThatNoEntityCanHaveIsAProblem_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("a digit first") << QByteArray(
            "1A") << QByteArray("an entity's name is a letter or _ followed by letters, digits and _");
        QTest::newRow("too long") << QByteArray(
            51, 'x') << QByteArray("an entity's name has at most 50 characters; this one has 51");
        QTest::newRow("a group") << QByteArray("HEALTH")
                                 << QByteArray("the name is also a group of variables; change one of them");
        QTest::newRow("an alias") << QByteArray("PAIS")
                                  << QByteArray("the name is also an alias of an entity; change one of them");
        QTest::newRow("the dictionary") << QByteArray(
            "CENSUS") << QByteArray("the name is already that of the dictionary itself; rename one of them");
    }

    void aNameThatNoEntityCanHaveIsAProblem()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, reason);
        tessel->put("b.csv", header("A"));
        QCOMPARE(tessel->run({"from-data", "a.csv", "b.csv", "--entity", name, "--into", "d.json"}).all(),
            answer(2, "", "tessel: no entity can be named \"" + name + "\": " + reason + '\n'));
    }

    void whatTheDictionaryHoldsIsCarried()
    {
        const Told normal = tessel->run({"format", "d.json"});
        const Told told = tessel->run({"from-data", "a.csv", "--entity", "NEW", "--into", "d.json"});
        QJsonObject before = QJsonDocument::fromJson(normal.out).object();
        QJsonObject after = QJsonDocument::fromJson(told.out).object();
        QJsonArray entities = after["entities"].toArray();
        entities.removeLast();
        after["entities"] = entities;
        QCOMPARE(after, before);
        QCOMPARE(before["documentation"].toString(), QString("all"));
        QVERIFY(told.out.contains("\"documentation\": \"words\""));
    }

    void theOldFaultsAreNotToldAgain()
    {
        tessel->put("d.json",
            quoted("{'entities':[{'name':'E','variables':[{'name':'E'},{'name':'X','type':"
                   "'odd'}]}]}"));
        tessel->put("X.csv", header("A"));
        const Told told = tessel->run({"from-data", "X.csv", "--into", "d.json"});
        // The new entity's name makes an old variable's name a fault.
        QCOMPARE(told.err,
            "X.csv" + kNoTypes
                + "standard output: /entities/0/variables/1 (E/X): the name is also that of an entity; "
                  "rename "
                  "one of them [variable-name-is-entity]\n");
        QCOMPARE(told.status, 1);
    }

    void theDictionaryIsReplacedOnlyWhenNamed()
    {
        QCOMPARE(tessel->run({"from-data", "a.csv", "--into", "d.json", "-o", "d.json"}).all(),
            answer(0, "", "a.csv" + kNoTypes));
        QCOMPARE(outline(tessel->get("d.json")), QString("COUNTRY(C)[PERSON(SEX)]") + kRest + " a(A B)");
        QCOMPARE(tessel->run({"format", "--check", "d.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->names(), (Arguments{"a.csv", "d.json"}));
    }

    void aDictionaryThatStaysTheSameIsNotTouched()
    {
        const QByteArray before = tessel->run({"from-data", "a.csv", "--into", "d.json"}).out;
        tessel->put("d.json", before);
        struct stat old;
        QCOMPARE(::stat(tessel->path("d.json").constData(), &old), 0);
        QCOMPARE(
            tessel->run({"from-data", "a.csv", "--into", "d.json", "-o", "./d.json", "--on-conflict", "skip"})
                .status,
            1);
        struct stat now;
        QCOMPARE(::stat(tessel->path("d.json").constData(), &now), 0);
        QCOMPARE(quint64(now.st_ino), quint64(old.st_ino));
        QCOMPARE(tessel->get("d.json"), before);
    }

    void whatWouldBeLostIsListedAndKeptWhereItIs()
    {
        const QByteArray lossy = quoted("{'colour':'red','entities':[{'name':'E'}]}");
        const QByteArray loss = "d.json: /colour: \"red\" is not written\n";
        tessel->put("d.json", lossy);
        QCOMPARE(tessel->run({"from-data", "a.csv", "--into", "d.json", "-o", "o.json"}).all(),
            answer(1, "", loss + "a.csv" + kNoTypes));
        QCOMPARE(outline(tessel->get("o.json")), QString("E() a(A B)"));
        QCOMPARE(tessel->run({"from-data", "a.csv", "--into", "d.json", "-o", "./d.json"}).all(),
            answer(1, "",
                loss + "a.csv" + kNoTypes
                    + "d.json: is left as it is, because values would be lost or changed; name another file "
                      "with -o, or rewrite it first with \"tessel format\"\n"));
        QCOMPARE(tessel->get("d.json"), lossy);
    }

    void standardInputIsADictionary()
    {
        tessel->input = quoted(kCensus);
        const Told told = tessel->run({"from-data", "a.csv", "--into", "-", "--entity", "PERSON"});
        QCOMPARE(told.status, 0);
        QCOMPARE(outline(told.out), QString("COUNTRY(C)[PERSON(SEX A B)]") + kRest);
    }

    void codesWithoutATypeAreWrittenOnceAndForAll()
    {
        tessel->put("d.json",
            quoted("{'entities':[{'name':'E','variables':[{'name':'V','valueLabels':[{'value':"
                   "'7','label':'a'}]}]}]}"));
        QVERIFY(tessel->run({"from-data", "a.csv", "--into", "d.json", "-o", "o.json"}).status < 2);
        QCOMPARE(tessel->run({"format", "--check", "o.json"}).all(), answer(0, ""));
    }

private:
    QScopedPointer<Tessel> tessel;
};

QTEST_APPLESS_MAIN(tst_tessel_from_data_into)
#include "tst_tessel_from_data_into.moc"
