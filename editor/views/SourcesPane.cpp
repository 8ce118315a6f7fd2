#include "editor/views/SourcesPane.h"

#include "editor/views/CsvSourceTab.h"
#include "editor/views/DatasetSourceTab.h"
#include "editor/views/LookupSourceTab.h"
#include "model/TDmSourceField.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTabBar>
#include <QTabWidget>
#include <QUrl>
#include <QVBoxLayout>

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
    connect(dataset, &SourceTab::openRequested, this, &SourcesPane::datasetRequested);
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

void SourcesPane::setDatasetFields(
    std::vector<std::unique_ptr<TDmSourceField>> fields, const QString &title, const QStringList &remarks)
{
    tabs->setCurrentWidget(dataset);
    dataset->setFields(std::move(fields), title, remarks);
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
        emit fileDropped(file);
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
    const QStringList files = localFiles(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    for (const QString &file : files)
        openByEnding(file);
}

} // namespace tessel::editor
