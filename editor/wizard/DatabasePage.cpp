#include "editor/wizard/DatabasePage.h"

#include "editor/wizard/PathField.h"
#include "editor/wizard/RunPlan.h"
#include "editor/wizard/WizardText.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace tessel::editor {
namespace {

QListWidget *newNoteList(const QString &objectName, const QString &accessibleName, QWidget *parent)
{
    auto *list = new QListWidget(parent);
    list->setObjectName(objectName);
    list->setAccessibleName(accessibleName);
    list->hide();
    return list;
}

void showNote(QLabel &label, const QString &text, QListWidget &list, const QStringList &lines)
{
    WizardText::show(label, lines.isEmpty() ? QString() : text);
    list.clear();
    list.addItems(lines);
    list.setVisible(!lines.isEmpty());
    if (!lines.isEmpty())
        list.setCurrentRow(0);
}

} // namespace

DatabasePage::DatabasePage(RunPlan &runPlan, QWidget *parent)
    : QWizardPage(parent)
    , plan(runPlan)
    , problemLabel(WizardText::faultLabel(QStringLiteral("databaseProblem"), this))
    , nameLine(new QLineEdit(this))
    , folderField(new PathField(PathField::Kind::Folder, QStringLiteral("databaseFolder"), tr("B&rowse…"),
          tr("Choose the folder of the database"), this))
    , sourceField(new PathField(PathField::Kind::File, QStringLiteral("databaseSource"), tr("Bro&wse…"),
          tr("Choose the source file"), this))
    , hintLabel(WizardText::label(QString(), QStringLiteral("databaseHint"), this))
    , missingLabel(WizardText::label(QString(), QStringLiteral("missingLabel"), this))
    , missingList(
          newNoteList(QStringLiteral("missingList"), tr("Names that the dictionary does not have"), this))
    , lossLabel(WizardText::label(QString(), QStringLiteral("lossLabel"), this))
    , lossList(newNoteList(QStringLiteral("lossList"), tr("Values that saving does not keep"), this))
{
    setTitle(tr("Database"));
    setSubTitle(tr("Which database is built, where, and from which source file."));
    nameLine->setObjectName(QStringLiteral("databaseNameLine"));
    nameLine->setAccessibleName(tr("Database name"));
    folderField->line()->setAccessibleName(tr("Folder"));
    folderField->line()->setToolTip(tr("The folder in which the database is built."));
    sourceField->line()->setAccessibleName(tr("Source file"));
    sourceField->line()->setToolTip(tr("The main source file, whose records the dictionary describes."));

    auto *form = new QFormLayout;
    form->addRow(tr("&Database name:"), nameLine);
    form->addRow(tr("F&older:"), folderField);
    form->addRow(tr("&Source file:"), sourceField);
    for (const auto &[field, line] : {std::pair<QWidget *, QLineEdit *>{folderField, folderField->line()},
             std::pair<QWidget *, QLineEdit *>{sourceField, sourceField->line()}})
        qobject_cast<QLabel *>(form->labelForField(field))->setBuddy(line);

    auto *column = new QVBoxLayout(this);
    column->addWidget(problemLabel);
    column->addLayout(form);
    column->addWidget(hintLabel);
    column->addWidget(missingLabel);
    column->addWidget(missingList);
    column->addWidget(lossLabel);
    column->addWidget(lossList);
    column->addStretch();
    missingLabel->hide();
    lossLabel->hide();
    connectLines();
}

void DatabasePage::connectLines()
{
    connect(nameLine, &QLineEdit::textChanged, this, [this](const QString &text) {
        plan.database().setName(text.trimmed());
        WizardText::show(*hintLabel, isComplete() ? QString() : tr("Give the database a name to go on."));
        emit completeChanged();
    });
    connect(folderField->line(), &QLineEdit::textChanged, this,
        [this](const QString &text) { plan.database().setFolder(text); });
    connect(sourceField->line(), &QLineEdit::textChanged, this,
        [this](const QString &text) { plan.database().setSourceFile(text); });
}

void DatabasePage::setStartFolder(const QString &start)
{
    folderField->setStartFolder(start);
    sourceField->setStartFolder(start);
}

void DatabasePage::setNotes(const QStringList &missing, const QStringList &losses)
{
    showNote(*missingLabel,
        tr("The run names what the dictionary does not have; it is kept when the run is saved:"),
        *missingList, missing);
    showNote(*lossLabel, tr("Saving loses or changes these values of the file:"), *lossList, losses);
}

void DatabasePage::setProblem(const QString &text) { WizardText::show(*problemLabel, text); }

void DatabasePage::initializePage()
{
    // Not by reference: the lines write into the plan as they are filled.
    const ConfigDb database = plan.database();
    nameLine->setText(database.getName());
    folderField->line()->setText(database.getFolder());
    sourceField->line()->setText(database.getSourceFile());
    WizardText::show(*hintLabel, isComplete() ? QString() : tr("Give the database a name to go on."));
    emit completeChanged();
}

bool DatabasePage::isComplete() const { return !plan.database().getName().trimmed().isEmpty(); }

} // namespace tessel::editor
