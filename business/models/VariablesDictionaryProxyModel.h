#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/VariableFilterProxyModel.h"

/// Filters an entity's variables by all five columns, and sorts them: whole numbers as numbers, others as
/// text.
class BUSINESS_TESSEL_EXPORT VariablesDictionaryProxyModel : public tessel::detail::VariableFilterProxyModel {
    Q_OBJECT

public:
    /// Without a source: the front end sets the source model and the pattern.
    explicit VariablesDictionaryProxyModel(QObject *parent);
};
