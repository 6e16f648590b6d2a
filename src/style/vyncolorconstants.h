#pragma once

#include "vynhsbtransform.h"

#include <vynrgbcolor.h>

/*!
    The colour tables of the module. Every colour the module draws is an entry
    of one of these constant arrays (or a tint run through one of the HSB
    transforms below), so the look of both styles is data, not code.

    Each table is laid out so that one index expression picks its entry; the
    comment above each table gives it. The common layouts:

    - [Light, Dark]: two entries, index style (VynColorUtils::VynStyle).
    - style + on × 2: Light/Dark pairs for off, on and mixed (a VynBOOL state).
    - single value: one entry, the same in both styles.
    - transform pairs: [Light, Dark]; gradient transform families hold four,
      index style × 2 + end (start of the gradient, then its end).
    - location tables: the ascending stop positions of a gradient in [0, 1].

    Colours are red, green, blue, alpha in [0, 1]; transforms are the eight
    numbers of VynHSBTransform. The tables are inline constexpr arrays, so
    std::size() gives their length; VynColorUtils and VynColorAppearance read
    them through clamped indexes and never past their end.
*/
namespace VynColorConstants {

//! index style (entries 2 and 3 are the stronger variants kept for hosts)
inline constexpr VynHSBTransform kVynTableCellSelectedColorTransforms[] = {
    {1, -0.01, 0.95, -0.2, 1.2, 0, 0, 0.8},
    {1, 0, 0.95, 0, 1, 0, 1, 0},
    {1, 0, 1.26, 0, 0.48, 0, 1, 0.8},
    {1, 0, 1.26, 0, 0.75, 0, 1, 0},
};

//! index style × 2 + position (gradient start, end)
inline constexpr VynHSBTransform kVynRecapHeaderGradientTransforms[] = {
    {1, -0.012, 0.52, 0, 0.97, 0, 1, 0},
    {1, 0, 0.5, 0, 0.97, 0, 1, 0},
    {1, -0.015, 0.8, 0, 0.25, 0, 1, 0},
    {1, 0, 0.78, 0, 0.23, 0, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynNetworkCellOddTransforms[] = {
    {1, 0, 0.9, 0, 0.9, 0, 1, 0},
    {1, 0, 1, 0, 0.55, 0, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynNetworkCellEvenTransforms[] = {
    {1, 0, 0.8, 0, 1.2, 0, 1, 0},
    {1, 0, 1, 0, 0.75, 0, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynNetworkCellBorderTransforms[] = {
    {1, 0, 0.75, 0, 0.95, -0.15, 1, 0},
    {1, 0, 1, 0, 0.8, -0.2, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynNetworkCellSelectedBorderTransforms[] = {
    {1, 0, 1, 0, 0.8, -0.05, 1, 0},
    {1, 0, 1, 0.2, 1, 0, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynNetworkCellNotSelectedTransforms[] = {
    {1, 0, 0.45, -0.05, 1.15, 0.05, 1, 0},
    {1, 0, 0.8, -0.05, 0.45, -0.05, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynBarGraphInfoIconTransforms[] = {
    {1, 0.03, 1, 0, 1, 0.1, 1, 0},
    {1, 0.03, 1, 0, 1, 0.1, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynBarGraphHighlightTransforms[] = {
    {1, 0, 1, -0.1, 0.9, 0.1, 1, 0},
    {1, 0, 1, -0.1, 1.2, 0.2, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynBarGraphPercentTransforms[] = {
    {1, 0, 1, 1, 0.8, -0.2, 1, 0},
    {1, 0, 1, -0.2, 1, -0.1, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynThumbLabelBackgroundTransforms[] = {
    {1, 0, 0, 0.15, 0, 1, 0, 0.6},
    {1, 0, 0, 0.75, 0, 0.5, 0, 0.6},
};

//! index style × 2 + firstOrSecond (gradient start, end)
inline constexpr VynHSBTransform kVynGraphBackgroundTransforms[] = {
    {1, -0.03, 0.014, 0, 0, 0.99, 1, 0},
    {1, 0, 0.01, 0, 0, 0.985, 1, 0},
    {1, 0, 0, 0.4, 0, 0.15, 1, 0},
    {1, 0, 0, 0.2, 0, 0.15, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynPopupBackgroundTransforms[] = {
    {1, 0, 0, 0.05, 0, 0.95, 0, 0.94},
    {1, 0, 0, 0.05, 0, 0.22, 0, 0.94},
};

//! single value, both styles
inline constexpr VynHSBTransform kVynCircularUpdateTransform[] = {
    {1, 0, 0.8, 0, 0.8, 0, 0, 0.25},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynZoneIconTransforms[] = {
    {1, 0, 1, 0, 1, -0.15, 1, 0},
    {1, 0, 0.9, -0.1, 1, 0.25, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynColorIconBorderTransforms[] = {
    {1, 0, 1, 0, 0.8, -0.2, 1, 0},
    {1, 0, 1, 0, 1.1, 0.1, 1, 0},
};

//! single value, both styles
inline constexpr VynHSBTransform kVynControlTouchOverTransform[] = {
    {1, 0, 1, 0, 0.8, -0.1, 1, 0},
};

//! Opacity of the live-mode button: [normal, while touched]. The touched button fades
//! enough to read as pressed while its colour (the mode) stays recognisable.
inline constexpr double kVynLiveModeButtonAlphas[] = {0.9, 0.6};

//! Opacity of a zone icon's drop shadow: a soft shadow that lifts the icon off the map in
//! both styles without darkening neighbouring cells.
inline constexpr double kVynZoneIconShadowAlpha = 0.35;

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynInactiveScreenTintedImageTransform[] = {
    {1, 0, 1, 0, 1, -0.16, 1, 0},
    {1, 0, 1, 0, 1, 0.16, 1, 0},
};

//! single value, both styles
inline constexpr VynHSBTransform kVynInactiveScreenBackgroundTransform[] = {
    {1, 0, 0.4, 0, 0.35, -0.2, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynBorderViewBackgroundColors[] = {
    {1, 1, 1, 0.05},
    {1, 1, 1, 0.03},
};

//! index style × 2 + end (gradient start, end)
inline constexpr VynHSBTransform kVynExtremeBackgroundTransforms[] = {
    {1, -0.03, 0.014, 0, 0, 0.99, 1, 0},
    {1, 0, 0.01, 0, 0, 0.985, 1, 0},
    {1, -0.04, 0.27, 0, 0.2, -0.02, 1, 0},
    {1, 0, 0.23, 0, 0.2, -0.03, 1, 0},
};

//! index style × 2 + end (gradient start, end)
inline constexpr VynHSBTransform kVynStyledBackgroundTransforms[] = {
    {1, -0.03, 0.14, 0, 0, 0.98, 1, 0},
    {1, 0, 0.1, 0, 0, 0.96, 1, 0},
    {1, -0.04, 0.45, 0, 0.4, -0.1, 1, 0},
    {1, 0, 0.4, 0, 0.4, -0.2, 1, 0},
};

//! gradient start, end (same in both styles)
inline constexpr VynHSBTransform kVynColorBackgroundTransforms[] = {
    {1, -0.04, 1, 0, 1, -0.1, 1, 0},
    {1, 0, 1, 0, 1, -0.2, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynColorTertiaryTransforms[] = {
    {1, 0, 0, 0.18, 0, 0.36, 1, 0},
    {1, 0, 0, 0.18, 0, 0.36, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynColorSecondaryTransforms[] = {
    {1, -0.04, 1, -0.1, 0, 0.09, 1, 0},
    {1, -0.04, 1, -0.1, 0, 1, 1, 0},
};

//! [Light, Dark], index style
inline constexpr VynHSBTransform kVynColorPrimaryTransforms[] = {
    {1, 0, 1, 0, 0.9, -0.1, 1, 0},
    {1, 0, 1, 0, 0.9, -0.1, 1, 0},
};

//! single value, both styles
inline constexpr VynRGBColor kVynTokenDefaultColor[] = {
    {0.83, 0.91, 0.98, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynActivityIndicatorColors[] = {
    {0, 0, 0, 1},
    {0.68, 0.68, 0.68, 1},
};

//! index style + (level + mixed × 2) × 2
inline constexpr VynRGBColor kVynBridgeIconColors[] = {
    {0, 0, 0, 0.62},         {1, 1, 1, 0.62},          {0, 0, 0, 0.5},
    {1, 1, 1, 0.5},          {0.85, 0.49, 0.09, 0.62}, {0.92, 0.57, 0.32, 0.62},
    {0.85, 0.49, 0.09, 0.5}, {0.92, 0.57, 0.32, 0.5},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynPatchDestructiveColors[] = {
    {0.82, 0.13, 0.13, 1},
    {0.9, 0.26, 0.26, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynPatchAnchorColors[] = {
    {0.44, 0.44, 0.44, 1},
    {0.44, 0.44, 0.44, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynPatchMultipleColors[] = {
    {0.93, 0.68, 0.14, 1},
    {0.87, 0.55, 0.1, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynPatchExpectingColors[] = {
    {0.21, 0.21, 0.21, 1},
    {0.21, 0.21, 0.21, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynPatchNormalColors[] = {
    {0.44, 0.44, 0.44, 1},
    {0.44, 0.44, 0.44, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbLabelShadowColors[] = {
    {1, 1, 1, 0.8},
    {0, 0, 0, 0.8},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQGraphArrayEQBorderColors[] = {
    {0.5, 0.5, 0.5, 0.5},
    {0.5, 0.5, 0.5, 0.5},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQGraphArrayEQFillColors[] = {
    {0.5, 0.5, 0.5, 0.2},
    {0.5, 0.5, 0.5, 0.3},
};

//! single value, both styles
inline constexpr VynRGBColor kEQLockButtonColor[] = {
    {0.5, 0.5, 0.5, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQGraphBackgroundColorsLight[] = {
    {1, 1, 1, 1},
    {0.96, 0.96, 0.96, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQGraphBackgroundColorsDark[] = {
    {0.12, 0.12, 0.12, 1},
    {0.08, 0.08, 0.08, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQGraphLabelColors[] = {
    {0.6, 0.6, 0.6, 1},
    {0.4, 0.4, 0.4, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQGraphAxisSecondaryColors[] = {
    {0.8, 0.8, 0.8, 1},
    {0.2, 0.2, 0.2, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQGraphAxisMainColors[] = {
    {0.25, 0.25, 0.25, 1},
    {0.75, 0.75, 0.75, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailBorderColors[] = {
    {0.5, 0.5, 0.5, 0.75},
    {0.5, 0.5, 0.5, 0.75},
};

//! single value, both styles
inline constexpr VynRGBColor kEQThumbnailEmptyColor[] = {
    {0.5, 0.5, 0.5, 0.2},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailRightExpColors[] = {
    {0.5, 0.5, 0.5, 1},
    {0.8, 0.8, 0.8, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailRightMixedColors[] = {
    {0.93, 0.68, 0.14, 1},
    {0.87, 0.55, 0.1, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailRightOffColors[] = {
    {1, 0.2, 0.2, 1},
    {1, 0.2, 0.2, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailRightOnColors[] = {
    {0.5, 0.5, 0.5, 1},
    {0.83, 0.83, 0.83, 1},
};

//! single value, both styles
inline constexpr VynRGBColor kEQThumbnailLeftBkgMixedColor[] = {
    {0.87, 0.55, 0.1, 0.7},
};

//! single value, both styles
inline constexpr VynRGBColor kEQThumbnailLeftBkgOffColor[] = {
    {1, 0.1, 0, 0.7},
};

//! single value, both styles
inline constexpr VynRGBColor kEQThumbnailLeftBkgOnColor[] = {
    {0, 0.27, 0.98, 0.7},
};

//! single value, both styles
inline constexpr VynRGBColor kEQThumbnailLeftBkgExpColor[] = {
    {0.5, 0.5, 0.5, 0.7},
};

//! single value, both styles
inline constexpr VynRGBColor kEQThumbnailLeftTextColor[] = {
    {1, 1, 1, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailGridColors[] = {
    {0, 0, 0, 0.2},
    {1, 1, 1, 0.2},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailMixedBkgGradientColorsLight[] = {
    {0.93, 0.68, 0.14, 0.1},
    {0.87, 0.55, 0.1, 0.1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailMixedBkgGradientColorsDark[] = {
    {0.93, 0.68, 0.14, 0.1},
    {0.87, 0.55, 0.1, 0.1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailOffBkgGradientColorsLight[] = {
    {0, 0, 0, 0.1},
    {0.08, 0.04, 0.03, 0.1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailOffBkgGradientColorsDark[] = {
    {1, 0.2, 0.1, 0},
    {1, 0.2, 0.1, 0},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailOnBkgGradientColorsLight[] = {
    {1, 1, 1, 1},
    {1, 1, 1, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kEQThumbnailOnBkgGradientColorsDark[] = {
    {0.1, 0.2, 1, 0.1},
    {0.1, 0.2, 1, 0.1},
};

//! two gradient ends per (style, on): entries style × 2 + on × 4 and the next
inline constexpr VynRGBColor kEQGradientColors[] = {
    {0.99, 0.35, 0.22, 1}, {1, 0.16, 0.41, 1},    {1, 0.37, 0.23, 1},   {1, 0.16, 0.41, 1},
    {0, 0.62, 0.78, 1},    {0.11, 0.38, 0.94, 1}, {0.1, 0.84, 0.99, 1}, {0.11, 0.38, 0.94, 1},
    {0.88, 0.45, 0, 1},    {0.99, 0.35, 0.22, 1}, {1, 0.58, 0, 1},      {1, 0.37, 0.23, 1},
};

//! index style when not selected, style + on × 2 + 2 when selected
inline constexpr VynRGBColor kEQThumbColors[] = {
    {0.09, 0.09, 0.09, 1}, {0.96, 0.96, 0.96, 1}, {1, 0.3, 0.2, 1}, {1, 0.3, 0.2, 1},
    {0, 0.48, 1, 1},       {0, 0.48, 1, 1},       {1, 0.58, 0, 1},  {1, 0.58, 0, 1},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kEQTypeCurveColors[] = {
    {1, 0.3, 0.2, 1}, {1, 0.3, 0.2, 1},   {0, 0.48, 1, 1},
    {0, 0.48, 1, 1},  {0.88, 0.45, 0, 1}, {1, 0.58, 0, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kLogGraphInfoNoGraphColors[] = {
    {0.45, 0.45, 0.45, 1},
    {0.65, 0.65, 0.65, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kLogKeyFactsTitleColors[] = {
    {0.25, 0.25, 0.25, 1},
    {0.75, 0.75, 0.75, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kLogGraphBreakBorderColors[] = {
    {0.6, 0.6, 0.6, 1},
    {0.6, 0.6, 0.6, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kLogGraphBreakFillColors[] = {
    {0.75, 0.75, 0.75, 0.2},
    {0.75, 0.75, 0.75, 0.2},
};

//! single value, both styles
inline constexpr VynRGBColor kLogRecordButtonColor[] = {
    {0.86, 0.13, 0.16, 0.8},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kLogTimeSliderLabelColors[] = {
    {0, 0, 0, 0.8},
    {1, 1, 1, 0.8},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kLogTimeSliderBreakColors[] = {
    {0, 0, 0, 0.1},
    {1, 1, 1, 0.1},
};

//! index parameter family 0 to 16; entry 16 is the colour of every family past the known ones
inline constexpr VynRGBColor kLogGraphInfoColor[] = {
    {0.07, 0.36, 0.95, 1}, {0.53, 0.17, 0.77, 1}, {0.22, 0.72, 0.07, 1}, {0.81, 0.69, 0.21, 1},
    {0.18, 0.69, 0.77, 1}, {0.89, 0.53, 0.14, 1}, {0.8, 0.23, 0.15, 1},  {0.48, 0.3, 0.13, 1},
    {0.83, 0.33, 0.86, 1}, {0.07, 0.36, 0.95, 1}, {0.28, 0.62, 0.85, 1}, {0.31, 0.82, 0.51, 1},
    {0.25, 0.46, 0.91, 1}, {0.81, 0.7, 0.1, 1},   {0.94, 0.65, 0.11, 1}, {0.53, 0.17, 0.77, 1},
    {0.55, 0.55, 0.55, 1}, // every other family: a neutral grey, distinct from the 16 tints
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kLogGraphLabelShadowColors[] = {
    {1, 1, 1, 0.75},
    {0, 0, 0, 0.75},
};

//! index style + timeOrDay × 2
inline constexpr VynRGBColor kLogGraphLabelColors[] = {
    {0.3, 0.3, 0.3, 1},
    {0.65, 0.65, 0.65, 1},
    {0.5, 0.5, 0.5, 1},
    {0.5, 0.5, 0.5, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kLogGraphAxisColors[] = {
    {0.5, 0.5, 0.5, 1},
    {0.3, 0.3, 0.3, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynGroupingMakerBackgroundColors[] = {
    {1, 1, 1, 1},
    {0.09, 0.09, 0.09, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kOrlaColorGreen[] = {
    {0.78, 0.83, 0.22, 1},
    {0.58, 0.64, 0.14, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kTeskColorOrange[] = {
    {0.94, 0.59, 0.25, 1},
    {0.76, 0.49, 0.14, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynSetupPickerSetupNameShadowColors[] = {
    {0, 0, 0, 0.35},
    {0, 0, 0, 0.35},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynScreenCompositionShadowColors[] = {
    {0, 0, 0, 0.8},
    {0, 0, 0, 0.8},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynScreenCompositionOutsideBorderColors[] = {
    {0.3, 0.3, 0.3, 1},
    {0.3, 0.3, 0.3, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynScreenCompositionBorderColors[] = {
    {0.7, 0.7, 0.7, 1},
    {0.7, 0.7, 0.7, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynScreenCompositionOutsideColors[] = {
    {0, 0, 0, 0.5},
    {0, 0, 0, 0.5},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynScreenCompositionBackgroundColors[] = {
    {0.3, 0.3, 0.3, 1},
    {0.3, 0.3, 0.3, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTuningBorderViewBackgroundColors[] = {
    {1, 1, 1, 0.1},
    {0, 0, 0, 0.1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTuningBorderViewBorderColors[] = {
    {1, 1, 1, 0.5},
    {0, 0, 0, 0.5},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTuningBlinkingColors[] = {
    {0, 0, 0, 0.08},
    {1, 1, 1, 0.09},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTuningGlobalViewBackgroundColors[] = {
    {0, 0, 0, 0.03},
    {0, 0, 0, 0.23},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTuningProductLabelColors[] = {
    {0, 0, 0, 0.62},
    {1, 1, 1, 0.5},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTuningSurroundingViewBackgroundColors[] = {
    {1, 1, 1, 0.1},
    {0, 0, 0, 0.1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTuningStatusWarningColors[] = {
    {0.33, 0.33, 0.33, 0.75},
    {0.67, 0.67, 0.67, 0.75},
};

//! index style + level × 2 (level 0 normal, 1 warning, 2 alert)
inline constexpr VynRGBColor kVynTuningHeaderColors[] = {
    {0, 0, 0, 0},         {0, 0, 0, 0},       {0.96, 0.79, 0.6, 1},
    {0.45, 0.25, 0.1, 1}, {1, 0.65, 0.65, 1}, {0.3, 0.1, 0.1, 1},
};

//! index style + level × 2 (level 0 normal, 1 warning, 2 alert)
inline constexpr VynRGBColor kVynTuningStatusLabelColors[] = {
    {0, 0, 0, 0.5},        {1, 1, 1, 0.5}, {0.47, 0.24, 0, 1},
    {0.97, 0.77, 0.57, 1}, {0.5, 0, 0, 1}, {1, 0.3, 0.3, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynAlignmentGuideColors[] = {
    {0.54, 0.79, 1, 1},
    {0.25, 0.53, 0.66, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynNewBadgeColors[] = {
    {0, 0, 0, 0.75},
    {1, 1, 1, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTaskBadgeTextColors[] = {
    {1, 1, 1, 1},
    {1, 1, 1, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTaskBadgeFillColors[] = {
    {0.5, 0.5, 0.5, 1},
    {0.4, 0.4, 0.4, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTaskButtonColors[] = {
    {0.8, 0.8, 0.8, 0.8},
    {0.2, 0.2, 0.2, 0.8},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynLassoBorderColors[] = {
    {0.4, 0.4, 0.4, 1},
    {0.8, 0.8, 0.8, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynLassoFillColors[] = {
    {0.35, 0.35, 0.35, 0.15},
    {0.75, 0.75, 0.75, 0.15},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynNetworkOutOfContainerFocusColors[] = {
    {1, 1, 1, 0.5},
    {0, 0, 0, 0.5},
};

//! four stops per style (kVynNetworkCellPaneGradientLocations): style × 4 + stop
inline constexpr VynRGBColor kVynNetworkCellPaneLineGradientColors[] = {
    {1, 1, 1, 0.12}, {1, 1, 1, 0.3},  {1, 1, 1, 0.3},  {1, 1, 1, 0.12},
    {0, 0, 0, 0},    {0, 0, 0, 0.15}, {0, 0, 0, 0.15}, {0, 0, 0, 0},
};

//! four stops per style (kVynNetworkCellPaneGradientLocations): style × 4 + stop
inline constexpr VynRGBColor kVynNetworkCellPaneGradientColors[] = {
    {1, 1, 1, 0.08}, {1, 1, 1, 0.14}, {1, 1, 1, 0.14}, {1, 1, 1, 0.08},
    {0, 0, 0, 0.1},  {0, 0, 0, 0.2},  {0, 0, 0, 0.2},  {0, 0, 0, 0.1},
};

//! gradient stops
inline constexpr double kVynNetworkCellPaneGradientLocations[] = {0, 0.33, 0.67, 1};

//! single value, both styles
inline constexpr VynRGBColor kVynNetworkLinkColorEditing[] = {
    {0.5, 0.5, 0.5, 1},
};

//! single value, both styles
inline constexpr VynRGBColor kVynNetworkLinkColor[] = {
    {0.05, 0.43, 1, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynNetworkPhantomCellBorderColors[] = {
    {0, 0, 0, 0.25},
    {1, 1, 1, 0.25},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynNetworkPhantomCellFillColors[] = {
    {0.44, 0.44, 0.44, 0.15},
    {0.71, 0.71, 0.71, 0.15},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynMapImageAnchorBorderColors[] = {
    {0.4, 0.4, 0.4, 1},
    {0.4, 0.4, 0.4, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynMapImageAnchorFillColors[] = {
    {0.9, 0.9, 0.9, 1},
    {0.9, 0.9, 0.9, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynMapImageMissingColors[] = {
    {0.8, 0.8, 0.8, 1},
    {0.25, 0.25, 0.25, 1},
};

//! single value, both styles
inline constexpr VynRGBColor kVynMapImageGridColor[] = {
    {0.7, 0.7, 0.7, 0.6},
};

//! single value, both styles
inline constexpr VynRGBColor kVynNetworkMapShadowColor[] = {
    {0, 0, 0, 0.3},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynNetworkMapBackgroundColor[] = {
    {1, 1, 1, 1},
    {0.09, 0.09, 0.09, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynColorIconShadowColors[] = {
    {0, 0, 0, 0.5},
    {0, 0, 0, 0.5},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynWindowBorderColors[] = {
    {0.5, 0.5, 0.5, 0.5},
    {0, 0, 0, 0.38},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynWindowBackgroundColors[] = {
    {0.93, 0.93, 0.93, 1},
    {0.25, 0.25, 0.25, 0.8},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynViewListHeaderLineShadowColors[] = {
    {1, 1, 1, 0.5},
    {0, 0, 0, 0.8},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynViewListHeaderLineColors[] = {
    {0, 0, 0, 0.4},
    {1, 1, 1, 0.6},
};

//! index style + level × 2
inline constexpr VynRGBColor kVynViewListLabelColors[] = {
    {0, 0, 0, 1},
    {1, 1, 1, 1},
    {0.25, 0.25, 0.25, 1},
    {0.75, 0.75, 0.75, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynVUMeterTickMarkColors[] = {
    {0, 0, 0, 0.4},
    {1, 1, 1, 0.95},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynVUMeterBorderColors[] = {
    {0, 0, 0, 0.88},
    {0.5, 0.5, 0.5, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynVUMeterFillColors[] = {
    {0.18, 0.18, 0.18, 1},
    {0.44, 0.44, 0.44, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynSplitViewLineColors[] = {
    {0.5, 0.5, 0.5, 0.5},
    {0, 0, 0, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynLineViewColors[] = {
    {0.35, 0.35, 0.35, 0.5},
    {0.65, 0.65, 0.65, 0.5},
};

//! index level × 2 + style, level 0 to 6
inline constexpr VynRGBColor kVynColoredLabelColors[] = {
    {0, 0, 0, 0.57},       {0.95, 0.95, 0.95, 0.57}, {0, 0, 0, 1},          {0.95, 0.95, 0.95, 1},
    {0.14, 0.62, 0.2, 1},  {0.32, 0.82, 0.43, 1},    {0.85, 0.49, 0.09, 1}, {0.92, 0.57, 0.32, 1},
    {0.82, 0.13, 0.13, 1}, {0.9, 0.26, 0.26, 1},     {0.31, 0.55, 0.86, 1}, {0.42, 0.62, 0.85, 1},
    {0.86, 0.35, 0.63, 1}, {0.83, 0.38, 0.72, 1},
};

//! index min(level, 2) + style × 3
inline constexpr VynRGBColor kVynLabelColors[] = {
    {0, 0, 0, 1},          {0, 0, 0, 0.57},          {0, 0, 0, 0.26},
    {0.95, 0.95, 0.95, 1}, {0.95, 0.95, 0.95, 0.57}, {0.95, 0.95, 0.95, 0.26},
};

//! index style + warning × 2
inline constexpr VynRGBColor kVynTableSectionBorderColors[] = {
    {0.8, 0.8, 0.8, 0.92},
    {0.41, 0.41, 0.41, 0.92},
    {0.8, 0.7, 0.7, 0.92},
    {0.57, 0.37, 0.37, 0.92},
};

//! index style + warning × 2
inline constexpr VynRGBColor kVynTableSectionBackgroundColors[] = {
    {0.96, 0.96, 0.96, 0.92},
    {0.31, 0.31, 0.31, 0.92},
    {0.97, 0.9, 0.9, 0.92},
    {0.45, 0.25, 0.25, 0.92},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTableTintedLabelSelectedColor[] = {
    {0, 0, 0, 0.75},
    {1, 1, 1, 0.75},
};

//! index hasFocus + (selected + (min(level, 2) + style × 3) × 2) × 2
inline constexpr VynRGBColor kVynTableLabelColors[] = {
    {0, 0, 0, 1},
    {0, 0, 0, 1},
    {0, 0, 0, 0.9},
    {0, 0, 0, 0.9},
    {0.36, 0.36, 0.36, 0.9},
    {0.36, 0.36, 0.36, 0.9},
    {0.36, 0.36, 0.36, 1},
    {0.36, 0.36, 0.36, 1},
    {0.5, 0.5, 0.5, 0.85},
    {0.5, 0.5, 0.5, 0.85},
    {0.5, 0.5, 0.5, 0.85},
    {0.5, 0.5, 0.5, 0.85},
    {0.9, 0.9, 0.9, 1},
    {0.9, 0.9, 0.9, 1},
    {1, 1, 1, 1},
    {1, 1, 1, 1},
    {0.75, 0.75, 0.75, 0.85},
    {0.75, 0.75, 0.75, 0.85},
    {0.9, 0.9, 0.9, 0.85},
    {0.9, 0.9, 0.9, 0.85},
    {0.5, 0.5, 0.5, 0.85},
    {0.5, 0.5, 0.5, 0.85},
    {0.5, 0.5, 0.5, 0.85},
    {0.9, 0.9, 0.9, 0.65},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynCellBackgroundStripColors[] = {
    {0.49, 0.76, 1, 1},
    {0.03, 0.25, 0.45, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynCellBackgroundSelectedColors[] = {
    {0.3, 0.63, 1, 1},
    {0.05, 0.37, 0.67, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynCellBackgroundWarningColors[] = {
    {0.92, 0.65, 0.11, 1},
    {0.78, 0.57, 0.24, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynCellAlertBackgroundColors[] = {
    {1, 0.58, 0, 1},
    {0.3, 0.2, 0.03, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynCellBackgroundRedOverlayColors[] = {
    {1, 0, 0, 0.2},
    {1, 0, 0, 0.2},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynCellBackgroundAlternateColors[] = {
    {0.96, 0.96, 0.96, 1},
    {0.13, 0.13, 0.13, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynCellBackgroundColors[] = {
    {1, 1, 1, 1},
    {0.09, 0.09, 0.09, 1},
};

//! single value, both styles
inline constexpr VynRGBColor kVynTableViewSectionIndexColorDark[] = {
    {0.15, 0.15, 0.15, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTableViewSeparatorColors[] = {
    {0.78, 0.78, 0.78, 1},
    {0.22, 0.22, 0.22, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTableViewBackgroundColors[] = {
    {1, 1, 1, 1},
    {0.09, 0.09, 0.09, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTableViewBorderColors[] = {
    {0.5, 0.5, 0.5, 0.65},
    {0.5, 0.5, 0.5, 0.65},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynPopupBorderColors[] = {
    {0.25, 0.25, 0.25, 1},
    {0.75, 0.75, 0.75, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynPopoverShadowColors[] = {
    {0, 0, 0, 0.5},
    {0, 0, 0, 0.5},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynPopoverBorderColors[] = {
    {0.5, 0.5, 0.5, 0.5},
    {0.09, 0.09, 0.09, 0.5},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynPopoverBackgroundColors[] = {
    {0.96, 0.96, 0.96, 0.96},
    {0.22, 0.22, 0.22, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynTextViewBackgroundColors[] = {
    {1, 1, 1, 1},
    {0.05, 0.05, 0.05, 1},
};

//! index style + level × 2 (level 0 main, 1 secondary)
inline constexpr VynRGBColor kVynViewBackgroundColors[] = {
    {1, 1, 1, 1},
    {0.09, 0.09, 0.09, 1},
    {0.93, 0.93, 0.93, 1},
    {0.13, 0.13, 0.13, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynLiveModeButtonFillColors[] = {
    {0.27, 0.27, 0.27, 1},
    {1, 1, 1, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynLiveModeButtonBackgroundColors[] = {
    {0.93, 0.93, 0.93, 1},
    {1, 1, 1, 1},
};

//! index VynViewUtils::VynLiveButtonMode (offline, config, live)
inline constexpr VynRGBColor kVynLiveModeButtonColors[] = {
    {0.3, 1, 0.55, 1},
    {0.3, 0.63, 1, 1},
    {1, 0.22, 0.53, 1},
};

//! index style + mixed × 2
inline constexpr VynRGBColor kVynTextViewTextColors[] = {
    {0, 0, 0, 1},
    {1, 1, 1, 1},
    {0, 0, 0, 0.75},
    {1, 1, 1, 0.75},
};

//! index style + mixed × 4 when not editing, 2 + style when editing
inline constexpr VynRGBColor kVynTextViewBorderColors[] = {
    {0.55, 0.55, 0.55, 0.75}, {0.5, 0.5, 0.5, 0.75}, {0, 0.27, 0.75, 0.8},
    {0.09, 0.26, 0.51, 1},    {0.54, 0.36, 0.12, 1}, {0.54, 0.36, 0.12, 1},
};

//! gradient stops
inline constexpr double kVynColorIconOverGradientLocations[] = {0, 1};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynColorIconOverGradientColors[] = {
    {0, 0, 0, 0.05},
    {0, 0, 0, 0.2},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynToolbarButtonTextColors[] = {
    {0.47, 0.47, 0.47, 0.8}, {0.73, 0.73, 0.73, 0.8}, {0.15, 0.15, 0.15, 0.95},
    {1, 1, 1, 0.95},         {0.68, 0.48, 0.1, 1},    {0.77, 0.53, 0.1, 1},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynToolbarButtonColors[] = {
    {0, 0, 0, 0},
    {0, 0, 0, 0},
    {0.15, 0.15, 0.15, 0.1},
    {0.85, 0.85, 0.85, 0.1},
    {0.68, 0.48, 0.1, 0.1},
    {0.77, 0.53, 0.1, 0.1},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlInlineColors[] = {
    {0.3, 0.3, 0.3, 0.36}, {0.88, 0.88, 0.88, 0.36}, {0.2, 0.2, 0.2, 0.9},
    {1, 1, 1, 0.9},        {0.68, 0.48, 0.1, 0.9},   {0.77, 0.53, 0.1, 0.9},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlTemplateTextColors[] = {
    {1, 1, 1, 1}, {0, 0, 0, 1}, {1, 1, 1, 1}, {0, 0, 0, 1}, {1, 1, 1, 1}, {1, 1, 1, 1},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlTemplateColors[] = {
    {0.47, 0.47, 0.47, 0.8}, {0.73, 0.73, 0.73, 0.8}, {0.15, 0.15, 0.15, 0.9},
    {1, 1, 1, 0.9},          {0.68, 0.48, 0.1, 0.9},  {0.77, 0.53, 0.1, 0.9},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlFlatSeparatorColors[] = {
    {0.35, 0.35, 0.35, 0.57}, {0.8, 0.8, 0.8, 0.57},   {0.76, 0.76, 0.76, 1},
    {0.47, 0.47, 0.47, 1},    {0.45, 0.33, 0.06, 0.2}, {0.61, 0.46, 0.25, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlFlatDestructiveTextColors[] = {
    {0.82, 0.13, 0.13, 1},
    {0.9, 0.26, 0.26, 1},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlFlatTextColors[] = {
    {0, 0, 0, 0.8}, {0.96, 0.96, 0.96, 0.8}, {1, 1, 1, 1}, {0.2, 0.2, 0.2, 1},
    {1, 1, 1, 1},   {0.8, 0.8, 0.8, 1},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlFlatFillColors[] = {
    {0.5, 0.5, 0.5, 0.04}, {1, 1, 1, 0.07},       {0.6, 0.6, 0.6, 1},
    {0.64, 0.64, 0.64, 1}, {0.56, 0.41, 0.08, 1}, {0.52, 0.33, 0.06, 1},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlFlatBorderColors[] = {
    {0.35, 0.35, 0.35, 0.57}, {0.8, 0.8, 0.8, 0.57}, {0.55, 0.55, 0.55, 1},
    {0.73, 0.73, 0.73, 1},    {0.93, 0.68, 0.14, 1}, {0.87, 0.55, 0.1, 1},
};

//! index style + on (0 light style, then dark, then on)
inline constexpr VynRGBColor kVynControlTextShadowColors[] = {
    {1, 1, 1, 0.8},
    {0, 0, 0, 0.2},
    {0, 0, 0, 0.2},
};

//! index style + on (0 light style, then dark, then on)
inline constexpr VynRGBColor kVynControlImageShadowColors[] = {
    {1, 1, 1, 1},
    {0, 0, 0, 0.5},
    {0, 0, 0, 0.5},
};

//! gradient stops
inline constexpr double kVynControlImageOffGradientLocations[] = {0, 1};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlImageOffGradientColors[] = {
    {0.5, 0.5, 0.5, 1},
    {0.45, 0.45, 0.45, 1},
};

//! gradient stops
inline constexpr double kVynControlImageOnGradientLocations[] = {0, 1};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlImageOnGradientColors[] = {
    {1, 1, 1, 1},
    {0.95, 0.95, 0.95, 1},
};

//! single value, both styles
inline constexpr VynRGBColor kVynControlDestructiveBorderColor[] = {
    {0.5, 0.1, 0.1, 0.5},
};

//! gradient stops
inline constexpr double kVynControlDestructiveGradientLocations[] = {0, 1};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlDestructiveGradientColors[] = {
    {0.94, 0.29, 0.3, 0.9},
    {0.87, 0.26, 0.26, 0.9},
};

//! single value, both styles
inline constexpr VynRGBColor kVynControlDefaultImageShadowColor[] = {
    {0, 0, 0, 0.2},
};

//! single value, both styles
inline constexpr VynRGBColor kVynControlDefaultTextShadowColor[] = {
    {0, 0, 0, 0.2},
};

//! single value, both styles
inline constexpr VynRGBColor kVynControlDefaultTextColor[] = {
    {1, 1, 1, 1},
};

//! single value, both styles
inline constexpr VynRGBColor kVynControlDefaultBorderColor[] = {
    {0.08, 0.2, 0.5, 0.5},
};

//! gradient stops
inline constexpr double kVynControlDefaultGradientLocations[] = {0, 1};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlDefaultGradientColors[] = {
    {0.16, 0.55, 0.95, 0.9},
    {0.12, 0.51, 0.88, 0.9},
};

//! single value, both styles
inline constexpr VynRGBColor kVynControlMixedTickColor[] = {
    {1, 0.88, 0.61, 1},
};

//! gradient stops
inline constexpr double kVynControlMixedGradientLocations[] = {0, 1};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlMixedGradientColors[] = {
    {0.92, 0.58, 0.11, 0.9},
    {0.94, 0.68, 0.11, 0.9},
};

//! two gradient stops per style: entries style × 2 and style × 2 + 1
inline constexpr VynRGBColor kVynControlOffGradientOpaqueColors[] = {
    {0.98, 0.98, 0.98, 1},
    {0.96, 0.96, 0.96, 1},
    {0.9, 0.9, 0.9, 1},
    {0.88, 0.88, 0.88, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlOffGradientColors[] = {
    {0.98, 0.98, 0.98, 0.9},
    {0.96, 0.96, 0.96, 0.9},
};

//! gradient stops
inline constexpr double kVynControlOffGradientLocations[] = {0, 1};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlOnRedGradientColors[] = {
    {0.87, 0.26, 0.26, 0.9},
    {0.94, 0.29, 0.3, 0.9},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlOnGradientColors[] = {
    {0.12, 0.51, 0.88, 0.9},
    {0.16, 0.55, 0.95, 0.9},
};

//! gradient stops
inline constexpr double kVynControlOnGradientLocations[] = {0, 1};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlShadowColors[] = {
    {0, 0, 0, 0.05},
    {0, 0, 0, 0},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlFillColors[] = {
    {1, 1, 1, 1},
    {0.86, 0.86, 0.86, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlTouchOverColors[] = {
    {0, 0, 0, 0.2},
    {1, 1, 1, 0.2},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlTextColors[] = {
    {0.25, 0.25, 0.25, 1}, {0.25, 0.25, 0.25, 1}, {0.9, 0.9, 0.9, 1},
    {0.9, 0.9, 0.9, 1},    {0.9, 0.9, 0.9, 1},    {0.9, 0.9, 0.9, 1},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlColors[] = {
    {0.71, 0.71, 0.71, 1}, {0.44, 0.44, 0.44, 1}, {0.14, 0.54, 0.95, 1},
    {0.77, 0.77, 0.77, 1}, {0.93, 0.68, 0.14, 1}, {0.87, 0.55, 0.1, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlBorderRedColors[] = {
    {0.56, 0.14, 0.14, 0.8},
    {0.4, 0.09, 0.09, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kVynControlBorderOpaqueColors[] = {
    {0.68, 0.68, 0.68, 1},
    {0.32, 0.32, 0.32, 1},
};

//! index style + on × 2 (off, on, mixed)
inline constexpr VynRGBColor kVynControlBorderColors[] = {
    {0.55, 0.55, 0.55, 0.75}, {0.5, 0.5, 0.5, 0.75}, {0, 0.27, 0.75, 0.8},
    {0.09, 0.26, 0.51, 1},    {0.54, 0.36, 0.12, 1}, {0.54, 0.36, 0.12, 1},
};

//! single value, both styles
inline constexpr VynRGBColor kYellowSelectionColor[] = {
    {0.95, 0.8, 0.12, 1},
};

//! [Light, Dark], index style
inline constexpr VynRGBColor kYellowSelectionGradientColors[] = {
    {0.97, 0.84, 0.11, 1},
    {0.9, 0.71, 0.13, 1},
};

//! single value, both styles
inline constexpr VynRGBColor kLedTextColor[] = {
    {1, 1, 1, 1},
};

//! index VynViewUtils::VynLedState (grey, orange, red, green, blue)
inline constexpr VynRGBColor kLedGlowColors[] = {
    {1, 1, 1, 0},
    {1, 0.822273, 0.575, 0.5},
    {1, 0.620455, 0.627897, 0.5},
    {0.72608, 1, 0.548837, 0.5},
    {0.463736, 0.679843, 1, 0.5},
};

//! index VynViewUtils::VynLedState (grey, orange, red, green, blue)
inline constexpr VynRGBColor kLedBorderColors[] = {
    {0.555955, 0.569682, 0.604, 1}, {0.604, 0.446136, 0.2265, 1},   {0.604, 0.253955, 0.260818, 1},
    {0.355535, 0.588, 0.205116, 1}, {0.165626, 0.351956, 0.628, 1},
};

//! index VynViewUtils::VynLedState: the grey and the orange LED fill
inline constexpr VynRGBColor kLedFillColors[] = {
    {0.81, 0.83, 0.88, 1},
    {0.88, 0.65, 0.33, 1},
};

// Tables that no rule of the module reads. They are kept here so that hosts
// draw device models and the other applications of the suite in the same
// colours as the module.

/*!
    Colours of the device models on the network map, index model number 0 to
    15. Sixteen hues spread around the colour wheel at a brightness that reads
    on both the light (white) and the dark (0.09 grey) map background, with
    neighbouring models in clearly different hues.
*/
inline constexpr VynRGBColor kVynDeviceModelColors[] = {
    {0.07, 0.36, 0.95, 1}, // blue
    {0.89, 0.53, 0.14, 1}, // orange
    {0.22, 0.72, 0.07, 1}, // green
    {0.80, 0.23, 0.15, 1}, // red
    {0.53, 0.17, 0.77, 1}, // purple
    {0.18, 0.69, 0.77, 1}, // cyan
    {0.81, 0.69, 0.21, 1}, // yellow
    {0.83, 0.33, 0.86, 1}, // magenta
    {0.28, 0.62, 0.85, 1}, // sky
    {0.48, 0.30, 0.13, 1}, // brown
    {0.31, 0.82, 0.51, 1}, // mint
    {0.94, 0.40, 0.55, 1}, // pink
    {0.25, 0.46, 0.91, 1}, // cobalt
    {0.60, 0.70, 0.20, 1}, // olive
    {0.45, 0.45, 0.80, 1}, // lavender
    {0.55, 0.55, 0.55, 1}, // grey: unknown model
};

/*!
    Accent colours of the four other applications of the suite, [Light, Dark]
    per application: index application × 2 + style (0 system designer, 1
    remote monitor, 2 firmware updater, 3 installer). The dark-style entry is
    darker and less saturated, like kOrlaColorGreen and kTeskColorOrange, so
    that the accent does not glare on dark backgrounds.
*/
inline constexpr VynRGBColor kVynOtherApplicationAccentColors[] = {
    {0.16, 0.55, 0.95, 1}, {0.10, 0.40, 0.75, 1}, // blue
    {0.55, 0.35, 0.85, 1}, {0.42, 0.25, 0.68, 1}, // violet
    {0.20, 0.70, 0.65, 1}, {0.13, 0.52, 0.49, 1}, // teal
    {0.90, 0.35, 0.45, 1}, {0.70, 0.24, 0.33, 1}, // raspberry
};

/*!
    The palette of tints a user can pick for a device or a group (the colour
    factory, VynColorAppearance::colorFactory()). Twelve saturated, mid-bright
    hues a twelfth of the wheel apart plus a neutral grey: every entry keeps
    enough saturation and brightness for the primary, secondary and tertiary
    transforms and readableColorForStyle() to derive distinct shades from it.
*/
inline constexpr VynRGBColor kVynColorFactoryColors[] = {
    {0.90, 0.22, 0.21, 1}, // red
    {0.95, 0.48, 0.13, 1}, // orange
    {0.96, 0.76, 0.11, 1}, // yellow
    {0.62, 0.80, 0.18, 1}, // lime
    {0.26, 0.70, 0.31, 1}, // green
    {0.15, 0.68, 0.58, 1}, // teal
    {0.13, 0.67, 0.87, 1}, // cyan
    {0.16, 0.45, 0.93, 1}, // blue
    {0.40, 0.33, 0.86, 1}, // indigo
    {0.62, 0.28, 0.82, 1}, // purple
    {0.88, 0.27, 0.66, 1}, // magenta
    {0.55, 0.40, 0.28, 1}, // brown
    {0.56, 0.56, 0.58, 1}, // grey
};

} // namespace VynColorConstants
