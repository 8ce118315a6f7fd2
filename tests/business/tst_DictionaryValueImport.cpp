#include "business/ProcessDictionaryBusiness.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/business/DictionaryTree.h"
#include "tests/business/JsonSamples.h"
#include "tests/support/Json.h"

#include <QtTest>

using namespace tessel::test;

namespace {

QString rangesOf(const QVariant &value)
{
    const Owned<Range> list(ProcessDictionaryBusiness().itemVariableSubitemRange(value));
    return describe(list.get());
}

QString labelsOf(const QVariant &value)
{
    const Owned<ValueLabelElement> list(
        ProcessDictionaryBusiness().recorrerValoresPorVariablesNodosJson(value));
    return describe(list.get());
}

/// "key='text'", or nothing for an empty text.
QString textField(const char *key, const QString &text)
{
    return text.isEmpty() ? QString() : QLatin1String(key) + QLatin1String("='") + text + QLatin1Char('\'');
}

QString shortest(double number) { return QString::number(number, 'g', QLocale::FloatingPointShortest); }

} // namespace

/// Ranges and value labels, alone and within their variable.
class tst_DictionaryValueImport : public QObject {
    Q_OBJECT

private slots:
    void rangesAreAnArrayOrALoneObject_data();
    void rangesAreAnArrayOrALoneObject();
    void boundsOfALoneRangeAreWholeNumbersAndThoseInAnArrayAreNot_data();
    void boundsOfALoneRangeAreWholeNumbersAndThoseInAnArrayAreNot();
    void valueLabelsAreAnArrayOrALoneObject_data();
    void valueLabelsAreAnArrayOrALoneObject();
    void codesAndLabelsAreTakenAsText_data();
    void codesAndLabelsAreTakenAsText();
    void valueLabelsAreAddedToThoseThatTheVariableHas();
};

void tst_DictionaryValueImport::rangesAreAnArrayOrALoneObject_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("ranges");
    const auto row = [](const char *tag, const char *value, const char *ranges) {
        QTest::newRow(tag) << QByteArray(value) << QString::fromUtf8(ranges);
    };
    row("array in its order", "[{'min':5,'max':9},{'min':1,'max':2}]", "[{5..9}, {1..2}]");
    row("bounds are not put in order", "[{'min':9,'max':5}]", "[{9..5}]");
    row("array keeps decimals", "[{'min':2.6,'max':9.4}]", "[{2.6..9.4}]");
    row("lone range has whole-number bounds", "{'min':2.6,'max':9.4}", "[{3..9}]");
    row("lone range rounds halves", "{'min':1.5,'max':9.7}", "[{2..10}]");
    row("lone range below zero", "{'min':-2.6,'max':-1.2}", "[{-3..-1}]");
    row("lone bounds as text with decimals are 0", "{'min':'2.6','max':'9'}", "[{0..9}]");
    row("lower bound only", "[{'min':1}]", "[{1..0}]");
    row("upper bound only", "[{'max':1}]", "[{0..1}]");
    row("lone lower bound only", "{'min':1}", "[{1..0}]");
    row("lone upper bound only", "{'max':1}", "[{0..1}]");
    row("numbers of any size in an array", "[{'min':-1e300,'max':5e-324}]", "[{-1e+300..5e-324}]");
    row("lone range past int wraps", "{'min':2147483648,'max':2147483647}", "[{-2147483648..2147483647}]");
    row("unknown keys are skipped", "[{'Min':1,'MAX':2,'x':3}]", "[{0..0}]");
    row("lone object with unknown keys only", "{'x':3}", "[{0..0}]");
    row("lone object without keys is nothing", "{}", "[]");
    row("array elements that are no objects are fresh ranges", "[4,'5',null,[1,2],{},{'min':1}]",
        "[{0..0}, {0..0}, {0..0}, {0..0}, {0..0}, {1..0}]");
    row("empty array", "[]", "[]");
    row("number", "7", "[]");
    row("text", "'1..2'", "[]");
    row("flag", "true", "[]");
    row("null", "null", "[]");
}

void tst_DictionaryValueImport::rangesAreAnArrayOrALoneObject()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, ranges);
    QCOMPARE(rangesOf(valueOf(value.constData())), ranges);
    TDmVariable variable;
    ProcessDictionaryBusiness().loadItemFromVariables(
        "metadata", &variable, QVariantMap{{"metadata", QVariantMap{{"range", valueOf(value.constData())}}}});
    QCOMPARE(describe(variable.getMetadataVariables()->getRange()), ranges);
}

void tst_DictionaryValueImport::boundsOfALoneRangeAreWholeNumbersAndThoseInAnArrayAreNot_data()
{
    QTest::addColumn<QByteArray>("bound");
    QTest::addColumn<double>("inArray");
    QTest::addColumn<double>("alone");
    for (const JsonSample &sample : kJsonSamples)
        QTest::newRow(sample.tag) << QByteArray(sample.json) << sample.real << double(sample.integer);
}

void tst_DictionaryValueImport::boundsOfALoneRangeAreWholeNumbersAndThoseInAnArrayAreNot()
{
    QFETCH(QByteArray, bound);
    QFETCH(double, inArray);
    QFETCH(double, alone);
    const QVariant value = valueOf(bound.constData());
    const QVariantMap lower{{"min", value}};
    const QVariantMap upper{{"max", value}};
    QCOMPARE(rangesOf(QVariantList{lower, upper}),
        QString("[{" + shortest(inArray) + "..0}, {0.." + shortest(inArray) + "}]"));
    QCOMPARE(rangesOf(lower), QString("[{" + shortest(alone) + "..0}]"));
    QCOMPARE(rangesOf(upper), QString("[{0.." + shortest(alone) + "}]"));
}

void tst_DictionaryValueImport::valueLabelsAreAnArrayOrALoneObject_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("labels");
    const auto row = [](const char *tag, const char *value, const char *labels) {
        QTest::newRow(tag) << QByteArray(value) << QString::fromUtf8(labels);
    };
    row("a number becomes text", "[{'value':1,'label':'Yes'}]", "[{value='1' label='Yes'}]");
    row("array in its order", "[{'value':'B'},{'value':'A'}]", "[{value='B'}, {value='A'}]");
    row("equal codes are kept", "[{'value':1},{'value':1}]", "[{value='1'}, {value='1'}]");
    row("label only", "[{'label':'L'}]", "[{label='L'}]");
    row("lone object", "{'value':2.5,'label':'L'}", "[{value='2.5' label='L'}]");
    row("unknown keys are skipped", "[{'Value':1,'LABEL':'L','code':2}]", "[{}]");
    row("lone object with unknown keys only", "{'x':3}", "[{}]");
    row("lone object without keys is nothing", "{}", "[]");
    row("array elements that are no objects are fresh labels", "[4,'5',null,['a'],{},{'value':1}]",
        "[{}, {}, {}, {}, {}, {value='1'}]");
    row("empty array", "[]", "[]");
    row("number", "7", "[]");
    row("text", "'A'", "[]");
    row("flag", "true", "[]");
    row("null", "null", "[]");
}

void tst_DictionaryValueImport::valueLabelsAreAnArrayOrALoneObject()
{
    QFETCH(QByteArray, value);
    QFETCH(QString, labels);
    QCOMPARE(labelsOf(valueOf(value.constData())), labels);
    TDmVariable variable;
    ProcessDictionaryBusiness().loadItemFromVariables(
        "valueLabels", &variable, QVariantMap{{"valueLabels", valueOf(value.constData())}});
    QCOMPARE(describe(variable.getValueLabelElementList()), labels);
}

void tst_DictionaryValueImport::codesAndLabelsAreTakenAsText_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("text");
    for (const JsonSample &sample : kJsonSamples)
        QTest::newRow(sample.tag) << QByteArray(sample.json) << QString(QLatin1String(sample.text));
    QTest::newRow("a huge number") << QByteArray("1e22") << QString("1e+22");
    QTest::newRow("a tiny number") << QByteArray("5e-324") << QString("5e-324");
    QTest::newRow("minus zero") << QByteArray("-0.0") << QString("0");
    QTest::newRow("a tenth") << QByteArray("0.1") << QString("0.1");
    QTest::newRow("leading zeros as text") << QByteArray("'007'") << QString("007");
}

void tst_DictionaryValueImport::codesAndLabelsAreTakenAsText()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, text);
    const QVariant value = valueOf(json.constData());
    QCOMPARE(labelsOf(QVariantMap{{"value", value}}), QString("[{" + textField("value", text) + "}]"));
    QCOMPARE(labelsOf(QVariantList{QVariantMap{{"label", value}}}),
        QString("[{" + textField("label", text) + "}]"));
}

void tst_DictionaryValueImport::valueLabelsAreAddedToThoseThatTheVariableHas()
{
    TDmVariable variable;
    const QVariantMap object = objectOf("{'valueLabels':[{'value':1},{'value':2}]}");
    ProcessDictionaryBusiness().loadItemFromVariables("valueLabels", &variable, object);
    ProcessDictionaryBusiness().loadItemFromVariables("valueLabels", &variable, object);
    QCOMPARE(describe(variable.getValueLabelElementList()),
        QString("[{value='1'}, {value='2'}, {value='1'}, {value='2'}]"));
}

QTEST_APPLESS_MAIN(tst_DictionaryValueImport)
#include "tst_DictionaryValueImport.moc"
