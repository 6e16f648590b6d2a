#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <QFlags>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include <functional>

/*!
    The model of a compound button that shows one of several small standard
    buttons (mute/solo, mute, stand-by, locate, refresh, update) and holds the
    component of each visible button.

    capabilities is the mask of the button types the device offers;
    visibleButtonType the one shown now. Both setters take only what their
    type can hold (a combination of the six bits, one single type): anything
    else is logged and ignored.

    Each button type has its own ordered list of components, kept while
    another type is visible. insertVisibleComponent(c, index) puts c into the
    list of the visible type at index (an index out of 0..size appends) and
    emits insertedVisibleComponent(type, index actually used, c); a null
    component, a component already in that list or no visible type (None)
    changes nothing. removeVisibleComponent(c) takes c out of the visible
    type's list and emits removedVisibleComponent(c); a component not there
    changes nothing. A destroyed component leaves every list silently.

    The held components follow the compound button's style: each takes it
    when inserted and again whenever it changes (onStyleChanged()).
    setVisibleComponentsEnabled() sets the enabled flag of the visible type's
    components.
*/
class VYNUI_EXPORT VynUIHandyButtonComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int capabilities READ capabilities WRITE setCapabilities NOTIFY capabilitiesChanged)
    Q_PROPERTY(ButtonType visibleButtonType READ visibleButtonType WRITE setVisibleButtonType NOTIFY
                   visibleButtonTypeChanged)

public:
    enum ButtonType : int {
        None = 0,
        MuteSolo = 1,
        Mute = 2,
        StandBy = 4,
        Locate = 8,
        Refresh = 16,
        Update = 32,
    };
    Q_ENUM(ButtonType)
    Q_DECLARE_FLAGS(ButtonTypes, ButtonType)
    Q_FLAG(ButtonTypes)

    explicit VynUIHandyButtonComponent(QObject* parent = nullptr);
    ~VynUIHandyButtonComponent() override;

    int capabilities() const { return m_capabilities; }
    void setCapabilities(int capabilities);
    ButtonType visibleButtonType() const { return m_visibleButtonType; }
    void setVisibleButtonType(ButtonType type);
    //! Sets the visible type; when it changed, calls \a completion (when set) after
    //! visibleButtonTypeChanged(), for the host to fill the new type's components.
    void setVisibleButtonType(ButtonType type, const std::function<void()>& completion);

    //! Sets the stored enabled flag of every component of the visible type.
    void setVisibleComponentsEnabled(bool enabled);
    Q_INVOKABLE int numberOfComponentsForButtonType(ButtonType type) const;
    //! The component at \a index of the visible type, null when there is none.
    Q_INVOKABLE VynUIComponent* getVisibleButtonComponent(int index) const;
    //! The component at \a index of \a type, null when there is none.
    VynUIComponent* getButtonComponent(ButtonType type, int index) const;

    Q_INVOKABLE void insertVisibleComponent(VynUIComponent* p_component, int p_index);
    Q_INVOKABLE void insertVisibleComponent(VynUIComponent* p_component);
    Q_INVOKABLE void removeVisibleComponent(VynUIComponent* p_component);
    Q_INVOKABLE QString toStringValue() override;

signals:
    void capabilitiesChanged();
    void visibleButtonTypeChanged();
    void insertedVisibleComponent(VynUIHandyButtonComponent::ButtonType p_buttonType, int p_index,
                                  VynUIComponent* p_insertedComponent);
    void removedVisibleComponent(VynUIComponent* p_removedComponent);

public slots:
    void onStyleChanged();

private:
    using Components = QList<QPointer<VynUIComponent>>;
    //! Whether \a component is in any list.
    bool holds(const VynUIComponent* component) const;
    //! Drops the entries of destroyed components.
    void onComponentDestroyed();

    int m_capabilities = None;
    ButtonType m_visibleButtonType = None;
    QMap<ButtonType, Components> m_components;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(VynUIHandyButtonComponent::ButtonTypes)
