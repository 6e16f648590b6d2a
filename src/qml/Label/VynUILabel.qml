import QtQuick
import VynUI 1.2

import "../Private/DiscreteActions.js" as DiscreteActions

// A read-only label bound to a device parameter through a VynUILabelComponent: its text and
// colour (the explicit colour, the status colour or the label colour of its level, which
// follow the style) come from the component, its tooltip text is its accessible description.
// A long press emits the component's longPressed(); a disabled component is drawn at the
// disabled alpha.
//
//     VynUILabel { uiLabelComponent: host.presetNameComponent }
VynLabel {
    id: root

    property VynUILabelComponent uiLabelComponent: null
    readonly property VynUILabelComponent uiComponent: uiLabelComponent

    text: uiComponent ? uiComponent.text : ""
    textColor: uiComponent ? uiComponent.textColor : vynMetrics.labelColor
    enabled: uiComponent ? uiComponent.enabled : false
    opacity: enabled ? 1 : vynMetrics.disabledAlpha
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: uiComponent ? uiComponent.tooltipText : ""

    MouseArea {
        anchors.fill: parent
        onPressAndHold: DiscreteActions.longPress(root.uiComponent)
    }
}
