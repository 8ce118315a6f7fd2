#include "editor/RecordingDelegate.h"

#include "editor/Edit.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QLineEdit>
#include <QScopedValueRollback>

namespace tessel::editor {

RecordingDelegate::RecordingDelegate(DictionaryDocument &editedDocument,
    std::function<Scope(const QModelIndex &)> scope, std::function<QString(const QModelIndex &)> text,
    QObject *parent)
    : QStyledItemDelegate(parent)
    , document(editedDocument)
    , scopeOf(std::move(scope))
    , textOf(std::move(text))
{
}

QWidget *RecordingDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int type = index.data(Qt::EditRole).userType();
    if (type != QMetaType::Double && type != QMetaType::Int)
        return QStyledItemDelegate::createEditor(parent, option, index);
    auto *field = new QLineEdit(parent);
    field->setFrame(false);
    QValidator *validator = nullptr;
    if (type == QMetaType::Int)
        validator = new QIntValidator(field);
    else
        validator = new QDoubleValidator(field);
    // The models read numbers with a point.
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(plain);
    field->setValidator(validator);
    return field;
}

void RecordingDelegate::setModelData(
    QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const QScopedValueRollback<bool> guard(storing, true);
    const QString text = textOf(index);
    Edit edit(document, scopeOf(index));
    QStyledItemDelegate::setModelData(editor, model, index);
    edit.commit(text);
}

} // namespace tessel::editor
