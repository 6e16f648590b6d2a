#pragma once

#include "vyncolorappearance.h"
#include "vyncolorutils.h"
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

#include <qapplicationmessage.h>
#include <qcorewindowcontroller.h>

class QJSEngine;
class QQmlEngine;

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
    sizes. Members documented as unrounded return base x ratio as is.

    Default arguments. A missing ratio is 1.0, a missing control size is
    VynControlSizeRegular and a missing style VynStyleDark; QML sees the shorter
    forms as overloads, so fontSize() is 13 and fontSize(VynControlSizeMini) 9.
    A style can be left out only where every argument after it can be too.

    Sizes outside a table. A control-size table answers for a size it does not
    define with its nearest defined row: a size below Mini reads the Mini row,
    and a size above the table's last row (ExtraLarge for the four-entry
    tables, anything past ExtraLarge) reads the last row, Large for most
    tables. The metrics that branch on the size compare the size's value with
    Regular, so unknown values fall on the side they lie. An index past a
    fixed list is clamped the same way unless the member documents another
    answer. No member ever reads outside its table.
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

    Q_INVOKABLE static double disabledAlpha(); //!< 0.75
    Q_INVOKABLE static double offlineAlpha();  //!< 0.62

    /*!
        Asks the platform for a dark (VynStylePrefDark) or light (VynStylePrefLight)
        native title bar for \a p_window; VynStylePrefSystem leaves the title bar
        alone, and a null window is ignored. The window's native handle is
        created when it does not exist yet.
    */
    Q_INVOKABLE static void
    setNativeTitleBarColorForStyle(QWindow* p_window,
                                   VynColorUtils::VynStylePreference p_preference);

    // Host services. The look-ups walk from a QML object to its window and the window's
    // controller (null when there is none). The presenters forward to the QApplicationMessage
    // presenters of the same names and return the message (null when nothing is shown);
    // windowControllers takes one controller or a list of them, actionTitles one text or a
    // list, and the completion is called with (response, isChecked).
    Q_INVOKABLE static QCoreWindowController* windowControllerForQmlObject(QObject* p_object);
    Q_INVOKABLE static QQuickWindow* windowForQmlObject(QObject* p_object);
    Q_INVOKABLE static QApplicationMessage* presentBasicMessage(
        const QString& p_title, const QString& p_message, int p_tag, int p_level, int p_type,
        const QString& p_actionTitle, const QVariant& p_windowControllers, QObject* p_parent,
        const QJSValue& p_completion = QJSValue(), const QVariant& p_context = QVariant());
    Q_INVOKABLE static QApplicationMessage* presentConfirmMessage(
        const QString& p_title, const QString& p_message, int p_tag, int p_level, int p_type,
        const QStringList& p_buttonTitles, const QVariant& p_windowControllers, QObject* p_parent,
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

    // Control-size tables: round(row[size] x ratio), rows given as
    // Mini | Small | Regular | Large (| ExtraLarge); corner radii unrounded.
    //! 9 | 11 | 13 | 15 | 19
    Q_INVOKABLE static int
    fontSize(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
             double p_ratio = 1.0);
    //! 9 | 11 | 13 | 15
    Q_INVOKABLE static int fontSizeFlatButton(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static int fontSizePopupButton(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 9 | 10 | 12 | 14
    Q_INVOKABLE static int fontSizeInlineButton(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 8 | 10 | 12 | 14
    Q_INVOKABLE static int fontSizePatchButton(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 4 | 8 | 12 | 16
    Q_INVOKABLE static double
    marginParent(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
                 double p_ratio = 1.0);
    //! 2 | 4 | 8 | 16
    Q_INVOKABLE static double
    marginSpace(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
                double p_ratio = 1.0);
    //! 175 | 200 | 240 | 320
    Q_INVOKABLE static double popoverGenericWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 1 | 2 | 3 | 4
    Q_INVOKABLE static double zoneIconAllLineWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double bezelButtonTitleInsetsV(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double flatButtonTitleInsetsV(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double flatButtonIconInsetsV(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double viewListButtonTitleInsetsV(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double popupButtonInsetsV(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 0 | 1 | 2 | 4
    Q_INVOKABLE static double
    zoneIconInsets(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
                   double p_ratio = 1.0);
    Q_INVOKABLE static double toolbarButtonTitleIconSpacing(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 9 | 11 | 13 | 15 | 20
    Q_INVOKABLE static double
    ledHeight(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
              double p_ratio = 1.0);
    //! 15 | 17 | 21 | 27
    Q_INVOKABLE static double bezelButtonHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double textFieldHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 19 | 22 | 27 | 32
    Q_INVOKABLE static double bezelButtonMinWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 2 | 3 | 5 (unrounded)
    Q_INVOKABLE static double bezelButtonCornerRadius(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 4 | 6 | 7 | 10
    Q_INVOKABLE static double bezelButtonTitleInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 2 | 3 | 6
    Q_INVOKABLE static double bezelButtonIconInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 0 | 1 | 1 | 2
    Q_INVOKABLE static double bezelButtonIconInsetsV(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 4 | 6 | 8
    Q_INVOKABLE static double bezelButtonTitleIconSpacing(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 16 | 19 | 24 | 29 | 36
    Q_INVOKABLE static double flatButtonHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 18 | 20 | 25 | 30
    Q_INVOKABLE static double flatButtonMinWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 3 | 3.5 | 4 | 5 | 6 (unrounded)
    Q_INVOKABLE static double flatButtonCornerRadius(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 3 | 4 | 6 | 8
    Q_INVOKABLE static double flatButtonTitleInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double vuMeterTickPrimaryWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 3 | 4 | 5 | 8
    Q_INVOKABLE static double flatButtonIconInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 4 | 6 | 6
    Q_INVOKABLE static double flatButtonTitleIconSpacing(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 16 | 19 | 24 | 29
    Q_INVOKABLE static double viewListButtonHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double popupButtonHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 3 | 3.5 | 4 | 5 (unrounded)
    Q_INVOKABLE static double viewListButtonCornerRadius(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 3 | 16 | 7 | 9
    Q_INVOKABLE static double viewListButtonTitleInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 1 | 2 | 2 | 3
    Q_INVOKABLE static double viewListButtonImageInsetsV(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double inlineButtonTitleImageSpacing(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double vuMeterTickLeading(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double vuMeterTickLabelOffset(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 12 | 4 | 6
    Q_INVOKABLE static double viewListButtonImageInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 4 | 4 | 6
    Q_INVOKABLE static double viewListButtonCheckInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 11 | 13 | 15 | 17
    Q_INVOKABLE static double
    checkBoxHeight(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
                   double p_ratio = 1.0);
    //! 2 | 3 | 4 | 5 (unrounded)
    Q_INVOKABLE static double popupButtonCornerRadius(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 3 | 4 | 5 | 7
    Q_INVOKABLE static double popupButtonInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 10 | 12 | 15 | 20
    Q_INVOKABLE static double popupButtonArrowHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 11 | 15 | 18 | 21
    Q_INVOKABLE static double inlineButtonHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 3 | 4 | 5 | 6
    Q_INVOKABLE static double textFieldTextInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 1 | 1 | 2 | 3
    Q_INVOKABLE static double textFieldPanningIconInsetsL(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double textFieldUnitButtonInsetsTBL(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 3 | 4 | 5
    Q_INVOKABLE static double textFieldPanningIconTextSpacing(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static double sliderTrackHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 1 | 1 | 1 | 2
    Q_INVOKABLE static double textFieldUnitButtonTextSpacing(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 2 | 3 | 4
    Q_INVOKABLE static double textFieldUnitButtonTitleInsetsH(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 3 | 5 | 4 | 6
    Q_INVOKABLE static double textFieldLabelTextSpacing(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 1 | 1 | 1 | 1 (unrounded)
    Q_INVOKABLE static double sliderTrackCornerRadius(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 7 | 8 | 10 | 12
    Q_INVOKABLE static double sliderThumbWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 15 | 17 | 20 | 23
    Q_INVOKABLE static double sliderThumbHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 0 | 0 | 0 | 0
    Q_INVOKABLE static double
    sliderInsetsH(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
                  double p_ratio = 1.0);
    //! 9 | 10 | 12 | 14
    Q_INVOKABLE static double
    vuMeterWidth(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
                 double p_ratio = 1.0);
    //! 7 | 7 | 7 | 7
    Q_INVOKABLE static double vuMeterCursorWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 12 | 12 | 12 | 12
    Q_INVOKABLE static double vuMeterCursorHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 0.5 | 0.5 | 1 | 2
    Q_INVOKABLE static double vuMeterTickSecondaryOffset(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 2.5 | 3.5 | 5
    Q_INVOKABLE static double vuMeterTickSecondaryWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 7 | 8 | 9 | 10
    Q_INVOKABLE static int vuMeterTickPrimaryFontSize(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    Q_INVOKABLE static int vuMeterTickSecondaryFontSize(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);

    // Metrics that branch on the control size: (below Regular | Regular | above Regular).
    //! 10 | 20 | 20
    Q_INVOKABLE static double
    marginWindow(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
                 double p_ratio = 1.0);
    //! 5 | 10 | 20
    Q_INVOKABLE static double
    marginPopover(VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
                  double p_ratio = 1.0);
    //! 16 | 22 | 26
    Q_INVOKABLE static double colorIconHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 22 | 27 | 54
    Q_INVOKABLE static double eqTypeIconHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 20 | 20 | 40
    Q_INVOKABLE static double tableViewRowHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 5 | 5 | 8
    Q_INVOKABLE static double buttonDropDownArrowWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 3 | 3 | 4
    Q_INVOKABLE static double buttonDropDownArrowHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 31 | 39 | 39
    Q_INVOKABLE static double tabButtonHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 37 | 50 | 50
    Q_INVOKABLE static double switchButtonWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 18 | 27 | 27
    Q_INVOKABLE static double switchButtonHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 14 | 16 | 16
    Q_INVOKABLE static double circularProgressHeight(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 6 | 8 | 8
    Q_INVOKABLE static double patchAnchorWidth(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 2 | 2 | 2
    Q_INVOKABLE static double circularProgressThickness(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);
    //! 15 | 15 | 15
    Q_INVOKABLE static int fontSizeTabButton(
        VynViewUtils::VynControlSize p_controlSize = VynViewUtils::VynControlSizeRegular,
        double p_ratio = 1.0);

    // Shadows: round(base x ratio).
    Q_INVOKABLE static double zoneIconShadowBlur(double p_ratio = 1.0);    //!< base 3
    Q_INVOKABLE static double zoneIconShadowOffsetW(double p_ratio = 1.0); //!< base 0
    Q_INVOKABLE static double zoneIconShadowOffsetH(double p_ratio = 1.0); //!< base 0
    Q_INVOKABLE static double popoverShadowBlur(double p_ratio = 1.0);     //!< base 12
    Q_INVOKABLE static double popoverShadowOffsetW(double p_ratio = 1.0);  //!< base 0
    Q_INVOKABLE static double popoverShadowOffsetH(double p_ratio = 1.0);  //!< base 1
    Q_INVOKABLE static double popupShadowBlur(double p_ratio = 1.0);       //!< base 20
    Q_INVOKABLE static double popupShadowOffsetW(double p_ratio = 1.0);    //!< base 0
    Q_INVOKABLE static double popupShadowOffsetH(double p_ratio = 1.0);    //!< base 1

    // Title and text fonts: round(base x ratio).
    Q_INVOKABLE static int fontSizeTitlePrimary(double p_ratio = 1.0);          //!< base 27
    Q_INVOKABLE static int fontSizeTitleSecondary(double p_ratio = 1.0);        //!< base 21
    Q_INVOKABLE static int fontSizeTitleTertiary(double p_ratio = 1.0);         //!< base 19
    Q_INVOKABLE static int fontSizeTitleQuaternary(double p_ratio = 1.0);       //!< base 15
    Q_INVOKABLE static int fontSizeEditorTitle(double p_ratio = 1.0);           //!< base 24
    Q_INVOKABLE static int fontSizeEditorDetail(double p_ratio = 1.0);          //!< base 13
    Q_INVOKABLE static int fontSizeCellTitle(double p_ratio = 1.0);             //!< base 12
    Q_INVOKABLE static int fontSizeCellDetail(double p_ratio = 1.0);            //!< base 10
    Q_INVOKABLE static int fontSizeRecordButton(double p_ratio = 1.0);          //!< base 24
    Q_INVOKABLE static int fontSizePopoverTitle(double p_ratio = 1.0);          //!< base 13
    Q_INVOKABLE static int fontSizePopoverButton(double p_ratio = 1.0);         //!< base 12
    Q_INVOKABLE static int fontSizePopoverButtonSubtitle(double p_ratio = 1.0); //!< base 10
    Q_INVOKABLE static int fontSizePopoverLabel(double p_ratio = 1.0);          //!< base 11
    Q_INVOKABLE static int fontSizeLogTimeSliderLabel(double p_ratio = 1.0);    //!< base 10
    Q_INVOKABLE static int fontSizeLogTimeLabel(double p_ratio = 1.0);          //!< base 9
    Q_INVOKABLE static int fontSizeLogDayLabel(double p_ratio = 1.0);           //!< base 9
    Q_INVOKABLE static int fontSizeLogYLabel(double p_ratio = 1.0);             //!< base 9

    // View lists and borders: round(base x ratio); corner and glow radii unrounded.
    Q_INVOKABLE static double viewListDefaultSpacing(double p_ratio = 1.0);        //!< base 2
    Q_INVOKABLE static double viewListAdditionalSpacing(double p_ratio = 1.0);     //!< base 4
    Q_INVOKABLE static double viewListHeaderMarginTop(double p_ratio = 1.0);       //!< base 2
    Q_INVOKABLE static double viewListHeaderMarginBottom(double p_ratio = 1.0);    //!< base 6
    Q_INVOKABLE static double viewListHeaderLineViewSpacing(double p_ratio = 1.0); //!< base 5
    Q_INVOKABLE static double borderViewCornerRadius(double p_ratio = 1.0); //!< base 7 (unrounded)
    Q_INVOKABLE static double borderViewBorderSize(double p_ratio = 1.0);   //!< base 1
    Q_INVOKABLE static double circularViewThickness(double p_ratio = 1.0);  //!< base 8
    Q_INVOKABLE static double lineViewWidth(double p_ratio = 1.0);          //!< base 1
    Q_INVOKABLE static double scrollBarWidth(double p_ratio = 1.0);         //!< base 6

    // Popovers: round(base x ratio); corner and glow radii unrounded.
    Q_INVOKABLE static double popoverArrowSize(double p_ratio = 1.0);    //!< base 10
    Q_INVOKABLE static double popoverCornerRadius(double p_ratio = 1.0); //!< base 7 (unrounded)
    Q_INVOKABLE static double popoverBorderWidth(double p_ratio = 1.0);  //!< base 1

    // Icons and LEDs: round(base x ratio); corner and glow radii unrounded.
    Q_INVOKABLE static double colorIconBorder(double p_ratio = 1.0);          //!< base 1
    Q_INVOKABLE static double colorIconMixedLineWidth(double p_ratio = 1.0);  //!< base 2
    Q_INVOKABLE static double colorIconMixedLineOffset(double p_ratio = 1.0); //!< base 1
    Q_INVOKABLE static double ledBorder(double p_ratio = 1.0);                //!< base 0.5
    Q_INVOKABLE static double ledMixedLineWidth(double p_ratio = 1.0);        //!< base 2
    Q_INVOKABLE static double ledMixedLineDistance(double p_ratio = 1.0);     //!< base 1
    Q_INVOKABLE static double ledGlowRadius(double p_ratio = 1.0);       //!< base 6 (unrounded)
    Q_INVOKABLE static double ledGlowOffsetWidth(double p_ratio = 1.0);  //!< base 0
    Q_INVOKABLE static double ledGlowOffsetHeight(double p_ratio = 1.0); //!< base 0
    Q_INVOKABLE static double badgeNewHeight(double p_ratio = 1.0);      //!< base 9

    // Buttons: round(base x ratio).
    Q_INVOKABLE static double tableViewBorder(double p_ratio = 1.0);         //!< base 0.5
    Q_INVOKABLE static double bezelButtonBorder(double p_ratio = 1.0);       //!< base 0.5
    Q_INVOKABLE static double flatButtonBorder(double p_ratio = 1.0);        //!< base 1
    Q_INVOKABLE static double viewListButtonBorder(double p_ratio = 1.0);    //!< base 1
    Q_INVOKABLE static double setupButtonHeight(double p_ratio = 1.0);       //!< base 29
    Q_INVOKABLE static double setupButtonInsetL(double p_ratio = 1.0);       //!< base 6
    Q_INVOKABLE static double setupButtonInsetR(double p_ratio = 1.0);       //!< base 7
    Q_INVOKABLE static double setupButtonImageSpacing(double p_ratio = 1.0); //!< base 3
    Q_INVOKABLE static double liveModeButtonHeight(double p_ratio = 1.0);    //!< base 31
    Q_INVOKABLE static double recordButtonHeight(double p_ratio = 1.0);      //!< base 37
    Q_INVOKABLE static double circularProgressBorder(double p_ratio = 1.0);  //!< base 0.5

    // Text fields: round(base x ratio).
    Q_INVOKABLE static double textFieldPanningIconHeightMin(double p_ratio = 1.0); //!< base 13
    Q_INVOKABLE static double textFieldBorder(double p_ratio = 1.0);               //!< base 0.5

    // Sliders: round(base x ratio).
    Q_INVOKABLE static double sliderTouchAreaOffset(double p_ratio = 1.0);      //!< base 14
    Q_INVOKABLE static double sliderTrackingThreshold(double p_ratio = 1.0);    //!< base 3
    Q_INVOKABLE static double sliderMaxDistancePerSecond(double p_ratio = 1.0); //!< base 200
    Q_INVOKABLE static double sliderMaxAnglePerSecond(double p_ratio = 1.0);    //!< base 150
    Q_INVOKABLE static double sliderThumbBorder(double p_ratio = 1.0);          //!< base 0.5
    Q_INVOKABLE static double sliderTickSize(double p_ratio = 1.0);             //!< base 1

    // VU meter: round(base x ratio); corner and glow radii unrounded.
    Q_INVOKABLE static double vuMeterBorder(double p_ratio = 1.0);              //!< base 0.5
    Q_INVOKABLE static double vuMeterCornerRadiusMin(double p_ratio = 1.0);     //!< base 2
    Q_INVOKABLE static double vuMeterCornerRadiusMax(double p_ratio = 1.0);     //!< base 8
    Q_INVOKABLE static double vuMeterMarginHMin(double p_ratio = 1.0);          //!< base 1.5
    Q_INVOKABLE static double vuMeterMarginHMax(double p_ratio = 1.0);          //!< base 5
    Q_INVOKABLE static double vuMeterMarginVMin(double p_ratio = 1.0);          //!< base 3
    Q_INVOKABLE static double vuMeterMarginVMax(double p_ratio = 1.0);          //!< base 10
    Q_INVOKABLE static double vuMeterCellHeightMin(double p_ratio = 1.0);       //!< base 2
    Q_INVOKABLE static double vuMeterCellHeightMax(double p_ratio = 1.0);       //!< base 6
    Q_INVOKABLE static double vuMeterTickPrimaryHeight(double p_ratio = 1.0);   //!< base 1
    Q_INVOKABLE static double vuMeterTickSecondaryHeight(double p_ratio = 1.0); //!< base 0.5
    Q_INVOKABLE static double vuMeterGlowRadius(double p_ratio = 1.0); //!< base 6 (unrounded)

    // Graph thumbnails: round(base x ratio).
    Q_INVOKABLE static double eqThumbnailStandardWidth(double p_ratio = 1.0);    //!< base 92
    Q_INVOKABLE static double eqThumbnailStandardHeight(double p_ratio = 1.0);   //!< base 55
    Q_INVOKABLE static double dynThumbnailStandardWidth(double p_ratio = 1.0);   //!< base 64
    Q_INVOKABLE static double dynThumbnailStandardHeight(double p_ratio = 1.0);  //!< base 55
    Q_INVOKABLE static double typeThumbnailStandardWidth(double p_ratio = 1.0);  //!< base 64
    Q_INVOKABLE static double typeThumbnailStandardHeight(double p_ratio = 1.0); //!< base 34
    Q_INVOKABLE static double graphThumbnailBorder(double p_ratio = 1.0);        //!< base 0.5
    Q_INVOKABLE static double graphThumbnailCurveWidth(double p_ratio = 1.0);    //!< base 1.5

    // Graph views: round(base x ratio).
    Q_INVOKABLE static double arrayEQsCurveWidth(double p_ratio = 1.0);           //!< base 1
    Q_INVOKABLE static double graphViewMainAxisWidth(double p_ratio = 1.0);       //!< base 1
    Q_INVOKABLE static double graphViewSecondaryAxisWidth(double p_ratio = 1.0);  //!< base 1
    Q_INVOKABLE static double graphThumbIdleWidth(double p_ratio = 1.0);          //!< base 16
    Q_INVOKABLE static double graphThumbPressedWidth(double p_ratio = 1.0);       //!< base 32
    Q_INVOKABLE static double graphThumbIdleFontSize(double p_ratio = 1.0);       //!< base 10
    Q_INVOKABLE static double graphThumbPressedFontSize(double p_ratio = 1.0);    //!< base 17
    Q_INVOKABLE static double graphThumbIdleBorderWidth(double p_ratio = 1.0);    //!< base 1
    Q_INVOKABLE static double graphThumbPressedBorderWidth(double p_ratio = 1.0); //!< base 3
    Q_INVOKABLE static double graphThumbPressedLineWidth(double p_ratio = 1.0);   //!< base 1
    Q_INVOKABLE static double graphLabelFontSize(double p_ratio = 1.0);           //!< base 10
    Q_INVOKABLE static double graphLabelMarginMain(double p_ratio = 1.0);         //!< base 5
    Q_INVOKABLE static double graphLabelMarginSecondary(double p_ratio = 1.0);    //!< base 5
    Q_INVOKABLE static double graphCurveWidth(double p_ratio = 1.0);              //!< base 1
    Q_INVOKABLE static double graphSelectedCurveWidth(double p_ratio = 1.0);      //!< base 3

    // Patch view: round(base x ratio).
    Q_INVOKABLE static double patchViewLineWidth(double p_ratio = 1.0);               //!< base 1.5
    Q_INVOKABLE static double patchViewHighlightedLineWidth(double p_ratio = 1.0);    //!< base 1.5
    Q_INVOKABLE static double patchViewNotHighlightedLineWidth(double p_ratio = 1.0); //!< base 1.5

    // Log graph: round(base x ratio); corner and glow radii unrounded.
    Q_INVOKABLE static double logGraphBreakLineWidth(double p_ratio = 1.0);   //!< base 1
    Q_INVOKABLE static double logGraphAxisWidth(double p_ratio = 1.0);        //!< base 2
    Q_INVOKABLE static double logGraphAxisShadowOffset(double p_ratio = 1.0); //!< base -1
    Q_INVOKABLE static double logGraphMarkWidth(double p_ratio = 1.0);        //!< base 2
    Q_INVOKABLE static double logGraphCurrentMarkWidth(double p_ratio = 1.0); //!< base 6
    Q_INVOKABLE static double logGraphBubbleLineWidth(double p_ratio = 1.0);  //!< base 1
    Q_INVOKABLE static double logGraphBubbleWidth(double p_ratio = 1.0);      //!< base 176
    Q_INVOKABLE static double logGraphBubbleHeight(double p_ratio = 1.0);     //!< base 56
    Q_INVOKABLE static double logGraphBubbleRadius(double p_ratio = 1.0);   //!< base 10 (unrounded)
    Q_INVOKABLE static double logGraphArrowWidth(double p_ratio = 1.0);     //!< base 12
    Q_INVOKABLE static double logGraphArrowHeight(double p_ratio = 1.0);    //!< base 24
    Q_INVOKABLE static double logGraphMarginTop(double p_ratio = 1.0);      //!< base 10
    Q_INVOKABLE static double logGraphMarginBottom(double p_ratio = 1.0);   //!< base 5
    Q_INVOKABLE static double logGraphMarginLeft(double p_ratio = 1.0);     //!< base 10
    Q_INVOKABLE static double logGraphMarginRight(double p_ratio = 1.0);    //!< base 20
    Q_INVOKABLE static double logLabelsMargin(double p_ratio = 1.0);        //!< base 10
    Q_INVOKABLE static double logLabelsOffsetRight(double p_ratio = 1.0);   //!< base 10
    Q_INVOKABLE static double logLabelsOffsetLeft(double p_ratio = 1.0);    //!< base 20
    Q_INVOKABLE static double logTimeCursorMinWidth(double p_ratio = 1.0);  //!< base 27
    Q_INVOKABLE static double logGraphYLabelWidth(double p_ratio = 1.0);    //!< base 30
    Q_INVOKABLE static double logGraphYLabelMargin(double p_ratio = 1.0);   //!< base 4
    Q_INVOKABLE static double logTipPadding(double p_ratio = 1.0);          //!< base 10
    Q_INVOKABLE static double logTipMarginTop(double p_ratio = 1.0);        //!< base 5
    Q_INVOKABLE static double logTipMarginLeft(double p_ratio = 1.0);       //!< base 10
    Q_INVOKABLE static double logTipSepHeight(double p_ratio = 1.0);        //!< base 1
    Q_INVOKABLE static double logTipSepMargin(double p_ratio = 1.0);        //!< base 2
    Q_INVOKABLE static double logTipValueFrameHeight(double p_ratio = 1.0); //!< base 18
    Q_INVOKABLE static double logTipValueFrameInset(double p_ratio = 1.0);  //!< base 6
    Q_INVOKABLE static double logGraphBreakWidth(double p_ratio = 1.0);     //!< base 8
    Q_INVOKABLE static double logGraphCellDefaultHeight(double p_ratio = 1.0); //!< base 161
    Q_INVOKABLE static double logGraphMinMaxCurveWidth(double p_ratio = 1.0);  //!< base 1.5
    Q_INVOKABLE static double logGraphAvgCurveWidth(double p_ratio = 1.0);     //!< base 0.5

    // Image heights: round(base x ratio).
    Q_INVOKABLE static double imageToolBarButtonHeight(double p_ratio = 1.0);       //!< base 24
    Q_INVOKABLE static double imageFooterButtonHeightDesktop(double p_ratio = 1.0); //!< base 20
    Q_INVOKABLE static double imageInlineHeightDesktop(double p_ratio = 1.0);       //!< base 14
    Q_INVOKABLE static double
    imageAdditionalToolBarButtonHeightMobile(double p_ratio = 1.0); //!< base 22
    Q_INVOKABLE static double
    imageAdditionalNavigationButtonHeightMobile(double p_ratio = 1.0);                 //!< base 24
    Q_INVOKABLE static double imageAdditionalButtonHeightMobile(double p_ratio = 1.0); //!< base 37
    Q_INVOKABLE static double imageInButtonHeightDesktop(double p_ratio = 1.0);        //!< base 20
    Q_INVOKABLE static double imageInButtonHeightMobile(double p_ratio = 1.0);         //!< base 24
    Q_INVOKABLE static double imageInInlineButtonHeightDesktop(double p_ratio = 1.0);  //!< base 18
    Q_INVOKABLE static double imageInInlineButtonHeightMobile(double p_ratio = 1.0);   //!< base 28
    Q_INVOKABLE static double imageRoundButtonHeightDesktop(double p_ratio = 1.0);     //!< base 15
    Q_INVOKABLE static double imageRoundButtonHeightMobile(double p_ratio = 1.0);      //!< base 20
    Q_INVOKABLE static double imageProductHeight(double p_ratio = 1.0);                //!< base 16
    Q_INVOKABLE static double imageInMenuHeightDesktop(double p_ratio = 1.0);          //!< base 20
    Q_INVOKABLE static double imageInMenuHeightMobile(double p_ratio = 1.0);           //!< base 24

    // Fixed ratios and factors.
    Q_INVOKABLE static double colorIconCornerRadiusRatio();              //!< 0.2
    Q_INVOKABLE static double zoneIconKernRatio();                       //!< -0.2
    Q_INVOKABLE static double ledFontSizeRatio();                        //!< 0.7
    Q_INVOKABLE static double inlineButtonTitleInsetsHRatio();           //!< 0.4
    Q_INVOKABLE static double inlineButtonImageInsetsHRatio();           //!< 0.33
    Q_INVOKABLE static double textFieldPanningIconHeightRatio();         //!< 0.9
    Q_INVOKABLE static double sliderYAttenuationFactor();                //!< 150
    Q_INVOKABLE static double sliderWheelMinimizeFactor();               //!< 5
    Q_INVOKABLE static double sliderWheelMaximizeFactor();               //!< 5
    Q_INVOKABLE static double sliderThumbCornerRadiusRatio();            //!< 0.2
    Q_INVOKABLE static double circularProgressHeightInsideButtonRatio(); //!< 1.2
    Q_INVOKABLE static double vuMeterCornerRadiusRatio();                //!< 0.3
    Q_INVOKABLE static double vuMeterMarginHRatio();                     //!< 0.1
    Q_INVOKABLE static double vuMeterMarginVRatio();                     //!< 0.4
    Q_INVOKABLE static double vuMeterCellHeightRatio();                  //!< 0.15
    Q_INVOKABLE static double vuMeterCellSpaceRatio();                   //!< 0.2
    Q_INVOKABLE static double eqThumbnailSizeRatio();                    //!< 1.67
    Q_INVOKABLE static double dynThumbnailSizeRatio();                   //!< 1.125
    Q_INVOKABLE static double typeThumbnailSizeRatio();                  //!< 1.88

    // Window and popover sizes, unscaled.
    Q_INVOKABLE static int windowWidthTeskMain();             //!< 800
    Q_INVOKABLE static int windowHeightTeskMain();            //!< 600
    Q_INVOKABLE static int windowWidthOrlaMain();             //!< 1240
    Q_INVOKABLE static int windowHeightOrlaMain();            //!< 768
    Q_INVOKABLE static int windowWidthOrlaWelcome();          //!< 481
    Q_INVOKABLE static int windowHeightOrlaWelcome();         //!< 333
    Q_INVOKABLE static int windowWidthOrlaPresenter();        //!< 940
    Q_INVOKABLE static int windowHeightOrlaPresenter();       //!< 700
    Q_INVOKABLE static int windowWidthOrlaPreferences();      //!< 640
    Q_INVOKABLE static int windowHeightOrlaPreferences();     //!< 640
    Q_INVOKABLE static int windowWidthOrlaEQ();               //!< 740
    Q_INVOKABLE static int windowHeightOrlaEQ();              //!< 620
    Q_INVOKABLE static int windowWidthOrlaLogRecords();       //!< 800
    Q_INVOKABLE static int windowHeightOrlaLogRecords();      //!< 600
    Q_INVOKABLE static int windowWidthOrlaImportExport();     //!< 860
    Q_INVOKABLE static int minWindowWidthOrlaMain();          //!< 400
    Q_INVOKABLE static int minWindowHeightOrlaMain();         //!< 180
    Q_INVOKABLE static int minSelectorWidthOrla();            //!< 240
    Q_INVOKABLE static int minSelectorHeightOrla();           //!< 180
    Q_INVOKABLE static int minEditorWidthOrla();              //!< 540
    Q_INVOKABLE static int minEditorHeightOrla();             //!< 450
    Q_INVOKABLE static int minInspectorWidthOrla();           //!< 240
    Q_INVOKABLE static int minInspectorHeightOrla();          //!< 180
    Q_INVOKABLE static int minAccessoryWindowWidthOrla();     //!< 320
    Q_INVOKABLE static int minAccessoryWindowHeightOrla();    //!< 320
    Q_INVOKABLE static int windowWidthOrlaLibrary();          //!< 700
    Q_INVOKABLE static int windowHeightOrlaLibrary();         //!< 440
    Q_INVOKABLE static int minWindowWidthOrlaLibrary();       //!< 575
    Q_INVOKABLE static int minWindowHeightOrlaLibrary();      //!< 200
    Q_INVOKABLE static int popoverWidthOrlaEQ();              //!< 500
    Q_INVOKABLE static int popoverHeightOrlaEQ();             //!< 440
    Q_INVOKABLE static int popoverWidthOrlaDyn();             //!< 510
    Q_INVOKABLE static int popoverHeightOrlaDyn();            //!< 400
    Q_INVOKABLE static int popoverWidthOrlaSetupScene();      //!< 480
    Q_INVOKABLE static int popoverHeightOrlaSetupScene();     //!< 400
    Q_INVOKABLE static int popoverWidthOrlaScreenCompEdit();  //!< 510
    Q_INVOKABLE static int popoverHeightOrlaScreenCompEdit(); //!< 320
    Q_INVOKABLE static int popoverWidthOrlaScreenCompIE();    //!< 790
    Q_INVOKABLE static int popoverHeightOrlaScreenCompIE();   //!< 360
    // Scaled window metrics: base x ratio converted to int (truncated toward zero).
    Q_INVOKABLE static int minControlAmpInHeightOrla(double p_ratio = 1.0);      //!< base 100
    Q_INVOKABLE static int standardControlAmpInHeightOrla(double p_ratio = 1.0); //!< base 140
    Q_INVOKABLE static int standardControlKroInHeightOrla(double p_ratio = 1.0); //!< base 150
    Q_INVOKABLE static int minControlAmpOutHeightOrla(double p_ratio = 1.0);     //!< base 130
    Q_INVOKABLE static int minSearchFieldWidthOrlaLibrary(double p_ratio = 1.0); //!< base 120

    // Drag-and-drop mime types.
    Q_INVOKABLE static QString getMimeTypeOrla();                //!< "application/koru-orla"
    Q_INVOKABLE static QString getMimeTypeQVariant();            //!< "application/qvariant"
    Q_INVOKABLE static QString getMimeTypeVynGrouping();         //!< "application/vyngrouping"
    Q_INVOKABLE static QString getMimeTypeVynGroupedObject();    //!< "application/vyngroupedobject"
    Q_INVOKABLE static QString getMimeTypeVynGroup();            //!< "text/vyngroup"
    Q_INVOKABLE static QString getMimeTypeVynZone();             //!< "text/vynzone"
    Q_INVOKABLE static QString getMimeTypeVynDevicePrototype();  //!< "text/vyndeviceprototype"
    Q_INVOKABLE static QString getMimeTypeVynChannelPrototype(); //!< "text/vynchannelprototype"
    Q_INVOKABLE static QString
    getMimeTypeVynControlledObject();                      //!< "application/vyncontrolledobject"
    Q_INVOKABLE static QString getMimeTypeVynEQCommonEQ(); //!< "text/vyneqcommoneq"
    Q_INVOKABLE static QString getMimeTypeVynScene();      //!< "text/vynscene"
    Q_INVOKABLE static QString getMimeTypeVynNetworkMap(); //!< "text/vynnetworkmap"
    Q_INVOKABLE static QString getMimeTypeVynScreenComposition(); //!< "text/vynscreencomposition"
    Q_INVOKABLE static QString getMimeTypeUrls();                 //!< "text/uri-list"

    /*!
        The localised text of \a p_key in the QtCommons table \a p_table ("VynLocalizable"
        or "VynUILocalizable"), for documents that show the module's words ("MULTIPLE_SHORT").
        An unknown key answers what QtCommons answers for it.
    */
    Q_INVOKABLE static QString
    localizedString(const QString& p_key,
                    const QString& p_table = QStringLiteral("VynLocalizable"));

    static const QString g_mimeTypeOrla;
    static const QString g_mimeTypeQVariant;
    static const QString g_mimeTypeVynGrouping;
    static const QString g_mimeTypeVynGroupedObject;
    static const QString g_mimeTypeVynGroup;
    static const QString g_mimeTypeVynZone;
    static const QString g_mimeTypeVynDevicePrototype;
    static const QString g_mimeTypeVynChannelPrototype;
    static const QString g_mimeTypeVynControlledObject;
    static const QString g_mimeTypeVynEQCommonEQ;
    static const QString g_mimeTypeVynScene;
    static const QString g_mimeTypeVynNetworkMap;
    static const QString g_mimeTypeVynScreenComposition;
    static const QString g_mimeTypeUrls;
    /*!
        Slide-field acceleration: the number of zones, round(4 x ratio), and per
        zone (index 0 to 3) its rate ratio x (0.25, 1, 2.5, 4) and its start
        distance ratio x (0, 100, 200, 300), both unrounded. An index outside
        0 to 3 reads the nearest zone.
    */
    Q_INVOKABLE static int slideFieldZoneCount(double p_ratio = 1.0);
    Q_INVOKABLE static double slideFieldRate(int p_index, double p_ratio = 1.0);
    Q_INVOKABLE static double slideFieldFrom(int p_index, double p_ratio = 1.0);

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
    //! The first suggestion of band type \a p_type, or -1.
    Q_INVOKABLE static int eqIndexForBandType(VynEQConstants::VynEQBandType p_type);
    //! The name of suggestion \a p_index; an empty string outside 0 to 5.
    Q_INVOKABLE static QString eqBandTypeStringForIndex(int p_index);
    /*!
        The URL of the button image of band type \a p_type: "btn<name>.png", or
        "btn<name>48.png" for a content height of 50 or less, resolved by
        VynFileUtils::pathForImageNamed(). An empty string for a type that is
        not suggested.
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
    Q_INVOKABLE static Qt::Orientation
    alignmentsViewVynSideOrientation(VynViewUtils::VynSide p_side);
    Q_INVOKABLE static Qt::Orientation
    alignmentsViewVynOrientationOther(Qt::Orientation p_orientation);
    Q_INVOKABLE static VynViewUtils::VynSideBounds
    alignmentsViewVynSideBoundsForRect(const QRectF& p_rect, Qt::Orientation p_orientation);
    Q_INVOKABLE static double
    alignmentsViewQRectFOrthogonalDimensionForSide(const QRectF& p_rect,
                                                   VynViewUtils::VynSide p_side);
    Q_INVOKABLE static double
    alignmentsViewQRectFSizeAlongOrientation(const QRectF& p_rect, Qt::Orientation p_orientation);
    //! A rounded copy of \a p_rect (see VynViewUtils::roundedQRectF()).
    Q_INVOKABLE static QRectF alignmentsViewRoundedQRectF(const QRectF& p_rect);
    Q_INVOKABLE static QRectF alignmentsViewQRectFForLine(double p_start, double p_end,
                                                          double p_position,
                                                          Qt::Orientation p_orientation,
                                                          double p_thickness);
    //! \a p_sides may combine edges (VynSideLeft | VynSideTop).
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

    Q_INVOKABLE static int colorFactoryCount();
    Q_INVOKABLE static QColor colorFactory(int p_index);
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
    controlBorderRedColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor controlColorForStyle(VynColorUtils::VynStyle p_style, int p_on);
    Q_INVOKABLE static QColor controlBorderColorForStyle(VynColorUtils::VynStyle p_style, int p_on,
                                                         bool p_isDefault = false,
                                                         bool p_isDestructive = false);
    Q_INVOKABLE static QColor
    controlFillColor(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor controlOnGradientColor(double p_location);
    Q_INVOKABLE static QColor controlOnRedGradientColor(double p_location);
    Q_INVOKABLE static QColor controlMixedGradientColor(double p_location);
    Q_INVOKABLE static QColor controlOffGradientColorForStyle(
        double p_location, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
        bool p_opaque = false, bool p_isDefault = false, bool p_isDestructive = false);
    Q_INVOKABLE static QColor controlImageOnGradientColor(double p_location);
    Q_INVOKABLE static QColor controlImageOffGradientColor(double p_location,
                                                           bool p_isDefault = false,
                                                           bool p_isDestructive = false);
    Q_INVOKABLE static QColor controlMixedTickColor();
    Q_INVOKABLE static QColor controlTextColorForStyle(VynColorUtils::VynStyle p_style, int p_on,
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
    Q_INVOKABLE static QColor
    controlTouchOverColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    textViewTextColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
                              int p_mixed = 0);
    Q_INVOKABLE static QColor textViewBorderColorForStyle(VynColorUtils::VynStyle p_style,
                                                          int p_mixed, bool p_editing);
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
    textViewBackgroundColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
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
    popoverBackgroundColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    popoverBorderColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    popoverShadowColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor tableViewCellBackgroundColorForStyle(VynColorUtils::VynStyle p_style,
                                                                   bool p_selected, bool p_hasFocus,
                                                                   bool p_alternate);
    Q_INVOKABLE static QColor tableViewCellBackgroundColorForTintAndStyle(
        const QColor& p_tint, VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor tableViewCellRedOverlayColorForStyle(
        VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    labelColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark,
                       int p_level = 0);
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
    Q_INVOKABLE static QColor
    colorIconShadowColorForStyle(VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
    Q_INVOKABLE static QColor
    colorIconBorderColorForStyle(const QColor& p_color,
                                 VynColorUtils::VynStyle p_style = VynColorUtils::VynStyleDark);
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
    Q_INVOKABLE static QColor colorBySettingAlpha(const QColor& p_color, double p_alpha);
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

private:
    explicit VynUIQmlConstants(QObject* p_parent = nullptr);
    Q_DISABLE_COPY_MOVE(VynUIQmlConstants)
};
