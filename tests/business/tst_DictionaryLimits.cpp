#include "business/ProcessDictionaryBusiness.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/business/DictionaryTree.h"
#include "tests/support/Json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace tessel::test;

namespace {

/// A document of \a depth entities, one in the array of the other.
QByteArray nestedArrays(int depth)
{
    return QByteArray("{\"entities\":[").repeated(depth) + "{}" + QByteArray("]}").repeated(depth);
}

/// The same with objects standing alone; "x" keeps the innermost from being empty.
QByteArray nestedObjects(int depth)
{
    return QByteArray("{\"root\":").repeated(depth) + "{\"x\":1}" + QByteArray("}").repeated(depth);
}

QJsonParseError::ParseError errorOf(const QByteArray &document)
{
    QJsonParseError error;
    QJsonDocument::fromJson(document, &error);
    return error.error;
}

QVariantMap parsed(const QByteArray &document)
{
    return QJsonDocument::fromJson(document).object().toVariantMap();
}

/// How many entities stand one below the other, each an only child and one level deeper than its parent;
/// -1 when one is not.
int chainLength(const QList<TDmEntity *> *list)
{
    int length = 0;
    while (!list->isEmpty()) {
        ++length;
        if (list->size() != 1 || list->first()->getLevel() != length)
            return -1;
        list = list->first()->getChildren();
    }
    return length;
}

} // namespace

/// Deep, wide and long documents.
class tst_DictionaryLimits : public QObject {
    Q_OBJECT

private slots:
    void entitiesInArraysAreReadAsDeepAsAParserGoes();
    void loneEntitiesAreReadAsDeepAsAParserGoes();
    void deepTreesAreWrittenAndReadBack();
    void treesDeeperThanAnyParsedDocumentAreWritten();
    void bothChildListsAtEachOfManyLevelsAreReadInTime();
    void longListsAreReadAndWritten();
    void textsOfAMillionCharactersAreReadAndWritten_data();
    void textsOfAMillionCharactersAreReadAndWritten();
};

void tst_DictionaryLimits::entitiesInArraysAreReadAsDeepAsAParserGoes()
{
    // The parser allows 1024 levels: the document and two for each entity.
    constexpr int deepest = 511;
    QCOMPARE(errorOf(nestedArrays(deepest)), QJsonParseError::NoError);
    QCOMPARE(errorOf(nestedArrays(deepest + 1)), QJsonParseError::DeepNesting);
    QCOMPARE(chainLength(entitiesOf(parsed(nestedArrays(deepest))).get()), deepest);
}

void tst_DictionaryLimits::loneEntitiesAreReadAsDeepAsAParserGoes()
{
    constexpr int deepest = 1023;
    QCOMPARE(errorOf(nestedObjects(deepest)), QJsonParseError::NoError);
    QCOMPARE(errorOf(nestedObjects(deepest + 1)), QJsonParseError::DeepNesting);
    QCOMPARE(chainLength(entitiesOf(parsed(nestedObjects(deepest))).get()), deepest);
}

void tst_DictionaryLimits::deepTreesAreWrittenAndReadBack()
{
    TDmEntity root;
    adopt(root, entitiesOf(parsed(nestedArrays(511))));
    const QByteArray document = documentOf(root).replace('\'', '"');
    QCOMPARE(errorOf(document), QJsonParseError::NoError);
    QCOMPARE(chainLength(entitiesOf(parsed(document)).get()), 511);
}

void tst_DictionaryLimits::treesDeeperThanAnyParsedDocumentAreWritten()
{
    TDmEntity root;
    adopt(root, entitiesOf(parsed(nestedObjects(1023))));
    const QByteArray document = documentOf(root);
    QCOMPARE(document.count("'virtual':false"), 1024);
    QCOMPARE(document.count("'entities':["), 1023);
    QCOMPARE(errorOf(QByteArray(document).replace('\'', '"')), QJsonParseError::DeepNesting);
}

void tst_DictionaryLimits::bothChildListsAtEachOfManyLevelsAreReadInTime()
{
    constexpr int depth = 400;
    const QByteArray document = QByteArray("{\"entities\":[").repeated(depth) + "{}"
        + QByteArray("],\"root\":[{\"name\":\"R\"}]}").repeated(depth);
    const Entities entities = entitiesOf(parsed(document));
    QCOMPARE(chainLength(entities.get()), depth);
}

void tst_DictionaryLimits::longListsAreReadAndWritten()
{
    constexpr int count = 20000;
    QVariantList variables;
    QVariantList labels;
    for (int i = 0; i < count; ++i) {
        variables << QVariantMap{{"name", QString("V%1").arg(i)}};
        labels << QVariantMap{{"value", i}};
    }
    variables << QVariantMap{{"type", "integer"}, {"valueLabels", labels}};
    TDmEntity root;
    adopt(root, entitiesOf(QVariantMap{{"root", QVariantList{QVariantMap{{"variables", variables}}}}}));
    const TDmEntity &entity = *root.getChildren()->first();
    QCOMPARE(entity.getVariables()->size(), count + 1);
    QCOMPARE(entity.getVariables()->at(count - 1)->getName(), QString("V19999"));
    QCOMPARE(entity.getVariables()->last()->getValueLabelElementList()->last()->getValue(), QString("19999"));

    QJsonObject out;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&root, &out);
    const QJsonArray written = out.value("entities").toArray().at(0).toObject().value("variables").toArray();
    QCOMPARE(written.size(), count + 1);
    QCOMPARE(written.at(count - 1).toObject().value("name"), QJsonValue("V19999"));
    const QJsonArray writtenLabels = written.at(count).toObject().value("valueLabels").toArray();
    QCOMPARE(writtenLabels.size(), count);
    QCOMPARE(writtenLabels.at(count - 1).toObject().value("value"), QJsonValue(19999));
}

void tst_DictionaryLimits::textsOfAMillionCharactersAreReadAndWritten_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QString("a").repeated(1000000);
    QTest::newRow("to be escaped") << QString("\"\\\n").repeated(350000);
    QTest::newRow("two bytes each") << QString::fromUtf8("ñ").repeated(1000000);
    QTest::newRow("three bytes each") << QString::fromUtf8("€").repeated(1000000);
    QTest::newRow("pairs") << QString::fromUtf8("😀").repeated(500000);
    QTest::newRow("halves") << QString(1000000, QChar(0xdc00));
}

void tst_DictionaryLimits::textsOfAMillionCharactersAreReadAndWritten()
{
    QFETCH(QString, text);
    const QVariantMap label{{"value", text}, {"label", text}};
    const QVariantMap variable{{"name", text}, {"type", "string"}, {"valueLabels", label}};
    TDmEntity root;
    adopt(root, entitiesOf(QVariantMap{{"entities", QVariantMap{{"name", text}, {"variables", variable}}}}));
    QCOMPARE(root.getChildren()->first()->getName(), text);

    QJsonObject out;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&root, &out);
    const QJsonObject entity = out.value("entities").toArray().at(0).toObject();
    QCOMPARE(entity.value("name").toString(), text);
    const QJsonObject written = entity.value("variables").toArray().at(0).toObject();
    QCOMPARE(written.value("name").toString(), text);
    const QJsonObject writtenLabel = written.value("valueLabels").toArray().at(0).toObject();
    QCOMPARE(writtenLabel.value("value").toString(), text);
    QCOMPARE(writtenLabel.value("label").toString(), text);
}

QTEST_APPLESS_MAIN(tst_DictionaryLimits)
#include "tst_DictionaryLimits.moc"
