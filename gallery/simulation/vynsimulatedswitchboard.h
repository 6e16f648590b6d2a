#pragma once

#include <vynuibuttoncomponent.h>
#include <vynuicablabelcomponent.h>
#include <vynuicombocomponent.h>
#include <vynuihandybuttoncomponent.h>
#include <vynuiledcomponent.h>

#include <QHash>
#include <QJSValue>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QRandomGenerator>
#include <QStringList>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

class QCoreWindowController;

/*!
    The switches and indicators of a simulated four-channel amplifier for the
    gallery, bound to component models the way a real host binds them.

    Per channel n: "Amp[1]/Channel[n]/Mute", ".../Solo" and ".../StandBy"
    (on/off), ".../InputSource" (0 analog, 1 AES/EBU, 2 Dante, 3 Milan) and
    the three status parameters ".../Clip", ".../Limit" and ".../Protect".
    Mute and solo are shown by a handy button of type MuteSolo, stand-by by
    one of type StandBy; the status LED watches clip (red), limit (orange)
    and protect (red) with the priorities protect 3, clip 2, limit 1, and is
    green when none of them is active. The input source has a combo per
    channel and one for all channels at once, mixed while the channels
    differ. Each channel carries a cabinet label.

    A click or a choice is sent to the device, which stores it and echoes it
    back after `latency` ms; the models change only with the echo. Stand-by of
    channel 4 asks for confirmation. While `running`, the signal clips and
    limits now and then on random channels. echo(callback) runs a callback
    after the same latency, for the gallery's unbound controls.
*/
class VynSimulatedSwitchboard : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int channelCount READ channelCount CONSTANT)
    Q_PROPERTY(int latency READ latency WRITE setLatency NOTIFY latencyChanged)
    Q_PROPERTY(bool running READ running WRITE setRunning NOTIFY runningChanged)
    Q_PROPERTY(QStringList traffic READ traffic NOTIFY trafficChanged)

public:
    explicit VynSimulatedSwitchboard(QObject* parent = nullptr);
    ~VynSimulatedSwitchboard() override;

    int channelCount() const { return kChannelCount; }
    int latency() const { return m_latency; }
    void setLatency(int milliseconds);
    bool running() const { return m_signalTimer.isActive(); }
    void setRunning(bool running);
    QStringList traffic() const { return m_traffic; }

    //! The mute/solo handy button of \a channel (1-based), null out of range.
    Q_INVOKABLE VynUIHandyButtonComponent* muteSolo(int channel) const;
    Q_INVOKABLE VynUIHandyButtonComponent* standBy(int channel) const;
    Q_INVOKABLE VynUIButtonComponent* mute(int channel) const;
    Q_INVOKABLE VynUILedComponent* statusLed(int channel) const;
    Q_INVOKABLE VynUIComboComponent* inputSource(int channel) const;
    Q_INVOKABLE VynUICabLabelComponent* cabinet(int channel) const;
    //! The input source of every channel at once, mixed while they differ.
    Q_INVOKABLE VynUIComboComponent* allInputs() const { return m_allInputs; }
    //! The cabinets of every channel at once.
    Q_INVOKABLE VynUICabLabelComponent* allCabinets() const { return m_allCabinets; }

    //! Sets a status parameter ("Clip", "Limit", "Protect") of \a channel as the device would.
    Q_INVOKABLE void setStatus(int channel, const QString& parameter, bool active);
    Q_INVOKABLE bool status(int channel, const QString& parameter) const;
    //! Runs \a callback after the device latency.
    Q_INVOKABLE void echo(const QJSValue& callback);
    //! Lets the models present their confirmations over the window showing \a item.
    Q_INVOKABLE void attachToWindowOf(QObject* item);

signals:
    void latencyChanged();
    void runningChanged();
    void trafficChanged();

private:
    static constexpr int kChannelCount = 4;

    struct Channel
    {
        VynUIButtonComponent* mute = nullptr;
        VynUIButtonComponent* solo = nullptr;
        VynUIButtonComponent* standBy = nullptr;
        VynUIHandyButtonComponent* muteSolo = nullptr;
        VynUIHandyButtonComponent* standByHandy = nullptr;
        VynUILedComponent* led = nullptr;
        VynUIComboComponent* input = nullptr;
        VynUICabLabelComponent* cabinet = nullptr;
        bool clip = false;
        bool limit = false;
        bool protect = false;
        int source = 0;
    };

    VynUIButtonComponent* makeSwitch(int channel, const QString& parameter, const QString& text);
    void toggle(int channel, VynUIButtonComponent* button, const QString& parameter);
    void choose(int channel, int index);
    void chooseForAll(int index);
    void receiveSource(int channel, int source);
    void refreshLed(int channel);
    void refreshAllInputs();
    void signalEvent();
    void note(const QString& line);
    const Channel* channelAt(int channel) const;

    QList<Channel> m_channels;
    VynUIComboComponent* m_allInputs = nullptr;
    VynUICabLabelComponent* m_allCabinets = nullptr;
    int m_latency = 120;
    QTimer m_signalTimer;
    QRandomGenerator m_random{20261123};
    QStringList m_traffic;
    QPointer<QCoreWindowController> m_windowController;
};
