#include "sources/SourceRemark.h"

namespace tessel::sources {

QString SourceRemark::sentence() const
{
    return field.isEmpty() ? reason : field + QLatin1String(": ") + reason;
}

} // namespace tessel::sources
