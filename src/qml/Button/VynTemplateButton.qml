import QtQuick
import VynUI 1.2

// A template button: a flat tile in the template colours of its style that stands for one
// preset or configuration, accented when on and in the mixed tint when its parameters disagree.
VynButton {
    id: root

    implicitHeight: vynMetrics.flatButtonHeight
    implicitWidth: Math.max(vynMetrics.flatButtonMinWidth,
                            Math.ceil(_label.implicitWidth) + 2 * vynMetrics.flatButtonTitleInsetsH)
    focusRadius: vynMetrics.flatButtonCornerRadius

    Rectangle {
        anchors.fill: parent
        radius: root.vynMetrics.flatButtonCornerRadius
        color: root.vynMetrics.templateButtonColor(root._colorState)
    }
    Rectangle {
        anchors.fill: parent
        radius: root.vynMetrics.flatButtonCornerRadius
        color: root.vynMetrics.controlTouchOverColor
        visible: root.pressed
    }
    Text {
        id: _label
        anchors.fill: parent
        anchors.leftMargin: root.vynMetrics.flatButtonTitleInsetsH
        anchors.rightMargin: root.vynMetrics.flatButtonTitleInsetsH
        text: root.text
        font.family: VynFonts.vynFamilyMedium
        font.weight: VynFonts.vynWeightMedium
        font.pixelSize: root.vynMetrics.fontSizeFlatButton
        color: root.vynMetrics.templateButtonTextColor(root._colorState)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
