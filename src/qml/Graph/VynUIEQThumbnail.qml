pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import VynUI 1.2

import "../Script/VynEQBiquadFilter.js" as VynEQBiquadFilter

// A small EQ thumbnail bound to a VynUIEQThumbnailComponent: the summed magnitude response of
// the component's EQs over 20 Hz to 20 kHz and its gain range.
//
// The curve is computed with VynEQBiquadFilter on a grid of `count` points spread over the
// width (vynEQNumberOfPointsPerOctaveWithInsets), at 96 kHz, every enabled and used band of
// every EQ that is on multiplied in. The plot maps gain g to a * g + b with a = (height -
// insetTop - insetBottom) / (gainMax - gainMin) and b = insetTop + gainMax * a, which grows
// upward: the curve layer is drawn flipped. A band whose frequency, gain or q is not a finite
// number stops the update, the curve keeps its previous points.
//
// A click shows the details layer. Its on/off button runs the component's confirmation
// (presentConfirmChangeAlertIfNeededQml) and then emits activationClicked(turnOn) on the
// component; its magnifier emits the component's clicked().
VynItem {
    id: root

    property VynUIEQThumbnailComponent uiComponent: null
    property real freqMin: 20
    property real freqMax: 20000
    property int count: 50
    property real sampleRate: 96000
    property real insetLeft: 0
    property real insetRight: 0
    property real insetTop: 0
    property real insetBottom: 0
    property bool detailsShown: false

    readonly property real gainMin: uiComponent ? uiComponent.gainMin : -18
    readonly property real gainMax: uiComponent ? uiComponent.gainMax : 18
    readonly property int isOn: uiComponent ? uiComponent.isOn : 0
    readonly property bool isEmpty: uiComponent ? uiComponent.isEmpty : true

    // The last computed curve: the points, the fill path and the grid's frequency ends.
    property var points: []
    property var fillPoints: []
    property real freqLeft: freqMax
    property real freqRight: freqMin
    property real pointsPerOctave: 0

    readonly property var gridFrequencies: [20, 100, 500, 2000, 10000]
    readonly property var gridGains: [-12, -6, 0, 6, 12]

    implicitWidth: vynMetrics.eqThumbnailStandardWidth
    implicitHeight: vynMetrics.eqThumbnailStandardHeight

    function gainScaleA() {
        return (height - insetTop - insetBottom) / (gainMax - gainMin)
    }
    function yForGain(p_gain) {
        const a = gainScaleA()
        return a * p_gain + insetTop + gainMax * a
    }
    function xForFrequency(p_frequency) {
        if (count === 0)
            return 0
        return (width / count) * pointsPerOctave * VynEQBiquadFilter.log2(p_frequency / freqLeft)
    }

    function eqList() {
        return uiComponent ? uiComponent.commonEQs : []
    }

    function recompute() {
        if (count === 0) {
            pointsPerOctave = 0
            freqRight = freqMin
            freqLeft = freqMax
            points = []
            fillPoints = []
            return
        }
        const grid = VynEQBiquadFilter.vynEQNumberOfPointsPerOctaveWithInsets(freqMin, freqMax, count, insetLeft,
                                                                              insetRight, width)
        const frequencies = VynEQBiquadFilter.vynEQNormalizedFrequenciesLog(grid[1], grid[0], count, sampleRate)
        const magnitudes = []
        for (let i = 0; i < count; ++i)
            magnitudes.push(1)
        const eqs = eqList()
        for (let e = 0; e < eqs.length; ++e) {
            const eq = eqs[e]
            if (!eq || !eq.on)
                continue
            const bands = eq.bands
            for (let b = 0; b < bands.length; ++b) {
                const band = bands[b]
                if (!band.enabled || !band.used)
                    continue
                if (!isFinite(band.frequency) || !isFinite(band.gain) || !isFinite(band.q))
                    return
                const coefs = VynEQBiquadFilter.vynEQBiquadCoefsMakeWithType(
                                band.type, VynEQBiquadFilter.vynEQNormalizedFrequency(band.frequency, sampleRate),
                                band.q, band.gain)
                VynEQBiquadFilter.vynEQAddBiquadResponses(coefs, magnitudes, -1, frequencies, count)
            }
        }
        pointsPerOctave = grid[0]
        freqLeft = grid[1]
        freqRight = grid[1] * Math.pow(2, (count - 1) / grid[0])
        const kept = []
        for (let i = 0; i < count; ++i) {
            const x = i * width / count
            if (kept.length > 0 && x - kept[kept.length - 1].x < 1)
                continue
            kept.push(Qt.point(x, yForGain(VynEQBiquadFilter.vynEQLinearToDB(magnitudes[i]))))
        }
        points = kept
        const zero = yForGain(0)
        fillPoints = [Qt.point(xForFrequency(freqLeft), zero)].concat(kept, [Qt.point(xForFrequency(freqRight), zero)])
    }

    Connections {
        target: root.uiComponent
        function onCommonEQsChanged() { root.recompute() }
        function onUpdateEQValues() { root.recompute() }
        function onGainLimitsChanged() { root.recompute() }
    }
    onUiComponentChanged: recompute()
    onWidthChanged: recompute()
    onHeightChanged: recompute()
    onCountChanged: recompute()

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop {
                position: 0
                color: root.isOn === 1 ? VynUIQmlConstants.eqThumbnailOnBkgGradientColorForStyle(0, root.vynStyle)
                       : root.isOn === 2 ? VynUIQmlConstants.eqThumbnailMixedBkgGradientColorForStyle(0, root.vynStyle)
                                         : VynUIQmlConstants.eqThumbnailOffBkgGradientColorForStyle(0, root.vynStyle)
            }
            GradientStop {
                position: 1
                color: root.isOn === 1 ? VynUIQmlConstants.eqThumbnailOnBkgGradientColorForStyle(1, root.vynStyle)
                       : root.isOn === 2 ? VynUIQmlConstants.eqThumbnailMixedBkgGradientColorForStyle(1, root.vynStyle)
                                         : VynUIQmlConstants.eqThumbnailOffBkgGradientColorForStyle(1, root.vynStyle)
            }
        }
        border.width: root.vynMetrics.graphThumbnailBorder
        border.color: VynUIQmlConstants.eqThumbnailBorderColorForStyle(root.vynStyle)
    }

    // Grid and curve in plot coordinates, flipped so that a larger gain is higher.
    Item {
        anchors.fill: parent
        visible: !root.isEmpty
        transform: Scale { yScale: -1; origin.y: root.height / 2 }

        Repeater {
            model: root.gridFrequencies

            Rectangle {
                required property real modelData
                x: root.xForFrequency(modelData)
                width: 1
                height: root.height
                color: VynUIQmlConstants.eqThumbnailGridColorsForStyle(root.vynStyle)
            }
        }
        Repeater {
            model: root.gridGains

            Rectangle {
                required property real modelData
                y: root.yForGain(modelData)
                width: root.width
                height: 1
                color: VynUIQmlConstants.eqThumbnailGridColorsForStyle(root.vynStyle)
                opacity: modelData === 0 ? 1 : 0.6
            }
        }

        Shape {
            anchors.fill: parent

            ShapePath {
                strokeColor: "transparent"
                fillColor: Qt.rgba(root.curveColor.r, root.curveColor.g, root.curveColor.b, 0.25)
                PathPolyline { path: root.fillPoints }
            }
            ShapePath {
                strokeColor: root.curveColor
                strokeWidth: root.vynMetrics.graphThumbnailCurveWidth
                fillColor: "transparent"
                joinStyle: ShapePath.RoundJoin
                PathPolyline { path: root.points }
            }
        }
    }

    readonly property color curveColor: VynUIQmlConstants.eqTypeCurveColorForStyle(vynStyle, isOn)

    MouseArea {
        anchors.fill: parent
        enabled: !root.detailsShown && root.uiComponent !== null && root.uiComponent.enabled
        onClicked: root.detailsShown = true
    }

    VynGraphThumbnailDetails {
        anchors.fill: parent
        vynStyle: root.vynStyle
        shown: root.detailsShown
        isOn: root.isOn
        onOnOffClicked: {
            root.detailsShown = false
            const component = root.uiComponent
            const turnOn = component.isOn !== 1
            component.presentConfirmChangeAlertIfNeededQml(function () {
                component.activationClicked(turnOn)
            })
        }
        onMagnifierClicked: {
            root.detailsShown = false
            root.uiComponent.clicked()
        }
    }
}
