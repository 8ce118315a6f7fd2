#include "editor/CopyLabelsDialog.h"

#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace tessel::editor {

CopyLabelsDialog::CopyLabelsDialog(const TDmVariable &source, const TDmEntity &entity, QWidget *parent)
    : QDialog(parent)
    , list(new QListWidget(this))
{
    setWindowTitle(tr("Copy labels"));
    auto *text = new QLabel(this);
    text->setTextFormat(Qt::PlainText);
    text->setText(tr("&Variables that are to have the %n labels of %1 in place of their own:", nullptr,
        source.getValueLabelElementList()->size())
                      .arg(source.getName()));
    text->setBuddy(list);
    text->setWordWrap(true);
    list->setObjectName(QStringLiteral("targets"));
    list->setAccessibleName(tr("Variables"));
    for (TDmVariable *variable : qAsConst(*entity.getVariables())) {
        if (variable == &source)
            continue;
        auto *item = new QListWidgetItem(tr("%1 — %2").arg(variable->getName(), variable->getLabel()), list);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
        offered.append(variable);
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(list);
    layout->addWidget(buttons);
    resize(420, 480);
}

QList<TDmVariable *> CopyLabelsDialog::targets() const
{
    QList<TDmVariable *> ticked;
    for (int row = 0; row < list->count(); ++row) {
        if (list->item(row)->checkState() == Qt::Checked)
            ticked.append(offered.at(row));
    }
    return ticked;
}

} // namespace tessel::editor
