#include "cli/ShowCommand.h"

#include "cli/Output.h"
#include "cli/Places.h"
#include "cli/Program.h"
#include "cli/ShowRun.h"
#include "cli/TextTable.h"
#include "business/ProcessDictionaryBusiness.h"
#include "documents/DocumentForm.h"
#include "documents/OpenedDocument.h"
#include "model/MetadataVariables.h"
#include "model/Range.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace tessel::cli {
namespace {

using Align = TextTable::Align;

QString tr(const char *text) { return QCoreApplication::translate("tessel::cli", text); }

QString numberOrNothing(int number) { return number == 0 ? QString() : QString::number(number); }

QString yesNo(bool on) { return on ? tr("yes") : tr("no"); }

QString counted(int number, const QString &one, const QString &many)
{
    return (number == 1 ? one : many).arg(number);
}

/// What an entity, or all of a tree, holds.
struct Counts {
    int variables = 0;
    int labels = 0;
    int ranges = 0;

    void add(const TDmEntity &entity)
    {
        variables += entity.getVariables()->size();
        for (const TDmVariable *variable : qAsConst(*entity.getVariables())) {
            labels += variable->getValueLabelElementList()->size();
            ranges += variable->getMetadataVariables()->getRange()->size();
        }
    }
};

Counts countsOf(const TDmEntity &entity)
{
    Counts counts;
    counts.add(entity);
    return counts;
}

int depthOf(const Place &place) { return place.pointer.count(QLatin1String("/entities/")); }

/// A name and the label beside it.
QString titleOf(const QString &name, const QString &label)
{
    return label.isEmpty() ? name : name + QLatin1String("  ") + label;
}

void showTree(const QVector<Place> &places)
{
    TextTable table({{tr("Entity")}, {tr("Alias")}, {tr("Variables"), Align::Right},
        {tr("Labels"), Align::Right}, {tr("Ranges"), Align::Right}, {tr("Virtual")}, {tr("Label")}});
    Counts all;
    int entities = 0;
    for (const Place &place : places) {
        if (place.variable)
            continue;
        const TDmEntity &entity = *place.entity;
        const Counts counts = countsOf(entity);
        all.add(entity);
        // The root is the document itself; it is a row of its own only when it holds variables.
        if (place.pointer.isEmpty() && counts.variables == 0)
            continue;
        entities += place.pointer.isEmpty() ? 0 : 1;
        const QString indent(2 * std::max(0, depthOf(place) - 1), QLatin1Char(' '));
        table.addRow({indent + entity.getName(), entity.getAlias(), QString::number(counts.variables),
            QString::number(counts.labels), QString::number(counts.ranges),
            entity.getIsvirtual() ? tr("yes") : QString(), entity.getLabel()});
    }
    const TDmEntity &root = *places.first().entity;
    const QString title = titleOf(root.getName(), root.getLabel());
    if (!title.isEmpty())
        print(printable(title) + QLatin1Char('\n'));
    print(QStringList{counted(entities, tr("%1 entity"), tr("%1 entities")),
              counted(all.variables, tr("%1 variable"), tr("%1 variables")),
              counted(all.labels, tr("%1 label"), tr("%1 labels")),
              counted(all.ranges, tr("%1 range"), tr("%1 ranges"))}
              .join(QLatin1String(", "))
        + QLatin1String("\n\n") + table.text());
}

void showEntity(const Place &place)
{
    const TDmEntity &entity = *place.entity;
    print(factsText(titleOf(place.path, entity.getLabel()),
              {
                  {tr("Alias"), entity.getAlias()},
                  {tr("Code variable"), entity.getRefCode()},
                  {tr("Label variable"), entity.getRefLabel()},
                  {tr("Weight variable"), entity.getWeightVariable()},
                  {tr("Virtual"), yesNo(entity.getIsvirtual())},
                  {tr("Selectable"), yesNo(entity.getSelectable())},
                  {tr("Documentation"), entity.getDocumentationEntity()},
              })
        + QLatin1Char('\n'));

    TextTable table({{tr("Variable")}, {tr("Alias")}, {tr("Type")}, {tr("Start"), Align::Right},
        {tr("Length"), Align::Right}, {tr("Tag"), Align::Right}, {tr("Labels"), Align::Right},
        {tr("Ranges"), Align::Right}, {tr("Group")}, {tr("Label")}});
    for (const TDmVariable *variable : qAsConst(*entity.getVariables())) {
        table.addRow({variable->getName(), variable->getAlias(), variable->getVarType(),
            numberOrNothing(variable->getFieldRelativePosition()), numberOrNothing(variable->getFieldSize()),
            numberOrNothing(variable->getTag()),
            numberOrNothing(variable->getValueLabelElementList()->size()),
            numberOrNothing(variable->getMetadataVariables()->getRange()->size()), variable->getGroup(),
            variable->getLabel()});
    }
    print(entity.getVariables()->isEmpty() ? tr("no variables") + QLatin1Char('\n') : table.text());
}

void showVariable(const Place &place)
{
    const TDmVariable &variable = *place.variable;
    const MetadataVariables &layout = *variable.getMetadataVariables();
    print(factsText(titleOf(place.path, variable.getLabel()),
        {
            {tr("Alias"), variable.getAlias()},
            {tr("Type"), variable.getVarType()},
            {tr("Group"), variable.getGroup()},
            {tr("Tag"), numberOrNothing(variable.getTag())},
            {tr("Size"), numberOrNothing(variable.getSize())},
            {tr("Missing"), QString::number(variable.getMissing())},
            {tr("Not applicable"), QString::number(variable.getNotappl())},
            {tr("Field"), layout.getField()},
            {tr("Record"), layout.getRecord()},
            {tr("Start"), numberOrNothing(variable.getFieldRelativePosition())},
            {tr("Length"), numberOrNothing(variable.getFieldSize())},
            {tr("Lookup"), layout.getLookup() ? tr("yes") : QString()},
            {tr("Documentation"), variable.getDocumentation()},
        }));

    TextTable ranges({{tr("From"), Align::Right}, {tr("To"), Align::Right}});
    for (const Range *range : qAsConst(*layout.getRange())) {
        ranges.addRow({QVariant(range->getRangeMin()).toString(), QVariant(range->getRangeMax()).toString()});
    }
    if (!layout.getRange()->isEmpty())
        print(QLatin1Char('\n') + ranges.text());

    TextTable labels({{tr("Code"), Align::Right}, {tr("Label")}});
    for (const ValueLabelElement *element : qAsConst(*variable.getValueLabelElementList()))
        labels.addRow({element->getValue(), element->getLabel()});
    if (!variable.getValueLabelElementList()->isEmpty())
        print(QLatin1Char('\n') + labels.text());
}

/// \a place as it stands in the document, an entity without the entities below it.
QJsonObject objectOf(const Place &place)
{
    QJsonObject object;
    ProcessDictionaryBusiness().getStructuraTreeRootToJson(place.entity, &object);
    if (place.variable) {
        const int index = place.entity->getVariables()->indexOf(place.variable);
        return object.value(QLatin1String("variables")).toArray().at(index).toObject();
    }
    object.remove(QStringLiteral("entities"));
    return object;
}

/// Why \a path shows nothing: no place or more than one has that name.
QString refusalOf(const QVector<Place> &places, const QVector<Place> &found, const QString &path)
{
    if (found.isEmpty()) {
        for (const Place &place : places) {
            const QString tail = place.path.right(path.size());
            if (tail.compare(path, Qt::CaseInsensitive) == 0 && !path.isEmpty())
                return tr("holds no entity or variable \"%1\"; did you mean \"%2\"?").arg(path, place.path);
        }
        return tr("holds no entity or variable \"%1\"; \"tessel show FILE\" lists the entities").arg(path);
    }
    constexpr int most = 5;
    QStringList names;
    for (const Place &place : found.mid(0, most))
        names.append(QStringLiteral("%1 (%2)").arg(place.path, place.pointer));
    if (found.size() > most)
        names.append(QString(QChar(0x2026)));
    return tr("holds %1 places named \"%2\": %3; give more of the path or the pointer")
        .arg(found.size())
        .arg(path, names.join(QLatin1String(", ")));
}

int showDictionary(const QString &file, TDmEntity &root, const QString &path, bool json)
{
    const QVector<Place> places = placesBelow(root);
    if (path.isEmpty()) {
        if (json)
            printBytes(documents::dictionaryText(root));
        else
            showTree(places);
        return Clean;
    }
    const QVector<Place> found = placesNamed(places, path);
    if (found.size() != 1) {
        printAbout(file, printable(refusalOf(places, found, path)));
        return Failure;
    }
    if (json)
        printBytes(QJsonDocument(objectOf(found.first())).toJson());
    else if (found.first().variable)
        showVariable(found.first());
    else
        showEntity(found.first());
    return Clean;
}

} // namespace

int showDocument(const QString &file, const QString &path, bool json)
{
    const documents::Outcome<documents::OpenedDocument> document = documents::openFile(file);
    if (!document.result) {
        printProblem(file, document.problem);
        return Failure;
    }
    if (document.result->run)
        return showRun(file, *document.result->run, path, json);
    return showDictionary(file, *document.result->dictionary, path, json);
}

} // namespace tessel::cli
