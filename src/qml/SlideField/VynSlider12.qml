pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

import "../Script/ArrayUtils.js" as ArrayUtils
import "../Private/SliderGestures.js" as SliderGestures

// The slider: a track with a thumb, horizontal or vertical.
//
// Like the slide field it never commits a value itself: every change goes through replaceable
// function properties that a parameter-bound wrapper (VynUISlider) overrides:
//   shouldBeginSliding()                      may a gesture start?            default true
//   sliderBeganSliding()                      a gesture began                 default nothing
//   setLastValue(v)                           remember the value for undo     default lastValue = v
//   sliderExpectsValue(v, forceAbsolute, prevValue, isFinal)
//                                             offer a value, answer accepted  default setValue(v), true
//   sliderEndedSliding()                      the gesture (or burst) ended    default nothing
//   updateValueForMixedState()                show the average of `values` when mixed
//
// Geometry. Positions are taken along the axis: x for a horizontal slider, and for a vertical
// one y counted from the bottom. `mirror` draws the slider the other way round (the axis
// counts from the right, or from the top); `reverse` reverses the value (`to` at the start
// of the axis). The track runs from half a thumb after the start to half a thumb before the
// end; position = start + (value - from) x length / valueRange, with valueRange =
// max(0.1 when to <= 1 else 1, to - from).
//
// Gestures. Pressing the thumb and moving more than sliderTrackingThreshold() (3) pixels
// along the axis drags it linearly, with the same speed limitation and attenuation across the
// axis as the slide field; only a `live` slider follows the pointer (without `live` moves are
// ignored, and a press on the thumb just ends on release). Pressing the track outside the
// thumb (`enableIncrementOutsideThumb`) increments on release: one step towards the click
// (stepSize, or a tenth of the range without a step). A double click on the thumb offers
// `defaultValue` as final. The wheel (`enableWheeling`) moves one step per vertical notch
// (the angle delta's y; a sideways wheel does not move the slider and is left to the items
// below); with value limitation faster than sliderMaxAnglePerSecond() (150 degrees per
// second) the extra notches are dropped. Control divides an increment by 5 (not a single
// notch of a stepped slider: one step stays one step), Shift multiplies it by 5. Press and
// hold reports `longPressed` and cancels the gesture.
//
// Security. As for the slide field: disable ignores presses, clicks, wheel and releases;
// should-alert offers drag values as not final and asks for a confirmation on every release
// that was not cancelled (a drag, a track click or a plain press alike) through the host's
// message service with the bound component's alert texts; refused, or when the user cannot
// be asked, the gesture ends unaccepted and the value goes back to `startValue`. Double
// clicks and wheel steps are not gestures with a release: their values are offered as final
// through sliderExpectsValue, where the host decides. A drag ends with sliderEndedSliding()
// at once; clicks and wheel steps through a 600 ms debounce, one call per burst.
//
// Keyboard. The slider takes focus with Tab (its thumb then wears the focus ring). The arrow
// keys move the thumb one increment the way they point (Right and Up towards the end of the
// axis, whatever `mirror` and `reverse` say), Page Up and Page Down a tenth of the range
// (at least one step), Home and End go to `from` and `to`; Control and Shift divide and
// multiply an increment as for the wheel. Each key is a step like a wheel notch (offered as
// final, one end call per burst), except on a should-alert slider, where each asks first.
// `accessibleName` names the slider for assistive tools, which can also step it.
VynItem {
    id: root

    // --- Values ---
    property real defaultValue: 0.0
    property real value: defaultValue
    property real displayedValue: value
    property real virtualValue: value
    property real startValue: value
    property real lastValue: value
    property real from: 0.0
    property real to: 1.0
    property real stepSize: 0.0
    readonly property real valueRange: Math.max(to <= 1.0 ? 0.1 : 1, to - from)
    property int securityType: VynCommonConstants.VynSecurityTypeNone
    property bool enableValueAttenuation: false
    property bool enableValueLimitation: false
    property bool enableLogs: false
    property bool isLongPressed: false
    property VynUISliderComponent uiSliderComponent: null
    property bool gestureAccepted: true

    // --- Slider state ---
    property bool live: true
    property bool enableDoubleClicking: true
    property bool enableWheeling: false
    property bool enableIncrementOutsideThumb: true
    property bool drawsTicks: false
    property var values: []
    property bool mixed: values !== null && values !== undefined && values.length > 1
    property bool pressed: false
    property bool canStartDragging: false
    property bool dragging: false
    property bool incrementing: false
    property int orientation: Qt.Horizontal
    property bool mirror: false
    property bool reverse: false
    property bool previewMode: false
    readonly property bool vertical: orientation === Qt.Vertical

    signal longPressed(var p_mouse)

    // Made on the first click or wheel step, for the burst's debounce.
    property Timer _endedTimer: null

    // --- Validator functions ---
    property var shouldBeginSliding: function () {
        return true
    }
    property var sliderBeganSliding: function () {}
    property var setLastValue: function (p_value) {
        root.lastValue = p_value
    }
    property var sliderExpectsValue: function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
        root.setValue(p_newValue)
        return true
    }
    property var sliderEndedSliding: function () {}
    property var updateValueForMixedState: function () {
        if (root.dragging || root.incrementing || !root.mixed || !root.values || root.values.length === 0)
            return
        const average = ArrayUtils.average(root.values)
        if (isNaN(average))
            return
        root.displayedValue = average
        root.virtualValue = average
        root.value = average
    }

    // Sets the value, clamped to [from, to] when truncating. With a positive stepSize and
    // rounding, virtualValue takes the unrounded value and value the nearest multiple of
    // stepSize (the grid of multiples of stepSize, whatever `from` is; ties go up in
    // magnitude, the sign is kept (a small negative value gives -0); quotient and product
    // are read to 15 significant digits, so that float noise neither breaks a tie (0.6 / 0.2)
    // nor leaves a trail (0.4 x 3 is 1.2, not 1.2000000000000002). When truncating, a
    // multiple outside [from, to] steps back one step towards the range, and a range without
    // any multiple inside gives the clamped value).
    function setValue(p_value, p_truncate = true, p_roundToStep = true) {
        if (isNaN(p_value)) {
            console.warn("VynSlider12: refused a value that is not a number")
            return
        }
        let v = p_truncate ? _clamped(p_value) : p_value
        if (stepSize > 0 && p_roundToStep) {
            virtualValue = v
            v = SliderGestures.roundedToStep(root, v, p_truncate)
        }
        value = v
        displayedValue = value
    }

    // Moves the value by p_count increments (stepSize, or a tenth of the range), with the
    // modifiers held, and offers it as final.
    function increment(p_count, p_modifiers = Qt.NoModifier) {
        SliderGestures.offerFinal(root, incrementedValue(p_count, p_modifiers))
    }
    // The value p_count increments away (see increment()), clamped to the range.
    function incrementedValue(p_count, p_modifiers = Qt.NoModifier) {
        let count = p_count
        if ((p_modifiers & Qt.ControlModifier) && (stepSize <= 0 || Math.abs(p_count) > 1))
            count /= vynMetrics.sliderWheelMinimizeFactor
        if (p_modifiers & Qt.ShiftModifier)
            count *= vynMetrics.sliderWheelMaximizeFactor
        let delta = stepSize > 0 ? count * stepSize : count * valueRange / 10
        if (mirror !== reverse)
            delta = -delta
        return _clamped(value + delta)
    }

    // The position of a value along the axis (in axis coordinates, see above).
    function positionForValue(p_value: real): real {
        const v = _clamped(p_value)
        const offset = reverse ? to - v : v - from
        return _trackStart + offset * _trackLength / valueRange
    }
    function valueForPosition(p_position: real): real {
        const offset = (p_position - _trackStart) * valueRange / _trackLength
        return _clamped(reverse ? to - offset : from + offset)
    }

    function _clamped(p_value: real): real {
        return Math.max(Math.min(from, to), Math.min(Math.max(from, to), p_value))
    }

    // --- Geometry (axis coordinates) ---
    readonly property real _axisLength: vertical ? height : width
    readonly property real _crossLength: vertical ? width : height
    readonly property real _thumbLength: vynMetrics.sliderThumbWidth
    readonly property real _thumbCross: vynMetrics.sliderThumbHeight
    readonly property real _trackStart: _thumbLength / 2 + vynMetrics.sliderInsetsH
    readonly property real _trackLength: Math.max(1, _axisLength - 2 * _trackStart)
    // A value not known yet (NaN) shows no thumb and no fill; the thumb waits at the start.
    readonly property bool _valueKnown: displayedValue === displayedValue
    readonly property real _thumbPosition: _valueKnown ? positionForValue(displayedValue) : _trackStart
    readonly property real _zeroPosition: positionForValue(from <= 0 && to >= 0 ? 0 : from)

    // Item coordinates of an axis position (the centre of the cross axis).
    function _itemX(p_axis: real): real {
        if (vertical)
            return width / 2
        return mirror ? width - p_axis : p_axis
    }
    function _itemY(p_axis: real): real {
        if (!vertical)
            return height / 2
        return mirror ? p_axis : height - p_axis
    }

    // --- Keyboard and accessibility ---
    property string accessibleName: uiSliderComponent ? uiSliderComponent.name : ""
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: accessibleName
    Accessible.description: mixed ? qsTr("Multiple values") : _valueKnown ? String(value) : ""
    Accessible.onIncreaseAction: SliderGestures.keyStep(root, root.mirror !== root.reverse ? Qt.Key_Down : Qt.Key_Up, Qt.NoModifier)
    Accessible.onDecreaseAction: SliderGestures.keyStep(root, root.mirror !== root.reverse ? Qt.Key_Up : Qt.Key_Down, Qt.NoModifier)
    Keys.onPressed: function (event) {
        event.accepted = SliderGestures.keyStep(root, event.key, event.modifiers)
    }

    implicitWidth: vertical ? _thumbCross : 10 * _thumbCross
    implicitHeight: vertical ? 10 * _thumbCross : _thumbCross
    opacity: enabled ? 1.0 : vynMetrics.disabledAlpha

    onValueChanged: displayedValue = value
    onValuesChanged: updateValueForMixedState.call(root)
    onMixedChanged: updateValueForMixedState.call(root)

    // --- Drawing ---
    readonly property real _trackThickness: vynMetrics.sliderTrackHeight

    Rectangle {
        id: track
        objectName: "track"
        readonly property real startX: root._itemX(root._trackStart)
        readonly property real endX: root._itemX(root._trackStart + root._trackLength)
        readonly property real startY: root._itemY(root._trackStart)
        readonly property real endY: root._itemY(root._trackStart + root._trackLength)
        x: root.vertical ? Math.round((root.width - width) / 2) : Math.min(startX, endX)
        y: root.vertical ? Math.min(startY, endY) : Math.round((root.height - height) / 2)
        width: root.vertical ? root._trackThickness : root._trackLength
        height: root.vertical ? root._trackLength : root._trackThickness
        radius: root.vynMetrics.sliderTrackCornerRadius
        // A well in the background colour of text views, framed like the thumb.
        color: root.vynMetrics.textViewBackgroundColor
        border.width: Math.max(1, root.vynMetrics.sliderThumbBorder)
        border.color: root.vynMetrics.controlBorderColor
    }

    // The filled part, from zero (or `from`) to the thumb.
    Rectangle {
        id: fill
        readonly property real a: Math.min(root._zeroPosition, root._thumbPosition)
        readonly property real b: Math.max(root._zeroPosition, root._thumbPosition)
        readonly property real x1: root._itemX(a)
        readonly property real x2: root._itemX(b)
        readonly property real y1: root._itemY(a)
        readonly property real y2: root._itemY(b)
        visible: !root.mixed && root._valueKnown && b - a >= 1
        x: root.vertical ? track.x : Math.min(x1, x2)
        y: root.vertical ? Math.min(y1, y2) : track.y
        width: root.vertical ? track.width : Math.abs(x2 - x1)
        height: root.vertical ? Math.abs(y2 - y1) : track.height
        radius: track.radius
        gradient: root.vertical ? VynGradients.onHorizontal : VynGradients.onVertical
    }

    // Step ticks: 1 + valueRange / stepSize marks over the track minus the thumb.
    Repeater {
        id: ticks
        model: root.drawsTicks && root.stepSize > 0
               ? Math.min(1000, Math.floor(1 + root.valueRange / root.stepSize + 1e-9)) : 0
        Rectangle {
            required property int index
            readonly property real axisPosition: root._trackStart
                                                 + (ticks.count > 1 ? index * root._trackLength / (ticks.count - 1) : 0)
            readonly property real tickLength: Math.round(root._crossLength * 0.6)
            readonly property real tickWidth: Math.max(1, root.vynMetrics.sliderTickSize)
            width: root.vertical ? tickLength : tickWidth
            height: root.vertical ? tickWidth : tickLength
            x: root.vertical ? Math.round((root.width - width) / 2) : Math.round(root._itemX(axisPosition) - width / 2)
            y: root.vertical ? Math.round(root._itemY(axisPosition) - height / 2) : Math.round((root.height - height) / 2)
            z: -1
            color: root.vynMetrics.labelColorTertiary
        }
    }

    Rectangle {
        id: thumb
        objectName: "thumb"
        visible: root._valueKnown
        readonly property real centreX: root._itemX(root._thumbPosition)
        readonly property real centreY: root._itemY(root._thumbPosition)
        width: root.vertical ? root._thumbCross : root._thumbLength
        height: root.vertical ? root._thumbLength : root._thumbCross
        x: Math.round(centreX - width / 2)
        y: Math.round(centreY - height / 2)
        radius: Math.min(width, height) * root.vynMetrics.sliderThumbCornerRadiusRatio
        // Focused, the thumb's frame doubles in the accent colour: the focus ring.
        border.width: Math.max(1, root.vynMetrics.sliderThumbBorder) * (root.activeFocus ? 2 : 1)
        border.color: (root.pressed || root.activeFocus ? root.vynMetrics.controlBorderColorOn : root.vynMetrics.controlBorderColor)
        // Shared gradients: mixed, pressed, or off in the look's style.
        gradient: root.vertical
                  ? (root.mixed ? VynGradients.mixedHorizontal
                                : root.pressed ? VynGradients.onHorizontal
                                               : root.vynMetrics.style === VynColorUtils.VynStyleLight
                                                 ? VynGradients.offLightHorizontal : VynGradients.offDarkHorizontal)
                  : (root.mixed ? VynGradients.mixedVertical
                                : root.pressed ? VynGradients.onVertical
                                               : root.vynMetrics.style === VynColorUtils.VynStyleLight
                                                 ? VynGradients.offLightVertical : VynGradients.offDarkVertical)
        // The grip line across the thumb.
        Rectangle {
            anchors.centerIn: parent
            width: root.vertical ? parent.width * 0.5 : Math.max(1, root.vynMetrics.sliderTickSize)
            height: root.vertical ? Math.max(1, root.vynMetrics.sliderTickSize) : parent.height * 0.5
            color: root.mixed ? root.vynMetrics.controlMixedTickColor
                              : (root.pressed ? root.vynMetrics.controlBorderColorOn : root.vynMetrics.controlBorderColor)
        }
    }

    // --- Interaction ---
    property point _startPoint: Qt.point(0, 0)   // (axis, cross)
    property point _lastPoint: Qt.point(0, 0)
    property real _lastStepTime: 0
    property real _wheelLastTime: 0
    property bool _gestureOpen: false

    MouseArea {
        id: mouseArea
        objectName: "sliderArea"
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton
        preventStealing: true
        hoverEnabled: true
        onPressed: function (mouse) {
            root._gestureOpen = SliderGestures.press(root, mouse.x, mouse.y)
        }
        onPositionChanged: function (mouse) {
            if (!root._gestureOpen || !(mouse.buttons & Qt.LeftButton))
                return
            SliderGestures.move(root, mouse.x, mouse.y)
        }
        onReleased: function (mouse) {
            if (!root._gestureOpen)
                return
            root._gestureOpen = false
            SliderGestures.release(root, false, {
                              "x": mouse.x,
                              "y": mouse.y,
                              "modifiers": mouse.modifiers,
                              "inside": mouse.x >= 0 && mouse.y >= 0 && mouse.x <= width && mouse.y <= height
                          })
        }
        onCanceled: {
            if (!root._gestureOpen)
                return
            root._gestureOpen = false
            SliderGestures.release(root, true, null)
        }
        onDoubleClicked: function (mouse) {
            SliderGestures.doubleClick(root, mouse.x, mouse.y)
        }
        onPressAndHold: function (mouse) {
            if (!root._gestureOpen || root.dragging)
                return
            root.incrementing = false
            root.isLongPressed = true
            root.longPressed(mouse)
        }
        onWheel: function (wheel) {
            wheel.accepted = SliderGestures.wheel(root, wheel.angleDelta.y, wheel.modifiers)
        }
    }
}
