#include "editor/views/SearchLine.h"

#include <QEvent>
#include <QKeyEvent>

namespace tessel::editor {

SearchLine::SearchLine(QWidget *parent)
    : QLineEdit(parent)
{
    setClearButtonEnabled(true);
    // A file that is dropped here is meant for the pane.
    setAcceptDrops(false);
    connect(this, &QLineEdit::textChanged, this, &SearchLine::judge);
    judge();
}

void SearchLine::setReads(Reads what)
{
    reads = what;
    judge();
}

QRegExp SearchLine::pattern() const
{
    // The proxies look at texts in upper case and without the blanks around them.
    const QString wanted = text().trimmed();
    return reads == Reads::Patterns ? QRegExp(wanted, Qt::CaseInsensitive, QRegExp::RegExp2)
                                    : QRegExp(wanted.toUpper(), Qt::CaseInsensitive, QRegExp::FixedString);
}

void SearchLine::judge()
{
    const QRegExp current = pattern();
    const QString hint = reads == Reads::Patterns
        ? tr("Part of a text, or a regular expression such as ^P0[1-9]; letter case does not count.")
        : tr("Part of a text; letter case does not count.");
    setToolTip(current.isValid() ? hint : tr("This is no pattern: %1.").arg(current.errorString()));
    // What the colour says must reach those who do not see it.
    setAccessibleDescription(current.isValid() ? QString() : toolTip());
    paintState();
    emit patternChanged(current);
}

void SearchLine::paintState()
{
    if (!isBad()) {
        setPalette(QPalette());
        return;
    }
    const QPalette plain;
    const bool isDark = plain.color(QPalette::Base).lightness() < 128;
    QPalette red;
    red.setColor(QPalette::Text, isDark ? QColor(0xff, 0x7b, 0x72) : QColor(0xb3, 0x00, 0x00));
    setPalette(red);
}

void SearchLine::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::ThemeChange)
        paintState();
}

void SearchLine::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (text().isEmpty()) {
            emit left();
            event->ignore();
        }
        clear();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        emit left();
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace tessel::editor
