#include "editor/PickList.h"

#include "editor/ExpressionText.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QSignalBlocker>

#include <utility>

namespace tessel::editor {

PickList::PickList(std::function<QString(const QModelIndex &)> termOf, QWidget *parent)
    : QListView(parent)
    , writeTerm(std::move(termOf))
{
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setEditTriggers(NoEditTriggers);
    connect(this, &QListView::doubleClicked, this, &PickList::pick);
}

PickList::~PickList()
{
    // Losing the current row is no news for a dialog that is half gone already.
    blockSignals(true);
    setModel(nullptr);
}

void PickList::showRows(std::unique_ptr<QAbstractItemModel> rows, int row, const QString &hintText)
{
    emptyText = hintText;
    {
        const QSignalBlocker blocker(this);
        setModel(rows.get());
        setCurrentIndex(rows->index(row, 0));
    }
    // The model before is freed only now that the view has let go of it.
    shown = std::move(rows);
    setAccessibleDescription(hint());
    emit rowChosen();
}

QString PickList::hint() const { return shown && shown->rowCount() > 0 ? QString() : emptyText; }

QString PickList::currentTerm() const
{
    return currentIndex().isValid() ? writeTerm(currentIndex()) : QString();
}

std::unique_ptr<QMimeData> PickList::dragData() const
{
    const QString term = currentTerm();
    if (term.isEmpty())
        return nullptr;
    auto carried = std::make_unique<QMimeData>();
    carried->setData(termMimeType(), term.toUtf8());
    carried->setText(term);
    return carried;
}

void PickList::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    emit rowChosen();
}

void PickList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QListView::keyPressEvent(event);
        return;
    }
    // Taken even from an empty list: a dialog around it would press one of its buttons.
    event->accept();
    pick();
}

void PickList::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    if (hint().isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    painter.drawText(
        viewport()->rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, hint());
}

void PickList::startDrag(Qt::DropActions)
{
    // The models would let a row be moved out, and the view would then take it away.
    std::unique_ptr<QMimeData> carried = dragData();
    if (!carried)
        return;
    auto *drag = new QDrag(this);
    drag->setMimeData(carried.release());
    drag->exec(Qt::CopyAction);
}

void PickList::pick()
{
    const QString term = currentTerm();
    if (!term.isEmpty())
        emit picked(term);
}

} // namespace tessel::editor
