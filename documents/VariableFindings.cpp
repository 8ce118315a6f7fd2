#include "documents/VariableFindings.h"

#include "business/models/detail/VariableType.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"
#include "util/Validate.h"

#include <utility>

namespace tessel::documents {
namespace {

using detail::VariableType;

/// Whether \a code would be saved as the number that it says under \a type; an empty code is not saved at
/// all.
bool isSavedAsItIs(const QString &code, VariableType type)
{
    bool isNumber = true;
    if (code.isEmpty())
        return true;
    if (type == VariableType::Integer)
        code.toInt(&isNumber);
    else if (type == VariableType::Real)
        code.toDouble(&isNumber);
    return isNumber;
}

} // namespace

VariableFindings::VariableFindings(QSet<QString> names, QVector<Finding> &list)
    : entityNames(std::move(names))
    , findings(list)
{
}

void VariableFindings::judge(const TDmEntity &entity, const QString &path, const QString &place)
{
    judgeReferences(entity, path, place);
    QSet<QString> known;
    const QList<TDmVariable *> &variables = *entity.getVariables();
    for (int i = 0; i < variables.size(); ++i) {
        const TDmVariable &variable = *variables.at(i);
        variablePath = path + QStringLiteral("/variables/%1").arg(i);
        variablePlace = place + QLatin1Char('/') + variable.getName();
        judgeName(variable.getName(), known);
        if (!Validate().validateStringC(variable.getLabel()))
            add("variable-label-unprintable", QString(),
                tr("a variable's label holds no control character, double quote or backslash"));
        // Without a type a variable is one of whole numbers.
        if (!variable.getVarType().isEmpty()
            && detail::variableTypeOf(variable.getVarType()) == VariableType::Other)
            add("variable-type-unknown", QString(),
                tr("%1 is no type; a variable is a string, integer, real or bool")
                    .arg(variable.getVarType()));
        judgeLabels(variable);
        judgeRanges(variable);
    }
}

void VariableFindings::judgeReferences(const TDmEntity &entity, const QString &path, const QString &place)
{
    QSet<QString> names;
    for (const TDmVariable *variable : qAsConst(*entity.getVariables()))
        names.insert(variable->getName().trimmed());
    const auto judgeOne = [&](const char *code, const QString &name, const QString &message) {
        if (!name.isEmpty() && !names.contains(name.trimmed()))
            findings.append({QLatin1String(code), path, place, message.arg(name)});
    };
    judgeOne("entity-code-unknown", entity.getRefCode(),
        tr("%1, which is to hold the entity's code, is none of its variables; choose one or add it"));
    judgeOne("entity-label-unknown", entity.getRefLabel(),
        tr("%1, which is to hold the entity's label, is none of its variables; choose one or add it"));
    judgeOne("entity-weight-unknown", entity.getWeightVariable(),
        tr("%1, which is to hold the entity's weight, is none of its variables; choose one or add it"));
}

void VariableFindings::judgeName(const QString &name, QSet<QString> &known)
{
    if (!Validate().validateStringC(name))
        add("variable-name-unprintable", QString(),
            tr("a variable's name holds no control character, double quote or backslash"));
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty()) {
        add("variable-name-empty", QString(), tr("the variable has no name; give it one"));
        return;
    }
    if (known.contains(trimmed))
        add("variable-name-duplicate", QString(),
            tr("the name is already that of a variable before it; rename one of them"));
    known.insert(trimmed);
    if (entityNames.contains(trimmed))
        add("variable-name-is-entity", QString(),
            tr("the name is also that of an entity; rename one of them"));
}

void VariableFindings::judgeLabels(const TDmVariable &variable)
{
    const VariableType type = detail::variableTypeOf(variable.getVarType());
    const QList<ValueLabelElement *> &labels = *variable.getValueLabelElementList();
    for (int i = 0; i < labels.size(); ++i) {
        const QString code = labels.at(i)->getValue();
        if (!isSavedAsItIs(code, type))
            add("label-code-not-number", QStringLiteral("/valueLabels/%1").arg(i),
                tr("the code %1 is no such number as the variable's type wants and would be saved as 0; "
                   "change "
                   "the code or the type")
                    .arg(code));
    }
}

void VariableFindings::judgeRanges(const TDmVariable &variable)
{
    const QList<Range *> &ranges = *variable.getMetadataVariables()->getRange();
    for (int i = 0; i < ranges.size(); ++i) {
        if (ranges.at(i)->getRangeMin() > ranges.at(i)->getRangeMax())
            add("range-reversed", QStringLiteral("/metadata/range/%1").arg(i),
                tr("the minimum %1 is above the maximum %2; exchange them")
                    .arg(ranges.at(i)->getRangeMin())
                    .arg(ranges.at(i)->getRangeMax()));
    }
}

/// \a path goes on from the variable's own.
void VariableFindings::add(const char *code, const QString &path, const QString &message)
{
    findings.append({QLatin1String(code), variablePath + path, variablePlace, message});
}

} // namespace tessel::documents
