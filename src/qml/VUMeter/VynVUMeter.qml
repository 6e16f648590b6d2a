import QtQuick
import VynUI 1.2

// The older, simpler level meter: one continuous bar over the body instead of cells, coloured
// by the level it reaches, with a thin mark at the highest level since the last reset. It
// rises at once and falls by 0.12 of the scale per tick of the shared meter clock, as
// VynVUMeter11 does; prefer VynVUMeter11 for new views.
Rectangle {
    id: root

    property real minValue: -60
    property real maxValue: 0
    property real currentValue: minValue
    property bool isReversed: false
    property bool displaysHoldValues: false
    property bool animated: visible
    property real vynPixelRatio: 1.0
    property int vynControlSize: VynViewUtils.VynControlSizeRegular
    property int vynStyle: VynColorUtils.VynStyleLight

    //! Displayed level, 0 to 1, and the highest displayed since the last reset.
    property real displayedLevel: 0
    property real maxHoldLevel: 0

    signal clicked()

    function normalValue(v) {
        const n = root.maxValue === root.minValue ? 0
                                                  : (v - root.minValue) / (root.maxValue - root.minValue)
        return root.isReversed ? 1 - n : n
    }

    function animate() {
        const target = normalValue(root.currentValue)
        if (root.displayedLevel <= target || root.displayedLevel < target + 0.12)
            root.displayedLevel = target
        else
            root.displayedLevel = Math.max(root.displayedLevel - 0.12, target)
        root.maxHoldLevel = Math.max(root.maxHoldLevel, root.displayedLevel)
    }

    function reset() {
        root.displayedLevel = normalValue(root.currentValue)
        root.maxHoldLevel = root.displayedLevel
    }

    onCurrentValueChanged: {
        if (!animated && isFinite(currentValue))
            reset()
    }

    implicitWidth: VynUIQmlConstants.vuMeterWidth(vynControlSize, vynPixelRatio)
    implicitHeight: 160
    radius: Math.min(width, height) / 2
    color: VynUIQmlConstants.vuMeterOffColor(vynStyle)
    border.width: VynUIQmlConstants.vuMeterBorder(vynPixelRatio)
    border.color: VynUIQmlConstants.vuMeterBorderColor(vynStyle)
    clip: true

    readonly property real inset: border.width + 1
    readonly property real track: height - 2 * inset
    readonly property real level: Math.max(0, Math.min(1, displayedLevel))

    Rectangle {
        x: root.inset
        width: root.width - 2 * root.inset
        height: root.track * root.level
        y: root.isReversed ? root.inset : root.height - root.inset - height
        radius: width / 2
        color: VynUIQmlConstants.vuMeterOnColorForIndex(Math.round(root.level * 31))
    }

    Rectangle {
        visible: root.displaysHoldValues && root.maxHoldLevel > 0
        x: root.inset
        width: root.width - 2 * root.inset
        height: Math.max(1, root.vynPixelRatio)
        y: root.isReversed ? root.inset + root.track * Math.min(1, root.maxHoldLevel) - height
                           : root.height - root.inset - root.track * Math.min(1, root.maxHoldLevel)
        color: VynUIQmlConstants.vuMeterGlowColorForIndex(
                   Math.round(Math.min(1, root.maxHoldLevel) * 31), root.vynStyle)
    }

    TapHandler {
        onTapped: root.clicked()
    }

    Component.onCompleted: VynVUMeterManager.registerVUMeter(root)
    Component.onDestruction: VynVUMeterManager.unregisterVUMeter(root)
}
