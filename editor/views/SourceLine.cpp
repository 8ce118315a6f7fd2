#include "editor/views/SourceLine.h"

#include <QPainter>
#include <QStyle>

namespace tessel::editor {

SourceLine::SourceLine(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SourceLine::setSentences(const QString &title, const QStringList &sentences)
{
    // A line end in a name must not hide what stands behind it.
    line = sentences.join(QLatin1Char(' ')).simplified();
    setAccessibleName(line);
    const QStringList lines = QStringList(title) + sentences;
    const QString tip = lines.join(QLatin1Char('\n')).trimmed().toHtmlEscaped();
    setToolTip(tip.isEmpty() ? tip : QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(tip));
    update();
}

QSize SourceLine::sizeHint() const { return {200, fontMetrics().height()}; }

QSize SourceLine::minimumSizeHint() const { return {40, fontMetrics().height()}; }

void SourceLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(line, Qt::ElideRight, width());
    const int alignment = int(Qt::AlignLeft | Qt::AlignVCenter);
    style()->drawItemText(&painter, rect(), alignment, palette(), isEnabled(), shown, QPalette::WindowText);
}

} // namespace tessel::editor
