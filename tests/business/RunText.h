#pragma once

#include "business/RunCreationBusiness.h"
#include "model/Config.h"
#include "model/ConfigDb.h"
#include "model/ConfigEntities.h"
#include "model/ConfigOptions.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QVariantMap>

#include <memory>

/// Run configurations as text, so that a failed comparison explains itself.
namespace tessel::test {

inline std::unique_ptr<Config> readRun(const QVariantMap &root)
{
    return std::unique_ptr<Config>(
        RunCreationBusiness().recorrerNodosEntitiesJsonYCargaEstructuraConfig(root));
}

/// The document that is written for \a config, compact, single quotes for double ones.
inline QByteArray documentOf(Config &config)
{
    return RunCreationBusiness()
        .exportConfigToJson(&config)
        .toJson(QJsonDocument::Compact)
        .replace('"', '\'');
}

/// The texts that are not empty, "name=value", in the order of the class.
inline QString describe(const ConfigDb &database)
{
    QStringList parts;
    const auto text = [&parts](const char *name, const QString &value) {
        if (!value.isEmpty())
            parts += QString::fromLatin1(name) + QLatin1Char('=') + value;
    };
    text("name", database.getName());
    text("folder", database.getFolder());
    text("sourceFile", database.getSourceFile());
    text("filter", database.getFilter());
    text("selectFilter", database.getSelectFilter());
    text("fileFilter", database.getFileFilter());
    text("project", database.getProject());
    return parts.join(QLatin1Char(' '));
}

/// The names of the switches that are on.
inline QString describe(const ConfigOptions &options)
{
    QStringList parts;
    if (options.getCreateNotAppMissingInRange())
        parts += QStringLiteral("createNotAppMissingInRange");
    if (options.getCreateNoRanges())
        parts += QStringLiteral("createNoRanges");
    return parts.join(QLatin1Char(' '));
}

/// Texts that are not empty, the list of variables when there is one, and the names of the flags that are
/// set.
inline QString describe(const ConfigEntities &entity)
{
    QStringList parts;
    if (!entity.getName().isEmpty())
        parts += QStringLiteral("name=") + entity.getName();
    if (!entity.getRecType().isEmpty())
        parts += QStringLiteral("recType=") + entity.getRecType();
    if (entity.getVariables())
        parts +=
            QStringLiteral("variables=[%1]").arg(QStringList(*entity.getVariables()).join(QLatin1Char(',')));
    const auto flag = [&parts](const char *name, bool set) {
        if (set)
            parts += QString::fromLatin1(name);
    };
    flag("allVariables", entity.getAllVariables());
    flag("checkSequence", entity.getCheckSequence());
    flag("createCompound", entity.getCreateCompound());
    flag("createSDC", entity.getCreateSDC());
    flag("checkDelete", entity.getCheckDelete());
    flag("checkSelectable", entity.getCheckSelectable());
    return parts.join(QLatin1Char(' '));
}

/// One line for the database, one for the options, then one for each entity.
inline QStringList describe(const Config &config)
{
    QStringList lines = {
        QStringLiteral("database: ") + describe(*config.getDataBase()),
        QStringLiteral("options: ") + describe(*config.getOptions()),
    };
    for (const ConfigEntities *entity : qAsConst(*config.getEntities()))
        lines += QStringLiteral("entity: ") + describe(*entity);
    return lines;
}

} // namespace tessel::test
