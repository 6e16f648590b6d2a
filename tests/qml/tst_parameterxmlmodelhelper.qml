import QtQuick
import QtQml.Models
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "ParameterXmlModelHelper"

    // Display values rise with the device values.
    ListModel {
        id: increasing
        Component.onCompleted: append([
            { displayValue: -20, deviceValue: 0 },
            { displayValue: -10, deviceValue: 100 },
            { displayValue: 0, deviceValue: 200 },
            { displayValue: 10, deviceValue: 300 }])
    }

    // Device and display values fall row by row. decreasingDisplayValue deliberately differs
    // from displayValue, so a lookup that reads the wrong column shows.
    ListModel {
        id: decreasing
        Component.onCompleted: append([
            { displayValue: 10, decreasingDisplayValue: 40, deviceValue: 300 },
            { displayValue: 0, decreasingDisplayValue: 30, deviceValue: 200 },
            { displayValue: -10, decreasingDisplayValue: 20, deviceValue: 100 },
            { displayValue: -20, decreasingDisplayValue: 10, deviceValue: 0 }])
    }

    ListModel {
        id: twoRows
        Component.onCompleted: append([{ displayValue: 0, deviceValue: 0 },
                                       { displayValue: 1, deviceValue: 10 }])
    }

    ListModel {
        id: oneRow
        Component.onCompleted: append({ displayValue: 0, deviceValue: 5 })
    }

    ListModel {
        id: empty
    }

    function models() {
        return { increasing: increasing, decreasing: decreasing, twoRows: twoRows,
            oneRow: oneRow, empty: empty, none: null,
            array: [{ displayValue: 0, deviceValue: 1 }, { displayValue: 5, deviceValue: 2 },
                    { displayValue: 10, deviceValue: 3 }] }
    }

    function test_lookup_data() {
        return [
            { tag: "increasing below first", fn: "getIndexFromDeviceValue", model: "increasing", value: -5, expected: 0 },
            { tag: "increasing above last", fn: "getIndexFromDeviceValue", model: "increasing", value: 999, expected: 3 },
            { tag: "increasing on a row", fn: "getIndexFromDeviceValue", model: "increasing", value: 100, expected: 1 },
            { tag: "increasing on the first row", fn: "getIndexFromDeviceValue", model: "increasing", value: 0, expected: 0 },
            { tag: "increasing on the last row", fn: "getIndexFromDeviceValue", model: "increasing", value: 300, expected: 3 },
            { tag: "increasing nearer the lower", fn: "getIndexFromDeviceValue", model: "increasing", value: 140, expected: 1 },
            { tag: "increasing nearer the upper", fn: "getIndexFromDeviceValue", model: "increasing", value: 160, expected: 2 },
            { tag: "increasing tie below a row", fn: "getIndexFromDeviceValue", model: "increasing", value: 50, expected: 1 },
            { tag: "increasing tie above a row", fn: "getIndexFromDeviceValue", model: "increasing", value: 250, expected: 2 },
            { tag: "decreasing above first", fn: "getIndexFromDeviceValue", model: "decreasing", value: 350, expected: 0 },
            { tag: "decreasing below last", fn: "getIndexFromDeviceValue", model: "decreasing", value: -5, expected: 3 },
            { tag: "decreasing nearer the upper row", fn: "getIndexFromDeviceValue", model: "decreasing", value: 160, expected: 1 },
            { tag: "decreasing nearer the lower row", fn: "getIndexFromDeviceValue", model: "decreasing", value: 120, expected: 2 },
            { tag: "decreasing tie", fn: "getIndexFromDeviceValue", model: "decreasing", value: 250, expected: 1 },
            { tag: "display increasing index", fn: "getIndexFromDisplayValue", model: "increasing", value: -4, expected: 2 },
            { tag: "display increasing device value", fn: "getDeviceValueFromDisplayValue", model: "increasing", value: -12, expected: 100 },
            { tag: "display increasing clamps", fn: "getDeviceValueFromDisplayValue", model: "increasing", value: 50, expected: 300 },
            { tag: "display decreasing reads decreasingDisplayValue", fn: "getIndexFromDisplayValue", model: "decreasing", value: 31, expected: 1 },
            { tag: "display decreasing device value", fn: "getDeviceValueFromDisplayValue", model: "decreasing", value: 19, expected: 100 },
            { tag: "display decreasing clamps low", fn: "getDeviceValueFromDisplayValue", model: "decreasing", value: -100, expected: 0 },
            { tag: "script array table", fn: "getDeviceValueFromDisplayValue", model: "array", value: 6, expected: 2 },
            { tag: "two rows inside finds nothing", fn: "getIndexFromDeviceValue", model: "twoRows", value: 5, expected: undefined },
            { tag: "two rows on a row finds nothing", fn: "getIndexFromDeviceValue", model: "twoRows", value: 10, expected: undefined },
            { tag: "two rows device value finds nothing", fn: "getDeviceValueFromDisplayValue", model: "twoRows", value: 0.5, expected: undefined },
            { tag: "two rows still clamps", fn: "getIndexFromDeviceValue", model: "twoRows", value: 11, expected: 1 },
            { tag: "one row on its value finds nothing", fn: "getIndexFromDisplayValue", model: "oneRow", value: 0, expected: undefined },
            { tag: "one row clamps", fn: "getDeviceValueFromDisplayValue", model: "oneRow", value: -3, expected: 5 },
            { tag: "empty model", fn: "getIndexFromDeviceValue", model: "empty", value: 1, expected: -1 },
            { tag: "no model", fn: "getIndexFromDisplayValue", model: "none", value: 1, expected: -1 },
            { tag: "no model device value", fn: "getDeviceValueFromDisplayValue", model: "none", value: 1, expected: -1 },
        ]
    }

    function test_lookup(data) {
        const result = ParameterXmlModelHelper[data.fn](models()[data.model], data.value)
        if (data.expected === undefined)
            verify(result === undefined, "expected no value, got " + result)
        else
            compare(result, data.expected)
    }

    function test_variantsAreReachable() {
        compare(ParameterXmlModelHelper.getIndexFromIncreasingDeviceValue(increasing, 210), 2)
        compare(ParameterXmlModelHelper.getIndexFromDecreaisngDeviceValue(decreasing, 210), 1)
        compare(ParameterXmlModelHelper.getIndexFromIncreasingDisplayValue(increasing, 9), 3)
        compare(ParameterXmlModelHelper.getIndexFromDecreasingDisplayValue(decreasing, 21), 2)
        compare(ParameterXmlModelHelper.getDeviceValueFromIncreasingDisplayValue(increasing, -19), 0)
        compare(ParameterXmlModelHelper.getDeviceValueFromDecreasingDisplayValue(decreasing, 39), 300)
    }
}
