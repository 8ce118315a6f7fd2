#include "editor/views/TableView.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace tessel::editor {

TableView::TableView(QWidget *parent)
    : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSortingEnabled(true);
    sortByColumn(-1, Qt::AscendingOrder);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setShowGrid(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
}

void TableView::setHint(const QString &text)
{
    hint = text;
    viewport()->update();
}

QString TableView::hintText() const
{
    if (model() && model()->rowCount() > 0)
        return QString();
    const auto *proxy = qobject_cast<const QSortFilterProxyModel *>(model());
    if (proxy && proxy->sourceModel() && proxy->sourceModel()->rowCount() > 0)
        return tr("Nothing matches the search. Esc clears it.");
    return hint;
}

void TableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint endHint)
{
    const QModelIndex current = currentIndex();
    const bool isEnd = current.isValid() && current.row() + 1 == model()->rowCount()
        && current.column() + 1 == model()->columnCount();
    if (endHint == QAbstractItemDelegate::EditNextItem && isEnd) {
        // Tab would begin again at the top.
        QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
        emit endReached();
        return;
    }
    QTableView::closeEditor(editor, endHint);
    if (endHint != QAbstractItemDelegate::SubmitModelCache || !currentIndex().isValid())
        return;
    const int row = currentIndex().row();
    if (row + 1 < model()->rowCount())
        setCurrentIndex(model()->index(row + 1, currentIndex().column()));
    else
        emit endReached();
}

void TableView::dragMoveEvent(QDragMoveEvent *event)
{
    // Wherever over the table: new rows go to the end.
    const QStringList types = model() ? model()->mimeTypes() : QStringList();
    const bool isWanted = acceptDrops() && event->source() != this
        && std::any_of(types.cbegin(), types.cend(),
            [event](const QString &type) { return event->mimeData()->hasFormat(type); });
    if (isWanted)
        event->acceptProposedAction();
    else
        event->ignore();
}

void TableView::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setState(NoState);
    emit dropped(event->mimeData());
}

void TableView::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && state() != EditingState && currentIndex().isValid()) {
        edit(currentIndex());
        return;
    }
    if (event->matches(QKeySequence::Copy)) {
        emit copyRequested();
        return;
    }
    if (event->matches(QKeySequence::Paste)) {
        emit pasteRequested();
        return;
    }
    QTableView::keyPressEvent(event);
}

void TableView::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    const QString text = hintText();
    if (text.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace tessel::editor
