#include "editor/ObjectState.h"

#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <cmath>

namespace tessel::editor {
namespace {

/// One field of a variable, as a pair of functions.
template<typename Value, typename Argument = Value>
struct Field {
    Value (*get)(const TDmVariable &);
    void (*set)(TDmVariable &, Argument);
};

MetadataVariables &layoutOf(const TDmVariable &variable) { return *variable.getMetadataVariables(); }

using V = TDmVariable;
const Field<QString, const QString &> kTexts[] = {
    {[](const V &v) { return v.getName(); }, [](V &v, const QString &t) { v.setName(t); }},
    {[](const V &v) { return v.getLabel(); }, [](V &v, const QString &t) { v.setLabel(t); }},
    {[](const V &v) { return v.getAlias(); }, [](V &v, const QString &t) { v.setAlias(t); }},
    {[](const V &v) { return v.getGroup(); }, [](V &v, const QString &t) { v.setGroup(t); }},
    {[](const V &v) { return v.getVarType(); }, [](V &v, const QString &t) { v.setVarType(t); }},
    {[](const V &v) { return v.getDocumentation(); }, [](V &v, const QString &t) { v.setDocumentation(t); }},
    {[](const V &v) { return v.getFileName(); }, [](V &v, const QString &t) { v.setFileName(t); }},
    {[](const V &v) { return layoutOf(v).getRecord(); },
        [](V &v, const QString &t) { layoutOf(v).setRecord(t); }},
    {[](const V &v) { return layoutOf(v).getField(); },
        [](V &v, const QString &t) { layoutOf(v).setField(t); }},
};

const Field<int> kNumbers[] = {
    {[](const V &v) { return v.getSize(); }, [](V &v, int n) { v.setSize(n); }},
    {[](const V &v) { return v.getDecimals(); }, [](V &v, int n) { v.setDecimals(n); }},
    {[](const V &v) { return v.getFieldRelativePosition(); },
        [](V &v, int n) { v.setFieldRelativePosition(n); }},
    {[](const V &v) { return v.getFieldSize(); }, [](V &v, int n) { v.setFieldSize(n); }},
    {[](const V &v) { return v.getMissing(); }, [](V &v, int n) { v.setMissing(n); }},
    {[](const V &v) { return v.getNotappl(); }, [](V &v, int n) { v.setNotappl(n); }},
    {[](const V &v) { return v.getTag(); }, [](V &v, int n) { v.setTag(n); }},
    {[](const V &v) { return v.getChecked(); }, [](V &v, int n) { v.setChecked(n); }},
    {[](const V &v) { return v.getLevel(); }, [](V &v, int n) { v.setLevel(n); }},
    {[](const V &v) { return layoutOf(v).getStart(); }, [](V &v, int n) { layoutOf(v).setStart(n); }},
    {[](const V &v) { return layoutOf(v).getLength(); }, [](V &v, int n) { layoutOf(v).setLength(n); }},
};

bool isSameNumber(double left, double right)
{
    return left == right || (std::isnan(left) && std::isnan(right));
}

} // namespace

EntityState EntityState::of(const TDmEntity &entity)
{
    EntityState state;
    state.name = entity.getName();
    state.alias = entity.getAlias();
    state.label = entity.getLabel();
    state.refCode = entity.getRefCode();
    state.refLabel = entity.getRefLabel();
    state.weightVariable = entity.getWeightVariable();
    state.documentation = entity.getDocumentationEntity();
    state.isVirtual = entity.getIsvirtual();
    state.isSelectable = entity.getSelectable();
    state.isDeletion = entity.getCheckDelete();
    state.level = entity.getLevel();
    state.children = *entity.getChildren();
    state.variables = *entity.getVariables();
    return state;
}

void EntityState::applyTo(TDmEntity &entity) const
{
    entity.setName(name);
    entity.setAlias(alias);
    entity.setLabel(label);
    entity.setRefCode(refCode);
    entity.setRefLabel(refLabel);
    entity.setWeightVariable(weightVariable);
    entity.setDocumentationEntity(documentation);
    entity.setIsvirtual(isVirtual);
    entity.setSelectable(isSelectable);
    entity.setCheckDelete(isDeletion);
    entity.setLevel(level);
    *entity.getChildren() = children;
    *entity.getVariables() = variables;
}

bool EntityState::operator==(const EntityState &other) const
{
    return name == other.name && alias == other.alias && label == other.label && refCode == other.refCode
        && refLabel == other.refLabel && weightVariable == other.weightVariable
        && documentation == other.documentation && isVirtual == other.isVirtual
        && isSelectable == other.isSelectable && isDeletion == other.isDeletion && level == other.level
        && children == other.children && variables == other.variables;
}

bool LabelState::operator==(const LabelState &other) const
{
    return object == other.object && value == other.value && label == other.label;
}

bool RangeState::operator==(const RangeState &other) const
{
    return object == other.object && isSameNumber(min, other.min) && isSameNumber(max, other.max);
}

VariableState VariableState::of(const TDmVariable &variable)
{
    VariableState state;
    for (const auto &field : kTexts)
        state.texts.append(field.get(variable));
    for (const auto &field : kNumbers)
        state.numbers.append(field.get(variable));
    state.isLocal = variable.getLocal();
    state.isLookup = layoutOf(variable).getLookup();
    for (ValueLabelElement *element : qAsConst(*variable.getValueLabelElementList()))
        state.labels.append({element, element->getValue(), element->getLabel()});
    for (Range *range : qAsConst(*layoutOf(variable).getRange()))
        state.ranges.append({range, range->getRangeMin(), range->getRangeMax()});
    return state;
}

void VariableState::applyTo(TDmVariable &variable) const
{
    for (int i = 0; i < texts.size(); ++i)
        kTexts[i].set(variable, texts.at(i));
    for (int i = 0; i < numbers.size(); ++i)
        kNumbers[i].set(variable, numbers.at(i));
    variable.setLocal(isLocal);
    layoutOf(variable).setLookup(isLookup);
    variable.getValueLabelElementList()->clear();
    for (const LabelState &label : labels) {
        label.object->setValue(label.value);
        label.object->setLabel(label.label);
        variable.getValueLabelElementList()->append(label.object);
    }
    layoutOf(variable).getRange()->clear();
    for (const RangeState &range : ranges) {
        range.object->setRangeMin(range.min);
        range.object->setRangeMax(range.max);
        layoutOf(variable).getRange()->append(range.object);
    }
}

bool VariableState::operator==(const VariableState &other) const
{
    return texts == other.texts && numbers == other.numbers && isLocal == other.isLocal
        && isLookup == other.isLookup && labels == other.labels && ranges == other.ranges;
}

} // namespace tessel::editor
