#pragma once

#include "vynuiglobal.h"

#include "vynledparamconfig.h"
#include "vynuicomponent.h"

#include <QList>
#include <QString>
#include <QtQml/qqmlregistration.h>

/*!
    The model of a status LED whose state the host derives from several
    parameters.

    The host watches the parameters of the LED's configurations (one
    VynLedParamConfig each), computes the state and pushes it with
    setLedState(state, mixed). A new state stores both and emits
    letStateChanged() then mixedChanged() (the notify signal of ledState is
    spelled letStateChanged, and stays so for the hosts that connect to it by
    name). With the state unchanged, the mixed flag alone is stored, with both
    signals, only when it differs and allowsMixed is true; otherwise nothing
    happens.

    Configurations are kept in insertion order until one of priority 1 or more
    arrives: addParamConfig() of such a configuration, or
    setPriorityToParamConfig() while any configuration has priority 1 or more,
    sorts the whole list by decreasing priority, stably, so configurations of
    equal priority keep their relative order and those of priority 0 end up
    last. getDefaultParamConfig() is the first configuration flagged default,
    in list order, or an empty configuration when none is.

    The enum setters take only the enumerators of VynLedState: any other
    integer is logged and ignored. toStringValue() reads the "MULTIPLE" text of
    "VynLocalizable" when mixed, otherwise the name of the state ("Green",
    "Protect", ...).
*/
class VYNUI_EXPORT VynUILedComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(VynViewUtils::VynLedState ledState READ ledState NOTIFY letStateChanged)
    Q_PROPERTY(VynViewUtils::VynLedState noneState READ noneState WRITE setNoneState NOTIFY
                   noneStateChanged)
    Q_PROPERTY(bool allowsMixed READ allowsMixed WRITE setAllowsMixed NOTIFY allowsMixedChanged)
    Q_PROPERTY(bool mixed READ mixed NOTIFY mixedChanged)

public:
    explicit VynUILedComponent(QObject* parent = nullptr);
    ~VynUILedComponent() override;

    VynViewUtils::VynLedState ledState() const { return m_ledState; }
    void setLedState(VynViewUtils::VynLedState state, bool mixed);
    VynViewUtils::VynLedState noneState() const { return m_noneState; }
    void setNoneState(VynViewUtils::VynLedState state);
    bool allowsMixed() const { return m_allowsMixed; }
    void setAllowsMixed(bool allows);
    bool mixed() const { return m_mixed; }

    const QList<VynLedParamConfig>& getParamConfigs() const { return m_paramConfigs; }
    const VynLedParamConfig& getDefaultParamConfig() const;

    Q_INVOKABLE QString toStringValue() override;
    //! Adds a configuration of priority 0 mapping \a p_path to \a p_state.
    Q_INVOKABLE void addParamConfig(const VynProxyParamPath& p_path,
                                    VynViewUtils::VynLedState p_state);
    Q_INVOKABLE void addParamConfig(const VynLedParamConfig& p_paramConfig);
    Q_INVOKABLE void clearParamConfigs();
    //! Gives \a p_priority to the first configuration equal to \a p_paramConfig but for its
    //! priority; nothing when there is none.
    Q_INVOKABLE void setPriorityToParamConfig(int p_priority,
                                              const VynLedParamConfig& p_paramConfig);

signals:
    void letStateChanged();
    void noneStateChanged();
    void mixedChanged();
    void allowsMixedChanged();

private:
    //! True, after one logged line, when \a state is not an enumerator of VynLedState.
    bool refusesState(VynViewUtils::VynLedState state, const char* function) const;
    //! Sorts by decreasing priority when any configuration has a priority of 1 or more.
    void sortIfPrioritized();

    VynViewUtils::VynLedState m_ledState = VynViewUtils::VynLedStateGray;
    VynViewUtils::VynLedState m_noneState = VynViewUtils::VynLedStateGray;
    bool m_allowsMixed = false;
    bool m_mixed = false;
    QList<VynLedParamConfig> m_paramConfigs;
};
