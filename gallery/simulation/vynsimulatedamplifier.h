#pragma once

#include <vynuicomponentset.h>
#include <vynuislidefieldcomponent.h>
#include <vynuislidercomponent.h>

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QRandomGenerator>
#include <QStringList>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

class QCoreWindowController;

/*!
    A simulated networked amplifier for the gallery, bound to component models
    the way a real host binds them.

    Each channel has three parameters, "Amp[1]/Channel[n]/Gain" (dB, -60 to
    +12, a slider model), ".../Delay" (ms, 0 to 500, a slide field offering ms,
    m and ft) and ".../Frequency" (the high-pass corner, 20 Hz to 20 kHz, a
    slide field offering Hz and kHz). Every model is filed in componentSet()
    under its path. The gain of channel 1 asks for confirmation
    (should-alert): the values of a gesture on it are only previewed, and the
    confirmed one is sent; the delay of the last channel is disabled.

    An edit goes through the models' validators: the value validator sends it
    to the device, which stores it with its own resolution (0.1 dB, one sample
    at 48 kHz, three significant digits in hertz) and echoes it back after
    `latency` ms through setValue(); `expecting` is true meanwhile. While
    `running`, another operator changes a random parameter every 1.5 s, so the
    models' values and texts move on their own. `traffic` lists the latest
    messages on the simulated wire.
*/
class VynSimulatedAmplifier : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(int channelCount READ channelCount CONSTANT)
    Q_PROPERTY(QStringList parameterNames READ parameterNames CONSTANT)
    Q_PROPERTY(int latency READ latency WRITE setLatency NOTIFY latencyChanged)
    Q_PROPERTY(bool running READ running WRITE setRunning NOTIFY runningChanged)
    Q_PROPERTY(QStringList traffic READ traffic NOTIFY trafficChanged)

public:
    explicit VynSimulatedAmplifier(QObject* parent = nullptr);
    ~VynSimulatedAmplifier() override;

    QString name() const { return QStringLiteral("Amp[1]"); }
    int channelCount() const { return kChannelCount; }
    QStringList parameterNames() const;
    int latency() const { return m_latency; }
    void setLatency(int milliseconds);
    bool running() const { return m_operatorTimer.isActive(); }
    void setRunning(bool running);
    QStringList traffic() const { return m_traffic; }

    VynUIComponentSet* componentSet() { return &m_set; }

    //! The model of \a parameter ("Gain", "Delay", "Frequency") of channel \a channel (1-based).
    Q_INVOKABLE VynUISliderComponent* component(int channel, const QString& parameter) const;
    /*!
        A model bound to \a parameter of every channel at once, the way a host binds a
        multiple selection: its values are the channels' values, it is mixed while they
        differ, and an edit is sent to every channel that is neither protected nor locked
        (those are edited one by one). Made on first request, owned by the
        amplifier; null for an unknown parameter.
    */
    Q_INVOKABLE VynUISliderComponent* selection(const QString& parameter);
    //! The value the device holds for \a path.
    Q_INVOKABLE double deviceValue(const QString& path) const;
    //! Lets the models present their confirmations over the window showing \a item.
    Q_INVOKABLE void attachToWindowOf(QObject* item);
    //! The component set's description, for display.
    Q_INVOKABLE QString setDescription() const { return m_set.getDescription(); }

signals:
    void latencyChanged();
    void runningChanged();
    void trafficChanged();

private:
    static constexpr int kChannelCount = 4;

    struct Parameter
    {
        VynProxyParamPath path;
        double value = 0.0;
        double minValue = 0.0;
        double maxValue = 1.0;
    };

    void addParameter(VynUISliderComponent* component, const VynProxyParamPath& path, double value,
                      double minValue, double maxValue, const QString& name,
                      VynTransformer* transformer);
    bool send(VynUISliderComponent* component, double& value);
    double deviceResolution(const VynProxyParamPath& path, double value) const;
    void receive(const VynProxyParamPath& path, double value);
    void otherOperatorEdit();
    void refreshSelection(const QString& parameter);
    void note(const QString& line);

    VynUIComponentSet m_set;
    QHash<VynProxyParamPath, Parameter> m_device;
    QList<VynProxyParamPath> m_paths;
    int m_latency = 120;
    QTimer m_operatorTimer;
    QRandomGenerator m_random{20261121};
    QStringList m_traffic;
    QPointer<QCoreWindowController> m_windowController;
    QHash<QString, VynUISliderComponent*> m_selections;
};
