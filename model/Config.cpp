#include "model/Config.h"

#include "model/ConfigDb.h"
#include "model/ConfigEntities.h"
#include "model/ConfigOptions.h"

#include <QSet>

Config::Config()
    : dataBase(std::make_unique<ConfigDb>())
    , entities(std::make_unique<QList<ConfigEntities *>>())
    , options(std::make_unique<ConfigOptions>())
{
}

Config::~Config()
{
    if (entities)
        qDeleteAll(*entities);
}

ConfigDb *Config::getDataBase() const { return dataBase.get(); }

void Config::setDataBase(ConfigDb *section)
{
    if (section != dataBase.get())
        dataBase.reset(section);
}

QList<ConfigEntities *> *Config::getEntities() const { return entities.get(); }

void Config::setEntities(QList<ConfigEntities *> *list)
{
    if (list == entities.get())
        return;
    if (entities) {
        QSet<ConfigEntities *> dropped(entities->cbegin(), entities->cend());
        if (list)
            dropped.subtract(QSet<ConfigEntities *>(list->cbegin(), list->cend()));
        qDeleteAll(dropped);
    }
    entities.reset(list);
}

ConfigOptions *Config::getOptions() const { return options.get(); }

void Config::setOptions(ConfigOptions *section)
{
    if (section != options.get())
        options.reset(section);
}
