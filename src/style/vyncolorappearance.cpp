#include "vyncolorappearance.h"

#include "vyncolorconstants.h"

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace VynColorConstants;

namespace {

template <std::size_t N> QColor at(const VynRGBColor (&table)[N], qsizetype index)
{
    return VynColorUtils::colorWithRGBComponentsOffset(table, qsizetype(N), index);
}

template <std::size_t N>
QColor transformed(const QColor& color, const VynHSBTransform (&table)[N], qsizetype index)
{
    return VynColorUtils::colorByApplyingHSBTransform(
        color, VynColorUtils::transformAt(table, qsizetype(N), index));
}

int st(int style)
{
    return VynColorUtils::styleIndex(style);
}

// A VynBOOL state: off, on, mixed.
int state(int on)
{
    return std::clamp(on, 0, 2);
}

int flag(bool value)
{
    return value ? 1 : 0;
}

constexpr double kTwoStops[] = {0, 1};

// A two-stop gradient read from the pair of entries that starts at \a first.
template <std::size_t NC, std::size_t NL>
QColor gradient(const VynRGBColor (&colors)[NC], const double (&locations)[NL], double location,
                qsizetype first = 0)
{
    const qsizetype start = std::clamp<qsizetype>(first, 0, qsizetype(NC) - 1);
    return VynColorUtils::colorWithRGBGradientComponents(
        colors + start, qsizetype(NC) - start, locations, qsizetype(NL), int(NL), location, 0);
}

template <std::size_t N>
QList<QColor> stopList(const QColor& color, const VynHSBTransform (&table)[N], qsizetype first,
                       const QList<double>& stops)
{
    return VynColorUtils::colorsWithStops(
        color, stops, VynColorUtils::transformAt(table, qsizetype(N), first),
        VynColorUtils::transformAt(table, qsizetype(N), first + 1));
}

// --- CIE L*a*b* (sRGB, D65) -------------------------------------------------------------------

constexpr double kWhiteX = 0.95047;
constexpr double kWhiteY = 1.0;
constexpr double kWhiteZ = 1.08883;
constexpr double kEpsilon = 0.008856;
constexpr double kKappaSlope = 7.787037;

double linearFromSrgb(double c)
{
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double srgbFromLinear(double c)
{
    return c <= 0.04045 / 12.92 ? c * 12.92 : 1.055 * std::pow(c, 1.0 / 2.4) - 0.055;
}

double labF(double t)
{
    return t > kEpsilon ? std::cbrt(t) : kKappaSlope * t + 16.0 / 116.0;
}

double labFInverse(double f)
{
    const double cube = f * f * f;
    return cube > kEpsilon ? cube : (f - 16.0 / 116.0) / kKappaSlope;
}

struct Lab
{
    double l, a, b;
};

Lab labFromRgb(double r, double g, double b)
{
    const double lr = linearFromSrgb(r), lg = linearFromSrgb(g), lb = linearFromSrgb(b);
    const double x = 0.4124564 * lr + 0.3575761 * lg + 0.1804375 * lb;
    const double y = 0.2126729 * lr + 0.7151522 * lg + 0.0721750 * lb;
    const double z = 0.0193339 * lr + 0.1191920 * lg + 0.9503041 * lb;
    const double fx = labF(x / kWhiteX), fy = labF(y / kWhiteY), fz = labF(z / kWhiteZ);
    return {116.0 * fy - 16.0, 500.0 * (fx - fy), 200.0 * (fy - fz)};
}

void rgbFromLab(const Lab& lab, double& r, double& g, double& b)
{
    const double fy = (lab.l + 16.0) / 116.0;
    const double fx = fy + lab.a / 500.0;
    const double fz = fy - lab.b / 200.0;
    const double x = labFInverse(fx) * kWhiteX;
    const double y = labFInverse(fy) * kWhiteY;
    const double z = labFInverse(fz) * kWhiteZ;
    // Inverse of the sRGB-to-XYZ matrix above.
    const double lr = 3.2404542 * x - 1.5371385 * y - 0.4985314 * z;
    const double lg = -0.9692660 * x + 1.8760108 * y + 0.0415560 * z;
    const double lb = 0.0556434 * x - 0.2040259 * y + 1.0572252 * z;
    r = std::clamp(srgbFromLinear(std::max(lr, 0.0)), 0.0, 1.0);
    g = std::clamp(srgbFromLinear(std::max(lg, 0.0)), 0.0, 1.0);
    b = std::clamp(srgbFromLinear(std::max(lb, 0.0)), 0.0, 1.0);
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

QColor fromRgbF(double r, double g, double b, double a)
{
    return QColor::fromRgbF(colorArgument(r), colorArgument(g), colorArgument(b), colorArgument(a));
}

} // namespace

// --- Colour factory -------------------------------------------------------------------------

int VynColorAppearance::colorFactoryCount()
{
    return int(std::size(kVynColorFactoryColors));
}

QColor VynColorAppearance::colorFactory(int index)
{
    return at(kVynColorFactoryColors, index);
}

VynRGBColor VynColorAppearance::rgbColorFactoryIndex(int index)
{
    return kVynColorFactoryColors[std::clamp(index, 0, colorFactoryCount() - 1)];
}

QColor VynColorAppearance::readableColorFactoryForStyle(int index, int style)
{
    return readableColorForStyle(colorFactory(index), style);
}

QColor VynColorAppearance::primaryColorFactoryForStyle(int index, int style)
{
    return primaryColorForStyle(colorFactory(index), style);
}

QColor VynColorAppearance::secondaryColorFactoryForStyle(int index, int style)
{
    return secondaryColorForStyle(colorFactory(index), style);
}

QColor VynColorAppearance::tertiaryColorFactoryForStyle(int index, int style)
{
    return tertiaryColorForStyle(colorFactory(index), style);
}

// --- Tint-derived colours -------------------------------------------------------------------

QColor VynColorAppearance::readableColorForStyle(const QColor& color, int style)
{
    if (!color.isValid())
        return color;
    float r = 0, g = 0, b = 0, alpha = 0;
    color.getRgbF(&r, &g, &b, &alpha);
    Lab lab = labFromRgb(r, g, b);
    if (st(style) == VynColorUtils::VynStyleDark) {
        lab.l = std::max(lab.l, 40.0);
    } else if (lab.l > 60.0) {
        if (std::round(lab.a) != 0.0)
            lab.a += (lab.l - 60.0) * 20.0 / 40.0;
        lab.l = 60.0;
    }
    double rr = 0, gg = 0, bb = 0;
    rgbFromLab(lab, rr, gg, bb);
    return fromRgbF(rr, gg, bb, alpha);
}

QColor VynColorAppearance::primaryColorForStyle(const QColor& color, int style)
{
    return transformed(color, kVynColorPrimaryTransforms, st(style));
}

QColor VynColorAppearance::secondaryColorForStyle(const QColor& color, int style)
{
    return transformed(color, kVynColorSecondaryTransforms, st(style));
}

QColor VynColorAppearance::tertiaryColorForStyle(const QColor& color, int style)
{
    return transformed(color, kVynColorTertiaryTransforms, st(style));
}

QColor VynColorAppearance::colorIconBorderColorForStyle(const QColor& color, int style)
{
    return transformed(color, kVynColorIconBorderTransforms, st(style));
}

QColor VynColorAppearance::logGraphInfoColor2(const QColor& color, int style)
{
    return transformed(color, kVynBarGraphInfoIconTransforms, st(style));
}

QColor VynColorAppearance::graphBackgroundTransformedColor(const QColor& color, int style,
                                                           int firstOrSecond)
{
    return transformed(color, kVynGraphBackgroundTransforms,
                       st(style) * 2 + std::clamp(firstOrSecond, 0, 1));
}

QColor VynColorAppearance::graphThumbLabelBackgroundTransformedColor(const QColor& color, int style)
{
    return transformed(color, kVynThumbLabelBackgroundTransforms, st(style));
}

QColor VynColorAppearance::barGraphPercentTransformedColor(const QColor& color, int style)
{
    return transformed(color, kVynBarGraphPercentTransforms, st(style));
}

QColor VynColorAppearance::barGraphHighlightTransformedColor(const QColor& color, int style)
{
    return transformed(color, kVynBarGraphHighlightTransforms, st(style));
}

QColor VynColorAppearance::recapHeaderGradientColor(const QColor& tint, int style, int position)
{
    return transformed(tint, kVynRecapHeaderGradientTransforms,
                       st(style) * 2 + std::clamp(position, 0, 1));
}

QColor VynColorAppearance::inactiveViewBackgroundColor(const QColor& color)
{
    return transformed(color, kVynInactiveScreenBackgroundTransform, 0);
}

QColor VynColorAppearance::inactiveViewTintedImageColor()
{
    static const QColor color =
        transformed(QColor::fromRgbF(0.5f, 0.5f, 0.5f, 1.0f),
                    kVynInactiveScreenTintedImageTransform, VynColorUtils::VynStyleLight);
    return color;
}

QColor VynColorAppearance::networkCellBackgroundColorForStyle(const QColor& tint, int style,
                                                              bool selected)
{
    return selected ? tint : transformed(tint, kVynNetworkCellNotSelectedTransforms, st(style));
}

QColor VynColorAppearance::networkCellBorderColorForStyle(const QColor& tint, int style,
                                                          bool selected)
{
    return selected ? networkCellSelectedBorderColorForStyle(tint, style)
                    : transformed(tint, kVynNetworkCellBorderTransforms, st(style));
}

QColor VynColorAppearance::networkCellSelectedBorderColorForStyle(const QColor& tint, int style)
{
    return transformed(tint, kVynNetworkCellSelectedBorderTransforms, st(style));
}

QColor VynColorAppearance::networkCellEvenColorForStyle(const QColor& tint, int style)
{
    return transformed(tint, kVynNetworkCellEvenTransforms, st(style));
}

QColor VynColorAppearance::networkCellOddColorForStyle(const QColor& tint, int style)
{
    return transformed(tint, kVynNetworkCellOddTransforms, st(style));
}

QColor VynColorAppearance::popupBackgroundColorForStyle(const QColor& color, int style)
{
    return transformed(color, kVynPopupBackgroundTransforms, st(style));
}

QColor VynColorAppearance::zoneIconFillColor(const QColor& color, int style)
{
    return transformed(color, kVynZoneIconTransforms, st(style));
}

QColor VynColorAppearance::circularUpdateTrackColor(const QColor& color)
{
    return transformed(color, kVynCircularUpdateTransform, 0);
}

QColor VynColorAppearance::tableViewCellBackgroundColorForTintAndStyle(const QColor& tint,
                                                                       int style)
{
    return transformed(tint, kVynTableCellSelectedColorTransforms, st(style));
}

// --- Background stop lists ------------------------------------------------------------------

QList<QColor> VynColorAppearance::backgroundColorsWithStops(const QColor& color,
                                                            const QList<double>& stops)
{
    return stopList(color, kVynColorBackgroundTransforms, 0, stops);
}

QList<QColor> VynColorAppearance::backgroundColorsForStyleWithStops(const QColor& color, int style,
                                                                    const QList<double>& stops)
{
    return stopList(color, kVynStyledBackgroundTransforms, st(style) * 2, stops);
}

QList<QColor>
VynColorAppearance::backgroundColorsExtremeForStyleWithStops(const QColor& color, int style,
                                                             const QList<double>& stops)
{
    return stopList(color, kVynExtremeBackgroundTransforms, st(style) * 2, stops);
}

QList<QColor> VynColorAppearance::graphBackgroundColorsForStyleWithStops(const QColor& color,
                                                                         int style,
                                                                         const QList<double>& stops)
{
    return stopList(color, kVynGraphBackgroundTransforms, st(style) * 2, stops);
}

// --- Views, windows, popovers, tables -------------------------------------------------------

QColor VynColorAppearance::viewBackgroundColorForStyle(int style, int level)
{
    return at(kVynViewBackgroundColors, st(style) + std::clamp(level, 0, 1) * 2);
}

// clang-format off
QColor VynColorAppearance::windowBackgroundColorForStyle(int style) { return at(kVynWindowBackgroundColors, st(style)); }
QColor VynColorAppearance::windowBorderColorForStyle(int style) { return at(kVynWindowBorderColors, st(style)); }
QColor VynColorAppearance::popoverBackgroundColorForStyle(int style) { return at(kVynPopoverBackgroundColors, st(style)); }
QColor VynColorAppearance::popoverBorderColorForStyle(int style) { return at(kVynPopoverBorderColors, st(style)); }
QColor VynColorAppearance::popoverShadowColorForStyle(int style) { return at(kVynPopoverShadowColors, st(style)); }
QColor VynColorAppearance::textViewBackgroundColorForStyle(int style) { return at(kVynTextViewBackgroundColors, st(style)); }
QColor VynColorAppearance::tableViewBackgroundColorForStyle(int style) { return at(kVynTableViewBackgroundColors, st(style)); }
QColor VynColorAppearance::tableViewBorderColorForStyle(int style) { return at(kVynTableViewBorderColors, st(style)); }
QColor VynColorAppearance::tableSectionBackgroundColorForStyle(int style, bool warning) { return at(kVynTableSectionBackgroundColors, st(style) + flag(warning) * 2); }
QColor VynColorAppearance::tableSectionBorderColorForStyle(int style, bool warning) { return at(kVynTableSectionBorderColors, st(style) + flag(warning) * 2); }
QColor VynColorAppearance::tableViewCellRedOverlayColorForStyle(int style) { return at(kVynCellBackgroundRedOverlayColors, st(style)); }
QColor VynColorAppearance::borderViewBackgroundColorForStyle(int style) { return at(kVynBorderViewBackgroundColors, st(style)); }
QColor VynColorAppearance::lineViewColorForStyle(int style) { return at(kVynLineViewColors, st(style)); }
QColor VynColorAppearance::splitViewLineColorForStyle(int style) { return at(kVynSplitViewLineColors, st(style)); }
QColor VynColorAppearance::viewListHeaderLineColorForStyle(int style) { return at(kVynViewListHeaderLineColors, st(style)); }
QColor VynColorAppearance::viewListHeaderLineShadowColorForStyle(int style) { return at(kVynViewListHeaderLineShadowColors, st(style)); }
QColor VynColorAppearance::colorIconShadowColorForStyle(int style) { return at(kVynColorIconShadowColors, st(style)); }
// clang-format on

QColor VynColorAppearance::tableViewCellBackgroundColorForStyle(int style, bool selected,
                                                                bool hasFocus, bool alternate)
{
    if (selected)
        return hasFocus ? at(kVynCellBackgroundSelectedColors, st(style))
                        : at(kVynCellBackgroundStripColors, st(style));
    return alternate ? at(kVynCellBackgroundAlternateColors, st(style))
                     : at(kVynCellBackgroundColors, st(style));
}

QColor VynColorAppearance::viewListButtonTitleColorForStyle(int style, int level,
                                                            const QColor& color, bool mouseOver)
{
    if (!mouseOver)
        return at(kVynViewListLabelColors, st(style) + std::clamp(level, 0, 1) * 2);
    return VynColorUtils::blackOrWhiteContrastingColor(color);
}

QColor VynColorAppearance::labelColorForStyle(int style, int level)
{
    return at(kVynLabelColors, std::clamp(level, 0, 2) + st(style) * 3);
}

QColor VynColorAppearance::coloredLabelColorForStyle(int style, int level)
{
    return at(kVynColoredLabelColors, std::clamp(level, 0, 6) * 2 + st(style));
}

QColor VynColorAppearance::tableLabelColorForStyle(int style, bool selected, bool hasFocus,
                                                   int level)
{
    const int group = std::clamp(level, 0, 2) + st(style) * 3;
    return at(kVynTableLabelColors, flag(hasFocus) + (flag(selected) + group * 2) * 2);
}

QColor VynColorAppearance::tableTintedLabelColorForStyle(const QColor& color, int style,
                                                         bool selected)
{
    return selected ? at(kVynTableTintedLabelSelectedColor, st(style)) : color;
}

QColor VynColorAppearance::textViewTextColorForStyle(int style, int mixed)
{
    return at(kVynTextViewTextColors, st(style) + std::clamp(mixed, 0, 1) * 2);
}

QColor VynColorAppearance::textViewBorderColorForStyle(int style, int mixed, bool editing)
{
    if (editing)
        return at(kVynTextViewBorderColors, 2 + st(style));
    return at(kVynTextViewBorderColors, st(style) + std::clamp(mixed, 0, 1) * 4);
}

// --- Controls, buttons, LEDs ----------------------------------------------------------------

// clang-format off
QColor VynColorAppearance::controlColorForStyle(int style, int on) { return at(kVynControlColors, st(style) + state(on) * 2); }
QColor VynColorAppearance::flatButtonFillColorForStyle(int style, int on) { return at(kVynControlFlatFillColors, st(style) + state(on) * 2); }
QColor VynColorAppearance::flatButtonBorderColorForStyle(int style, int on) { return at(kVynControlFlatBorderColors, st(style) + state(on) * 2); }
QColor VynColorAppearance::flatButtonSeparatorColorForStyle(int style, int on) { return at(kVynControlFlatSeparatorColors, st(style) + state(on) * 2); }
QColor VynColorAppearance::templateButtonColorForStyle(int style, int on) { return at(kVynControlTemplateColors, st(style) + state(on) * 2); }
QColor VynColorAppearance::templateButtonTextColorForStyle(int style, int on) { return at(kVynControlTemplateTextColors, st(style) + state(on) * 2); }
QColor VynColorAppearance::inlineButtonColorForStyle(int style, int on) { return at(kVynControlInlineColors, st(style) + state(on) * 2); }
QColor VynColorAppearance::toolbarButtonColorForStyle(int style, int on) { return at(kVynToolbarButtonColors, st(style) + state(on) * 2); }
QColor VynColorAppearance::toolbarButtonTextColorForStyle(int style, int on) { return at(kVynToolbarButtonTextColors, st(style) + state(on) * 2); }
QColor VynColorAppearance::controlBorderRedColorForStyle(int style) { return at(kVynControlBorderRedColors, st(style)); }
QColor VynColorAppearance::controlFillColor(int style) { return at(kVynControlFillColors, st(style)); }
QColor VynColorAppearance::controlTouchOverColorForStyle(int style) { return at(kVynControlTouchOverColors, st(style)); }
QColor VynColorAppearance::controlMixedTickColor() { return at(kVynControlMixedTickColor, 0); }
QColor VynColorAppearance::badgeNewColorForStyle(int style) { return at(kVynNewBadgeColors, st(style)); }
QColor VynColorAppearance::liveModeButtonColor(int mode) { return at(kVynLiveModeButtonColors, mode); }
QColor VynColorAppearance::liveModeButtonBackgroundColor(int style) { return at(kVynLiveModeButtonBackgroundColors, st(style)); }
QColor VynColorAppearance::liveModeButtonFillColor(int style) { return at(kVynLiveModeButtonFillColors, st(style)); }
QColor VynColorAppearance::logRecordButtonColor() { return at(kLogRecordButtonColor, 0); }
QColor VynColorAppearance::yellowSelectionColor() { return at(kYellowSelectionColor, 0); }
QColor VynColorAppearance::ledFillColorForState(int state) { return at(kLedFillColors, state); }
QColor VynColorAppearance::ledBorderColorForState(int state) { return at(kLedBorderColors, state); }
QColor VynColorAppearance::ledGlowColorForState(int state) { return at(kLedGlowColors, state); }
QColor VynColorAppearance::ledTextColor() { return at(kLedTextColor, 0); }
// clang-format on

QColor VynColorAppearance::controlTextColorForStyle(int style, int on, bool isDefault,
                                                    bool isDestructive)
{
    const int index = st(style) + state(on) * 2;
    if (isDefault || isDestructive)
        return at(kVynControlDefaultTextColor, index);
    return at(kVynControlTextColors, index);
}

QColor VynColorAppearance::controlBorderColorForStyle(int style, int on, bool isDefault,
                                                      bool isDestructive)
{
    const int index = st(style) + state(on) * 2;
    if (isDefault)
        return at(kVynControlDefaultBorderColor, index);
    if (isDestructive)
        return at(kVynControlDestructiveBorderColor, index);
    return at(kVynControlBorderColors, index);
}

QColor VynColorAppearance::flatButtonTextColorForStyle(int style, int on, bool destructive)
{
    if (destructive)
        return at(kVynControlFlatDestructiveTextColors, st(style));
    return at(kVynControlFlatTextColors, st(style) + state(on) * 2);
}

QColor VynColorAppearance::bridgeIconColorForStyle(int style, int level, int mixed)
{
    return at(kVynBridgeIconColors,
              st(style) + (std::clamp(level, 0, 1) + std::clamp(mixed, 0, 1) * 2) * 2);
}

// --- Gradients ------------------------------------------------------------------------------

QColor VynColorAppearance::controlOnGradientColor(double location)
{
    return gradient(kVynControlOnGradientColors, kVynControlOnGradientLocations, location);
}

QColor VynColorAppearance::controlOnRedGradientColor(double location)
{
    return gradient(kVynControlOnRedGradientColors, kVynControlOnGradientLocations, location);
}

QColor VynColorAppearance::controlMixedGradientColor(double location)
{
    return gradient(kVynControlMixedGradientColors, kVynControlMixedGradientLocations, location);
}

QColor VynColorAppearance::controlOffGradientColorForStyle(double location, int style, bool opaque,
                                                           bool isDefault, bool isDestructive)
{
    if (isDefault)
        return gradient(kVynControlDefaultGradientColors, kVynControlDefaultGradientLocations,
                        location);
    if (isDestructive)
        return gradient(kVynControlDestructiveGradientColors,
                        kVynControlDestructiveGradientLocations, location);
    if (opaque) // the style's pair of stops, both ends included
        return gradient(kVynControlOffGradientOpaqueColors, kVynControlOffGradientLocations,
                        location, st(style) * 2);
    return gradient(kVynControlOffGradientColors, kVynControlOffGradientLocations, location);
}

QColor VynColorAppearance::controlImageOnGradientColor(double location)
{
    return gradient(kVynControlImageOnGradientColors, kVynControlImageOnGradientLocations,
                    location);
}

QColor VynColorAppearance::controlImageOffGradientColor(double location, bool isDefault,
                                                        bool isDestructive)
{
    if (isDefault)
        return gradient(kVynControlDefaultGradientColors, kVynControlDefaultGradientLocations,
                        location);
    if (isDestructive)
        return gradient(kVynControlDestructiveGradientColors,
                        kVynControlDestructiveGradientLocations, location);
    return gradient(kVynControlImageOffGradientColors, kVynControlImageOffGradientLocations,
                    location);
}

QColor VynColorAppearance::patchLineNormalGradientColor(double location)
{
    return gradient(kVynPatchNormalColors, kTwoStops, location);
}

QColor VynColorAppearance::patchLineExpectingGradientColor(double location)
{
    return gradient(kVynPatchExpectingColors, kTwoStops, location);
}

QColor VynColorAppearance::patchLineMultipleGradientColor(double location)
{
    return gradient(kVynPatchMultipleColors, kTwoStops, location);
}

// clang-format off
QColor VynColorAppearance::patchAnchorColor(int style) { return at(kVynPatchAnchorColors, st(style)); }
QColor VynColorAppearance::patchDestructiveColor(int style) { return at(kVynPatchDestructiveColors, st(style)); }

// --- Network map, tuning, lasso -------------------------------------------------------------

QColor VynColorAppearance::networkMapBackgroundColorForStyle(int style) { return at(kVynNetworkMapBackgroundColor, st(style)); }
QColor VynColorAppearance::networkMapShadowColorForStyle(int style) { return at(kVynNetworkMapShadowColor, st(style)); }
QColor VynColorAppearance::mapImageGridColor() { return at(kVynMapImageGridColor, 0); }
QColor VynColorAppearance::mapImageMissingColorForStyle(int style) { return at(kVynMapImageMissingColors, st(style)); }
QColor VynColorAppearance::mapImageAnchorFillColorForStyle(int style) { return at(kVynMapImageAnchorFillColors, st(style)); }
QColor VynColorAppearance::mapImageAnchorBorderColorForStyle(int style) { return at(kVynMapImageAnchorBorderColors, st(style)); }
QColor VynColorAppearance::networkPhantomCellFillColorForStyle(int style) { return at(kVynNetworkPhantomCellFillColors, st(style)); }
QColor VynColorAppearance::networkPhantomCellBorderColorForStyle(int style) { return at(kVynNetworkPhantomCellBorderColors, st(style)); }
QColor VynColorAppearance::networkOutOfContainerFocusColorForStyle(int style) { return at(kVynNetworkOutOfContainerFocusColors, st(style)); }
QColor VynColorAppearance::lassoBorderColorForStyle(int style) { return at(kVynLassoBorderColors, st(style)); }
QColor VynColorAppearance::lassoFillColorForStyle(int style) { return at(kVynLassoFillColors, st(style)); }
QColor VynColorAppearance::taskButtonColorForStyle(int style) { return at(kVynTaskButtonColors, st(style)); }
QColor VynColorAppearance::alignmentGuideColorForStyle(int style) { return at(kVynAlignmentGuideColors, st(style)); }
QColor VynColorAppearance::tuningBorderViewBackgroundColorForStyle(int style) { return at(kVynTuningBorderViewBackgroundColors, st(style)); }
QColor VynColorAppearance::screenCompositionBorderColorForStyle(int style) { return at(kVynScreenCompositionBorderColors, st(style)); }
QColor VynColorAppearance::tuningHeaderBackgroundColorForStyle(int style, int level) { return at(kVynTuningHeaderColors, st(style) + std::clamp(level, 0, 2) * 2); }
QColor VynColorAppearance::tuningStatusLabelColorForStyle(int style, int level) { return at(kVynTuningStatusLabelColors, st(style) + std::clamp(level, 0, 2) * 2); }
QColor VynColorAppearance::tuningStatusWarningColorForStyle(int style) { return at(kVynTuningStatusWarningColors, st(style)); }
QColor VynColorAppearance::tuningProductLabelColorForStyle(int style) { return at(kVynTuningProductLabelColors, st(style)); }
QColor VynColorAppearance::tuningGlobalViewBackgroundColorForStyle(int style) { return at(kVynTuningGlobalViewBackgroundColors, st(style)); }
QColor VynColorAppearance::orlaColorForStyle(int style) { return at(kOrlaColorGreen, st(style)); }
QColor VynColorAppearance::teskColorForStyle(int style) { return at(kTeskColorOrange, st(style)); }

// --- Log graph ------------------------------------------------------------------------------

QColor VynColorAppearance::logGraphInfoColor(int paramFamily) { return at(kLogGraphInfoColor, std::clamp(paramFamily, 0, 16)); }
QColor VynColorAppearance::logGraphAxisColor(int style) { return at(kLogGraphAxisColors, st(style)); }
QColor VynColorAppearance::logGraphLabelColor(int style, int timeOrDay) { return at(kLogGraphLabelColors, st(style) + std::clamp(timeOrDay, 0, 1) * 2); }
QColor VynColorAppearance::logGraphLabelShadowColor(int style) { return at(kLogGraphLabelShadowColors, st(style)); }
QColor VynColorAppearance::logGraphInfoNoGraphColor(int style) { return at(kLogGraphInfoNoGraphColors, st(style)); }
QColor VynColorAppearance::logTimeSliderBreakColor(int style) { return at(kLogTimeSliderBreakColors, st(style)); }
QColor VynColorAppearance::logTimeSliderLabelColor(int style) { return at(kLogTimeSliderLabelColors, st(style)); }
QColor VynColorAppearance::logGraphBreakFillColor(int style) { return at(kLogGraphBreakFillColors, st(style)); }
QColor VynColorAppearance::logGraphBreakBorderColor(int style) { return at(kLogGraphBreakBorderColors, st(style)); }
QColor VynColorAppearance::logKeyFactsTitleColor(int style) { return at(kLogKeyFactsTitleColors, st(style)); }

// --- VU meter -------------------------------------------------------------------------------

QColor VynColorAppearance::vuMeterFillColor(int style) { return at(kVynVUMeterFillColors, st(style)); }
QColor VynColorAppearance::vuMeterBorderColor(int style) { return at(kVynVUMeterBorderColors, st(style)); }
QColor VynColorAppearance::vuMeterTickMarkColor(int style) { return at(kVynVUMeterTickMarkColors, st(style)); }

// --- EQ graphs ------------------------------------------------------------------------------

QColor VynColorAppearance::eqGraphLabelColorForStyle(int style) { return at(kEQGraphLabelColors, st(style)); }
QColor VynColorAppearance::eqGraphAxisMainColorForStyle(int style) { return at(kEQGraphAxisMainColors, st(style)); }
QColor VynColorAppearance::eqGraphAxisSecondaryColorForStyle(int style) { return at(kEQGraphAxisSecondaryColors, st(style)); }
QColor VynColorAppearance::eqThumbnailGridColorsForStyle(int style) { return at(kEQThumbnailGridColors, st(style)); }
QColor VynColorAppearance::eqThumbnailBorderColorForStyle(int style) { return at(kEQThumbnailBorderColors, st(style)); }
QColor VynColorAppearance::eqGraphArrayEQFillColorsForStyle(int style) { return at(kEQGraphArrayEQFillColors, st(style)); }
QColor VynColorAppearance::eqGraphArrayEQBorderColorsForStyle(int style) { return at(kEQGraphArrayEQBorderColors, st(style)); }
QColor VynColorAppearance::eqThumbnailRightOnColorsForStyle(int style) { return at(kEQThumbnailRightOnColors, st(style)); }
QColor VynColorAppearance::eqThumbnailRightOffColorsForStyle(int style) { return at(kEQThumbnailRightOffColors, st(style)); }
QColor VynColorAppearance::eqThumbnailRightMixedColorsForStyle(int style) { return at(kEQThumbnailRightMixedColors, st(style)); }
QColor VynColorAppearance::eqThumbnailLeftTextColor() { return at(kEQThumbnailLeftTextColor, 0); }
QColor VynColorAppearance::eqThumbnailLeftBkgOnColor() { return at(kEQThumbnailLeftBkgOnColor, 0); }
QColor VynColorAppearance::eqThumbnailLeftBkgOffColor() { return at(kEQThumbnailLeftBkgOffColor, 0); }
QColor VynColorAppearance::eqThumbnailLeftBkgMixedColor() { return at(kEQThumbnailLeftBkgMixedColor, 0); }
QColor VynColorAppearance::eqThumbnailEmptyColor() { return at(kEQThumbnailEmptyColor, 0); }
QColor VynColorAppearance::eqTypeCurveColorForStyle(int style, int on) { return at(kEQTypeCurveColors, st(style) + state(on) * 2); }
// clang-format on

namespace {

// The location truncated towards zero and limited to the two entries.
int gradientEnd(double location)
{
    if (!(location >= 1.0))
        return 0; // below 1, and NaN
    return 1;
}

} // namespace

QColor VynColorAppearance::eqThumbnailOnBkgGradientColorForStyle(double location, int style)
{
    return st(style) == VynColorUtils::VynStyleDark
               ? at(kEQThumbnailOnBkgGradientColorsDark, gradientEnd(location))
               : at(kEQThumbnailOnBkgGradientColorsLight, gradientEnd(location));
}

QColor VynColorAppearance::eqThumbnailOffBkgGradientColorForStyle(double location, int style)
{
    return st(style) == VynColorUtils::VynStyleDark
               ? at(kEQThumbnailOffBkgGradientColorsDark, gradientEnd(location))
               : at(kEQThumbnailOffBkgGradientColorsLight, gradientEnd(location));
}

QColor VynColorAppearance::eqThumbnailMixedBkgGradientColorForStyle(double location, int style)
{
    return st(style) == VynColorUtils::VynStyleDark
               ? at(kEQThumbnailMixedBkgGradientColorsDark, gradientEnd(location))
               : at(kEQThumbnailMixedBkgGradientColorsLight, gradientEnd(location));
}

QColor VynColorAppearance::eqThumbColorForStyle(int style, bool selected, int on)
{
    if (!selected)
        return at(kEQThumbColors, st(style));
    return at(kEQThumbColors, st(style) + state(on) * 2 + 2);
}

QColor VynColorAppearance::eqCurveGradientColorForStyle(int style, int on, int curveIndex,
                                                        int numberOfCurves, QColor* fillColor,
                                                        QColor* buttonColor)
{
    const bool dark = st(style) == VynColorUtils::VynStyleDark;
    const qsizetype first = std::clamp<qsizetype>(st(style) * 2 + state(on) * 4, 0,
                                                  qsizetype(std::size(kEQGradientColors)) - 2);
    const VynRGBColor& a = kEQGradientColors[first];
    const VynRGBColor& b = kEQGradientColors[first + 1];

    const double t = numberOfCurves > 1
                         ? std::clamp(double(curveIndex) / double(numberOfCurves - 1), 0.0, 1.0)
                         : 0.5;
    const double u = 1.0 - t;
    const double alpha = a.alpha * t + b.alpha * u;
    const QColor color =
        fromRgbF(a.red * t + b.red * u, a.green * t + b.green * u, a.blue * t + b.blue * u, alpha);
    if (fillColor) {
        // Alpha × m / c with c = min(numberOfCurves, 1), which is 1 for any real set of
        // curves (and taken as 1 for none), and m = min(k × c, cap): 0.4 dark, 0.15 light.
        const double m = dark ? 0.4 : 0.15;
        *fillColor = fromRgbF(color.redF(), color.greenF(), color.blueF(), alpha * m);
    }
    if (buttonColor)
        *buttonColor = color;
    return color;
}

QColor VynColorAppearance::eqCurveColorForStyle(int style, int on, int curveIndex,
                                                int numberOfCurves, QColor* fillColor,
                                                QColor* buttonColor)
{
    return eqCurveGradientColorForStyle(style, on, curveIndex, numberOfCurves, fillColor,
                                        buttonColor);
}

QColor VynColorAppearance::eqGraphBackgroundGradientColor(const QColor& tint, int style,
                                                          int position)
{
    const int end = std::clamp(position, 0, 1);
    if (tint.isValid() && tint.alphaF() > 0.0f)
        return transformed(tint, kVynGraphBackgroundTransforms, end + st(style) * 2);
    return st(style) == VynColorUtils::VynStyleDark ? at(kEQGraphBackgroundColorsDark, end)
                                                    : at(kEQGraphBackgroundColorsLight, end);
}

// --- Log graph mark -------------------------------------------------------------------------

QColor VynColorAppearance::logGraphMarkColor(const QColor& infoColor)
{
    if (!infoColor.isValid())
        return infoColor;
    float h = 0, s = 0, l = 0, a = 0;
    infoColor.toHsl().getHslF(&h, &s, &l, &a);
    if (s == 0.0f && l == 1.0f)
        return QColor::fromHslF(h, s, 0.0f, a);
    if (l == 0.0f)
        return QColor::fromHslF(h, 0.0f, 1.0f, a);
    float hue = h;
    if (hue >= 0.0f) { // an achromatic grey has no hue to turn
        hue += 0.5f;
        if (hue > 1.0f)
            hue -= 1.0f;
    }
    return QColor::fromHslF(hue, s, std::min(l * 1.2f, 1.0f), a);
}

double VynColorAppearance::liveModeButtonAlpha()
{
    return kVynLiveModeButtonAlphas[0];
}

double VynColorAppearance::liveModeButtonTouchingAlpha()
{
    return kVynLiveModeButtonAlphas[1];
}

QColor VynColorAppearance::zoneIconTouchingColor(const QColor& color, int style)
{
    return transformed(zoneIconFillColor(color, style), kVynControlTouchOverTransform, 0);
}

double VynColorAppearance::zoneIconShadowAlpha()
{
    return kVynZoneIconShadowAlpha;
}

QColor VynColorAppearance::popoverButtonFillColor(int style)
{
    return flatButtonFillColorForStyle(style, 0);
}

QColor VynColorAppearance::popoverButtonBorderColor(int style)
{
    return flatButtonBorderColorForStyle(style, 0);
}
