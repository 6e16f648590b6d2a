pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

// The behaviour every button of the module shares, without a look of its own: the bezel,
// flat, inline and template buttons, the check box and the switch draw on it.
//
// - checkState: the tri-state of a bound parameter, 0 off, 1 on, 2 mixed (several
//   parameters disagree). The button never changes it itself: a click is reported and the
//   host's answer (a device echo) sets it.
// - clicked(): a press and release inside the button, or Space, Enter or Return while it has
//   the focus. A press held past the hold delay reports longPressed() instead.
// - A disabled button takes neither pointer nor key input and is drawn at the disabled
//   alpha of its look.
// - Tab reaches an enabled button; the focus ring shows while it has the active focus.
VynItem {
    id: root

    property string text
    property int checkState: 0
    readonly property bool checked: checkState === 1
    readonly property bool mixed: checkState === 2
    readonly property bool pressed: _mouse.pressed || _keyDown
    // Whether the button toggles a state (announced as checkable to assistive tools).
    property bool checkable: true
    // The corner radius of the focus ring, matching the button's outline.
    property real focusRadius: vynMetrics.bezelButtonCornerRadius

    property bool _keyDown: false
    property bool _heldDown: false

    signal clicked
    signal longPressed

    // 0 off, 1 on, 2 mixed: the column of the colour tables for the button's state.
    readonly property int _colorState: mixed ? 2 : checked ? 1 : 0

    activeFocusOnTab: true
    opacity: enabled ? 1 : vynMetrics.disabledAlpha

    Accessible.role: checkable ? Accessible.CheckBox : Accessible.Button
    Accessible.name: text
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.checkStateMixed: mixed
    Accessible.description: mixed ? VynUIQmlConstants.localizedString("MULTIPLE") : ""
    Accessible.onPressAction: root.clicked()
    Accessible.onToggleAction: root.clicked()

    function _isActivationKey(p_key) {
        return p_key === Qt.Key_Space || p_key === Qt.Key_Return || p_key === Qt.Key_Enter
                || p_key === Qt.Key_Select
    }

    Keys.onPressed: function (p_event) {
        if (!root._isActivationKey(p_event.key))
            return
        p_event.accepted = true
        if (!p_event.isAutoRepeat)
            root._keyDown = true
    }
    Keys.onReleased: function (p_event) {
        if (!root._isActivationKey(p_event.key))
            return
        p_event.accepted = true
        if (p_event.isAutoRepeat || !root._keyDown)
            return
        root._keyDown = false
        root.clicked()
    }
    onEnabledChanged: if (!enabled) _keyDown = false

    MouseArea {
        id: _mouse
        anchors.fill: parent
        onPressed: {
            root._heldDown = false
            root.forceActiveFocus(Qt.MouseFocusReason)
        }
        onPressAndHold: {
            root._heldDown = true
            root.longPressed()
        }
        onClicked: {
            if (!root._heldDown)
                root.clicked()
        }
    }

    // The focus ring, made the first time the control takes the active focus.
    property Item _focusRing: null
    onActiveFocusChanged: {
        if (!activeFocus)
            _keyDown = false
        else if (!_focusRing)
            _focusRing = _focusRingComponent.createObject(root)
    }
    Component {
        id: _focusRingComponent
        Rectangle {
            visible: root.activeFocus
            anchors.fill: parent
            anchors.margins: -2 * root.vynMetrics.ratio
            z: 10
            objectName: "focusRing"
            color: "transparent"
            radius: root.focusRadius + 2 * root.vynMetrics.ratio
            border.width: Math.max(1, Math.round(2 * root.vynMetrics.ratio))
            border.color: Qt.rgba(root.vynMetrics.controlBorderColorOn.r,
                                  root.vynMetrics.controlBorderColorOn.g,
                                  root.vynMetrics.controlBorderColorOn.b, 0.8)
        }
    }
}
