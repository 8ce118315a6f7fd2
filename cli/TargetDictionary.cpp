#include "cli/TargetDictionary.h"

#include "cli/FileNames.h"
#include "cli/Output.h"
#include "cli/Program.h"
#include "documents/DocumentForm.h"
#include "documents/Losses.h"
#include "sources/EntityNaming.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tessel::cli {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("tessel::cli", text); }

/// What tells a finding from others.
QStringList keyOf(const documents::Finding &finding) { return {finding.code, finding.path, finding.message}; }

} // namespace

bool TargetDictionary::read(const QString &file)
{
    const documents::Outcome<QByteArray> content = documents::readFile(file);
    if (!content.result) {
        printProblem(file, content.problem);
        return false;
    }
    const documents::Outcome<QJsonObject> document = documents::parseObject(*content.result);
    if (!document.result) {
        printProblem(file, document.problem);
        return false;
    }
    if (documents::kindOf(*document.result) == documents::DocumentKind::Run) {
        printAbout(file, tr("is a run configuration; only a dictionary takes variables"));
        return false;
    }
    source = file;
    bytes = *content.result;
    const auto lost = documents::lossesOf(bytes, *document.result, documents::normalForm(*document.result));
    printLosses(file, lost);
    losses = !lost.isEmpty();
    root = documents::readDictionary(*document.result);
    const QVector<documents::Finding> findings = documents::findingsIn(*root);
    for (const documents::Finding &finding : findings)
        oldFaults.insert(keyOf(finding));
    return true;
}

QVector<Place> TargetDictionary::placesNamed(const QString &name)
{
    QVector<Place> found;
    const QVector<Place> places = placesBelow(*root);
    for (const Place &place : places) {
        if (!place.variable && place.entity != root.get() && place.entity->getName().trimmed() == name)
            found.append(place);
    }
    return found;
}

void TargetDictionary::tellSeveral(const QString &name, const QVector<Place> &places) const
{
    QStringList paths;
    for (const Place &place : places)
        paths.append(QStringLiteral("%1 (%2)").arg(place.path, place.pointer));
    printAbout(source.value_or(QString()),
        printable(tr("holds %1 entities named \"%2\": %3; rename all but one of them")
                      .arg(QString::number(places.size()), name, paths.join(QLatin1String(", ")))));
}

TDmEntity *TargetDictionary::give(TDmEntity *entity)
{
    given.insert(entity);
    return entity;
}

TDmEntity *TargetDictionary::addEntity(const QString &name, const QString &label)
{
    auto *entity = new TDmEntity;
    entity->setName(name);
    entity->setLabel(label);
    entity->setLevel(1);
    root->getChildren()->append(entity);
    return give(entity);
}

TDmEntity *TargetDictionary::entityNamed(const QString &name, const QString &label)
{
    const QVector<Place> places = placesNamed(name.trimmed());
    if (places.size() > 1) {
        tellSeveral(name.trimmed(), places);
        return nullptr;
    }
    if (!places.isEmpty())
        return give(places.first().entity);
    const QString path = QStringLiteral("/entities/%1").arg(root->getChildren()->size());
    TDmEntity *entity = addEntity(name.trimmed(), label);
    const QVector<documents::Finding> findings = documents::findingsIn(*root);
    for (const documents::Finding &finding : findings) {
        if (finding.path == path) {
            printMessage(
                printable(tr("tessel: no entity can be named \"%1\": %2").arg(name, finding.message)));
            return nullptr;
        }
    }
    return entity;
}

TDmEntity *TargetDictionary::entityOfFile(const QString &file, const QString &label)
{
    const QFileInfo info(file);
    // A name that begins with its only dot has nothing before it.
    const QString text =
        nameText(info.completeBaseName().isEmpty() ? info.fileName() : info.completeBaseName());
    const QString valid = sources::validEntityName(text);
    const QVector<Place> places = placesNamed(valid);
    if (places.size() > 1) {
        tellSeveral(valid, places);
        return nullptr;
    }
    if (!places.isEmpty() && !given.contains(places.first().entity))
        return give(places.first().entity);
    TDmEntity *entity = addEntity(sources::freeEntityName(text, *root), label);
    if (valid != text)
        printAbout(file,
            printable(tr("becomes the entity %1, because an entity cannot be named \"%2\"; --entity gives it "
                         "another name")
                          .arg(entity->getName(), text)));
    else if (entity->getName() != text)
        printAbout(file,
            printable(
                tr("becomes the entity %1, because the name %2 is taken; --entity gives it another name")
                    .arg(entity->getName(), text)));
    return entity;
}

bool TargetDictionary::tellNewFaults(const QString &output)
{
    bool isAny = false;
    const QVector<documents::Finding> findings = documents::findingsIn(*root);
    for (const documents::Finding &finding : findings) {
        if (oldFaults.contains(keyOf(finding)))
            continue;
        printAbout(
            isStandard(output) ? QStringLiteral("standard output") : output, printable(findingText(finding)));
        isAny = true;
    }
    return isAny;
}

int TargetDictionary::write(const QString &output)
{
    const QByteArray text = documents::settledText(*root);
    if (isStandard(output)) {
        printBytes(text);
        return Clean;
    }
    const bool replacesSource = source && isSameFile(*source, output);
    if (replacesSource && losses) {
        printAbout(*source,
            tr("is left as it is, because values would be lost or changed; name another file with -o, or "
               "rewrite it first with \"tessel format\""));
        return Findings;
    }
    if (replacesSource && text == bytes)
        return Clean;
    return writeOutput(output, text);
}

} // namespace tessel::cli
