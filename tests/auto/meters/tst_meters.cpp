#include "vynuiplugin.h"
#include "vynuiqmlconstants.h"
#include "vynuivumetercomponent.h"
#include "vynvumeteritem.h"
#include "vynvumetermanager.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlParserStatus>
#include <QSignalSpy>
#include <QtTest>

#include "../common/signalrecorder.h"

#include <cmath>
#include <limits>
#include <memory>

// A meter as the manager sees one: an animated flag, a click and the two steps. Every call
// of animate() or reset() is written to a shared journal, so that order across meters shows.
class FakeMeter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool animated READ animated WRITE setAnimated NOTIFY animatedChanged)

public:
    FakeMeter(const QString& name, QStringList* journal, bool animated = true)
        : m_name(name), m_journal(journal), m_animated(animated)
    {}
    bool animated() const { return m_animated; }
    void setAnimated(bool on)
    {
        if (on == m_animated)
            return;
        m_animated = on;
        emit animatedChanged();
    }
    Q_INVOKABLE void animate() { m_journal->append(m_name + QStringLiteral(".animate")); }
    Q_INVOKABLE void reset() { m_journal->append(m_name + QStringLiteral(".reset")); }

signals:
    void animatedChanged();
    void clicked();

private:
    QString m_name;
    QStringList* m_journal;
    bool m_animated;
};

namespace {

// Records the meter's signals in the order it emits them.
class MeterRecorder : public SignalRecorder
{
public:
    explicit MeterRecorder(VynVUMeterItem* m)
    {
        watch(m, &VynVUMeterItem::currentValueChanged, "currentValue");
        watch(m, &VynVUMeterItem::holdValuesChanged, "holds");
        watch(m, &VynVUMeterItem::minValueChanged, "minValue");
        watch(m, &VynVUMeterItem::maxValueChanged, "maxValue");
        watch(m, &VynVUMeterItem::defaultValueChanged, "defaultValue");
        watch(m, &VynVUMeterItem::animatedChanged, "animated");
        watch(m, &VynVUMeterItem::clicked, "clicked");
    }
};

// A meter built as QML builds one: created, sized, then completed (which registers it).
std::unique_ptr<VynVUMeterItem> makeMeter(double width = 12, double height = 160,
                                          double ratio = 1.0)
{
    auto meter = std::make_unique<VynVUMeterItem>();
    static_cast<QQmlParserStatus*>(meter.get())->classBegin();
    meter->setVynPixelRatio(ratio);
    meter->setSize(QSizeF(width, height));
    static_cast<QQmlParserStatus*>(meter.get())->componentComplete();
    return meter;
}

// Ticks until the displayed level stops changing; answers the number of ticks that moved it.
int ticksToSettle(VynVUMeterItem* meter)
{
    int ticks = 0;
    for (;;) {
        const double before = meter->displayedLevel();
        meter->animate();
        if (meter->displayedLevel() == before)
            return ticks;
        ++ticks;
    }
}

} // namespace

class tst_Meters : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void managerRegistration_data();
    void managerRegistration();
    void managerPausers_data();
    void managerPausers();
    void managerTickAndClick();
    void managerResetInterval();
    void managerForgetsDestroyedMeter();

    void ballistics_data();
    void ballistics();
    void shortHold();
    void longHolds_data();
    void longHolds();
    void resetRule_data();
    void resetRule();
    void refusesNotANumber();

    void meterRounding_data();
    void meterRounding();
    void geometry_data();
    void geometry();
    void cellPlacement_data();
    void cellPlacement();
    void cellColours();
    void clickResetsEveryMeter();

    void componentFresh();
    void componentClamp_data();
    void componentClamp();
    void componentHolds_data();
    void componentHolds();
    void componentLimitsAndReset();
    void componentRefusesNotANumber();
    void componentRestore();
    void componentName_data();
    void componentName();
    void wrapperFollowsComponent();

private:
    QStringList m_journal;
};

void tst_Meters::init()
{
    m_journal.clear();
    VynVUMeterManager* manager = VynVUMeterManager::instance();
    const QList<QObject*> left = manager->registeredVUMeters();
    for (QObject* meter : left)
        manager->unregisterVUMeter(meter);
    manager->restart(nullptr);
    manager->setResetInterval(VynVUMeterManager::kDefaultResetInterval);
}

// Each step: "r X" registers meter X, "u X" unregisters it, "a X" / "s X" make it animated /
// still. Meters A and B start animated, C starts still.
void tst_Meters::managerRegistration_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QString>("registered");
    QTest::addColumn<int>("animated");
    QTest::addColumn<bool>("running");

    QTest::newRow("nothing registered") << QStringList{} << "" << 0 << false;
    QTest::newRow("animated meter starts the clock") << QStringList{"r A"} << "A" << 1 << true;
    QTest::newRow("still meter leaves it stopped") << QStringList{"r C"} << "C" << 0 << false;
    QTest::newRow("registered twice, listed once")
        << QStringList{"r A", "r B", "r A"} << "AB" << 2 << true;
    QTest::newRow("unknown unregistration changes nothing")
        << QStringList{"r A", "u B"} << "A" << 1 << true;
    QTest::newRow("last animated meter leaves")
        << QStringList{"r A", "r C", "u A"} << "C" << 0 << false;
    QTest::newRow("meter stops animating") << QStringList{"r A", "s A"} << "A" << 0 << false;
    QTest::newRow("still meter starts animating") << QStringList{"r C", "a C"} << "C" << 1 << true;
    QTest::newRow("unregistered meter's change is ignored")
        << QStringList{"r C", "u C", "a C"} << "" << 0 << false;
}

void tst_Meters::managerRegistration()
{
    QFETCH(QStringList, steps);
    QFETCH(QString, registered);
    QFETCH(int, animated);
    QFETCH(bool, running);

    FakeMeter a(QStringLiteral("A"), &m_journal), b(QStringLiteral("B"), &m_journal),
        c(QStringLiteral("C"), &m_journal, false);
    const QHash<QString, FakeMeter*> meters{{"A", &a}, {"B", &b}, {"C", &c}};
    VynVUMeterManager* manager = VynVUMeterManager::instance();
    for (const QString& step : steps) {
        FakeMeter* meter = meters.value(step.mid(2));
        switch (step.at(0).toLatin1()) {
        case 'r':
            manager->registerVUMeter(meter);
            break;
        case 'u':
            manager->unregisterVUMeter(meter);
            break;
        case 'a':
            meter->setAnimated(true);
            break;
        case 's':
            meter->setAnimated(false);
            break;
        }
    }
    QString names;
    for (QObject* meter : manager->registeredVUMeters())
        names += meters.key(static_cast<FakeMeter*>(meter));
    QCOMPARE(names, registered);
    QCOMPARE(manager->animatedCount(), animated);
    QCOMPARE(manager->isRunning(), running);
    init();
}

// Steps: "p X" pauses with X, "s X" restarts with X, "d X" destroys X; "null" is no pauser.
// One animated meter is registered throughout.
void tst_Meters::managerPausers_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<bool>("paused");

    QTest::newRow("one pauser") << QStringList{"p A"} << true;
    QTest::newRow("one pauser restarts") << QStringList{"p A", "s A"} << false;
    QTest::newRow("two pausers, first restarts") << QStringList{"p A", "p B", "s A"} << true;
    QTest::newRow("two pausers, both restart") << QStringList{"p A", "p B", "s A", "s B"} << false;
    QTest::newRow("same pauser twice needs one restart")
        << QStringList{"p A", "p A", "s A"} << false;
    QTest::newRow("stranger's restart keeps the pause") << QStringList{"p A", "s B"} << true;
    QTest::newRow("null restart with a pauser left") << QStringList{"p A", "s null"} << true;
    QTest::newRow("null pause, null restart") << QStringList{"p null", "s null"} << false;
    QTest::newRow("null pause, named restart") << QStringList{"p null", "s A"} << false;
    // A pauser that is destroyed can no longer restart: it counts as restarted.
    QTest::newRow("last pauser destroyed") << QStringList{"p A", "p B", "s A", "d B"} << false;
    QTest::newRow("one of two destroyed") << QStringList{"p A", "p B", "d A"} << true;
}

void tst_Meters::managerPausers()
{
    QFETCH(QStringList, steps);
    QFETCH(bool, paused);

    auto a = std::make_unique<QObject>();
    auto b = std::make_unique<QObject>();
    const QHash<QString, QObject*> pausers{{"A", a.get()}, {"B", b.get()}, {"null", nullptr}};
    FakeMeter meter(QStringLiteral("M"), &m_journal);
    VynVUMeterManager* manager = VynVUMeterManager::instance();
    manager->registerVUMeter(&meter);
    for (const QString& step : steps) {
        QObject* pauser = pausers.value(step.mid(2));
        if (step.startsWith(QLatin1Char('p')))
            manager->pause(pauser);
        else if (step.startsWith(QLatin1Char('s')))
            manager->restart(pauser);
        else if (step == QLatin1String("d A"))
            a.reset();
        else
            b.reset();
    }
    QCOMPARE(manager->isPaused(), paused);
    QCOMPARE(manager->isRunning(), !paused);
    // A pause outlives a change of the animated set.
    meter.setAnimated(false);
    meter.setAnimated(true);
    QCOMPARE(manager->isRunning(), !paused);
    init();
}

void tst_Meters::managerTickAndClick()
{
    FakeMeter a(QStringLiteral("A"), &m_journal), b(QStringLiteral("B"), &m_journal, false),
        c(QStringLiteral("C"), &m_journal);
    VynVUMeterManager* manager = VynVUMeterManager::instance();
    manager->registerVUMeter(&a);
    manager->registerVUMeter(&b);
    manager->registerVUMeter(&c);

    manager->animateVUMeters();
    QCOMPARE(m_journal, (QStringList{"A.animate", "C.animate"}));
    m_journal.clear();

    // Any meter's click resets every registered meter, animated or not, in registration order.
    emit b.clicked();
    QCOMPARE(m_journal, (QStringList{"A.reset", "B.reset", "C.reset"}));
    m_journal.clear();

    manager->unregisterVUMeter(&a);
    emit a.clicked();
    QVERIFY(m_journal.isEmpty());
    a.setAnimated(false);
    a.setAnimated(true);
    manager->animateVUMeters();
    QCOMPARE(m_journal, QStringList{"C.animate"});
}

void tst_Meters::managerResetInterval()
{
    VynVUMeterManager* manager = VynVUMeterManager::instance();
    QCOMPARE(manager->resetInterval(), 4294967295ULL);
    const QMetaProperty property =
        manager->metaObject()->property(manager->metaObject()->indexOfProperty("resetInterval"));
    QVERIFY(property.isWritable());
    QVERIFY(!property.hasNotifySignal());

    QSignalSpy spy(manager, &VynVUMeterManager::resetIntervalChanged);
    manager->setResetInterval(10);
    manager->setResetInterval(10);
    QCOMPARE(spy.count(), 1);
    QVERIFY(property.write(manager, QVariant::fromValue(qulonglong(20))));
    QCOMPARE(spy.count(), 2);

    // A meter without its own interval reads the manager's, in milliseconds.
    auto meter = makeMeter();
    QCOMPARE(meter->resetInterval(), 20000.0);
    meter->setResetInterval(500);
    manager->setResetInterval(30);
    QCOMPARE(meter->resetInterval(), 500.0);
}

void tst_Meters::managerForgetsDestroyedMeter()
{
    VynVUMeterManager* manager = VynVUMeterManager::instance();
    {
        auto meter = makeMeter();
        QCOMPARE(manager->registeredVUMeters(), QList<QObject*>{meter.get()});
        QVERIFY(manager->isRunning());
    }
    QVERIFY(manager->registeredVUMeters().isEmpty());
    QVERIFY(!manager->isRunning());
    auto* fake = new FakeMeter(QStringLiteral("F"), &m_journal);
    manager->registerVUMeter(fake);
    delete fake;
    manager->animateVUMeters();
    QVERIFY(m_journal.isEmpty());
}

// Levels on a -60..0 dB meter: from a settled level, a new value, the ticks that move the
// display and where it settles.
void tst_Meters::ballistics_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<bool>("reversed");
    QTest::addColumn<int>("ticks");
    QTest::addColumn<double>("settled");

    // 1 -> 0 in steps of 0.12: 0.88, ..., 0.04 after 8 ticks, then the snap.
    QTest::newRow("fall over the full scale") << 0.0 << -60.0 << false << 9 << 0.0;
    QTest::newRow("rise over the full scale") << -60.0 << 0.0 << false << 1 << 1.0;
    // 0.5 -> 0.25: 0.38, 0.26, then 0.26 is less than 0.12 above 0.25 and snaps.
    QTest::newRow("fall by a quarter") << -30.0 << -45.0 << false << 3 << 0.25;
    QTest::newRow("fall smaller than a step snaps") << -30.0 << -33.0 << false << 1 << 0.45;
    QTest::newRow("reversed fall") << -60.0 << 0.0 << true << 9 << 0.0;
    QTest::newRow("reversed rise") << 0.0 << -60.0 << true << 1 << 1.0;
    QTest::newRow("above the scale") << -60.0 << 12.0 << false << 1 << 1.2;
}

void tst_Meters::ballistics()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(bool, reversed);
    QFETCH(int, ticks);
    QFETCH(double, settled);

    auto meter = makeMeter();
    meter->setReversed(reversed);
    meter->setCurrentValue(from);
    ticksToSettle(meter.get());
    meter->setCurrentValue(to);
    QCOMPARE(ticksToSettle(meter.get()), ticks);
    QVERIFY(std::fabs(meter->displayedLevel() - settled) < 1e-12);
}

void tst_Meters::shortHold()
{
    auto meter = makeMeter(12, 160); // 50 cells
    meter->setDisplaysShortHoldValue(true);
    meter->setCurrentValue(0);
    meter->animate();
    QCOMPARE(meter->shortHoldIndex(), 49);
    meter->setCurrentValue(-60);

    // The mark stays 1000 ms after the level left it, then falls faster and faster.
    QList<int> marks;
    for (int tick = 0; tick < 24; ++tick) {
        meter->animate();
        marks.append(meter->shortHoldIndex());
    }
    const QList<int> expected{49, 49, 49, 49, 49, 49, 49, 49, 49, 49, 49, 49,
                              49, 49, 49, 48, 47, 45, 42, 38, 33, 27, 20, 12};
    QCOMPARE(marks, expected);

    // A higher level takes the mark up at once.
    meter->setCurrentValue(-3);
    meter->animate();
    QCOMPARE(meter->shortHoldIndex(), meter->displayedIndex());
    QCOMPARE(meter->shortHoldIndex(), 46);
}

void tst_Meters::longHolds_data()
{
    QTest::addColumn<double>("interval");
    QTest::addColumn<int>("ticks");
    QTest::addColumn<double>("minHold");
    QTest::addColumn<double>("maxHold");

    // The default interval never elapses: an hour of ticks keeps both marks.
    QTest::newRow("default interval") << -1.0 << 45000 << -50.0 << -3.0;
    // 1000 ms: the 13th tick (1040 ms) drops the holds to the current value.
    QTest::newRow("1000 ms, 12 ticks keep the holds") << 1000.0 << 12 << -50.0 << -3.0;
    QTest::newRow("1000 ms, 13 ticks drop them") << 1000.0 << 13 << -20.0 << -20.0;
}

void tst_Meters::longHolds()
{
    QFETCH(double, interval);
    QFETCH(int, ticks);
    QFETCH(double, minHold);
    QFETCH(double, maxHold);

    auto meter = makeMeter();
    meter->setDisplaysHoldValues(true);
    if (interval >= 0)
        meter->setResetInterval(interval);
    meter->setCurrentValue(-20);
    meter->animate(); // the first value after the completion's reset sets both holds
    for (double value : {-10.0, -3.0, -50.0, -20.0})
        meter->setCurrentValue(value);
    QCOMPARE(meter->minHoldValue(), -50.0);
    QCOMPARE(meter->maxHoldValue(), -3.0);
    for (int tick = 0; tick < ticks; ++tick)
        meter->animate();
    QCOMPARE(meter->minHoldValue(), minHold);
    QCOMPARE(meter->maxHoldValue(), maxHold);
    QCOMPARE(meter->displaysShortHoldValue(), true);
}

void tst_Meters::resetRule_data()
{
    QTest::addColumn<bool>("animated");
    QTest::addColumn<double>("hold");
    QTest::addColumn<double>("displayed");

    // An animated meter restarts from the default value and rises again to the current one;
    // a still meter shows the current value at once and its holds go to the default.
    QTest::newRow("animated") << true << -12.0 << 0.0;
    QTest::newRow("still") << false << -60.0 << 0.8;
}

void tst_Meters::resetRule()
{
    QFETCH(bool, animated);
    QFETCH(double, hold);
    QFETCH(double, displayed);

    auto meter = makeMeter();
    meter->setAnimated(animated);
    meter->setCurrentValue(-3);
    meter->animate();
    meter->setCurrentValue(-12);
    MeterRecorder recorder(meter.get());
    meter->reset();
    QCOMPARE(meter->minHoldValue(), hold);
    QCOMPARE(meter->maxHoldValue(), hold);
    QCOMPARE(meter->shortHoldIndex(), 0);
    QVERIFY(std::fabs(meter->displayedLevel() - displayed) < 1e-12);
    QCOMPARE(recorder.take(), QStringList{"holds"});
    meter->animate();
    QVERIFY(std::fabs(meter->displayedLevel() - 0.8) < 1e-12);

    // A new scale resets too: the holds follow the rule again.
    meter->setCurrentValue(-30);
    meter->setMaxValue(6);
    QCOMPARE(recorder.take(), (QStringList{"holds", "currentValue", "maxValue", "holds"}));
    QCOMPARE(meter->maxHoldValue(), animated ? -30.0 : -60.0);
}

void tst_Meters::refusesNotANumber()
{
    auto meter = makeMeter();
    meter->setCurrentValue(-20);
    MeterRecorder recorder(meter.get());
    const double nan = std::nan("");
    meter->setCurrentValue(nan);
    meter->setMinValue(nan);
    meter->setMaxValue(HUGE_VAL);
    meter->setDefaultValue(nan);
    QCOMPARE(meter->currentValue(), -20.0);
    QCOMPARE(meter->minValue(), -60.0);
    QCOMPARE(meter->maxValue(), 0.0);
    QCOMPARE(meter->defaultValue(), -60.0);
    QVERIFY(recorder.take().isEmpty());

    // An overflowing reading shows the top of the scale, a dead one the bottom.
    meter->setCurrentValue(HUGE_VAL);
    QCOMPARE(meter->currentValue(), 0.0);
    meter->setCurrentValue(-HUGE_VAL);
    QCOMPARE(meter->currentValue(), -60.0);
}

void tst_Meters::meterRounding_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<double>("rounded");
    QTest::addColumn<double>("ceiled");

    QTest::newRow("ratio 1, below half") << 2.4 << 1.0 << 2.0 << 3.0;
    QTest::newRow("ratio 1, half goes up") << 2.5 << 1.0 << 3.0 << 3.0;
    QTest::newRow("ratio 1, negative half goes up") << -2.5 << 1.0 << -2.0 << -2.0;
    // Elsewhere: up to the next half pixel once 0.125 past a half pixel.
    QTest::newRow("ratio 2, exactly 0.125 over") << 1.125 << 2.0 << 1.5 << 1.5;
    QTest::newRow("ratio 2, just under 0.125") << 1.12 << 2.0 << 1.0 << 1.0;
    QTest::newRow("ratio 1.5, 0.25 goes up, unlike the half-pixel snap")
        << 0.25 << 1.5 << 0.5 << 0.5;
    QTest::newRow("ratio 1.5, on a half pixel") << 7.5 << 1.5 << 7.5 << 7.5;
    QTest::newRow("ratio 2, 0.8") << 0.8 << 2.0 << 1.0 << 1.0;
}

void tst_Meters::meterRounding()
{
    QFETCH(double, value);
    QFETCH(double, ratio);
    QFETCH(double, rounded);
    QFETCH(double, ceiled);
    QCOMPARE(VynVUMeterItem::meterRound(value, ratio), rounded);
    QCOMPARE(VynVUMeterItem::meterCeil(value, ratio), ceiled);
}

void tst_Meters::geometry_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("constrained");
    QTest::addColumn<bool>("autoHorizontal");
    QTest::addColumn<double>("thicknessMargin");
    QTest::addColumn<double>("lengthMargin");
    QTest::addColumn<double>("cellLength");
    QTest::addColumn<double>("cellSpace");
    QTest::addColumn<int>("cells");
    QTest::addColumn<double>("radius");

    // 12 px thick: margins clamp(1.2 -> 2) and round(4.8) = 5, cells clamp(1.8 -> 2), space
    // ceil(0.4) = 1, floor((160 - 10 + 1) / 3) = 50 cells, radius 3.6.
    QTest::newRow("ratio 1") << QSizeF(12, 160) << 1.0 << 0 << false << 2.0 << 5.0 << 2.0 << 1.0
                             << 50 << 3.6;
    QTest::newRow("ratio 1, auto horizontal")
        << QSizeF(160, 12) << 1.0 << 0 << true << 2.0 << 5.0 << 2.0 << 1.0 << 50 << 3.6;
    // 18 px at 1.5: minimums 2, 5, 3; 7.2 goes up to 7.5, the space 0.6 down to 0.5.
    QTest::newRow("ratio 1.5") << QSizeF(18, 240) << 1.5 << 0 << false << 2.0 << 7.5 << 3.0 << 0.5
                               << 64 << 5.4;
    // 24 px at 2: minimums 3, 6, 4; 9.6 goes down to 9.5, the space 0.8 up to 1.
    QTest::newRow("ratio 2") << QSizeF(24, 200) << 2.0 << 0 << false << 3.0 << 9.5 << 4.0 << 1.0
                             << 36 << 7.2;
    // 32 cells asked: round(190 / 38.2) = 5 px, space 1, and 31 cells fit.
    QTest::newRow("32 constrained cells, 200 px")
        << QSizeF(12, 200) << 1.0 << 32 << false << 2.0 << 5.0 << 5.0 << 1.0 << 31 << 3.6;
    QTest::newRow("32 constrained cells, 206 px")
        << QSizeF(12, 206) << 1.0 << 32 << false << 2.0 << 5.0 << 5.0 << 1.0 << 32 << 3.6;
    QTest::newRow("thick meter hits the maximums")
        << QSizeF(100, 300) << 1.0 << 0 << false << 5.0 << 10.0 << 6.0 << 2.0 << 35 << 8.0;
    QTest::newRow("too short for a cell")
        << QSizeF(12, 8) << 1.0 << 0 << false << 2.0 << 5.0 << 2.0 << 1.0 << 0 << 3.6;
}

void tst_Meters::geometry()
{
    QFETCH(QSizeF, size);
    QFETCH(double, ratio);
    QFETCH(int, constrained);
    QFETCH(bool, autoHorizontal);

    auto meter = makeMeter(size.width(), size.height(), ratio);
    meter->setAutoHorizontal(autoHorizontal);
    meter->setConstrainedNumberOfCells(constrained);
    QCOMPARE(meter->isHorizontal(), autoHorizontal);
    QTEST(meter->thicknessMargin(), "thicknessMargin");
    QTEST(meter->lengthMargin(), "lengthMargin");
    QTEST(meter->cellLength(), "cellLength");
    QTEST(meter->cellSpace(), "cellSpace");
    QTEST(meter->numberOfCells(), "cells");
    QTEST(meter->cornerRadius(), "radius");
}

void tst_Meters::cellPlacement_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<bool>("reversed");
    QTest::addColumn<bool>("lowEndFirst"); // cell 0 at the top (vertical) or left

    QTest::newRow("vertical") << false << false << false;
    QTest::newRow("vertical reversed") << false << true << true;
    QTest::newRow("horizontal") << true << false << true;
    QTest::newRow("horizontal reversed") << true << true << false;
}

void tst_Meters::cellPlacement()
{
    QFETCH(bool, horizontal);
    QFETCH(bool, reversed);
    QFETCH(bool, lowEndFirst);

    auto meter = horizontal ? makeMeter(160, 12) : makeMeter(12, 160);
    meter->setAutoHorizontal(horizontal);
    meter->setReversed(reversed);
    const int cells = meter->numberOfCells();
    QCOMPARE(cells, 50);
    const QRectF first = meter->cellRect(0);
    const QRectF last = meter->cellRect(cells - 1);
    const double firstAt = horizontal ? first.x() : first.y();
    const double lastAt = horizontal ? last.x() : last.y();
    QCOMPARE(firstAt < lastAt, lowEndFirst);
    // Cells follow each other at cell length + space, centred along the length.
    QCOMPARE(std::fabs(lastAt - firstAt), (cells - 1) * 3.0);
    QCOMPARE(std::min(firstAt, lastAt), meter->cellsOffset());
    QCOMPARE(meter->cellsOffset(), 6.0); // (160 - 149) / 2 = 5.5, Math.round
    const QRectF across = horizontal ? QRectF(0, 2, 1, 8) : QRectF(2, 0, 8, 1);
    QCOMPARE(horizontal ? first.y() : first.x(), horizontal ? across.y() : across.x());
    QCOMPARE(horizontal ? first.height() : first.width(), 8.0);
    QVERIFY(meter->cellRect(cells).isNull());
}

void tst_Meters::cellColours()
{
    auto meter = makeMeter(12, 160); // 50 cells
    meter->setVynStyle(VynColorUtils::VynStyleDark);
    meter->setDisplaysHoldValues(true);
    meter->setCurrentValue(-30); // level 0.5: cells 0 to 24
    meter->animate();
    meter->setCurrentValue(-6);  // max hold at cell floor(0.9 x 49) = 44
    meter->setCurrentValue(-54); // min hold at cell floor(0.1 x 49) = 4
    QCOMPARE(meter->displayedIndex(), 24);
    QCOMPARE(meter->maxHoldIndex(), 44);
    QCOMPARE(meter->minHoldIndex(), 4);

    const QColor off = VynUIQmlConstants::vuMeterOffColor(VynColorUtils::VynStyleDark);
    const auto on = [](int k) {
        return VynUIQmlConstants::vuMeterOnColorForIndex(int(std::floor(k / 49.0 * 31 + 0.5)));
    };
    QCOMPARE(meter->cellColor(0), on(0));
    QCOMPARE(meter->cellColor(24), on(24));
    QCOMPARE(meter->cellColor(25), off);
    QCOMPARE(meter->cellColor(44), on(44)); // lit as a hold
    QCOMPARE(meter->cellColor(49), off);
    QCOMPARE(on(49), VynUIQmlConstants::vuMeterOnColorForIndex(31));
    QCOMPARE(on(1), VynUIQmlConstants::vuMeterOnColorForIndex(1)); // 0.63 rounds to 1

    // Without hold display the hold cell goes dark.
    meter->setDisplaysHoldValues(false);
    QCOMPARE(meter->cellColor(44), off);
}

void tst_Meters::clickResetsEveryMeter()
{
    auto first = makeMeter();
    auto second = makeMeter();
    first->setCurrentValue(-3);
    second->setCurrentValue(-10);
    VynVUMeterManager::instance()->animateVUMeters();
    first->setCurrentValue(-40);
    second->setCurrentValue(-30);
    QCOMPARE(first->maxHoldValue(), -3.0);
    QCOMPARE(second->maxHoldValue(), -10.0);

    emit second->clicked();
    QCOMPARE(first->maxHoldValue(), -40.0);
    QCOMPARE(first->minHoldValue(), -40.0);
    QCOMPARE(second->maxHoldValue(), -30.0);
}

namespace {

// Records the component's signals in the order it emits them.
class ComponentRecorder : public SignalRecorder
{
public:
    explicit ComponentRecorder(VynUIVUMeterComponent* c)
    {
        watch(c, &VynUIVUMeterComponent::limitsChanged, "limits");
        watch(c, &VynUIVUMeterComponent::valueChanged, "value");
        watch(c, &VynUIVUMeterComponent::reverseChanged, "reverse");
        watch(c, &VynUIVUMeterComponent::displaysHoldValueChanged, "displaysHoldValue");
        watch(c, &VynUIVUMeterComponent::animatingChanged, "animating");
        watch<VynUIComponent>(c, &VynUIComponent::paramPathChanged, "paramPath");
    }
};

} // namespace

void tst_Meters::componentFresh()
{
    VynUIVUMeterComponent meter;
    QCOMPARE(meter.componentType(), VynViewUtils::VynUIComponentTypeVUMeter);
    QCOMPARE(meter.minHoldValue(), 3.4028234663852886e38);
    QCOMPARE(meter.maxHoldValue(), -3.4028234663852886e38);
    QCOMPARE(meter.minHoldValue(), double(std::numeric_limits<float>::max()));
    // The first reading takes the holds it is given, both ways.
    meter.setValue(0, -5, 5);
    QCOMPARE(meter.minHoldValue(), -5.0);
    QCOMPARE(meter.maxHoldValue(), 5.0);
}

void tst_Meters::componentClamp_data()
{
    QTest::addColumn<double>("minValue");
    QTest::addColumn<double>("maxValue");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("stored");

    QTest::newRow("inside") << -60.0 << 0.0 << -12.0 << -12.0;
    QTest::newRow("above the maximum") << -60.0 << 0.0 << 3.0 << 0.0;
    QTest::newRow("below the minimum") << -60.0 << 0.0 << -80.0 << -60.0;
    QTest::newRow("infinity") << -60.0 << 0.0 << HUGE_VAL << 0.0;
    // Crossed limits: the minimum wins for any value.
    QTest::newRow("crossed, low value") << 10.0 << -10.0 << -20.0 << 10.0;
    QTest::newRow("crossed, high value") << 10.0 << -10.0 << 20.0 << 10.0;
    QTest::newRow("crossed, between") << 10.0 << -10.0 << 0.0 << 10.0;
}

void tst_Meters::componentClamp()
{
    QFETCH(double, minValue);
    QFETCH(double, maxValue);
    QFETCH(double, value);
    QFETCH(double, stored);

    VynUIVUMeterComponent meter;
    meter.setLimits(minValue, maxValue, minValue);
    ComponentRecorder recorder(&meter);
    meter.setValue(value, value, value);
    QCOMPARE(meter.value(), stored);
    QCOMPARE(recorder.take(), QStringList{"value"});
}

// From holds -10 / -5 and value -8: a new reading, and whether it is taken.
void tst_Meters::componentHolds_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("minHold");
    QTest::addColumn<double>("maxHold");
    QTest::addColumn<double>("expectedMin");
    QTest::addColumn<double>("expectedMax");
    QTest::addColumn<bool>("emitted");

    QTest::newRow("same value, narrower holds") << -8.0 << -9.0 << -6.0 << -10.0 << -5.0 << false;
    QTest::newRow("same value, same holds") << -8.0 << -10.0 << -5.0 << -10.0 << -5.0 << false;
    QTest::newRow("same value, lower minimum") << -8.0 << -12.0 << -6.0 << -12.0 << -5.0 << true;
    QTest::newRow("same value, higher maximum") << -8.0 << -9.0 << -2.0 << -10.0 << -2.0 << true;
    QTest::newRow("new value, narrower holds") << -7.0 << -9.0 << -6.0 << -10.0 << -5.0 << true;
    QTest::newRow("new value, wider holds") << -7.0 << -20.0 << 0.0 << -20.0 << 0.0 << true;
}

void tst_Meters::componentHolds()
{
    QFETCH(double, value);
    QFETCH(double, minHold);
    QFETCH(double, maxHold);

    VynUIVUMeterComponent meter;
    meter.setLimits(-60, 0, -8); // holds on the default -8
    meter.setValue(-8, -10, -5);
    ComponentRecorder recorder(&meter);
    meter.setValue(value, minHold, maxHold);
    QTEST(meter.minHoldValue(), "expectedMin");
    QTEST(meter.maxHoldValue(), "expectedMax");
    QFETCH(bool, emitted);
    QCOMPARE(recorder.take(), emitted ? QStringList{"value"} : QStringList{});
}

void tst_Meters::componentLimitsAndReset()
{
    VynUIVUMeterComponent meter;
    ComponentRecorder recorder(&meter);
    meter.setLimits(0, 0, 0); // the stored ones: nothing
    QVERIFY(recorder.take().isEmpty());

    meter.setLimits(-60, 6, -40);
    QCOMPARE(recorder.take(), (QStringList{"limits", "value"}));
    QCOMPARE(meter.value(), -40.0);
    QCOMPARE(meter.minHoldValue(), -40.0);
    QCOMPARE(meter.maxHoldValue(), -40.0);

    meter.setValue(-3, -50, 2);
    recorder.take();
    meter.setLimits(-60, 6, -40);
    QVERIFY(recorder.take().isEmpty());
    meter.setLimits(-60, 0, -40); // new limits drop the holds
    QCOMPARE(recorder.take(), (QStringList{"limits", "value"}));
    QCOMPARE(meter.minHoldValue(), -40.0);
    QCOMPARE(meter.maxHoldValue(), -40.0);

    meter.setValue(-3, -50, 2);
    recorder.take();
    meter.resetValues();
    QCOMPARE(recorder.take(), QStringList{"value"});
    QCOMPARE(meter.value(), -40.0);
    QCOMPARE(meter.minHoldValue(), -40.0);
    QCOMPARE(meter.maxHoldValue(), -40.0);

    meter.setReverse(true);
    meter.setReverse(true);
    meter.setDisplaysHoldValue(true);
    meter.setAnimating(true);
    meter.setAnimating(true);
    QCOMPARE(recorder.take(), (QStringList{"reverse", "displaysHoldValue", "animating"}));
}

void tst_Meters::componentRefusesNotANumber()
{
    VynUIVUMeterComponent meter;
    meter.setLimits(-60, 0, -10);
    meter.setValue(-10, -20, -5);
    ComponentRecorder recorder(&meter);
    const double nan = std::nan("");
    meter.setValue(nan, -30, 0);
    meter.setValue(-10, nan, -5);
    meter.setValue(-12, -20, nan);
    meter.setLimits(nan, 0, -60);
    meter.setLimits(-60, HUGE_VAL, -60);
    QVERIFY(recorder.take().isEmpty());
    QCOMPARE(meter.value(), -10.0);
    QCOMPARE(meter.minHoldValue(), -20.0);
    QCOMPARE(meter.maxHoldValue(), -5.0);
    QCOMPARE(meter.maxValue(), 0.0);
}

void tst_Meters::componentRestore()
{
    VynUIVUMeterComponent source;
    source.setParamPath(VynProxyParamPath::fromString(QStringLiteral("Amp[1]/Channel[2]/Voltage")));
    source.setSecondParamPath(VynProxyParamPath::fromString(QStringLiteral("Amp[1]/Current")));
    source.setFirstHostValue(3);
    source.setSecondHostValue(-4);
    source.setReverse(true);
    source.setDisplaysHoldValue(true);
    source.setLimits(-20, 0, 0);
    source.setAnimating(true);

    VynUIVUMeterComponent copy;
    ComponentRecorder recorder(&copy);
    copy.restoreFromUIComponent(&source);
    QCOMPARE(recorder.take(), (QStringList{"paramPath", "displaysHoldValue", "reverse"}));
    QCOMPARE(copy.paramPath(), source.paramPath());
    QCOMPARE(copy.secondParamPath(), source.secondParamPath());
    QCOMPARE(copy.firstHostValue(), 3);
    QCOMPARE(copy.secondHostValue(), -4);
    // Readings, limits and animation are the host's to push again.
    QCOMPARE(copy.maxValue(), 0.0);
    QCOMPARE(copy.minValue(), 0.0);
    QCOMPARE(copy.animating(), false);

    copy.restoreFromUIComponent(&source);
    QVERIFY(recorder.take().isEmpty());
}

void tst_Meters::componentName_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("prefixed");
    QTest::addColumn<QString>("name");

    const int mini = VynViewUtils::VynControlSizeMini;
    QTest::newRow("111 voltage") << "Amp[1]/Voltage" << mini << false << "V";
    QTest::newRow("112 current") << "Amp[1]/Current" << mini << false << "A";
    QTest::newRow("113 gain reduction") << "Amp[1]/GainReduction" << mini << false << "D";
    QTest::newRow("114 peak limiter") << "Amp[1]/PeakLimiter" << mini << false << "Pt";
    QTest::newRow("115 temperature") << "Amp[1]/Temperature" << mini << true << "T";
    QTest::newRow("116 compressor") << "Amp[1]/Compressor" << mini << false << "Cp";
    QTest::newRow("117 rms compressor") << "Amp[1]/CompressorRms" << mini << false << "Cp";
    QTest::newRow("other id") << "Amp[1]/Gain" << mini << false << "Lv";
    QTest::newRow("explicit id 117") << "Amp[1]/Level#117" << mini << false << "Cp";
    QTest::newRow("empty path") << "" << mini << false << "Lv";
    // Other sizes name the path itself (no localisation table here: the element's name).
    QTest::newRow("regular") << "Amp[1]/Channel[2]" << int(VynViewUtils::VynControlSizeRegular)
                             << false << "Channel 2";
    QTest::newRow("small") << "Amp[1]/Voltage" << int(VynViewUtils::VynControlSizeSmall) << false
                           << "Voltage";
}

void tst_Meters::componentName()
{
    QFETCH(QString, path);
    QFETCH(int, size);
    QFETCH(bool, prefixed);
    QTEST(VynUIVUMeterComponent::vuMeterNameForParamPath(
              VynProxyParamPath::fromString(path), prefixed,
              VynFamilyUtils::VynDeviceFamilyAmplifier, VynViewUtils::VynControlSize(size)),
          "name");
}

void tst_Meters::wrapperFollowsComponent()
{
    VynUIPlugin::initializeTypes();
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
    QQmlComponent qml(&engine);
    qml.setData("import VynUI 1.2\nVynUIVUMeter { width: 12; height: 160 }\n", QUrl());
    std::unique_ptr<QObject> object(qml.create());
    QVERIFY2(object, qPrintable(qml.errorString()));
    auto* meter = qobject_cast<VynVUMeterItem*>(object.get());
    QVERIFY(meter);

    VynUIVUMeterComponent component;
    component.setLimits(-20, 0, 0);
    component.setReverse(true);
    component.setDisplaysHoldValue(true);
    component.setValue(-6, -6, -6);
    meter->setProperty("uiVUMeterComponent", QVariant::fromValue<QObject*>(&component));
    QCOMPARE(meter->minValue(), -20.0);
    QCOMPARE(meter->maxValue(), 0.0);
    QCOMPARE(meter->defaultValue(), 0.0);
    QVERIFY(meter->isReversed());
    QVERIFY(meter->displaysHoldValues());
    QCOMPARE(meter->currentValue(), -6.0);
    component.setValue(-30, -30, -30); // clamped by the component first
    QCOMPARE(meter->currentValue(), -20.0);
}

QTEST_MAIN(tst_Meters)
#include "tst_meters.moc"
