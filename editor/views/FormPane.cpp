#include "editor/views/FormPane.h"

#include "editor/Edit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>

#include <limits>

namespace tessel::editor {
namespace {

/// A text of several lines that tells when it is left.
class LongTextField : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;
    std::function<void()> whenLeft;

    /// The text with its no-break spaces, which toPlainText() makes blanks of.
    QString text() const
    {
        QString raw = document()->toRawText();
        return raw.replace(QChar::ParagraphSeparator, QLatin1Char('\n'))
            .replace(QChar::LineSeparator, QLatin1Char('\n'));
    }

protected:
    void focusOutEvent(QFocusEvent *event) override
    {
        QPlainTextEdit::focusOutEvent(event);
        if (whenLeft)
            whenLeft();
    }
};

/// A number that the mouse wheel does not change while someone scrolls past it.
class NumberField : public QSpinBox {
public:
    explicit NumberField(QWidget *parent)
        : QSpinBox(parent)
    {
        setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        setKeyboardTracking(false);
        setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void wheelEvent(QWheelEvent *event) override { event->ignore(); }
};

/// A choice that the mouse wheel does not change either.
class ChoiceField : public QComboBox {
public:
    explicit ChoiceField(QWidget *parent)
        : QComboBox(parent)
    {
        setFocusPolicy(Qt::StrongFocus);
        setEditable(true);
        setInsertPolicy(NoInsert);
    }

protected:
    void wheelEvent(QWheelEvent *event) override { event->ignore(); }
};

} // namespace

FormPane::FormPane(DictionaryDocument &document, QWidget *parent)
    : QWidget(parent)
    , editedDocument(document)
    , form(new QFormLayout(this))
{
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setContentsMargins(8, 8, 8, 8);
}

void FormPane::addRow(const QString &title, const QString &name, QWidget *field, std::function<void()> show)
{
    field->setObjectName(name);
    QString plain = title;
    // The field inside is where the focus is.
    if (auto *choice = qobject_cast<QComboBox *>(field))
        choice->lineEdit()->setAccessibleName(QString(title).remove(QLatin1Char('&')));
    field->setAccessibleName(plain.remove(QLatin1Char('&')));
    auto *label = new QLabel(title, this);
    label->setBuddy(field);
    form->addRow(label, field);
    shows.push_back(std::move(show));
}

void FormPane::store(const QString &title, const std::function<void()> &change)
{
    if (!hasObject())
        return;
    QString plain = title;
    Edit edit(editedDocument, editScope());
    change();
    // The object may have stored something else than was typed.
    if (!edit.commit(tr("change %1 of %2").arg(plain.remove(QLatin1Char('&')), shownName())))
        refresh();
}

void FormPane::addText(const QString &title, const QString &name, GetText get, SetText set)
{
    auto *field = new QLineEdit(this);
    field->setEnabled(bool(set));
    addRow(title, name, field, [this, field, get] { field->setText(hasObject() ? get() : QString()); });
    connect(field, &QLineEdit::editingFinished, this, [this, field, title, get, set] {
        if (hasObject() && field->text() != get())
            store(title, [&] { set(field->text()); });
    });
}

void FormPane::addLongText(const QString &title, const QString &name, GetText get, SetText set)
{
    auto *field = new LongTextField(this);
    field->setTabChangesFocus(true);
    field->setMinimumHeight(field->fontMetrics().height() * 4);
    addRow(title, name, field, [this, field, get] {
        const QString text = hasObject() ? get() : QString();
        if (field->text() != text)
            field->setPlainText(text);
    });
    field->whenLeft = [this, field, title, get, set] {
        // Not every text can be shown as it is; only what was typed is stored.
        if (hasObject() && field->document()->isModified() && field->text() != get())
            store(title, [&] { set(field->text()); });
        field->document()->setModified(false);
    };
}

void FormPane::addNumber(
    const QString &title, const QString &name, GetNumber get, SetNumber set, GetMark isOffered)
{
    auto *field = new NumberField(this);
    addRow(title, name, field, [this, field, get, isOffered] {
        const QSignalBlocker blocker(field);
        field->setEnabled(!isOffered || (hasObject() && isOffered()));
        field->setValue(hasObject() ? get() : 0);
        if (!hasObject())
            field->clear();
    });
    connect(field, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, title, get, set](int number) {
        if (hasObject() && number != get())
            store(title, [&] { set(number); });
    });
}

void FormPane::addMark(const QString &title, const QString &name, GetMark get, SetMark set)
{
    auto *field = new QCheckBox(this);
    addRow(title, name, field, [this, field, get] {
        const QSignalBlocker blocker(field);
        field->setChecked(hasObject() && get());
    });
    connect(field, &QCheckBox::toggled, this, [this, title, get, set](bool on) {
        if (hasObject() && on != get())
            store(title, [&] { set(on); });
    });
}

void FormPane::addChoice(const QString &title, const QString &name, Choices choices, GetText get, SetText set)
{
    auto *field = new ChoiceField(this);
    addRow(title, name, field, [this, field, choices, get] {
        const QSignalBlocker blocker(field);
        field->clear();
        if (!hasObject())
            return;
        field->addItems(choices());
        // The arrow keys go on from here.
        field->setCurrentIndex(field->findText(get()));
        field->setEditText(get());
    });
    const auto storeText = [this, field, title, get, set] {
        if (hasObject() && field->currentText() != get())
            store(title, [&] { set(field->currentText()); });
    };
    connect(field->lineEdit(), &QLineEdit::editingFinished, this, storeText);
    connect(field, QOverload<int>::of(&QComboBox::activated), this, storeText);
}

void FormPane::refresh()
{
    setEnabled(hasObject());
    for (const auto &show : shows)
        show();
}

} // namespace tessel::editor
