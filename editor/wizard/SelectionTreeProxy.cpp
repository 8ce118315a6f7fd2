#include "editor/wizard/SelectionTreeProxy.h"

namespace tessel::editor {

SelectionTreeProxy::SelectionTreeProxy(SelectionTreeUnit *rootUnit, QObject *parent)
    : PositionalParentProxy(rootUnit, parent)
{
}

Qt::ItemFlags SelectionTreeProxy::flags(const QModelIndex &index) const
{
    return PositionalParentProxy::flags(index) & ~Qt::ItemFlags(Qt::ItemIsUserCheckable);
}

} // namespace tessel::editor
