#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/EntityTreeModel.h"

/// A plain tree of entities from which to pick.
///
/// Borrows the root, which must have level 1, and everything below it; nothing is deleted here. Index, parent
/// and rows are those of DictionaryTreeModel.
class BUSINESS_TESSEL_EXPORT EntityModel : public tessel::detail::EntityTreeModel {
    Q_OBJECT

public:
    /// A model of \a root, which is the only row of the top level.
    EntityModel(QObject *parent, TDmEntity *root);

    /// The name, for Qt::DisplayRole only.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Stores the text as it is as the name, whatever the role and column, and announces nothing; views never
    /// call it, the items are not editable. True for every valid index, also for one without an entity, where
    /// nothing is done.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QString headerText() const override;
};
