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
    // The catalogue's metrics and colours for this look (see VynItem).
    readonly property VynUIMetrics vynMetrics: VynUIQmlConstants.metrics(VynViewUtils.VynControlSizeRegular, vynPixelRatio,
                                                                         vynPixelRatioFont, vynStyle)

    font.pixelSize: VynUIQmlConstants.fontSize(VynViewUtils.VynControlSizeSmall, vynPixelRatioFont)
    font.family: VynFonts.vynFamilyRegular
    padding: vynMetrics.marginSpace

    contentItem: Text {
        text: root.text
        font: root.font
        color: root.vynMetrics.labelColor
        wrapMode: Text.Wrap
    }

    background: Rectangle {
        color: root.vynMetrics.popoverBackgroundColor
        border.color: root.vynMetrics.popoverBorderColor
        radius: root.vynMetrics.popoverCornerRadius
    }
}
