#pragma once

#include <QtGlobal>

#if defined(ZALENTO_STATIC)
#define ZALENTO_EXPORT
#elif defined(ZALENTO_LIBRARY)
#define ZALENTO_EXPORT Q_DECL_EXPORT
#else
#define ZALENTO_EXPORT Q_DECL_IMPORT
#endif
