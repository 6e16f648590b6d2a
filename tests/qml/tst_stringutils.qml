import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "StringUtils"

    function test_tests_data() {
        return [
            { tag: "isNullOrUndefined null", fn: "isNullOrUndefined", arg: null, expected: true },
            { tag: "isNullOrUndefined zero", fn: "isNullOrUndefined", arg: 0, expected: false },
            { tag: "isNullOrEmpty empty", fn: "isNullOrEmpty", arg: "", expected: true },
            { tag: "isNullOrEmpty blank", fn: "isNullOrEmpty", arg: " ", expected: false },
            { tag: "isNullOrWhiteSpace spaces", fn: "isNullOrWhiteSpace", arg: " \t\n", expected: true },
            { tag: "isNullOrWhiteSpace text", fn: "isNullOrWhiteSpace", arg: "  a ", expected: false },
            { tag: "isBlank false", fn: "isBlank", arg: false, expected: true },
            { tag: "isBlank empty array", fn: "isBlank", arg: [], expected: true },
            { tag: "isBlank spaces", fn: "isBlank", arg: "   ", expected: true },
            { tag: "isBlank number", fn: "isBlank", arg: 5, expected: false },
        ]
    }

    function test_tests(data) {
        compare(StringUtils[data.fn](data.arg), data.expected)
    }

    function test_transforms_data() {
        return [
            { tag: "mnemonic plain", fn: "formatMnemonic", args: ["&File", false], expected: "File" },
            { tag: "mnemonic default is plain", fn: "formatMnemonic", args: ["&File"], expected: "File" },
            { tag: "mnemonic underlined", fn: "formatMnemonic", args: ["&File", true], expected: "<u>F</u>ile" },
            { tag: "mnemonic inside", fn: "formatMnemonic", args: ["Save &As", true], expected: "Save <u>A</u>s" },
            { tag: "mnemonic only the first", fn: "formatMnemonic", args: ["&a&b", false], expected: "a&b" },
            { tag: "mnemonic escaped ampersand", fn: "formatMnemonic", args: ["A && B", false], expected: "A & B" },
            { tag: "mnemonic none", fn: "formatMnemonic", args: ["Quit", true], expected: "Quit" },
            { tag: "mnemonic trailing ampersand", fn: "formatMnemonic", args: ["Quit&", true], expected: "Quit&" },
            { tag: "mnemonic null", fn: "formatMnemonic", args: [null, true], expected: null },
            { tag: "threeDotted", fn: "threeDotted", args: ["Load"], expected: "Load..." },
            { tag: "threeDotted empty", fn: "threeDotted", args: [""], expected: "" },
            { tag: "threeDotted null", fn: "threeDotted", args: [null], expected: null },
            { tag: "capitalized", fn: "capitalized", args: ["level"], expected: "Level" },
            { tag: "capitalized accented", fn: "capitalized", args: ["\u00e9tat"], expected: "\u00c9tat" },
            { tag: "capitalized empty", fn: "capitalized", args: [""], expected: "" },
            { tag: "nullIfUndefined undefined", fn: "nullIfUndefined", args: [undefined], expected: null },
            { tag: "nullIfUndefined keeps falsy", fn: "nullIfUndefined", args: [0], expected: 0 },
        ]
    }

    function test_transforms(data) {
        compare(StringUtils[data.fn].apply(null, data.args), data.expected)
    }

    function test_formatQMLPath() {
        const windows = Qt.platform.os === "windows"
        compare(StringUtils.formatQMLPath("file:///home/show/venue.xml"),
                windows ? "home/show/venue.xml" : "/home/show/venue.xml")
        compare(StringUtils.formatQMLPath("file:///C:/Shows/venue.xml"),
                windows ? "C:/Shows/venue.xml" : "/C:/Shows/venue.xml")
        compare(StringUtils.formatQMLPath(Qt.url("file:///tmp/a b.png")),
                windows ? "tmp/a b.png" : "/tmp/a b.png")
        compare(StringUtils.formatQMLPath("qrc:/VynUI/image.png"), "qrc:/VynUI/image.png")
        compare(StringUtils.formatQMLPath("relative/path.png"), "relative/path.png")
        compare(StringUtils.formatQMLPath(null), null)
    }
}
