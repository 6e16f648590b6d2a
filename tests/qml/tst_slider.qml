import QtQuick
import QtTest
import VynUI 1.2

// The slider under real pointer and wheel events: dragging in both orientations and
// directions, track clicks, double click, the wheel with its modifiers, mixed values and the
// end-of-gesture debounce.
TestCase {
    id: testCase
    name: "Slider"
    width: 700
    height: 400
    visible: true
    when: windowShown

    Component {
        id: sliderComponent
        VynSlider12 {
            x: 100
            y: 100
            width: 210
            property var offers: []
            property int endedCount: 0
            property int beganCount: 0
            sliderExpectsValue: function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
                offers.push({ "value": p_newValue, "isFinal": p_isFinal })
                setValue(p_newValue)
                return true
            }
            sliderBeganSliding: function () { beganCount += 1 }
            sliderEndedSliding: function () { endedCount += 1 }
        }
    }

    function makeSlider(p_properties) {
        const slider = createTemporaryObject(sliderComponent, testCase, p_properties)
        verify(slider)
        waitForRendering(slider)
        return slider
    }

    // The thumb's centre in the slider's coordinates.
    function thumbCentre(p_slider) {
        const thumb = findChild(p_slider, "thumb")
        return thumb.mapToItem(p_slider, thumb.width / 2, thumb.height / 2)
    }

    function drag(p_slider, p_dx, p_dy) {
        const c = thumbCentre(p_slider)
        mousePress(p_slider, c.x, c.y, Qt.LeftButton)
        const steps = 4
        for (let i = 1; i <= steps; ++i)
            mouseMove(p_slider, c.x + p_dx * i / steps, c.y + p_dy * i / steps, -1, Qt.LeftButton)
        mouseRelease(p_slider, c.x + p_dx, c.y + p_dy, Qt.LeftButton)
    }

    function test_drag_data() {
        // Track length is the slider's length minus one thumb.
        return [
            { tag: "right", props: {}, dx: 50, dy: 0, sign: 1 },
            { tag: "left from 1", props: { "value": 1 }, dx: -50, dy: 0, sign: -1 },
            { tag: "reverse", props: { "reverse": true }, dx: -50, dy: 0, sign: 1 },
            { tag: "mirror", props: { "mirror": true }, dx: -50, dy: 0, sign: 1 },
            { tag: "mirror and reverse", props: { "mirror": true, "reverse": true }, dx: 50, dy: 0, sign: 1 },
            { tag: "vertical up", props: { "orientation": Qt.Vertical, "width": 20, "height": 210 }, dx: 0, dy: -50, sign: 1 },
            { tag: "vertical mirrored down", props: { "orientation": Qt.Vertical, "mirror": true, "width": 20, "height": 210 }, dx: 0, dy: 50, sign: 1 }
        ]
    }
    function test_drag(data) {
        const slider = makeSlider(data.props)
        const start = slider.value
        drag(slider, data.dx, data.dy)
        const moved = Math.abs(data.dx + data.dy)
        fuzzyCompare(slider.value, start + data.sign * moved / slider._trackLength, 1e-9)
        compare(slider.endedCount, 1)
        compare(slider.beganCount, 1)
        verify(slider.offers.every(o => o.isFinal))
    }

    function test_dragClampsAndThreshold() {
        const slider = makeSlider({ "value": 0.5 })
        const c = thumbCentre(slider)
        mousePress(slider, c.x, c.y, Qt.LeftButton)
        mouseMove(slider, c.x + 3, c.y, -1, Qt.LeftButton)
        verify(!slider.dragging)
        mouseMove(slider, c.x + 4, c.y, -1, Qt.LeftButton)
        verify(slider.dragging)
        mouseMove(slider, c.x + 400, c.y, -1, Qt.LeftButton)
        compare(slider.value, 1)
        mouseRelease(slider, c.x + 400, c.y, Qt.LeftButton)
        verify(slider.offers.every(o => o.value <= 1))
    }

    function test_valueRangeHasAMinimum() {
        const slider = makeSlider({ "to": 0.05, "value": 0.05 })
        compare(slider.valueRange, 0.1)
        // The top of the range sits half way along the track.
        fuzzyCompare(thumbCentre(slider).x, slider._trackStart + slider._trackLength / 2, 1)
    }

    function test_stepRounding() {
        const slider = makeSlider({ "from": -10, "to": 10, "stepSize": 2 })
        slider.setValue(-3)
        compare(slider.value, -4) // ties go up in magnitude
        compare(slider.virtualValue, -3)
        slider.setValue(2.9)
        compare(slider.value, 2)
    }

    // Multiples of the step, kept inside [from, to] and free of float noise.
    function test_stepRoundingStaysInRange_data() {
        return [
            { tag: "0.4 x 3 past the end steps back", from: 0, to: 1, step: 0.4, value: 1, expected: 0.8 },
            { tag: "0.4 x 3 at the end", from: 0, to: 1.2, step: 0.4, value: 1.2, expected: 1.2 },
            { tag: "no trail from the product", from: 0, to: 10, step: 0.1, value: 0.3, expected: 0.3 },
            { tag: "tie read through the noise", from: 0, to: 1, step: 0.2, value: 0.3, expected: 0.4 },
            { tag: "below the start steps up", from: 0.3, to: 3, step: 1, value: 0.3, expected: 1 },
            { tag: "negative, past the start steps back", from: -1, to: 0, step: 0.4, value: -1, expected: -0.8 },
            { tag: "no multiple inside: clamped", from: 0.1, to: 0.3, step: 1, value: 0.25, expected: 0.25 },
            { tag: "no multiple inside, beyond: clamped", from: 0.1, to: 0.3, step: 1, value: 5, expected: 0.3 }
        ]
    }

    function test_stepRoundingStaysInRange(data) {
        const slider = makeSlider({ "from": data.from, "to": data.to, "stepSize": data.step })
        slider.setValue(data.value)
        compare(slider.value, data.expected)
        verify(slider.value >= Math.min(data.from, data.to) && slider.value <= Math.max(data.from, data.to))
        compare(slider.displayedValue, slider.value)
    }

    function test_doubleClickSetsDefault() {
        const slider = makeSlider({ "defaultValue": 0.5 })
        slider.setValue(0.2)
        const c = thumbCentre(slider)
        mouseDoubleClickSequence(slider, c.x, c.y)
        compare(slider.value, 0.5)
        const last = slider.offers[slider.offers.length - 1]
        verify(last.isFinal)
        slider.enableDoubleClicking = false
        slider.setValue(0.2)
        wait(400)
        const c2 = thumbCentre(slider)
        mouseDoubleClickSequence(slider, c2.x, c2.y)
        compare(slider.value, 0.2)
    }

    function test_trackClicks_data() {
        return [
            { tag: "after the thumb", props: {}, side: 1, expected: 0.6 },
            { tag: "before the thumb", props: {}, side: -1, expected: 0.4 },
            { tag: "mirror, left", props: { "mirror": true }, side: -1, expected: 0.6 },
            { tag: "stepped", props: { "stepSize": 0.25, "to": 1 }, side: 1, expected: 0.75 },
            { tag: "shift", props: {}, side: 1, expected: 1, modifiers: Qt.ShiftModifier }
        ]
    }
    function test_trackClicks(data) {
        const slider = makeSlider(data.props)
        slider.setValue(0.5)
        const c = thumbCentre(slider)
        mouseClick(slider, c.x + data.side * 60, c.y, Qt.LeftButton, data.modifiers || Qt.NoModifier)
        fuzzyCompare(slider.value, data.expected, 1e-9)
        compare(slider.endedCount, 0)
        tryCompare(slider, "endedCount", 1, 2000)
    }

    function test_trackClickBurstEndsOnce() {
        const slider = makeSlider({ "to": 10, "stepSize": 1 })
        slider.setValue(5)
        for (let i = 0; i < 3; ++i) {
            const c = thumbCentre(slider)
            mouseClick(slider, c.x + 40, c.y)
            wait(100)
        }
        compare(slider.value, 8)
        tryCompare(slider, "endedCount", 1, 2000)
        wait(700)
        compare(slider.endedCount, 1)
    }

    function test_wheel_data() {
        return [
            { tag: "step", step: 1, modifiers: Qt.NoModifier, expected: 6 },
            { tag: "step, control: one step", step: 1, modifiers: Qt.ControlModifier, expected: 6 },
            { tag: "step, shift", step: 1, modifiers: Qt.ShiftModifier, expected: 10 },
            { tag: "no step: a tenth", step: 0, modifiers: Qt.NoModifier, expected: 6 },
            { tag: "no step, control: a fiftieth", step: 0, modifiers: Qt.ControlModifier, expected: 5.2 },
            { tag: "no step, shift: half the range", step: 0, modifiers: Qt.ShiftModifier, expected: 10 },
            { tag: "down", step: 1, modifiers: Qt.NoModifier, expected: 4, delta: -120 },
            { tag: "reverse", step: 1, modifiers: Qt.NoModifier, expected: 4, reverse: true }
        ]
    }
    function test_wheel(data) {
        const slider = makeSlider({ "to": 10, "stepSize": data.step, "enableWheeling": true,
                                    "reverse": !!data.reverse })
        slider.setValue(5)
        mouseWheel(slider, 20, slider.height / 2, 0, data.delta || 120, Qt.NoButton, data.modifiers)
        fuzzyCompare(slider.value, data.expected, 1e-9)
        tryCompare(slider, "endedCount", 1, 2000)
    }

    Component {
        id: wheelHostComponent
        // A page under the slider that takes the wheel events the slider leaves.
        MouseArea {
            id: wheelHost
            x: 50
            y: 50
            width: 400
            height: 100
            property int wheels: 0
            property alias slider: hostedSlider
            onWheel: function (wheel) {
                wheelHost.wheels += 1
            }
            VynSlider12 {
                id: hostedSlider
                x: 50
                y: 20
                width: 210
                to: 10
                stepSize: 1
                enableWheeling: true
                property var offers: []
                property int beganCount: 0
                sliderExpectsValue: function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
                    offers.push({ "value": p_newValue, "isFinal": p_isFinal })
                    setValue(p_newValue)
                    return true
                }
                sliderBeganSliding: function () { beganCount += 1 }
            }
        }
    }

    // Only the vertical delta turns into steps; a purely sideways turn is left to the page.
    function test_wheelReadsTheVerticalDelta_data() {
        return [
            { tag: "sideways", dx: 120, dy: 0, expected: 5, offers: 0, toPage: 1 },
            { tag: "sideways, backwards", dx: -240, dy: 0, expected: 5, offers: 0, toPage: 1 },
            { tag: "diagonal: the vertical part", dx: 240, dy: 120, expected: 6, offers: 1, toPage: 0 },
            { tag: "diagonal against the sideways part", dx: -360, dy: 120, expected: 6, offers: 1, toPage: 0 },
            { tag: "vertical, two notches down", dx: 0, dy: -240, expected: 3, offers: 1, toPage: 0 }
        ]
    }
    function test_wheelReadsTheVerticalDelta(data) {
        const host = createTemporaryObject(wheelHostComponent, testCase)
        verify(host)
        const slider = host.slider
        slider.setValue(5)
        waitForRendering(slider)
        mouseWheel(slider, 20, slider.height / 2, data.dx, data.dy)
        compare(slider.value, data.expected)
        compare(slider.offers.length, data.offers)
        compare(slider.beganCount, data.offers)
        compare(host.wheels, data.toPage)
    }

    function test_wheelDisabledByDefault() {
        const slider = makeSlider({ "to": 10 })
        slider.setValue(5)
        mouseWheel(slider, 20, slider.height / 2, 0, 120)
        compare(slider.value, 5)
    }

    function test_wheelLimitation() {
        const slider = makeSlider({ "to": 100, "stepSize": 1, "enableWheeling": true,
                                    "enableValueLimitation": true })
        slider.setValue(50)
        // The first notch has no previous step to compare with; the next ones, at once, turn
        // faster than 150 degrees per second and are dropped.
        mouseWheel(slider, 20, slider.height / 2, 0, 120)
        mouseWheel(slider, 20, slider.height / 2, 0, 120)
        mouseWheel(slider, 20, slider.height / 2, 0, 120)
        compare(slider.value, 51)
        wait(200)
        mouseWheel(slider, 20, slider.height / 2, 0, 120)
        compare(slider.value, 52)
    }

    function test_disableIgnoresEverything() {
        const slider = makeSlider({ "to": 10, "stepSize": 1, "enableWheeling": true,
                                    "securityType": VynCommonConstants.VynSecurityTypeDisable })
        slider.setValue(5)
        drag(slider, 60, 0)
        mouseClick(slider, 5, slider.height / 2)
        mouseWheel(slider, 20, slider.height / 2, 0, 120)
        compare(slider.value, 5)
        compare(slider.offers.length, 0)
        compare(slider.beganCount, 0)
    }

    function test_mixedShowsAverage() {
        const slider = makeSlider({})
        slider.values = [0.2, 0.4]
        verify(slider.mixed)
        fuzzyCompare(slider.value, 0.3, 1e-9)
        fuzzyCompare(slider.displayedValue, 0.3, 1e-9)
        slider.values = [0.7]
        verify(!slider.mixed)
    }

    Component {
        id: modelComponent
        VynUISliderComponent {}
    }

    function cleanup() {
        testHost.removePresenter()
        testHost.detachWindowController()
    }

    // Every release that was not cancelled asks, whatever the gesture changed; a refusal or a
    // missing window controller ends the gesture unaccepted.
    function test_shouldAlert_data() {
        const confirm = QApplicationMessage.Response_Confirm
        const cancel = QApplicationMessage.Response_Cancel
        return [
            { tag: "drag confirmed", response: confirm, gesture: "drag", expected: 0.5, finals: 1, accepted: true },
            { tag: "drag refused", response: cancel, gesture: "drag", expected: 0.25, finals: 0, accepted: false },
            { tag: "track click confirmed", response: confirm, gesture: "click", expected: 0.35, finals: 1, accepted: true },
            { tag: "track click refused", response: cancel, gesture: "click", expected: 0.25, finals: 0, accepted: false },
            { tag: "press on the thumb confirmed", response: confirm, gesture: "press", expected: 0.25, finals: 0, accepted: true },
            { tag: "press on the thumb refused", response: cancel, gesture: "press", expected: 0.25, finals: 0, accepted: false },
            { tag: "press, no window controller", response: confirm, gesture: "press", expected: 0.25, finals: 0,
              accepted: false, noController: true },
            { tag: "drag, no window controller", response: confirm, gesture: "drag", expected: 0.25, finals: 0,
              accepted: false, noController: true }
        ]
    }
    function test_shouldAlert(data) {
        const model = createTemporaryObject(modelComponent, testCase)
        const slider = makeSlider({ "uiSliderComponent": model,
                                    "securityType": VynCommonConstants.VynSecurityTypeShouldAlert })
        slider.setValue(0.25)
        if (!data.noController)
            verify(testHost.attachWindowController(slider))
        else
            ignoreWarning("Error: cannot display alert. Security type is set should alert and the windowController or parentWindow reference is null.")
        testHost.installAnsweringPresenter(data.response)
        const c = thumbCentre(slider)
        if (data.gesture === "click") {
            mouseClick(slider, c.x + 60, slider.height / 2)
        } else if (data.gesture === "press") {
            mousePress(slider, c.x, c.y)
            mouseRelease(slider, c.x, c.y)
        } else {
            drag(slider, 0.25 * slider._trackLength, 0)
            // Drag values were offered as not final.
            compare(slider.offers[0].isFinal, false)
        }
        compare(testHost.presentedCount, data.noController ? 0 : 1)
        fuzzyCompare(slider.value, data.expected, 1e-9)
        compare(slider.offers.filter(o => o.isFinal).length, data.finals)
        compare(slider.gestureAccepted, data.accepted)
        verify(!slider.pressed && !slider.dragging)
    }

    // Wheel steps and double clicks have no release of their own to confirm: their values go
    // straight to sliderExpectsValue as final, with or without a window controller. (A double
    // click's two releases are confirmed like any release.)
    function test_shouldAlertOffersWheelAndDoubleClickAsFinal_data() {
        const confirm = QApplicationMessage.Response_Confirm
        const cancel = QApplicationMessage.Response_Cancel
        return [
            { tag: "wheel, confirmations refused", input: "wheel", controller: true, response: cancel,
              expected: 0.35, events: ["offer 0.35 final"] },
            { tag: "wheel, no window controller", input: "wheel", controller: false, response: confirm,
              expected: 0.35, events: ["offer 0.35 final"] },
            { tag: "double click", input: "double click", controller: true, response: confirm,
              expected: 0.5, events: ["asked", "offer 0.5 final", "asked"] }
        ]
    }
    function test_shouldAlertOffersWheelAndDoubleClickAsFinal(data) {
        const model = createTemporaryObject(modelComponent, testCase)
        const slider = makeSlider({ "uiSliderComponent": model, "defaultValue": 0.5, "enableWheeling": true,
                                    "securityType": VynCommonConstants.VynSecurityTypeShouldAlert })
        slider.setValue(0.25)
        wait(400) // no double click with the previous test's clicks
        if (data.controller)
            verify(testHost.attachWindowController(slider))
        testHost.installAnsweringPresenter(data.response)
        const events = []
        const asked = function () { events.push("asked") }
        testHost.presented.connect(asked)
        slider.sliderExpectsValue = function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
            events.push("offer " + Math.round(p_newValue * 100) / 100 + (p_isFinal ? " final" : ""))
            slider.setValue(p_newValue)
            return true
        }
        if (data.input === "wheel") {
            mouseWheel(slider, 5, slider.height / 2, 0, 120)
        } else {
            const c = thumbCentre(slider)
            mouseDoubleClickSequence(slider, c.x, c.y)
        }
        testHost.presented.disconnect(asked)
        compare(events, data.events)
        fuzzyCompare(slider.value, data.expected, 1e-9)
    }

    // Only a live slider follows the pointer. A slider that is not live neither drags nor
    // cancels a track press when the pointer moves; the press still ends on release.
    // --- Keyboard --------------------------------------------------------------------------

    // Range 0..1 from 0.5 unless the row says otherwise; no step means a tenth of the range.
    function test_keys_data() {
        return [
            { tag: "right", key: Qt.Key_Right, expected: 0.6 },
            { tag: "left", key: Qt.Key_Left, expected: 0.4 },
            { tag: "up", key: Qt.Key_Up, expected: 0.6 },
            { tag: "down", key: Qt.Key_Down, expected: 0.4 },
            { tag: "shift right", key: Qt.Key_Right, modifiers: Qt.ShiftModifier, expected: 1 },
            { tag: "control right", key: Qt.Key_Right, modifiers: Qt.ControlModifier, expected: 0.52 },
            { tag: "right, stepped", key: Qt.Key_Right, props: { "stepSize": 0.05 }, expected: 0.55 },
            { tag: "control right, stepped: one step stays one step", key: Qt.Key_Right,
              modifiers: Qt.ControlModifier, props: { "stepSize": 0.05 }, expected: 0.55 },
            { tag: "page up, stepped", key: Qt.Key_PageUp, props: { "stepSize": 0.01 }, expected: 0.6 },
            { tag: "page down, coarse step", key: Qt.Key_PageDown, props: { "stepSize": 0.25 }, expected: 0.25 },
            { tag: "home", key: Qt.Key_Home, expected: 0 },
            { tag: "end", key: Qt.Key_End, expected: 1 },
            { tag: "end of a reversed range", key: Qt.Key_End, props: { "from": 10, "to": -10, "value": 0 }, expected: -10 },
            { tag: "right on a mirrored slider", key: Qt.Key_Right, props: { "mirror": true }, expected: 0.4 },
            { tag: "right on a reversed slider", key: Qt.Key_Right, props: { "reverse": true }, expected: 0.4 },
            { tag: "up on a mirrored vertical slider", key: Qt.Key_Up,
              props: { "orientation": Qt.Vertical, "mirror": true, "width": 20, "height": 210 }, expected: 0.4 },
            { tag: "clamped at the end", key: Qt.Key_Right, props: { "value": 0.95 }, expected: 1 }
        ]
    }
    function test_keys(data) {
        const props = Object.assign({ "value": 0.5 }, data.props || {})
        const slider = makeSlider(props)
        slider.forceActiveFocus()
        verify(slider.activeFocus)
        keyClick(data.key, data.modifiers === undefined ? Qt.NoModifier : data.modifiers)
        fuzzyCompare(slider.value, data.expected, 1e-9)
        compare(slider.offers.length, 1)
        verify(slider.offers[0].isFinal)
        compare(slider.beganCount, 1)
        // A burst of keys ends once, after the debounce.
        keyClick(data.key, data.modifiers === undefined ? Qt.NoModifier : data.modifiers)
        compare(slider.endedCount, 0)
        tryCompare(slider, "endedCount", 1)
    }

    function test_tabFocusAndRing() {
        const first = makeSlider({ "y": 20 })
        const second = makeSlider({ "y": 60 })
        first.forceActiveFocus()
        const thumb = findChild(second, "thumb")
        const idleBorder = thumb.border.width
        keyClick(Qt.Key_Tab)
        verify(second.activeFocus)
        verify(thumb.border.width > idleBorder)
        compare(second.Accessible.role, Accessible.Slider)
    }

    function test_keysIgnoredWhenNotAllowed_data() {
        return [
            { tag: "disabled security", props: { "securityType": VynCommonConstants.VynSecurityTypeDisable } },
            { tag: "host refuses sliding", props: { "shouldBeginSliding": function () { return false } } },
            { tag: "value not known", props: { "value": NaN } }
        ]
    }
    function test_keysIgnoredWhenNotAllowed(data) {
        const slider = makeSlider(data.props)
        slider.forceActiveFocus()
        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_End)
        compare(slider.offers.length, 0)
        compare(slider.beganCount, 0)
    }

    function test_keysOnShouldAlertAsk_data() {
        return [
            { tag: "confirmed", response: QApplicationMessage.Response_Confirm, expected: 0.35 },
            { tag: "refused", response: QApplicationMessage.Response_Cancel, expected: 0.25 }
        ]
    }
    function test_keysOnShouldAlertAsk(data) {
        const model = createTemporaryObject(modelComponent, testCase)
        const slider = makeSlider({ "uiSliderComponent": model,
                                    "securityType": VynCommonConstants.VynSecurityTypeShouldAlert })
        slider.setValue(0.25)
        verify(testHost.attachWindowController(slider))
        testHost.installAnsweringPresenter(data.response)
        slider.forceActiveFocus()
        keyClick(Qt.Key_Right)
        compare(testHost.presentedCount, 1)
        fuzzyCompare(slider.value, data.expected, 1e-9)
    }

    function test_liveGatesMoves_data() {
        return [
            { tag: "live, thumb dragged", live: true, onThumb: true, dragged: true, expected: 0.75, offers: 4 },
            { tag: "not live, thumb dragged", live: false, onThumb: true, dragged: false, expected: 0.5, offers: 0 },
            { tag: "live, track press moved: no increment", live: true, onThumb: false, dragged: false,
              expected: 0.5, offers: 0 },
            { tag: "not live, track press moved: increments on release", live: false, onThumb: false, dragged: false,
              expected: 0.6, offers: 1 }
        ]
    }
    function test_liveGatesMoves(data) {
        const slider = makeSlider({ "live": data.live })
        slider.setValue(0.5)
        const c = thumbCentre(slider)
        const x = data.onThumb ? c.x : c.x + 60
        // The track press moves 20 px, well past the threshold and still inside the slider.
        const dx = data.onThumb ? 0.25 * slider._trackLength : 20
        let sawDragging = false
        mousePress(slider, x, c.y)
        for (let i = 1; i <= 4; ++i) {
            mouseMove(slider, x + dx * i / 4, c.y, -1, Qt.LeftButton)
            sawDragging = sawDragging || slider.dragging
        }
        mouseRelease(slider, x + dx, c.y)
        compare(sawDragging, data.dragged)
        fuzzyCompare(slider.value, data.expected, 1e-9)
        compare(slider.offers.length, data.offers)
        verify(slider.offers.every(o => o.isFinal))
        compare(slider.beganCount, 1)
        if (data.onThumb)
            compare(slider.endedCount, 1)
        else
            tryCompare(slider, "endedCount", 1, 2000)
    }

    function test_ticks() {
        const slider = makeSlider({ "to": 4, "stepSize": 1, "drawsTicks": true })
        const ticks = []
        for (let i = 0; i < slider.children.length; ++i) {
            const child = slider.children[i]
            if (child.axisPosition !== undefined)
                ticks.push(child)
        }
        compare(ticks.length, 5)
        fuzzyCompare(ticks[0].axisPosition, slider._trackStart, 1e-9)
        fuzzyCompare(ticks[4].axisPosition, slider._trackStart + slider._trackLength, 1e-9)
    }
}
