#include "editor/NameOrLabelProxy.h"

namespace tessel::editor {

QVariant NameOrLabelProxy::data(const QModelIndex &index, int role) const
{
    const TDmEntity *entity = nodeAt(index);
    if (!entity || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return EntityTreeProxy::data(index, role);
    const QString label = entity->getLabel();
    const bool isLabelShown = showsLabels && !label.trimmed().isEmpty();
    if (role == Qt::DisplayRole)
        return isLabelShown ? QVariant(label) : EntityTreeProxy::data(index, role);
    return isLabelShown ? entity->getName() : label;
}

} // namespace tessel::editor
