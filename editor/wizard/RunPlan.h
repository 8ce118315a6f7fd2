#pragma once

#include "documents/DocumentFile.h"
#include "documents/Losses.h"
#include "model/Config.h"
#include "model/ConfigDb.h"
#include "model/ConfigEntities.h"
#include "model/ConfigOptions.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

#include <memory>
#include <optional>

class TDmEntity;

namespace tessel::editor {

/// What is chosen for a run: the database, the entities and variables by their names, the options. A value:
/// may be copied. No widget, and no pointer into a dictionary; where a tree is handed in, the names decide.
///
/// What a loaded run names and the dictionary does not have is kept, in its place, until the entity that it
/// belongs to is no longer chosen; an entity that the dictionary does not have stays chosen. An entity that
/// is chosen no more keeps its variables and options here, for the case that it is chosen again.
class RunPlan {
    Q_DECLARE_TR_FUNCTIONS(tessel::editor::RunPlan)

public:
    /// A new run of the dictionary \a root: its selectable entities with all their variables, each with the
    /// record type that its variables agree on.
    explicit RunPlan(const TDmEntity &root);

    /// The run \a config of the dictionary \a root.
    RunPlan(const TDmEntity &root, const Config &config);

    /// The run in the file \a name instead of this one; a problem leaves this one as it is.
    std::optional<documents::FileProblem> open(const QString &name);

    /// Writes the run to the file \a name; a problem leaves the file as it was.
    std::optional<documents::FileProblem> save(const QString &name) const;

    /// What the opened file holds that saving loses or changes; empty for a run that was not opened.
    const QVector<documents::Loss> &losses() const { return openedLosses; }

    /// The run as it stands, the caller's own.
    std::unique_ptr<Config> config() const;

    /// The run as document text; equal texts are equal runs.
    QByteArray text() const;

    /// The names that the run has and the dictionary \a root has not, in the order of the run: "ENTITY" for
    /// an entity, "ENTITY/VARIABLE" for a variable of an entity that is there.
    QStringList missingIn(const TDmEntity &root) const;

    ConfigDb &database() { return databaseSection; }
    const ConfigDb &database() const { return databaseSection; }
    ConfigOptions &options() { return optionSection; }
    const ConfigOptions &options() const { return optionSection; }

    /// The chosen entities in the order of the run, to be changed in place; good until the next change of
    /// what is chosen.
    QVector<ConfigEntities *> chosen();
    int chosenCount() const;
    bool isChosen(const QString &entity) const;

    /// Whether all variables of \a entity are taken; false for an entity that is not known.
    bool takesAllVariables(const QString &entity) const;

    /// Sets the marks of all below \a root: chosen entities are selectable, their variables checked.
    void mark(TDmEntity &root) const;

    /// Chooses the entities below \a root that are selectable, and no other that stands there.
    void takeEntities(const TDmEntity &root);

    /// Takes the checked variables of \a entity for the chosen ones, from now on name by name. Names keep
    /// their places; new ones come behind the one that stands before them in the dictionary.
    void takeVariables(const TDmEntity &entity);

    /// Takes all variables of \a entity and checks them all; or, turned off, those that were chosen by name
    /// before. When there are none, all stay checked, now chosen by name.
    void setAllVariables(TDmEntity &entity, bool on);

private:
    struct Part {
        ConfigEntities section;
        bool isChosen = false;
    };

    void load(const Config &config);
    void markVariables(TDmEntity &entity) const;
    ConfigEntities *sectionOf(const QString &entity);
    const ConfigEntities *sectionOf(const QString &entity) const;

    ConfigDb databaseSection;
    ConfigOptions optionSection;
    QVector<Part> freshParts; ///< What a new run has of each entity.
    QVector<Part> parts;
    QVector<documents::Loss> openedLosses;
};

} // namespace tessel::editor
