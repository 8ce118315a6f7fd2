#include "business/ProcessDictionaryBusiness.h"
#include "model/MetadataVariables.h"
#include "model/TDmVariable.h"
#include "tests/business/DictionaryTree.h"
#include "tests/business/JsonSamples.h"
#include "tests/support/Json.h"

#include <QtTest>

#include <limits>

using namespace tessel::test;

namespace {

QString variablesOf(const QVariant &value)
{
    const Owned<TDmVariable> list(ProcessDictionaryBusiness().recorrerVariablesNodosJson(value));
    return describe(list.get());
}

/// "key='text'", or nothing for an empty text.
QString textField(const char *key, const QString &text)
{
    return text.isEmpty() ? QString() : QLatin1String(key) + QLatin1String("='") + text + QLatin1Char('\'');
}

/// "key=number", or nothing for 0.
QString numberField(const char *key, int number)
{
    return number == 0 ? QString() : QLatin1String(key) + QLatin1Char('=') + QString::number(number);
}

QByteArray object(const char *key, const char *json) { return QByteArray("{'") + key + "':" + json + "}"; }

} // namespace

/// Variables and their layouts; ranges and value labels have a program of their own.
class tst_DictionaryVariableImport : public QObject {
    Q_OBJECT

private slots:
    void eachVariableKeySetsItsOwnField_data();
    void eachVariableKeySetsItsOwnField();
    void variableKeysTakeAnyJsonType_data();
    void variableKeysTakeAnyJsonType();
    void variablesAreAnArrayOrALoneObject_data();
    void variablesAreAnArrayOrALoneObject();
    void onlyTheNamedKeyIsLoaded_data();
    void onlyTheNamedKeyIsLoaded();
    void aNamedKeyThatTheObjectLacksClearsItsField();
    void valuesAreConvertedAsQVariantDoes_data();
    void valuesAreConvertedAsQVariantDoes();

    void layoutIsNewWithMetadataAndTheConstructorsWithout();
    void metadataThatIsNoObjectStillGivesANewLayout_data();
    void metadataThatIsNoObjectStillGivesANewLayout();
    void startAndLengthStayWhenNewMetadataLacksThem();
    void layoutKeysTakeAnyJsonType_data();
    void layoutKeysTakeAnyJsonType();
};

void tst_DictionaryVariableImport::eachVariableKeySetsItsOwnField_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *tag, const char *variable, const char *expected) {
        QTest::newRow(tag) << QByteArray(variable) << QString::fromUtf8(expected);
    };
    row("no keys", "{}", "");
    row("fileName", "{'fileName':'A'}", "fileName='A'");
    row("local", "{'local':true}", "local");
    row("name", "{'name':'A'}", "name='A'");
    row("alias", "{'alias':'A'}", "alias='A'");
    row("label", "{'label':'A'}", "label='A'");
    row("group", "{'group':'A'}", "group='A'");
    row("type is stored as written", "{'type':' Integer '}", "type=' Integer '");
    row("type may be empty", "{'type':''}", "");
    row("documentation is written but never read", "{'documentation':'A'}", "");
    row("tag", "{'tag':5}", "tag=5");
    row("notapp", "{'notapp':5}", "notapp=5");
    row("missing", "{'missing':5}", "missing=5");
    row("size of any type", "{'type':'real','size':5}", "type='real' size=5");
    row("size of a string may be 0", "{'type':'string','size':0}", "type='string'");
    row("metadata", "{'metadata':{'field':'F'}}", "metadata{field='F'}");
    row("record is read though never written", "{'metadata':{'record':'R'}}", "metadata{record='R'}");
    row("start goes into layout and variable", "{'metadata':{'start':5}}", "start=5 metadata{start=5}");
    row("length goes into layout and variable", "{'metadata':{'length':5}}", "length=5 metadata{length=5}");
    row("negative start and length are kept", "{'metadata':{'start':-1,'length':-2}}",
        "start=-1 length=-2 metadata{start=-1 length=-2}");
    row("lookup", "{'metadata':{'lookup':true}}", "metadata{lookup}");
    row("lookup cleared", "{'metadata':{'lookup':false}}", "");
    row("range", "{'metadata':{'range':[{'min':1,'max':2},{'min':3.5,'max':4.25}]}}",
        "metadata{range=[{1..2}, {3.5..4.25}]}");
    row("unknown layout keys are skipped", "{'metadata':{'name':'A','ranges':[{}],'Field':'F','size':3}}",
        "");
    row("valueLabels", "{'valueLabels':[{'value':1,'label':'Yes'},{'value':2}]}",
        "valueLabels=[{value='1' label='Yes'}, {value='2'}]");
    row("unknown keys are skipped",
        "{'decimals':2,'checked':1,'level':1,'varType':'A','Name':'A','start':1,'length':2,'field':'F','"
        "range':[{}],"
        "'notappl':3,'valueLabelElement':[{}],'choice':{'field':'F'}}",
        "");
    row("all at once",
        "{'fileName':'1','local':true,'name':'2','alias':'3','label':'4','group':'5','type':'6','"
        "documentation':'7',"
        "'tag':8,'notapp':9,'missing':10,'metadata':{'range':[{'min':1,'max':2}],'field':'F','start':11,'"
        "length':12,"
        "'lookup':true,'record':'R'},'valueLabels':[{'value':'V','label':'L'}],'size':13}",
        "name='2' alias='3' label='4' group='5' type='6' fileName='1' local size=13 start=11 length=12 "
        "missing=10 "
        "notapp=9 tag=8 metadata{record='R' field='F' start=11 length=12 lookup range=[{1..2}]} "
        "valueLabels=[{value='V' label='L'}]");
}

void tst_DictionaryVariableImport::eachVariableKeySetsItsOwnField()
{
    QFETCH(QByteArray, variable);
    QFETCH(QString, expected);
    QCOMPARE(variablesOf(QVariantList{objectOf(variable.constData())}), QString("[{" + expected + "}]"));
    TDmVariable single;
    const QVariantMap keys = objectOf(variable.constData());
    for (const QString &key : keys.keys())
        ProcessDictionaryBusiness().loadItemFromVariables(key, &single, keys);
    QCOMPARE(describe(single), expected);
}

void tst_DictionaryVariableImport::variableKeysTakeAnyJsonType_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QString>("expected");
    for (const JsonSample &sample : kJsonSamples) {
        for (const char *key : {"fileName", "name", "alias", "label", "group", "type"}) {
            QTest::addRow("%s given %s", key, sample.tag)
                << object(key, sample.json) << textField(key, QLatin1String(sample.text));
        }
        for (const char *key : {"size", "notapp", "missing", "tag"}) {
            QTest::addRow("%s given %s", key, sample.tag)
                << object(key, sample.json) << numberField(key, sample.integer);
        }
        QTest::addRow("local given %s", sample.tag)
            << object("local", sample.json) << QString(sample.flag ? "local" : "");
    }
}

void tst_DictionaryVariableImport::variableKeysTakeAnyJsonType()
{
    QFETCH(QByteArray, variable);
    QFETCH(QString, expected);
    QCOMPARE(variablesOf(QVariantList{objectOf(variable.constData())}), QString("[{" + expected + "}]"));
}

void tst_DictionaryVariableImport::variablesAreAnArrayOrALoneObject_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("variables");
    const auto row = [](const char *tag, const char *value, const char *variables) {
        QTest::newRow(tag) << QByteArray(value) << QString::fromUtf8(variables);
    };
    row("array in its order", "[{'name':'B'},{'name':'A'}]", "[{name='B'}, {name='A'}]");
    row("lone object", "{'name':'A','type':'real'}", "[{name='A' type='real'}]");
    row("lone object with unknown keys only", "{'x':1}", "[{}]");
    row("lone object without keys is nothing", "{}", "[]");
    row("array elements that are no objects are fresh variables",
        "[1,'A',null,[{'name':'A'}],{},{'name':'B'}]", "[{}, {}, {}, {}, {}, {name='B'}]");
    row("empty array", "[]", "[]");
    row("number", "7", "[]");
    row("text", "'A'", "[]");
    row("flag", "true", "[]");
    row("null", "null", "[]");
}

void tst_DictionaryVariableImport::variablesAreAnArrayOrALoneObject()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, variables);
    QCOMPARE(variablesOf(valueOf(value.constData())), variables);
}

void tst_DictionaryVariableImport::onlyTheNamedKeyIsLoaded_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");
    QTest::newRow("name") << "name"
                          << "name='N'";
    QTest::newRow("size") << "size"
                          << "size=3";
    QTest::newRow("metadata") << "metadata"
                              << "start=4 metadata{start=4}";
    QTest::newRow("valueLabels") << "valueLabels"
                                 << "valueLabels=[{value='1'}]";
    QTest::newRow("documentation") << "documentation"
                                   << "";
    QTest::newRow("unknown") << "other"
                             << "";
    QTest::newRow("upper case") << "NAME"
                                << "";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_DictionaryVariableImport::onlyTheNamedKeyIsLoaded()
{
    QFETCH(QString, key);
    QFETCH(QString, expected);
    TDmVariable variable;
    ProcessDictionaryBusiness().loadItemFromVariables(key, &variable,
        objectOf(
            "{'name':'N','size':3,'metadata':{'start':4},'valueLabels':[{'value':1}],'documentation':'D',"
            "'other':'O','NAME':'U','':'E'}"));
    QCOMPARE(describe(variable), expected);
}

void tst_DictionaryVariableImport::aNamedKeyThatTheObjectLacksClearsItsField()
{
    TDmVariable variable;
    variable.setName("N");
    variable.setSize(4);
    variable.setLocal(true);
    variable.setLabel("L");
    for (const char *key : {"name", "size", "local"})
        ProcessDictionaryBusiness().loadItemFromVariables(key, &variable, objectOf("{'label':'other'}"));
    QCOMPARE(describe(variable), QString("label='L'"));
}

void tst_DictionaryVariableImport::valuesAreConvertedAsQVariantDoes_data()
{
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *tag, const QVariant &value) { QTest::newRow(tag) << value; };
    row("int", 7);
    row("unsigned", 4000000000U);
    row("smallest long", std::numeric_limits<qlonglong>::min());
    row("greatest long", std::numeric_limits<qlonglong>::max());
    row("greatest unsigned long", std::numeric_limits<qulonglong>::max());
    row("whole double", 7.0);
    row("minus zero", -0.0);
    row("two thirds", 2.0 / 3.0);
    row("smallest double", 5e-324);
    row("not a number", qQNaN());
    row("float", 0.1F);
    row("bytes", QByteArray("12"));
    row("bytes between blanks", QByteArray(" 12 "));
    row("character", QChar('9'));
    row("list of one text", QStringList{"5"});
    row("list of two texts", QStringList{"5", "6"});
    row("date", QDate(2020, 2, 29));
    row("nothing", QVariant());
}

void tst_DictionaryVariableImport::valuesAreConvertedAsQVariantDoes()
{
    QFETCH(QVariant, value);
    TDmVariable variable;
    const QVariantMap object{{"name", value}, {"size", value}, {"local", value}};
    for (const QString &key : object.keys())
        ProcessDictionaryBusiness().loadItemFromVariables(key, &variable, object);
    QCOMPARE(variable.getName(), value.toString());
    QCOMPARE(variable.getSize(), value.toInt());
    QCOMPARE(variable.getLocal(), value.toBool());
}

void tst_DictionaryVariableImport::layoutIsNewWithMetadataAndTheConstructorsWithout()
{
    TDmVariable variable;
    MetadataVariables *const own = variable.getMetadataVariables();
    own->setField("OWN");
    ProcessDictionaryBusiness service;
    service.loadItemFromVariables("name", &variable, objectOf("{'name':'A'}"));
    QCOMPARE(variable.getMetadataVariables(), own);
    QCOMPARE(describe(variable), QString("name='A' metadata{field='OWN'}"));
    service.loadItemFromVariables("metadata", &variable, objectOf("{'metadata':{'record':'R'}}"));
    QCOMPARE(describe(variable), QString("name='A' metadata{record='R'}"));
}

void tst_DictionaryVariableImport::metadataThatIsNoObjectStillGivesANewLayout_data()
{
    QTest::addColumn<QByteArray>("object");
    QTest::newRow("empty object") << QByteArray("{'metadata':{}}");
    QTest::newRow("null") << QByteArray("{'metadata':null}");
    QTest::newRow("number") << QByteArray("{'metadata':5}");
    QTest::newRow("text") << QByteArray("{'metadata':'F'}");
    QTest::newRow("array of a layout") << QByteArray("{'metadata':[{'field':'F','start':1}]}");
}

void tst_DictionaryVariableImport::metadataThatIsNoObjectStillGivesANewLayout()
{
    QFETCH(QByteArray, object);
    TDmVariable variable;
    variable.setFieldRelativePosition(3);
    variable.setFieldSize(4);
    auto *const old = new MetadataVariables;
    old->setField("OLD");
    old->setLookup(true);
    variable.setMetadataVariables(old);
    ProcessDictionaryBusiness().loadItemFromVariables("metadata", &variable, objectOf(object.constData()));
    QCOMPARE(describe(variable), QString("start=3 length=4"));
}

void tst_DictionaryVariableImport::startAndLengthStayWhenNewMetadataLacksThem()
{
    TDmVariable variable;
    ProcessDictionaryBusiness service;
    service.loadItemFromVariables(
        "metadata", &variable, objectOf("{'metadata':{'start':3,'length':4,'lookup':true}}"));
    QCOMPARE(describe(variable), QString("start=3 length=4 metadata{start=3 length=4 lookup}"));
    service.loadItemFromVariables("metadata", &variable, objectOf("{'metadata':{'length':6}}"));
    QCOMPARE(describe(variable), QString("start=3 length=6 metadata{length=6}"));
    service.loadItemFromVariables("metadata", &variable, objectOf("{'metadata':{'start':0}}"));
    QCOMPARE(describe(variable), QString("length=6"));
}

void tst_DictionaryVariableImport::layoutKeysTakeAnyJsonType_data()
{
    QTest::addColumn<QByteArray>("metadata");
    QTest::addColumn<QString>("layout");
    for (const JsonSample &sample : kJsonSamples) {
        for (const char *key : {"record", "field"}) {
            QTest::addRow("%s given %s", key, sample.tag)
                << object(key, sample.json) << textField(key, QLatin1String(sample.text));
        }
        for (const char *key : {"start", "length"}) {
            QTest::addRow("%s given %s", key, sample.tag)
                << object(key, sample.json) << numberField(key, sample.integer);
        }
        QTest::addRow("lookup given %s", sample.tag)
            << object("lookup", sample.json) << QString(sample.flag ? "lookup" : "");
    }
}

void tst_DictionaryVariableImport::layoutKeysTakeAnyJsonType()
{
    QFETCH(QByteArray, metadata);
    QFETCH(QString, layout);
    const QVariantMap keys = objectOf(metadata.constData());
    TDmVariable variable;
    ProcessDictionaryBusiness().loadItemFromVariables("metadata", &variable, QVariantMap{{"metadata", keys}});
    QCOMPARE(describe(*variable.getMetadataVariables()), layout);
    QCOMPARE(variable.getFieldRelativePosition(), keys.value("start").toInt());
    QCOMPARE(variable.getFieldSize(), keys.value("length").toInt());
}

QTEST_APPLESS_MAIN(tst_DictionaryVariableImport)
#include "tst_DictionaryVariableImport.moc"
