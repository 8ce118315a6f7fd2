#pragma once

#include <QWizardPage>

#include <memory>

class QLabel;
class QListWidget;
class QTreeView;
class SelectionBuilderTreeModel;
class TDmEntity;

namespace tessel::editor {

class RunPlan;
class SelectionTreeProxy;
class SelectionUnits;

/// Fourth page of the run wizard: what has been chosen so far, to be looked at: a tree of the ticked entities
/// with the state of each, and the variables taken of the current one.
class SelectionPage : public QWizardPage {
    Q_OBJECT

public:
    /// Borrows \a tree and \a plan and changes neither.
    SelectionPage(const TDmEntity &tree, const RunPlan &plan, QWidget *parent = nullptr);
    ~SelectionPage() override;

    void initializePage() override;

private:
    void showVariables(const QModelIndex &current);

    const TDmEntity &tree;
    const RunPlan &plan;
    std::unique_ptr<SelectionUnits> units;
    std::unique_ptr<SelectionBuilderTreeModel> model;
    std::unique_ptr<SelectionTreeProxy> proxy;
    QTreeView *view;
    QLabel *variableLabel;
    QListWidget *variableList;
};

} // namespace tessel::editor
