#include "editor/wizard/OptionsPage.h"

#include "editor/wizard/RunPlan.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tessel::editor {
namespace {

enum Column { EntityColumn, RecordColumn, CompoundColumn, SdcColumn, SequenceColumn, ColumnCount };

/// One switch of an entity: where it stands and how it is read and set.
struct Switch {
    Column column;
    bool (ConfigEntities::*get)() const;
    void (ConfigEntities::*set)(bool);
};

constexpr Switch kSwitches[] = {
    {CompoundColumn, &ConfigEntities::getCreateCompound, &ConfigEntities::setCreateCompound},
    {SdcColumn, &ConfigEntities::getCreateSDC, &ConfigEntities::setCreateSDC},
    {SequenceColumn, &ConfigEntities::getCheckSequence, &ConfigEntities::setCheckSequence},
};

} // namespace

OptionsPage::OptionsPage(RunPlan &runPlan, QWidget *parent)
    : QWizardPage(parent)
    , plan(runPlan)
    , inRangeBox(new QCheckBox(tr("Create not-applicable and &missing codes inside the ranges"), this))
    , noRangesBox(new QCheckBox(tr("Create no &ranges"), this))
    , table(new QTableWidget(0, ColumnCount, this))
{
    setTitle(tr("Options"));
    setSubTitle(tr("How the database is built, as a whole and entity by entity."));
    inRangeBox->setObjectName(QStringLiteral("createNotAppMissingInRange"));
    inRangeBox->setAccessibleName(tr("Create not-applicable and missing codes inside the ranges"));
    noRangesBox->setObjectName(QStringLiteral("createNoRanges"));
    noRangesBox->setAccessibleName(tr("Create no ranges"));
    table->setObjectName(QStringLiteral("entityOptions"));
    table->setAccessibleName(tr("Options of each entity"));
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->setHorizontalHeaderLabels(
        {tr("Entity"), tr("Record type"), tr("Compound"), tr("SDC"), tr("Check sequence")});
    table->horizontalHeaderItem(RecordColumn)
        ->setToolTip(tr("The record type that tells the entity's records in the source file."));
    table->horizontalHeaderItem(CompoundColumn)
        ->setToolTip(tr("Handed on to the program that builds the database, as createCompound."));
    table->horizontalHeaderItem(SdcColumn)->setToolTip(
        tr("Handed on to the program that builds the database, as createSDC."));
    table->horizontalHeaderItem(SequenceColumn)
        ->setToolTip(tr("The sequence of the entity's records is checked."));

    auto *label = new QLabel(tr("&Options of each entity:"), this);
    label->setBuddy(table);
    auto *column = new QVBoxLayout(this);
    column->addWidget(inRangeBox);
    column->addWidget(noRangesBox);
    column->addWidget(label);
    column->addWidget(table);

    connect(inRangeBox, &QCheckBox::toggled, this,
        [this](bool on) { plan.options().setCreateNotAppMissingInRange(on); });
    connect(
        noRangesBox, &QCheckBox::toggled, this, [this](bool on) { plan.options().setCreateNoRanges(on); });
    connect(table, &QTableWidget::itemChanged, this, &OptionsPage::take);
    table->installEventFilter(this);
}

void OptionsPage::initializePage()
{
    const ConfigOptions options = plan.options();
    inRangeBox->setChecked(options.getCreateNotAppMissingInRange());
    noRangesBox->setChecked(options.getCreateNoRanges());

    const QSignalBlocker blocker(table);
    const QVector<ConfigEntities *> sections = plan.chosen();
    table->setRowCount(sections.size());
    for (int row = 0; row < sections.size(); ++row) {
        const ConfigEntities &section = *sections.at(row);
        auto *name = new QTableWidgetItem(section.getName());
        name->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        table->setItem(row, EntityColumn, name);
        table->setItem(row, RecordColumn, new QTableWidgetItem(section.getRecType()));
        for (const Switch &option : kSwitches) {
            auto *item = new QTableWidgetItem;
            item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
            item->setCheckState((section.*option.get)() ? Qt::Checked : Qt::Unchecked);
            item->setData(Qt::AccessibleTextRole,
                tr("%1 of %2").arg(table->horizontalHeaderItem(option.column)->text(), section.getName()));
            table->setItem(row, option.column, item);
        }
    }
    table->resizeColumnsToContents();
    if (table->currentRow() < 0 && !sections.isEmpty())
        table->setCurrentCell(0, RecordColumn);
}

void OptionsPage::take(const QTableWidgetItem *item)
{
    ConfigEntities *section = plan.chosen().value(item->row());
    if (!section)
        return;
    if (item->column() == RecordColumn)
        section->setRecType(item->text().trimmed());
    for (const Switch &option : kSwitches) {
        if (option.column == item->column())
            (section->*option.set)(item->checkState() == Qt::Checked);
    }
}

bool OptionsPage::eventFilter(QObject *watched, QEvent *event)
{
    // Enter opens the cell for typing and closes it again; it would press the wizard's button else.
    if (watched == table && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        QTableWidgetItem *item = table->currentItem();
        if (item && item->column() == RecordColumn && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            // The key that ends the typing comes by here too, before the editor is gone.
            if (!table->isPersistentEditorOpen(item))
                table->editItem(item);
            return true;
        }
    }
    return QWizardPage::eventFilter(watched, event);
}

} // namespace tessel::editor
