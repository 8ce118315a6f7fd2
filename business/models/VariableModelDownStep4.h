#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/TickListModel.h"

class TDmEntity;

/// Table of one entity's variables for the download of a run: name, label, alias, and a tick in the first
/// column.
///
/// Borrows the variables, which must outlive the model; the list itself is copied. A tick is seen at once by
/// all models over the same variables.
class BUSINESS_TESSEL_EXPORT VariableModelDownStep4
    : public tessel::detail::TickListModel<VariableModelDownStep4> {
    Q_OBJECT

public:
    /// The variables of \a variables, but for those that hold the code, the label or the weight of \a entity.
    VariableModelDownStep4(QObject *parent, TDmEntity *entity, QList<TDmVariable *> *variables);

private:
    friend FlatListModel;
    static tessel::detail::Columns<TDmVariable> columns();
};
