#include "editor/ExpressionEdit.h"

#include "editor/ExpressionText.h"

#include <QMimeData>
#include <QTextBlock>

namespace tessel::editor {

ExpressionEdit::ExpressionEdit(QWidget *parent)
    : QPlainTextEdit(parent)
{
    // Everything around is to be reached by key.
    setTabChangesFocus(true);
}

QString ExpressionEdit::text() const
{
    QString raw = document()->toRawText();
    return raw.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'))
        .replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
}

void ExpressionEdit::insertTerm(const QString &term)
{
    if (term.isEmpty())
        return;
    QTextCursor cursor = textCursor();
    const QChar before = document()->characterAt(cursor.selectionStart() - 1);
    const QChar after = document()->characterAt(cursor.selectionEnd());
    const QString blank = QStringLiteral(" ");
    const bool isBlankBehind = isBlankNeeded(term.back(), after);
    cursor.beginEditBlock();
    cursor.insertText((isBlankNeeded(before, term.front()) ? blank : QString()) + term + blank);
    // A blank that is taken away again parts the insertion from what is typed behind it: undo would merge
    // them.
    if (isBlankBehind)
        cursor.movePosition(QTextCursor::PreviousCharacter);
    else
        cursor.deletePreviousChar();
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

void ExpressionEdit::insertFromMimeData(const QMimeData *source)
{
    if (source->hasFormat(termMimeType()))
        insertTerm(QString::fromUtf8(source->data(termMimeType())));
    else
        QPlainTextEdit::insertFromMimeData(source);
}

} // namespace tessel::editor
