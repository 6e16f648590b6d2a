import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "LabelOptimization"
    width: 400
    height: 200
    // A TestCase is invisible by default; the labels' visibility is read through it.
    visible: true
    when: windowShown

    Component {
        id: axisComponent

        // A horizontal axis 200 wide with its optimizer; labels of length 40 on one line.
        Item {
            property alias optimizer: axisOptimizer

            width: 200
            height: 40

            VynLabelOptimizer {
                id: axisOptimizer
                positionMin: 0
                positionMax: 200
            }
        }
    }

    Component {
        id: labelComponent

        VynLabelWithOptimization {
            y: 0
            len: 40
        }
    }

    function createAxis() {
        return createTemporaryObject(axisComponent, testCase)
    }

    function addLabel(axis, position, text, properties) {
        let initial = { pos: position, text: text, optimizer: axis.optimizer }
        for (const key in properties)
            initial[key] = properties[key]
        const label = createTemporaryObject(labelComponent, axis, initial)
        verify(label, "label " + text)
        return label
    }

    function test_placementAlongAxis_data() {
        // Labels of length 40 on [0, 200]: [position, expected x, expected visible].
        return [
            { tag: "apart", labels: [[50, 30, true], [150, 130, true]] },
            { tag: "left end", labels: [[10, 0, true]] },
            { tag: "right end", labels: [[195, 155, true]] },
            { tag: "past the right end", labels: [[230, 190, false]] },
            { tag: "shared collision", labels: [[10, 0, true], [100, 65, true], [110, 105, true]] },
            { tag: "same position", labels: [[100, 60, true], [100, 100, true]] },
            { tag: "later one hidden", labels: [[180, 160, true], [190, 150, false]] }
        ]
    }

    function test_placementAlongAxis(data) {
        const axis = createAxis()
        let labels = []
        for (let i = 0; i < data.labels.length; ++i)
            labels.push(addLabel(axis, data.labels[i][0], "L" + i))
        for (let i = 0; i < labels.length; ++i) {
            compare(labels[i].visible, data.labels[i][2], "visible " + i)
            compare(labels[i].x, data.labels[i][1], "x " + i)
            compare(labels[i].optimizedPosition, data.labels[i][1], "optimizedPosition " + i)
            compare(labels[i].y, 0, "y " + i)
        }
    }

    Component {
        id: textLengthComponent

        VynLabelWithOptimization {
            y: 0
        }
    }

    function test_lengthFollowsText() {
        const axis = createAxis()
        const label = createTemporaryObject(textLengthComponent, axis,
                                            { pos: 100, text: "-3 dB", optimizer: axis.optimizer })
        verify(label.implicitWidth > 0)
        compare(label.len, label.implicitWidth)
        compare(label.x, 100 - label.implicitWidth / 2)
        compare(label.optimizedLabel.text, "-3 dB")

        const narrow = label.implicitWidth
        label.text = "-120.5 dB"
        verify(label.implicitWidth > narrow)
        compare(label.len, label.implicitWidth)
        compare(label.x, 100 - label.implicitWidth / 2)
    }

    function test_lengthMinusOneHides() {
        const axis = createAxis()
        const hidden = addLabel(axis, 100, "hidden", { len: -1 })
        const shown = addLabel(axis, 110, "shown")
        compare(hidden.visible, false)
        compare(shown.visible, true)
        compare(shown.x, 90) // not pushed by the hidden one
        hidden.len = 40
        compare(hidden.visible, true)
        compare(hidden.x, 65)
        compare(shown.x, 105)
    }

    function test_expectedCount() {
        const axis = createAxis()
        axis.optimizer.expectedLabelCount = 2
        const first = addLabel(axis, 100, "first")
        compare(first.x, 80) // not placed yet: on its anchor
        first.pos = 5
        compare(first.x, -15)
        const second = addLabel(axis, 190, "second")
        compare(first.x, 0)
        compare(second.x, 150)
    }

    function test_destroyedLabelLeaves() {
        const axis = createAxis()
        const first = addLabel(axis, 100, "first")
        const second = addLabel(axis, 110, "second")
        compare(first.x, 65)
        second.destroy()
        tryCompare(first, "x", 80)
        compare(first.visible, true)
    }

    function test_optimizerChange() {
        const axis = createAxis()
        const other = createAxis()
        const first = addLabel(axis, 100, "first")
        const second = addLabel(axis, 110, "second")
        compare(first.x, 65)
        second.optimizer = other.optimizer
        compare(first.x, 80)
        compare(second.x, 90)
        second.pos = 120
        compare(second.x, 100)
        compare(first.x, 80)
        second.optimizer = null
        second.pos = 210
        compare(second.x, 190)
        compare(second.visible, true)
    }

    Component {
        id: mouseComponent

        // A label over a mouse area that counts the presses reaching it.
        Item {
            property alias label: overLabel
            property alias below: belowArea
            property int pressesBelow: 0

            width: 200
            height: 60

            MouseArea {
                id: belowArea
                anchors.fill: parent
                onPressed: parent.pressesBelow += 1
            }

            VynLabelWithToolTip {
                id: overLabel
                x: 20
                y: 10
                width: 120
                height: 30
                text: "Output gain"
            }
        }
    }

    function test_tooltipOnHover() {
        const item = createTemporaryObject(mouseComponent, testCase)
        const label = item.label
        compare(label.isHoverEnabled, true)
        compare(label.labelTooltip, null, "no tooltip before the first hover")
        mouseMove(label, 30, 15)
        verify(label.labelTooltip)
        compare(label.labelTooltip.text, "Output gain")
        tryCompare(label.labelTooltip, "visible", true)
        mouseMove(item, 190, 55)
        tryCompare(label.labelTooltip, "visible", false)

        // The tooltip takes the label's style unless told otherwise.
        label.vynStyle = VynColorUtils.VynStyleLight
        compare(label.labelTooltip.vynStyle, VynColorUtils.VynStyleLight)
        label.tooltipStyle = VynColorUtils.VynStyleDark
        compare(label.labelTooltip.vynStyle, VynColorUtils.VynStyleDark)

        label.tooltipText = ""
        compare(label.isHoverEnabled, false)
        mouseMove(label, 30, 15)
        wait(50)
        compare(label.labelTooltip.visible, false)
    }

    function test_mouseAccepted_data() {
        return [
            { tag: "passes through", accepted: false, pressesBelow: 1 },
            { tag: "accepted", accepted: true, pressesBelow: 0 }
        ]
    }

    function test_mouseAccepted(data) {
        const item = createTemporaryObject(mouseComponent, testCase)
        item.label.mouseAccepted = data.accepted
        let clicks = 0
        item.label.labelMouseArea.clicked.connect(() => clicks += 1)
        mouseClick(item.label, 30, 15)
        compare(item.pressesBelow, data.pressesBelow)
        compare(clicks, data.accepted ? 1 : 0)
        mouseClick(item, 190, 55)
        compare(item.pressesBelow, data.pressesBelow + 1)
    }

    Component {
        id: plainLabelComponent
        VynLabel {
            text: "Limiter"
        }
    }

    // Text items keep 8 bits per channel.
    function sameColor(actual, expected) {
        fuzzyCompare(actual.r, expected.r, 1 / 255, "red")
        fuzzyCompare(actual.g, expected.g, 1 / 255, "green")
        fuzzyCompare(actual.b, expected.b, 1 / 255, "blue")
        fuzzyCompare(actual.a, expected.a, 1 / 255, "alpha")
    }

    function test_labelLooksFollowStyle() {
        const label = createTemporaryObject(plainLabelComponent, testCase)
        compare(label.fontSize, VynUIQmlConstants.fontSize(VynViewUtils.VynControlSizeRegular, 1.0))
        sameColor(label.textColor, VynUIQmlConstants.labelColorForStyle(VynColorUtils.VynStyleDark, 0))
        label.vynStyle = VynColorUtils.VynStyleLight
        label.level = 2
        sameColor(label.textColor, VynUIQmlConstants.labelColorForStyle(VynColorUtils.VynStyleLight, 2))
        label.vynControlSize = VynViewUtils.VynControlSizeMini
        label.vynPixelRatioFont = 2.0
        compare(label.fontSize, VynUIQmlConstants.fontSize(VynViewUtils.VynControlSizeMini, 2.0))
        compare(label.elide, Text.ElideRight)
        verify(VynFonts.vynFamilyRegular.length > 0)
        compare(label.fontFamily, VynFonts.vynFamilyRegular)
    }
}
