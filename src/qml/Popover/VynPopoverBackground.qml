import QtQuick
import QtQuick.Shapes
import VynUI 1.2

// The panel of a VynPopover: a rounded rectangle in the popover colours of the popover's
// style, with the arrow on its top edge (arrowEdge VynPopover.ArrowTop) or its bottom edge,
// its tip arrowX from the left, over a soft shadow.
Item {
    id: frame

    // The popover the panel belongs to; the panel follows its style, ratio and placement.
    property var popover: null

    readonly property int vynStyle: popover ? popover.vynStyle : VynColorUtils.VynStyleDark
    readonly property real vynPixelRatio: popover ? popover.vynPixelRatio : 1.0
    readonly property int arrowEdge: popover ? popover.arrowEdge : VynPopover.ArrowTop
    readonly property real arrowX: popover ? popover.arrowX : width / 2
    readonly property real arrowSize: popover ? popover.arrowSize : 10
    readonly property real cornerRadius: popover ? popover.cornerRadius : 7
    readonly property real borderWidth: popover ? popover.borderWidth : 1

    // The outline's edges and the arrow's place, as the outline reads them.
    readonly property real panelTop: arrowEdge === VynPopover.ArrowTop ? arrowSize : 0
    readonly property real panelBottom: height - (arrowEdge === VynPopover.ArrowBottom ? arrowSize : 0)
    readonly property real half: borderWidth / 2
    readonly property real rad: Math.max(0, Math.min(cornerRadius, (panelBottom - panelTop) / 2, width / 2))
    readonly property bool arrowUp: arrowEdge === VynPopover.ArrowTop

    Accessible.ignored: true

    // The outline, shared by the shadow and the panel.
    component Outline: ShapePath {
        id: outline
        property real w
        property real top
        property real bottom
        property real half
        property real rad
        property real ax
        property real asz
        property bool up
        readonly property real l: half
        readonly property real r: w - half
        readonly property real t: top + half
        readonly property real b: bottom - half
        startX: l + rad
        startY: t
        PathLine { x: outline.up ? outline.ax - outline.asz : outline.l + outline.rad; y: outline.t }
        PathLine { x: outline.up ? outline.ax : outline.l + outline.rad; y: outline.up ? outline.t - outline.asz : outline.t }
        PathLine { x: outline.up ? outline.ax + outline.asz : outline.l + outline.rad; y: outline.t }
        PathLine { x: outline.r - outline.rad; y: outline.t }
        PathArc { x: outline.r; y: outline.t + outline.rad; radiusX: outline.rad; radiusY: outline.rad }
        PathLine { x: outline.r; y: outline.b - outline.rad }
        PathArc { x: outline.r - outline.rad; y: outline.b; radiusX: outline.rad; radiusY: outline.rad }
        PathLine { x: outline.up ? outline.r - outline.rad : outline.ax + outline.asz; y: outline.b }
        PathLine { x: outline.up ? outline.r - outline.rad : outline.ax; y: outline.up ? outline.b : outline.b + outline.asz }
        PathLine { x: outline.up ? outline.r - outline.rad : outline.ax - outline.asz; y: outline.b }
        PathLine { x: outline.l + outline.rad; y: outline.b }
        PathArc { x: outline.l; y: outline.b - outline.rad; radiusX: outline.rad; radiusY: outline.rad }
        PathLine { x: outline.l; y: outline.t + outline.rad }
        PathArc { x: outline.l + outline.rad; y: outline.t; radiusX: outline.rad; radiusY: outline.rad }
    }

    // A soft shadow under the panel, offset as the catalogue says.
    Shape {
        anchors.fill: parent
        anchors.topMargin: VynUIQmlConstants.popoverShadowOffsetH(frame.vynPixelRatio)
        anchors.leftMargin: VynUIQmlConstants.popoverShadowOffsetW(frame.vynPixelRatio)
        opacity: 0.5
        Outline {
            w: frame.width
            top: frame.panelTop
            bottom: frame.panelBottom
            half: frame.half
            rad: frame.rad
            ax: frame.arrowX
            asz: frame.arrowSize
            up: frame.arrowUp
            fillColor: VynUIQmlConstants.popoverShadowColorForStyle(frame.vynStyle)
            strokeColor: VynUIQmlConstants.popoverShadowColorForStyle(frame.vynStyle)
            strokeWidth: frame.borderWidth * 2
        }
    }
    Shape {
        anchors.fill: parent
        Outline {
            w: frame.width
            top: frame.panelTop
            bottom: frame.panelBottom
            half: frame.half
            rad: frame.rad
            ax: frame.arrowX
            asz: frame.arrowSize
            up: frame.arrowUp
            // The catalogue's popover colour is translucent; the panel shows it over the
            // window colour so that nothing behind it shows through.
            fillColor: VynUIQmlConstants.noAlphaColorOverColor(
                           VynUIQmlConstants.popoverBackgroundColorForStyle(frame.vynStyle),
                           VynUIQmlConstants.windowBackgroundColorForStyle(frame.vynStyle))
            strokeColor: VynUIQmlConstants.popoverBorderColorForStyle(frame.vynStyle)
            strokeWidth: frame.borderWidth
        }
    }

}
