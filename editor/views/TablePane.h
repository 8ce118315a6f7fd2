#pragma once

#include "editor/Scope.h"
#include "editor/Touched.h"

#include <QList>
#include <QWidget>

#include <memory>

class QAbstractItemModel;
class QMimeData;
class QModelIndex;
class QSortFilterProxyModel;

namespace tessel::editor {

class DictionaryDocument;
class RecordingDelegate;
class SearchField;
class TableView;

/// A table over one of the library's flat models with its proxy and a search field, in which rows are added,
/// deleted and moved. Selection, scroll position, sort and filter survive every edit, undone ones included:
/// rows are known by their objects.
class TablePane : public QWidget {
    Q_OBJECT

public:
    ~TablePane() override;

    TableView *view() const { return table; }
    SearchField *search() const { return searchField; }

    /// The objects of the selected rows, in the order shown.
    QList<void *> selectedObjects() const;

    /// Makes \a object's row the current one; it is shown even if a filter hides it, which is cleared then.
    void select(const void *object, int column = 0);

public slots:
    /// Adds a row behind the current one and opens it for typing.
    void addRow();
    void removeSelected();
    void moveSelected(int steps);

    /// Shows the rows in the order of the dictionary.
    void unsort();

signals:
    /// One sentence about what was done, or could not be.
    void told(const QString &sentence);

    /// A sentence to stay until it is seen, and what there is to read besides.
    void warned(const QString &sentence, const QString &details);

    /// Another row is current now, or none.
    void currentObjectChanged();

protected:
    /// Takes over \a proxyModel. \a name is the table's accessible name, \a purpose the search field's.
    TablePane(DictionaryDocument &document, QSortFilterProxyModel *proxyModel, const QString &name,
        const QString &purpose, QWidget *parent);

    /// A new model of what is shown; null for nothing.
    virtual QAbstractItemModel *newModel() = 0;

    /// What an edit of a cell may change, and what it is called.
    virtual Scope editScope(void *object) const = 0;
    virtual QString editText(void *object, const QString &column) const = 0;

    /// Why the model refuses \a typed in \a column without a word; empty for what it takes, and for what it
    /// refuses with a box.
    virtual QString silentFault(int column, const QString &typed) const;

    /// Whether \a touched changes what is shown here.
    virtual bool concerns(const Touched &touched) const = 0;

    /// Adds an object at \a row of the list that is shown; null when there is nothing to add to.
    virtual void *addObject(int row) = 0;
    virtual void removeObjects(const QList<void *> &objects) = 0;
    virtual void moveObjects(const QList<void *> &objects, int steps) = 0;

    /// Gives the columns their first widths, once there are columns.
    virtual void sizeColumns() { }

    /// Shows what newModel() gives; keeps selection, scroll, sort and filter.
    void rebuild();

    /// Makes \a index the current row and the only one selected.
    void choose(const QModelIndex &index);

    void *currentObject() const;
    DictionaryDocument &document() const { return editedDocument; }

private:
    void followEdit(const Touched &touched);
    void forget();

    DictionaryDocument &editedDocument;
    std::unique_ptr<QAbstractItemModel> model;
    QSortFilterProxyModel *proxy;
    RecordingDelegate *delegate;
    SearchField *searchField;
    TableView *table;
};

/// \a objects, which are of type Item.
template<typename Item>
QList<Item *> objectsAs(const QList<void *> &objects)
{
    QList<Item *> items;
    for (void *object : objects)
        items.append(static_cast<Item *>(object));
    return items;
}

} // namespace tessel::editor
