#pragma once

#include <vynuivumetercomponent.h>

#include <QList>
#include <QObject>
#include <QRandomGenerator>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

/*!
    The meter readings of a simulated amplifier fleet, for the gallery's meter
    bridge: every channel of every amplifier has an input level (dBFS, -60 to
    0), an output level (dBFS, -60 to +6) and the gain reduction of its
    limiter (0 to -20 dB, a reversed meter), each a VynUIVUMeterComponent fed
    the way a host feeds it from device polls.

    The signal is music-like: a song whose sections swell and drop over tens
    of seconds, a beat at 120 BPM that the drum and bass channels follow,
    vocal phrases that come and go, and some noise. Each channel has its own
    instrument, level and gain; the output limiter pulls back what goes over
    -6 dBFS, and now and then a transient clips the input.

    While `running` the devices are polled every 50 ms. The sequence is
    seeded, so that two runs show the same levels (screenshots compare).
*/
class VynSimulatedMeterBridge : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int amplifierCount READ amplifierCount CONSTANT)
    Q_PROPERTY(int channelCount READ channelCount CONSTANT)
    Q_PROPERTY(bool running READ running WRITE setRunning NOTIFY runningChanged)
    Q_PROPERTY(int clipCount READ clipCount NOTIFY clipCountChanged)

public:
    explicit VynSimulatedMeterBridge(QObject* parent = nullptr);
    ~VynSimulatedMeterBridge() override;

    int amplifierCount() const { return kAmplifiers; }
    //! Channels per amplifier.
    int channelCount() const { return kChannels; }
    bool running() const { return m_timer.isActive(); }
    void setRunning(bool running);
    //! Input clips since the start or the last resetClips().
    int clipCount() const { return m_clipCount; }

    //! The meters of channel \a channel (1-based) of amplifier \a amplifier (1-based).
    Q_INVOKABLE VynUIVUMeterComponent* inputMeter(int amplifier, int channel) const;
    Q_INVOKABLE VynUIVUMeterComponent* outputMeter(int amplifier, int channel) const;
    Q_INVOKABLE VynUIVUMeterComponent* limiterMeter(int amplifier, int channel) const;
    //! The instrument played on a channel ("Kick", "Bass", "Vox", ...).
    Q_INVOKABLE QString instrument(int amplifier, int channel) const;
    //! One poll of every device.
    Q_INVOKABLE void step();
    Q_INVOKABLE void resetClips();

signals:
    void runningChanged();
    void clipCountChanged();

private:
    static constexpr int kAmplifiers = 4;
    static constexpr int kChannels = 8;
    static constexpr int kPollInterval = 50;

    struct Channel
    {
        VynUIVUMeterComponent* input = nullptr;
        VynUIVUMeterComponent* output = nullptr;
        VynUIVUMeterComponent* limiter = nullptr;
        int instrument = 0;
        double level = 0.0; // dB offset of the instrument in the mix
        double gain = 0.0;  // dB of the amplifier channel
        double phase = 0.0; // offset of its phrases, s
        double smoothed = -60.0;
    };

    const Channel* channel(int amplifier, int channel) const;

    QList<Channel> m_channels;
    QRandomGenerator m_random;
    QTimer m_timer;
    double m_time = 0.0;
    int m_clipCount = 0;
};
