#pragma once

#include <QtGlobal>

// Everything else in the library is hidden: only what carries this mark can be linked against.
#if defined(MODEL_TESSEL_LIBRARY)
#define MODEL_TESSEL_EXPORT Q_DECL_EXPORT
#else
#define MODEL_TESSEL_EXPORT Q_DECL_IMPORT
#endif
