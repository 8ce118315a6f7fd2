#include "editor/wizard/SearchLine.h"

#include "editor/wizard/WizardText.h"

#include <QKeyEvent>

namespace tessel::editor {

SearchLine::SearchLine(QWidget *parent)
    : QLineEdit(parent)
{
    setClearButtonEnabled(true);
    setPlaceholderText(tr("Search name, label, alias, group…"));
    setToolTip(tr("A text or a regular expression; letter case does not count."));
    connect(this, &QLineEdit::textChanged, this, &SearchLine::judge);
}

QRegExp SearchLine::pattern() const
{
    // The proxies look at texts in upper case.
    return QRegExp(text(), Qt::CaseInsensitive, QRegExp::RegExp2);
}

void SearchLine::judge()
{
    const QRegExp current = pattern();
    if (current.isValid()) {
        setPalette(QPalette());
        setToolTip(tr("A text or a regular expression; letter case does not count."));
    } else {
        QPalette red = palette();
        red.setColor(QPalette::Text, WizardText::faultColor(red));
        setPalette(red);
        setToolTip(tr("This is no valid regular expression: %1.").arg(current.errorString()));
    }
    // What the colour says must reach those who do not see it.
    setAccessibleDescription(toolTip());
    emit patternChanged(current);
}

void SearchLine::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        emit left();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace tessel::editor
