#include "vyneqband.h"

#include <QtDebug>

#include <algorithm>
#include <cmath>

namespace {

bool fuzzyEqual(double a, double b)
{
    return std::fabs(a - b) * 1e12 <= std::min(std::fabs(a), std::fabs(b));
}

} // namespace

VynEQBand::VynEQBand(QObject* parent) : QObject(parent) {}

VynEQBand::~VynEQBand() = default;

bool VynEQBand::setDouble(double* p_field, double p_value, const char* p_name)
{
    if (!std::isfinite(p_value)) {
        qWarning("VynEQBand: %s refused, not a finite number", p_name);
        return false;
    }
    if (fuzzyEqual(*p_field, p_value))
        return false;
    *p_field = p_value;
    return true;
}

void VynEQBand::setType(int p_type)
{
    if (m_type == p_type)
        return;
    m_type = p_type;
    emit typeChanged();
    emit valuesChanged();
}

void VynEQBand::setFrequency(double p_frequency)
{
    if (!setDouble(&m_frequency, p_frequency, "frequency"))
        return;
    emit frequencyChanged();
    emit valuesChanged();
}

void VynEQBand::setGain(double p_gain)
{
    if (!setDouble(&m_gain, p_gain, "gain"))
        return;
    emit gainChanged();
    emit valuesChanged();
}

void VynEQBand::setQ(double p_q)
{
    if (!setDouble(&m_q, p_q, "q"))
        return;
    emit qChanged();
    emit valuesChanged();
}

void VynEQBand::setEnabled(bool p_enabled)
{
    if (m_enabled == p_enabled)
        return;
    m_enabled = p_enabled;
    emit enabledChanged();
    emit valuesChanged();
}

void VynEQBand::setUsed(bool p_used)
{
    if (m_used == p_used)
        return;
    m_used = p_used;
    emit usedChanged();
    emit valuesChanged();
}

VynCommonUtils::VynEQBandValues VynEQBand::values() const
{
    VynCommonUtils::VynEQBandValues v;
    v.type = VynEQConstants::VynEQBandType(m_type);
    v.frequency = m_frequency;
    v.gain = m_gain;
    v.q = m_q;
    v.enabled = m_enabled;
    v.used = m_used;
    return v;
}
