import QtQuick
import VynUI 1.2

// A caption, a horizontal level meter bound to a VynUIVUMeterComponent and the value in dB,
// in one row: the form a channel strip uses for its smaller readings (gain reduction,
// temperature).
//
//     VynUIVUMeterAndLabelRow { uiVUMeterComponent: host.limiterMeter; text: "Lim" }
Row {
    id: root

    property VynUIVUMeterComponent uiVUMeterComponent: null
    //! Caption; the component's name when empty.
    property string text: ""
    property int vynStyle: VynColorUtils.VynStyleDark
    property real vynPixelRatio: 1.0
    property int vynControlSize: VynViewUtils.VynControlSizeRegular
    property real meterLength: 96 * vynPixelRatio
    property bool showsValue: true
    readonly property alias meter: meter

    spacing: VynUIQmlConstants.vuMeterTickLabelOffset(vynControlSize, vynPixelRatio) + 2

    VynLabel {
        anchors.verticalCenter: parent.verticalCenter
        text: root.text !== "" ? root.text : (root.uiVUMeterComponent ? root.uiVUMeterComponent.name : "")
        vynStyle: root.vynStyle
        vynPixelRatio: root.vynPixelRatio
        vynControlSize: root.vynControlSize
        level: 1
    }

    VynUIVUMeter {
        id: meter
        anchors.verticalCenter: parent.verticalCenter
        width: root.meterLength
        height: VynUIQmlConstants.vuMeterWidth(root.vynControlSize, root.vynPixelRatio)
        autoHorizontal: true
        uiVUMeterComponent: root.uiVUMeterComponent
        vynStyle: root.vynStyle
        vynPixelRatio: root.vynPixelRatio
        vynControlSize: root.vynControlSize
    }

    VynLabel {
        visible: root.showsValue
        anchors.verticalCenter: parent.verticalCenter
        text: isFinite(meter.currentValue) ? meter.currentValue.toFixed(1) : ""
        vynStyle: root.vynStyle
        vynPixelRatio: root.vynPixelRatio
        vynControlSize: VynViewUtils.VynControlSizeMini
        level: 2
    }
}
