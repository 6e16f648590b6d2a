#include "vynsimulatedswitchboard.h"

#include <qcorewindowcontroller.h>
#include <vynmultipartname.h>
#include <vynproxyparampath.h>

#include <QQuickWindow>
#include <QSet>

namespace {

constexpr int kTrafficLines = 6;

VynProxyParamPath switchPath(int channel, const QString& parameter)
{
    return VynProxyParamPath::fromString(
        QStringLiteral("Amp[1]/Channel[%1]/%2").arg(channel).arg(parameter));
}

const QStringList& sourceNames()
{
    static const QStringList names{QStringLiteral("Analog"), QStringLiteral("AES/EBU"),
                                   QStringLiteral("Dante"), QStringLiteral("Milan")};
    return names;
}

VynMultiPartName cabinetName(int channel)
{
    VynMultiPartName name;
    name.series = QStringLiteral("K");
    name.firstChannel = channel;
    name.channelCount = 1;
    if (channel <= 2) {
        name.model = QStringLiteral("K2");
        name.preset = QStringLiteral("K2 110 FI");
        name.count = 6;
    } else if (channel == 3) {
        name.model = QStringLiteral("KS28");
        name.preset = QStringLiteral("KS28 60");
        name.count = 2;
        name.bridged = true;
        name.channelCount = 2;
    } else {
        name.model = QStringLiteral("Kara II");
        name.preset = QStringLiteral("KARA FI");
    }
    return name;
}

} // namespace

VynSimulatedSwitchboard::VynSimulatedSwitchboard(QObject* parent) : QObject(parent)
{
    const QList<int> sourceValues{0, 1, 2, 3};
    for (int channel = 1; channel <= kChannelCount; ++channel) {
        Channel c;
        c.mute = makeSwitch(channel, QStringLiteral("Mute"), QString());
        c.solo = makeSwitch(channel, QStringLiteral("Solo"), QString());
        c.standBy = makeSwitch(channel, QStringLiteral("StandBy"), QString());

        c.muteSolo = new VynUIHandyButtonComponent(this);
        c.muteSolo->setCapabilities(VynUIHandyButtonComponent::MuteSolo |
                                    VynUIHandyButtonComponent::Mute);
        c.muteSolo->setVisibleButtonType(VynUIHandyButtonComponent::MuteSolo);
        c.muteSolo->insertVisibleComponent(c.mute);
        c.muteSolo->insertVisibleComponent(c.solo);
        c.standByHandy = new VynUIHandyButtonComponent(this);
        c.standByHandy->setCapabilities(VynUIHandyButtonComponent::StandBy);
        c.standByHandy->setVisibleButtonType(VynUIHandyButtonComponent::StandBy);
        c.standByHandy->insertVisibleComponent(c.standBy);

        c.led = new VynUILedComponent(this);
        c.led->setName(tr("Status of channel %1").arg(channel));
        c.led->setNoneState(VynViewUtils::VynLedStateGreen);
        const struct
        {
            const char* parameter;
            VynViewUtils::VynLedState state;
            int priority;
        } watched[] = {{"Clip", VynViewUtils::VynLedStateRed, 2},
                       {"Limit", VynViewUtils::VynLedStateOrange, 1},
                       {"Protect", VynViewUtils::VynLedStateProtect, 3}};
        for (const auto& w : watched) {
            VynLedParamConfig config;
            config.path = switchPath(channel, QLatin1String(w.parameter));
            config.state = w.state;
            config.priority = w.priority;
            c.led->addParamConfig(config);
        }

        c.input = new VynUIComboComponent(this);
        c.input->setParamPath(switchPath(channel, QStringLiteral("InputSource")));
        c.input->setItemTexts(sourceNames());
        c.input->setItemValues(sourceValues);
        c.source = channel <= 2 ? 2 : 0;
        c.input->setSelectedValues({c.source});
        connect(c.input, &VynUIComboComponent::itemClicked, this,
                [this, channel](int index) { choose(channel, index); });

        c.cabinet = new VynUICabLabelComponent(this);
        c.cabinet->setMultiPartName(cabinetName(channel));
        m_channels.append(c);
        refreshLed(channel);
    }

    // Channel 4 feeds the front fill: putting it in stand-by asks first.
    VynUIButtonComponent* guarded = m_channels.last().standBy;
    guarded->setSecurityKey(QStringLiteral("amp.standby.frontfill"));
    guarded->setSecurityType(VynCommonConstants::VynSecurityTypeShouldAlert);
    guarded->setSecurityAlertTitleAndMessage(
        tr("Change the stand-by of channel 4?"),
        tr("Channel 4 drives the front fill. The change is sent to the amplifier at once."));

    m_allInputs = new VynUIComboComponent(this);
    m_allInputs->setItemTexts(sourceNames());
    m_allInputs->setItemValues(sourceValues);
    connect(m_allInputs, &VynUIComboComponent::itemClicked, this,
            &VynSimulatedSwitchboard::chooseForAll);
    refreshAllInputs();

    m_allCabinets = new VynUICabLabelComponent(this);
    VynMultiPartName mixedName = cabinetName(1);
    mixedName.mixed = true;
    m_allCabinets->setMultiPartName(mixedName);

    m_signalTimer.setInterval(900);
    connect(&m_signalTimer, &QTimer::timeout, this, &VynSimulatedSwitchboard::signalEvent);
    note(tr("\u25CF Amp[1] switches online"));
}

VynSimulatedSwitchboard::~VynSimulatedSwitchboard() = default;

VynUIButtonComponent* VynSimulatedSwitchboard::makeSwitch(int channel, const QString& parameter,
                                                          const QString& text)
{
    auto* button = new VynUIButtonComponent(this);
    button->setParamPath(switchPath(channel, parameter));
    button->setText(text);
    button->setTooltipText(tr("%1 of channel %2").arg(parameter).arg(channel));
    connect(button, &VynUIButtonComponent::clicked, this,
            [this, channel, button, parameter] { toggle(channel, button, parameter); });
    return button;
}

void VynSimulatedSwitchboard::toggle(int channel, VynUIButtonComponent* button,
                                     const QString& parameter)
{
    const QtCommonsConstants::VynBOOL next = VynUIButtonComponent::nextOnForOn(button->isOn());
    button->setExpecting(true);
    note(QStringLiteral("\u2192 Ch%1/%2 = %3")
             .arg(channel)
             .arg(parameter, next == QtCommonsConstants::VynYES ? QStringLiteral("on")
                                                                : QStringLiteral("off")));
    QPointer<VynUIButtonComponent> target = button;
    QTimer::singleShot(m_latency, this, [this, target, next, channel, parameter] {
        if (!target)
            return;
        target->setIsOn(next);
        target->setExpecting(false);
        note(QStringLiteral("\u2190 Ch%1/%2 = %3")
                 .arg(channel)
                 .arg(parameter, next == QtCommonsConstants::VynYES ? QStringLiteral("on")
                                                                    : QStringLiteral("off")));
    });
}

void VynSimulatedSwitchboard::choose(int channel, int index)
{
    if (index < 0 || index >= sourceNames().size())
        return;
    note(QStringLiteral("\u2192 Ch%1/InputSource = %2").arg(channel).arg(sourceNames().at(index)));
    QTimer::singleShot(m_latency, this, [this, channel, index] { receiveSource(channel, index); });
}

void VynSimulatedSwitchboard::chooseForAll(int index)
{
    for (int channel = 1; channel <= kChannelCount; ++channel)
        choose(channel, index);
}

void VynSimulatedSwitchboard::receiveSource(int channel, int source)
{
    Channel& c = m_channels[channel - 1];
    c.source = source;
    c.input->setSelectedValues({source});
    note(QStringLiteral("\u2190 Ch%1/InputSource = %2").arg(channel).arg(sourceNames().at(source)));
    refreshAllInputs();
}

void VynSimulatedSwitchboard::refreshAllInputs()
{
    QSet<VynRawValue> sources;
    for (const Channel& c : std::as_const(m_channels))
        sources.insert(c.source);
    m_allInputs->setSelectedValues(sources);
}

void VynSimulatedSwitchboard::refreshLed(int channel)
{
    const Channel& c = m_channels.at(channel - 1);
    // The configurations are kept in decreasing priority: the first active one decides.
    for (const VynLedParamConfig& config : c.led->getParamConfigs()) {
        if (status(channel, config.path.getLastNameText())) {
            c.led->setLedState(config.state, false);
            return;
        }
    }
    c.led->setLedState(c.led->noneState(), false);
}

void VynSimulatedSwitchboard::setStatus(int channel, const QString& parameter, bool active)
{
    if (channel < 1 || channel > kChannelCount)
        return;
    Channel& c = m_channels[channel - 1];
    bool* flag = parameter == QLatin1String("Clip")      ? &c.clip
                 : parameter == QLatin1String("Limit")   ? &c.limit
                 : parameter == QLatin1String("Protect") ? &c.protect
                                                         : nullptr;
    if (!flag || *flag == active)
        return;
    *flag = active;
    note(QStringLiteral("\u2190 Ch%1/%2 = %3")
             .arg(channel)
             .arg(parameter, active ? QStringLiteral("active") : QStringLiteral("clear")));
    refreshLed(channel);
}

bool VynSimulatedSwitchboard::status(int channel, const QString& parameter) const
{
    const Channel* c = channelAt(channel);
    if (!c)
        return false;
    if (parameter == QLatin1String("Clip"))
        return c->clip;
    if (parameter == QLatin1String("Limit"))
        return c->limit;
    if (parameter == QLatin1String("Protect"))
        return c->protect;
    return false;
}

void VynSimulatedSwitchboard::signalEvent()
{
    // Peaks come and go: each tick clears the previous ones and may start a new one.
    for (int channel = 1; channel <= kChannelCount; ++channel) {
        setStatus(channel, QStringLiteral("Clip"), false);
        setStatus(channel, QStringLiteral("Limit"), false);
    }
    const int channel = 1 + int(m_random.bounded(quint32(kChannelCount)));
    const quint32 roll = m_random.bounded(10u);
    if (roll < 3)
        setStatus(channel, QStringLiteral("Limit"), true);
    else if (roll < 5)
        setStatus(channel, QStringLiteral("Clip"), true);
}

void VynSimulatedSwitchboard::echo(const QJSValue& callback)
{
    if (!callback.isCallable())
        return;
    QTimer::singleShot(m_latency, this, [callback]() mutable { callback.call(); });
}

void VynSimulatedSwitchboard::attachToWindowOf(QObject* item)
{
    QQuickWindow* window = QCoreWindowController::windowForQmlObject(item);
    if (!window)
        return;
    QCoreWindowController* controller = QCoreWindowController::controllerForWindow(window);
    if (!controller) {
        controller = new QCoreWindowController(window, window);
        m_windowController = controller;
    }
    for (const Channel& c : std::as_const(m_channels)) {
        for (VynUIComponent* component : std::initializer_list<VynUIComponent*>{
                 c.mute, c.solo, c.standBy, c.muteSolo, c.standByHandy, c.led, c.input, c.cabinet})
            component->setWindowController(controller);
    }
    m_allInputs->setWindowController(controller);
    m_allCabinets->setWindowController(controller);
}

void VynSimulatedSwitchboard::note(const QString& line)
{
    m_traffic.prepend(line);
    while (m_traffic.size() > kTrafficLines)
        m_traffic.removeLast();
    emit trafficChanged();
}

const VynSimulatedSwitchboard::Channel* VynSimulatedSwitchboard::channelAt(int channel) const
{
    if (channel < 1 || channel > kChannelCount)
        return nullptr;
    return &m_channels.at(channel - 1);
}

VynUIHandyButtonComponent* VynSimulatedSwitchboard::muteSolo(int channel) const
{
    const Channel* c = channelAt(channel);
    return c ? c->muteSolo : nullptr;
}

VynUIHandyButtonComponent* VynSimulatedSwitchboard::standBy(int channel) const
{
    const Channel* c = channelAt(channel);
    return c ? c->standByHandy : nullptr;
}

VynUIButtonComponent* VynSimulatedSwitchboard::mute(int channel) const
{
    const Channel* c = channelAt(channel);
    return c ? c->mute : nullptr;
}

VynUILedComponent* VynSimulatedSwitchboard::statusLed(int channel) const
{
    const Channel* c = channelAt(channel);
    return c ? c->led : nullptr;
}

VynUIComboComponent* VynSimulatedSwitchboard::inputSource(int channel) const
{
    const Channel* c = channelAt(channel);
    return c ? c->input : nullptr;
}

VynUICabLabelComponent* VynSimulatedSwitchboard::cabinet(int channel) const
{
    const Channel* c = channelAt(channel);
    return c ? c->cabinet : nullptr;
}

void VynSimulatedSwitchboard::setLatency(int milliseconds)
{
    milliseconds = qBound(0, milliseconds, 5000);
    if (milliseconds == m_latency)
        return;
    m_latency = milliseconds;
    emit latencyChanged();
}

void VynSimulatedSwitchboard::setRunning(bool running)
{
    if (running == m_signalTimer.isActive())
        return;
    if (running)
        m_signalTimer.start();
    else
        m_signalTimer.stop();
    emit runningChanged();
}
