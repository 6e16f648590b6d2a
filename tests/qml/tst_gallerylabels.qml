import QtQuick
import QtTest
import VynUI 1.2

// The gallery's labelled bar, dragged with the mouse: the value label rides along with the
// handle, and the optimizer hides a colliding label and shows it again once there is room.
TestCase {
    id: testCase
    name: "GalleryLabels"
    width: 520
    height: 200
    visible: true
    when: windowShown

    readonly property url barUrl: Qt.resolvedUrl("../../gallery/qml/pages/LabelledBar.qml")

    function createBar(properties) {
        const component = Qt.createComponent(barUrl)
        compare(component.status, Component.Ready, component.errorString())
        const bar = createTemporaryObject(component, testCase, properties)
        verify(bar)
        waitForRendering(bar)
        return bar
    }

    // The drag area's point over a value's position on the track.
    function pointAt(bar, value) {
        return bar.dragArea.mapFromItem(bar.track, bar.positionOf(value), 0).x
    }

    // Moves the pressed mouse in small steps, as a real drag does.
    function dragTo(bar, fromValue, toValue) {
        const y = bar.dragArea.height / 2
        const x0 = pointAt(bar, fromValue)
        const x1 = pointAt(bar, toValue)
        const steps = 12
        for (let i = 1; i <= steps; ++i)
            mouseMove(bar.dragArea, x0 + (x1 - x0) * i / steps, y)
    }

    function press(bar, value) {
        mousePress(bar.dragArea, pointAt(bar, value), bar.dragArea.height / 2)
    }

    function release(bar, value) {
        mouseRelease(bar.dragArea, pointAt(bar, value), bar.dragArea.height / 2)
    }

    function overlap(a, b) {
        const left = Math.max(a.x, b.x)
        const right = Math.min(a.x + a.width, b.x + b.width)
        return Math.max(0, right - left)
    }

    function test_dragHidesAndShowsCollidingLabels_data() {
        // Dragging towards an end of the range: the mark's label there and the value's label
        // collide; the one with the lower position wins.
        return [
            { tag: "towards the maximum", target: 11.5, hidden: "maximumLabel", shown: "valueLabel" },
            { tag: "towards the minimum", target: -59.5, hidden: "valueLabel", shown: "minimumLabel" }
        ]
    }

    function test_dragHidesAndShowsCollidingLabels(data) {
        const bar = createBar({ width: 480, from: -60, to: 12, value: -24, vynStyle: VynColorUtils.VynStyleLight })
        for (const label of [bar.valueLabel, bar.minimumLabel, bar.maximumLabel])
            verify(label.visible, label.text)

        press(bar, -24)
        compare(bar.value, -24)
        dragTo(bar, -24, data.target)
        compare(bar.value, data.target)
        compare(bar.valueLabel.text, bar.format(data.target))
        verify(!bar[data.hidden].visible, data.hidden + " hidden")
        verify(bar[data.shown].visible, data.shown + " shown")

        dragTo(bar, data.target, -24)
        release(bar, -24)
        compare(bar.value, -24)
        for (const label of [bar.valueLabel, bar.minimumLabel, bar.maximumLabel])
            verify(label.visible, label.text + " shown again")
        verify(!bar.dragArea.pressed)
    }

    // Near a mark that has room around it, the two labels are pushed apart and both stay
    // visible, without overlapping.
    function test_dragPushesLabelsApart() {
        const bar = createBar({ width: 480, from: -48, to: 0, minimum: -30, maximum: -6, value: -40 })
        const minimumAnchor = bar.minimumLabel.pos - bar.minimumLabel.len / 2
        compare(bar.minimumLabel.optimizedPosition, minimumAnchor)

        press(bar, -40)
        dragTo(bar, -40, -28)
        compare(bar.value, -28)
        verify(bar.valueLabel.visible)
        verify(bar.minimumLabel.visible)
        verify(bar.minimumLabel.optimizedPosition < minimumAnchor, "minimum label pushed left")
        verify(overlap(bar.minimumLabel, bar.valueLabel) < 1,
               "overlap " + overlap(bar.minimumLabel, bar.valueLabel))
        release(bar, -28)
    }

    // A press away from the handle moves it there; the value is clamped to the range and
    // snapped to the step.
    function test_pressMovesHandle() {
        const bar = createBar({ width: 480, from: -60, to: 12, value: 0 })
        mouseClick(bar.dragArea, pointAt(bar, -29.9), bar.dragArea.height / 2)
        compare(bar.value, -30)
        mouseClick(bar.dragArea, 0, bar.dragArea.height / 2)
        compare(bar.value, -60)
        mouseClick(bar.dragArea, bar.dragArea.width - 1, bar.dragArea.height / 2)
        compare(bar.value, 12)
        fuzzyCompare(bar.handle.x + bar.handle.width / 2, bar.track.x + bar.track.width, 1)
    }
}
