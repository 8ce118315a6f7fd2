#pragma once

#include "business/detail/VariantAccess.h"

#include <QList>

class Range;
class TDmEntity;
class TDmVariable;
class ValueLabelElement;
class VarWipChoice;

/// The reading half of ProcessDictionaryBusiness. Each function appends to the list that it is given what its
/// value holds; each is an operation of its own in that class and so has its own handler.
namespace tessel::detail {

void readEntities(const Object &node, int level, QList<TDmEntity *> &into);
void readVariables(const QVariant &value, QList<TDmVariable *> &into);
void readVariableKey(const QString &key, const QVariant &value, TDmVariable &variable);
void readRanges(const QVariant &value, QList<Range *> &into);
void readValueLabels(const QVariant &value, QList<ValueLabelElement *> &into);
void readValueLabelVectors(const QVariant &value, QList<ValueLabelElement *> &into);
void readChoice(const Object &object, const QString &key, VarWipChoice &choice);

} // namespace tessel::detail
