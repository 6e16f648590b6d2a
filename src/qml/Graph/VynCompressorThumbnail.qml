pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import VynUI 1.2

import "../Script/CompressorHelper.js" as CompressorHelper

// A small compressor curve: the polyline (0, 0), (xT, xT), (width, yC), in item coordinates as
// they stand, with xT = CompressorHelper.getXThreshold(threshold, maxThreshold, minThreshold,
// min(width, height)) and yC = CompressorHelper.getYCompression(inverseCompressionRatio, xT,
// width). A grid of 6 intervals (lines at i * width / 6, the width used in both directions),
// solid or dotted.
//
// A click shows the details layer: its on/off button emits activationClicked(!isOn), its
// magnifier clicked().
VynItem {
    id: root

    property bool isOn: true
    property real threshold: CompressorHelper.defaultThreshold
    property real minThreshold: CompressorHelper.defaultMinThreshold
    property real maxThreshold: CompressorHelper.defaultMaxThreshold
    property real inverseCompressionRatio: CompressorHelper.defaultInverseCompressionRatio
    property bool dottedGrid: false
    property bool detailsShown: false

    readonly property real xThreshold: CompressorHelper.getXThreshold(threshold, maxThreshold, minThreshold,
                                                                      Math.min(width, height))
    readonly property real yCompression: CompressorHelper.getYCompression(inverseCompressionRatio,
                                                                          xThreshold, width)
    readonly property color lineColor: isOn ? "#007AFF" : "#FF4C33"
    readonly property color gridColor: "#444444"
    readonly property real dotSpacing: Math.max(width * 0.012, 1)

    signal activationClicked(bool p_turnOn)
    signal clicked

    implicitWidth: 80
    implicitHeight: 80

    Rectangle {
        anchors.fill: parent
        color: root.vynStyle === VynColorUtils.VynStyleDark ? "#303244" : "#B2CCCCCC"
        border.width: 0.5
        border.color: root.vynStyle === VynColorUtils.VynStyleDark ? "#7FFFFFFF" : "#BFBFBF"
    }

    Repeater {
        model: 5

        Item {
            id: gridLine

            required property int index
            readonly property real position: (index + 1) * root.width / 6

            anchors.fill: parent

            Shape {
                anchors.fill: parent

                ShapePath {
                    strokeColor: root.gridColor
                    strokeWidth: 1
                    strokeStyle: root.dottedGrid ? ShapePath.DashLine : ShapePath.SolidLine
                    dashPattern: [1, root.dotSpacing]
                    fillColor: "transparent"
                    startX: gridLine.position
                    startY: 0

                    PathLine { x: gridLine.position; y: root.height }
                    PathMove { x: 0; y: gridLine.position }
                    PathLine { x: root.width; y: gridLine.position }
                }
            }
        }
    }

    Shape {
        anchors.fill: parent

        ShapePath {
            strokeColor: root.lineColor
            strokeWidth: 1.5
            fillColor: "transparent"
            joinStyle: ShapePath.RoundJoin

            PathPolyline {
                path: [Qt.point(0, 0), Qt.point(root.xThreshold, root.xThreshold),
                    Qt.point(root.width, root.yCompression)]
            }
        }
    }

    MouseArea {
        anchors.fill: parent
        enabled: !root.detailsShown
        onClicked: root.detailsShown = true
    }

    VynGraphThumbnailDetails {
        anchors.fill: parent
        vynStyle: root.vynStyle
        shown: root.detailsShown
        isOn: root.isOn ? 1 : 0
        onOnOffClicked: {
            root.detailsShown = false
            root.activationClicked(!root.isOn)
        }
        onMagnifierClicked: {
            root.detailsShown = false
            root.clicked()
        }
    }
}
