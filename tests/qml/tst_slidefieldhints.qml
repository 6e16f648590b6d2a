import QtQuick
import QtTest
import VynUI 1.2

// The hints a parameter-bound slide field offers through its window's hint manager.
TestCase {
    id: testCase
    name: "SlideFieldHints"
    width: 700
    height: 300
    visible: true
    when: windowShown

    VynHintManagerQml {
        id: manager
    }

    Component {
        id: fieldModelComponent
        VynUISlideFieldComponent {
            minValue: 0
            maxValue: 1000
        }
    }
    Component {
        id: uiFieldComponent
        VynUISlideField {
            x: 300
            y: 40
            width: 200
            allowsPanning: true
        }
    }

    function makeField(p_canSlide) {
        const model = createTemporaryObject(fieldModelComponent, testCase)
        model.setSlidingValidatorQml(function (p_model) { return p_canSlide })
        model.setValueValidatorQml(function (p_model, p_value) {
            return { "accepted": true, "value": p_value }
        })
        const field = createTemporaryObject(uiFieldComponent, testCase,
                                            { "uiSlideFieldComponent": model })
        waitForRendering(field)
        return field
    }

    function pan(p_field) {
        const handle = findChild(p_field, "panningHandle")
        const c = handle.mapToItem(p_field, handle.width / 2, handle.height / 2)
        mousePress(p_field, c.x, c.y)
        mouseMove(p_field, c.x + 30, c.y, -1, Qt.LeftButton)
        mouseRelease(p_field, c.x + 30, c.y)
    }

    // One run of an application, in order: each hint is offered once, to the field the user
    // works with, and never while the user may not slide.
    function test_hintsOfOneRun() {
        testHost.resetHiddenHints()

        // A field that may not slide offers no pan hint.
        pan(makeField(false))
        compare(manager.presentedHint, null)

        // The first pan offers the pan hint beside its field.
        const field = makeField(true)
        pan(field)
        verify(manager.presentedHint !== null)
        compare(manager.presentedHint.identifier, "VynUI.slideField.pan")
        compare(manager.presentedHint.presentingView, field)
        compare(manager.presentedHint.hasDontShowAgainAction, true)
        const shown = manager.presentedHint

        // Panning again neither dismisses it (scheduling it again would) nor queues another.
        pan(field)
        compare(manager.presentedHint, shown)

        // Clicking into the field closes the hint (a click outside the popover); the typed
        // entry then offers the text hint.
        wait(500) // no double click with the pans' clicks
        mouseClick(field, field.width / 2, field.height / 2)
        tryVerify(() => field.activeFocus)
        tryCompare(manager, "presentedHint", null)
        keySequence(StandardKey.SelectAll)
        keyClick("4")
        keyClick("2")
        keyClick(Qt.Key_Return)
        compare(field.value, 42)
        verify(manager.presentedHint !== null)
        compare(manager.presentedHint.identifier, "VynUI.slideField.text")
        verify(manager.presentedHint.string.indexOf("drag") >= 0)
        manager.invalidateHint("VynUI.slideField.text")
        compare(manager.presentedHint, null)

        // Each was offered once in this run.
        pan(field)
        compare(manager.presentedHint, null)
    }
}
