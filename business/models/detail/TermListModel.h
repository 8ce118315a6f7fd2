#pragma once

#include "business/models/detail/ExpressionListModel.h"

#include <QDebug>

namespace tessel::detail {

/// Internal: the pick lists of entities and variables, which take what the front end drops on them.
template<typename Derived, typename Item>
class TermListModel : public ExpressionListModel<Derived, Item> {
public:
    /// Appends the object that \a parent carries, one and at the end, whatever \a row and \a count say; they
    /// are announced as they come: meant so. Always true.
    bool insertRows(int row, int count, const QModelIndex &parent = QModelIndex()) override
    {
        this->beginInsertRows(QModelIndex(), row, this->lastOf(row, count));
        this->rows.append(static_cast<Item *>(parent.internalPointer()));
        this->endInsertRows();
        return true;
    }

    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override
    {
        qDebug() << "Removing rows";
        return ExpressionListModel<Derived, Item>::removeRows(row, count, parent);
    }

protected:
    using ExpressionListModel<Derived, Item>::ExpressionListModel;

    QString textOf(const Item &item) const override
    {
        if (this->mode == ShowName)
            return item.getName();
        if (this->mode == ShowLabel)
            return item.getLabel();
        return item.getName() + QLatin1String(" - ") + item.getLabel();
    }
};

} // namespace tessel::detail
