import QtQuick
import QtQuick.Shapes
import VynUI 1.2

// The details layer of a graph thumbnail: an on/off button on the left half and a magnifier
// on the right half, shown over the curve after a click and faded in and out over 300 ms.
// onOffClicked() asks the thumbnail to switch its EQ or dynamics; magnifierClicked() to open the
// editor. `isOn` is the tri-state of the thumbnail (2 is mixed).
VynItem {
    id: root

    property bool shown: false
    property int isOn: 0

    signal onOffClicked
    signal magnifierClicked

    opacity: shown ? 1 : 0
    visible: opacity > 0
    Behavior on opacity {
        NumberAnimation { duration: 300 }
    }

    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(0, 0, 0, 0.55)
    }

    MouseArea {
        id: onOffArea

        width: parent.width / 2
        height: parent.height
        enabled: root.shown
        onClicked: root.onOffClicked()

        Rectangle {
            anchors.centerIn: parent
            width: Math.min(parent.width, parent.height) * 0.62
            height: width
            radius: width / 2
            color: root.isOn === 1 ? "#007AFF" : root.isOn === 2 ? "#8E8E93" : "#48484A"
            border.color: onOffArea.pressed ? "#FFFFFF" : "transparent"

            Text {
                anchors.centerIn: parent
                text: root.isOn === 1 ? qsTr("ON") : root.isOn === 2 ? "-" : qsTr("OFF")
                color: "#FFFFFF"
                font.pixelSize: Math.max(7, parent.height * 0.34)
                font.bold: true
            }
        }
    }

    MouseArea {
        id: magnifierArea

        x: parent.width / 2
        width: parent.width / 2
        height: parent.height
        enabled: root.shown
        onClicked: root.magnifierClicked()

        Shape {
            id: magnifier

            readonly property real size: Math.min(parent.width, parent.height) * 0.55
            readonly property real r: size * 0.32

            anchors.centerIn: parent
            width: size
            height: size

            ShapePath {
                strokeColor: magnifierArea.pressed ? "#007AFF" : "#FFFFFF"
                strokeWidth: Math.max(1.5, magnifier.size * 0.1)
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap

                PathAngleArc {
                    centerX: magnifier.r + magnifier.size * 0.08
                    centerY: magnifier.r + magnifier.size * 0.08
                    radiusX: magnifier.r
                    radiusY: magnifier.r
                    startAngle: 0
                    sweepAngle: 360
                }
                PathMove {
                    x: magnifier.size * 0.08 + magnifier.r * 1.71
                    y: magnifier.size * 0.08 + magnifier.r * 1.71
                }
                PathLine { x: magnifier.size * 0.95; y: magnifier.size * 0.95 }
            }
        }
    }
}
