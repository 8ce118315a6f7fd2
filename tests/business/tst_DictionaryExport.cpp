#include "business/ProcessDictionaryBusiness.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "tests/business/DictionaryTree.h"
#include "tests/support/Json.h"
#include "tests/support/LogCatcher.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QtTest>

#include <functional>
#include <limits>

using namespace tessel::test;

using ChangeEntity = std::function<void(TDmEntity &)>;
using ChangeVariable = std::function<void(TDmVariable &)>;
Q_DECLARE_METATYPE(ChangeEntity)
Q_DECLARE_METATYPE(ChangeVariable)

class tst_DictionaryExport : public QObject {
    Q_OBJECT

private slots:
    void eachEntityFieldIsWrittenUnderItsKey_data();
    void eachEntityFieldIsWrittenUnderItsKey();
    void childrenAreWrittenInOrderAtEveryDepth();
    void theTopObjectIsTheEntityThatIsGiven();
    void keysThatTheObjectHoldsAreReplacedOrLeft();

    void eachVariableFieldIsWrittenUnderItsKey_data();
    void eachVariableFieldIsWrittenUnderItsKey();
    void variablesAreWrittenInOrder();
    void typeIsLowerCasedButNotTrimmed_data();
    void typeIsLowerCasedButNotTrimmed();
    void sizeIsWrittenForStringsOnly_data();
    void sizeIsWrittenForStringsOnly();

    void nullPointersInListsArePassedOver();
    void listsOfNullPointersOnlyAreLeftOut();
    void nullListsAreWrittenAsEmptyOnes();
    void theTreeIsNotChanged();
    void nothingIsLoggedWhileWriting();
};

void tst_DictionaryExport::eachEntityFieldIsWrittenUnderItsKey_data()
{
    QTest::addColumn<ChangeEntity>("change");
    QTest::addColumn<QByteArray>("document");
    const auto row = [](const char *tag, const ChangeEntity &change, const char *document) {
        QTest::newRow(tag) << change << QByteArray(document);
    };
    row(
        "a leaf without anything", [](TDmEntity &) {}, "{'selectable':false,'virtual':false}");
    row(
        "name", [](TDmEntity &e) { e.setName("A"); }, "{'name':'A','selectable':false,'virtual':false}");
    row(
        "alias", [](TDmEntity &e) { e.setAlias("A"); }, "{'alias':'A','selectable':false,'virtual':false}");
    row(
        "label", [](TDmEntity &e) { e.setLabel("A"); }, "{'label':'A','selectable':false,'virtual':false}");
    row(
        "weight variable is spelt well, never weigthVar", [](TDmEntity &e) { e.setWeightVariable("A"); },
        "{'selectable':false,'virtual':false,'weightVar':'A'}");
    row(
        "documentation", [](TDmEntity &e) { e.setDocumentationEntity("A"); },
        "{'documentation':'A','selectable':false,'virtual':false}");
    row(
        "code variable", [](TDmEntity &e) { e.setRefCode("A"); },
        "{'codeVar':'A','selectable':false,'virtual':false}");
    row(
        "label variable", [](TDmEntity &e) { e.setRefLabel("A"); },
        "{'labelVar':'A','selectable':false,'virtual':false}");
    row(
        "selectable", [](TDmEntity &e) { e.setSelectable(true); }, "{'selectable':true,'virtual':false}");
    row(
        "virtual", [](TDmEntity &e) { e.setIsvirtual(true); }, "{'selectable':false,'virtual':true}");
    row(
        "level and deletion mark are in no direction",
        [](TDmEntity &e) {
            e.setLevel(4);
            e.setCheckDelete(true);
        },
        "{'selectable':false,'virtual':false}");
    row(
        "a blank is a text", [](TDmEntity &e) { e.setName(" "); },
        "{'name':' ','selectable':false,'virtual':false}");
    row(
        "a leaf child", [](TDmEntity &e) { addChild(e, "B"); },
        "{'entities':[{'name':'B','selectable':false,'virtual':false}],'selectable':false,'virtual':false}");
    row(
        "all at once, keys sorted",
        [](TDmEntity &e) {
            e.setName("1");
            e.setAlias("2");
            e.setLabel("3");
            e.setWeightVariable("4");
            e.setDocumentationEntity("5");
            e.setSelectable(true);
            e.setIsvirtual(true);
            e.setRefCode("6");
            e.setRefLabel("7");
            addVariable(e, "X");
            addChild(e, "B");
        },
        "{'alias':'2','codeVar':'6','documentation':'5','entities':[{'name':'B','selectable':false,'virtual':"
        "false}],"
        "'label':'3','labelVar':'7','name':'1','selectable':true,'variables':[{'fileName':'','local':false,"
        "'metadata':{},'missing':0,'name':'X','notapp':0,'type':'integer'}],'virtual':true,'weightVar':'4'}");
}

void tst_DictionaryExport::eachEntityFieldIsWrittenUnderItsKey()
{
    QFETCH(ChangeEntity, change);
    QFETCH(QByteArray, document);
    TDmEntity entity;
    change(entity);
    QCOMPARE(documentOf(entity), document);
    // The same holds at any depth.
    TDmEntity root;
    auto *const child = new TDmEntity;
    root.getChildren()->append(child);
    change(*child);
    QCOMPARE(compact(exportOf(root).value("entities").toArray().at(0).toObject()), document);
}

void tst_DictionaryExport::childrenAreWrittenInOrderAtEveryDepth()
{
    TDmEntity root;
    TDmEntity &second = addChild(root, "B");
    addChild(root, "A");
    addChild(addChild(second, "D"), "E");
    addChild(second, "C");
    QCOMPARE(documentOf(root),
        QByteArray(
            "{'entities':[{'entities':[{'entities':[{'name':'E','selectable':false,'virtual':false}],'name':'"
            "D',"
            "'selectable':false,'virtual':false},{'name':'C','selectable':false,'virtual':false}],'name':'B',"
            "'selectable':false,'virtual':false},{'name':'A','selectable':false,'virtual':false}],"
            "'selectable':false,'virtual':false}"));
}

void tst_DictionaryExport::theTopObjectIsTheEntityThatIsGiven()
{
    TDmEntity root;
    root.setName("ROOT");
    TDmEntity &child = addChild(root, "A");
    QCOMPARE(documentOf(child), QByteArray("{'name':'A','selectable':false,'virtual':false}"));
}

void tst_DictionaryExport::keysThatTheObjectHoldsAreReplacedOrLeft()
{
    TDmEntity entity;
    entity.setName("NEW");
    addChild(entity, "B");
    QJsonObject out{{"name", "OLD"}, {"label", "OLD"}, {"virtual", "OLD"}, {"entities", 5},
        {"variables", "OLD"}, {"other", QJsonArray{1, 2}}};
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&entity, &out);
    QCOMPARE(compact(out),
        QByteArray("{'entities':[{'name':'B','selectable':false,'virtual':false}],'label':'OLD','name':'NEW',"
                   "'other':[1,2],'selectable':false,'variables':'OLD','virtual':false}"));
}

void tst_DictionaryExport::eachVariableFieldIsWrittenUnderItsKey_data()
{
    QTest::addColumn<ChangeVariable>("change");
    QTest::addColumn<QByteArray>("object");
    const auto row = [](const char *tag, const ChangeVariable &change, const char *object) {
        QTest::newRow(tag) << change << QByteArray(object);
    };
    row(
        "nothing set", [](TDmVariable &) {},
        "{'fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "file name and local are always written as empty and false",
        [](TDmVariable &v) {
            v.setFileName("F");
            v.setLocal(true);
        },
        "{'fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "name", [](TDmVariable &v) { v.setName("A"); },
        "{'fileName':'','local':false,'metadata':{},'missing':0,'name':'A','notapp':0,'type':'integer'}");
    row(
        "alias", [](TDmVariable &v) { v.setAlias("A"); },
        "{'alias':'A','fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "label", [](TDmVariable &v) { v.setLabel("A"); },
        "{'fileName':'','label':'A','local':false,'metadata':{},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "group", [](TDmVariable &v) { v.setGroup("A"); },
        "{'fileName':'','group':'A','local':false,'metadata':{},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "documentation", [](TDmVariable &v) { v.setDocumentation("A"); },
        "{'documentation':'A','fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'type':'"
        "integer'}");
    row(
        "tag", [](TDmVariable &v) { v.setTag(5); },
        "{'fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'tag':5,'type':'integer'}");
    row(
        "tag below zero", [](TDmVariable &v) { v.setTag(-5); },
        "{'fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'tag':-5,'type':'integer'}");
    row(
        "not-applicable code", [](TDmVariable &v) { v.setNotappl(std::numeric_limits<int>::min()); },
        "{'fileName':'','local':false,'metadata':{},'missing':0,'notapp':-2147483648,'type':'integer'}");
    row(
        "missing code", [](TDmVariable &v) { v.setMissing(std::numeric_limits<int>::max()); },
        "{'fileName':'','local':false,'metadata':{},'missing':2147483647,'notapp':0,'type':'integer'}");
    row(
        "decimals and marks are in no direction",
        [](TDmVariable &v) {
            v.setDecimals(2);
            v.setChecked(1);
            v.setLevel(1);
        },
        "{'fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "no layout at all", [](TDmVariable &v) { v.setMetadataVariables(nullptr); },
        "{'fileName':'','local':false,'missing':0,'notapp':0,'type':'integer'}");
    row(
        "field", [](TDmVariable &v) { v.getMetadataVariables()->setField("A"); },
        "{'fileName':'','local':false,'metadata':{'field':'A'},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "lookup", [](TDmVariable &v) { v.getMetadataVariables()->setLookup(true); },
        "{'fileName':'','local':false,'metadata':{'lookup':true},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "start", [](TDmVariable &v) { v.setFieldRelativePosition(1); },
        "{'fileName':'','local':false,'metadata':{'start':1},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "length", [](TDmVariable &v) { v.setFieldSize(1); },
        "{'fileName':'','local':false,'metadata':{'length':1},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "start and length below zero are not written",
        [](TDmVariable &v) {
            v.setFieldRelativePosition(-1);
            v.setFieldSize(-1);
        },
        "{'fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "the layout's record, start and length are not written",
        [](TDmVariable &v) {
            v.getMetadataVariables()->setRecord("R");
            v.getMetadataVariables()->setStart(3);
            v.getMetadataVariables()->setLength(4);
        },
        "{'fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'type':'integer'}");
    row(
        "start and length are the variable's",
        [](TDmVariable &v) {
            v.getMetadataVariables()->setStart(3);
            v.getMetadataVariables()->setLength(4);
            v.setFieldRelativePosition(5);
            v.setFieldSize(6);
        },
        "{'fileName':'','local':false,'metadata':{'length':6,'start':5},'missing':0,'notapp':0,'type':'"
        "integer'}");
    row(
        "ranges in order",
        [](TDmVariable &v) {
            addRange(v, 5.0, 9.0);
            addRange(v, 0.1, -2.5);
        },
        "{'fileName':'','local':false,'metadata':{'range':[{'max':9,'min':5},{'max':-2.5,'min':0.1}]},'"
        "missing':0,"
        "'notapp':0,'type':'integer'}");
    row(
        "a range of zeros", [](TDmVariable &v) { addRange(v, 0.0, 0.0); },
        "{'fileName':'','local':false,'metadata':{'range':[{'max':0,'min':0}]},'missing':0,'notapp':0,"
        "'type':'integer'}");
    row(
        "all at once, keys sorted",
        [](TDmVariable &v) {
            v.setFileName("0");
            v.setLocal(true);
            v.setName("1");
            v.setAlias("2");
            v.setLabel("3");
            v.setGroup("4");
            v.setVarType("STRING");
            v.setSize(5);
            v.setDocumentation("6");
            v.setTag(7);
            v.setNotappl(8);
            v.setMissing(9);
            addRange(v, 1.0, 2.0);
            v.getMetadataVariables()->setField("F");
            v.getMetadataVariables()->setLookup(true);
            v.setFieldRelativePosition(10);
            v.setFieldSize(11);
            addLabel(v, "V", "L");
        },
        "{'alias':'2','documentation':'6','fileName':'','group':'4','label':'3','local':false,'metadata':{'"
        "field':'F',"
        "'length':11,'lookup':true,'range':[{'max':2,'min':1}],'start':10},'missing':9,'name':'1','notapp':8,"
        "'size':5,'tag':7,'type':'string','valueLabels':[{'label':'L','value':'V'}]}");
}

void tst_DictionaryExport::eachVariableFieldIsWrittenUnderItsKey()
{
    QFETCH(ChangeVariable, change);
    QFETCH(QByteArray, object);
    TDmEntity entity;
    change(addVariable(entity));
    QCOMPARE(compact(firstVariableOf(exportOf(entity))), object);
}

void tst_DictionaryExport::variablesAreWrittenInOrder()
{
    TDmEntity entity;
    addVariable(entity, "B").setVarType("STRING");
    addVariable(entity, "A");
    // A longer one first, so that nothing of it may be left in what follows.
    QCOMPARE(documentOf(entity),
        QByteArray(
            "{'selectable':false,'variables':[{'fileName':'','local':false,'metadata':{},'missing':0,'name':'"
            "B',"
            "'notapp':0,'size':1,'type':'string'},{'fileName':'','local':false,'metadata':{},'missing':0,"
            "'name':'A','notapp':0,'type':'integer'}],'virtual':false}"));
}

void tst_DictionaryExport::typeIsLowerCasedButNotTrimmed_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("written");
    QTest::newRow("empty is written as integer") << ""
                                                 << "integer";
    QTest::newRow("upper case") << "REAL"
                                << "real";
    QTest::newRow("mixed case") << "InTeGeR"
                                << "integer";
    QTest::newRow("blanks on both sides are kept") << " STRING "
                                                   << " string ";
    QTest::newRow("blanks only") << "  "
                                 << "  ";
    QTest::newRow("unknown type") << "Bool"
                                  << "bool";
    QTest::newRow("letters beyond ASCII") << QString::fromUtf8("ÑANDÚ") << QString::fromUtf8("ñandú");
}

void tst_DictionaryExport::typeIsLowerCasedButNotTrimmed()
{
    QFETCH(QString, type);
    QFETCH(QString, written);
    TDmEntity entity;
    addVariable(entity, "V").setVarType(type);
    QCOMPARE(firstVariableOf(exportOf(entity)).value("type"), QJsonValue(written));
}

void tst_DictionaryExport::sizeIsWrittenForStringsOnly_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<int>("size");
    QTest::addColumn<QJsonValue>("written");
    const QJsonValue none(QJsonValue::Undefined);
    QTest::newRow("string") << "string" << 7 << QJsonValue(7);
    QTest::newRow("string of size 0 has size 1") << "string" << 0 << QJsonValue(1);
    QTest::newRow("string of size below 0") << "string" << -3 << QJsonValue(-3);
    QTest::newRow("upper case") << "STRING" << 7 << QJsonValue(7);
    QTest::newRow("blanks around it") << " \tString\n" << 0 << QJsonValue(1);
    QTest::newRow("real") << "real" << 7 << none;
    QTest::newRow("integer") << "INTEGER" << 7 << none;
    QTest::newRow("empty type") << "" << 7 << none;
    QTest::newRow("another type") << "strings" << 7 << none;
}

void tst_DictionaryExport::sizeIsWrittenForStringsOnly()
{
    QFETCH(QString, type);
    QFETCH(int, size);
    QFETCH(QJsonValue, written);
    TDmEntity entity;
    TDmVariable &variable = addVariable(entity, "V");
    variable.setVarType(type);
    variable.setSize(size);
    QCOMPARE(firstVariableOf(exportOf(entity)).value("size"), written);
}

void tst_DictionaryExport::nullPointersInListsArePassedOver()
{
    TDmEntity entity;
    TDmVariable &variable = addVariable(entity, "V");
    addLabel(variable, "1", "");
    variable.getValueLabelElementList()->prepend(nullptr);
    variable.getValueLabelElementList()->append(nullptr);
    addLabel(variable, "2", "");
    addRange(variable, 1.0, 2.0);
    variable.getMetadataVariables()->getRange()->prepend(nullptr);
    addRange(variable, 3.0, 4.0);
    entity.getVariables()->prepend(nullptr);
    entity.getVariables()->append(nullptr);
    entity.getChildren()->append(nullptr);
    addChild(entity, "B");
    entity.getChildren()->append(nullptr);
    QCOMPARE(documentOf(entity),
        QByteArray(
            "{'entities':[{'name':'B','selectable':false,'virtual':false}],'selectable':false,'variables':["
            "{'fileName':'','local':false,'metadata':{'range':[{'max':2,'min':1},{'max':4,'min':3}]},"
            "'missing':0,'name':'V','notapp':0,'type':'integer','valueLabels':[{'value':'1'},{'value':'2'}]}]"
            ","
            "'virtual':false}"));
}

void tst_DictionaryExport::listsOfNullPointersOnlyAreLeftOut()
{
    TDmEntity entity;
    entity.getVariables()->append(nullptr);
    entity.getChildren()->append(nullptr);
    QCOMPARE(documentOf(entity), QByteArray("{'selectable':false,'virtual':false}"));
    // The same where a number that is not finite takes another way.
    for (const char *code : {"2.5", "nan"}) {
        TDmVariable &variable = addVariable(entity, "V");
        variable.setVarType("REAL");
        addLabel(variable, QLatin1String(code), "");
        variable.getValueLabelElementList()->prepend(nullptr);
        variable.getMetadataVariables()->addItemRange(nullptr);
    }
    const QJsonArray variables = exportOf(entity).value("variables").toArray();
    QCOMPARE(variables.size(), 2);
    for (const QJsonValue &variable : variables) {
        QCOMPARE(variable.toObject().value("metadata"), QJsonValue(QJsonObject()));
        QCOMPARE(variable.toObject().value("valueLabels").toArray().size(), 1);
    }
}

void tst_DictionaryExport::nullListsAreWrittenAsEmptyOnes()
{
    TDmEntity entity;
    entity.setChildren(nullptr);
    addVariable(entity).getMetadataVariables()->setRange(nullptr);
    QCOMPARE(documentOf(entity),
        QByteArray("{'selectable':false,'variables':[{'fileName':'','local':false,'metadata':{},'missing':0,'"
                   "notapp':0,"
                   "'type':'integer'}],'virtual':false}"));
}

void tst_DictionaryExport::theTreeIsNotChanged()
{
    const Entities entities = entitiesOf("{'entities':[{'name':'A','label':'L','weightVar':'W','"
                                         "documentation':'D','virtual':true,'entities':[{'name':"
                                         "'B'}],'variables':[{'name':'X','type':' STRING "
                                         "','size':0,'fileName':'F','local':true,'metadata':{'start':3,"
                                         "'length':-4,'record':'R','lookup':true,'range':[{'min':'nan'}]},'"
                                         "valueLabels':[{'value':'A'},{}]},{'type':''}"
                                         "]}]}");
    TDmEntity &entity = *entities->first();
    entity.setCheckDelete(true);
    entity.getVariables()->first()->setDocumentation("D");
    const QString before = describe(entity);
    const QByteArray first = documentOf(entity);
    QCOMPARE(describe(entity), before);
    QCOMPARE(documentOf(entity), first);
}

void tst_DictionaryExport::nothingIsLoggedWhileWriting()
{
    TDmEntity entity;
    entity.getChildren()->append(nullptr);
    TDmVariable &variable = addVariable(entity, "V");
    variable.setVarType("REAL");
    addLabel(variable, "nan", QString(QChar(0xd800)));
    const LogCatcher log;
    documentOf(entity);
    QCOMPARE(log.messages(), QStringList());
}

QTEST_APPLESS_MAIN(tst_DictionaryExport)
#include "tst_DictionaryExport.moc"
