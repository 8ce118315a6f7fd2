#include "documents/QuickReader.h"

#include "documents/DocumentFile.h"
#include "documents/DocumentForm.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/documents/TreeContent.h"

#include <QtTest>

using namespace tessel::documents;
using tessel::test::contentOf;

namespace {

/// Single quotes stand for double ones.
QByteArray quoted(const char *text) { return QByteArray(text).replace('\'', '"'); }

/// A document of one variable that holds \a keys.
QByteArray withVariable(const char *keys)
{
    return "{'entities': [{'variables': [{" + QByteArray(keys) + "}]}]}";
}

const TDmVariable &firstVariable(const TDmEntity &root)
{
    return *root.getChildren()->first()->getVariables()->first();
}

QByteArray nested(int depth)
{
    return QByteArray("{\"entities\":[").repeated(depth) + QByteArray("]}").repeated(depth);
}

} // namespace

class tst_QuickReader : public QObject {
    Q_OBJECT

private slots:
    void whatIsPlainIsTaken_data()
    {
        QTest::addColumn<QByteArray>("document");
        const auto row = [](const char *tag, const QByteArray &document) {
            QTest::newRow(tag) << quoted(document.constData());
        };
        row("an empty object", "{}");
        row("blanks around", " \r\n\t{ } \n");
        row("a mark of the byte order before it", "\xef\xbb\xbf{'name': 'A'}");
        row("the root's own keys",
            "{'name': 'A', 'alias': 'B', 'label': 'C', 'documentation': 'D', 'codeVar': 'E', 'labelVar': 'F',"
            " 'weightVar': 'G', 'selectable': true, 'virtual': true}");
        row("null everywhere",
            "{'name': null, 'virtual': null, 'variables': null, 'entities': [{'variables': [{'metadata': "
            "null,"
            " 'tag': null, 'valueLabels': null, 'type': null}]}]}");
        row("the other name of the child list", "{'root': [{'name': 'A', 'root': [{'name': 'B'}]}]}");
        row("an entity alone with its weight variable", "{'entities': {'weigthVar': 'W', 'name': 'A'}}");
        row("an entity alone with the weight variable of one in a list", "{'entities': {'weightVar': 'W'}}");
        row("an entity in a list with the weight variable of one alone",
            "{'entities': [{'weigthVar': 'W'}]}");
        row("a variable alone", "{'variables': {'name': 'V', 'documentation': 'D'}}");
        row("labels and ranges alone",
            withVariable(
                "'valueLabels': {'value': 1, 'label': 'One'}, 'metadata': {'range': {'min': 2, 'max': 3}}"));
        row("unknown keys of every kind",
            "{'x': [1, -2.5e3, 'a\\n', null, true, {'y': {}, 'name': 3, 'name': 4}], 'name': 'A', "
            "'\xc3\xb1': 1}");
        row("a type below the top", "{'entities': [{'type': 'config'}]}");
        row("numbers that are whole in another spelling",
            withVariable("'tag': 2.0, 'size': 1e2, 'missing': -0, 'notapp': -0.0"));
        row("the ends of whole numbers", withVariable("'tag': 2147483647, 'missing': -2147483648"));
        row("bounds of every size",
            withVariable(
                "'metadata': {'range': [{'min': -1.5, 'max': 1e300}, {'min': 1e-300, 'max': 0.0}]}"));
        row("codes as texts and numbers",
            withVariable(
                "'valueLabels': [{'value': 1}, {'value': '007'}, {'value': 2.50}, {'value': 1e20},"
                " {'value': 1023}, {'value': 1024}, {'value': -1}, {'value': 9223372036854775807}]"));
        row("escapes", "{'name': '\\'\\\\\\/\\b\\f\\n\\r\\t\\u0041\\u00e9\\ud83d\\ude00'}");
        row("every length of a character", "{'name': 'a\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80\x7f'}");
        row("the same text under many keys",
            "{'name': 'A', 'alias': 'A', 'label': 'A', 'entities': [{'name': 'A', 'label': '\xc3\xa9',"
            " 'alias': '\xc3\xa9'}]}");
        row("not too deep", nested(90));
    }

    void whatIsPlainIsTaken()
    {
        QFETCH(QByteArray, document);
        const std::unique_ptr<TDmEntity> quick = readQuickly(document);
        QVERIFY(quick);
        const Outcome<QJsonObject> parsed = parseObject(document);
        QVERIFY(parsed.result);
        QCOMPARE(contentOf(*quick), contentOf(*readDictionary(*parsed.result)));
    }

    void whatIsNotPlainIsRefused_data()
    {
        QTest::addColumn<QByteArray>("document");
        const auto row = [](const char *tag, const QByteArray &document) {
            QTest::newRow(tag) << quoted(document.constData());
        };
        row("nothing", "");
        row("an array", "[]");
        row("a number", "5");
        row("a run configuration", "{'type': 'config'}");
        row("any type at the top", "{'type': 'x'}");
        row("a key twice", "{'name': 'A', 'name': 'B'}");
        row("a key of a label twice", withVariable("'valueLabels': [{'value': 1, 'value': 2}]"));
        row("both names of the child list", "{'root': [], 'entities': []}");
        row("a text that is a number", "{'name': 5}");
        row("a flag that is a text", "{'virtual': 'true'}");
        row("a whole number that is a text", withVariable("'tag': '5'"));
        row("a whole number with decimals", withVariable("'tag': 2.5"));
        row("a whole number that is too large", withVariable("'tag': 2147483648"));
        row("a whole number that is too small", withVariable("'tag': -2147483649"));
        row("a lone range with decimals", withVariable("'metadata': {'range': {'min': 1.5}}"));
        row("a code that is a flag", withVariable("'valueLabels': [{'value': true}]"));
        row("a number that is too large", withVariable("'valueLabels': [{'value': 1e301}]"));
        row("a number that is too small", withVariable("'valueLabels': [{'value': 1e-301}]"));
        row("a number that is nearly nothing", withVariable("'valueLabels': [{'value': 1e-500}]"));
        row("a number at the end of the whole ones",
            withVariable("'valueLabels': [{'value': 9223372036854775808}]"));
        row("an item that is no object", "{'entities': [5]}");
        row("an item that is null", "{'entities': [null]}");
        row("an empty object alone", "{'entities': {}}");
        row("a list that is a text", "{'entities': 'A'}");
        row("a layout that is a list", withVariable("'metadata': []"));
        row("a key with an escape", "{'na\\u006de': 'A'}");
        row("a key with a mark of the byte order", "{'\xef\xbb\xbfname': 'A'}");
        row("a text with a mark of the byte order",
            "{'name': '\xef\xbb\xbf"
            "A'}");
        row("a text with the escape of one", "{'name': '\\ufeffA'}");
        row("half of a pair", "{'name': '\\ud83d'}");
        row("the other half", "{'name': '\\ude00'}");
        row("half of a pair before a text", "{'name': '\\ud83dA'}");
        row("an unknown escape", "{'name': '\\x'}");
        row("an escape with too few digits", "{'name': '\\u12'}");
        row("an escape with a sign", "{'name': '\\u+123'}");
        row("a line end in a text", "{'name': 'A\nB'}");
        row("bytes that are no UTF-8", "{'name': '\xe9'}");
        row("more behind the object", "{} {}");
        row("a word behind the object", "{} x");
        row("a closing brace too many", "{}}");
        row("a comma at the end", "{'name': 'A',}");
        row("a comma at the end of a list", "{'entities': [{},]}");
        row("no comma", "{'name': 'A' 'alias': 'B'}");
        row("no colon", "{'name' 'A'}");
        row("no end", "{'name': 'A'");
        row("a wrong word under an unknown key", "{'x': nul}");
        row("a wrong number under an unknown key", "{'x': 01}");
        row("a wrong escape under an unknown key", "{'x': '\\q'}");
        row("a wrong escape in a key under an unknown one", "{'x': {'\\q': 1}}");
        row("too deep", nested(150));
        row("too deep under an unknown key", "{'x': " + QByteArray(250, '[') + QByteArray(250, ']') + "}");
    }

    void whatIsNotPlainIsRefused()
    {
        QFETCH(QByteArray, document);
        QVERIFY(!readQuickly(document));
    }

    void levelsFollowTheNesting()
    {
        const auto root = readQuickly(quoted("{'entities': [{'entities': {'name': 'B'}}]}"));
        QCOMPARE(root->getLevel(), 0);
        const TDmEntity *top = root->getChildren()->first();
        QCOMPARE(top->getLevel(), 1);
        QCOMPARE(top->getChildren()->first()->getLevel(), 2);
    }

    void startAndLengthAreKeptTwice()
    {
        const auto root = readQuickly(quoted(withVariable("'metadata': {'start': 7, 'length': 3}")));
        const TDmVariable &variable = firstVariable(*root);
        QCOMPARE(variable.getFieldRelativePosition(), 7);
        QCOMPARE(variable.getFieldSize(), 3);
        QCOMPARE(variable.getMetadataVariables()->getStart(), 7);
        QCOMPARE(variable.getMetadataVariables()->getLength(), 3);
    }

    void textsThatComeAgainShareTheirMemory()
    {
        const auto root = readQuickly(quoted(withVariable(
            "'valueLabels': [{'value': 1, 'label': 'S\xc3\xad'}, {'value': 1, 'label': 'S\xc3\xad'}]")));
        const QList<ValueLabelElement *> &labels = *firstVariable(*root).getValueLabelElementList();
        QCOMPARE(labels.at(0)->getLabel().constData(), labels.at(1)->getLabel().constData());
        QCOMPARE(labels.at(0)->getValue().constData(), labels.at(1)->getValue().constData());
    }

    void sharedTextsPartWhenOneIsChanged()
    {
        const auto root = readQuickly(quoted("{'name': 'A', 'entities': [{'name': 'A'}]}"));
        QString name = root->getName();
        name[0] = 'B';
        root->setName(name);
        QCOMPARE(root->getChildren()->first()->getName(), QString("A"));
    }

    /// The parser looks at whole blocks of bytes: what lies behind the text is none of its business.
    void bytesBehindTheTextAreNotLookedAt()
    {
        const QByteArray all = quoted("{'name': 'A'}, {'name': 'B'}");
        const auto cut = readQuickly(QByteArray::fromRawData(all.constData(), all.indexOf(',')));
        QVERIFY(cut);
        QCOMPARE(cut->getName(), QString("A"));
        QByteArray roomy = quoted("{'name': 'A'}");
        roomy.reserve(1000);
        QVERIFY(readQuickly(roomy));
        memset(roomy.data() + roomy.size(), '}', 900);
        QVERIFY(readQuickly(roomy));
    }
};

QTEST_APPLESS_MAIN(tst_QuickReader)
#include "tst_QuickReader.moc"
