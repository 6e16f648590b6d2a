import QtQuick
import VynUI 1.2

// A bezel button: the raised button of the module, with the off gradient of its style, the
// on gradient when on and the mixed gradient when its parameters disagree.
VynButton {
    id: root

    implicitHeight: vynMetrics.bezelButtonHeight
    implicitWidth: Math.max(vynMetrics.bezelButtonMinWidth,
                            Math.ceil(_label.implicitWidth) + 2 * vynMetrics.bezelButtonTitleInsetsH)
    focusRadius: vynMetrics.bezelButtonCornerRadius

    Rectangle {
        anchors.fill: parent
        radius: root.vynMetrics.bezelButtonCornerRadius
        border.width: root.vynMetrics.bezelButtonBorder
        border.color: root._colorState === 0 ? root.vynMetrics.controlBorderColor
                                              : root.vynMetrics.controlBorderColorOn
        gradient: root.mixed ? VynGradients.mixedVertical
                  : root.checked ? VynGradients.onVertical
                  : root.vynMetrics.style === VynColorUtils.VynStyleLight ? VynGradients.offLightVertical
                                                                          : VynGradients.offDarkVertical
    }
    Rectangle {
        anchors.fill: parent
        radius: root.vynMetrics.bezelButtonCornerRadius
        color: root.vynMetrics.controlTouchOverColor
        visible: root.pressed
    }
    Text {
        id: _label
        anchors.fill: parent
        anchors.leftMargin: root.vynMetrics.bezelButtonTitleInsetsH
        anchors.rightMargin: root.vynMetrics.bezelButtonTitleInsetsH
        text: root.text
        font.family: VynFonts.vynFamilyMedium
        font.weight: VynFonts.vynWeightMedium
        font.pixelSize: root.vynMetrics.fontSize
        color: root._colorState === 0 ? root.vynMetrics.controlTextColor
                                       : root.vynMetrics.controlTextColorOn
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
