pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import VynUI 1.2

// A text label in the module's look: font size, family and colour come from the constants
// catalogue for the label's style, control size and level; an optional background in
// vynBkgdColor with a vynBorderColor border (both transparent by default).
Label {
    id: root

    property int vynStyle: VynColorUtils.VynStyleDark
    property real vynPixelRatio: 1.0
    property real vynPixelRatioFont: 1.0
    property int vynControlSize: VynViewUtils.VynControlSizeRegular
    // The catalogue's metrics and colours for this look (see VynItem).
    readonly property VynUIMetrics vynMetrics: VynUIQmlConstants.metrics(vynControlSize, vynPixelRatio,
                                                                         vynPixelRatioFont, vynStyle)
    // Emphasis level of the text colour: 0 primary, 1 secondary, 2 tertiary.
    property int level: 0
    property color vynBkgdColor: "transparent"
    property color vynBorderColor: "transparent"

    property alias fontSize: root.font.pixelSize
    property alias fontFamily: root.font.family
    property alias fontStyle: root.font.styleName
    property alias textColor: root.color

    font.pixelSize: vynMetrics.fontSize
    font.family: VynFonts.vynFamilyRegular
    verticalAlignment: Text.AlignVCenter
    elide: Text.ElideRight
    color: level <= 0 ? vynMetrics.labelColor : level === 1 ? vynMetrics.labelColorSecondary
                                                            : vynMetrics.labelColorTertiary

    // The background is made the first time it has something to show (a colour or a frame that
    // is not transparent): most labels never draw one.
    onVynBkgdColorChanged: _makeBackground()
    onVynBorderColorChanged: _makeBackground()
    function _makeBackground() {
        if (root.background === null && (root.vynBkgdColor.a > 0 || root.vynBorderColor.a > 0))
            root.background = root._backgroundComponent.createObject(root)
    }
    readonly property Component _backgroundComponent: Component {
        Rectangle {
            color: root.vynBkgdColor
            border.color: root.vynBorderColor
            radius: root.vynMetrics.flatButtonCornerRadius
        }
    }
}
