#include "vynuieqthumbnailcomponent.h"

#include <cmath>

VynUIEQThumbnailComponent::VynUIEQThumbnailComponent(QObject* parent) : VynUIComponent(parent)
{
    setComponentType(VynViewUtils::VynUIComponentTypeEQThumbnail);
}

VynUIEQThumbnailComponent::~VynUIEQThumbnailComponent() = default;

void VynUIEQThumbnailComponent::setCommonEQs(const QList<VynEQCommonEQ*>& p_eqs)
{
    m_commonEQs = p_eqs;
    emit commonEQsChanged();
}

QVariantList VynUIEQThumbnailComponent::commonEQsQml() const
{
    QVariantList result;
    result.reserve(m_commonEQs.size());
    for (VynEQCommonEQ* eq : m_commonEQs)
        result.append(QVariant::fromValue(eq));
    return result;
}

void VynUIEQThumbnailComponent::setArrayEQs(const QList<QList<VynArrayEQ*>>& p_eqs)
{
    m_arrayEQs = p_eqs;
    emit arrayEQsChanged();
}

QVariantList VynUIEQThumbnailComponent::arrayEQsQml() const
{
    QVariantList result;
    result.reserve(m_arrayEQs.size());
    for (const QList<VynArrayEQ*>& list : m_arrayEQs) {
        QVariantList inner;
        inner.reserve(list.size());
        for (VynArrayEQ* eq : list)
            inner.append(QVariant::fromValue(eq));
        result.append(QVariant(inner));
    }
    return result;
}

void VynUIEQThumbnailComponent::setOn(QtCommonsConstants::VynBOOL p_on)
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

void VynUIEQThumbnailComponent::setEmpty(bool p_empty)
{
    if (p_empty == m_isEmpty)
        return;
    m_isEmpty = p_empty;
    emit isEmptyChanged();
}

void VynUIEQThumbnailComponent::setGainLimits(double p_min, double p_max)
{
    if (p_min == m_gainMin && p_max == m_gainMax)
        return;
    if (std::isnan(p_min) || std::isnan(p_max)) {
        logError(QStringLiteral("Refused gain limits that are not numbers"), "setGainLimits",
                 __FILE__, __LINE__);
        return;
    }
    m_gainMin = p_min;
    m_gainMax = p_max;
    emit gainLimitsChanged();
}

QString VynUIEQThumbnailComponent::toStringValue()
{
    return QString();
}
