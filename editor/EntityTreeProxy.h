#pragma once

#include "editor/PositionalParentProxy.h"
#include "model/TDmEntity.h"

namespace tessel::editor {

/// To be put over DictionaryTreeModel, dictionaryTreeModelDownload or EntityModel wherever a view shows them:
/// answers the parent of an entity by position. Borrows the root entity, the one that the source model was
/// made with.
class EntityTreeProxy : public PositionalParentProxy<TDmEntity> {
    Q_OBJECT

public:
    /// Without a source: the caller sets the source model. A null \a root is set later, with setRoot().
    explicit EntityTreeProxy(TDmEntity *root, QObject *parent = nullptr);
};

} // namespace tessel::editor
