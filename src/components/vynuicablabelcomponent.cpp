#include "vynuicablabelcomponent.h"

#include <QPointer>

namespace {
// As for the label: nothing reaches a file by default.
constexpr int kCabLabelLogLevel = 4;
} // namespace

VynUICabLabelComponent::VynUICabLabelComponent(QObject* parent) : VynUIComponent(parent, false)
{
    setComponentType(VynViewUtils::VynUIComponentTypeCabLabel);
    addLogDestination(&staticMetaObject, kCabLabelLogLevel);
}

VynUICabLabelComponent::~VynUICabLabelComponent() = default;

void VynUICabLabelComponent::setShowsBridge(bool shows)
{
    if (shows == m_showsBridge)
        return;
    m_showsBridge = shows;
    emit showsBridgeChanged();
}

void VynUICabLabelComponent::setUsesShortStyle(bool uses)
{
    if (uses == m_usesShortStyle)
        return;
    m_usesShortStyle = uses;
    emit shortStyleChanged();
}

void VynUICabLabelComponent::setMultiPartName(const VynMultiPartName& name)
{
    m_multiPartName = name;
    emit multiPartNameChanged();
}

void VynUICabLabelComponent::restoreFromUIComponent(VynUIComponent* p_other)
{
    const QPointer<VynUICabLabelComponent> self(this);
    const QPointer<VynUIComponent> other(p_other);
    VynUIComponent::restoreFromUIComponent(p_other);
    if (!self || !other || p_other == this)
        return;
    auto* label = qobject_cast<VynUICabLabelComponent*>(p_other);
    if (!label)
        return;
    const bool usesShortStyle = label->usesShortStyle();
    setShowsBridge(label->showsBridge());
    if (!self)
        return;
    m_usesShortStyle = usesShortStyle;
    emit shortStyleChanged();
}

QString VynUICabLabelComponent::toStringValue()
{
    return m_multiPartName.getTooltipText(QStringLiteral(" "));
}
