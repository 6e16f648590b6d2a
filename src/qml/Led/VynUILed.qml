import QtQuick
import VynUI 1.2

import "../Private/DiscreteActions.js" as DiscreteActions

// A status LED bound to a VynUILedComponent.
//
// How a host builds a status LED from three parameters with priorities: it files one
// configuration per parameter in the component (addParamConfig(path, state),
// setPriorityToParamConfig(priority, config)), works out the state from the parameters'
// values in that order and sets it with setLedState(state, mixed):
//
//     VynUILed { uiLedComponent: host.channelStatusComponent }
//
// Binding rules: the state, the mixed flag and the enabled flag come from the component; the
// shape is the LED's own (ledShape). A long press emits the component's longPressed(); a
// disabled component, or none, takes no input.
VynLed {
    id: root

    property VynUILedComponent uiLedComponent: null
    readonly property VynUILedComponent uiComponent: uiLedComponent

    ledState: uiComponent ? uiComponent.ledState : VynViewUtils.VynLedStateGray
    mixed: uiComponent ? uiComponent.mixed : false
    enabled: uiComponent ? uiComponent.enabled : false
    opacity: enabled ? 1 : vynMetrics.disabledAlpha
    Accessible.name: uiComponent && uiComponent.name.length > 0 ? uiComponent.name
                                                                 : DiscreteActions.ledStateName(ledState)
    Accessible.description: !uiComponent ? "" : uiComponent.mixed
                                                ? VynUIQmlConstants.localizedString("MULTIPLE")
                                                : DiscreteActions.ledStateName(ledState)

    MouseArea {
        anchors.fill: parent
        onPressAndHold: DiscreteActions.longPress(root.uiComponent)
    }
}
