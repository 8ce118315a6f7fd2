#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/EntityTreeModel.h"

#include <memory>

class DictionaryUtil;
class Validate;

/// The run wizard's tree of entities: a check mark for those that are selected for the run, an icon for those
/// that are marked for deletion. Both are display only.
///
/// Borrows the root, which must have level 1, and everything below it; nothing is deleted here. Index, parent
/// and rows are those of DictionaryTreeModel.
class BUSINESS_TESSEL_EXPORT dictionaryTreeModelDownload : public tessel::detail::EntityTreeModel {
    Q_OBJECT

public:
    /// A model of \a root, which is the only row of the top level.
    dictionaryTreeModelDownload(QObject *parent, TDmEntity *root);
    ~dictionaryTreeModelDownload() override;

    /// The name for Qt::DisplayRole and Qt::EditRole; in column 0 the deletion icon for Qt::DecorationRole,
    /// when there is a mark, and Qt::Checked or Qt::Unchecked for Qt::CheckStateRole.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    /// Stores the trimmed text as the name for Qt::EditRole in column 0, without judging it. Every other role
    /// changes nothing and is answered and announced all the same.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QString headerText() const override;

    // Part of what the class holds, used by none of its operations.
    std::unique_ptr<Validate> validate;
    std::unique_ptr<DictionaryUtil> dictionaryUtil;
};
