#include "vynfamilyutils.h"

namespace VynFamilyUtils {

QString familyKey(VynDeviceFamily family)
{
    switch (family) {
    case VynDeviceFamilyAmplifier:
        return QStringLiteral("Amplifier");
    case VynDeviceFamilyProcessor:
        return QStringLiteral("Processor");
    case VynDeviceFamilyLoudspeaker:
        return QStringLiteral("Loudspeaker");
    case VynDeviceFamilyUnknown:
        break;
    }
    return QString();
}

} // namespace VynFamilyUtils
