#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/TickListModel.h"

class TDmEntity;

/// Table of one entity's variables for a run that is split: name, label, alias, and a tick in the first
/// column.
///
/// Borrows the variables, which must outlive the model; the list itself is copied. A tick is seen at once by
/// all models over the same variables.
class BUSINESS_TESSEL_EXPORT VariableModelSplitStep3
    : public tessel::detail::TickListModel<VariableModelSplitStep3> {
    Q_OBJECT

public:
    /// All variables of \a variables; the entity is not looked at.
    VariableModelSplitStep3(QObject *parent, TDmEntity *entity, QList<TDmVariable *> *variables);

private:
    friend FlatListModel;
    static tessel::detail::Columns<TDmVariable> columns();
};
