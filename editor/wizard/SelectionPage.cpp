#include "editor/wizard/SelectionPage.h"

#include "business/models/SelectionBuilderTreeModel.h"
#include "editor/wizard/ChoiceTree.h"
#include "editor/wizard/RunPlan.h"
#include "editor/wizard/SelectionTreeProxy.h"
#include "editor/wizard/SelectionUnits.h"
#include "editor/wizard/WizardText.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QLabel>
#include <QListWidget>
#include <QSplitter>
#include <QTreeView>
#include <QVBoxLayout>

namespace tessel::editor {

SelectionPage::SelectionPage(const TDmEntity &choiceTree, const RunPlan &runPlan, QWidget *parent)
    : QWizardPage(parent)
    , tree(choiceTree)
    , plan(runPlan)
    , view(new QTreeView(this))
    , variableLabel(new QLabel(this))
    , variableList(new QListWidget(this))
{
    setTitle(tr("Selection"));
    setSubTitle(
        tr("What has been chosen: a tick stands for all variables of an entity, a half tick for some, an "
           "empty box for none."));
    view->setObjectName(QStringLiteral("selectionTree"));
    view->setAccessibleName(tr("Selection"));
    view->setHeaderHidden(true);
    view->setUniformRowHeights(true);
    variableLabel->setObjectName(QStringLiteral("selectionVariablesLabel"));
    variableLabel->setTextFormat(Qt::PlainText);
    variableList->setObjectName(QStringLiteral("selectionVariables"));
    variableList->setAccessibleName(tr("Variables taken of the entity"));
    variableList->setUniformItemSizes(true);

    auto *left = new QWidget(this);
    auto *leftColumn = new QVBoxLayout(left);
    leftColumn->setContentsMargins(0, 0, 0, 0);
    auto *treeLabel = new QLabel(tr("&Selection:"), left);
    treeLabel->setBuddy(view);
    leftColumn->addWidget(treeLabel);
    leftColumn->addWidget(view);
    auto *right = new QWidget(this);
    auto *rightColumn = new QVBoxLayout(right);
    rightColumn->setContentsMargins(0, 0, 0, 0);
    rightColumn->addWidget(variableLabel);
    rightColumn->addWidget(variableList);
    auto *splitter = new QSplitter(this);
    splitter->addWidget(left);
    splitter->addWidget(right);
    splitter->setChildrenCollapsible(false);
    auto *column = new QVBoxLayout(this);
    splitter->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    column->addWidget(splitter);
}

SelectionPage::~SelectionPage() { view->setModel(nullptr); }

void SelectionPage::initializePage()
{
    view->setModel(nullptr);
    proxy.reset();
    model.reset();
    units = std::make_unique<SelectionUnits>(tree, plan);
    model = std::make_unique<SelectionBuilderTreeModel>(nullptr, &units->root(), false, false);
    proxy = std::make_unique<SelectionTreeProxy>(&units->root());
    proxy->setSourceModel(model.get());
    view->setModel(proxy.get());
    view->expandAll();
    connect(
        view->selectionModel(), &QItemSelectionModel::currentChanged, this, &SelectionPage::showVariables);
    view->setCurrentIndex(proxy->index(0, 0));
}

void SelectionPage::showVariables(const QModelIndex &current)
{
    variableList->clear();
    const TDmEntity *entity = units->entityOf(proxy->nodeAt(current));
    variableLabel->setText(entity ? QString() : tr("Go to an entity to see its variables."));
    if (!entity)
        return;
    const QList<TDmVariable *> taken = tickedVariables(*entity);
    for (const TDmVariable *variable : taken)
        variableList->addItem((variable->getName() + QLatin1Char(' ') + variable->getLabel()).trimmed());
    variableLabel->setText(tr("%1: %2").arg(
        entity->getName(), WizardText::share(taken.size(), offeredVariables(*entity).size())));
}

} // namespace tessel::editor
