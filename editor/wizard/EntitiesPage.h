#pragma once

#include <QWizardPage>

class QLabel;
class QTreeView;
class TDmEntity;

namespace tessel::editor {

class EntityTickProxy;
class RunPlan;

/// Second page of the run wizard: the tree of entities, to be ticked with mouse and space bar.
class EntitiesPage : public QWizardPage {
    Q_OBJECT

public:
    /// Borrows \a tree, whose marks it changes, and \a plan, which takes them at once.
    EntitiesPage(TDmEntity &tree, RunPlan &plan, QWidget *parent = nullptr);

    void initializePage() override;

    /// A run has at least one entity; one that the dictionary does not have counts.
    bool isComplete() const override;

private:
    void tell();

    TDmEntity &tree;
    RunPlan &plan;
    EntityTickProxy *proxy;
    QTreeView *view;
    QLabel *countLabel;
};

} // namespace tessel::editor
