import QtQuick
import VynUI 1.2

import "../Private/ColorIconShape.js" as ColorIconShape

// A rounded colour swatch: the tint a user gave to a zone, group or device.
//
// The swatch is filled with `color` under a faint top-to-bottom shade and framed by the
// catalogue's colour-icon border for the tint (darker in the light style, lighter in the dark
// style), with the catalogue's colour-icon shadow along its bottom edge. A swatch without a colour (transparent, or setIndex(-1)) shows an
// empty well crossed by a thin diagonal line. When `allowsMixed` and `mixed` are both set
// (a selection whose members carry different colours) the well shows diagonal stripes of
// the tint, or of a neutral grey when there is no tint.
//
// setIndex(i) picks entry i (modulo the palette size) of `colors`, the palette of tints the
// user chooses from (by default the catalogue's colour factory); a negative index clears the
// colour. Metrics and colours come from VynUIQmlConstants and scale with vynPixelRatio.
//
// The swatch is built from scene-graph items (rounded rectangles, and thin rotated rectangles
// for the lines), so it draws the same way in every renderer and keeps no painting surface of
// its own. The lines are cut to the rounded outline of the well by lineSegments().
Item {
    id: root

    property color color: "transparent"
    // Palette entry last chosen with setIndex(); -1 for none. Not named `index`, so that an icon
    // inside a delegate still sees the delegate's model index.
    property int colorIndex: -1
    property bool allowsMixed: false
    property bool mixed: false
    property int vynStyle: VynColorUtils.VynStyleDark
    property real vynPixelRatio: 1.0
    // Metrics and colours for the icon's look (see VynItem); the ratio is kept above 0.1.
    readonly property VynUIMetrics vynMetrics: VynUIQmlConstants.metrics(VynViewUtils.VynControlSizeRegular,
                                                                         Math.max(vynPixelRatio, 0.1), 1.0,
                                                                         vynStyle)
    property real size: VynUIQmlConstants.colorIconHeight(VynViewUtils.VynControlSizeRegular, vynPixelRatio)

    // The user-selectable tints, in palette order.
    property var colors: ColorIconShape.palette(VynUIQmlConstants)

    readonly property bool showsMixed: allowsMixed && mixed
    readonly property bool hasColor: color.a > 0

    function setIndex(p_index) {
        colorIndex = p_index
        if (p_index >= 0 && colors && colors.length > 0)
            color = colors[p_index % colors.length]
        else
            color = "transparent"
    }

    implicitWidth: size
    implicitHeight: size

    Item {
        id: swatch

        // The well: the whole width, the height less the shadow below it.
        readonly property real shadowOffset: root.vynMetrics.colorIconBorder
        readonly property real wellHeight: height - shadowOffset
        readonly property real radius: Math.min(width, wellHeight) * 0.2
        // The lines drawn in the well (see ColorIconShape.lineSegments): stripes of the tint
        // (or of the tertiary label colour without one) for a mixed selection, a diagonal in
        // the control border red for no colour, none for a plain tint.
        readonly property bool drawable: width > 0 && wellHeight > 0
        readonly property var segments: drawable && (root.showsMixed || !root.hasColor)
                                        ? ColorIconShape.lineSegments(
                                              width, wellHeight, radius, root.showsMixed,
                                              root.hasColor ? root.color : root.vynMetrics.labelColorTertiary,
                                              root.vynMetrics.colorIconMixedLineWidth,
                                              4 * root.vynMetrics.colorIconMixedLineWidth
                                              + root.vynMetrics.colorIconMixedLineOffset,
                                              root.vynMetrics.controlBorderRedColor,
                                              root.vynMetrics.colorIconBorder)
                                        : []

        anchors.fill: parent
        visible: drawable

        // Drop shadow, visible only along the bottom edge.
        Rectangle {
            y: swatch.shadowOffset
            width: swatch.width
            height: swatch.wellHeight
            radius: swatch.radius
            color: root.vynMetrics.colorIconShadowColor
        }

        Rectangle {
            width: swatch.width
            height: swatch.wellHeight
            radius: swatch.radius
            color: root.hasColor && !root.showsMixed ? root.color : root.vynMetrics.textViewBackgroundColor
        }

        Repeater {
            model: swatch.segments

            Rectangle {
                required property var modelData

                x: modelData.centerX - width / 2
                y: modelData.centerY - height / 2
                width: modelData.length
                height: modelData.lineWidth
                rotation: modelData.angle
                color: modelData.color
                antialiasing: true
            }
        }

        // A faint shade from top to bottom gives the swatch some depth; the frame over it.
        Rectangle {
            width: swatch.width
            height: swatch.wellHeight
            radius: swatch.radius
            gradient: root.vynMetrics.style === VynColorUtils.VynStyleLight ? VynGradients.colorIconShadeLight
                                                                            : VynGradients.colorIconShadeDark
            border.width: root.vynMetrics.colorIconBorder
            border.color: root.hasColor ? VynUIQmlConstants.colorIconBorderColorForStyle(root.color, root.vynStyle)
                                        : root.vynMetrics.labelColorTertiary
        }
    }
}
