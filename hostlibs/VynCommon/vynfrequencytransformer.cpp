#include "vynfrequencytransformer.h"

namespace {

QList<VynLinearTransformer::Unit> frequencyUnits()
{
    VynLinearTransformer::Unit hertz{
        QStringLiteral("Hz"), 1.0, 0.0, 0, 3, 1000.0, 0.001, QStringLiteral("kHz"),
        QStringLiteral("k")};
    VynLinearTransformer::Unit kilohertz{QStringLiteral("kHz"), 0.001, 0.0, 0, 3, 0.0, 1.0, {}, {}};
    return {hertz, kilohertz};
}

} // namespace

VynFrequencyTransformer::VynFrequencyTransformer(QObject* parent)
    : VynLinearTransformer(QStringLiteral("frequency"), frequencyUnits(), parent)
{}

VynFrequencyTransformer::VynFrequencyTransformer(const VynFrequencyTransformer& other,
                                                 QObject* parent)
    : VynLinearTransformer(other, parent)
{}

VynTransformer* VynFrequencyTransformer::clone(QObject* parent) const
{
    return new VynFrequencyTransformer(*this, parent);
}
