#pragma once

#include "business/BusinessExport.h"

/// The library's own mark: an object that holds and does nothing, for programs that want to link the library
/// before they use any of it.
class BUSINESS_TESSEL_EXPORT Business_Tessel {
public:
    Business_Tessel();
};
