#pragma once

#include "editor/PositionalParentProxy.h"
#include "model/SelectionTreeUnit.h"

namespace tessel::editor {

/// To be put over SelectionBuilderTreeModel: answers the parent of a unit by position, and does not offer its
/// marks to be ticked, because the model would take no tick. Borrows the root unit.
class SelectionTreeProxy : public PositionalParentProxy<SelectionTreeUnit> {
    Q_OBJECT

public:
    explicit SelectionTreeProxy(SelectionTreeUnit *root, QObject *parent = nullptr);

    Qt::ItemFlags flags(const QModelIndex &index) const override;
};

} // namespace tessel::editor
