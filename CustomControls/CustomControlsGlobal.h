#pragma once

#include <QtCore/qglobal.h>

/** Marks what the library exports: in a shared build exported here and imported by hosts, in a static one neither. */
#if defined(CUSTOMCONTROLS_STATIC)
#define CUSTOMCONTROLS_EXPORT
#elif defined(CUSTOMCONTROLS_LIBRARY)
#define CUSTOMCONTROLS_EXPORT Q_DECL_EXPORT
#else
#define CUSTOMCONTROLS_EXPORT Q_DECL_IMPORT
#endif
