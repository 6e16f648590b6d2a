import QtQuick
import VynUI 1.2

import "../Script/ArrayUtils.js" as ArrayUtils

// A slider bound to a device parameter through a VynUISliderComponent.
//
// How a host builds one: create the component, give it its range, value and transformer,
// install the two validators, and hand it over in one QML line.
//
//     // C++, with the device model:
//     auto* gain = new VynUISliderComponent(owner);
//     gain->setMinValue(-60.0);
//     gain->setMaxValue(12.0);
//     gain->setValue(deviceGain, false, {deviceGain});
//     gain->setSlidingValidator([](VynUISliderComponent* c) { return c->enabled(); });
//     gain->setValueValidator([&](VynUISliderComponent* c, double& v, bool, double, bool isFinal) {
//         return device.send(c->paramPath(), v, isFinal); // may round v to the device's step
//     });
//     // Echoes from the device: gain->setValue(echo, mixed, values);
//
//     // QML:
//     VynUISlider { uiSliderComponent: host.gainComponent }
//
// Without a component of its own the wrapper uses one it creates (no validators: it cannot
// slide, which is the safe answer for an unbound control).
//
// Binding rules: range, default value, values, security type, enabled and preview mode come
// from the component. The thumb follows the component's value except while the user drags or
// increments, so that device echoes do not fight the hand; after each offered value the
// component's value (possibly modified by the host) is copied into the thumb at once. A
// gesture that ends refused (confirmation declined, long press, cancel) puts the component
// back to the gesture's start value: offered again as final when the intermediate values were
// final, else stored without reaching the device. A mixed selection shows the average of its
// values. Pressing a mixed selection emits
// editedWhileMultiple(false), its end doneEditingWhileMultiple(); a long press longPressed().
VynSlider12 {
    id: root

    readonly property VynUISliderComponent uiComponent: uiSliderComponent

    property bool _editedWhileMultiple: false

    uiSliderComponent: ownComponent
    from: uiComponent ? uiComponent.minValue : 0
    to: uiComponent ? uiComponent.maxValue : 1
    defaultValue: uiComponent ? uiComponent.initValue : 0
    // Read only while mixed: a plain echo of the host then changes no list.
    values: uiComponent && uiComponent.mixed ? uiComponent.values : []
    mixed: uiComponent ? uiComponent.mixed : false
    securityType: uiComponent ? uiComponent.securityType : VynCommonConstants.VynSecurityTypeNone
    enabled: uiComponent ? uiComponent.enabled : false
    previewMode: uiComponent ? uiComponent.previewMode : false

    shouldBeginSliding: function () {
        return root.uiComponent !== null && root.uiComponent.shouldBeginSliding()
    }
    sliderBeganSliding: function () {
        const c = root.uiComponent
        if (c.mixed) {
            root._editedWhileMultiple = true
            c.editedWhileMultiple(false)
        }
        c.slidingBegan()
        c.sliding = true
    }
    sliderExpectsValue: function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
        const c = root.uiComponent
        const accepted = c.expectsValue(p_newValue, false, p_prevValue, p_isFinal)
        root.setValue(c.value, false, false)
        return accepted
    }
    sliderEndedSliding: function () {
        const c = root.uiComponent
        if (!root.gestureAccepted && c.value !== root.startValue) {
            if (root.securityType === VynCommonConstants.VynSecurityTypeNone)
                c.expectsValue(root.startValue, false, c.prevValue, true)
            else
                c.value = root.startValue
        }
        c.slidingEnded()
        c.prevValue = c.value
        c.sliding = false
        if (root._editedWhileMultiple) {
            root._editedWhileMultiple = false
            c.doneEditingWhileMultiple()
        }
    }

    onLongPressed: function (p_mouse) {
        if (uiComponent)
            uiComponent.longPressed()
    }

    Binding {
        target: root
        property: "value"
        // A mixed selection shows the average of its values, as the generic slider does.
        value: !root.uiComponent ? 0
               : root.mixed && root.values.length > 0 ? ArrayUtils.average(root.values)
                                                       : root.uiComponent.value
        when: root.uiComponent !== null && !root.dragging && !root.incrementing
        restoreMode: Binding.RestoreNone
    }

    VynUISliderComponent {
        id: ownComponent
    }
}
