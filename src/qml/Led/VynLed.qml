pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import VynUI 1.2

import "../Private/DiscreteActions.js" as DiscreteActions

// A status LED: a circle, a triangle or an upside-down triangle (VynViewUtils.VynLedShape)
// lit in the colour of its VynViewUtils.VynLedState, with a soft glow around a lit LED.
//
// - ledState: any VynLedState. Grey and None are unlit; Protect and Peak light red, Sense and
//   the control and channel status green, Mute blue, the alert status orange; Custom lights in
//   customColor.
// - mixed: several parameters disagree: the LED is drawn dimmed with the mixed dash across.
// - glow: whether a lit LED glows (default true). The glow is made only while lit.
VynItem {
    id: root

    property int ledState: VynViewUtils.VynLedStateGray
    property int ledShape: VynViewUtils.VynLedShapeCircle
    property bool mixed: false
    property bool glow: true
    property color customColor: "white"

    readonly property int _row: DiscreteActions.ledColorRow(ledState)
    readonly property bool lit: _row !== 0
    readonly property color _glowColor: _row < 0 ? Qt.rgba(customColor.r, customColor.g, customColor.b, 0.5)
                                                 : vynMetrics.ledGlowColor(_row)
    readonly property color _fillColor: !lit ? vynMetrics.ledFillColor(0)
                                             : Qt.rgba(_glowColor.r, _glowColor.g, _glowColor.b, 1)
    readonly property color _borderColor: _row < 0 ? Qt.darker(customColor, 1.6)
                                                   : vynMetrics.ledBorderColor(_row)
    readonly property real _size: vynMetrics.ledHeight

    implicitWidth: _size
    implicitHeight: _size

    Accessible.role: Accessible.Indicator
    Accessible.name: DiscreteActions.ledStateName(ledState)
    Accessible.description: mixed ? VynUIQmlConstants.localizedString("MULTIPLE") : ""

    // The glow and the triangle are made when first needed: most LEDs are round, many unlit.
    property Item _glowItem: null
    property Item _triangleItem: null
    function _makeParts() {
        if (lit && glow && !_glowItem)
            _glowItem = _glowComponent.createObject(root)
        if (ledShape !== VynViewUtils.VynLedShapeCircle && !_triangleItem)
            _triangleItem = _triangleComponent.createObject(root)
    }
    Component.onCompleted: _makeParts()
    onLitChanged: _makeParts()
    onGlowChanged: _makeParts()
    onLedShapeChanged: _makeParts()

    Component {
        id: _glowComponent
        Shape {
            visible: root.lit && root.glow && !root.mixed
            z: -1
            x: (root.width - width) / 2
            y: (root.height - height) / 2
            width: root._size * 2
            height: root._size * 2
            layer.enabled: true
            layer.samples: 4
            ShapePath {
                strokeColor: "transparent"
                fillGradient: RadialGradient {
                    centerX: root._size
                    centerY: root._size
                    centerRadius: root._size
                    focalX: centerX
                    focalY: centerY
                    GradientStop { position: 0.3; color: root._glowColor }
                    GradientStop { position: 1.0; color: "transparent" }
                }
                PathAngleArc {
                    centerX: root._size
                    centerY: root._size
                    radiusX: root._size
                    radiusY: root._size
                    startAngle: 0
                    sweepAngle: 360
                }
            }
        }
    }

    Rectangle {
        id: _circle
        visible: root.ledShape === VynViewUtils.VynLedShapeCircle
        anchors.centerIn: parent
        width: root._size
        height: root._size
        radius: width / 2
        color: root._fillColor
        opacity: root.mixed ? 0.55 : 1
        border.width: Math.max(1, root.vynMetrics.ratio)
        border.color: root._borderColor
        Rectangle {
            visible: root.lit
            x: parent.width * 0.25
            y: parent.height * 0.14
            width: parent.width * 0.42
            height: parent.height * 0.3
            radius: height / 2
            color: Qt.rgba(1, 1, 1, 0.55)
        }
    }

    Component {
        id: _triangleComponent
        Shape {
            id: _triangle
            visible: root.ledShape !== VynViewUtils.VynLedShapeCircle
            x: (root.width - width) / 2
            y: (root.height - height) / 2
            width: root._size
            height: root._size
            opacity: root.mixed ? 0.55 : 1
            readonly property bool down: root.ledShape === VynViewUtils.VynLedShapeUpsideDownTriangle
            layer.enabled: true
            layer.samples: 4
            ShapePath {
                fillColor: root._fillColor
                strokeColor: root._borderColor
                strokeWidth: Math.max(1, root.vynMetrics.ratio)
                joinStyle: ShapePath.RoundJoin
                startX: root._size / 2
                startY: _triangle.down ? root._size - 1 : 1
                PathLine { x: root._size - 1; y: _triangle.down ? 1 : root._size - 1 }
                PathLine { x: 1; y: _triangle.down ? 1 : root._size - 1 }
                PathLine { x: root._size / 2; y: _triangle.down ? root._size - 1 : 1 }
            }
        }
    }

    Rectangle {
        visible: root.mixed
        z: 2
        anchors.centerIn: parent
        width: root._size * 0.6
        height: Math.max(1.5, root._size * 0.16)
        radius: height / 2
        color: root.vynMetrics.controlMixedTickColor
    }
}
