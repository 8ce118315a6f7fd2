#include "tests/business/models/Transferred.h"

#include <QtTest>

using namespace tessel::test;

namespace {

/// \a levels lists in one another, in a document with a name.
QString nested(int levels)
{
    return "{\"name\": \"A\", \"fieldType\": \"STRING\", \"categories\": " + QString(levels, '[')
        + QString(levels, ']') + "}";
}

} // namespace

class tst_TransferText : public QObject {
    Q_OBJECT

private slots:
    void whatIsNoJsonObjectIsAnEmptyOne_data()
    {
        QTest::addColumn<QString>("json");
        QTest::newRow("null text") << QString();
        QTest::newRow("empty text") << QString("");
        QTest::newRow("blanks") << QString("  \n");
        QTest::newRow("a word") << QString("AGE");
        QTest::newRow("an empty object") << QString("{}");
        QTest::newRow("a list") << QString("[{\"name\": \"AGE\"}]");
        QTest::newRow("a text") << QString("\"name\"");
        QTest::newRow("a number") << QString("5");
        QTest::newRow("null") << QString("null");
        QTest::newRow("cut off") << QString("{\"name\": \"AGE\"");
        QTest::newRow("two objects") << QString("{\"name\": \"AGE\"}{\"name\": \"AGE\"}");
        QTest::newRow("something behind it") << QString("{\"name\": \"AGE\"} x");
        QTest::newRow("a null character behind it") << QString("{\"name\": \"AGE\"}") + QChar(0);
        QTest::newRow("a comma at the end") << QString("{\"name\": \"AGE\",}");
        QTest::newRow("single quotes") << QString("{'name': 'AGE'}");
        QTest::newRow("bare keys") << QString("{name: \"AGE\"}");
        QTest::newRow("100,000 brackets") << QString(100'000, '[');
        QTest::newRow("lists in one another, too many") << nested(100'000);
    }
    void whatIsNoJsonObjectIsAnEmptyOne()
    {
        QFETCH(QString, json);
        QCOMPARE(transferred(json), nothingTransferred());
    }

    void howAnObjectIsWrittenDoesNotMatter_data()
    {
        QTest::addColumn<QString>("json");
        QTest::newRow("compact") << QString("{\"name\":\"A\",\"fieldType\":\"STRING\"}");
        QTest::newRow("another order") << QString("{\"fieldType\": \"STRING\", \"name\": \"A\"}");
        QTest::newRow("blanks around it")
            << QString(" \n\t{\"name\": \"A\", \"fieldType\": \"STRING\"}\r\n ");
        QTest::newRow("a byte order mark")
            << QChar(0xfeff) + QString("{\"name\": \"A\", \"fieldType\": \"STRING\"}");
        QTest::newRow("escapes") << QString("{\"n\\u0061me\": \"\\u0041\", \"fieldType\": \"STRING\"}");
        QTest::newRow("a key twice") << QString(
            "{\"name\": \"B\", \"name\": \"A\", \"fieldType\": \"STRING\"}");
        QTest::newRow("unknown keys")
            << QString("{\"name\": \"A\", \"fieldType\": \"STRING\", \"x\": [1, {}]}");
        QTest::newRow("100 blanks inside")
            << "{" + QString(100, ' ') + "\"name\": \"A\", \"fieldType\": \"STRING\"}";
    }
    void howAnObjectIsWrittenDoesNotMatter()
    {
        QFETCH(QString, json);
        QCOMPARE(transferred(json), QString("name='A' field='A' type='STRING' position=1"));
    }

    void listsInOneAnotherAreRead()
    {
        QCOMPARE(transferred(nested(2)), QString("name='A' field='A' type='STRING' position=1 (: )"));
        QCOMPARE(transferred(nested(500)), QString("name='A' field='A' type='STRING' position=1 (: )"));
    }

    void aVeryLongNameIsKept()
    {
        const QString letters(1'000'000, 'x');
        QCOMPARE(transferred(QJsonObject{{"name", "ID_" + letters}, {"fieldType", "STRING"}}),
            "name='ID' alias='" + letters + "' field='ID_" + letters + "' type='STRING' position=1");
    }

    void everyCallMakesAnotherVariable()
    {
        VariableDiccionaryModel model(nullptr, nullptr, nullptr);
        const std::unique_ptr<TDmVariable> one(model.getVariableFromJsonDrop("{}"));
        const std::unique_ptr<TDmVariable> other(model.getVariableFromJsonDrop("{}"));
        QVERIFY(one != other);
        one->setName("ONE");
        QCOMPARE(textOf(*other), nothingTransferred());
    }
};

QTEST_MAIN(tst_TransferText)
#include "tst_TransferText.moc"
