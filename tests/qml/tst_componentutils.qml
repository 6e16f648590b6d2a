import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "ComponentUtils"
    when: windowShown
    width: 300
    height: 300

    Timer {
        id: debounceTimer
    }

    Item {
        id: container
        x: 5
        y: 5
        width: 200
        height: 200

        Item {
            id: inner
            x: 10
            y: 20
            width: 50
            height: 40
        }
    }

    Text {
        id: sample
        font.pixelSize: 18
        font.bold: true
        text: "Amplifier"
    }

    // TestCase itself is invisible and invisible items take no focus: the inputs are shown
    // directly in the window's content item.
    Component {
        id: focusRow
        Column {
            property alias first: firstInput
            property alias second: secondInput
            TextInput { id: firstInput; width: 80; height: 20; activeFocusOnTab: true }
            TextInput { id: secondInput; width: 80; height: 20; activeFocusOnTab: true }
        }
    }

    QtObject {
        id: windowless
    }

    function cleanup() {
        debounceTimer.stop()
    }

    // The first callback of a burst runs once, a full delay after the last call restarted
    // the timer. Only lower bounds on elapsed time are checked, so a slow machine cannot fail it.
    function test_delayFunctionRestartsOnBurst() {
        const delay = 300
        const calls = []
        let firstCall = 0
        let lastCall = 0
        let firedAt = 0
        for (let i = 0; i < 5; ++i) {
            const scheduled = ComponentUtils.delayFunction(debounceTimer, delay, () => {
                calls.push(i)
                firedAt = Date.now()
            }, true)
            compare(scheduled, i === 0, "only the first call of the burst is scheduled")
            lastCall = Date.now()
            if (i === 0)
                firstCall = lastCall
            verify(debounceTimer.running)
            compare(calls.length, 0)
            if (i < 4)
                wait(delay / 2)
        }
        tryCompare(calls, "length", 1, 5000)
        compare(calls[0], 0)
        // Qt may fire a coarse timer up to 5 % early.
        verify(firedAt - lastCall >= delay * 0.9,
               "fired " + (firedAt - lastCall) + " ms after the last call")
        verify(firedAt - firstCall >= 4 * (delay / 2))
        wait(delay * 1.5)
        compare(calls.length, 1, "the callback runs only once")
    }

    function test_delayFunctionWithoutRestartDropsLaterCalls() {
        const calls = []
        verify(ComponentUtils.delayFunction(debounceTimer, 50, () => calls.push("first")))
        verify(!ComponentUtils.delayFunction(debounceTimer, 50, () => calls.push("second")))
        tryCompare(calls, "length", 1)
        compare(debounceTimer.repeat, false)
        compare(debounceTimer.interval, 50)

        // The connection lasts one firing: a new burst runs only its own callback.
        verify(ComponentUtils.delayFunction(debounceTimer, 50, () => calls.push("third")))
        tryCompare(calls, "length", 2)
        wait(150)
        compare(calls, ["first", "third"])
    }

    function test_delayFunctionWithoutTimer() {
        ignoreWarning(/ComponentUtils.delayFunction: no timer given/)
        verify(!ComponentUtils.delayFunction(null, 10, () => fail("must not run")))
    }

    function test_delayFunction2RunsOnce() {
        let count = 0
        const timer = ComponentUtils.delayFunction2(40, () => ++count)
        verify(timer)
        compare(count, 0)
        tryVerify(() => count === 1, 5000)
        wait(200)
        compare(count, 1)
    }

    function test_vynBoolFromVynBoolEvaluation_data() {
        const no = ComponentUtils.VynNO
        const yes = ComponentUtils.VynYES
        const warning = ComponentUtils.VynWARNING
        return [
            { tag: "no object gives the default", values: [], size: 0, expected: 7, evaluated: 0 },
            { tag: "a missing list holds no object", values: null, size: 2, expected: 7, evaluated: 0 },
            { tag: "all yes", values: [yes, yes, yes], size: 3, expected: yes, evaluated: 3 },
            { tag: "all no", values: [no, no], size: 2, expected: no, evaluated: 2 },
            { tag: "disagreement", values: [no, yes, no], size: 3, expected: warning, evaluated: 2 },
            { tag: "warning stops at once", values: [yes, warning, yes], size: 3, expected: warning, evaluated: 2 },
            { tag: "warning first", values: [warning, yes], size: 2, expected: warning, evaluated: 1 },
            { tag: "only the first size objects", values: [yes, yes, no], size: 2, expected: yes, evaluated: 2 },
            { tag: "skip flag has no effect", values: [yes, no], size: 2, trySkip: true, expected: warning, evaluated: 2 },
        ]
    }

    function test_vynBoolFromVynBoolEvaluation(data) {
        let evaluated = 0
        const result = ComponentUtils.vynBoolFromVynBoolEvaluation(data.values, data.size,
            function (object, skip) {
                ++evaluated
                if (data.trySkip)
                    skip = true
                return object
            }, 7)
        compare(result, data.expected)
        compare(evaluated, data.evaluated)
    }

    function test_vynPointToLocalPoint_data() {
        return [
            { tag: "positive coordinates grow by one", x: 0, y: 0, ex: 11, ey: 21 },
            { tag: "zero stays", x: -10, y: -20, ex: 0, ey: 0 },
            { tag: "negative stays", x: -15, y: 5, ex: -5, ey: 26 },
            { tag: "far edge tests outside", x: 40, y: 20, ex: 51, ey: 41 },
        ]
    }

    function test_vynPointToLocalPoint(data) {
        const point = ComponentUtils.vynPointToLocalPoint(inner, Qt.point(data.x, data.y), container)
        compare(point.x, data.ex)
        compare(point.y, data.ey)
    }

    function test_fontWidth() {
        const childrenBefore = sample.children.length
        compare(ComponentUtils.fontWidth(sample, sample.text), sample.paintedWidth)
        compare(ComponentUtils.fontWidth(sample.font, sample.text), sample.paintedWidth)
        verify(ComponentUtils.fontWidth(sample, "Amplifier rack") > sample.paintedWidth)
        compare(ComponentUtils.fontWidth(sample, ""), 0)
        wait(0)
        compare(sample.children.length, childrenBefore, "the measuring item is destroyed")
    }

    function test_createObjectLocal() {
        const icon = ComponentUtils.createObjectLocal("../Icon/VynColorIcon.qml", container,
                                                      { "colorIndex": 4, "mixed": true })
        verify(icon)
        verify(icon.parent === container)
        compare(icon.colorIndex, 4)
        compare(icon.mixed, true)
        icon.destroy()

        ignoreWarning(/ComponentUtils.createObjectLocal/)
        compare(ComponentUtils.createObjectLocal("NoSuchDocument.qml", container), null)
    }

    function test_colorIconPalette() {
        const icon = ComponentUtils.createObjectLocal("../Icon/VynColorIcon.qml", container)
        verify(icon)
        verify(!icon.hasColor)
        icon.setIndex(icon.colors.length + 1)
        compare(icon.colorIndex, icon.colors.length + 1)
        verify(Qt.colorEqual(icon.color, icon.colors[1]), "indexes wrap around the palette")
        icon.setIndex(-1)
        verify(!icon.hasColor)
        icon.mixed = true
        verify(!icon.showsMixed, "mixed shows only where allowed")
        icon.allowsMixed = true
        verify(icon.showsMixed)
        icon.destroy()
    }

    function test_imageWithColorIconOfSize_data() {
        return [
            { tag: "default size", size: undefined, expected: 20, mixed: false },
            { tag: "mixed at 32", size: Qt.size(32, 32), expected: 32, mixed: true },
        ]
    }

    function test_imageWithColorIconOfSize(data) {
        const childrenBefore = container.children.length
        let delivered = false
        let width = -1
        let height = -1
        const callback = function (result) {
            delivered = true
            verify(result)
            grabbedImage.source = result.url
            width = grabbedImage.implicitWidth
            height = grabbedImage.implicitHeight
            grabbedImage.source = ""
        }
        const started = data.size === undefined
                ? ComponentUtils.imageWithColorIconOfSize(container, 2, true, data.mixed,
                                                          0, 1, callback)
                : ComponentUtils.imageWithColorIconOfSize(container, 2, true, data.mixed,
                                                          0, 1, callback, data.size)
        verify(started)
        tryVerify(() => delivered, 5000)
        compare(width, data.expected)
        compare(height, data.expected)
        wait(0)
        compare(container.children.length, childrenBefore, "the temporary icon is destroyed")
    }

    Image {
        id: grabbedImage
        visible: false
        cache: false
    }

    function test_imageWithColorIconOutsideAWindow() {
        const orphan = Qt.createQmlObject("import QtQuick; Item { width: 10; height: 10 }",
                                          windowless)
        let delivered = false
        let received = "unset"
        ignoreWarning(/grabToImage.*window/)
        verify(!ComponentUtils.imageWithColorIconOfSize(orphan, 0, false, false, 1, 1,
                                                        result => {
                                                            delivered = true
                                                            received = result
                                                        }))
        verify(delivered, "the callback hears of the failure at once")
        compare(received, null)
        orphan.destroy()
    }

    function test_giveFocusToNextItem() {
        const window = testCase.Window.window
        window.requestActivate()
        tryVerify(() => window.active)
        const row = createTemporaryObject(focusRow, window.contentItem)
        row.first.forceActiveFocus()
        verify(row.first.activeFocus)
        const next = ComponentUtils.giveFocusToNextItem(row.first)
        verify(next === row.second)
        verify(row.second.activeFocus)
        keyClick(Qt.Key_A)
        compare(row.second.text, "a")
        compare(row.first.text, "")
        compare(ComponentUtils.giveFocusToNextItem(null), null)
    }
}
