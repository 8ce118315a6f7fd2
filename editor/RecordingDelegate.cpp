#include "editor/RecordingDelegate.h"

#include "editor/Edit.h"

#include <QDoubleValidator>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaProperty>
#include <QScopedValueRollback>

namespace tessel::editor {
namespace {

constexpr int kLongestQuotation = 80;

QString textIn(const QWidget *editor) { return editor->metaObject()->userProperty().read(editor).toString(); }

/// What the field of a number expects.
QString expectationOf(const QLineEdit &field)
{
    const auto *whole = qobject_cast<const QIntValidator *>(field.validator());
    return whole ? RecordingDelegate::tr("a whole number from %1 to %2 is expected")
                       .arg(whole->bottom())
                       .arg(whole->top())
                 : RecordingDelegate::tr("a number such as 12 or -0.5 is expected");
}

} // namespace

RecordingDelegate::RecordingDelegate(DictionaryDocument &editedDocument, Questions questions, QObject *parent)
    : QStyledItemDelegate(parent)
    , document(editedDocument)
    , ask(std::move(questions))
{
    // What is no number never reaches the model.
    connect(this, &QAbstractItemDelegate::closeEditor, this, [this](QWidget *editor, EndEditHint hint) {
        const auto *field = qobject_cast<const QLineEdit *>(editor);
        if (hint == NoHint && field && !field->hasAcceptableInput())
            tellOf(field->text(), expectationOf(*field));
    });
}

QWidget *RecordingDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    cell = index;
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
    const QString typed = textIn(editor);
    // Asked again, the model would only show its box again.
    if (!isByKey && wasRefused(editor)) {
        tellOf(typed, refusedReason);
        return;
    }
    const QString before = index.data(Qt::EditRole).toString();
    const QString reason = ask.silentFault(index, typed);
    const bool isTaken = reason.isEmpty() && store(typed, *model, index);
    // Nothing is lost with a text that stands there already.
    if (isTaken || typed.trimmed() == before.trimmed()) {
        refusedField.clear();
        return;
    }
    refusedField = editor;
    refusedText = typed;
    refusedReason = reason.isEmpty() ? tr("the rules of the dictionary do not allow it") : reason;
    if (!isByKey)
        tellOf(typed, refusedReason);
}

/// Lets \a model judge and store \a typed, and tells whether it did.
bool RecordingDelegate::store(const QString &typed, QAbstractItemModel &model, const QModelIndex &index) const
{
    const QScopedValueRollback<bool> guard(storing, true);
    const QString text = ask.text(index);
    Edit edit(document, ask.scope(index));
    const bool isTaken = model.setData(index, typed, Qt::EditRole);
    edit.commit(text);
    return isTaken;
}

/// Return and Tab end typing only where the text is taken.
bool RecordingDelegate::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(watched);
    if (!field || event->type() != QEvent::KeyPress)
        return QStyledItemDelegate::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Tab:
        take(*field, EditNextItem);
        return true;
    case Qt::Key_Backtab:
        take(*field, EditPreviousItem);
        return true;
    case Qt::Key_Enter:
    case Qt::Key_Return:
        // The field has its part of the key first.
        QMetaObject::invokeMethod(
            field, [this, field] { take(*field, SubmitModelCache); }, Qt::QueuedConnection);
        return false;
    default:
        return QStyledItemDelegate::eventFilter(watched, event);
    }
}

void RecordingDelegate::take(QLineEdit &field, EndEditHint hint)
{
    const auto tell = [this, &field](const QString &reason) {
        emit refused(tr("\"%1\" was not taken: %2. Correct it, or press Esc to give it up.")
                         .arg(field.text().left(kLongestQuotation), reason));
    };
    if (!field.hasAcceptableInput()) {
        tell(expectationOf(field));
        return;
    }
    {
        const QScopedValueRollback<bool> guard(isByKey, true);
        emit commitData(&field);
    }
    if (wasRefused(&field))
        tell(refusedReason);
    else
        emit closeEditor(&field, hint);
}

/// Tells that \a typed is gone; of an empty text nothing is.
void RecordingDelegate::tellOf(const QString &typed, const QString &reason) const
{
    if (typed.trimmed().isEmpty())
        return;
    const bool isLong = typed.size() > kLongestQuotation;
    const QString quoted = isLong ? typed.left(kLongestQuotation) + QStringLiteral("…") : typed;
    const QString where = cell.isValid() ? ask.text(cell) : QString();
    emit notTaken(tr("\"%1\" was not taken (%2): %3. It can be copied from here.").arg(quoted, where, reason),
        isLong ? typed : QString());
}

/// Whether what stands in \a editor is what the model has refused.
bool RecordingDelegate::wasRefused(const QWidget *editor) const
{
    return refusedField == editor && refusedText == textIn(editor);
}

} // namespace tessel::editor
