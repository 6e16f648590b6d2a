// The models of the discrete controls: buttons, handy buttons, LEDs, labels, cabinet labels
// and combos. What a host and the QML controls rely on: which signals a change emits and in
// which order, what each model reads after it, and what it refuses.

#include "vyncolorappearance.h"
#include "vynuibuttoncomponent.h"
#include "vynuicablabelcomponent.h"
#include "vynuicombocomponent.h"
#include "vynuihandybuttoncomponent.h"
#include "vynuilabelcomponent.h"
#include "vynuiledcomponent.h"
#include "vynuiqmlconstants.h"

#include <qloggermanager.h>
#include <vynmultipartname.h>

#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "../common/signalrecorder.h"

#include <functional>
#include <limits>
#include <memory>

using QtCommonsConstants::VynBOOL;
using ButtonType = VynUIHandyButtonComponent::ButtonType;

namespace {

VynProxyParamPath path(const QString& text)
{
    return VynProxyParamPath::fromString(text);
}

// Records, in order, the names of the argument-less signals of a component.
class Recorder : public SignalRecorder
{
public:
    explicit Recorder(VynUIComponent* c)
    {
        watch(c, &VynUIComponent::componentTypeChanged, "componentType");
        watch(c, &VynUIComponent::styleChanged, "style");
        watch(c, &VynUIComponent::securityTypeChanged, "securityType");
        watch(c, &VynUIComponent::tooltipTextChanged, "tooltipText");
        watch(c, &VynUIComponent::enabledChanged, "enabled");
        watch(c, &VynUIComponent::paramPathChanged, "paramPath");
        watch(c, &VynUIComponent::nameChanged, "name");
        if (auto* button = qobject_cast<VynUIButtonComponent*>(c)) {
            watch(button, &VynUIButtonComponent::textChanged, "text");
            watch(button, &VynUIButtonComponent::onChanged, "on");
            watch(button, &VynUIButtonComponent::animatingChanged, "animating");
            watch(button, &VynUIButtonComponent::rateChanged, "rate");
            watch(button, &VynUIButtonComponent::configChanged, "config");
            watch(button, &VynUIButtonComponent::toggleBitMaskChanged, "toggleBitMask");
            watch(button, &VynUIButtonComponent::titleDependsOnActionChanged,
                  "titleDependsOnAction");
        }
        if (auto* led = qobject_cast<VynUILedComponent*>(c)) {
            watch(led, &VynUILedComponent::letStateChanged, "ledState");
            watch(led, &VynUILedComponent::noneStateChanged, "noneState");
            watch(led, &VynUILedComponent::mixedChanged, "mixed");
            watch(led, &VynUILedComponent::allowsMixedChanged, "allowsMixed");
        }
        if (auto* handy = qobject_cast<VynUIHandyButtonComponent*>(c)) {
            watch(handy, &VynUIHandyButtonComponent::capabilitiesChanged, "capabilities");
            watch(handy, &VynUIHandyButtonComponent::visibleButtonTypeChanged, "visibleButtonType");
            keep(QObject::connect(handy, &VynUIHandyButtonComponent::insertedVisibleComponent,
                                  [this](ButtonType type, int index, VynUIComponent* inserted) {
                                      record(QStringLiteral("inserted %1 %2 %3")
                                                 .arg(int(type))
                                                 .arg(index)
                                                 .arg(inserted->objectName()));
                                  }));
            keep(QObject::connect(handy, &VynUIHandyButtonComponent::removedVisibleComponent,
                                  [this](VynUIComponent* removed) {
                                      record(
                                          QStringLiteral("removed %1").arg(removed->objectName()));
                                  }));
        }
        if (auto* label = qobject_cast<VynUILabelComponent*>(c)) {
            watch(label, &VynUILabelComponent::textChanged, "text");
            watch(label, &VynUILabelComponent::textColorChanged, "textColor");
            watch(label, &VynUILabelComponent::tooltipChanged, "tooltip");
        }
        if (auto* cab = qobject_cast<VynUICabLabelComponent*>(c)) {
            watch(cab, &VynUICabLabelComponent::showsBridgeChanged, "showsBridge");
            watch(cab, &VynUICabLabelComponent::shortStyleChanged, "shortStyle");
            watch(cab, &VynUICabLabelComponent::multiPartNameChanged, "multiPartName");
        }
        if (auto* combo = qobject_cast<VynUIComboComponent*>(c)) {
            watch(combo, &VynUIComboComponent::comboItemTextFormatChanged, "comboItemTextFormat");
            watch(combo, &VynUIComboComponent::itemTextsChanged, "itemTexts");
            watch(combo, &VynUIComboComponent::selectedIndexesChanged, "selectedIndexes");
            watch(combo, &VynUIComboComponent::textChanged, "text");
        }
    }
};

// Counts the lines the logger writes while it lives.
class LogCounter
{
public:
    LogCounter()
        : m_spy(QLogger::QLoggerManager::getInstance(), &QLogger::QLoggerManager::messageLogged)
    {}
    int count() const { return int(m_spy.size()); }

private:
    QSignalSpy m_spy;
};

VynUIButtonConfig config(int action, int step, const QVariant& value, const QVariant& alt, int mask)
{
    VynUIButtonConfig c;
    c.action = action;
    c.optionStep = step;
    c.optionValue = value;
    c.optionAltValue = alt;
    c.toggleBitMask = mask;
    return c;
}

// The letters of the paths of an LED's configurations, in list order: "BAC".
QString configOrder(const VynUILedComponent& led)
{
    QString order;
    for (const VynLedParamConfig& c : led.getParamConfigs())
        order += c.path.getLastNameText();
    return order;
}

VynLedParamConfig ledConfig(const QString& letter, int priority)
{
    VynLedParamConfig c = VynUIQmlConstants::createParamConfig(
        VynViewUtils::VynLedStateGreen, path(letter), VynProxyParamPath(), 0, 0, 0, false);
    c.priority = priority;
    return c;
}

VynMultiPartName cabinet(const QString& series, const QString& model, const QString& preset)
{
    VynMultiPartName name;
    name.series = series;
    name.model = model;
    name.preset = preset;
    return name;
}

using Maker = std::function<VynUIComponent*()>;

} // namespace

Q_DECLARE_METATYPE(Maker)

class tst_DiscreteComponents : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void freshModels_data();
    void freshModels();

    // Button
    void buttonOnStates_data();
    void buttonOnStates();
    void buttonSetters_data();
    void buttonSetters();
    void buttonConfigRecord_data();
    void buttonConfigRecord();
    void buttonConfigReadNamesItsButton();
    void buttonRateComparesExactly();
    void buttonTextAndTip();
    void buttonRestore();

    // LED
    void ledState_data();
    void ledState();
    void ledConfigOrder_data();
    void ledConfigOrder();
    void ledDefaultConfig();
    void ledRefusesOtherIntegers();
    void ledCreateParamConfig();

    // Handy button
    void handyInsertAt_data();
    void handyInsertAt();
    void handyListsPerType();
    void handyRefusesOtherValues_data();
    void handyRefusesOtherValues();
    void handyCompletionAfterChange();
    void handyStyleAndEnabled();
    void handyDestroyedComponentLeaves();

    // Label
    void labelColor_data();
    void labelColor();
    void labelSignals();

    // Cabinet label
    void multiPartNameTooltip_data();
    void multiPartNameTooltip();
    void cabLabelAlwaysSignalsName();
    void cabLabelRestore();

    // Combo
    void comboText_data();
    void comboText();
    void comboSignals();
    void comboSelectedValues_data();
    void comboSelectedValues();

private:
    QTemporaryDir m_logs;
};

void tst_DiscreteComponents::initTestCase()
{
    QVERIFY(m_logs.isValid());
    QLogger::QLoggerManager* logger = QLogger::QLoggerManager::getInstance();
    logger->setDefaultFolder(m_logs.path());
    logger->setConsoleLevel(QLogger::Fatal + 1);
}

void tst_DiscreteComponents::cleanupTestCase()
{
    QLogger::QLoggerManager::destroyInstance();
}

void tst_DiscreteComponents::freshModels_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<int>("componentType");
    QTest::addColumn<QString>("text");        // toStringValue() of the fresh model
    QTest::addColumn<QString>("destination"); // the logger destination its construction adds

    QTest::newRow("button") << Maker([] { return new VynUIButtonComponent; })
                            << int(VynViewUtils::VynUIComponentTypeButton) << QString()
                            << "VynUIButtonComponent";
    QTest::newRow("LED") << Maker([] { return new VynUILedComponent; })
                         << int(VynViewUtils::VynUIComponentTypeLed) << "Gray"
                         << "VynUILedComponent";
    QTest::newRow("handy button") << Maker([] { return new VynUIHandyButtonComponent; })
                                  << int(VynViewUtils::VynUIComponentTypeHandyButton) << "None"
                                  << "VynUIHandyButtonComponent";
    QTest::newRow("label") << Maker([] { return new VynUILabelComponent; }) << 8 << QString()
                           << "VynUILabelComponent";
    QTest::newRow("cabinet label") << Maker([] { return new VynUICabLabelComponent; }) << 2
                                   << QString() << "VynUICabLabelComponent";
    // The combo logs through the base, which is all that exists while the base is built.
    QTest::newRow("combo") << Maker([] { return new VynUIComboComponent; }) << 4 << "No Value"
                           << "VynUIComponent";
}

void tst_DiscreteComponents::freshModels()
{
    QFETCH(Maker, make);
    QFETCH(int, componentType);
    QFETCH(QString, text);
    QFETCH(QString, destination);

    QLogger::QLoggerManager::getInstance()->removeDestination(destination);
    std::unique_ptr<VynUIComponent> c(make());
    QCOMPARE(int(c->componentType()), componentType);
    QCOMPARE(c->toStringValue(), text);
    QCOMPARE(c->style(), VynColorUtils::VynStyleDark);
    QVERIFY(QLogger::QLoggerManager::getInstance()->hasDestination(destination));
}

// Button

void tst_DiscreteComponents::buttonOnStates_data()
{
    QTest::addColumn<int>("isOn");
    QTest::addColumn<bool>("activated");
    QTest::addColumn<bool>("multiple");
    QTest::addColumn<int>("next");
    QTest::addColumn<QString>("text"); // toStringValue() with text "Mute"
    QTest::addColumn<bool>("nullText");

    QTest::newRow("off") << 0 << false << false << 1 << QString() << true;
    QTest::newRow("on") << 1 << true << false << 0 << "Mute" << false;
    QTest::newRow("mixed turns off") << 2 << false << true << 0 << "Mult. Mute" << false;
}

void tst_DiscreteComponents::buttonOnStates()
{
    QFETCH(int, isOn);
    QFETCH(bool, activated);
    QFETCH(bool, multiple);
    QFETCH(int, next);
    QFETCH(QString, text);
    QFETCH(bool, nullText);

    VynUIButtonComponent button;
    button.setText("Mute");
    // From another state, through the property system as QML writes it.
    button.setIsOn(isOn == 1 ? QtCommonsConstants::VynNO : QtCommonsConstants::VynYES);
    Recorder recorder(&button);
    QVERIFY(button.setProperty("isOn", isOn));
    QCOMPARE(recorder.take(), QStringList({"on"}));
    QCOMPARE(button.property("activated").toBool(), activated);
    QCOMPARE(button.property("multiple").toBool(), multiple);
    QCOMPARE(int(VynUIButtonComponent::nextOnForOn(button.isOn())), next);
    QCOMPARE(button.toStringValue(), text);
    QCOMPARE(button.toStringValue().isNull(), nullText);

    // The same state again emits nothing.
    button.setIsOn(static_cast<VynBOOL>(isOn));
    QCOMPARE(recorder.take(), QStringList());
}

void tst_DiscreteComponents::buttonSetters_data()
{
    // Written through the property system; every write is from the fresh button's value.
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("emitted"); // empty: refused, the property keeps its value

    QTest::newRow("text") << QByteArray("text") << QVariant("Solo") << QStringList{"text"};
    QTest::newRow("animating") << QByteArray("animating") << QVariant(true)
                               << QStringList{"animating"};
    QTest::newRow("rate") << QByteArray("rate") << QVariant(0.5) << QStringList{"rate"};
    QTest::newRow("action") << QByteArray("action") << QVariant(7) << QStringList{"config"};
    QTest::newRow("option step") << QByteArray("optionStep") << QVariant(2)
                                 << QStringList{"config"};
    QTest::newRow("option value") << QByteArray("optionValue") << QVariant(3)
                                  << QStringList{"config"};
    QTest::newRow("option alt value")
        << QByteArray("optionAltValue") << QVariant("alt") << QStringList{"config"};
    QTest::newRow("toggle mask") << QByteArray("toggleBitMask") << QVariant(0x4)
                                 << QStringList{"toggleBitMask"};
    QTest::newRow("title depends on action") << QByteArray("titleDependsOnAction") << QVariant(true)
                                             << QStringList{"titleDependsOnAction"};
    QTest::newRow("isOn 3") << QByteArray("isOn") << QVariant(3) << QStringList();
    QTest::newRow("isOn -1") << QByteArray("isOn") << QVariant(-1) << QStringList();
}

void tst_DiscreteComponents::buttonSetters()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QFETCH(QStringList, emitted);

    VynUIButtonComponent button;
    const QVariant before = button.property(property.constData());
    Recorder recorder(&button);
    LogCounter logged;
    QVERIFY(button.setProperty(property.constData(), value));
    QCOMPARE(recorder.take(), emitted);
    if (emitted.isEmpty()) {
        QCOMPARE(button.property(property.constData()), before);
        QCOMPARE(logged.count(), 1);
        return;
    }
    QCOMPARE(button.property(property.constData()), value);
    QCOMPARE(logged.count(), 0);
    // The same value again: nothing.
    QVERIFY(button.setProperty(property.constData(), value));
    QCOMPARE(recorder.take(), QStringList());
}

void tst_DiscreteComponents::buttonConfigRecord_data()
{
    QTest::addColumn<VynUIButtonConfig>("record");
    QTest::addColumn<QStringList>("emitted");

    QTest::newRow("same record") << config(1, 2, 3, "x", 0x1) << QStringList();
    QTest::newRow("only the mask") << config(1, 2, 3, "x", 0x3) << QStringList{"toggleBitMask"};
    QTest::newRow("action") << config(9, 2, 3, "x", 0x1) << QStringList{"config"};
    QTest::newRow("option step") << config(1, 5, 3, "x", 0x1) << QStringList{"config"};
    QTest::newRow("option value") << config(1, 2, 4, "x", 0x1) << QStringList{"config"};
    QTest::newRow("option alt value") << config(1, 2, 3, "y", 0x1) << QStringList{"config"};
    QTest::newRow("option value emptied")
        << config(1, 2, QVariant(), "x", 0x1) << QStringList{"config"};
    QTest::newRow("everything, config first")
        << config(0, 0, QVariant(), QVariant(), 0) << QStringList{"config", "toggleBitMask"};
    VynUIButtonConfig elsewhere = config(1, 2, 3, "x", 0x1);
    elsewhere.source = 42;
    QTest::newRow("read from another button") << elsewhere << QStringList();
}

void tst_DiscreteComponents::buttonConfigRecord()
{
    QFETCH(VynUIButtonConfig, record);
    QFETCH(QStringList, emitted);

    VynUIButtonComponent button;
    button.setButtonConfig(config(1, 2, 3, "x", 0x1));
    Recorder recorder(&button);
    // As QML writes it.
    QVERIFY(button.setProperty("buttonConfig", QVariant::fromValue(record)));
    QCOMPARE(recorder.take(), emitted);
    QCOMPARE(button.action(), record.action);
    QCOMPARE(button.optionStep(), record.optionStep);
    QCOMPARE(button.optionValue(), record.optionValue);
    QCOMPARE(button.optionAltValue(), record.optionAltValue);
    QCOMPARE(button.toggleBitMask(), record.toggleBitMask);
    QVERIFY(button.buttonConfig().sameAction(record));
}

void tst_DiscreteComponents::buttonConfigReadNamesItsButton()
{
    VynUIButtonComponent first, second;
    const VynUIButtonConfig read = first.buttonConfig();
    QVERIFY(read.source != 0);
    QCOMPARE(first.property("buttonConfig").value<VynUIButtonConfig>().source, read.source);
    QVERIFY(second.buttonConfig().source != read.source);
    // Configuring a button from another's record is no change of its action.
    Recorder recorder(&second);
    second.setButtonConfig(read);
    QCOMPARE(recorder.take(), QStringList());
    QVERIFY(second.buttonConfig().source != read.source);
}

void tst_DiscreteComponents::buttonRateComparesExactly()
{
    // Unlike a slider's value, a rate one part in 10^15 away is a new rate.
    VynUIButtonComponent button;
    button.setRate(1.0);
    Recorder recorder(&button);
    button.setRate(1.0 + 1e-15);
    button.setRate(1.0 + 1e-15);
    QCOMPARE(recorder.take(), QStringList({"rate"}));
    QCOMPARE(button.rate(), 1.0 + 1e-15);
}

void tst_DiscreteComponents::buttonTextAndTip()
{
    VynUIButtonComponent button;
    Recorder recorder(&button);
    QVERIFY(QMetaObject::invokeMethod(&button, "setTextAndTip", Q_ARG(QString, "Locate")));
    QCOMPARE(recorder.take(), QStringList({"text", "tooltipText"}));
    QCOMPARE(button.text(), QString("Locate"));
    QCOMPARE(button.tooltipText(), QString("Locate"));
}

void tst_DiscreteComponents::buttonRestore()
{
    VynUIButtonComponent source;
    source.setParamPath(path("Amp[1]/Mute"));
    source.setText("Mute");
    source.setTitleDependsOnAction(true);
    source.setButtonConfig(config(4, 1, 2, 3, 0x8));
    source.setIsOn(QtCommonsConstants::VynYES);
    source.setRate(2.0);

    VynUIButtonComponent target;
    Recorder recorder(&target);
    target.restoreFromUIComponent(&source);
    QCOMPARE(recorder.take(),
             QStringList({"paramPath", "text", "titleDependsOnAction", "config", "toggleBitMask"}));
    QCOMPARE(target.paramPath(), source.paramPath());
    QVERIFY(target.buttonConfig().sameAction(source.buttonConfig()));
    QCOMPARE(target.toggleBitMask(), 0x8);
    // The state and the animation are the device's, not copied.
    QCOMPARE(target.isOn(), QtCommonsConstants::VynNO);
    QCOMPARE(target.rate(), 0.0);

    // From a component that is not a button, only the base's state.
    VynUILabelComponent label;
    label.setParamPath(path("Amp[2]/Mute"));
    target.restoreFromUIComponent(&label);
    QCOMPARE(recorder.take(), QStringList({"componentType", "paramPath"}));
    QCOMPARE(target.text(), QString("Mute"));

    // A slot on the first button signal deletes the target: the copy stops there.
    auto* doomed = new VynUIButtonComponent;
    QPointer<VynUIButtonComponent> watched(doomed);
    QObject::connect(doomed, &VynUIButtonComponent::textChanged, [doomed] { delete doomed; });
    doomed->restoreFromUIComponent(&source);
    QVERIFY(!watched);
}

// LED

void tst_DiscreteComponents::ledState_data()
{
    QTest::addColumn<bool>("allowsMixed");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("mixed");
    QTest::addColumn<QStringList>("emitted");
    QTest::addColumn<bool>("mixedAfter");

    // From state Green, not mixed.
    const int green = VynViewUtils::VynLedStateGreen;
    const int red = VynViewUtils::VynLedStateRed;
    QTest::newRow("new state") << false << red << false << QStringList{"ledState", "mixed"}
                               << false;
    QTest::newRow("new state, mixed, not allowed")
        << false << red << true << QStringList{"ledState", "mixed"} << true;
    QTest::newRow("same state, mixed, not allowed")
        << false << green << true << QStringList() << false;
    QTest::newRow("same state, mixed, allowed")
        << true << green << true << QStringList{"ledState", "mixed"} << true;
    QTest::newRow("same state, same flag") << true << green << false << QStringList() << false;
}

void tst_DiscreteComponents::ledState()
{
    QFETCH(bool, allowsMixed);
    QFETCH(int, state);
    QFETCH(bool, mixed);
    QFETCH(QStringList, emitted);
    QFETCH(bool, mixedAfter);

    VynUILedComponent led;
    led.setLedState(VynViewUtils::VynLedStateGreen, false);
    led.setAllowsMixed(allowsMixed);
    Recorder recorder(&led);
    led.setLedState(static_cast<VynViewUtils::VynLedState>(state), mixed);
    QCOMPARE(recorder.take(), emitted);
    QCOMPARE(int(led.ledState()), state);
    QCOMPARE(led.property("mixed").toBool(), mixedAfter);
    QCOMPARE(led.toStringValue(),
             mixedAfter ? QString("Multiple")
                        : (state == VynViewUtils::VynLedStateGreen ? QString("Green") : "Red"));
}

void tst_DiscreteComponents::ledConfigOrder_data()
{
    // Steps: "+A2" adds configuration A with priority 2, "=A0" gives the configuration A
    // priority 0, "-" clears the list.
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("order");

    QTest::newRow("priority 0 keeps insertion order") << QStringList{"+C0", "+A0", "+B0"} << "CAB";
    QTest::newRow("a priority sorts, highest first") << QStringList{"+A0", "+B0", "+C2"} << "CAB";
    QTest::newRow("equal priorities keep their order") << QStringList{"+A1", "+B0", "+C1"} << "ACB";
    QTest::newRow("higher priority goes first") << QStringList{"+A1", "+B3", "+C2"} << "BCA";
    QTest::newRow("priority 0 added after a sort goes last")
        << QStringList{"+A0", "+B3", "+C0"} << "BAC";
    QTest::newRow("raising a priority sorts") << QStringList{"+A0", "+B0", "+C0", "=C1"} << "CAB";
    QTest::newRow("lowering to 0 while another has one sorts")
        << QStringList{"+A2", "+B3", "=B0"} << "AB";
    QTest::newRow("no priority left: no sort")
        << QStringList{"+A0", "+B0", "+C0", "=C1", "=C0", "+D0"} << "CABD";
    QTest::newRow("unknown configuration changes nothing")
        << QStringList{"+A0", "+B0", "=Z5"} << "AB";
    QTest::newRow("cleared") << QStringList{"+A1", "+B2", "-", "+C0", "+D0"} << "CD";
}

void tst_DiscreteComponents::ledConfigOrder()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, order);

    VynUILedComponent led;
    Recorder recorder(&led);
    for (const QString& step : steps) {
        if (step == "-") {
            QVERIFY(QMetaObject::invokeMethod(&led, "clearParamConfigs"));
            continue;
        }
        const int priority = step.mid(2).toInt();
        if (step.startsWith('+'))
            led.addParamConfig(ledConfig(step.mid(1, 1), priority));
        else
            led.setPriorityToParamConfig(priority, ledConfig(step.mid(1, 1), 99));
    }
    QCOMPARE(configOrder(led), order);
    // The list is the host's business: no property of the LED changed.
    QCOMPARE(recorder.take(), QStringList());
}

void tst_DiscreteComponents::ledDefaultConfig()
{
    VynUILedComponent led;
    QVERIFY(led.getDefaultParamConfig().path.isEmpty());
    QVERIFY(!led.getDefaultParamConfig().isDefault());

    led.addParamConfig(path("A"), VynViewUtils::VynLedStateRed);
    VynLedParamConfig b = ledConfig("B", 0);
    b.setDefault(true);
    led.addParamConfig(b);
    VynLedParamConfig c = ledConfig("C", 0);
    c.flags = 0x6; // other bits only
    led.addParamConfig(c);
    QCOMPARE(led.getDefaultParamConfig().path, path("B"));

    // The first default in list order, after a sort too.
    VynLedParamConfig d = ledConfig("D", 4);
    d.setDefault(true);
    led.addParamConfig(d);
    QCOMPARE(configOrder(led), QString("DABC"));
    QCOMPARE(led.getDefaultParamConfig().path, path("D"));
    QCOMPARE(led.getParamConfigs().at(1).state, VynViewUtils::VynLedStateRed);

    led.clearParamConfigs();
    QVERIFY(led.getDefaultParamConfig().path.isEmpty());
}

void tst_DiscreteComponents::ledRefusesOtherIntegers()
{
    VynUILedComponent led;
    led.setNoneState(VynViewUtils::VynLedStateNone);
    Recorder recorder(&led);
    LogCounter logged;
    QVERIFY(led.setProperty("noneState", 5));
    led.setLedState(static_cast<VynViewUtils::VynLedState>(1000), true);
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(logged.count(), 2);
    QCOMPARE(led.noneState(), VynViewUtils::VynLedStateNone);
    QCOMPARE(led.ledState(), VynViewUtils::VynLedStateGray);

    QVERIFY(led.setProperty("noneState", int(VynViewUtils::VynLedStateOrange)));
    QCOMPARE(recorder.take(), QStringList({"noneState"}));
}

void tst_DiscreteComponents::ledCreateParamConfig()
{
    const VynLedParamConfig c = VynUIQmlConstants::createParamConfig(
        VynViewUtils::VynLedStateProtect, path("Amp[1]/Protect"), path("Amp[1]/Channel[2]"), 3, -5,
        10, true);
    QCOMPARE(c.state, VynViewUtils::VynLedStateProtect);
    QCOMPARE(c.path, path("Amp[1]/Protect"));
    QCOMPARE(c.addPath, path("Amp[1]/Channel[2]"));
    QCOMPARE(c.priority, 3);
    QCOMPARE(c.lowerThs, -5);
    QCOMPARE(c.upperThs, 10);
    QVERIFY(c.skipMultiple);
    QCOMPARE(c.flags, 0);
    QVERIFY(!c.isDefault());
    // A state QML made up from an integer the enumeration does not name.
    for (int unnamed : {-1, 5, 261, 1000}) {
        QCOMPARE(
            VynUIQmlConstants::createParamConfig(static_cast<VynViewUtils::VynLedState>(unnamed),
                                                 path("A"), VynProxyParamPath(), 0, 0, 0, false)
                .state,
            VynViewUtils::VynLedStateNone);
    }

    // The singleton answers QML with the record; QML reads and writes its fields by name.
    VynLedParamConfig answered;
    QVERIFY(QMetaObject::invokeMethod(
        VynUIQmlConstants::instance(), "createParamConfig",
        Q_RETURN_ARG(VynLedParamConfig, answered),
        Q_ARG(VynViewUtils::VynLedState, VynViewUtils::VynLedStateMute),
        Q_ARG(VynProxyParamPath, path("Mute")), Q_ARG(VynProxyParamPath, VynProxyParamPath()),
        Q_ARG(int, 0), Q_ARG(int, 1), Q_ARG(int, 2), Q_ARG(bool, false)));
    const QMetaObject& meta = VynLedParamConfig::staticMetaObject;
    const auto field = [&meta](const char* name) {
        return meta.property(meta.indexOfProperty(name));
    };
    QCOMPARE(field("state").readOnGadget(&answered).toInt(), int(VynViewUtils::VynLedStateMute));
    QCOMPARE(field("upperThs").readOnGadget(&answered).toInt(), 2);
    QVERIFY(field("isDefault").writeOnGadget(&answered, true));
    QCOMPARE(answered.flags, VynLedParamConfig::kDefaultFlag);
    QVERIFY(field("isDefault").writeOnGadget(&answered, false));
    QCOMPARE(answered.flags, 0);
}

// Handy button

void tst_DiscreteComponents::handyInsertAt_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("used");      // the index announced
    QTest::addColumn<QString>("order"); // of the visible type, a and b held before

    QTest::newRow("front") << 0 << 0 << "nab";
    QTest::newRow("middle") << 1 << 1 << "anb";
    QTest::newRow("end") << 2 << 2 << "abn";
    QTest::newRow("past the end appends") << 3 << 2 << "abn";
    QTest::newRow("negative appends") << -1 << 2 << "abn";
    QTest::newRow("INT_MIN appends") << std::numeric_limits<int>::min() << 2 << "abn";
}

void tst_DiscreteComponents::handyInsertAt()
{
    QFETCH(int, index);
    QFETCH(int, used);
    QFETCH(QString, order);

    VynUIHandyButtonComponent handy;
    handy.setVisibleButtonType(VynUIHandyButtonComponent::Mute);
    VynUIButtonComponent a, b, n;
    a.setObjectName("a");
    b.setObjectName("b");
    n.setObjectName("n");
    handy.insertVisibleComponent(&a);
    handy.insertVisibleComponent(&b);
    Recorder recorder(&handy);
    QVERIFY(QMetaObject::invokeMethod(&handy, "insertVisibleComponent", Q_ARG(VynUIComponent*, &n),
                                      Q_ARG(int, index)));
    QCOMPARE(recorder.take(), QStringList({QStringLiteral("inserted 2 %1 n").arg(used)}));
    QString held;
    for (int i = 0; i < handy.numberOfComponentsForButtonType(VynUIHandyButtonComponent::Mute); ++i)
        held += handy.getVisibleButtonComponent(i)->objectName();
    QCOMPARE(held, order);

    // Null and a component already held change nothing.
    handy.insertVisibleComponent(nullptr, 0);
    handy.insertVisibleComponent(&a, 0);
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(handy.numberOfComponentsForButtonType(VynUIHandyButtonComponent::Mute), 3);
}

void tst_DiscreteComponents::handyListsPerType()
{
    VynUIHandyButtonComponent handy;
    VynUIButtonComponent mute, solo, locate;
    mute.setObjectName("mute");
    solo.setObjectName("solo");
    locate.setObjectName("locate");
    Recorder recorder(&handy);

    // Nothing is visible yet: nowhere to insert.
    handy.insertVisibleComponent(&mute);
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(handy.numberOfComponentsForButtonType(VynUIHandyButtonComponent::None), 0);

    handy.setVisibleButtonType(VynUIHandyButtonComponent::MuteSolo);
    handy.insertVisibleComponent(&mute);
    handy.insertVisibleComponent(&solo);
    handy.setVisibleButtonType(VynUIHandyButtonComponent::Locate);
    handy.insertVisibleComponent(&locate);
    // The same component may serve another type.
    handy.insertVisibleComponent(&mute, 0);
    QCOMPARE(recorder.take(),
             QStringList({"visibleButtonType", "inserted 1 0 mute", "inserted 1 1 solo",
                          "visibleButtonType", "inserted 8 0 locate", "inserted 8 0 mute"}));
    QCOMPARE(handy.getVisibleButtonComponent(0), &mute);
    QCOMPARE(handy.getVisibleButtonComponent(1), &locate);
    QCOMPARE(handy.getVisibleButtonComponent(2), nullptr);
    QCOMPARE(handy.getButtonComponent(VynUIHandyButtonComponent::MuteSolo, 1), &solo);
    QCOMPARE(handy.getButtonComponent(VynUIHandyButtonComponent::MuteSolo, -1), nullptr);
    QCOMPARE(handy.getButtonComponent(VynUIHandyButtonComponent::Update, 0), nullptr);

    // Removal works on the visible type only.
    handy.removeVisibleComponent(&solo);
    handy.removeVisibleComponent(nullptr);
    QCOMPARE(recorder.take(), QStringList());
    handy.removeVisibleComponent(&mute);
    QCOMPARE(recorder.take(), QStringList({"removed mute"}));
    QCOMPARE(handy.numberOfComponentsForButtonType(VynUIHandyButtonComponent::Locate), 1);
    QCOMPARE(handy.numberOfComponentsForButtonType(VynUIHandyButtonComponent::MuteSolo), 2);
    handy.removeVisibleComponent(&mute);
    QCOMPARE(recorder.take(), QStringList());

    handy.setVisibleButtonType(VynUIHandyButtonComponent::MuteSolo);
    QVERIFY(
        QMetaObject::invokeMethod(&handy, "removeVisibleComponent", Q_ARG(VynUIComponent*, &mute)));
    QCOMPARE(recorder.take(), QStringList({"visibleButtonType", "removed mute"}));
    QCOMPARE(handy.getVisibleButtonComponent(0), &solo);
    QCOMPARE(handy.toStringValue(), QString("MuteSolo"));
}

void tst_DiscreteComponents::handyRefusesOtherValues_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("capabilities, all six") << QByteArray("capabilities") << 63 << true;
    QTest::newRow("capabilities, mute and locate") << QByteArray("capabilities") << 10 << true;
    QTest::newRow("capabilities, unknown bit") << QByteArray("capabilities") << 64 << false;
    QTest::newRow("capabilities, -1") << QByteArray("capabilities") << -1 << false;
    QTest::newRow("visible type, update") << QByteArray("visibleButtonType") << 32 << true;
    QTest::newRow("visible type, two types") << QByteArray("visibleButtonType") << 3 << false;
    QTest::newRow("visible type, 64") << QByteArray("visibleButtonType") << 64 << false;
    QTest::newRow("visible type, -1") << QByteArray("visibleButtonType") << -1 << false;
}

void tst_DiscreteComponents::handyRefusesOtherValues()
{
    QFETCH(QByteArray, property);
    QFETCH(int, value);
    QFETCH(bool, accepted);

    VynUIHandyButtonComponent handy;
    Recorder recorder(&handy);
    LogCounter logged;
    QVERIFY(handy.setProperty(property.constData(), value));
    QCOMPARE(handy.property(property.constData()).toInt(), accepted ? value : 0);
    QCOMPARE(recorder.take().size(), accepted ? 1 : 0);
    QCOMPARE(logged.count(), accepted ? 0 : 1);
}

void tst_DiscreteComponents::handyCompletionAfterChange()
{
    VynUIHandyButtonComponent handy;
    Recorder recorder(&handy);
    QStringList seen;
    const auto completion = [&] {
        seen = recorder.take();
        seen << QStringLiteral("completion %1").arg(int(handy.visibleButtonType()));
    };
    handy.setVisibleButtonType(VynUIHandyButtonComponent::StandBy, completion);
    QCOMPARE(seen, QStringList({"visibleButtonType", "completion 4"}));

    // No change, no completion; a null completion is tolerated.
    seen.clear();
    handy.setVisibleButtonType(VynUIHandyButtonComponent::StandBy, completion);
    handy.setVisibleButtonType(VynUIHandyButtonComponent::Refresh, nullptr);
    QCOMPARE(seen, QStringList());
    QCOMPARE(recorder.take(), QStringList({"visibleButtonType"}));
    QCOMPARE(handy.visibleButtonType(), VynUIHandyButtonComponent::Refresh);
}

void tst_DiscreteComponents::handyStyleAndEnabled()
{
    VynUIHandyButtonComponent handy;
    VynUIButtonComponent mute, solo, update;
    handy.setStyle(VynColorUtils::VynStyleLight);
    handy.setVisibleButtonType(VynUIHandyButtonComponent::MuteSolo);
    handy.insertVisibleComponent(&mute);
    handy.insertVisibleComponent(&solo);
    handy.setVisibleButtonType(VynUIHandyButtonComponent::Update);
    handy.insertVisibleComponent(&update);
    // Inserted components take the compound button's style...
    for (VynUIComponent* c : {&mute, &solo, &update})
        QCOMPARE(c->style(), VynColorUtils::VynStyleLight);
    // ...and follow it, whichever type is visible.
    handy.setStyle(VynColorUtils::VynStyleDark);
    for (VynUIComponent* c : {&mute, &solo, &update})
        QCOMPARE(c->style(), VynColorUtils::VynStyleDark);

    // Only the visible type's components are enabled or disabled.
    handy.setVisibleComponentsEnabled(false);
    QVERIFY(!update.enabled());
    QVERIFY(mute.enabled() && solo.enabled());
    handy.setVisibleButtonType(VynUIHandyButtonComponent::MuteSolo);
    handy.setVisibleComponentsEnabled(false);
    QVERIFY(!mute.enabled() && !solo.enabled());
    handy.setVisibleComponentsEnabled(true);
    QVERIFY(mute.enabled() && solo.enabled() && !update.enabled());
}

void tst_DiscreteComponents::handyDestroyedComponentLeaves()
{
    VynUIHandyButtonComponent handy;
    handy.setVisibleButtonType(VynUIHandyButtonComponent::Mute);
    auto* first = new VynUIButtonComponent;
    VynUIButtonComponent second;
    handy.insertVisibleComponent(first);
    handy.insertVisibleComponent(&second);
    handy.setVisibleButtonType(VynUIHandyButtonComponent::Locate);
    handy.insertVisibleComponent(first);
    Recorder recorder(&handy);
    delete first;
    // Silently, from every list.
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(handy.numberOfComponentsForButtonType(VynUIHandyButtonComponent::Mute), 1);
    QCOMPARE(handy.numberOfComponentsForButtonType(VynUIHandyButtonComponent::Locate), 0);
    QCOMPARE(handy.getButtonComponent(VynUIHandyButtonComponent::Mute, 0), &second);
    handy.setStyle(VynColorUtils::VynStyleLight);
    handy.setVisibleComponentsEnabled(false);
    QCOMPARE(second.style(), VynColorUtils::VynStyleLight);

    // A slot that deletes a held component while the style spreads.
    handy.setVisibleButtonType(VynUIHandyButtonComponent::Mute);
    auto* doomed = new VynUIButtonComponent;
    handy.insertVisibleComponent(doomed);
    QCOMPARE(handy.getVisibleButtonComponent(1), doomed);
    QObject::connect(&second, &VynUIComponent::styleChanged, [doomed] { delete doomed; });
    handy.setStyle(VynColorUtils::VynStyleDark);
    QCOMPARE(handy.numberOfComponentsForButtonType(VynUIHandyButtonComponent::Mute), 1);
}

// Label

void tst_DiscreteComponents::labelColor_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QColor>("explicitColor");
    QTest::addColumn<int>("statusLevel");
    QTest::addColumn<int>("labelLevel");
    QTest::addColumn<QColor>("expected");

    const QColor orange(255, 128, 0);
    for (int style : {0, 1}) {
        const char* name = style ? "dark" : "light";
        QTest::addRow("%s: explicit colour wins", name) << style << orange << 2 << 1 << orange;
        QTest::addRow("%s: status level 0", name)
            << style << QColor() << 0 << 1
            << VynColorAppearance::coloredLabelColorForStyle(style, 0);
        QTest::addRow("%s: status level 3", name)
            << style << QColor() << 3 << 0
            << VynColorAppearance::coloredLabelColorForStyle(style, 3);
        QTest::addRow("%s: no status, label level 1", name)
            << style << QColor() << -1 << 1 << VynColorAppearance::labelColorForStyle(style, 1);
        QTest::addRow("%s: no status, label level 2", name)
            << style << QColor() << -2 << 2 << VynColorAppearance::labelColorForStyle(style, 2);
        QTest::addRow("%s: negative label level reads level 0", name)
            << style << QColor() << -1 << -3 << VynColorAppearance::labelColorForStyle(style, 0);
    }
}

void tst_DiscreteComponents::labelColor()
{
    QFETCH(int, style);
    QFETCH(QColor, explicitColor);
    QFETCH(int, statusLevel);
    QFETCH(int, labelLevel);
    QFETCH(QColor, expected);

    VynUILabelComponent label;
    label.setStyle(static_cast<VynColorUtils::VynStyle>(style));
    label.setTextColor(explicitColor);
    label.setStatusLevel(statusLevel);
    label.setLabelLevel(labelLevel);
    QCOMPARE(label.property("textColor").value<QColor>(), expected);
    // The other style reads another colour: the rule does follow the style.
    if (!explicitColor.isValid()) {
        label.setStyle(static_cast<VynColorUtils::VynStyle>(1 - style));
        QVERIFY(label.textColor() != expected);
    }
}

void tst_DiscreteComponents::labelSignals()
{
    VynUILabelComponent label;
    Recorder recorder(&label);

    // The label's own connection to styleChanged() was made first, so it reports first.
    label.setStyle(VynColorUtils::VynStyleLight);
    QCOMPARE(recorder.take(), QStringList({"textColor", "style"}));
    label.setStatusLevel(2);
    label.setStatusLevel(2);
    label.setLabelLevel(1);
    label.setLabelLevel(1);
    QCOMPARE(recorder.take(), QStringList({"textColor", "textColor"}));

    QVERIFY(label.setProperty("textColor", QColor(Qt::red)));
    label.setTextColor(QColor(Qt::red));
    QCOMPARE(recorder.take(), QStringList({"textColor"}));
    QCOMPARE(label.textColor(), QColor(Qt::red));
    // An invalid colour returns to the status colour, once.
    label.setTextColor(QColor());
    label.setTextColor(QColor());
    QCOMPARE(recorder.take(), QStringList({"textColor"}));
    QCOMPARE(label.textColor(),
             VynColorAppearance::coloredLabelColorForStyle(VynColorUtils::VynStyleLight, 2));

    QVERIFY(QMetaObject::invokeMethod(&label, "setTextAndTip", Q_ARG(QString, "Ch. 1")));
    QCOMPARE(recorder.take(), QStringList({"text", "tooltipText"}));
    QCOMPARE(label.toStringValue(), QString("Ch. 1"));
    QCOMPARE(label.tooltipText(), QString("Ch. 1"));
    QVERIFY(label.setProperty("text", "Ch. 2"));
    QCOMPARE(recorder.take(), QStringList({"text"}));
    QCOMPARE(label.tooltipText(), QString("Ch. 1"));
}

// Cabinet label

void tst_DiscreteComponents::multiPartNameTooltip_data()
{
    QTest::addColumn<VynMultiPartName>("name");
    QTest::addColumn<QString>("separator");
    QTest::addColumn<QString>("tooltip");

    QTest::newRow("three parts") << cabinet("K", "K2", "110") << " "
                                 << "K K2 110";
    QTest::newRow("other separator") << cabinet("K", "K2", "110") << " / "
                                     << "K / K2 / 110";
    QTest::newRow("missing part skipped") << cabinet("A", "", "Flat") << " "
                                          << "A Flat";
    VynMultiPartName several = cabinet("K", "Kara II", "");
    several.count = 3;
    QTest::newRow("count") << several << " " << QString("3%1 K Kara II").arg(QChar(0x00D7));
    several.count = 1;
    QTest::newRow("count 1 not shown") << several << " "
                                       << "K Kara II";
    VynMultiPartName mixed = cabinet("K", "K2", "110");
    mixed.mixed = true;
    QTest::newRow("mixed") << mixed << " "
                           << "Multiple";
    QTest::newRow("empty") << VynMultiPartName() << " " << QString();
}

void tst_DiscreteComponents::multiPartNameTooltip()
{
    QFETCH(VynMultiPartName, name);
    QFETCH(QString, separator);
    QFETCH(QString, tooltip);

    QCOMPARE(name.getTooltipText(separator), tooltip);
    if (separator == " ") {
        VynUICabLabelComponent label;
        label.setMultiPartName(name);
        QCOMPARE(label.toStringValue(), tooltip);
        QCOMPARE(label.property("multiPartName").value<VynMultiPartName>(), name);
    }
}

void tst_DiscreteComponents::cabLabelAlwaysSignalsName()
{
    VynUICabLabelComponent label;
    Recorder recorder(&label);
    VynMultiPartName name = cabinet("K", "K2", "110");
    name.bridged = true;
    name.firstChannel = 2;
    name.channelCount = 2;
    name.cabinetId = 77;
    label.setMultiPartName(name);
    label.setMultiPartName(name);
    QCOMPARE(recorder.take(), QStringList({"multiPartName", "multiPartName"}));
    // Copied field by field.
    QCOMPARE(label.multiPartName(), name);
    QCOMPARE(label.multiPartName().cabinetId, 77);

    QVERIFY(label.showsBridge());
    label.setShowsBridge(true);
    label.setUsesShortStyle(false);
    QCOMPARE(recorder.take(), QStringList());
    label.setShowsBridge(false);
    label.setUsesShortStyle(true);
    QCOMPARE(recorder.take(), QStringList({"showsBridge", "shortStyle"}));
}

void tst_DiscreteComponents::cabLabelRestore()
{
    VynUICabLabelComponent source;
    source.setParamPath(path("Amp[1]/Channel[1]/Cabinet"));
    source.setMultiPartName(cabinet("K", "K2", "110"));

    // showsBridge signals only on a change; the short style always.
    VynUICabLabelComponent target;
    Recorder recorder(&target);
    target.restoreFromUIComponent(&source);
    QCOMPARE(recorder.take(), QStringList({"paramPath", "shortStyle"}));
    source.setShowsBridge(false);
    source.setUsesShortStyle(true);
    target.restoreFromUIComponent(&source);
    QCOMPARE(recorder.take(), QStringList({"showsBridge", "shortStyle"}));
    QVERIFY(!target.showsBridge());
    QVERIFY(target.usesShortStyle());
    // The name is the host's to push.
    QCOMPARE(target.multiPartName(), VynMultiPartName());
}

// Combo

void tst_DiscreteComponents::comboText_data()
{
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<QString>("explicitText");
    QTest::addColumn<QString>("text");

    // Items "Off", "Low", "High".
    QTest::newRow("one item") << QList<int>{1} << QString() << "Low";
    QTest::newRow("two items") << QList<int>{0, 2} << QString() << "Multiple";
    QTest::newRow("the same item twice") << QList<int>{1, 1} << QString() << "Multiple";
    QTest::newRow("past the items") << QList<int>{5} << QString() << "No Value";
    QTest::newRow("at the item count") << QList<int>{3} << QString() << "No Value";
    QTest::newRow("negative") << QList<int>{-1} << QString() << "No Value";
    QTest::newRow("nothing selected") << QList<int>{} << QString() << "No Value";
    QTest::newRow("explicit text over several") << QList<int>{0, 2} << "Custom"
                                                << "Custom";
    QTest::newRow("explicit text over none") << QList<int>{} << "Custom"
                                             << "Custom";
}

void tst_DiscreteComponents::comboText()
{
    QFETCH(QList<int>, selected);
    QFETCH(QString, explicitText);
    QFETCH(QString, text);

    VynUIComboComponent combo;
    combo.setItemTexts({"Off", "Low", "High"});
    combo.setSelectedIndexes(selected);
    if (!explicitText.isNull())
        QVERIFY(combo.setProperty("text", explicitText));
    QCOMPARE(combo.property("text").toString(), text);
    QCOMPARE(combo.toStringValue(), text);
    QCOMPARE(combo.property("isMultiple").toBool(), selected.size() > 1);
}

void tst_DiscreteComponents::comboSignals()
{
    VynUIComboComponent combo;
    QVERIFY(combo.explicitText().isNull());
    Recorder recorder(&combo);

    combo.setItemTexts({"A", "B"});
    combo.setItemTexts({"A", "B"});
    QCOMPARE(recorder.take(), QStringList({"itemTexts", "text"}));
    QVERIFY(combo.setProperty("selectedIndexes", QVariant::fromValue(QList<int>{1})));
    combo.setSelectedIndexes({1});
    QCOMPARE(recorder.take(), QStringList({"selectedIndexes", "text"}));
    QCOMPARE(combo.getText(), QString("B"));
    // The order of the indexes counts.
    combo.setSelectedIndexes({0, 1});
    combo.setSelectedIndexes({1, 0});
    QCOMPARE(recorder.take(), QStringList({"selectedIndexes", "text", "selectedIndexes", "text"}));

    combo.setItemValues({10, 20});
    combo.setItemValues({10, 20, 30});
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(combo.itemValues(), QList<int>({10, 20, 30}));

    combo.setComboItemTextFormat("%1 dB");
    combo.setComboItemTextFormat("%1 dB");
    QCOMPARE(recorder.take(), QStringList({"comboItemTextFormat"}));
    QCOMPARE(combo.getText(), QString("Multiple"));

    // A changed item text is announced as a text change too.
    combo.setSelectedIndexes({1});
    recorder.take();
    combo.setItemTexts({"A", "Bee"});
    QCOMPARE(recorder.take(), QStringList({"itemTexts", "text"}));
    QCOMPARE(combo.getText(), QString("Bee"));
}

void tst_DiscreteComponents::comboSelectedValues_data()
{
    QTest::addColumn<QList<int>>("values"); // made into the set handed in
    QTest::addColumn<QList<int>>("indexes");

    // Item values 30, 10, 20, 10.
    QTest::newRow("one value") << QList<int>{20} << QList<int>{2};
    QTest::newRow("ascending item order") << QList<int>{20, 30} << QList<int>{0, 2};
    QTest::newRow("a value held by two items") << QList<int>{10} << QList<int>{1, 3};
    QTest::newRow("all") << QList<int>{10, 20, 30} << QList<int>{0, 1, 2, 3};
    QTest::newRow("unknown value") << QList<int>{99} << QList<int>{};
    QTest::newRow("empty set") << QList<int>{} << QList<int>{};
}

void tst_DiscreteComponents::comboSelectedValues()
{
    QFETCH(QList<int>, values);
    QFETCH(QList<int>, indexes);

    VynUIComboComponent combo;
    combo.setItemTexts({"High", "Low", "Mid", "Low again"});
    combo.setItemValues({30, 10, 20, 10});
    combo.setSelectedIndexes({0});
    Recorder recorder(&combo);
    combo.setSelectedValues(QSet<VynRawValue>(values.cbegin(), values.cend()));
    QCOMPARE(combo.selectedIndexes(), indexes);
    QCOMPARE(recorder.take(),
             indexes == QList<int>{0} ? QStringList() : QStringList({"selectedIndexes", "text"}));
}

QTEST_MAIN(tst_DiscreteComponents)
#include "tst_discretecomponents.moc"
