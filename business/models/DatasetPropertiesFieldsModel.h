#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/CatalogueModel.h"
#include "model/TDmSourceField.h"

#include <QJsonArray>

/// The fields of a dataset, by name, label and tag, to be dragged into the variable table. Read-only, but for
/// the tags, which it numbers.
///
/// Borrows the fields, which must outlive the model; the list itself is copied.
class BUSINESS_TESSEL_EXPORT DatasetPropertiesFieldsModel
    : public tessel::detail::CatalogueModel<DatasetPropertiesFieldsModel, TDmSourceField> {
    Q_OBJECT

public:
    /// The fields whose selection text is \a filter, or all of them for "*". Every field of the list, shown
    /// or not, gets its position, counted from 1, as its tag. A null list is an empty one.
    DatasetPropertiesFieldsModel(QObject *parent, QList<TDmSourceField *> *fields, QString filter);

    /// Untranslated: meant so.
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// The name, the label, or the tag with as many digits as the number of all fields has.
    QVariant getItemData(TDmSourceField *field, int column) const override;

    /// The categories of \a field, one object each with "codigoCategoria" and "nombreCategoria". Its text
    /// parts categories by tabs; a category's code ends at its first blank. Each is written to the debug log.
    QJsonArray laodDataCategories(TDmSourceField *field) const;

private:
    friend FlatListModel;
    static tessel::detail::Columns<TDmSourceField> columns();
    QLatin1String iconOf(TDmSourceField &field) const override;
    QJsonObject transferObject(TDmSourceField &field) const override;

    int tagWidth = 0;
};
