#include "tests/editor/EditorFixtures.h"

#include "documents/DocumentForm.h"
#include "editor/DictionaryDocument.h"
#include "model/TDmEntity.h"
#include "model/TDmVariable.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QTemporaryFile>
#include <QTreeView>
#include <QtTest>

#include <algorithm>
#include <functional>

namespace tessel::test {
namespace {

TDmEntity *found(TDmEntity &entity, const QString &name)
{
    if (entity.getName() == name)
        return &entity;
    for (TDmEntity *child : qAsConst(*entity.getChildren())) {
        if (TDmEntity *below = found(*child, name))
            return below;
    }
    return nullptr;
}

} // namespace

QByteArray smallDictionary()
{
    return R"({"name": "DICTIONARY", "entities": [
        {"name": "HOUSE", "label": "House", "codeVar": "H_CODE", "selectable": true, "variables": [
            {"name": "H_CODE", "type": "string", "label": "Number of the house"},
            {"name": "ROOMS", "type": "integer", "label": "Rooms"}
        ], "entities": [
            {"name": "PERSON", "variables": [
                {"name": "SEX", "alias": "P1", "type": "integer", "label": "Sex", "group": "DEMO", "tag": 3,
                 "missing": 9, "notapp": 8, "documentation": "Asked of all.",
                 "metadata": {"start": 12, "length": 1, "field": "F1",
                              "range": [{"min": 1, "max": 2}]},
                 "valueLabels": [{"value": 1, "label": "Man"}, {"value": 2, "label": "Woman"}]},
                {"name": "AGE", "alias": "P2", "type": "integer", "label": "Age in years", "tag": 4,
                 "metadata": {"range": [{"min": 0, "max": 120}]}},
                {"name": "NOTE", "type": "string", "label": "Remarks"}
            ]}
        ]},
        {"name": "PLOT"}
    ]})";
}

void load(editor::DictionaryDocument &document, const QByteArray &bytes)
{
    // The library writes a line for every edit.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        qFatal("no temporary file");
    if (const auto problem = document.openCopy(file.fileName()))
        qFatal("%s", qPrintable(problem->message));
}

TDmEntity &entityIn(editor::DictionaryDocument &document, const QString &name)
{
    TDmEntity *entity = found(document.root(), name);
    if (!entity)
        qFatal("no entity %s", qPrintable(name));
    return *entity;
}

TDmVariable &variableIn(editor::DictionaryDocument &document, const QString &entity, const QString &name)
{
    for (TDmVariable *variable : qAsConst(*entityIn(document, entity).getVariables())) {
        if (variable->getName() == name)
            return *variable;
    }
    qFatal("no variable %s", qPrintable(name));
}

QByteArray textOf(editor::DictionaryDocument &document) { return documents::dictionaryText(document.root()); }

void bringUp(QWidget &widget)
{
    widget.show();
    widget.activateWindow();
    if (!QTest::qWaitForWindowActive(&widget))
        qFatal("the window does not become active");
}

QStringList rowsOf(const QAbstractItemView &view)
{
    QStringList rows;
    const QAbstractItemModel &model = *view.model();
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells.append(model.index(row, column).data().toString());
        rows.append(cells.join(QLatin1Char('|')));
    }
    return rows;
}

QString selectedIn(const QAbstractItemView &view)
{
    QModelIndexList rows = view.selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList names;
    for (const QModelIndex &row : qAsConst(rows))
        names.append(row.data().toString());
    return names.join(QLatin1Char(' '));
}

QString currentIn(const QAbstractItemView &view)
{
    return view.currentIndex().siblingAtColumn(0).data().toString();
}

void click(QAbstractItemView &view, int row, int column, Qt::KeyboardModifiers modifiers)
{
    const QRect cell = view.visualRect(view.model()->index(row, column));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, cell.center());
}

void type(QAbstractItemView &view, const QString &text, Qt::Key end)
{
    auto *field = view.viewport()->findChild<QLineEdit *>();
    if (!field)
        qFatal("no cell is open");
    field->selectAll();
    // Of a text, each letter is a key.
    if (text.isEmpty())
        QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClicks(field, text);
    QTest::keyClick(field, end);
    // What Return does comes with the next events; the field goes after that.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool isTyping(const QAbstractItemView &view)
{
    const auto *field = view.viewport()->findChild<QLineEdit *>();
    return field && field->isVisible();
}

QStringList treeOf(const QTreeView &view)
{
    QStringList lines;
    const std::function<void(const QModelIndex &, const QString &)> add = [&](const QModelIndex &index,
                                                                              const QString &dots) {
        const int children = view.model()->rowCount(index);
        const bool isClosed = children > 0 && !view.isExpanded(index);
        lines.append(dots + index.data().toString() + (isClosed ? QStringLiteral("+") : QString()));
        for (int row = 0; row < children; ++row)
            add(view.model()->index(row, 0, index), dots + QLatin1Char('.'));
    };
    add(view.model()->index(0, 0), QString());
    return lines;
}

} // namespace tessel::test
