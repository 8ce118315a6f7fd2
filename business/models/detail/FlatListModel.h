#pragma once

#include <QAbstractItemModel>
#include <QList>
#include <QVariant>

namespace tessel::detail {

/// Internal: one column of a flat list.
template<typename Item>
struct Column {
    const char *header; ///< Translated in the concrete model's context. Null: QAbstractItemModel's own.
    QVariant (*read)(const Item &); ///< Null where the concrete model's getItemData() knows better.
    void (*write)(Item &, const QVariant &) = nullptr; ///< Null: an edit changes nothing.
};

/// Internal: the columns of a concrete model, whose table stands inside its member function columns().
template<typename Item>
struct Columns {
    template<int Count>
    Columns(const Column<Item> (&table)[Count])
        : first(table)
        , count(Count)
    {
    }

    const Column<Item> *at(int column) const
    {
        return column >= 0 && column < count ? first + column : nullptr;
    }

    const Column<Item> *first;
    int count;
};

/// Internal: the skeleton of the flat lists.
///
/// Rows are borrowed pointers, taken when the model is made; the objects must outlive the model and are
/// shared with whoever holds them. Every index carries its row's object as internal pointer, whatever its
/// column. A row without an object shows nothing and is refused by setData().
///
/// Derived has Q_OBJECT, so that its headers are translated in its own context, and offers the static
/// columns() to this class, its friend. It overrides getItemData() or write() where a column needs the
/// model's state.
template<typename Derived, typename Item>
class FlatListModel : public QAbstractItemModel {
public:
    using QObject::parent;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override
    {
        if (parent.isValid() || row < 0 || row >= rows.size())
            return QModelIndex();
        // The column is carried unchecked: meant so.
        return createIndex(row, column, rows.at(row));
    }

    QModelIndex parent(const QModelIndex &) const override { return QModelIndex(); }

    /// The number of rows, whatever the parent: meant so.
    int rowCount(const QModelIndex & = QModelIndex()) const override { return rows.size(); }

    int columnCount(const QModelIndex & = QModelIndex()) const override { return Derived::columns().count; }

    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override
    {
        if (!Derived::columns().first->header)
            return QAbstractItemModel::headerData(section, orientation, role);
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return QVariant();
        const Column<Item> *column = Derived::columns().at(section);
        return column ? QVariant(Derived::tr(column->header)) : QVariant();
    }

    /// What is shown of \a item in \a column; invalid where there is no such column or no item.
    virtual QVariant getItemData(Item *item, int column) const
    {
        const Column<Item> *found = Derived::columns().at(column);
        return item && found ? found->read(*item) : QVariant();
    }

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override
    {
        Item *item = itemOf(index);
        if (!item)
            return QVariant();
        if (role == Qt::DisplayRole || (role == Qt::EditRole && isEditText))
            return getItemData(item, index.column());
        return markData(*item, index.column(), role);
    }

    /// Qt::EditRole stores the value where the column can. Every edit of a row that has an object is
    /// announced and true, whatever the role and column and whether something changed or not: meant so.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override
    {
        Item *item = itemOf(index);
        if (!item)
            return false;
        if (role == Qt::EditRole)
            write(*item, index.column(), value);
        emit dataChanged(index, index);
        return true;
    }

protected:
    /// Whether Qt::EditRole shows the same text as Qt::DisplayRole.
    enum class EditText { Hidden, Shown };

    FlatListModel(QObject *parent, EditText editText)
        : QAbstractItemModel(parent)
        , isEditText(editText == EditText::Shown)
    {
    }

    /// Appends the items of \a source that \a isWanted, in order. One row is announced, row 0, whatever
    /// comes: meant so. A null list is an empty one.
    template<typename IsWanted>
    void fill(const QList<Item *> *source, IsWanted &&isWanted)
    {
        beginInsertRows(QModelIndex(), 0, 0);
        if (source) {
            for (Item *item : *source) {
                if (isWanted(item))
                    rows.append(item);
            }
        }
        endInsertRows();
    }

    void fill(const QList<Item *> *source)
    {
        fill(source, [](const Item *) { return true; });
    }

    /// The object of \a index: null for an invalid index and for one of another model.
    Item *itemOf(const QModelIndex &index) const
    {
        return index.isValid() && index.model() == this ? static_cast<Item *>(index.internalPointer())
                                                        : nullptr;
    }

    /// What the roles beside the texts show of \a item: icons, check boxes. Nothing unless a model says so.
    virtual QVariant markData(Item &item, int column, int role) const
    {
        Q_UNUSED(item)
        Q_UNUSED(column)
        Q_UNUSED(role)
        return QVariant();
    }

    /// Stores \a value in \a item, if the column can.
    virtual void write(Item &item, int column, const QVariant &value)
    {
        const Column<Item> *found = Derived::columns().at(column);
        if (found && found->write)
            found->write(item, value);
    }

    QList<Item *> rows;

private:
    const bool isEditText;
};

} // namespace tessel::detail
