#pragma once

#include "vynuiglobal.h"

#include <vynrgbcolor.h>

#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/*!
    Data of the level meters: the colours of their cells and glows, the
    tick-mark spacings offered to the scale drawn beside a meter and the rule
    that picks one for a meter's length.
*/
namespace VynVUMeterConstants {
Q_NAMESPACE_EXPORT(VYNUI_EXPORT)

/*!
    One tick-mark spacing of a meter scale, in the meter's value unit (dB):
    labelled long ticks every primaryInterval, short ticks every
    secondaryInterval, and the number of decimals needed to print the steps.
*/
struct VYNUI_EXPORT VynVUMetreTickMarkConfig
{
    Q_GADGET
    QML_VALUE_TYPE(vynVUMetreTickMarkConfig)
    Q_PROPERTY(double primaryInterval MEMBER primaryInterval)
    Q_PROPERTY(double secondaryInterval MEMBER secondaryInterval)
    Q_PROPERTY(int precision MEMBER precision)

public:
    double primaryInterval = 0.0;
    double secondaryInterval = 0.0;
    int precision = 0;

    bool operator==(const VynVUMetreTickMarkConfig& o) const
    {
        return primaryInterval == o.primaryInterval && secondaryInterval == o.secondaryInterval &&
               precision == o.precision;
    }
    bool operator!=(const VynVUMetreTickMarkConfig& o) const { return !(*this == o); }
};

//! Number of colours of a lit meter, from the bottom of the scale to the top.
constexpr int kVynVUMeterOnColorsCount = 32;

//! Lit cells: grey at the bottom, blue up to entry 21, then towards red-magenta.
VYNUI_EXPORT extern const VynRGBColor kVynVUMeterOnColors[kVynVUMeterOnColorsCount];

//! Glows of the hold cells: 32 for VynStyleLight followed by 32 for VynStyleDark.
VYNUI_EXPORT extern const VynRGBColor kVynVUMeterGlowColors[2 * kVynVUMeterOnColorsCount];

//! Unlit cells, [Light, Dark].
VYNUI_EXPORT extern const VynRGBColor kVynVUMeterOffColor[2];

//! Number of entries of kVynVUMetreTickMarkConfigs.
constexpr int kVynVUMetreTickMarkConfigsCount = 16;

//! The spacings offered to a scale, ordered by growing spacing (0.5/0.25 dB up to 200/50 dB).
VYNUI_EXPORT extern const VynVUMetreTickMarkConfig
    kVynVUMetreTickMarkConfigs[kVynVUMetreTickMarkConfigsCount];

/*!
    The spacing for a scale of \a cellsLength pixels showing \a minValue to
    \a maxValue, whose short ticks should stay closer than \a maxSpacing pixels.

    With px(k) the short-tick spacing of entry k in pixels, snapped by
    toNearestHalfPixel(): find the first k with px(k) >= 2 (or take the last
    entry), start from the entry after it, and move on while the spacing of the
    next entry stays below \a maxSpacing. The answer is the last entry reached.

    Degenerate scales answer a defined entry, never an index past the table:
    an empty value range (minValue == maxValue) spreads any step over an
    infinite length, so the first entry qualifies and the answer is entry 1;
    a length of zero or less never reaches 2 px and the answer is the last
    entry (200/50).
*/
VYNUI_EXPORT VynVUMetreTickMarkConfig tickMarksConfigForValues(int cellsLength, int minValue,
                                                               int maxValue, int maxSpacing);

/*!
    \a value moved to the nearest multiple of 0.5; a value exactly between two
    multiples goes to the one whose quotient by 0.5 is even (0.25 -> 0,
    0.75 -> 1). Infinities and NaN come back unchanged.
*/
VYNUI_EXPORT double toNearestHalfPixel(double value);

} // namespace VynVUMeterConstants
