#include "documents/DocumentForm.h"

#include "business/ProcessDictionaryBusiness.h"
#include "documents/DocumentFile.h"
#include "model/ConfigDb.h"
#include "model/ConfigEntities.h"
#include "model/ConfigOptions.h"
#include "model/TDmVariable.h"
#include "tests/support/Json.h"

#include <QtTest>

using namespace tessel::documents;

namespace {

QJsonObject jsonOf(const char *text) { return QJsonObject::fromVariantMap(tessel::test::objectOf(text)); }

QByteArray sampleBytes(const char *name)
{
    QFile file(QLatin1String(TESSEL_SAMPLES "/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// "ENTITY/VARIABLE: documentation" of all variables below \a entity that have some.
QStringList documentationsIn(const TDmEntity &entity)
{
    QStringList list;
    for (const TDmVariable *variable : qAsConst(*entity.getVariables())) {
        list.append(entity.getName() + QLatin1Char('/') + variable->getName() + QLatin1String(": ")
            + variable->getDocumentation());
    }
    for (const TDmEntity *child : qAsConst(*entity.getChildren()))
        list += documentationsIn(*child);
    return list;
}

/// "NAME LEVEL" of \a entity and all below it.
QStringList levelsIn(const TDmEntity &entity)
{
    QStringList list{entity.getName() + QLatin1Char(' ') + QString::number(entity.getLevel())};
    for (const TDmEntity *child : qAsConst(*entity.getChildren()))
        list += levelsIn(*child);
    return list;
}

} // namespace

class tst_DocumentForm : public QObject {
    Q_OBJECT

private slots:
    void aRunSaysSoItself_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isRun");
        QTest::newRow("type config") << QByteArray("{'type': 'config'}") << true;
        QTest::newRow("type config among others")
            << QByteArray("{'name': 'A', 'type': 'config', 'entities': []}") << true;
        QTest::newRow("nothing") << QByteArray("{}") << false;
        QTest::newRow("other type") << QByteArray("{'type': 'dictionary'}") << false;
        QTest::newRow("other case") << QByteArray("{'type': 'Config'}") << false;
        QTest::newRow("blank behind") << QByteArray("{'type': 'config '}") << false;
        QTest::newRow("no text") << QByteArray("{'type': ['config']}") << false;
        QTest::newRow("other key") << QByteArray("{'Type': 'config'}") << false;
        QTest::newRow("keys of a run, but no type") << QByteArray("{'database': {}, 'options': {}}") << false;
    }

    void aRunSaysSoItself()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isRun);
        QCOMPARE(kindOf(jsonOf(text.constData())) == DocumentKind::Run, isRun);
    }

    void theRootKeepsItsOwnKeys()
    {
        const QByteArray text =
            "{'alias':'a','codeVar':'c','documentation':'d','label':'l','labelVar':'lv','name':'n',"
            "'selectable':true,'virtual':true,'weightVar':'w'}";
        const std::unique_ptr<TDmEntity> root = readDictionary(jsonOf(text.constData()));
        QCOMPARE(root->getName(), QStringLiteral("n"));
        QCOMPARE(root->getAlias(), QStringLiteral("a"));
        QCOMPARE(root->getLabel(), QStringLiteral("l"));
        QCOMPARE(root->getDocumentationEntity(), QStringLiteral("d"));
        QCOMPARE(root->getRefCode(), QStringLiteral("c"));
        QCOMPARE(root->getRefLabel(), QStringLiteral("lv"));
        QCOMPARE(root->getWeightVariable(), QStringLiteral("w"));
        QCOMPARE(root->getSelectable(), true);
        QCOMPARE(root->getIsvirtual(), true);
        QCOMPARE(tessel::test::documentOf(*root), text);
    }

    void theRootKeepsItsOwnVariables()
    {
        const std::unique_ptr<TDmEntity> root =
            readDictionary(jsonOf("{'name': 'R', 'variables': [{'name': 'A', 'documentation': 'a'}, {'name': "
                                  "'B'}], 'entities': []}"));
        QCOMPARE(documentationsIn(*root), (QStringList{QStringLiteral("R/A: a"), QStringLiteral("R/B: ")}));
    }

    void anEmptyDocumentIsAnEmptyRoot()
    {
        const std::unique_ptr<TDmEntity> root = readDictionary(QJsonObject());
        QVERIFY(root);
        QCOMPARE(tessel::test::documentOf(*root), QByteArray("{'selectable':false,'virtual':false}"));
        QCOMPARE(root->getLevel(), 0);
    }

    void theRootHasLevelZero()
    {
        const std::unique_ptr<TDmEntity> root = readDictionary(
            jsonOf("{'name': 'R', 'entities': [{'name': 'A', 'entities': [{'name': 'B'}]}, {'name': 'C'}]}"));
        QCOMPARE(levelsIn(*root),
            (QStringList{
                QStringLiteral("R 0"), QStringLiteral("A 1"), QStringLiteral("B 2"), QStringLiteral("C 1")}));
    }

    void variablesKeepTheirDocumentation_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("documentations");
        const auto row = [](const char *tag, const char *text, const char *documentations) {
            QTest::newRow(tag) << QByteArray(text) << QString::fromLatin1(documentations);
        };
        row("in arrays",
            "{'entities': [{'name': 'A', 'variables': [{'name': 'V', 'documentation': 'v'}, {'name': 'W'},"
            " {'name': 'X', 'documentation': 'x'}], 'entities': [{'name': 'B', 'variables': [{'name': 'V',"
            " 'documentation': 'bv'}]}]}, {'name': 'C', 'variables': [{'name': 'V', 'documentation': "
            "'cv'}]}]}",
            "A/V: v|A/W: |A/X: x|B/V: bv|C/V: cv");
        row("of a variable alone",
            "{'entities': [{'name': 'A', 'variables': {'name': 'V', 'documentation': 'v'}}]}", "A/V: v");
        row("of an entity alone",
            "{'entities': {'name': 'A', 'variables': [{'name': 'V', 'documentation': 'v'}],"
            " 'entities': {'name': 'B', 'variables': {'name': 'W', 'documentation': 'w'}}}}",
            "A/V: v|B/W: w");
        row("below the other name of the child list",
            "{'root': [{'name': 'A', 'variables': [{'name': 'V', 'documentation': 'v'}],"
            " 'root': [{'name': 'B', 'variables': [{'name': 'W', 'documentation': 'w'}]}]}]}",
            "A/V: v|B/W: w");
        row("below both names of the child list",
            "{'root': [{'name': 'X', 'variables': [{'name': 'V', 'documentation': 'x'}]}],"
            " 'entities': [{'name': 'A', 'variables': [{'name': 'V', 'documentation': 'v'}],"
            " 'root': [{'name': 'Y', 'variables': [{'name': 'W', 'documentation': 'y'}]}],"
            " 'entities': [{'name': 'B', 'variables': [{'name': 'W', 'documentation': 'w'}]}]}]}",
            "A/V: v|B/W: w");
        row("behind items that are no objects",
            "{'entities': [7, {}, {'name': 'A', 'variables': [null, {}, {'name': 'V', 'documentation': "
            "'v'}]}]}",
            "A/: |A/: |A/V: v");
        row("that is no text",
            "{'entities': [{'name': 'A', 'variables': [{'name': 'V', 'documentation': 7},"
            " {'name': 'W', 'documentation': null}, {'name': 'X', 'documentation': {}}]}]}",
            "A/V: 7|A/W: |A/X: ");
        row("of several lines", "{'variables': [{'name': 'V', 'documentation': 'a\\nb'}]}", "/V: a\nb");
    }

    void variablesKeepTheirDocumentation()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, documentations);
        const std::unique_ptr<TDmEntity> root = readDictionary(jsonOf(text.constData()));
        QCOMPARE(documentationsIn(*root).join(QLatin1Char('|')), documentations);
    }

    void aRunIsReadWhole()
    {
        const std::unique_ptr<Config> config = readRun(jsonOf(
            "{'type': 'config', 'database': {'name': 'n', 'folder': 'f', 'filter': 'x', 'XXXproject': 'p'},"
            " 'options': {'createNoRanges': true}, 'entities': [{'name': 'A', 'variables': ['V', 'W']}]}"));
        QCOMPARE(config->getDataBase()->getName(), QStringLiteral("n"));
        QCOMPARE(config->getDataBase()->getFilter(), QStringLiteral("x"));
        QCOMPARE(config->getDataBase()->getProject(), QStringLiteral("p"));
        QCOMPARE(config->getOptions()->getCreateNoRanges(), true);
        QCOMPARE(config->getOptions()->getCreateNotAppMissingInRange(), false);
        QCOMPARE(config->getEntities()->size(), 1);
        QCOMPARE(*config->getEntities()->first()->getVariables(),
            (QStringList{QStringLiteral("V"), QStringLiteral("W")}));
    }

    void theNormalFormIsText()
    {
        QCOMPARE(normalForm(jsonOf("{'name': '\xc3\xb1', 'entities': {'name': 'A'}}")),
            QByteArray(
                "{\n    \"entities\": [\n        {\n            \"name\": \"A\",\n"
                "            \"selectable\": false,\n            \"virtual\": false\n        }\n    ],\n"
                "    \"name\": \"\xc3\xb1\",\n    \"selectable\": false,\n    \"virtual\": false\n}\n"));
        QCOMPARE(normalForm(jsonOf("{'type': 'config'}")),
            QByteArray(
                "{\n    \"database\": {\n    },\n    \"entities\": [\n    ],\n    \"options\": {\n"
                "        \"createNoRanges\": false,\n        \"createNotAppMissingInRange\": false\n    },\n"
                "    \"type\": \"config\"\n}\n"));
    }

    void theNormalFormOfANormalFormIsItself_data()
    {
        QTest::addColumn<QJsonObject>("document");
        const auto row = [](const char *text) { QTest::newRow(text) << jsonOf(text); };
        row("{}");
        row("{'name': 'R', 'documentation': 'd', 'unknown': 1}");
        row("{'entities': {'name': 'A', 'weigthVar': 'W', 'weightVar': 'X'}}");
        row("{'entities': [{'name': 'A', 'weigthVar': 'W', 'weightVar': 'X'}]}");
        row("{'root': [{'name': 'A', 'root': {'name': 'B'}}], 'variables': {'name': 'V', 'documentation': "
            "'d'}}");
        row("{'variables': [{'name': 'V', 'type': 'STRING', 'valueLabels': [{'value': 7}]}, 3, null]}");
        row("{'variables': [{'type': ' Integer ', 'valueLabels': [{'value': 'A'}, {'value': '007'}, {}]}]}");
        row("{'variables': [{'type': 'real', 'valueLabels': [{'value': '2.50'}, {'value': 1e300}, {'value': "
            "'x'}]}]}");
        row("{'variables': [{'name': 'V', 'metadata': {'range': {'min': 1.5, 'max': 9.7}, 'record': 'r'}}]}");
        row("{'variables': [{'metadata': {'range': [{'min': 1.5, 'max': 0.1}], 'start': -3, 'length': "
            "2.5}}]}");
        row("{'variables': [{'tag': 99999, 'missing': 1e10, 'notapp': -1, 'size': '12', 'local': 'true'}]}");
        row("{'name': 7, 'label': true, 'selectable': 'yes', 'virtual': 1, 'entities': 'none'}");
        row("{'type': 'config'}");
        row("{'type': 'config', 'database': {'name': 7, 'filter': 'f'}, 'options': {'createNoRanges': "
            "'true'}}");
        row("{'type': 'config', 'entities': [{}, {'name': 'A', 'checkSequence': false, 'createSDC': true,"
            " 'delete': true, 'variables': ['a', 1, '']}, 5]}");
        for (const char *name : {"census.json", "run.json"})
            QTest::newRow(name) << *parseObject(sampleBytes(name)).result;
    }

    void theNormalFormOfANormalFormIsItself()
    {
        QFETCH(QJsonObject, document);
        const QByteArray first = normalForm(document);
        QVERIFY(first.endsWith("}\n"));
        const Outcome<QJsonObject> parsed = parseObject(first);
        QVERIFY2(parsed.result, qPrintable(parsed.problem.message));
        QCOMPARE(normalForm(*parsed.result), first);
    }

    void theSamplesAreInNormalForm_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("dictionary") << QByteArray("census.json");
        QTest::newRow("run") << QByteArray("run.json");
    }

    void theSamplesAreInNormalForm()
    {
        QFETCH(QByteArray, name);
        const QByteArray bytes = sampleBytes(name.constData());
        QVERIFY(bytes.size() > 1000);
        QVERIFY(normalForm(*parseObject(bytes).result) == bytes);
    }

    void fiveHundredLevelsAreReadAndWritten()
    {
        QByteArray text =
            "{\"name\": \"E500\", \"variables\": [{\"name\": \"V\", \"documentation\": \"deep\"}]}";
        for (int level = 499; level >= 0; --level)
            text = "{\"name\": \"E" + QByteArray::number(level) + "\", \"entities\": [" + text + "]}";
        const QJsonObject document = *parseObject(text).result;
        const std::unique_ptr<TDmEntity> root = readDictionary(document);
        const QStringList levels = levelsIn(*root);
        QCOMPARE(levels.size(), 501);
        QCOMPARE(levels.last(), QStringLiteral("E500 500"));
        QCOMPARE(documentationsIn(*root), QStringList{QStringLiteral("E500/V: deep")});
        const QByteArray written = normalForm(document);
        QCOMPARE(normalForm(*parseObject(written).result), written);
    }
};

QTEST_APPLESS_MAIN(tst_DocumentForm)
#include "tst_DocumentForm.moc"
