#pragma once

#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QLocale>
#include <QString>
#include <QStringList>

namespace tessel::test {

/// All that \a variable holds, as "key=value key='text'": name, alias and field first, then what names and
/// types it, then its codes and its place in the record, its ranges and its labels. What is empty, zero or
/// false is left out.
inline QString textOf(const TDmVariable &variable)
{
    QStringList parts;
    const auto text = [&parts](const char *key, const QString &value) {
        if (!value.isEmpty())
            parts += QStringLiteral("%1='%2'").arg(QLatin1String(key), value);
    };
    const auto number = [&parts](const char *key, int value) {
        if (value != 0)
            parts += QStringLiteral("%1=%2").arg(QLatin1String(key)).arg(value);
    };
    const auto digits = [](double bound) {
        return QString::number(bound, 'g', QLocale::FloatingPointShortest);
    };
    const MetadataVariables &layout = *variable.getMetadataVariables();

    text("name", variable.getName());
    text("alias", variable.getAlias());
    text("field", layout.getField());
    text("label", variable.getLabel());
    text("group", variable.getGroup());
    text("type", variable.getVarType());
    text("documentation", variable.getDocumentation());
    text("file", variable.getFileName());
    text("record", layout.getRecord());
    number("lookup", layout.getLookup());
    number("local", variable.getLocal());
    number("checked", variable.getChecked());
    number("level", variable.getLevel());
    number("tag", variable.getTag());
    number("missing", variable.getMissing());
    number("notappl", variable.getNotappl());
    number("position", variable.getFieldRelativePosition());
    number("fieldSize", variable.getFieldSize());
    number("size", variable.getSize());
    number("decimals", variable.getDecimals());
    number("start", layout.getStart());
    number("length", layout.getLength());
    for (const Range *range : qAsConst(*layout.getRange()))
        parts += "range=" + digits(range->getRangeMin()) + ".." + digits(range->getRangeMax());
    for (const ValueLabelElement *label : qAsConst(*variable.getValueLabelElementList()))
        parts += QStringLiteral("(%1: %2)").arg(label->getValue(), label->getLabel());
    return parts.join(QLatin1Char(' '));
}

} // namespace tessel::test
