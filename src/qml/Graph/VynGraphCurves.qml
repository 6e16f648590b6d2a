import QtQuick
import VynUI 1.2

// The base of the graph curves: the affine scaling between levels (dB) and pixels.
//
// Input levels run along x (inMin at insetLeft), output levels along y, growing downward
// (outMax at insetTop). The scales are computed again whenever an input changes, then
// updatedScales() is emitted. With no width or no height every scale is 0, inLeft reads inMax,
// inRight inMin, outTop outMax and outBottom outMin.
//
// The origin is the point of 0 dB in and out.
VynItem {
    id: root

    property real insetLeft: 0
    property real insetRight: 0
    property real insetBottom: 0
    property real insetTop: 0
    property real inMin: 0
    property real inMax: 1
    property real outMin: 0
    property real outMax: 1

    // x = inScaleA * in + inScaleB, y = outScaleA * out + outScaleB, and their inverses.
    property real inScaleA: 1
    property real inScaleB: 0
    property real outScaleA: 1
    property real outScaleB: 0
    property real xScaleC: 1
    property real xScaleD: 0
    property real yScaleC: 1
    property real yScaleD: 0
    property real inLeft: 1
    property real inRight: 0
    property real outTop: 1
    property real outBottom: 0
    property point origin: Qt.point(0, 0)

    signal updatedScales

    function xForIn(p_in) {
        return inScaleB + p_in * inScaleA
    }
    function yForOut(p_out) {
        return outScaleB + p_out * outScaleA
    }
    function inForX(p_x) {
        return xScaleD + p_x * xScaleC
    }
    function outForY(p_y) {
        return yScaleD + p_y * yScaleC
    }

    function updateScales() {
        if (width === 0 || height === 0) {
            inScaleA = 0
            inScaleB = 0
            outScaleA = 0
            outScaleB = 0
            xScaleC = 0
            xScaleD = 0
            yScaleC = 0
            yScaleD = 0
            inRight = inMin
            inLeft = inMax
            outTop = outMax
            outBottom = outMin
            origin = Qt.point(xForIn(0), yForOut(0))
            updatedScales()
            return
        }
        outScaleA = (height - insetTop - insetBottom) / (outMin - outMax)
        outScaleB = insetTop - outMax * outScaleA
        yScaleC = 1 / outScaleA
        yScaleD = -outScaleB / outScaleA
        outBottom = outForY(height)
        outTop = outForY(0)

        inScaleA = (width - insetLeft - insetRight) / (inMax - inMin)
        inScaleB = insetLeft - inMin * inScaleA
        xScaleC = 1 / inScaleA
        xScaleD = -inScaleB / inScaleA
        inLeft = inForX(0)
        inRight = inForX(width)

        origin = Qt.point(xForIn(0), yForOut(0))
        updatedScales()
    }

    onWidthChanged: updateScales()
    onHeightChanged: updateScales()
    onInsetLeftChanged: updateScales()
    onInsetRightChanged: updateScales()
    onInsetBottomChanged: updateScales()
    onInsetTopChanged: updateScales()
    onInMinChanged: updateScales()
    onInMaxChanged: updateScales()
    onOutMinChanged: updateScales()
    onOutMaxChanged: updateScales()
    Component.onCompleted: updateScales()
}
