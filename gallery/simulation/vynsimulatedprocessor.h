#pragma once

#include <vyndynamiccommon.h>
#include <vyneqcommoneq.h>
#include <vynuidynthumbnailcomponent.h>
#include <vynuieqthumbnailcomponent.h>

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

/*!
    A simulated loudspeaker processor for the gallery: four channels, each with an 8-band
    parametric EQ and a compressor, and the thumbnail models a host would hand to the views.

    Edits are sent, not written: sendBand() and sendDynamics() go "to the device", which
    stores the values with its own resolution (three significant digits in hertz, 0.1 dB,
    two decimals of q, ratio in steps of 0.01) and echoes them back after `latency` ms into the
    EQ and dynamics objects; the views then follow the echo. The thumbnails' activationClicked()
    switches the channel's EQ or compressor the same way.
*/
class VynSimulatedProcessor : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int channelCount READ channelCount CONSTANT)
    Q_PROPERTY(QVariantList eqs READ eqs CONSTANT)
    Q_PROPERTY(QVariantList dynamics READ dynamics CONSTANT)
    Q_PROPERTY(QVariantList eqThumbnails READ eqThumbnails CONSTANT)
    Q_PROPERTY(QVariantList dynThumbnails READ dynThumbnails CONSTANT)
    Q_PROPERTY(int latency READ latency WRITE setLatency NOTIFY latencyChanged)
    Q_PROPERTY(int sentCount READ sentCount NOTIFY sentCountChanged)

public:
    explicit VynSimulatedProcessor(QObject* parent = nullptr);
    ~VynSimulatedProcessor() override;

    static constexpr int kChannelCount = 4;
    static constexpr int kBandCount = 8;

    int channelCount() const { return kChannelCount; }
    QVariantList eqs() const;
    QVariantList dynamics() const;
    QVariantList eqThumbnails() const;
    QVariantList dynThumbnails() const;
    int latency() const { return m_latency; }
    void setLatency(int p_milliseconds);
    int sentCount() const { return m_sentCount; }

    Q_INVOKABLE QString channelName(int p_channel) const;
    //! Sends new values of one band; false when the channel or band does not exist.
    Q_INVOKABLE bool sendBand(int p_channel, int p_band, double p_frequency, double p_gain,
                              double p_q);
    //! Sends a new threshold and ratio of a channel's compressor.
    Q_INVOKABLE bool sendDynamics(int p_channel, double p_threshold, double p_ratio);

signals:
    void latencyChanged();
    void sentCountChanged();

private:
    void countSent();

    QList<VynEQCommonEQ*> m_eqs;
    QList<VynDynamicCommon*> m_dynamics;
    QList<VynUIEQThumbnailComponent*> m_eqThumbnails;
    QList<VynUIDynThumbnailComponent*> m_dynThumbnails;
    int m_latency = 20;
    int m_sentCount = 0;
};
