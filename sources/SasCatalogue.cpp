#include "sources/SasCatalogue.h"

#include "sources/Completeness.h"
#include "sources/DisplayFormat.h"
#include "sources/OpenSource.h"
#include "sources/ReadstatParse.h"
#include "sources/SourceKind.h"
#include "sources/StatisticalProblem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tessel::sources {
namespace {

/// The name under which the labels of the format \a format stand in \a sets; empty when they do not.
QString setNameOf(const QString &format, const QHash<QString, LabelSet> &sets)
{
    for (auto set = sets.cbegin(); set != sets.cend(); ++set) {
        QString name = set.key().toUpper();
        if (name == format || QLatin1Char('$') + name == format)
            return set.key();
    }
    return QString();
}

} // namespace

SasCatalogue::SasCatalogue(const QString &dataFile, const QString &catalogue, const QString &encoding)
    : name(catalogue.isEmpty() ? besideOf(dataFile) : catalogue)
    , isNamed(!catalogue.isEmpty())
    , encodingName(encoding)
{
}

QString SasCatalogue::join(StatisticalContent &content, QVector<SourceRemark> &remarks) const
{
    QHash<QString, LabelSet> sets;
    const QString fault = name.isEmpty() ? QString() : read(sets);
    if (!fault.isEmpty() && isNamed)
        return tr("its catalogue %1 %2").arg(name, fault);
    QStringList unknown;
    for (StatisticalVariable &variable : content.variables) {
        const QString format = DisplayFormat::ofSas(variable.format).userDefined;
        variable.labelSet = format.isEmpty() ? QString() : setNameOf(format, sets);
        if (format.isEmpty() || !variable.labelSet.isEmpty())
            continue;
        if (!name.isEmpty() && fault.isEmpty())
            variable.labelsNotFound = format;
        else if (!unknown.contains(format))
            unknown.append(format);
    }
    content.labelSets = sets;
    if (!fault.isEmpty())
        remarks.append({QString(),
            tr("There are no value labels: the catalogue %1 %2.").arg(QFileInfo(name).fileName(), fault)});
    else if (!unknown.isEmpty())
        remarks.append({QString(),
            tr("The value labels of %n formats stand in a catalogue (.sas7bcat) that was not found; name it, "
               "or put it beside the file under the same name: %1.",
                nullptr, unknown.size())
                .arg(unknown.join(QLatin1String(", ")))});
    return QString();
}

QString SasCatalogue::besideOf(const QString &dataFile)
{
    const QFileInfo info(dataFile);
    if (info.suffix().compare(QLatin1String("sas7bdat"), Qt::CaseInsensitive) != 0)
        return QString();
    const QString wanted = info.completeBaseName() + QLatin1Char('.');
    const QFileInfoList neighbours = info.dir().entryInfoList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QFileInfo &neighbour : neighbours) {
        if (neighbour.fileName().startsWith(wanted) && neighbour.completeBaseName() == info.completeBaseName()
            && neighbour.suffix().compare(QLatin1String("sas7bcat"), Qt::CaseInsensitive) == 0)
            return neighbour.filePath();
    }
    return QString();
}

/// Why the catalogue cannot be read; empty when it was.
QString SasCatalogue::read(QHash<QString, LabelSet> &sets) const
{
    QFile file(name);
    QString fault = openSource(file);
    if (!fault.isEmpty())
        return fault;
    if (sourceKind(file.peek(kKindBytes)) != SourceKind::Sas7bcat)
        return tr("is no SAS catalogue by its content");
    QString cut = Completeness::faultOfCatalogue(file);
    if (!cut.isEmpty())
        return cut;
    // Half a catalogue is none: some of the sets would pass for all of them.
    StatisticalContent content;
    const readstat_error_t error = ReadstatParse(file, encodingName).readCatalogue(content);
    if (StatisticalProblem::isOfEncoding(error))
        return StatisticalProblem::ofTexts(encodingName, QString()).problem.message;
    if (error != READSTAT_OK)
        return tr("is damaged and cannot be read");
    sets = content.labelSets;
    return QString();
}

} // namespace tessel::sources
