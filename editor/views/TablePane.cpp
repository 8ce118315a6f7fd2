#include "editor/views/TablePane.h"

#include "editor/DictionaryDocument.h"
#include "editor/RecordingDelegate.h"
#include "editor/views/SearchField.h"
#include "editor/views/TableView.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSet>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

#include <algorithm>

namespace tessel::editor {
namespace {

void *objectOf(const QSortFilterProxyModel &proxy, const QModelIndex &index)
{
    return proxy.mapToSource(index).internalPointer();
}

} // namespace

TablePane::TablePane(DictionaryDocument &document, QSortFilterProxyModel *proxyModel, const QString &name,
    const QString &purpose, QWidget *parent)
    : QWidget(parent)
    , editedDocument(document)
    , proxy(proxyModel)
    , delegate(new RecordingDelegate(document,
          {[this](const QModelIndex &index) { return editScope(objectOf(*proxy, index)); },
              [this](const QModelIndex &index) {
                  return editText(objectOf(*proxy, index),
                      proxy->headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
              },
              [this](const QModelIndex &index, const QString &typed) {
                  return silentFault(index.column(), typed);
              }},
          this))
    , searchField(new SearchField(*proxyModel, purpose, this))
    , table(new TableView(this))
{
    proxy->setParent(this);
    table->setModel(proxy);
    table->setAccessibleName(name);
    table->setItemDelegate(delegate);
    setFocusProxy(table);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(searchField);
    layout->addWidget(table, 1);

    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        &TablePane::currentObjectChanged);
    connect(delegate, &RecordingDelegate::refused, this, &TablePane::told);
    connect(delegate, &RecordingDelegate::notTaken, this, &TablePane::warned);
    connect(&document, &DictionaryDocument::changed, this, &TablePane::followEdit);
    connect(&document, &DictionaryDocument::aboutToReset, this, &TablePane::forget);
}

TablePane::~TablePane()
{
    // The view lets go of the model before it goes.
    proxy->setSourceModel(nullptr);
}

void TablePane::forget()
{
    proxy->setSourceModel(nullptr);
    model.reset();
}

void *TablePane::currentObject() const
{
    const QModelIndex current = table->currentIndex();
    return current.isValid() ? objectOf(*proxy, current) : nullptr;
}

QList<void *> TablePane::selectedObjects() const
{
    QModelIndexList rows = table->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QList<void *> objects;
    for (const QModelIndex &row : qAsConst(rows))
        objects.append(objectOf(*proxy, row));
    return objects;
}

void TablePane::select(const void *object, int column)
{
    const auto find = [&] {
        for (int row = 0; row < proxy->rowCount(); ++row) {
            const QModelIndex index = proxy->index(row, column);
            if (objectOf(*proxy, index) == object)
                return index;
        }
        return QModelIndex();
    };
    QModelIndex index = find();
    if (!index.isValid() && !searchField->text().isEmpty()) {
        searchField->clear();
        index = find();
    }
    if (!index.isValid())
        return;
    choose(index);
    table->scrollTo(index);
}

void TablePane::choose(const QModelIndex &index)
{
    // The view's own way would look at the keys that are held down: Shift+F8 would select all rows between.
    table->selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

QString TablePane::silentFault(int, const QString &) const { return QString(); }

void TablePane::followEdit(const Touched &touched)
{
    // A cell that is being stored is up to date; a new model would take the editor away while it is asked.
    if (concerns(touched) && !delegate->isStoring())
        rebuild();
}

void TablePane::rebuild()
{
    const QList<void *> selected = model ? selectedObjects() : QList<void *>();
    const void *current = model ? currentObject() : nullptr;
    const int column = std::max(table->currentIndex().column(), 0);
    const int scroll = table->verticalScrollBar()->value();
    const QSignalBlocker blocker(table->selectionModel());

    const bool hadColumns = proxy->columnCount() > 0;
    std::unique_ptr<QAbstractItemModel> fresh(newModel());
    proxy->setSourceModel(fresh.get());
    std::swap(model, fresh);
    if (!hadColumns && model)
        sizeColumns();

    const QSet<void *> wanted(selected.cbegin(), selected.cend());
    QItemSelection selection;
    for (int row = 0; row < proxy->rowCount(); ++row) {
        const QModelIndex index = proxy->index(row, 0);
        void *object = objectOf(*proxy, index);
        if (wanted.contains(object))
            selection.select(index, proxy->index(row, proxy->columnCount() - 1));
        if (object == current)
            table->selectionModel()->setCurrentIndex(
                proxy->index(row, column), QItemSelectionModel::NoUpdate);
    }
    table->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    table->verticalScrollBar()->setValue(scroll);
    table->viewport()->update();
    emit currentObjectChanged();
}

void TablePane::addRow()
{
    const QModelIndex current = table->currentIndex();
    // In a sorted table "behind the current row" would not be where the new one is seen.
    const bool isSorted = proxy->sortColumn() >= 0;
    const int row = current.isValid() && !isSorted ? proxy->mapToSource(current).row() + 1 : -1;
    void *object = addObject(row);
    if (!object)
        return;
    select(object);
    table->setFocus();
    table->edit(table->currentIndex());
}

void TablePane::removeSelected()
{
    const QList<void *> objects = selectedObjects();
    if (objects.isEmpty())
        return;
    const int row = table->currentIndex().row();
    removeObjects(objects);
    if (!table->currentIndex().isValid() && proxy->rowCount() > 0)
        choose(proxy->index(std::min(row, proxy->rowCount() - 1), 0));
}

void TablePane::moveSelected(int steps)
{
    const QList<void *> objects = selectedObjects();
    if (objects.isEmpty())
        return;
    if (proxy->sortColumn() >= 0) {
        emit told(tr("The table is sorted; choose View, Order of the dictionary to move rows."));
        return;
    }
    moveObjects(objects, steps);
}

void TablePane::unsort()
{
    table->sortByColumn(-1, Qt::AscendingOrder);
    proxy->sort(-1);
}

} // namespace tessel::editor
