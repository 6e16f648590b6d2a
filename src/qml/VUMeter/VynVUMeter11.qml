import QtQuick
import VynUI 1.2

// A level meter: cells lit up to the signal level, an optional falling short-hold mark and
// the marks of the lowest and highest level seen. The ballistics, the geometry and the
// drawing are the native VynVUMeterItem's; the shared VynVUMeterManager clock animates it.
//
//     VynVUMeter11 {
//         width: 12; height: 160
//         minValue: -60; maxValue: 6
//         displaysHoldValues: true
//         currentValue: channel.outputLevel
//     }
//
// A click (or Space / Return with the focus) resets the holds of every meter on screen.
VynVUMeterItem {
    id: root

    // By autoHorizontal, not isHorizontal: the latter follows the size these give.
    implicitWidth: autoHorizontal ? 160 : VynUIQmlConstants.vuMeterWidth(vynControlSize,
                                                                         vynPixelRatio)
    implicitHeight: autoHorizontal ? VynUIQmlConstants.vuMeterWidth(vynControlSize, vynPixelRatio)
                                   : 160
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Level meter")
    Accessible.description: isFinite(currentValue) ? qsTr("%1 dB").arg(currentValue.toFixed(1))
                                                   : ""
    Accessible.onPressAction: root.clicked()
}
