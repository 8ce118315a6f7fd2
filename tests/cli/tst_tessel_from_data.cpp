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

const char *const kPersons = R"({'title':'Personas','fields':[
    {'name':'AGE','label':'Años','type':'INTEGER','size':3,'min':'0','max':'120','missing':'999'},
    {'name':'SEX','type':'INTEGER','size':1,'min':'1','max':'2','categories':'1 Male\t2 Female'},
    {'name':'WEIGHT','type':'REAL','size':8,'decimals':2,'min':'0.5','max':'9.5'},
    {'name':'CODE','type':'STRING','size':7}]})";

const char *const kDictionary = R"({
    'entities': [
        {
            'label': 'Personas',
            'name': 'persons',
            'selectable': false,
            'variables': [
                {
                    'fileName': '',
                    'label': 'Años',
                    'local': false,
                    'metadata': {
                        'field': 'AGE',
                        'length': 3,
                        'range': [
                            {
                                'max': 120,
                                'min': 0
                            }
                        ],
                        'start': 1
                    },
                    'missing': 999,
                    'name': 'AGE',
                    'notapp': 122,
                    'tag': 1,
                    'type': 'integer'
                },
                {
                    'fileName': '',
                    'local': false,
                    'metadata': {
                        'field': 'SEX',
                        'length': 1,
                        'range': [
                            {
                                'max': 2,
                                'min': 1
                            }
                        ],
                        'start': 1
                    },
                    'missing': 3,
                    'name': 'SEX',
                    'notapp': 0,
                    'tag': 2,
                    'type': 'integer',
                    'valueLabels': [
                        {
                            'label': 'Male',
                            'value': 1
                        },
                        {
                            'label': 'Female',
                            'value': 2
                        }
                    ]
                },
                {
                    'fileName': '',
                    'local': false,
                    'metadata': {
                        'field': 'WEIGHT',
                        'length': 8,
                        'range': [
                            {
                                'max': 9.5,
                                'min': 0.5
                            }
                        ],
                        'start': 1
                    },
                    'missing': 10,
                    'name': 'WEIGHT',
                    'notapp': 0,
                    'tag': 3,
                    'type': 'real'
                },
                {
                    'fileName': '',
                    'local': false,
                    'metadata': {
                        'field': 'CODE',
                        'length': 7,
                        'start': 1
                    },
                    'missing': 0,
                    'name': 'CODE',
                    'notapp': 0,
                    'size': 7,
                    'tag': 4,
                    'type': 'string'
                }
            ],
            'virtual': false
        }
    ],
    'selectable': false,
    'virtual': false
}
)";

const char *const kCode =
    "persons.sav: AGE: as the source declares, the missing code is 999 instead of 121\n";

const QByteArray kNoTypes = ": tells no types, so that its variables are whole numbers from 0 to 0; "
                            "--categories-from-data finds types and ranges in the records\n";

} // namespace

class tst_tessel_from_data : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        tessel.reset(new Tessel);
        tessel->put("persons.sav", quoted(kPersons));
        tessel->put("places.csv", header("ID_PLACE NAME"));
    }

    void standardOutputIsTheDefault()
    {
        const QString dictionary = answer(0, quoted(kDictionary), kCode);
        QCOMPARE(tessel->run({"from-data", "persons.sav"}).all(), dictionary);
        QCOMPARE(tessel->run({"from-data", "persons.sav", "-o", "-"}).all(), dictionary);
        QCOMPARE(tessel->names(), (Arguments{"persons.sav", "places.csv"}));
    }

    void anOutputFileIsWrittenInNormalForm()
    {
        QCOMPARE(tessel->run({"from-data", "persons.sav", "-o", "d.json"}).all(), answer(0, "", kCode));
        QCOMPARE(tessel->get("d.json"), quoted(kDictionary));
        QCOMPARE(tessel->run({"format", "--check", "d.json"}).all(), answer(0, ""));
        QCOMPARE(tessel->run({"check", "d.json"}).all(), answer(0, ""));
        const QByteArray shown = tessel->run({"show", "d.json"}).out;
        QVERIFY2(shown.contains("1 entity, 4 variables, 2 labels, 3 ranges\n"), shown.constData());
        QCOMPARE(tessel->run({"from-data", "places.csv", "--output=d.json"}).all(),
            answer(0, "", "places.csv" + kNoTypes));
        QCOMPARE(outline(tessel->get("d.json")), QString("places(ID NAME)"));
        QCOMPARE(tessel->names(), (Arguments{"d.json", "persons.sav", "places.csv"}));
    }

    void eachFileIsAnEntity()
    {
        const Told told = tessel->run({"from-data", "places.csv", "persons.sav"});
        QCOMPARE(told.status, 0);
        QCOMPARE(outline(told.out), QString("places(ID NAME) persons(AGE SEX WEIGHT CODE)"));
        QCOMPARE(told.err, "places.csv" + kNoTypes + kCode);
    }

    void oneEntityTakesAllFiles()
    {
        const Told told = tessel->run({"from-data", "--entity", "ALL", "persons.sav", "places.csv"});
        QCOMPARE(told.status, 0);
        QCOMPARE(outline(told.out), QString("ALL(AGE SEX WEIGHT CODE ID NAME)"));
        // The title of the first file that told one at its making.
        QVERIFY(told.out.contains("\"label\": \"Personas\",\n            \"name\": \"ALL\""));
    }

    void filesOfOneNameAreEntitiesOfTheirOwn()
    {
        const Told told = tessel->run({"from-data", "places.csv", "./places.csv"});
        QCOMPARE(told.status, 0);
        QCOMPARE(outline(told.out), QString("places(ID NAME) places_2(ID NAME)"));
        QCOMPARE(told.err,
            "./places.csv: becomes the entity places_2, because the name places is taken; --entity gives it "
            "another name\nplaces.csv"
                + kNoTypes + "./places.csv" + kNoTypes);
    }

    void anEntityIsNamedLikeItsFile_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("entity");
        QTest::addColumn<QByteArray>("shown");
        QTest::newRow("a valid name") << QByteArray("PERSON_2.sav") << QByteArray("PERSON_2") << QByteArray();
        QTest::newRow("no ending") << QByteArray("PERSON") << QByteArray("PERSON") << QByteArray();
        QTest::newRow("several dots") << QByteArray("a.b.sav") << QByteArray("a_b") << QByteArray("a.b");
        QTest::newRow("nothing before the dot")
            << QByteArray(".sav") << QByteArray("_sav") << QByteArray(".sav");
        QTest::newRow("a year") << QByteArray("2023.sav") << QByteArray("_2023") << QByteArray("2023");
        QTest::newRow("accents in UTF-8")
            << QByteArray("a\xc3\xb1o.sav") << QByteArray("a\xc3\xb1o") << QByteArray();
        QTest::newRow("accents in Latin-1")
            << QByteArray("a\xf1o.sav") << QByteArray("a\xc3\xb1o") << QByteArray();
        QTest::newRow("control characters")
            << QByteArray("a\x1b[31m\nb.sav") << QByteArray("a_31m_b") << QByteArray("a\\u001b[31m\\u000ab");
        QTest::newRow("per cent signs") << QByteArray("%1%2.sav") << QByteArray("_1_2") << QByteArray("%1%2");
        QTest::newRow("a leading dash")
            << QByteArray("--entity.sav") << QByteArray("_entity") << QByteArray("--entity");
    }

    void anEntityIsNamedLikeItsFile()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, entity);
        QFETCH(QByteArray, shown);
        tessel->put(file, quoted(kPersons).replace("999", "121"));
        for (const QByteArray locale : {"C", "C.UTF-8"}) {
            tessel->locale = locale;
            const Told told = tessel->run({"from-data", "--", file});
            QCOMPARE(told.status, 0);
            QCOMPARE(outline(told.out), QString::fromUtf8(entity) + "(AGE SEX WEIGHT CODE)");
            const QByteArray name = QByteArray(file).replace('\x1b', '?').replace('\n', '?');
            QCOMPARE(told.err,
                shown.isEmpty()
                    ? QByteArray()
                    : name + ": becomes the entity " + entity + ", because an entity cannot be named \""
                        + shown + "\"; --entity gives it another name\n");
        }
    }

    void theOptionsReachTheReader_data()
    {
        QTest::addColumn<Arguments>("arguments");
        QTest::addColumn<QByteArray>("told");
        QTest::newRow("none") << Arguments{} << QByteArray("encoding [], records 0");
        QTest::newRow("encoding") << Arguments{"--encoding", "cp850"}
                                  << QByteArray("encoding [cp850], records 0");
        QTest::newRow("records") << Arguments{"--categories-from-data", "1"}
                                 << QByteArray("encoding [], records 1");
        QTest::newRow("very many records") << Arguments{"--categories-from-data", "9223372036854775807"}
                                           << QByteArray("encoding [], records 9223372036854775807");
    }

    void theOptionsReachTheReader()
    {
        QFETCH(Arguments, arguments);
        QFETCH(QByteArray, told);
        tessel->put("t.sav", quoted("{'told':true,'fields':[{'name':'A','type':'STRING'}]}"));
        const Told answered = tessel->run(Arguments{"from-data", "t.sav"} + arguments);
        // What a source says and the dictionary does not hold is a finding.
        QCOMPARE(answered.status, 1);
        QCOMPARE(answered.err, "t.sav: " + told + '\n');
        QCOMPARE(outline(answered.out), QString("t(A)"));
    }

    void remarksAreToldAndWriteAllTheSame()
    {
        tessel->put("r.sav",
            quoted("{'fields':[{'name':'A','type':'STRING'}],'remarks':[{'field':'A','reason':"
                   "'tagged codes: .a \\u001b[31m'},{'field':'','reason':'Año'}]}"));
        const Told told = tessel->run({"from-data", "r.sav", "-o", "d.json"});
        QCOMPARE(told.all(), answer(1, "", "r.sav: A: tagged codes: .a \\u001b[31m\nr.sav: A\xc3\xb1o\n"));
        QCOMPARE(outline(tessel->get("d.json")), QString("r(A)"));
    }

    void rangesThatNobodyToldAreTold()
    {
        tessel->put(
            "one.sav", quoted("{'fields':[{'name':'A','type':'REAL'},{'name':'B','type':'STRING'}]}"));
        tessel->put(
            "two.sav", quoted("{'fields':[{'name':'A','type':'REAL'},{'name':'B','type':'INTEGER'}]}"));
        tessel->put("none.sav", quoted("{'fields':[]}"));
        const Told told = tessel->run({"from-data", "one.sav", "two.sav", "none.sav"});
        QCOMPARE(told.status, 0);
        QCOMPARE(told.err,
            QByteArray("one.sav: tells no range of 1 numeric field, which gets the range from 0 to 0; "
                       "--categories-from-data finds it in the records\n"
                       "two.sav: tells no range of 2 numeric fields, which get the range from 0 to 0; "
                       "--categories-from-data finds it in the records\n"));
    }

    void whatIsWrongWithTheResultIsTold()
    {
        tessel->put("w.sav",
            quoted("{'fields':[{'name':'w','type':'STRING'},{'name':'A','type':'INTEGER','min':"
                   "'9','max':'1','categories':'x X'}]}"));
        const Told told = tessel->run({"from-data", "w.sav", "-o", "d.json"});
        const QByteArray faults =
            "d.json: /entities/0/variables/0 (w/w): the name is also that of an entity; rename one of them "
            "[variable-name-is-entity]\n"
            "d.json: /entities/0/variables/1/valueLabels/0 (w/A): the code x is no such number as the "
            "variable's type wants and would be saved as 0; change the code or the type "
            "[label-code-not-number]\n"
            "d.json: /entities/0/variables/1/metadata/range/0 (w/A): the minimum 9 is above the maximum 1; "
            "exchange them [range-reversed]\n";
        QCOMPARE(told.all(), answer(1, "", faults));
        QCOMPARE(outline(tessel->get("d.json")), QString("w(w A)"));
        const Told shown = tessel->run({"from-data", "w.sav"});
        QCOMPARE(shown.err, QByteArray(faults).replace("d.json", "standard output"));
        QCOMPARE(shown.status, 1);
    }

    void theLibrariesLogIsForThoseWhoAsk()
    {
        QCOMPARE(tessel->run({"from-data", "persons.sav", "-o", "d.json"}).err, QByteArray(kCode));
        const Told told = tessel->run({"--verbose", "from-data", "persons.sav", "-o", "d.json"});
        QVERIFY2(told.err.contains("Female"), told.err.constData());
    }

    void manyFieldsAreNoTrouble()
    {
        QByteArray names("F0");
        for (int i = 1; i < 20000; ++i)
            names += " F" + QByteArray::number(i);
        tessel->put("many.csv", header(names.constData()));
        const Told told = tessel->run({"from-data", "many.csv"});
        QCOMPARE(told.status, 0);
        QCOMPARE(outline(told.out), "many(" + QString::fromUtf8(names) + ')');
    }

private:
    QScopedPointer<Tessel> tessel;
};

QTEST_APPLESS_MAIN(tst_tessel_from_data)
#include "tst_tessel_from_data.moc"
