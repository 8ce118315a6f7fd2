#include "editor/wizard/EntityTickProxy.h"

#include "business/BusinessEntity.h"

#include <memory>

namespace tessel::editor {

EntityTickProxy::EntityTickProxy(TDmEntity *rootEntity, QObject *parent)
    : EntityTreeProxy(rootEntity, parent)
{
}

Qt::ItemFlags EntityTickProxy::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = EntityTreeProxy::flags(index);
    return nodeAt(index) ? flags | Qt::ItemIsUserCheckable : flags;
}

bool EntityTickProxy::setData(const QModelIndex &index, const QVariant &value, int role)
{
    TDmEntity *entity = nodeAt(index);
    const bool on = value.toInt() == Qt::Checked;
    if (!entity || role != Qt::CheckStateRole || entity->getSelectable() == on)
        return false;

    entity->setSelectable(on);
    if (!on) {
        // The question is about what is still ticked below, so the mark is taken off first; the answer No
        // sets it again.
        const std::unique_ptr<QList<TDmEntity *>> below(BusinessEntity().verifyChildrenSelectCheck(entity));
        if (entity->getSelectable())
            return false;
        for (TDmEntity *child : qAsConst(*below)) {
            child->setSelectable(false);
            const QModelIndex changed = indexOf(child);
            emit dataChanged(changed, changed);
        }
    }
    emit dataChanged(index, index);
    emit ticked();
    return true;
}

} // namespace tessel::editor
