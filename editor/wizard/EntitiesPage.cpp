#include "editor/wizard/EntitiesPage.h"

#include "business/models/dictionaryTreeModelDownload.h"
#include "editor/wizard/ChoiceTree.h"
#include "editor/wizard/EntityTickProxy.h"
#include "editor/wizard/RunPlan.h"
#include "editor/wizard/WizardText.h"

#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace tessel::editor {

EntitiesPage::EntitiesPage(TDmEntity &choiceTree, RunPlan &runPlan, QWidget *parent)
    : QWizardPage(parent)
    , tree(choiceTree)
    , plan(runPlan)
    , proxy(new EntityTickProxy(&tree, this))
    , view(new QTreeView(this))
    , countLabel(WizardText::label(QString(), QStringLiteral("entityCount"), this))
{
    setTitle(tr("Entities"));
    setSubTitle(tr("Which entities of the dictionary take part in the run."));
    proxy->setSourceModel(new dictionaryTreeModelDownload(proxy, &tree));
    view->setObjectName(QStringLiteral("entityTree"));
    view->setAccessibleName(tr("Entities of the run"));
    view->setUniformRowHeights(true);
    view->setModel(proxy);
    // The dictionary itself is no entity.
    view->setRootIndex(proxy->indexOf(&tree));
    view->expandAll();

    auto *label = new QLabel(tr("&Tick the entities, with the mouse or the space bar:"), this);
    label->setBuddy(view);
    auto *column = new QVBoxLayout(this);
    column->addWidget(label);
    column->addWidget(view);
    column->addWidget(countLabel);
    connect(proxy, &EntityTickProxy::ticked, this, [this] {
        plan.takeEntities(tree);
        tell();
    });
}

void EntitiesPage::initializePage()
{
    if (!view->currentIndex().isValid())
        view->setCurrentIndex(proxy->index(0, 0, view->rootIndex()));
    view->viewport()->update();
    tell();
}

bool EntitiesPage::isComplete() const { return plan.chosenCount() > 0; }

void EntitiesPage::tell()
{
    const QList<TDmEntity *> entities = entitiesBelow(tree);
    const auto ticked = std::count_if(
        entities.cbegin(), entities.cend(), [](const TDmEntity *entity) { return entity->getSelectable(); });
    QString text = tr("%1 ticked.").arg(WizardText::share(int(ticked), entities.size()));
    if (entities.isEmpty())
        text = tr("The dictionary has no entities yet; add some before you plan a run.");
    else if (!isComplete())
        text += QLatin1Char(' ') + tr("Tick at least one entity to go on.");
    countLabel->setText(text);
    emit completeChanged();
}

} // namespace tessel::editor
