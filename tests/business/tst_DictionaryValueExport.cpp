#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/business/DictionaryTree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <limits>

using namespace tessel::test;

namespace {

/// The "value" that a label of code \a code has in a variable of type \a type, alone in an array; "[]" for
/// none.
QByteArray codeText(const QString &type, const QString &code)
{
    TDmEntity entity;
    TDmVariable &variable = addVariable(entity, "V");
    variable.setVarType(type);
    addLabel(variable, code, "L");
    const QJsonObject written = firstVariableOf(exportOf(entity));
    const QJsonObject label = written.value("valueLabels").toArray().at(0).toObject();
    QJsonArray alone;
    if (label.contains("value"))
        alone.append(label.value("value"));
    return QJsonDocument(alone).toJson(QJsonDocument::Compact).replace('"', '\'');
}

} // namespace

/// Codes, labels, bounds and texts: what stands in the objects that are written.
class tst_DictionaryValueExport : public QObject {
    Q_OBJECT

private slots:
    void codesFollowTheStoredType_data();
    void codesFollowTheStoredType();
    void valueLabelsAreWrittenInOrderEvenWhenEmpty();
    void numbersThatAreNotFiniteStayNumbersInTheObject();
    void boundsOfRangesKeepTheirValue_data();
    void boundsOfRangesKeepTheirValue();
    void textsOfAnyContentAreKept_data();
    void textsOfAnyContentAreKept();
};

void tst_DictionaryValueExport::codesFollowTheStoredType_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char *tag, const char *type, const char *code, const char *written) {
        QTest::newRow(tag) << QString::fromUtf8(type) << QString::fromUtf8(code) << QByteArray(written);
    };
    row("empty type writes text though it is called integer", "", "12", "['12']");
    row("empty type, letters", "", "A", "['A']");
    row("integer", "integer", "12", "[12]");
    row("integer in any mix of case", "InTeGeR", "12", "[12]");
    row("integer with blanks around it", " integer ", "12", "[12]");
    row("integer below zero", "INTEGER", "-12", "[-12]");
    row("integer with a plus sign", "INTEGER", "+12", "[12]");
    row("integer with leading zeros", "INTEGER", "00000000000012", "[12]");
    row("octal is not meant", "INTEGER", "010", "[10]");
    row("integer between blanks", "INTEGER", " 12 ", "[12]");
    row("nine digits", "INTEGER", "999999999", "[999999999]");
    row("ten digits", "INTEGER", "1000000000", "[1000000000]");
    row("greatest int", "INTEGER", "2147483647", "[2147483647]");
    row("smallest int", "INTEGER", "-2147483648", "[-2147483648]");
    row("past int is 0", "INTEGER", "2147483648", "[0]");
    row("far past int is 0", "INTEGER", "99999999999999999999", "[0]");
    row("letters are 0", "INTEGER", "A", "[0]");
    row("digits and a letter are 0", "INTEGER", "12A", "[0]");
    row("a character before the digits is 0", "INTEGER", "/12", "[0]");
    row("a character after the digits is 0", "INTEGER", "12:", "[0]");
    row("decimals are 0", "INTEGER", "2.5", "[0]");
    row("hexadecimal is 0", "INTEGER", "0x10", "[0]");
    row("digits of other scripts are 0", "INTEGER", "٣", "[0]");
    row("a blank is 0", "INTEGER", " ", "[0]");
    row("empty integer code is left out", "INTEGER", "", "[]");
    row("real", "real", "2.5", "[2.5]");
    row("real in upper case between blanks", " REAL ", "2.5", "[2.5]");
    row("whole real", "REAL", "12", "[12]");
    row("real with exponent", "REAL", "-1.5e3", "[-1500]");
    row("a tenth", "REAL", "0.1", "[0.1]");
    row("smallest real", "REAL", "5e-324", "[5e-324]");
    row("greatest real", "REAL", "1.7976931348623157e308", "[1.7976931348623157e+308]");
    row("minus zero", "REAL", "-0", "[0]");
    row("below the smallest real", "REAL", "1e-400", "[0]");
    row("past the greatest real has no text", "REAL", "1e400", "[null]");
    row("infinity has no text", "REAL", "-inf", "[null]");
    row("not a number has no text", "REAL", "nan", "[null]");
    row("a decimal comma is 0", "REAL", "2,5", "[0]");
    row("letters are 0 in a real", "REAL", "A", "[0]");
    row("real between blanks", "REAL", " 2.5 ", "[2.5]");
    row("empty real code is left out", "REAL", "", "[]");
    row("string", "STRING", "12", "['12']");
    row("empty string code is left out", "STRING", "", "[]");
    row("a blank is a code", "STRING", " ", "[' ']");
    row("any other type writes text", "BOOL", "1", "['1']");
    row("a type of blanks writes text", " ", "1", "['1']");
    row("a longer type is another one", "integers", "1", "['1']");
    row("empty code of empty type is left out", "", "", "[]");
}

void tst_DictionaryValueExport::codesFollowTheStoredType()
{
    QFETCH(QString, type);
    QFETCH(QString, code);
    QFETCH(QByteArray, written);
    QCOMPARE(codeText(type, code), written);
}

void tst_DictionaryValueExport::valueLabelsAreWrittenInOrderEvenWhenEmpty()
{
    TDmEntity entity;
    TDmVariable &variable = addVariable(entity);
    addLabel(variable, "B", "");
    addLabel(variable, "", "");
    addLabel(variable, "", "no code");
    addLabel(variable, "A", "a");
    QCOMPARE(compact(firstVariableOf(exportOf(entity))),
        QByteArray("{'fileName':'','local':false,'metadata':{},'missing':0,'notapp':0,'type':'integer','"
                   "valueLabels':"
                   "[{'value':'B'},{},{'label':'no code'},{'label':'a','value':'A'}]}"));
}

void tst_DictionaryValueExport::numbersThatAreNotFiniteStayNumbersInTheObject()
{
    TDmEntity entity;
    TDmVariable &variable = addVariable(entity, "V");
    variable.setVarType("REAL");
    variable.setLabel(QString::fromUtf8("Größe \""));
    addLabel(variable, "nan", "not");
    addLabel(variable, "inf", "");
    addLabel(variable, "2.5", "plain");
    addRange(variable, -qInf(), qInf());
    addRange(variable, 1.5, qQNaN());
    addVariable(entity, "W").setTag(3);

    const QJsonArray variables = exportOf(entity).value("variables").toArray();
    const QJsonObject written = variables.at(0).toObject();
    const QJsonArray labels = written.value("valueLabels").toArray();
    QCOMPARE(labels.size(), 3);
    QCOMPARE(labels.at(0).toObject().value("value").type(), QJsonValue::Double);
    QVERIFY(qIsNaN(labels.at(0).toObject().value("value").toDouble()));
    QCOMPARE(labels.at(0).toObject().value("label"), QJsonValue("not"));
    QCOMPARE(labels.at(1).toObject().value("value").toDouble(), qInf());
    QCOMPARE(labels.at(2).toObject().value("value").toDouble(), 2.5);
    const QJsonArray ranges = written.value("metadata").toObject().value("range").toArray();
    QCOMPARE(ranges.size(), 2);
    QCOMPARE(ranges.at(0).toObject().value("min").toDouble(), -qInf());
    QCOMPARE(ranges.at(0).toObject().value("max").toDouble(), qInf());
    QCOMPARE(ranges.at(1).toObject().value("min").toDouble(), 1.5);
    QVERIFY(qIsNaN(ranges.at(1).toObject().value("max").toDouble()));
    QCOMPARE(compact(written),
        QByteArray(
            "{'fileName':'','label':'Größe \\'','local':false,'metadata':{'range':[{'max':null,'min':null},"
            "{'max':null,'min':1.5}]},'missing':0,'name':'V','notapp':0,'type':'real','valueLabels':"
            "[{'label':'not','value':null},{'value':null},{'label':'plain','value':2.5}]}"));
    QCOMPARE(compact(variables.at(1).toObject()),
        QByteArray("{'fileName':'','local':false,'metadata':{},'missing':0,'name':'W','notapp':0,'tag':3,"
                   "'type':'integer'}"));
}

void tst_DictionaryValueExport::boundsOfRangesKeepTheirValue_data()
{
    QTest::addColumn<double>("bound");
    QTest::newRow("a tenth") << 0.1;
    QTest::newRow("a third") << 1.0 / 3.0;
    QTest::newRow("smallest") << std::numeric_limits<double>::denorm_min();
    QTest::newRow("smallest normal") << std::numeric_limits<double>::min();
    QTest::newRow("greatest") << std::numeric_limits<double>::max();
    QTest::newRow("lowest") << std::numeric_limits<double>::lowest();
    QTest::newRow("past int") << 3000000000.0;
    QTest::newRow("two to the 53rd") << 9007199254740992.0;
    QTest::newRow("two to the 63rd") << 9223372036854775808.0;
    QTest::newRow("minus two to the 63rd") << -9223372036854775808.0;
    QTest::newRow("a whole number of 23 digits") << 1e22;
    QTest::newRow("just above one") << 1.0000000000000002;
}

void tst_DictionaryValueExport::boundsOfRangesKeepTheirValue()
{
    QFETCH(double, bound);
    TDmEntity entity;
    addRange(addVariable(entity, "V"), bound, -bound);
    const QJsonObject variable = firstVariableOf(exportOf(entity));
    const QJsonObject range = variable.value("metadata").toObject().value("range").toArray().at(0).toObject();
    QVERIFY(range == (QJsonObject{{"min", bound}, {"max", -bound}}));
    QVERIFY(range.value("min").toDouble() == bound);
    QVERIFY(range.value("max").toDouble() == -bound);
}

void tst_DictionaryValueExport::textsOfAnyContentAreKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("quotes and backslashes") << QString("\"a\\\\b\\\"/'");
    QTest::newRow("what looks like an escape") << QString("\\u0041\\n");
    QString controls;
    for (int unit = 0; unit < 0x20; ++unit)
        controls += QChar(unit);
    QTest::newRow("control characters, NUL first") << controls;
    QTest::newRow("NUL inside") << QString("a" + QString(QChar(0)) + "b");
    QTest::newRow("around the ends of one and two bytes")
        << QString(QString(QChar(0x7e)) + QChar(0x7f) + QChar(0x80) + QChar(0x7ff) + QChar(0x800));
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("😀 𝄞 𐀀 􏿿");
    QTest::newRow("first half of a pair") << QString("a" + QString(QChar(0xd83d)) + "b");
    QTest::newRow("second half of a pair") << QString("a" + QString(QChar(0xde00)) + "b");
    QTest::newRow("halves in the wrong order") << QString(QString(QChar(0xde00)) + QChar(0xd83d));
    QTest::newRow("around the surrogates") << QString(QString(QChar(0xd7ff)) + QChar(0xe000));
    QTest::newRow("byte order marks and what is no character")
        << QString(QString(QChar(0xfeff)) + QChar(0xfffe) + QChar(0xffff));
    QTest::newRow("byte order mark alone") << QString(QChar(0xfeff));
    QTest::newRow("byte order mark first") << QString(QString(QChar(0xfeff)) + "a");
    QTest::newRow("byte order mark last") << QString("a" + QString(QChar(0xfeff)));
    QTest::newRow("byte order mark before a line end") << QString(QString(QChar(0xfeff)) + "\n");
    QTest::newRow("byte order mark twice") << QString(2, QChar(0xfeff));
    QTest::newRow("line ends") << QString("a\r\nb\n\u2028c\u2029");
}

void tst_DictionaryValueExport::textsOfAnyContentAreKept()
{
    QFETCH(QString, text);
    TDmEntity entity;
    entity.setName(text);
    TDmVariable &variable = addVariable(entity);
    variable.setName(text);
    variable.setVarType("STRING");
    addLabel(variable, text, text);
    const QJsonObject out = exportOf(entity);
    QCOMPARE(out.value("name").toString(), text);
    const QJsonObject written = firstVariableOf(out);
    QCOMPARE(written.value("name").toString(), text);
    const QJsonObject label = written.value("valueLabels").toArray().at(0).toObject();
    QVERIFY(label == (QJsonObject{{"value", text}, {"label", text}}));
}

QTEST_APPLESS_MAIN(tst_DictionaryValueExport)
#include "tst_DictionaryValueExport.moc"
