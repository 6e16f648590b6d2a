#include "vyndecibeltransformer.h"

#include <cmath>

VynDecibelTransformer::VynDecibelTransformer(RawScale scale, QObject* parent)
    : VynTransformer(QStringLiteral("decibel"), {QStringLiteral("dB")}, parent), m_scale(scale)
{
    setDecimals(1);
}

VynDecibelTransformer::VynDecibelTransformer(const VynDecibelTransformer& other, QObject* parent)
    : VynTransformer(other, parent), m_scale(other.m_scale), m_minusInfinity(other.m_minusInfinity)
{}

VynTransformer* VynDecibelTransformer::clone(QObject* parent) const
{
    return new VynDecibelTransformer(*this, parent);
}

float VynDecibelTransformer::rawToDisplayed(float p_raw) const
{
    switch (m_scale) {
    case RawAmplitude:
        return p_raw > 0.0f ? 20.0f * std::log10(p_raw) : static_cast<float>(m_minusInfinity);
    case RawPower:
        return p_raw > 0.0f ? 10.0f * std::log10(p_raw) : static_cast<float>(m_minusInfinity);
    case RawDecibel:
        break;
    }
    return p_raw;
}

float VynDecibelTransformer::displayedToRaw(float p_displayed) const
{
    switch (m_scale) {
    case RawAmplitude:
        return p_displayed <= m_minusInfinity ? 0.0f : std::pow(10.0f, p_displayed / 20.0f);
    case RawPower:
        return p_displayed <= m_minusInfinity ? 0.0f : std::pow(10.0f, p_displayed / 10.0f);
    case RawDecibel:
        break;
    }
    return p_displayed;
}

QString VynDecibelTransformer::valueToString(float p_value, bool p_withUnit, bool p_autoScale) const
{
    Q_UNUSED(p_autoScale)
    const float level = rawToDisplayed(p_value);
    QString number = nonFiniteText(level);
    if (number.isNull()) {
        if (level <= m_minusInfinity) {
            number = QStringLiteral("-inf");
        } else {
            number = fixedText(level, decimals());
            const bool isZero = fixedText(0.0, decimals()) == number;
            if (level > 0.0f && !isZero)
                number.prepend(QLatin1Char('+'));
        }
    }
    return withUnitText(number, currentUnit(), p_withUnit);
}
