#include "tests/editor/DeepText.h"

#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QStringList>
#include <QVector>

namespace tessel::test {
namespace {

QString shown(const void *object) { return QStringLiteral("@%1").arg(quintptr(object), 0, 16); }
QString shown(const QString &text) { return QLatin1Char('"') + text + QLatin1Char('"'); }
QString shown(int number) { return QString::number(number); }
QString shown(bool on) { return on ? QStringLiteral("yes") : QStringLiteral("no"); }
QString shown(double number) { return QString::number(number, 'g', 17); }

template<typename Item>
QString shown(const QList<Item *> &list)
{
    QStringList items;
    for (const Item *item : list)
        items.append(shown(static_cast<const void *>(item)));
    return QLatin1Char('[') + items.join(QLatin1Char(' ')) + QLatin1Char(']');
}

QString shown(const QList<ValueLabelElement *> &list)
{
    QStringList items;
    for (const ValueLabelElement *item : list)
        items.append(
            shown(static_cast<const void *>(item)) + shown(item->getValue()) + shown(item->getLabel()));
    return QLatin1Char('[') + items.join(QLatin1Char(' ')) + QLatin1Char(']');
}

QString shown(const QList<Range *> &list)
{
    QStringList items;
    for (const Range *item : list)
        items.append(shown(static_cast<const void *>(item)) + QLatin1Char(' ') + shown(item->getRangeMin())
            + QStringLiteral("..") + shown(item->getRangeMax()));
    return QLatin1Char('[') + items.join(QLatin1Char(' ')) + QLatin1Char(']');
}

/// One line of named fields.
class Line {
public:
    Line(const char *kind, const void *object) { parts << QLatin1String(kind) << shown(object); }

    template<typename Value>
    Line &operator()(const char *name, const Value &value)
    {
        parts << QLatin1String(name) + QLatin1Char('=') + shown(value);
        return *this;
    }

    QString text() const { return parts.join(QLatin1Char(' ')); }

private:
    QStringList parts;
};

template<typename Visit>
void forEachEntity(const TDmEntity &root, Visit &&visit)
{
    QVector<const TDmEntity *> pending{&root};
    while (!pending.isEmpty()) {
        const TDmEntity *entity = pending.takeLast();
        visit(*entity);
        const QList<TDmEntity *> &children = *entity->getChildren();
        for (auto i = children.crbegin(); i != children.crend(); ++i)
            pending.append(*i);
    }
}

} // namespace

QString deepText(const TDmEntity &entity)
{
    Line line("entity", &entity);
    line("name", entity.getName())("alias", entity.getAlias())("label", entity.getLabel());
    line("refCode", entity.getRefCode())("refLabel", entity.getRefLabel());
    line("weight", entity.getWeightVariable())("documentation", entity.getDocumentationEntity());
    line("virtual", entity.getIsvirtual())("selectable", entity.getSelectable());
    line("delete", entity.getCheckDelete())("level", entity.getLevel());
    line("children", *entity.getChildren())("variables", *entity.getVariables());
    return line.text();
}

QString deepText(const TDmVariable &variable)
{
    const MetadataVariables &layout = *variable.getMetadataVariables();
    Line line("variable", &variable);
    line("name", variable.getName())("label", variable.getLabel())("alias", variable.getAlias());
    line("group", variable.getGroup())("type", variable.getVarType());
    line("documentation", variable.getDocumentation())("file", variable.getFileName());
    line("local", variable.getLocal())("size", variable.getSize())("decimals", variable.getDecimals());
    line("position", variable.getFieldRelativePosition())("fieldSize", variable.getFieldSize());
    line("missing", variable.getMissing())("notappl", variable.getNotappl())("tag", variable.getTag());
    line("checked", variable.getChecked())("level", variable.getLevel());
    line("labels", *variable.getValueLabelElementList());
    line("layout", static_cast<const void *>(&layout))("record", layout.getRecord());
    line("field", layout.getField())("start", layout.getStart())("length", layout.getLength());
    line("lookup", layout.getLookup())("ranges", *layout.getRange());
    return line.text();
}

QHash<const void *, QString> deepLines(const TDmEntity &root)
{
    QHash<const void *, QString> lines;
    forEachEntity(root, [&lines](const TDmEntity &entity) {
        lines.insert(&entity, deepText(entity));
        for (const TDmVariable *variable : qAsConst(*entity.getVariables()))
            lines.insert(variable, deepText(*variable));
    });
    return lines;
}

QString deepTree(const TDmEntity &root)
{
    QStringList lines;
    forEachEntity(root, [&lines](const TDmEntity &entity) {
        lines.append(deepText(entity));
        for (const TDmVariable *variable : qAsConst(*entity.getVariables()))
            lines.append(deepText(*variable));
    });
    return lines.join(QLatin1Char('\n'));
}

} // namespace tessel::test
