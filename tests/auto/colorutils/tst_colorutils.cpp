#include "vyncolorutils.h"

#include <vynrgbcolor.h>

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

QColor rgba(double r, double g, double b, double a = 1.0)
{
    return QColor::fromRgbF(float(r), float(g), float(b), float(a));
}

// Colours built from 16-bit channels and float arithmetic agree to about 1/65535; table
// values are given with two decimals, so 1e-3 separates right from wrong.
bool sameColor(const QColor& actual, const QColor& expected, double tolerance = 1e-3)
{
    if (actual.isValid() != expected.isValid())
        return false;
    if (!actual.isValid())
        return true;
    return std::abs(actual.redF() - expected.redF()) <= tolerance &&
           std::abs(actual.greenF() - expected.greenF()) <= tolerance &&
           std::abs(actual.blueF() - expected.blueF()) <= tolerance &&
           std::abs(actual.alphaF() - expected.alphaF()) <= tolerance;
}

QString describe(const QColor& c)
{
    if (!c.isValid())
        return QStringLiteral("invalid");
    return QStringLiteral("(%1, %2, %3, %4)")
        .arg(c.redF())
        .arg(c.greenF())
        .arg(c.blueF())
        .arg(c.alphaF());
}

#define COMPARE_COLOR(actual, expected)                                                            \
    do {                                                                                           \
        const QColor a_ = (actual), e_ = (expected);                                               \
        QVERIFY2(sameColor(a_, e_), qPrintable(describe(a_) + " != " + describe(e_)));             \
    } while (false)

// A three-stop gradient with two colour groups, so that the group offset shows.
constexpr VynRGBColor kColors[] = {
    {0.0, 0.0, 0.0, 0.0}, {0.4, 0.8, 0.2, 1.0}, {1.0, 1.0, 1.0, 1.0}, // group 0
    {0.2, 0.2, 0.2, 0.2}, {0.6, 0.6, 0.6, 0.6}, {0.9, 0.9, 0.9, 0.9}, // group 1
};
constexpr double kLocations[] = {0.0, 0.25, 1.0};

constexpr VynHSBTransform kTransforms[] = {
    {1, 0.1, 1, 0, 1, 0, 1, 0},
    {1, 0, 0, 0.5, 0, 0.25, 1, -0.5},
};

} // namespace

class TestColorUtils : public QObject
{
    Q_OBJECT

private slots:
    void rgbColorFromString_data();
    void rgbColorFromString();
    void rgbColorMakeAndCompare();
    void colorFromRGBColorString();
    void tableReads();
    void gradient_data();
    void gradient();
    void hsbTransform_data();
    void hsbTransform();
    void lightOrDark_data();
    void lightOrDark();
    void settingAlpha_data();
    void settingAlpha();
    void derivedColors();
    void compositing_data();
    void compositing();
    void stopLists_data();
    void stopLists();
    void nonFiniteArithmetic_data();
    void nonFiniteArithmetic();
};

void TestColorUtils::rgbColorFromString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("expected"); // "r g b a" or empty for the zero record

    QTest::newRow("hex6") << "#1f82e0" << true << "0.121569 0.509804 0.878431 1";
    QTest::newRow("hex8 mixed case")
        << " #1F82e0E6 " << true << "0.121569 0.509804 0.878431 0.901961";
    QTest::newRow("decimal4") << " 0.12, 0.51 ,0.88,0.9 " << true << "0.12 0.51 0.88 0.9";
    QTest::newRow("decimal3") << "0,0.5,1" << true << "0 0.5 1 1";
    QTest::newRow("transparent") << "1,1,1,0" << true << "1 1 1 0";
    QTest::newRow("empty") << "" << false << "";
    QTest::newRow("only hash") << "#" << false << "";
    QTest::newRow("hex5") << "#12345" << false << "";
    QTest::newRow("hex7") << "#1234567" << false << "";
    QTest::newRow("not hex") << "#gg0000" << false << "";
    QTest::newRow("signed hex") << "#+10000" << false << "";
    QTest::newRow("above one") << "1.2,0,0" << false << "";
    QTest::newRow("negative") << "-0.1,0,0,1" << false << "";
    QTest::newRow("two channels") << "0,0" << false << "";
    QTest::newRow("five channels") << "0,0,0,0,0" << false << "";
    QTest::newRow("empty channel") << "0,,0" << false << "";
    QTest::newRow("nan") << "nan,0,0" << false << "";
    QTest::newRow("name") << "red" << false << "";
}

void TestColorUtils::rgbColorFromString()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(QString, expected);

    bool parsed = !ok;
    const VynRGBColor color = VynRGBColorFromString(text, &parsed);
    QCOMPARE(parsed, ok);
    VynRGBColor want;
    if (!expected.isEmpty()) {
        const QStringList parts = expected.split(' ');
        want = VynRGBColor{parts[0].toDouble(), parts[1].toDouble(), parts[2].toDouble(),
                           parts[3].toDouble()};
    }
    QVERIFY(std::abs(color.red - want.red) < 1e-6);
    QVERIFY(std::abs(color.green - want.green) < 1e-6);
    QVERIFY(std::abs(color.blue - want.blue) < 1e-6);
    QVERIFY(std::abs(color.alpha - want.alpha) < 1e-6);
    // Without the flag the result is the same.
    QVERIFY(VynRGBColorFromString(text) == color);
}

void TestColorUtils::rgbColorMakeAndCompare()
{
    const VynRGBColor clamped =
        VynRGBColorMake(-1.0, 2.0, std::numeric_limits<double>::quiet_NaN(), 0.5);
    QVERIFY(clamped == (VynRGBColor{0.0, 1.0, 0.0, 0.5}));
    QVERIFY(VynRGBColorMake(0.1, 0.2, 0.3) == (VynRGBColor{0.1, 0.2, 0.3, 1.0}));

    // Equality tolerates 8-bit round trips, not a step of 1/255.
    const VynRGBColor a{0.12, 0.51, 0.88, 0.9};
    bool ok = false;
    const VynRGBColor back = VynRGBColorFromString(VynRGBColorToString(a), &ok);
    QVERIFY(ok);
    QVERIFY(VynRGBColorEqualsColor(a, back));
    QVERIFY(!VynRGBColorEqualsColor(a, VynRGBColor{0.12 + 1.0 / 255, 0.51, 0.88, 0.9}));
    QVERIFY(!VynRGBColorEqualsColor(a, VynRGBColor{0.12, 0.51, 0.88, 0.8}));
    QCOMPARE(VynRGBColorToString(VynRGBColor{1, 0, 0.5, 1}), QStringLiteral("#ff0080ff"));

    QVERIFY(VynColorUtils::rgbColorZero() == VynRGBColor{});
    const VynRGBColor fromColor = VynColorUtils::rgbColorFromColor(rgba(0.25, 0.5, 0.75, 0.5));
    QVERIFY(VynRGBColorEqualsColor(fromColor, VynRGBColor{0.25, 0.5, 0.75, 0.5}));
    QVERIFY(VynColorUtils::rgbColor(QColor()) == VynRGBColor{});
}

void TestColorUtils::colorFromRGBColorString()
{
    COMPARE_COLOR(VynColorUtils::colorFromRGBColorString("0.2,0.4,0.6,0.8"),
                  rgba(0.2, 0.4, 0.6, 0.8));
    QVERIFY(!VynColorUtils::colorFromRGBColorString("bogus").isValid());
    // A real transparent black stays valid.
    QVERIFY(VynColorUtils::colorFromRGBColorString("0,0,0,0").isValid());
}

void TestColorUtils::tableReads()
{
    COMPARE_COLOR(VynColorUtils::colorWithRGBComponents(kColors), rgba(0, 0, 0, 0));
    COMPARE_COLOR(VynColorUtils::colorWithRGBComponentsStyle(kColors, 1), rgba(0.4, 0.8, 0.2));
    // A style past Dark reads Dark, not a later entry of a longer table.
    COMPARE_COLOR(VynColorUtils::colorWithRGBComponentsStyle(kColors, 4), rgba(0.4, 0.8, 0.2));
    COMPARE_COLOR(VynColorUtils::colorByApplyingHSBTransformStyle(rgba(0, 0, 1), kTransforms, 9),
                  VynColorUtils::colorByApplyingHSBTransform(rgba(0, 0, 1), kTransforms[1]));
    COMPARE_COLOR(VynColorUtils::colorWithRGBComponentsOffset(kColors, 4),
                  rgba(0.6, 0.6, 0.6, 0.6));
    // Indexes outside the table read its ends.
    COMPARE_COLOR(VynColorUtils::colorWithRGBComponentsOffset(kColors, -3), rgba(0, 0, 0, 0));
    COMPARE_COLOR(VynColorUtils::colorWithRGBComponentsOffset(kColors, 99),
                  rgba(0.9, 0.9, 0.9, 0.9));
    COMPARE_COLOR(VynColorUtils::colorWithRGBComponentsOffsetAlpha(kColors, 1, 0.3),
                  rgba(0.4, 0.8, 0.2, 0.3));
    QVERIFY(!VynColorUtils::colorWithRGBComponentsOffset(nullptr, 0, 0).isValid());

    const QList<QColor> two = VynColorUtils::colorsWithRGBComponents(kColors, 2);
    QCOMPARE(two.size(), 2);
    COMPARE_COLOR(two.at(1), rgba(0.4, 0.8, 0.2));
    QCOMPARE(VynColorUtils::colorsWithRGBComponents(kColors, 50).size(), 6);
    QCOMPARE(VynColorUtils::colorsWithRGBComponents(kColors, -1).size(), 0);
}

void TestColorUtils::gradient_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("position");
    QTest::addColumn<int>("group");
    QTest::addColumn<QColor>("expected");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("before first") << 3 << -0.5 << 0 << rgba(0, 0, 0, 0);
    QTest::newRow("first stop") << 3 << 0.0 << 0 << rgba(0, 0, 0, 0);
    QTest::newRow("exact middle stop") << 3 << 0.25 << 0 << rgba(0.4, 0.8, 0.2, 1);
    QTest::newRow("half to middle") << 3 << 0.125 << 0 << rgba(0.2, 0.4, 0.1, 0.5);
    QTest::newRow("third past middle") << 3 << 0.5 << 0 << rgba(0.6, 0.866667, 0.466667, 1);
    QTest::newRow("last stop") << 3 << 1.0 << 0 << rgba(1, 1, 1, 1);
    QTest::newRow("beyond last") << 3 << 7.0 << 0 << rgba(1, 1, 1, 1);
    QTest::newRow("nan reads last") << 3 << nan << 0 << rgba(1, 1, 1, 1);
    QTest::newRow("no stops") << 0 << 0.5 << 0 << rgba(0, 0, 0, 0);
    QTest::newRow("count beyond locations") << 9 << 2.0 << 0 << rgba(1, 1, 1, 1);
    QTest::newRow("group blends in group") << 3 << 0.125 << 1 << rgba(0.4, 0.4, 0.4, 0.4);
    QTest::newRow("group exact stop reads first group") << 3 << 0.25 << 1 << rgba(0.4, 0.8, 0.2);
    QTest::newRow("group end reads first group") << 3 << 1.0 << 1 << rgba(1, 1, 1, 1);
    QTest::newRow("group start reads first group") << 3 << 0.0 << 1 << rgba(0, 0, 0, 0);
    QTest::newRow("group past table clamps") << 3 << 0.125 << 5 << rgba(0.9, 0.9, 0.9, 0.9);
    QTest::newRow("two stops only") << 2 << 1.0 << 0 << rgba(0.4, 0.8, 0.2, 1);
}

void TestColorUtils::gradient()
{
    QFETCH(int, count);
    QFETCH(double, position);
    QFETCH(int, group);
    QFETCH(QColor, expected);
    COMPARE_COLOR(
        VynColorUtils::colorWithRGBGradientComponents(kColors, kLocations, count, position, group),
        expected);
    if (group <= 1)
        COMPARE_COLOR(VynColorUtils::colorWithRGBGradientComponentsStyle(kColors, kLocations, count,
                                                                         position, group),
                      expected);
}

void TestColorUtils::hsbTransform_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("hueScale");
    QTest::addColumn<double>("hueOffset");
    QTest::addColumn<double>("saturationOffset");
    QTest::addColumn<double>("brightnessScale");
    QTest::addColumn<double>("brightnessOffset");
    QTest::addColumn<double>("alphaOffset");
    QTest::addColumn<QColor>("expected");

    const QColor blue = QColor::fromHsvF(0.6f, 0.5f, 0.8f, 1.0f);
    QTest::newRow("identity") << blue << 1.0 << 0.0 << 0.0 << 1.0 << 0.0 << 0.0 << blue;
    QTest::newRow("pure red keeps hue 0")
        << rgba(1, 0, 0) << 1.0 << 0.3 << 0.0 << 1.0 << 0.0 << 0.0 << rgba(1, 0, 0);
    QTest::newRow("grey keeps no hue")
        << rgba(0.5, 0.5, 0.5) << 1.0 << 0.3 << 0.0 << 1.0 << 0.0 << 0.0 << rgba(0.5, 0.5, 0.5);
    QTest::newRow("hue offset") << blue << 1.0 << 0.1 << 0.0 << 1.0 << 0.0 << 0.0
                                << QColor::fromHsvF(0.7f, 0.5f, 0.8f);
    QTest::newRow("hue wraps above 1")
        << blue << 1.0 << 0.5 << 0.0 << 1.0 << 0.0 << 0.0 << QColor::fromHsvF(0.1f, 0.5f, 0.8f);
    QTest::newRow("hue wraps below 0")
        << blue << 1.0 << -0.7 << 0.0 << 1.0 << 0.0 << 0.0 << QColor::fromHsvF(0.9f, 0.5f, 0.8f);
    QTest::newRow("hue far below clamps to 0")
        << blue << 1.0 << -3.0 << 0.0 << 1.0 << 0.0 << 0.0 << QColor::fromHsvF(0.0f, 0.5f, 0.8f);
    QTest::newRow("hue far above clamps to 1")
        << blue << 5.0 << 0.0 << 0.0 << 1.0 << 0.0 << 0.0 << QColor::fromHsvF(1.0f, 0.5f, 0.8f);
    QTest::newRow("saturation clamps")
        << blue << 1.0 << 0.0 << 0.9 << 1.0 << 0.0 << 0.0 << QColor::fromHsvF(0.6f, 1.0f, 0.8f);
    QTest::newRow("brightness scale and offset")
        << blue << 1.0 << 0.0 << 0.0 << 0.9 << -0.1 << 0.0 << QColor::fromHsvF(0.6f, 0.5f, 0.62f);
    QTest::newRow("brightness clamps at 0")
        << blue << 1.0 << 0.0 << 0.0 << 1.0 << -2.0 << 0.0 << QColor::fromHsvF(0.6f, 0.5f, 0.0f);
    QTest::newRow("alpha clamps") << blue << 1.0 << 0.0 << 0.0 << 1.0 << 0.0 << -1.5
                                  << QColor::fromHsvF(0.6f, 0.5f, 0.8f, 0.0f);
}

void TestColorUtils::hsbTransform()
{
    QFETCH(QColor, color);
    QFETCH(double, hueScale);
    QFETCH(double, hueOffset);
    QFETCH(double, saturationOffset);
    QFETCH(double, brightnessScale);
    QFETCH(double, brightnessOffset);
    QFETCH(double, alphaOffset);
    QFETCH(QColor, expected);

    const VynHSBTransform t{hueScale,        hueOffset,        1, saturationOffset,
                            brightnessScale, brightnessOffset, 1, alphaOffset};
    const QColor result = VynColorUtils::colorByApplyingHSBTransform(color, t);
    COMPARE_COLOR(result, expected);
    if (color.hsvHueF() < 0)
        QCOMPARE(result.hsvHueF(), -1.0f);
}

void TestColorUtils::lightOrDark_data()
{
    QTest::addColumn<double>("grey");
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("styleExtreme");
    QTest::addColumn<bool>("whiteText");
    QTest::addColumn<bool>("whiteTextExtreme");

    const int L = VynColorUtils::VynStyleLight;
    const int D = VynColorUtils::VynStyleDark;
    // 1 − L against 0.5 (plain), 0.35 (extreme style) and 0.3 (extreme contrast).
    QTest::newRow("black") << 0.0 << D << D << true << true;
    QTest::newRow("mid grey is dark") << 0.5 << D << D << true << true;
    QTest::newRow("just lighter is light") << 0.51 << L << D << false << true;
    QTest::newRow("0.65 extreme edge") << 0.65 << L << D << false << true;
    QTest::newRow("0.66 past extreme style") << 0.66 << L << L << false << true;
    QTest::newRow("0.7 extreme contrast edge") << 0.7 << L << L << false << true;
    QTest::newRow("0.71 past extreme contrast") << 0.71 << L << L << false << false;
    QTest::newRow("white") << 1.0 << L << L << false << false;
}

void TestColorUtils::lightOrDark()
{
    QFETCH(double, grey);
    QFETCH(int, style);
    QFETCH(int, styleExtreme);
    QFETCH(bool, whiteText);
    QFETCH(bool, whiteTextExtreme);

    // Exact decimal greys: QColor stores 16 bits, so compute from what it keeps.
    const QColor c = rgba(grey, grey, grey);
    QCOMPARE(int(VynColorUtils::backgroundStyle(c)), style);
    QCOMPARE(int(VynColorUtils::backgroundStyleExtreme(c)), styleExtreme);
    COMPARE_COLOR(VynColorUtils::blackOrWhiteContrastingColor(c),
                  whiteText ? rgba(1, 1, 1) : rgba(0, 0, 0));
    COMPARE_COLOR(VynColorUtils::blackOrWhiteContrastingColorExtreme(c),
                  whiteTextExtreme ? rgba(1, 1, 1) : rgba(0, 0, 0));
    QVERIFY(VynColorUtils::isGray(c));
}

void TestColorUtils::settingAlpha_data()
{
    QTest::addColumn<double>("alpha");
    QTest::addColumn<int>("expectedAlpha"); // −1: invalid colour

    QTest::newRow("half truncates to 0") << 0.5 << 0;
    QTest::newRow("one is almost transparent") << 1.0 << 1;
    QTest::newRow("truncated") << 128.9 << 128;
    QTest::newRow("top of scale") << 255.0 << 255;
    QTest::newRow("just past the top") << 255.5 << 255;
    QTest::newRow("above the scale") << 300.0 << -1;
    QTest::newRow("negative") << -1.0 << -1;
    QTest::newRow("small negative truncates to 0") << -0.5 << 0;
    QTest::newRow("nan") << std::numeric_limits<double>::quiet_NaN() << -1;
}

void TestColorUtils::settingAlpha()
{
    QFETCH(double, alpha);
    QFETCH(int, expectedAlpha);
    const QColor result = VynColorUtils::colorBySettingAlpha(QColor(10, 20, 30, 40), alpha);
    if (expectedAlpha < 0) {
        QVERIFY(!result.isValid());
        return;
    }
    QCOMPARE(result, QColor(10, 20, 30, expectedAlpha));
}

void TestColorUtils::derivedColors()
{
    const QColor base = QColor::fromHsvF(0.02f, 0.5f, 0.8f, 0.7f);
    // v > 0.6: v × 0.8 − 0.4; hue − 0.05 wraps.
    COMPARE_COLOR(VynColorUtils::contrastingColor(base),
                  QColor::fromHsvF(0.97f, 0.5f, 0.24f, 0.7f));
    // v ≤ 0.6: v × 1.2 + 0.4.
    COMPARE_COLOR(VynColorUtils::contrastingColor(QColor::fromHsvF(0.5f, 0.5f, 0.5f)),
                  QColor::fromHsvF(0.45f, 0.5f, 1.0f));
    COMPARE_COLOR(VynColorUtils::contrastingColorLight(base),
                  QColor::fromHsvF(0.93f, 0.75f, 0.848f, 0.7f));
    QCOMPARE(VynColorUtils::contrastingColor(rgba(0.3, 0.3, 0.3)).hsvHueF(), -1.0f);

    COMPARE_COLOR(VynColorUtils::glowColorWithAlpha(base, 0.4),
                  QColor::fromHsvF(0.02f, 0.3f, 1.0f, 0.4f));

    const QColor affine =
        VynColorUtils::colorWithRGBAffineTransformA(rgba(0.5, 0.25, 0.1), 3.0, -0.1, 0.6);
    QCOMPARE(affine.spec(), QColor::ExtendedRgb); // not clamped
    QVERIFY(std::abs(affine.redF() - 1.4) < 1e-3);
    QVERIFY(std::abs(affine.blueF() - 0.2) < 1e-3);
    QVERIFY(std::abs(affine.alphaF() - 0.6) < 1e-3);

    COMPARE_COLOR(VynColorUtils::colorWithColorAndMaxDistance(base, 0.01), base);

    COMPARE_COLOR(VynColorUtils::colorBySettingBrightness(base, 0.3),
                  QColor::fromHsvF(0.02f, 0.5f, 0.3f, 0.7f));
    COMPARE_COLOR(VynColorUtils::colorByIncreasingSaturationWithScale(base, 2.0, -0.5),
                  QColor::fromHsvF(0.02f, 0.5f, 0.8f, 0.7f));
    COMPARE_COLOR(VynColorUtils::colorBySettingSaturation(base, 0.1),
                  QColor::fromHsvF(0.02f, 0.1f, 0.8f, 0.7f));
    COMPARE_COLOR(VynColorUtils::colorByIncreasingLuminosityWithScale(base, 0.5, 0.1),
                  QColor::fromHsvF(0.02f, 0.5f, 0.5f, 0.7f));
}

void TestColorUtils::compositing_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QColor>("first");
    QTest::addColumn<QColor>("second");
    QTest::addColumn<double>("alpha");
    QTest::addColumn<QColor>("expected");

    const QColor red = rgba(1, 0, 0);
    const QColor halfBlue = rgba(0, 0, 1, 0.5);
    QTest::newRow("overlay opaque top")
        << "overlay" << red << rgba(0, 1, 0) << 0.0 << rgba(0, 1, 0);
    QTest::newRow("overlay clear top") << "overlay" << red << rgba(0, 1, 0, 0) << 0.0 << red;
    QTest::newRow("overlay two halves")
        << "overlay" << rgba(1, 0, 0, 0.5) << halfBlue << 0.0 << rgba(1.0 / 3, 0, 2.0 / 3, 0.75);
    QTest::newRow("overlay both clear")
        << "overlay" << rgba(1, 0, 0, 0) << rgba(0, 0, 1, 0) << 0.0 << rgba(0, 0, 0, 0);
    QTest::newRow("no alpha over white")
        << "noAlpha" << halfBlue << rgba(1, 1, 1) << 0.0 << rgba(0.5, 0.5, 1);
    QTest::newRow("no alpha given alpha")
        << "noAlpha" << halfBlue << rgba(1, 1, 1) << 0.25 << rgba(0.75, 0.75, 1);
    QTest::newRow("no alpha without background")
        << "noAlpha" << halfBlue << QColor() << 0.0 << rgba(0, 0, 0.5);
    QTest::newRow("no alpha over colour")
        << "over" << rgba(1, 1, 1, 0.2) << rgba(0, 0.5, 0) << 0.0 << rgba(0.2, 0.6, 0.2);
}

void TestColorUtils::compositing()
{
    QFETCH(QString, operation);
    QFETCH(QColor, first);
    QFETCH(QColor, second);
    QFETCH(double, alpha);
    QFETCH(QColor, expected);
    QColor result;
    if (operation == "overlay")
        result = VynColorUtils::colorByOverlayingColor(first, second);
    else if (operation == "noAlpha")
        result = VynColorUtils::noAlphaColorWithAlpha(first, alpha, second);
    else
        result = VynColorUtils::noAlphaColorOverColor(first, second);
    COMPARE_COLOR(result, expected);
}

void TestColorUtils::stopLists_data()
{
    QTest::addColumn<QList<double>>("stops");
    QTest::addColumn<QList<double>>("blends"); // the blend factor of each colour

    QTest::newRow("empty") << QList<double>{} << QList<double>{0, 1};
    QTest::newRow("ends skipped") << QList<double>{0, 0.5, 1} << QList<double>{0, 0.5, 1};
    QTest::newRow("outside and nan skipped")
        << QList<double>{-0.2, 1.5, std::numeric_limits<double>::quiet_NaN()}
        << QList<double>{0, 1};
    QTest::newRow("order kept") << QList<double>{0.75, 0.25} << QList<double>{0, 0.75, 0.25, 1};
}

void TestColorUtils::stopLists()
{
    QFETCH(QList<double>, stops);
    QFETCH(QList<double>, blends);

    const QColor tint = QColor::fromHsvF(0.3f, 0.6f, 0.7f, 1.0f);
    const QList<QColor> colors =
        VynColorUtils::colorsWithStops(tint, stops, kTransforms[0], kTransforms[1]);
    QCOMPARE(colors.size(), blends.size());
    for (qsizetype i = 0; i < colors.size(); ++i) {
        // Blend of the two transforms: hue offset 0.1 → 0, saturation (1 − s) × s0 + 0.5 s,
        // brightness (1 − s) v + 0.25 s, alpha offset −0.5 s.
        const double s = blends.at(i);
        const QColor expected =
            QColor::fromHsvF(float(0.3 + 0.1 * (1 - s)), float(0.6 * (1 - s) + 0.5 * s),
                             float(0.7 * (1 - s) + 0.25 * s), float(std::max(0.0, 1 - 0.5 * s)));
        COMPARE_COLOR(colors.at(i), expected);
    }
}

void TestColorUtils::nonFiniteArithmetic_data()
{
    // Arithmetic that produces NaN or infinite channels, alphas or hues: each gives the
    // documented colour (NaN counts as 0, a NaN hue as no hue, channels within ±65504).
    QTest::addColumn<QString>("operation");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<QColor>("expected");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    QTest::newRow("affine, NaN scale") << "affine" << nan << 0.0 << rgba(0, 0, 0, 1);
    QTest::newRow("affine, NaN offset") << "affine" << 1.0 << nan << rgba(0, 0, 0, 1);
    QTest::newRow("affine, NaN alpha") << "affineAlpha" << nan << 0.0 << rgba(1, 0.5, 0, 0);
    QTest::newRow("affine, infinite offset")
        << "affine" << 1.0 << -inf << rgba(0, 0, 0, 1); // -inf clamped, then read as 0..1
    QTest::newRow("brightness NaN") << "brightness" << nan << 0.0 << rgba(0, 0, 0, 1);
    QTest::newRow("saturation NaN: grey") << "saturation" << nan << 0.0 << rgba(1, 1, 1, 1);
    QTest::newRow("glow, NaN alpha") << "glow" << nan << 0.0 << QColor();
}

void TestColorUtils::nonFiniteArithmetic()
{
    QFETCH(QString, operation);
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(QColor, expected);

    const QColor orange = rgba(1, 0.5, 0);
    QColor result;
    if (operation == "affine")
        result = VynColorUtils::colorWithRGBAffineTransformA(orange, x, y, 1.0);
    else if (operation == "affineAlpha")
        result = VynColorUtils::colorWithRGBAffineTransformA(orange, 1.0, y, x);
    else if (operation == "brightness")
        result = VynColorUtils::colorBySettingBrightness(orange, x);
    else if (operation == "saturation")
        result = VynColorUtils::colorBySettingSaturation(orange, x);
    else if (operation == "glow")
        result = VynColorUtils::glowColorWithAlpha(orange, x);
    if (!expected.isValid()) {
        // Only defined-ness is pinned: a valid colour with finite channels.
        QVERIFY(result.isValid());
        QVERIFY(std::isfinite(result.redF()) && std::isfinite(result.alphaF()));
        return;
    }
    QVERIFY2(sameColor(result.toRgb(), expected), qPrintable(QStringLiteral("%1 %2 %3 %4")
                                                                 .arg(result.redF())
                                                                 .arg(result.greenF())
                                                                 .arg(result.blueF())
                                                                 .arg(result.alphaF())));
}

QTEST_APPLESS_MAIN(TestColorUtils)

#include "tst_colorutils.moc"
