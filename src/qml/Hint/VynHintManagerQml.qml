import QtQuick
import VynUI 1.2

// A hint manager that shows the presented hint in a VynHintPopover pointing at the hint's
// presenting view. Declare one per window; controls find it through
// VynUIQmlConstants.hintManagerForQmlObject(item).
//
// When the presented hint changes, the popover on screen closes at once and a new one opens
// for the new hint. The popover holds a copy of the hint; when the user closes it (Escape, a
// press outside, one of its buttons) the manager hears of it through onHintClosed() and
// moves on to the next hint.
VynHintManager {
    id: root

    property var hintPopover: null
    property int vynStyle: VynColorUtils.VynStyleDark
    property real vynPixelRatio: 1.0
    property real vynPixelRatioFont: 1.0
    // The height of the host's main window when the host names one "mainWindow" in the
    // context, else 400.
    property real parentHeight: {
        // qmllint disable unqualified
        return (typeof mainWindow !== "undefined" && mainWindow) ? mainWindow.height : 400
        // qmllint enable unqualified
    }

    onPresentedHintChanged: {
        root.closeHintPopover()
        if (root.presentedHint)
            root.openHintPopover()
    }

    function closeHintPopover() {
        if (root.hintPopover === null)
            return
        const popover = root.hintPopover
        root.hintPopover = null
        popover.closeAnimationDuration = 0
        popover.close()
    }

    function openHintPopover() {
        if (root.hintPopover !== null)
            return
        const hint = root.presentedHint
        const popover = popoverComponent.createObject(hint.presentingView, {
            vynStyle: root.vynStyle,
            vynPixelRatio: root.vynPixelRatio,
            vynPixelRatioFont: root.vynPixelRatioFont
        })
        if (popover === null) {
            console.log("Error creating VynHintPopover")
            return
        }
        popover.parentParentHeight = root.parentHeight
        popover.hintData = root.getPresentedHintCopy(popover)
        popover.closed.connect(function() {
            if (root)
                root.onHintPopoverClosed(popover)
        })
        root.hintPopover = popover
        popover.open()
    }

    function onHintPopoverClosed(p_popover) {
        if (p_popover.hintData !== null && p_popover.hintData !== undefined) {
            root.onHintClosed(p_popover.hintData)
            if (root.hintPopover === p_popover)
                root.hintPopover = null
            p_popover.destroy()
        } else if (root.hintPopover === p_popover) {
            root.hintPopover = null
        }
    }

    property Component __popoverComponent: Component {
        id: popoverComponent
        VynHintPopover {}
    }
}
