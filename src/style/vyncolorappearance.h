#pragma once

#include "vyncolorutils.h"
#include "vynuiglobal.h"

#include <vynrgbcolor.h>

#include <QColor>
#include <QList>
#include <QObject>

/*!
    The colour rules of the module's widgets in the light and dark styles.
    Each function picks an entry of a VynColorConstants table by style, state
    and level, or derives a colour from a tint through an HSB transform or a
    colour-space rule. VynUIQmlConstants exposes them to QML under the same
    names (with VynStyleDark as the default style).

    Arguments: style is a VynColorUtils::VynStyle (0 Light, 1 Dark); on and
    mixed are VynBOOL states (0 off, 1 on, 2 mixed); levels are small ints.

    Out-of-range arguments never read past a table. The rule is the same
    everywhere: style is clamped to 0..1 (below 0 reads Light, above 1 Dark),
    every state, level and flag is clamped to the range its table holds
    (on to 0..2, levels to the levels the table has), and the final index is
    clamped into the table. So labelColorForStyle(VynStyleDark, 5) reads
    level 2, and logGraphInfoColor(40) reads entry 16.

    Choices made where the rules leave room:

    - tableViewCellBackgroundColorForStyle(style, selected, hasFocus,
      alternate): selection wins over striping. A selected row in a focused
      table reads kVynCellBackgroundSelectedColors; a selected row without
      focus reads the quieter kVynCellBackgroundStripColors; an unselected
      alternate row reads kVynCellBackgroundAlternateColors; any other row
      kVynCellBackgroundColors.
    - Network cells: networkCellBackgroundColorForStyle(tint, style,
      selected) is the tint itself when the cell is selected and the tint
      through kVynNetworkCellNotSelectedTransforms otherwise, so the selected
      cells stand out at full colour. networkCellBorderColorForStyle(tint,
      style, selected) uses kVynNetworkCellSelectedBorderTransforms when
      selected and kVynNetworkCellBorderTransforms otherwise;
      networkCellSelectedBorderColorForStyle always the former.
    - coloredLabelColorForStyle: levels 0 to 6 read their Light/Dark pair;
      the "14 + style" entry of higher levels lies past the 14 colours, so
      levels from 7 up (and below 0) read the nearest existing pair.
    - eqCurveGradientColorForStyle: t = curveIndex / (numberOfCurves − 1)
      clamped to [0, 1]; fewer than two curves give t = 0.5.
    - inactiveViewTintedImageColor(): mid grey (0.5, 0.5, 0.5) through the
      light-style entry of kVynInactiveScreenTintedImageTransform.
    - The colour factory reads VynColorConstants::kVynColorFactoryColors.

    All functions are pure (inactiveViewTintedImageColor() builds its colour
    once, thread-safely) and may be called from any thread.
*/
class VYNUI_EXPORT VynColorAppearance
{
    Q_GADGET

public:
    using VynStyle = VynColorUtils::VynStyle;

    // --- Colour factory ---------------------------------------------------------------------
    static int colorFactoryCount();
    //! Palette entry \a index (clamped).
    static QColor colorFactory(int index);
    static VynRGBColor rgbColorFactoryIndex(int index);
    static QColor readableColorFactoryForStyle(int index, int style);
    static QColor primaryColorFactoryForStyle(int index, int style);
    static QColor secondaryColorFactoryForStyle(int index, int style);
    static QColor tertiaryColorFactoryForStyle(int index, int style);

    // --- Tint-derived colours ---------------------------------------------------------------
    /*!
        A version of \a color that reads on the style's background, in CIE
        L*a*b* (sRGB, D65): the dark style lifts L* to at least 40; the light
        style brings an L* above 60 down to 60 and, when a* (rounded half away
        from zero) is not 0, first adds (L* − 60) × 20 / 40 to a*. Alpha is
        kept; the result is clamped into the sRGB cube.
    */
    static QColor readableColorForStyle(const QColor& color, int style);
    static QColor primaryColorForStyle(const QColor& color, int style);
    static QColor secondaryColorForStyle(const QColor& color, int style);
    static QColor tertiaryColorForStyle(const QColor& color, int style);
    static QColor colorIconBorderColorForStyle(const QColor& color, int style);
    static QColor logGraphInfoColor2(const QColor& color, int style);
    static QColor graphBackgroundTransformedColor(const QColor& color, int style,
                                                  int firstOrSecond);
    static QColor graphThumbLabelBackgroundTransformedColor(const QColor& color, int style);
    static QColor barGraphPercentTransformedColor(const QColor& color, int style);
    static QColor barGraphHighlightTransformedColor(const QColor& color, int style);
    static QColor recapHeaderGradientColor(const QColor& tint, int style, int position);
    static QColor inactiveViewBackgroundColor(const QColor& color);
    static QColor inactiveViewTintedImageColor();
    static QColor networkCellBackgroundColorForStyle(const QColor& tint, int style,
                                                     bool selected = false);
    static QColor networkCellBorderColorForStyle(const QColor& tint, int style,
                                                 bool selected = false);
    static QColor networkCellSelectedBorderColorForStyle(const QColor& tint, int style);
    static QColor networkCellEvenColorForStyle(const QColor& tint, int style);
    static QColor networkCellOddColorForStyle(const QColor& tint, int style);
    static QColor popupBackgroundColorForStyle(const QColor& color, int style);
    static QColor zoneIconFillColor(const QColor& color, int style);
    static QColor circularUpdateTrackColor(const QColor& color);
    static QColor tableViewCellBackgroundColorForTintAndStyle(const QColor& tint, int style);

    // --- Background stop lists --------------------------------------------------------------
    static QList<QColor> backgroundColorsWithStops(const QColor& color, const QList<double>& stops);
    static QList<QColor> backgroundColorsForStyleWithStops(const QColor& color, int style,
                                                           const QList<double>& stops);
    static QList<QColor> backgroundColorsExtremeForStyleWithStops(const QColor& color, int style,
                                                                  const QList<double>& stops);
    static QList<QColor> graphBackgroundColorsForStyleWithStops(const QColor& color, int style,
                                                                const QList<double>& stops);

    // --- Views, windows, popovers, tables ---------------------------------------------------
    static QColor viewBackgroundColorForStyle(int style, int level = 0);
    static QColor windowBackgroundColorForStyle(int style);
    static QColor windowBorderColorForStyle(int style);
    static QColor popoverBackgroundColorForStyle(int style);
    static QColor popoverBorderColorForStyle(int style);
    static QColor popoverShadowColorForStyle(int style);
    static QColor textViewBackgroundColorForStyle(int style);
    static QColor tableViewBackgroundColorForStyle(int style);
    static QColor tableViewBorderColorForStyle(int style);
    //! \a warning picks the reddish section colours (entries style + 2).
    static QColor tableSectionBackgroundColorForStyle(int style, bool warning = false);
    static QColor tableSectionBorderColorForStyle(int style, bool warning = false);
    static QColor tableViewCellBackgroundColorForStyle(int style, bool selected, bool hasFocus,
                                                       bool alternate);
    static QColor tableViewCellRedOverlayColorForStyle(int style);
    static QColor borderViewBackgroundColorForStyle(int style);
    static QColor lineViewColorForStyle(int style);
    static QColor splitViewLineColorForStyle(int style);
    static QColor viewListHeaderLineColorForStyle(int style);
    static QColor viewListHeaderLineShadowColorForStyle(int style);
    static QColor viewListButtonTitleColorForStyle(int style, int level, const QColor& color,
                                                   bool mouseOver);
    static QColor colorIconShadowColorForStyle(int style);
    static QColor labelColorForStyle(int style, int level = 0);
    static QColor coloredLabelColorForStyle(int style, int level);
    static QColor tableLabelColorForStyle(int style, bool selected, bool hasFocus, int level = 0);
    static QColor tableTintedLabelColorForStyle(const QColor& color, int style, bool selected);
    static QColor textViewTextColorForStyle(int style, int mixed = 0);
    static QColor textViewBorderColorForStyle(int style, int mixed, bool editing);

    // --- Controls, buttons, LEDs ------------------------------------------------------------
    static QColor controlColorForStyle(int style, int on);
    static QColor controlTextColorForStyle(int style, int on, bool isDefault = false,
                                           bool isDestructive = false);
    static QColor controlBorderColorForStyle(int style, int on, bool isDefault = false,
                                             bool isDestructive = false);
    static QColor controlBorderRedColorForStyle(int style);
    static QColor controlFillColor(int style);
    static QColor controlTouchOverColorForStyle(int style);
    static QColor controlMixedTickColor();
    static QColor flatButtonFillColorForStyle(int style, int on);
    static QColor flatButtonBorderColorForStyle(int style, int on);
    static QColor flatButtonSeparatorColorForStyle(int style, int on);
    static QColor flatButtonTextColorForStyle(int style, int on, bool destructive = false);
    static QColor templateButtonColorForStyle(int style, int on);
    static QColor templateButtonTextColorForStyle(int style, int on);
    static QColor inlineButtonColorForStyle(int style, int on);
    static QColor toolbarButtonColorForStyle(int style, int on);
    static QColor toolbarButtonTextColorForStyle(int style, int on);
    static QColor bridgeIconColorForStyle(int style, int level, int mixed);
    static QColor badgeNewColorForStyle(int style);
    //! Index VynViewUtils::VynLiveButtonMode (offline, config, live).
    static QColor liveModeButtonColor(int mode);
    static QColor liveModeButtonBackgroundColor(int style);
    static QColor liveModeButtonFillColor(int style);
    //! Opacity of the live-mode button, and while it is touched.
    static double liveModeButtonAlpha();
    static double liveModeButtonTouchingAlpha();
    //! A zone icon's fill while touched: its fill darkened like any touched control.
    static QColor zoneIconTouchingColor(const QColor& color, int style);
    static double zoneIconShadowAlpha();
    //! Buttons inside a popover are flat buttons: their fill and border in the off state.
    static QColor popoverButtonFillColor(int style);
    static QColor popoverButtonBorderColor(int style);
    static QColor logRecordButtonColor();
    static QColor yellowSelectionColor();
    //! LED colours by VynViewUtils::VynLedState 0 to 4 (grey, orange, red, green, blue); the
    //! fill table holds the grey and orange fills, so later states read the orange one.
    static QColor ledFillColorForState(int state);
    static QColor ledBorderColorForState(int state);
    static QColor ledGlowColorForState(int state);
    static QColor ledTextColor();

    // --- Gradients --------------------------------------------------------------------------
    static QColor controlOnGradientColor(double location);
    static QColor controlOnRedGradientColor(double location);
    static QColor controlMixedGradientColor(double location);
    //! Precedence: default, destructive, opaque (the style's stop pair), plain off.
    static QColor controlOffGradientColorForStyle(double location, int style, bool opaque = false,
                                                  bool isDefault = false,
                                                  bool isDestructive = false);
    static QColor controlImageOnGradientColor(double location);
    static QColor controlImageOffGradientColor(double location, bool isDefault = false,
                                               bool isDestructive = false);
    static QColor patchLineNormalGradientColor(double location);
    static QColor patchLineExpectingGradientColor(double location);
    static QColor patchLineMultipleGradientColor(double location);
    static QColor patchAnchorColor(int style);
    static QColor patchDestructiveColor(int style);

    // --- Network map, tuning, lasso ---------------------------------------------------------
    static QColor networkMapBackgroundColorForStyle(int style);
    static QColor networkMapShadowColorForStyle(int style);
    static QColor mapImageGridColor();
    static QColor mapImageMissingColorForStyle(int style);
    static QColor mapImageAnchorFillColorForStyle(int style);
    static QColor mapImageAnchorBorderColorForStyle(int style);
    static QColor networkPhantomCellFillColorForStyle(int style);
    static QColor networkPhantomCellBorderColorForStyle(int style);
    static QColor networkOutOfContainerFocusColorForStyle(int style);
    static QColor lassoBorderColorForStyle(int style);
    static QColor lassoFillColorForStyle(int style);
    static QColor taskButtonColorForStyle(int style);
    static QColor alignmentGuideColorForStyle(int style);
    static QColor tuningBorderViewBackgroundColorForStyle(int style);
    static QColor screenCompositionBorderColorForStyle(int style);
    //! \a level 0 normal, 1 warning, 2 alert.
    static QColor tuningHeaderBackgroundColorForStyle(int style, int level = 0);
    static QColor tuningStatusLabelColorForStyle(int style, int level = 0);
    static QColor tuningStatusWarningColorForStyle(int style);
    static QColor tuningProductLabelColorForStyle(int style);
    static QColor tuningGlobalViewBackgroundColorForStyle(int style);
    static QColor orlaColorForStyle(int style);
    static QColor teskColorForStyle(int style);

    // --- Log graph --------------------------------------------------------------------------
    //! Entry paramFamily clamped to 0..16.
    static QColor logGraphInfoColor(int paramFamily);
    /*!
        The mark drawn on a curve of colour \a infoColor, in HSL: white-like
        greys (saturation 0, lightness 1) become lightness 0; black becomes
        saturation 0, lightness 1; any other colour turns its hue by 0.5 and
        takes lightness min(lightness × 1.2, 1). Alpha is kept.
    */
    static QColor logGraphMarkColor(const QColor& infoColor);
    static QColor logGraphAxisColor(int style);
    static QColor logGraphLabelColor(int style, int timeOrDay = 0);
    static QColor logGraphLabelShadowColor(int style);
    static QColor logGraphInfoNoGraphColor(int style);
    static QColor logTimeSliderBreakColor(int style);
    static QColor logTimeSliderLabelColor(int style);
    static QColor logGraphBreakFillColor(int style);
    static QColor logGraphBreakBorderColor(int style);
    static QColor logKeyFactsTitleColor(int style);

    // --- VU meter tables of this family -----------------------------------------------------
    static QColor vuMeterFillColor(int style);
    static QColor vuMeterBorderColor(int style);
    static QColor vuMeterTickMarkColor(int style);

    // --- EQ graphs --------------------------------------------------------------------------
    static QColor eqGraphLabelColorForStyle(int style);
    static QColor eqGraphAxisMainColorForStyle(int style);
    static QColor eqGraphAxisSecondaryColorForStyle(int style);
    static QColor eqThumbnailGridColorsForStyle(int style);
    static QColor eqThumbnailBorderColorForStyle(int style);
    static QColor eqGraphArrayEQFillColorsForStyle(int style);
    static QColor eqGraphArrayEQBorderColorsForStyle(int style);
    static QColor eqThumbnailRightOnColorsForStyle(int style);
    static QColor eqThumbnailRightOffColorsForStyle(int style);
    static QColor eqThumbnailRightMixedColorsForStyle(int style);
    static QColor eqThumbnailLeftTextColor();
    static QColor eqThumbnailLeftBkgOnColor();
    static QColor eqThumbnailLeftBkgOffColor();
    static QColor eqThumbnailLeftBkgMixedColor();
    static QColor eqThumbnailEmptyColor();
    //! \a location truncated to an integer and clamped to 0..1 picks the entry.
    static QColor eqThumbnailOnBkgGradientColorForStyle(double location, int style);
    static QColor eqThumbnailOffBkgGradientColorForStyle(double location, int style);
    static QColor eqThumbnailMixedBkgGradientColorForStyle(double location, int style);
    static QColor eqThumbColorForStyle(int style, bool selected, int on);
    static QColor eqTypeCurveColorForStyle(int style, int on);
    /*!
        The colour of curve \a curveIndex of \a numberOfCurves: the two
        kEQGradientColors entries of (style, on) blended as first × t + second
        × (1 − t), alpha included. When given, \a fillColor receives the same
        colour with alpha × 0.4 (Dark) or × 0.15 (Light) and \a buttonColor the
        curve colour.
    */
    static QColor eqCurveGradientColorForStyle(int style, int on, int curveIndex,
                                               int numberOfCurves, QColor* fillColor = nullptr,
                                               QColor* buttonColor = nullptr);
    //! The same rule as eqCurveGradientColorForStyle().
    static QColor eqCurveColorForStyle(int style, int on, int curveIndex, int numberOfCurves,
                                       QColor* fillColor = nullptr, QColor* buttonColor = nullptr);
    /*!
        A valid tint with alpha above 0: the tint through kVynGraphBackgroundTransforms
        entry position + style × 2; otherwise entry position of kEQGraphBackgroundColorsDark
        or kEQGraphBackgroundColorsLight. \a position is clamped to 0..1.
    */
    static QColor eqGraphBackgroundGradientColor(const QColor& tint, int style, int position);
};
