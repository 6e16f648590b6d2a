pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

// The dynamics editor graph: output level against input level (dB), the unity diagonal, the
// transfer curve of every block (VynDynCurves) and, for the selected block, two handles: the
// threshold, dragged along the diagonal (VynDynCurves.projectOnDiagonal), and the ratio,
// dragged vertically on the right edge (VynDynCurves.ratioForY; the handle sits at
// yForRatio). Arrow keys move a focused handle by 0.5 dB or 0.05 of ratio.
//
// The view never writes a block: edits go through dynamicsExpectsValues(block, threshold,
// ratio), which the host replaces to send them to the device.
VynItem {
    id: root

    property var model: null
    property VynDynamicCommon selectedBlock: null
    property real levelMin: -60
    property real levelMax: 0
    property real ratioMin: 0
    property real ratioMax: 1
    property real insetLeft: 30
    property real insetRight: 12
    property real insetTop: 12
    property real insetBottom: 22

    property var dynamicsExpectsValues: function (p_block, p_threshold, p_ratio) {
        return false
    }

    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Dynamics transfer curve")

    function offer(p_threshold, p_ratio) {
        if (!selectedBlock)
            return
        dynamicsExpectsValues.call(root, selectedBlock, Math.max(levelMin, Math.min(levelMax, p_threshold)),
                                   Math.max(ratioMin, Math.min(ratioMax, p_ratio)))
    }

    Rectangle {
        anchors.fill: parent
        radius: 4
        color: root.vynStyle === VynColorUtils.VynStyleDark ? "#1D1F27" : "#EEF0F3"
        border.width: 1
        border.color: VynUIQmlConstants.eqThumbnailBorderColorForStyle(root.vynStyle)
    }

    VynDynCurves {
        id: curves

        anchors.fill: parent
        vynStyle: root.vynStyle
        insetLeft: root.insetLeft
        insetRight: root.insetRight
        insetTop: root.insetTop
        insetBottom: root.insetBottom
        inMin: root.levelMin
        inMax: root.levelMax
        outMin: root.levelMin
        outMax: root.levelMax
        model: root.model
        selectedCurveModels: root.selectedBlock ? [root.selectedBlock] : []
        z: 1
    }

    Repeater {
        model: VynUIQmlConstants.dynXLabels()

        Item {
            id: label

            required property var modelData
            readonly property real xPosition: curves.xForIn(modelData.position) + 0 * curves.inScaleA
            readonly property real yPosition: curves.yForOut(modelData.position) + 0 * curves.outScaleA

            Rectangle {
                x: label.xPosition
                y: root.insetTop
                width: 1
                height: root.height - root.insetTop - root.insetBottom
                color: VynUIQmlConstants.eqGraphAxisSecondaryColorForStyle(root.vynStyle)
            }
            Rectangle {
                x: root.insetLeft
                y: label.yPosition
                width: root.width - root.insetLeft - root.insetRight
                height: 1
                color: VynUIQmlConstants.eqGraphAxisSecondaryColorForStyle(root.vynStyle)
            }
            Text {
                x: label.xPosition - width / 2
                y: root.height - root.insetBottom + 4
                text: label.modelData.text
                color: VynUIQmlConstants.eqGraphLabelColorForStyle(root.vynStyle)
                font.pixelSize: root.vynMetrics.graphLabelFontSize
            }
            Text {
                x: root.insetLeft - width - 5
                y: label.yPosition - height / 2
                text: label.modelData.text
                color: VynUIQmlConstants.eqGraphLabelColorForStyle(root.vynStyle)
                font.pixelSize: root.vynMetrics.graphLabelFontSize
            }
        }
    }

    Connections {
        target: root.selectedBlock
        function onValuesChanged() { curves.rebuild() }
    }

    // Threshold handle: on the corner of the selected block's curve.
    Rectangle {
        id: thresholdHandle

        readonly property real cx: root.selectedBlock ? curves.xForIn(root.selectedBlock.threshold) + 0 * curves.inScaleA : 0
        readonly property real cy: root.selectedBlock ? curves.yForOut(root.selectedBlock.threshold + root.selectedBlock.gain)
                                                        + 0 * curves.outScaleA : 0
        readonly property bool active: thresholdArea.pressed || activeFocus

        visible: root.selectedBlock !== null
        z: 2
        x: cx - width / 2
        y: cy - height / 2
        width: active ? root.vynMetrics.graphThumbPressedWidth : root.vynMetrics.graphThumbIdleWidth
        height: width
        radius: width / 2
        color: Qt.rgba(0.18, 0.61, 1, active ? 0.35 : 0.9)
        border.color: "#FFFFFF"
        border.width: active ? root.vynMetrics.graphThumbPressedBorderWidth : root.vynMetrics.graphThumbIdleBorderWidth
        activeFocusOnTab: true
        Accessible.role: Accessible.Slider
        Accessible.name: root.selectedBlock ? qsTr("Threshold %1 dB").arg(root.selectedBlock.threshold.toFixed(1)) : ""

        Keys.onPressed: function (p_event) {
            const b = root.selectedBlock
            if (!b)
                return
            if (p_event.key === Qt.Key_Up || p_event.key === Qt.Key_Right)
                root.offer(b.threshold + 0.5, b.ratio)
            else if (p_event.key === Qt.Key_Down || p_event.key === Qt.Key_Left)
                root.offer(b.threshold - 0.5, b.ratio)
            else
                return
            p_event.accepted = true
        }

        MouseArea {
            id: thresholdArea

            anchors.fill: parent
            preventStealing: true
            onPressed: thresholdHandle.forceActiveFocus()
            onPositionChanged: function (p_mouse) {
                if (!pressed || !root.selectedBlock)
                    return
                const p = mapToItem(curves, p_mouse.x, p_mouse.y)
                const onDiagonal = curves.projectOnDiagonal(p.x, p.y)
                root.offer(curves.inForX(onDiagonal.x), root.selectedBlock.ratio)
            }
        }

        Text {
            visible: thresholdHandle.active
            x: thresholdHandle.width + 6
            y: -height
            text: root.selectedBlock ? qsTr("Threshold %1 dB").arg(root.selectedBlock.threshold.toFixed(1)) : ""
            color: VynUIQmlConstants.eqGraphLabelColorForStyle(root.vynStyle)
            font.pixelSize: root.vynMetrics.graphLabelFontSize
        }
    }

    // Ratio handle: on the right edge of the plot.
    Rectangle {
        id: ratioHandle

        readonly property real cx: curves.xForIn(root.levelMax) + 0 * curves.inScaleA
        readonly property real cy: root.selectedBlock ? curves.yForRatio(root.selectedBlock.ratio, root.selectedBlock.threshold)
                                                        + 0 * curves.outScaleA : 0
        readonly property bool active: ratioArea.pressed || activeFocus

        visible: root.selectedBlock !== null
        z: 2
        x: cx - width / 2
        y: cy - height / 2
        width: active ? root.vynMetrics.graphThumbPressedWidth : root.vynMetrics.graphThumbIdleWidth
        height: width
        radius: 3
        color: Qt.rgba(1, 0.6, 0.2, active ? 0.35 : 0.9)
        border.color: "#FFFFFF"
        border.width: active ? root.vynMetrics.graphThumbPressedBorderWidth : root.vynMetrics.graphThumbIdleBorderWidth
        activeFocusOnTab: true
        Accessible.role: Accessible.Slider
        Accessible.name: root.selectedBlock ? qsTr("Ratio %1:1").arg((1 / Math.max(root.selectedBlock.ratio, 0.001)).toFixed(1)) : ""

        Keys.onPressed: function (p_event) {
            const b = root.selectedBlock
            if (!b)
                return
            if (p_event.key === Qt.Key_Up)
                root.offer(b.threshold, b.ratio + 0.05)
            else if (p_event.key === Qt.Key_Down)
                root.offer(b.threshold, b.ratio - 0.05)
            else
                return
            p_event.accepted = true
        }

        MouseArea {
            id: ratioArea

            anchors.fill: parent
            preventStealing: true
            onPressed: ratioHandle.forceActiveFocus()
            onPositionChanged: function (p_mouse) {
                if (!pressed || !root.selectedBlock)
                    return
                const p = mapToItem(curves, p_mouse.x, p_mouse.y)
                root.offer(root.selectedBlock.threshold, curves.ratioForY(p.y, root.selectedBlock.threshold))
            }
        }

        Text {
            visible: ratioHandle.active
            x: -width - 6
            y: -height
            text: ratioHandle.Accessible.name
            color: VynUIQmlConstants.eqGraphLabelColorForStyle(root.vynStyle)
            font.pixelSize: root.vynMetrics.graphLabelFontSize
        }
    }
}
