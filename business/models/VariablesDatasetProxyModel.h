#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/VariableFilterProxyModel.h"

/// Filters variables or fields by their first three columns, and sorts them: whole numbers as numbers, others
/// as text.
class BUSINESS_TESSEL_EXPORT VariablesDatasetProxyModel : public tessel::detail::VariableFilterProxyModel {
    Q_OBJECT

public:
    /// Without a source: the front end sets the source model and the pattern.
    explicit VariablesDatasetProxyModel(QObject *parent);
};
