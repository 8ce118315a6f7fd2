#include "editor/views/NoticeBar.h"

#include "editor/views/DetailsDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace tessel::editor {

NoticeBar::NoticeBar(const QString &name, QWidget *parent)
    : QFrame(parent)
    , row(new QHBoxLayout(this))
    , label(new QLabel(this))
    , detailsButton(new QPushButton(tr("&Details"), this))
{
    setFrameShape(StyledPanel);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    detailsButton->setObjectName(name + QStringLiteral("Details"));
    detailsButton->setAccessibleName(tr("Details"));
    auto *close = new QToolButton(this);
    close->setText(QStringLiteral("✕"));
    close->setAutoRaise(true);
    close->setObjectName(name + QStringLiteral("Close"));
    close->setAccessibleName(tr("Close this notice"));
    row->setContentsMargins(8, 4, 4, 4);
    row->addWidget(label, 1);
    row->addWidget(detailsButton);
    row->addWidget(close);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(close, &QToolButton::clicked, this, &NoticeBar::closed);
    connect(detailsButton, &QPushButton::clicked, this,
        [this] { (new DetailsDialog(label->text(), details, this))->show(); });
    hide();
}

void NoticeBar::tell(const QString &sentence, const QString &moreText)
{
    label->setText(sentence);
    details = moreText;
    detailsButton->setVisible(!details.isEmpty());
    show();
}

QPushButton *NoticeBar::addButton(const QString &text, const QString &name)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(name);
    QString plain = text;
    button->setAccessibleName(plain.remove(QLatin1Char('&')));
    // Before the one that closes the bar, by Tab as well.
    QWidget *close = row->itemAt(row->count() - 1)->widget();
    row->insertWidget(row->count() - 1, button);
    setTabOrder(button, close);
    return button;
}

QString NoticeBar::text() const { return isHidden() ? QString() : label->text(); }

void NoticeBar::withdraw(const QString &sentence)
{
    if (text() == sentence)
        hide();
}

} // namespace tessel::editor
