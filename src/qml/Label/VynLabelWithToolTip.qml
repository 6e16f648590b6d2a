import QtQuick
import VynUI 1.2

// A VynLabel that shows a tooltip while the mouse is over it; the tooltip text defaults to
// the label's text, and no tooltip (and no hover tracking) appears while it is empty.
//
// Mouse presses, releases, clicks and double clicks are accepted by the label only when
// mouseAccepted is true; otherwise they reach the items below it. The tooltip takes the
// label's style unless tooltipStyle is set: it should follow the application's style,
// which may differ from the label's.
VynLabel {
    id: root

    property bool mouseAccepted: false

    property alias labelMouseArea: mouseArea
    property alias labelTooltip: tooltip
    property alias tooltipText: tooltip.text
    property alias tooltipStyle: tooltip.vynStyle
    property alias isHoverEnabled: mouseArea.hoverEnabled

    MouseArea {
        id: mouseArea

        anchors.fill: parent
        hoverEnabled: tooltip.text !== ""
        propagateComposedEvents: !root.mouseAccepted
        onPressed: mouse => mouse.accepted = root.mouseAccepted
        onReleased: mouse => mouse.accepted = root.mouseAccepted
        onClicked: mouse => mouse.accepted = root.mouseAccepted
        onDoubleClicked: mouse => mouse.accepted = root.mouseAccepted
    }

    VynToolTip {
        id: tooltip

        parent: root
        vynStyle: root.vynStyle
        vynPixelRatio: root.vynPixelRatio
        vynPixelRatioFont: root.vynPixelRatioFont
        font: root.font
        text: root.text
        visible: text !== "" && mouseArea.containsMouse
    }
}
