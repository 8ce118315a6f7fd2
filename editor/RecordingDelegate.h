#pragma once

#include "editor/Scope.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>

#include <functional>

class QLineEdit;

namespace tessel::editor {

class DictionaryDocument;

/// Puts what a user types into a cell on the undo stack: the model judges and stores it, the delegate
/// compares the touched objects before and after.
///
/// What the model refuses is not lost. After Return or Tab the field stays open with the text as it was
/// typed; Escape gives it up. A field that is left in another way closes, whatever becomes of its text, so
/// that nobody is held back by a rule; then the text is told.
class RecordingDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    /// What a delegate asks the pane that it works for, always with the view's own index.
    struct Questions {
        /// What an edit of the cell may change.
        std::function<Scope(const QModelIndex &)> scope;

        /// What that edit is called in the menu.
        std::function<QString(const QModelIndex &)> text;

        /// Why the model would refuse a text without a word, to go on a sentence with; empty for what it
        /// takes, and for what it refuses with a box.
        std::function<QString(const QModelIndex &, const QString &)> silentFault;
    };

    RecordingDelegate(DictionaryDocument &document, Questions questions, QObject *parent);

    /// A field for text, for numbers too: boxes with arrows would round what they show.
    QWidget *createEditor(
        QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Whether what was typed is being stored at this moment.
    bool isStoring() const { return storing; }

signals:
    /// A text was refused and its field is open still; one sentence on what to do.
    void refused(const QString &sentence) const;

    /// A text was refused and its field is gone; one sentence that repeats it. \a whole is the text when it
    /// is too long for a sentence, and empty otherwise.
    void notTaken(const QString &sentence, const QString &whole) const;

private:
    bool store(const QString &typed, QAbstractItemModel &model, const QModelIndex &index) const;
    void take(QLineEdit &field, EndEditHint hint);
    void tellOf(const QString &typed, const QString &reason) const;
    bool wasRefused(const QWidget *editor) const;

    DictionaryDocument &document;
    Questions ask;
    mutable bool storing = false;
    bool isByKey = false;

    /// The cell that is open, and what the model has refused of it.
    mutable QPersistentModelIndex cell;
    mutable QPointer<QWidget> refusedField;
    mutable QString refusedText;
    mutable QString refusedReason;
};

} // namespace tessel::editor
