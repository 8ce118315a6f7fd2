#pragma once

#include <QList>
#include <QString>
#include <QVector>

class Range;
class TDmEntity;
class TDmVariable;
class ValueLabelElement;

namespace tessel::editor {

/// Everything that one entity holds at a moment; its children and variables by pointer.
struct EntityState {
    static EntityState of(const TDmEntity &entity);
    void applyTo(TDmEntity &entity) const;
    bool operator==(const EntityState &other) const;
    bool operator!=(const EntityState &other) const { return !(*this == other); }

    QString name;
    QString alias;
    QString label;
    QString refCode;
    QString refLabel;
    QString weightVariable;
    QString documentation;
    bool isVirtual = false;
    bool isSelectable = false;
    bool isDeletion = false;
    int level = 0;
    QList<TDmEntity *> children;
    QList<TDmVariable *> variables;
};

/// One value label: the object, and what it holds.
struct LabelState {
    bool operator==(const LabelState &other) const;

    ValueLabelElement *object = nullptr;
    QString value;
    QString label;
};

/// One range: the object, and what it holds.
struct RangeState {
    bool operator==(const RangeState &other) const;

    Range *object = nullptr;
    double min = 0.0;
    double max = 0.0;
};

/// Everything that one variable holds at a moment, its layout included.
struct VariableState {
    static VariableState of(const TDmVariable &variable);
    void applyTo(TDmVariable &variable) const;
    bool operator==(const VariableState &other) const;
    bool operator!=(const VariableState &other) const { return !(*this == other); }

    QVector<QString> texts;
    QVector<int> numbers;
    bool isLocal = false;
    bool isLookup = false;
    QVector<LabelState> labels;
    QVector<RangeState> ranges;
};

} // namespace tessel::editor
