#include "vynsimulatedmeterbridge.h"

#include <algorithm>
#include <cmath>

namespace {

struct Instrument
{
    const char* name;
    double beat;   // how much the 120 BPM beat drives it, 0 to 1
    double phrase; // how much it comes and goes with phrases, 0 to 1
};

const Instrument kInstruments[] = {
    {"Kick", 1.0, 0.0}, {"Snare", 0.8, 0.1}, {"Bass", 0.6, 0.2}, {"Keys", 0.1, 0.5},
    {"Vox", 0.05, 0.9}, {"Gtr", 0.3, 0.6},   {"Pad", 0.0, 0.3},  {"FX", 0.2, 0.95},
};
constexpr int kInstrumentCount = int(sizeof(kInstruments) / sizeof(kInstruments[0]));
constexpr double kPi = 3.14159265358979323846;

} // namespace

VynSimulatedMeterBridge::VynSimulatedMeterBridge(QObject* parent)
    : QObject(parent), m_random(20261123)
{
    for (int a = 0; a < kAmplifiers; ++a) {
        for (int c = 0; c < kChannels; ++c) {
            Channel channel;
            channel.input = new VynUIVUMeterComponent(this);
            channel.input->setLimits(-60.0, 0.0, -60.0);
            channel.input->setDisplaysHoldValue(true);
            channel.output = new VynUIVUMeterComponent(this);
            channel.output->setLimits(-60.0, 0.0, -60.0);
            channel.output->setDisplaysHoldValue(true);
            channel.limiter = new VynUIVUMeterComponent(this);
            channel.limiter->setLimits(-20.0, 0.0, 0.0);
            channel.limiter->setReverse(true);
            channel.instrument = (c + 3 * a) % kInstrumentCount;
            channel.level = -10.0 + 8.0 * m_random.generateDouble();
            channel.gain = -2.0 + 8.0 * m_random.generateDouble();
            channel.phase = 16.0 * m_random.generateDouble();
            m_channels.append(channel);
        }
    }
    m_timer.setInterval(kPollInterval);
    connect(&m_timer, &QTimer::timeout, this, &VynSimulatedMeterBridge::step);
    // A few seconds into the song, so that the first frame already moves.
    for (int i = 0; i < 90; ++i)
        step();
    m_timer.start();
}

VynSimulatedMeterBridge::~VynSimulatedMeterBridge() = default;

void VynSimulatedMeterBridge::setRunning(bool running)
{
    if (running == m_timer.isActive())
        return;
    if (running)
        m_timer.start();
    else
        m_timer.stop();
    emit runningChanged();
}

const VynSimulatedMeterBridge::Channel* VynSimulatedMeterBridge::channel(int amplifier,
                                                                         int channel) const
{
    if (amplifier < 1 || amplifier > kAmplifiers || channel < 1 || channel > kChannels)
        return nullptr;
    return &m_channels.at((amplifier - 1) * kChannels + channel - 1);
}

VynUIVUMeterComponent* VynSimulatedMeterBridge::inputMeter(int amplifier, int channel) const
{
    const Channel* c = this->channel(amplifier, channel);
    return c ? c->input : nullptr;
}

VynUIVUMeterComponent* VynSimulatedMeterBridge::outputMeter(int amplifier, int channel) const
{
    const Channel* c = this->channel(amplifier, channel);
    return c ? c->output : nullptr;
}

VynUIVUMeterComponent* VynSimulatedMeterBridge::limiterMeter(int amplifier, int channel) const
{
    const Channel* c = this->channel(amplifier, channel);
    return c ? c->limiter : nullptr;
}

QString VynSimulatedMeterBridge::instrument(int amplifier, int channel) const
{
    const Channel* c = this->channel(amplifier, channel);
    return c ? QString::fromLatin1(kInstruments[c->instrument].name) : QString();
}

void VynSimulatedMeterBridge::resetClips()
{
    if (m_clipCount == 0)
        return;
    m_clipCount = 0;
    emit clipCountChanged();
}

void VynSimulatedMeterBridge::step()
{
    m_time += kPollInterval / 1000.0;
    const double t = m_time;
    // Song sections: a slow swell, with a break every 32 s.
    const double section =
        -6.0 + 5.0 * std::sin(2 * kPi * t / 23.0) + (std::fmod(t, 32.0) > 28.0 ? -14.0 : 0.0);
    // 120 BPM: a hit every 0.5 s decaying fast, accented on the one of each bar.
    const double beatPhase = std::fmod(t, 0.5) / 0.5;
    const double accent = std::fmod(t, 2.0) < 0.5 ? 1.0 : 0.7;
    const double beat = accent * std::exp(-6.0 * beatPhase);
    int clips = 0;

    for (Channel& c : m_channels) {
        const Instrument& instrument = kInstruments[c.instrument];
        // Phrases of 4 bars, on for three fifths of the time.
        const double phraseOn = std::fmod(t + c.phase, 8.0) < 4.8 ? 1.0 : 0.0;
        double level = section + c.level;
        level += instrument.beat * (-14.0 + 20.0 * beat);
        level -= instrument.phrase * (1.0 - phraseOn) * 30.0;
        level += 2.5 * (m_random.generateDouble() - 0.5) * 2.0;
        // A rare transient that reaches full scale.
        if (m_random.bounded(1000) < 3)
            level = 0.5 + 2.0 * m_random.generateDouble();
        // The device reports a short RMS-like average, attack faster than release.
        const double coefficient = level > c.smoothed ? 0.7 : 0.35;
        c.smoothed += coefficient * (level - c.smoothed);
        const double input = std::max(-60.0, std::min(c.smoothed, 3.0));
        if (input >= 0.0)
            ++clips;

        const double raw = input + c.gain;
        const double over = std::max(0.0, raw - (-6.0));
        const double reduction = std::min(20.0, 0.8 * over);
        const double output = std::max(-60.0, raw - reduction);

        c.input->setValue(input, input, input);
        c.output->setValue(output, output, output);
        c.limiter->setValue(-reduction, -reduction, -reduction);
    }
    if (clips > 0) {
        m_clipCount += clips;
        emit clipCountChanged();
    }
}
