#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/TermListModel.h"

class TDmEntity;

/// Pick list of entities for the expression builder, by name, label or both.
///
/// Borrows the entities, which must outlive the model; the list itself is copied.
class BUSINESS_TESSEL_EXPORT EntityExpressionModel
    : public tessel::detail::TermListModel<EntityExpressionModel, TDmEntity> {
    Q_OBJECT

public:
    /// A null list is an empty one.
    EntityExpressionModel(QObject *parent, QList<TDmEntity *> *entities, eEntityShowMode showMode);

private:
    friend FlatListModel;
    static tessel::detail::Columns<TDmEntity> columns();
};
