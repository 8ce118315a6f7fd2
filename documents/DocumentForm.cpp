#include "documents/DocumentForm.h"

#include "business/ProcessDictionaryBusiness.h"
#include "business/RunCreationBusiness.h"
#include "documents/QuickWriter.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace tessel::documents {
namespace {

/// The items that \a value holds: an array's elements, or one object standing alone.
QVector<QJsonObject> itemsOf(const QJsonValue &value)
{
    QVector<QJsonObject> items;
    const QJsonArray array = value.toArray();
    for (const QJsonValue &item : array)
        items.append(item.toObject());
    if (value.isObject() && !value.toObject().isEmpty())
        items.append(value.toObject());
    return items;
}

/// The child list of \a entity: "entities" hides "root".
QJsonValue childListOf(const QJsonObject &entity)
{
    const auto entities = entity.constFind(QLatin1String("entities"));
    return entities != entity.constEnd() ? *entities : entity.value(QLatin1String("root"));
}

/// Gives each variable below \a entity the documentation that \a object holds for it. The tree was read from
/// that object, so both have the same items in the same order.
void carryDocumentation(const QJsonObject &object, const TDmEntity &entity)
{
    const QVector<QJsonObject> variables = itemsOf(object.value(QLatin1String("variables")));
    for (int i = 0; i < qMin(variables.size(), entity.getVariables()->size()); ++i) {
        entity.getVariables()->at(i)->setDocumentation(
            variables.at(i).value(QLatin1String("documentation")).toVariant().toString());
    }
    const QVector<QJsonObject> children = itemsOf(childListOf(object));
    for (int i = 0; i < qMin(children.size(), entity.getChildren()->size()); ++i)
        carryDocumentation(children.at(i), *entity.getChildren()->at(i));
}

/// False when writing \a root gives what is written otherwise once it is read again: codes without a type,
/// which is then "integer", and real codes for which JSON has no number.
bool isSettled(const TDmEntity &root)
{
    const auto isSettledVariable = [](const TDmVariable *variable) {
        const QList<ValueLabelElement *> &labels = *variable->getValueLabelElementList();
        const QString type = variable->getVarType().trimmed().toLower();
        return (!variable->getVarType().isEmpty() || labels.isEmpty())
            && (type != QLatin1String("real")
                || std::all_of(labels.cbegin(), labels.cend(), [](const ValueLabelElement *element) {
                       return std::isfinite(element->getValue().toDouble());
                   }));
    };
    const QList<TDmVariable *> &variables = *root.getVariables();
    const QList<TDmEntity *> &children = *root.getChildren();
    return std::all_of(variables.cbegin(), variables.cend(), isSettledVariable)
        && std::all_of(
            children.cbegin(), children.cend(), [](const TDmEntity *child) { return isSettled(*child); });
}

} // namespace

DocumentKind kindOf(const QJsonObject &document)
{
    return document.value(QLatin1String("type")) == QLatin1String("config") ? DocumentKind::Run
                                                                            : DocumentKind::Dictionary;
}

std::unique_ptr<TDmEntity> readDictionary(const QJsonObject &document)
{
    // The reader skips the keys of the object that it is given: so the document itself is handed over as an
    // entity.
    const QVariantMap wrapped{{QStringLiteral("entities"), QVariantList{document.toVariantMap()}}};
    const std::unique_ptr<QList<TDmEntity *>> list(
        ProcessDictionaryBusiness().recorrerNodosJsonYCargaEstructuraEntidades(wrapped, -1));
    if (!list || list->isEmpty())
        return std::make_unique<TDmEntity>();
    std::unique_ptr<TDmEntity> root(list->first());
    carryDocumentation(document, *root);
    return root;
}

std::unique_ptr<Config> readRun(const QJsonObject &document)
{
    return std::unique_ptr<Config>(
        RunCreationBusiness().recorrerNodosEntitiesJsonYCargaEstructuraConfig(document.toVariantMap()));
}

QByteArray dictionaryText(TDmEntity &root)
{
    const std::optional<QByteArray> text = textQuickly(root);
    return text ? *text : dictionaryTextOfLibrary(root);
}

QByteArray dictionaryTextOfLibrary(TDmEntity &root)
{
    QJsonObject out;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(&root, &out);
    return QJsonDocument(out).toJson(QJsonDocument::Indented);
}

QByteArray settledText(TDmEntity &root)
{
    const QByteArray text = dictionaryText(root);
    return isSettled(root) ? text : dictionaryText(*readDictionary(QJsonDocument::fromJson(text).object()));
}

QByteArray runText(Config &config)
{
    return RunCreationBusiness().exportConfigToJson(&config).toJson(QJsonDocument::Indented);
}

QByteArray normalForm(const QJsonObject &document)
{
    if (kindOf(document) == DocumentKind::Run)
        return runText(*readRun(document));
    return settledText(*readDictionary(document));
}

} // namespace tessel::documents
