#include "business/models/DatasetPropertiesFieldsModel.h"

#include "tests/business/models/Catalogue.h"
#include "tests/support/LogCatcher.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <climits>
#include <type_traits>

using namespace tessel::test;

using Model = DatasetPropertiesFieldsModel;
using Fields = Items<TDmSourceField>;

static_assert(std::is_same_v<decltype(std::declval<Model &>().laodDataCategories(nullptr)), QJsonArray>);

namespace {

/// Code and label of each category in brackets, any other key behind them.
QString drawn(const QJsonArray &categories)
{
    QString text;
    for (const QJsonValue &category : categories) {
        QJsonObject object = category.toObject();
        text += QStringLiteral("[%1|%2").arg(object.take("codigoCategoria").toString("no code"),
            object.take("nombreCategoria").toString("no label"));
        text += object.keys().join(' ') + ']';
    }
    return text;
}

/// What a drag of \a field carries.
QString transferOf(TDmSourceField &field)
{
    QList<TDmSourceField *> list = {&field};
    const Model model(nullptr, &list, "*");
    return textsOf(payloadOf(model, {model.index(0, 0)})).join("\n---\n");
}

} // namespace

class tst_DatasetTransfer : public QObject {
    Q_OBJECT

private slots:
    void theTransferIsSpelledOut()
    {
        Fields fields({"AGE"});
        TDmSourceField &field = *fields[0];
        field.label = QString::fromUtf8(u8"Años €");
        field.fieldType = "INTEGER";
        field.dataProviderType = "SPSS";
        field.rangeMin = "0";
        field.rangeMax = "98";
        field.relativePosition = 12;
        field.decimals = 3;
        field.size = 2;
        field.missing = "99";
        field.notApp = "-1";
        field.selection = "Y";
        field.categories = "1 Urban\t2 Rural area";
        const Model model(nullptr, &fields.list, "*");
        const QByteArray before = "{\n"
                                  "    \"categories\": [\n"
                                  "        {\n"
                                  "            \"codigoCategoria\": \"1\",\n"
                                  "            \"nombreCategoria\": \"Urban\"\n"
                                  "        },\n"
                                  "        {\n"
                                  "            \"codigoCategoria\": \"2\",\n"
                                  "            \"nombreCategoria\": \"Rural area\"\n"
                                  "        }\n"
                                  "    ],\n"
                                  "    \"dataProviderType\": \"SPSS\",\n"
                                  "    \"fieldDecimals\": 3,\n"
                                  "    \"fieldMissing\": \"99\",\n"
                                  "    \"fieldNotApp\": \"-1\",\n"
                                  "    \"fieldRangeMax\": \"98\",\n"
                                  "    \"fieldRangeMin\": \"0\",\n"
                                  "    \"fieldRelativePosition\": 12,\n"
                                  "    \"fieldSize\": 2,\n"
                                  "    \"fieldType\": \"INTEGER\",\n"
                                  "    \"label\": \"";
        const QByteArray behind = "\",\n"
                                  "    \"name\": \"AGE\",\n"
                                  "    \"tag\": 1\n"
                                  "}\n";
        // 523 characters of two bytes, six of them in the label: the length first, then the high bytes first.
        const QByteArray expected = QByteArray("\x00\x00\x04\x16", 4) + streamed(before).mid(4)
            + QByteArray("\x00"
                         "A\x00\xf1\x00o\x00s\x00 \x20\xac",
                12)
            + streamed(behind).mid(4);
        LogCatcher log;
        QCOMPARE(payloadOf(model, {model.index(0, 0)}).toHex(' '), expected.toHex(' '));
        // The three cells of a row are three equal texts.
        QCOMPARE(payloadOf(model, {model.index(0, 0), model.index(0, 1), model.index(0, 2)}),
            expected + expected + expected);
    }

    void aFieldWithoutCategoriesHasAnEmptyList()
    {
        TDmSourceField field;
        QCOMPARE(transferOf(field),
            QString(
                "{\n    \"categories\": [\n    ],\n    \"dataProviderType\": \"\",\n    \"fieldDecimals\": "
                "0,\n"
                "    \"fieldMissing\": \"\",\n    \"fieldNotApp\": \"\",\n    \"fieldRangeMax\": \"\",\n"
                "    \"fieldRangeMin\": \"\",\n    \"fieldRelativePosition\": 0,\n    \"fieldSize\": 0,\n"
                "    \"fieldType\": \"\",\n    \"label\": \"\",\n    \"name\": \"\",\n    \"tag\": 1\n}\n"));
    }

    void numbersTravelAsNumbersAndBoundsAndCodesAsTexts()
    {
        TDmSourceField field;
        field.relativePosition = INT_MAX;
        field.decimals = -1;
        field.size = INT_MIN;
        field.rangeMin = "-1.5e3";
        field.rangeMax = " many ";
        field.missing = "099";
        field.notApp = QString::fromUtf8(u8"\"½\"");
        const QString text = transferOf(field);
        for (const char *line : {"    \"fieldRelativePosition\": 2147483647,\n",
                 "    \"fieldDecimals\": -1,\n", "    \"fieldSize\": -2147483648,\n",
                 "    \"fieldRangeMin\": \"-1.5e3\",\n", "    \"fieldRangeMax\": \" many \",\n",
                 "    \"fieldMissing\": \"099\",\n", u8"    \"fieldNotApp\": \"\\\"½\\\"\",\n"})
            QVERIFY2(text.contains(QString::fromUtf8(line)), line);
    }

    void theTypeTravelsAsItIsWritten_data()
    {
        QTest::addColumn<QString>("type");
        for (const char *type : {"STRING", "string", " REAL ", "<i>", ""})
            QTest::addRow("\"%s\"", type) << type;
    }
    void theTypeTravelsAsItIsWritten()
    {
        QFETCH(QString, type);
        TDmSourceField field;
        field.fieldType = type;
        field.dataProviderType = type + "?";
        const QString text = transferOf(field);
        QVERIFY(text.contains("    \"fieldType\": \"" + type + "\",\n"));
        QVERIFY(text.contains("    \"dataProviderType\": \"" + type + "?\",\n"));
    }

    void aDragCarriesTheFieldAsItIsThen()
    {
        Fields fields({"AGE", "SEX"});
        const Model model(nullptr, &fields.list, "*");
        fields[1]->tag = 4711;
        fields[1]->name = "JOB";
        fields[1]->categories = "1 One";
        LogCatcher log;
        const QStringList texts = textsOf(payloadOf(model, {model.index(1, 2)}));
        QCOMPARE(texts.size(), 1);
        QVERIFY(texts.at(0).contains("    \"name\": \"JOB\",\n    \"tag\": 4711\n}\n"));
        QVERIFY(texts.at(0).contains("\"nombreCategoria\": \"One\"\n"));
        QCOMPARE(log.messages(), QStringList({"debug default: \"1\"", "debug default: \"One\""}));
    }

    void categoriesAreReadFromTheText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("categories");
        const auto row = [](const char *tag, const char *text, const char *categories) {
            QTest::newRow(tag) << QString::fromUtf8(text) << QString::fromUtf8(categories);
        };
        row("nothing", "", "");
        row("two categories", "1 Urban\t2 Rural area", "[1|Urban][2|Rural area]");
        row("one category", "1 Urban", "[1|Urban]");
        row("a code alone", "7", "[7|]");
        row("codes alone", "7\t8\t9", "[7|][8|][9|]");
        row("two blanks between", "3  Other", "[3|Other]");
        row("many blanks between", "3     Other", "[3|Other]");
        row("blanks within the label are kept", "3 A  B   C", "[3|A  B   C]");
        row("a blank at the end", "7 ", "[7|]");
        row("blanks at the end", "7 Seven   ", "[7|Seven]");
        row("a blank in front leaves no code", " 7 Seven", "[|7 Seven]");
        row("blanks in front leave no code", "   7 Seven", "[|7 Seven]");
        row("a part of one blank", " ", "[|]");
        row("a part of blanks only", "   ", "[|]");
        row("a part of blanks only between others", "1 A\t  \t2 B", "[1|A][|][2|B]");
        row("tabs only", "\t\t\t", "");
        row("tabs at the end", "1 A\t2 B\t\t", "[1|A][2|B]");
        row("tabs in front", "\t\t1 A", "[1|A]");
        row("tabs between", "1 A\t\t\t2 B", "[1|A][2|B]");
        row("blanks around the tab", "1 A \t 2 B", "[1|A][|2 B]");
        row("equal categories", "1 A\t1 A", "[1|A][1|A]");
        row("a no-break space is part of the code", u8"1\u00a0Urban", u8"[1\u00a0Urban|]");
        row("an ideographic space is part of the code", u8"1\u3000Urban area", u8"[1\u3000Urban|area]");
        row("an em space around the texts is trimmed", u8"\u20031\u2003 \u2003Urban\u2003", "[1|Urban]");
        row("a no-break space around the texts is trimmed", u8"\u00a01 Urban\u00a0", "[1|Urban]");
        row("a no-break space within the label is kept", u8"1 A\u00a0B", u8"[1|A\u00a0B]");
        row("a part of a no-break space only", u8"\u00a0", "[|]");
        row("line ends do not part categories", "1 A\n2 B\r\n", "[1|A\n2 B]");
        row("line ends do not part code and label", "1\nA", "[1\nA|]");
        row("line ends around the texts are trimmed", "\r\n1\r \nA\v", "[1|A]");
        row("other signs do not part categories", "1 A;2 B,3 C|4 D", "[1|A;2 B,3 C|4 D]");
        row("letters of many alphabets", u8"ñ Größe\t2 年 齢", u8"[ñ|Größe][2|年 齢]");
        row("markup and quotes", "<b> \"x\" \\\t&amp; </b>", "[<b>|\"x\" \\][&amp;|</b>]");
        row("places for arguments", "%1 %2", "[%1|%2]");
        QTest::newRow("a NUL is a character")
            << QString("1 A") + QChar(0) + "B" << QString("[1|A") + QChar(0) + "B]";
        QTest::newRow("half a surrogate pair is a character")
            << QString("1 A") + QChar(0xD800) << QString("[1|A") + QChar(0xD800) + "]";
        QTest::newRow("100,000 characters")
            << "1 " + QString(100'000, 'x') << "[1|" + QString(100'000, 'x') + "]";
        QTest::newRow("100,000 tabs") << QString(100'000, '\t') + "1 A"
                                      << "[1|A]";
    }
    void categoriesAreReadFromTheText()
    {
        QFETCH(QString, text);
        QFETCH(QString, categories);
        TDmSourceField field;
        field.categories = text;
        LogCatcher log;
        Model model(nullptr, nullptr, "*");
        QCOMPARE(drawn(model.laodDataCategories(&field)), categories);
        QCOMPARE(field.categories, text);

        // The transfer carries them all.
        const QJsonObject object = QJsonDocument::fromJson(transferOf(field).toUtf8()).object();
        QCOMPARE(drawn(object.value("categories").toArray()), categories);
    }

    void manyCategoriesKeepTheirOrder()
    {
        TDmSourceField field;
        QString expected;
        for (int i = 0; i < 5000; ++i) {
            field.categories += QStringLiteral("%1 Label %1\t").arg(i);
            expected += QStringLiteral("[%1|Label %1]").arg(i);
        }
        LogCatcher log;
        QCOMPARE(drawn(Model(nullptr, nullptr, "*").laodDataCategories(&field)), expected);
        QCOMPARE(log.messages().size(), 10'000);
    }

    void codesAndLabelsAreWrittenToTheDebugLog()
    {
        TDmSourceField field;
        field.categories = "1 Urban\t\t2 Rural  area\t7\t ";
        const Model model(nullptr, nullptr, "*");
        LogCatcher log;
        model.laodDataCategories(&field);
        QCOMPARE(log.messages(),
            QStringList({"debug default: \"1\"", "debug default: \"Urban\"", "debug default: \"2\"",
                "debug default: \"Rural  area\"", "debug default: \"7\"", "debug default: \"\"",
                "debug default: \"\"", "debug default: \"\""}));
    }

    void withoutCategoriesNothingIsWrittenToTheLog()
    {
        TDmSourceField field;
        const Model model(nullptr, nullptr, "*");
        LogCatcher log;
        QCOMPARE(model.laodDataCategories(&field), QJsonArray());
        field.categories = "\t\t";
        QCOMPARE(model.laodDataCategories(&field), QJsonArray());
        QCOMPARE(log.messages(), QStringList());
    }

    void noFieldHasNoCategories()
    {
        const Model model(nullptr, nullptr, "*");
        LogCatcher log;
        QCOMPARE(model.laodDataCategories(nullptr), QJsonArray());
        QCOMPARE(log.messages(), QStringList());
    }

    void everyCellIsReadAnew()
    {
        Fields fields({"AGE"});
        fields[0]->categories = "1 A";
        const Model model(nullptr, &fields.list, "*");
        LogCatcher log;
        payloadOf(model, {model.index(0, 0), model.index(0, 1), model.index(0, 2)});
        QCOMPARE(log.messages().size(), 6);
    }
};

QTEST_MAIN(tst_DatasetTransfer)
#include "tst_DatasetTransfer.moc"
