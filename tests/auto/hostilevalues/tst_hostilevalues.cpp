// Values that are not numbers, handed in by a host whose device has not answered yet (NaN) or
// that reports an overflow (infinity). One table per family of setters: a NaN is refused (old
// state kept, no signal at all, exactly one log line); an infinity becomes the end of the range
// where a range exists, and is refused where none does; a value label that cannot be placed
// is hidden. A button, which has no range, refuses a rate or an option value that is not a
// finite number.

#include "vynlabeloptimizer.h"
#include "vynoptimizedlabel.h"
#include "vynuibuttoncomponent.h"
#include "vynuislidefieldcomponent.h"
#include "vynuislidercomponent.h"

#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

// Counts every emission of every signal of an object.
class AllSignals
{
public:
    explicit AllSignals(QObject* object)
    {
        const QMetaObject* meta = object->metaObject();
        for (int i = 0; i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            if (method.methodType() == QMetaMethod::Signal && method.name() != "destroyed" &&
                method.name() != "objectNameChanged")
                m_spies.push_back(std::make_unique<QSignalSpy>(object, method));
        }
    }
    QStringList fired() const
    {
        QStringList names;
        for (const auto& spy : m_spies) {
            if (!spy->isEmpty())
                names << QString::fromLatin1(spy->signal());
        }
        return names;
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

// Counts the warnings logged while it lives (the components log through qWarning() when the
// host created no logger).
class WarningCounter
{
public:
    WarningCounter() { s_count = 0, s_previous = qInstallMessageHandler(handler); }
    ~WarningCounter() { qInstallMessageHandler(s_previous); }
    int count() const { return s_count; }

private:
    static void handler(QtMsgType type, const QMessageLogContext&, const QString&)
    {
        if (type == QtWarningMsg)
            ++s_count;
    }
    static inline int s_count = 0;
    static inline QtMessageHandler s_previous = nullptr;
};

enum class Setter { Value, ValueQml, Values, MinValue, MaxValue, InitValue, PrevValue };

// A slider component with range [-60, 12], value -6, init 0, prev -3 and values {-6}.
std::unique_ptr<VynUISliderComponent> makeComponent(bool slideField)
{
    std::unique_ptr<VynUISliderComponent> c;
    if (slideField)
        c = std::make_unique<VynUISlideFieldComponent>(nullptr, false);
    else
        c = std::make_unique<VynUISliderComponent>(nullptr, false);
    c->setMinValue(-60.0);
    c->setMaxValue(12.0);
    c->setInitValue(0.0);
    c->setPrevValue(-3.0);
    c->setValue(-6.0, false, {-6.0});
    return c;
}

void apply(VynUISliderComponent* c, Setter setter, double input)
{
    switch (setter) {
    case Setter::Value:
        c->setValue(input, false, {input});
        break;
    case Setter::ValueQml:
        c->setValueQml(input);
        break;
    case Setter::Values:
        c->setValue(-6.0, true, {-6.0, input});
        break;
    case Setter::MinValue:
        c->setMinValue(input);
        break;
    case Setter::MaxValue:
        c->setMaxValue(input);
        break;
    case Setter::InitValue:
        c->setInitValue(input);
        break;
    case Setter::PrevValue:
        c->setPrevValue(input);
        break;
    }
}

struct State
{
    double value, minValue, maxValue, initValue, prevValue;
    QVariantList values;
    bool mixed;
    QString text;

    explicit State(const VynUISliderComponent* c)
        : value(c->value()), minValue(c->minValue()), maxValue(c->maxValue()),
          initValue(c->initValue()), prevValue(c->prevValue()), values(c->values()),
          mixed(c->mixed()), text(c->stringValue())
    {}
    bool operator==(const State& o) const
    {
        return value == o.value && minValue == o.minValue && maxValue == o.maxValue &&
               initValue == o.initValue && prevValue == o.prevValue && values == o.values &&
               mixed == o.mixed && text == o.text;
    }
};

} // namespace

Q_DECLARE_METATYPE(Setter)

class tst_HostileValues : public QObject
{
    Q_OBJECT

private slots:
    void componentSetters_data();
    void componentSetters();
    void componentValidators_data();
    void componentValidators();
    void labels_data();
    void labels();
    void buttonSetters_data();
    void buttonSetters();
};

void tst_HostileValues::componentSetters_data()
{
    QTest::addColumn<bool>("slideField");
    QTest::addColumn<Setter>("setter");
    QTest::addColumn<double>("input");
    // NaN when refused; otherwise the value the property reads afterwards.
    QTest::addColumn<double>("expected");
    QTest::addColumn<QString>("property");

    struct Row
    {
        const char* name;
        Setter setter;
        const char* property;
        double input, expected;
    };
    const Row rows[] = {
        {"value NaN", Setter::Value, "value", kNaN, kNaN},
        {"value +inf", Setter::Value, "value", kInf, 12.0},
        {"value -inf", Setter::Value, "value", -kInf, -60.0},
        {"value from QML NaN", Setter::ValueQml, "value", kNaN, kNaN},
        {"value from QML +inf", Setter::ValueQml, "value", kInf, 12.0},
        {"value from QML -inf", Setter::ValueQml, "value", -kInf, -60.0},
        {"NaN among values", Setter::Values, "value", kNaN, kNaN},
        {"minValue NaN", Setter::MinValue, "minValue", kNaN, kNaN},
        {"minValue -inf", Setter::MinValue, "minValue", -kInf, kNaN},
        {"maxValue NaN", Setter::MaxValue, "maxValue", kNaN, kNaN},
        {"maxValue +inf", Setter::MaxValue, "maxValue", kInf, kNaN},
        {"initValue NaN", Setter::InitValue, "initValue", kNaN, kNaN},
        {"initValue +inf", Setter::InitValue, "initValue", kInf, 12.0},
        {"prevValue NaN", Setter::PrevValue, "prevValue", kNaN, kNaN},
        {"prevValue -inf", Setter::PrevValue, "prevValue", -kInf, -60.0},
    };
    for (bool slideField : {false, true}) {
        for (const Row& row : rows) {
            QTest::addRow("%s %s", slideField ? "field" : "slider", row.name)
                << slideField << row.setter << row.input << row.expected
                << QString::fromLatin1(row.property);
        }
    }
}

void tst_HostileValues::componentSetters()
{
    QFETCH(bool, slideField);
    QFETCH(Setter, setter);
    QFETCH(double, input);
    QFETCH(double, expected);
    QFETCH(QString, property);

    auto c = makeComponent(slideField);
    const State before(c.get());
    AllSignals emitted(c.get());
    WarningCounter warnings;
    apply(c.get(), setter, input);

    if (std::isnan(expected)) {
        QVERIFY(State(c.get()) == before);
        QCOMPARE(emitted.fired(), QStringList());
        QCOMPARE(warnings.count(), 1);
    } else {
        QCOMPARE(c->property(property.toLatin1()).toDouble(), expected);
        QVERIFY(!emitted.fired().isEmpty());
        QCOMPARE(warnings.count(), 0);
    }
    QVERIFY(!std::isnan(c->value()));
    QVERIFY(!c->stringValue().contains(QLatin1String("nan"), Qt::CaseInsensitive));
}

void tst_HostileValues::componentValidators_data()
{
    QTest::addColumn<double>("offered");
    QTest::addColumn<double>("prevValue");
    QTest::addColumn<double>("answered"); // what the validator writes back; NaN: keeps it
    QTest::addColumn<int>("validatorCalls");

    QTest::newRow("NaN offered") << kNaN << -6.0 << 0.0 << 0;
    QTest::newRow("NaN previous value") << -3.0 << kNaN << 0.0 << 0;
    QTest::newRow("validator answers NaN") << -3.0 << -6.0 << kNaN << 1;
}

void tst_HostileValues::componentValidators()
{
    QFETCH(double, offered);
    QFETCH(double, prevValue);
    QFETCH(double, answered);
    QFETCH(int, validatorCalls);

    for (bool slideField : {false, true}) {
        auto c = makeComponent(slideField);
        int calls = 0;
        c->setValueValidator(
            [&](VynUISliderComponent*, double& value, bool, double previous, bool) {
                ++calls;
                if (std::isnan(value) || std::isnan(previous))
                    qFatal("a validator was offered NaN");
                value = answered;
                return true;
            });
        const State before(c.get());
        AllSignals emitted(c.get());
        WarningCounter warnings;
        QVERIFY(!c->expectsValue(offered, false, prevValue, true));
        QCOMPARE(calls, validatorCalls);
        QVERIFY(State(c.get()) == before);
        QCOMPARE(emitted.fired(), QStringList());
        QCOMPARE(warnings.count(), 1);
    }
}

void tst_HostileValues::labels_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<double>("length");

    QTest::newRow("position NaN") << kNaN << 20.0;
    QTest::newRow("position +inf") << kInf << 20.0;
    QTest::newRow("position -inf") << -kInf << 20.0;
    QTest::newRow("length NaN") << 50.0 << kNaN;
    QTest::newRow("length +inf") << 50.0 << kInf;
}

// A label that cannot be placed is hidden and leaves its neighbours where they would be
// without it.
void tst_HostileValues::labels()
{
    QFETCH(double, position);
    QFETCH(double, length);

    VynLabelOptimizer optimizer;
    optimizer.setPositionMin(0.0);
    optimizer.setPositionMax(100.0);
    VynOptimizedLabel left, right, hostile;
    left.setPosition(40.0);
    left.setLength(20.0);
    right.setPosition(60.0);
    right.setLength(20.0);
    optimizer.addOptimizedLabel(&left);
    optimizer.addOptimizedLabel(&right);
    const double leftAlone = left.optimizedPosition();
    const double rightAlone = right.optimizedPosition();

    hostile.setPosition(50.0);
    hostile.setLength(20.0);
    optimizer.addOptimizedLabel(&hostile);
    QVERIFY(hostile.isVisible());
    hostile.setPosition(position);
    hostile.setLength(length);

    QVERIFY(!hostile.isVisible());
    QCOMPARE(left.optimizedPosition(), leftAlone);
    QCOMPARE(right.optimizedPosition(), rightAlone);
    QVERIFY(left.isVisible() && right.isVisible());
    QVERIFY(std::isfinite(left.optimizedPosition()) && std::isfinite(right.optimizedPosition()));
}

void tst_HostileValues::buttonSetters_data()
{
    // A button has no range: every value that is not a finite number is refused.
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("input");

    QTest::newRow("rate NaN") << QByteArray("rate") << QVariant(kNaN);
    QTest::newRow("rate +inf") << QByteArray("rate") << QVariant(kInf);
    QTest::newRow("rate -inf") << QByteArray("rate") << QVariant(-kInf);
    QTest::newRow("optionValue NaN") << QByteArray("optionValue") << QVariant(kNaN);
    QTest::newRow("optionValue float NaN")
        << QByteArray("optionValue") << QVariant(std::numeric_limits<float>::quiet_NaN());
    QTest::newRow("optionAltValue NaN") << QByteArray("optionAltValue") << QVariant(kNaN);
    VynUIButtonConfig config;
    config.action = 9;
    config.optionValue = kNaN;
    QTest::newRow("buttonConfig holding NaN")
        << QByteArray("buttonConfig") << QVariant::fromValue(config);
    config.optionValue = 1;
    config.optionAltValue = kNaN;
    config.toggleBitMask = 0x2;
    QTest::newRow("buttonConfig holding NaN, new mask")
        << QByteArray("buttonConfig") << QVariant::fromValue(config);
}

void tst_HostileValues::buttonSetters()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, input);

    VynUIButtonComponent button;
    button.setRate(0.25);
    button.setOptionValue(2.0);
    button.setOptionAltValue(3.0);
    const VynUIButtonConfig before = button.buttonConfig();
    AllSignals emitted(&button);
    WarningCounter warnings;
    QVERIFY(button.setProperty(property.constData(), input));
    QCOMPARE(emitted.fired(), QStringList());
    QCOMPARE(warnings.count(), 1);
    QCOMPARE(button.rate(), 0.25);
    QVERIFY(button.buttonConfig() == before);
}

QTEST_GUILESS_MAIN(tst_HostileValues)
#include "tst_hostilevalues.moc"
