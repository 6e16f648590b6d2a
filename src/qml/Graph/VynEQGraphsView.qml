pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import VynUI 1.2

// The EQ editor graph: a logarithmic frequency axis from 20 Hz to 20 kHz, a gain axis, the
// curve of every band and their sum with its fill, and one handle per band.
//
// The curves come from a VynEQCurveModel (native sums: a band that changes is evaluated
// alone, the sum re-added), drawn as Shape polylines. Dragging a handle offers a new frequency
// and gain, the wheel over a handle a new q (a sixth of an octave per step), a double click a
// gain of 0; the values are shown beside the handle while it moves. With the keyboard, a
// focused handle moves by a twelfth of an octave (left, right), 0.5 dB (up, down) and changes
// q (+, -); Home resets its gain.
//
// The view never writes a band: every edit goes through bandExpectsValues(index, frequency,
// gain, q), which the host replaces to send the values to the device; the device's echo then
// moves the curve. Without a replacement nothing is edited.
VynItem {
    id: root

    property VynEQCommonEQ eq: null
    property int count: 512
    property real freqMin: 20
    property real freqMax: 20000
    property real gainMin: -18
    property real gainMax: 18
    property real qMin: 0.1
    property real qMax: 20
    property real insetLeft: 34
    property real insetRight: 12
    property real insetTop: 12
    property real insetBottom: 22
    property bool showsBandCurves: true
    property int selectedBand: -1

    property var bandExpectsValues: function (p_index, p_frequency, p_gain, p_q) {
        return false
    }

    // Incremented on every recomputation, so that the band curves read their new points.
    property int revision: 0

    signal bandSelected(int p_index)

    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("EQ response")

    function bandHasGain(p_type) {
        return p_type === 1 || p_type === 4 || p_type === 5
    }
    function clamp(p_value, p_min, p_max) {
        return Math.max(p_min, Math.min(p_max, p_value))
    }
    function formatFrequency(p_frequency) {
        return p_frequency >= 1000 ? (p_frequency / 1000).toFixed(p_frequency >= 10000 ? 1 : 2) + " kHz"
                                   : p_frequency.toFixed(0) + " Hz"
    }
    function formatGain(p_gain) {
        return (p_gain > 0 ? "+" : "") + p_gain.toFixed(1) + " dB"
    }
    function offer(p_index, p_frequency, p_gain, p_q) {
        return bandExpectsValues.call(root, p_index, clamp(p_frequency, freqMin, freqMax),
                                      clamp(p_gain, gainMin, gainMax), clamp(p_q, qMin, qMax))
    }
    function bandColor(p_index, p_on) {
        const n = root.eq ? root.eq.bandCount : 1
        return VynUIQmlConstants.eqCurveGradientColorForStyle(root.vynStyle, p_on ? 1 : 0, p_index, Math.max(n, 2))
    }

    VynEQCurveModel {
        id: curveModel

        eq: root.eq
        count: root.count
        width: root.width
        height: root.height
        insetLeft: root.insetLeft
        insetRight: root.insetRight
        insetTop: root.insetTop
        insetBottom: root.insetBottom
        freqMin: root.freqMin
        freqMax: root.freqMax
        gainMin: root.gainMin
        gainMax: root.gainMax
        onCurvesChanged: root.revision++
    }

    // Background.
    Rectangle {
        anchors.fill: parent
        radius: 4
        gradient: Gradient {
            GradientStop {
                position: 0
                color: root.vynStyle === VynColorUtils.VynStyleDark ? "#23252F" : "#F4F5F8"
            }
            GradientStop {
                position: 1
                color: root.vynStyle === VynColorUtils.VynStyleDark ? "#181920" : "#E3E5EA"
            }
        }
        border.width: 1
        border.color: VynUIQmlConstants.eqThumbnailBorderColorForStyle(root.vynStyle)
    }

    // Grid and axis labels.
    Repeater {
        model: VynUIQmlConstants.eqXLabels()

        Item {
            id: xLabel

            required property var modelData
            readonly property real xPosition: curveModel.xForFrequency(modelData.position) + 0 * root.revision

            Rectangle {
                x: xLabel.xPosition
                y: root.insetTop
                width: 1
                height: root.height - root.insetTop - root.insetBottom
                color: VynUIQmlConstants.eqGraphAxisSecondaryColorForStyle(root.vynStyle)
            }
            Text {
                x: xLabel.xPosition - width / 2
                y: root.height - root.insetBottom + 4
                text: xLabel.modelData.text
                color: VynUIQmlConstants.eqGraphLabelColorForStyle(root.vynStyle)
                font.pixelSize: root.vynMetrics.graphLabelFontSize
            }
        }
    }
    Repeater {
        model: VynUIQmlConstants.eqYLabels()

        Item {
            id: yLabel

            required property var modelData
            readonly property real yPosition: curveModel.yForGain(modelData.position) + 0 * root.revision

            Rectangle {
                x: root.insetLeft
                y: yLabel.yPosition
                width: root.width - root.insetLeft - root.insetRight
                height: 1
                color: yLabel.modelData.position === 0 ? VynUIQmlConstants.eqGraphAxisMainColorForStyle(root.vynStyle)
                                                       : VynUIQmlConstants.eqGraphAxisSecondaryColorForStyle(root.vynStyle)
            }
            Text {
                x: root.insetLeft - width - 6
                y: yLabel.yPosition - height / 2
                text: yLabel.modelData.text
                color: VynUIQmlConstants.eqGraphLabelColorForStyle(root.vynStyle)
                font.pixelSize: root.vynMetrics.graphLabelFontSize
            }
        }
    }

    // Curves, clipped to the plot.
    Item {
        id: plot

        anchors.fill: parent
        clip: true

        Repeater {
            model: root.showsBandCurves && root.eq ? root.eq.bandCount : 0

            Shape {
                id: bandCurve

                required property int index
                readonly property VynEQBand band: root.eq ? root.eq.band(index) : null
                readonly property bool selected: root.selectedBand === index

                anchors.fill: parent
                visible: band !== null && band.enabled && band.used

                ShapePath {
                    strokeColor: root.bandColor(bandCurve.index, root.eq && root.eq.on)
                    strokeWidth: bandCurve.selected ? 1.5 : 1
                    fillColor: "transparent"
                    strokeStyle: bandCurve.selected ? ShapePath.SolidLine : ShapePath.DashLine
                    dashPattern: [3, 2]
                    PathPolyline {
                        path: root.revision >= 0 ? curveModel.bandPoints(bandCurve.index) : []
                    }
                }
            }
        }

        Shape {
            anchors.fill: parent

            ShapePath {
                readonly property color sumColor: root.eq && root.eq.on ? "#2F9BFF" : "#8E8E93"
                strokeColor: "transparent"
                fillGradient: LinearGradient {
                    x1: 0
                    y1: curveModel.yForGain(root.gainMax)
                    x2: 0
                    y2: curveModel.yForGain(0)
                    GradientStop { position: 0; color: Qt.rgba(0.18, 0.61, 1, 0.45) }
                    GradientStop { position: 1; color: Qt.rgba(0.18, 0.61, 1, 0.08) }
                }
                PathPolyline {
                    path: {
                        const points = root.revision >= 0 ? curveModel.sumPoints : []
                        if (points.length === 0)
                            return []
                        const zero = curveModel.yForGain(0)
                        return [Qt.point(points[0].x, zero)].concat(points,
                                                                    [Qt.point(points[points.length - 1].x, zero)])
                    }
                }
            }
            ShapePath {
                strokeColor: root.eq && root.eq.on ? "#2F9BFF" : "#8E8E93"
                strokeWidth: 2.5
                fillColor: "transparent"
                joinStyle: ShapePath.RoundJoin
                PathPolyline { path: root.revision >= 0 ? curveModel.sumPoints : [] }
            }
        }
    }

    // One handle per band.
    Repeater {
        model: root.eq ? root.eq.bandCount : 0

        Item {
            id: handle

            required property int index
            readonly property VynEQBand band: root.eq ? root.eq.band(index) : null
            readonly property bool hasGain: band !== null && root.bandHasGain(band.type)
            readonly property real centerX: band ? curveModel.xForFrequency(band.frequency) + 0 * root.revision : 0
            readonly property real centerY: band ? curveModel.yForGain(hasGain ? band.gain : 0) + 0 * root.revision : 0
            readonly property bool active: dragArea.pressed || activeFocus
            property real pressOffsetX: 0
            property real pressOffsetY: 0

            x: centerX - width / 2
            y: centerY - height / 2
            width: active ? root.vynMetrics.graphThumbPressedWidth : root.vynMetrics.graphThumbIdleWidth
            height: width
            z: active ? 2 : 1
            visible: band !== null && band.used
            activeFocusOnTab: true

            Accessible.role: Accessible.Slider
            Accessible.name: band ? qsTr("Band %1: %2, %3, Q %4").arg(index + 1).arg(root.formatFrequency(band.frequency))
                                    .arg(root.formatGain(band.gain)).arg(band.q.toFixed(2)) : ""

            function offerValues(p_frequency, p_gain, p_q) {
                root.offer(index, p_frequency, p_gain, p_q)
            }

            Keys.onPressed: function (p_event) {
                const b = handle.band
                if (!b)
                    return
                const octave = Math.pow(2, 1 / 12)
                if (p_event.key === Qt.Key_Left)
                    offerValues(b.frequency / octave, b.gain, b.q)
                else if (p_event.key === Qt.Key_Right)
                    offerValues(b.frequency * octave, b.gain, b.q)
                else if (p_event.key === Qt.Key_Up && handle.hasGain)
                    offerValues(b.frequency, b.gain + 0.5, b.q)
                else if (p_event.key === Qt.Key_Down && handle.hasGain)
                    offerValues(b.frequency, b.gain - 0.5, b.q)
                else if (p_event.key === Qt.Key_Plus || p_event.key === Qt.Key_Equal)
                    offerValues(b.frequency, b.gain, b.q * Math.pow(2, 1 / 6))
                else if (p_event.key === Qt.Key_Minus)
                    offerValues(b.frequency, b.gain, b.q / Math.pow(2, 1 / 6))
                else if (p_event.key === Qt.Key_Home)
                    offerValues(b.frequency, 0, b.q)
                else
                    return
                p_event.accepted = true
            }
            onActiveFocusChanged: if (activeFocus) root.selectedBand = index

            Rectangle {
                anchors.fill: parent
                radius: width / 2
                color: handle.band ? Qt.rgba(root.bandColor(handle.index, handle.band.enabled).r,
                                             root.bandColor(handle.index, handle.band.enabled).g,
                                             root.bandColor(handle.index, handle.band.enabled).b,
                                             handle.active ? 0.35 : 0.9) : "transparent"
                border.width: handle.active ? root.vynMetrics.graphThumbPressedBorderWidth
                                            : root.vynMetrics.graphThumbIdleBorderWidth
                border.color: root.selectedBand === handle.index ? "#FFFFFF" : Qt.rgba(1, 1, 1, 0.6)

                Text {
                    anchors.centerIn: parent
                    text: handle.index + 1
                    color: "#FFFFFF"
                    font.pixelSize: handle.active ? root.vynMetrics.graphThumbPressedFontSize
                                                  : root.vynMetrics.graphThumbIdleFontSize
                    font.bold: true
                }
            }

            MouseArea {
                id: dragArea

                anchors.fill: parent
                anchors.margins: -4
                preventStealing: true
                onPressed: function (p_mouse) {
                    const p = mapToItem(root, p_mouse.x, p_mouse.y)
                    handle.pressOffsetX = p.x - handle.centerX
                    handle.pressOffsetY = p.y - handle.centerY
                    root.selectedBand = handle.index
                    root.bandSelected(handle.index)
                    handle.forceActiveFocus()
                }
                onPositionChanged: function (p_mouse) {
                    if (!pressed || !handle.band)
                        return
                    const p = mapToItem(root, p_mouse.x, p_mouse.y)
                    const frequency = curveModel.frequencyForX(p.x - handle.pressOffsetX)
                    const gain = handle.hasGain ? curveModel.gainForY(p.y - handle.pressOffsetY) : handle.band.gain
                    handle.offerValues(frequency, gain, handle.band.q)
                }
                onDoubleClicked: {
                    if (handle.band)
                        handle.offerValues(handle.band.frequency, 0, handle.band.q)
                }
                onWheel: function (p_wheel) {
                    if (!handle.band)
                        return
                    const steps = p_wheel.angleDelta.y / 120
                    handle.offerValues(handle.band.frequency, handle.band.gain,
                                       handle.band.q * Math.pow(2, steps / 6))
                }
            }

            // The values, shown while the handle moves.
            Rectangle {
                visible: handle.active && handle.band !== null
                x: handle.centerX > root.width / 2 ? -width - 6 : handle.width + 6
                y: (handle.height - height) / 2
                width: valueText.implicitWidth + 12
                height: valueText.implicitHeight + 6
                radius: 3
                color: VynUIQmlConstants.graphThumbLabelBackgroundTransformedColor(
                           root.bandColor(handle.index, true), root.vynStyle)

                Text {
                    id: valueText

                    anchors.centerIn: parent
                    text: handle.band ? root.formatFrequency(handle.band.frequency)
                                        + (handle.hasGain ? "  " + root.formatGain(handle.band.gain) : "")
                                        + "  Q " + handle.band.q.toFixed(2) : ""
                    color: "#FFFFFF"
                    font.pixelSize: root.vynMetrics.graphLabelFontSize
                }
            }
        }
    }
}
