import QtQuick
import VynUI 1.2

// A level meter bound to a device reading through a VynUIVUMeterComponent: the scale, the
// reversal, the hold display and the current value come from the component; the meter
// animates them on the shared clock.
//
//     VynUIVUMeter { uiVUMeterComponent: host.outputMeter; height: 160 }
//
// Without a component the meter shows the bottom of a -60..0 dB scale.
VynVUMeter11 {
    id: root

    property VynUIVUMeterComponent uiVUMeterComponent: null

    minValue: uiVUMeterComponent ? uiVUMeterComponent.minValue : -60
    maxValue: uiVUMeterComponent ? uiVUMeterComponent.maxValue : 0
    defaultValue: uiVUMeterComponent ? uiVUMeterComponent.defaultValue : minValue
    isReversed: uiVUMeterComponent ? uiVUMeterComponent.reverse : false
    displaysHoldValues: uiVUMeterComponent ? uiVUMeterComponent.displaysHoldValue : false
    currentValue: uiVUMeterComponent ? uiVUMeterComponent.value : defaultValue
    vynStyle: uiVUMeterComponent ? uiVUMeterComponent.style : VynColorUtils.VynStyleLight
}
