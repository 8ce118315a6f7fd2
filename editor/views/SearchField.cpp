#include "editor/views/SearchField.h"

#include "editor/views/SearchLine.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QToolButton>

namespace tessel::editor {

SearchField::SearchField(QSortFilterProxyModel &filteredProxy, const QString &purpose, QWidget *parent)
    : QWidget(parent)
    , proxy(filteredProxy)
    , field(new SearchLine(this))
    , patternSwitch(new QAction(QStringLiteral(".*"), this))
    , counter(new QLabel(this))
{
    field->setObjectName(QStringLiteral("search"));
    field->setAccessibleName(purpose);
    field->setPlaceholderText(purpose);
    field->setReads(SearchLine::Reads::PlainText);
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

    connect(patternSwitch, &QAction::toggled, this, [this](bool on) {
        field->setReads(on ? SearchLine::Reads::Patterns : SearchLine::Reads::PlainText);
    });
    connect(field, &SearchLine::patternChanged, this, [this](const QRegExp &pattern) {
        proxy.setFilterRegExp(pattern);
        count();
    });
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

bool SearchField::isPatternValid() const { return !field->isBad(); }

void SearchField::count()
{
    const int all = proxy.sourceModel() ? proxy.sourceModel()->rowCount() : 0;
    const int shown = proxy.rowCount();
    counter->setText(field->text().isEmpty() ? QString::number(all) : tr("%1 of %2").arg(shown).arg(all));
}

} // namespace tessel::editor
