#include "business/models/DictionaryTreeModel.h"

#include "business/Constants.h"
#include "business/models/detail/EntityNameRules.h"
#include "util/DictionaryUtil.h"
#include "util/UtilForms.h"

using namespace tessel::detail;

namespace {

/// What tells two names apart when an entity is given its own name back.
QString folded(const QString &name) { return name.toUpper().trimmed(); }

} // namespace

DictionaryTreeModel::DictionaryTreeModel(QObject *parent, TDmEntity *rootEntity)
    : EntityTreeModel(parent, rootEntity)
    , validate(std::make_unique<Validate>())
    , dictionaryUtil(std::make_unique<DictionaryUtil>())
{
}

DictionaryTreeModel::~DictionaryTreeModel() = default;

QString DictionaryTreeModel::headerText() const { return tr("Entity"); }

QVariant DictionaryTreeModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return QVariant();
    return getItemData(nodeOf(index), index.column());
}

bool DictionaryTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    TDmEntity *entity = nodeOf(index);
    if (!entity)
        return false;
    const QString text = value.toString();

    EntityNameRules::Taken taken;
    if (folded(entity->getName()) != folded(text))
        taken.names = dictionaryUtil->getNamesEntitiesDictionary(root, {});
    taken.groups = dictionaryUtil->getGroupEntitiesDictionary(root, {});
    taken.aliases = dictionaryUtil->getAliasEntitiesDictionary(root, {});

    using Fault = EntityNameRules::Fault;
    switch (EntityNameRules::faultOf(text, taken, *validate)) {
    case Fault::None:
        break;
    case Fault::Empty:
    case Fault::NoName:
        return false;
    case Fault::Group:
        UtilForms::showInfoMessage(tr("Entity name already exists as a group name"));
        return false;
    case Fault::Entity:
        UtilForms::showInfoMessage(tr("Entity name already exists"));
        return false;
    case Fault::Alias:
        UtilForms::showInfoMessage(tr("Entity name already exists as an alias name"));
        return false;
    case Fault::NoText:
        UtilForms::showInfoMessage(tr("Invalid string"));
        return false;
    case Fault::TooLong:
        UtilForms::showInfoMessage(tr("Chain with length greater than 50"));
        return false;
    }

    // All roles are judged and announced, only one stores: meant so.
    if (role == Qt::EditRole && index.column() == 0)
        entity->setName(text.trimmed());
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags DictionaryTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    return QAbstractItemModel::flags(index) | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;
}
