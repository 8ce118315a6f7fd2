#pragma once

#include <QtGlobal>

// Everything else in the library is hidden: only what carries this mark can be linked against.
#if defined(BUSINESS_TESSEL_LIBRARY)
#define BUSINESS_TESSEL_EXPORT Q_DECL_EXPORT
#else
#define BUSINESS_TESSEL_EXPORT Q_DECL_IMPORT
#endif
