#include "editor/OperatorBar.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace tessel::editor {

OperatorBar::OperatorBar(QWidget *parent)
    : QWidget(parent)
{
    struct Operator {
        QString caption;
        QString term;
        QString meaning;
    };
    // The words are part of the language of expressions, not of the user's: only their meaning is translated.
    const Operator operators[] = {
        {QStringLiteral("="), QStringLiteral("="), tr("Equal to")},
        {QStringLiteral("<>"), QStringLiteral("<>"), tr("Different from")},
        {QStringLiteral("<"), QStringLiteral("<"), tr("Less than")},
        {QStringLiteral("<="), QStringLiteral("<="), tr("Less than or equal to")},
        {QStringLiteral(">"), QStringLiteral(">"), tr("Greater than")},
        {QStringLiteral(">="), QStringLiteral(">="), tr("Greater than or equal to")},
        {QStringLiteral("&and"), QStringLiteral("and"), tr("And: both sides hold")},
        {QStringLiteral("&or"), QStringLiteral("or"), tr("Or: one side holds at least")},
        {QStringLiteral("&not"), QStringLiteral("not"), tr("Not: what follows does not hold")},
        {QStringLiteral("("), QStringLiteral("("), tr("Opening bracket")},
        {QStringLiteral(")"), QStringLiteral(")"), tr("Closing bracket")},
    };
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const Operator &entry : operators) {
        auto *button = new QToolButton(this);
        button->setText(entry.caption);
        button->setObjectName(QStringLiteral("operator %1").arg(entry.term));
        button->setAccessibleName(entry.meaning);
        button->setToolTip(entry.meaning);
        button->setMinimumWidth(36);
        connect(button, &QToolButton::clicked, this, [this, term = entry.term] { emit picked(term); });
        layout->addWidget(button);
        row.append(button);
    }
    layout->addStretch();
}

} // namespace tessel::editor
