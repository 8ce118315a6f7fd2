#pragma once

#include "business/models/detail/TextFilterProxyModel.h"

#include <QDate>

namespace tessel::detail {

/// Internal: the proxies over lists of variables. They keep two dates for the front end, which take no part
/// in the filter: meant so.
class VariableFilterProxyModel : public TextFilterProxyModel {
public:
    /// Keeps \a date as the lower bound of dateInRange() and runs the filter again, with the same result.
    void setFilterMinimumDate(QDate date)
    {
        minDate = date;
        invalidateFilter();
    }

    /// Keeps \a date as the upper bound of dateInRange() and runs the filter again, with the same result.
    void setFilterMaximumDate(QDate date)
    {
        maxDate = date;
        invalidateFilter();
    }

    /// Whether \a date is later than the lower and earlier than the upper bound; a bound that is no date lets
    /// every date pass.
    bool dateInRange(QDate date) const
    {
        return (!minDate.isValid() || date > minDate) && (!maxDate.isValid() || date < maxDate);
    }

protected:
    using TextFilterProxyModel::TextFilterProxyModel;

private:
    QDate minDate;
    QDate maxDate;
};

} // namespace tessel::detail
