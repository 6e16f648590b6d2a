#include "vyncolorappearance.h"

#include <QtTest>

#include <cmath>

namespace {

const int L = VynColorUtils::VynStyleLight;
const int D = VynColorUtils::VynStyleDark;

QColor rgba(double r, double g, double b, double a = 1.0)
{
    return QColor::fromRgbF(float(r), float(g), float(b), float(a));
}

bool sameColor(const QColor& actual, const QColor& expected, double tolerance)
{
    if (actual.isValid() != expected.isValid())
        return false;
    return std::abs(actual.redF() - expected.redF()) <= tolerance &&
           std::abs(actual.greenF() - expected.greenF()) <= tolerance &&
           std::abs(actual.blueF() - expected.blueF()) <= tolerance &&
           std::abs(actual.alphaF() - expected.alphaF()) <= tolerance;
}

QString describe(const QColor& c)
{
    return QStringLiteral("(%1, %2, %3, %4)")
        .arg(c.redF())
        .arg(c.greenF())
        .arg(c.blueF())
        .arg(c.alphaF());
}

#define COMPARE_COLOR_TOL(actual, expected, tolerance)                                             \
    do {                                                                                           \
        const QColor a_ = (actual), e_ = (expected);                                               \
        QVERIFY2(sameColor(a_, e_, tolerance), qPrintable(describe(a_) + " != " + describe(e_)));  \
    } while (false)
#define COMPARE_COLOR(actual, expected) COMPARE_COLOR_TOL(actual, expected, 1e-3)

// One table rule evaluated with up to four small integer arguments (a, b, c, d).
QColor evaluate(const QString& rule, int style, int a, int b, int c)
{
    using A = VynColorAppearance;
    static const QColor tint = rgba(0.2, 0.4, 0.9, 1);
    if (rule == "viewBackground")
        return A::viewBackgroundColorForStyle(style, a);
    if (rule == "windowBackground")
        return A::windowBackgroundColorForStyle(style);
    if (rule == "popoverBackground")
        return A::popoverBackgroundColorForStyle(style);
    if (rule == "orla")
        return A::orlaColorForStyle(style);
    if (rule == "logGraphAxis")
        return A::logGraphAxisColor(style);
    if (rule == "vuMeterTickMark")
        return A::vuMeterTickMarkColor(style);
    if (rule == "control")
        return A::controlColorForStyle(style, a);
    if (rule == "toolbarText")
        return A::toolbarButtonTextColorForStyle(style, a);
    if (rule == "eqTypeCurve")
        return A::eqTypeCurveColorForStyle(style, a);
    if (rule == "controlText")
        return A::controlTextColorForStyle(style, a, b, c);
    if (rule == "controlBorder")
        return A::controlBorderColorForStyle(style, a, b, c);
    if (rule == "flatText")
        return A::flatButtonTextColorForStyle(style, a, b);
    if (rule == "textViewText")
        return A::textViewTextColorForStyle(style, a);
    if (rule == "textViewBorder")
        return A::textViewBorderColorForStyle(style, a, b);
    if (rule == "label")
        return A::labelColorForStyle(style, a);
    if (rule == "coloredLabel")
        return A::coloredLabelColorForStyle(style, a);
    if (rule == "tableLabel")
        return A::tableLabelColorForStyle(style, a, b, c);
    if (rule == "tintedLabel")
        return A::tableTintedLabelColorForStyle(tint, style, a);
    if (rule == "bridgeIcon")
        return A::bridgeIconColorForStyle(style, a, b);
    if (rule == "viewListTitle")
        return A::viewListButtonTitleColorForStyle(style, a, b ? rgba(0.9, 0.9, 0.9) : tint, c);
    if (rule == "eqThumb")
        return A::eqThumbColorForStyle(style, a, b);
    if (rule == "logGraphInfo")
        return A::logGraphInfoColor(a);
    if (rule == "logGraphLabel")
        return A::logGraphLabelColor(style, a);
    if (rule == "eqOnBkg")
        return A::eqThumbnailOnBkgGradientColorForStyle(a / 10.0, style);
    if (rule == "eqOffBkg")
        return A::eqThumbnailOffBkgGradientColorForStyle(a / 10.0, style);
    if (rule == "eqMixedBkg")
        return A::eqThumbnailMixedBkgGradientColorForStyle(a / 10.0, style);
    if (rule == "cellBackground")
        return A::tableViewCellBackgroundColorForStyle(style, a, b, c);
    if (rule == "tuningHeader")
        return A::tuningHeaderBackgroundColorForStyle(style, a);
    if (rule == "tableSection")
        return A::tableSectionBackgroundColorForStyle(style, a);
    if (rule == "ledBorder")
        return A::ledBorderColorForState(a);
    if (rule == "liveMode")
        return A::liveModeButtonColor(a);
    // Gradients: a is the location in tenths.
    if (rule == "onGradient")
        return A::controlOnGradientColor(a / 10.0);
    if (rule == "mixedGradient")
        return A::controlMixedGradientColor(a / 10.0);
    if (rule == "offGradient")
        return A::controlOffGradientColorForStyle(a / 10.0, style, b == 1, b == 2, b == 3);
    if (rule == "imageOffGradient")
        return A::controlImageOffGradientColor(a / 10.0, b == 2, b == 3);
    if (rule == "patchMultiple")
        return A::patchLineMultipleGradientColor(a / 10.0);
    if (rule == "eqGraphBackground")
        return A::eqGraphBackgroundGradientColor(b ? tint : (c ? rgba(1, 0, 0, 0) : QColor()),
                                                 style, a);
    qFatal("unknown rule %s", qPrintable(rule));
    return QColor();
}

} // namespace

class TestColorAppearance : public QObject
{
    Q_OBJECT

private slots:
    void tableRules_data();
    void tableRules();
    void tintRules();
    void networkCellSelection();
    void backgroundStopLists();
    void eqCurveGradient_data();
    void eqCurveGradient();
    void logGraphMark_data();
    void logGraphMark();
    void readableColor_data();
    void readableColor();
    void colorFactory();
};

void TestColorAppearance::tableRules_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("a");
    QTest::addColumn<int>("b");
    QTest::addColumn<int>("c");
    QTest::addColumn<QColor>("expected");

    // Light/Dark pairs, style alone; styles outside 0..1 read the nearest style.
    QTest::newRow("pair light") << "windowBackground" << L << 0 << 0 << 0 << rgba(0.93, 0.93, 0.93);
    QTest::newRow("pair dark") << "windowBackground" << D << 0 << 0 << 0
                               << rgba(0.25, 0.25, 0.25, 0.8);
    QTest::newRow("pair style 7 is dark")
        << "popoverBackground" << 7 << 0 << 0 << 0 << rgba(0.22, 0.22, 0.22);
    QTest::newRow("pair style -2 is light")
        << "popoverBackground" << -2 << 0 << 0 << 0 << rgba(0.96, 0.96, 0.96, 0.96);
    QTest::newRow("orla dark") << "orla" << D << 0 << 0 << 0 << rgba(0.58, 0.64, 0.14);
    QTest::newRow("log axis light") << "logGraphAxis" << L << 0 << 0 << 0 << rgba(0.5, 0.5, 0.5);
    QTest::newRow("vu tick dark") << "vuMeterTickMark" << D << 0 << 0 << 0 << rgba(1, 1, 1, 0.95);

    // style + level × 2
    QTest::newRow("view level 0 light") << "viewBackground" << L << 0 << 0 << 0 << rgba(1, 1, 1);
    QTest::newRow("view level 1 dark")
        << "viewBackground" << D << 1 << 0 << 0 << rgba(0.13, 0.13, 0.13);
    QTest::newRow("view level 5 clamps")
        << "viewBackground" << L << 5 << 0 << 0 << rgba(0.93, 0.93, 0.93);

    // style + on × 2
    QTest::newRow("control on light") << "control" << L << 1 << 0 << 0 << rgba(0.14, 0.54, 0.95);
    QTest::newRow("control mixed dark") << "control" << D << 2 << 0 << 0 << rgba(0.87, 0.55, 0.1);
    QTest::newRow("control state 9 reads mixed")
        << "control" << L << 9 << 0 << 0 << rgba(0.93, 0.68, 0.14);
    QTest::newRow("control off dark") << "control" << D << 0 << 0 << 0 << rgba(0.44, 0.44, 0.44);
    QTest::newRow("toolbar text on dark")
        << "toolbarText" << D << 1 << 0 << 0 << rgba(1, 1, 1, 0.95);
    QTest::newRow("eq type curve mixed light")
        << "eqTypeCurve" << L << 2 << 0 << 0 << rgba(0.88, 0.45, 0);
    QTest::newRow("text view text mixed dark")
        << "textViewText" << D << 1 << 0 << 0 << rgba(1, 1, 1, 0.75);

    // Flags over the state tables
    QTest::newRow("text plain on dark") << "controlText" << D << 1 << 0 << 0 << rgba(0.9, 0.9, 0.9);
    QTest::newRow("text plain off light")
        << "controlText" << L << 0 << 0 << 0 << rgba(0.25, 0.25, 0.25);
    QTest::newRow("text default") << "controlText" << L << 0 << 1 << 0 << rgba(1, 1, 1);
    QTest::newRow("text destructive") << "controlText" << D << 2 << 0 << 1 << rgba(1, 1, 1);
    QTest::newRow("border plain on light")
        << "controlBorder" << L << 1 << 0 << 0 << rgba(0, 0.27, 0.75, 0.8);
    QTest::newRow("border default wins")
        << "controlBorder" << D << 1 << 1 << 1 << rgba(0.08, 0.2, 0.5, 0.5);
    QTest::newRow("border destructive")
        << "controlBorder" << L << 0 << 0 << 1 << rgba(0.5, 0.1, 0.1, 0.5);
    QTest::newRow("flat text on light") << "flatText" << L << 1 << 0 << 0 << rgba(1, 1, 1);
    QTest::newRow("flat text destructive dark")
        << "flatText" << D << 1 << 1 << 0 << rgba(0.9, 0.26, 0.26);

    // textViewBorder: editing 2 + style, else style + mixed × 4
    QTest::newRow("text border light")
        << "textViewBorder" << L << 0 << 0 << 0 << rgba(0.55, 0.55, 0.55, 0.75);
    QTest::newRow("text border mixed dark")
        << "textViewBorder" << D << 1 << 0 << 0 << rgba(0.54, 0.36, 0.12);
    QTest::newRow("text border editing light")
        << "textViewBorder" << L << 1 << 1 << 0 << rgba(0, 0.27, 0.75, 0.8);
    QTest::newRow("text border editing dark")
        << "textViewBorder" << D << 0 << 1 << 0 << rgba(0.09, 0.26, 0.51);

    // Levels
    QTest::newRow("label level 1 light") << "label" << L << 1 << 0 << 0 << rgba(0, 0, 0, 0.57);
    QTest::newRow("label level 5 dark clamps to 2")
        << "label" << D << 5 << 0 << 0 << rgba(0.95, 0.95, 0.95, 0.26);
    QTest::newRow("colored level 2 light")
        << "coloredLabel" << L << 2 << 0 << 0 << rgba(0.14, 0.62, 0.2);
    QTest::newRow("colored level 6 dark")
        << "coloredLabel" << D << 6 << 0 << 0 << rgba(0.83, 0.38, 0.72);
    QTest::newRow("colored level 9 light")
        << "coloredLabel" << L << 9 << 0 << 0 << rgba(0.86, 0.35, 0.63);
    QTest::newRow("colored level -1 dark")
        << "coloredLabel" << D << -1 << 0 << 0 << rgba(0.95, 0.95, 0.95, 0.57);
    QTest::newRow("tuning header alert dark")
        << "tuningHeader" << D << 2 << 0 << 0 << rgba(0.3, 0.1, 0.1);
    QTest::newRow("table section warning light")
        << "tableSection" << L << 1 << 0 << 0 << rgba(0.97, 0.9, 0.9, 0.92);
    QTest::newRow("log label day dark")
        << "logGraphLabel" << D << 1 << 0 << 0 << rgba(0.5, 0.5, 0.5);

    // tableLabel: hasFocus + (selected + (min(level, 2) + style × 3) × 2) × 2 (a selected, b focus,
    // c level)
    QTest::newRow("table label focus light")
        << "tableLabel" << L << 0 << 1 << 0 << rgba(0, 0, 0, 1);
    QTest::newRow("table label selected level 1 light")
        << "tableLabel" << L << 1 << 0 << 1 << rgba(0.36, 0.36, 0.36);
    QTest::newRow("table label last dark")
        << "tableLabel" << D << 1 << 1 << 7 << rgba(0.9, 0.9, 0.9, 0.65);
    QTest::newRow("table label plain dark")
        << "tableLabel" << D << 0 << 0 << 0 << rgba(0.9, 0.9, 0.9, 1);
    QTest::newRow("tinted label selected dark")
        << "tintedLabel" << D << 1 << 0 << 0 << rgba(1, 1, 1, 0.75);
    QTest::newRow("tinted label unselected")
        << "tintedLabel" << L << 0 << 0 << 0 << rgba(0.2, 0.4, 0.9);

    // bridgeIcon: style + (level + mixed × 2) × 2
    QTest::newRow("bridge level 1 mixed dark")
        << "bridgeIcon" << D << 1 << 1 << 0 << rgba(0.92, 0.57, 0.32, 0.5);
    QTest::newRow("bridge mixed light")
        << "bridgeIcon" << L << 0 << 1 << 0 << rgba(0.85, 0.49, 0.09, 0.62);
    QTest::newRow("bridge level 1 light") << "bridgeIcon" << L << 1 << 0 << 0 << rgba(0, 0, 0, 0.5);

    // viewListButtonTitle: table when not hovered, black or white on the colour when hovered
    QTest::newRow("list title level 1 dark")
        << "viewListTitle" << D << 1 << 0 << 0 << rgba(0.75, 0.75, 0.75);
    QTest::newRow("list title hovered light colour")
        << "viewListTitle" << D << 0 << 1 << 1 << rgba(0, 0, 0);
    QTest::newRow("list title hovered dark colour")
        << "viewListTitle" << L << 0 << 0 << 1 << rgba(1, 1, 1);

    // eqThumb: selected style + on × 2 + 2, else style (a selected, b on)
    QTest::newRow("eq thumb plain dark") << "eqThumb" << D << 0 << 1 << 0 << rgba(0.96, 0.96, 0.96);
    QTest::newRow("eq thumb selected on light")
        << "eqThumb" << L << 1 << 1 << 0 << rgba(0, 0.48, 1);
    QTest::newRow("eq thumb selected off dark")
        << "eqThumb" << D << 1 << 0 << 0 << rgba(1, 0.3, 0.2);
    QTest::newRow("eq thumb selected mixed dark")
        << "eqThumb" << D << 1 << 2 << 0 << rgba(1, 0.58, 0);

    // Parameter families
    QTest::newRow("log info -3") << "logGraphInfo" << D << -3 << 0 << 0 << rgba(0.07, 0.36, 0.95);
    QTest::newRow("log info 8") << "logGraphInfo" << D << 8 << 0 << 0 << rgba(0.83, 0.33, 0.86);
    QTest::newRow("log info 15") << "logGraphInfo" << D << 15 << 0 << 0 << rgba(0.53, 0.17, 0.77);
    QTest::newRow("log info 40 reads 16")
        << "logGraphInfo" << D << 40 << 0 << 0 << rgba(0.55, 0.55, 0.55);

    // EQ thumbnail backgrounds: location truncated (a in tenths)
    QTest::newRow("eq on bkg dark 0.7") << "eqOnBkg" << D << 7 << 0 << 0 << rgba(0.1, 0.2, 1, 0.1);
    QTest::newRow("eq on bkg light 1") << "eqOnBkg" << L << 10 << 0 << 0 << rgba(1, 1, 1);
    QTest::newRow("eq off bkg light 1")
        << "eqOffBkg" << L << 10 << 0 << 0 << rgba(0.08, 0.04, 0.03, 0.1);
    QTest::newRow("eq off bkg dark 3") << "eqOffBkg" << D << 30 << 0 << 0 << rgba(1, 0.2, 0.1, 0);
    QTest::newRow("eq mixed bkg light 0")
        << "eqMixedBkg" << L << 0 << 0 << 0 << rgba(0.93, 0.68, 0.14, 0.1);

    // Cell background precedence (a selected, b focus, c alternate)
    QTest::newRow("cell selected focus dark")
        << "cellBackground" << D << 1 << 1 << 1 << rgba(0.05, 0.37, 0.67);
    QTest::newRow("cell selected no focus light")
        << "cellBackground" << L << 1 << 0 << 1 << rgba(0.49, 0.76, 1);
    QTest::newRow("cell alternate dark")
        << "cellBackground" << D << 0 << 1 << 1 << rgba(0.13, 0.13, 0.13);
    QTest::newRow("cell plain light") << "cellBackground" << L << 0 << 0 << 0 << rgba(1, 1, 1);

    // State-indexed tables
    QTest::newRow("led border red")
        << "ledBorder" << D << 2 << 0 << 0 << rgba(0.604, 0.253955, 0.260818);
    QTest::newRow("led border custom clamps")
        << "ledBorder" << D << 255 << 0 << 0 << rgba(0.165626, 0.351956, 0.628);
    QTest::newRow("live mode live") << "liveMode" << D << 2 << 0 << 0 << rgba(1, 0.22, 0.53);

    // Gradients (a = location in tenths)
    QTest::newRow("on gradient start")
        << "onGradient" << D << 0 << 0 << 0 << rgba(0.12, 0.51, 0.88, 0.9);
    QTest::newRow("on gradient middle")
        << "onGradient" << D << 5 << 0 << 0 << rgba(0.14, 0.53, 0.915, 0.9);
    QTest::newRow("on gradient past end")
        << "onGradient" << D << 20 << 0 << 0 << rgba(0.16, 0.55, 0.95, 0.9);
    QTest::newRow("mixed gradient end")
        << "mixedGradient" << D << 10 << 0 << 0 << rgba(0.94, 0.68, 0.11, 0.9);
    QTest::newRow("off gradient plain")
        << "offGradient" << D << 0 << 0 << 0 << rgba(0.98, 0.98, 0.98, 0.9);
    QTest::newRow("off gradient opaque light end")
        << "offGradient" << L << 10 << 1 << 0 << rgba(0.96, 0.96, 0.96);
    QTest::newRow("off gradient opaque dark start")
        << "offGradient" << D << 0 << 1 << 0 << rgba(0.9, 0.9, 0.9);
    QTest::newRow("off gradient opaque dark middle")
        << "offGradient" << D << 5 << 1 << 0 << rgba(0.89, 0.89, 0.89);
    QTest::newRow("off gradient default")
        << "offGradient" << L << 0 << 2 << 0 << rgba(0.16, 0.55, 0.95, 0.9);
    QTest::newRow("off gradient destructive")
        << "offGradient" << L << 10 << 3 << 0 << rgba(0.87, 0.26, 0.26, 0.9);
    QTest::newRow("image off plain")
        << "imageOffGradient" << L << 10 << 0 << 0 << rgba(0.45, 0.45, 0.45);
    QTest::newRow("image off destructive")
        << "imageOffGradient" << L << 0 << 3 << 0 << rgba(0.94, 0.29, 0.3, 0.9);
    QTest::newRow("patch multiple middle")
        << "patchMultiple" << D << 5 << 0 << 0 << rgba(0.9, 0.615, 0.12);

    // EQ graph background: tint through the graph transforms, else the fixed table
    QTest::newRow("eq graph no tint dark end")
        << "eqGraphBackground" << D << 1 << 0 << 0 << rgba(0.08, 0.08, 0.08);
    QTest::newRow("eq graph clear tint light")
        << "eqGraphBackground" << L << 0 << 0 << 1 << rgba(1, 1, 1);
    QTest::newRow("eq graph tint dark start")
        << "eqGraphBackground" << D << 0 << 1 << 0
        << QColor::fromHsvF(rgba(0.2, 0.4, 0.9).hsvHueF(), 0.4f, 0.15f);
}

void TestColorAppearance::tableRules()
{
    QFETCH(QString, rule);
    QFETCH(int, style);
    QFETCH(int, a);
    QFETCH(int, b);
    QFETCH(int, c);
    QFETCH(QColor, expected);
    COMPARE_COLOR(evaluate(rule, style, a, b, c), expected);
}

void TestColorAppearance::tintRules()
{
    using A = VynColorAppearance;
    const QColor tint = QColor::fromHsvF(0.6f, 0.5f, 0.8f, 1.0f);
    const auto hsv = [](double h, double s, double v, double a = 1.0) {
        return QColor::fromHsvF(float(h), float(s), float(v), float(a));
    };
    COMPARE_COLOR(A::primaryColorForStyle(tint, L), hsv(0.6, 0.5, 0.62));
    COMPARE_COLOR(A::secondaryColorForStyle(tint, L), hsv(0.56, 0.4, 0.09));
    COMPARE_COLOR(A::secondaryColorForStyle(tint, D), hsv(0.56, 0.4, 1.0));
    COMPARE_COLOR(A::tertiaryColorForStyle(tint, D), hsv(0.6, 0.18, 0.36));
    COMPARE_COLOR(A::graphBackgroundTransformedColor(tint, D, 1), hsv(0.6, 0.2, 0.15));
    COMPARE_COLOR(A::graphBackgroundTransformedColor(tint, L, 0), hsv(0.57, 0.007, 0.99));
    COMPARE_COLOR(A::recapHeaderGradientColor(tint, L, 1), hsv(0.6, 0.25, 0.776));
    COMPARE_COLOR(A::recapHeaderGradientColor(tint, D, 0), hsv(0.585, 0.4, 0.2));
    COMPARE_COLOR(A::inactiveViewBackgroundColor(tint), hsv(0.6, 0.2, 0.08));
    COMPARE_COLOR(A::popupBackgroundColorForStyle(tint, D), hsv(0.6, 0.05, 0.22, 0.94));
    COMPARE_COLOR(A::circularUpdateTrackColor(tint), hsv(0.6, 0.4, 0.64, 0.25));
    COMPARE_COLOR(A::tableViewCellBackgroundColorForTintAndStyle(tint, L),
                  hsv(0.59, 0.275, 0.96, 0.8));
    COMPARE_COLOR(A::logGraphInfoColor2(tint, D), hsv(0.63, 0.5, 0.9));
    COMPARE_COLOR(A::inactiveViewTintedImageColor(), hsv(0, 0, 0.34));
    // Pure red keeps its hue through a hue-shifting transform.
    QCOMPARE(A::secondaryColorForStyle(rgba(1, 0, 0), L).hsvHueF(), 0.0f);
}

void TestColorAppearance::networkCellSelection()
{
    using A = VynColorAppearance;
    const QColor tint = QColor::fromHsvF(0.3f, 0.8f, 0.6f, 1.0f);
    COMPARE_COLOR(A::networkCellBackgroundColorForStyle(tint, D, true), tint);
    COMPARE_COLOR(A::networkCellBackgroundColorForStyle(tint, D, false),
                  QColor::fromHsvF(0.3f, 0.59f, 0.22f));
    COMPARE_COLOR(A::networkCellBorderColorForStyle(tint, L, false),
                  QColor::fromHsvF(0.3f, 0.6f, 0.42f));
    COMPARE_COLOR(A::networkCellBorderColorForStyle(tint, L, true),
                  A::networkCellSelectedBorderColorForStyle(tint, L));
    COMPARE_COLOR(A::networkCellSelectedBorderColorForStyle(tint, D),
                  QColor::fromHsvF(0.3f, 1.0f, 0.6f));
    COMPARE_COLOR(A::networkCellEvenColorForStyle(tint, L), QColor::fromHsvF(0.3f, 0.64f, 0.72f));
    COMPARE_COLOR(A::networkCellOddColorForStyle(tint, D), QColor::fromHsvF(0.3f, 0.8f, 0.33f));
}

void TestColorAppearance::backgroundStopLists()
{
    using A = VynColorAppearance;
    const QColor tint = QColor::fromHsvF(0.6f, 0.5f, 0.8f, 1.0f);
    const QList<QColor> dark = A::backgroundColorsForStyleWithStops(tint, D, {0.0, 0.5, 1.0});
    QCOMPARE(dark.size(), 3);
    COMPARE_COLOR(dark.at(0), QColor::fromHsvF(0.56f, 0.225f, 0.22f));
    // Halfway: hue (−0.04 → 0) −0.02, saturation 0.425 × 0.5, brightness 0.4 × 0.8 − 0.15.
    COMPARE_COLOR(dark.at(1), QColor::fromHsvF(0.58f, 0.2125f, 0.17f));
    COMPARE_COLOR(dark.at(2), QColor::fromHsvF(0.6f, 0.2f, 0.12f));

    const QList<QColor> plain = A::backgroundColorsWithStops(tint, {});
    QCOMPARE(plain.size(), 2);
    COMPARE_COLOR(plain.at(0), QColor::fromHsvF(0.56f, 0.5f, 0.7f));
    COMPARE_COLOR(plain.at(1), QColor::fromHsvF(0.6f, 0.5f, 0.6f));

    QCOMPARE(A::backgroundColorsExtremeForStyleWithStops(tint, L, {0.25, 0.75}).size(), 4);
    const QList<QColor> graph = A::graphBackgroundColorsForStyleWithStops(tint, L, {});
    COMPARE_COLOR(graph.at(1), QColor::fromHsvF(0.6f, 0.005f, 0.985f));
}

void TestColorAppearance::eqCurveGradient_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("on");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("count");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<double>("fillFactor");

    // Dark, on: entries 6 (0.1, 0.84, 0.99) and 7 (0.11, 0.38, 0.94); first × t + second × (1 − t).
    QTest::newRow("one curve is the mean") << D << 1 << 0 << 1 << rgba(0.105, 0.61, 0.965) << 0.4;
    QTest::newRow("first of three is the second colour")
        << D << 1 << 0 << 3 << rgba(0.11, 0.38, 0.94) << 0.4;
    QTest::newRow("last of three is the first colour")
        << D << 1 << 2 << 3 << rgba(0.1, 0.84, 0.99) << 0.4;
    QTest::newRow("index past the set clamps") << D << 1 << 9 << 3 << rgba(0.1, 0.84, 0.99) << 0.4;
    // Light, off: entries 0 (0.99, 0.35, 0.22) and 1 (1, 0.16, 0.41).
    QTest::newRow("light off middle") << L << 0 << 1 << 3 << rgba(0.995, 0.255, 0.315) << 0.15;
    // Dark, mixed: entries 10 (1, 0.58, 0) and 11 (1, 0.37, 0.23).
    QTest::newRow("dark mixed, no curves") << D << 2 << 0 << 0 << rgba(1, 0.475, 0.115) << 0.4;
}

void TestColorAppearance::eqCurveGradient()
{
    QFETCH(int, style);
    QFETCH(int, on);
    QFETCH(int, index);
    QFETCH(int, count);
    QFETCH(QColor, expected);
    QFETCH(double, fillFactor);

    QColor fill;
    QColor button;
    const QColor color =
        VynColorAppearance::eqCurveGradientColorForStyle(style, on, index, count, &fill, &button);
    COMPARE_COLOR(color, expected);
    COMPARE_COLOR(button, expected);
    QColor expectedFill = expected;
    expectedFill.setAlphaF(float(expected.alphaF() * fillFactor));
    COMPARE_COLOR(fill, expectedFill);
    COMPARE_COLOR(VynColorAppearance::eqCurveColorForStyle(style, on, index, count), expected);
}

void TestColorAppearance::logGraphMark_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QColor>("expected");

    QTest::newRow("white becomes black") << rgba(1, 1, 1, 0.5) << rgba(0, 0, 0, 0.5);
    QTest::newRow("black becomes white") << rgba(0, 0, 0) << rgba(1, 1, 1);
    QTest::newRow("red turns to lighter cyan") << rgba(1, 0, 0) << rgba(0.2, 1, 1);
    QTest::newRow("grey lightens, stays grey") << rgba(0.5, 0.5, 0.5) << rgba(0.6, 0.6, 0.6);
    QTest::newRow("light tint caps lightness") << rgba(0.9, 0.95, 1) << rgba(1, 1, 1);
    QTest::newRow("blue turns to yellow")
        << QColor::fromHslF(0.6f, 0.8f, 0.4f) << QColor::fromHslF(0.1f, 0.8f, 0.48f);
}

void TestColorAppearance::logGraphMark()
{
    QFETCH(QColor, color);
    QFETCH(QColor, expected);
    COMPARE_COLOR(VynColorAppearance::logGraphMarkColor(color), expected);
}

void TestColorAppearance::readableColor_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("style");
    QTest::addColumn<QColor>("expected");

    // Reference values from an independent CIE L*a*b* computation (sRGB, D65, the same
    // constants), written out here to six decimals.
    QTest::newRow("black dark lifts to L 40")
        << rgba(0, 0, 0) << D << rgba(0.369536, 0.369536, 0.369536);
    QTest::newRow("white light lowers to L 60, a* 0 kept")
        << rgba(1, 1, 1) << L << rgba(0.566866, 0.566866, 0.566866);
    QTest::newRow("pink light shifts a*")
        << rgba(1, 0.6, 0.8) << L << rgba(0.868989, 0.409855, 0.639843);
    QTest::newRow("green light shifts negative a* up")
        << rgba(0.2, 0.8, 0.3) << L << rgba(0.132819, 0.654624, 0.169346);
    QTest::newRow("orange light") << rgba(0.9, 0.5, 0.2) << L << rgba(0.865483, 0.457223, 0.164328);
    QTest::newRow("navy dark keeps a* b*")
        << rgba(0.1, 0.1, 0.4) << D << rgba(0.375853, 0.319527, 0.657742);
    QTest::newRow("orange dark round trip")
        << rgba(0.9, 0.5, 0.2, 0.4) << D << rgba(0.9, 0.5, 0.2, 0.4);
    QTest::newRow("grey light round trip")
        << rgba(0.5, 0.5, 0.5, 0.7) << L << rgba(0.5, 0.5, 0.5, 0.7);
    QTest::newRow("white dark unchanged") << rgba(1, 1, 1) << D << rgba(1, 1, 1);
    QTest::newRow("black light unchanged") << rgba(0, 0, 0) << L << rgba(0, 0, 0);
}

void TestColorAppearance::readableColor()
{
    QFETCH(QColor, color);
    QFETCH(int, style);
    QFETCH(QColor, expected);
    COMPARE_COLOR_TOL(VynColorAppearance::readableColorForStyle(color, style), expected, 2e-4);
}

void TestColorAppearance::colorFactory()
{
    using A = VynColorAppearance;
    const int count = A::colorFactoryCount();
    QVERIFY(count > 1);
    COMPARE_COLOR(A::colorFactory(-1), A::colorFactory(0));
    COMPARE_COLOR(A::colorFactory(count + 5), A::colorFactory(count - 1));
    COMPARE_COLOR(VynColorUtils::colorWithRGBColor(A::rgbColorFactoryIndex(2)), A::colorFactory(2));
    for (int i = 0; i < count; ++i) {
        const QColor tint = A::colorFactory(i);
        COMPARE_COLOR(A::readableColorFactoryForStyle(i, L), A::readableColorForStyle(tint, L));
        COMPARE_COLOR(A::primaryColorFactoryForStyle(i, D), A::primaryColorForStyle(tint, D));
        COMPARE_COLOR(A::secondaryColorFactoryForStyle(i, L), A::secondaryColorForStyle(tint, L));
        COMPARE_COLOR(A::tertiaryColorFactoryForStyle(i, D), A::tertiaryColorForStyle(tint, D));
    }
}

QTEST_APPLESS_MAIN(TestColorAppearance)

#include "tst_colorappearance.moc"
