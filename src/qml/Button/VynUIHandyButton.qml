pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

// A compound button bound to a VynUIHandyButtonComponent: a row of the small standard buttons
// of the component's visible button type, each bound to the button component the host filed
// for it (insertVisibleComponent): mute and solo for MuteSolo, mute, stand-by, locate,
// refresh or update.
//
// The row follows the component: a change of the visible type or an inserted or removed
// component rebuilds it. Each button behaves as a VynUIInlineButton (confirmation first, then
// the button component's clicked(); long press; mixed state; no input while disabled) and is
// titled by its component's text or, without one, the standard title of its place.
VynItem {
    id: root

    property VynUIHandyButtonComponent uiHandyButtonComponent: null
    readonly property VynUIHandyButtonComponent uiComponent: uiHandyButtonComponent

    property int _revision: 0
    readonly property int visibleButtonType: uiComponent ? uiComponent.visibleButtonType : 0
    // The button components of the visible type, in order.
    readonly property var visibleComponents: {
        _revision
        const c = root.uiComponent
        const list = []
        if (!c)
            return list
        const count = c.numberOfComponentsForButtonType(c.visibleButtonType)
        for (let i = 0; i < count; ++i)
            list.push(c.getVisibleButtonComponent(i))
        return list
    }

    // The standard title and accessible name of the button at p_index of p_type.
    function standardTitle(p_type, p_index) {
        switch (p_type) {
        case VynUIHandyButtonComponent.MuteSolo: return p_index === 0 ? "M" : "S"
        case VynUIHandyButtonComponent.Mute: return "M"
        case VynUIHandyButtonComponent.StandBy: return "STBY"
        case VynUIHandyButtonComponent.Locate: return "LOC"
        case VynUIHandyButtonComponent.Refresh: return "\u21BB"
        case VynUIHandyButtonComponent.Update: return "UPD"
        default: return ""
        }
    }
    function standardName(p_type, p_index) {
        switch (p_type) {
        case VynUIHandyButtonComponent.MuteSolo: return p_index === 0 ? qsTr("Mute") : qsTr("Solo")
        case VynUIHandyButtonComponent.Mute: return qsTr("Mute")
        case VynUIHandyButtonComponent.StandBy: return qsTr("Stand-by")
        case VynUIHandyButtonComponent.Locate: return qsTr("Locate")
        case VynUIHandyButtonComponent.Refresh: return qsTr("Refresh")
        case VynUIHandyButtonComponent.Update: return qsTr("Update")
        default: return ""
        }
    }

    implicitWidth: _row.implicitWidth
    implicitHeight: vynMetrics.inlineButtonHeight
    enabled: uiComponent ? uiComponent.enabled : false
    Accessible.role: Accessible.Grouping
    Accessible.name: uiComponent ? uiComponent.name : ""

    Connections {
        target: root.uiComponent
        function onVisibleButtonTypeChanged() { root._revision += 1 }
        function onInsertedVisibleComponent() { root._revision += 1 }
        function onRemovedVisibleComponent() { root._revision += 1 }
    }

    Row {
        id: _row
        objectName: "buttonRow"
        spacing: root.vynMetrics.inlineButtonTitleImageSpacing * 2
        Repeater {
            model: root.visibleComponents
            delegate: VynUIInlineButton {
                required property var modelData
                required property int index
                vynStyle: root.vynStyle
                vynControlSize: root.vynControlSize
                vynPixelRatio: root.vynPixelRatio
                vynPixelRatioFont: root.vynPixelRatioFont
                uiButtonComponent: modelData as VynUIButtonComponent
                text: uiComponent && uiComponent.text.length > 0
                      ? uiComponent.text : root.standardTitle(root.visibleButtonType, index)
                Accessible.name: uiComponent && uiComponent.text.length > 0
                                 ? uiComponent.text : root.standardName(root.visibleButtonType, index)
            }
        }
    }
}
