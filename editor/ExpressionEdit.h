#pragma once

#include <QPlainTextEdit>

namespace tessel::editor {

/// The field in which an expression is written. Takes terms at the cursor, dropped ones where they are
/// dropped, and sees to the blanks around them. Each insertion is one step of the field's own undo.
class ExpressionEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit ExpressionEdit(QWidget *parent = nullptr);

    /// What is written here, lines parted by "\n". Unlike toPlainText() it keeps the no-break spaces that a
    /// code may hold.
    QString text() const;

    /// Puts \a term in the place of the selection or at the cursor, which stands behind it then. An empty
    /// term changes nothing.
    void insertTerm(const QString &term);

protected:
    void insertFromMimeData(const QMimeData *source) override;
};

} // namespace tessel::editor
