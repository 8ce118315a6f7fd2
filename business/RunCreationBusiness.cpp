#include "business/RunCreationBusiness.h"

#include "business/Constants.h"
#include "business/detail/JsonInsert.h"
#include "business/detail/KeyTable.h"
#include "model/Config.h"
#include "model/ConfigDb.h"
#include "model/ConfigEntities.h"
#include "model/ConfigOptions.h"

#include <memory>

using namespace tessel::detail;

namespace {

const Key<ConfigDb> kDatabaseKeys[] = {
    {QLatin1String("name"), [](ConfigDb &d, const QVariant &v) { d.setName(textOf(v)); }},
    {QLatin1String("filter"), [](ConfigDb &d, const QVariant &v) { d.setFilter(textOf(v)); }},
    {QLatin1String("selectFilter"), [](ConfigDb &d, const QVariant &v) { d.setSelectFilter(textOf(v)); }},
    {QLatin1String("fileFilter"), [](ConfigDb &d, const QVariant &v) { d.setFileFilter(textOf(v)); }},
    {QLatin1String("folder"), [](ConfigDb &d, const QVariant &v) { d.setFolder(textOf(v)); }},
    // Three capital X, and "project" is not known: meant so.
    {QLatin1String("XXXproject"), [](ConfigDb &d, const QVariant &v) { d.setProject(textOf(v)); }},
    {QLatin1String("sourceFile"), [](ConfigDb &d, const QVariant &v) { d.setSourceFile(textOf(v)); }},
};

const Key<ConfigOptions> kOptionKeys[] = {
    {QLatin1String("createNotAppMissingInRange"),
        [](ConfigOptions &o, const QVariant &v) { o.setCreateNotAppMissingInRange(v.toBool()); }},
    {QLatin1String("createNoRanges"),
        [](ConfigOptions &o, const QVariant &v) { o.setCreateNoRanges(v.toBool()); }},
};

/// Calls \a visit with each name of a "variables" value.
template<typename Visit>
void forEachName(const QVariant &value, Visit &&visit)
{
    withList(value, [&visit](const QVariantList &names) {
        for (const QVariant &name : names)
            visit(textOf(name));
    });
}

const Key<ConfigEntities> kEntityKeys[] = {
    {QLatin1String("name"), [](ConfigEntities &e, const QVariant &v) { e.setName(textOf(v)); }},
    {QLatin1String("recType"), [](ConfigEntities &e, const QVariant &v) { e.setRecType(textOf(v)); }},
    {QLatin1String("delete"), [](ConfigEntities &e, const QVariant &v) { e.setCheckDelete(v.toBool()); }},
    {QLatin1String("selectable"),
        [](ConfigEntities &e, const QVariant &v) { e.setCheckSelectable(v.toBool()); }},
    {QLatin1String("createCompound"),
        [](ConfigEntities &e, const QVariant &v) { e.setCreateCompound(v.toBool()); }},
    {QLatin1String("createSDC"), [](ConfigEntities &e, const QVariant &v) { e.setCreateSDC(v.toBool()); }},
    {QLatin1String("allVariables"),
        [](ConfigEntities &e, const QVariant &v) { e.setAllVariables(v.toBool()); }},
    {QLatin1String("checkSequence"),
        [](ConfigEntities &e, const QVariant &v) { e.setCheckSequence(v.toBool()); }},
    {QLatin1String("variables"),
        [](ConfigEntities &e, const QVariant &v) {
            forEachName(v, [&e](const QString &name) { e.addVariables(name); });
        }},
};

/// A new section, filled from the keys of \a value.
template<typename Section, std::size_t Size>
std::unique_ptr<Section> newSection(const Key<Section> (&table)[Size], const QVariant &value)
{
    auto section = std::make_unique<Section>();
    withObject(value, [&](const Object &object) { readKeys(table, object, *section); });
    return section;
}

/// The list is only replaced when there is something to put into it.
void readEntities(Config &config, const QVariant &value)
{
    withList(value, [&config](const QVariantList &items) {
        if (items.isEmpty())
            return;
        config.setEntities(new QList<ConfigEntities *>);
        for (const QVariant &item : items)
            config.getEntities()->append(newSection(kEntityKeys, item).release());
    });
}

const Key<Config> kRootKeys[] = {
    {QLatin1String("database"),
        [](Config &c, const QVariant &v) { c.setDataBase(newSection(kDatabaseKeys, v).release()); }},
    {QLatin1String("entities"), &readEntities},
    {QLatin1String("options"),
        [](Config &c, const QVariant &v) { c.setOptions(newSection(kOptionKeys, v).release()); }},
};

QJsonObject databaseToJson(const ConfigDb &database)
{
    QJsonObject out;
    insertText(out, QLatin1String("name"), database.getName());
    insertText(out, QLatin1String("folder"), database.getFolder());
    insertText(out, QLatin1String("sourceFile"), database.getSourceFile());
    return out;
}

QJsonObject entityToJson(const ConfigEntities &entity)
{
    QJsonObject out;
    insertText(out, QLatin1String("name"), entity.getName());
    // Written only when set, and "checkSequence" only when cleared: meant so, absent keys are read as the
    // defaults.
    if (entity.getCreateSDC())
        out.insert(QLatin1String("createSDC"), true);
    out.insert(QLatin1String("createCompound"), entity.getCreateCompound());
    insertText(out, QLatin1String("recType"), entity.getRecType());
    out.insert(QLatin1String("allVariables"), entity.getAllVariables());
    if (const QList<QString> *names = entity.getVariables())
        insertArray(out, QLatin1String("variables"), QJsonArray::fromStringList(*names));
    if (!entity.getCheckSequence())
        out.insert(QLatin1String("checkSequence"), false);
    return out;
}

} // namespace

RunCreationBusiness::RunCreationBusiness() = default;

QJsonDocument RunCreationBusiness::exportConfigToJson(Config *config)
{
    QJsonArray entities;
    for (const ConfigEntities *entity : qAsConst(*config->getEntities())) {
        if (entity)
            entities.append(entityToJson(*entity));
    }
    const ConfigOptions &options = *config->getOptions();
    return QJsonDocument(QJsonObject{
        {QLatin1String("type"), QLatin1String("config")},
        {QLatin1String("database"), databaseToJson(*config->getDataBase())},
        {QLatin1String("options"),
            QJsonObject{
                {QLatin1String("createNotAppMissingInRange"), options.getCreateNotAppMissingInRange()},
                {QLatin1String("createNoRanges"), options.getCreateNoRanges()},
            }},
        {QLatin1String("entities"), entities},
    });
}

Config *RunCreationBusiness::recorrerNodosEntitiesJsonYCargaEstructuraConfig(QMap<QString, QVariant> root)
{
    auto config = std::make_unique<Config>();
    readKeys(kRootKeys, root, *config);
    return config.release();
}

QList<QString> *RunCreationBusiness::recorrerVariablesNodosJson(QVariant value)
{
    auto names = std::make_unique<QList<QString>>();
    forEachName(value, [&names](const QString &name) { names->append(name); });
    return names.release();
}
