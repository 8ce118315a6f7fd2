#include "editor/views/SearchField.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QToolButton>

namespace tessel::editor {

SearchField::SearchField(QSortFilterProxyModel &filteredProxy, const QString &purpose, QWidget *parent)
    : QWidget(parent)
    , proxy(filteredProxy)
    , field(new QLineEdit(this))
    , patternSwitch(new QAction(QStringLiteral(".*"), this))
    , counter(new QLabel(this))
{
    field->setObjectName(QStringLiteral("search"));
    field->setAccessibleName(purpose);
    field->setPlaceholderText(purpose);
    field->setClearButtonEnabled(true);
    setFocusProxy(field);

    auto *button = new QToolButton(this);
    patternSwitch->setCheckable(true);
    patternSwitch->setToolTip(tr("Search with a pattern (regular expression)"));
    button->setDefaultAction(patternSwitch);
    button->setObjectName(QStringLiteral("pattern"));
    button->setAccessibleName(tr("Search with a pattern"));
    button->setAutoRaise(true);

    counter->setObjectName(QStringLiteral("count"));
    counter->setAccessibleName(tr("Rows shown"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field, 1);
    layout->addWidget(button);
    layout->addWidget(counter);

    connect(field, &QLineEdit::textChanged, this, &SearchField::apply);
    connect(patternSwitch, &QAction::toggled, this, &SearchField::apply);
    connect(&proxy, &QAbstractItemModel::modelReset, this, &SearchField::count);
    connect(&proxy, &QAbstractItemModel::rowsInserted, this, &SearchField::count);
    connect(&proxy, &QAbstractItemModel::rowsRemoved, this, &SearchField::count);
    count();
}

QString SearchField::text() const { return field->text(); }
QString SearchField::countText() const { return counter->text(); }

void SearchField::activate()
{
    field->setFocus(Qt::ShortcutFocusReason);
    field->selectAll();
}

void SearchField::clear() { field->clear(); }

void SearchField::apply()
{
    // The proxies look at upper-case texts.
    const QRegExp pattern = patternSwitch->isChecked()
        ? QRegExp(field->text(), Qt::CaseInsensitive, QRegExp::RegExp2)
        : QRegExp(field->text().toUpper(), Qt::CaseInsensitive, QRegExp::FixedString);
    isValid = pattern.isValid();
    QPalette colours;
    if (!isValid)
        colours.setColor(QPalette::Text, QColor(0xd0, 0x30, 0x30));
    field->setPalette(colours);
    field->setToolTip(isValid ? QString() : tr("This is no pattern: %1.").arg(pattern.errorString()));
    proxy.setFilterRegExp(pattern);
    count();
}

void SearchField::count()
{
    const int all = proxy.sourceModel() ? proxy.sourceModel()->rowCount() : 0;
    const int shown = proxy.rowCount();
    counter->setText(field->text().isEmpty() ? QString::number(all) : tr("%1 of %2").arg(shown).arg(all));
}

} // namespace tessel::editor
