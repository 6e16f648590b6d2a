import QtQuick
import VynUI 1.2

// A horizontal bar with a draggable handle and three value labels placed by one
// VynLabelOptimizer: the handle's value, and the minimum and maximum marks of the bar, each
// anchored above its position on the track. As the handle moves, its label pushes the others
// aside; a label that cannot be placed without overlapping is hidden. Under the bar, a
// legend tells what the optimizer did to each label.
//
// Depends on VynUI only, so that it can be loaded on its own (the tests do).
VynItem {
    id: bar

    property real from: -60
    property real to: 12
    property real value: 0
    property real minimum: from
    property real maximum: to
    property string unit: "dB"
    property string caption: ""
    // Values snap to this step while dragging.
    property real stepSize: 0.5

    readonly property alias optimizer: labelOptimizer
    readonly property alias valueLabel: valueLabelItem
    readonly property alias minimumLabel: minimumLabelItem
    readonly property alias maximumLabel: maximumLabelItem
    readonly property alias track: trackItem
    readonly property alias handle: handleItem
    readonly property alias dragArea: dragAreaItem

    readonly property real __ratio: vynPixelRatio
    readonly property real __inset: Math.round(36 * __ratio)
    readonly property real __labelGap: Math.round(6 * __ratio)

    // The track's x of a value, clamped to the track.
    function positionOf(p_value) {
        if (to === from)
            return 0
        const t = (p_value - from) / (to - from)
        return Math.max(0, Math.min(1, t)) * trackItem.width
    }

    // The value under the track's x, snapped to stepSize and clamped to the range.
    function valueAt(p_x) {
        if (trackItem.width <= 0)
            return from
        let v = from + p_x / trackItem.width * (to - from)
        if (stepSize > 0)
            v = Math.round(v / stepSize) * stepSize
        return Math.max(Math.min(from, to), Math.min(Math.max(from, to), v))
    }

    function format(p_value) {
        const sign = p_value > 0 ? "+" : (p_value < 0 ? "\u2212" : "")
        return sign + Math.abs(p_value).toFixed(1) + " " + unit
    }

    // What the optimizer did to a label, for the legend.
    function placementText(p_label) {
        if (!p_label.visible)
            return qsTr("hidden")
        const shift = Math.round(p_label.optimizedPosition - (p_label.pos - p_label.len / 2))
        if (shift === 0)
            return qsTr("in place")
        return qsTr("shifted %1 px").arg((shift > 0 ? "+" : "\u2212") + Math.abs(shift))
    }

    implicitWidth: Math.round(420 * __ratio)
    implicitHeight: legend.y + legend.height

    VynLabel {
        id: captionLabel

        width: parent.width
        text: bar.caption
        visible: text !== ""
        height: visible ? implicitHeight : 0
        vynStyle: bar.vynStyle
        vynControlSize: bar.vynControlSize
        vynPixelRatio: bar.vynPixelRatio
        vynPixelRatioFont: bar.vynPixelRatioFont
        fontFamily: VynFonts.vynFamilySemiBold
        font.weight: VynFonts.vynWeightSemiBold
    }

    // The labels' axis: the track's coordinates, with room up to the item's edges.
    Item {
        id: labelLayer

        x: trackItem.x
        y: captionLabel.height + bar.__labelGap
        width: trackItem.width
        height: valueLabelItem.implicitHeight

        VynLabelOptimizer {
            id: labelOptimizer

            expectedLabelCount: 3
            positionMin: -labelLayer.x
            positionMax: bar.width - labelLayer.x
        }

        // One of the bar's labels; `owner` is the bar.
        component BarLabel: VynLabelWithOptimization {
            required property var owner
            required property real anchorValue

            x: Math.round(optimizedPosition)
            y: 0
            pos: owner.positionOf(anchorValue)
            optimizer: owner.optimizer
            text: owner.format(anchorValue)
            leftPadding: Math.round(6 * owner.vynPixelRatio)
            rightPadding: leftPadding
            topPadding: Math.round(2 * owner.vynPixelRatio)
            bottomPadding: topPadding
            vynStyle: owner.vynStyle
            vynControlSize: owner.vynControlSize
            vynPixelRatio: owner.vynPixelRatio
            vynPixelRatioFont: owner.vynPixelRatioFont
            vynBorderColor: VynUIQmlConstants.tableViewBorderColorForStyle(owner.vynStyle)
            vynBkgdColor: VynUIQmlConstants.viewBackgroundColorForStyle(owner.vynStyle, 0)
        }

        BarLabel {
            id: minimumLabelItem
            owner: bar
            anchorValue: bar.minimum
            level: 1
        }
        BarLabel {
            id: maximumLabelItem
            owner: bar
            anchorValue: bar.maximum
            level: 1
        }
        BarLabel {
            id: valueLabelItem
            owner: bar
            anchorValue: bar.value
            fontFamily: VynFonts.vynFamilyMedium
            font.weight: VynFonts.vynWeightMedium
            vynBorderColor: VynUIQmlConstants.controlColorForStyle(bar.vynStyle, 1)
        }
    }

    // The track with its marks and the handle.
    Item {
        id: trackRow

        y: labelLayer.y + labelLayer.height + bar.__labelGap
        width: parent.width
        height: Math.max(handleItem.height, markHeight)

        readonly property real markHeight: Math.round(12 * bar.__ratio)

        Rectangle {
            id: trackItem

            x: bar.__inset
            width: Math.max(0, bar.width - 2 * bar.__inset)
            height: Math.max(2, VynUIQmlConstants.sliderTrackHeight(bar.vynControlSize, bar.vynPixelRatio))
            anchors.verticalCenter: parent.verticalCenter
            radius: height / 2
            color: VynUIQmlConstants.controlColorForStyle(bar.vynStyle, 0)
            border.color: VynUIQmlConstants.controlBorderColorForStyle(bar.vynStyle, 0)
            border.width: 0

            Rectangle {
                height: parent.height
                width: bar.positionOf(bar.value)
                radius: parent.radius
                color: VynUIQmlConstants.controlColorForStyle(bar.vynStyle, 1)
            }
        }

        // Marks of the minimum and the maximum, under their labels.
        Rectangle {
            id: minimumMark

            x: Math.round(trackItem.x + bar.positionOf(bar.minimum) - width / 2)
            width: Math.max(1, Math.round(2 * bar.__ratio))
            height: trackRow.markHeight
            anchors.verticalCenter: parent.verticalCenter
            radius: width / 2
            color: VynUIQmlConstants.labelColorForStyle(bar.vynStyle, 1)
        }
        Rectangle {
            x: Math.round(trackItem.x + bar.positionOf(bar.maximum) - width / 2)
            width: minimumMark.width
            height: minimumMark.height
            anchors.verticalCenter: parent.verticalCenter
            radius: minimumMark.radius
            color: minimumMark.color
        }

        Rectangle {
            id: handleItem

            x: Math.round(trackItem.x + bar.positionOf(bar.value) - width / 2)
            width: VynUIQmlConstants.sliderThumbWidth(bar.vynControlSize, bar.vynPixelRatio)
            height: VynUIQmlConstants.sliderThumbHeight(bar.vynControlSize, bar.vynPixelRatio)
            anchors.verticalCenter: parent.verticalCenter
            radius: Math.round(width * VynUIQmlConstants.sliderThumbCornerRadiusRatio())
            color: dragAreaItem.pressed ? Qt.darker(VynUIQmlConstants.controlColorForStyle(bar.vynStyle, 0), 1.08)
                                        : VynUIQmlConstants.controlColorForStyle(bar.vynStyle, 0)
            border.color: VynUIQmlConstants.controlBorderColorForStyle(bar.vynStyle, 0)
            border.width: Math.max(1, VynUIQmlConstants.sliderThumbBorder(bar.vynPixelRatio))

            // A grip of two short lines.
            Row {
                anchors.centerIn: parent
                spacing: Math.round(2 * bar.__ratio)

                Rectangle {
                    id: gripLine
                    width: Math.max(1, Math.round(bar.__ratio))
                    height: Math.round(handleItem.height * 0.4)
                    color: VynUIQmlConstants.labelColorForStyle(bar.vynStyle, 2)
                }
                Rectangle {
                    width: gripLine.width
                    height: gripLine.height
                    color: gripLine.color
                }
            }
        }

        MouseArea {
            id: dragAreaItem

            // The track and half a handle beyond each end, the full height of the row.
            x: trackItem.x - handleItem.width / 2
            width: trackItem.width + handleItem.width
            height: parent.height
            preventStealing: true
            cursorShape: Qt.PointingHandCursor

            function moveTo(p_x) {
                bar.value = bar.valueAt(p_x - (trackItem.x - x))
            }

            onPressed: mouse => moveTo(mouse.x)
            onPositionChanged: mouse => {
                if (pressed)
                    moveTo(mouse.x)
            }
        }
    }

    // What the optimizer did to each label; wraps onto more lines on a narrow bar.
    Flow {
        id: legend

        x: trackItem.x
        y: trackRow.y + trackRow.height + bar.__labelGap * 2
        width: Math.max(0, bar.width - x)
        spacing: Math.round(18 * bar.__ratio)

        Repeater {
            model: [
                { name: qsTr("Value"), label: valueLabelItem, owner: bar },
                { name: qsTr("Minimum"), label: minimumLabelItem, owner: bar },
                { name: qsTr("Maximum"), label: maximumLabelItem, owner: bar }
            ]

            VynLabel {
                required property var modelData

                text: modelData.name + ": " + modelData.owner.placementText(modelData.label)
                vynStyle: modelData.owner.vynStyle
                vynControlSize: VynViewUtils.VynControlSizeSmall
                vynPixelRatio: modelData.owner.vynPixelRatio
                vynPixelRatioFont: modelData.owner.vynPixelRatioFont
                level: modelData.label.visible ? 1 : 2
            }
        }
    }
}
