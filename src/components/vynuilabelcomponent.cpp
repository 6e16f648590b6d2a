#include "vynuilabelcomponent.h"

#include "vyncolorappearance.h"

#include <QPointer>

#include <algorithm>

namespace {
// The label classes log only what is above Fatal: nothing reaches a file by default.
constexpr int kLabelLogLevel = 4;
} // namespace

VynUILabelComponent::VynUILabelComponent(QObject* parent) : VynUIComponent(parent, false)
{
    setComponentType(VynViewUtils::VynUIComponentTypeLabel);
    addLogDestination(&staticMetaObject, kLabelLogLevel);
    connect(this, &VynUIComponent::styleChanged, this, &VynUILabelComponent::onStyleChanged);
}

VynUILabelComponent::~VynUILabelComponent() = default;

void VynUILabelComponent::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    emit textChanged();
}

QColor VynUILabelComponent::textColor() const
{
    if (m_textColor.isValid())
        return m_textColor;
    if (m_statusLevel >= 0)
        return VynColorAppearance::coloredLabelColorForStyle(style(), m_statusLevel);
    return VynColorAppearance::labelColorForStyle(style(), std::max(m_labelLevel, 0));
}

void VynUILabelComponent::setTextColor(const QColor& color)
{
    // Any two invalid colours are the same "no colour".
    if (color == m_textColor || (!color.isValid() && !m_textColor.isValid()))
        return;
    m_textColor = color;
    emit textColorChanged();
}

void VynUILabelComponent::setLabelLevel(int level)
{
    if (level == m_labelLevel)
        return;
    m_labelLevel = level;
    emit textColorChanged();
}

void VynUILabelComponent::setStatusLevel(int level)
{
    if (level == m_statusLevel)
        return;
    m_statusLevel = level;
    emit textColorChanged();
}

void VynUILabelComponent::setTextAndTip(const QString& p_string)
{
    const QPointer<VynUILabelComponent> self(this);
    setText(p_string);
    if (self)
        setTooltipText(p_string);
}

QString VynUILabelComponent::toStringValue()
{
    return m_text;
}

void VynUILabelComponent::onStyleChanged()
{
    emit textColorChanged();
}
