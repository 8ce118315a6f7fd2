#pragma once

#include "business/BusinessExport.h"
#include "business/models/detail/TextFilterProxyModel.h"

/// Filters a variable's value labels by code and label, and sorts them. Both columns sort as numbers; a text
/// that is no number counts as 0, so that labels keep their order.
class BUSINESS_TESSEL_EXPORT VarValueLabelDiccionaryProxyModel : public tessel::detail::TextFilterProxyModel {
    Q_OBJECT

public:
    /// Without a source: the front end sets the source model and the pattern.
    explicit VarValueLabelDiccionaryProxyModel(QObject *parent);
};
