#pragma once

#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QList>
#include <QString>

#include <cstddef>

/// Which keys a variable has in a document, said once for all receivers: anything with the functions of
/// JsonText.
namespace tessel::detail {

/// How the codes of a variable's value labels are written.
enum class CodeKind { Text, Integer, Real };

/// \a type is the variable's own, lower-cased and trimmed: not the "integer" that is written for an empty
/// one.
inline CodeKind codeKindOf(const QString &type)
{
    if (type == QLatin1String("integer"))
        return CodeKind::Integer;
    if (type == QLatin1String("real"))
        return CodeKind::Real;
    return CodeKind::Text;
}

template<typename Out, std::size_t Length>
void writeTextIfAny(Out &out, const char (&key)[Length], const QString &text)
{
    if (!text.isEmpty())
        out.text(key, text);
}

template<typename Out, std::size_t Length>
void writeIfPositive(Out &out, const char (&key)[Length], int number)
{
    if (number > 0)
        out.integer(key, number);
}

/// What QString::toInt() gives; codes are mostly a few digits, for which it takes many times as long.
inline int integerOf(const QString &code)
{
    constexpr int safeDigits = 9;
    if (code.size() > safeDigits)
        return code.toInt();
    int number = 0;
    for (const QChar c : code) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return code.toInt();
        number = number * 10 + (c.unicode() - u'0');
    }
    return number;
}

template<typename Out>
void writeValueLabel(Out &out, const ValueLabelElement &element, CodeKind kind)
{
    writeTextIfAny(out, "label", element.getLabel());
    const QString code = element.getValue();
    if (code.isEmpty())
        return;
    switch (kind) {
    case CodeKind::Text:
        out.text("value", code);
        break;
    case CodeKind::Integer:
        out.integer("value", integerOf(code));
        break;
    case CodeKind::Real:
        out.real("value", code.toDouble());
        break;
    }
}

/// Start and length are the variable's: the layout's own are read and never written, nor is its record.
template<typename Out>
void writeLayout(Out &out, const MetadataVariables &layout, const TDmVariable &variable)
{
    writeTextIfAny(out, "field", layout.getField());
    writeIfPositive(out, "length", variable.getFieldSize());
    if (layout.getLookup())
        out.boolean("lookup", true);
    if (const QList<Range *> *ranges = layout.getRange()) {
        out.objects("range", *ranges, [](Out &item, const Range &range) {
            item.real("max", range.getRangeMax());
            item.real("min", range.getRangeMin());
        });
    }
    writeIfPositive(out, "start", variable.getFieldRelativePosition());
}

/// Keys are written sorted, as a JSON object keeps them. The caller opens and closes \a out.
template<typename Out>
void writeVariable(Out &out, const TDmVariable &variable)
{
    const QString type = variable.getVarType().toLower();
    const QString kind = type.trimmed();
    writeTextIfAny(out, "alias", variable.getAlias());
    writeTextIfAny(out, "documentation", variable.getDocumentation());
    // The variable's own file name and local flag are read and never written: meant so.
    out.text("fileName", QString());
    writeTextIfAny(out, "group", variable.getGroup());
    writeTextIfAny(out, "label", variable.getLabel());
    out.boolean("local", false);
    if (const MetadataVariables *layout = variable.getMetadataVariables()) {
        out.object("metadata", [&](Out &inner) { writeLayout(inner, *layout, variable); });
    }
    out.integer("missing", variable.getMissing());
    writeTextIfAny(out, "name", variable.getName());
    out.integer("notapp", variable.getNotappl());
    if (kind == QLatin1String("string"))
        out.integer("size", variable.getSize() != 0 ? variable.getSize() : 1);
    if (variable.getTag() != 0)
        out.integer("tag", variable.getTag());
    // Lower-cased but not trimmed: meant so.
    out.text("type", type.isEmpty() ? QStringLiteral("integer") : type);
    const CodeKind codes = codeKindOf(kind);
    out.objects("valueLabels", *variable.getValueLabelElementList(),
        [codes](Out &item, const ValueLabelElement &element) { writeValueLabel(item, element, codes); });
}

} // namespace tessel::detail
