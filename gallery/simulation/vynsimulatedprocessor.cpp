#include "vynsimulatedprocessor.h"

#include <QPointer>
#include <QTimer>

#include <cmath>

namespace {

struct BandPreset
{
    VynEQConstants::VynEQBandType type;
    double frequency;
    double gain;
    double q;
};

// A plausible tuning of a two-way loudspeaker, different per channel.
const BandPreset kPresets[VynSimulatedProcessor::kBandCount] = {
    {VynEQConstants::VynEQTypeHighPass, 45, 0, 0.71},
    {VynEQConstants::VynEQTypeLowShelf, 110, 3, 0.7},
    {VynEQConstants::VynEQTypeBell, 250, -4, 1.4},
    {VynEQConstants::VynEQTypeBell, 800, 2, 2},
    {VynEQConstants::VynEQTypeBell, 2500, -3, 3},
    {VynEQConstants::VynEQTypeNotch, 5200, 0, 8},
    {VynEQConstants::VynEQTypeHighShelf, 9000, 2.5, 0.7},
    {VynEQConstants::VynEQTypeLowPass, 18000, 0, 0.71},
};

double roundSignificant(double value, int digits)
{
    if (value <= 0.0)
        return value;
    const double scale = std::pow(10.0, digits - 1 - int(std::floor(std::log10(value))));
    return std::round(value * scale) / scale;
}

} // namespace

VynSimulatedProcessor::VynSimulatedProcessor(QObject* parent) : QObject(parent)
{
    for (int c = 0; c < kChannelCount; ++c) {
        auto* eq = new VynEQCommonEQ(this);
        eq->setBandCount(kBandCount);
        for (int b = 0; b < kBandCount; ++b) {
            const BandPreset& preset = kPresets[b];
            VynEQBand* band = eq->band(b);
            band->setType(preset.type);
            band->setFrequency(roundSignificant(preset.frequency * (1.0 + 0.07 * c), 3));
            band->setGain(preset.gain == 0 ? 0 : std::round((preset.gain + c - 1.5) * 10) / 10);
            band->setQ(preset.q);
        }
        eq->setOn(c != 3);
        m_eqs.append(eq);

        auto* block = new VynDynamicCommon(this);
        block->setThreshold(-24.0 + 4 * c);
        block->setRatio(1.0 / (2 + c));
        block->setKnee(4);
        block->setGain(c);
        block->setOn(c != 2);
        m_dynamics.append(block);

        auto* eqThumbnail = new VynUIEQThumbnailComponent(this);
        eqThumbnail->setCommonEQs({eq});
        eqThumbnail->setOn(eq->isOn() ? QtCommonsConstants::VynBOOLTrue
                                      : QtCommonsConstants::VynBOOLFalse);
        connect(eq, &VynEQCommonEQ::bandValuesChanged, eqThumbnail,
                &VynUIEQThumbnailComponent::updateEQValues);
        connect(eq, &VynEQCommonEQ::onChanged, eqThumbnail, [eq, eqThumbnail] {
            eqThumbnail->setOn(eq->isOn() ? QtCommonsConstants::VynBOOLTrue
                                          : QtCommonsConstants::VynBOOLFalse);
            emit eqThumbnail->updateEQValues();
        });
        connect(eqThumbnail, &VynUIEQThumbnailComponent::activationClicked, this,
                [this, eq](bool turnOn) {
                    countSent();
                    QPointer<VynEQCommonEQ> target(eq);
                    QTimer::singleShot(m_latency, this, [target, turnOn] {
                        if (target)
                            target->setOn(turnOn);
                    });
                });
        m_eqThumbnails.append(eqThumbnail);

        auto* dynThumbnail = new VynUIDynThumbnailComponent(this);
        dynThumbnail->setThresholdLimits(-60, 0);
        dynThumbnail->setCommonDynamics({block});
        dynThumbnail->setOn(block->isOn() ? QtCommonsConstants::VynBOOLTrue
                                          : QtCommonsConstants::VynBOOLFalse);
        connect(block, &VynDynamicCommon::valuesChanged, dynThumbnail, [block, dynThumbnail] {
            dynThumbnail->setOn(block->isOn() ? QtCommonsConstants::VynBOOLTrue
                                              : QtCommonsConstants::VynBOOLFalse);
            emit dynThumbnail->commonDynamicsValuesChanged();
        });
        connect(dynThumbnail, &VynUIDynThumbnailComponent::activationClicked, this,
                [this, block](bool turnOn) {
                    countSent();
                    QPointer<VynDynamicCommon> target(block);
                    QTimer::singleShot(m_latency, this, [target, turnOn] {
                        if (target)
                            target->setOn(turnOn);
                    });
                });
        m_dynThumbnails.append(dynThumbnail);
    }
}

VynSimulatedProcessor::~VynSimulatedProcessor() = default;

template <typename T> static QVariantList objectList(const QList<T*>& list)
{
    QVariantList result;
    for (T* object : list)
        result.append(QVariant::fromValue(object));
    return result;
}

QVariantList VynSimulatedProcessor::eqs() const
{
    return objectList(m_eqs);
}

QVariantList VynSimulatedProcessor::dynamics() const
{
    return objectList(m_dynamics);
}

QVariantList VynSimulatedProcessor::eqThumbnails() const
{
    return objectList(m_eqThumbnails);
}

QVariantList VynSimulatedProcessor::dynThumbnails() const
{
    return objectList(m_dynThumbnails);
}

void VynSimulatedProcessor::setLatency(int p_milliseconds)
{
    const int latency = qMax(0, p_milliseconds);
    if (latency == m_latency)
        return;
    m_latency = latency;
    emit latencyChanged();
}

QString VynSimulatedProcessor::channelName(int p_channel) const
{
    static const char* const names[kChannelCount] = {"Left", "Right", "Sub", "Fill"};
    if (p_channel < 0 || p_channel >= kChannelCount)
        return QString();
    return QString::fromLatin1(names[p_channel]);
}

void VynSimulatedProcessor::countSent()
{
    ++m_sentCount;
    emit sentCountChanged();
}

bool VynSimulatedProcessor::sendBand(int p_channel, int p_band, double p_frequency, double p_gain,
                                     double p_q)
{
    if (p_channel < 0 || p_channel >= kChannelCount || p_band < 0 || p_band >= kBandCount)
        return false;
    if (!std::isfinite(p_frequency) || !std::isfinite(p_gain) || !std::isfinite(p_q))
        return false;
    countSent();
    // The device keeps its own resolution.
    const double frequency = roundSignificant(p_frequency, 3);
    const double gain = std::round(p_gain * 10.0) / 10.0;
    const double q = std::round(p_q * 100.0) / 100.0;
    QPointer<VynEQBand> band(m_eqs[p_channel]->band(p_band));
    QTimer::singleShot(m_latency, this, [band, frequency, gain, q] {
        if (!band)
            return;
        band->setFrequency(frequency);
        band->setGain(gain);
        band->setQ(q);
    });
    return true;
}

bool VynSimulatedProcessor::sendDynamics(int p_channel, double p_threshold, double p_ratio)
{
    if (p_channel < 0 || p_channel >= kChannelCount)
        return false;
    if (!std::isfinite(p_threshold) || !std::isfinite(p_ratio))
        return false;
    countSent();
    const double threshold = std::round(p_threshold * 10.0) / 10.0;
    const double ratio = std::round(p_ratio * 100.0) / 100.0;
    QPointer<VynDynamicCommon> block(m_dynamics[p_channel]);
    QTimer::singleShot(m_latency, this, [block, threshold, ratio] {
        if (!block)
            return;
        block->setThreshold(threshold);
        block->setRatio(ratio);
    });
    return true;
}
