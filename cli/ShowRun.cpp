#include "cli/ShowRun.h"

#include "cli/Output.h"
#include "cli/Program.h"
#include "cli/TextTable.h"
#include "documents/DocumentForm.h"
#include "model/Config.h"
#include "model/ConfigDb.h"
#include "model/ConfigEntities.h"
#include "model/ConfigOptions.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tessel::cli {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("tessel::cli", text); }

QString yesNo(bool on) { return on ? tr("yes") : tr("no"); }

QString chosenOf(const ConfigEntities &entity)
{
    if (entity.getAllVariables())
        return tr("all");
    return QString::number(entity.getVariables() ? entity.getVariables()->size() : 0);
}

void showAll(const Config &config)
{
    const ConfigDb &database = *config.getDataBase();
    print(factsText(tr("Run") + QLatin1Char(' ') + database.getName(),
        {
            {tr("Folder"), database.getFolder()},
            {tr("Source file"), database.getSourceFile()},
            {tr("Filter"), database.getFilter()},
            {tr("Selection filter"), database.getSelectFilter()},
            {tr("File filter"), database.getFileFilter()},
            {tr("Project"), database.getProject()},
            {tr("Missing and not applicable inside ranges"),
                yesNo(config.getOptions()->getCreateNotAppMissingInRange())},
            {tr("Without ranges"), yesNo(config.getOptions()->getCreateNoRanges())},
        }));

    using Align = TextTable::Align;
    TextTable table({{tr("Entity")}, {tr("Record type")}, {tr("Variables"), Align::Right}, {tr("Compound")},
        {tr("SDC")}, {tr("Sequence checked")}});
    for (const ConfigEntities *entity : qAsConst(*config.getEntities())) {
        table.addRow(
            {entity->getName(), entity->getRecType(), chosenOf(*entity), yesNo(entity->getCreateCompound()),
                yesNo(entity->getCreateSDC()), yesNo(entity->getCheckSequence())});
    }
    print(QLatin1Char('\n') + table.text());
}

void showNames(const ConfigEntities &entity)
{
    if (entity.getAllVariables())
        print(tr("all variables") + QLatin1Char('\n'));
    if (!entity.getVariables())
        return;
    for (const QString &name : qAsConst(*entity.getVariables()))
        print(printable(name) + QLatin1Char('\n'));
}

QString pointerOf(int entity) { return QStringLiteral("/entities/%1").arg(entity); }

/// Places in the list of the entities that \a path names: the one at that JSON pointer, or all of that name.
QVector<int> entitiesNamed(const Config &config, const QString &path)
{
    QVector<int> found;
    for (int i = 0; i < config.getEntities()->size(); ++i) {
        if (path == pointerOf(i))
            return {i};
        if (config.getEntities()->at(i)->getName() == path)
            found.append(i);
    }
    return found;
}

/// Why \a path shows nothing: no entity or more than one has that name.
QString refusalOf(const Config &config, const QVector<int> &found, const QString &path)
{
    if (!found.isEmpty()) {
        QStringList pointers;
        for (int entity : found)
            pointers.append(pointerOf(entity));
        return tr("holds %1 entities named \"%2\": %3; give the pointer")
            .arg(found.size())
            .arg(path, pointers.join(QLatin1String(", ")));
    }
    for (const ConfigEntities *entity : qAsConst(*config.getEntities())) {
        if (entity->getName().compare(path, Qt::CaseInsensitive) == 0)
            return tr("holds no entity \"%1\"; did you mean \"%2\"?").arg(path, entity->getName());
    }
    return tr("holds no entity \"%1\"; \"tessel show FILE\" lists what it holds").arg(path);
}

} // namespace

int showRun(const QString &file, Config &config, const QString &path, bool json)
{
    if (path.isEmpty()) {
        if (json)
            printBytes(documents::runText(config));
        else
            showAll(config);
        return Clean;
    }
    const QVector<int> found = entitiesNamed(config, path);
    if (found.size() != 1) {
        printAbout(file, printable(refusalOf(config, found, path)));
        return Failure;
    }
    if (json) {
        const QJsonObject document = QJsonDocument::fromJson(documents::runText(config)).object();
        const QJsonArray entities = document.value(QLatin1String("entities")).toArray();
        printBytes(QJsonDocument(entities.at(found.first()).toObject()).toJson());
    } else {
        showNames(*config.getEntities()->at(found.first()));
    }
    return Clean;
}

} // namespace tessel::cli
