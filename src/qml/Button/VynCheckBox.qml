import QtQuick
import VynUI 1.2

// A check box with its title: a square box in the off gradient of its style, filled with the
// on gradient and a tick when on, and with the mixed gradient and a dash when its parameters
// disagree.
VynButton {
    id: root

    readonly property real _box: vynMetrics.checkBoxHeight

    implicitHeight: Math.max(_box, _label.implicitHeight)
    implicitWidth: _box + (text.length > 0 ? vynMetrics.marginSpace + Math.ceil(_label.implicitWidth) : 0)
    focusRadius: vynMetrics.bezelButtonCornerRadius

    Rectangle {
        id: _frame
        width: root._box
        height: root._box
        anchors.verticalCenter: parent.verticalCenter
        radius: root.vynMetrics.bezelButtonCornerRadius
        border.width: root.vynMetrics.bezelButtonBorder
        border.color: root._colorState === 0 ? root.vynMetrics.controlBorderColor
                                              : root.vynMetrics.controlBorderColorOn
        gradient: root.mixed ? VynGradients.mixedVertical
                  : root.checked ? VynGradients.onVertical
                  : root.vynMetrics.style === VynColorUtils.VynStyleLight ? VynGradients.offLightVertical
                                                                          : VynGradients.offDarkVertical

        // The tick: two strokes meeting low in the box.
        Item {
            anchors.fill: parent
            visible: root.checked
            Rectangle {
                x: parent.width * 0.2
                y: parent.height * 0.5
                width: parent.width * 0.32
                height: Math.max(1.5, parent.height * 0.13)
                radius: height / 2
                rotation: 45
                transformOrigin: Item.Left
                color: root.vynMetrics.controlTextColorOn
            }
            Rectangle {
                x: parent.width * 0.38
                y: parent.height * 0.72
                width: parent.width * 0.55
                height: Math.max(1.5, parent.height * 0.13)
                radius: height / 2
                rotation: -50
                transformOrigin: Item.Left
                color: root.vynMetrics.controlTextColorOn
            }
        }
        Rectangle {
            visible: root.mixed
            anchors.centerIn: parent
            width: parent.width * 0.55
            height: Math.max(1.5, parent.height * 0.13)
            radius: height / 2
            color: root.vynMetrics.controlMixedTickColor
        }
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: root.vynMetrics.controlTouchOverColor
            visible: root.pressed
        }
    }
    Text {
        id: _label
        visible: root.text.length > 0
        anchors.left: _frame.right
        anchors.leftMargin: root.vynMetrics.marginSpace
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        font.family: VynFonts.vynFamilyRegular
        font.pixelSize: root.vynMetrics.fontSize
        color: root.vynMetrics.labelColor
        elide: Text.ElideRight
    }
}
