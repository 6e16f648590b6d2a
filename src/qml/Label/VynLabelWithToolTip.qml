pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

// A VynLabel that shows a tooltip while the mouse is over it; the tooltip text defaults to
// the label's text, and no tooltip (and no hover tracking) appears while it is empty.
//
// Mouse presses, releases, clicks and double clicks are accepted by the label only when
// mouseAccepted is true; otherwise they reach the items below it. The tooltip takes the
// label's style unless tooltipStyle is set: it should follow the application's style,
// which may differ from the label's.
//
// The tooltip is made the first time the mouse enters the label: `labelTooltip` is null
// until then (a page of labels costs no popup until one is hovered).
VynLabel {
    id: root

    property bool mouseAccepted: false
    property string tooltipText: text
    property int tooltipStyle: vynStyle

    property alias labelMouseArea: mouseArea
    readonly property VynToolTip labelTooltip: _tooltip
    property alias isHoverEnabled: mouseArea.hoverEnabled

    property VynToolTip _tooltip: null

    MouseArea {
        id: mouseArea

        anchors.fill: parent
        hoverEnabled: root.tooltipText !== ""
        propagateComposedEvents: !root.mouseAccepted
        onPressed: mouse => mouse.accepted = root.mouseAccepted
        onReleased: mouse => mouse.accepted = root.mouseAccepted
        onClicked: mouse => mouse.accepted = root.mouseAccepted
        onDoubleClicked: mouse => mouse.accepted = root.mouseAccepted
        onContainsMouseChanged: {
            if (containsMouse && !root._tooltip)
                root._tooltip = tooltipComponent.createObject(root) as VynToolTip
        }
    }

    Component {
        id: tooltipComponent

        VynToolTip {
            parent: root
            vynStyle: root.tooltipStyle
            vynPixelRatio: root.vynPixelRatio
            vynPixelRatioFont: root.vynPixelRatioFont
            font: root.font
            text: root.tooltipText
            visible: text !== "" && mouseArea.containsMouse
        }
    }
}
