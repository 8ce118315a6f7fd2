#include "editor/views/RecoveryBar.h"

#include "editor/FileHandling.h"

#include <QPushButton>

namespace tessel::editor {

RecoveryBar::RecoveryBar(FileHandling &files, QWidget *parent)
    : NoticeBar(QStringLiteral("recovery"), parent)
{
    const QPushButton *open = addButton(tr("Open &it"), QStringLiteral("recoveryOpen"));
    const QPushButton *later = addButton(tr("La&ter"), QStringLiteral("recoveryLater"));
    connect(open, &QPushButton::clicked, &files, &FileHandling::recoverUnnamed);
    connect(later, &QPushButton::clicked, this, &QWidget::hide);
    connect(&files, &FileHandling::unnamedWorkFound, this, [this](bool isThere) {
        if (isThere)
            tell(tr("An earlier session ended without saving a dictionary that has no file yet."));
        else
            hide();
    });
}

} // namespace tessel::editor
