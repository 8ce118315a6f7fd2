#pragma once

#include "business/models/detail/TreeModel.h"
#include "model/TDmEntity.h"

#include <QString>
#include <QVariant>

namespace tessel::detail {

/// Internal: what the three trees over entities have in common: the header, the name in the only column.
class EntityTreeModel : public TreeModel<TDmEntity> {
public:
    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override
    {
        return column == 0 ? TreeModel::index(row, column, parent) : QModelIndex();
    }

    /// The same header for every section and orientation.
    QVariant headerData(int, Qt::Orientation, int role = Qt::DisplayRole) const override
    {
        return role == Qt::DisplayRole ? QVariant(headerText()) : QVariant();
    }

    /// What is shown of \a entity in \a column: the name in column 0, nothing elsewhere.
    QVariant getItemData(TDmEntity *entity, int column) const
    {
        return entity && column == 0 ? QVariant(entity->getName()) : QVariant();
    }

protected:
    using TreeModel::TreeModel;

    /// "Entity", translated in the concrete model's context.
    virtual QString headerText() const = 0;
};

} // namespace tessel::detail
