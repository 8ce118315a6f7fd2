#include "business/ProcessDictionaryBusiness.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "model/VarWipChoice.h"
#include "tests/business/DictionaryTree.h"
#include "tests/business/JsonSamples.h"
#include "tests/support/Json.h"
#include "tests/support/LogCatcher.h"

#include <QtTest>

using namespace tessel::test;

namespace {

/// What the value-label vectors in \a value read as.
QString vectorLabels(const QVariant &value)
{
    const Owned<ValueLabelElement> list(
        ProcessDictionaryBusiness().recorrerVectorValoresPorVariablesNodosJson(value));
    return describe(list.get());
}

QString withQuotes(const char *key, const QString &text)
{
    return text.isEmpty() ? QString() : QLatin1String(key) + QLatin1String("='") + text + QLatin1String("' ");
}

} // namespace

/// Entities, value-label vectors and choices. Variables have a program of their own.
class tst_ProcessDictionaryBusiness : public QObject {
    Q_OBJECT

private slots:
    void childListIsTakenFromTheFirstOfEntitiesAndRoot_data();
    void childListIsTakenFromTheFirstOfEntitiesAndRoot();
    void eachEntityKeySetsItsOwnField_data();
    void eachEntityKeySetsItsOwnField();
    void textKeysTakeAnyJsonType_data();
    void textKeysTakeAnyJsonType();
    void flagKeysTakeAnyJsonType_data();
    void flagKeysTakeAnyJsonType();
    void weightVariableIsMisspeltInALoneEntityOnly_data();
    void weightVariableIsMisspeltInALoneEntityOnly();
    void listsAreArraysOrLoneObjects_data();
    void listsAreArraysOrLoneObjects();
    void levelGrowsByOneWithEachNesting_data();
    void levelGrowsByOneWithEachNesting();
    void childListsBelowAnEntityFollowTheSameRules_data();
    void childListsBelowAnEntityFollowTheSameRules();
    void variablesAreAppendedInOrder();
    void otherContainersAreConvertedToo();
    void inputIsNotChanged();
    void oneInstanceServesManyDocumentsAndTheResultsAreApart();
    void nothingIsLoggedWhileReading();

    void firstObjectWithTheVectorKeyIsRead_data();
    void firstObjectWithTheVectorKeyIsRead();

    void choiceIsFilledFromItsObject_data();
    void choiceIsFilledFromItsObject();
    void choiceTakesAnyJsonType_data();
    void choiceTakesAnyJsonType();
    void choiceWithoutKeysLeavesTheTargetUntouched_data();
    void choiceWithoutKeysLeavesTheTargetUntouched();
    void choiceKeepsTheFieldsThatItsObjectDoesNotName();
};

void tst_ProcessDictionaryBusiness::childListIsTakenFromTheFirstOfEntitiesAndRoot_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QString>("entities");
    const auto row = [](const char *tag, const char *node, const char *entities) {
        QTest::newRow(tag) << QByteArray(node) << QString::fromUtf8(entities);
    };
    row("entities alone", "{'entities':[{'name':'A'}]}", "[{name='A' level=1}]");
    row("root alone", "{'root':[{'name':'A'}]}", "[{name='A' level=1}]");
    row("entities win over root", "{'entities':[{'name':'E'}],'root':[{'name':'R'}]}",
        "[{name='E' level=1}]");
    row("entities win whatever the order in the text", "{'root':[{'name':'R'}],'entities':[{'name':'E'}]}",
        "[{name='E' level=1}]");
    row("empty entities still win over root", "{'entities':[],'root':[{'name':'R'}]}", "[]");
    row("null entities still win over root", "{'entities':null,'root':[{'name':'R'}]}", "[]");
    row("neither gives an empty list", "{'name':'A','variables':[{'name':'X'}]}", "[]");
    row("an empty node gives an empty list", "{}", "[]");
    row("upper case is another key", "{'Entities':[{'name':'A'}],'ROOT':[{'name':'B'}]}", "[]");
    row("upper case does not shadow lower case", "{'Entities':[{'name':'A'}],'root':[{'name':'B'}]}",
        "[{name='B' level=1}]");
    row("blanks make another key", "{' entities':[{'name':'A'}],'entities ':[{'name':'B'}]}", "[]");
    row("a longer key is another key", "{'entities2':[{'name':'A'}],'roots':[{'name':'B'}]}", "[]");
    row("the node's own entity keys are not read",
        "{'name':'TOP','label':'L','virtual':true,'variables':[{'name':'X'}],'entities':[{'name':'A'}]}",
        "[{name='A' level=1}]");
    row("keys before and after the child list do not matter", "{'a':1,'entities':[{'name':'A'}],'zz':2}",
        "[{name='A' level=1}]");
}

void tst_ProcessDictionaryBusiness::childListIsTakenFromTheFirstOfEntitiesAndRoot()
{
    QFETCH(QByteArray, node);
    QFETCH(QString, entities);
    QCOMPARE(describe(entitiesOf(node.constData()).get()), entities);
}

void tst_ProcessDictionaryBusiness::eachEntityKeySetsItsOwnField_data()
{
    QTest::addColumn<QByteArray>("entity");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *tag, const char *entity, const char *expected) {
        QTest::newRow(tag) << QByteArray(entity) << QString::fromUtf8(expected);
    };
    row("no keys", "{}", "level=1");
    row("name", "{'name':'A'}", "name='A' level=1");
    row("alias", "{'alias':'A'}", "alias='A' level=1");
    row("label", "{'label':'A'}", "label='A' level=1");
    row("codeVar", "{'codeVar':'A'}", "codeVar='A' level=1");
    row("labelVar", "{'labelVar':'A'}", "labelVar='A' level=1");
    row("weightVar", "{'weightVar':'A'}", "weightVar='A' level=1");
    row("documentation", "{'documentation':'A'}", "documentation='A' level=1");
    row("virtual", "{'virtual':true}", "virtual level=1");
    row("selectable", "{'selectable':true}", "selectable level=1");
    row("cleared flags", "{'virtual':false,'selectable':false}", "level=1");
    row("variables", "{'variables':[{'name':'X'}]}", "level=1 variables=[{name='X'}]");
    row("entities", "{'entities':[{'name':'B'}]}", "level=1 entities=[{name='B' level=2}]");
    row("root", "{'root':[{'name':'B'}]}", "level=1 entities=[{name='B' level=2}]");
    row("all at once",
        "{'name':'1','alias':'2','label':'3','codeVar':'4','labelVar':'5','weightVar':'6','documentation':'7'"
        ","
        "'virtual':true,'selectable':true,'variables':[{'name':'X'}],'entities':[{'name':'B'}]}",
        "name='1' alias='2' label='3' codeVar='4' labelVar='5' weightVar='6' documentation='7' virtual "
        "selectable "
        "level=1 variables=[{name='X'}] entities=[{name='B' level=2}]");
    row("level, mark and field names are no keys",
        "{'level':7,'checkDelete':true,'isvirtual':true,'refCode':'A','refLabel':'A','weightVariable':'A',"
        "'documentationEntity':'A','children':[{'name':'B'}]}",
        "level=1");
    row("keys are told apart by case", "{'Name':'A','LABEL':'A','codevar':'A','Virtual':true}", "level=1");
    row("text beyond ASCII", "{'name':'Ñandú \\u20ac \\ud83d\\ude00'}", "name='Ñandú € 😀' level=1");
}

void tst_ProcessDictionaryBusiness::eachEntityKeySetsItsOwnField()
{
    QFETCH(QByteArray, entity);
    QFETCH(QString, expected);
    const QByteArray node = "{'entities':[" + entity + "]}";
    QCOMPARE(describe(entitiesOf(node.constData()).get()), QString("[{" + expected + "}]"));
}

void tst_ProcessDictionaryBusiness::textKeysTakeAnyJsonType_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QString>("entities");
    for (const char *key : {"name", "alias", "label", "codeVar", "labelVar", "weightVar", "documentation"}) {
        for (const JsonSample &sample : kJsonSamples) {
            QTest::addRow("%s given %s", key, sample.tag)
                << QByteArray(QByteArray("{'entities':[{'") + key + "':" + sample.json + "}]}")
                << QString("[{" + withQuotes(key, QLatin1String(sample.text)) + "level=1}]");
        }
    }
}

void tst_ProcessDictionaryBusiness::textKeysTakeAnyJsonType()
{
    QFETCH(QByteArray, node);
    QFETCH(QString, entities);
    QCOMPARE(describe(entitiesOf(node.constData()).get()), entities);
}

void tst_ProcessDictionaryBusiness::flagKeysTakeAnyJsonType_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QString>("entities");
    for (const char *key : {"virtual", "selectable"}) {
        for (const JsonSample &sample : kJsonSamples) {
            QTest::addRow("%s given %s", key, sample.tag)
                << QByteArray(QByteArray("{'entities':[{'") + key + "':" + sample.json + "}]}")
                << QString("[{" + (sample.flag ? QString(QLatin1String(key) + QLatin1Char(' ')) : QString())
                       + "level=1}]");
        }
    }
}

void tst_ProcessDictionaryBusiness::flagKeysTakeAnyJsonType()
{
    QFETCH(QByteArray, node);
    QFETCH(QString, entities);
    QCOMPARE(describe(entitiesOf(node.constData()).get()), entities);
}

void tst_ProcessDictionaryBusiness::weightVariableIsMisspeltInALoneEntityOnly_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QString>("entities");
    const auto row = [](const char *tag, const char *node, const char *entities) {
        QTest::newRow(tag) << QByteArray(node) << QString::fromUtf8(entities);
    };
    row("array, well spelt: read", "{'entities':[{'weightVar':'W'}]}", "[{weightVar='W' level=1}]");
    row("array, misspelt: skipped", "{'entities':[{'weigthVar':'W'}]}", "[{level=1}]");
    row("array, both: the well spelt one", "{'entities':[{'weightVar':'W','weigthVar':'M'}]}",
        "[{weightVar='W' level=1}]");
    row("alone, misspelt: read", "{'entities':{'name':'A','weigthVar':'W'}}",
        "[{name='A' weightVar='W' level=1}]");
    row("alone, well spelt: skipped", "{'entities':{'name':'A','weightVar':'W'}}", "[{name='A' level=1}]");
    row("alone, both: the misspelt one", "{'entities':{'weightVar':'W','weigthVar':'M'}}",
        "[{weightVar='M' level=1}]");
    row("under root, array", "{'root':[{'weightVar':'W','weigthVar':'M'}]}", "[{weightVar='W' level=1}]");
    row("under root, alone", "{'root':{'weightVar':'W','weigthVar':'M'}}", "[{weightVar='M' level=1}]");
    row("each level by its own standing",
        "{'entities':[{'weightVar':'W1','weigthVar':'M1','entities':{'weightVar':'W2','weigthVar':'M2',"
        "'entities':[{'weightVar':'W3','weigthVar':'M3'}]}}]}",
        "[{weightVar='W1' level=1 entities=[{weightVar='M2' level=2 entities=[{weightVar='W3' level=3}]}]}]");
}

void tst_ProcessDictionaryBusiness::weightVariableIsMisspeltInALoneEntityOnly()
{
    QFETCH(QByteArray, node);
    QFETCH(QString, entities);
    QCOMPARE(describe(entitiesOf(node.constData()).get()), entities);
}

void tst_ProcessDictionaryBusiness::listsAreArraysOrLoneObjects_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("entities");
    const auto row = [](const char *tag, const char *value, const char *entities) {
        QTest::newRow(tag) << QByteArray(value) << QString::fromUtf8(entities);
    };
    row("array in its order", "[{'name':'B'},{'name':'A'},{'name':'C'}]",
        "[{name='B' level=1}, {name='A' level=1}, {name='C' level=1}]");
    row("the same object twice", "[{'name':'A'},{'name':'A'}]", "[{name='A' level=1}, {name='A' level=1}]");
    row("lone object", "{'name':'A'}", "[{name='A' level=1}]");
    row("lone object with unknown keys only", "{'x':1}", "[{level=1}]");
    row("lone object without keys is nothing", "{}", "[]");
    row("array element without keys is a fresh entity", "[{}]", "[{level=1}]");
    row("array elements that are no objects are fresh entities",
        "[1,'A',true,null,[{'name':'A'}],{'name':'B'}]",
        "[{level=1}, {level=1}, {level=1}, {level=1}, {level=1}, {name='B' level=1}]");
    row("empty array", "[]", "[]");
    row("number", "7", "[]");
    row("text", "'A'", "[]");
    row("flag", "true", "[]");
    row("null", "null", "[]");
}

void tst_ProcessDictionaryBusiness::listsAreArraysOrLoneObjects()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, entities);
    const QByteArray node = "{'entities':" + value + "}";
    QCOMPARE(describe(entitiesOf(node.constData()).get()), entities);
}

void tst_ProcessDictionaryBusiness::levelGrowsByOneWithEachNesting_data()
{
    QTest::addColumn<int>("level");
    QTest::addColumn<QList<int>>("levels");
    QTest::newRow("a document") << 0 << QList<int>{1, 2, 3};
    QTest::newRow("an entity of level 1") << 1 << QList<int>{2, 3, 4};
    QTest::newRow("below zero") << -1 << QList<int>{0, 1, 2};
    QTest::newRow("far below zero") << -3 << QList<int>{-2, -1, 0};
    QTest::newRow("deep") << 1000 << QList<int>{1001, 1002, 1003};
}

void tst_ProcessDictionaryBusiness::levelGrowsByOneWithEachNesting()
{
    QFETCH(int, level);
    QFETCH(QList<int>, levels);
    const Entities top = entitiesOf("{'entities':[{'entities':{'x':1,'root':[{}]}},{}]}", level);
    QCOMPARE(top->size(), 2);
    QCOMPARE(top->at(0)->getChildren()->size(), 1);
    const TDmEntity *middle = top->at(0)->getChildren()->at(0);
    QCOMPARE(middle->getChildren()->size(), 1);
    QCOMPARE(
        (QList<int>{top->at(0)->getLevel(), middle->getLevel(), middle->getChildren()->at(0)->getLevel()}),
        levels);
    QCOMPARE(top->at(1)->getLevel(), levels.first());
}

void tst_ProcessDictionaryBusiness::childListsBelowAnEntityFollowTheSameRules_data()
{
    QTest::addColumn<QByteArray>("entity");
    QTest::addColumn<QString>("children");
    const auto row = [](const char *tag, const char *entity, const char *children) {
        QTest::newRow(tag) << QByteArray(entity) << QString::fromUtf8(children);
    };
    row("none", "{'name':'P'}", "[]");
    row("entities", "{'entities':[{'name':'A'},{'name':'B'}]}", "[{name='A' level=2}, {name='B' level=2}]");
    row("root", "{'root':[{'name':'A'},{'name':'B'}]}", "[{name='A' level=2}, {name='B' level=2}]");
    row("both: once from entities", "{'entities':[{'name':'A'},{'name':'B'}],'root':[{'name':'R'}]}",
        "[{name='A' level=2}, {name='B' level=2}]");
    row("both, entities empty: root is not read", "{'entities':[],'root':[{'name':'R'}]}", "[]");
    row("both, entities of another type: root is not read", "{'entities':5,'root':[{'name':'R'}]}", "[]");
    row("lone child", "{'entities':{'name':'A'}}", "[{name='A' level=2}]");
    row("child that is no object", "{'entities':[3]}", "[{level=2}]");
    row("child list of another type", "{'entities':'A'}", "[]");
}

void tst_ProcessDictionaryBusiness::childListsBelowAnEntityFollowTheSameRules()
{
    QFETCH(QByteArray, entity);
    QFETCH(QString, children);
    const Entities inArray = entitiesOf(QByteArray("{'entities':[" + entity + "]}").constData());
    QCOMPARE(inArray->size(), 1);
    QCOMPARE(describe(inArray->first()->getChildren()), children);
    const Entities alone = entitiesOf(QByteArray("{'entities':" + entity + "}").constData());
    QCOMPARE(alone->size(), 1);
    QCOMPARE(describe(alone->first()->getChildren()), children);
}

void tst_ProcessDictionaryBusiness::variablesAreAppendedInOrder()
{
    const Entities entities =
        entitiesOf("{'entities':[{'variables':[{'name':'B'},{'name':'A'},5,{'name':'C'}]},"
                   "{'variables':{'name':'X'}},{'variables':'X'}]}");
    QCOMPARE(describe(entities.get()),
        QString("[{level=1 variables=[{name='B'}, {name='A'}, {}, {name='C'}]}, {level=1 "
                "variables=[{name='X'}]}, "
                "{level=1}]"));
}

void tst_ProcessDictionaryBusiness::otherContainersAreConvertedToo()
{
    const QVariantHash entity{{"name", "A"}, {"weightVar", "W"}, {"weigthVar", "M"}};
    QCOMPARE(describe(entitiesOf(QVariantMap{{"entities", entity}}).get()),
        QString("[{name='A' weightVar='M' level=1}]"));
    QCOMPARE(describe(entitiesOf(QVariantMap{{"entities", QVariantList{entity}}}).get()),
        QString("[{name='A' weightVar='W' level=1}]"));
    QCOMPARE(describe(entitiesOf(QVariantMap{{"entities", QStringList{"A", "B"}}}).get()),
        QString("[{level=1}, {level=1}]"));
    QCOMPARE(describe(entitiesOf(QVariantMap{{"entities", QVariant()}}).get()), QString("[]"));
}

void tst_ProcessDictionaryBusiness::inputIsNotChanged()
{
    const char *const text =
        "{'entities':[{'name':'A','variables':[{'name':'X','size':'7'}],'root':{'name':'B'}}]}";
    const QVariantMap node = objectOf(text);
    entitiesOf(node);
    QCOMPARE(node, objectOf(text));
}

void tst_ProcessDictionaryBusiness::oneInstanceServesManyDocumentsAndTheResultsAreApart()
{
    ProcessDictionaryBusiness service;
    const QVariantMap node = objectOf("{'entities':[{'name':'A','variables':[{'name':'X'}]}]}");
    const Entities first(service.recorrerNodosJsonYCargaEstructuraEntidades(node, 0));
    const Entities other(service.recorrerNodosJsonYCargaEstructuraEntidades(objectOf("{'root':[{}]}"), 4));
    const Entities second(service.recorrerNodosJsonYCargaEstructuraEntidades(node, 0));
    first->first()->setName("changed");
    first->first()->getVariables()->first()->setName("changed");
    QCOMPARE(describe(other.get()), QString("[{level=5}]"));
    QCOMPARE(describe(second.get()), QString("[{name='A' level=1 variables=[{name='X'}]}]"));
}

void tst_ProcessDictionaryBusiness::nothingIsLoggedWhileReading()
{
    const LogCatcher log;
    entitiesOf("{'entities':[{'name':[1],'virtual':'x','variables':[{'size':'y','metadata':3,'valueLabels':4}"
               "]},7]}");
    entitiesOf("{}");
    QCOMPARE(log.messages(), QStringList());
}

void tst_ProcessDictionaryBusiness::firstObjectWithTheVectorKeyIsRead_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("labels");
    const auto row = [](const char *tag, const char *value, const char *labels) {
        QTest::newRow(tag) << QByteArray(value) << QString::fromUtf8(labels);
    };
    row("array of one", "[{'valueLabelElement':[{'value':1,'label':'Yes'},{'value':2,'label':'No'}]}]",
        "[{value='1' label='Yes'}, {value='2' label='No'}]");
    row("standing alone", "{'valueLabelElement':[{'value':1,'label':'Yes'}]}", "[{value='1' label='Yes'}]");
    row("lone label below the key", "[{'valueLabelElement':{'value':1}}]", "[{value='1'}]");
    row("alone all the way", "{'valueLabelElement':{'value':1}}", "[{value='1'}]");
    row("only the first of two", "[{'valueLabelElement':[{'value':1}]},{'valueLabelElement':[{'value':2}]}]",
        "[{value='1'}]");
    row("objects without the key are passed over", "[{'x':1},5,{},{'valueLabelElement':[{'value':2}]}]",
        "[{value='2'}]");
    row("an empty first one ends the search",
        "[{'valueLabelElement':[]},{'valueLabelElement':[{'value':2}]}]", "[]");
    row("a null first one ends the search",
        "[{'valueLabelElement':null},{'valueLabelElement':[{'value':2}]}]", "[]");
    row("other keys beside it do not matter", "[{'a':1,'valueLabelElement':[{'label':'L'}],'z':2}]",
        "[{label='L'}]");
    row("the plain value-label keys are no vector", "[{'value':1,'label':'Yes'}]", "[]");
    row("upper case is another key", "[{'ValueLabelElement':[{'value':1}]}]", "[]");
    row("no object has it", "[{'x':1},{'y':2}]", "[]");
    row("elements that are no objects", "[1,'valueLabelElement',null]", "[]");
    row("empty array", "[]", "[]");
    row("empty object", "{}", "[]");
    row("number", "3", "[]");
    row("text", "'valueLabelElement'", "[]");
    row("null", "null", "[]");
}

void tst_ProcessDictionaryBusiness::firstObjectWithTheVectorKeyIsRead()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, labels);
    QCOMPARE(vectorLabels(valueOf(value.constData())), labels);
}

void tst_ProcessDictionaryBusiness::choiceIsFilledFromItsObject_data()
{
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *tag, const char *choice, const char *expected) {
        QTest::newRow(tag) << QByteArray(choice) << QString::fromUtf8(expected);
    };
    row("dataProvider", "{'dataProvider':'A'}", "dataProvider='A'");
    row("field", "{'field':'A'}", "field='A'");
    row("recType", "{'recType':'A'}", "recType='A'");
    row("start", "{'start':5}", "start=5");
    row("all at once", "{'dataProvider':'A','field':'B','recType':'C','start':-5}",
        "dataProvider='A' field='B' recType='C' start=-5");
    row("unknown keys are skipped", "{'name':'A','length':3,'Field':'B','rectype':'C'}", "");
}

void tst_ProcessDictionaryBusiness::choiceIsFilledFromItsObject()
{
    QFETCH(QByteArray, choice);
    QFETCH(QString, expected);
    VarWipChoice target;
    const QByteArray object = "{'here':" + choice + ",'field':'not this one'}";
    ProcessDictionaryBusiness().loadItemVariableSubitemVarWipChoice(
        &target, objectOf(object.constData()), "here");
    QCOMPARE(describe(target), expected);
}

void tst_ProcessDictionaryBusiness::choiceTakesAnyJsonType_data()
{
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<QString>("expected");
    for (const JsonSample &sample : kJsonSamples) {
        for (const char *key : {"dataProvider", "field", "recType"}) {
            QTest::addRow("%s given %s", key, sample.tag)
                << QByteArray(QByteArray("{'") + key + "':" + sample.json + "}")
                << withQuotes(key, QLatin1String(sample.text)).trimmed();
        }
        QTest::addRow("start given %s", sample.tag)
            << QByteArray(QByteArray("{'start':") + sample.json + "}")
            << (sample.integer ? "start=" + QString::number(sample.integer) : QString());
    }
}

void tst_ProcessDictionaryBusiness::choiceTakesAnyJsonType()
{
    QFETCH(QByteArray, choice);
    QFETCH(QString, expected);
    VarWipChoice target;
    ProcessDictionaryBusiness().loadItemVariableSubitemVarWipChoice(
        &target, QVariantMap{{"c", objectOf(choice.constData())}}, "c");
    QCOMPARE(describe(target), expected);
}

void tst_ProcessDictionaryBusiness::choiceWithoutKeysLeavesTheTargetUntouched_data()
{
    QTest::addColumn<QByteArray>("object");
    QTest::newRow("key missing") << QByteArray("{'field':'B','start':2}");
    QTest::newRow("another case") << QByteArray("{'Choice':{'field':'B'}}");
    QTest::newRow("empty object") << QByteArray("{'choice':{}}");
    QTest::newRow("null") << QByteArray("{'choice':null}");
    QTest::newRow("number") << QByteArray("{'choice':4}");
    QTest::newRow("text") << QByteArray("{'choice':'field'}");
    QTest::newRow("array of one choice") << QByteArray("{'choice':[{'field':'B'}]}");
    QTest::newRow("nothing at all") << QByteArray("{}");
}

void tst_ProcessDictionaryBusiness::choiceWithoutKeysLeavesTheTargetUntouched()
{
    QFETCH(QByteArray, object);
    VarWipChoice target;
    target.setDataProvider("P");
    target.setField("F");
    target.setRecType("R");
    target.setStart(9);
    ProcessDictionaryBusiness().loadItemVariableSubitemVarWipChoice(
        &target, objectOf(object.constData()), "choice");
    QCOMPARE(describe(target), QString("dataProvider='P' field='F' recType='R' start=9"));
}

void tst_ProcessDictionaryBusiness::choiceKeepsTheFieldsThatItsObjectDoesNotName()
{
    VarWipChoice target;
    target.setDataProvider("P");
    target.setField("F");
    target.setStart(9);
    ProcessDictionaryBusiness().loadItemVariableSubitemVarWipChoice(
        &target, objectOf("{'c':{'field':'G','start':null}}"), "c");
    QCOMPARE(describe(target), QString("dataProvider='P' field='G'"));
}

QTEST_APPLESS_MAIN(tst_ProcessDictionaryBusiness)
#include "tst_ProcessDictionaryBusiness.moc"
