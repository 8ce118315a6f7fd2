#pragma once

#include <QtGlobal>

// Everything else in the library is hidden: only what carries this mark can be linked against.
#if defined(UTILITARIAN_LIBRARY)
#define UTILITARIAN_EXPORT Q_DECL_EXPORT
#else
#define UTILITARIAN_EXPORT Q_DECL_IMPORT
#endif
