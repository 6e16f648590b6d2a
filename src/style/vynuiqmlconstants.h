#pragma once

#include "vyncolorappearance.h"
#include "vyncolorutils.h"
#include "vynledparamconfig.h"
#include "vynuiglobal.h"
#include "vynviewutils.h"
#include "vynvumeterconstants.h"

#include <vyneqconstants.h>

#include <QColor>
#include <QJSValue>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QQuickWindow>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>
#include <QWindow>

#include "vynhintmanager.h"

#include <qapplicationmessage.h>
#include <qcorewindowcontroller.h>

class QJSEngine;
class QQmlEngine;
// Declared only: moc reads vynuimetrics.def once per run, and this class needs it for its
// own members.
class VynUIMetrics;
Q_MOC_INCLUDE("vynuimetrics.h")

/*!
    The catalogue every QML document of the module reads its metrics from:
    sizes, margins, corner radii, line widths, font sizes and shadow sizes,
    fixed ratios, window and popover sizes, graph axis labels, EQ band images,
    drag-and-drop mime types, colours by style, and forwarders to the geometry
    utilities.

    One object serves every QML engine of the process: the singleton is created
    on first use, owned by the library (never by an engine) and lives until the
    library is unloaded. Every member is a pure function of its arguments,
    callable from C++ as a static function.

    Scaling. A metric is round(base x ratio), rounding halves away from zero
    (12.5 -> 13, -0.5 -> -1), returned as a double, or as an int for font
    sizes. Rows of vynuimetrics.def marked Unrounded return base x ratio as is.

    Default arguments. A missing ratio is 1.0, a missing control size is
    VynControlSizeRegular and a missing style VynStyleDark; QML sees the shorter
    forms as overloads, so fontSize() is 13 and fontSize(VynControlSizeMini) 9.
    A style can be left out only where every argument after it can be too.

    Enumerations from QML. QML passes any integer where a member takes an
    enumeration, and every member answers for every integer. A control size
    reads as described below; a style at or below VynStyleLight reads as
    Light and one above it as Dark; an orientation other than Qt::Vertical
    (0, 3, 7, ...) reads as Qt::Horizontal; a band type that is not suggested,
    a style preference other than Light or Dark, and a side that is not one
    of VynViewUtils::VynSide's single values get the answer each member
    documents for them. Orientations are taken by reference so that the
    integer QML stores is read as an integer: an out-of-range value is never
    loaded as a Qt::Orientation.

    Sizes outside a table. Every control-size row has an entry per size, Mini
    to ExtraLarge; a size below Mini reads the Mini entry and a size past
    ExtraLarge the ExtraLarge entry. An index past a fixed list is clamped the
    same way unless the member documents another answer. No member ever reads
    outside its table.
*/
class VYNUI_EXPORT VynUIQmlConstants : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    //! The process-wide object, created on first call; it has no parent.
    static VynUIQmlConstants* instance();

    /*!
        Singleton provider for QML engines: answers instance() and marks it as
        owned by C++ so that no engine deletes it. Every engine gets the same object.
    */
    static VynUIQmlConstants* create(QQmlEngine* p_qmlEngine, QJSEngine* p_jsEngine);

    // Members the module's own controls call in their bindings come first. The QML
    // engine resolves a call by comparing the member with every member declared before
    // it in this class, so the members called most often are declared first (this
    // changes their order only, never their names, arguments or results).

    /*!
        The metrics and colours of one look, as properties (see VynUIMetrics): a control
        binds one property to this and reads every metric from it. \a p_controlSize and
        \a p_style are normalised as everywhere in the catalogue; \a p_ratio scales the
        metrics and \a p_fontRatio the font sizes.

        Every call with the same (normalised) arguments answers the same object, owned by
        the catalogue: a control's metrics are computed once per change of its look, not
        per binding. Past 1024 distinct looks (a host animating a ratio), or when called
        from another thread than the catalogue's, the answer is a new object without a
        parent, which the calling QML engine owns and collects.
    */
    Q_INVOKABLE static VynUIMetrics* metrics(int p_controlSize, double p_ratio, double p_fontRatio,
                                             int p_style);

    Q_INVOKABLE static double disabledAlpha(); //!< 0.75
    Q_INVOKABLE static double offlineAlpha();  //!< 0.62
    // Host services: see the other presenters below.
    Q_INVOKABLE static QCoreWindowController* windowControllerForQmlObject(QObject* p_object);
    Q_INVOKABLE static QQuickWindow* windowForQmlObject(QObject* p_object);
    Q_INVOKABLE static QApplicationMessage* presentConfirmMessage(
        const QString& p_title, const QString& p_message, int p_tag, int p_level, int p_type,
        const QStringList& p_buttonTitles, const QVariant& p_windowControllers, QObject* p_parent,
        const QJSValue& p_completion = QJSValue(), const QVariant& p_context = QVariant());
    /*!
        The localised text of \a p_key in the QtCommons table \a p_table ("VynLocalizable"
        or "VynUILocalizable"), for documents that show the module's words ("MULTIPLE_SHORT").
        An unknown key answers what QtCommons answers for it.
    */
    Q_INVOKABLE static QString
    localizedString(const QString& p_key,
                    const QString& p_table = QStringLiteral("VynLocalizable"));
    /*!
        Slide-field acceleration: the number of zones, round(4 x ratio), and per
        zone (index 0 to 3) its rate ratio x (0.25, 1, 2.5, 4) and its start
        distance ratio x (0, 100, 200, 300), both unrounded. An index outside
        0 to 3 reads the nearest zone.
    */
    Q_INVOKABLE static int slideFieldZoneCount(double p_ratio = 1.0);
    Q_INVOKABLE static double slideFieldRate(int p_index, double p_ratio = 1.0);
    Q_INVOKABLE static double slideFieldFrom(int p_index, double p_ratio = 1.0);
    Q_INVOKABLE static int colorFactoryCount();
    Q_INVOKABLE static QColor colorFactory(int p_index);
    Q_INVOKABLE static QColor
    controlBorderRedColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor controlColorForStyle(VynColorUtils::VynStyle p_style, int p_on);
    Q_INVOKABLE static QColor controlBorderColorForStyle(VynColorUtils::VynStyle p_style, int p_on,
                                                         bool p_isDefault = false,
                                                         bool p_isDestructive = false);
    Q_INVOKABLE static QColor controlOnGradientColor(double p_location);
    Q_INVOKABLE static QColor controlMixedGradientColor(double p_location);
    Q_INVOKABLE static QColor controlOffGradientColorForStyle(
        double p_location, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
        bool p_opaque = false, bool p_isDefault = false, bool p_isDestructive = false);
    Q_INVOKABLE static QColor controlMixedTickColor();
    Q_INVOKABLE static QColor controlTextColorForStyle(VynColorUtils::VynStyle p_style, int p_on,
                                                       bool p_isDefault = false,
                                                       bool p_isDestructive = false);
    Q_INVOKABLE static QColor
    controlTouchOverColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    textViewTextColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
                              int p_mixed = 0);
    Q_INVOKABLE static QColor textViewBorderColorForStyle(VynColorUtils::VynStyle p_style,
                                                          int p_mixed, bool p_editing);
    Q_INVOKABLE static QColor
    textViewBackgroundColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    popoverBackgroundColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    popoverBorderColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    labelColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
                       int p_level = 0);
    Q_INVOKABLE static QColor
    colorIconShadowColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    colorIconBorderColorForStyle(const QColor& p_color,
                                 VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor colorBySettingAlpha(const QColor& p_color, double p_alpha);

    // Metrics and mime types: one invokable per row of vynuimetrics.def, which gives each
    // member's result type, name, scaling and base values.
#define VYNUI_SIZED_METRIC(type, name, scaling, mini, small, regular, large, extraLarge)           \
    Q_INVOKABLE static type name(VynViewUtils::VynControlSize p_controlSize =                      \
                                     VynViewUtils::VynControlSizeRegular,                          \
                                 double p_ratio = 1.0);
#define VYNUI_SCALED_METRIC(type, name, scaling, base)                                             \
    Q_INVOKABLE static type name(double p_ratio = 1.0);
#define VYNUI_FIXED_METRIC(type, name, value) Q_INVOKABLE static type name();
#define VYNUI_MIME_TYPE(getter, member, text) Q_INVOKABLE static QString getter();
#include "vynuimetrics.def"

    // Generic helpers.

    //! v x ratio.
    Q_INVOKABLE static double getConstantValue(double p_value, double p_ratio = 1.0);
    //! v x ratio in single precision.
    Q_INVOKABLE static float getConstantValue(float p_value, double p_ratio = 1.0);
    //! v x ratio truncated toward zero, clamped to the type's range (NaN gives 0).
    Q_INVOKABLE static int getConstantValue(int p_value, double p_ratio = 1.0);
    Q_INVOKABLE static uint getConstantValue(uint p_value, double p_ratio = 1.0);
    Q_INVOKABLE static QPointF getConstantValueForPoint(const QPointF& p_point,
                                                        double p_ratio = 1.0);
    Q_INVOKABLE static QSizeF getConstantValueForSize(const QSizeF& p_size, double p_ratio = 1.0);
    Q_INVOKABLE static QRectF getConstantValueForRect(const QRectF& p_rect, double p_ratio = 1.0);
    //! round(v x ratio); the integer forms clamp to the type's range (NaN gives 0).
    Q_INVOKABLE static double getRoundedConstantValue(double p_value, double p_ratio = 1.0);
    Q_INVOKABLE static float getRoundedConstantValue(float p_value, double p_ratio = 1.0);
    Q_INVOKABLE static int getRoundedConstantValue(int p_value, double p_ratio = 1.0);
    Q_INVOKABLE static uint getRoundedConstantValue(uint p_value, double p_ratio = 1.0);

    /*!
        Number of samples a QML blur effect (glow, shadow) needs for a blur of
        \a p_radius pixels: 2 x radius + 1, so that the kernel covers the radius
        on both sides of the centre. The radius is capped at 32 (65 samples),
        past which blur shaders cost much and gain nothing visible; radius 0
        gives 1 (no blur).
    */
    Q_INVOKABLE static int getSamplesValue(uint p_radius);

    //! Width of a space in the module's font: ceil(size x 0.2477 - 0.0108); 0 for sizes <= 0.
    Q_INVOKABLE static int fontSpaceWidth(int p_fontSize);

    /*!
        round(ratio x 2147483647): a fraction in [0, 1] spread over the positive
        int range. Results beyond the int range are clamped; NaN gives 0.
    */
    Q_INVOKABLE static int colorIndexUser(double p_ratio);

    /*!
        Asks the platform for a dark (VynStylePrefDark) or light (VynStylePrefLight)
        native title bar for \a p_window; VynStylePrefSystem leaves the title bar
        alone, as does any other integer, and a null window is ignored. The window's native handle
       is created when it does not exist yet.
    */
    Q_INVOKABLE static void
    setNativeTitleBarColorForStyle(QWindow* p_window,
                                   VynColorUtils::VynStylePreference p_preference);

    // Host services. The look-ups walk from a QML object to its window and the window's
    // controller (null when there is none). The presenters forward to the QApplicationMessage
    // presenters of the same names and return the message (null when nothing is shown);
    // windowControllers takes one controller or a list of them, actionTitles one text or a
    // list, and the completion is called with (response, isChecked). The look-ups and
    // presentConfirmMessage are declared with the members called most often, above.
    Q_INVOKABLE static QApplicationMessage* presentBasicMessage(
        const QString& p_title, const QString& p_message, int p_tag, int p_level, int p_type,
        const QString& p_actionTitle, const QVariant& p_windowControllers, QObject* p_parent,
        const QJSValue& p_completion = QJSValue(), const QVariant& p_context = QVariant());
    Q_INVOKABLE static QApplicationMessage* presentCustomMessage(
        const QString& p_title, const QString& p_message, int p_tag, int p_level, int p_type,
        const QStringList& p_actionTitles, const QVariant& p_windowControllers, QObject* p_parent,
        const QJSValue& p_completion = QJSValue(), const QVariant& p_context = QVariant());
    Q_INVOKABLE static QApplicationMessage* presentConfirmMessageIfNeededForSecurityType(
        int p_securityType, const QString& p_title, const QString& p_message, int p_tag,
        int p_level, int p_type, const QStringList& p_buttonTitles,
        const QVariant& p_windowControllers, QObject* p_parent,
        const QJSValue& p_completion = QJSValue(), const QVariant& p_context = QVariant());

#define VYNUI_MIME_TYPE(getter, member, text) static const QString member;
#include "vynuimetrics.def"
    /*!
        Minimum sizes of the amplifier output controls, (width, height) x ratio,
        unrounded: top Mini (130, 170), Small (150, 300); bottom Mini (150, 175),
        Small (170, 440). Only Mini and Small are defined: sizes above Small
        answer the Small size, sizes below Mini the Mini size.
    */
    Q_INVOKABLE static QSizeF minControlAmpOutTopSizeOrla(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static QSizeF minControlAmpOutBottomSizeOrla(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);

    // Graph axis labels: each call returns a new list of VynGraphLabel (position, text).

    //! Frequencies 20 Hz to 20 kHz: "20", "50", ..., "1k", ..., "20k".
    Q_INVOKABLE static QVariantList eqXLabels();
    //! Gains -18 dB to +18 dB in 6 dB steps: "-18", ..., "0", "+6", ..., "+18".
    Q_INVOKABLE static QVariantList eqYLabels();
    //! Levels -60 dB to 0 dB in 10 dB steps.
    Q_INVOKABLE static QVariantList dynXLabels();
    Q_INVOKABLE static QVariantList dynYLabels();

    // EQ band types, over VynEQConstants::kVynEQSuggestions.

    //! The band type of suggestion \a p_index; VynEQTypeNone (65535) outside 0 to 5.
    Q_INVOKABLE static VynEQConstants::VynEQBandType eqBandTypeForIndex(int p_index);
    //! The first suggestion of band type \a p_type, or -1 (also for any integer that is not a
    //! type).
    Q_INVOKABLE static int eqIndexForBandType(VynEQConstants::VynEQBandType p_type);
    //! The name of suggestion \a p_index; an empty string outside 0 to 5.
    Q_INVOKABLE static QString eqBandTypeStringForIndex(int p_index);
    /*!
        The URL of the button image of band type \a p_type: "btn<name>.png", or
        "btn<name>48.png" for a content height of 50 or less, resolved by
        VynFileUtils::pathForImageNamed(). An empty string for a type that is
        not suggested, or for any integer that is not a type.
    */
    Q_INVOKABLE static QString imageUrlForEQBandType(VynEQConstants::VynEQBandType p_type,
                                                     double p_contentHeight);
    /*!
        The six selector image URLs, "<name>Mac.png" per suggestion in table
        order. The same images serve both styles: the style is accepted and not used.
    */
    Q_INVOKABLE static QStringList
    imageUrlsForEQTypeSelector(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);

    // Geometry, forwarded to VynViewUtils.

    /*!
        The lasso \a p_lasso (normalised, so a lasso dragged up or left counts
        too) cropped to \a p_bounds; an empty rectangle when they do not meet.
    */
    Q_INVOKABLE static QRectF cellsViewCroppedLassoRectangle(const QRectF& p_lasso,
                                                             const QRectF& p_bounds);
    //! QRectF::intersects(): touching edges do not intersect, nor do empty rectangles.
    Q_INVOKABLE static bool qRectFIntersectsRect(const QRectF& p_rect1, const QRectF& p_rect2);
    Q_INVOKABLE static bool qRectFStrictlyIntersectsRect(const QRectF& p_rect1,
                                                         const QRectF& p_rect2);
    Q_INVOKABLE static bool qRectFContainsQPoint(const QRectF& p_rect, const QPointF& p_point);
    //! QRectF::united(): the bounding rectangle of both; an empty one is ignored.
    Q_INVOKABLE static QRectF qRectFUnited(const QRectF& p_rect1, const QRectF& p_rect2);
    /*!
        The orientation of the line an edge lies on: Qt::Vertical for VynSideLeft,
        VynSideRight and VynSideHorizontalCenter, Qt::Horizontal for any other
        value, combinations and unnamed integers included.
    */
    Q_INVOKABLE static Qt::Orientation
    alignmentsViewVynSideOrientation(VynViewUtils::VynSide p_side);
    //! Qt::Horizontal for Qt::Vertical, Qt::Vertical for any other value.
    Q_INVOKABLE static Qt::Orientation
    alignmentsViewVynOrientationOther(const Qt::Orientation& p_orientation);
    //! The (min, max) extent of \a p_rect along y for Qt::Vertical, along x for any other value.
    Q_INVOKABLE static VynViewUtils::VynSideBounds
    alignmentsViewVynSideBoundsForRect(const QRectF& p_rect, const Qt::Orientation& p_orientation);
    /*!
        The coordinate of edge \a p_side of \a p_rect: x for VynSideLeft, y for
        VynSideTop, x + width for VynSideRight, y + height for VynSideBottom,
        y + height / 2 for VynSideVerticalCenter, and x + width / 2 for
        VynSideHorizontalCenter and any other value.
    */
    Q_INVOKABLE static double
    alignmentsViewQRectFOrthogonalDimensionForSide(const QRectF& p_rect,
                                                   VynViewUtils::VynSide p_side);
    //! The height of \a p_rect for Qt::Vertical, its width for any other value.
    Q_INVOKABLE static double
    alignmentsViewQRectFSizeAlongOrientation(const QRectF& p_rect,
                                             const Qt::Orientation& p_orientation);
    //! A rounded copy of \a p_rect (see VynViewUtils::roundedQRectF()).
    Q_INVOKABLE static QRectF alignmentsViewRoundedQRectF(const QRectF& p_rect);
    /*!
        The rectangle of a line from \a p_start to \a p_end at \a p_position,
        \a p_thickness thick: a vertical line for Qt::Vertical, a horizontal
        one for any other value.
    */
    Q_INVOKABLE static QRectF alignmentsViewQRectFForLine(double p_start, double p_end,
                                                          double p_position,
                                                          const Qt::Orientation& p_orientation,
                                                          double p_thickness);
    /*!
        The corners between the edges \a p_sides combines (VynSideLeft | VynSideTop
        gives VynCornerTopLeft). Only the Left, Top, Right and Bottom bits count, so
        any integer has an answer: -1 has all four, and gives every corner.
    */
    Q_INVOKABLE static VynViewUtils::VynCorner cornersForSides(VynViewUtils::VynSide p_sides);

    // Level meters.

    //! VynVUMeterConstants::tickMarksConfigForValues().
    Q_INVOKABLE static VynVUMeterConstants::VynVUMetreTickMarkConfig
    vuMeterTickMarksConfigForValues(int p_actualCellsLength, int p_minValue, int p_maxValue,
                                    int p_actualDistanceBetweenTicks);

    // Colours. Each member answers what its namesake in VynColorAppearance (or, for the
    // colour arithmetic, VynColorUtils) answers for the same arguments; a style left out is
    // VynStyleDark. Out-parameters of the appearance rules are not offered to QML.

    //! VynColorUtils::backgroundStyle(): the style whose controls read on \a p_color.
    Q_INVOKABLE static VynColorUtils::VynStyle styleForColor(const QColor& p_color);
    //! VynColorUtils::backgroundStyleExtreme().
    Q_INVOKABLE static VynColorUtils::VynStyle styleForColorExtreme(const QColor& p_color);

    Q_INVOKABLE static VynRGBColor rgbColorFactoryIndex(int p_index);
    Q_INVOKABLE static QColor
    readableColorFactoryForStyle(int p_index,
                                 VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    primaryColorFactoryForStyle(int p_index,
                                VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    secondaryColorFactoryForStyle(int p_index,
                                  VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    tertiaryColorFactoryForStyle(int p_index,
                                 VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    readableColorForStyle(const QColor& p_color,
                          VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    primaryColorForStyle(const QColor& p_color,
                         VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    secondaryColorForStyle(const QColor& p_color,
                           VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    tertiaryColorForStyle(const QColor& p_color,
                          VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor ledFillColorForState(int p_state);
    Q_INVOKABLE static QColor ledBorderColorForState(int p_state);
    Q_INVOKABLE static QColor ledGlowColorForState(int p_state);
    Q_INVOKABLE static QColor ledTextColor();
    Q_INVOKABLE static QColor yellowSelectionColor();
    Q_INVOKABLE static QColor
    controlFillColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor controlOnRedGradientColor(double p_location);
    Q_INVOKABLE static QColor controlImageOnGradientColor(double p_location);
    Q_INVOKABLE static QColor controlImageOffGradientColor(double p_location,
                                                           bool p_isDefault = false,
                                                           bool p_isDestructive = false);
    Q_INVOKABLE static QColor flatButtonFillColorForStyle(VynColorUtils::VynStyle p_style,
                                                          int p_on);
    Q_INVOKABLE static QColor flatButtonBorderColorForStyle(VynColorUtils::VynStyle p_style,
                                                            int p_on);
    Q_INVOKABLE static QColor flatButtonTextColorForStyle(VynColorUtils::VynStyle p_style, int p_on,
                                                          bool p_destructive = false);
    Q_INVOKABLE static QColor flatButtonSeparatorColorForStyle(VynColorUtils::VynStyle p_style,
                                                               int p_on);
    Q_INVOKABLE static QColor templateButtonColorForStyle(VynColorUtils::VynStyle p_style,
                                                          int p_on);
    Q_INVOKABLE static QColor templateButtonTextColorForStyle(VynColorUtils::VynStyle p_style,
                                                              int p_on);
    Q_INVOKABLE static QColor inlineButtonColorForStyle(VynColorUtils::VynStyle p_style, int p_on);
    Q_INVOKABLE static QColor toolbarButtonColorForStyle(VynColorUtils::VynStyle p_style, int p_on);
    Q_INVOKABLE static QColor toolbarButtonTextColorForStyle(VynColorUtils::VynStyle p_style,
                                                             int p_on);
    Q_INVOKABLE static QColor bridgeIconColorForStyle(VynColorUtils::VynStyle p_style, int p_level,
                                                      int p_mixed);
    Q_INVOKABLE static QColor
    badgeNewColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor liveModeButtonColor(int p_mode);
    Q_INVOKABLE static QColor
    liveModeButtonBackgroundColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    liveModeButtonFillColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor logRecordButtonColor();
    Q_INVOKABLE static double liveModeButtonAlpha();         //!< 0.9
    Q_INVOKABLE static double liveModeButtonTouchingAlpha(); //!< 0.6
    Q_INVOKABLE static QColor
    zoneIconTouchingColor(const QColor& p_color,
                          VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static double zoneIconShadowAlpha(); //!< 0.35
    Q_INVOKABLE static QColor
    popoverButtonFillColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    popoverButtonBorderColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    zoneIconFillColor(const QColor& p_color,
                      VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    patchAnchorColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor patchLineNormalGradientColor(double p_location);
    Q_INVOKABLE static QColor patchLineExpectingGradientColor(double p_location);
    Q_INVOKABLE static QColor patchLineMultipleGradientColor(double p_location);
    Q_INVOKABLE static QColor
    patchDestructiveColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    viewBackgroundColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
                                int p_level = 0);
    Q_INVOKABLE static QColor
    tableViewBackgroundColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    tableViewBorderColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor tableSectionBackgroundColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark, bool p_warning = false);
    Q_INVOKABLE static QColor
    tableSectionBorderColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
                                    bool p_warning = false);
    Q_INVOKABLE static QColor borderViewBackgroundColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    popoverShadowColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor tableViewCellBackgroundColorForStyle(VynColorUtils::VynStyle p_style,
                                                                   bool p_selected, bool p_hasFocus,
                                                                   bool p_alternate);
    Q_INVOKABLE static QColor tableViewCellBackgroundColorForTintAndStyle(
        const QColor& p_tint, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor tableViewCellRedOverlayColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor coloredLabelColorForStyle(VynColorUtils::VynStyle p_style,
                                                        int p_level);
    Q_INVOKABLE static QColor
    lineViewColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    splitViewLineColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor viewListButtonTitleColorForStyle(VynColorUtils::VynStyle p_style,
                                                               int p_level, const QColor& p_color,
                                                               bool p_mouseOver);
    Q_INVOKABLE static QColor
    viewListHeaderLineColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor viewListHeaderLineShadowColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    windowBackgroundColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    windowBorderColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor tableLabelColorForStyle(VynColorUtils::VynStyle p_style,
                                                      bool p_selected, bool p_hasFocus,
                                                      int p_level = 0);
    Q_INVOKABLE static QColor tableTintedLabelColorForStyle(const QColor& p_color,
                                                            VynColorUtils::VynStyle p_style,
                                                            bool p_selected);
    Q_INVOKABLE static QColor
    popupBackgroundColorForStyle(const QColor& p_color,
                                 VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QList<QColor> backgroundColorsWithStops(const QColor& p_color,
                                                               const QList<double>& p_stops);
    Q_INVOKABLE static QList<QColor>
    backgroundColorsForStyleWithStops(const QColor& p_color, VynColorUtils::VynStyle p_style,
                                      const QList<double>& p_stops);
    Q_INVOKABLE static QList<QColor>
    backgroundColorsExtremeForStyleWithStops(const QColor& p_color, VynColorUtils::VynStyle p_style,
                                             const QList<double>& p_stops);
    Q_INVOKABLE static QColor circularUpdateTrackColor(const QColor& p_color);
    Q_INVOKABLE static QColor networkMapBackgroundColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    networkMapShadowColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor mapImageGridColor();
    Q_INVOKABLE static QColor
    mapImageMissingColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    mapImageAnchorFillColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor mapImageAnchorBorderColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor networkPhantomCellFillColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor networkPhantomCellBorderColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor networkOutOfContainerFocusColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor networkCellBackgroundColorForStyle(
        const QColor& p_tint, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
        bool p_selected = false);
    Q_INVOKABLE static QColor
    networkCellBorderColorForStyle(const QColor& p_tint,
                                   VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
                                   bool p_selected = false);
    Q_INVOKABLE static QColor networkCellSelectedBorderColorForStyle(
        const QColor& p_tint, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    networkCellEvenColorForStyle(const QColor& p_tint,
                                 VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    networkCellOddColorForStyle(const QColor& p_tint,
                                VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    lassoBorderColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    lassoFillColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    taskButtonColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    alignmentGuideColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor tuningBorderViewBackgroundColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor screenCompositionBorderColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor tuningHeaderBackgroundColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark, int p_level = 0);
    Q_INVOKABLE static QColor
    tuningStatusLabelColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
                                   int p_level = 0);
    Q_INVOKABLE static QColor
    tuningStatusWarningColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    tuningProductLabelColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor tuningGlobalViewBackgroundColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    vuMeterBorderColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    vuMeterFillColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    vuMeterTickMarkColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqThumbnailOnBkgGradientColorForStyle(
        double p_location, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqThumbnailOffBkgGradientColorForStyle(
        double p_location, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqThumbnailMixedBkgGradientColorForStyle(
        double p_location, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqThumbColorForStyle(VynColorUtils::VynStyle p_style, bool p_selected,
                                                   int p_on);
    Q_INVOKABLE static QColor eqTypeCurveColorForStyle(VynColorUtils::VynStyle p_style, int p_on);
    Q_INVOKABLE static QColor eqCurveGradientColorForStyle(VynColorUtils::VynStyle p_style,
                                                           int p_on, int p_curveIndex,
                                                           int p_numberOfCurves);
    Q_INVOKABLE static QColor
    eqThumbnailGridColorsForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqThumbnailLeftTextColor();
    Q_INVOKABLE static QColor eqThumbnailLeftBkgOnColor();
    Q_INVOKABLE static QColor eqThumbnailLeftBkgOffColor();
    Q_INVOKABLE static QColor eqThumbnailLeftBkgMixedColor();
    Q_INVOKABLE static QColor
    eqThumbnailRightOnColorsForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqThumbnailRightOffColorsForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqThumbnailRightMixedColorsForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqThumbnailEmptyColor();
    Q_INVOKABLE static QColor
    eqThumbnailBorderColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    eqGraphArrayEQFillColorsForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqGraphArrayEQBorderColorsForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    eqGraphLabelColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    eqGraphAxisMainColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqGraphAxisSecondaryColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor eqGraphBackgroundGradientColor(const QColor& p_tint,
                                                             VynColorUtils::VynStyle p_style,
                                                             int p_position);
    Q_INVOKABLE static QColor
    recapHeaderGradientColor(const QColor& p_tint, VynColorUtils::VynStyle p_style, int p_position);
    Q_INVOKABLE static QColor graphBackgroundTransformedColor(const QColor& p_color,
                                                              VynColorUtils::VynStyle p_style,
                                                              int p_firstOrSecond);
    Q_INVOKABLE static QColor graphThumbLabelBackgroundTransformedColor(
        const QColor& p_color, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    barGraphPercentTransformedColor(const QColor& p_color,
                                    VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor barGraphHighlightTransformedColor(
        const QColor& p_color, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor logGraphInfoColor(int p_paramFamily);
    Q_INVOKABLE static QColor logGraphMarkColor(const QColor& p_infoColor);
    Q_INVOKABLE static QColor
    logGraphAxisColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    logGraphLabelColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
                       int p_timeOrDay = 0);
    Q_INVOKABLE static QColor
    logGraphLabelShadowColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    logGraphInfoNoGraphColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    logTimeSliderBreakColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    logTimeSliderLabelColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    logGraphBreakFillColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    logGraphBreakBorderColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    logKeyFactsTitleColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    logGraphInfoColor2(const QColor& p_color,
                       VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);

    // Colour arithmetic, forwarded to VynColorUtils.
    Q_INVOKABLE static QColor colorWithRGBAffineTransformA(const QColor& p_color, double p_a,
                                                           double p_b, double p_alpha);
    Q_INVOKABLE static QColor colorByIncreasingLuminosityWithScale(const QColor& p_color,
                                                                   double p_scale, double p_offset);
    Q_INVOKABLE static QColor colorBySettingBrightness(const QColor& p_color, double p_brightness);
    Q_INVOKABLE static QColor colorByIncreasingSaturationWithScale(const QColor& p_color,
                                                                   double p_scale, double p_offset);
    Q_INVOKABLE static QColor colorBySettingSaturation(const QColor& p_color, double p_saturation);
    Q_INVOKABLE static QColor colorWithColorAndMaxDistance(const QColor& p_color,
                                                           double p_distance);
    Q_INVOKABLE static QColor noAlphaColorOverColor(const QColor& p_color,
                                                    const QColor& p_background);
    Q_INVOKABLE static QColor colorByOverlayingColor(const QColor& p_main, const QColor& p_top);
    Q_INVOKABLE static QColor contrastingColor(const QColor& p_color);
    Q_INVOKABLE static QColor contrastingColorLight(const QColor& p_color);
    Q_INVOKABLE static QColor blackOrWhiteContrastingColor(const QColor& p_color);
    Q_INVOKABLE static QColor blackOrWhiteContrastingColorExtreme(const QColor& p_color);
    Q_INVOKABLE static QColor colorWithRGBColor(const VynRGBColor& p_color);
    Q_INVOKABLE static QColor colorFromRGBColorString(const QString& p_text);
    Q_INVOKABLE static VynRGBColor rgbColorFromColor(const QColor& p_color);
    Q_INVOKABLE static VynRGBColor rgbColorMake(double p_red, double p_green, double p_blue,
                                                double p_alpha = 1.0);
    Q_INVOKABLE static VynRGBColor rgbColorZero();
    Q_INVOKABLE static QColor glowColorWithAlpha(const QColor& p_color, double p_alpha);
    Q_INVOKABLE static QColor noAlphaColorWithAlpha(const QColor& p_color, double p_alpha,
                                                    const QColor& p_background = QColor());

    // Level-meter colours, from the VynVUMeterConstants tables.

    //! 32: the number of colours of a lit meter.
    Q_INVOKABLE static int vuMeterOnColorsCount();
    /*!
        The colour of lit cell level \a p_index, 0 (bottom) to 31 (top). The
        index is read as unsigned and limited to 31, so a negative index gives
        the top colour.
    */
    Q_INVOKABLE static QColor vuMeterOnColorForIndex(int p_index);
    //! The glow of a hold cell at level \a p_index (read as for vuMeterOnColorForIndex()).
    Q_INVOKABLE static QColor
    vuMeterGlowColorForIndex(int p_index,
                             VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    //! The colour of unlit cells.
    Q_INVOKABLE static QColor
    vuMeterOffColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);

    //! An LED configuration with these fields, no flag set (see VynLedParamConfig). A state
    //! that VynLedState does not name gives VynLedStateNone.
    Q_INVOKABLE static VynLedParamConfig createParamConfig(VynViewUtils::VynLedState p_state,
                                                           const VynProxyParamPath& p_path,
                                                           const VynProxyParamPath& p_addPath,
                                                           int p_priority, int p_lowerThs,
                                                           int p_upperThs, bool p_skipMultiple);

    /*!
        The hint manager of the window \a p_object is shown in (see
        VynHintManager::managerForQmlObject()); \a p_parentItem receives the window's
        content item. Null when there is none.
    */
    Q_INVOKABLE static VynHintManager* hintManagerForQmlObject(QObject* p_object);
    static VynHintManager* hintManagerForQmlObject(QObject* p_object, QObject** p_parentItem);

private:
    explicit VynUIQmlConstants(QObject* p_parent = nullptr);
    Q_DISABLE_COPY_MOVE(VynUIQmlConstants)
};
