#pragma once

#include <QTableView>

namespace tessel::editor {

/// A table of what a source offers: whole rows, several at a time, that can be dragged out as copies. Return
/// and a double click choose the selected rows.
class SourceTable : public QTableView {
    Q_OBJECT

public:
    explicit SourceTable(QWidget *parent = nullptr);

    /// What stands in the table's place while it has no rows.
    void setEmptyText(const QString &text);
    QString emptyText() const { return empty; }

    /// The selected cells from top to bottom, whatever the order in which they were selected, so that a drag
    /// brings fields in the order in which they are seen.
    QModelIndexList selectedIndexes() const override;

signals:
    /// The selected rows, one at least, are wanted.
    void rowsChosen();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void startDrag(Qt::DropActions actions) override;

private:
    QString empty;
};

} // namespace tessel::editor
