#pragma once

#include <QByteArray>
#include <QModelIndex>
#include <QString>
#include <QStringList>

class QAbstractItemView;
class QTreeView;
class QWidget;
class TDmEntity;
class TDmVariable;

namespace tessel::editor {
class DictionaryDocument;
class TableView;
} // namespace tessel::editor

namespace tessel::test {

/// HOUSE (H_CODE, which holds its code, and ROOMS) with PERSON (SEX with two labels and a range, AGE with a
/// range, NOTE) below it, and PLOT without variables.
QByteArray smallDictionary();

/// Shows what \a bytes hold in \a document, without a file. Ends the program when they hold no dictionary.
void load(editor::DictionaryDocument &document, const QByteArray &bytes = smallDictionary());

/// The entity, or the entity's variable, of that name. Ends the program when there is none.
TDmEntity &entityIn(editor::DictionaryDocument &document, const QString &name);
TDmVariable &variableIn(editor::DictionaryDocument &document, const QString &entity, const QString &name);

/// What \a document would be saved as.
QByteArray textOf(editor::DictionaryDocument &document);

/// Shows \a widget as the active window.
void bringUp(QWidget &widget);

/// The rows of \a view as they stand there, cells parted by "|".
QStringList rowsOf(const QAbstractItemView &view);

/// The selected rows of \a view, from the top, as their first cells.
QString selectedIn(const QAbstractItemView &view);

/// The first cell of the current row of \a view.
QString currentIn(const QAbstractItemView &view);

/// Clicks the cell.
void click(
    QAbstractItemView &view, int row, int column = 0, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Types \a text into the open cell of \a view in place of what stands there, then \a end.
void type(QAbstractItemView &view, const QString &text, Qt::Key end = Qt::Key_Return);

/// Whether a cell of \a view is open for typing.
bool isTyping(const QAbstractItemView &view);

/// The tree of \a view in the order shown, collapsed entities with "+", children parted by indentation of
/// one ".".
QStringList treeOf(const QTreeView &view);

} // namespace tessel::test
