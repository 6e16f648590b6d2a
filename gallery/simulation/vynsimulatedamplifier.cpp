#include "vynsimulatedamplifier.h"

#include <qcorewindowcontroller.h>
#include <vyndecibeltransformer.h>
#include <vynfrequencytransformer.h>
#include <vynlineartransformer.h>

#include <QQuickWindow>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kSampleMs = 1000.0 / 48000.0;
constexpr int kTrafficLines = 8;

VynProxyParamPath channelPath(int channel, const QString& parameter)
{
    return VynProxyParamPath::fromString(
        QStringLiteral("Amp[1]/Channel[%1]/%2").arg(channel).arg(parameter));
}

} // namespace

VynSimulatedAmplifier::VynSimulatedAmplifier(QObject* parent) : QObject(parent)
{
    VynDecibelTransformer decibel;
    decibel.setMinusInfinityThreshold(-60.0);
    std::unique_ptr<VynLinearTransformer> delay(VynLinearTransformer::delayTransformer());
    VynFrequencyTransformer frequency;

    for (int channel = 1; channel <= kChannelCount; ++channel) {
        auto* gain = new VynUISliderComponent(this);
        addParameter(gain, channelPath(channel, QStringLiteral("Gain")), -6.0 * (channel - 1),
                     -60.0, 12.0, QStringLiteral("Gain"), &decibel);
        auto* delayField = new VynUISlideFieldComponent(this);
        addParameter(delayField, channelPath(channel, QStringLiteral("Delay")), 2.5 * channel, 0.0,
                     500.0, QStringLiteral("Delay"), delay.get());
        auto* frequencyField = new VynUISlideFieldComponent(this);
        addParameter(frequencyField, channelPath(channel, QStringLiteral("Frequency")),
                     40.0 * channel, 20.0, 20000.0, QStringLiteral("High-pass"), &frequency);

        for (VynUISlideFieldComponent* field : {delayField, frequencyField}) {
            field->setUnits(field->transformer()->units());
            field->setUnitValidator([](VynUISlideFieldComponent* c, QString& unit) {
                c->setUnit(static_cast<int>(c->units().indexOf(unit)), false);
            });
        }
    }

    VynUISliderComponent* protectedGain = component(1, QStringLiteral("Gain"));
    protectedGain->setSecurityKey(QStringLiteral("amp.gain.protected"));
    protectedGain->setSecurityType(VynCommonConstants::VynSecurityTypeShouldAlert);
    protectedGain->setSecurityAlertTitleAndMessage(
        tr("Change the gain of channel 1?"),
        tr("Channel 1 feeds the main system. The change is sent to the amplifier at once."));
    VynUISliderComponent* lockedDelay = component(kChannelCount, QStringLiteral("Delay"));
    lockedDelay->setSecurityKey(QStringLiteral("amp.delay.locked"));
    lockedDelay->setSecurityType(VynCommonConstants::VynSecurityTypeDisable);
    lockedDelay->setTooltipText(tr("Locked by the system engineer"));

    note(tr("\u25CF %1 online, %2 parameters").arg(name()).arg(m_paths.size()));
    m_operatorTimer.setInterval(1500);
    connect(&m_operatorTimer, &QTimer::timeout, this, &VynSimulatedAmplifier::otherOperatorEdit);
}

VynSimulatedAmplifier::~VynSimulatedAmplifier()
{
    // The models are children of this object: leave the set before they go.
    const QList<VynUIComponent*> components = m_set.components();
    m_set.remove(components);
}

QStringList VynSimulatedAmplifier::parameterNames() const
{
    return {QStringLiteral("Gain"), QStringLiteral("Delay"), QStringLiteral("Frequency")};
}

void VynSimulatedAmplifier::addParameter(VynUISliderComponent* component,
                                         const VynProxyParamPath& path, double value,
                                         double minValue, double maxValue, const QString& name,
                                         VynTransformer* transformer)
{
    m_device.insert(path, Parameter{path, value, minValue, maxValue});
    m_paths.append(path);

    component->setName(name);
    component->setWantsName(true);
    component->setTransformer(transformer);
    component->setMinValue(minValue);
    component->setMaxValue(maxValue);
    component->setInitValue(std::clamp(0.0, minValue, maxValue));
    component->setValue(value, false, {value});
    component->setPrevValue(value);
    component->setSlidingValidator([](VynUISliderComponent* c) { return c->enabled(); });
    // A protected parameter previews the values of a gesture and sends only the confirmed one.
    component->setValueValidator(
        [this](VynUISliderComponent* c, double& proposed, bool, double, bool isFinal) {
            if (!isFinal && c->securityType() == VynCommonConstants::VynSecurityTypeShouldAlert)
                return c->enabled();
            return send(c, proposed);
        });
    m_set.insert(path, component);
}

double VynSimulatedAmplifier::deviceResolution(const VynProxyParamPath& path, double value) const
{
    const QString last = path.getLastNameText();
    if (last == QLatin1String("Gain"))
        return std::round(value * 10.0) / 10.0;
    if (last == QLatin1String("Delay"))
        return std::round(value / kSampleMs) * kSampleMs;
    if (value <= 0.0)
        return value;
    const double magnitude = std::floor(std::log10(value));
    const double scale = std::pow(10.0, 2.0 - magnitude);
    return std::round(value * scale) / scale;
}

bool VynSimulatedAmplifier::send(VynUISliderComponent* component, double& value)
{
    if (!component->enabled())
        return false;
    const VynProxyParamPath path = m_set.getFirstParamPathForComponent(component);
    const auto it = m_device.constFind(path);
    if (it == m_device.cend())
        return false;
    value = std::clamp(value, it->minValue, it->maxValue);
    const double sent = value;
    component->setExpecting(true);
    note(QStringLiteral("\u2192 %1 = %2")
             .arg(path.toString(),
                  component->transformer()
                      ? component->transformer()->valueToString(float(sent), true, true)
                      : QString::number(sent)));
    QTimer::singleShot(m_latency, this,
                       [this, path, sent] { receive(path, deviceResolution(path, sent)); });
    return true;
}

void VynSimulatedAmplifier::receive(const VynProxyParamPath& path, double value)
{
    auto it = m_device.find(path);
    if (it == m_device.end())
        return;
    it->value = value;
    const QList<VynUIComponent*> components = m_set.getComponents(path);
    for (VynUIComponent* c : components) {
        auto* slider = qobject_cast<VynUISliderComponent*>(c);
        if (!slider)
            continue;
        slider->setValue(value, false, {value});
        slider->setExpecting(false);
        note(QStringLiteral("\u2190 %1 = %2").arg(path.toString(), slider->stringValue()));
    }
    refreshSelection(path.getLastNameText());
}

VynUISliderComponent* VynSimulatedAmplifier::selection(const QString& parameter)
{
    if (VynUISliderComponent* existing = m_selections.value(parameter))
        return existing;
    VynUISliderComponent* first = component(1, parameter);
    if (!first)
        return nullptr;
    auto* selection = qobject_cast<VynUISlideFieldComponent*>(first)
                          ? new VynUISlideFieldComponent(this)
                          : new VynUISliderComponent(this);
    selection->setName(tr("All channels"));
    selection->setWantsName(true);
    selection->setTransformer(first->transformer());
    selection->setMinValue(first->minValue());
    selection->setMaxValue(first->maxValue());
    selection->setInitValue(first->initValue());
    selection->setWindowController(first->windowController());
    selection->setSlidingValidator([](VynUISliderComponent* c) { return c->enabled(); });
    selection->setValueValidator(
        [this, parameter](VynUISliderComponent*, double& proposed, bool, double, bool) {
            bool sent = false;
            for (int channel = 1; channel <= kChannelCount; ++channel) {
                VynUISliderComponent* member = component(channel, parameter);
                double value = proposed;
                if (member && member->securityType() == VynCommonConstants::VynSecurityTypeNone)
                    sent = send(member, value) || sent;
            }
            return sent;
        });
    m_selections.insert(parameter, selection);
    refreshSelection(parameter);
    return selection;
}

void VynSimulatedAmplifier::refreshSelection(const QString& parameter)
{
    VynUISliderComponent* selection = m_selections.value(parameter);
    if (!selection)
        return;
    QList<double> values;
    for (int channel = 1; channel <= kChannelCount; ++channel)
        values.append(m_device.value(channelPath(channel, parameter)).value);
    const bool mixed =
        std::any_of(values.cbegin(), values.cend(), [&](double v) { return v != values.first(); });
    selection->setValue(values.first(), mixed, values);
}

void VynSimulatedAmplifier::otherOperatorEdit()
{
    const VynProxyParamPath path =
        m_paths.at(static_cast<int>(m_random.bounded(static_cast<quint32>(m_paths.size()))));
    const QList<VynUIComponent*> components = m_set.getComponents(path);
    if (components.isEmpty() || !components.first()->enabled())
        return;
    const Parameter& parameter = m_device.value(path);
    const double span = parameter.maxValue - parameter.minValue;
    double value = parameter.value + span * (m_random.generateDouble() - 0.5) * 0.1;
    value = deviceResolution(path, std::clamp(value, parameter.minValue, parameter.maxValue));
    receive(path, value);
}

void VynSimulatedAmplifier::note(const QString& line)
{
    m_traffic.prepend(line);
    while (m_traffic.size() > kTrafficLines)
        m_traffic.removeLast();
    emit trafficChanged();
}

VynUISliderComponent* VynSimulatedAmplifier::component(int channel, const QString& parameter) const
{
    const QList<VynUIComponent*> components = m_set.getComponents(channelPath(channel, parameter));
    return components.isEmpty() ? nullptr : qobject_cast<VynUISliderComponent*>(components.first());
}

double VynSimulatedAmplifier::deviceValue(const QString& path) const
{
    return m_device.value(VynProxyParamPath::fromString(path)).value;
}

void VynSimulatedAmplifier::setLatency(int milliseconds)
{
    milliseconds = qBound(0, milliseconds, 5000);
    if (milliseconds == m_latency)
        return;
    m_latency = milliseconds;
    emit latencyChanged();
}

void VynSimulatedAmplifier::setRunning(bool running)
{
    if (running == m_operatorTimer.isActive())
        return;
    if (running)
        m_operatorTimer.start();
    else
        m_operatorTimer.stop();
    emit runningChanged();
}

void VynSimulatedAmplifier::attachToWindowOf(QObject* item)
{
    QQuickWindow* window = QCoreWindowController::windowForQmlObject(item);
    if (!window)
        return;
    QCoreWindowController* controller = QCoreWindowController::controllerForWindow(window);
    if (!controller) {
        controller = new QCoreWindowController(window, window);
        m_windowController = controller;
    }
    for (VynUIComponent* c : m_set.components())
        c->setWindowController(controller);
}
