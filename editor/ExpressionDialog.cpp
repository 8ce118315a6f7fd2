#include "editor/ExpressionDialog.h"

#include "business/models/CategoryExpressionModel.h"
#include "business/models/EntityExpressionModel.h"
#include "business/models/VariableExpressionModel.h"
#include "editor/ExpressionEdit.h"
#include "editor/ExpressionText.h"
#include "editor/OperatorBar.h"
#include "editor/PickList.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"
#include "model/ValueLabelElement.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace tessel::editor {
namespace {

template<typename Item>
Item *itemOf(const QModelIndex &index)
{
    return index.isValid() ? static_cast<Item *>(index.internalPointer()) : nullptr;
}

/// The row of \a item in \a items; the first where it is not there.
template<typename Item>
int rowOf(const QList<Item *> &items, const Item *item)
{
    return std::max(0, items.indexOf(const_cast<Item *>(item)));
}

QString withoutMnemonic(QString text) { return text.remove(QLatin1Char('&')); }

} // namespace

ExpressionDialog::ExpressionDialog(TDmEntity &treeRoot, QWidget *parent)
    : QDialog(parent)
    , root(treeRoot)
    , choice(new QComboBox(this))
    , entities(new PickList([](const QModelIndex &index) { return termOf(*itemOf<TDmEntity>(index)); }, this))
    , variables(new PickList(
          [this](const QModelIndex &index) { return termOf(*currentEntity(), *itemOf<TDmVariable>(index)); },
          this))
    , categories(new PickList(
          [this](const QModelIndex &index) {
              return termOf(*currentVariable(), *itemOf<ValueLabelElement>(index));
          },
          this))
    , edit(new ExpressionEdit(this))
    , copy(new QPushButton(tr("&Copy to clipboard"), this))
    , status(new QLabel(this))
{
    setWindowTitle(tr("Expression"));
    setObjectName(QStringLiteral("expressionDialog"));
    edit->setObjectName(QStringLiteral("expressionText"));
    edit->setAccessibleName(tr("Expression"));
    edit->setPlaceholderText(tr("Double-click in the lists, drag from them, or write here."));
    auto *title = new QLabel(tr("E&xpression:"), this);
    title->setBuddy(edit);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(makeChoice());
    layout->addWidget(makeLists(), 3);
    layout->addWidget(makeOperators());
    layout->addWidget(title);
    layout->addWidget(edit, 1);
    addTabStop(edit);
    makeButtons(*layout);
    makeKeys();

    connect(entities, &PickList::rowChosen, this, &ExpressionDialog::showVariables);
    connect(variables, &PickList::rowChosen, this, &ExpressionDialog::showCategories);
    connect(
        choice, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ExpressionDialog::showEntities);
    connect(edit, &ExpressionEdit::textChanged, this, &ExpressionDialog::followText);
    showEntities();
    followText();
    entities->setFocus();
    resize(820, 560);
}

QString ExpressionDialog::text() const { return edit->text(); }

void ExpressionDialog::setText(const QString &text)
{
    edit->setPlainText(text);
    edit->moveCursor(QTextCursor::End);
}

void ExpressionDialog::copyText()
{
    if (text().isEmpty())
        return;
    QGuiApplication::clipboard()->setText(text());
    status->setText(tr("The expression is on the clipboard."));
}

QWidget *ExpressionDialog::makeChoice()
{
    auto *row = new QWidget(this);
    auto *title = new QLabel(tr("&Show:"), row);
    title->setBuddy(choice);
    choice->setObjectName(QStringLiteral("show"));
    choice->setAccessibleName(tr("Show entities and variables by"));
    addTabStop(choice);
    choice->addItem(tr("Names"), ShowName);
    choice->addItem(tr("Labels"), ShowLabel);
    choice->addItem(tr("Names and labels"), ShowNameAndLabel);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(choice);
    layout->addStretch();
    return row;
}

QWidget *ExpressionDialog::makeLists()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(
        makeColumn(entities, tr("&Entities"), tr("&Insert entity"), QStringLiteral("entities")));
    layout->addWidget(
        makeColumn(variables, tr("&Variables"), tr("Insert va&riable"), QStringLiteral("variables")));
    layout->addWidget(
        makeColumn(categories, tr("Ca&tegories"), tr("Insert cate&gory"), QStringLiteral("categories")));
    return row;
}

QWidget *ExpressionDialog::makeColumn(
    PickList *list, const QString &title, const QString &insert, const QString &name)
{
    auto *column = new QWidget(this);
    auto *caption = new QLabel(title, column);
    caption->setBuddy(list);
    list->setObjectName(name);
    list->setAccessibleName(withoutMnemonic(title));
    auto *button = new QPushButton(insert, column);
    button->setObjectName(QStringLiteral("insert-%1").arg(name));
    button->setAccessibleName(withoutMnemonic(insert));
    // Return belongs to the lists and the text.
    button->setAutoDefault(false);
    addTabStop(list);
    addTabStop(button);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(list, 1);
    layout->addWidget(button);
    connect(list, &PickList::picked, edit, &ExpressionEdit::insertTerm);
    connect(button, &QPushButton::clicked, edit, [this, list] { edit->insertTerm(list->currentTerm()); });
    connect(list, &PickList::rowChosen, button, [list, button] {
        const QString term = list->currentTerm();
        button->setEnabled(!term.isEmpty());
        // Codes may look like markup; a tool tip must not take them for that.
        button->setToolTip(term.isEmpty()
                ? QString()
                : Qt::convertFromPlainText(tr("Inserts %1 at the cursor.").arg(term), Qt::WhiteSpaceNormal));
    });
    return column;
}

QWidget *ExpressionDialog::makeOperators()
{
    auto *bar = new OperatorBar(this);
    connect(bar, &OperatorBar::picked, edit, &ExpressionEdit::insertTerm);
    const QList<QAbstractButton *> buttons = bar->buttons();
    for (QAbstractButton *button : buttons)
        addTabStop(button);
    return bar;
}

void ExpressionDialog::makeButtons(QBoxLayout &layout)
{
    status->setObjectName(QStringLiteral("status"));
    copy->setObjectName(QStringLiteral("copy"));
    copy->setAccessibleName(tr("Copy to clipboard"));
    copy->setAutoDefault(false);
    auto *close = new QPushButton(tr("C&lose"), this);
    close->setObjectName(QStringLiteral("close"));
    close->setAccessibleName(tr("Close"));
    close->setAutoDefault(false);
    addTabStop(copy);
    addTabStop(close);
    auto *row = new QHBoxLayout;
    row->addWidget(status, 1);
    row->addWidget(copy);
    row->addWidget(close);
    layout.addLayout(row);
    connect(copy, &QPushButton::clicked, this, &ExpressionDialog::copyText);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
}

void ExpressionDialog::makeKeys()
{
    const QKeySequence copyKey(tr("Ctrl+Shift+C"));
    copy->setToolTip(tr("Copies the whole expression (%1).").arg(copyKey.toString(QKeySequence::NativeText)));
    // Actions, because a shortcut of its own would have only the first of a platform's keys for undo and
    // redo. After an insertion the focus is still in the list; the text takes these two itself when it has
    // it.
    auto *copyAction = new QAction(this);
    copyAction->setShortcut(copyKey);
    connect(copyAction, &QAction::triggered, this, &ExpressionDialog::copyText);
    auto *undo = new QAction(this);
    undo->setShortcuts(QKeySequence::Undo);
    connect(undo, &QAction::triggered, edit, &ExpressionEdit::undo);
    auto *redo = new QAction(this);
    redo->setShortcuts(QKeySequence::Redo);
    connect(redo, &QAction::triggered, edit, &ExpressionEdit::redo);
    addActions({copyAction, undo, redo});
}

void ExpressionDialog::addTabStop(QWidget *widget)
{
    if (lastTabStop)
        setTabOrder(lastTabStop, widget);
    lastTabStop = widget;
}

void ExpressionDialog::showEntities()
{
    // Another way of showing keeps what is chosen, down to the category.
    const TDmVariable *variable = currentVariable();
    const ValueLabelElement *category = itemOf<ValueLabelElement>(categories->currentIndex());
    QList<TDmEntity *> items = entitiesForExpressions(root);
    const int row = rowOf(items, currentEntity());
    entities->showRows(std::make_unique<EntityExpressionModel>(nullptr, &items, mode()), row,
        tr("The dictionary has no entities yet."));
    if (variable) {
        variables->setCurrentIndex(
            variables->model()->index(rowOf(*currentEntity()->getVariables(), variable), 0));
    }
    if (category) {
        categories->setCurrentIndex(
            categories->model()->index(rowOf(*currentVariable()->getValueLabelElementList(), category), 0));
    }
}

void ExpressionDialog::showVariables()
{
    TDmEntity *entity = currentEntity();
    const QString hint = entity ? tr("%1 has no variables.").arg(entity->getName())
                                : tr("The variables of an entity are shown here.");
    variables->showRows(
        std::make_unique<VariableExpressionModel>(nullptr, entity ? entity->getVariables() : nullptr, mode()),
        0, hint);
}

void ExpressionDialog::showCategories()
{
    TDmVariable *variable = currentVariable();
    const QString hint = variable ? tr("%1 has no categories.").arg(variable->getName())
                                  : tr("The categories of a variable are shown here.");
    categories->showRows(std::make_unique<CategoryExpressionModel>(
                             nullptr, variable ? variable->getValueLabelElementList() : nullptr, mode()),
        0, hint);
}

void ExpressionDialog::followText()
{
    copy->setEnabled(!text().isEmpty());
    status->clear();
}

eEntityShowMode ExpressionDialog::mode() const { return eEntityShowMode(choice->currentData().toInt()); }

TDmEntity *ExpressionDialog::currentEntity() const { return itemOf<TDmEntity>(entities->currentIndex()); }

TDmVariable *ExpressionDialog::currentVariable() const
{
    return itemOf<TDmVariable>(variables->currentIndex());
}

} // namespace tessel::editor
