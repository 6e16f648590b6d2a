#pragma once

#include <QtCore/qglobal.h>

#if defined(VYNCOMMON_LIBRARY)
#define VYNCOMMON_EXPORT Q_DECL_EXPORT
#else
#define VYNCOMMON_EXPORT Q_DECL_IMPORT
#endif
