#pragma once

#include <QtCore/qglobal.h>

#if defined(QTCOMMONS_LIBRARY)
#define QTCOMMONS_EXPORT Q_DECL_EXPORT
#else
#define QTCOMMONS_EXPORT Q_DECL_IMPORT
#endif
