// The window's menus and tool bar: every action has a key, and every key stands in a menu.
#include "editor/AboutBox.h"
#include "editor/CopyLabelsDialog.h"
#include "editor/DictionaryDocument.h"
#include "editor/ExpressionDialog.h"
#include "editor/FileHandling.h"
#include "editor/Languages.h"
#include "editor/MainWindow.h"
#include "editor/Settings.h"
#include "editor/Structure.h"
#include "editor/views/EntityPane.h"
#include "editor/views/LabelPane.h"
#include "editor/views/NoticeBar.h"
#include "editor/views/ProblemsPane.h"
#include "editor/views/RangePane.h"
#include "editor/views/SearchField.h"
#include "editor/views/SourcesPane.h"
#include "editor/views/TableView.h"
#include "editor/views/VariablePane.h"
#include "editor/wizard/RunWizard.h"
#include "model/TDmVariable.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QFileDialog>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeView>

namespace tessel::editor {
namespace {

QIcon iconOf(const char *name)
{
    return QIcon(QStringLiteral(":/editor/icons/%1.png").arg(QLatin1String(name)));
}

/// An action of \a menu with key and icon; its tool tip names the key.
QAction *add(QMenu *menu, const QString &text, const char *icon, const QKeySequence &key, const QString &name)
{
    QAction *action = menu->addAction(text);
    if (icon)
        action->setIcon(iconOf(icon));
    action->setShortcut(key);
    action->setObjectName(name);
    // Keys do not move the focus: what is being typed is stored before anything is done.
    QObject::connect(action, &QAction::triggered, action, [] { FileHandling::finishTyping(); });
    return action;
}

/// Shows \a step behind \a verb ("Undo rename AGE"), letter by letter.
void nameStep(QAction *action, const QString &verb, const QString &step)
{
    action->setText(step.isEmpty()
            ? verb
            : verb + QLatin1Char(' ') + QString(step).replace(QLatin1Char('&'), QLatin1String("&&")));
}

} // namespace

void MainWindow::makeFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    QToolBar *bar = addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setIconSize({22, 22});

    QAction *create = add(menu, tr("&New"), "new", QKeySequence::New, QStringLiteral("new"));
    QAction *open = add(menu, tr("&Open…"), "open", QKeySequence::Open, QStringLiteral("open"));
    QMenu *recent = menu->addMenu(tr("Open &recent"));
    QAction *sample = add(menu, tr("Open the sa&mple census"), nullptr, {}, QStringLiteral("sample"));
    menu->addSeparator();
    QAction *save = add(menu, tr("&Save"), "save", QKeySequence::Save, QStringLiteral("save"));
    QAction *saveAs =
        add(menu, tr("Save &as…"), nullptr, QKeySequence(tr("Ctrl+Shift+S")), QStringLiteral("saveAs"));
    menu->addSeparator();
    QAction *close = add(menu, tr("&Close"), nullptr, QKeySequence(tr("Ctrl+W")), QStringLiteral("close"));
    QAction *quit = add(menu, tr("&Quit"), nullptr, QKeySequence(tr("Ctrl+Q")), QStringLiteral("quit"));
    bar->addActions({create, open, save});
    bar->addSeparator();

    connect(create, &QAction::triggered, fileHandling, &FileHandling::newDictionary);
    connect(open, &QAction::triggered, fileHandling, &FileHandling::open);
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentFiles(recent); });
    connect(sample, &QAction::triggered, fileHandling, &FileHandling::openSample);
    connect(save, &QAction::triggered, fileHandling, &FileHandling::save);
    connect(saveAs, &QAction::triggered, fileHandling, &FileHandling::saveAs);
    connect(close, &QAction::triggered, this, [this] {
        if (!fileHandling->isFreeToLeave())
            return;
        dictionary->clear();
        showStart(true);
    });
    connect(quit, &QAction::triggered, this, &QWidget::close);
}

void MainWindow::fillRecentFiles(QMenu *menu)
{
    menu->clear();
    const QStringList files = Settings::recentFiles();
    for (const QString &file : files)
        connect(menu->addAction(QString(file).replace(QLatin1Char('&'), QLatin1String("&&"))),
            &QAction::triggered, this, [this, file] { fileHandling->openFile(file); });
    if (files.isEmpty())
        menu->addAction(tr("No files yet"))->setEnabled(false);
}

void MainWindow::makeEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    auto *bar = findChild<QToolBar *>(QStringLiteral("tools"));
    QUndoStack *stack = dictionary->undoStack();
    QAction *undo = add(menu, tr("&Undo"), "undo", QKeySequence::Undo, QStringLiteral("undo"));
    QAction *redo = add(menu, tr("&Redo"), "redo", QKeySequence(tr("Ctrl+Shift+Z")), QStringLiteral("redo"));
    nameStep(undo, tr("&Undo"), QString());
    nameStep(redo, tr("&Redo"), QString());
    connect(stack, &QUndoStack::undoTextChanged, undo,
        [undo](const QString &step) { nameStep(undo, tr("&Undo"), step); });
    connect(stack, &QUndoStack::redoTextChanged, redo,
        [redo](const QString &step) { nameStep(redo, tr("&Redo"), step); });
    connect(stack, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(stack, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(undo, &QAction::triggered, stack, &QUndoStack::undo);
    connect(redo, &QAction::triggered, stack, &QUndoStack::redo);
    // The menu is to name what is being typed now, too.
    connect(menu, &QMenu::aboutToShow, this, &FileHandling::finishTyping);
    menu->addSeparator();
    QAction *addRow = add(menu, tr("&Add"), nullptr, QKeySequence(Qt::Key_Insert), QStringLiteral("add"));
    QAction *remove = add(menu, tr("&Delete"), "delete", QKeySequence::Delete, QStringLiteral("delete"));
    QAction *up =
        add(menu, tr("Move u&p"), "up", QKeySequence(int(Qt::ALT) | int(Qt::Key_Up)), QStringLiteral("up"));
    QAction *down = add(menu, tr("Move do&wn"), "down", QKeySequence(int(Qt::ALT) | int(Qt::Key_Down)),
        QStringLiteral("down"));
    menu->addSeparator();
    QAction *copy = add(
        menu, tr("&Copy labels"), nullptr, QKeySequence(tr("Ctrl+Shift+C")), QStringLiteral("copyLabels"));
    QAction *paste = add(
        menu, tr("Pa&ste labels"), nullptr, QKeySequence(tr("Ctrl+Shift+V")), QStringLiteral("pasteLabels"));
    menu->addSeparator();
    QAction *search = add(menu, tr("&Find"), "find", QKeySequence::Find, QStringLiteral("find"));
    QAction *clear =
        add(menu, tr("C&lear search"), nullptr, QKeySequence(Qt::Key_Escape), QStringLiteral("clearSearch"));

    bar->addActions({undo, redo});
    bar->addSeparator();
    connect(addRow, &QAction::triggered, this, &MainWindow::addAtFocus);
    connect(remove, &QAction::triggered, this, &MainWindow::removeAtFocus);
    connect(up, &QAction::triggered, this, [this] { moveAtFocus(-1); });
    connect(down, &QAction::triggered, this, [this] { moveAtFocus(1); });
    connect(copy, &QAction::triggered, labels, &LabelPane::copy);
    connect(paste, &QAction::triggered, labels, &LabelPane::paste);
    connect(search, &QAction::triggered, this, &MainWindow::find);
    connect(clear, &QAction::triggered, this, [this] {
        if (TablePane *table = focusedTable()) {
            table->search()->clear();
            table->view()->setFocus();
        }
    });
}

void MainWindow::makeViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    struct Pane {
        QString text;
        QDockWidget *dock;
        QWidget *focus;
    };
    const Pane panes[] = {
        {tr("&Entities"), entityDock, entities},
        {tr("&Variables"), nullptr, variables},
        {tr("&Labels, ranges, properties"), detailDock, details},
        {tr("&Sources"), sourcesDock, sources},
        {tr("&Problems"), problemsDock, problems},
    };
    int number = 0;
    for (const Pane &pane : panes) {
        const QKeySequence key(Qt::CTRL | (Qt::Key_1 + number++));
        QAction *action = add(menu, pane.text, nullptr, key, QStringLiteral("pane%1").arg(number));
        connect(action, &QAction::triggered, this, [pane] {
            if (pane.dock) {
                pane.dock->show();
                pane.dock->raise();
            }
            // Of the details, the page that is in front.
            const auto *tabs = qobject_cast<QTabWidget *>(pane.focus);
            QWidget *target = tabs ? tabs->currentWidget() : pane.focus;
            if (const auto *area = qobject_cast<QScrollArea *>(target))
                target = area->widget()->nextInFocusChain();
            target->setFocus(Qt::ShortcutFocusReason);
        });
    }
    menu->addSeparator();
    QMenu *docks = menu->addMenu(tr("&Docks"));
    for (QDockWidget *dock : {entityDock, detailDock, sourcesDock, problemsDock})
        docks->addAction(dock->toggleViewAction());
    entityDock->toggleViewAction()->setText(tr("&Entities"));
    detailDock->toggleViewAction()->setText(tr("&Variable"));
    sourcesDock->toggleViewAction()->setText(tr("&Sources"));
    problemsDock->toggleViewAction()->setText(tr("&Problems"));
    QAction *order = add(menu, tr("&Order of the dictionary"), nullptr, QKeySequence(tr("Ctrl+Shift+O")),
        QStringLiteral("unsort"));
    connect(order, &QAction::triggered, this, [this] {
        for (TablePane *pane : {static_cast<TablePane *>(variables), static_cast<TablePane *>(labels),
                 static_cast<TablePane *>(ranges)})
            pane->unsort();
    });
    QAction *labelsInTree = add(
        menu, tr("Labels in the &tree"), nullptr, QKeySequence(tr("Ctrl+T")), QStringLiteral("treeLabels"));
    labelsInTree->setCheckable(true);
    connect(labelsInTree, &QAction::toggled, entities, &EntityPane::showLabels);
    labelsInTree->setChecked(Settings::showsEntityLabels());
    connect(labelsInTree, &QAction::toggled, this, &Settings::setShowsEntityLabels);
    makeLanguageMenu(menu->addMenu(tr("Lan&guage")));
}

void MainWindow::makeLanguageMenu(QMenu *menu)
{
    auto *group = new QActionGroup(menu);
    for (const Language &language : languages()) {
        QAction *action = menu->addAction(language.name.isEmpty() ? tr("As the system") : language.name);
        action->setCheckable(true);
        action->setChecked(Settings::language() == language.code);
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, language] {
            Settings::setLanguage(language.code);
            notice->tell(tr("The language changes when the editor starts the next time."));
        });
    }
}

void MainWindow::makeDictionaryMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Dictionary"));
    auto *bar = findChild<QToolBar *>(QStringLiteral("tools"));
    QAction *entity = add(
        menu, tr("Add &entity"), "add-entity", QKeySequence(tr("Ctrl+Shift+E")), QStringLiteral("addEntity"));
    QAction *variable = add(menu, tr("Add &variable"), "add-variable", QKeySequence(tr("Ctrl+Shift+A")),
        QStringLiteral("addVariable"));
    QAction *label =
        add(menu, tr("Add &label"), nullptr, QKeySequence(tr("Ctrl+Shift+L")), QStringLiteral("addLabel"));
    QAction *range =
        add(menu, tr("Add &range"), nullptr, QKeySequence(tr("Ctrl+Shift+R")), QStringLiteral("addRange"));
    menu->addSeparator();
    QAction *copyTo =
        add(menu, tr("Copy labels to &other variables…"), nullptr, {}, QStringLiteral("copyTo"));
    QAction *expression =
        add(menu, tr("E&xpression…"), nullptr, QKeySequence(tr("Ctrl+E")), QStringLiteral("expression"));
    menu->addSeparator();
    QAction *check = add(menu, tr("&Check now"), nullptr, QKeySequence(Qt::Key_F7), QStringLiteral("check"));
    QAction *next =
        add(menu, tr("&Next problem"), nullptr, QKeySequence(Qt::Key_F8), QStringLiteral("nextProblem"));
    QAction *previous = add(menu, tr("&Previous problem"), nullptr,
        QKeySequence(int(Qt::SHIFT) | int(Qt::Key_F8)), QStringLiteral("previousProblem"));

    bar->addActions({entity, variable, findChild<QAction *>(QStringLiteral("delete")),
        findChild<QAction *>(QStringLiteral("up")), findChild<QAction *>(QStringLiteral("down"))});
    bar->addSeparator();
    bar->addAction(findChild<QAction *>(QStringLiteral("find")));
    connect(entity, &QAction::triggered, entities, &EntityPane::addRow);
    connect(variable, &QAction::triggered, variables, &VariablePane::addRow);
    connect(label, &QAction::triggered, this, [this] {
        showDetails(labels);
        labels->addRow();
    });
    connect(range, &QAction::triggered, this, [this] {
        showDetails(ranges);
        ranges->addRow();
    });
    connect(copyTo, &QAction::triggered, this, [this] {
        TDmVariable *source = variables->currentVariable();
        if (!source || !variables->entity()) {
            statusBar()->showMessage(tr("Choose the variable whose labels are to be copied first."));
            return;
        }
        CopyLabelsDialog dialog(*source, *variables->entity(), this);
        if (dialog.exec() == QDialog::Accepted)
            Structure(*dictionary).copyLabels(*source, dialog.targets());
    });
    connect(expression, &QAction::triggered, this, [this] {
        ExpressionDialog dialog(dictionary->root(), this);
        dialog.exec();
    });
    connect(check, &QAction::triggered, this, [this] {
        problemsDock->show();
        problemsDock->raise();
        problems->check();
        statusBar()->showMessage(tr("%n problems found.", nullptr, problems->count()));
    });
    connect(next, &QAction::triggered, problems, [this] { problems->step(1); });
    connect(previous, &QAction::triggered, problems, [this] { problems->step(-1); });
}

void MainWindow::makeRunMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Run"));
    QAction *create =
        add(menu, tr("&New run…"), nullptr, QKeySequence(tr("Ctrl+R")), QStringLiteral("newRun"));
    QAction *open = add(menu, tr("&Open run…"), nullptr, {}, QStringLiteral("openRun"));
    connect(create, &QAction::triggered, this, [this] { RunWizard(*dictionary, this).exec(); });
    connect(open, &QAction::triggered, this, [this] {
        const QString file = QFileDialog::getOpenFileName(
            this, tr("Open run"), QString(), tr("Run configurations (*.json);;All files (*)"));
        if (file.isEmpty())
            return;
        RunWizard wizard(*dictionary, this);
        if (wizard.openRun(file))
            wizard.exec();
    });
}

void MainWindow::makeHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    QAction *keys = add(menu, tr("&Keys"), nullptr, QKeySequence::HelpContents, QStringLiteral("keys"));
    QAction *about = add(menu, tr("&About Tessel"), nullptr, {}, QStringLiteral("about"));
    connect(keys, &QAction::triggered, this, [this] { showKeys(this, menuBar()); });
    connect(about, &QAction::triggered, this, [this] { showAbout(this); });
}

} // namespace tessel::editor
