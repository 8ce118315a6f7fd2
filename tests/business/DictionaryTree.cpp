#include "tests/business/DictionaryTree.h"

#include "business/ProcessDictionaryBusiness.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "model/VarWipChoice.h"
#include "tests/support/Json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QStringList>

namespace tessel::test {
namespace {

/// The fields of one object, those in their initial state left out.
class Fields {
public:
    Fields &text(const char *name, const QString &value)
    {
        if (!value.isEmpty())
            parts << QLatin1String(name) + QLatin1String("='") + value + QLatin1Char('\'');
        return *this;
    }

    Fields &number(const char *name, int value)
    {
        if (value != 0)
            parts << QLatin1String(name) + QLatin1Char('=') + QString::number(value);
        return *this;
    }

    Fields &flag(const char *name, bool value)
    {
        if (value)
            parts << QLatin1String(name);
        return *this;
    }

    Fields &object(const char *name, const QString &value)
    {
        if (!value.isEmpty())
            parts << QLatin1String(name) + QLatin1Char('{') + value + QLatin1Char('}');
        return *this;
    }

    template<typename Item>
    Fields &list(const char *name, const QList<Item *> *items)
    {
        if (!items || !items->isEmpty())
            parts << QLatin1String(name) + QLatin1Char('=') + describe(items);
        return *this;
    }

    QString joined() const { return parts.join(QLatin1Char(' ')); }

private:
    QStringList parts;
};

QString shortest(double number) { return QString::number(number, 'g', QLocale::FloatingPointShortest); }

template<typename Item>
QString describeList(const QList<Item *> *list)
{
    if (!list)
        return QStringLiteral("null");
    QStringList items;
    for (const Item *item : *list)
        items << (item ? QLatin1Char('{') + describe(*item) + QLatin1Char('}') : QStringLiteral("null"));
    return QLatin1Char('[') + items.join(QStringLiteral(", ")) + QLatin1Char(']');
}

} // namespace

QString describe(const Range &range)
{
    return shortest(range.getRangeMin()) + QStringLiteral("..") + shortest(range.getRangeMax());
}

QString describe(const ValueLabelElement &element)
{
    return Fields().text("value", element.getValue()).text("label", element.getLabel()).joined();
}

QString describe(const MetadataVariables &layout)
{
    return Fields()
        .text("record", layout.getRecord())
        .text("field", layout.getField())
        .number("start", layout.getStart())
        .number("length", layout.getLength())
        .flag("lookup", layout.getLookup())
        .list("range", layout.getRange())
        .joined();
}

QString describe(const TDmVariable &variable)
{
    const MetadataVariables *layout = variable.getMetadataVariables();
    return Fields()
        .text("name", variable.getName())
        .text("alias", variable.getAlias())
        .text("label", variable.getLabel())
        .text("group", variable.getGroup())
        .text("type", variable.getVarType())
        .text("documentation", variable.getDocumentation())
        .text("fileName", variable.getFileName())
        .flag("local", variable.getLocal())
        .number("size", variable.getSize())
        .number("decimals", variable.getDecimals())
        .number("start", variable.getFieldRelativePosition())
        .number("length", variable.getFieldSize())
        .number("missing", variable.getMissing())
        .number("notapp", variable.getNotappl())
        .number("tag", variable.getTag())
        .number("checked", variable.getChecked())
        .number("level", variable.getLevel())
        .object("metadata", layout ? describe(*layout) : QStringLiteral("null"))
        .list("valueLabels", variable.getValueLabelElementList())
        .joined();
}

QString describe(const TDmEntity &entity)
{
    return Fields()
        .text("name", entity.getName())
        .text("alias", entity.getAlias())
        .text("label", entity.getLabel())
        .text("codeVar", entity.getRefCode())
        .text("labelVar", entity.getRefLabel())
        .text("weightVar", entity.getWeightVariable())
        .text("documentation", entity.getDocumentationEntity())
        .flag("virtual", entity.getIsvirtual())
        .flag("selectable", entity.getSelectable())
        .flag("checkDelete", entity.getCheckDelete())
        .number("level", entity.getLevel())
        .list("variables", entity.getVariables())
        .list("entities", entity.getChildren())
        .joined();
}

QString describe(const VarWipChoice &choice)
{
    return Fields()
        .text("dataProvider", choice.getDataProvider())
        .text("field", choice.getField())
        .text("recType", choice.getRecType())
        .number("start", choice.getStart())
        .joined();
}

QString describe(const QList<Range *> *list) { return describeList(list); }
QString describe(const QList<ValueLabelElement *> *list) { return describeList(list); }
QString describe(const QList<TDmVariable *> *list) { return describeList(list); }
QString describe(const QList<TDmEntity *> *list) { return describeList(list); }

Entities entitiesOf(const QVariantMap &node, int level)
{
    return Entities(ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(node, level));
}

Entities entitiesOf(const char *text, int level) { return entitiesOf(objectOf(text), level); }

void adopt(TDmEntity &root, Entities list)
{
    if (!list)
        return;
    root.getChildren()->append(*list);
    list->clear();
}

TDmEntity &addChild(TDmEntity &parent, const char *name)
{
    auto *child = new TDmEntity;
    child->setName(QString::fromUtf8(name));
    parent.getChildren()->append(child);
    return *child;
}

TDmVariable &addVariable(TDmEntity &entity, const char *name)
{
    auto *variable = new TDmVariable;
    variable->setName(QString::fromUtf8(name));
    entity.addVariables(variable);
    return *variable;
}

void addLabel(TDmVariable &variable, const QString &value, const QString &label)
{
    auto *element = new ValueLabelElement;
    element->setValue(value);
    element->setLabel(label);
    variable.addValueLabelElement(element);
}

void addRange(TDmVariable &variable, double min, double max)
{
    auto *range = new Range;
    range->setRangeMin(min);
    range->setRangeMax(max);
    variable.getMetadataVariables()->addItemRange(range);
}

QJsonObject exportOf(TDmEntity &entity)
{
    QJsonObject out;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&entity, &out);
    return out;
}

QJsonObject firstVariableOf(const QJsonObject &entity)
{
    return entity.value("variables").toArray().at(0).toObject();
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact).replace('"', '\'');
}

} // namespace tessel::test
