#pragma once

#include "business/models/detail/FlatListModel.h"

namespace tessel::detail {

/// Internal: the flat lists whose cells are edited in place.
template<typename Derived, typename Item>
class EditableListModel : public FlatListModel<Derived, Item> {
public:
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        const Qt::ItemFlags flags = QAbstractItemModel::flags(index);
        return index.isValid() ? flags | Qt::ItemIsSelectable | Qt::ItemIsEditable : flags;
    }

protected:
    explicit EditableListModel(QObject *parent)
        : FlatListModel<Derived, Item>(parent, FlatListModel<Derived, Item>::EditText::Shown)
    {
    }
};

} // namespace tessel::detail
