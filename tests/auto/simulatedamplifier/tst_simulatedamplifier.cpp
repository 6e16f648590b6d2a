#include "vynsimulatedamplifier.h"

#include <QSignalSpy>
#include <QtTest>

// The gallery's amplifier drives the models the way a host does: edits leave through the
// validators and come back as device echoes.
class tst_SimulatedAmplifier : public QObject
{
    Q_OBJECT

private slots:
    void editIsEchoedWithDeviceResolution();
    void protectionsAndFiling();
};

void tst_SimulatedAmplifier::editIsEchoedWithDeviceResolution()
{
    VynSimulatedAmplifier amplifier;
    amplifier.setLatency(20);
    VynUISliderComponent* gain = amplifier.component(2, "Gain");
    QVERIFY(gain);
    QVERIFY(gain->shouldBeginSliding());

    QSignalSpy expecting(gain, &VynUIComponent::expectingChanged);
    QVERIFY(gain->expectsValue(-3.04, false, gain->prevValue(), true));
    QVERIFY(gain->expecting());
    QCOMPARE(gain->value(), -3.04); // shown at once, before the device answers
    QTRY_VERIFY(!gain->expecting());
    QCOMPARE(expecting.size(), 2);
    QCOMPARE(gain->value(), -3.0); // the device keeps 0.1 dB steps
    QCOMPARE(gain->stringValue(), QString("-3.0 dB"));
    QCOMPARE(amplifier.deviceValue("Amp[1]/Channel[2]/Gain"), -3.0);

    // Out-of-range proposals are limited before they are sent.
    QVERIFY(gain->expectsValue(40.0, false, -3.0, true));
    QCOMPARE(gain->value(), 12.0);
    QTRY_COMPARE(amplifier.deviceValue("Amp[1]/Channel[2]/Gain"), 12.0);
    QVERIFY(!amplifier.traffic().isEmpty());
}

void tst_SimulatedAmplifier::protectionsAndFiling()
{
    VynSimulatedAmplifier amplifier;
    VynUIComponentSet* set = amplifier.componentSet();
    QCOMPARE(set->components().size(), amplifier.channelCount() * 3);

    VynUISliderComponent* locked = amplifier.component(amplifier.channelCount(), "Delay");
    QVERIFY(!locked->enabled());
    QVERIFY(!locked->shouldBeginSliding());
    const double before = locked->value();
    QVERIFY(!locked->expectsValue(before + 10.0, false, before, true));

    VynUISliderComponent* guarded = amplifier.component(1, "Gain");
    QCOMPARE(guarded->securityType(), VynCommonConstants::VynSecurityTypeShouldAlert);
    QVERIFY(guarded->enabled());

    auto* frequency = qobject_cast<VynUISlideFieldComponent*>(amplifier.component(1, "Frequency"));
    QVERIFY(frequency);
    QCOMPARE(frequency->units(), QStringList({"Hz", "kHz"}));
    QVERIFY(frequency->allowsUnitChoosing());
    frequency->chooseUnitAction(1);
    QCOMPARE(frequency->unitIndex(), 1);
    QCOMPARE(frequency->displayedValue(), double(0.04f));
}

QTEST_MAIN(tst_SimulatedAmplifier)
#include "tst_simulatedamplifier.moc"
