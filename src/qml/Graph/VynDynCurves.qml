pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import VynUI 1.2

// The static transfer curves of one or more dynamics blocks (compressor, limiter).
//
// `model` is one block or a list of blocks (objects with gain, threshold, ratio, knee and
// isOn); null entries are skipped. For a block of gain g, threshold t, ratio r (the output
// slope above the threshold) and knee k, the curve is out = in + g below the knee and
// out = r * in + b with b = t + g - t * r above it; the knee is a quadratic Bezier from
// (t - k) to (t + k) whose control point is the corner of the two lines.
//
// The start point is on the left edge unless that is above the top, then on the bottom edge;
// the end point is on the right edge unless that is below the bottom and r > 0, then on the
// top edge. The two tests are deliberately not symmetric.
//
// Drag helpers map a pointer back to levels: projectOnDiagonal() (for the threshold),
// yForRatio() and ratioForY() (for the ratio).
VynGraphCurves {
    id: root

    property var model: null
    property var selectedCurveModels: []
    property bool usesGradients: false
    property real lineWidth: vynMetrics.graphCurveWidth
    property real selectedLineWidth: vynMetrics.graphSelectedCurveWidth

    // One record per drawn block: the block, its five points, colours and line width.
    property var curves: []

    function blocks() {
        if (model === null || model === undefined)
            return []
        if (Array.isArray(model) || (typeof model === "object" && model.length !== undefined
                                     && model.threshold === undefined)) {
            const result = []
            for (let i = 0; i < model.length; ++i) {
                if (model[i])
                    result.push(model[i])
            }
            return result
        }
        return [model]
    }

    // The five points of a block's curve, in item coordinates.
    function curveGeometry(p_gain, p_threshold, p_ratio, p_knee) {
        const g = p_gain
        const t = p_threshold
        const r = p_ratio
        const k = p_knee
        const b = t + g - t * r
        let start = Qt.point(0, yForOut(inLeft + g))
        if (start.y < 0)
            start = Qt.point(xForIn(outBottom - g), yForOut(outBottom))
        const t1 = Qt.point(xForIn(t - k), yForOut(t - k + g))
        const c = Qt.point(xForIn(t), yForOut(t + g))
        const t2 = Qt.point(xForIn(t + k), yForOut(r * (t + k) + b))
        let end = Qt.point(width, yForOut(r * inRight + b))
        if (end.y > height && r > 0)
            end = Qt.point(xForIn((outTop - b) / r), yForOut(outTop))
        return { "start": start, "t1": t1, "c": c, "t2": t2, "end": end }
    }

    function isSelected(p_block) {
        if (!selectedCurveModels)
            return false
        for (let i = 0; i < selectedCurveModels.length; ++i) {
            if (selectedCurveModels[i] === p_block)
                return true
        }
        return false
    }

    function rebuild() {
        const list = blocks()
        const result = []
        for (let i = 0; i < list.length; ++i) {
            const block = list[i]
            const geometry = curveGeometry(block.gain, block.threshold, block.ratio, block.knee)
            const on = block.isOn ? 1 : 0
            const line = usesGradients ? VynUIQmlConstants.eqCurveGradientColorForStyle(vynStyle, on, i, list.length)
                                       : VynUIQmlConstants.eqCurveGradientColorForStyle(vynStyle, on, 0, 1)
            geometry.block = block
            geometry.lineColor = line
            geometry.fillColor = Qt.rgba(line.r, line.g, line.b, 0.2)
            geometry.lineWidth = isSelected(block) ? selectedLineWidth : lineWidth
            result.push(geometry)
        }
        curves = result
    }

    // The orthogonal projection of (x, y) on the line out = in, done in level space.
    function projectOnDiagonal(p_x, p_y) {
        const p = (inForX(p_x) + outForY(p_y)) / 2
        return Qt.point(xForIn(p), yForOut(p))
    }
    function yForRatio(p_ratio, p_threshold) {
        const yT = yForOut(p_threshold)
        const y0 = yForOut(0)
        return yT - p_ratio * (yT - y0)
    }
    function ratioForY(p_y, p_threshold) {
        const yT = yForOut(p_threshold)
        const y0 = yForOut(0)
        if (yT === y0)
            return 1
        return (yT - p_y) / (yT - y0)
    }

    onModelChanged: rebuild()
    onLineWidthChanged: rebuild()
    onSelectedLineWidthChanged: rebuild()
    onSelectedCurveModelsChanged: rebuild()
    onUpdatedScales: rebuild()

    Repeater {
        model: root.curves

        Shape {
            id: curveShape

            required property var modelData

            anchors.fill: parent

            ShapePath {
                strokeColor: "transparent"
                fillColor: curveShape.modelData.fillColor
                startX: curveShape.modelData.start.x
                startY: root.height

                PathLine { x: curveShape.modelData.start.x; y: curveShape.modelData.start.y }
                PathLine { x: curveShape.modelData.t1.x; y: curveShape.modelData.t1.y }
                PathQuad {
                    controlX: curveShape.modelData.c.x
                    controlY: curveShape.modelData.c.y
                    x: curveShape.modelData.t2.x
                    y: curveShape.modelData.t2.y
                }
                PathLine { x: curveShape.modelData.end.x; y: curveShape.modelData.end.y }
                PathLine { x: curveShape.modelData.end.x; y: root.height }
            }
            ShapePath {
                strokeColor: curveShape.modelData.lineColor
                strokeWidth: curveShape.modelData.lineWidth
                fillColor: "transparent"
                startX: curveShape.modelData.start.x
                startY: curveShape.modelData.start.y

                PathLine { x: curveShape.modelData.t1.x; y: curveShape.modelData.t1.y }
                PathQuad {
                    controlX: curveShape.modelData.c.x
                    controlY: curveShape.modelData.c.y
                    x: curveShape.modelData.t2.x
                    y: curveShape.modelData.t2.y
                }
                PathLine { x: curveShape.modelData.end.x; y: curveShape.modelData.end.y }
            }
        }
    }
}
