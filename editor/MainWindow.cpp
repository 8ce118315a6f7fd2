#include "editor/MainWindow.h"

#include "editor/AutoSave.h"
#include "editor/DictionaryDocument.h"
#include "editor/FileHandling.h"
#include "editor/Place.h"
#include "editor/Settings.h"
#include "editor/views/DeclaredCodesOffer.h"
#include "editor/views/EntityForm.h"
#include "editor/views/EntityPane.h"
#include "editor/views/LabelPane.h"
#include "editor/views/NoticeBar.h"
#include "editor/views/ProblemsPane.h"
#include "editor/views/RangePane.h"
#include "editor/views/RecoveryBar.h"
#include "editor/views/SearchField.h"
#include "editor/views/SourcesPane.h"
#include "editor/views/StartPage.h"
#include "editor/views/TableView.h"
#include "editor/views/VariableForm.h"
#include "editor/views/VariablePane.h"
#include "model/MetadataVariables.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QLayout>
#include <QMimeData>
#include <QScrollArea>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

namespace tessel::editor {
namespace {

constexpr int kMessageMilliseconds = 8000;
constexpr int kLossesMilliseconds = 300;

QWidget *scrolled(QWidget *form)
{
    auto *area = new QScrollArea;
    area->setWidget(form);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    return area;
}

} // namespace

MainWindow::MainWindow()
    : dictionary(std::make_unique<DictionaryDocument>())
    , fileHandling(new FileHandling(*dictionary, this))
    , autoSave(new AutoSave(*dictionary, this))
{
    setObjectName(QStringLiteral("main"));
    makePanes();
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makeDictionaryMenu();
    makeRunMenu();
    makeHelpMenu();
    connectPanes();
    restoreWindow();
    showStart(true);
    showTitle();
    showCounts();
}

MainWindow::~MainWindow()
{
    // The panes let go of the dictionary before it goes.
    disconnect(dictionary.get(), nullptr, nullptr, nullptr);
    delete takeCentralWidget();
    for (QDockWidget *dock : {entityDock, detailDock, sourcesDock, problemsDock})
        delete dock;
}

QDockWidget *MainWindow::makeDock(
    const QString &title, const QString &name, QWidget *content, Qt::DockWidgetArea area)
{
    auto *dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(content);
    addDockWidget(area, dock);
    return dock;
}

void MainWindow::makePanes()
{
    setDockOptions(AnimatedDocks | AllowTabbedDocks | AllowNestedDocks);
    entities = new EntityPane(*dictionary);
    variables = new VariablePane(*dictionary);
    labels = new LabelPane(*dictionary);
    ranges = new RangePane(*dictionary);
    variableForm = new VariableForm(*dictionary);
    entityForm = new EntityForm(*dictionary);
    problems = new ProblemsPane(*dictionary);
    sources = new SourcesPane;
    startPage = new StartPage;
    notice = new NoticeBar;
    codesOffer = new DeclaredCodesOffer(*dictionary);

    heading = new QLabel;
    heading->setObjectName(QStringLiteral("heading"));
    heading->setTextFormat(Qt::PlainText);
    auto *work = new QWidget;
    auto *workLayout = new QVBoxLayout(work);
    workLayout->setContentsMargins(6, 6, 6, 0);
    workLayout->addWidget(heading);
    workLayout->addWidget(variables);
    centre = new QStackedWidget;
    centre->addWidget(startPage);
    centre->addWidget(work);
    auto *middle = new QWidget;
    auto *middleLayout = new QVBoxLayout(middle);
    middleLayout->setContentsMargins(0, 0, 0, 0);
    middleLayout->setSpacing(0);
    middleLayout->addWidget(new RecoveryBar(*fileHandling));
    middleLayout->addWidget(notice);
    middleLayout->addWidget(codesOffer);
    middleLayout->addWidget(centre, 1);
    setCentralWidget(middle);

    for (QWidget *page : {static_cast<QWidget *>(labels), static_cast<QWidget *>(ranges)})
        page->layout()->setContentsMargins(4, 4, 4, 4);
    details = new QTabWidget;
    details->setObjectName(QStringLiteral("details"));
    details->addTab(labels, tr("La&bels"));
    details->addTab(ranges, tr("Ran&ges"));
    details->addTab(scrolled(variableForm), tr("&Properties"));
    details->addTab(scrolled(entityForm), tr("Entit&y"));
    entityDock = makeDock(tr("Entities"), QStringLiteral("entityDock"), entities, Qt::LeftDockWidgetArea);
    detailDock = makeDock(tr("Variable"), QStringLiteral("detailDock"), details, Qt::RightDockWidgetArea);
    sourcesDock = makeDock(tr("Sources"), QStringLiteral("sourcesDock"), sources, Qt::BottomDockWidgetArea);
    problemsDock =
        makeDock(tr("Problems"), QStringLiteral("problemsDock"), problems, Qt::BottomDockWidgetArea);
    tabifyDockWidget(sourcesDock, problemsDock);
    sourcesDock->raise();

    counts = new QLabel;
    counts->setObjectName(QStringLiteral("counts"));
    statusBar()->addPermanentWidget(counts);
}

void MainWindow::connectPanes()
{
    const auto say = [this](const QString &sentence) {
        statusBar()->showMessage(sentence, kMessageMilliseconds);
    };
    const auto warn = [this](const QString &sentence) { notice->tell(sentence); };
    connect(entities, &EntityPane::currentEntityChanged, this, &MainWindow::showEntity);
    connect(variables, &VariablePane::currentObjectChanged, this, &MainWindow::showVariable);
    connect(variables, &VariablePane::told, this, say);
    connect(labels, &LabelPane::told, this, say);
    connect(ranges, &RangePane::told, this, say);
    connect(entities, &EntityPane::told, this, say);
    connect(entities, &EntityPane::warned, notice, &NoticeBar::tell);
    for (const TablePane *table : {static_cast<TablePane *>(variables), static_cast<TablePane *>(labels),
             static_cast<TablePane *>(ranges)})
        connect(table, &TablePane::warned, notice, &NoticeBar::tell);
    connect(sources, &SourcesPane::addRequested, variables, &VariablePane::take);
    connect(sources, &SourcesPane::problemFound, this, warn);
    connect(sources, &SourcesPane::problemSolved, notice, &NoticeBar::withdraw);
    connect(variables, &VariablePane::taken, codesOffer, &DeclaredCodesOffer::consider);
    connect(codesOffer, &DeclaredCodesOffer::told, this, say);
    connect(problems, &ProblemsPane::goTo, this, &MainWindow::goTo);
    connect(problems, &ProblemsPane::countChanged, this, [this](int count) {
        problemsDock->setWindowTitle(count > 0 ? tr("Problems (%1)").arg(count) : tr("Problems"));
        problemsDock->toggleViewAction()->setText(tr("&Problems"));
    });
    connect(problems, &ProblemsPane::told, this, say);
    connect(fileHandling, &FileHandling::told, this, say);
    connect(fileHandling, &FileHandling::failed, this, warn);
    connect(autoSave, &AutoSave::failed, this, warn);
    connect(startPage, &StartPage::newRequested, this, [this] {
        fileHandling->newDictionary();
        showStart(false);
    });
    connect(startPage, &StartPage::openRequested, fileHandling, &FileHandling::open);
    connect(startPage, &StartPage::sampleRequested, fileHandling, &FileHandling::openSample);
    connect(startPage, &StartPage::fileRequested, fileHandling, &FileHandling::openFile);

    connect(dictionary.get(), &DictionaryDocument::modifiedChanged, this, [this](bool modified) {
        setWindowModified(modified);
        showTitle();
    });
    connect(dictionary.get(), &DictionaryDocument::fileNameChanged, this, &MainWindow::showTitle);
    connect(dictionary.get(), &DictionaryDocument::changed, this, [this] {
        showStart(false);
        showCounts();
        showEntity();
    });
    connect(dictionary.get(), &DictionaryDocument::reset, this, [this] {
        notice->hide();
        showStart(false);
        showEntity();
        showCounts();
        // Comparing takes longer than opening; the window is there first.
        QTimer::singleShot(kLossesMilliseconds, this, &MainWindow::tellLosses);
    });
}

void MainWindow::showEntity()
{
    TDmEntity *entity = entities->currentEntity();
    variables->show(entity);
    entityForm->show(entity);
    heading->setText(entity ? tr("%1 ▸ variables").arg(entity->getName()) : QString());
    showVariable();
}

void MainWindow::showVariable()
{
    TDmVariable *variable = variables->currentVariable();
    labels->show(variable);
    ranges->show(variable);
    variableForm->show(variable);
    detailDock->setWindowTitle(variable ? variable->getName() : tr("Variable"));
    // The title names what is shown; the menu names the pane.
    detailDock->toggleViewAction()->setText(tr("&Variable"));
}

void MainWindow::showTitle()
{
    const QString file = dictionary->fileName();
    setWindowFilePath(file);
    setWindowTitle(
        tr("%1[*] — Tessel").arg(file.isEmpty() ? tr("New dictionary") : QFileInfo(file).fileName()));
}

void MainWindow::showCounts()
{
    int entityCount = 0;
    int variableCount = 0;
    int labelCount = 0;
    const Scope all = Scope::ofTree(dictionary->root());
    for (const TDmEntity *entity : all.entities()) {
        entityCount += entity != &dictionary->root();
        variableCount += entity->getVariables()->size();
        for (const TDmVariable *variable : qAsConst(*entity->getVariables()))
            labelCount += variable->getValueLabelElementList()->size();
    }
    counts->setText(tr("%n entities", nullptr, entityCount) + QStringLiteral(" · ")
        + tr("%n variables", nullptr, variableCount) + QStringLiteral(" · ")
        + tr("%n labels", nullptr, labelCount));
}

void MainWindow::showStart(bool on)
{
    if (on)
        startPage->refresh();
    centre->setCurrentIndex(on ? 0 : 1);
}

void MainWindow::tellLosses()
{
    const QVector<documents::Loss> &losses = dictionary->losses();
    if (losses.isEmpty())
        return;
    QStringList lines;
    for (const documents::Loss &loss : losses)
        lines.append(QStringLiteral("%1 (%2): %3").arg(loss.path, loss.place, loss.sentence()));
    notice->tell(tr("Saving would lose or change %n values that the file holds.", nullptr, losses.size()),
        lines.join(QLatin1Char('\n')));
}

void MainWindow::goTo(const QString &path)
{
    const Place place = placeAt(dictionary->root(), path);
    entities->select(place.entity);
    if (!place.variable) {
        entities->view()->setFocus();
        return;
    }
    variables->select(place.variable);
    variables->view()->setFocus();
    if (place.label) {
        showDetails(labels);
        labels->select(place.label);
    } else if (place.range) {
        showDetails(ranges);
        ranges->select(place.range);
    }
}

void MainWindow::showDetails(QWidget *page)
{
    detailDock->show();
    detailDock->raise();
    details->setCurrentWidget(page);
}

TablePane *MainWindow::focusedTable() const
{
    for (TablePane *pane : {static_cast<TablePane *>(variables), static_cast<TablePane *>(labels),
             static_cast<TablePane *>(ranges)}) {
        if (pane->isAncestorOf(QApplication::focusWidget()))
            return pane;
    }
    return nullptr;
}

bool MainWindow::isTreeFocused() const { return entities->isAncestorOf(QApplication::focusWidget()); }

void MainWindow::addAtFocus()
{
    if (isTreeFocused())
        entities->addRow();
    else if (TablePane *table = focusedTable())
        table->addRow();
    else if (!details->isAncestorOf(QApplication::focusWidget()))
        variables->addRow();
}

void MainWindow::removeAtFocus()
{
    if (isTreeFocused())
        entities->removeSelected();
    else if (TablePane *table = focusedTable())
        table->removeSelected();
}

void MainWindow::moveAtFocus(int steps)
{
    if (isTreeFocused())
        entities->moveSelected(steps);
    else if (TablePane *table = focusedTable())
        table->moveSelected(steps);
}

void MainWindow::find()
{
    TablePane *table = focusedTable();
    (table ? table : variables)->search()->activate();
}

void MainWindow::restoreWindow()
{
    resize(1280, 800);
    restoreGeometry(Settings::geometry());
    if (!restoreState(Settings::windowState())) {
        resizeDocks({entityDock, detailDock}, {230, 380}, Qt::Horizontal);
        resizeDocks({sourcesDock}, {220}, Qt::Vertical);
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!fileHandling->isFreeToLeave()) {
        event->ignore();
        return;
    }
    Settings::setWindow(saveGeometry(), saveState());
    autoSave->finish();
    event->accept();
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        QTimer::singleShot(0, fileHandling, &FileHandling::lookForFileChange);
}

} // namespace tessel::editor
