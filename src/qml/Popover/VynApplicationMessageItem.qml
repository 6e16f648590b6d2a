pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import VynUI 1.2

// The content of a message: an icon for its level, a title, the message text, an optional
// check box and one button per action. It sizes itself (implicitWidth, implicitHeight) so
// that its buttons are never clipped: give it a width at least its implicit width.
//
// A click on a button, or Enter/Return (the default button, index defaultButtonIndex) and
// Escape (the cancel button, cancelButtonIndex, or -1 when there is none) call
// parentObject.popupButtonClickedCallback(index, button) and emit buttonClicked(index).
// Tab moves between the buttons and the check box; Space presses the focused one.
//
// - level, type: QApplicationMessage.Level_... and Type_...; level picks the icon and
//   the title colour, type is informative.
// - componentModel: the actions (each with a `text`), as QApplicationMessage.actions gives
//   them, or a list of strings.
FocusScope {
    id: root

    property int vynStyle: VynColorUtils.VynStyleDark
    property int vynControlSize: VynViewUtils.VynControlSizeRegular
    property real vynPixelRatio: 1.0
    property real vynPixelRatioFont: 1.0

    property var parentObject: null
    property real parentParentHeight: 1000
    property bool hasIcon: true
    property int level: QApplicationMessage.Level_Note
    property int type: QApplicationMessage.Type_Basic
    property string title: ""
    property string message: ""
    property var componentModel: []
    property bool hasCheckbox: false
    property string checkboxText: ""
    property bool isChecked: false
    property int defaultButtonIndex: 0
    property int cancelButtonIndex: -1
    // The buttons' objectNames are this prefix and their index.
    property string buttonObjectNamePrefix: "vynMessageButton"

    signal buttonClicked(int index)

    readonly property real __margin: VynUIQmlConstants.marginSpace(vynControlSize, vynPixelRatio)
    readonly property real __iconSize: VynUIQmlConstants.colorIconHeight(vynControlSize, vynPixelRatio) * 1.4
    readonly property real __maxTextWidth: 2 * VynUIQmlConstants.popoverGenericWidth(vynControlSize, vynPixelRatio)
    readonly property int __count: componentModel ? componentModel.length : 0
    readonly property color __textColor: VynUIQmlConstants.labelColorForStyle(vynStyle, 0)
    readonly property color __detailColor: VynUIQmlConstants.labelColorForStyle(vynStyle, 1)

    // A hint takes the width its popover gives it and wraps its text: only its buttons widen
    // it. Other messages grow with their text up to twice the generic popover width.
    implicitWidth: Math.max(buttons.implicitWidth,
                            type === QApplicationMessage.Type_Hint ? 0 : textColumnWidth + (hasIcon ? __iconSize + __margin : 0))
    implicitHeight: content.implicitHeight
    readonly property real textColumnWidth: Math.min(__maxTextWidth, Math.max(titleMetrics.width, messageMetrics.width))

    Accessible.role: Accessible.AlertMessage
    Accessible.name: title
    Accessible.description: message

    function __textOf(p_entry) {
        if (p_entry === null || p_entry === undefined)
            return ""
        return typeof p_entry === "string" ? p_entry : p_entry.text
    }

    // Runs the button at p_index (no-op for an index outside the buttons, but -1 is reported:
    // it is the "dismissed without a choice" answer).
    function click(p_index) {
        if (p_index >= root.__count || p_index < -1)
            return
        const button = p_index >= 0 ? buttonRepeater.itemAt(p_index) : null
        root.buttonClicked(p_index)
        if (root.parentObject && typeof root.parentObject.popupButtonClickedCallback === "function")
            root.parentObject.popupButtonClickedCallback(p_index, button)
    }

    Keys.onReturnPressed: root.click(root.defaultButtonIndex)
    Keys.onEnterPressed: root.click(root.defaultButtonIndex)
    Keys.onEscapePressed: (event) => {
        if (root.cancelButtonIndex >= 0 || root.type !== QApplicationMessage.Type_Hint) {
            root.click(root.cancelButtonIndex)
            event.accepted = true
        } else {
            event.accepted = false
        }
    }

    TextMetrics {
        id: titleMetrics
        font: titleText.font
        text: root.title
    }
    TextMetrics {
        id: messageMetrics
        font: messageText.font
        text: root.message
    }

    ColumnLayout {
        id: content
        width: root.width
        spacing: root.__margin

        RowLayout {
            Layout.fillWidth: true
            spacing: root.__margin

            Item {
                visible: root.hasIcon
                Layout.preferredWidth: root.__iconSize
                Layout.preferredHeight: root.__iconSize
                Layout.alignment: Qt.AlignTop

                // Notes and infos: a round badge with an "i"; warnings and critical
                // messages: the warning sign.
                Rectangle {
                    anchors.fill: parent
                    visible: root.level < QApplicationMessage.Level_Warn
                    radius: width / 2
                    color: VynUIQmlConstants.flatButtonFillColorForStyle(root.vynStyle, 1)
                    Text {
                        anchors.centerIn: parent
                        text: "i"
                        font.family: VynFonts.vynFamilyBold
                        font.weight: VynFonts.vynWeightBold
                        font.pixelSize: parent.height * 0.65
                        color: VynUIQmlConstants.flatButtonTextColorForStyle(root.vynStyle, 1)
                    }
                }
                Image {
                    anchors.fill: parent
                    visible: root.level >= QApplicationMessage.Level_Warn
                    source: visible ? VynImages.url("warning", root.vynStyle) : ""
                    sourceSize.width: width
                    sourceSize.height: height
                }
            }

            ColumnLayout {
                Layout.fillWidth: true
                spacing: root.__margin / 2

                Text {
                    id: titleText
                    Layout.fillWidth: true
                    visible: text.length > 0
                    text: root.title
                    wrapMode: Text.Wrap
                    color: root.level >= QApplicationMessage.Level_Critical
                           ? VynUIQmlConstants.controlBorderRedColorForStyle(root.vynStyle) : root.__textColor
                    font.family: VynFonts.vynFamilySemiBold
                    font.weight: VynFonts.vynWeightSemiBold
                    font.pixelSize: VynUIQmlConstants.fontSizePopoverTitle(root.vynPixelRatioFont)
                }
                Text {
                    id: messageText
                    Layout.fillWidth: true
                    visible: text.length > 0
                    text: root.message
                    wrapMode: Text.Wrap
                    color: root.__detailColor
                    lineHeight: 1.15
                    font.family: VynFonts.vynFamilyRegular
                    font.pixelSize: VynUIQmlConstants.fontSizePopoverLabel(root.vynPixelRatioFont)
                }
            }
        }

        // The optional check box: a small square with a tick, the text beside it.
        Item {
            id: checkbox
            objectName: "vynMessageCheckbox"
            visible: root.hasCheckbox
            Layout.fillWidth: true
            implicitHeight: Math.max(box.height, checkLabel.implicitHeight)
            activeFocusOnTab: visible
            Accessible.role: Accessible.CheckBox
            Accessible.name: root.checkboxText
            Accessible.checkable: true
            Accessible.checked: root.isChecked
            Accessible.onPressAction: root.isChecked = !root.isChecked
            Keys.onSpacePressed: root.isChecked = !root.isChecked

            Rectangle {
                id: box
                width: VynUIQmlConstants.checkBoxHeight(root.vynControlSize, root.vynPixelRatio)
                height: width
                anchors.verticalCenter: parent.verticalCenter
                radius: 3 * root.vynPixelRatio
                color: root.isChecked ? VynUIQmlConstants.flatButtonFillColorForStyle(root.vynStyle, 1)
                                      : VynUIQmlConstants.popoverButtonFillColor(root.vynStyle)
                border.width: VynUIQmlConstants.flatButtonBorder(root.vynPixelRatio)
                border.color: checkbox.activeFocus ? VynUIQmlConstants.yellowSelectionColor()
                                                   : VynUIQmlConstants.popoverButtonBorderColor(root.vynStyle)
                Text {
                    anchors.centerIn: parent
                    visible: root.isChecked
                    text: "\u2713"
                    color: VynUIQmlConstants.flatButtonTextColorForStyle(root.vynStyle, 1)
                    font.pixelSize: parent.height * 0.8
                }
            }
            Text {
                id: checkLabel
                anchors.left: box.right
                anchors.leftMargin: root.__margin / 2
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: root.checkboxText
                wrapMode: Text.Wrap
                color: root.__textColor
                font.family: VynFonts.vynFamilyRegular
                font.pixelSize: VynUIQmlConstants.fontSizePopoverLabel(root.vynPixelRatioFont)
            }
            MouseArea {
                anchors.fill: parent
                onClicked: root.isChecked = !root.isChecked
            }
        }

        Row {
            id: buttons
            visible: root.__count > 0
            Layout.alignment: Qt.AlignRight
            spacing: root.__margin
            layoutDirection: Qt.RightToLeft

            Repeater {
                id: buttonRepeater
                model: root.__count

                // A flat button; the default one is filled with the accent colour.
                Rectangle {
                    id: button
                    required property int index
                    readonly property bool isDefault: index === root.defaultButtonIndex
                    readonly property string text: root.__textOf(root.componentModel[index])
                    objectName: root.buttonObjectNamePrefix + index
                    implicitWidth: Math.max(VynUIQmlConstants.flatButtonMinWidth(root.vynControlSize, root.vynPixelRatio) * 2.4,
                                            label.implicitWidth + 4 * VynUIQmlConstants.flatButtonTitleInsetsH(root.vynControlSize, root.vynPixelRatio))
                    width: implicitWidth
                    height: VynUIQmlConstants.flatButtonHeight(root.vynControlSize, root.vynPixelRatio)
                    radius: VynUIQmlConstants.flatButtonCornerRadius(root.vynControlSize, root.vynPixelRatio)
                    color: mouse.pressed ? VynUIQmlConstants.controlTouchOverColorForStyle(root.vynStyle)
                         : isDefault ? VynUIQmlConstants.flatButtonFillColorForStyle(root.vynStyle, 1)
                         : VynUIQmlConstants.popoverButtonFillColor(root.vynStyle)
                    border.width: activeFocus ? 2 * VynUIQmlConstants.flatButtonBorder(root.vynPixelRatio)
                                              : VynUIQmlConstants.flatButtonBorder(root.vynPixelRatio)
                    border.color: activeFocus ? VynUIQmlConstants.yellowSelectionColor()
                                : isDefault ? VynUIQmlConstants.flatButtonBorderColorForStyle(root.vynStyle, 1)
                                : VynUIQmlConstants.popoverButtonBorderColor(root.vynStyle)
                    activeFocusOnTab: true
                    Accessible.role: Accessible.Button
                    Accessible.name: text
                    Accessible.onPressAction: root.click(index)
                    Keys.onSpacePressed: root.click(index)

                    Text {
                        id: label
                        anchors.centerIn: parent
                        text: button.text
                        color: button.isDefault ? VynUIQmlConstants.flatButtonTextColorForStyle(root.vynStyle, 1)
                                                : root.__textColor
                        font.family: VynFonts.vynFamilyMedium
                        font.weight: VynFonts.vynWeightMedium
                        font.pixelSize: VynUIQmlConstants.fontSizePopoverButton(root.vynPixelRatioFont)
                    }
                    MouseArea {
                        id: mouse
                        anchors.fill: parent
                        onClicked: root.click(button.index)
                    }
                }
            }
        }
    }
}
