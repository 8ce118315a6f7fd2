#include "business/Business_Tessel.h"

#include "business/Constants.h"

Business_Tessel::Business_Tessel() = default;
