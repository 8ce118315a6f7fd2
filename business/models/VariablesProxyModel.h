#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/VariableFilterProxyModel.h"

/// Filters variables by their first four columns, and sorts them as text.
class BUSINESS_TESSEL_EXPORT VariablesProxyModel : public tessel::detail::VariableFilterProxyModel {
    Q_OBJECT

public:
    /// Without a source: the front end sets the source model and the pattern.
    explicit VariablesProxyModel(QObject *parent);
};
