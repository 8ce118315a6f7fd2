#include "editor/views/NoticeBar.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessel::editor {

NoticeBar::NoticeBar(QWidget *parent)
    : QFrame(parent)
    , label(new QLabel(this))
    , detailsButton(new QPushButton(tr("&Details"), this))
{
    setFrameShape(StyledPanel);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    label->setObjectName(QStringLiteral("notice"));
    label->setTextFormat(Qt::PlainText);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    detailsButton->setObjectName(QStringLiteral("noticeDetails"));
    detailsButton->setAccessibleName(tr("Details"));
    auto *close = new QToolButton(this);
    close->setText(QStringLiteral("✕"));
    close->setAutoRaise(true);
    close->setObjectName(QStringLiteral("noticeClose"));
    close->setAccessibleName(tr("Close this notice"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 4, 4);
    layout->addWidget(label, 1);
    layout->addWidget(detailsButton);
    layout->addWidget(close);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(detailsButton, &QPushButton::clicked, this, &NoticeBar::showDetails);
    hide();
}

void NoticeBar::tell(const QString &sentence, const QString &moreText)
{
    label->setText(sentence);
    details = moreText;
    detailsButton->setVisible(!details.isEmpty());
    show();
}

QString NoticeBar::text() const { return isHidden() ? QString() : label->text(); }

void NoticeBar::showDetails()
{
    auto *dialog = new QDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(label->text());
    auto *text = new QPlainTextEdit(details, dialog);
    text->setReadOnly(true);
    text->setAccessibleName(tr("Details"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(text);
    layout->addWidget(buttons);
    dialog->resize(720, 360);
    dialog->show();
}

} // namespace tessel::editor
