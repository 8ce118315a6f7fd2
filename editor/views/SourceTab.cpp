#include "editor/views/SourceTab.h"

#include "editor/views/SearchLine.h"
#include "editor/views/SourceLine.h"
#include "editor/views/SourceTable.h"

#include <QBoxLayout>
#include <QFileDialog>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSortFilterProxyModel>

namespace tessel::editor {

SourceTab::SourceTab(
    const QString &prefix, const Words &tabWords, QSortFilterProxyModel *proxyModel, QWidget *parent)
    : QWidget(parent)
    , words(tabWords)
    , proxy(proxyModel)
    , tools(new QHBoxLayout)
    , knowledge(new QHBoxLayout)
    , line(new SourceLine(this))
    , filter(new SearchLine(this))
    , count(new QLabel(this))
    , addButton(new QPushButton(tr("&Add to table"), this))
    , table(new SourceTable(this))
{
    proxy->setParent(this);
    auto *open = new QPushButton(tr("&Open…"), this);
    open->setToolTip(words.openTip);
    addButton->setToolTip(
        tr("Makes variables of the selected rows; Return, a double click and dragging do so too."));
    filter->setMaximumWidth(220);
    filter->setPlaceholderText(tr("Filter"));

    const QVector<QPair<QWidget *, QPair<const char *, QString>>> named{
        {open, {"Open", tr("Open a file for: %1").arg(words.name)}},
        {line, {"Line", QString()}},
        {filter, {"Filter", tr("Filter of: %1").arg(words.name)}},
        {count, {"Count", QString()}},
        {addButton, {"Add", tr("Add the selected rows to the table of variables")}},
        {table, {"Table", words.name}},
    };
    for (const auto &[widget, names] : named) {
        widget->setObjectName(prefix + QLatin1String(names.first));
        if (!names.second.isEmpty())
            widget->setAccessibleName(names.second);
    }

    tools->addWidget(open);
    tools->addStretch(1);
    tools->addWidget(filter);
    tools->addWidget(count);
    tools->addWidget(addButton);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addLayout(tools);
    knowledge->addWidget(line, 1);
    column->addLayout(knowledge);
    column->addWidget(table);
    line->hide();
    table->setModel(proxy);
    setFocusProxy(table);

    connect(open, &QPushButton::clicked, this, &SourceTab::openRequested);
    connect(addButton, &QPushButton::clicked, this, &SourceTab::add);
    connect(table, &SourceTable::rowsChosen, this, &SourceTab::add);
    connect(filter, &SearchLine::left, table, [this] { table->setFocus(Qt::OtherFocusReason); });
    connect(filter, &SearchLine::patternChanged, this, [this](const QRegExp &pattern) {
        proxy->setFilterRegExp(pattern);
        showState();
    });
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &SourceTab::showState);
    showState();
}

SourceTab::~SourceTab()
{
    // The view must not ask for rows whose objects are gone.
    proxy->setSourceModel(nullptr);
}

void SourceTab::focusFilter()
{
    filter->setFocus(Qt::ShortcutFocusReason);
    filter->selectAll();
}

void SourceTab::setCatalogue(std::shared_ptr<void> objects, std::unique_ptr<QAbstractItemModel> model)
{
    filter->clear();
    proxy->setSourceModel(model.get());
    catalogue = std::move(model);
    borrowed = std::move(objects);
    showState();
}

void SourceTab::describe(const QString &title, const QStringList &sentences)
{
    isOpened = true;
    line->setSentences(title, sentences);
    line->show();
    showState();
}

void SourceTab::askForFile(const QString &title, const QString &filters, const QString &folder,
    const std::function<void(const QString &)> &receive)
{
    auto *dialog = new QFileDialog(this, title, folder, filters);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, receive);
    dialog->open();
}

void SourceTab::add()
{
    QModelIndexList indexes;
    for (const QModelIndex &index : table->selectedIndexes())
        indexes.append(proxy->mapToSource(index));
    if (indexes.isEmpty())
        return;
    const std::unique_ptr<QMimeData> payload(catalogue->mimeData(indexes));
    emit addRequested(payload.get());
}

void SourceTab::showState()
{
    const int all = catalogue ? catalogue->rowCount() : 0;
    const bool isFiltered = !proxy->filterRegExp().isEmpty();
    count->setText(isFiltered ? tr("%L1 of %L2").arg(proxy->rowCount()).arg(all) : QString());
    count->setVisible(isFiltered);
    addButton->setEnabled(table->selectionModel()->hasSelection());
    if (all > 0)
        table->setEmptyText(tr("No row matches the filter."));
    else
        table->setEmptyText(isOpened ? words.nothingFound : words.emptyText);
}

} // namespace tessel::editor
