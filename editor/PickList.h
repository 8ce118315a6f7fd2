#pragma once

#include <QListView>

#include <functional>
#include <memory>

class QMimeData;

namespace tessel::editor {

/// A list from which terms of an expression are picked: by double click, by Return or by dragging. Rows are
/// dragged out as copies only. Says what is missing while it is empty.
class PickList : public QListView {
    Q_OBJECT

public:
    /// \a termOf writes the object of a valid index as a term.
    explicit PickList(std::function<QString(const QModelIndex &)> termOf, QWidget *parent = nullptr);
    ~PickList() override;

    /// Shows \a rows, with \a row the current one, instead of what was shown; a row that is not there is
    /// none. What stands in the list if it is empty is \a hintText. Announces the row once, whichever it is.
    void showRows(std::unique_ptr<QAbstractItemModel> rows, int row, const QString &hintText);

    /// What the empty list says; empty while there are rows.
    QString hint() const;

    /// The term of the current row; empty without one.
    QString currentTerm() const;

    /// What a drag of the current row carries: its term. Null where there is nothing to insert.
    std::unique_ptr<QMimeData> dragData() const;

signals:
    /// Another row is the current one, or none.
    void rowChosen();

    /// The user wants \a term in the expression.
    void picked(const QString &term);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;

private:
    void pick();

    std::function<QString(const QModelIndex &)> writeTerm;
    std::unique_ptr<QAbstractItemModel> shown;
    QString emptyText;
};

} // namespace tessel::editor
