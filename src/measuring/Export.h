#pragma once

#include <QtGlobal>

/** Marks what the measuring library offers to programs. */
#if defined(ZALENTO_STATIC)
#define ZALENTO_MEASURING_EXPORT
#elif defined(ZALENTO_MEASURING_LIBRARY)
#define ZALENTO_MEASURING_EXPORT Q_DECL_EXPORT
#else
#define ZALENTO_MEASURING_EXPORT Q_DECL_IMPORT
#endif
