#include "business/ProcessDictionaryBusiness.h"

#include "business/Constants.h"
#include "business/detail/DictionaryReader.h"
#include "business/detail/DictionaryWriter.h"
#include "business/detail/Guarded.h"

using namespace tessel::detail;

namespace {

/// A new list, filled by \a fill; null when there was no memory for the list itself.
template<typename Item, typename Fill>
QList<Item *> *newList(Fill &&fill)
{
    QList<Item *> *list = nullptr;
    guarded([&] {
        list = new QList<Item *>;
        fill(*list);
    });
    return list;
}

} // namespace

ProcessDictionaryBusiness::ProcessDictionaryBusiness() = default;

QList<TDmEntity *> *ProcessDictionaryBusiness::recorrerNodosJsonYCargaEstructuraEntidades(
    QMap<QString, QVariant> node, int level)
{
    return newList<TDmEntity>([&](QList<TDmEntity *> &list) { readEntities(node, level, list); });
}

QList<TDmVariable *> *ProcessDictionaryBusiness::recorrerVariablesNodosJson(QVariant value)
{
    return newList<TDmVariable>([&](QList<TDmVariable *> &list) { readVariables(value, list); });
}

void ProcessDictionaryBusiness::loadItemFromVariables(
    QString key, TDmVariable *target, QMap<QString, QVariant> object)
{
    readVariableKey(key, object.value(key), *target);
}

QList<Range *> *ProcessDictionaryBusiness::itemVariableSubitemRange(QVariant value)
{
    return newList<Range>([&](QList<Range *> &list) { readRanges(value, list); });
}

QList<ValueLabelElement *> *ProcessDictionaryBusiness::recorrerValoresPorVariablesNodosJson(QVariant value)
{
    return newList<ValueLabelElement>(
        [&](QList<ValueLabelElement *> &list) { readValueLabels(value, list); });
}

QList<ValueLabelElement *> *ProcessDictionaryBusiness::recorrerVectorValoresPorVariablesNodosJson(
    QVariant value)
{
    return newList<ValueLabelElement>(
        [&](QList<ValueLabelElement *> &list) { readValueLabelVectors(value, list); });
}

void ProcessDictionaryBusiness::loadItemVariableSubitemVarWipChoice(
    VarWipChoice *target, QMap<QString, QVariant> object, QString key)
{
    readChoice(object, key, *target);
}

void ProcessDictionaryBusiness::getStructuraTreeRootToJson(TDmEntity *entity, QJsonObject *out)
{
    writeEntity(*entity, *out);
}
