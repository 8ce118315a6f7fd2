#pragma once

#include "editor/wizard/RunPlan.h"

#include <QWizard>

#include <memory>

class TDmEntity;

namespace tessel::editor {

class DatabasePage;
class DictionaryDocument;
class SummaryPage;

/// Plans a run, a new one or one from a file, and saves it: database, entities, variables, selection,
/// options, and a summary before Finish.
///
/// Works on a copy of what the dictionary holds at the moment that the wizard is made: nothing in the
/// dictionary is ever changed, neither while the wizard is open nor when it ends, and the dictionary may be
/// edited meanwhile. Cancel asks before it throws changes away.
class RunWizard : public QWizard {
    Q_OBJECT

public:
    enum Page { Database, Entities, Variables, Selection, Options, Summary };

    /// A new run of the dictionary in \a document, which is borrowed until the wizard ends.
    explicit RunWizard(DictionaryDocument &document, QWidget *parent = nullptr);
    ~RunWizard() override;

    /// The run in \a file instead, from the first page on. False, and the run as it was, when it cannot be
    /// read or is none; problem() and the first page say why.
    bool openRun(const QString &file);

    /// One sentence that says why the last openRun() or saving failed; empty when it did not.
    QString problem() const { return problemText; }

    /// What Finish writes to, without asking.
    void setSaveFile(const QString &file);

    /// The file that the run was saved to; empty before.
    QString savedFile() const { return saved; }

    /// The run as it stands.
    const RunPlan &runPlan() const { return plan; }

    /// Saves the run and ends; when it cannot be saved, or the question for the file is cancelled, the wizard
    /// stays open.
    void accept() override;

    /// Ends without saving; asks first when something was changed.
    void reject() override;

signals:
    /// The run has been written to \a file.
    void runSaved(const QString &file);

private:
    void addPages(const QString &folder);
    void start();
    QString askForFile();
    QString refusalOf(const QString &file) const;
    void setProblem(const QString &text);

    DictionaryDocument &document;
    std::unique_ptr<TDmEntity> tree;
    RunPlan plan;
    QByteArray startText; ///< The run before anything was changed.
    QString opened;
    QString saveFile;
    QString saved;
    QString problemText;
    DatabasePage *databasePage = nullptr;
    SummaryPage *summaryPage = nullptr;
};

} // namespace tessel::editor
