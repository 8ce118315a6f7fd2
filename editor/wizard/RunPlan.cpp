#include "editor/wizard/RunPlan.h"

#include "documents/DocumentForm.h"
#include "editor/wizard/ChoiceTree.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace tessel::editor {
namespace {

QStringList namesIn(const ConfigEntities &section)
{
    const QList<QString> *names = section.getVariables();
    return names ? QStringList(*names) : QStringList();
}

void setNames(ConfigEntities &section, const QStringList &names)
{
    if (QList<QString> *list = section.getVariables()) {
        *list = names;
        return;
    }
    for (const QString &name : names)
        section.addVariables(name);
}

QStringList namesOf(const QList<TDmVariable *> &variables)
{
    QStringList names;
    for (const TDmVariable *variable : variables)
        names.append(variable->getName());
    return names;
}

/// \a kept as it stands, with those of \a wanted that it has not: each behind the one that comes before it in
/// \a wanted, the first ones in front.
template<typename List, typename KeyOf>
List interleaved(const List &kept, const List &wanted, KeyOf &&keyOf)
{
    QSet<QString> known;
    for (const auto &item : kept)
        known.insert(keyOf(item));
    List result;
    QHash<QString, List> behind;
    QString anchor;
    bool isInFront = true;
    for (const auto &item : wanted) {
        const QString key = keyOf(item);
        if (known.contains(key)) {
            anchor = key;
            isInFront = false;
        } else if (isInFront) {
            result.append(item);
        } else {
            behind[anchor].append(item);
        }
    }
    for (const auto &item : kept) {
        result.append(item);
        result += behind.take(keyOf(item));
    }
    return result;
}

/// The record type that all variables of \a entity that have one agree on.
QString recordTypeOf(const TDmEntity &entity)
{
    QSet<QString> records;
    for (const TDmVariable *variable : qAsConst(*entity.getVariables())) {
        const QString record = variable->getMetadataVariables()->getRecord();
        if (!record.isEmpty())
            records.insert(record);
    }
    return records.size() == 1 ? *records.cbegin() : QString();
}

ConfigEntities freshSectionOf(const TDmEntity &entity)
{
    ConfigEntities section;
    section.setName(entity.getName());
    section.setRecType(recordTypeOf(entity));
    section.setAllVariables(true);
    return section;
}

} // namespace

RunPlan::RunPlan(const TDmEntity &root)
{
    QSet<QString> known;
    const QList<TDmEntity *> entities = entitiesBelow(root);
    for (const TDmEntity *entity : entities) {
        // A run tells entities by their names: two of one name are one.
        if (known.contains(entity->getName()))
            continue;
        known.insert(entity->getName());
        freshParts.append({freshSectionOf(*entity), false});
    }
    parts = freshParts;
    takeEntities(root);
}

RunPlan::RunPlan(const TDmEntity &root, const Config &config)
    : RunPlan(root)
{
    load(config);
}

std::optional<documents::FileProblem> RunPlan::open(const QString &name)
{
    const documents::Outcome<QByteArray> bytes = documents::readFile(name);
    if (!bytes.result)
        return bytes.problem;
    const documents::Outcome<QJsonObject> object = documents::parseObject(*bytes.result);
    if (!object.result)
        return object.problem;
    if (documents::kindOf(*object.result) != documents::DocumentKind::Run)
        return documents::FileProblem{
            tr("is a dictionary, not a run configuration; open it with File, Open"), 0, 0};
    load(*documents::readRun(*object.result));
    openedLosses = documents::lossesOf(*bytes.result, *object.result, text());
    return std::nullopt;
}

std::optional<documents::FileProblem> RunPlan::save(const QString &name) const
{
    return documents::writeFile(name, text());
}

std::unique_ptr<Config> RunPlan::config() const
{
    auto config = std::make_unique<Config>();
    config->setDataBase(new ConfigDb(databaseSection));
    config->setOptions(new ConfigOptions(optionSection));
    for (const Part &part : parts) {
        if (part.isChosen)
            config->getEntities()->append(new ConfigEntities(part.section));
    }
    return config;
}

QByteArray RunPlan::text() const { return documents::runText(*config()); }

QStringList RunPlan::missingIn(const TDmEntity &root) const
{
    QHash<QString, QSet<QString>> known;
    const QList<TDmEntity *> entities = entitiesBelow(root);
    for (const TDmEntity *entity : entities) {
        const QStringList names = namesOf(*entity->getVariables());
        known[entity->getName()] += QSet<QString>(names.cbegin(), names.cend());
    }
    QStringList missing;
    for (const Part &part : parts) {
        if (!part.isChosen)
            continue;
        const QString entity = part.section.getName();
        const auto found = known.constFind(entity);
        if (found == known.constEnd()) {
            missing.append(entity);
            continue;
        }
        const QStringList names = namesIn(part.section);
        for (const QString &name : names) {
            if (!found->contains(name))
                missing.append(entity + QLatin1Char('/') + name);
        }
    }
    return missing;
}

QVector<ConfigEntities *> RunPlan::chosen()
{
    QVector<ConfigEntities *> sections;
    for (Part &part : parts) {
        if (part.isChosen)
            sections.append(&part.section);
    }
    return sections;
}

int RunPlan::chosenCount() const
{
    return int(std::count_if(parts.cbegin(), parts.cend(), [](const Part &part) { return part.isChosen; }));
}

bool RunPlan::isChosen(const QString &entity) const
{
    return std::any_of(parts.cbegin(), parts.cend(),
        [&entity](const Part &part) { return part.isChosen && part.section.getName() == entity; });
}

bool RunPlan::takesAllVariables(const QString &entity) const
{
    const ConfigEntities *section = sectionOf(entity);
    return section && section->getAllVariables();
}

void RunPlan::mark(TDmEntity &root) const
{
    const QList<TDmEntity *> entities = entitiesBelow(root);
    for (TDmEntity *entity : entities) {
        entity->setSelectable(isChosen(entity->getName()));
        markVariables(*entity);
    }
}

void RunPlan::markVariables(TDmEntity &entity) const
{
    const ConfigEntities *section = sectionOf(entity.getName());
    const QStringList names = section ? namesIn(*section) : QStringList();
    const QSet<QString> chosenNames(names.cbegin(), names.cend());
    const bool isAll = section && section->getAllVariables();
    for (TDmVariable *variable : qAsConst(*entity.getVariables()))
        variable->setChecked(isAll || chosenNames.contains(variable->getName()) ? 1 : 0);
}

void RunPlan::takeEntities(const TDmEntity &root)
{
    QHash<QString, bool> marks;
    const QList<TDmEntity *> entities = entitiesBelow(root);
    for (const TDmEntity *entity : entities) {
        bool &isMarked = marks[entity->getName()];
        isMarked = isMarked || entity->getSelectable();
    }
    for (Part &part : parts)
        part.isChosen = marks.value(part.section.getName(), part.isChosen);
}

void RunPlan::takeVariables(const TDmEntity &entity)
{
    ConfigEntities *section = sectionOf(entity.getName());
    if (!section)
        return;
    section->setAllVariables(false);
    const QStringList offered = namesOf(offeredVariables(entity));
    QStringList ticked = namesOf(tickedVariables(entity));
    ticked.removeDuplicates();
    const QSet<QString> gone = QSet<QString>(offered.cbegin(), offered.cend())
                                   .subtract(QSet<QString>(ticked.cbegin(), ticked.cend()));
    QStringList kept = namesIn(*section);
    kept.erase(std::remove_if(
                   kept.begin(), kept.end(), [&gone](const QString &name) { return gone.contains(name); }),
        kept.end());
    setNames(*section, interleaved(kept, ticked, [](const QString &name) { return name; }));
}

void RunPlan::setAllVariables(TDmEntity &entity, bool on)
{
    ConfigEntities *section = sectionOf(entity.getName());
    if (!section || section->getAllVariables() == on)
        return;
    section->setAllVariables(on);
    if (!on && namesIn(*section).isEmpty())
        takeVariables(entity);
    else
        markVariables(entity);
}

void RunPlan::load(const Config &config)
{
    databaseSection = *config.getDataBase();
    optionSection = *config.getOptions();
    QVector<Part> loaded;
    for (const ConfigEntities *section : qAsConst(*config.getEntities())) {
        if (section)
            loaded.append({*section, true});
    }
    // What the run does not name is not chosen, whatever the dictionary says of it.
    parts = interleaved(loaded, freshParts, [](const Part &part) { return part.section.getName(); });
    openedLosses.clear();
}

ConfigEntities *RunPlan::sectionOf(const QString &entity)
{
    const auto found = std::find_if(
        parts.begin(), parts.end(), [&entity](const Part &part) { return part.section.getName() == entity; });
    return found == parts.end() ? nullptr : &found->section;
}

const ConfigEntities *RunPlan::sectionOf(const QString &entity) const
{
    const auto found = std::find_if(parts.cbegin(), parts.cend(),
        [&entity](const Part &part) { return part.section.getName() == entity; });
    return found == parts.cend() ? nullptr : &found->section;
}

} // namespace tessel::editor
