#pragma once

#include <QTableView>

namespace tessel::editor {

/// A table that says what to do while it is empty, goes on to the next row with Return, and hands drops over
/// whole instead of by cell.
class TableView : public QTableView {
    Q_OBJECT

public:
    explicit TableView(QWidget *parent = nullptr);

    /// What stands in the empty table.
    void setHint(const QString &text);

    /// What stands in the table now: nothing while it has rows; when a search hides all, that it does.
    QString hintText() const;

signals:
    /// Return was pressed in the last row, or Tab in the last cell.
    void endReached();

    /// The keys for copying and pasting were pressed; nothing has been done.
    void copyRequested();
    void pasteRequested();

    /// Something of a kind that the model takes was dropped; good during the call only.
    void dropped(const QMimeData *data);

protected:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void dropEvent(QDropEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString hint;
};

} // namespace tessel::editor
