pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import VynUI 1.2

// A combo box: a popup button showing the chosen item, with an up-down chevron, that opens
// its item list below it.
//
// - model: the item texts. selectedIndexes: the chosen items; one index is a plain choice,
//   several a mixed selection (shown as the "MULTIPLE" text, and with a dash at each selected
//   item of the list), none shows noValueText.
// - The combo never changes its selection itself: a choice is reported as activated(index)
//   and the owner sets selectedIndexes (for a bound combo, from the device's echo).
// - Keys: Space, Enter, Return or Alt+Down open the list; Up and Down choose the previous or
//   next item at once; in the open list Up and Down move, Enter chooses, Escape closes.
//   A press held past the hold delay reports longPressed() and opens nothing.
// - The list (and its popup) is made on the first opening. usesPopover puts it in a VynPopover
//   pointing at the combo (VynPopoverCombo) instead of a drop-down below it.
VynItem {
    id: root

    property var model: []
    property var selectedIndexes: []
    property string noValueText: ""
    readonly property bool mixed: selectedIndexes.length > 1
    readonly property int currentIndex: selectedIndexes.length === 1 ? selectedIndexes[0] : -1
    readonly property string displayText: mixed ? VynUIQmlConstants.localizedString("MULTIPLE")
                                          : currentIndex >= 0 && currentIndex < model.length
                                            ? model[currentIndex] : noValueText
    // Whether the list opens in a popover pointing at the combo rather than below it.
    property bool usesPopover: false
    property Popup _popup: null
    readonly property bool popupVisible: _popup ? _popup.visible : false
    readonly property bool pressed: _mouse.pressed
    // The item list while it exists (from the first opening on).
    readonly property ListView listView: _popup ? _popup.contentItem as ListView : null

    signal activated(int index)
    signal longPressed

    function openList() {
        if (!enabled || model.length === 0)
            return
        if (!_popup)
            _popup = (usesPopover ? _popoverList : _dropDown).createObject(root) as Popup
        _popup.open()
    }
    function closeList() {
        if (_popup)
            _popup.close()
    }
    // The row the open list starts on: the first selected item, else the first item.
    function _firstSelected() {
        return selectedIndexes.length > 0 ? Math.max(0, selectedIndexes[0]) : 0
    }
    function _choose(p_index) {
        closeList()
        if (p_index >= 0 && p_index < model.length)
            activated(p_index)
    }

    implicitHeight: vynMetrics.popupButtonHeight
    implicitWidth: Math.max(_text.implicitWidth, 4 * vynMetrics.fontSize) + 3 * vynMetrics.popupButtonInsetsH
                   + vynMetrics.popupButtonArrowHeight
    activeFocusOnTab: true
    opacity: enabled ? 1 : vynMetrics.disabledAlpha

    Accessible.role: Accessible.ComboBox
    Accessible.name: displayText
    Accessible.description: displayText
    Accessible.onPressAction: root.openList()

    Keys.onPressed: function (p_event) {
        const count = root.model.length
        switch (p_event.key) {
        case Qt.Key_Space: case Qt.Key_Return: case Qt.Key_Enter:
            root.openList()
            break
        case Qt.Key_Down:
            if (p_event.modifiers & Qt.AltModifier)
                root.openList()
            else if (count > 0)
                root.activated(root.currentIndex < 0 ? 0 : Math.min(count - 1, root.currentIndex + 1))
            break
        case Qt.Key_Up:
            if (count > 0)
                root.activated(root.currentIndex < 0 ? count - 1 : Math.max(0, root.currentIndex - 1))
            break
        default:
            return
        }
        p_event.accepted = true
    }

    Rectangle {
        anchors.fill: parent
        radius: root.vynMetrics.popupButtonCornerRadius
        border.width: root.vynMetrics.bezelButtonBorder
        border.color: root.mixed ? root.vynMetrics.textViewBorderColorMixed : root.vynMetrics.controlBorderColor
        gradient: root.mixed ? VynGradients.mixedVertical
                  : root.vynMetrics.style === VynColorUtils.VynStyleLight ? VynGradients.offLightVertical
                                                                          : VynGradients.offDarkVertical
    }
    Rectangle {
        anchors.fill: parent
        radius: root.vynMetrics.popupButtonCornerRadius
        color: root.vynMetrics.controlTouchOverColor
        visible: root.pressed || root.popupVisible
    }
    Text {
        id: _text
        anchors.left: parent.left
        anchors.right: _chevron.left
        anchors.leftMargin: root.vynMetrics.popupButtonInsetsH
        anchors.rightMargin: root.vynMetrics.popupButtonInsetsH
        anchors.verticalCenter: parent.verticalCenter
        text: root.displayText
        font.family: VynFonts.vynFamilyRegular
        font.italic: root.mixed
        font.pixelSize: root.vynMetrics.fontSizePopupButton
        color: root.mixed ? root.vynMetrics.controlTextColorOn : root.vynMetrics.controlTextColor
        elide: Text.ElideRight
    }
    Image {
        id: _chevron
        anchors.right: parent.right
        anchors.rightMargin: root.vynMetrics.popupButtonInsetsH
        anchors.verticalCenter: parent.verticalCenter
        width: root.vynMetrics.popupButtonArrowHeight
        height: width
        sourceSize.width: width
        sourceSize.height: height
        source: VynImages.url("chevronUpDown", root.vynStyle)
    }
    MouseArea {
        id: _mouse
        property bool _held: false
        anchors.fill: parent
        onPressed: {
            _held = false
            root.forceActiveFocus(Qt.MouseFocusReason)
        }
        onPressAndHold: {
            _held = true
            root.longPressed()
        }
        onClicked: {
            if (!_held)
                root.openList()
        }
    }
    // The focus ring, made the first time the control takes the active focus.
    property Item _focusRing: null
    onActiveFocusChanged: if (activeFocus && !_focusRing) _focusRing = _focusRingComponent.createObject(root)
    Component {
        id: _focusRingComponent
        Rectangle {
            visible: root.activeFocus
            anchors.fill: parent
            anchors.margins: -2 * root.vynMetrics.ratio
            z: 10
            objectName: "focusRing"
            color: "transparent"
            radius: root.vynMetrics.popupButtonCornerRadius + 2 * root.vynMetrics.ratio
            border.width: Math.max(1, Math.round(2 * root.vynMetrics.ratio))
            border.color: Qt.rgba(root.vynMetrics.controlBorderColorOn.r,
                                  root.vynMetrics.controlBorderColorOn.g,
                                  root.vynMetrics.controlBorderColorOn.b, 0.8)
        }
    }


    Component {
        id: _dropDown
        Popup {
            id: _dropDownPopup
            parent: root
            y: root.height + 2
            width: root.width
            padding: 2
            focus: true
            closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutsideParent
            onAboutToShow: (_dropDownPopup.contentItem as ListView).currentIndex = root._firstSelected()
            onClosed: root.forceActiveFocus()
            background: Rectangle {
                radius: root.vynMetrics.popupButtonCornerRadius
                color: root.vynMetrics.popoverBackgroundColor
                border.width: 1
                border.color: root.vynMetrics.popoverBorderColor
            }
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

    Component {
        id: _popoverList
        VynPopover {
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
}
