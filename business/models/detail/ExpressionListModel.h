#pragma once

#include "business/Constants.h"
#include "business/models/detail/TransferListModel.h"
#include "business/models/eEntityShowMode.h"

#include <QIcon>

#include <algorithm>
#include <limits>

namespace tessel::detail {

/// Internal: the pick lists of the expression builder: one column, shown by mode, rows that can be taken out.
template<typename Derived, typename Item>
class ExpressionListModel : public TransferListModel<Derived, Item> {
public:
    /// The model's own list, not a copy; it stays the model's.
    QList<Item *> *getData() { return &this->rows; }

    /// What the mode shows of \a item, whatever the column.
    QVariant getItemData(Item *item, int) const override
    {
        return item && mode >= ShowName && mode <= ShowNameAndLabel ? QVariant(textOf(*item)) : QVariant();
    }

    /// Takes up to \a count items out of the list, beginning with \a row, and deletes none of them. Announces
    /// \a row to \a row + \a count - 1, whatever is there. Always true.
    bool removeRows(int row, int count, const QModelIndex & = QModelIndex()) override
    {
        this->beginRemoveRows(QModelIndex(), row, lastOf(row, count));
        QList<Item *> &items = this->rows;
        if (row >= 0 && row < items.size() && count > 0) {
            const auto first = items.begin() + row;
            items.erase(first, first + std::min(count, items.size() - row));
        }
        this->endRemoveRows();
        return true;
    }

protected:
    ExpressionListModel(QObject *parent, const QList<Item *> *objects, eEntityShowMode showMode)
        : TransferListModel<Derived, Item>(parent, TransferListModel<Derived, Item>::EditText::Hidden)
        , mode(showMode)
    {
        this->fill(objects);
    }

    /// The text of \a item in the model's mode, which is one of the three.
    virtual QString textOf(const Item &item) const = 0;

    QVariant markData(Item &, int column, int role) const override
    {
        return column == 0 && role == Qt::DecorationRole ? QVariant(QIcon(constants::kIconProjectPreferences))
                                                         : QVariant();
    }

    /// The last of \a count rows from \a row on; where no int holds it, the nearest one.
    static int lastOf(int row, int count)
    {
        using Limits = std::numeric_limits<int>;
        return int(std::clamp<qint64>(qint64(row) + count - 1, Limits::min(), Limits::max()));
    }

    const eEntityShowMode mode;
};

} // namespace tessel::detail
