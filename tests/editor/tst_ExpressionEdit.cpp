#include "editor/ExpressionEdit.h"

#include "editor/ExpressionText.h"

#include <QMimeData>
#include <QtTest>

using namespace tessel::editor;

namespace {

/// A field that holds \a marked, in which "|" stands for the cursor, "[" and "]" for the ends of a selection.
void write(ExpressionEdit &edit, QString marked)
{
    const int begin = marked.indexOf('[');
    marked.remove('[');
    const int end = marked.indexOf(']');
    marked.remove(']');
    const int place = marked.indexOf('|');
    marked.remove('|');
    edit.setPlainText(marked);
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(begin >= 0 ? begin : place);
    if (begin >= 0)
        cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
}

/// The field's text with "|" for the cursor.
QString marked(const ExpressionEdit &edit) { return edit.text().insert(edit.textCursor().position(), '|'); }

/// Drops \a data on \a edit, before the character at \a position.
bool drop(ExpressionEdit &edit, const QMimeData &data, int position)
{
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(position);
    const QPoint place = edit.cursorRect(cursor).center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(edit.viewport(), &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(edit.viewport(), &move);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(edit.viewport(), &event);
    return enter.isAccepted() && event.isAccepted();
}

} // namespace

class tst_ExpressionEdit : public QObject {
    Q_OBJECT

private slots:
    void termIsInsertedAtTheCursor_data();
    void termIsInsertedAtTheCursor();
    void emptyTermChangesNothing();
    void eachInsertionIsOneStepOfUndo();
    void whatIsTypedBehindATermIsUndoneAlone();
    void droppedTermGoesWhereItIsDropped();
    void otherTextIsDroppedAsItIs();
    void otherTextIsPastedAsItIs();
    void noBreakSpaceOfACodeIsKept();
    void linesArePartedByLineFeeds();
};

void tst_ExpressionEdit::termIsInsertedAtTheCursor_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("term");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *tag, const char *before, const char *term, const char *after) {
        QTest::newRow(tag) << QString(before) << QString(term) << QString(after);
    };
    row("into the empty field", "|", "A", "A|");
    row("at the end", "A|", "=", "A =|");
    row("at the end, behind a blank", "A |", "=", "A =|");
    row("at the beginning", "|B", "A", "A| B");
    row("at the beginning, before a blank", "| B", "A", "A| B");
    row("inside a word", "A|B", "=", "A =| B");
    row("between blanks", "A | B", "=", "A =| B");
    row("behind an opening bracket", "(|", "A", "(A|");
    row("before a closing bracket", "(A =|)", "1", "(A = 1|)");
    row("into a pair of brackets", "(|)", "A", "(A|)");
    row("behind a closing bracket", "(A)|", "and", "(A) and|");
    row("before an opening bracket", "|(A)", "not", "not| (A)");
    row("opening bracket before a word", "|A", "(", "(|A");
    row("opening bracket behind a word", "and|", "(", "and (|");
    row("closing bracket behind a word", "(A|", ")", "(A)|");
    row("closing bracket before a word", "(A|and", ")", "(A)| and");
    row("at the beginning of a line", "A\n|B", "=", "A\n=| B");
    row("at the end of a line", "A|\nB", "=", "A =|\nB");
    row("instead of a selection", "A [<] B", ">=", "A >=| B");
    row("instead of a selection inside a word", "A[<]B", ">=", "A >=| B");
    row("instead of everything", "[A = B]", "C", "C|");
    row("text with blanks at its ends", "A|B", "' x '", "A ' x '| B");
}

void tst_ExpressionEdit::termIsInsertedAtTheCursor()
{
    QFETCH(QString, before);
    QFETCH(QString, term);
    ExpressionEdit edit;
    write(edit, before);
    edit.insertTerm(term);
    QTEST(marked(edit), "after");
}

void tst_ExpressionEdit::emptyTermChangesNothing()
{
    ExpressionEdit edit;
    write(edit, "a [b] c");
    edit.insertTerm("");
    QCOMPARE(edit.text(), "a b c");
    QCOMPARE(edit.textCursor().selectedText(), "b");
    QVERIFY(!edit.document()->isUndoAvailable());
}

void tst_ExpressionEdit::eachInsertionIsOneStepOfUndo()
{
    ExpressionEdit edit;
    write(edit, "x[y]z");
    edit.insertTerm("A");
    edit.insertTerm("=");
    edit.insertTerm("1");
    QCOMPARE(edit.text(), "x A = 1 z");
    const char *const states[] = {"x A = z", "x A z", "xyz"};
    for (const char *state : states) {
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(edit.text(), state);
    }
    QVERIFY(!edit.document()->isUndoAvailable());
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(edit.text(), "x A z");

    // At the end of the text, where one insertion touches the other.
    edit.clear();
    edit.insertTerm("A");
    edit.insertTerm("=");
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit.text(), "A");
}

void tst_ExpressionEdit::whatIsTypedBehindATermIsUndoneAlone()
{
    ExpressionEdit edit;
    QTest::keyClicks(&edit, "not");
    edit.insertTerm("A");
    QTest::keyClicks(&edit, " > 5");
    QCOMPARE(edit.text(), "not A > 5");
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit.text(), "not A");
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit.text(), "not");
}

void tst_ExpressionEdit::droppedTermGoesWhereItIsDropped()
{
    ExpressionEdit edit;
    edit.show();
    write(edit, "A = B|");
    QMimeData data;
    data.setData(termMimeType(), QString::fromUtf8("PERSON.AÑO").toUtf8());
    data.setText("not this");
    QVERIFY(drop(edit, data, 3));
    QCOMPARE(marked(edit), QString::fromUtf8("A = PERSON.AÑO| B"));
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(edit.text(), "A = B");
}

void tst_ExpressionEdit::otherTextIsDroppedAsItIs()
{
    ExpressionEdit edit;
    edit.show();
    write(edit, "AB|");
    QMimeData data;
    data.setText("xy");
    QVERIFY(drop(edit, data, 1));
    QCOMPARE(edit.text(), "AxyB");
    QMimeData nothing;
    nothing.setData("application/x-other", "zz");
    QVERIFY(!drop(edit, nothing, 1));
    QCOMPARE(edit.text(), "AxyB");
}

void tst_ExpressionEdit::otherTextIsPastedAsItIs()
{
    ExpressionEdit edit;
    write(edit, "A|B");
    QGuiApplication::clipboard()->setText("x");
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(edit.text(), "AxB");
}

void tst_ExpressionEdit::noBreakSpaceOfACodeIsKept()
{
    ExpressionEdit edit;
    const QString code = QString::fromUtf8("'a\u00a0b'");
    edit.insertTerm(code);
    QCOMPARE(edit.text(), code);
}

void tst_ExpressionEdit::linesArePartedByLineFeeds()
{
    ExpressionEdit edit;
    QTest::keyClicks(&edit, "a");
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, "b");
    QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&edit, "c");
    QCOMPARE(edit.text(), "a\nb\nc");
}

QTEST_MAIN(tst_ExpressionEdit)
#include "tst_ExpressionEdit.moc"
