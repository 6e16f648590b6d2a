pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

// The scale drawn beside a level meter: long labelled ticks every primaryInterval dB and short
// ticks every secondaryInterval dB, with the spacing chosen for the meter's length so that
// short ticks stay under 10 px apart (scaled by the pixel ratio).
//
// Give it the meter to follow (its scale, reversal and cell positions are read from it), or
// set cellsLength, topPadding, minValue and maxValue yourself. The labels sit on the side
// given by labelsOnLeft, right-aligned and padded to the widest label when on the left.
//
//     Row {
//         VynVUTickMarks { meter: vu; height: vu.height; labelsOnLeft: true }
//         VynVUMeter11 { id: vu; height: 200 }
//     }
Item {
    id: root

    property VynVUMeterItem meter: null
    property real minValue: meter ? meter.minValue : -60
    property real maxValue: meter ? meter.maxValue : 0
    property bool isReversed: meter ? meter.isReversed : false
    //! Distance from the first to the last cell centre, in pixels.
    property real cellsLength: meter ? Math.max(0, meter.cellsLength - meter.cellLength) : height
    //! Position of the top cell's centre, in pixels from the top of the scale.
    property real topPadding: meter ? meter.cellsOffset + meter.cellLength / 2 : 0
    property bool labelsOnLeft: true
    property bool showsLabels: true
    property int vynStyle: VynColorUtils.VynStyleDark
    property real vynPixelRatio: 1.0
    property int vynControlSize: VynViewUtils.VynControlSizeRegular

    readonly property var config: VynUIQmlConstants.vuMeterTickMarksConfigForValues(
                                      Math.round(cellsLength), Math.round(minValue),
                                      Math.round(maxValue), Math.round(10 * vynPixelRatio))
    readonly property real range: Math.abs(maxValue - minValue)
    readonly property int primaryCount: range > 0 ? Math.floor(range / config.primaryInterval) + 1 : 0
    readonly property int secondaryCount: range > 0 ? Math.floor(range / config.secondaryInterval) + 1
                                                    : 0
    readonly property real primaryWidth: VynUIQmlConstants.vuMeterTickPrimaryWidth(vynControlSize,
                                                                                   vynPixelRatio)
    readonly property real secondaryWidth: VynUIQmlConstants.vuMeterTickSecondaryWidth(
                                               vynControlSize, vynPixelRatio)
    readonly property real primaryThickness: VynUIQmlConstants.vuMeterTickPrimaryHeight(vynPixelRatio)
    readonly property real secondaryThickness: VynUIQmlConstants.vuMeterTickSecondaryHeight(
                                                   vynPixelRatio)
    readonly property real labelOffset: VynUIQmlConstants.vuMeterTickLabelOffset(vynControlSize,
                                                                                 vynPixelRatio)
    readonly property color tickColor: VynUIQmlConstants.vuMeterTickMarkColor(vynStyle)
    readonly property real labelsWidth: labelMetrics.advanceWidth + 1

    implicitWidth: primaryWidth + (showsLabels ? labelOffset + labelsWidth : 0)
    implicitHeight: 160

    function tickPosition(k, thickness) {
        return root.range > 0
            ? Math.round(root.topPadding + k * root.config.secondaryInterval * root.cellsLength
                         / root.range + thickness / 2) - thickness
            : 0
    }

    function labelText(k) {
        const value = root.isReversed ? root.minValue + k * root.config.primaryInterval
                                      : root.maxValue - k * root.config.primaryInterval
        return String(Math.round((value + 1e-9) * 10) / 10)
    }

    TextMetrics {
        id: labelMetrics
        font.family: VynFonts.vynFamilyRegular
        font.pixelSize: VynUIQmlConstants.vuMeterTickPrimaryFontSize(VynViewUtils.VynControlSizeMini,
                                                                     root.vynPixelRatio)
        text: {
            let widest = ""
            for (let k = 0; k < root.primaryCount; ++k) {
                const t = root.labelText(k)
                if (t.length > widest.length)
                    widest = t
            }
            return widest
        }
    }

    Repeater {
        model: root.secondaryCount
        Rectangle {
            required property int index
            readonly property real step: index * root.config.secondaryInterval
            readonly property bool primary: Math.abs(step / root.config.primaryInterval
                                                     - Math.round(step / root.config.primaryInterval))
                                            < 1e-9
            width: primary ? root.primaryWidth : root.secondaryWidth
            height: primary ? root.primaryThickness : root.secondaryThickness
            x: root.labelsOnLeft ? root.width - width : 0
            y: root.tickPosition(index, height)
            color: root.tickColor
        }
    }

    Repeater {
        model: root.showsLabels ? root.primaryCount : 0
        Text {
            required property int index
            width: root.labelsWidth
            x: root.labelsOnLeft ? 0 : root.primaryWidth + root.labelOffset
            y: root.tickPosition(index * root.config.primaryInterval / root.config.secondaryInterval,
                                 root.primaryThickness) - height / 2
            horizontalAlignment: root.labelsOnLeft ? Text.AlignRight : Text.AlignLeft
            font: labelMetrics.font
            color: root.tickColor
            text: root.labelText(index)
        }
    }
}
