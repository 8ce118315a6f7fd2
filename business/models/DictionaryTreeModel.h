#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/EntityTreeModel.h"

#include <memory>

class DictionaryUtil;
class Validate;

/// The dictionary's entities as a tree of names that can be edited in place.
///
/// Borrows the root, which must have level 1, and everything below it; nothing is deleted here. Every index
/// carries its entity as internal pointer. The row of an index that parent() gives is the level of the child
/// that was asked about. A view that needs the true row puts a proxy between. Changes that others make to the
/// tree are seen at the next call and announced by nobody.
class BUSINESS_TESSEL_EXPORT DictionaryTreeModel : public tessel::detail::EntityTreeModel {
    Q_OBJECT

public:
    /// A model of \a root, which is the only row of the top level.
    DictionaryTreeModel(QObject *parent, TDmEntity *root);
    ~DictionaryTreeModel() override;

    /// The name, for Qt::DisplayRole and Qt::EditRole.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Renames an entity. The text is judged for every role: it must not be empty or blank, must be a name,
    /// must not be in use as a group, as another entity's name or as an alias, must be printable and,
    /// trimmed, at most 50 characters long. A refusal leaves all as it was and is told in an information box;
    /// an empty text and one that is no name are refused in silence. Only Qt::EditRole in column 0 stores the
    /// text, trimmed.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QString headerText() const override;

    std::unique_ptr<Validate> validate;
    std::unique_ptr<DictionaryUtil> dictionaryUtil;
};
