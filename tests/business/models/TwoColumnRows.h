#pragma once

#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QAbstractItemModel>
#include <QStringList>

#include <memory>

// Value labels and ranges written as texts: "<code>|<label>", "<minimum>|<maximum>", "null" for a row without
// an object.
namespace tessel::test {

template<typename Item>
QList<Item *> &listOf(TDmVariable &variable);

template<>
inline QList<ValueLabelElement *> &listOf(TDmVariable &variable)
{
    return *variable.getValueLabelElementList();
}

template<>
inline QList<Range *> &listOf(TDmVariable &variable)
{
    return *variable.getMetadataVariables()->getRange();
}

inline void fillFrom(ValueLabelElement &element, const QString &first, const QString &second)
{
    element.setValue(first);
    element.setLabel(second);
}

inline void fillFrom(Range &range, const QString &first, const QString &second)
{
    range.setRangeMin(first.toDouble());
    range.setRangeMax(second.toDouble());
}

inline QString written(const ValueLabelElement *element)
{
    return element ? element->getValue() + '|' + element->getLabel() : QStringLiteral("null");
}

inline QString written(const Range *range)
{
    return range ? QStringLiteral("%1|%2").arg(
               QVariant(range->getRangeMin()).toString(), QVariant(range->getRangeMax()).toString())
                 : QStringLiteral("null");
}

template<typename Item>
void append(TDmVariable &variable, const QString &row)
{
    Item *item = nullptr;
    if (row != "null") {
        item = new Item;
        fillFrom(*item, row.section('|', 0, 0), row.section('|', 1));
    }
    listOf<Item>(variable).append(item);
}

template<typename Item>
std::unique_ptr<TDmVariable> variableWith(const QStringList &rows)
{
    auto variable = std::make_unique<TDmVariable>();
    for (const QString &row : rows)
        append<Item>(*variable, row);
    return variable;
}

/// The objects of \a variable, whatever a model shows of them.
template<typename Item>
QStringList stored(TDmVariable &variable)
{
    QStringList texts;
    for (const Item *item : qAsConst(listOf<Item>(variable)))
        texts += written(item);
    return texts;
}

/// What \a model shows in columns 0 and 1 of each row.
inline QStringList shownRows(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts += model.index(row, 0).data().toString() + '|' + model.index(row, 1).data().toString();
    return texts;
}

} // namespace tessel::test
