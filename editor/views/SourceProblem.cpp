#include "editor/views/SourceProblem.h"

#include "documents/DocumentFile.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tessel::editor {
namespace {

QString tr(const char *text) { return QCoreApplication::translate("tessel::editor::SourceProblem", text); }

} // namespace

QString sentenceOn(const QString &name, const documents::FileProblem &problem)
{
    const QString file = QFileInfo(name).fileName();
    if (problem.line == 0)
        return tr("%1: %2").arg(file, problem.message);
    return tr("%1, line %2, column %3: %4")
        .arg(file, QString::number(problem.line), QString::number(problem.column), problem.message);
}

} // namespace tessel::editor
