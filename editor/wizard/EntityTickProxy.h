#pragma once

#include "editor/EntityTreeProxy.h"

namespace tessel::editor {

/// Makes the check marks of dictionaryTreeModelDownload ones that a user can tick: the model only shows them.
/// A tick sets the entity's selectable mark; before an entity is unticked whose children are ticked, the
/// user is asked, and the children go with it.
class EntityTickProxy : public EntityTreeProxy {
    Q_OBJECT

public:
    /// Borrows \a root, whose marks it changes.
    explicit EntityTickProxy(TDmEntity *root, QObject *parent = nullptr);

    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// Takes Qt::CheckStateRole alone: nothing else is edited in this tree. False when nothing changes.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

signals:
    /// Some marks are not as they were.
    void ticked();
};

} // namespace tessel::editor
