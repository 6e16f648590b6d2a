import QtQuick
import VynUI 1.2

// A small round "?" button that explains the control beside it: a click (or Space, Enter)
// shows its hint, pointing at the button, through the window's hint manager; a second click
// while the hint is shown hides it again. Nothing happens while hintIdentifier or hintString
// is empty, or when the window has no manager.
VynItem {
    id: root

    property string hintIdentifier: ""
    property string hintTitle: ""
    property string hintString: ""
    property int hintDuration: 6000
    property bool hintHasDontShowAgainAction: false

    readonly property alias hintData: hint
    readonly property bool hovered: mouse.containsMouse

    signal clicked()

    implicitWidth: VynUIQmlConstants.inlineButtonHeight(vynControlSize, vynPixelRatio)
    implicitHeight: implicitWidth
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Help")
    Accessible.description: root.hintTitle.length > 0 ? root.hintTitle : root.hintString
    Accessible.onPressAction: root.showHint()

    Keys.onSpacePressed: root.showHint()
    Keys.onReturnPressed: root.showHint()
    Keys.onEnterPressed: root.showHint()

    // Schedules the button's hint; false when it was not shown (or was hidden by this call).
    function showHint() {
        root.clicked()
        if (root.hintIdentifier.length === 0 || root.hintString.length === 0)
            return false
        const manager = VynUIQmlConstants.hintManagerForQmlObject(root)
        if (!manager)
            return false
        return manager.scheduleHint(hint)
    }

    VynHintData {
        id: hint
        identifier: root.hintIdentifier
        title: root.hintTitle
        string: root.hintString
        duration: root.hintDuration
        hasDontShowAgainAction: root.hintHasDontShowAgainAction
        presentingView: root
    }

    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: mouse.pressed ? VynUIQmlConstants.controlTouchOverColorForStyle(root.vynStyle)
                             : VynUIQmlConstants.popoverButtonFillColor(root.vynStyle)
        border.width: root.activeFocus ? 2 * VynUIQmlConstants.flatButtonBorder(root.vynPixelRatio)
                                       : VynUIQmlConstants.flatButtonBorder(root.vynPixelRatio)
        border.color: root.activeFocus ? VynUIQmlConstants.yellowSelectionColor()
                    : mouse.containsMouse ? VynUIQmlConstants.flatButtonBorderColorForStyle(root.vynStyle, 1)
                    : VynUIQmlConstants.popoverButtonBorderColor(root.vynStyle)
        opacity: root.enabled ? 1 : VynUIQmlConstants.disabledAlpha()

        Text {
            anchors.centerIn: parent
            text: "?"
            color: VynUIQmlConstants.labelColorForStyle(root.vynStyle, 0)
            font.family: VynFonts.vynFamilySemiBold
            font.weight: VynFonts.vynWeightSemiBold
            font.pixelSize: Math.round(parent.height * 0.62)
        }
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.showHint()
    }
}
