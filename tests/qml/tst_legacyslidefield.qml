import QtQuick
import QtTest
import VynUI 1.2

// The legacy index-table slide field: row steps by dragging, the reset toggle, the wheel,
// typed values and the displayed text.
TestCase {
    id: testCase
    name: "LegacySlideField"
    width: 500
    height: 300
    visible: true
    when: windowShown

    Component {
        id: fieldComponent
        VynSlideField {
            x: 100
            y: 100
            width: 120
            model: [{ "display": 100, "device": 1 }, { "display": 500, "device": 2 },
                { "display": 1000, "device": 3 }, { "display": 2000, "device": 4 },
                { "display": 8000, "device": 5 }]
            unit: "Hz"
            property var deviceValues: []
            onNotifyDeviceValueChanged: function (devValue) { deviceValues.push(devValue) }
        }
    }

    function makeField(p_properties) {
        const field = createTemporaryObject(fieldComponent, testCase, p_properties)
        waitForRendering(field)
        return field
    }

    function test_dragMovesOneRowPerThreshold() {
        const field = makeField({ "value": 2 })
        const y = field.height / 2
        mousePress(field, 50, y)
        // On the press row every move reaches the threshold: one row per event.
        mouseMove(field, 52, y, -1, Qt.LeftButton)
        mouseMove(field, 54, y, -1, Qt.LeftButton)
        compare(field.value, 4)
        // 40 px away vertically the threshold is 10 px of travel: the sum restarts after
        // each row.
        mouseMove(field, 50, y + 40, -1, Qt.LeftButton)
        compare(field.value, 4)
        mouseMove(field, 40, y + 40, -1, Qt.LeftButton)
        compare(field.value, 3)
        mouseMove(field, 35, y + 40, -1, Qt.LeftButton)
        compare(field.value, 3)
        mouseMove(field, 30, y + 40, -1, Qt.LeftButton)
        compare(field.value, 2)
        mouseRelease(field, 30, y + 40)
        compare(field.deviceValues, [4, 5, 4, 3])
    }

    function test_clickStartsEditing() {
        const field = makeField({ "value": 1 })
        mouseClick(field, 50, field.height / 2)
        tryVerify(() => field.activeFocus)
    }

    function test_doubleClickTogglesReset() {
        const field = makeField({ "value": 3 })
        mouseDoubleClickSequence(field, 50, field.height / 2)
        compare(field.value, 0)
        wait(500)
        mouseDoubleClickSequence(field, 50, field.height / 2)
        compare(field.value, 3)
    }

    function test_wheelAndBounds() {
        const field = makeField({ "value": 3 })
        mouseWheel(field, 50, field.height / 2, 0, 120)
        mouseWheel(field, 50, field.height / 2, 0, 120)
        compare(field.value, 4)
        field.customMaxValue = 2
        compare(field.maxValue, 2)
        mouseWheel(field, 50, field.height / 2, 0, -120)
        compare(field.value, 2)
    }

    function test_text_data() {
        return [
            { tag: "plain", props: { "value": 1 }, text: "500.0 Hz" },
            { tag: "k", props: { "value": 3, "showK": true, "precision": 2 }, text: "2.00 kHz" },
            { tag: "infinite", props: { "value": 4, "enableInfiniteAtLast": true }, text: "\u221E" }
        ]
    }
    function test_text(data) {
        const field = makeField(data.props)
        compare(field.text, data.text)
    }

    function test_typedValueSelectsTheRow() {
        const field = makeField({ "value": 0, "showK": true })
        field.forceActiveFocus()
        keySequence(StandardKey.SelectAll)
        keyClick("9")
        // 9 kHz lies outside the table: shown in red, not accepted.
        verify(field._typedOutOfRange)
        keyClick(Qt.Key_Backspace)
        keyClick("1")
        verify(!field._typedOutOfRange)
        keyClick(Qt.Key_Return)
        compare(field.value, 2)
    }

    // A table from a device that has not answered for every row: a row whose values are not
    // numbers shows nothing and is never selected, by the wheel or by typing.
    readonly property var partlyKnownTable: [{ "display": 100, "device": 1 }, { "display": NaN, "device": NaN },
        { "display": 1000, "device": 3 }, { "display": 2000, "device": NaN }, { "display": Infinity, "device": 5 }]

    function test_rowsThatAreNotNumbers_data() {
        return [
            { tag: "unknown row shows nothing", value: 1, gesture: "none", text: "", index: 1 },
            { tag: "infinite row", value: 4, gesture: "none", text: "\u221E", index: 4 },
            { tag: "wheel onto an unknown row", value: 0, gesture: "wheel up", text: "100.0 Hz", index: 0, warned: true },
            { tag: "wheel onto an unknown device value", value: 2, gesture: "wheel up", text: "1000.0 Hz", index: 2, warned: true },
            { tag: "typing skips unknown rows", value: 0, gesture: "type", typed: "1900", text: "1000.0 Hz", index: 2 }
        ]
    }
    function test_rowsThatAreNotNumbers(data) {
        const field = makeField({ "model": testCase.partlyKnownTable, "value": data.value })
        if (data.warned)
            ignoreWarning(/VynSlideField: refused row \d+, its device value is not a number/)
        if (data.gesture === "wheel up") {
            mouseWheel(field, 50, field.height / 2, 0, 120)
        } else if (data.gesture === "type") {
            field.forceActiveFocus()
            keySequence(StandardKey.SelectAll)
            for (let i = 0; i < data.typed.length; ++i)
                keyClick(data.typed[i])
            keyClick(Qt.Key_Return)
        }
        compare(field.value, data.index)
        compare(field.text, data.text)
        verify(!field.text.includes("NaN"))
        verify(field.deviceValues.every(v => !isNaN(v)))
    }
}
