import QtQuick
import VynUI 1.2

// The legacy slide field over an index table, kept for older views.
//
// `model` is a table of rows, one per selectable value, each an object (or a two-entry
// array) with the value shown and the value the device stores:
//     [{ "display": 0.5, "device": 12 }, { "display": 1.0, "device": 24 }, ...]
// `value` is the integer index of the current row, between `minValue` (0) and `maxValue`
// (the last row, or `customMaxValue` when it is not negative).
//
// Dragging sideways moves one row at a time: each move event adds its horizontal movement
// to a running sum, and when the sum's magnitude reaches a quarter of the vertical distance
// from the press point the index moves one row (up for a positive sum, otherwise down) and
// the sum restarts; moving away vertically thus gives finer control. Double click toggles
// between `resetValue` and the value before the reset. The wheel moves one row per notch.
// Typing a number selects the row showing that value (the nearest one; x1000 when `showK`);
// the text turns red while the typed value lies outside the table. The text is the row's
// display value with `precision` decimals, "\u221E" for the last row when
// `enableInfiniteAtLast`, and with `showK` divided by 1000 with a "k" before `unit`.
//
// Rows that are not numbers: a row whose display value is NaN shows no text, and a row whose
// display or device value is NaN is never selected by typing, dragging or the wheel (one
// warning each time a gesture reaches it; the index stays where it was).
//
// Signals: notifyDeviceValueChanged(devValue) on every index change made by the user,
// notifyEditingStarted() and notifyEditingEnded() around each gesture.
VynTextField {
    id: root

    property var model: []
    property int value: 0
    property int minValue: 0
    property int customMaxValue: -1
    readonly property int rowCount: model ? model.length : 0
    property int maxValue: customMaxValue >= 0 ? Math.min(customMaxValue, rowCount - 1) : rowCount - 1
    property int resetValue: minValue
    property int precision: 1
    property bool enableInfiniteAtLast: false
    property bool showK: false
    property string unit: ""
    property int securityType: VynCommonConstants.VynSecurityTypeNone

    signal notifyDeviceValueChanged(int devValue)
    signal notifyEditingStarted()
    signal notifyEditingEnded()

    property int _valueBeforeReset: resetValue
    property real _sum: 0
    property point _pressPoint: Qt.point(0, 0)
    property bool _dragging: false
    property bool _typedOutOfRange: false

    function displayValueAt(p_index) {
        const row = model[p_index]
        return Array.isArray(row) ? Number(row[0]) : Number(row.display)
    }
    function deviceValueAt(p_index) {
        const row = model[p_index]
        return Array.isArray(row) ? Number(row[1]) : Number(row.device)
    }
    function textForIndex(p_index) {
        if (p_index < 0 || p_index >= rowCount)
            return ""
        if (enableInfiniteAtLast && p_index === rowCount - 1)
            return "\u221E"
        const shown = displayValueAt(p_index)
        // A row whose value is not known (NaN) shows nothing; an infinite one its sign and "\u221E".
        if (isNaN(shown))
            return ""
        if (!isFinite(shown))
            return shown > 0 ? "\u221E" : "-\u221E"
        const number = showK ? (shown / 1000).toFixed(precision) : shown.toFixed(precision)
        const suffix = (showK ? "k" : "") + unit
        return suffix.length > 0 ? number + " " + suffix : number
    }
    // The row whose display value is nearest to p_display; -1 outside the table's range.
    function indexForDisplayValue(p_display) {
        if (rowCount === 0)
            return -1
        let low = Infinity, high = -Infinity, best = -1, bestDistance = Infinity
        for (let i = minValue; i <= maxValue; ++i) {
            const d = displayValueAt(i)
            if (isNaN(d) || isNaN(deviceValueAt(i)))
                continue
            low = Math.min(low, d)
            high = Math.max(high, d)
            if (Math.abs(d - p_display) < bestDistance) {
                bestDistance = Math.abs(d - p_display)
                best = i
            }
        }
        return p_display < low || p_display > high ? -1 : best
    }

    // The platform's double-click interval (QStyleHints, whose type the linter does not know).
    function _doubleClickInterval() {
        const hints = Qt.styleHints
        const key = "mouseDoubleClickInterval"
        return hints[key]
    }

    function setIndex(p_index) {
        const index = Math.max(minValue, Math.min(maxValue, p_index))
        if (index === value)
            return
        // A row whose device value is not a number cannot be sent: it is never selected.
        if (isNaN(deviceValueAt(index))) {
            console.warn("VynSlideField: refused row " + index + ", its device value is not a number")
            return
        }
        value = index
        notifyDeviceValueChanged(deviceValueAt(index))
    }

    function _parseTyped(p_text) {
        let typed = parseFloat(String(p_text).replace("\u221E", "Infinity"))
        if (showK)
            typed *= 1000
        return typed
    }

    defaultText: textForIndex(value)
    color: _typedOutOfRange ? vynMetrics.controlBorderRedColor
                            : mixed ? vynMetrics.textViewTextColorMixed : vynMetrics.textViewTextColor
    horizontalAlignment: TextInput.AlignRight
    onTextEdited: {
        const typed = _parseTyped(text)
        _typedOutOfRange = !isNaN(typed) && indexForDisplayValue(typed) < 0
    }
    Component.onCompleted: onAcceptedCallback = _acceptEntry
    function _acceptEntry(p_fullText, p_byKey) {
        root._typedOutOfRange = false
        const typed = root._parseTyped(p_fullText)
        if (isNaN(typed))
            return
        const index = root.indexForDisplayValue(typed)
        if (index < 0)
            return
        root.notifyEditingStarted()
        root.setIndex(index)
        root.notifyEditingEnded()
    }

    Timer {
        id: editTimer
        interval: root._doubleClickInterval()
        onTriggered: root.forceActiveFocus()
    }

    MouseArea {
        anchors.fill: parent
        enabled: !root.editing
        acceptedButtons: Qt.LeftButton
        preventStealing: true
        property real lastX: 0
        onPressed: function (mouse) {
            if (root.securityType === VynCommonConstants.VynSecurityTypeDisable)
                return
            root._pressPoint = Qt.point(mouse.x, mouse.y)
            lastX = mouse.x
            root._sum = 0
            root._dragging = true
            root.notifyEditingStarted()
        }
        onPositionChanged: function (mouse) {
            if (!root._dragging)
                return
            root._sum += mouse.x - lastX
            lastX = mouse.x
            if (Math.abs(root._sum) >= Math.abs(mouse.y - root._pressPoint.y) / 4) {
                root.setIndex(root.value + (root._sum > 0 ? 1 : -1))
                root._sum = 0
            }
        }
        onReleased: {
            if (!root._dragging)
                return
            root._dragging = false
            root.notifyEditingEnded()
        }
        // A click that stays a single click (no drag, no second click) starts editing.
        onClicked: function (mouse) {
            if (Math.abs(mouse.x - root._pressPoint.x) < 1 && root.securityType !== VynCommonConstants.VynSecurityTypeDisable)
                editTimer.restart()
        }
        onDoubleClicked: {
            editTimer.stop()
            if (root.securityType === VynCommonConstants.VynSecurityTypeDisable)
                return
            root.notifyEditingStarted()
            if (root.value !== root.resetValue) {
                root._valueBeforeReset = root.value
                root.setIndex(root.resetValue)
            } else {
                root.setIndex(root._valueBeforeReset)
            }
            root.notifyEditingEnded()
        }
        onWheel: function (wheel) {
            if (root.securityType === VynCommonConstants.VynSecurityTypeDisable)
                return
            const notches = Math.round(wheel.angleDelta.y / 120)
            if (notches === 0)
                return
            root.notifyEditingStarted()
            root.setIndex(root.value + notches)
            root.notifyEditingEnded()
        }
    }
}
