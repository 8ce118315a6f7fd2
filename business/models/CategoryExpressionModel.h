#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/ExpressionListModel.h"

class ValueLabelElement;

/// Pick list of a variable's categories for the expression builder: code and label, in every mode.
///
/// Borrows the categories, which must outlive the model; the list itself is copied.
class BUSINESS_TESSEL_EXPORT CategoryExpressionModel
    : public tessel::detail::ExpressionListModel<CategoryExpressionModel, ValueLabelElement> {
    Q_OBJECT

public:
    /// A null list is an empty one.
    CategoryExpressionModel(
        QObject *parent, QList<ValueLabelElement *> *categories, eEntityShowMode showMode);

    /// Not those of the other lists: meant so, it is no target of theirs.
    QStringList mimeTypes() const override;
    Qt::DropActions supportedDropActions() const override;

private:
    friend FlatListModel;
    static tessel::detail::Columns<ValueLabelElement> columns();
    QString textOf(const ValueLabelElement &category) const override;
};
