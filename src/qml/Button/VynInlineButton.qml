import QtQuick
import VynUI 1.2

// An inline button: a small pill that sits in a line of text or a cell header (M, S, a
// stand-by sign), tinted in the inline colours of its style by state.
VynButton {
    id: root

    implicitHeight: vynMetrics.inlineButtonHeight
    implicitWidth: Math.max(vynMetrics.inlineButtonHeight,
                            Math.ceil(_label.implicitWidth) + 2 * vynMetrics.textFieldTextInsetsH)
    focusRadius: height / 2

    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: root.vynMetrics.inlineButtonColor(root._colorState)
    }
    Rectangle {
        anchors.fill: parent
        radius: height / 2
        color: root.vynMetrics.controlTouchOverColor
        visible: root.pressed
    }
    Text {
        id: _label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.width)
        text: root.text
        font.family: VynFonts.vynFamilySemiBold
        font.weight: VynFonts.vynWeightSemiBold
        font.pixelSize: root.vynMetrics.fontSizeInlineButton
        color: root._colorState === 0 ? root.vynMetrics.controlTextColor
                                       : root.vynMetrics.controlTextColorOn
        horizontalAlignment: Text.AlignHCenter
        elide: Text.ElideRight
    }
}
