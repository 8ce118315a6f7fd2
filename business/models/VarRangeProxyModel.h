#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/TextFilterProxyModel.h"

/// Filters a variable's ranges by minimum and maximum, and sorts them: whole numbers as numbers, others as
/// text.
class BUSINESS_TESSEL_EXPORT VarRangeProxyModel : public tessel::detail::TextFilterProxyModel {
    Q_OBJECT

public:
    /// Without a source: the front end sets the source model and the pattern.
    explicit VarRangeProxyModel(QObject *parent);
};
