#include "vyneqcommoneq.h"

VynEQCommonEQ::VynEQCommonEQ(QObject* parent) : QObject(parent) {}

VynEQCommonEQ::~VynEQCommonEQ() = default;

void VynEQCommonEQ::setOn(bool p_on)
{
    if (m_on == p_on)
        return;
    m_on = p_on;
    emit onChanged();
}

void VynEQCommonEQ::setBandCount(int p_count)
{
    const int count = qMax(0, p_count);
    if (count == m_bands.size())
        return;
    while (m_bands.size() > count)
        delete m_bands.takeLast();
    while (m_bands.size() < count) {
        auto* band = new VynEQBand(this);
        connect(band, &VynEQBand::valuesChanged, this, &VynEQCommonEQ::bandValuesChanged);
        m_bands.append(band);
    }
    emit bandsChanged();
}

VynEQBand* VynEQCommonEQ::band(int p_index) const
{
    if (p_index < 0 || p_index >= m_bands.size())
        return nullptr;
    return m_bands.at(p_index);
}

QVariantList VynEQCommonEQ::bandsQml() const
{
    QVariantList result;
    result.reserve(m_bands.size());
    for (VynEQBand* band : m_bands)
        result.append(QVariant::fromValue(band));
    return result;
}

QList<VynCommonUtils::VynEQBandValues> VynEQCommonEQ::bandValues() const
{
    QList<VynCommonUtils::VynEQBandValues> result;
    result.reserve(m_bands.size());
    for (const VynEQBand* band : m_bands)
        result.append(band->values());
    return result;
}
