pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

// A popover combo: a combo box whose item list opens in a VynPopover pointing at it, for
// longer lists and for choices that deserve a panel of their own. It behaves as VynComboBox
// (selection, mixed state, keys, long press); the popover is made on its first opening.
VynComboBox {
    id: root

    popupComponent: VynPopover {
        id: _popover
        parent: root
        vynStyle: root.vynStyle
        vynControlSize: root.vynControlSize
        vynPixelRatio: root.vynPixelRatio
        vynPixelRatioFont: root.vynPixelRatioFont
        preferredWidth: Math.max(root.width, root.vynMetrics.popoverGenericWidth)
        onAboutToShow: (_popover.contentItem as ListView).currentIndex = root._firstSelected()
        onClosed: root.forceActiveFocus()
        contentItem: VynComboList {
            vynStyle: root.vynStyle
            vynControlSize: root.vynControlSize
            vynPixelRatio: root.vynPixelRatio
            vynPixelRatioFont: root.vynPixelRatioFont
            model: root.model
            selectedIndexes: root.selectedIndexes
            onChosen: function (p_index) { root._choose(p_index) }
        }
    }
}
