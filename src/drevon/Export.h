#pragma once

#include <QtGlobal>

#if defined(DREVON_STATIC)
#define DREVON_EXPORT
#elif defined(DREVON_LIBRARY)
#define DREVON_EXPORT Q_DECL_EXPORT
#else
#define DREVON_EXPORT Q_DECL_IMPORT
#endif
