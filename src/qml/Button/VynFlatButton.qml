import QtQuick
import VynUI 1.2

// A flat button: a filled rounded rectangle in the flat colours of its style, filled with the
// accent when on and with the mixed fill when its parameters disagree.
VynButton {
    id: root

    implicitHeight: vynMetrics.flatButtonHeight
    implicitWidth: Math.max(vynMetrics.flatButtonMinWidth,
                            Math.ceil(_label.implicitWidth) + 2 * vynMetrics.flatButtonTitleInsetsH)
    focusRadius: vynMetrics.flatButtonCornerRadius

    Rectangle {
        anchors.fill: parent
        radius: root.vynMetrics.flatButtonCornerRadius
        color: root.vynMetrics.flatButtonFillColor(root._colorState)
        border.width: root.vynMetrics.bezelButtonBorder
        border.color: root.vynMetrics.flatButtonBorderColor(root._colorState)
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
        color: root.vynMetrics.flatButtonTextColor(root._colorState)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
}
