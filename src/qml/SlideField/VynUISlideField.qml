import QtQuick
import VynUI 1.2

import "../Private/SlideFieldHints.js" as SlideFieldHints
import "../Script/StringUtils.js" as StringUtils

// A slide field bound to a device parameter through a VynUISlideFieldComponent; built by a
// host exactly like VynUISlider (component, two validators, and
// `VynUISlideField { uiSlideFieldComponent: host.delayComponent }`), plus a unit validator
// when the parameter offers several units.
//
// The field works on the component's raw value (range, steps and pan acceleration in raw
// units) and shows it through the component's transformer in the current unit, without the
// unit, which the unit label or chooser shows (the chooser appears when the component allows
// unit choosing and asks the component to change units). A typed number is read in the
// current unit and converted back to raw: an entry equal to the shown text or blank changes
// nothing, and on a should-alert component the entry is confirmed first (refused, or without
// a window controller to ask through, it is dropped). "Mult." stands for a mixed selection:
// pressing the panning handle of a mixed selection emits editedWhileMultiple(false) at once,
// and its release doneEditingWhileMultiple(), whether or not the press panned. The other
// binding rules are VynUISlider's.
//
// Hints. When the component asks for its pan hint (sliding may begin) or its text hint (a typed
// or stepped value was accepted), the field offers the matching hint, pointing at itself, through
// its window's hint manager: each at most once per run, with the don't-show-again action.
VynSlideField11 {
    id: root

    readonly property VynUISlideFieldComponent uiComponent: uiSlideFieldComponent

    property bool _editedWhileMultiple: false
    // Whether the component was told that sliding began and not yet that it ended: a press on
    // the handle that never pans tells it neither, so the host sees matched pairs.
    property bool _slidingBegun: false

    uiSlideFieldComponent: ownComponent
    accessibleName: title.length > 0 ? title : (uiComponent ? uiComponent.name : "")
    from: uiComponent ? uiComponent.minValue : 0
    to: uiComponent ? uiComponent.maxValue : 1000
    defaultValue: uiComponent ? uiComponent.initValue : 0
    mixed: uiComponent ? uiComponent.mixed : false
    securityType: uiComponent ? uiComponent.securityType : VynCommonConstants.VynSecurityTypeNone
    enabled: uiComponent ? uiComponent.enabled : false
    displayedValue: uiComponent ? uiComponent.displayedValue : value
    stringValue: {
        const c = root.uiComponent
        if (!c)
            return String(root.value)
        // Depends on the unit and the text so that a unit change re-formats.
        const unit = c.unitIndex
        const text = c.stringValue
        return c.transformer ? c.transformer.valueToString(c.value, false, false) : text
    }
    unitModel: uiComponent ? uiComponent.units : []
    unitIndex: uiComponent ? uiComponent.unitIndex : -1
    unitText: uiComponent && uiComponent.transformer ? uiComponent.transformer.currentUnit : ""
    displaysUnit: unitText.length > 0
    onUnitClicked: function (p_index) {
        if (uiComponent)
            uiComponent.chooseUnitAction(p_index)
    }

    shouldBeginSliding: function () {
        return root.uiComponent !== null && root.uiComponent.shouldBeginSliding()
    }
    // A press on the handle (the control allows it to pan from then on) edits the selection.
    onCanStartPanningChanged: {
        if (canStartPanning)
            root._beginEditingWhileMultiple()
    }
    function _beginEditingWhileMultiple() {
        const c = root.uiComponent
        if (c && c.mixed && !root._editedWhileMultiple) {
            root._editedWhileMultiple = true
            c.editedWhileMultiple(false)
        }
    }
    slideFieldBeganSliding: function () {
        const c = root.uiComponent
        root._beginEditingWhileMultiple()
        c.slidingBegan()
        root._slidingBegun = true
        c.sliding = root.panning
    }
    slideFieldExpectsValue: function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
        const c = root.uiComponent
        const accepted = c.expectsValue(p_newValue, false, p_prevValue, p_isFinal)
        root.setValue(c.value, false)
        return accepted
    }
    slideFieldEndedSliding: function () {
        const c = root.uiComponent
        if (root._slidingBegun) {
            root._slidingBegun = false
            if (!root.gestureAccepted && c.value !== root.startValue) {
                if (root.securityType === VynCommonConstants.VynSecurityTypeNone)
                    c.expectsValue(root.startValue, false, c.prevValue, true)
                else
                    c.value = root.startValue
            }
            c.slidingEnded()
            c.prevValue = c.value
            c.sliding = false
        }
        if (root._editedWhileMultiple) {
            root._editedWhileMultiple = false
            c.doneEditingWhileMultiple()
        }
    }
    acceptAction: function (p_text) {
        if (p_text === root.defaultText || StringUtils.isNullOrWhiteSpace(p_text))
            return
        const typed = parseFloat(String(p_text).trim())
        const c = root.uiComponent
        if (isNaN(typed) || !c)
            return
        root._confirmThen(function () {
            root._offerTyped(typed)
        }, function () {})
    }
    function _offerTyped(p_typed) {
        const c = root.uiComponent
        const raw = c.transformer ? c.transformer.displayedToRaw(p_typed) : p_typed
        const previousLastValue = root.lastValue
        root.setLastValue.call(root, root.value)
        c.slidingBegan()
        if (!root.slideFieldExpectsValue.call(root, root._clamped(raw), true, root.lastValue, true))
            root.setLastValue.call(root, previousLastValue)
        c.slidingEnded()
        c.prevValue = c.value
    }

    onLongPressed: function (p_mouse) {
        if (uiComponent)
            uiComponent.longPressed()
    }

    Connections {
        target: root.uiComponent
        function onScheduleSlideFieldPanHint() {
            SlideFieldHints.offer(VynUIQmlConstants, root, SlideFieldHints.panIdentifier,
                                  qsTr("Drag to change"),
                                  qsTr("Drag the handle sideways to change the value: the farther you drag, the faster it changes. Release to send the value."))
        }
        function onScheduleSlideFieldTextHint() {
            SlideFieldHints.offer(VynUIQmlConstants, root, SlideFieldHints.textIdentifier,
                                  qsTr("Typing a value"),
                                  root.allowsPanning
                                  ? qsTr("A typed value is read in the unit shown beside the field. For quick changes, drag the handle at the left of the field.")
                                  : qsTr("A typed value is read in the unit shown beside the field."))
        }
    }

    Binding {
        target: root
        property: "value"
        value: root.uiComponent ? root.uiComponent.value : 0
        when: root.uiComponent !== null && !root.panning && !root.incrementing
        restoreMode: Binding.RestoreNone
    }

    VynUISlideFieldComponent {
        id: ownComponent
    }
}
