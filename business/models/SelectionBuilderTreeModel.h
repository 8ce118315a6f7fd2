#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/TreeModel.h"
#include "model/SelectionTreeUnit.h"

#include <QVariant>

/// The units from which a selection is built, as a tree with check marks. Read only: a click on a mark
/// changes nothing.
///
/// Borrows the root, which must have level 1, and everything below it; nothing is deleted here. Every index
/// carries its unit as internal pointer. The row of an index that parent() gives is the level of the child
/// that was asked about.
class BUSINESS_TESSEL_EXPORT SelectionBuilderTreeModel : public tessel::detail::TreeModel<SelectionTreeUnit> {
    Q_OBJECT

public:
    /// A model of \a root, which is the only row of the top level. Units are shown with their code when \a
    /// useUnitCode is set, else with the first text of their area, in both cases followed by the second; all
    /// but the root with their name before it when \a prefixUnitName is set.
    SelectionBuilderTreeModel(
        QObject *parent, SelectionTreeUnit *root, bool useUnitCode, bool prefixUnitName);

    /// The parent's index, which is also kept in the unit that was asked about.
    QModelIndex parent(const QModelIndex &child) const override;
    using QObject::parent;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;

    /// The text for Qt::DisplayRole and Qt::EditRole; in column 0 an icon for the unit named "NMIR" and a
    /// check state.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    Qt::ItemFlags flags(const QModelIndex &index) const override;

    /// What is shown of \a unit in \a column: its text in column 0, nothing elsewhere.
    QVariant getItemData(SelectionTreeUnit *unit, int column) const;

    /// A copy of the top level: the root alone.
    QList<SelectionTreeUnit *> getData() const;

private:
    bool useUnitCode;
    bool prefixUnitName;
};
