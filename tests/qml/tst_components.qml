import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "Components"
    width: 400
    height: 100
    when: windowShown
    // Shown, so that the gesture surface receives the pointer events.
    visible: true

    Component {
        id: fieldComponent
        VynUISlideFieldComponent {}
    }

    Component {
        id: sliderComponent
        VynUISliderComponent {}
    }

    // A bare slider surface that forwards real pointer gestures the way the controls do:
    // ask on press, offer each position, offer the last one as final on release.
    Component {
        id: surfaceComponent
        Rectangle {
            id: surface
            required property VynUISliderComponent model
            property bool dragging: false
            width: 200
            height: 40
            color: "gray"
            MouseArea {
                anchors.fill: parent
                onPressed: function(mouse) {
                    surface.dragging = surface.model.shouldBeginSliding()
                    if (surface.dragging) {
                        surface.model.slidingBegan()
                        surface.model.sliding = true
                    }
                }
                onPositionChanged: function(mouse) {
                    if (surface.dragging)
                        surface.model.expectsValue(mouse.x / surface.width, false,
                                                   surface.model.prevValue, false)
                }
                onReleased: function(mouse) {
                    if (!surface.dragging)
                        return
                    surface.model.expectsValue(mouse.x / surface.width, false,
                                               surface.model.prevValue, true)
                    surface.model.slidingEnded()
                    surface.model.prevValue = surface.model.value
                    surface.model.sliding = false
                    surface.dragging = false
                }
            }
        }
    }

    SignalSpy {
        id: valueSpy
        signalName: "valueChanged"
    }

    function test_freshSlideField() {
        const field = createTemporaryObject(fieldComponent, testCase)
        compare(field.componentType, VynViewUtils.VynUIComponentTypeSlideField)
        compare(field.style, VynColorUtils.VynStyleDark)
        compare(field.nameSize, VynViewUtils.VynControlSizeRegular)
        verify(field.enabled)
        verify(field.paramPath.empty)
        compare(field.minValue, 0)
        compare(field.maxValue, 1)
        compare(field.value, 0)
        compare(field.stringValue, "")
        compare(field.values.length, 0)
        compare(field.units.length, 0)
        compare(field.unitIndex, -1)
        verify(!field.allowsUnitChoosing)
        compare(field.transformer.key, "identity")
        compare(field.toStringValue(), "")
    }

    function test_securityDisables() {
        const slider = createTemporaryObject(sliderComponent, testCase)
        slider.securityType = VynCommonConstants.VynSecurityTypeDisable
        verify(!slider.enabled)
        slider.securityType = VynCommonConstants.VynSecurityTypeShouldAlert
        verify(slider.enabled)
        slider.enabled = false
        verify(!slider.enabled)
    }

    // QML hands any integer to an enum property: only the type's enumerators are taken.
    function test_enumPropertiesFromQml_data() {
        return [
            { tag: "style 2", property: "style", value: 2 },
            { tag: "style -1", property: "style", value: -1 },
            { tag: "security type 7", property: "securityType", value: 7 },
            { tag: "name size 1e6", property: "nameSize", value: 1000000 },
            { tag: "component type -2147483648", property: "componentType", value: -2147483648 }
        ]
    }

    function test_enumPropertiesFromQml(data) {
        const slider = createTemporaryObject(sliderComponent, testCase)
        const before = slider[data.property]
        slider[data.property] = data.value
        compare(slider[data.property], before)
    }

    function test_valueFromQml() {
        const slider = createTemporaryObject(sliderComponent, testCase)
        valueSpy.target = slider
        valueSpy.clear()
        slider.value = 0.5
        compare(slider.stringValue, "0.50")
        compare(slider.toStringValue(), "0.50")
        slider.value = 0.5
        compare(valueSpy.count, 1)
    }

    function test_validatorsFromQml() {
        const field = createTemporaryObject(fieldComponent, testCase)
        verify(!field.shouldBeginSliding())
        verify(!field.expectsValue(0.4, false, 0, true))
        compare(field.value, 0)

        field.setSlidingValidatorQml(function(component) { return component === field })
        verify(field.shouldBeginSliding())

        let seen = []
        field.setValueValidatorQml(function(component, value, isRelative, prevValue, isFinal) {
            seen.push([value, isRelative, prevValue, isFinal])
            return { accepted: isFinal, value: Math.round(value * 10) / 10 }
        })
        field.relative = true
        verify(!field.expectsValue(0.44, false, 0.25, false))
        compare(field.value, 0.4)
        compare(field.stringValue, "0.40")
        compare(seen, [[0.44, true, 0.25, false]])
        verify(field.expectsValue(0.66, false, 0.4, true))
        compare(field.value, 0.7)

        field.setValueValidatorQml(null)
        verify(!field.expectsValue(0.2, false, 0.7, true))
        compare(field.value, 0.7)
    }

    function test_throwingValidatorRefuses() {
        const slider = createTemporaryObject(sliderComponent, testCase)
        slider.setValueValidatorQml(function() { throw new Error("device offline") })
        ignoreWarning(/device offline/)
        verify(!slider.expectsValue(0.3, false, 0, true))
    }

    function test_unitChoice() {
        const field = createTemporaryObject(fieldComponent, testCase)
        ignoreWarning(/Cannot select Unit\. Index out of range/)
        field.chooseUnitAction(0)
        let asked = []
        field.setUnitValidatorQml(function(component, unit) { asked.push(unit) })
        field.expectsUnit("dB")
        compare(asked, ["dB"])
    }

    function test_dragThroughComponent() {
        const slider = createTemporaryObject(sliderComponent, testCase)
        const surface = createTemporaryObject(surfaceComponent, testCase, { model: slider })
        let offered = []
        slider.setValueValidatorQml(function(component, value, isRelative, prevValue, isFinal) {
            offered.push(isFinal)
            return true
        })

        // No sliding validator: the press starts nothing.
        mousePress(surface, 20, 20)
        mouseMove(surface, 100, 20)
        mouseRelease(surface, 100, 20)
        compare(offered.length, 0)
        compare(slider.value, 0)

        slider.setSlidingValidatorQml(function() { return true })
        mousePress(surface, 20, 20)
        verify(slider.sliding)
        mouseMove(surface, 60, 20)
        mouseMove(surface, 150, 20)
        mouseRelease(surface, 150, 20)
        verify(!slider.sliding)
        compare(slider.value, 0.75)
        compare(slider.prevValue, 0.75)
        compare(slider.stringValue, "0.75")
        compare(offered[offered.length - 1], true)
        verify(offered.length >= 3)
    }
}
