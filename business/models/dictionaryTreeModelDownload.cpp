#include "business/models/dictionaryTreeModelDownload.h"

#include "business/Constants.h"
#include "util/DictionaryUtil.h"
#include "util/Validate.h"

#include <QIcon>

using namespace tessel::constants;

dictionaryTreeModelDownload::dictionaryTreeModelDownload(QObject *parent, TDmEntity *rootEntity)
    : EntityTreeModel(parent, rootEntity)
    , validate(std::make_unique<Validate>())
    , dictionaryUtil(std::make_unique<DictionaryUtil>())
{
}

dictionaryTreeModelDownload::~dictionaryTreeModelDownload() = default;

QString dictionaryTreeModelDownload::headerText() const { return tr("Entity"); }

QVariant dictionaryTreeModelDownload::data(const QModelIndex &index, int role) const
{
    TDmEntity *entity = nodeOf(index);
    if (!entity)
        return QVariant();
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return getItemData(entity, index.column());
    if (index.column() != 0)
        return QVariant();
    if (role == Qt::DecorationRole && entity->getCheckDelete())
        return QIcon(kIconNumberPlaceholder);
    if (role == Qt::CheckStateRole)
        return entity->getSelectable() ? Qt::Checked : Qt::Unchecked;
    return QVariant();
}

bool dictionaryTreeModelDownload::setData(const QModelIndex &index, const QVariant &value, int role)
{
    TDmEntity *entity = nodeOf(index);
    if (!entity)
        return false;
    if (role == Qt::EditRole && index.column() == 0)
        entity->setName(value.toString().trimmed());
    // Announced for every role, whether something changed or not: meant so.
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags dictionaryTreeModelDownload::flags(const QModelIndex &index) const
{
    return index.isValid() ? QAbstractItemModel::flags(index) | Qt::ItemIsEnabled : Qt::NoItemFlags;
}
