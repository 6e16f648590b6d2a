#include "vyncommon.h"

#include "vyncommonconstants.h"
#include "vyneqconstants.h"
#include "vynfamilyutils.h"
#include "vynlocalizable.h"
#include "vynmultipartname.h"
#include "vynproxyparampath.h"
#include "vynrgbcolor.h"

#include <QMetaType>

namespace {
int s_openCount = 0;
}

namespace VynCommon {

void initializeTypes()
{
    qRegisterMetaType<VynProxyParamPath>();
    qRegisterMetaType<VynFamilyUtils::VynDeviceFamily>();
    qRegisterMetaType<VynCommonConstants::VynSecurityType>();
    qRegisterMetaType<VynEQConstants::VynEQBandType>();
    qRegisterMetaType<VynRGBColor>();
    qRegisterMetaType<VynMultiPartName>();
}

void onOpeningModule()
{
    VynLocalizable::registerTables();
    ++s_openCount;
}

void onLeavingModule()
{
    if (s_openCount > 0)
        --s_openCount;
}

int openModuleCount()
{
    return s_openCount;
}

} // namespace VynCommon
