#include "editor/wizard/WizardText.h"

#include <QLabel>
#include <QPalette>

namespace tessel::editor {

QString WizardText::entities(int count)
{
    return count == 1 ? tr("1 entity") : tr("%n entities", nullptr, count);
}

QString WizardText::variables(int count)
{
    return count == 1 ? tr("1 variable") : tr("%n variables", nullptr, count);
}

QString WizardText::share(int part, int whole) { return tr("%1 of %2").arg(part).arg(whole); }

QColor WizardText::faultColor(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128 ? QColor(255, 138, 128) : QColor(183, 28, 28);
}

QLabel *WizardText::label(const QString &text, const QString &objectName, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel *WizardText::faultLabel(const QString &objectName, QWidget *parent)
{
    QLabel *result = label(QString(), objectName, parent);
    QPalette palette = result->palette();
    palette.setColor(QPalette::WindowText, faultColor(palette));
    result->setPalette(palette);
    QFont font = result->font();
    font.setBold(true);
    result->setFont(font);
    result->hide();
    return result;
}

void WizardText::show(QLabel &label, const QString &text)
{
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

} // namespace tessel::editor
