#include "business/RunCreationBusiness.h"

#include "tests/business/RunText.h"
#include "tests/support/Json.h"

#include <QtTest>

#include <memory>

using tessel::test::describe;
using tessel::test::objectOf;
using tessel::test::readRun;
using tessel::test::valueOf;

namespace {

QStringList fresh() { return {"database: ", "options: "}; }

/// A document with \a value under \a key in each of the three sections; a key that a section does not know
/// changes nothing there.
QVariantMap documentWith(const QString &key, const QVariant &value)
{
    const QVariantMap section = {{key, value}};
    return {{"database", section}, {"options", section}, {"entities", QVariantList{section}}};
}

QStringList namesIn(const QVariant &value)
{
    const std::unique_ptr<QList<QString>> names(RunCreationBusiness().recorrerVariablesNodosJson(value));
    return QStringList(*names);
}

/// JSON values of all types and the text that each is read as.
const QVector<QPair<const char *, const char *>> kTexts = {
    {"'text'", "text"},
    {"''", ""},
    {"' '", " "},
    {"5", "5"},
    {"-3", "-3"},
    {"0", "0"},
    {"2.5", "2.5"},
    {"-0.125", "-0.125"},
    {"12345678901", "12345678901"},
    {"9007199254740991", "9007199254740991"},
    {"1e300", "1e+300"},
    {"true", "true"},
    {"false", "false"},
    {"null", ""},
    {"[]", ""},
    {"['A']", ""},
    {"['A','B']", ""},
    {"{}", ""},
    {"{'name':'A'}", ""},
};

/// JSON values of all types and the flag that each is read as.
const QVector<QPair<const char *, bool>> kFlags = {
    {"true", true},
    {"false", false},
    {"1", true},
    {"0", false},
    {"-1", true},
    {"2.5", true},
    {"0.5", true},
    {"0.0", false},
    {"12345678901", true},
    {"4294967296", true},
    {"'true'", true},
    {"'false'", false},
    {"'FALSE'", false},
    {"'False'", false},
    {"'0'", false},
    {"''", false},
    {"' '", true},
    {"'no'", true},
    {"'00'", true},
    {"null", false},
    {"[]", false},
    {"[true]", false},
    {"{}", false},
    {"{'value':true}", false},
};

/// JSON values of all types and the names of variables that each is read as.
const QVector<QPair<const char *, QStringList>> kNames = {
    {"[]", {}},
    {"['AGE']", {"AGE"}},
    {"['SEX','AGE','SEX']", {"SEX", "AGE", "SEX"}},
    {"['']", {""}},
    {"['A',5,2.5,true,null,['B'],{'name':'C'},{}]", {"A", "5", "2.5", "true", "", "", "", ""}},
    {"'AGE'", {}},
    {"''", {}},
    {"5", {}},
    {"2.5", {}},
    {"true", {}},
    {"null", {}},
    {"{}", {}},
    {"{'AGE':'SEX'}", {}},
};

} // namespace

class tst_RunReading : public QObject {
    Q_OBJECT

private slots:
    void aDocumentWithoutSectionsGivesAFreshConfiguration_data()
    {
        QTest::addColumn<QByteArray>("document");
        for (const char *document :
            {"{}", "{'type':'config'}", "{'type':'dictionary'}", "{'type':{'name':'A'}}",
                "{'Database':{'name':'A'},'DATABASE':{'name':'B'}}", "{'Entities':[{'name':'A'}]}",
                "{'Options':{'createNoRanges':true}}", "{'name':'A','folder':'B','createNoRanges':true}",
                "{'':{'name':'A'}}", "{'database ':{'name':'A'}}", "{'entitie':[{}],'entitiess':[{}]}",
                "{'database':{},'entities':[],'options':{}}"})
            QTest::newRow(document) << QByteArray(document);
    }
    void aDocumentWithoutSectionsGivesAFreshConfiguration()
    {
        QFETCH(QByteArray, document);
        QCOMPARE(describe(*readRun(objectOf(document))), fresh());
    }

    void eachKeyGoesToItsOwnField_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QStringList>("expected");
        const auto database = [](const char *members, const char *described) {
            QTest::newRow(members) << "{'database':{" + QByteArray(members) + "}}"
                                   << QStringList{QStringLiteral("database: ") + described, "options: "};
        };
        database("'name':'A'", "name=A");
        database("'folder':'A'", "folder=A");
        database("'sourceFile':'A'", "sourceFile=A");
        database("'filter':'A'", "filter=A");
        database("'selectFilter':'A'", "selectFilter=A");
        database("'fileFilter':'A'", "fileFilter=A");
        database("'XXXproject':'A'", "project=A");
        const auto options = [](const char *members, const char *described) {
            QTest::newRow(members) << "{'options':{" + QByteArray(members) + "}}"
                                   << QStringList{"database: ", QStringLiteral("options: ") + described};
        };
        options("'createNotAppMissingInRange':true", "createNotAppMissingInRange");
        options("'createNotAppMissingInRange':false", "");
        options("'createNoRanges':true", "createNoRanges");
        options("'createNoRanges':false", "");
        options("'createnoranges':true,'noRanges':true", "");
        const auto entity = [](const char *members, const char *described) {
            QTest::newRow(members) << "{'entities':[{" + QByteArray(members)
                    + "}]}" << QStringList{"database: ", "options: ", QStringLiteral("entity: ") + described};
        };
        entity("'name':'A'", "name=A checkSequence");
        entity("'recType':'A'", "recType=A checkSequence");
        entity("'variables':['B','A']", "variables=[B,A] checkSequence");
        entity("'allVariables':true", "allVariables checkSequence");
        entity("'allVariables':false", "checkSequence");
        entity("'createCompound':true", "checkSequence createCompound");
        entity("'createCompound':false", "checkSequence");
        entity("'createSDC':true", "checkSequence createSDC");
        entity("'createSDC':false", "checkSequence");
        entity("'checkSequence':true", "checkSequence");
        entity("'checkSequence':false", "");
        entity("'delete':true", "checkSequence checkDelete");
        entity("'delete':false", "checkSequence");
        entity("'selectable':true", "checkSequence checkSelectable");
        entity("'selectable':false", "checkSequence");
        entity("'checkDelete':true,'checkSelectable':true", "checkSequence");
        entity("'Name':'A','RECTYPE':'B','children':[{}]", "checkSequence");
    }
    void eachKeyGoesToItsOwnField()
    {
        QFETCH(QByteArray, document);
        QFETCH(QStringList, expected);
        QCOMPARE(describe(*readRun(objectOf(document))), expected);
    }

    void onlyTheProjectKeyWithThreeCapitalXIsKnown()
    {
        for (const char *key :
            {"project", "Project", "xxxproject", "XXproject", "XXXXproject", "XXXProject"}) {
            const QByteArray document = QByteArray("{'database':{'name':'A','") + key + "':'B'}}";
            QCOMPARE(describe(*readRun(objectOf(document))), QStringList({"database: name=A", "options: "}));
        }
        QCOMPARE(describe(*readRun(objectOf("{'database':{'XXXproject':'B','project':'C'}}"))),
            QStringList({"database: project=B", "options: "}));
    }

    void entitiesAndVariablesAreReadInTheirOrder()
    {
        const std::unique_ptr<Config> config = readRun(
            objectOf("{'entities':[{'name':'B','variables':['Z','A','Z']},{'name':'A'},{'name':'B'}]}"));
        QCOMPARE(describe(*config),
            QStringList({"database: ", "options: ", "entity: name=B variables=[Z,A,Z] checkSequence",
                "entity: name=A checkSequence", "entity: name=B checkSequence"}));
    }

    void anElementThatIsNoObjectGivesAFreshEntity()
    {
        const std::unique_ptr<Config> config =
            readRun(objectOf("{'entities':[5,'text',null,true,[],[{'name':'A'}],{},{'name':'B'}]}"));
        QStringList expected = fresh();
        for (int element = 0; element < 7; ++element)
            expected += "entity: checkSequence";
        expected += "entity: name=B checkSequence";
        QCOMPARE(describe(*config), expected);
    }

    void aSectionOfTheWrongTypeIsLikeAnEmptyOne_data()
    {
        QTest::addColumn<QByteArray>("value");
        for (const char *value :
            {"{}", "[]", "'text'", "''", "5", "2.5", "true", "false", "null", "{'name':{}}"})
            QTest::newRow(value) << QByteArray(value);
    }
    void aSectionOfTheWrongTypeIsLikeAnEmptyOne()
    {
        QFETCH(QByteArray, value);
        for (const char *section : {"'database':", "'options':", "'entities':"}) {
            const QByteArray document = '{' + QByteArray(section) + value + '}';
            QCOMPARE(describe(*readRun(objectOf(document))), fresh());
        }
    }

    void aSectionInAnArrayIsNotLookedInto()
    {
        QCOMPARE(
            describe(*readRun(objectOf("{'database':[{'name':'A'}],'options':[{'createNoRanges':true}]}"))),
            fresh());
    }

    void anObjectInPlaceOfTheEntitiesIsNoListOfOne()
    {
        QCOMPARE(describe(*readRun(objectOf("{'entities':{'name':'A'}}"))), fresh());
    }

    void eachReadingGivesAConfigurationOfItsOwn()
    {
        RunCreationBusiness business;
        const QVariantMap root = objectOf("{'database':{'name':'A'},'entities':[{'name':'E'}]}");
        const std::unique_ptr<Config> one(business.recorrerNodosEntitiesJsonYCargaEstructuraConfig(root));
        const std::unique_ptr<Config> other(business.recorrerNodosEntitiesJsonYCargaEstructuraConfig(root));
        QVERIFY(one != other);
        QVERIFY(one->getEntities()->first() != other->getEntities()->first());
        one->getDataBase()->setName("B");
        QCOMPARE(
            describe(*other), QStringList({"database: name=A", "options: ", "entity: name=E checkSequence"}));
        QCOMPARE(root.value("database").toMap().value("name").toString(), QStringLiteral("A"));
    }

    void wrongTypesInPlaceOfATextAreConverted_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("text");
        const QVector<QPair<const char *, const char *>> keys = {{"name", "name="}, {"folder", "folder="},
            {"sourceFile", "sourceFile="}, {"filter", "filter="}, {"selectFilter", "selectFilter="},
            {"fileFilter", "fileFilter="}, {"XXXproject", "project="}, {"recType", "recType="}};
        for (const auto &key : keys) {
            for (const auto &value : kTexts) {
                QTest::addRow("%s %s is read as '%s'", key.first, value.first, value.second) << QString(
                    key.first) << QString(key.second) << QByteArray(value.first) << QString(value.second);
            }
        }
    }
    void wrongTypesInPlaceOfATextAreConverted()
    {
        QFETCH(QString, key);
        QFETCH(QString, prefix);
        QFETCH(QByteArray, value);
        QFETCH(QString, text);
        const QString described = text.isEmpty() ? QString() : prefix + text;
        const bool inDatabase = key != QLatin1String("recType");
        const bool inEntity = !inDatabase || key == QLatin1String("name");
        const QString beforeFlag = inEntity && !described.isEmpty() ? described + ' ' : QString();
        QCOMPARE(describe(*readRun(documentWith(key, valueOf(value)))),
            QStringList({"database: " + (inDatabase ? described : QString()),
                "options: ", "entity: " + beforeFlag + "checkSequence"}));
    }

    void wrongTypesInPlaceOfAnOptionAreConverted_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("flag");
        for (const char *key : {"createNotAppMissingInRange", "createNoRanges"}) {
            for (const auto &value : kFlags)
                QTest::addRow("%s %s", key, value.first)
                    << QString(key) << QByteArray(value.first) << value.second;
        }
    }
    void wrongTypesInPlaceOfAnOptionAreConverted()
    {
        QFETCH(QString, key);
        QFETCH(QByteArray, value);
        QFETCH(bool, flag);
        QCOMPARE(describe(*readRun(documentWith(key, valueOf(value)))),
            QStringList({"database: ", "options: " + (flag ? key : QString()), "entity: checkSequence"}));
    }

    void wrongTypesInPlaceOfAnEntitysFlagAreConverted_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("expected");
        struct Row {
            const char *key;
            const char *whenSet;
            const char *whenCleared;
        };
        const QVector<Row> rows = {
            {"allVariables", "allVariables checkSequence", "checkSequence"},
            {"checkSequence", "checkSequence", ""},
            {"createCompound", "checkSequence createCompound", "checkSequence"},
            {"createSDC", "checkSequence createSDC", "checkSequence"},
            {"delete", "checkSequence checkDelete", "checkSequence"},
            {"selectable", "checkSequence checkSelectable", "checkSequence"},
        };
        for (const Row &row : rows) {
            for (const auto &value : kFlags) {
                QTest::addRow("%s %s", row.key, value.first)
                    << QString(row.key) << QByteArray(value.first)
                    << QString(value.second ? row.whenSet : row.whenCleared);
            }
        }
    }
    void wrongTypesInPlaceOfAnEntitysFlagAreConverted()
    {
        QFETCH(QString, key);
        QFETCH(QByteArray, value);
        QFETCH(QString, expected);
        QCOMPARE(describe(*readRun(documentWith(key, valueOf(value)))),
            QStringList({"database: ", "options: ", "entity: " + expected}));
    }

    void namesOfVariablesAreConvertedOneByOne_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QStringList>("names");
        for (const auto &value : kNames)
            QTest::newRow(value.first) << QByteArray(value.first) << value.second;
    }
    void namesOfVariablesAreConvertedOneByOne()
    {
        QFETCH(QByteArray, value);
        QFETCH(QStringList, names);
        QCOMPARE(namesIn(valueOf(value)), names);
        const std::unique_ptr<Config> config = readRun(documentWith("variables", valueOf(value)));
        const QList<QString> *list = config->getEntities()->first()->getVariables();
        // No name, no list: an entity without variables keeps its null list.
        QCOMPARE(list != nullptr, !names.isEmpty());
        if (list)
            QCOMPARE(QStringList(*list), names);
    }

    void aListOfNamesIsAlwaysNewAndTheCallers()
    {
        RunCreationBusiness business;
        const QVariant value = QVariantList{"AGE"};
        const std::unique_ptr<QList<QString>> one(business.recorrerVariablesNodosJson(value));
        const std::unique_ptr<QList<QString>> other(business.recorrerVariablesNodosJson(value));
        const std::unique_ptr<QList<QString>> none(business.recorrerVariablesNodosJson(QVariant()));
        QVERIFY(one != other);
        QVERIFY(none);
        one->append("SEX");
        QCOMPARE(QStringList(*other), QStringList{"AGE"});
        QCOMPARE(none->size(), 0);
    }

    void listsAndMapsOfOtherKindsThanParsedOnesAreTaken()
    {
        QCOMPARE(namesIn(QStringList{"AGE", "SEX"}), QStringList({"AGE", "SEX"}));
        const QVariantMap root = {
            {"database", QVariantHash{{"name", "A"}}},
            {"entities", QVariantList{QVariantHash{{"variables", QStringList{"AGE"}}, {"createSDC", 1u}}}},
            {"options", QVariantHash{{"createNoRanges", QByteArray("true")}}},
        };
        QCOMPARE(describe(*readRun(root)),
            QStringList({"database: name=A", "options: createNoRanges",
                "entity: variables=[AGE] checkSequence createSDC"}));
    }
};

QTEST_APPLESS_MAIN(tst_RunReading)
#include "tst_RunReading.moc"
