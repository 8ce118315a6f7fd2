#pragma once

#include <QStringList>
#include <QWizardPage>

class QLabel;
class QLineEdit;
class QListWidget;

namespace tessel::editor {

class PathField;
class RunPlan;

/// First page of the run wizard: the database that is built, and what of an opened run the dictionary does
/// not have or saving does not keep.
class DatabasePage : public QWizardPage {
    Q_OBJECT

public:
    /// Borrows \a plan, which takes what is typed at once.
    explicit DatabasePage(RunPlan &plan, QWidget *parent = nullptr);

    /// Where Browse… starts while nothing better is typed.
    void setStartFolder(const QString &start);

    /// Lists the names in \a missing, which the dictionary does not have, and \a losses, one sentence each;
    /// nothing is shown of an empty list.
    void setNotes(const QStringList &missing, const QStringList &losses);

    /// A sentence that says why no run was opened; empty: all is well.
    void setProblem(const QString &text);

    void initializePage() override;

    /// A database needs a name; the rest may be left to the program that builds it.
    bool isComplete() const override;

private:
    void connectLines();

    RunPlan &plan;
    QLabel *problemLabel;
    QLineEdit *nameLine;
    PathField *folderField;
    PathField *sourceField;
    QLabel *hintLabel;
    QLabel *missingLabel;
    QListWidget *missingList;
    QLabel *lossLabel;
    QListWidget *lossList;
};

} // namespace tessel::editor
