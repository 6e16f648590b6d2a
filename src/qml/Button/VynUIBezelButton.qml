import QtQuick
import VynUI 1.2

import "../Private/DiscreteActions.js" as DiscreteActions

// A bezel button bound to a device parameter (or a selection of them) through a
// VynUIButtonComponent.
//
// Binding rules: the title, the on/off/mixed state and the enabled flag come from the
// component. A click (pointer or Space/Enter) asks the component's confirmation first
// (presentConfirmChangeAlertIfNeededQml) and then emits the component's clicked(); the
// button never changes its state itself, the host's echo does. A long press emits the
// component's longPressed(). A disabled component, or none, takes no input.
VynBezelButton {
    id: root

    property VynUIButtonComponent uiButtonComponent: null
    readonly property VynUIButtonComponent uiComponent: uiButtonComponent

    text: uiComponent ? uiComponent.text : ""
    checkState: uiComponent ? uiComponent.isOn : 0
    enabled: uiComponent ? uiComponent.enabled : false
    Accessible.description: !uiComponent ? "" : uiComponent.multiple
                                                ? VynUIQmlConstants.localizedString("MULTIPLE")
                                                : uiComponent.tooltipText

    onClicked: DiscreteActions.confirmThen(uiComponent, function () {
        if (root.uiComponent)
            root.uiComponent.clicked()
    })
    onLongPressed: DiscreteActions.longPress(uiComponent)
}
