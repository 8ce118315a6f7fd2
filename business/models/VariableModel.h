#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/TickListModel.h"

class TDmEntity;

/// Table of one entity's variables for a run: name, label, alias, group, tag, and a tick in the first column.
/// Only variables of level 1 can be ticked.
///
/// Borrows the variables, which must outlive the model; the list itself is copied. A tick is seen at once by
/// all models over the same variables.
class BUSINESS_TESSEL_EXPORT VariableModel : public tessel::detail::TickListModel<VariableModel> {
    Q_OBJECT

public:
    /// The variables of \a variables, but for those that hold the code, the label or the weight of \a entity.
    VariableModel(QObject *parent, TDmEntity *entity, QList<TDmVariable *> *variables);

    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    friend FlatListModel;
    static tessel::detail::Columns<TDmVariable> columns();
    bool isTickable(const TDmVariable &variable) const override;
};
