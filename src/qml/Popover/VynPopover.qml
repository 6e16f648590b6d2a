import QtQuick
import QtQuick.Controls
import VynUI 1.2

// A popover: a rounded panel in the popover colours of its style, with an arrow that points
// at its presenting view (the popover's parent item). It opens above or below the view and
// always stays inside the window.
//
// - preferredArrowOrientation: ArrowDefault puts the popover below a view in the upper half
//   of the window (arrow on its top edge) and above a view in the lower half (arrow on its
//   bottom edge); ArrowTop and ArrowBottom choose the edge that carries the arrow. When the
//   chosen side has no room and the other has, the popover moves to the other side.
// - preferredWidth: the width of the content a document asks for; contentWidth and
//   contentHeight (Popup's own) size the content, never below minHeight.
// - open() shows it with a short fade and grow, close() hides it with a fade of
//   closeAnimationDuration ms (0 closes at once); closed() follows. Escape, a press outside
//   the popover and the parent view's disappearance close it.
Popup {
    id: root

    enum ArrowOrientation {
        ArrowDefault = 0,
        ArrowTop = 1,
        ArrowBottom = 2
    }

    property int vynStyle: VynColorUtils.VynStyleDark
    property int vynControlSize: VynViewUtils.VynControlSizeRegular
    property real vynPixelRatio: 1.0
    property real vynPixelRatioFont: 1.0

    property real preferredWidth: VynUIQmlConstants.popoverGenericWidth(vynControlSize, vynPixelRatio)
    property real minHeight: 10
    property int preferredArrowOrientation: VynPopover.ArrowDefault
    property int openAnimationDuration: 160
    property int closeAnimationDuration: 120

    // Where the popover went at the last placement: the edge its arrow is on (ArrowTop or
    // ArrowBottom) and the arrow tip's distance from the popover's left edge.
    readonly property int arrowEdge: __arrowEdge
    readonly property real arrowX: __arrowX

    readonly property real arrowSize: VynUIQmlConstants.popoverArrowSize(vynPixelRatio)
    readonly property real cornerRadius: VynUIQmlConstants.popoverCornerRadius(vynPixelRatio)
    readonly property real borderWidth: VynUIQmlConstants.popoverBorderWidth(vynPixelRatio)
    readonly property real windowMargin: VynUIQmlConstants.marginSpace(VynViewUtils.VynControlSizeRegular, vynPixelRatio)

    property int __arrowEdge: VynPopover.ArrowTop
    property real __arrowX: width / 2

    contentWidth: preferredWidth
    // The arrow's room is counted once whichever edge carries it, so that placing the popover
    // (which picks the edge) never changes its height.
    implicitHeight: Math.max(minHeight, contentHeight) + 2 * padding + arrowSize
    padding: VynUIQmlConstants.marginPopover(vynControlSize, vynPixelRatio)
    topPadding: padding + (__arrowEdge === VynPopover.ArrowTop ? arrowSize : 0)
    bottomPadding: padding + (__arrowEdge === VynPopover.ArrowBottom ? arrowSize : 0)
    margins: -1 // placement below keeps the popover in the window itself
    focus: true
    modal: false
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

    // Places the popover beside its parent item; runs on opening and when its size changes.
    function place() {
        const view = root.parent
        const win = view ? view.Window.window : null
        if (!view || !win || !win.contentItem)
            return
        const area = win.contentItem
        const r = view.mapToItem(area, 0, 0, view.width, view.height)
        const w = root.width
        const h = root.height
        let edge = root.preferredArrowOrientation
        if (edge !== VynPopover.ArrowTop && edge !== VynPopover.ArrowBottom)
            edge = (r.y + r.height / 2 < area.height / 2) ? VynPopover.ArrowTop : VynPopover.ArrowBottom
        const roomBelow = area.height - (r.y + r.height) - root.windowMargin
        const roomAbove = r.y - root.windowMargin
        if (edge === VynPopover.ArrowTop && roomBelow < h && roomAbove >= h)
            edge = VynPopover.ArrowBottom
        else if (edge === VynPopover.ArrowBottom && roomAbove < h && roomBelow >= h)
            edge = VynPopover.ArrowTop
        root.__arrowEdge = edge

        const centreX = r.x + r.width / 2
        const maxX = Math.max(root.windowMargin, area.width - w - root.windowMargin)
        const px = Math.min(Math.max(centreX - w / 2, root.windowMargin), maxX)
        let py = edge === VynPopover.ArrowTop ? r.y + r.height : r.y - h
        py = Math.min(Math.max(py, root.windowMargin), Math.max(root.windowMargin, area.height - h - root.windowMargin))
        const inset = root.cornerRadius + root.arrowSize
        root.__arrowX = Math.min(Math.max(centreX - px, inset), Math.max(inset, w - inset))
        root.x = px - r.x
        root.y = py - r.y
    }

    onAboutToShow: {
        root.__shown = true
        root.place()
    }
    onWidthChanged: if (visible) place()
    onHeightChanged: if (visible) place()

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: root.openAnimationDuration; easing.type: Easing.OutCubic }
        NumberAnimation { property: "scale"; from: 0.96; to: 1; duration: root.openAnimationDuration; easing.type: Easing.OutCubic }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: root.closeAnimationDuration; easing.type: Easing.InCubic }
    }

    // The panel is made on the first opening, not with the popover: most popovers are
    // declared long before they are shown, and many never are.
    property bool __shown: false

    background: Loader {
        active: root.__shown
        sourceComponent: VynPopoverBackground {}
        onLoaded: (item as VynPopoverBackground).popover = root
    }
}
