#pragma once

#include "editor/DictionaryDocument.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QStringList>

namespace tessel::test {

/// A document of a few entities and variables, nothing of it on the undo stack: HOUSE {ROOMS, KIND} with
/// PERSON {SEX, AGE, TIES, WORK} and DEATH {} below it. SEX has labels and a range, AGE two ranges.
class SmallCensus {
public:
    SmallCensus()
        : house(addEntity(document.root(), "HOUSE"))
        , person(addEntity(house, "PERSON"))
        , death(addEntity(house, "DEATH"))
        , rooms(addVariable(house, "ROOMS"))
        , kind(addVariable(house, "KIND"))
        , sex(addVariable(person, "SEX"))
        , age(addVariable(person, "AGE"))
        , ties(addVariable(person, "TIES"))
        , work(addVariable(person, "WORK"))
    {
        addLabel(sex, "1", "Male");
        addLabel(sex, "2", "Female");
        addRange(sex, 1, 2);
        addRange(age, 0, 14);
        addRange(age, 15, 120);
    }

    static TDmEntity &addEntity(TDmEntity &parent, const char *name)
    {
        auto *entity = new TDmEntity;
        entity->setName(QString::fromUtf8(name));
        entity->setLevel(parent.getLevel() + 1);
        parent.getChildren()->append(entity);
        return *entity;
    }

    static TDmVariable &addVariable(TDmEntity &entity, const char *name)
    {
        auto *variable = new TDmVariable;
        variable->setName(QString::fromUtf8(name));
        variable->setVarType(QStringLiteral("INTEGER"));
        variable->setLevel(1);
        entity.addVariables(variable);
        return *variable;
    }

    static ValueLabelElement &addLabel(TDmVariable &variable, const char *code, const char *text)
    {
        auto *label = new ValueLabelElement;
        label->setValue(QString::fromUtf8(code));
        label->setLabel(QString::fromUtf8(text));
        variable.addValueLabelElement(label);
        return *label;
    }

    static Range &addRange(TDmVariable &variable, double min, double max)
    {
        auto *range = new Range;
        range->setRangeMin(min);
        range->setRangeMax(max);
        variable.getMetadataVariables()->addItemRange(range);
        return *range;
    }

    editor::DictionaryDocument document;
    TDmEntity &house;
    TDmEntity &person;
    TDmEntity &death;
    TDmVariable &rooms;
    TDmVariable &kind;
    TDmVariable &sex;
    TDmVariable &age;
    TDmVariable &ties;
    TDmVariable &work;

private:
    Q_DISABLE_COPY_MOVE(SmallCensus)
};

/// "A B C": the names of \a list.
template<typename Object>
QString namesOf(const QList<Object *> &list)
{
    QStringList names;
    for (const Object *object : list)
        names.append(object->getName());
    return names.join(QLatin1Char(' '));
}

/// "1=Yes|2=No": the labels of \a variable.
inline QString labelsOf(const TDmVariable &variable)
{
    QStringList labels;
    for (const ValueLabelElement *label : qAsConst(*variable.getValueLabelElementList()))
        labels.append(label->getValue() + QLatin1Char('=') + label->getLabel());
    return labels.join(QLatin1Char('|'));
}

/// "1..2|5..9": the ranges of \a variable.
inline QString rangesOf(const TDmVariable &variable)
{
    QStringList ranges;
    for (const Range *range : qAsConst(*variable.getMetadataVariables()->getRange()))
        ranges.append(QStringLiteral("%1..%2").arg(range->getRangeMin()).arg(range->getRangeMax()));
    return ranges.join(QLatin1Char('|'));
}

} // namespace tessel::test
