import QtQuick
import QtTest
import VynUI 1.2

// The parameter-bound wrappers driving component models whose host validators modify the
// values they are given, as a device with its own resolution does.
TestCase {
    id: testCase
    name: "UISlider"
    width: 700
    height: 300
    visible: true
    when: windowShown

    Component {
        id: sliderModelComponent
        VynUISliderComponent {}
    }
    Component {
        id: fieldModelComponent
        VynUISlideFieldComponent {}
    }
    Component {
        id: uiSliderComponent
        VynUISlider {
            x: 100
            y: 40
            width: 210
        }
    }
    Component {
        id: uiFieldComponent
        VynUISlideField {
            x: 300
            y: 120
            width: 200
            allowsPanning: true
            hasMinus: true
            hasPlus: true
        }
    }

    // A host: accepts when `accept`, rounds every value to `resolution`, records the calls.
    function makeModel(p_component, p_min, p_max, p_value, p_resolution) {
        const model = createTemporaryObject(p_component, testCase)
        model.minValue = p_min
        model.maxValue = p_max
        model.value = p_value
        model.prevValue = p_value
        const host = { "calls": [], "accept": true, "canSlide": true }
        model.setSlidingValidatorQml(function (p_model) { return host.canSlide })
        model.setValueValidatorQml(function (p_model, p_value, p_isRelative, p_prev, p_isFinal) {
            host.calls.push({ "value": p_value, "isFinal": p_isFinal })
            return { "accepted": host.accept,
                     "value": Math.round(p_value / p_resolution) * p_resolution }
        })
        return { "model": model, "host": host }
    }

    function thumbCentre(p_slider) {
        const thumb = findChild(p_slider, "thumb")
        return thumb.mapToItem(p_slider, thumb.width / 2, thumb.height / 2)
    }

    function cleanup() {
        testHost.removePresenter()
        testHost.detachWindowController()
    }

    function test_sliderFollowsTheModifiedValue() {
        const bound = makeModel(sliderModelComponent, 0, 10, 2, 0.5)
        const slider = createTemporaryObject(uiSliderComponent, testCase,
                                             { "uiSliderComponent": bound.model })
        waitForRendering(slider)
        compare(slider.value, 2)
        const c = thumbCentre(slider)
        mousePress(slider, c.x, c.y)
        verify(bound.model.sliding)
        mouseMove(slider, c.x + 37, c.y, -1, Qt.LeftButton)
        // The thumb shows what the host made of the value, at once.
        compare(slider.value, bound.model.value)
        compare(bound.model.value % 0.5, 0)
        verify(bound.model.value > 2)
        // A device echo while the hand is on the thumb does not move it.
        const held = slider.value
        bound.model.value = 9
        compare(slider.value, held)
        mouseRelease(slider, c.x + 37, c.y)
        verify(!bound.model.sliding)
        compare(slider.value, 9)
        compare(bound.model.prevValue, 9)
        verify(bound.host.calls.length > 0)
        verify(bound.host.calls.every(call => call.isFinal))
    }

    function test_withoutSlidingValidatorNothingMoves() {
        const bound = makeModel(sliderModelComponent, 0, 10, 2, 0.5)
        bound.model.setSlidingValidatorQml(null)
        const slider = createTemporaryObject(uiSliderComponent, testCase,
                                             { "uiSliderComponent": bound.model })
        waitForRendering(slider)
        const c = thumbCentre(slider)
        mousePress(slider, c.x, c.y)
        mouseMove(slider, c.x + 60, c.y, -1, Qt.LeftButton)
        mouseRelease(slider, c.x + 60, c.y)
        compare(bound.host.calls.length, 0)
        compare(slider.value, 2)
        compare(bound.model.value, 2)
    }

    function test_enabledAndSecurityFromTheModel() {
        const bound = makeModel(sliderModelComponent, 0, 10, 2, 0.5)
        const slider = createTemporaryObject(uiSliderComponent, testCase,
                                             { "uiSliderComponent": bound.model })
        verify(slider.enabled)
        bound.model.securityType = VynCommonConstants.VynSecurityTypeDisable
        verify(!slider.enabled)
        compare(slider.securityType, VynCommonConstants.VynSecurityTypeDisable)
        bound.model.securityType = VynCommonConstants.VynSecurityTypeNone
        verify(slider.enabled)
    }

    function test_longPressReachesTheModel() {
        const bound = makeModel(sliderModelComponent, 0, 10, 2, 0.5)
        const slider = createTemporaryObject(uiSliderComponent, testCase,
                                             { "uiSliderComponent": bound.model })
        waitForRendering(slider)
        const spy = createTemporaryObject(spyComponent, testCase,
                                          { "target": bound.model, "signalName": "longPressed" })
        const c = thumbCentre(slider)
        mousePress(slider, c.x, c.y)
        spy.wait(2000)
        mouseRelease(slider, c.x, c.y)
        compare(slider.value, 2)
    }

    Component {
        id: spyComponent
        SignalSpy {}
    }

    function test_fieldPlusGoesThroughTheHost() {
        const bound = makeModel(fieldModelComponent, 0, 100, 10, 2)
        const field = createTemporaryObject(uiFieldComponent, testCase,
                                            { "uiSlideFieldComponent": bound.model, "stepSize": 3 })
        waitForRendering(field)
        mouseClick(findChild(field, "plusButton"))
        // 10 + 3 = 13, which the host rounds to 14.
        compare(bound.model.value, 14)
        compare(field.value, 14)
        compare(bound.host.calls[0].value, 13)
    }

    function test_fieldTypedEntry() {
        const bound = makeModel(fieldModelComponent, 0, 100, 10, 1)
        const field = createTemporaryObject(uiFieldComponent, testCase,
                                            { "uiSlideFieldComponent": bound.model })
        waitForRendering(field)
        mouseClick(field, field.width / 2, field.height / 2)
        tryVerify(() => field.activeFocus)
        keySequence(StandardKey.SelectAll)
        keyClick("4")
        keyClick("2")
        keyClick(".")
        keyClick("6")
        keyClick(Qt.Key_Return)
        compare(bound.model.value, 43)
        compare(field.text, bound.model.stringValue)
    }

    // The wrapper's own acceptAction: an unchanged or blank entry changes nothing, and a
    // should-alert component asks before the entry reaches the host.
    function test_fieldTypedEntryThroughTheModel_data() {
        const none = VynCommonConstants.VynSecurityTypeNone
        const alert = VynCommonConstants.VynSecurityTypeShouldAlert
        return [
            { tag: "typed", keys: "42", security: none, expected: 42, calls: 1, asked: 0 },
            { tag: "unchanged", keys: "", security: none, expected: 10, calls: 0, asked: 0 },
            { tag: "should-alert, confirmed", keys: "42", security: alert, response: QApplicationMessage.Response_Confirm,
              expected: 42, calls: 1, asked: 1 },
            { tag: "should-alert, refused", keys: "42", security: alert, response: QApplicationMessage.Response_Cancel,
              expected: 10, calls: 0, asked: 1 }
        ]
    }
    function test_fieldTypedEntryThroughTheModel(data) {
        const bound = makeModel(fieldModelComponent, 0, 100, 10, 1)
        bound.model.securityType = data.security
        const field = createTemporaryObject(uiFieldComponent, testCase,
                                            { "uiSlideFieldComponent": bound.model })
        waitForRendering(field)
        verify(testHost.attachWindowController(field))
        testHost.installAnsweringPresenter(data.response !== undefined ? data.response
                                                                 : QApplicationMessage.Response_Cancel)
        wait(500) // no double click with the previous test's clicks
        mouseClick(field, field.width / 2, field.height / 2)
        tryVerify(() => field.activeFocus)
        if (data.keys.length > 0) {
            keySequence(StandardKey.SelectAll)
            for (let i = 0; i < data.keys.length; ++i)
                keyClick(data.keys[i])
        }
        keyClick(Qt.Key_Return)
        compare(testHost.presentedCount, data.asked)
        compare(bound.host.calls.length, data.calls)
        verify(bound.host.calls.every(call => call.isFinal))
        compare(bound.model.value, data.expected)
        compare(field.value, data.expected)
    }

    // A mixed selection is edited from the press on the panning handle to its release, whether
    // or not the press pans; sliding begins and ends inside that span, and only with a pan.
    function test_fieldMixedPressAndRelease_data() {
        return [
            { tag: "press and release", move: 2,
              afterMove: [], afterRelease: ["done"] },
            { tag: "pan", move: 40,
              afterMove: ["slidingBegan"], afterRelease: ["slidingBegan", "slidingEnded", "done"] }
        ]
    }
    function test_fieldMixedPressAndRelease(data) {
        const bound = makeModel(fieldModelComponent, 0, 1000, 10, 1)
        const field = createTemporaryObject(uiFieldComponent, testCase,
                                            { "uiSlideFieldComponent": bound.model })
        waitForRendering(field)
        testHost.watchEditing(bound.model)
        testHost.pushValue(bound.model, 10, [10, 30])
        verify(field.mixed)
        const events = []
        const began = function () { events.push("slidingBegan") }
        const ended = function () { events.push("slidingEnded") }
        const done = function () { events.push("done") }
        bound.model.slidingBegan.connect(began)
        bound.model.slidingEnded.connect(ended)
        bound.model.doneEditingWhileMultiple.connect(done)
        const handle = findChild(field, "panningHandle")
        const c = handle.mapToItem(field, handle.width / 2, handle.height / 2)
        mousePress(field, c.x, c.y)
        compare(testHost.editedCount(), 1)
        compare(testHost.lastAutoClose(), false)
        compare(events, [])
        mouseMove(field, c.x + data.move, c.y, -1, Qt.LeftButton)
        compare(events, data.afterMove)
        mouseRelease(field, c.x + data.move, c.y)
        compare(events, data.afterRelease)
        compare(testHost.editedCount(), 1)
        bound.model.slidingBegan.disconnect(began)
        bound.model.slidingEnded.disconnect(ended)
        bound.model.doneEditingWhileMultiple.disconnect(done)
    }

    function test_fieldHandleClickIsNoGesture() {
        const bound = makeModel(fieldModelComponent, 0, 1000, 10, 1)
        const field = createTemporaryObject(uiFieldComponent, testCase,
                                            { "uiSlideFieldComponent": bound.model })
        waitForRendering(field)
        const began = createTemporaryObject(spyComponent, testCase,
                                            { "target": bound.model, "signalName": "slidingBegan" })
        const ended = createTemporaryObject(spyComponent, testCase,
                                            { "target": bound.model, "signalName": "slidingEnded" })
        const handle = findChild(field, "panningHandle")
        const c = handle.mapToItem(field, handle.width / 2, handle.height / 2)
        // A press and release that never pans: nothing began, so nothing ends.
        mousePress(field, c.x, c.y)
        mouseMove(field, c.x + 2, c.y, -1, Qt.LeftButton)
        mouseRelease(field, c.x + 2, c.y)
        compare(began.count, 0)
        compare(ended.count, 0)
        // A pan: one of each, the end after the beginning.
        mousePress(field, c.x, c.y)
        mouseMove(field, c.x + 40, c.y, -1, Qt.LeftButton)
        compare(began.count, 1)
        compare(ended.count, 0)
        mouseRelease(field, c.x + 40, c.y)
        compare(ended.count, 1)
        compare(bound.model.value, 30)
        compare(bound.model.prevValue, 30)
    }

    function test_fieldPanRefusedByConfirmation_data() {
        return [
            { tag: "confirmed", response: QApplicationMessage.Response_Confirm, confirmed: true },
            { tag: "refused", response: QApplicationMessage.Response_Cancel, confirmed: false }
        ]
    }
    function test_fieldPanRefusedByConfirmation(data) {
        const bound = makeModel(fieldModelComponent, 0, 1000, 10, 1)
        bound.model.securityType = VynCommonConstants.VynSecurityTypeShouldAlert
        const field = createTemporaryObject(uiFieldComponent, testCase,
                                            { "uiSlideFieldComponent": bound.model })
        waitForRendering(field)
        verify(testHost.attachWindowController(field))
        testHost.installAnsweringPresenter(data.response)
        const handle = findChild(field, "panningHandle")
        const c = handle.mapToItem(field, handle.width / 2, handle.height / 2)
        mousePress(field, c.x, c.y)
        mouseMove(field, c.x + 150, c.y, -1, Qt.LeftButton)
        compare(bound.host.calls[0].isFinal, false)
        mouseRelease(field, c.x + 150, c.y)
        compare(testHost.presentedCount, 1)
        compare(bound.model.value, data.confirmed ? 385 : 10)
        compare(field.value, bound.model.value)
        compare(bound.host.calls.filter(call => call.isFinal).length, data.confirmed ? 1 : 0)
    }

    function test_mixedSelection() {
        const bound = makeModel(fieldModelComponent, 0, 100, 10, 1)
        const field = createTemporaryObject(uiFieldComponent, testCase,
                                            { "uiSlideFieldComponent": bound.model })
        const slider = createTemporaryObject(uiSliderComponent, testCase,
                                             { "uiSliderComponent": bound.model, "to": 100 })
        waitForRendering(field)
        testHost.watchEditing(bound.model)
        const done = createTemporaryObject(spyComponent, testCase,
                                           { "target": bound.model, "signalName": "doneEditingWhileMultiple" })
        testHost.pushValue(bound.model, 20, [20, 40])
        verify(bound.model.mixed)
        verify(field.mixed)
        compare(field.text, VynUIQmlConstants.localizedString("MULTIPLE_SHORT"))
        verify(slider.mixed)
        compare(slider.displayedValue, 30) // the average of the selection
        mouseClick(findChild(field, "plusButton"))
        compare(testHost.editedCount(), 1)
        compare(testHost.lastAutoClose(), false)
        compare(bound.model.value, 21)
        tryCompare(done, "count", 1, 2000)
        // The selection's echo ends the mixed state.
        testHost.pushValue(bound.model, 21, [21, 21])
        verify(!field.mixed)
        compare(field.text, bound.model.stringValue)
    }

    function test_sliderAndFieldShareTheModel() {
        const bound = makeModel(fieldModelComponent, 0, 100, 10, 5)
        const pair = createTemporaryObject(pairComponent, testCase,
                                           { "uiSlideFieldComponent": bound.model })
        waitForRendering(pair)
        pair.field.hasPlus = true
        mouseClick(findChild(pair.field, "plusButton"))
        compare(bound.model.value, 10) // 11 rounds back to 10 at the host
        pair.field.stepSize = 4
        mouseClick(findChild(pair.field, "plusButton"))
        compare(bound.model.value, 15)
        compare(pair.slider.value, 15)
    }

    function test_labelAndFieldShowsTheName() {
        const bound = makeModel(fieldModelComponent, 0, 100, 10, 1)
        testHost.nameComponent(bound.model, "Delay")
        const row = createTemporaryObject(labelAndFieldComponent, testCase,
                                          { "uiSlideFieldComponent": bound.model })
        waitForRendering(row)
        compare(row.title, "")
        bound.model.wantsName = true
        compare(row.title, "Delay")
        testHost.nameComponent(bound.model, "Delay L")
        compare(row.title, "Delay L")
        // Its plus button edits through the host like any bound field.
        mouseClick(findChild(row, "plusButton"))
        compare(bound.model.value, 11)
    }

    Component {
        id: labelAndFieldComponent
        VynUILabelAndField {
            x: 20
            y: 240
            width: 400
        }
    }

    Component {
        id: pairComponent
        VynUISliderAndField {
            x: 20
            y: 200
            width: 500
            height: 24
        }
    }
}
