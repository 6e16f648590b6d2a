#include "vyndynamiccommon.h"

#include <QtDebug>

#include <algorithm>
#include <cmath>

namespace {

bool fuzzyEqual(double a, double b)
{
    return std::fabs(a - b) * 1e12 <= std::min(std::fabs(a), std::fabs(b));
}

} // namespace

VynDynamicCommon::VynDynamicCommon(QObject* parent) : QObject(parent) {}

VynDynamicCommon::~VynDynamicCommon() = default;

bool VynDynamicCommon::setDouble(double* p_field, double p_value, const char* p_name)
{
    if (!std::isfinite(p_value)) {
        qWarning("VynDynamicCommon: %s refused, not a finite number", p_name);
        return false;
    }
    if (fuzzyEqual(*p_field, p_value))
        return false;
    *p_field = p_value;
    return true;
}

void VynDynamicCommon::setGain(double p_gain)
{
    if (!setDouble(&m_gain, p_gain, "gain"))
        return;
    emit gainChanged();
    emit valuesChanged();
}

void VynDynamicCommon::setThreshold(double p_threshold)
{
    if (!setDouble(&m_threshold, p_threshold, "threshold"))
        return;
    emit thresholdChanged();
    emit valuesChanged();
}

void VynDynamicCommon::setRatio(double p_ratio)
{
    if (!setDouble(&m_ratio, p_ratio, "ratio"))
        return;
    emit ratioChanged();
    emit valuesChanged();
}

void VynDynamicCommon::setKnee(double p_knee)
{
    if (!setDouble(&m_knee, p_knee, "knee"))
        return;
    emit kneeChanged();
    emit valuesChanged();
}

void VynDynamicCommon::setOn(bool p_on)
{
    if (m_on == p_on)
        return;
    m_on = p_on;
    emit isOnChanged();
    emit valuesChanged();
}
