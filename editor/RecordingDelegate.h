#pragma once

#include "editor/Scope.h"

#include <QStyledItemDelegate>

#include <functional>

namespace tessel::editor {

class DictionaryDocument;

/// Puts what a user types into a cell on the undo stack: the model judges and stores it, the delegate
/// compares the touched objects before and after.
class RecordingDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// \a scopeOf tells what an edit of a cell may change, \a textOf what it is called in the menu. Both are
    /// asked with the view's own index.
    RecordingDelegate(DictionaryDocument &document, std::function<Scope(const QModelIndex &)> scopeOf,
        std::function<QString(const QModelIndex &)> textOf, QObject *parent);

    /// A field for text, for numbers too: boxes with arrows would round what they show.
    QWidget *createEditor(
        QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;

    /// Whether what was typed is being stored at this moment.
    bool isStoring() const { return storing; }

private:
    DictionaryDocument &document;
    std::function<Scope(const QModelIndex &)> scopeOf;
    std::function<QString(const QModelIndex &)> textOf;
    mutable bool storing = false;
};

} // namespace tessel::editor
