#pragma once

#include "vyncommonglobal.h"

#include <QObject>
#include <QString>

//! The shared null text, returned wherever no text exists. isNull() is true.
VYNCOMMON_EXPORT extern const QString kVynNullString;

//! A parameter value as the device holds it, before any transformer: an index, a mask, a level.
using VynRawValue = int;

namespace VynCommonConstants {
Q_NAMESPACE_EXPORT(VYNCOMMON_EXPORT)

/*!
    Access level of a device parameter, set by the host from the user's rights.

    - VynSecurityTypeNone (0): the parameter may be changed freely.
    - VynSecurityTypeShouldAlert (1): every change must be confirmed by the
      user first; QApplicationMessage::presentConfirmMessageIfNeededForSecurityType()
      asks and runs the change only on confirmation.
    - VynSecurityTypeDisable (2): the parameter may not be changed; controls
      bound to it read as disabled and confirmation requests never run the change.

    Any other value is treated like VynSecurityTypeNone by the presenters.
*/
enum VynSecurityType : int {
    VynSecurityTypeNone = 0,
    VynSecurityTypeShouldAlert = 1,
    VynSecurityTypeDisable = 2,
};
Q_ENUM_NS(VynSecurityType)

} // namespace VynCommonConstants
