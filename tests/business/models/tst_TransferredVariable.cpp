#include "tests/business/models/Transferred.h"
#include "tests/support/Json.h"

#include <QtTest>

#include <climits>

using namespace tessel::test;

Q_DECLARE_METATYPE(QJsonValue)

namespace {

const QString kBeyondInt = QStringLiteral("3000000000");

/// The value labels that \a categories become, as "(code: label)".
QString labelsOf(const QVariant &categories)
{
    VariableDiccionaryModel model(nullptr, nullptr, nullptr);
    const std::unique_ptr<QList<ValueLabelElement *>> labels(model.loadCategories(categories));
    QString text;
    for (const ValueLabelElement *label : qAsConst(*labels))
        text += QStringLiteral("(%1: %2)").arg(label->getValue(), label->getLabel());
    qDeleteAll(*labels);
    return text;
}

/// A number of any JSON type, and the int that QVariant makes of it.
void addIntegers()
{
    QTest::addColumn<QJsonValue>("sent");
    QTest::addColumn<int>("stored");
    QTest::newRow("a number") << QJsonValue(12) << 12;
    QTest::newRow("a negative number") << QJsonValue(-7) << -7;
    QTest::newRow("a number with a decimal is rounded") << QJsonValue(2.5) << 3;
    QTest::newRow("a number just below a half is rounded down") << QJsonValue(2.4) << 2;
    QTest::newRow("the highest int") << QJsonValue(INT_MAX) << INT_MAX;
    QTest::newRow("the lowest int") << QJsonValue(INT_MIN) << INT_MIN;
    QTest::newRow("a number beyond int wraps around") << QJsonValue(3e9) << -1294967296;
    QTest::newRow("digits") << QJsonValue("12") << 12;
    QTest::newRow("digits with blanks around them") << QJsonValue(" 12 ") << 12;
    QTest::newRow("digits beyond int wrap around") << QJsonValue(kBeyondInt) << -1294967296;
    QTest::newRow("more digits than fit anywhere") << QJsonValue(QString(40, '9')) << 0;
    QTest::newRow("digits with a decimal are no integer") << QJsonValue("2.5") << 0;
    QTest::newRow("hexadecimal digits are no integer") << QJsonValue("0x10") << 0;
    QTest::newRow("an asterisk") << QJsonValue("*") << 0;
    QTest::newRow("a word") << QJsonValue("abc") << 0;
    QTest::newRow("empty text") << QJsonValue("") << 0;
    QTest::newRow("true") << QJsonValue(true) << 1;
    QTest::newRow("false") << QJsonValue(false) << 0;
    QTest::newRow("null") << QJsonValue(QJsonValue::Null) << 0;
    QTest::newRow("a list") << QJsonValue(QJsonArray{5}) << 0;
    QTest::newRow("an object") << QJsonValue(QJsonObject{{"a", 5}}) << 0;
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << 0;
}

/// A text of any JSON type, and the text that QVariant makes of it.
void addTexts()
{
    QTest::addColumn<QJsonValue>("sent");
    QTest::addColumn<QString>("stored");
    QTest::newRow("a text") << QJsonValue("Some text") << "Some text";
    QTest::newRow("blanks stay") << QJsonValue("  Some text ") << "  Some text ";
    QTest::newRow("letters beyond ASCII")
        << QJsonValue(u8"Regi\u00f3n \u4e2d \U00010400") << u8"Regi\u00f3n \u4e2d \U00010400";
    QTest::newRow("markup") << QJsonValue("<b>&amp;\"\\\n") << "<b>&amp;\"\\\n";
    QTest::newRow("a null character")
        << QJsonValue(QString::fromLatin1("A\0B", 3)) << QString::fromLatin1("A\0B", 3);
    QTest::newRow("a number") << QJsonValue(5) << "5";
    QTest::newRow("a number with decimals") << QJsonValue(1234.5) << "1234.5";
    QTest::newRow("true") << QJsonValue(true) << "true";
    QTest::newRow("null") << QJsonValue(QJsonValue::Null) << "";
    QTest::newRow("a list") << QJsonValue(QJsonArray{"A"}) << "";
    QTest::newRow("an object") << QJsonValue(QJsonObject{{"name", "A"}}) << "";
    QTest::newRow("empty") << QJsonValue("") << "";
    QTest::newRow("missing") << QJsonValue(QJsonValue::Undefined) << "";
}

/// A text field with \a value under \a key, unless it is undefined.
QJsonObject fieldWith(const QString &key, const QJsonValue &value)
{
    QJsonObject field{{"fieldType", "STRING"}};
    if (!value.isUndefined())
        field.insert(key, value);
    return field;
}

/// "key='value' ", or nothing for an empty value.
QString part(const QString &key, const QString &value)
{
    return value.isEmpty() ? QString() : key + "='" + value + "' ";
}

/// " key=number", or nothing for 0.
QString part(const QString &key, int number)
{
    return number == 0 ? QString() : QStringLiteral(" %1=%2").arg(key).arg(number);
}

} // namespace

class tst_TransferredVariable : public QObject {
    Q_OBJECT

private slots:
    void aFieldsNameIsSplit_data()
    {
        QTest::addColumn<QString>("names");
        const auto row = [](const QString &field, const QString &names) {
            QTest::newRow(qUtf8Printable('"' + field + '"')) << names + part("field", field);
        };
        const auto whole = [row](const QString &field) { row(field, part("name", field)); };
        // Up to three characters: whole, whatever they are.
        row("", "");
        for (const char *field :
            {"A", "_", "1", "ID", "ABC", "ID_", "P1_", "A1_", "_1_", "___", "1_2", " 1_"})
            whole(field);
        whole(u8"\u00e91_");
        // From four: an identifier.
        row("ID_A", "name='ID' alias='A' ");
        row("ID_PERSONA", "name='ID' alias='PERSONA' ");
        row("ID__", "name='ID' alias='_' ");
        row("ID_1_2", "name='ID' alias='1_2' ");
        row("ID_ID_", "name='ID' alias='ID_' ");
        row("ID_ ", "name='ID' alias=' ' ");
        for (const char *field : {"id_PERSONA", "Id_PERSONA", "iD_PERSONA", "IDPERSONA", " ID_PERSONA",
                 "XID_PERSONA", "ID-PERSONA"})
            whole(field);
        // A question's number: the second character is a digit, and there is an underscore.
        row("P12_AGE", "name='P12' alias='AGE' ");
        row("P12_", "name='P12' ");
        row("P1_A", "name='P1' alias='A' ");
        row("p1_age", "name='p1' alias='age' ");
        row("P1__", "name='P1' alias='_' ");
        row("P1_A_B_C", "name='P1' alias='A_B_C' ");
        row("P1A_B", "name='P1A' alias='B' ");
        row("123_4", "name='123' alias='4' ");
        row("_1AB", "alias='1AB' ");
        row("_1_B", "alias='1_B' ");
        row("I1_ID_X", "name='I1' alias='ID_X' ");
        row(" 1_ B", "name=' 1' alias=' B' ");
        row("P0_A", "name='P0' alias='A' ");
        row("P9_A", "name='P9' alias='A' ");
        for (const char *field : {"A_BC", "AB_1", "A__1", "____", "P12AGE", "1234", "P/_A", "P:_A", "P 1_A",
                 "AGE_OF_HEAD", "P-1_A"})
            whole(field);
        // Decimal digits of any script.
        row(u8"P\u0663_A", u8"name='P\u0663' alias='A' ");
        row(u8"P\uff11_A", u8"name='P\uff11' alias='A' ");
        row(u8"P\u0969_\u0914", u8"name='P\u0969' alias='\u0914' ");
        row(u8"\u00d12_A\u00f1o", u8"name='\u00d12' alias='A\u00f1o' ");
        // Other numbers are no digits: superscripts, halves, Roman and circled ones, ideographs.
        for (const char *field : {u8"P\u00b2_A", u8"P\u00bd_A", u8"P\u2160_A", u8"P\u2460_A", u8"P\u4e00_A"})
            whole(field);
        // Characters are UTF-16 units: half of a digit is none, and one letter and a half are three.
        whole(u8"P\U0001d7cf_A");
        whole(u8"\U000104001_A");
        whole(u8"\U000104001");
        row(u8"P1_\U00010400", u8"name='P1' alias='\U00010400' ");
    }
    void aFieldsNameIsSplit()
    {
        QFETCH(QString, names);
        QString field = QString::fromUtf8(QTest::currentDataTag());
        field = field.mid(1, field.size() - 2);
        QCOMPARE(transferred(fieldWith("name", field)), names + "type='STRING' position=1");
    }

    void aNameOfAnyJsonTypeIsReadAsText_data() { addTexts(); }
    void aNameOfAnyJsonTypeIsReadAsText()
    {
        QFETCH(QJsonValue, sent);
        QFETCH(QString, stored);
        QCOMPARE(transferred(fieldWith("name", sent)),
            part("name", stored) + part("field", stored) + "type='STRING' position=1");
    }

    void aNumberAsNameIsSplitLikeAText()
    {
        QCOMPARE(transferred("{'name': 'ID_5', 'fieldType': 'STRING'}"),
            QString("name='ID' alias='5' field='ID_5' type='STRING' position=1"));
        QCOMPARE(transferred("{'name': 12.5, 'fieldType': 'STRING'}"),
            QString("name='12.5' field='12.5' type='STRING' position=1"));
    }

    void aLabelOfAnyJsonTypeIsReadAsText_data() { addTexts(); }
    void aLabelOfAnyJsonTypeIsReadAsText()
    {
        QFETCH(QJsonValue, sent);
        QFETCH(QString, stored);
        QCOMPARE(transferred(fieldWith("label", sent)), part("label", stored) + "type='STRING' position=1");
    }

    void aTagOfAnyJsonTypeIsReadAsInteger_data() { addIntegers(); }
    void aTagOfAnyJsonTypeIsReadAsInteger()
    {
        QFETCH(QJsonValue, sent);
        QFETCH(int, stored);
        QCOMPARE(transferred(fieldWith("tag", sent)), "type='STRING'" + part("tag", stored) + " position=1");
    }

    void decimalsOfAnyJsonTypeAreReadAsInteger_data() { addIntegers(); }
    void decimalsOfAnyJsonTypeAreReadAsInteger()
    {
        QFETCH(QJsonValue, sent);
        QFETCH(int, stored);
        QCOMPARE(transferred(fieldWith("fieldDecimals", sent)),
            "type='STRING' position=1" + part("decimals", stored));
    }

    void theSizeOfAnyJsonTypeIsReadAsIntegerAndGivenTwice_data() { addIntegers(); }
    void theSizeOfAnyJsonTypeIsReadAsIntegerAndGivenTwice()
    {
        QFETCH(QJsonValue, sent);
        QFETCH(int, stored);
        QCOMPARE(transferred(fieldWith("fieldSize", sent)),
            "type='STRING' position=1" + part("fieldSize", stored) + part("size", stored));
    }

    void aTagIsNeitherClampedNorMadePositive()
    {
        QCOMPARE(transferred("{'tag': -20000, 'fieldType': 'STRING'}"),
            QString("type='STRING' tag=-20000 position=1"));
        QCOMPARE(transferred("{'tag': 10000, 'fieldType': 'STRING'}"),
            QString("type='STRING' tag=10000 position=1"));
    }

    void theSourcesOwnPositionAndCodesAreNotUsed()
    {
        QCOMPARE(transferred("{'name': 'AGE', 'fieldType': 'STRING', 'fieldRelativePosition': 17,"
                             " 'fieldMissing': '99', 'fieldNotApp': '98', 'dataProviderType': 'CSV'}"),
            QString("name='AGE' field='AGE' type='STRING' position=1"));
        QCOMPARE(transferred("{'fieldRelativePosition': 0, 'fieldMissing': 99, 'fieldNotApp': 98}"),
            nothingTransferred());
    }

    void whatTheDropDoesNotKnowIsNotRead()
    {
        QCOMPARE(
            transferred("{'alias': 'A', 'group': 'G', 'documentation': 'D', 'fileName': 'F', 'local': true,"
                        " 'level': 1, 'checked': 1, 'missing': 5, 'notappl': 6, 'size': 7, 'decimals': 8,"
                        " 'lookup': true, 'field': 'X', 'record': 'R', 'start': 3, 'length': 4, 'Name': 'N',"
                        " 'NAME': 'N', 'varType': 'REAL', 'range': [{'rangeMin': 1, 'rangeMax': 2}]}"),
            nothingTransferred());
    }

    void aWholeFieldIsTaken()
    {
        QCOMPARE(transferred("{'name': 'P12_AGE', 'label': 'Age in years', 'tag': 12, 'fieldType': 'INTEGER',"
                             " 'categories': [{'codigoCategoria': '1', 'nombreCategoria': 'Infant'},"
                             " {'codigoCategoria': '2', 'nombreCategoria': 'Child'}], 'fieldRangeMin': '0',"
                             " 'fieldRangeMax': '98', 'fieldRelativePosition': 17, 'fieldDecimals': 3,"
                             " 'fieldSize': 4, 'fieldMissing': '7', 'fieldNotApp': '8'}"),
            QString("name='P12' alias='AGE' field='P12_AGE' label='Age in years' type='INTEGER' tag=12"
                    " missing=99 notappl=100 position=1 fieldSize=4 size=4 decimals=3 range=0..98"
                    " (1: Infant)(2: Child)")
                .replace(")(", ") ("));
    }

    void categoriesBecomeValueLabels_data()
    {
        QTest::addColumn<QString>("labels");
        const auto row = [](const char *json, const char *labels) {
            QTest::newRow(json) << QString::fromUtf8(labels);
        };
        row("[]", "");
        row("[{'codigoCategoria': '1', 'nombreCategoria': 'Urban'}]", "(1: Urban)");
        row("[{'codigoCategoria': '2', 'nombreCategoria': 'B'}, {'codigoCategoria': '1', 'nombreCategoria': "
            "'A'}]",
            "(2: B)(1: A)");
        row("[{'codigoCategoria': '1', 'nombreCategoria': 'A'}, {'codigoCategoria': '1', 'nombreCategoria': "
            "'A'}]",
            "(1: A)(1: A)");
        row("[{'codigoCategoria': ' 1 ', 'nombreCategoria': ' A  B '}]", "( 1 :  A  B )");
        row("[{'codigoCategoria': '\xc3\xb1', 'nombreCategoria': '\xe4\xb8\xad'}]",
            "(\xc3\xb1: \xe4\xb8\xad)");
        row("[{'codigoCategoria': '1'}]", "(1: )");
        row("[{'nombreCategoria': 'A'}]", "(: A)");
        row("[{'code': '1', 'label': 'A', 'CodigoCategoria': '1', 'nombrecategoria': 'A'}]", "(: )");
        row("[{'codigoCategoria': 1, 'nombreCategoria': 2.5}]", "(1: 2.5)");
        row("[{'codigoCategoria': true, 'nombreCategoria': null}]", "(true: )");
        row("[{'codigoCategoria': ['1'], 'nombreCategoria': {'a': 'A'}}]", "(: )");
        // What is no object is one without any text.
        row("[1, 'A', null, true, [], {}]", "(: )(: )(: )(: )(: )(: )");
        row("[[{'codigoCategoria': '1', 'nombreCategoria': 'A'}]]", "(: )");
        row("[5, {'codigoCategoria': '1', 'nombreCategoria': 'A'}]", "(: )(1: A)");
        // What is no list has no elements.
        row("{'codigoCategoria': '1', 'nombreCategoria': 'A'}", "");
        for (const char *json : {"{}", "'1 A'", "''", "5", "true", "null"})
            row(json, "");
    }
    void categoriesBecomeValueLabels()
    {
        QFETCH(QString, labels);
        const QByteArray json = QTest::currentDataTag();
        QCOMPARE(labelsOf(valueOf(json)), labels);
        QCOMPARE(transferred("{'fieldType': 'STRING', 'categories': " + json + "}"),
            "type='STRING' position=1" + (labels.isEmpty() ? labels : ' ' + labels.replace(")(", ") (")));
    }

    void categoriesThatCameFromElsewhereAreRead()
    {
        const QVariantMap map{{"codigoCategoria", 1}, {"nombreCategoria", "A"}};
        const QVariantHash hash{{"codigoCategoria", 2}, {"nombreCategoria", "B"}};
        QCOMPARE(labelsOf(QVariantList{map, hash}), QString("(1: A)(2: B)"));
        QCOMPARE(labelsOf(QStringList{"1 A", "2 B"}), QString("(: )(: )"));
        QCOMPARE(labelsOf(map), QString());
        QCOMPARE(labelsOf(QVariant()), QString());
    }
};

QTEST_MAIN(tst_TransferredVariable)
#include "tst_TransferredVariable.moc"
