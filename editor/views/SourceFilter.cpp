#include "editor/views/SourceFilter.h"

#include <QEvent>
#include <QKeyEvent>

namespace tessel::editor {

SourceFilter::SourceFilter(QWidget *parent)
    : QLineEdit(parent)
    , hint(tr("Part of a text, or a regular expression such as ^P0[1-9]; letter case does not count."))
{
    setPlaceholderText(tr("Filter"));
    setClearButtonEnabled(true);
    setToolTip(hint);
    // A file that is dropped here is meant for the pane.
    setAcceptDrops(false);
    connect(this, &QLineEdit::textChanged, this, &SourceFilter::judge);
}

void SourceFilter::judge(const QString &text)
{
    // The texts are compared without the blanks around them.
    const QRegExp pattern(text.trimmed(), Qt::CaseInsensitive, QRegExp::RegExp2);
    bad = !pattern.isValid();
    const QString fault = tr("This is not a complete pattern (%1); the last complete one is in use.");
    setToolTip(bad ? fault.arg(pattern.errorString()) : hint);
    setAccessibleDescription(bad ? toolTip() : QString());
    paintState();
    if (!bad)
        emit patternChanged(pattern);
}

void SourceFilter::paintState()
{
    if (!bad) {
        setPalette(QPalette());
        return;
    }
    const QPalette plain;
    const bool isDark = plain.color(QPalette::Base).lightness() < 128;
    QPalette red;
    red.setColor(QPalette::Text, isDark ? QColor(0xff, 0x7b, 0x72) : QColor(0xb3, 0x00, 0x00));
    setPalette(red);
}

void SourceFilter::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::ThemeChange)
        paintState();
}

void SourceFilter::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (text().isEmpty())
            emit left();
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
