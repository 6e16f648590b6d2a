#include "vynuiledcomponent.h"

#include <qloggermanager.h>
#include <qtcommonsconstants.h>
#include <vynlocalizable.h>

#include <QMetaEnum>
#include <QPointer>

#include <algorithm>

VynUILedComponent::VynUILedComponent(QObject* parent) : VynUIComponent(parent, false)
{
    setComponentType(VynViewUtils::VynUIComponentTypeLed);
    addLogDestination(&staticMetaObject, QLogger::Error);
}

VynUILedComponent::~VynUILedComponent() = default;

bool VynUILedComponent::refusesState(VynViewUtils::VynLedState state, const char* function) const
{
    if (QMetaEnum::fromType<VynViewUtils::VynLedState>().valueToKey(int(state)))
        return false;
    logError(QStringLiteral("Ignored LED state %1").arg(int(state)), function, __FILE__, __LINE__);
    return true;
}

void VynUILedComponent::setLedState(VynViewUtils::VynLedState state, bool mixed)
{
    if (refusesState(state, "setLedState"))
        return;
    if (state == m_ledState && (mixed == m_mixed || !m_allowsMixed))
        return;
    m_ledState = state;
    m_mixed = mixed;
    // A slot may delete the LED.
    const QPointer<VynUILedComponent> self(this);
    emit letStateChanged();
    if (self)
        emit mixedChanged();
}

void VynUILedComponent::setNoneState(VynViewUtils::VynLedState state)
{
    if (refusesState(state, "setNoneState") || state == m_noneState)
        return;
    m_noneState = state;
    emit noneStateChanged();
}

void VynUILedComponent::setAllowsMixed(bool allows)
{
    if (allows == m_allowsMixed)
        return;
    m_allowsMixed = allows;
    emit allowsMixedChanged();
}

const VynLedParamConfig& VynUILedComponent::getDefaultParamConfig() const
{
    static const VynLedParamConfig empty;
    const auto found = std::find_if(m_paramConfigs.cbegin(), m_paramConfigs.cend(),
                                    [](const VynLedParamConfig& c) { return c.isDefault(); });
    return found == m_paramConfigs.cend() ? empty : *found;
}

QString VynUILedComponent::toStringValue()
{
    if (m_mixed)
        return QtCommonsConstants::qLocalizedString(QStringLiteral("MULTIPLE"),
                                                    VynLocalizable::kContext);
    const QString key = QString::fromLatin1(
        QMetaEnum::fromType<VynViewUtils::VynLedState>().valueToKey(int(m_ledState)));
    return key.mid(int(qstrlen("VynLedState")));
}

void VynUILedComponent::addParamConfig(const VynProxyParamPath& p_path,
                                       VynViewUtils::VynLedState p_state)
{
    VynLedParamConfig config;
    config.path = p_path;
    config.state = p_state;
    addParamConfig(config);
}

void VynUILedComponent::addParamConfig(const VynLedParamConfig& p_paramConfig)
{
    m_paramConfigs.append(p_paramConfig);
    if (p_paramConfig.priority >= 1)
        sortIfPrioritized();
}

void VynUILedComponent::clearParamConfigs()
{
    m_paramConfigs.clear();
}

void VynUILedComponent::setPriorityToParamConfig(int p_priority,
                                                 const VynLedParamConfig& p_paramConfig)
{
    const auto found = std::find_if(
        m_paramConfigs.begin(), m_paramConfigs.end(),
        [&p_paramConfig](const VynLedParamConfig& c) { return c.sameConfig(p_paramConfig); });
    if (found == m_paramConfigs.end())
        return;
    found->priority = p_priority;
    sortIfPrioritized();
}

void VynUILedComponent::sortIfPrioritized()
{
    const bool prioritized =
        std::any_of(m_paramConfigs.cbegin(), m_paramConfigs.cend(),
                    [](const VynLedParamConfig& c) { return c.priority >= 1; });
    if (!prioritized)
        return;
    std::stable_sort(m_paramConfigs.begin(), m_paramConfigs.end(),
                     [](const VynLedParamConfig& a, const VynLedParamConfig& b) {
                         return a.priority > b.priority;
                     });
}
