import QtQuick
import QtTest
import VynUI 1.2

// The dynamics curve construction and its drag helpers, on a 300 x 300 plot of -60 to 0 dB in
// both directions (1 dB = 5 px, y grows downward).
TestCase {
    id: testCase
    name: "DynCurves"
    when: windowShown

    VynDynCurves {
        id: curves
        width: 300
        height: 300
        inMin: -60
        inMax: 0
        outMin: -60
        outMax: 0
    }

    VynGraphCurves {
        id: empty
        inMin: -60
        inMax: 0
        outMin: -40
        outMax: 10
    }

    function test_scales_data() {
        return [
            { tag: "xForIn left", fn: "xForIn", arg: -60, expected: 0 },
            { tag: "xForIn right", fn: "xForIn", arg: 0, expected: 300 },
            { tag: "inForX middle", fn: "inForX", arg: 150, expected: -30 },
            { tag: "yForOut top", fn: "yForOut", arg: 0, expected: 0 },
            { tag: "yForOut bottom", fn: "yForOut", arg: -60, expected: 300 },
            { tag: "outForY", fn: "outForY", arg: 75, expected: -15 },
        ]
    }
    function test_scales(data) {
        fuzzyCompare(curves[data.fn](data.arg), data.expected, 1e-9)
    }

    // Origin at 0 dB in and out; with no size the edges swap and the output ones follow.
    function test_origin_and_zero_size() {
        compare(curves.origin, Qt.point(300, 0))
        compare(curves.inLeft, -60)
        compare(curves.inRight, 0)
        compare(curves.outTop, 0)
        compare(curves.outBottom, -60)
        empty.updateScales()
        compare(empty.inLeft, 0)
        compare(empty.inRight, -60)
        compare(empty.outTop, 10)
        compare(empty.outBottom, -40)
        compare(empty.inScaleA, 0)
    }

    function test_curve_data() {
        return [
            // 4:1 at -20 dB, 5 dB knee: b = -20 - (-20 * 0.25) = -15.
            { tag: "compressor", g: 0, t: -20, r: 0.25, k: 5,
                start: [0, 300], t1: [175, 125], c: [200, 100], t2: [225, 93.75], end: [300, 75] },
            // A 70 dB make-up gain lifts the left edge above the top: start on the bottom edge.
            { tag: "start on the bottom edge", g: 70, t: -30, r: 0.5, k: 0,
                start: [-350, 300], t1: [150, -200], c: [150, -200], t2: [150, -200], end: [300, -275] },
            // A steep ratio whose right edge lies below the bottom ends on the top edge when r > 0.
            { tag: "end on the top edge", g: -80, t: -10, r: 2, k: 0,
                start: [0, 700], t1: [250, 450], c: [250, 450], t2: [250, 450], end: [475, 0] },
            // The same with r = 0 never switches to the top edge.
            { tag: "r 0 keeps the right edge", g: -70, t: -10, r: 0, k: 0,
                start: [0, 650], t1: [250, 400], c: [250, 400], t2: [250, 400], end: [300, 400] },
        ]
    }
    function test_curve(data) {
        const g = curves.curveGeometry(data.g, data.t, data.r, data.k)
        for (const key of ["start", "t1", "c", "t2", "end"]) {
            fuzzyCompare(g[key].x, data[key][0], 1e-9, key + ".x")
            fuzzyCompare(g[key].y, data[key][1], 1e-9, key + ".y")
        }
    }

    function test_dragHelpers() {
        // (100, 100) is in -40 dB, out -20 dB: the diagonal point is -30 dB.
        const p = curves.projectOnDiagonal(100, 100)
        fuzzyCompare(p.x, 150, 1e-9)
        fuzzyCompare(p.y, 150, 1e-9)
        // Threshold -20 dB: yT = 100, y0 = 0.
        fuzzyCompare(curves.yForRatio(0.25, -20), 75, 1e-9)
        fuzzyCompare(curves.ratioForY(75, -20), 0.25, 1e-9)
        fuzzyCompare(curves.ratioForY(curves.yForRatio(0.6, -35), -35), 0.6, 1e-9)
        // A threshold at 0 dB has yT = y0.
        compare(curves.ratioForY(42, 0), 1)
    }

    function test_blocksAndColours() {
        const a = { gain: 0, threshold: -20, ratio: 0.5, knee: 2, isOn: true }
        const b = { gain: 0, threshold: -30, ratio: 0.25, knee: 0, isOn: false }
        curves.model = [a, null, b]
        compare(curves.curves.length, 2)
        compare(curves.curves[0].lineWidth, curves.lineWidth)
        curves.selectedCurveModels = [b]
        compare(curves.curves[1].lineWidth, curves.selectedLineWidth)
        const line = curves.curves[1].lineColor
        fuzzyCompare(curves.curves[1].fillColor.a, 0.2, 0.01)
        compare(Qt.colorEqual(Qt.rgba(line.r, line.g, line.b, 1),
                              VynUIQmlConstants.eqCurveGradientColorForStyle(curves.vynStyle, 0, 0, 1)), true)
        curves.model = a
        compare(curves.curves.length, 1)
    }
}
