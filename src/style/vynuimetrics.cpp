#include "vynuimetrics.h"

#include "vyncolorappearance.h"
#include "vynuiqmlconstants.h"

#include <string_view>

namespace {

// Font sizes scale with the font ratio: the rows whose name contains "ontSize"
// (fontSize, fontSizeCellTitle, vuMeterTickPrimaryFontSize, ...).
constexpr bool isFontRow(std::string_view p_name)
{
    return p_name.find("ontSize") != std::string_view::npos;
}

} // namespace

VynUIMetrics::VynUIMetrics(int p_controlSize, double p_ratio, double p_fontRatio, int p_style,
                           QObject* p_parent)
    : QObject(p_parent), m_controlSize(normalisedControlSize(p_controlSize)), m_ratio(p_ratio),
      m_fontRatio(p_fontRatio), m_style(normalisedStyle(p_style))
{}

int VynUIMetrics::normalisedControlSize(int p_controlSize)
{
    return qBound(int(VynViewUtils::VynControlSizeMini), p_controlSize,
                  int(VynViewUtils::VynControlSizeExtraLarge));
}

int VynUIMetrics::normalisedStyle(int p_style)
{
    return p_style <= VynColorUtils::VynStyleLight ? VynColorUtils::VynStyleLight
                                                   : VynColorUtils::VynStyleDark;
}

VynViewUtils::VynControlSize VynUIMetrics::sizeValue() const
{
    return VynViewUtils::VynControlSize(m_controlSize);
}

VynColorUtils::VynStyle VynUIMetrics::styleValue() const
{
    return VynColorUtils::VynStyle(m_style);
}

double VynUIMetrics::disabledAlpha() const
{
    return VynUIQmlConstants::disabledAlpha();
}

double VynUIMetrics::offlineAlpha() const
{
    return VynUIQmlConstants::offlineAlpha();
}

QColor VynUIMetrics::controlColor() const
{
    return VynUIQmlConstants::controlColorForStyle(styleValue(), 0);
}

QColor VynUIMetrics::controlColorOn() const
{
    return VynUIQmlConstants::controlColorForStyle(styleValue(), 1);
}

QColor VynUIMetrics::controlBorderColor() const
{
    return VynUIQmlConstants::controlBorderColorForStyle(styleValue(), 0);
}

QColor VynUIMetrics::controlBorderColorOn() const
{
    return VynUIQmlConstants::controlBorderColorForStyle(styleValue(), 1);
}

QColor VynUIMetrics::controlBorderRedColor() const
{
    return VynUIQmlConstants::controlBorderRedColorForStyle(styleValue());
}

QColor VynUIMetrics::controlTextColor() const
{
    return VynUIQmlConstants::controlTextColorForStyle(styleValue(), 0);
}

QColor VynUIMetrics::controlTextColorOn() const
{
    return VynUIQmlConstants::controlTextColorForStyle(styleValue(), 1);
}

QColor VynUIMetrics::controlTouchOverColor() const
{
    return VynUIQmlConstants::controlTouchOverColorForStyle(styleValue());
}

QColor VynUIMetrics::controlOffGradientColorStart() const
{
    return VynUIQmlConstants::controlOffGradientColorForStyle(0, styleValue(), true);
}

QColor VynUIMetrics::controlOffGradientColorEnd() const
{
    return VynUIQmlConstants::controlOffGradientColorForStyle(1, styleValue(), true);
}

QColor VynUIMetrics::controlOnGradientColorStart() const
{
    return VynUIQmlConstants::controlOnGradientColor(0);
}

QColor VynUIMetrics::controlOnGradientColorMiddle() const
{
    return VynUIQmlConstants::controlOnGradientColor(0.5);
}

QColor VynUIMetrics::controlOnGradientColorEnd() const
{
    return VynUIQmlConstants::controlOnGradientColor(1);
}

QColor VynUIMetrics::controlMixedGradientColorStart() const
{
    return VynUIQmlConstants::controlMixedGradientColor(0);
}

QColor VynUIMetrics::controlMixedGradientColorEnd() const
{
    return VynUIQmlConstants::controlMixedGradientColor(1);
}

QColor VynUIMetrics::controlMixedTickColor() const
{
    return VynUIQmlConstants::controlMixedTickColor();
}

QColor VynUIMetrics::textViewBackgroundColor() const
{
    return VynUIQmlConstants::textViewBackgroundColorForStyle(styleValue());
}

QColor VynUIMetrics::textViewTextColor() const
{
    return VynUIQmlConstants::textViewTextColorForStyle(styleValue(), 0);
}

QColor VynUIMetrics::textViewTextColorMixed() const
{
    return VynUIQmlConstants::textViewTextColorForStyle(styleValue(), 1);
}

QColor VynUIMetrics::textViewBorderColor() const
{
    return VynUIQmlConstants::textViewBorderColorForStyle(styleValue(), 0, false);
}

QColor VynUIMetrics::textViewBorderColorMixed() const
{
    return VynUIQmlConstants::textViewBorderColorForStyle(styleValue(), 1, false);
}

QColor VynUIMetrics::textViewBorderColorEditing() const
{
    return VynUIQmlConstants::textViewBorderColorForStyle(styleValue(), 0, true);
}

QColor VynUIMetrics::textViewBorderColorMixedEditing() const
{
    return VynUIQmlConstants::textViewBorderColorForStyle(styleValue(), 1, true);
}

QColor VynUIMetrics::labelColor() const
{
    return VynUIQmlConstants::labelColorForStyle(styleValue(), 0);
}

QColor VynUIMetrics::labelColorSecondary() const
{
    return VynUIQmlConstants::labelColorForStyle(styleValue(), 1);
}

QColor VynUIMetrics::labelColorTertiary() const
{
    return VynUIQmlConstants::labelColorForStyle(styleValue(), 2);
}

QColor VynUIMetrics::popoverBackgroundColor() const
{
    return VynUIQmlConstants::popoverBackgroundColorForStyle(styleValue());
}

QColor VynUIMetrics::popoverBorderColor() const
{
    return VynUIQmlConstants::popoverBorderColorForStyle(styleValue());
}

QColor VynUIMetrics::colorIconShadowColor() const
{
    return VynUIQmlConstants::colorIconShadowColorForStyle(styleValue());
}

QColor VynUIMetrics::flatButtonFillColor(int p_on) const
{
    return VynColorAppearance::flatButtonFillColorForStyle(styleValue(), p_on);
}

QColor VynUIMetrics::flatButtonBorderColor(int p_on) const
{
    return VynColorAppearance::flatButtonBorderColorForStyle(styleValue(), p_on);
}

QColor VynUIMetrics::flatButtonTextColor(int p_on) const
{
    return VynColorAppearance::flatButtonTextColorForStyle(styleValue(), p_on);
}

QColor VynUIMetrics::inlineButtonColor(int p_on) const
{
    return VynColorAppearance::inlineButtonColorForStyle(styleValue(), p_on);
}

QColor VynUIMetrics::templateButtonColor(int p_on) const
{
    return VynColorAppearance::templateButtonColorForStyle(styleValue(), p_on);
}

QColor VynUIMetrics::templateButtonTextColor(int p_on) const
{
    return VynColorAppearance::templateButtonTextColorForStyle(styleValue(), p_on);
}

QColor VynUIMetrics::ledFillColor(int p_state) const
{
    return VynColorAppearance::ledFillColorForState(p_state);
}

QColor VynUIMetrics::ledBorderColor(int p_state) const
{
    return VynColorAppearance::ledBorderColorForState(p_state);
}

QColor VynUIMetrics::ledGlowColor(int p_state) const
{
    return VynColorAppearance::ledGlowColorForState(p_state);
}

#define VYNUI_SIZED_METRIC(type, name, scaling, mini, small, regular, large, extraLarge)           \
    type VynUIMetrics::name() const                                                                \
    {                                                                                              \
        return VynUIQmlConstants::name(sizeValue(), isFontRow(#name) ? m_fontRatio : m_ratio);     \
    }
#define VYNUI_SCALED_METRIC(type, name, scaling, base)                                             \
    type VynUIMetrics::name() const                                                                \
    {                                                                                              \
        return VynUIQmlConstants::name(isFontRow(#name) ? m_fontRatio : m_ratio);                  \
    }
#define VYNUI_FIXED_METRIC(type, name, value)                                                      \
    type VynUIMetrics::name() const                                                                \
    {                                                                                              \
        return VynUIQmlConstants::name();                                                          \
    }
#include "vynuimetrics.def"
