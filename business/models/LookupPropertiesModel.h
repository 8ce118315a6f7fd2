#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/CatalogueModel.h"
#include "model/TDmLookup.h"

/// The lookup tables that the sources offer, by identifier and label, to be dragged into the variable table.
/// Read-only.
///
/// Borrows the tables, which must outlive the model; the list itself is copied.
class BUSINESS_TESSEL_EXPORT LookupPropertiesModel
    : public tessel::detail::CatalogueModel<LookupPropertiesModel, TDmLookup> {
    Q_OBJECT

public:
    /// A null list is an empty one.
    LookupPropertiesModel(QObject *parent, QList<TDmLookup *> *lookups);

private:
    friend FlatListModel;
    static tessel::detail::Columns<TDmLookup> columns();
    QLatin1String iconOf(TDmLookup &lookup) const override;
    QJsonObject transferObject(TDmLookup &lookup) const override;
};
