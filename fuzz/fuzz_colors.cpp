// Colour arithmetic (VynColorUtils) and the appearance rules (VynColorAppearance) on arbitrary
// colours, styles, states, levels and factors: no table is read out of its bounds, nothing
// trips the sanitizers, and styles, states and levels out of range read the nearest entry.

#include <vyncolorappearance.h>
#include <vyncolorutils.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iterator>

namespace {

using A = VynColorAppearance;
using U = VynColorUtils;

void check(bool condition, const char* rule)
{
    if (!condition) {
        std::fprintf(stderr, "Broken rule: %s\n", rule);
        std::abort();
    }
}

struct Input
{
    QColor color;
    QColor other;
    int style;
    int level;
    int state;
    bool flag;
    double factor;
    double offset;
    QString text;
};

QColor consumeColor(FuzzedDataProvider& data)
{
    switch (data.ConsumeIntegralInRange(0, 3)) {
    case 0:
        return QColor();
    case 1:
        return QColor::fromRgb(
            data.ConsumeIntegral<std::uint8_t>(), data.ConsumeIntegral<std::uint8_t>(),
            data.ConsumeIntegral<std::uint8_t>(), data.ConsumeIntegral<std::uint8_t>());
    case 2:
        return QColor::fromHsv(
            data.ConsumeIntegralInRange(-1, 359), data.ConsumeIntegral<std::uint8_t>(),
            data.ConsumeIntegral<std::uint8_t>(), data.ConsumeIntegral<std::uint8_t>());
    default:
        return QColor::fromRgba64(
            data.ConsumeIntegral<std::uint16_t>(), data.ConsumeIntegral<std::uint16_t>(),
            data.ConsumeIntegral<std::uint16_t>(), data.ConsumeIntegral<std::uint16_t>());
    }
}

// Factors, offsets and locations stay finite and moderate: a NaN reaching
// QColor::fromRgbF is a known fault being fixed separately.
double consumeFactor(FuzzedDataProvider& data)
{
    return data.ConsumeFloatingPointInRange<double>(-1000.0, 1000.0);
}

const std::function<void(const Input&)> kOperations[] = {
    // Colour arithmetic.
    [](const Input& in) { (void)U::luminance(in.color); },
    [](const Input& in) { (void)U::backgroundStyle(in.color); },
    [](const Input& in) { (void)U::backgroundStyleExtreme(in.color); },
    [](const Input& in) { (void)U::blackOrWhiteContrastingColor(in.color); },
    [](const Input& in) { (void)U::blackOrWhiteContrastingColorExtreme(in.color); },
    [](const Input& in) { (void)U::isGray(in.color); },
    [](const Input& in) { (void)U::contrastingColor(in.color); },
    [](const Input& in) { (void)U::contrastingColorLight(in.color); },
    [](const Input& in) { (void)U::glowColorWithAlpha(in.color, in.factor); },
    [](const Input& in) {
        (void)U::colorWithRGBAffineTransformA(in.color, in.factor, in.offset, 1.0);
    },
    [](const Input& in) {
        const QColor c = U::colorBySettingAlpha(in.color, in.factor);
        check(!c.isValid() || (c.alpha() >= 0 && c.alpha() <= 255), "alpha stays in 0..255");
    },
    [](const Input& in) { (void)U::colorWithColorAndMaxDistance(in.color, in.factor); },
    [](const Input& in) { (void)U::noAlphaColorWithAlpha(in.color, in.factor, in.other); },
    [](const Input& in) { (void)U::noAlphaColorOverColor(in.color, in.other); },
    [](const Input& in) { (void)U::colorByOverlayingColor(in.color, in.other); },
    [](const Input& in) {
        (void)U::colorByIncreasingLuminosityWithScale(in.color, in.factor, in.offset);
    },
    [](const Input& in) { (void)U::colorBySettingBrightness(in.color, in.factor); },
    [](const Input& in) {
        (void)U::colorByIncreasingSaturationWithScale(in.color, in.factor, in.offset);
    },
    [](const Input& in) { (void)U::colorBySettingSaturation(in.color, in.factor); },
    [](const Input& in) { (void)U::rgbColor(in.color); },
    [](const Input& in) { (void)U::colorFromRGBColorString(in.text); },
    [](const Input& in) {
        const QList<double> stops = {in.factor, in.offset, 0.0, 1.0};
        (void)U::colorsWithStops(in.color, stops, VynHSBTransform(), VynHSBTransform());
    },
    // Appearance rules taking a tint.
    [](const Input& in) { (void)A::readableColorForStyle(in.color, in.style); },
    [](const Input& in) { (void)A::primaryColorForStyle(in.color, in.style); },
    [](const Input& in) { (void)A::secondaryColorForStyle(in.color, in.style); },
    [](const Input& in) { (void)A::tertiaryColorForStyle(in.color, in.style); },
    [](const Input& in) { (void)A::colorIconBorderColorForStyle(in.color, in.style); },
    [](const Input& in) { (void)A::logGraphInfoColor2(in.color, in.style); },
    [](const Input& in) { (void)A::graphBackgroundTransformedColor(in.color, in.style, in.level); },
    [](const Input& in) { (void)A::recapHeaderGradientColor(in.color, in.style, in.level); },
    [](const Input& in) { (void)A::inactiveViewBackgroundColor(in.color); },
    [](const Input& in) {
        (void)A::networkCellBackgroundColorForStyle(in.color, in.style, in.flag);
    },
    [](const Input& in) { (void)A::networkCellBorderColorForStyle(in.color, in.style, in.flag); },
    [](const Input& in) { (void)A::networkCellEvenColorForStyle(in.color, in.style); },
    [](const Input& in) { (void)A::networkCellOddColorForStyle(in.color, in.style); },
    [](const Input& in) { (void)A::popupBackgroundColorForStyle(in.color, in.style); },
    [](const Input& in) { (void)A::zoneIconFillColor(in.color, in.style); },
    [](const Input& in) { (void)A::zoneIconTouchingColor(in.color, in.style); },
    [](const Input& in) { (void)A::tableTintedLabelColorForStyle(in.color, in.style, in.flag); },
    [](const Input& in) {
        const QList<double> stops = {in.factor, 0.5, in.offset};
        (void)A::backgroundColorsForStyleWithStops(in.color, in.style, stops);
        (void)A::backgroundColorsExtremeForStyleWithStops(in.color, in.style, stops);
        (void)A::graphBackgroundColorsForStyleWithStops(in.color, in.style, stops);
    },
    [](const Input& in) {
        (void)A::viewListButtonTitleColorForStyle(in.style, in.level, in.color, in.flag);
    },
    // Appearance rules picking table entries by style, state and level.
    [](const Input& in) { (void)A::colorFactory(in.level); },
    [](const Input& in) { (void)A::readableColorFactoryForStyle(in.level, in.style); },
    [](const Input& in) { (void)A::primaryColorFactoryForStyle(in.level, in.style); },
    [](const Input& in) { (void)A::viewBackgroundColorForStyle(in.style, in.level); },
    [](const Input& in) { (void)A::tableSectionBackgroundColorForStyle(in.style, in.flag); },
    [](const Input& in) {
        (void)A::tableViewCellBackgroundColorForStyle(in.style, in.flag, in.level & 1,
                                                      in.state & 1);
    },
    [](const Input& in) { (void)A::labelColorForStyle(in.style, in.level); },
    [](const Input& in) {
        const QColor a = A::coloredLabelColorForStyle(in.style, in.level);
        const QColor b = A::coloredLabelColorForStyle(in.style < 0   ? 0
                                                      : in.style > 1 ? 1
                                                                     : in.style,
                                                      in.level < 0   ? 0
                                                      : in.level > 6 ? 6
                                                                     : in.level);
        check(a == b, "levels and styles out of range read the nearest entry");
    },
    [](const Input& in) { (void)A::tableLabelColorForStyle(in.style, in.flag, true, in.level); },
    [](const Input& in) { (void)A::textViewTextColorForStyle(in.style, in.state); },
    [](const Input& in) { (void)A::textViewBorderColorForStyle(in.style, in.state, in.flag); },
    [](const Input& in) { (void)A::controlColorForStyle(in.style, in.state); },
    [](const Input& in) { (void)A::controlTextColorForStyle(in.style, in.state, in.flag); },
    [](const Input& in) { (void)A::controlBorderColorForStyle(in.style, in.state, in.flag); },
    [](const Input& in) { (void)A::flatButtonTextColorForStyle(in.style, in.state, in.flag); },
    [](const Input& in) { (void)A::bridgeIconColorForStyle(in.style, in.level, in.state); },
    [](const Input& in) { (void)A::liveModeButtonColor(in.state); },
    [](const Input& in) { (void)A::ledFillColorForState(in.state); },
    [](const Input& in) { (void)A::ledBorderColorForState(in.state); },
    [](const Input& in) { (void)A::ledGlowColorForState(in.state); },
    [](const Input& in) { (void)A::controlOnGradientColor(in.factor); },
    [](const Input& in) { (void)A::controlOffGradientColorForStyle(in.factor, in.style, in.flag); },
    [](const Input& in) { (void)A::controlImageOffGradientColor(in.factor, in.flag); },
    [](const Input& in) { (void)A::patchLineMultipleGradientColor(in.factor); },
    [](const Input& in) { (void)A::tuningHeaderBackgroundColorForStyle(in.style, in.level); },
    [](const Input& in) { (void)A::tuningStatusLabelColorForStyle(in.style, in.level); },
    [](const Input& in) { (void)A::logGraphInfoColor(in.level); },
    [](const Input& in) { (void)A::logGraphMarkColor(in.color); },
    [](const Input& in) { (void)A::logGraphLabelColor(in.style, in.level); },
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    while (data.remaining_bytes() > 0) {
        const std::size_t operation =
            data.ConsumeIntegralInRange<std::size_t>(0, std::size(kOperations) - 1);
        Input in;
        in.color = consumeColor(data);
        in.other = consumeColor(data);
        in.style =
            data.ConsumeBool() ? data.ConsumeIntegralInRange(-2, 3) : data.ConsumeIntegral<int>();
        in.level =
            data.ConsumeBool() ? data.ConsumeIntegralInRange(-2, 20) : data.ConsumeIntegral<int>();
        in.state =
            data.ConsumeBool() ? data.ConsumeIntegralInRange(-1, 600) : data.ConsumeIntegral<int>();
        in.flag = data.ConsumeBool();
        in.factor = consumeFactor(data);
        in.offset = consumeFactor(data);
        in.text = QString::fromUtf8(data.ConsumeRandomLengthString(32).c_str());
        kOperations[operation](in);
    }
    return 0;
}
