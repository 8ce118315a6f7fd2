#include "business/models/EntityModel.h"

#include "business/Constants.h"

EntityModel::EntityModel(QObject *parent, TDmEntity *rootEntity)
    : EntityTreeModel(parent, rootEntity)
{
}

QString EntityModel::headerText() const { return tr("Entity"); }

QVariant EntityModel::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole ? getItemData(nodeOf(index), index.column()) : QVariant();
}

bool EntityModel::setData(const QModelIndex &index, const QVariant &value, int)
{
    if (!index.isValid())
        return false;
    // Untrimmed, unjudged, for every role and column, and not announced: meant so.
    if (TDmEntity *entity = nodeOf(index))
        entity->setName(value.toString());
    return true;
}

Qt::ItemFlags EntityModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return QAbstractItemModel::flags(index) | Qt::ItemIsSelectable | Qt::ItemIsEnabled;
}
