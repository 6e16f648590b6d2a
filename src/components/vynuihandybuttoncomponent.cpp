#include "vynuihandybuttoncomponent.h"

#include <qloggermanager.h>

#include <QMetaEnum>
#include <QPointer>

#include <algorithm>

namespace {

constexpr int kAllTypes = VynUIHandyButtonComponent::MuteSolo | VynUIHandyButtonComponent::Mute |
                          VynUIHandyButtonComponent::StandBy | VynUIHandyButtonComponent::Locate |
                          VynUIHandyButtonComponent::Refresh | VynUIHandyButtonComponent::Update;

} // namespace

VynUIHandyButtonComponent::VynUIHandyButtonComponent(QObject* parent)
    : VynUIComponent(parent, false)
{
    setComponentType(VynViewUtils::VynUIComponentTypeHandyButton);
    addLogDestination(&staticMetaObject, QLogger::Error);
    connect(this, &VynUIComponent::styleChanged, this, &VynUIHandyButtonComponent::onStyleChanged);
}

VynUIHandyButtonComponent::~VynUIHandyButtonComponent() = default;

void VynUIHandyButtonComponent::setCapabilities(int capabilities)
{
    if (capabilities & ~kAllTypes) {
        logError(QStringLiteral("Ignored capabilities %1").arg(capabilities), "setCapabilities",
                 __FILE__, __LINE__);
        return;
    }
    if (capabilities == m_capabilities)
        return;
    m_capabilities = capabilities;
    emit capabilitiesChanged();
}

void VynUIHandyButtonComponent::setVisibleButtonType(ButtonType type)
{
    setVisibleButtonType(type, nullptr);
}

void VynUIHandyButtonComponent::setVisibleButtonType(ButtonType type,
                                                     const std::function<void()>& completion)
{
    if (!QMetaEnum::fromType<ButtonType>().valueToKey(int(type))) {
        logError(QStringLiteral("Ignored button type %1").arg(int(type)), "setVisibleButtonType",
                 __FILE__, __LINE__);
        return;
    }
    if (type == m_visibleButtonType)
        return;
    m_visibleButtonType = type;
    const QPointer<VynUIHandyButtonComponent> self(this);
    emit visibleButtonTypeChanged();
    if (self && completion)
        completion();
}

bool VynUIHandyButtonComponent::holds(const VynUIComponent* component) const
{
    return std::any_of(m_components.cbegin(), m_components.cend(),
                       [component](const Components& l) { return l.contains(component); });
}

void VynUIHandyButtonComponent::setVisibleComponentsEnabled(bool enabled)
{
    // A copy: a slot on enabledChanged() may change the list or delete anything.
    const Components components = m_components.value(m_visibleButtonType);
    const QPointer<VynUIHandyButtonComponent> self(this);
    for (const QPointer<VynUIComponent>& component : components) {
        if (!self)
            return;
        if (component && m_components.value(m_visibleButtonType).contains(component))
            component->setEnabled(enabled);
    }
}

int VynUIHandyButtonComponent::numberOfComponentsForButtonType(ButtonType type) const
{
    return int(m_components.value(type).size());
}

VynUIComponent* VynUIHandyButtonComponent::getVisibleButtonComponent(int index) const
{
    return getButtonComponent(m_visibleButtonType, index);
}

VynUIComponent* VynUIHandyButtonComponent::getButtonComponent(ButtonType type, int index) const
{
    return m_components.value(type).value(index).data();
}

void VynUIHandyButtonComponent::insertVisibleComponent(VynUIComponent* p_component, int p_index)
{
    if (!p_component || m_visibleButtonType == None)
        return;
    Components& list = m_components[m_visibleButtonType];
    if (list.contains(p_component))
        return;
    const int index = (p_index < 0 || p_index > list.size()) ? int(list.size()) : p_index;
    list.insert(index, p_component);
    // Once per component, whatever the number of lists it is in.
    connect(p_component, &QObject::destroyed, this,
            qOverload<>(&VynUIHandyButtonComponent::onComponentDestroyed), Qt::UniqueConnection);
    const QPointer<VynUIHandyButtonComponent> self(this);
    const QPointer<VynUIComponent> component(p_component);
    p_component->setStyle(style());
    if (self && component)
        emit insertedVisibleComponent(m_visibleButtonType, index, p_component);
}

void VynUIHandyButtonComponent::insertVisibleComponent(VynUIComponent* p_component)
{
    insertVisibleComponent(p_component, -1);
}

void VynUIHandyButtonComponent::removeVisibleComponent(VynUIComponent* p_component)
{
    if (!p_component)
        return;
    auto found = m_components.find(m_visibleButtonType);
    if (found == m_components.end() || !found->removeOne(p_component))
        return;
    if (!holds(p_component))
        disconnect(p_component, &QObject::destroyed, this,
                   qOverload<>(&VynUIHandyButtonComponent::onComponentDestroyed));
    emit removedVisibleComponent(p_component);
}

QString VynUIHandyButtonComponent::toStringValue()
{
    return QString::fromLatin1(QMetaEnum::fromType<ButtonType>().valueToKey(m_visibleButtonType));
}

void VynUIHandyButtonComponent::onStyleChanged()
{
    // A copy: a slot on styleChanged() of a held component may change the lists.
    const auto lists = m_components;
    const QPointer<VynUIHandyButtonComponent> self(this);
    for (const Components& list : lists) {
        for (const QPointer<VynUIComponent>& component : list) {
            if (!self)
                return;
            if (component && holds(component))
                component->setStyle(style());
        }
    }
}

void VynUIHandyButtonComponent::onComponentDestroyed()
{
    // The destroyed component's entries already read null.
    for (Components& list : m_components)
        list.removeIf([](const QPointer<VynUIComponent>& c) { return c.isNull(); });
}
