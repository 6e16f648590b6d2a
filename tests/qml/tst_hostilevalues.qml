import QtQuick
import QtTest
import VynUI 1.2

// The slider and the slide field with values that are not numbers, under real pointer and
// wheel events: a value not known yet (NaN) is never shown, never truncated to an integer and
// never offered; a NaN handed to setValue() is refused with one warning.
TestCase {
    id: testCase
    name: "HostileValues"
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
            property var offers: []
            slideFieldExpectsValue: function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
                offers.push(p_newValue, p_prevValue)
                setValue(p_newValue)
                return true
            }
        }
    }

    Component {
        id: sliderComponent
        VynSlider12 {
            x: 100
            y: 100
            width: 210
            from: -60
            to: 12
            stepSize: 1
            enableWheeling: true
            property var offers: []
            sliderExpectsValue: function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
                offers.push(p_newValue, p_prevValue)
                setValue(p_newValue)
                return true
            }
        }
    }

    function make(p_component, p_properties) {
        const control = createTemporaryObject(p_component, testCase, p_properties)
        verify(control)
        waitForRendering(control)
        return control
    }

    // Every gesture a user can make on a field whose value is not known yet offers nothing.
    function test_fieldUnknownValue_data() {
        return [
            { tag: "pan right", gesture: "pan", dx: 80 },
            { tag: "pan left", gesture: "pan", dx: -80 },
            { tag: "plus", gesture: "plus" },
            { tag: "minus", gesture: "minus" }
        ]
    }
    function test_fieldUnknownValue(data) {
        const field = make(fieldComponent, { "value": NaN })
        verify(!field.text.includes("NaN"))
        compare(field.stringValue, "")
        if (data.gesture === "pan") {
            const handle = findChild(field, "panningHandle")
            const c = handle.mapToItem(field, handle.width / 2, handle.height / 2)
            mousePress(field, c.x, c.y, Qt.LeftButton)
            for (let i = 1; i <= 4; ++i)
                mouseMove(field, c.x + data.dx * i / 4, c.y, -1, Qt.LeftButton)
            mouseRelease(field, c.x + data.dx, c.y, Qt.LeftButton)
            verify(!field.panning)
        } else {
            mouseClick(findChild(field, data.gesture + "Button"))
        }
        compare(field.offers, [])
        verify(isNaN(field.value))
        verify(!field.text.includes("NaN"))
    }

    function test_fieldRefusesNaN() {
        const field = make(fieldComponent, { "value": 10 })
        ignoreWarning(/VynSlideField11: refused a value that is not a number/)
        field.setValue(NaN)
        compare(field.value, 10)
        compare(field.text, "10")
        field.setValue(-Infinity)
        compare(field.value, 0)
    }

    function test_sliderUnknownValue_data() {
        return [
            { tag: "track click", gesture: "click" },
            { tag: "double click", gesture: "double" },
            { tag: "wheel", gesture: "wheel" },
            { tag: "drag", gesture: "drag" }
        ]
    }
    function test_sliderUnknownValue(data) {
        const slider = make(sliderComponent, { "value": NaN })
        const thumb = findChild(slider, "thumb")
        verify(!thumb.visible)
        verify(!isNaN(thumb.x) && !isNaN(thumb.y))
        const y = slider.height / 2
        if (data.gesture === "click") {
            mouseClick(slider, slider.width * 0.8, y)
        } else if (data.gesture === "double") {
            mouseDoubleClickSequence(slider, slider.width / 2, y)
        } else if (data.gesture === "wheel") {
            mouseWheel(slider, slider.width / 2, y, 0, 120)
        } else {
            mousePress(slider, 20, y)
            for (let i = 1; i <= 4; ++i)
                mouseMove(slider, 20 + 30 * i, y, -1, Qt.LeftButton)
            mouseRelease(slider, 140, y)
        }
        wait(50)
        verify(slider.offers.every(v => !isNaN(v)))
        verify(!isNaN(slider.displayedValue) || !thumb.visible)
    }

    function test_sliderRefusesNaN() {
        const slider = make(sliderComponent, { "value": -6 })
        ignoreWarning(/VynSlider12: refused a value that is not a number/)
        slider.setValue(NaN)
        compare(slider.value, -6)
        verify(findChild(slider, "thumb").visible)
        slider.setValue(Infinity)
        compare(slider.value, 12)
    }

    function test_sliderMixedWithUnknownMember() {
        const slider = make(sliderComponent, { "value": -6 })
        slider.values = [-10, NaN]
        compare(slider.value, -6)
        verify(findChild(slider, "thumb").visible)
    }
}
