#include "editor/wizard/VariablesPage.h"

#include "business/models/VariableModel.h"
#include "business/models/VariablesProxyModel.h"
#include "editor/wizard/ChoiceTree.h"
#include "editor/wizard/RunPlan.h"
#include "editor/views/SearchLine.h"
#include "editor/wizard/WizardText.h"
#include "model/TDmEntity.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace tessel::editor {
namespace {

QPushButton *newButton(
    const QString &text, const QString &objectName, const QString &meaning, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(objectName);
    button->setAccessibleName(meaning);
    button->setToolTip(meaning);
    button->setAutoDefault(false);
    return button;
}

} // namespace

VariablesPage::VariablesPage(TDmEntity &choiceTree, RunPlan &runPlan, QWidget *parent)
    : QWizardPage(parent)
    , tree(choiceTree)
    , plan(runPlan)
    , proxy(new VariablesProxyModel(this))
    , entityList(new QListWidget(this))
    , allBox(new QCheckBox(tr("All &variables of this entity"), this))
    , search(new SearchLine(this))
    , shownLabel(WizardText::label(QString(), QStringLiteral("shownCount"), this))
    , table(new QTableView(this))
    , allButton(
          newButton(tr("&All"), QStringLiteral("tickAll"), tr("Tick all variables that are shown"), this))
    , noneButton(
          newButton(tr("N&one"), QStringLiteral("tickNone"), tr("Untick all variables that are shown"), this))
    , invertButton(newButton(
          tr("&Invert"), QStringLiteral("tickInvert"), tr("Turn the ticks that are shown over"), this))
{
    setTitle(tr("Variables"));
    setSubTitle(
        tr("Which variables of each entity are taken. Those that hold its code, label and weight need "
           "not be chosen."));
    layOut();
    connectAll();
}

VariablesPage::~VariablesPage()
{
    // The model goes before the views do.
    proxy->setSourceModel(nullptr);
}

void VariablesPage::layOut()
{
    entityList->setObjectName(QStringLiteral("tickedEntities"));
    entityList->setAccessibleName(tr("Ticked entities"));
    allBox->setObjectName(QStringLiteral("allVariables"));
    allBox->setAccessibleName(tr("All variables of this entity"));
    allBox->setToolTip(tr("Takes every variable, also those that the dictionary gets later."));
    search->setPlaceholderText(tr("Search name, label, alias, group…"));
    search->setObjectName(QStringLiteral("variableSearch"));
    search->setAccessibleName(tr("Search variables"));
    shownLabel->setWordWrap(false);
    table->setObjectName(QStringLiteral("variableTable"));
    table->setAccessibleName(tr("Variables of the entity"));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setModel(proxy);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    // The order of the record, until a header is clicked.
    table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    table->setSortingEnabled(true);
    table->setTabKeyNavigation(false);

    auto *left = new QWidget(this);
    auto *leftColumn = new QVBoxLayout(left);
    leftColumn->setContentsMargins(0, 0, 0, 0);
    auto *entityLabel = new QLabel(tr("&Entity:"), left);
    entityLabel->setBuddy(entityList);
    leftColumn->addWidget(entityLabel);
    leftColumn->addWidget(entityList);

    auto *right = new QWidget(this);
    auto *searchLabel = new QLabel(tr("&Search:"), right);
    searchLabel->setBuddy(search);
    auto *searchRow = new QHBoxLayout;
    searchRow->addWidget(searchLabel);
    searchRow->addWidget(search, 1);
    searchRow->addWidget(shownLabel);
    auto *buttonRow = new QHBoxLayout;
    for (QPushButton *button : {allButton, noneButton, invertButton})
        buttonRow->addWidget(button);
    buttonRow->addStretch();
    auto *rightColumn = new QVBoxLayout(right);
    rightColumn->setContentsMargins(0, 0, 0, 0);
    rightColumn->addWidget(allBox);
    rightColumn->addLayout(searchRow);
    rightColumn->addWidget(table);
    rightColumn->addLayout(buttonRow);

    auto *splitter = new QSplitter(this);
    splitter->addWidget(left);
    splitter->addWidget(right);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({200, 500});
    auto *column = new QVBoxLayout(this);
    splitter->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    column->addWidget(splitter);

    QWidget::setTabOrder(entityList, allBox);
    QWidget::setTabOrder(allBox, search);
    QWidget::setTabOrder(search, table);
    QWidget::setTabOrder(table, allButton);
}

void VariablesPage::connectAll()
{
    connect(entityList, &QListWidget::currentRowChanged, this, &VariablesPage::showEntity);
    connect(allBox, &QCheckBox::toggled, this, [this](bool on) {
        TDmEntity *entity = currentEntity();
        if (!entity)
            return;
        plan.setAllVariables(*entity, on);
        table->viewport()->update();
        tellEntity();
    });
    connect(search, &SearchLine::patternChanged, this, [this](const QRegExp &pattern) {
        proxy->setFilterRegExp(pattern);
        tellShown();
    });
    connect(search, &SearchLine::left, this, [this] {
        if (!table->currentIndex().isValid())
            table->setCurrentIndex(proxy->index(0, 0));
        table->setFocus(Qt::OtherFocusReason);
    });
    connect(allButton, &QPushButton::clicked, this, [this] { tickShown(Ticks::All); });
    connect(noneButton, &QPushButton::clicked, this, [this] { tickShown(Ticks::None); });
    connect(invertButton, &QPushButton::clicked, this, [this] { tickShown(Ticks::Invert); });
    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this, [this] {
        search->setFocus(Qt::ShortcutFocusReason);
        search->selectAll();
    });
    table->installEventFilter(this);
}

void VariablesPage::initializePage()
{
    const QString before = currentEntity() ? currentEntity()->getName() : QString();
    const QSignalBlocker blocker(entityList);
    entityList->clear();
    entities.clear();
    int row = 0;
    const QList<TDmEntity *> all = entitiesBelow(tree);
    for (TDmEntity *entity : all) {
        if (!entity->getSelectable())
            continue;
        if (entity->getName() == before)
            row = entities.size();
        entities.append(entity);
        entityList->addItem(QString());
        entityList->setCurrentRow(entities.size() - 1);
        tellEntity();
    }
    entityList->setCurrentRow(entities.isEmpty() ? -1 : row);
    showEntity();
}

TDmEntity *VariablesPage::currentEntity() const { return entities.value(entityList->currentRow()); }

void VariablesPage::showEntity()
{
    TDmEntity *entity = currentEntity();
    proxy->setSourceModel(nullptr);
    model = entity ? std::make_unique<VariableModel>(nullptr, entity, entity->getVariables()) : nullptr;
    if (model) {
        proxy->setSourceModel(model.get());
        connect(model.get(), &VariableModel::dataChanged, this, &VariablesPage::takeTicks);
        table->resizeColumnsToContents();
        table->setCurrentIndex(proxy->index(0, 0));
    }
    for (QWidget *widget : {static_cast<QWidget *>(allBox), static_cast<QWidget *>(allButton),
             static_cast<QWidget *>(noneButton), static_cast<QWidget *>(invertButton)})
        widget->setEnabled(entity);
    tellEntity();
    tellShown();
}

void VariablesPage::tickShown(Ticks ticks)
{
    // The whole choice is taken once, not row by row.
    isTickingMany = true;
    bool isChanged = false;
    for (int row = 0; row < proxy->rowCount(); ++row) {
        const QModelIndex cell = proxy->index(row, 0);
        const bool isTicked = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        // The model turns the tick over, whatever it is asked for.
        if (ticks == Ticks::Invert || isTicked != (ticks == Ticks::All))
            isChanged = proxy->setData(cell, QVariant(), Qt::CheckStateRole) || isChanged;
    }
    isTickingMany = false;
    if (isChanged)
        takeTicks();
}

void VariablesPage::takeTicks()
{
    if (isTickingMany)
        return;
    plan.takeVariables(*currentEntity());
    tellEntity();
}

void VariablesPage::tellEntity()
{
    const TDmEntity *entity = currentEntity();
    if (!entity)
        return;
    const bool isAll = plan.takesAllVariables(entity->getName());
    const int offered = offeredVariables(*entity).size();
    entityList->currentItem()->setText(isAll
            ? tr("%1 (all)").arg(entity->getName())
            : tr("%1 (%2)").arg(
                entity->getName(), WizardText::share(tickedVariables(*entity).size(), offered)));
    const QSignalBlocker blocker(allBox);
    allBox->setChecked(isAll);
}

void VariablesPage::tellShown()
{
    const QString share = WizardText::share(proxy->rowCount(), model ? model->rowCount() : 0);
    shownLabel->setText(search->isBad() ? tr("%1, not a valid pattern").arg(share) : share);
}

bool VariablesPage::eventFilter(QObject *watched, QEvent *event)
{
    // The space bar ticks the row, in whatever column the cursor is.
    if (watched == table && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
        const QModelIndex current = table->currentIndex();
        if (current.isValid())
            proxy->setData(current.siblingAtColumn(0), QVariant(), Qt::CheckStateRole);
        return true;
    }
    return QWizardPage::eventFilter(watched, event);
}

} // namespace tessel::editor
