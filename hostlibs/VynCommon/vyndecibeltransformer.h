#pragma once

#include "vyntransformer.h"

/*!
    Levels and gains shown in decibels, unit "dB", key "decibel".

    The raw value is, by RawScale, already in decibels (RawDecibel, the
    default), an amplitude ratio (RawAmplitude: 20 log10) or a power ratio
    (RawPower: 10 log10). A ratio of zero or less shows as the minus-infinity
    threshold. Text: one decimal by default, an explicit "+" on positive
    values ("+6.0 dB", "0.0 dB", "-12.5 dB"), and "-inf" for every level at or
    below the minus-infinity threshold (-144 dB by default). autoScale has no
    effect: decibels have no larger unit.
*/
class VYNCOMMON_EXPORT VynDecibelTransformer : public VynTransformer
{
    Q_OBJECT
    Q_PROPERTY(
        double minusInfinityThreshold READ minusInfinityThreshold WRITE setMinusInfinityThreshold)

public:
    enum RawScale { RawDecibel = 0, RawAmplitude = 1, RawPower = 2 };
    Q_ENUM(RawScale)

    explicit VynDecibelTransformer(RawScale scale = RawDecibel, QObject* parent = nullptr);
    VynDecibelTransformer(const VynDecibelTransformer& other, QObject* parent = nullptr);

    VynTransformer* clone(QObject* parent) const override;
    float rawToDisplayed(float p_raw) const override;
    float displayedToRaw(float p_displayed) const override;
    QString valueToString(float p_value, bool p_withUnit, bool p_autoScale) const override;

    RawScale rawScale() const { return m_scale; }
    double minusInfinityThreshold() const { return m_minusInfinity; }
    void setMinusInfinityThreshold(double threshold) { m_minusInfinity = threshold; }

private:
    RawScale m_scale;
    double m_minusInfinity = -144.0;
};
