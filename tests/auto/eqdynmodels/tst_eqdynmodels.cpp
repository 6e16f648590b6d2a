// The native models behind the EQ and dynamics views: the dynamics graph scales and their
// coalescing timer, the thumbnail components, and the EQ and dynamics objects they carry.

#include "vyndyngraphdata.h"
#include "vynuidynthumbnailcomponent.h"
#include "vynuieqthumbnailcomponent.h"

#include <vynarrayeq.h>
#include <vyndynamiccommon.h>
#include <vyneqband.h>
#include <vyneqcommoneq.h>

#include <QSignalSpy>
#include <QtTest>

#include "../common/signalrecorder.h"

#include <cmath>
#include <limits>

using VynBOOL = QtCommonsConstants::VynBOOL;

namespace {

class ThumbnailRecorder : public SignalRecorder
{
public:
    explicit ThumbnailRecorder(VynUIEQThumbnailComponent* c)
    {
        watch(c, &VynUIEQThumbnailComponent::gainLimitsChanged, "gainLimits");
        watch(c, &VynUIEQThumbnailComponent::commonEQsChanged, "commonEQs");
        watch(c, &VynUIEQThumbnailComponent::arrayEQsChanged, "arrayEQs");
        watch(c, &VynUIEQThumbnailComponent::isOnChanged, "isOn");
        watch(c, &VynUIEQThumbnailComponent::isEmptyChanged, "isEmpty");
    }
    explicit ThumbnailRecorder(VynUIDynThumbnailComponent* c)
    {
        watch(c, &VynUIDynThumbnailComponent::thresholdLimitsChanged, "thresholdLimits");
        watch(c, &VynUIDynThumbnailComponent::commonDynamicsChanged, "commonDynamics");
        watch(c, &VynUIDynThumbnailComponent::isOnChanged, "isOn");
        watch(c, &VynUIDynThumbnailComponent::isEmptyChanged, "isEmpty");
    }
};

class ValuesRecorder : public SignalRecorder
{
public:
    explicit ValuesRecorder(VynEQBand* b)
    {
        watch(b, &VynEQBand::typeChanged, "type");
        watch(b, &VynEQBand::frequencyChanged, "frequency");
        watch(b, &VynEQBand::gainChanged, "gain");
        watch(b, &VynEQBand::qChanged, "q");
        watch(b, &VynEQBand::enabledChanged, "enabled");
        watch(b, &VynEQBand::usedChanged, "used");
        watch(b, &VynEQBand::valuesChanged, "values");
    }
    explicit ValuesRecorder(VynDynamicCommon* d)
    {
        watch(d, &VynDynamicCommon::gainChanged, "gain");
        watch(d, &VynDynamicCommon::thresholdChanged, "threshold");
        watch(d, &VynDynamicCommon::ratioChanged, "ratio");
        watch(d, &VynDynamicCommon::kneeChanged, "knee");
        watch(d, &VynDynamicCommon::isOnChanged, "isOn");
        watch(d, &VynDynamicCommon::valuesChanged, "values");
    }
    explicit ValuesRecorder(VynEQCommonEQ* eq)
    {
        watch(eq, &VynEQCommonEQ::onChanged, "on");
        watch(eq, &VynEQCommonEQ::bandsChanged, "bands");
        watch(eq, &VynEQCommonEQ::bandValuesChanged, "bandValues");
    }
};

struct Scales
{
    double width, height, insetLeft, insetRight, insetBottom, insetTop, inMin, inMax, outMin,
        outMax;
};

void apply(VynDynGraphData& data, const Scales& s)
{
    data.setWidth(s.width);
    data.setHeight(s.height);
    data.setInsetLeft(s.insetLeft);
    data.setInsetRight(s.insetRight);
    data.setInsetBottom(s.insetBottom);
    data.setInsetTop(s.insetTop);
    data.setInMin(s.inMin);
    data.setInMax(s.inMax);
    data.setOutMin(s.outMin);
    data.setOutMax(s.outMax);
}

} // namespace

Q_DECLARE_METATYPE(Scales)

class tst_EQDynModels : public QObject
{
    Q_OBJECT

private slots:
    void graphMappings_data();
    void graphMappings();
    void graphZeroSize_data();
    void graphZeroSize();
    void graphTimer();
    void graphMetaObject();

    void thumbnailDefaults();
    void thumbnailSignals_data();
    void thumbnailSignals();

    void bandSignals_data();
    void bandSignals();
    void dynamicSignals_data();
    void dynamicSignals();
    void eqForwardsBandChanges();
};

// Every mapping and its inverse, the edge levels and the origin, against values worked out by
// hand for each set of scales.
void tst_EQDynModels::graphMappings_data()
{
    QTest::addColumn<Scales>("scales");
    QTest::addColumn<QString>("function");
    QTest::addColumn<double>("argument");
    QTest::addColumn<double>("expected");

    const Scales plain{300, 300, 0, 0, 0, 0, -60, 0, -60, 0};
    QTest::newRow("xForIn left") << plain << "xForIn" << -60.0 << 0.0;
    QTest::newRow("xForIn right") << plain << "xForIn" << 0.0 << 300.0;
    QTest::newRow("inForX middle") << plain << "inForX" << 150.0 << -30.0;
    QTest::newRow("yForOut top") << plain << "yForOut" << 0.0 << 0.0;
    QTest::newRow("yForOut bottom") << plain << "yForOut" << -60.0 << 300.0;
    QTest::newRow("outForY quarter") << plain << "outForY" << 75.0 << -15.0;
    QTest::newRow("inLeft") << plain << "inLeft" << 0.0 << -60.0;
    QTest::newRow("inRight") << plain << "inRight" << 0.0 << 0.0;
    QTest::newRow("outBottom") << plain << "outBottom" << 0.0 << -60.0;
    QTest::newRow("outTop") << plain << "outTop" << 0.0 << 0.0;
    QTest::newRow("origin x") << plain << "originX" << 0.0 << 0.0;
    QTest::newRow("origin y") << plain << "originY" << 0.0 << 300.0;

    // 200 px of plot inside insets 40 left, 10 right, 20 top, 30 bottom.
    const Scales inset{250, 250, 40, 10, 30, 20, -80, 20, -40, 0};
    QTest::newRow("inset inMin at insetLeft") << inset << "xForIn" << -80.0 << 40.0;
    QTest::newRow("inset inMax at width - insetRight") << inset << "xForIn" << 20.0 << 240.0;
    QTest::newRow("inset outMax at insetTop") << inset << "yForOut" << 0.0 << 20.0;
    QTest::newRow("inset outMin at height - insetBottom") << inset << "yForOut" << -40.0 << 220.0;
    QTest::newRow("inset inForX(0)") << inset << "inLeft" << 0.0 << -100.0;
    QTest::newRow("inset inForX(width)") << inset << "inRight" << 0.0 << 25.0;
    QTest::newRow("inset outForY(0)") << inset << "outTop" << 0.0 << 4.0;
    QTest::newRow("inset outForY(height)") << inset << "outBottom" << 0.0 << -46.0;
    QTest::newRow("inset origin x at inMin") << inset << "originX" << 0.0 << 40.0;
    QTest::newRow("inset origin y at height") << inset << "originY" << 0.0 << 250.0;
}

void tst_EQDynModels::graphMappings()
{
    QFETCH(Scales, scales);
    QFETCH(QString, function);
    QFETCH(double, argument);
    QFETCH(double, expected);

    VynDynGraphData data;
    apply(data, scales);
    data.updateScales();
    double value = 0;
    if (function == QLatin1String("xForIn"))
        value = data.xForIn(argument);
    else if (function == QLatin1String("yForOut"))
        value = data.yForOut(argument);
    else if (function == QLatin1String("inForX"))
        value = data.inForX(argument);
    else if (function == QLatin1String("outForY"))
        value = data.outForY(argument);
    else if (function == QLatin1String("inLeft"))
        value = data.inLeft();
    else if (function == QLatin1String("inRight"))
        value = data.inRight();
    else if (function == QLatin1String("outBottom"))
        value = data.outBottom();
    else if (function == QLatin1String("outTop"))
        value = data.outTop();
    else if (function == QLatin1String("originX"))
        value = data.origin().x();
    else if (function == QLatin1String("originY"))
        value = data.origin().y();
    QVERIFY2(std::abs(value - expected) < 1e-9, qPrintable(QString::number(value, 'g', 17)));
}

// With no width or no height every mapping answers its offset, 0; the edge levels swap.
void tst_EQDynModels::graphZeroSize_data()
{
    QTest::addColumn<Scales>("scales");
    QTest::newRow("no width") << Scales{0, 120, 5, 5, 5, 5, -60, 0, -50, 10};
    QTest::newRow("no height") << Scales{120, 0, 5, 5, 5, 5, -60, 0, -50, 10};
}

void tst_EQDynModels::graphZeroSize()
{
    QFETCH(Scales, scales);

    VynDynGraphData data;
    // Scales of a real size first: the bottom and top levels must survive the zero size.
    apply(data, Scales{100, 100, 0, 0, 0, 0, -60, 0, -50, 10});
    data.updateScales();
    QCOMPARE(data.outBottom(), -50.0);
    QCOMPARE(data.outTop(), 10.0);
    apply(data, scales);
    data.updateScales();
    QCOMPARE(data.xForIn(-30), 0.0);
    QCOMPARE(data.yForOut(-30), 0.0);
    QCOMPARE(data.inForX(50), 0.0);
    QCOMPARE(data.outForY(50), 0.0);
    QCOMPARE(data.inLeft(), 0.0);    // inMax
    QCOMPARE(data.inRight(), -60.0); // inMin
    QCOMPARE(data.outBottom(), -50.0);
    QCOMPARE(data.outTop(), 10.0);
    QCOMPARE(data.origin(), QPointF(0, scales.height));
}

void tst_EQDynModels::graphTimer()
{
    VynDynGraphData data;
    QTimer* timer = data.updateTimer();
    // The construction asks for scales.
    QVERIFY(timer->isActive());
    QVERIFY(timer->isSingleShot());
    QCOMPARE(timer->interval(), 10);
    QSignalSpy scales(&data, &VynDynGraphData::scalesChanged);

    data.updateScales();
    QVERIFY(!timer->isActive());
    // Equal values change nothing and start nothing.
    data.setWidth(0);
    data.setInMax(1);
    data.setOutMin(0);
    QVERIFY(!timer->isActive());
    // A real change starts the timer, and its timeout computes the scales.
    data.setWidth(300);
    data.setHeight(300);
    data.setInMin(-60);
    data.setInMax(0);
    data.setOutMin(-60);
    data.setOutMax(0);
    QVERIFY(timer->isActive());
    QCOMPARE(data.xForIn(0), 0.0); // not computed yet
    QTRY_VERIFY(!timer->isActive());
    QCOMPARE(data.xForIn(0), 300.0);
    // Setting the width to the same value does not restart the timer.
    data.setWidth(300);
    QVERIFY(!timer->isActive());
    data.setNeedsUpdateScales();
    QVERIFY(timer->isActive());
    data.updateScales();
    QVERIFY(!timer->isActive());
    QCOMPARE(scales.count(), 0);
}

void tst_EQDynModels::graphMetaObject()
{
    const QMetaObject& mo = VynDynGraphData::staticMetaObject;
    const char* names[] = {"width",    "height", "insetLeft", "insetRight", "insetBottom",
                           "insetTop", "inMin",  "inMax",     "outMin",     "outMax"};
    const double initial[] = {0, 0, 0, 0, 0, 0, 0, 1, 0, 1};
    VynDynGraphData data;
    QCOMPARE(mo.propertyCount() - mo.propertyOffset(), 10);
    for (int i = 0; i < 10; ++i) {
        const QMetaProperty p = mo.property(mo.propertyOffset() + i);
        QCOMPARE(p.name(), names[i]);
        QVERIFY(p.isWritable());
        QVERIFY(!p.hasNotifySignal());
        QCOMPARE(p.read(&data).toDouble(), initial[i]);
    }
    QStringList methods;
    for (int i = mo.methodOffset(); i < mo.methodCount(); ++i)
        methods << QString::fromLatin1(mo.method(i).methodSignature());
    QCOMPARE(methods, QStringList({"scalesChanged()", "setNeedsUpdateScales()", "updateScales()",
                                   "xForIn(double)", "yForOut(double)", "inForX(double)",
                                   "outForY(double)"}));
}

void tst_EQDynModels::thumbnailDefaults()
{
    VynUIEQThumbnailComponent eq;
    QCOMPARE(eq.componentType(), VynViewUtils::VynUIComponentTypeEQThumbnail);
    QCOMPARE(eq.gainMin(), -18.0);
    QCOMPARE(eq.gainMax(), 18.0);
    QCOMPARE(eq.isOn(), QtCommonsConstants::VynBOOLFalse);
    QVERIFY(!eq.isEmpty());
    QVERIFY(eq.commonEQsQml().isEmpty());

    VynUIDynThumbnailComponent dyn;
    QCOMPARE(dyn.componentType(), VynViewUtils::VynUIComponentTypeDynThumbnail);
    QCOMPARE(dyn.thresholdMin(), -36.0);
    QCOMPARE(dyn.thresholdMax(), 0.0);
    QCOMPARE(dyn.isOn(), QtCommonsConstants::VynBOOLFalse);
    QVERIFY(!dyn.isEmpty());
}

void tst_EQDynModels::thumbnailSignals_data()
{
    QTest::addColumn<bool>("dynamics");
    QTest::addColumn<QString>("step");
    QTest::addColumn<QStringList>("expected");

    for (bool dynamics : {false, true}) {
        const char* kind = dynamics ? "dyn" : "eq";
        const char* limits = dynamics ? "thresholdLimits" : "gainLimits";
        QTest::addRow("%s on", kind) << dynamics << "on 1" << QStringList{"isOn"};
        QTest::addRow("%s same on", kind) << dynamics << "on 0" << QStringList{};
        QTest::addRow("%s mixed", kind) << dynamics << "on 2" << QStringList{"isOn"};
        QTest::addRow("%s out of range on", kind) << dynamics << "on 3" << QStringList{};
        QTest::addRow("%s empty", kind) << dynamics << "empty" << QStringList{"isEmpty"};
        QTest::addRow("%s same limits", kind) << dynamics << "same limits" << QStringList{};
        QTest::addRow("%s one limit", kind) << dynamics << "one limit" << QStringList{limits};
        QTest::addRow("%s NaN limit", kind) << dynamics << "nan limit" << QStringList{};
        QTest::addRow("%s list, twice", kind)
            << dynamics << "list"
            << (dynamics ? QStringList{"commonDynamics", "commonDynamics"}
                         : QStringList{"commonEQs", "commonEQs", "arrayEQs"});
    }
}

void tst_EQDynModels::thumbnailSignals()
{
    QFETCH(bool, dynamics);
    QFETCH(QString, step);
    QFETCH(QStringList, expected);

    VynUIEQThumbnailComponent eq;
    VynUIDynThumbnailComponent dyn;
    ThumbnailRecorder recorder = dynamics ? ThumbnailRecorder(&dyn) : ThumbnailRecorder(&eq);
    VynEQCommonEQ common;
    VynArrayEQ array;
    VynDynamicCommon block;
    if (step.startsWith(QLatin1String("on "))) {
        const auto on = VynBOOL(step.mid(3).toInt());
        if (on > QtCommonsConstants::VynBOOLMixed)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Ignored on state 3"));
        dynamics ? dyn.setOn(on) : eq.setOn(on);
    } else if (step == QLatin1String("empty")) {
        dynamics ? dyn.setEmpty(true) : eq.setEmpty(true);
    } else if (step == QLatin1String("same limits")) {
        dynamics ? dyn.setThresholdLimits(-36, 0) : eq.setGainLimits(-18, 18);
    } else if (step == QLatin1String("one limit")) {
        dynamics ? dyn.setThresholdLimits(-36, -6) : eq.setGainLimits(-24, 18);
        QCOMPARE(dynamics ? dyn.thresholdMax() : eq.gainMin(), dynamics ? -6.0 : -24.0);
    } else if (step == QLatin1String("nan limit")) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("not numbers"));
        const double nan = std::numeric_limits<double>::quiet_NaN();
        dynamics ? dyn.setThresholdLimits(nan, 0) : eq.setGainLimits(nan, 18);
        QCOMPARE(dynamics ? dyn.thresholdMin() : eq.gainMin(), dynamics ? -36.0 : -18.0);
    } else if (step == QLatin1String("list")) {
        if (dynamics) {
            dyn.setCommonDynamics({&block});
            dyn.setCommonDynamics({&block});
            QCOMPARE(dyn.commonDynamicsQml().value(0).value<QObject*>(), &block);
        } else {
            eq.setCommonEQs({&common});
            eq.setCommonEQs({&common});
            eq.setArrayEQs({{&array}, {}});
            QCOMPARE(eq.commonEQsQml().value(0).value<QObject*>(), &common);
            const QVariantList arrays = eq.arrayEQsQml();
            QCOMPARE(arrays.size(), 2);
            QCOMPARE(arrays[0].toList().value(0).value<QObject*>(), &array);
            QVERIFY(arrays[1].toList().isEmpty());
        }
    }
    QCOMPARE(recorder.take(), expected);
}

void tst_EQDynModels::bandSignals_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("type") << "type" << QVariant(4) << QStringList{"type", "values"};
    QTest::newRow("same type") << "type" << QVariant(1) << QStringList{};
    QTest::newRow("frequency") << "frequency" << QVariant(2000.0)
                               << QStringList{"frequency", "values"};
    QTest::newRow("frequency within the fuzz")
        << "frequency" << QVariant(1000.0 + 1e-10) << QStringList{};
    QTest::newRow("gain from 0") << "gain" << QVariant(1e-30) << QStringList{"gain", "values"};
    QTest::newRow("NaN gain refused")
        << "gain" << QVariant(std::numeric_limits<double>::quiet_NaN()) << QStringList{};
    QTest::newRow("infinite q refused")
        << "q" << QVariant(std::numeric_limits<double>::infinity()) << QStringList{};
    QTest::newRow("q") << "q" << QVariant(4.0) << QStringList{"q", "values"};
    QTest::newRow("enabled") << "enabled" << QVariant(false) << QStringList{"enabled", "values"};
    QTest::newRow("used") << "used" << QVariant(false) << QStringList{"used", "values"};
}

void tst_EQDynModels::bandSignals()
{
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    QFETCH(QStringList, expected);

    VynEQBand band;
    ValuesRecorder recorder(&band);
    if (expected.isEmpty() && value.typeId() == QMetaType::Double &&
        !std::isfinite(value.toDouble()))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("refused"));
    const QVariant before = band.property(qPrintable(property));
    QVERIFY(band.setProperty(qPrintable(property), value));
    QCOMPARE(recorder.take(), expected);
    if (expected.isEmpty())
        QCOMPARE(band.property(qPrintable(property)), before);
}

void tst_EQDynModels::dynamicSignals_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("gain") << "gain" << QVariant(3.0) << QStringList{"gain", "values"};
    QTest::newRow("threshold") << "threshold" << QVariant(-20.0)
                               << QStringList{"threshold", "values"};
    QTest::newRow("same ratio") << "ratio" << QVariant(1.0) << QStringList{};
    QTest::newRow("ratio") << "ratio" << QVariant(0.25) << QStringList{"ratio", "values"};
    QTest::newRow("knee") << "knee" << QVariant(6.0) << QStringList{"knee", "values"};
    QTest::newRow("NaN knee refused")
        << "knee" << QVariant(std::numeric_limits<double>::quiet_NaN()) << QStringList{};
    QTest::newRow("off") << "isOn" << QVariant(false) << QStringList{"isOn", "values"};
}

void tst_EQDynModels::dynamicSignals()
{
    QFETCH(QString, property);
    QFETCH(QVariant, value);
    QFETCH(QStringList, expected);

    VynDynamicCommon block;
    ValuesRecorder recorder(&block);
    if (expected.isEmpty() && value.typeId() == QMetaType::Double &&
        !std::isfinite(value.toDouble()))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("refused"));
    QVERIFY(block.setProperty(qPrintable(property), value));
    QCOMPARE(recorder.take(), expected);
}

void tst_EQDynModels::eqForwardsBandChanges()
{
    VynEQCommonEQ eq;
    ValuesRecorder recorder(&eq);
    eq.setBandCount(3);
    eq.setBandCount(3);
    QCOMPARE(recorder.take(), QStringList{"bands"});
    QCOMPARE(eq.bandsQml().size(), 3);
    eq.band(1)->setGain(6);
    eq.band(2)->setEnabled(false);
    eq.setOn(false);
    QCOMPARE(recorder.take(), QStringList({"bandValues", "bandValues", "on"}));
    const auto values = eq.bandValues();
    QCOMPARE(values[1].gain, 6.0);
    QVERIFY(!values[2].enabled);
    QCOMPARE(eq.band(3), nullptr);
    // A removed band is deleted and no longer reports.
    QPointer<VynEQBand> last = eq.band(2);
    eq.setBandCount(2);
    QVERIFY(last.isNull());
    QCOMPARE(recorder.take(), QStringList{"bands"});

    VynArrayEQ array;
    QSignalSpy index(&array, &VynArrayEQ::elementIndexChanged);
    array.setElementIndex(2);
    array.setElementIndex(2);
    QCOMPARE(index.count(), 1);
}

QTEST_MAIN(tst_EQDynModels)
#include "tst_eqdynmodels.moc"
