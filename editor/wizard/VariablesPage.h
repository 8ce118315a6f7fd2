#pragma once

#include <QList>
#include <QWizardPage>

#include <memory>

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;
class QTableView;
class TDmEntity;
class VariableModel;
class VariablesProxyModel;

namespace tessel::editor {

class RunPlan;
class SearchLine;

/// Third page of the run wizard: the variables of each ticked entity, to be ticked one by one, all that a
/// search has found at once, or all of the entity whatever it will hold.
class VariablesPage : public QWizardPage {
    Q_OBJECT

public:
    /// Borrows \a tree, whose marks it changes, and \a plan, which takes them at once.
    VariablesPage(TDmEntity &tree, RunPlan &plan, QWidget *parent = nullptr);
    ~VariablesPage() override;

    void initializePage() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Ticks { All, None, Invert };

    void layOut();
    void connectAll();
    TDmEntity *currentEntity() const;
    void showEntity();
    void tickShown(Ticks ticks);
    void takeTicks();
    void tellEntity();
    void tellShown();

    TDmEntity &tree;
    RunPlan &plan;
    QList<TDmEntity *> entities; ///< The ticked ones, one for each row of the list.
    std::unique_ptr<VariableModel> model; ///< Of the entity that is shown.
    VariablesProxyModel *proxy;
    QListWidget *entityList;
    QCheckBox *allBox;
    SearchLine *search;
    QLabel *shownLabel;
    QTableView *table;
    QPushButton *allButton;
    QPushButton *noneButton;
    QPushButton *invertButton;
    bool isTickingMany = false;
};

} // namespace tessel::editor
