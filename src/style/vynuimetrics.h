#pragma once

#include "vyncolorutils.h"
#include "vynuiglobal.h"
#include "vynviewutils.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/*!
    The catalogue's answers for one look: a control size, a pixel ratio, a font
    ratio and a style, as read-only properties.

    A control binds one property to VynUIQmlConstants.metrics() and reads its
    metrics and colours from it (`vynMetrics.sliderThumbWidth`), so that every
    metric is looked up as a property instead of a call, and the control's
    bindings run again only when the size, ratio or style changes (the
    catalogue then hands out another object). The objects are shared: every
    control with the same look reads the same object.

    Metrics. One property per metric row of the catalogue, with the row's name
    and type, answering what the catalogue's member answers for this size and
    ratio: `vynMetrics.marginSpace` is VynUIQmlConstants.marginSpace(size,
    ratio). Font sizes (the rows whose name contains "ontSize") scale by the font
    ratio instead, as the controls' text does.

    Colours. The style's control colours that the module's controls draw with,
    one property per state: `controlBorderColor` is
    VynUIQmlConstants.controlBorderColorForStyle(style, 0), `controlBorderColorOn`
    the same with 1, and so on (see the properties below).

    The size, style and ratios are the normalised ones: a size outside Mini to
    ExtraLarge reads the nearest size, a style other than Light reads Dark.
*/
class VYNUI_EXPORT VynUIMetrics : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("VynUIMetrics objects come from VynUIQmlConstants.metrics().")

    Q_PROPERTY(int controlSize READ controlSize CONSTANT FINAL)
    Q_PROPERTY(double ratio READ ratio CONSTANT FINAL)
    Q_PROPERTY(double fontRatio READ fontRatio CONSTANT FINAL)
    Q_PROPERTY(int style READ style CONSTANT FINAL)

    // Fixed alphas of disabled and offline controls.
    Q_PROPERTY(double disabledAlpha READ disabledAlpha CONSTANT FINAL)
    Q_PROPERTY(double offlineAlpha READ offlineAlpha CONSTANT FINAL)

    // Colours of the style, by state.
    Q_PROPERTY(QColor controlColor READ controlColor CONSTANT FINAL)
    Q_PROPERTY(QColor controlColorOn READ controlColorOn CONSTANT FINAL)
    Q_PROPERTY(QColor controlBorderColor READ controlBorderColor CONSTANT FINAL)
    Q_PROPERTY(QColor controlBorderColorOn READ controlBorderColorOn CONSTANT FINAL)
    Q_PROPERTY(QColor controlBorderRedColor READ controlBorderRedColor CONSTANT FINAL)
    Q_PROPERTY(QColor controlTextColor READ controlTextColor CONSTANT FINAL)
    Q_PROPERTY(QColor controlTextColorOn READ controlTextColorOn CONSTANT FINAL)
    Q_PROPERTY(QColor controlTouchOverColor READ controlTouchOverColor CONSTANT FINAL)
    //! Opaque off gradient, at its start (0) and end (1).
    Q_PROPERTY(QColor controlOffGradientColorStart READ controlOffGradientColorStart CONSTANT FINAL)
    Q_PROPERTY(QColor controlOffGradientColorEnd READ controlOffGradientColorEnd CONSTANT FINAL)
    Q_PROPERTY(QColor controlOnGradientColorStart READ controlOnGradientColorStart CONSTANT FINAL)
    Q_PROPERTY(QColor controlOnGradientColorMiddle READ controlOnGradientColorMiddle CONSTANT FINAL)
    Q_PROPERTY(QColor controlOnGradientColorEnd READ controlOnGradientColorEnd CONSTANT FINAL)
    Q_PROPERTY(
        QColor controlMixedGradientColorStart READ controlMixedGradientColorStart CONSTANT FINAL)
    Q_PROPERTY(QColor controlMixedGradientColorEnd READ controlMixedGradientColorEnd CONSTANT FINAL)
    Q_PROPERTY(QColor controlMixedTickColor READ controlMixedTickColor CONSTANT FINAL)
    Q_PROPERTY(QColor textViewBackgroundColor READ textViewBackgroundColor CONSTANT FINAL)
    Q_PROPERTY(QColor textViewTextColor READ textViewTextColor CONSTANT FINAL)
    Q_PROPERTY(QColor textViewTextColorMixed READ textViewTextColorMixed CONSTANT FINAL)
    Q_PROPERTY(QColor textViewBorderColor READ textViewBorderColor CONSTANT FINAL)
    Q_PROPERTY(QColor textViewBorderColorMixed READ textViewBorderColorMixed CONSTANT FINAL)
    Q_PROPERTY(QColor textViewBorderColorEditing READ textViewBorderColorEditing CONSTANT FINAL)
    Q_PROPERTY(
        QColor textViewBorderColorMixedEditing READ textViewBorderColorMixedEditing CONSTANT FINAL)
    //! Label colours of levels 0 (primary) to 2.
    Q_PROPERTY(QColor labelColor READ labelColor CONSTANT FINAL)
    Q_PROPERTY(QColor labelColorSecondary READ labelColorSecondary CONSTANT FINAL)
    Q_PROPERTY(QColor labelColorTertiary READ labelColorTertiary CONSTANT FINAL)
    Q_PROPERTY(QColor popoverBackgroundColor READ popoverBackgroundColor CONSTANT FINAL)
    Q_PROPERTY(QColor popoverBorderColor READ popoverBorderColor CONSTANT FINAL)
    Q_PROPERTY(QColor colorIconShadowColor READ colorIconShadowColor CONSTANT FINAL)

    // One property per metric row of vynuimetrics.def.
#define VYNUI_SIZED_METRIC(type, name, scaling, mini, small, regular, large, extraLarge)           \
    Q_PROPERTY(type name READ name CONSTANT FINAL)
#define VYNUI_SCALED_METRIC(type, name, scaling, base)                                             \
    Q_PROPERTY(type name READ name CONSTANT FINAL)
#define VYNUI_FIXED_METRIC(type, name, value) Q_PROPERTY(type name READ name CONSTANT FINAL)
#include "vynuimetrics.def"

public:
    VynUIMetrics(int p_controlSize, double p_ratio, double p_fontRatio, int p_style,
                 QObject* p_parent = nullptr);

    //! A size outside Mini to ExtraLarge reads the nearest size.
    static int normalisedControlSize(int p_controlSize);
    //! A style at or below Light reads Light, any other Dark.
    static int normalisedStyle(int p_style);

    int controlSize() const
    {
        return m_controlSize;
    }
    double ratio() const
    {
        return m_ratio;
    }
    double fontRatio() const
    {
        return m_fontRatio;
    }
    int style() const
    {
        return m_style;
    }

    double disabledAlpha() const;
    double offlineAlpha() const;

    QColor controlColor() const;
    QColor controlColorOn() const;
    QColor controlBorderColor() const;
    QColor controlBorderColorOn() const;
    QColor controlBorderRedColor() const;
    QColor controlTextColor() const;
    QColor controlTextColorOn() const;
    QColor controlTouchOverColor() const;
    QColor controlOffGradientColorStart() const;
    QColor controlOffGradientColorEnd() const;
    QColor controlOnGradientColorStart() const;
    QColor controlOnGradientColorMiddle() const;
    QColor controlOnGradientColorEnd() const;
    QColor controlMixedGradientColorStart() const;
    QColor controlMixedGradientColorEnd() const;
    QColor controlMixedTickColor() const;
    QColor textViewBackgroundColor() const;
    QColor textViewTextColor() const;
    QColor textViewTextColorMixed() const;
    QColor textViewBorderColor() const;
    QColor textViewBorderColorMixed() const;
    QColor textViewBorderColorEditing() const;
    QColor textViewBorderColorMixedEditing() const;
    QColor labelColor() const;
    QColor labelColorSecondary() const;
    QColor labelColorTertiary() const;
    QColor popoverBackgroundColor() const;
    QColor popoverBorderColor() const;
    QColor colorIconShadowColor() const;

    // Colours of the discrete controls by state: \a p_on is 0 (off) or 1 (on); the LED
    // colours take a VynViewUtils::VynLedState from 0 to 4 and are the same in both styles.
    Q_INVOKABLE QColor flatButtonFillColor(int p_on) const;
    Q_INVOKABLE QColor flatButtonBorderColor(int p_on) const;
    Q_INVOKABLE QColor flatButtonTextColor(int p_on) const;
    Q_INVOKABLE QColor inlineButtonColor(int p_on) const;
    Q_INVOKABLE QColor templateButtonColor(int p_on) const;
    Q_INVOKABLE QColor templateButtonTextColor(int p_on) const;
    Q_INVOKABLE QColor ledFillColor(int p_state) const;
    Q_INVOKABLE QColor ledBorderColor(int p_state) const;
    Q_INVOKABLE QColor ledGlowColor(int p_state) const;

#define VYNUI_SIZED_METRIC(type, name, scaling, mini, small, regular, large, extraLarge)           \
    type name() const;
#define VYNUI_SCALED_METRIC(type, name, scaling, base) type name() const;
#define VYNUI_FIXED_METRIC(type, name, value) type name() const;
#include "vynuimetrics.def"

private:
    VynViewUtils::VynControlSize sizeValue() const;
    VynColorUtils::VynStyle styleValue() const;

    int m_controlSize;
    double m_ratio;
    double m_fontRatio;
    int m_style;
};
