#include "vynuivumetercomponent.h"

#include <QPointer>

#include <algorithm>
#include <cmath>

namespace {
constexpr int kMeterLogLevel = 2;
constexpr int kMeterElementId = 6;
} // namespace

VynUIVUMeterComponent::VynUIVUMeterComponent(QObject* parent) : VynUIComponent(parent, false)
{
    setComponentType(VynViewUtils::VynUIComponentTypeVUMeter);
    addLogDestination(&staticMetaObject, kMeterLogLevel);
}

VynUIVUMeterComponent::~VynUIVUMeterComponent() = default;

void VynUIVUMeterComponent::setLimits(double minValue, double maxValue, double defaultValue)
{
    for (double limit : {minValue, maxValue, defaultValue}) {
        if (!std::isfinite(limit)) {
            logError(QStringLiteral("refused the limits %1, %2, %3: not finite")
                         .arg(minValue)
                         .arg(maxValue)
                         .arg(defaultValue),
                     Q_FUNC_INFO, __FILE__, __LINE__);
            return;
        }
    }
    if (minValue == m_minValue && maxValue == m_maxValue && defaultValue == m_defaultValue)
        return;
    m_minValue = minValue;
    m_maxValue = maxValue;
    m_defaultValue = defaultValue;
    const QPointer<VynUIVUMeterComponent> self(this);
    emit limitsChanged();
    if (!self)
        return;
    m_value = defaultValue;
    m_minHoldValue = defaultValue;
    m_maxHoldValue = defaultValue;
    emit valueChanged();
}

void VynUIVUMeterComponent::setValue(double value, double minHold, double maxHold)
{
    if (refusesNotANumber(value, Q_FUNC_INFO) || refusesNotANumber(minHold, Q_FUNC_INFO) ||
        refusesNotANumber(maxHold, Q_FUNC_INFO))
        return;
    if (value == m_value && !(minHold < m_minHoldValue) && !(maxHold > m_maxHoldValue))
        return;
    m_value = std::max(std::min(value, m_maxValue), m_minValue);
    m_minHoldValue = std::min(m_minHoldValue, minHold);
    m_maxHoldValue = std::max(m_maxHoldValue, maxHold);
    emit valueChanged();
}

void VynUIVUMeterComponent::resetValues()
{
    m_value = m_defaultValue;
    m_minHoldValue = m_defaultValue;
    m_maxHoldValue = m_defaultValue;
    emit valueChanged();
}

void VynUIVUMeterComponent::setReverse(bool on)
{
    if (on == m_reverse)
        return;
    m_reverse = on;
    emit reverseChanged();
}

void VynUIVUMeterComponent::setDisplaysHoldValue(bool on)
{
    if (on == m_displaysHoldValue)
        return;
    m_displaysHoldValue = on;
    emit displaysHoldValueChanged();
}

void VynUIVUMeterComponent::setAnimating(bool on)
{
    if (on == m_animating)
        return;
    m_animating = on;
    emit animatingChanged();
}

void VynUIVUMeterComponent::restoreFromUIComponent(VynUIComponent* p_other)
{
    const QPointer<VynUIVUMeterComponent> self(this);
    const QPointer<VynUIComponent> other(p_other);
    VynUIComponent::restoreFromUIComponent(p_other);
    if (!self || !other || p_other == this)
        return;
    auto* meter = qobject_cast<VynUIVUMeterComponent*>(p_other);
    if (!meter)
        return;
    m_secondParamPath = meter->m_secondParamPath;
    m_firstHostValue = meter->m_firstHostValue;
    m_secondHostValue = meter->m_secondHostValue;
    const bool reverse = meter->m_reverse;
    setDisplaysHoldValue(meter->m_displaysHoldValue);
    if (!self)
        return;
    setReverse(reverse);
}

QString VynUIVUMeterComponent::toStringValue()
{
    return QString::number(m_value);
}

QString VynUIVUMeterComponent::vuMeterNameForParamPath(const VynProxyParamPath& path, bool prefixed,
                                                       VynFamilyUtils::VynDeviceFamily family,
                                                       VynViewUtils::VynControlSize size)
{
    if (size == VynViewUtils::VynControlSizeMini) {
        switch (path.getLastName()) {
        case 111:
            return QStringLiteral("V");
        case 112:
            return QStringLiteral("A");
        case 113:
            return QStringLiteral("D");
        case 114:
            return QStringLiteral("Pt");
        case 115:
            return QStringLiteral("T");
        case 116:
        case 117:
            return QStringLiteral("Cp");
        default:
            return QStringLiteral("Lv");
        }
    }
    VynProxyParamPath named = path;
    if (prefixed) {
        VynProxyParamPath::Element meter;
        meter.name = QStringLiteral("Meter");
        meter.id = kMeterElementId;
        named = path.prefixed(meter);
    }
    return named.getLocalizedNameForFamily(family, size == VynViewUtils::VynControlSizeSmall);
}
