import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "Colors"

    property vynRGBColor record

    function fuzzyColor(actual, r, g, b, a, message) {
        fuzzyCompare(actual.r, r, 0.002, message + " red")
        fuzzyCompare(actual.g, g, 0.002, message + " green")
        fuzzyCompare(actual.b, b, 0.002, message + " blue")
        fuzzyCompare(actual.a, a, 0.002, message + " alpha")
    }

    function test_styleEnums() {
        compare(VynColorUtils.VynStyleLight, 0)
        compare(VynColorUtils.VynStyleDark, 1)
        compare(VynColorUtils.VynStylePrefLight, 0)
        compare(VynColorUtils.VynStylePrefDark, 1)
        compare(VynColorUtils.VynStylePrefSystem, 2)
    }

    function test_rgbColorValueType() {
        // A colour record starts as transparent black and its channels are writable.
        compare(testCase.record.red, 0)
        compare(testCase.record.alpha, 0)
        testCase.record.green = 0.25
        testCase.record.alpha = 1
        compare(testCase.record.green, 0.25)
        compare(testCase.record.alpha, 1)
        compare(testCase.record.blue, 0)
    }

    function test_colorUtilsNotCreatable() {
        let created = null
        let failed = false
        try {
            created = Qt.createQmlObject("import VynUI 1.2; VynColorUtils {}", testCase)
        } catch (error) {
            failed = true
            verify(error.qmlErrors.length > 0)
        }
        verify(failed)
        compare(created, null)
    }

    function test_colorWithAlpha_data() {
        return [
            { tag: "text", color: "#ff0000", alpha: 0.5, rgba: [1, 0, 0, 0.5] },
            { tag: "colour value", color: Qt.rgba(0.2, 0.4, 0.6, 0.3), alpha: 1, rgba: [0.2, 0.4, 0.6, 1] },
            { tag: "alpha above one", color: "#0000ff", alpha: 3, rgba: [0, 0, 1, 1] },
            { tag: "alpha below zero", color: "#00ff00", alpha: -1, rgba: [0, 1, 0, 0] },
            { tag: "not a colour", color: "no such colour", alpha: 0.5, rgba: [0, 0, 0, 0.5] },
            { tag: "NaN alpha", color: "#ff0000", alpha: NaN, rgba: [1, 0, 0, 0] },
            { tag: "undefined alpha", color: "#ff0000", alpha: undefined, rgba: [1, 0, 0, 0] },
            { tag: "infinite alpha", color: "#ff0000", alpha: Infinity, rgba: [1, 0, 0, 1] }
        ]
    }

    function test_colorWithAlpha(data) {
        const c = ColorUtils.colorWithAlpha(data.color, data.alpha)
        fuzzyColor(c, data.rgba[0], data.rgba[1], data.rgba[2], data.rgba[3], data.tag)
    }

    function test_colorWithBrightnessOffset_data() {
        return [
            { tag: "lighter", color: Qt.hsla(0.5, 0.5, 0.5, 0.8), offset: 0.2, hsla: [0.5, 0.5, 0.7, 0.8] },
            { tag: "darker", color: Qt.hsla(0.25, 1, 0.5, 1), offset: -0.3, hsla: [0.25, 1, 0.2, 1] },
            { tag: "clamped at white", color: Qt.hsla(0.1, 0.4, 0.9, 1), offset: 0.5, hsla: [-1, 0, 1, 1] },
            { tag: "clamped at black", color: "#336699", offset: -2, hsla: [-1, 0, 0, 1] },
            { tag: "NaN offset: black", color: "#336699", offset: NaN, hsla: [-1, 0, 0, 1] }
        ]
    }

    function test_colorWithBrightnessOffset(data) {
        const c = ColorUtils.colorWithBrightnessOffset(data.color, data.offset)
        fuzzyCompare(c.hslLightness, data.hsla[2], 0.002, "lightness")
        fuzzyCompare(c.a, data.hsla[3], 0.002, "alpha")
        if (data.hsla[0] >= 0) {
            fuzzyCompare(c.hslHue, data.hsla[0], 0.002, "hue")
            fuzzyCompare(c.hslSaturation, data.hsla[1], 0.002, "saturation")
        }
    }

    function test_colorWithRGBFactor_data() {
        return [
            { tag: "double", color: Qt.rgba(0.5, 0.2, 0.1, 0.6), factor: 2, rgba: [1, 0.4, 0.2, 0.6] },
            { tag: "half", color: "#ffffff", factor: 0.5, rgba: [0.5, 0.5, 0.5, 1] },
            { tag: "clamped", color: Qt.rgba(0.8, 0.1, 0, 1), factor: 2, rgba: [1, 0.2, 0, 1] },
            { tag: "zero keeps alpha", color: Qt.rgba(0.8, 0.1, 0.3, 0.25), factor: 0, rgba: [0, 0, 0, 0.25] },
            { tag: "NaN factor: black, alpha kept", color: Qt.rgba(0.8, 0.1, 0.3, 0.25), factor: NaN, rgba: [0, 0, 0, 0.25] },
            { tag: "infinite factor: zero channels stay 0", color: Qt.rgba(0.8, 0, 0, 1), factor: Infinity, rgba: [1, 0, 0, 1] }
        ]
    }

    function test_colorWithRGBFactor(data) {
        const c = ColorUtils.colorWithRGBFactor(data.color, data.factor)
        fuzzyColor(c, data.rgba[0], data.rgba[1], data.rgba[2], data.rgba[3], data.tag)
    }

    function test_argumentUnchanged() {
        const original = Qt.rgba(0.1, 0.2, 0.3, 0.4)
        ColorUtils.colorWithAlpha(original, 1)
        ColorUtils.colorWithRGBFactor(original, 3)
        ColorUtils.colorWithBrightnessOffset(original, 0.5)
        fuzzyColor(original, 0.1, 0.2, 0.3, 0.4, "original")
    }
}
