#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/CatalogueModel.h"
#include "model/TDmSourceField.h"

/// The fields of a CSV file, by name, to be dragged into the variable table. Read-only.
///
/// Borrows the fields, which must outlive the model; the list itself is copied.
class BUSINESS_TESSEL_EXPORT CsvPropertiesModel
    : public tessel::detail::CatalogueModel<CsvPropertiesModel, TDmSourceField> {
    Q_OBJECT

public:
    /// A null list is an empty one.
    CsvPropertiesModel(QObject *parent, QList<TDmSourceField *> *fields);

private:
    friend FlatListModel;
    static tessel::detail::Columns<TDmSourceField> columns();
    QLatin1String iconOf(TDmSourceField &field) const override;
    QJsonObject transferObject(TDmSourceField &field) const override;
};
