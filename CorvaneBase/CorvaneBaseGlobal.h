#pragma once

#include <QtCore/qglobal.h>

/** Marks what the library exports: in a shared build exported here and imported by its users, in a static one neither.
 */
#if defined(CORVANEBASE_STATIC)
#define CORVANEBASE_EXPORT
#elif defined(CORVANEBASE_LIBRARY)
#define CORVANEBASE_EXPORT Q_DECL_EXPORT
#else
#define CORVANEBASE_EXPORT Q_DECL_IMPORT
#endif
