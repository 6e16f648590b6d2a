#pragma once

#include <QtCore/qglobal.h>

#if defined(VYNUI_LIBRARY)
#define VYNUI_EXPORT Q_DECL_EXPORT
#else
#define VYNUI_EXPORT Q_DECL_IMPORT
#endif
