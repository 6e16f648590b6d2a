#pragma once

#include "vyncommonglobal.h"

#include <QObject>
#include <QString>

//! Device families. Parameter names may be worded differently per family.
namespace VynFamilyUtils {
Q_NAMESPACE_EXPORT(VYNCOMMON_EXPORT)

enum VynDeviceFamily : int {
    VynDeviceFamilyUnknown = 0,
    VynDeviceFamilyAmplifier = 1,
    VynDeviceFamilyProcessor = 2,
    VynDeviceFamilyLoudspeaker = 3,
};
Q_ENUM_NS(VynDeviceFamily)

//! Stable text key of a family ("Amplifier", ...), empty for an unknown family.
VYNCOMMON_EXPORT QString familyKey(VynDeviceFamily family);

} // namespace VynFamilyUtils
