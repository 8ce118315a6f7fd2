#include "documents/DocumentFile.h"
#include "documents/DocumentForm.h"
#include "documents/Losses.h"

#include <QtTest>

using namespace tessel::documents;

namespace {

/// "PATH (PLACE): sentence" for each thing that \a bytes lose by being rewritten.
QStringList lossesIn(const QByteArray &bytes)
{
    const Outcome<QJsonObject> parsed = parseObject(bytes);
    if (!parsed.result)
        return {parsed.problem.message};
    QStringList list;
    const QVector<Loss> losses = lossesOf(bytes, *parsed.result, normalForm(*parsed.result));
    for (const Loss &loss : losses)
        list.append(QStringLiteral("%1 (%2): %3").arg(loss.path, loss.place, loss.sentence()));
    return list;
}

QByteArray quoted(QByteArray text) { return text.replace('\'', '"'); }

/// A document with one entity that holds \a keys.
QByteArray entityWith(const char *keys)
{
    return quoted("{'entities': [{'name': 'E', " + QByteArray(keys) + "}]}");
}

/// A document with one variable that holds \a keys.
QByteArray variableWith(const char *keys)
{
    return quoted("{'entities': [{'name': 'E', 'variables': [{'name': 'V', " + QByteArray(keys) + "}]}]}");
}

/// A document with one variable of \a type and one label with \a code.
QByteArray codeWith(const char *type, const char *code)
{
    return variableWith(
        QByteArray("'type': '" + QByteArray(type) + "', 'valueLabels': [{'value': " + code + "}]")
            .constData());
}

/// A run with one entity that holds \a keys.
QByteArray runEntityWith(const char *keys)
{
    return quoted("{'type': 'config', 'entities': [{'name': 'E', " + QByteArray(keys) + "}]}");
}

const char *const kEntity = "/entities/0/";
const char *const kVariable = "/entities/0/variables/0/";
const char *const kCode = "/entities/0/variables/0/valueLabels/0/value";

void columns()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("losses");
}

void none(const char *tag, const QByteArray &bytes) { QTest::newRow(tag) << bytes << QStringList(); }

void one(const char *tag, const QByteArray &bytes, const QByteArray &loss)
{
    QTest::newRow(tag) << bytes << QStringList{QString::fromUtf8(loss)};
}

} // namespace

class tst_Losses : public QObject {
    Q_OBJECT

private slots:
    void keysOfAnEntity_data()
    {
        columns();
        none("all that is kept",
            entityWith("'alias': 'a', 'label': 'l', 'weightVar': 'w', 'documentation': 'd',"
                       "'selectable': true, 'virtual': true, 'codeVar': 'c', 'labelVar': 'v',"
                       "'variables': [{'type': 'real'}], 'entities': [{'name': 'F'}]"));
        none("all that means nothing",
            entityWith("'alias': '', 'label': '', 'weightVar': '', 'documentation': '',"
                       "'selectable': false, 'virtual': false, 'codeVar': '',"
                       "'labelVar': '', 'variables': [], 'entities': []"));
        none("null for all",
            entityWith("'alias': null, 'label': null, 'weightVar': null, 'documentation': null,"
                       "'selectable': null, 'virtual': null, 'codeVar': null,"
                       "'labelVar': null, 'variables': null, 'entities': null"));
        none("an empty entity", "{\"entities\": [{}]}");
        none("lone objects",
            quoted("{'entities': {'name': 'A', 'variables': {'type': 'real', 'metadata': {'range':"
                   "{'min': 1, 'max': 2}}, 'valueLabels': {'value': 1}}, 'entities': {'name': 'B'}}}"));
        none("no object in a lone list", quoted("{'entities': {}, 'variables': {}}"));
        none(
            "the other name of the child list", quoted("{'root': [{'name': 'A', 'root': [{'name': 'B'}]}]}"));
        none("keys of the root",
            quoted("{'name': 'R', 'alias': 'a', 'label': 'l', 'weightVar': 'w',"
                   "'documentation': 'd', 'selectable': true, 'virtual': true, 'codeVar': 'c',"
                   "'labelVar': 'v', 'variables': [{'type': 'real', 'documentation': 'x'}]}"));
        one("an unknown key of the root", quoted("{'name': 'R', 'x': 1}"), "/x (R): 1 is not written");
        one("an unknown key", entityWith("'x': {'y': [1, null]}"),
            "/entities/0/x (E): {\"y\":[1,null]} is not written");
        one("an unknown key that holds null", entityWith("'x': null"),
            "/entities/0/x (E): null is not written");
        one("a known key in another case", entityWith("'Label': 'l'"),
            "/entities/0/Label (E): \"l\" is not written");
        one("a key of variables", entityWith("'tag': 1"), "/entities/0/tag (E): 1 is not written");
        one("a number for a text", entityWith("'label': 7"), "/entities/0/label (E): 7 is written as \"7\"");
        one("a flag for a text", entityWith("'alias': true"),
            "/entities/0/alias (E): true is written as \"true\"");
        one("a list for a text", entityWith("'label': ['a']"),
            "/entities/0/label (E): [\"a\"] is not written");
        one("an object for a text", entityWith("'label': {}"), "/entities/0/label (E): {} is not written");
        one("a number for a flag", entityWith("'virtual': 1"),
            "/entities/0/virtual (E): 1 is written as true");
        one("a text for a flag", entityWith("'selectable': 'no'"),
            "/entities/0/selectable (E): \"no\" is written as true");
        one("a text for the variables", entityWith("'variables': 'x'"),
            "/entities/0/variables (E): \"x\" is not written");
        one("a number for the children", entityWith("'entities': 5"),
            "/entities/0/entities (E): 5 is not written");
        one("a text for a child", quoted("{'name': 'R', 'entities': ['x']}"),
            "/entities/0 (R): \"x\" is written as {\"selectable\":false,\"virtual\":false}");
        one("the lone spelling in an array", entityWith("'weigthVar': 'W'"),
            "/entities/0/weigthVar (E): \"W\" is not written");
        none("the lone spelling of an entity alone", quoted("{'entities': {'name': 'E', 'weigthVar': 'W'}}"));
        one("the usual spelling of an entity alone", quoted("{'entities': {'name': 'E', 'weightVar': 'W'}}"),
            "/entities/weightVar (E): \"W\" is not written");
        one("both spellings in an array", entityWith("'weigthVar': 'W', 'weightVar': 'X'"),
            "/entities/0/weigthVar (E): \"W\" is not written");
        one("both spellings of an entity alone",
            quoted("{'entities': {'name': 'E', 'weigthVar': 'W', 'weightVar': 'X'}}"),
            "/entities/weightVar (E): \"X\" is not written");
        one("the lone spelling at the root", quoted("{'weigthVar': 'W'}"),
            "/weigthVar (): \"W\" is not written");
        one("both names of the child list", quoted("{'entities': [{'name': 'A'}], 'root': [{'name': 'B'}]}"),
            "/root (): [{\"name\":\"B\"}] is not written");
        one("inside a lone child", quoted("{'root': {'name': 'A', 'x': 1}}"),
            "/root/x (A): 1 is not written");
        one("the third child", quoted("{'entities': [{}, {}, {'name': 'C', 'x': 1}]}"),
            "/entities/2/x (C): 1 is not written");
        one("a key with signs of the path", entityWith("'a/b~c': 1"),
            "/entities/0/a~1b~0c (E): 1 is not written");
        one("a key without a letter", entityWith("'': 1"), "/entities/0/ (E): 1 is not written");
    }

    void keysOfAnEntity() { compare(); }

    void keysOfAVariable_data()
    {
        columns();
        none("all that is kept",
            variableWith(
                "'type': 'string', 'size': 4, 'fileName': '', 'local': false, 'alias': 'a', 'label': 'l',"
                "'group': 'g', 'documentation': 'd', 'tag': 3, 'notapp': 8, 'missing': -9, 'metadata':"
                "{'range': [{'min': -1.5, 'max': 2}], 'field': 'f', 'start': 3, 'length': 2, 'lookup': true},"
                "'valueLabels': [{'value': 'A', 'label': 'a'}, {}]"));
        none("all that means nothing",
            variableWith(
                "'type': 'real', 'size': 0, 'fileName': '', 'local': false, 'alias': '', 'label': '',"
                "'group': '', 'documentation': '', 'tag': 0, 'notapp': 0, 'missing': 0, 'metadata':"
                "{'range': [], 'field': '', 'start': 0, 'length': 0, 'lookup': false, 'record': ''},"
                "'valueLabels': []"));
        none("null for all but the type",
            variableWith("'size': null, 'fileName': null, 'local': null, 'alias': null, 'label': null,"
                         "'group': null, 'documentation': null, 'tag': null, 'notapp': null, 'missing': null,"
                         "'metadata': null, 'valueLabels': null"));
        none("whole numbers with a point", variableWith("'tag': 3.0, 'missing': 9.90e1, 'notapp': -0.0"));
        none("bounds with a point", variableWith("'metadata': {'range': [{'min': 1.0, 'max': 2.50}]}"));
        none("a range without bounds", variableWith("'metadata': {'range': [{}]}"));
        none("whole bounds of a lone range", variableWith("'metadata': {'range': {'min': 1.0, 'max': 2}}"));
        const auto row = [](const char *tag, const char *keys, const QByteArray &rest) {
            one(tag, variableWith(keys), kVariable + rest);
        };
        row("fileName", "'fileName': 'f'", "fileName (E/V): \"f\" is written as \"\"");
        row("local", "'local': true", "local (E/V): true is written as false");
        row("type in capitals", "'type': 'INTEGER'", "type (E/V): \"INTEGER\" is written as \"integer\"");
        row("type without a letter", "'type': ''", "type (E/V): \"\" is written as \"integer\"");
        row("type null", "'type': null", "type (E/V): null is written as \"integer\"");
        none("a type with blanks", variableWith("'type': ' real '"));
        row("size of a number", "'type': 'real', 'size': 4", "size (E/V): 4 is not written");
        row("size 0 of a text", "'type': 'string', 'size': 0", "size (E/V): 0 is written as 1");
        row("size as text", "'type': 'string', 'size': '4'", "size (E/V): \"4\" is written as 4");
        row("tag with a fraction", "'tag': 2.5", "tag (E/V): 2.5 is written as 3");
        row("tag as text", "'tag': '7'", "tag (E/V): \"7\" is written as 7");
        row("tag that is no number", "'tag': 'x'", "tag (E/V): \"x\" is not written");
        row("missing that is no number", "'missing': 'x'", "missing (E/V): \"x\" is written as 0");
        row("notapp true", "'notapp': true", "notapp (E/V): true is written as 1");
        row("checked", "'checked': true", "checked (E/V): true is not written");
        row("decimals", "'decimals': 2", "decimals (E/V): 2 is not written");
        row("record", "'metadata': {'record': 'r'}", "metadata/record (E/V): \"r\" is not written");
        row("unknown key of the layout", "'metadata': {'x': 1}", "metadata/x (E/V): 1 is not written");
        row("start below 1", "'metadata': {'start': -1}", "metadata/start (E/V): -1 is not written");
        row("length as text", "'metadata': {'length': '3'}", "metadata/length (E/V): \"3\" is written as 3");
        row("lookup as number", "'metadata': {'lookup': 1}", "metadata/lookup (E/V): 1 is written as true");
        row("field as number", "'metadata': {'field': 1}", "metadata/field (E/V): 1 is written as \"1\"");
        row("a number for the layout", "'metadata': 5", "metadata (E/V): 5 is written as {}");
        row("a number for the ranges", "'metadata': {'range': 5}", "metadata/range (E/V): 5 is not written");
        row("a number for a range", "'metadata': {'range': [5]}",
            "metadata/range/0 (E/V): 5 is written as {\"max\":0,\"min\":0}");
        row("fraction of a lone range", "'metadata': {'range': {'min': 1.5, 'max': 9}}",
            "metadata/range/min (E/V): 1.5 is written as 2");
        row("bound as text", "'metadata': {'range': [{'min': '1'}]}",
            "metadata/range/0/min (E/V): \"1\" is written as 1");
        row("bound beyond a double", "'metadata': {'range': [{}, {'max': 9007199254740993}]}",
            "metadata/range/1/max (E/V): 9007199254740993 is written as 9007199254740992");
        row("unknown key of a range", "'metadata': {'range': [{'step': 1}]}",
            "metadata/range/0/step (E/V): 1 is not written");
        row("a text for the labels", "'valueLabels': 'x'", "valueLabels (E/V): \"x\" is not written");
        row("a text for a label", "'valueLabels': ['x']", "valueLabels/0 (E/V): \"x\" is written as {}");
        row("unknown key of a label", "'valueLabels': [{'code': 1}]",
            "valueLabels/0/code (E/V): 1 is not written");
        row("unknown key of a lone label", "'valueLabels': {'code': 1}",
            "valueLabels/code (E/V): 1 is not written");
        row("number for a label's text", "'valueLabels': [{'label': 5}]",
            "valueLabels/0/label (E/V): 5 is written as \"5\"");
        row("a choice", "'choice': {'field': 'f'}", "choice (E/V): {\"field\":\"f\"} is not written");
        one("a number for a variable", entityWith("'variables': [5]"),
            "/entities/0/variables/0 (E): 5 is written as "
            "{\"fileName\":\"\",\"local\":false,\"metadata\":{},\"missing\":0,\"nota\xe2\x80\xa6");
    }

    void keysOfAVariable() { compare(); }

    void codesOfLabels_data()
    {
        columns();
        const auto kept = [](const char *type, const char *code) {
            QTest::addRow("%s under %s is kept", code, type) << codeWith(type, code) << QStringList();
        };
        const auto lost = [](const char *type, const char *code, const char *sentence) {
            QTest::addRow("%s under %s is not", code, type)
                << codeWith(type, code)
                << QStringList{QLatin1String(kCode) + QLatin1String(" (E/V): ")
                       + QString::fromUtf8(quoted(sentence))};
        };
        for (const char *code : {"7", "'7'", "'007'", "-5", "'-05'", "0", "'0'", "'000'", "''", "null", "2.0",
                 "2147483647", "-2147483648", "'0000000000000000007'"})
            kept("integer", code);
        lost("integer", "'A'", "'A' is written as 0");
        lost("integer", "'1A'", "'1A' is written as 0");
        lost("integer", "'1.5'", "'1.5' is written as 0");
        lost("integer", "2.5", "2.5 is written as 0");
        lost("integer", "' '", "' ' is written as 0");
        lost("integer", "'0x10'", "'0x10' is written as 0");
        lost("integer", "'1e2'", "'1e2' is written as 0");
        lost("integer", "2147483648", "2147483648 is written as 0");
        lost("integer", "'99999999999'", "'99999999999' is written as 0");
        lost("integer", "true", "true is written as 0");
        lost("integer", "[1]", "[1] is not written");
        lost("integer", "{}", "{} is not written");
        kept(" integer ", "'007'");
        lost(" integer ", "'A'", "'A' is written as 0");
        for (const char *code : {"2.5", "'2.5'", "'2.50'", "'002'", "1e300", "'1e3'", "-0.1", "'-.5'", "''"})
            kept("real", code);
        lost("real", "'A'", "'A' is written as 0");
        lost("real", "'1,5'", "'1,5' is written as 0");
        lost("real", "'nan'", "'nan' is not written");
        lost("real", "'123456789.12345678901'", "'123456789.12345678901' is written as 123456789.12345679");
        for (const char *type : {"string", "date"}) {
            for (const char *code : {"7", "'7'", "'007'", "'A'", "2.5", "''"})
                kept(type, code);
            lost(type, "true", "true is written as 'true'");
        }
    }

    void codesOfLabels() { compare(); }

    void keysOfARun_data()
    {
        columns();
        none("all that is kept",
            quoted(
                "{'type': 'config', 'database': {'name': 'n', 'folder': 'f', 'sourceFile': 's'}, 'options':"
                "{'createNotAppMissingInRange': true, 'createNoRanges': true}, 'entities': [{'name': 'E',"
                "'recType': 'r', 'allVariables': true, 'variables': ['V', 'W', ''], 'createCompound': true,"
                "'createSDC': true, 'checkSequence': false}]}"));
        none("all that means nothing",
            quoted("{'type': 'config', 'database': {'name': '', 'folder': '', 'sourceFile': '', 'filter': '',"
                   "'selectFilter': '', 'fileFilter': '', 'XXXproject': ''}, 'options':"
                   "{'createNotAppMissingInRange': false, 'createNoRanges': false}, 'entities': [{'name': '',"
                   "'recType': '', 'allVariables': false, 'variables': [], 'createCompound': false,"
                   "'createSDC': false, 'checkSequence': true, 'delete': false, 'selectable': false}]}"));
        none("only the type", quoted("{'type': 'config'}"));
        const auto database = [](const char *tag, const char *keys, const QByteArray &rest) {
            one(tag, quoted("{'type': 'config', 'database': {" + QByteArray(keys) + "}}"),
                "/database/" + rest);
        };
        database("filter", "'filter': 'F'", "filter (): \"F\" is not written");
        database("selectFilter", "'selectFilter': 'F'", "selectFilter (): \"F\" is not written");
        database("fileFilter", "'fileFilter': 'F'", "fileFilter (): \"F\" is not written");
        database("XXXproject", "'XXXproject': 'P'", "XXXproject (): \"P\" is not written");
        database("project", "'project': 'P'", "project (): \"P\" is not written");
        database("number for a text", "'name': 7", "name (): 7 is written as \"7\"");
        const auto entity = [](const char *tag, const char *keys, const QByteArray &rest) {
            one(tag, runEntityWith(keys), kEntity + rest);
        };
        entity("delete", "'delete': true", "delete (): true is not written");
        entity("selectable", "'selectable': true", "selectable (): true is not written");
        entity("checkSequence as text", "'checkSequence': 'false'",
            "checkSequence (): \"false\" is written as false");
        entity("createSDC as number", "'createSDC': 1", "createSDC (): 1 is written as true");
        entity(
            "name of a variable as number", "'variables': ['A', 7]", "variables/1 (): 7 is written as \"7\"");
        entity("one variable without its list", "'variables': 'A'", "variables (): \"A\" is not written");
        entity("unknown key", "'label': 'l'", "label (): \"l\" is not written");
        one("unknown key at the top", quoted("{'type': 'config', 'name': 'n'}"),
            "/name (): \"n\" is not written");
        one("unknown key of the options", quoted("{'type': 'config', 'options': {'x': true}}"),
            "/options/x (): true is not written");
        one("text for an option", quoted("{'type': 'config', 'options': {'createNoRanges': 'no'}}"),
            "/options/createNoRanges (): \"no\" is written as true");
        one("text for the database", quoted("{'type': 'config', 'database': 'x'}"),
            "/database (): \"x\" is written as {}");
        one("an entity alone", quoted("{'type': 'config', 'entities': {'name': 'A'}}"),
            "/entities/name (): \"A\" is not written");
        one("a text for an entity", quoted("{'type': 'config', 'entities': ['A']}"),
            "/entities/0 (): \"A\" is written as {\"allVariables\":false,\"createCompound\":false}");
    }

    void keysOfARun() { compare(); }

    void whatParsingAloneDrops_data()
    {
        columns();
        const QByteArray twice = "the key is given more than once and only one of its values is kept";
        one("a key given twice", quoted("{'name': 'A', 'name': 'B'}"), "/name (): " + twice);
        one("a key given twice, once by an escape", quoted("{'name': 'A', 'nam\\u0065': 'B'}"),
            "/name (): " + twice);
        one("a key given twice in a list", quoted("{'entities': [{}, {'label': 'A', 'label': 'A'}]}"),
            "/entities/1/label (): " + twice);
        QTest::newRow("a key given three times")
            << quoted("{'name': 'A', 'name': 'B', 'name': 'C'}")
            << QStringList{QLatin1String("/name (): " + twice), QLatin1String("/name (): " + twice)};
        none("the same key in two objects",
            quoted("{'name': 'A', 'entities': [{'name': 'A'}, {'name': 'A'}]}"));
        one("a number beyond 64 bits",
            variableWith("'metadata': {'range': [{'min': 0, 'max': 123456789012345678901}]}"),
            "/entities/0/variables/0/metadata/range/0/max (): 123456789012345678901 is written as "
            "1.2345678901234568e+20");
        one("the largest of 64 bits without a sign",
            variableWith("'metadata': {'range': [{'max': 18446744073709551615}]}"),
            "/entities/0/variables/0/metadata/range/0/max (): 18446744073709551615 is written as "
            "1.8446744073709552e+19");
        none("a number beyond 64 bits that a double holds",
            variableWith("'metadata': {'range': [{'max': 9223372036854775808}]}"));
        one("more digits behind the point than a double holds",
            variableWith("'metadata': {'range': [{'min': 0.12345678901234567891}]}"),
            "/entities/0/variables/0/metadata/range/0/min (): 0.12345678901234567891 is written as "
            "0.12345678901234568");
        none("a double's own digits",
            variableWith("'metadata': {'range': [{'min': 0.30000000000000004, 'max': 1e-5}]}"));
        none("zeros behind the last digit",
            variableWith("'metadata': {'range': [{'min': 0.50000000000000000000}]}"));
        const QByteArray irregular =
            "what stands here is not JSON as other programs read it; it was read as well as could be";
        one("an escape that JSON does not know", quoted("{'name': 'a\\qb'}"), "/name (): " + irregular);
        one("half a pair", quoted("{'label': '\\ud800'}"), "/label (): " + irregular);
        one("a line end in a text", quoted("{'name': 'a\nb'}"), "/name (): " + irregular);
        one("a number that ends in a point", variableWith("'tag': 1."),
            "/entities/0/variables/0/tag (): " + irregular);
        none("a byte order mark", "\xef\xbb\xbf{\"name\": \"A\"}");
        none("all escapes", quoted("{'name': '\\\\ \\/ \\b\\f\\n\\r\\t \\u00e9 \\ud83d\\ude00'}"));
    }

    void whatParsingAloneDrops() { compare(); }

    void aLongValueIsCut()
    {
        QCOMPARE(lossesIn("{\"x\": \"" + QByteArray(58, 'a') + "\"}"),
            QStringList{QStringLiteral("/x (): \"%1\" is not written").arg(QString(58, QLatin1Char('a')))});
        QCOMPARE(lossesIn("{\"x\": \"" + QByteArray(59, 'a') + "\"}"),
            QStringList{QStringLiteral("/x (): \"%1%2 is not written")
                            .arg(QString(59, QLatin1Char('a')), QChar(0x2026))});
    }

    void aLongValueIsNotCutInsideACharacter()
    {
        const QStringList losses =
            lossesIn("{\"x\": \"" + QByteArray("\xf0\x9f\x98\x80").repeated(40) + "\"}");
        QCOMPARE(losses.size(), 1);
        const QString text = losses.first();
        for (int i = 0; i < text.size(); ++i) {
            if (text.at(i).isHighSurrogate())
                QVERIFY(text.at(i + 1).isLowSurrogate());
        }
    }

    void lossesStandInDocumentOrder()
    {
        QCOMPARE(
            lossesIn(quoted("{'z': 1, 'b': 2, 'entities': [{'name': 'A', 'x': 3, 'variables': [{'name': 'V',"
                            "'type': 'real', 'x': 4}]}, {'name': 'B', 'x': 5}]}")),
            (QStringList{QStringLiteral("/b (): 2 is not written"),
                QStringLiteral("/entities/0/variables/0/x (A/V): 4 is not written"),
                QStringLiteral("/entities/0/x (A): 3 is not written"),
                QStringLiteral("/entities/1/x (B): 5 is not written"),
                QStringLiteral("/z (): 1 is not written")}));
    }

    void aTypeThatIsMissingWhereCodesStandIsTold()
    {
        // The codes are texts now and become numbers by the type that is written.
        const QStringList losses = lossesIn(variableWith("'valueLabels': [{'value': 'A'}]"));
        QCOMPARE(losses.size(), 1);
        QVERIFY2(losses.first().startsWith(QLatin1String(kVariable)), qPrintable(losses.first()));
    }

    void theSamplesLoseNothing_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("dictionary") << QByteArray("census.json");
        QTest::newRow("run") << QByteArray("run.json");
    }

    void theSamplesLoseNothing()
    {
        QFETCH(QByteArray, name);
        QFile file(QLatin1String(TESSEL_SAMPLES "/") + QLatin1String(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(lossesIn(file.readAll()), QStringList());
    }

    void aStepOfAPointerEscapesWhatPartsSteps()
    {
        QCOMPARE(pointerStep(QStringLiteral("a")), QStringLiteral("a"));
        QCOMPARE(pointerStep(QStringLiteral("a/b")), QStringLiteral("a~1b"));
        QCOMPARE(pointerStep(QStringLiteral("~1/~0")), QStringLiteral("~01~1~00"));
        QCOMPARE(pointerStep(QString()), QString());
    }

private:
    static void compare()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, losses);
        QCOMPARE(lossesIn(bytes).join(QLatin1Char('\n')), losses.join(QLatin1Char('\n')));
    }
};

QTEST_APPLESS_MAIN(tst_Losses)
#include "tst_Losses.moc"
