#pragma once

#include "vynlineartransformer.h"

/*!
    Frequency parameters: raw hertz shown in "Hz" or "kHz", three significant
    digits ("20.0 Hz", "125 Hz", "1.00 kHz", "12.5 kHz"). With the autoScale
    option a value in "Hz" of 1000 and more is written in kilohertz, "1.20 kHz",
    or "1.20k" without the unit. Key "frequency".
*/
class VYNCOMMON_EXPORT VynFrequencyTransformer : public VynLinearTransformer
{
    Q_OBJECT

public:
    explicit VynFrequencyTransformer(QObject* parent = nullptr);
    VynFrequencyTransformer(const VynFrequencyTransformer& other, QObject* parent = nullptr);

    VynTransformer* clone(QObject* parent) const override;
};
