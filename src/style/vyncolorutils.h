#pragma once

#include "vynhsbtransform.h"
#include "vynuiglobal.h"

#include <vynrgbcolor.h>

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

#include <cstddef>

/*!
    Colour arithmetic over the colour tables of VynColorConstants. In QML the
    uncreatable element VynColorUtils carries the style enums
    (VynColorUtils.VynStyleDark); QML reaches the arithmetic itself through
    VynUIQmlConstants.

    Tables are passed as arrays (VynColorConstants::kVynControlColors): the
    template overloads know the length of the array and clamp every index into
    it, so no lookup ever reads past a table. The overloads that take a
    pointer and a count do the same with the count given; a null table or a
    count of 0 gives an invalid QColor.

    An invalid QColor given as input reads as transparent black. Numbers that
    are not finite give defined colours: a NaN reaching a channel or the alpha
    counts as 0, a NaN hue as no hue, and channels are kept within ±65504. Results are
    built with QColor's floating-point constructors (16 bits per channel), so
    table values come back to within 1/65535.

    All members are pure functions of their arguments and constant data and may
    be called from any thread.
*/
class VYNUI_EXPORT VynColorUtils : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("VynColorUtils only carries the style enums and static colour functions")

public:
    enum VynStyle : int { VynStyleLight = 0, VynStyleDark = 1 };
    Q_ENUM(VynStyle)

    enum VynStylePreference : int {
        VynStylePrefLight = 0,
        VynStylePrefDark = 1,
        VynStylePrefSystem = 2
    };
    Q_ENUM(VynStylePreference)

    explicit VynColorUtils(QObject* parent = nullptr);

    //! \a style clamped to VynStyleLight..VynStyleDark (0 or 1), the index of a [Light, Dark] pair.
    static int styleIndex(int style) { return style <= VynStyleLight ? 0 : 1; }

    // --- Reading table entries ------------------------------------------------------------

    //! Entry 0 of \a table.
    template <std::size_t N> static QColor colorWithRGBComponents(const VynRGBColor (&table)[N])
    {
        return colorWithRGBComponentsOffset(table, qsizetype(N), 0);
    }
    //! Entry styleIndex(\a style) of a [Light, Dark] table: styles past Dark read Dark.
    template <std::size_t N>
    static QColor colorWithRGBComponentsStyle(const VynRGBColor (&table)[N], int style)
    {
        return colorWithRGBComponentsOffset(table, qsizetype(N), styleIndex(style));
    }
    //! Entry \a offset of \a table, clamped to 0..N−1.
    template <std::size_t N>
    static QColor colorWithRGBComponentsOffset(const VynRGBColor (&table)[N], int offset)
    {
        return colorWithRGBComponentsOffset(table, qsizetype(N), offset);
    }
    //! Red, green and blue of entry \a offset (clamped) with \a alpha (clamped to [0, 1]).
    template <std::size_t N>
    static QColor colorWithRGBComponentsOffsetAlpha(const VynRGBColor (&table)[N], int offset,
                                                    double alpha)
    {
        return colorWithRGBComponentsOffsetAlpha(table, qsizetype(N), offset, alpha);
    }
    //! The first \a count entries as colours; \a count is limited to the table's length.
    template <std::size_t N>
    static QList<QColor> colorsWithRGBComponents(const VynRGBColor (&table)[N], int count)
    {
        return colorsWithRGBComponents(table, qsizetype(N), count);
    }

    static QColor colorWithRGBComponentsOffset(const VynRGBColor* table, qsizetype tableSize,
                                               qsizetype offset);
    static QColor colorWithRGBComponentsOffsetAlpha(const VynRGBColor* table, qsizetype tableSize,
                                                    qsizetype offset, double alpha);
    static QList<QColor> colorsWithRGBComponents(const VynRGBColor* table, qsizetype tableSize,
                                                 qsizetype count);

    //! The record as a colour, channels as they stand.
    static QColor colorWithRGBColor(const VynRGBColor& color);
    //! The colour as a record (floating-point channels); an invalid colour gives the zero record.
    static VynRGBColor rgbColor(const QColor& color);
    //! The same as rgbColor(), under the name QML uses.
    static VynRGBColor rgbColorFromColor(const QColor& color) { return rgbColor(color); }
    //! VynRGBColorMake(): channels clamped to [0, 1].
    static VynRGBColor rgbColorMake(double red, double green, double blue, double alpha = 1.0);
    //! The zero record (transparent black).
    static VynRGBColor rgbColorZero();
    /*!
        Parses \a text with VynRGBColorFromString() ("#rrggbb", "#rrggbbaa",
        "r,g,b" or "r,g,b,a"). Bad text gives an invalid QColor, so QML can
        tell it from a real transparent black.
    */
    static QColor colorFromRGBColorString(const QString& text);

    // --- Gradients --------------------------------------------------------------------------

    /*!
        The colour at \a position of the gradient whose \a count stops sit at
        \a locations and take the colours of \a colors:

        - no stops (count ≤ 0) or a position before the first stop: colour 0;
        - a position exactly on stop i: colour i;
        - a position between stops i − 1 and i: the channel-wise blend of
          colours groupOffset × count + i − 1 and groupOffset × count + i
          (alpha included);
        - a position past the last stop (or NaN): colour count − 1.

        The group offset moves only the blend: an exact stop and both ends
        read the first group whatever the offset. Every caller in the module
        passes 0 and selects a group by handing over the part of the table
        that holds it. \a count is limited to the number of locations and
        colour indexes to the colour table, so nothing reads past either.
    */
    template <std::size_t NC, std::size_t NL>
    static QColor colorWithRGBGradientComponents(const VynRGBColor (&colors)[NC],
                                                 const double (&locations)[NL], int count,
                                                 double position, int groupOffset = 0)
    {
        return colorWithRGBGradientComponents(colors, qsizetype(NC), locations, qsizetype(NL),
                                              count, position, groupOffset);
    }
    //! colorWithRGBGradientComponents() with the style as the group offset.
    template <std::size_t NC, std::size_t NL>
    static QColor colorWithRGBGradientComponentsStyle(const VynRGBColor (&colors)[NC],
                                                      const double (&locations)[NL], int count,
                                                      double position, int style)
    {
        return colorWithRGBGradientComponents(colors, qsizetype(NC), locations, qsizetype(NL),
                                              count, position, styleIndex(style));
    }
    static QColor colorWithRGBGradientComponents(const VynRGBColor* colors, qsizetype colorCount,
                                                 const double* locations, qsizetype locationCount,
                                                 int count, double position, int groupOffset);

    // --- HSB transforms ---------------------------------------------------------------------

    /*!
        Applies \a transform in HSB (HSV) space:

        - the hue changes only when it is above 0: h × scale + offset, plus 1
          when negative, minus 1 when above 1, then clamped to [0, 1]. Pure red
          (hue 0) and achromatic colours (no hue) keep their hue;
        - saturation, brightness and alpha become x × scale + offset, clamped
          to [0, 1].
    */
    static QColor colorByApplyingHSBTransform(const QColor& color,
                                              const VynHSBTransform& transform);

    //! Applies entry \a style of a [Light, Dark] transform table (clamped into it).
    template <std::size_t N>
    static QColor colorByApplyingHSBTransformStyle(const QColor& color,
                                                   const VynHSBTransform (&table)[N], int style)
    {
        return colorByApplyingHSBTransform(color,
                                           transformAt(table, qsizetype(N), styleIndex(style)));
    }
    //! Applies entry \a offset of a transform table (clamped into it).
    template <std::size_t N>
    static QColor colorByApplyingHSBTransformOffset(const QColor& color,
                                                    const VynHSBTransform (&table)[N], int offset)
    {
        return colorByApplyingHSBTransform(color, transformAt(table, qsizetype(N), offset));
    }
    //! Entry \a offset of \a table clamped to 0..size−1; the identity for an empty table.
    static VynHSBTransform transformAt(const VynHSBTransform* table, qsizetype tableSize,
                                       qsizetype offset);

    //! Brightness × scale + offset.
    static QColor colorByIncreasingLuminosityWithScale(const QColor& color, double scale,
                                                       double offset);
    //! Brightness set to \a brightness (clamped to [0, 1]).
    static QColor colorBySettingBrightness(const QColor& color, double brightness);
    //! Saturation × scale + offset.
    static QColor colorByIncreasingSaturationWithScale(const QColor& color, double scale,
                                                       double offset);
    //! Saturation set to \a saturation (clamped to [0, 1]).
    static QColor colorBySettingSaturation(const QColor& color, double saturation);

    // --- Light or dark ----------------------------------------------------------------------
    //
    // The thresholds compare 1 − luminance with a tolerance of one 16-bit channel step
    // (1/65535): QColor stores a channel given as 0.5 as 0.500008, and mid grey built from
    // 0.5 must still count as dark.

    //! 0.299 r + 0.587 g + 0.114 b of the floating-point channels.
    static double luminance(const QColor& color);
    //! VynStyleDark when 1 − luminance ≥ 0.5 (a dark background asks for the dark style).
    static VynStyle backgroundStyle(const QColor& color);
    //! VynStyleDark when 1 − luminance ≥ 0.35.
    static VynStyle backgroundStyleExtreme(const QColor& color);
    //! Opaque white when 1 − luminance ≥ 0.5, else opaque black.
    static QColor blackOrWhiteContrastingColor(const QColor& color);
    //! Opaque white when 1 − luminance ≥ 0.3, else opaque black.
    static QColor blackOrWhiteContrastingColorExtreme(const QColor& color);
    //! True when the HSV saturation or the brightness is 0.
    static bool isGray(const QColor& color);

    // --- Derived colours --------------------------------------------------------------------

    /*!
        In HSV: brightness v × 0.8 − 0.4 when v > 0.6, else v × 1.2 + 0.4
        (limited to 1); hue − 0.05, plus 1 when negative; saturation and alpha
        kept. An achromatic colour keeps having no hue.
    */
    static QColor contrastingColor(const QColor& color);
    /*!
        A pale companion: w as the brightness of contrastingColor(); hue − 0.05
        and then − 0.04, each wrapped into [0, 1); saturation (s + 1) / 2;
        brightness w × 0.2 + 0.8; alpha kept. An achromatic colour keeps having
        no hue.
    */
    static QColor contrastingColorLight(const QColor& color);
    //! In HSV: saturation − 0.2 and brightness + 0.2 (clamped), hue kept, alpha \a alpha.
    static QColor glowColorWithAlpha(const QColor& color, double alpha);
    /*!
        Red, green and blue each become x × a + b, alpha becomes \a alpha. No
        channel is clamped: results outside [0, 1] give an extended-range colour.
    */
    static QColor colorWithRGBAffineTransformA(const QColor& color, double a, double b,
                                               double alpha);
    /*!
        The 8-bit red, green and blue of \a color with an alpha on the 0 to 255
        scale: \a alpha truncated towards zero. An alpha that is not a number
        or falls outside 0 to 255 after truncation gives an invalid colour, so
        colorBySettingAlpha(c, 0.5) has alpha 0 and colorBySettingAlpha(c, 300)
        is invalid. (QML code that wants an alpha in [0, 1] uses the script
        library ColorUtils.)
    */
    static QColor colorBySettingAlpha(const QColor& color, double alpha);
    //! Each channel limited to within \a distance of the same channel of \a color: \a color.
    static QColor colorWithColorAndMaxDistance(const QColor& color, double distance);
    /*!
        An opaque colour that looks like \a color drawn with alpha a over
        \a background: a is \a alpha when above 0 (limited to 1), else the
        colour's own alpha; rgb = color.rgb × a, plus background.rgb × (1 − a)
        when the background is a valid colour (an invalid background adds
        nothing, as black would).
    */
    static QColor noAlphaColorWithAlpha(const QColor& color, double alpha,
                                        const QColor& background = QColor());
    //! noAlphaColorWithAlpha(color, 0, background).
    static QColor noAlphaColorOverColor(const QColor& color, const QColor& background);
    /*!
        Source-over compositing of \a top over \a main: a = a_main + a_top −
        a_main × a_top, each channel (main × a_main × (1 − a_top) + top ×
        a_top) / a. Two fully transparent colours give transparent black.
    */
    static QColor colorByOverlayingColor(const QColor& main, const QColor& top);

    // --- Stop lists -------------------------------------------------------------------------

    /*!
        The colours of a gradient derived from one tint: \a color through
        \a first, then for each stop s of \a stops with 0 < s < 1, in order,
        \a color through the blend (1 − s) × first + s × last, then \a color
        through \a last. Stops at or outside the ends (and NaN) are skipped,
        so an empty list gives two colours.
    */
    static QList<QColor> colorsWithStops(const QColor& color, const QList<double>& stops,
                                         const VynHSBTransform& first, const VynHSBTransform& last);
};

/*!
    Makes colour records readable and writable from QML as the value type
    vynRGBColor (red, green, blue, alpha).
*/
struct VynRGBColorForeign
{
    Q_GADGET
    QML_FOREIGN(VynRGBColor)
    QML_VALUE_TYPE(vynRGBColor)
};
