import QtQuick
import VynUI 1.2

// The popover of a hint: a VynPopover holding a message item filled from hintData, a copy
// of the presented hint that the popover owns (so that it can still draw the hint while it
// fades out after the manager has moved on). A button runs the hint's action of that index
// and closes the popover.
VynPopover {
    id: root

    property real parentParentHeight: 1000
    property var hintData: null

    preferredWidth: VynUIQmlConstants.getConstantValue(root.hintData ? root.hintData.preferredWidth : 200, root.vynPixelRatio)
    contentWidth: Math.max(root.preferredWidth, root.contentItem ? root.contentItem.implicitWidth : 0)
    contentHeight: root.contentItem ? root.contentItem.implicitHeight : 0
    minHeight: 10
    preferredArrowOrientation: root.hintData ? root.hintData.preferredArrowOrientation : VynPopover.ArrowDefault

    function popupButtonClickedCallback(p_index, p_button) {
        if (!root.visible)
            return
        root.executeAction(p_index)
        root.close()
    }

    function executeAction(p_index) {
        if (root.hintData && root.hintData.hasAction())
            root.hintData.executeAction(p_index)
    }

    contentItem: VynApplicationMessageItem {
        focus: true
        vynStyle: root.vynStyle
        vynControlSize: root.vynControlSize
        vynPixelRatio: root.vynPixelRatio
        vynPixelRatioFont: root.vynPixelRatioFont
        parentObject: root
        parentParentHeight: root.parentParentHeight
        hasIcon: false
        level: root.hintData ? root.hintData.level : QApplicationMessage.Level_Note
        type: QApplicationMessage.Type_Hint
        title: root.hintData ? root.hintData.title : ""
        message: root.hintData ? root.hintData.string : ""
        componentModel: root.hintData ? root.hintData.actions : []
        hasCheckbox: root.hintData ? root.hintData.hasCheckbox : false
        checkboxText: root.hintData ? root.hintData.checkboxText : ""
        isChecked: root.hintData ? root.hintData.isChecked : false
        width: root.preferredWidth
    }
}
