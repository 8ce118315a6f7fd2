#include "cli/FormatCommand.h"

#include "cli/FileNames.h"
#include "cli/Output.h"
#include "cli/Program.h"
#include "documents/DocumentFile.h"
#include "documents/DocumentForm.h"
#include "documents/Losses.h"
#include "documents/OpenedDocument.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

namespace tessel::cli {
namespace {

QString tr(const char *text, int n = -1)
{
    return QCoreApplication::translate("tessel::cli", text, nullptr, n);
}

/// Prints how \a before differs from \a after, as diff(1) tells it, the tool that everyone's eyes are used
/// to.
bool printDiff(const QString &file, const QByteArray &before, const QByteArray &after)
{
    const QTemporaryDir folder;
    const QString left = folder.filePath(QStringLiteral("file"));
    const QString right = folder.filePath(QStringLiteral("normal"));
    for (const auto &[name, bytes] : {std::make_pair(left, before), std::make_pair(right, after)}) {
        if (const auto problem = documents::writeFile(name, bytes)) {
            printProblem(name, *problem);
            return false;
        }
    }
    QProcess diff;
    diff.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    diff.start(QStringLiteral("diff"),
        {QStringLiteral("-u"), QStringLiteral("--label"), shownName(file), QStringLiteral("--label"),
            tr("%1 in normal form").arg(shownName(file)), left, right});
    diff.waitForFinished(-1);
    if (diff.error() == QProcess::FailedToStart) {
        printMessage(tr("tessel: --diff needs the program diff; install the package diffutils"));
        return false;
    }
    printBytes(diff.readAllStandardOutput());
    return true;
}

/// One document on its way.
class Formatting {
public:
    Formatting(const QString &name, const FormatOptions &someOptions)
        : file(name)
        , options(someOptions)
    {
    }

    int run()
    {
        const documents::Outcome<QByteArray> read = documents::readFile(file);
        if (!read.result) {
            printProblem(file, read.problem);
            return Failure;
        }
        before = *read.result;
        // Most files are in normal form already, and then there is nothing to look for.
        if (documents::isKeptAsItIs(before)) {
            after = before;
            return finish(0);
        }
        const documents::Outcome<QJsonObject> parsed = documents::parseObject(before);
        if (!parsed.result) {
            printProblem(file, parsed.problem);
            return Failure;
        }
        after = documents::normalForm(*parsed.result);
        const QVector<documents::Loss> losses = documents::lossesOf(before, *parsed.result, after);
        printLosses(file, losses);
        return finish(losses.size());
    }

private:
    int finish(int losses)
    {
        const int status = options.check || options.diff ? compare() : write(losses);
        return losses == 0 ? status : std::max<int>(status, Findings);
    }

    int compare()
    {
        if (before == after)
            return Clean;
        if (options.diff && !printDiff(file, before, after))
            return Failure;
        if (options.check) {
            printAbout(file,
                isStandard(file) ? tr("is not in normal form; \"tessel format\" writes it so")
                                 : tr("is not in normal form; \"tessel format -i\" rewrites it"));
        }
        return Findings;
    }

    int write(int losses)
    {
        const QString target = options.inPlace ? file : options.output;
        if (isStandard(target)) {
            printBytes(after);
            return Clean;
        }
        const bool replacesInput = isSameFile(file, target);
        if (replacesInput && losses > 0 && !options.force) {
            printAbout(file,
                (losses == 1 ? tr(
                     "is left as it is: %1 value would be lost or changed; --force rewrites it all the same")
                             : tr("is left as it is: %1 values would be lost or changed; --force rewrites it "
                                  "all the same"))
                    .arg(losses));
            return Findings;
        }
        if (replacesInput && before == after)
            return Clean;
        return writeOutput(target, after);
    }

    QString file;
    const FormatOptions &options;
    QByteArray before;
    QByteArray after;
};

/// Empty, or why the files and options do not go together.
QString wrongUsage(const QStringList &files, const FormatOptions &options)
{
    const bool writesOne = !options.inPlace && !options.check && !options.diff;
    if (writesOne && files.size() > 1)
        return tr("tessel: one output takes one FILE; use -i, --check or --diff for several");
    if (options.inPlace && files.contains(QStringLiteral("-")))
        return tr("tessel: standard input cannot be replaced; leave out -i or name a file");
    return QString();
}

} // namespace

int formatDocuments(const QStringList &files, const FormatOptions &options)
{
    const QString usage = wrongUsage(files, options);
    if (!usage.isEmpty()) {
        printMessage(usage);
        return Failure;
    }
    int worst = Clean;
    for (const QString &file : files)
        worst = std::max(worst, Formatting(file, options).run());
    return worst;
}

} // namespace tessel::cli
