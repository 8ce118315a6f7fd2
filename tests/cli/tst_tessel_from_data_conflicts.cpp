#include "tests/cli/Described.h"
#include "tests/cli/Tessel.h"

#include <QtTest>

using tessel::test::answer;
using tessel::test::header;
using tessel::test::outline;
using tessel::test::quoted;
using tessel::test::Tessel;
using tessel::test::Told;

using Arguments = QList<QByteArray>;

namespace {

const char *const kDictionary =
    "{'entities':[{'name':'PERSON','variables':[{'name':'AGE','label':'old','type':'integer'},{'name':'SEX',"
    "'type':'string'},{'name':'LAST'}]}]}";

const char *const kSource =
    "{'fields':[{'name':'AGE','type':'STRING','label':'new','missing':'9'},{'name':'SEX','type':'STRING',"
    "'missing':'8'},{'name':'FRESH','type':'STRING','missing':'7'}]}";

const QByteArray kAge = "p.sav: AGE: PERSON has a variable AGE already, with another alias, label or group";
const QByteArray kSex =
    "p.sav: SEX: PERSON has the variable SEX already, with the same alias, label and group";
const QByteArray kNothing =
    "tessel: nothing is written because of conflicts; --on-conflict skip leaves such fields out, "
    "--on-conflict overwrite puts them in the place of what is there\n";

QByteArray code(const char *field, int number)
{
    return QByteArray("p.sav: ") + field + ": as the source declares, the missing code is "
        + QByteArray::number(number) + " instead of 0\n";
}

/// The label and the missing code of the variable \a name in \a document.
QString variable(const QByteArray &document, const QString &name)
{
    const QJsonObject entity =
        QJsonDocument::fromJson(document).object()["entities"].toArray().first().toObject();
    for (const QJsonValue one : entity["variables"].toArray()) {
        if (one["name"].toString() == name)
            return one["label"].toString() + '/' + QString::number(one["missing"].toInt());
    }
    return QString();
}

} // namespace

class tst_tessel_from_data_conflicts : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        tessel.reset(new Tessel);
        tessel->put("d.json", quoted(kDictionary));
        tessel->put("p.sav", quoted(kSource));
    }

    void withoutAWordNothingIsWritten()
    {
        const Arguments run{"from-data", "p.sav", "--entity", "PERSON", "--into", "d.json"};
        const QString expected = answer(1, "", kAge + '\n' + kSex + '\n' + kNothing);
        QCOMPARE(tessel->run(run).all(), expected);
        QCOMPARE(tessel->run(run + Arguments{"--on-conflict", "error"}).all(), expected);
        QCOMPARE(tessel->run(run + Arguments{"-o", "new.json"}).all(), expected);
        QCOMPARE(tessel->run(run + Arguments{"-o", "d.json"}).all(), expected);
        QCOMPARE(tessel->get("d.json"), quoted(kDictionary));
        QCOMPARE(tessel->names(), (Arguments{"d.json", "p.sav"}));
    }

    void aFieldThatIsThereCanBeLeftOut()
    {
        const QByteArray left = "; the field is left out\n";
        QCOMPARE(tessel
                     ->run({"from-data", "p.sav", "--entity", "PERSON", "--into", "d.json", "--on-conflict",
                         "skip", "-o", "new.json"})
                     .all(),
            answer(1, "", kAge + left + kSex + left + code("FRESH", 7)));
        const QByteArray written = tessel->get("new.json");
        QCOMPARE(outline(written), QString("PERSON(AGE SEX LAST FRESH)"));
        QCOMPARE(variable(written, "AGE"), QString("old/0"));
        QCOMPARE(variable(written, "SEX"), QString("/0"));
        QCOMPARE(tessel->get("d.json"), quoted(kDictionary));
    }

    void aFieldThatIsThereCanTakeThePlace()
    {
        const QByteArray taken = "; the field takes its place\n";
        QCOMPARE(tessel
                     ->run({"from-data", "p.sav", "--entity", "PERSON", "--into", "d.json", "--on-conflict",
                         "overwrite", "-o", "new.json"})
                     .all(),
            answer(1, "", kAge + taken + kSex + taken + code("AGE", 9) + code("SEX", 8) + code("FRESH", 7)));
        const QByteArray written = tessel->get("new.json");
        QCOMPARE(outline(written), QString("PERSON(AGE SEX LAST FRESH)"));
        QCOMPARE(variable(written, "AGE"), QString("new/9"));
        QCOMPARE(variable(written, "SEX"), QString("/8"));
    }

    void fieldsOfOneSourceCanBeInConflict_data()
    {
        QTest::addColumn<QByteArray>("names");
        QTest::addColumn<QByteArray>("conflict");
        QTest::newRow("equal names") << QByteArray("A B A")
                                     << QByteArray("f.csv: A: an earlier field, A, gives f a variable A too");
        QTest::newRow("names that become equal")
            << QByteArray("P12_AGE P12_SEX")
            << QByteArray("f.csv: P12_SEX: an earlier field, P12_AGE, gives f a variable P12 too");
    }

    void fieldsOfOneSourceCanBeInConflict()
    {
        QFETCH(QByteArray, names);
        QFETCH(QByteArray, conflict);
        tessel->put("f.csv", header(names.constData()));
        QCOMPARE(tessel->run({"from-data", "f.csv"}).all(), answer(1, "", conflict + '\n' + kNothing));
        const Told told = tessel->run({"from-data", "f.csv", "--on-conflict", "skip"});
        QCOMPARE(told.status, 1);
        QVERIFY2(told.err.startsWith(conflict + "; the field is left out\n"), told.err.constData());
        QVERIFY(!told.out.isEmpty());
    }

    void fieldsOfSeveralSourcesCanBeInConflict()
    {
        tessel->put("a.csv", header("A B"));
        tessel->put("b.csv", header("B C A"));
        QCOMPARE(tessel->run({"from-data", "a.csv", "b.csv", "--entity", "E"}).all(),
            answer(1, "",
                "b.csv: B: an earlier field, B, gives E a variable B too\n"
                "b.csv: A: an earlier field, A, gives E a variable A too\n"
                    + kNothing));
        const Told told =
            tessel->run({"from-data", "a.csv", "b.csv", "--entity", "E", "--on-conflict", "skip"});
        QCOMPARE(outline(told.out), QString("E(A B C)"));
        QCOMPARE(told.status, 1);
        // Entities of their own have variables of their own.
        QCOMPARE(tessel->run({"from-data", "a.csv", "b.csv"}).status, 0);
    }

    void eachFileIsToldItsOwn()
    {
        const char *const twice =
            "{'fields':[{'name':'%','type':'STRING','missing':'9'},{'name':'%','type':'STRING'}]}";
        tessel->put("1.sav", quoted(twice).replace('%', 'A'));
        tessel->put("2.sav", quoted(twice).replace('%', 'B'));
        const Told told =
            tessel->run({"from-data", "1.sav", "2.sav", "--entity", "E", "--on-conflict", "skip"});
        QCOMPARE(told.err,
            QByteArray("1.sav: A: an earlier field, A, gives E a variable A too; the field is left out\n"
                       "2.sav: B: an earlier field, B, gives E a variable B too; the field is left out\n"
                       "1.sav: A: as the source declares, the missing code is 9 instead of 0\n"
                       "2.sav: B: as the source declares, the missing code is 9 instead of 0\n"));
    }

    void whatIsInConflictIsNoFaultOfTheResult()
    {
        tessel->put("f.csv", header("A A"));
        for (const QByteArray way : {"skip", "overwrite"}) {
            const Told told = tessel->run({"from-data", "f.csv", "--on-conflict", way});
            QVERIFY2(!told.err.contains("variable-name-duplicate"), told.err.constData());
            QCOMPARE(outline(told.out), QString("f(A)"));
        }
    }

    void aFieldWithoutANameForItsVariableIsTold()
    {
        tessel->put("f.csv", header("_1_A B"));
        const Told told = tessel->run({"from-data", "f.csv"});
        QCOMPARE(told.status, 1);
        QCOMPARE(outline(told.out), QString("f( B)"));
        QVERIFY2(told.err.endsWith(
                     "f.csv: _1_A: gives a variable without a name, because it begins with \"_\" and a "
                     "digit; name the variable in the dictionary\n"
                     "standard output: /entities/0/variables/0 (f/): the variable has no name; "
                     "give it one [variable-name-empty]\n"),
            told.err.constData());
    }

private:
    QScopedPointer<Tessel> tessel;
};

QTEST_APPLESS_MAIN(tst_tessel_from_data_conflicts)
#include "tst_tessel_from_data_conflicts.moc"
