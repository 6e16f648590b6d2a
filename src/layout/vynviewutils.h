#pragma once

#include "vynuiglobal.h"

#include <vynproxyparampath.h>

#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSet>
#include <QSizeF>
#include <QString>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/*!
    The view vocabulary shared by the component models, the layout code and the
    controls: the view enums, small value records handed between C++ and QML,
    and rectangle, side and anchor arithmetic.

    The enums have int as their underlying type, so any int a host or a
    document passes is a valid value and takes the "every other value" branch.

    In QML the namespace is the uncreatable element VynViewUtils carrying the
    enums (VynViewUtils.VynSideLeft). The records are QML value types
    (vynSideBounds, vynGraphLabel, ...) that QML reads, declares and fills.

    The functions are pure except qRectFSetOrthogonalDimension(),
    qRectFSetSizeAlongOrientation() and roundedQRectF(), which change the
    rectangle they are given. Arithmetic is in double precision unless a
    function says otherwise; unknown enum values take the "every other value"
    branch of each function.
*/
namespace VynViewUtils {
Q_NAMESPACE_EXPORT(VYNUI_EXPORT)
QML_ELEMENT

enum VynLiveButtonMode : int {
    VynLiveButtonModeOffline = 0,
    VynLiveButtonModeConfig = 1,
    VynLiveButtonModeLive = 2,
};
Q_ENUM_NS(VynLiveButtonMode)

enum VynControlSize : int {
    VynControlSizeMini = 0,
    VynControlSizeSmall = 1,
    VynControlSizeRegular = 2,
    VynControlSizeLarge = 3,
    VynControlSizeExtraLarge = 4,
};
Q_ENUM_NS(VynControlSize)

enum VynVerticalAlignment : int {
    VynVerticalAlignmentTop = 0,
    VynVerticalAlignmentMiddle = 1,
    VynVerticalAlignmentBottom = 2,
};
Q_ENUM_NS(VynVerticalAlignment)

enum VynAlignmentType : int {
    VynAlignmentTypeNone = 0,
    VynAlignmentTypeAligned = 1,
    VynAlignmentTypeContact = 2,
    VynAlignmentTypeTied = 3,
    VynAlignmentTypeEquidistant = 4,
    VynAlignmentTypeMiddle = 5,
    VynAlignmentTypeWidth = 6,
    VynAlignmentTypeHeight = 7,
};
Q_ENUM_NS(VynAlignmentType)

//! The four edges form a bit set (All = the four); the two centre lines lie outside it.
//! HorizontalCenter is the vertical line x + w/2, VerticalCenter the horizontal line y + h/2.
enum VynSide : int {
    VynSideNone = 0,
    VynSideLeft = 1,
    VynSideTop = 2,
    VynSideRight = 4,
    VynSideBottom = 8,
    VynSideAll = 15,
    VynSideHorizontalCenter = 16,
    VynSideVerticalCenter = 32,
};
Q_ENUM_NS(VynSide)

enum VynCorner : int {
    VynCornerNone = 0,
    VynCornerTopLeft = 1,
    VynCornerTopRight = 2,
    VynCornerBottomLeft = 4,
    VynCornerBottomRight = 8,
    VynCornerAllCorners = 15,
};
Q_ENUM_NS(VynCorner)

//! The fixed point of a resize. Low four bits: horizontal position (0 left, 1 middle,
//! 2 right); bits 4 to 7: vertical position (0 top, 1 middle, 2 bottom).
enum VynResizeAnchor : int {
    VynResizeAnchorTopLeft = 0,
    VynResizeAnchorTopMiddle = 1,
    VynResizeAnchorTopRight = 2,
    VynResizeAnchorMiddleLeft = 16,
    VynResizeAnchorCenter = 17,
    VynResizeAnchorMiddleRight = 18,
    VynResizeAnchorBottomLeft = 32,
    VynResizeAnchorBottomMiddle = 33,
    VynResizeAnchorBottomRight = 34,
};
Q_ENUM_NS(VynResizeAnchor)

enum VynLedState : int {
    VynLedStateGray = 0,
    VynLedStateOrange = 1,
    VynLedStateRed = 2,
    VynLedStateGreen = 3,
    VynLedStateBlue = 4,
    VynLedStateCustom = 255,
    VynLedStateNone = 256,
    VynLedStateProtect = 257,
    VynLedStatePeak = 258,
    VynLedStateSense = 259,
    VynLedStateMute = 260,
    VynLedStateDefaultControlStatus = 512,
    VynLedStateDefaultAlertStatus = 513,
    VynLedStateDefaultChannelStatus = 514,
};
Q_ENUM_NS(VynLedState)

enum VynLedShape : int {
    VynLedShapeCircle = 0,
    VynLedShapeTriangle = 1,
    VynLedShapeUpsideDownTriangle = 2,
};
Q_ENUM_NS(VynLedShape)

enum VynSelectorCellMode : int {
    VynSelectorCellModeMuteSolo = 0,
    VynSelectorCellModeLocate = 1,
};
Q_ENUM_NS(VynSelectorCellMode)

enum VynModalResponse : int {
    VynModalResponseNone = 0,
    VynModalResponseOK = 1,
    VynModalResponseCancel = 2,
    VynModalResponseSkip = 3,
};
Q_ENUM_NS(VynModalResponse)

enum VynUIComponentType : int {
    VynUIComponentTypeNone = 0,
    VynUIComponentTypeButton = 1,
    VynUIComponentTypeCabLabel = 2,
    VynUIComponentTypeSetupButton = 3,
    VynUIComponentTypeCombo = 4,
    VynUIComponentTypeDynThumbnail = 5,
    VynUIComponentTypeEQThumbnail = 6,
    VynUIComponentTypeHandyButton = 7,
    VynUIComponentTypeLabel = 8,
    VynUIComponentTypeLed = 9,
    VynUIComponentTypePatchButton = 10,
    VynUIComponentTypePatch = 11,
    VynUIComponentTypeSlideField = 12,
    VynUIComponentTypeSlider = 13,
    VynUIComponentTypeVUMeter = 14,
};
Q_ENUM_NS(VynUIComponentType)

//! The extent of a rectangle along one axis.
struct VYNUI_EXPORT VynSideBounds
{
    Q_GADGET
    QML_VALUE_TYPE(vynSideBounds)
    Q_PROPERTY(double min MEMBER min)
    Q_PROPERTY(double max MEMBER max)

public:
    double min = 0.0;
    double max = 0.0;

    bool operator==(const VynSideBounds& o) const { return min == o.min && max == o.max; }
    bool operator!=(const VynSideBounds& o) const { return !(*this == o); }
};

//! One step of an interactive resize. When isProportional or isCentered is set the two
//! factors are treated as one.
struct VYNUI_EXPORT VynResizeSettings
{
    Q_GADGET
    QML_VALUE_TYPE(vynResizeSettings)
    Q_PROPERTY(double widthFactor MEMBER widthFactor)
    Q_PROPERTY(double heightFactor MEMBER heightFactor)
    Q_PROPERTY(VynViewUtils::VynResizeAnchor anchor MEMBER anchor)
    Q_PROPERTY(bool widthIsSizable MEMBER widthIsSizable)
    Q_PROPERTY(bool heightIsSizable MEMBER heightIsSizable)
    Q_PROPERTY(bool isProportional MEMBER isProportional)
    Q_PROPERTY(bool isCentered MEMBER isCentered)

public:
    double widthFactor = 1.0;
    double heightFactor = 1.0;
    VynResizeAnchor anchor = VynResizeAnchorTopLeft;
    bool widthIsSizable = false;
    bool heightIsSizable = false;
    bool isProportional = false;
    bool isCentered = false;

    bool operator==(const VynResizeSettings& o) const;
    bool operator!=(const VynResizeSettings& o) const { return !(*this == o); }
};

//! What a combo shows: its text, the selected indexes and whether the selection is mixed.
struct VYNUI_EXPORT VynComboValue
{
    Q_GADGET
    QML_VALUE_TYPE(vynComboValue)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QSet<int> selectedIndexes MEMBER selectedIndexes)
    Q_PROPERTY(bool isMultiple MEMBER isMultiple)

public:
    QString text;
    QSet<int> selectedIndexes;
    bool isMultiple = false;

    bool operator==(const VynComboValue& o) const
    {
        return isMultiple == o.isMultiple && text == o.text && selectedIndexes == o.selectedIndexes;
    }
    bool operator!=(const VynComboValue& o) const { return !(*this == o); }
};

//! A label on a graph axis.
struct VYNUI_EXPORT VynGraphLabel
{
    Q_GADGET
    QML_VALUE_TYPE(vynGraphLabel)
    Q_PROPERTY(double position MEMBER position)
    Q_PROPERTY(QString text MEMBER text)

public:
    double position = 0.0;
    QString text;

    bool operator==(const VynGraphLabel& o) const
    {
        return position == o.position && text == o.text;
    }
    bool operator!=(const VynGraphLabel& o) const { return !(*this == o); }
};

//! What a parameter selector shows.
struct VYNUI_EXPORT VynParamSelectValue
{
    Q_GADGET
    QML_VALUE_TYPE(vynParamSelectValue)
    Q_PROPERTY(VynProxyParamPath paramPath MEMBER paramPath)
    Q_PROPERTY(int valueMode MEMBER valueMode)
    Q_PROPERTY(bool isMultiple MEMBER isMultiple)
    Q_PROPERTY(QString notSpecifiedText MEMBER notSpecifiedText)

public:
    VynProxyParamPath paramPath;
    int valueMode = 0;
    bool isMultiple = false;
    QString notSpecifiedText;

    bool operator==(const VynParamSelectValue& o) const
    {
        return paramPath == o.paramPath && valueMode == o.valueMode && isMultiple == o.isMultiple &&
               notSpecifiedText == o.notSpecifiedText;
    }
    bool operator!=(const VynParamSelectValue& o) const { return !(*this == o); }
};

//! What a spin box shows.
struct VYNUI_EXPORT VynSpinBoxValue
{
    Q_GADGET
    QML_VALUE_TYPE(vynSpinBoxValue)
    Q_PROPERTY(float value MEMBER value)
    Q_PROPERTY(float minValue MEMBER minValue)
    Q_PROPERTY(float maxValue MEMBER maxValue)
    Q_PROPERTY(bool isMultiple MEMBER isMultiple)

public:
    float value = 0.0f;
    float minValue = 0.0f;
    float maxValue = 0.0f;
    bool isMultiple = false;

    bool operator==(const VynSpinBoxValue& o) const
    {
        return value == o.value && minValue == o.minValue && maxValue == o.maxValue &&
               isMultiple == o.isMultiple;
    }
    bool operator!=(const VynSpinBoxValue& o) const { return !(*this == o); }
};

//! What a text field shows; a multiple selection shows a placeholder instead of text.
struct VYNUI_EXPORT VynTextFieldValue
{
    Q_GADGET
    QML_VALUE_TYPE(vynTextFieldValue)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString placeholder MEMBER placeholder)
    Q_PROPERTY(bool isMultiple MEMBER isMultiple)

public:
    QString text;
    QString placeholder;
    bool isMultiple = false;

    bool operator==(const VynTextFieldValue& o) const
    {
        return isMultiple == o.isMultiple && text == o.text && placeholder == o.placeholder;
    }
    bool operator!=(const VynTextFieldValue& o) const { return !(*this == o); }
};

// Orientation and sides.

//! Horizontal for Vertical, Vertical for every other value.
VYNUI_EXPORT Qt::Orientation vynOrientationOther(Qt::Orientation orientation);
//! Left<->Right, Top<->Bottom; every other value unchanged.
VYNUI_EXPORT VynSide vynSideOpposite(VynSide side);
//! Orientation of the side's line: Vertical for Left, Right and HorizontalCenter, else Horizontal.
VYNUI_EXPORT Qt::Orientation vynSideOrientation(VynSide side);
VYNUI_EXPORT VynSideBounds vynSideBoundsMake(double min, double max);
//! {x, x + w} for Horizontal, {y, y + h} otherwise.
VYNUI_EXPORT VynSideBounds vynSideBoundsForRect(const QRectF& rect,
                                                const Qt::Orientation& orientation);
//! The corners whose two edges are both in \a sides (centre bits ignored).
VYNUI_EXPORT VynCorner vynCornersForSides(VynSide sides);
//! Position code: 0 for Left and Top, 1 for the centres, 2 for every other value.
VYNUI_EXPORT int vynAlignmentForSide(const VynSide& side);
//! The anchor's horizontal code for Vertical (a vertical line is placed horizontally), its
//! vertical code otherwise.
VYNUI_EXPORT int vynAlignmentForAnchorAlongOrientation(const VynResizeAnchor& anchor,
                                                       Qt::Orientation orientation);

// Measures and placement.

//! h for Vertical, w otherwise.
VYNUI_EXPORT double qRectFSizeAlongOrientation(const QRectF& rect,
                                               const Qt::Orientation& orientation);
//! Coordinate of the side's line; x + w/2 for HorizontalCenter and every unknown value.
VYNUI_EXPORT double qRectFOrthogonalDimensionForSide(const QRectF& rect, const VynSide& side);
//! Moves \a rect, keeping its size, so that the side's line lies at \a value.
VYNUI_EXPORT QRectF& qRectFSetOrthogonalDimension(QRectF& rect, const VynSide& side,
                                                  const double& value);
//! Sets h (Vertical) or w and shifts y or x by \a shift.
VYNUI_EXPORT QRectF& qRectFSetSizeAlongOrientation(QRectF& rect, Qt::Orientation orientation,
                                                   double size, double shift);
//! The rectangle that draws a line segment of \a thickness at \a position.
VYNUI_EXPORT QRectF qRectFForLine(double start, double end, double position,
                                  Qt::Orientation orientation, double thickness);
//! The point at fraction \a t along a side; the centre for every other value.
VYNUI_EXPORT QPointF vynPointAlongSideOfRect(const QRectF& rect, VynSide side, double t);

// Tests between rectangles.

//! True when the interiors overlap; touching edges do not intersect.
VYNUI_EXPORT bool qRectFStrictlyIntersectsRect(const QRectF& a, const QRectF& b);
//! True when \a inner lies within \a outer, shared edges included.
VYNUI_EXPORT bool qRectFLargeContainsRect(const QRectF& outer, const QRectF& inner);
VYNUI_EXPORT bool qRectFContainsQPoint(const QRectF& rect, const QPointF& point);

// Resizing.

//! Scales w by \a fx and h by \a fy keeping the anchor point fixed.
VYNUI_EXPORT QRectF qRectFResizedWithAnchor(const QRectF& rect, const VynResizeAnchor& anchor,
                                            double fx, double fy);
/*!
    The largest (width, height) factors for which qRectFResizedWithAnchor() keeps \a rect
    inside \a bounds. Each side of the anchor point limits its factor by the room up to the
    bounds' edge divided by the part of the rectangle on that side. A side with no room (the
    anchor point on or past that edge) sets no limit; without any limit a factor is the
    largest finite double.
*/
VYNUI_EXPORT QSizeF qRectFGetMaxResizeFactors(const QRectF& rect, const VynResizeAnchor& anchor,
                                              const QRectF& bounds);
//! (minimum.width / w, minimum.height / h); zero sizes are not guarded.
VYNUI_EXPORT QSizeF qRectFGetMinResizeFactors(const QRectF& rect, const QSizeF& minimum);
/*!
    Snaps \a rect down onto a grid of pitch \a step: g(v) = floor(v / step) * step with the
    quotient floored in single precision. The origin is snapped first; the bottom and right
    edges are snapped as g(h + y') and g(w + x'), adding the unsnapped size to the snapped
    origin. The anchor and the last flag are accepted and ignored.
    Every input gives a defined result: a step that is not a finite number greater than 0
    (0, negative, NaN, infinite) leaves the rectangle as it is, and so does each value
    (coordinate or edge) that is not finite or whose quotient by the step lies beyond the
    single-precision range.
*/
VYNUI_EXPORT QRectF qRectFAlignedOnGrid(const QRectF& rect, double step,
                                        const VynResizeAnchor& anchor, bool alignWidth,
                                        bool alignHeight, bool unused = false);
//! Rounds x, y, w and h each (in single precision, halves away from zero), in place.
VYNUI_EXPORT QRectF roundedQRectF(QRectF& rect);
//! Clips \a rect to \a bounds without normalising: a rectangle outside the bounds comes out
//! with a negative width or height.
VYNUI_EXPORT QRectF fittedQRectF(QRectF rect, QRectF bounds);

// Record makers.

//! isMultiple is always false; the flag is accepted and not used.
VYNUI_EXPORT VynSpinBoxValue VynSpinBoxValueMake(float value, float minValue, float maxValue,
                                                 bool unused = false);
//! A multiple value shows the localised "MULTIPLE" as placeholder and a null text.
VYNUI_EXPORT VynTextFieldValue VynTextFieldValueMake(const QString& text, bool isMultiple);
//! More than one index makes a multiple value with the localised "MULTIPLE" text.
VYNUI_EXPORT VynComboValue VynComboValueMake(QSet<int> indexes);

//! Registers the conversions between QSet<int> and QVariantList that QML needs to read and
//! write VynComboValue::selectedIndexes. Called by VynUIPlugin::initializeTypes().
VYNUI_EXPORT void registerConverters();

} // namespace VynViewUtils

// A resize step hands its settings on by non-const reference, so that whoever applies them
// can write the corrected factors back (grid utility signal, magnet cell invokable). Qt 6.4's
// meta-object tables require a complete meta-type for every argument and have none for a
// non-const reference; describe the argument by its value type, as later Qt versions do.
namespace QtPrivate {
template <> struct MetatypeDecay<VynViewUtils::VynResizeSettings&>
{
    using type = VynViewUtils::VynResizeSettings;
};
} // namespace QtPrivate

/*!
    Makes parameter paths readable from QML as the value type vynProxyParamPath
    (text, empty, lastName, lastNameText).
*/
struct VynProxyParamPathForeign
{
    Q_GADGET
    QML_FOREIGN(VynProxyParamPath)
    QML_VALUE_TYPE(vynProxyParamPath)
};
