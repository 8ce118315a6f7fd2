#include "editor/wizard/RunWizard.h"

#include "editor/DictionaryDocument.h"
#include "editor/wizard/ChoiceTree.h"
#include "editor/wizard/DatabasePage.h"
#include "editor/wizard/EntitiesPage.h"
#include "editor/wizard/OptionsPage.h"
#include "editor/wizard/SelectionPage.h"
#include "editor/wizard/SummaryPage.h"
#include "editor/wizard/VariablesPage.h"
#include "model/TDmEntity.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace tessel::editor {
namespace {

QString sentenceOf(const QString &file, const documents::FileProblem &problem)
{
    const QString name = QDir::toNativeSeparators(file);
    if (problem.line == 0)
        return RunWizard::tr("%1: %2.").arg(name, problem.message);
    return RunWizard::tr("%1, line %2, column %3: %4.")
        .arg(name)
        .arg(problem.line)
        .arg(problem.column)
        .arg(problem.message);
}

} // namespace

RunWizard::RunWizard(DictionaryDocument &dictionary, QWidget *parent)
    : QWizard(parent)
    , document(dictionary)
    , tree(choiceTreeOf(document.root()))
    , plan(*tree)
{
    setObjectName(QStringLiteral("runWizard"));
    setAccessibleName(tr("Run wizard"));
    setOption(QWizard::NoBackButtonOnStartPage);
    resize(760, 560);
    const QString file = document.fileName();
    addPages(file.isEmpty() ? QDir::homePath() : QFileInfo(file).absolutePath());
    for (const WizardButton which : {BackButton, NextButton, FinishButton, CancelButton}) {
        QAbstractButton *standard = button(which);
        standard->setAccessibleName(standard->text()
                                        .remove(QLatin1Char('&'))
                                        .remove(QLatin1Char('<'))
                                        .remove(QLatin1Char('>'))
                                        .trimmed());
    }

    const auto outdate = [this] { summaryPage->setOutdated(true); };
    connect(&document, &DictionaryDocument::changed, this, outdate);
    connect(&document, &DictionaryDocument::reset, this, outdate);
    start();
}

RunWizard::~RunWizard()
{
    // The pages look at the tree, which would go before them.
    for (const int id : pageIds())
        delete page(id);
}

void RunWizard::addPages(const QString &folder)
{
    databasePage = new DatabasePage(plan, this);
    databasePage->setStartFolder(folder);
    summaryPage = new SummaryPage(*tree, plan, this);
    setPage(Database, databasePage);
    setPage(Entities, new EntitiesPage(*tree, plan, this));
    setPage(Variables, new VariablesPage(*tree, plan, this));
    setPage(Selection, new SelectionPage(*tree, plan, this));
    setPage(Options, new OptionsPage(plan, this));
    setPage(Summary, summaryPage);
}

void RunWizard::start()
{
    plan.mark(*tree);
    startText = plan.text();
    QStringList losses;
    for (const documents::Loss &loss : plan.losses())
        losses.append(tr("%1: %2.").arg(loss.path, loss.sentence()));
    databasePage->setNotes(plan.missingIn(*tree), losses);
    setWindowTitle(opened.isEmpty() ? tr("New run") : tr("Run %1").arg(QFileInfo(opened).fileName()));
    // A wizard that is shown already begins anew.
    if (currentId() != -1)
        restart();
}

bool RunWizard::openRun(const QString &file)
{
    const auto problem = plan.open(file);
    setProblem(problem ? sentenceOf(file, *problem) : QString());
    if (problem)
        return false;
    opened = file;
    start();
    return true;
}

void RunWizard::setSaveFile(const QString &file)
{
    saveFile = file;
    summaryPage->setFile(file);
}

void RunWizard::accept()
{
    const QString file = saveFile.isEmpty() ? askForFile() : saveFile;
    if (file.isEmpty())
        return;
    QString refusal = refusalOf(file);
    if (refusal.isEmpty()) {
        if (const auto problem = plan.save(file))
            refusal = sentenceOf(file, *problem);
    }
    setProblem(refusal);
    if (!refusal.isEmpty())
        return;
    saved = file;
    startText = plan.text();
    emit runSaved(file);
    QWizard::accept();
}

void RunWizard::reject()
{
    if (plan.text() != startText) {
        QMessageBox box(QMessageBox::Question, windowTitle(),
            tr("The run has changes that are not saved. Throw them away?"),
            QMessageBox::Yes | QMessageBox::No, this);
        box.setTextFormat(Qt::PlainText);
        box.setDefaultButton(QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
        if (box.exec() != QMessageBox::Yes)
            return;
    }
    QWizard::reject();
}

QString RunWizard::askForFile()
{
    QString start = opened;
    if (start.isEmpty()) {
        const QString dictionary = document.fileName();
        const QDir folder(dictionary.isEmpty() ? QDir::homePath() : QFileInfo(dictionary).absolutePath());
        start = folder.filePath(tr("run.json"));
    }
    return QFileDialog::getSaveFileName(
        this, tr("Save the run"), start, tr("Run configurations (*.json);;All files (*)"));
}

QString RunWizard::refusalOf(const QString &file) const
{
    // The one file that is surely not meant: it would be lost.
    const QString dictionary = QFileInfo(document.fileName()).canonicalFilePath();
    if (dictionary.isEmpty() || QFileInfo(file).canonicalFilePath() != dictionary)
        return QString();
    return tr("%1: holds the dictionary itself; choose another file.").arg(QDir::toNativeSeparators(file));
}

void RunWizard::setProblem(const QString &text)
{
    problemText = text;
    databasePage->setProblem(text);
    summaryPage->setProblem(text);
}

} // namespace tessel::editor
