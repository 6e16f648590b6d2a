import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "ViewUtils"

    property vynGraphLabel label
    property vynSideBounds bounds
    property vynResizeSettings resize
    property vynComboValue combo
    property vynSpinBoxValue spin
    property vynTextFieldValue textField
    property vynParamSelectValue paramSelect

    function test_enumValues_data() {
        return [
            { tag: "side left", value: VynViewUtils.VynSideLeft, expected: 1 },
            { tag: "side all", value: VynViewUtils.VynSideAll, expected: 15 },
            { tag: "side vertical centre", value: VynViewUtils.VynSideVerticalCenter, expected: 32 },
            { tag: "control size regular", value: VynViewUtils.VynControlSizeRegular, expected: 2 },
            { tag: "anchor centre", value: VynViewUtils.VynResizeAnchorCenter, expected: 17 },
            { tag: "anchor bottom right", value: VynViewUtils.VynResizeAnchorBottomRight, expected: 34 },
            { tag: "led protect", value: VynViewUtils.VynLedStateProtect, expected: 257 },
            { tag: "led default channel status", value: VynViewUtils.VynLedStateDefaultChannelStatus, expected: 514 },
            { tag: "corner all", value: VynViewUtils.VynCornerAllCorners, expected: 15 },
            { tag: "alignment height", value: VynViewUtils.VynAlignmentTypeHeight, expected: 7 },
            { tag: "modal skip", value: VynViewUtils.VynModalResponseSkip, expected: 3 },
            { tag: "component vu meter", value: VynViewUtils.VynUIComponentTypeVUMeter, expected: 14 },
            { tag: "live button live", value: VynViewUtils.VynLiveButtonModeLive, expected: 2 },
            { tag: "selector locate", value: VynViewUtils.VynSelectorCellModeLocate, expected: 1 },
            { tag: "led shape upside down", value: VynViewUtils.VynLedShapeUpsideDownTriangle, expected: 2 },
            { tag: "vertical bottom", value: VynViewUtils.VynVerticalAlignmentBottom, expected: 2 }
        ]
    }

    function test_enumValues(data) {
        compare(data.value, data.expected)
    }

    function test_notCreatable() {
        let failed = false
        try {
            const object = Qt.createQmlObject("import VynUI 1.2; VynViewUtils {}", testCase)
            object.destroy()
        } catch (error) {
            failed = true
            verify(String(error.qmlErrors[0].message).length > 0)
        }
        verify(failed, "VynViewUtils must not be creatable")
    }

    function test_recordsBuiltAndRead() {
        label.position = 0.25
        label.text = "1k"
        compare(label.position, 0.25)
        compare(label.text, "1k")

        bounds.min = -3
        bounds.max = 12.5
        compare(bounds.max - bounds.min, 15.5)

        compare(resize.widthFactor, 1.0)
        resize.anchor = VynViewUtils.VynResizeAnchorCenter
        resize.isCentered = true
        compare(resize.anchor, 17)
        verify(resize.isCentered)

        compare(spin.isMultiple, false)
        spin.value = 1.5
        spin.maxValue = 3
        compare(spin.value, 1.5)

        textField.placeholder = "Multiple"
        textField.isMultiple = true
        compare(textField.text, "")
        compare(textField.placeholder, "Multiple")

        compare(paramSelect.valueMode, 0)
        compare(paramSelect.paramPath.empty, true)
        compare(paramSelect.paramPath.text, "")
        paramSelect.notSpecifiedText = "Not specified"
        compare(paramSelect.notSpecifiedText, "Not specified")
    }

    function test_comboIndexes() {
        combo.selectedIndexes = [3, 1]
        combo.isMultiple = true
        // A set: QML sees its members, in no particular order.
        const indexes = Array.from(combo.selectedIndexes).sort()
        compare(indexes.length, 2)
        compare(indexes[0], 1)
        compare(indexes[1], 3)
        verify(combo.isMultiple)
    }
}
