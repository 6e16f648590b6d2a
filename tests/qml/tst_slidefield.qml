import QtQuick
import QtTest
import VynUI 1.2

// The slide field under real pointer and key events: panning thresholds and acceleration,
// validator refusals, clamping, the minus/plus debounce and the security types.
TestCase {
    id: testCase
    name: "SlideField"
    width: 700
    height: 200
    visible: true
    when: windowShown

    Component {
        id: fieldComponent
        VynSlideField11 {
            x: 320
            y: 20
            width: 240
            from: 0
            to: 1000
            allowsPanning: true
            hasMinus: true
            hasPlus: true
            // Records every offer and every end of a gesture.
            property var offers: []
            property int endedCount: 0
            property real lastEndTime: 0
            property bool refuse: false
            slideFieldExpectsValue: function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
                offers.push({ "value": p_newValue, "prev": p_prevValue, "isFinal": p_isFinal })
                if (refuse)
                    return false
                setValue(p_newValue)
                return true
            }
            slideFieldEndedSliding: function () {
                endedCount += 1
                lastEndTime = Date.now()
            }
        }
    }

    Component {
        id: modelComponent
        VynUISlideFieldComponent {}
    }

    function makeField(p_properties) {
        const field = createTemporaryObject(fieldComponent, testCase, p_properties)
        verify(field)
        waitForRendering(field)
        return field
    }

    // The handle's centre in the field's coordinates.
    function handleCentre(p_field) {
        const handle = findChild(p_field, "panningHandle")
        verify(handle && handle.visible)
        return handle.mapToItem(p_field, handle.width / 2, handle.height / 2)
    }

    function pan(p_field, p_moves, p_release = true) {
        const c = handleCentre(p_field)
        mousePress(p_field, c.x, c.y, Qt.LeftButton)
        for (let i = 0; i < p_moves.length; ++i)
            mouseMove(p_field, c.x + p_moves[i], c.y, -1, Qt.LeftButton)
        if (p_release)
            mouseRelease(p_field, c.x + p_moves[p_moves.length - 1], c.y, Qt.LeftButton)
    }

    function cleanup() {
        testHost.removePresenter()
        testHost.detachWindowController()
    }

    function test_threshold_data() {
        return [
            { tag: "3 px does not pan", move: 3, panning: false },
            { tag: "4 px pans", move: 4, panning: true },
            { tag: "-4 px pans", move: -4, panning: true }
        ]
    }
    function test_threshold(data) {
        const field = makeField({ "value": 10 })
        const clicked = createTemporaryObject(spyComponent, testCase,
                                              { "target": field, "signalName": "panningClicked" })
        pan(field, [data.move], false)
        compare(field.panning, data.panning)
        const c = handleCentre(field)
        mouseRelease(field, c.x + data.move, c.y, Qt.LeftButton)
        verify(!field.panning)
        compare(field.endedCount, data.panning ? 1 : 1)
        // Only a press that did not pan is a click on the handle.
        compare(clicked.count, data.panning ? 0 : 1)
    }

    Component {
        id: spyComponent
        SignalSpy {}
    }

    function test_acceleration_data() {
        return [
            // The first movement counts twice: 150 px from 10 is 10 + value(300) = 10 + 375.
            { tag: "first move 150 px", start: 10, moves: [150], expected: 385 },
            { tag: "first move -150 px", start: 500, moves: [-150], expected: 125 },
            { tag: "40 then 75 px", start: 10, moves: [40, 75], expected: 10 + 40 },
            { tag: "reverse", start: 500, moves: [150], expected: 125, reverse: true },
            { tag: "start truncated", start: 10.75, moves: [4, 40], expected: 21 }
        ]
    }
    function test_acceleration(data) {
        const field = makeField({ "value": data.start, "isReverse": !!data.reverse })
        pan(field, data.moves)
        compare(field.value, data.expected)
        const last = field.offers[field.offers.length - 1]
        compare(last.value, data.expected)
        verify(last.isFinal)
    }

    function test_valueIncreaseForDistance_data() {
        return [
            { tag: "80", d: 80, v: 20 },
            { tag: "150", d: 150, v: 75 },
            { tag: "350", d: 350, v: 575 },
            { tag: "-350", d: -350, v: -575 },
            { tag: "2 (half rounds up)", d: 2, v: 1 },
            { tag: "-2 (half rounds up)", d: -2, v: 0 }
        ]
    }
    function test_valueIncreaseForDistance(data) {
        const field = makeField({})
        compare(field.valueIncreaseForDistance(data.d), data.v)
    }

    function test_refusedValueRestoresLastValue() {
        const accepted = makeField({ "value": 10 })
        pan(accepted, [10, 30])
        // Accepted: lastValue is the value before the latest change.
        compare(accepted.lastValue, accepted.offers[0].value)

        const refused = makeField({ "value": 10, "refuse": true })
        pan(refused, [10, 30])
        compare(refused.offers.length, 2)
        compare(refused.lastValue, 10)
        compare(refused.value, 10)
    }

    function test_clampingAtBounds() {
        const field = makeField({ "value": 10, "from": 0, "to": 20 })
        pan(field, [4, 44, 60], false)
        compare(field.value, 20)
        for (let i = 0; i < field.offers.length; ++i)
            verify(field.offers[i].value <= 20)
        // Turning back leaves the bound at once.
        const c = handleCentre(field)
        mouseMove(field, c.x + 0, c.y, -1, Qt.LeftButton)
        verify(field.value < 20)
        mouseMove(field, c.x - 300, c.y, -1, Qt.LeftButton)
        compare(field.value, 0)
        mouseRelease(field, c.x - 300, c.y, Qt.LeftButton)
    }

    function test_plusBurstEndsOnce() {
        const field = makeField({ "value": 10 })
        const plus = findChild(field, "plusButton")
        verify(plus && plus.visible)
        for (let i = 0; i < 5; ++i) {
            mouseClick(plus)
            wait(40)
        }
        compare(field.value, 15)
        const lastClick = Date.now()
        wait(300)
        compare(field.endedCount, 0)
        tryCompare(field, "endedCount", 1, 2000)
        verify(field.lastEndTime - lastClick >= 250)
        wait(700)
        compare(field.endedCount, 1)
    }

    function test_minusAndReverse() {
        const field = makeField({ "value": 10, "stepSize": 2.5 })
        mouseClick(findChild(field, "minusButton"))
        compare(field.value, 7.5)
        field.isReverse = true
        mouseClick(findChild(field, "minusButton"))
        compare(field.value, 10)
    }

    function test_buttonWidthsFollowGlyphParity() {
        const field = makeField({})
        const minus = findChild(field, "minusButton")
        const plus = findChild(field, "plusButton")
        compare(minus.width % 2, minus.glyphWidth % 2)
        compare(plus.width % 2, plus.glyphWidth % 2)
        verify(Math.abs(minus.width - Math.round(1.9 * minus.glyphWidth)) <= 1)
        verify(plus.width - minus.width <= 1)
    }

    function test_disableIgnoresPressesAndClicks() {
        let asked = 0
        const field = makeField({ "value": 10,
                                  "securityType": VynCommonConstants.VynSecurityTypeDisable })
        field.shouldBeginSliding = function () { asked += 1; return true }
        pan(field, [50, 100])
        mouseClick(findChild(field, "plusButton"))
        compare(field.value, 10)
        compare(field.offers.length, 0)
        compare(asked, 0)
        verify(!field.panning)
    }

    function test_shouldBeginSlidingRefused() {
        const field = makeField({ "value": 10 })
        field.shouldBeginSliding = function () { return false }
        pan(field, [50])
        mouseClick(findChild(field, "plusButton"))
        compare(field.offers.length, 0)
        compare(field.value, 10)
    }

    function typeAndAccept(p_field, p_keys) {
        wait(500) // no double click with the previous test's clicks
        mouseClick(p_field, p_field.width / 2, p_field.height / 2)
        tryVerify(() => p_field.activeFocus)
        if (p_keys.length > 0) {
            keySequence(StandardKey.SelectAll)
            for (let i = 0; i < p_keys.length; ++i)
                keyClick(p_keys[i])
        }
        keyClick(Qt.Key_Return)
    }

    // The default acceptAction sets the value from the text, clamped, without offering it and
    // without asking, whatever the security type says.
    // --- Keyboard --------------------------------------------------------------------------

    function test_keySteps_data() {
        return [
            { tag: "up", key: Qt.Key_Up, expected: 11 },
            { tag: "down", key: Qt.Key_Down, expected: 9 },
            { tag: "page up", key: Qt.Key_PageUp, expected: 20 },
            { tag: "page down", key: Qt.Key_PageDown, expected: 0 },
            { tag: "up, reversed", key: Qt.Key_Up, props: { "isReverse": true }, expected: 9 },
            { tag: "page up, reversed", key: Qt.Key_PageUp, props: { "isReverse": true }, expected: 0 },
            { tag: "up at the end", key: Qt.Key_Up, props: { "value": 1000 }, expected: 1000, offers: 0 }
        ]
    }
    function test_keySteps(data) {
        const field = makeField(Object.assign({ "value": 10, "stepSize": 1 }, data.props || {}))
        field.forceActiveFocus()
        keyClick("5") // a half-typed entry, dropped by the step
        keyClick(data.key)
        compare(field.value, data.expected)
        compare(field.offers.length, data.offers === undefined ? 1 : data.offers)
        verify(field.offers.every(o => o.isFinal))
        verify(field.activeFocus)
        compare(field.text, String(data.expected))
        tryCompare(field, "endedCount", 1)
    }

    function test_keyStepsIgnoredWhenNotAllowed_data() {
        return [
            { tag: "disabled security", props: { "securityType": VynCommonConstants.VynSecurityTypeDisable } },
            { tag: "host refuses sliding", props: { "shouldBeginSliding": function () { return false } } }
        ]
    }
    function test_keyStepsIgnoredWhenNotAllowed(data) {
        const field = makeField(Object.assign({ "value": 10 }, data.props))
        field.forceActiveFocus()
        keyClick(Qt.Key_Up)
        keyClick(Qt.Key_PageDown)
        compare(field.value, 10)
        compare(field.offers.length, 0)
    }

    function test_typedEntry_data() {
        const alert = VynCommonConstants.VynSecurityTypeShouldAlert
        return [
            { tag: "point", keys: "12.5", expected: 12.5 },
            { tag: "clamped", keys: "5000", expected: 1000 },
            { tag: "should-alert, confirmations refused", keys: "42", expected: 42, security: alert, controller: true },
            { tag: "should-alert, no window controller", keys: "42", expected: 42, security: alert, controller: false }
        ]
    }
    function test_typedEntry(data) {
        const model = createTemporaryObject(modelComponent, testCase)
        const field = makeField({ "value": 10, "uiSlideFieldComponent": model,
                                  "securityType": data.security || VynCommonConstants.VynSecurityTypeNone })
        if (data.controller)
            verify(testHost.attachWindowController(field))
        testHost.installAnsweringPresenter(QApplicationMessage.Response_Cancel)
        typeAndAccept(field, data.keys)
        compare(field.value, data.expected)
        verify(!field.activeFocus)
        compare(field.text, String(data.expected))
        compare(field.offers.length, 0)
        compare(testHost.presentedCount, 0)
    }

    // acceptAction receives the full text as it is, unchanged or not, never the elided one.
    function test_acceptActionGetsTheFullText_data() {
        return [
            { tag: "typed", value: 10, width: 240, keys: "25", received: "25" },
            { tag: "unchanged", value: 10, width: 240, keys: "", received: "10" },
            { tag: "retyped as shown", value: 10, width: 240, keys: "10", received: "10" },
            { tag: "elided while idle", value: 123456789.25, width: 90, keys: "", received: "123456789.25", elided: true }
        ]
    }
    function test_acceptActionGetsTheFullText(data) {
        const field = makeField({ "value": data.value, "to": 1e12, "width": data.width,
                                  "hasMinus": false, "hasPlus": false, "allowsPanning": false })
        const received = []
        field.acceptAction = function (p_text) {
            received.push(p_text)
        }
        compare(field.text !== field.fullText, !!data.elided)
        typeAndAccept(field, data.keys)
        compare(received, [data.received])
    }

    // Every release of the handle that was not cancelled asks, a press that did not pan
    // included; drag values are offered as not final and only a confirmed change as final.
    function test_shouldAlert_data() {
        const confirm = QApplicationMessage.Response_Confirm
        const cancel = QApplicationMessage.Response_Cancel
        return [
            { tag: "pan confirmed", response: confirm, moves: [150], expected: 385, finals: 1, accepted: true },
            { tag: "pan refused", response: cancel, moves: [150], expected: 10, finals: 0, accepted: false },
            { tag: "press without pan confirmed", response: confirm, moves: [2], expected: 10, finals: 0, accepted: true },
            { tag: "press without pan refused", response: cancel, moves: [2], expected: 10, finals: 0, accepted: false }
        ]
    }
    function test_shouldAlert(data) {
        const model = createTemporaryObject(modelComponent, testCase)
        const field = makeField({ "value": 10, "uiSlideFieldComponent": model,
                                  "securityType": VynCommonConstants.VynSecurityTypeShouldAlert })
        verify(testHost.attachWindowController(field))
        testHost.installAnsweringPresenter(data.response)
        pan(field, data.moves)
        compare(testHost.presentedCount, 1)
        compare(field.value, data.expected)
        verify(field.offers.slice(0, -1).every(o => !o.isFinal))
        compare(field.offers.filter(o => o.isFinal).length, data.finals)
        compare(field.gestureAccepted, data.accepted)
        compare(field.endedCount, 1)
    }

    // Minus and plus are ignored only when disabled, refused by shouldBeginSliding() or long
    // pressed: a should-alert field does not ask, and its step is offered as final.
    function test_stepClicksOnShouldAlert_data() {
        return [
            { tag: "plus, confirmations refused", button: "plusButton", controller: true, expected: 11 },
            { tag: "minus, confirmations refused", button: "minusButton", controller: true, expected: 9 },
            { tag: "plus, no window controller", button: "plusButton", controller: false, expected: 11 }
        ]
    }
    function test_stepClicksOnShouldAlert(data) {
        const model = createTemporaryObject(modelComponent, testCase)
        const field = makeField({ "value": 10, "uiSlideFieldComponent": model,
                                  "securityType": VynCommonConstants.VynSecurityTypeShouldAlert })
        if (data.controller)
            verify(testHost.attachWindowController(field))
        testHost.installAnsweringPresenter(QApplicationMessage.Response_Cancel)
        const signalName = data.button === "plusButton" ? "plusClicked" : "minusClicked"
        const clicked = createTemporaryObject(spyComponent, testCase, { "target": field, "signalName": signalName })
        mouseClick(findChild(field, data.button))
        compare(clicked.count, 1)
        compare(testHost.presentedCount, 0)
        compare(field.value, data.expected)
        compare(field.offers.length, 1)
        verify(field.offers[0].isFinal)
        tryCompare(field, "endedCount", 1, 2000)
    }

    function test_shouldAlertWithoutWindowController_data() {
        return [
            { tag: "pan", moves: [150] },
            { tag: "press without pan", moves: [2] }
        ]
    }
    function test_shouldAlertWithoutWindowController(data) {
        const model = createTemporaryObject(modelComponent, testCase)
        const field = makeField({ "value": 10, "uiSlideFieldComponent": model,
                                  "securityType": VynCommonConstants.VynSecurityTypeShouldAlert })
        testHost.installAnsweringPresenter(QApplicationMessage.Response_Confirm)
        ignoreWarning("Error: cannot display alert. Security type is set should alert and the windowController or parentWindow reference is null.")
        pan(field, data.moves)
        compare(testHost.presentedCount, 0)
        compare(field.value, 10)
        verify(!field.gestureAccepted)
        compare(field.endedCount, 1)
    }
}
