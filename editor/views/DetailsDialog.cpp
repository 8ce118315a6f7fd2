#include "editor/views/DetailsDialog.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace tessel::editor {

DetailsDialog::DetailsDialog(const QString &title, const QString &details, QWidget *parent)
    : QDialog(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    auto *text = new QPlainTextEdit(details, this);
    text->setReadOnly(true);
    // Read-only texts take the cursor keys only when told so.
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setAccessibleName(tr("Details"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
    resize(720, 360);
}

} // namespace tessel::editor
