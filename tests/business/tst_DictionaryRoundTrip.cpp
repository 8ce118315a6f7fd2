#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "tests/business/DictionaryGenerators.h"
#include "tests/business/DictionaryTree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <rapidcheck.h>

#include <cmath>

using namespace tessel::test;

namespace {

void same(const QString &actual, const QString &expected)
{
    if (actual != expected)
        RC_FAIL(("\n  actual   " + actual + "\n  expected " + expected).toStdString());
}

QByteArray textOf(const QJsonObject &object) { return QJsonDocument(object).toJson(QJsonDocument::Compact); }

Entities importOf(const QByteArray &document)
{
    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(document, &error);
    RC_ASSERT(error.error == QJsonParseError::NoError);
    return entitiesOf(parsed.object().toVariantMap());
}

/// What is read from \a document, written again.
QByteArray rewritten(const QByteArray &document)
{
    TDmEntity root;
    adopt(root, importOf(document));
    return textOf(exportOf(root));
}

// The export once more, each key inserted into a JSON object where and when it is due.

void insertIfAny(QJsonObject &out, const char *key, const QString &text)
{
    if (!text.isEmpty())
        out.insert(QLatin1String(key), text);
}

QJsonObject plainLayout(const TDmVariable &variable)
{
    const MetadataVariables &layout = *variable.getMetadataVariables();
    QJsonObject out;
    QJsonArray ranges;
    for (const Range *range : qAsConst(*layout.getRange())) {
        if (range)
            ranges.append(QJsonObject{{"min", range->getRangeMin()}, {"max", range->getRangeMax()}});
    }
    if (!ranges.isEmpty())
        out.insert("range", ranges);
    insertIfAny(out, "field", layout.getField());
    if (variable.getFieldRelativePosition() > 0)
        out.insert("start", variable.getFieldRelativePosition());
    if (variable.getFieldSize() > 0)
        out.insert("length", variable.getFieldSize());
    if (layout.getLookup())
        out.insert("lookup", true);
    return out;
}

QJsonObject plainLabel(const TDmVariable &variable, const ValueLabelElement &element)
{
    QJsonObject out;
    insertIfAny(out, "label", element.getLabel());
    const QString code = element.getValue();
    const QString type = variable.getVarType().toLower().trimmed();
    if (code.isEmpty())
        return out;
    if (type == "integer")
        out.insert("value", code.toInt());
    else if (type == "real")
        out.insert("value", code.toDouble());
    else
        out.insert("value", code);
    return out;
}

QJsonObject plainVariable(const TDmVariable &variable)
{
    QJsonObject out{{"fileName", QString()}, {"local", false}, {"type", "integer"}};
    insertIfAny(out, "name", variable.getName());
    insertIfAny(out, "alias", variable.getAlias());
    insertIfAny(out, "label", variable.getLabel());
    insertIfAny(out, "group", variable.getGroup());
    insertIfAny(out, "type", variable.getVarType().toLower());
    if (variable.getVarType().toLower().trimmed() == "string")
        out.insert("size", variable.getSize() == 0 ? 1 : variable.getSize());
    insertIfAny(out, "documentation", variable.getDocumentation());
    if (variable.getTag() != 0)
        out.insert("tag", variable.getTag());
    out.insert("notapp", variable.getNotappl());
    out.insert("missing", variable.getMissing());
    if (variable.getMetadataVariables())
        out.insert("metadata", plainLayout(variable));
    QJsonArray labels;
    for (const ValueLabelElement *element : qAsConst(*variable.getValueLabelElementList())) {
        if (element)
            labels.append(plainLabel(variable, *element));
    }
    if (!labels.isEmpty())
        out.insert("valueLabels", labels);
    return out;
}

QJsonObject plainEntity(const TDmEntity &entity)
{
    QJsonObject out{{"selectable", entity.getSelectable()}, {"virtual", entity.getIsvirtual()}};
    insertIfAny(out, "name", entity.getName());
    insertIfAny(out, "alias", entity.getAlias());
    insertIfAny(out, "label", entity.getLabel());
    insertIfAny(out, "weightVar", entity.getWeightVariable());
    insertIfAny(out, "documentation", entity.getDocumentationEntity());
    insertIfAny(out, "codeVar", entity.getRefCode());
    insertIfAny(out, "labelVar", entity.getRefLabel());
    QJsonArray variables;
    for (const TDmVariable *variable : qAsConst(*entity.getVariables())) {
        if (variable)
            variables.append(plainVariable(*variable));
    }
    if (!variables.isEmpty())
        out.insert("variables", variables);
    QJsonArray children;
    for (const TDmEntity *child : qAsConst(*entity.getChildren())) {
        if (child)
            children.append(plainEntity(*child));
    }
    if (!children.isEmpty())
        out.insert("entities", children);
    return out;
}

/// A JSON value as text that tells apart what document text does not: numbers that are not finite, the sign
/// of zero, whole numbers and others.
QString exactly(const QJsonValue &value)
{
    QString text;
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QString &key : object.keys())
            text += key + ':' + exactly(object.value(key)) + ' ';
        return '{' + text + '}';
    }
    if (value.isArray()) {
        for (const QJsonValue &item : value.toArray())
            text += exactly(item) + ' ';
        return '[' + text + ']';
    }
    if (value.isDouble()) {
        const QVariant variant = value.toVariant();
        return QLatin1String(variant.typeName()) + ' ' + variant.toString();
    }
    if (value.isString()) {
        // As numbers: what is no character must not get lost on the way to a terminal.
        for (const QChar c : value.toString())
            text += QString::number(c.unicode(), 16) + '.';
        return '"' + text + '"';
    }
    return value.isBool() ? QString(value.toBool() ? "true" : "false") : QString("null");
}

// What is left of a tree when it has been written and read.

QString carriedCode(const QString &type, const QString &code)
{
    const QString kind = type.toLower().trimmed();
    if (code.isEmpty() || (kind != "integer" && kind != "real"))
        return code;
    if (kind == "integer")
        return QString::number(code.toInt());
    // How many digits a number keeps on its way through a document's text is up to Qt; it has no text at all
    // when it is not finite.
    const QByteArray text = QJsonDocument(QJsonArray{code.toDouble()}).toJson();
    return QJsonDocument::fromJson(text).array().at(0).toVariant().toString();
}

double carriedBound(double bound) { return std::isfinite(bound) && bound != 0.0 ? bound : 0.0; }

TDmVariable *carriedVariable(const TDmVariable &variable)
{
    auto *carried = new TDmVariable;
    const QString type = variable.getVarType();
    carried->setName(variable.getName());
    carried->setAlias(variable.getAlias());
    carried->setLabel(variable.getLabel());
    carried->setGroup(variable.getGroup());
    carried->setVarType(type.isEmpty() ? "integer" : type.toLower());
    carried->setTag(variable.getTag());
    carried->setNotappl(variable.getNotappl());
    carried->setMissing(variable.getMissing());
    if (type.toLower().trimmed() == "string")
        carried->setSize(variable.getSize() == 0 ? 1 : variable.getSize());
    if (const MetadataVariables *layout = variable.getMetadataVariables()) {
        carried->setFieldRelativePosition(qMax(0, variable.getFieldRelativePosition()));
        carried->setFieldSize(qMax(0, variable.getFieldSize()));
        MetadataVariables &carriedLayout = *carried->getMetadataVariables();
        carriedLayout.setField(layout->getField());
        carriedLayout.setLookup(layout->getLookup());
        carriedLayout.setStart(carried->getFieldRelativePosition());
        carriedLayout.setLength(carried->getFieldSize());
        for (const Range *range : qAsConst(*layout->getRange())) {
            if (!range)
                continue;
            auto *carriedRange = new Range;
            carriedRange->setRangeMin(carriedBound(range->getRangeMin()));
            carriedRange->setRangeMax(carriedBound(range->getRangeMax()));
            carriedLayout.addItemRange(carriedRange);
        }
    }
    for (const ValueLabelElement *element : qAsConst(*variable.getValueLabelElementList())) {
        if (!element)
            continue;
        auto *carriedElement = new ValueLabelElement;
        carriedElement->setValue(carriedCode(type, element->getValue()));
        carriedElement->setLabel(element->getLabel());
        carried->addValueLabelElement(carriedElement);
    }
    return carried;
}

void carryChildren(const TDmEntity &from, int level, QList<TDmEntity *> &into)
{
    for (const TDmEntity *entity : qAsConst(*from.getChildren())) {
        if (!entity)
            continue;
        auto *carried = new TDmEntity;
        into.append(carried);
        carried->setName(entity->getName());
        carried->setAlias(entity->getAlias());
        carried->setLabel(entity->getLabel());
        carried->setRefCode(entity->getRefCode());
        carried->setRefLabel(entity->getRefLabel());
        carried->setWeightVariable(entity->getWeightVariable());
        carried->setDocumentationEntity(entity->getDocumentationEntity());
        carried->setIsvirtual(entity->getIsvirtual());
        carried->setSelectable(entity->getSelectable());
        carried->setLevel(level);
        for (const TDmVariable *variable : qAsConst(*entity->getVariables())) {
            if (variable)
                carried->addVariables(carriedVariable(*variable));
        }
        carryChildren(*entity, level + 1, *carried->getChildren());
    }
}

} // namespace

class tst_DictionaryRoundTrip : public QObject {
    Q_OBJECT

private slots:
    void thirdExportOfAnyDocumentEqualsTheSecond();
    void anyTreeIsReadBackAsFarAsTheFormatCarriesIt();
    void anyTreeIsWrittenAsByPlainInsertion();
    void writingAnyTreeLeavesItUnchanged();
};

void tst_DictionaryRoundTrip::thirdExportOfAnyDocumentEqualsTheSecond()
{
    QVERIFY(rc::check([] {
        const QByteArray second = rewritten(rewritten(anyDocument(5)));
        same(QString::fromUtf8(rewritten(second)), QString::fromUtf8(second));
    }));
}

void tst_DictionaryRoundTrip::anyTreeIsReadBackAsFarAsTheFormatCarriesIt()
{
    QVERIFY(rc::check([] {
        const std::unique_ptr<TDmEntity> tree = anyTree(3);
        TDmEntity expected;
        carryChildren(*tree, 1, *expected.getChildren());
        same(describe(importOf(textOf(exportOf(*tree))).get()), describe(expected.getChildren()));
    }));
}

void tst_DictionaryRoundTrip::anyTreeIsWrittenAsByPlainInsertion()
{
    QVERIFY(rc::check([] {
        const std::unique_ptr<TDmEntity> tree = anyTree(2);
        const QJsonObject actual = exportOf(*tree);
        const QJsonObject expected = plainEntity(*tree);
        same(exactly(actual), exactly(expected));
        same(QString::fromUtf8(textOf(actual)), QString::fromUtf8(textOf(expected)));
    }));
}

void tst_DictionaryRoundTrip::writingAnyTreeLeavesItUnchanged()
{
    QVERIFY(rc::check([] {
        const std::unique_ptr<TDmEntity> tree = anyTree(2);
        const QString before = describe(*tree);
        exportOf(*tree);
        same(describe(*tree), before);
    }));
}

QTEST_APPLESS_MAIN(tst_DictionaryRoundTrip)
#include "tst_DictionaryRoundTrip.moc"
