import QtQuick
import VynUI 1.2

// A status light with a short label: green when all is well, amber for a warning, red for
// a fault, grey when offline. A click (or Space) explains the status in a hint with the
// identifier "status" whose text is the indicator's text, through the window's hint manager.
//
// - status: 0 offline, 1 ok, 2 warning, 3 fault.
// - text: the status in words, shown beside the light and in the hint.
VynItem {
    id: root

    property int status: 1
    property string text: ""
    property string hintTitle: qsTr("Status")

    readonly property alias hintData: hint

    implicitWidth: row.implicitWidth
    implicitHeight: Math.max(light.height, label.implicitHeight)
    activeFocusOnTab: true

    Accessible.role: Accessible.StatusBar
    Accessible.name: root.text
    Accessible.onPressAction: root.showHint()
    Keys.onSpacePressed: root.showHint()

    function showHint() {
        const manager = VynUIQmlConstants.hintManagerForQmlObject(root)
        return manager ? manager.scheduleHint(hint) : false
    }

    // The light's state in the LED colour tables: off, green, orange, red.
    readonly property int __ledState: root.status === 1 ? VynViewUtils.VynLedStateGreen
                                    : root.status === 2 ? VynViewUtils.VynLedStateOrange
                                    : root.status === 3 ? VynViewUtils.VynLedStateRed
                                    : VynViewUtils.VynLedStateGray

    VynHintData {
        id: hint
        identifier: "status"
        title: root.hintTitle
        string: root.text
        presentingView: root
    }

    Row {
        id: row
        spacing: VynUIQmlConstants.marginSpace(root.vynControlSize, root.vynPixelRatio)
        anchors.verticalCenter: parent.verticalCenter

        Rectangle {
            id: light
            anchors.verticalCenter: parent.verticalCenter
            width: VynUIQmlConstants.ledHeight(root.vynControlSize, root.vynPixelRatio)
            height: width
            radius: width / 2
            color: VynUIQmlConstants.ledFillColorForState(root.__ledState)
            border.width: Math.max(1, VynUIQmlConstants.ledBorder(root.vynPixelRatio))
            border.color: root.activeFocus ? VynUIQmlConstants.yellowSelectionColor()
                                           : VynUIQmlConstants.ledBorderColorForState(root.__ledState)
        }
        Text {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: VynUIQmlConstants.labelColorForStyle(root.vynStyle, 0)
            font.family: VynFonts.vynFamilyRegular
            font.pixelSize: VynUIQmlConstants.fontSize(root.vynControlSize, root.vynPixelRatioFont)
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.showHint()
    }
}
