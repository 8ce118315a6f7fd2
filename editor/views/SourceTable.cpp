#include "editor/views/SourceTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace tessel::editor {

SourceTable::SourceTable(QWidget *parent)
    : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setDragDropMode(DragOnly);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(qMax(fontMetrics().height() + 6, 22));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
}

void SourceTable::setEmptyText(const QString &text)
{
    empty = text;
    setAccessibleDescription(text);
    viewport()->update();
}

QModelIndexList SourceTable::selectedIndexes() const
{
    QModelIndexList indexes = QTableView::selectedIndexes();
    std::sort(indexes.begin(), indexes.end());
    return indexes;
}

void SourceTable::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !selectionModel() || !selectionModel()->hasSelection()) {
        QTableView::keyPressEvent(event);
        return;
    }
    event->accept();
    emit rowsChosen();
}

void SourceTable::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTableView::mouseDoubleClickEvent(event);
    const QModelIndex clicked = indexAt(event->pos());
    if (event->button() == Qt::LeftButton && clicked.isValid() && selectionModel()->isSelected(clicked))
        emit rowsChosen();
}

void SourceTable::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (empty.isEmpty() || !model() || model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    const QRect area = viewport()->rect().adjusted(8, 8, -8, -8);
    style()->drawItemText(
        &painter, area, Qt::AlignCenter | Qt::TextWordWrap, palette(), false, empty, QPalette::WindowText);
}

void SourceTable::startDrag(Qt::DropActions)
{
    // The catalogues speak of moving too, but nothing is ever taken out of them.
    QTableView::startDrag(Qt::CopyAction);
}

} // namespace tessel::editor
