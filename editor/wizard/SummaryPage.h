#pragma once

#include <QStringList>
#include <QWizardPage>

class QLabel;
class QListWidget;
class QTableWidget;
class TDmEntity;

namespace tessel::editor {

class RunPlan;

/// Last page of the run wizard: what Finish writes, in numbers and entity by entity. Nothing is changed here.
class SummaryPage : public QWizardPage {
    Q_OBJECT

public:
    /// Borrows \a tree and \a plan and changes neither.
    SummaryPage(const TDmEntity &tree, RunPlan &plan, QWidget *parent = nullptr);

    /// The file that Finish writes to; empty: it will be asked for.
    void setFile(const QString &name);

    /// Whether the dictionary has been edited since its copy was made for the wizard.
    void setOutdated(bool on);

    /// A sentence that says why the run was not saved; empty: all is well.
    void setProblem(const QString &text);

    void initializePage() override;

private:
    void tell();

    const TDmEntity &tree;
    RunPlan &plan;
    QString file;
    QLabel *problemLabel;
    QLabel *targetLabel;
    QLabel *countLabel;
    QTableWidget *table;
    QLabel *missingLabel;
    QListWidget *missingList;
    QLabel *outdatedLabel;
};

} // namespace tessel::editor
