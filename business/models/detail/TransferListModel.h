#pragma once

#include "business/models/detail/FieldTransfer.h"
#include "business/models/detail/FlatListModel.h"

#include <QStringList>

namespace tessel::detail {

/// Internal: the flat lists that take part in drag and drop with each other. Rows can be dragged, everything
/// can be dropped on, below the last row as well.
template<typename Derived, typename Item>
class TransferListModel : public FlatListModel<Derived, Item> {
public:
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags flags = QAbstractItemModel::flags(index) | Qt::ItemIsDropEnabled;
        return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
    }

    QStringList mimeTypes() const override { return {FieldTransfer::mimeType()}; }

    Qt::DropActions supportedDropActions() const override { return Qt::CopyAction | Qt::MoveAction; }

protected:
    using FlatListModel<Derived, Item>::FlatListModel;
};

} // namespace tessel::detail
