#include "editor/views/SourcesPane.h"

#include "editor/views/CsvSourceTab.h"
#include "editor/views/DatasetSourceTab.h"
#include "editor/views/LookupSourceTab.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTabBar>
#include <QTabWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace tessel::editor {
namespace {

/// The files of this computer that \a data names.
QStringList localFiles(const QMimeData &data)
{
    QStringList files;
    const QList<QUrl> urls = data.urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

SourcesPane::SourcesPane(QWidget *parent)
    : QWidget(parent)
    , tabs(new QTabWidget(this))
    , csv(new CsvSourceTab)
    , dataset(new DatasetSourceTab)
    , lookups(new LookupSourceTab)
{
    setObjectName(QStringLiteral("sourcesPane"));
    setAcceptDrops(true);
    tabs->setObjectName(QStringLiteral("sourceTabs"));
    tabs->setAccessibleName(tr("Sources of variables"));
    tabs->tabBar()->setAccessibleName(tr("Kind of source"));
    tabs->setDocumentMode(true);
    addTab(csv, tr("CSV"));
    addTab(dataset, tr("Dataset"));
    addTab(lookups, tr("Lookups"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tabs);
    // Whoever gives the keyboard to the pane means the rows that are seen.
    setFocusProxy(csv);
    connect(tabs, &QTabWidget::currentChanged, this, [this] { setFocusProxy(tabs->currentWidget()); });
    connect(dataset, &DatasetSourceTab::problemSolved, this, &SourcesPane::problemSolved);
}

void SourcesPane::addTab(SourceTab *tab, const QString &title)
{
    tabs->addTab(tab, title);
    connect(tab, &SourceTab::addRequested, this, &SourcesPane::addRequested);
    connect(tab, &SourceTab::problemFound, this, &SourcesPane::problemFound);
}

bool SourcesPane::openCsv(const QString &file)
{
    tabs->setCurrentWidget(csv);
    return csv->open(file);
}

bool SourcesPane::openLookups(const QString &file)
{
    tabs->setCurrentWidget(lookups);
    return lookups->open(file);
}

bool SourcesPane::openDataset(const QString &file)
{
    tabs->setCurrentWidget(dataset);
    return dataset->open(file);
}

void SourcesPane::setDatasetReader(
    const std::function<sources::SourceOutcome(const QString &, const sources::ReadOptions &)> &reader)
{
    dataset->setReader(reader);
}

void SourcesPane::focusFilter() { static_cast<SourceTab *>(tabs->currentWidget())->focusFilter(); }

void SourcesPane::openByEnding(const QString &file)
{
    const QString ending = QFileInfo(file).suffix().toLower();
    if (ending == QLatin1String("csv") || ending == QLatin1String("txt") || ending == QLatin1String("tsv"))
        openCsv(file);
    else if (ending == QLatin1String("json"))
        openLookups(file);
    else
        openDataset(file);
}

void SourcesPane::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(*event->mimeData()).isEmpty() && event->possibleActions().testFlag(Qt::CopyAction)) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void SourcesPane::dropEvent(QDropEvent *event)
{
    QStringList files = localFiles(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The labels of a dataset that comes with them wait for it.
    std::stable_partition(
        files.begin(), files.end(), [](const QString &file) { return !DatasetSourceTab::isCatalogue(file); });
    for (const QString &file : files)
        openByEnding(file);
}

} // namespace tessel::editor
