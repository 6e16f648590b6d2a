pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

// A spin box: a number in a text field of its style with a pair of steppers at its right.
//
// - value, from, to, stepSize, pageStep: the number and its range (from may exceed to: the
//   range is the interval between them). decimals is the number of decimals shown;
//   textFromValue(value) may replace the text; mixed shows the "MULTIPLE_SHORT" text.
// - The steppers, the wheel and the keys (Up/Down by stepSize, Page Up/Page Down by
//   pageStep, Home/End to the ends) change value within the range and report
//   valueModified(value). A value that is not known (NaN) shows no number and is never
//   stepped from; NaN handed to stepping or to setTo() is refused with one console line.
VynItem {
    id: root

    property real value: 0
    property real from: 0
    property real to: 100
    property real stepSize: 1
    property real pageStep: stepSize * 10
    property int decimals: 0
    property bool mixed: false
    property var textFromValue: function (p_value) {
        return Number(p_value).toFixed(root.decimals)
    }
    readonly property string displayText: mixed ? VynUIQmlConstants.localizedString("MULTIPLE_SHORT")
                                          : isNaN(value) ? "" : textFromValue.call(root, value)

    signal valueModified(real value)

    readonly property real _low: Math.min(from, to)
    readonly property real _high: Math.max(from, to)

    // Sets value to p_value clamped to the range and reports it when it changed.
    function setTo(p_value) {
        if (isNaN(p_value) || isNaN(_low) || isNaN(_high)) {
            console.warn("VynSpinBox: a value that is not a number is refused")
            return false
        }
        const next = Math.max(_low, Math.min(_high, p_value))
        if (next === value)
            return false
        value = next
        valueModified(next)
        return true
    }
    function stepBy(p_delta) {
        if (isNaN(value) || isNaN(p_delta)) {
            console.warn("VynSpinBox: a value that is not a number is not stepped")
            return false
        }
        return setTo(value + p_delta)
    }
    function increase() { return stepBy(stepSize) }
    function decrease() { return stepBy(-stepSize) }

    implicitHeight: vynMetrics.textFieldHeight
    implicitWidth: Math.max(_text.implicitWidth, 3 * vynMetrics.fontSize) + _steppers.width
                   + 2 * vynMetrics.textFieldTextInsetsH
    activeFocusOnTab: true
    opacity: enabled ? 1 : vynMetrics.disabledAlpha

    Accessible.role: Accessible.SpinBox
    Accessible.name: displayText
    Accessible.description: displayText
    Accessible.onIncreaseAction: root.increase()
    Accessible.onDecreaseAction: root.decrease()

    Keys.onPressed: function (p_event) {
        switch (p_event.key) {
        case Qt.Key_Up: root.increase(); break
        case Qt.Key_Down: root.decrease(); break
        case Qt.Key_PageUp: root.stepBy(root.pageStep); break
        case Qt.Key_PageDown: root.stepBy(-root.pageStep); break
        case Qt.Key_Home: root.setTo(root.from <= root.to ? root.from : root.to); break
        case Qt.Key_End: root.setTo(root.from <= root.to ? root.to : root.from); break
        default: return
        }
        p_event.accepted = true
    }

    Rectangle {
        anchors.fill: parent
        radius: root.vynMetrics.bezelButtonCornerRadius
        color: root.vynMetrics.textViewBackgroundColor
        border.width: Math.max(1, root.vynMetrics.textFieldBorder)
        border.color: root.activeFocus ? root.vynMetrics.textViewBorderColorEditing
                      : root.mixed ? root.vynMetrics.textViewBorderColorMixed
                                   : root.vynMetrics.textViewBorderColor
    }
    Text {
        id: _text
        anchors.left: parent.left
        anchors.right: _steppers.left
        anchors.leftMargin: root.vynMetrics.textFieldTextInsetsH
        anchors.verticalCenter: parent.verticalCenter
        text: root.displayText
        font.family: VynFonts.vynFamilyRegular
        font.pixelSize: root.vynMetrics.fontSize
        color: root.mixed ? root.vynMetrics.textViewTextColorMixed : root.vynMetrics.textViewTextColor
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
    }
    Item {
        id: _steppers
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: Math.round(root.height * 0.8)
        readonly property real _icon: Math.round(root.height * 0.45)
        Rectangle {
            anchors.left: parent.left
            width: 1
            height: parent.height
            color: root.vynMetrics.textViewBorderColor
        }
        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.verticalCenter
            width: parent._icon
            height: parent._icon
            sourceSize.width: width
            sourceSize.height: height
            source: VynImages.url("chevronUp", root.vynStyle)
            opacity: _stepMouse.pressed && _stepMouse.up ? 0.5 : 1
        }
        Image {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.top: parent.verticalCenter
            width: parent._icon
            height: parent._icon
            sourceSize.width: width
            sourceSize.height: height
            source: VynImages.url("chevronDown", root.vynStyle)
            opacity: _stepMouse.pressed && !_stepMouse.up ? 0.5 : 1
        }
        MouseArea {
            id: _stepMouse
            property bool up: true
            anchors.fill: parent
            pressAndHoldInterval: 400
            onPressed: function (p_mouse) {
                up = p_mouse.y < height / 2
                root.forceActiveFocus(Qt.MouseFocusReason)
                root.stepBy(up ? root.stepSize : -root.stepSize)
            }
            onPressAndHold: _repeat.start()
            onReleased: _repeat.stop()
            onCanceled: _repeat.stop()
        }
        Timer {
            id: _repeat
            interval: 60
            repeat: true
            onTriggered: root.stepBy(_stepMouse.up ? root.stepSize : -root.stepSize)
        }
    }
    MouseArea {
        anchors.fill: parent
        anchors.rightMargin: _steppers.width
        onPressed: root.forceActiveFocus(Qt.MouseFocusReason)
        onWheel: function (p_wheel) {
            if (p_wheel.angleDelta.y !== 0)
                root.stepBy(p_wheel.angleDelta.y > 0 ? root.stepSize : -root.stepSize)
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
            radius: root.vynMetrics.bezelButtonCornerRadius + 2 * root.vynMetrics.ratio
            border.width: Math.max(1, Math.round(2 * root.vynMetrics.ratio))
            border.color: Qt.rgba(root.vynMetrics.controlBorderColorOn.r,
                                  root.vynMetrics.controlBorderColorOn.g,
                                  root.vynMetrics.controlBorderColorOn.b, 0.8)
        }
    }
}
