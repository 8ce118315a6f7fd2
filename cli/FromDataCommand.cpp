#include "cli/FromDataCommand.h"

#include "cli/FileNames.h"
#include "cli/Output.h"
#include "cli/Program.h"
#include "cli/TargetDictionary.h"
#include "sources/VariableMerge.h"

#include <QCoreApplication>

#include <algorithm>
#include <map>
#include <vector>

namespace tessel::cli {
namespace {

using OnConflict = FromDataOptions::OnConflict;
using sources::SourceRemark;
using sources::VariableMerge;

QString tr(const char *text) { return QCoreApplication::translate("tessel::cli", text); }

void printRemarks(const QString &file, const QVector<SourceRemark> &remarks)
{
    for (const SourceRemark &remark : remarks)
        printAbout(file, printable(remark.sentence()));
}

/// A source that was read.
struct Source {
    QString file;
    sources::SourceFields fields;
};

/// One run of the verb.
class FromData {
public:
    FromData(const QStringList &someFiles, const FromDataOptions &someOptions, const ReadSource &reader)
        : files(someFiles)
        , options(someOptions)
        , read(reader)
    {
    }

    int run()
    {
        const QString usage = wrongUsage();
        if (!usage.isEmpty()) {
            printMessage(printable(usage));
            return Failure;
        }
        // Both are tried, so that all problems are told at once.
        const bool hasSources = readSources();
        const bool hasDictionary = !options.into || dictionary.read(*options.into);
        if (!hasSources || !hasDictionary || !merge())
            return Failure;
        if (dictionary.hasLosses())
            worst = Findings;
        if (hasConflicts && options.onConflict == OnConflict::Error) {
            printMessage(tr("tessel: nothing is written because of conflicts; --on-conflict skip leaves such "
                            "fields out, --on-conflict overwrite puts them in the place of what is there"));
            return Findings;
        }
        for (const auto &[file, remarks] : qAsConst(notices))
            printRemarks(file, remarks);
        if (dictionary.tellNewFaults(options.output))
            worst = Findings;
        return std::max(worst, dictionary.write(options.output));
    }

private:
    /// Empty, or why files and options do not go together.
    QString wrongUsage()
    {
        readOptions.encoding = options.encoding;
        if (options.records) {
            bool isNumber = false;
            readOptions.rows = options.records->toLongLong(&isNumber);
            if (!isNumber || readOptions.rows <= 0)
                return tr("tessel: --categories-from-data takes a whole number of records above 0, for "
                          "example 10000, and not \"%1\"")
                    .arg(*options.records);
        }
        if (options.entity && options.entity->trimmed().isEmpty())
            return tr("tessel: --entity takes the name of an entity and not \"%1\"").arg(*options.entity);
        for (const QString &file : files) {
            if (isStandard(file))
                return tr("tessel: standard input cannot be a source of fields; name a file");
            if (isSameFile(file, options.output))
                return tr("tessel: the output would replace a source; name another file with -o");
        }
        return QString();
    }

    /// Reads all sources; false, once said why, when some cannot be read.
    bool readSources()
    {
        for (const QString &file : files) {
            sources::SourceOutcome outcome = read(file, readOptions);
            if (!outcome.result) {
                if (outcome.canRetryWithEncoding)
                    outcome.problem.message =
                        tr("%1 (for example --encoding windows-1252)").arg(outcome.problem.message);
                printProblem(file, outcome.problem);
                continue;
            }
            printRemarks(file, outcome.result->remarks);
            if (!outcome.result->remarks.isEmpty())
                worst = Findings;
            sources.push_back({file, std::move(*outcome.result)});
        }
        return sources.size() == std::size_t(files.size());
    }

    /// Gives every source's variables to its entity; false, once said why, when there is none.
    bool merge()
    {
        for (Source &source : sources) {
            const QString label = source.fields.title;
            TDmEntity *entity = options.entity ? dictionary.entityNamed(*options.entity, label)
                                               : dictionary.entityOfFile(source.file, label);
            if (!entity)
                return false;
            mergeInto(*entity, source);
        }
        return true;
    }

    void mergeInto(TDmEntity &entity, Source &source)
    {
        const bool overwrites = options.onConflict == OnConflict::Overwrite;
        VariableMerge &merge =
            merges
                .try_emplace(&entity, entity,
                    overwrites ? VariableMerge::OnClash::Overwrite : VariableMerge::OnClash::Skip)
                .first->second;
        const int oldClashes = merge.clashes().size();
        const int oldCodes = merge.declaredCodes().size();
        const int oldNameless = merge.nameless().size();
        notices.append({source.file, noticeOf(source.fields)});
        merge.add(sources::importFields(source.fields));
        const QVector<SourceRemark> clashes = merge.clashes().mid(oldClashes);
        for (const SourceRemark &clash : clashes)
            printAbout(source.file, printable(conflictText(clash)));
        if (!clashes.isEmpty()) {
            hasConflicts = true;
            worst = Findings;
        }
        notices.last().second += merge.declaredCodes().mid(oldCodes);
        notices.last().second += merge.nameless().mid(oldNameless);
    }

    /// \a clash as a sentence, with what becomes of the field.
    QString conflictText(const SourceRemark &clash) const
    {
        switch (options.onConflict) {
        case OnConflict::Skip:
            return tr("%1; the field is left out").arg(clash.sentence());
        case OnConflict::Overwrite:
            return tr("%1; the field takes its place").arg(clash.sentence());
        case OnConflict::Error:
            break;
        }
        return clash.sentence();
    }

    /// What the variables of \a source get without its saying so.
    static QVector<SourceRemark> noticeOf(const sources::SourceFields &source)
    {
        if (source.fields.empty())
            return {};
        if (!sources::hasTypes(source))
            return {{QString(),
                tr("tells no types, so that its variables are whole numbers from 0 to 0; "
                   "--categories-from-data finds types and ranges in the records")}};
        const int count = sources::fieldsWithoutRange(source);
        if (count == 0)
            return {};
        const QString notice = count == 1
            ? tr("tells no range of %1 numeric field, which gets the range from 0 to 0; "
                 "--categories-from-data finds it in the records")
            : tr("tells no range of %1 numeric fields, which get the range from 0 to 0; "
                 "--categories-from-data finds it in the records");
        return {{QString(), notice.arg(count)}};
    }

    const QStringList &files;
    const FromDataOptions &options;
    const ReadSource &read;
    sources::ReadOptions readOptions;
    std::vector<Source> sources;
    TargetDictionary dictionary;
    std::map<TDmEntity *, VariableMerge> merges; ///< Of the entities that got variables.
    QVector<QPair<QString, QVector<SourceRemark>>> notices; ///< Of each file, told when it is to be written.
    bool hasConflicts = false;
    int worst = Clean;
};

} // namespace

int fromData(const QStringList &files, const FromDataOptions &options, const ReadSource &read)
{
    return FromData(files, options, read).run();
}

} // namespace tessel::cli
