#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/EditableListModel.h"

class Range;
class TDmVariable;

/// Table of one variable's valid ranges: minimum, maximum. Both are edited in place; a text that is not a
/// number is stored as 0, and a minimum may exceed its maximum.
///
/// Borrows the variable and its ranges; both must outlive the model. The rows are those that the variable had
/// when the model was made.
class BUSINESS_TESSEL_EXPORT VarRangeModel : public tessel::detail::EditableListModel<VarRangeModel, Range> {
    Q_OBJECT

public:
    /// A null variable, and one without a layout, has no ranges.
    VarRangeModel(QObject *parent, TDmVariable *variable);

    /// A bound: a whole number, cut off toward zero, for a variable of type "INTEGER", else a double.
    QVariant getItemData(Range *range, int column) const override;

private:
    friend FlatListModel;
    static tessel::detail::Columns<Range> columns();
    void write(Range &range, int column, const QVariant &value) override;
    bool isInteger() const;

    TDmVariable *variable;
};
