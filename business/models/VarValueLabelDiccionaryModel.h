#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/EditableListModel.h"

class TDmVariable;
class ValueLabelElement;

/// Table of one variable's value labels: code, label. Both are edited in place, and every text is accepted.
///
/// Borrows the value labels, which must outlive the model. The rows are those that the variable had when the
/// model was made; to show a list that has changed since, make a new model.
class BUSINESS_TESSEL_EXPORT VarValueLabelDiccionaryModel
    : public tessel::detail::EditableListModel<VarValueLabelDiccionaryModel, ValueLabelElement> {
    Q_OBJECT

public:
    /// A null variable has no labels.
    VarValueLabelDiccionaryModel(QObject *parent, TDmVariable *variable);

private:
    friend FlatListModel;
    static tessel::detail::Columns<ValueLabelElement> columns();
};
