#pragma once

#include "model/ModelExport.h"

#include <QList>

#include <memory>

class ConfigDb;
class ConfigEntities;
class ConfigOptions;

/// The configuration of a run, which builds a database from source files.
///
/// Owns its three sections. A fresh one has all three, empty; a setter takes over what it is given and frees
/// what it replaces, and handing back what is already held changes nothing.
class MODEL_TESSEL_EXPORT Config {
public:
    Config();
    ~Config();

    /// The database to be built, still owned by the configuration.
    ConfigDb *getDataBase() const;
    void setDataBase(ConfigDb *section);

    /// The entities that take part, in order: the list itself, still owned by the configuration.
    QList<ConfigEntities *> *getEntities() const;

    /// Takes \a list and the entities in it; frees the list held before and those of its entities that are
    /// not in \a list as well, so that a changed copy of the held list may be handed back.
    void setEntities(QList<ConfigEntities *> *list);

    /// The switches, still owned by the configuration.
    ConfigOptions *getOptions() const;
    void setOptions(ConfigOptions *section);

private:
    std::unique_ptr<ConfigDb> dataBase;
    std::unique_ptr<QList<ConfigEntities *>> entities;
    std::unique_ptr<ConfigOptions> options;

    Q_DISABLE_COPY_MOVE(Config)
};
