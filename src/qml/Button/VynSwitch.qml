import QtQuick
import VynUI 1.2

// A switch: a pill track with a round knob, on at the right in the on gradient, off at the
// left, and the knob in the middle of the mixed gradient when its parameters disagree.
VynButton {
    id: root

    implicitHeight: vynMetrics.switchButtonHeight
    implicitWidth: vynMetrics.switchButtonWidth
    focusRadius: height / 2

    Rectangle {
        id: _track
        anchors.fill: parent
        radius: height / 2
        border.width: root.vynMetrics.bezelButtonBorder
        border.color: root._colorState === 0 ? root.vynMetrics.controlBorderColor
                                              : root.vynMetrics.controlBorderColorOn
        gradient: root.mixed ? VynGradients.mixedVertical
                  : root.checked ? VynGradients.onVertical
                  : root.vynMetrics.style === VynColorUtils.VynStyleLight ? VynGradients.offLightVertical
                                                                          : VynGradients.offDarkVertical
    }
    Rectangle {
        readonly property real _inset: Math.max(2, Math.round(root.height * 0.1))
        width: root.height - 2 * _inset
        height: width
        radius: width / 2
        y: _inset
        x: root.mixed ? (root.width - width) / 2 : root.checked ? root.width - width - _inset : _inset
        color: root.pressed ? root.vynMetrics.controlColor : root.vynMetrics.controlTextColorOn
        border.width: root.vynMetrics.bezelButtonBorder
        border.color: root.vynMetrics.controlBorderColor
        Behavior on x {
            NumberAnimation {
                duration: 120
                easing.type: Easing.OutCubic
            }
        }
    }
}
