#include "editor/wizard/SummaryPage.h"

#include "editor/wizard/ChoiceTree.h"
#include "editor/wizard/RunPlan.h"
#include "editor/wizard/WizardText.h"
#include "model/TDmEntity.h"

#include <QDir>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tessel::editor {
namespace {

/// What a run takes of one entity, in numbers.
struct Taken {
    int variables = 0;
    int offered = 0;
};

/// The entities of \a tree by name; what a run takes as a whole is ticked in it variable by variable.
QHash<QString, Taken> takenOf(const TDmEntity &tree)
{
    QHash<QString, Taken> numbers;
    const QList<TDmEntity *> entities = entitiesBelow(tree);
    for (const TDmEntity *entity : entities) {
        if (!numbers.contains(entity->getName()))
            numbers.insert(
                entity->getName(), {tickedVariables(*entity).size(), offeredVariables(*entity).size()});
    }
    return numbers;
}

} // namespace

SummaryPage::SummaryPage(const TDmEntity &choiceTree, RunPlan &runPlan, QWidget *parent)
    : QWizardPage(parent)
    , tree(choiceTree)
    , plan(runPlan)
    , problemLabel(WizardText::faultLabel(QStringLiteral("summaryProblem"), this))
    , targetLabel(WizardText::label(QString(), QStringLiteral("summaryTarget"), this))
    , countLabel(WizardText::label(QString(), QStringLiteral("summaryCount"), this))
    , table(new QTableWidget(0, 4, this))
    , missingLabel(WizardText::label(
          tr("Kept, though the dictionary does not have them:"), QStringLiteral("summaryMissingLabel"), this))
    , missingList(new QListWidget(this))
    , outdatedLabel(WizardText::label(QString(), QStringLiteral("summaryOutdated"), this))
{
    setTitle(tr("Summary"));
    setSubTitle(tr("What Finish writes."));
    table->setObjectName(QStringLiteral("summaryTable"));
    table->setAccessibleName(tr("Entities of the run"));
    table->setHorizontalHeaderLabels({tr("Entity"), tr("Variables"), tr("Record type"), tr("Options")});
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    missingList->setObjectName(QStringLiteral("summaryMissing"));
    missingList->setAccessibleName(tr("Names that the dictionary does not have"));
    outdatedLabel->hide();

    auto *column = new QVBoxLayout(this);
    column->addWidget(problemLabel);
    column->addWidget(targetLabel);
    column->addWidget(countLabel);
    column->addWidget(table, 3);
    column->addWidget(missingLabel);
    column->addWidget(missingList, 1);
    column->addWidget(outdatedLabel);
}

void SummaryPage::setFile(const QString &name)
{
    file = name;
    tell();
}

void SummaryPage::setOutdated(bool on)
{
    WizardText::show(*outdatedLabel,
        on ? tr(
            "The dictionary has been edited since this window was opened; the run is planned on what it held "
            "then.")
           : QString());
}

void SummaryPage::setProblem(const QString &text) { WizardText::show(*problemLabel, text); }

void SummaryPage::initializePage()
{
    setProblem(QString());
    tell();

    const QHash<QString, Taken> numbers = takenOf(tree);
    const QVector<ConfigEntities *> sections = plan.chosen();
    int variables = 0;
    table->setRowCount(sections.size());
    for (int row = 0; row < sections.size(); ++row) {
        const ConfigEntities &section = *sections.at(row);
        const auto found = numbers.constFind(section.getName());
        const Taken taken = found == numbers.constEnd() ? Taken{} : *found;
        variables += taken.variables;
        QStringList options;
        if (section.getCreateCompound())
            options.append(tr("Compound"));
        if (section.getCreateSDC())
            options.append(tr("SDC"));
        if (section.getCheckSequence())
            options.append(tr("Check sequence"));
        const QString texts[] = {section.getName(),
            found == numbers.constEnd() ? tr("not in the dictionary")
                                        : WizardText::share(taken.variables, taken.offered),
            section.getRecType(), options.join(tr(", "))};
        for (int i = 0; i < table->columnCount(); ++i)
            table->setItem(row, i, new QTableWidgetItem(texts[i]));
    }
    table->resizeColumnsToContents();
    if (!sections.isEmpty())
        table->setCurrentCell(0, 0);
    countLabel->setText(tr("The run \"%1\" takes %2 and %3.")
                            .arg(plan.database().getName(), WizardText::entities(sections.size()),
                                WizardText::variables(variables)));

    const QStringList missing = plan.missingIn(tree);
    missingList->clear();
    missingList->addItems(missing);
    missingLabel->setVisible(!missing.isEmpty());
    missingList->setVisible(!missing.isEmpty());
}

void SummaryPage::tell()
{
    targetLabel->setText(file.isEmpty()
            ? tr("The run is written to a file that you are asked for.")
            : tr("The run is written to %1.").arg(QDir::toNativeSeparators(file)));
}

} // namespace tessel::editor
