#include "editor/wizard/PathField.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace tessel::editor {

PathField::PathField(Kind fieldKind, const QString &objectName, const QString &browseText,
    const QString &dialogTitle, QWidget *parent)
    : QWidget(parent)
    , kind(fieldKind)
    , lineEdit(new QLineEdit(this))
    , button(new QPushButton(browseText, this))
    , title(dialogTitle)
{
    lineEdit->setObjectName(objectName + QLatin1String("Line"));
    button->setObjectName(objectName + QLatin1String("Browse"));
    button->setAccessibleName(title);
    // Enter in a line goes on to the next page.
    button->setAutoDefault(false);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(lineEdit);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, &PathField::browse);
}

void PathField::browse()
{
    const QString found = kind == Kind::Folder ? QFileDialog::getExistingDirectory(this, title, startPlace())
                                               : QFileDialog::getOpenFileName(this, title, startPlace());
    if (!found.isEmpty())
        lineEdit->setText(QDir::toNativeSeparators(found));
}

QString PathField::startPlace() const
{
    // A name without a path is meant to stand beside the dictionary.
    const QFileInfo info(QDir(startFolder), lineEdit->text());
    return !lineEdit->text().isEmpty() && info.exists() ? info.absoluteFilePath() : startFolder;
}

} // namespace tessel::editor
