import QtQuick
import QtQuick.Controls
import VynUI 1.2

// The module's tooltip: a small popover-coloured bubble for the given style, with the text
// in the label colour. Show it by binding `visible` (or through open() and close()).
ToolTip {
    id: root

    property int vynStyle: VynColorUtils.VynStyleDark
    property real vynPixelRatio: 1.0
    property real vynPixelRatioFont: 1.0

    font.pixelSize: VynUIQmlConstants.fontSize(VynViewUtils.VynControlSizeSmall, vynPixelRatioFont)
    font.family: VynFonts.vynFamilyRegular
    padding: VynUIQmlConstants.marginSpace(VynViewUtils.VynControlSizeRegular, vynPixelRatio)

    contentItem: Text {
        text: root.text
        font: root.font
        color: VynUIQmlConstants.labelColorForStyle(root.vynStyle, 0)
        wrapMode: Text.Wrap
    }

    background: Rectangle {
        color: VynUIQmlConstants.popoverBackgroundColorForStyle(root.vynStyle)
        border.color: VynUIQmlConstants.popoverBorderColorForStyle(root.vynStyle)
        radius: VynUIQmlConstants.popoverCornerRadius(root.vynPixelRatio)
    }
}
