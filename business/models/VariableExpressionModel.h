#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/TermListModel.h"

class TDmVariable;

/// Pick list of variables for the expression builder, by name, label or both.
///
/// Borrows the variables, which must outlive the model; the list itself is copied.
class BUSINESS_TESSEL_EXPORT VariableExpressionModel
    : public tessel::detail::TermListModel<VariableExpressionModel, TDmVariable> {
    Q_OBJECT

public:
    /// A null list is an empty one.
    VariableExpressionModel(QObject *parent, QList<TDmVariable *> *variables, eEntityShowMode showMode);

private:
    friend FlatListModel;
    static tessel::detail::Columns<TDmVariable> columns();
};
