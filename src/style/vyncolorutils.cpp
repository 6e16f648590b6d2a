#include "vyncolorutils.h"

#include <algorithm>
#include <cmath>

namespace {

struct Rgba
{
    double r = 0.0;
    double g = 0.0;
    double b = 0.0;
    double a = 0.0;
};

// The floating-point channels; an invalid colour reads as transparent black.
Rgba rgbaOf(const QColor& color)
{
    if (!color.isValid())
        return {};
    float r = 0, g = 0, b = 0, a = 0;
    color.getRgbF(&r, &g, &b, &a);
    return {r, g, b, a};
}

struct Hsva
{
    double h = -1.0; // −1 for an achromatic colour
    double s = 0.0;
    double v = 0.0;
    double a = 0.0;
};

Hsva hsvaOf(const QColor& color)
{
    if (!color.isValid())
        return {};
    float h = 0, s = 0, v = 0, a = 0;
    color.toHsv().getHsvF(&h, &s, &v, &a);
    return {h, s, v, a};
}

double clamp01(double value)
{
    if (!(value >= 0.0)) // NaN too
        return 0.0;
    return value > 1.0 ? 1.0 : value;
}

// QColor's floating-point constructors turn their arguments into integers or half floats:
// no NaN and no value beyond those ranges may reach them. A NaN counts as 0, and a value
// is kept within ±65504 (the range of the half floats of extended-range channels).
float colorArgument(double value)
{
    if (std::isnan(value))
        return 0.0f;
    return float(std::clamp(value, -65504.0, 65504.0));
}

QColor fromHsva(double h, double s, double v, double a)
{
    // QColor takes −1 as "no hue"; any other hue must lie in [0, 1]. A NaN hue is no hue.
    const float hue = !(h >= 0.0) ? -1.0f : float(std::min(h, 1.0));
    return QColor::fromHsvF(hue, float(clamp01(s)), float(clamp01(v)), float(clamp01(a)));
}

QColor fromRgba(double r, double g, double b, double a)
{
    return QColor::fromRgbF(colorArgument(r), colorArgument(g), colorArgument(b), colorArgument(a));
}

// Hue minus d, wrapped into [0, 1); no hue stays no hue.
double turnHue(double hue, double d)
{
    if (hue < 0.0)
        return hue;
    double h = hue - d;
    if (h < 0.0)
        h += 1.0;
    return h;
}

// 1 − luminance against a threshold. QColor keeps 16 bits per channel, so a channel
// given as exactly 0.5 comes back as 0.500008; one 16-bit step of tolerance lets such
// a colour sit on the threshold it was meant to sit on.
bool darkEnough(const QColor& color, double threshold)
{
    constexpr double kChannelStep = 1.0 / 65535.0;
    return 1.0 - VynColorUtils::luminance(color) + kChannelStep >= threshold;
}

double contrastingBrightness(double v)
{
    return v > 0.6 ? v * 0.8 - 0.4 : v * 1.2 + 0.4;
}

} // namespace

VynColorUtils::VynColorUtils(QObject* parent) : QObject(parent) {}

QColor VynColorUtils::colorWithRGBComponentsOffset(const VynRGBColor* table, qsizetype tableSize,
                                                   qsizetype offset)
{
    if (!table || tableSize <= 0)
        return QColor();
    return colorWithRGBColor(table[std::clamp<qsizetype>(offset, 0, tableSize - 1)]);
}

QColor VynColorUtils::colorWithRGBComponentsOffsetAlpha(const VynRGBColor* table,
                                                        qsizetype tableSize, qsizetype offset,
                                                        double alpha)
{
    if (!table || tableSize <= 0)
        return QColor();
    const VynRGBColor& c = table[std::clamp<qsizetype>(offset, 0, tableSize - 1)];
    return fromRgba(c.red, c.green, c.blue, clamp01(alpha));
}

QList<QColor> VynColorUtils::colorsWithRGBComponents(const VynRGBColor* table, qsizetype tableSize,
                                                     qsizetype count)
{
    QList<QColor> colors;
    if (!table)
        return colors;
    const qsizetype n = std::clamp<qsizetype>(count, 0, std::max<qsizetype>(tableSize, 0));
    colors.reserve(n);
    for (qsizetype i = 0; i < n; ++i)
        colors.append(colorWithRGBColor(table[i]));
    return colors;
}

QColor VynColorUtils::colorWithRGBColor(const VynRGBColor& color)
{
    return fromRgba(color.red, color.green, color.blue, color.alpha);
}

VynRGBColor VynColorUtils::rgbColor(const QColor& color)
{
    const Rgba c = rgbaOf(color);
    return VynRGBColor{c.r, c.g, c.b, c.a};
}

VynRGBColor VynColorUtils::rgbColorMake(double red, double green, double blue, double alpha)
{
    return VynRGBColorMake(red, green, blue, alpha);
}

VynRGBColor VynColorUtils::rgbColorZero()
{
    return VynRGBColor{};
}

QColor VynColorUtils::colorFromRGBColorString(const QString& text)
{
    bool ok = false;
    const VynRGBColor color = VynRGBColorFromString(text, &ok);
    return ok ? colorWithRGBColor(color) : QColor();
}

QColor VynColorUtils::colorWithRGBGradientComponents(const VynRGBColor* colors,
                                                     qsizetype colorCount, const double* locations,
                                                     qsizetype locationCount, int count,
                                                     double position, int groupOffset)
{
    if (!colors || colorCount <= 0)
        return QColor();
    const qsizetype n = locations ? std::min<qsizetype>(count, locationCount) : 0;
    const auto entry = [&](qsizetype i) -> const VynRGBColor& {
        return colors[std::clamp<qsizetype>(i, 0, colorCount - 1)];
    };
    if (n <= 0 || position < locations[0])
        return colorWithRGBColor(entry(0));

    for (qsizetype i = 0; i < n; ++i) {
        if (locations[i] == position)
            return colorWithRGBColor(entry(i));
        if (locations[i] > position) {
            // i ≥ 1 here: position ≥ locations[0] was checked above.
            const double span = locations[i] - locations[i - 1];
            const double t = span > 0.0 ? (position - locations[i - 1]) / span : 0.0;
            const qsizetype base = qsizetype(groupOffset) * n;
            const VynRGBColor& c0 = entry(base + i - 1);
            const VynRGBColor& c1 = entry(base + i);
            const double u = 1.0 - t;
            return fromRgba(c0.red * u + c1.red * t, c0.green * u + c1.green * t,
                            c0.blue * u + c1.blue * t, c0.alpha * u + c1.alpha * t);
        }
    }
    return colorWithRGBColor(entry(n - 1));
}

VynHSBTransform VynColorUtils::transformAt(const VynHSBTransform* table, qsizetype tableSize,
                                           qsizetype offset)
{
    if (!table || tableSize <= 0)
        return VynHSBTransform::identity();
    return table[std::clamp<qsizetype>(offset, 0, tableSize - 1)];
}

QColor VynColorUtils::colorByApplyingHSBTransform(const QColor& color,
                                                  const VynHSBTransform& transform)
{
    const Hsva c = hsvaOf(color);
    double h = c.h;
    if (h > 0.0) {
        h = h * transform.hueScale + transform.hueOffset;
        if (h < 0.0)
            h += 1.0;
        if (h > 1.0) {
            h -= 1.0;
            if (h > 1.0)
                h = 1.0;
        }
        if (!(h >= 0.0))
            h = 0.0;
    }
    return fromHsva(h, c.s * transform.saturationScale + transform.saturationOffset,
                    c.v * transform.brightnessScale + transform.brightnessOffset,
                    c.a * transform.alphaScale + transform.alphaOffset);
}

QColor VynColorUtils::colorByIncreasingLuminosityWithScale(const QColor& color, double scale,
                                                           double offset)
{
    VynHSBTransform t;
    t.brightnessScale = scale;
    t.brightnessOffset = offset;
    return colorByApplyingHSBTransform(color, t);
}

QColor VynColorUtils::colorBySettingBrightness(const QColor& color, double brightness)
{
    return colorByIncreasingLuminosityWithScale(color, 0.0, brightness);
}

QColor VynColorUtils::colorByIncreasingSaturationWithScale(const QColor& color, double scale,
                                                           double offset)
{
    VynHSBTransform t;
    t.saturationScale = scale;
    t.saturationOffset = offset;
    return colorByApplyingHSBTransform(color, t);
}

QColor VynColorUtils::colorBySettingSaturation(const QColor& color, double saturation)
{
    return colorByIncreasingSaturationWithScale(color, 0.0, saturation);
}

double VynColorUtils::luminance(const QColor& color)
{
    const Rgba c = rgbaOf(color);
    return 0.299 * c.r + 0.587 * c.g + 0.114 * c.b;
}

VynColorUtils::VynStyle VynColorUtils::backgroundStyle(const QColor& color)
{
    return darkEnough(color, 0.5) ? VynStyleDark : VynStyleLight;
}

VynColorUtils::VynStyle VynColorUtils::backgroundStyleExtreme(const QColor& color)
{
    return darkEnough(color, 0.35) ? VynStyleDark : VynStyleLight;
}

QColor VynColorUtils::blackOrWhiteContrastingColor(const QColor& color)
{
    return darkEnough(color, 0.5) ? QColor::fromRgbF(1, 1, 1, 1) : QColor::fromRgbF(0, 0, 0, 1);
}

QColor VynColorUtils::blackOrWhiteContrastingColorExtreme(const QColor& color)
{
    return darkEnough(color, 0.3) ? QColor::fromRgbF(1, 1, 1, 1) : QColor::fromRgbF(0, 0, 0, 1);
}

bool VynColorUtils::isGray(const QColor& color)
{
    const Hsva c = hsvaOf(color);
    return c.s == 0.0 || c.v == 0.0;
}

QColor VynColorUtils::contrastingColor(const QColor& color)
{
    const Hsva c = hsvaOf(color);
    return fromHsva(turnHue(c.h, 0.05), c.s, contrastingBrightness(c.v), c.a);
}

QColor VynColorUtils::contrastingColorLight(const QColor& color)
{
    const Hsva c = hsvaOf(color);
    const double w = contrastingBrightness(c.v);
    const double h = turnHue(turnHue(c.h, 0.05), 0.04);
    return fromHsva(h, (c.s + 1.0) / 2.0, w * 0.2 + 0.8, c.a);
}

QColor VynColorUtils::glowColorWithAlpha(const QColor& color, double alpha)
{
    const Hsva c = hsvaOf(color);
    return fromHsva(c.h, c.s - 0.2, c.v + 0.2, alpha);
}

QColor VynColorUtils::colorWithRGBAffineTransformA(const QColor& color, double a, double b,
                                                   double alpha)
{
    const Rgba c = rgbaOf(color);
    return fromRgba(c.r * a + b, c.g * a + b, c.b * a + b, alpha);
}

QColor VynColorUtils::colorBySettingAlpha(const QColor& color, double alpha)
{
    const double truncated = std::trunc(alpha);
    if (!(truncated >= 0.0 && truncated <= 255.0))
        return QColor();
    const QColor rgb = color.isValid() ? color.toRgb() : QColor(0, 0, 0, 0);
    return QColor(rgb.red(), rgb.green(), rgb.blue(), int(truncated));
}

QColor VynColorUtils::colorWithColorAndMaxDistance(const QColor& color, double distance)
{
    // Every channel already lies within any distance of itself.
    Q_UNUSED(distance)
    return color;
}

QColor VynColorUtils::noAlphaColorWithAlpha(const QColor& color, double alpha,
                                            const QColor& background)
{
    const Rgba c = rgbaOf(color);
    const double a = alpha > 0.0 ? std::min(alpha, 1.0) : c.a;
    double r = c.r * a;
    double g = c.g * a;
    double b = c.b * a;
    if (background.isValid()) {
        const Rgba bg = rgbaOf(background);
        r += bg.r * (1.0 - a);
        g += bg.g * (1.0 - a);
        b += bg.b * (1.0 - a);
    }
    return fromRgba(r, g, b, 1.0);
}

QColor VynColorUtils::noAlphaColorOverColor(const QColor& color, const QColor& background)
{
    return noAlphaColorWithAlpha(color, 0.0, background);
}

QColor VynColorUtils::colorByOverlayingColor(const QColor& main, const QColor& top)
{
    const Rgba m = rgbaOf(main);
    const Rgba t = rgbaOf(top);
    const double a = m.a + t.a - m.a * t.a;
    if (a <= 0.0)
        return QColor::fromRgbF(0, 0, 0, 0);
    const auto channel = [&](double mc, double tc) {
        return (mc * m.a * (1.0 - t.a) + tc * t.a) / a;
    };
    return fromRgba(channel(m.r, t.r), channel(m.g, t.g), channel(m.b, t.b), a);
}

QList<QColor> VynColorUtils::colorsWithStops(const QColor& color, const QList<double>& stops,
                                             const VynHSBTransform& first,
                                             const VynHSBTransform& last)
{
    QList<QColor> colors;
    colors.reserve(stops.size() + 2);
    colors.append(colorByApplyingHSBTransform(color, first));
    for (double s : stops) {
        if (s > 0.0 && s < 1.0)
            colors.append(
                colorByApplyingHSBTransform(color, VynHSBTransform::blended(first, last, s)));
    }
    colors.append(colorByApplyingHSBTransform(color, last));
    return colors;
}
