#include "vynuidynthumbnailcomponent.h"

#include <cmath>

VynUIDynThumbnailComponent::VynUIDynThumbnailComponent(QObject* parent) : VynUIComponent(parent)
{
    setComponentType(VynViewUtils::VynUIComponentTypeDynThumbnail);
}

VynUIDynThumbnailComponent::~VynUIDynThumbnailComponent() = default;

void VynUIDynThumbnailComponent::setCommonDynamics(const QList<VynDynamicCommon*>& p_dynamics)
{
    m_commonDynamics = p_dynamics;
    emit commonDynamicsChanged();
}

QVariantList VynUIDynThumbnailComponent::commonDynamicsQml() const
{
    QVariantList result;
    result.reserve(m_commonDynamics.size());
    for (VynDynamicCommon* dynamics : m_commonDynamics)
        result.append(QVariant::fromValue(dynamics));
    return result;
}

void VynUIDynThumbnailComponent::setOn(QtCommonsConstants::VynBOOL p_on)
{
    if (p_on < QtCommonsConstants::VynBOOLFalse || p_on > QtCommonsConstants::VynBOOLMixed) {
        logError(QStringLiteral("Ignored on state %1").arg(int(p_on)), "setOn", __FILE__, __LINE__);
        return;
    }
    if (p_on == m_isOn)
        return;
    m_isOn = p_on;
    emit isOnChanged();
}

void VynUIDynThumbnailComponent::setEmpty(bool p_empty)
{
    if (p_empty == m_isEmpty)
        return;
    m_isEmpty = p_empty;
    emit isEmptyChanged();
}

void VynUIDynThumbnailComponent::setThresholdLimits(double p_min, double p_max)
{
    if (p_min == m_thresholdMin && p_max == m_thresholdMax)
        return;
    if (std::isnan(p_min) || std::isnan(p_max)) {
        logError(QStringLiteral("Refused threshold limits that are not numbers"),
                 "setThresholdLimits", __FILE__, __LINE__);
        return;
    }
    m_thresholdMin = p_min;
    m_thresholdMax = p_max;
    emit thresholdLimitsChanged();
}

QString VynUIDynThumbnailComponent::toStringValue()
{
    return QString();
}
