#include "cli/CheckCommand.h"

#include "cli/Output.h"
#include "cli/Program.h"
#include "documents/Findings.h"
#include "documents/OpenedDocument.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace tessel::cli {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("tessel::cli", text); }

/// The findings of \a file; nothing, once said why, when there is no dictionary to judge.
std::optional<QVector<documents::Finding>> findingsOf(const QString &file)
{
    const documents::Outcome<documents::OpenedDocument> document = documents::openFile(file);
    if (!document.result) {
        printProblem(file, document.problem);
        return std::nullopt;
    }
    if (document.result->run) {
        printAbout(file, tr("is a run configuration; only dictionaries are checked"));
        return std::nullopt;
    }
    return documents::findingsIn(*document.result->dictionary);
}

QJsonObject jsonOf(const QString &file, const documents::Finding &finding)
{
    return {{QStringLiteral("file"), QString::fromUtf8(shownName(file).toLatin1())},
        {QStringLiteral("code"), finding.code}, {QStringLiteral("severity"), QStringLiteral("error")},
        {QStringLiteral("path"), finding.path}, {QStringLiteral("place"), finding.place},
        {QStringLiteral("message"), finding.message}};
}

} // namespace

int checkDocuments(const QStringList &files, bool json)
{
    int worst = Clean;
    QJsonArray all;
    for (const QString &file : files) {
        const auto findings = findingsOf(file);
        if (!findings)
            worst = Failure;
        else if (!findings->isEmpty())
            worst = std::max<int>(worst, Findings);
        for (const documents::Finding &finding : findings.value_or(QVector<documents::Finding>())) {
            if (json)
                all.append(jsonOf(file, finding));
            else
                printFinding(file, finding);
        }
    }
    if (json)
        printBytes(QJsonDocument(all).toJson());
    return worst;
}

} // namespace tessel::cli
