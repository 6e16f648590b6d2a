#include "vynuiplugin.h"

#include "vyncolorutils.h"
#include "vynledparamconfig.h"
#include "vynuibuttonconfig.h"
#include "vynuihandybuttoncomponent.h"
#include "vynuilocalizable.h"
#include "vynviewutils.h"
#include "vynvumeterconstants.h"

#include <qtcommons.h>
#include <vyncommon.h>

#include <QMetaType>

extern void qml_register_types_VynUI();

namespace {

// Registers T and, when its name is qualified, the unqualified name as a typedef.
template <typename T> void registerWithShortName()
{
    const QMetaType type = QMetaType::fromType<T>();
    qRegisterMetaType<T>();
    const QByteArray fullName = type.name();
    const qsizetype separator = fullName.lastIndexOf("::");
    const QByteArray shortName =
        QMetaObject::normalizedType(fullName.mid(separator < 0 ? 0 : separator + 2).constData());
    if (shortName != fullName)
        QMetaType::registerNormalizedTypedef(shortName, type);
}

// Registers T and \a shortName as a typedef of it, for types whose name has no plain last part.
template <typename T> void registerWithName(const char* shortName)
{
    const QMetaType type = QMetaType::fromType<T>();
    qRegisterMetaType<T>();
    const QByteArray name = QMetaObject::normalizedType(shortName);
    if (name != type.name())
        QMetaType::registerNormalizedTypedef(name, type);
}

} // namespace

VynUIPlugin::VynUIPlugin(QObject* parent) : QQmlEngineExtensionPlugin(parent)
{
    // Keeps the generated registration function referenced from the plugin.
    volatile auto registration = &qml_register_types_VynUI;
    Q_UNUSED(registration)
}

VynUIPlugin::~VynUIPlugin() = default;

void VynUIPlugin::initializeTypes()
{
    VynCommon::initializeTypes();

    registerWithShortName<VynColorUtils::VynStyle>();
    registerWithShortName<VynColorUtils::VynStylePreference>();

    using namespace VynViewUtils;
    registerWithShortName<VynLiveButtonMode>();
    registerWithShortName<VynControlSize>();
    registerWithShortName<VynSelectorCellMode>();
    registerWithShortName<VynLedState>();
    registerWithShortName<VynLedShape>();
    registerWithShortName<VynVerticalAlignment>();
    registerWithShortName<VynAlignmentType>();
    registerWithShortName<VynSide>();
    registerWithShortName<VynCorner>();
    registerWithShortName<VynSideBounds>();
    registerWithShortName<VynGraphLabel>();
    registerWithShortName<VynComboValue>();
    registerWithShortName<VynParamSelectValue>();
    registerWithShortName<VynTextFieldValue>();
    registerWithShortName<VynResizeAnchor>();
    registerWithShortName<VynModalResponse>();
    registerWithShortName<VynResizeSettings>();
    registerWithShortName<VynLedParamConfig>();
    registerWithShortName<VynVUMeterConstants::VynVUMetreTickMarkConfig>();
    registerWithShortName<VynUIHandyButtonComponent::ButtonType>();
    registerWithName<VynUIHandyButtonComponent::ButtonTypes>("ButtonTypes");
    registerWithShortName<VynUIButtonConfig>();
    registerWithShortName<VynSpinBoxValue>();
    registerWithShortName<VynUIComponentType>();

    VynViewUtils::registerConverters();
}

void VynUIPlugin::onOpeningModule()
{
    VynCommon::onOpeningModule();
    QtCommons::addQLocalTable(VynUILocalizable::context(),
                              VynUILocalizable::k_VynUILocalizableHash);
}

void VynUIPlugin::onLeavingModule()
{
    VynCommon::onLeavingModule();
}
