#pragma once

#include "vyncommonglobal.h"

#include <QString>

//! The shared null text, returned wherever no text exists. isNull() is true.
VYNCOMMON_EXPORT extern const QString kVynNullString;
