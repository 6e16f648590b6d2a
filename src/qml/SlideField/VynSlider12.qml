pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

import "../Script/ArrayUtils.js" as ArrayUtils
import "../Script/ComponentUtils.js" as ComponentUtils

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

    readonly property int _sliderEndedTimerDelay: 600

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
    // magnitude, the sign is kept, see _roundedToStep()).
    function setValue(p_value, p_truncate = true, p_roundToStep = true) {
        if (isNaN(p_value)) {
            console.warn("VynSlider12: refused a value that is not a number")
            return
        }
        let v = p_truncate ? _clamped(p_value) : p_value
        if (stepSize > 0 && p_roundToStep) {
            virtualValue = v
            v = _roundedToStep(v, p_truncate)
        }
        value = v
        displayedValue = value
    }

    // The multiple of stepSize nearest to p_value: ties go up in magnitude and the sign is
    // kept (a small negative value gives -0). Quotient and product are read to 15
    // significant digits, so that float noise neither breaks a tie (0.6 / 0.2) nor leaves a
    // trail (0.4 x 3 is 1.2, not 1.2000000000000002). With p_keepInRange, a multiple outside
    // [from, to] steps back one step towards the range; a range without any multiple inside
    // gives the clamped value instead. A value that is not finite is returned as it is.
    function _roundedToStep(p_value, p_keepInRange) {
        if (!isFinite(p_value) || !(stepSize > 0) || !isFinite(stepSize))
            return p_value
        const clean = function (p_x) {
            return parseFloat(p_x.toPrecision(15))
        }
        const sign = p_value < 0 ? -1 : 1
        let count = sign * Math.floor(clean(Math.abs(p_value) / stepSize) + 0.5)
        const multiple = function (p_count) {
            return p_count === 0 ? sign * 0 : clean(p_count * stepSize)
        }
        if (!p_keepInRange)
            return multiple(count)
        const low = Math.min(from, to)
        const high = Math.max(from, to)
        if (multiple(count) > high)
            --count
        else if (multiple(count) < low)
            ++count
        const v = multiple(count)
        return v >= low && v <= high ? v : _clamped(p_value)
    }

    // Moves the value by p_count increments (stepSize, or a tenth of the range), with the
    // modifiers held, and offers it as final.
    function increment(p_count, p_modifiers = Qt.NoModifier) {
        let count = p_count
        if ((p_modifiers & Qt.ControlModifier) && (stepSize <= 0 || Math.abs(p_count) > 1))
            count /= VynUIQmlConstants.sliderWheelMinimizeFactor()
        if (p_modifiers & Qt.ShiftModifier)
            count *= VynUIQmlConstants.sliderWheelMaximizeFactor()
        let delta = stepSize > 0 ? count * stepSize : count * valueRange / 10
        if (mirror !== reverse)
            delta = -delta
        _offerFinal(_clamped(value + delta))
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

    function _log(p_event, p_message) {
        if (enableLogs)
            console.log("VynSlider12", p_event, p_message)
    }

    function _offerFinal(p_value) {
        if (p_value === value || isNaN(p_value))
            return p_value === value
        const previousLastValue = lastValue
        setLastValue.call(root, value)
        const accepted = sliderExpectsValue.call(root, p_value, false, lastValue, true)
        if (!accepted)
            setLastValue.call(root, previousLastValue)
        _log("offer", p_value + (accepted ? " accepted" : " refused"))
        return accepted
    }

    function _confirmThen(p_action, p_refused) {
        if (securityType !== VynCommonConstants.VynSecurityTypeShouldAlert) {
            p_action()
            return
        }
        const controller = VynUIQmlConstants.windowControllerForQmlObject(root)
        const window = VynUIQmlConstants.windowForQmlObject(root)
        if (!uiSliderComponent || !controller || !window) {
            console.warn("Error: cannot display alert. Security type is set should alert and the windowController or parentWindow reference is null.")
            p_refused()
            return
        }
        VynUIQmlConstants.presentConfirmMessage(uiSliderComponent.securityAlertTitle,
                                                uiSliderComponent.securityAlertMessage, 0,
                                                QApplicationMessage.Level_Warn,
                                                QApplicationMessage.Type_Popup, [], controller,
                                                window, function (p_response) {
                                                    if (p_response === QApplicationMessage.Response_Confirm)
                                                        p_action()
                                                    else
                                                        p_refused()
                                                })
    }

    function _endSlidingDebounced() {
        ComponentUtils.delayFunction(endedTimer, _sliderEndedTimerDelay, function () {
            root.sliderEndedSliding.call(root)
        }, true)
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

    // Axis coordinate of a point of the control, and the coordinate across the axis.
    function _axis(p_x: real, p_y: real): real {
        if (vertical)
            return mirror ? p_y : height - p_y
        return mirror ? width - p_x : p_x
    }
    function _cross(p_x: real, p_y: real): real {
        return vertical ? p_x : p_y
    }
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
    function _onThumb(p_x, p_y) {
        const half = Math.max(_thumbLength, vynMetrics.sliderTouchAreaOffset) / 2
        return Math.abs(_axis(p_x, p_y) - _thumbPosition) <= half
    }

    implicitWidth: vertical ? _thumbCross : 10 * _thumbCross
    implicitHeight: vertical ? 10 * _thumbCross : _thumbCross
    opacity: enabled ? 1.0 : vynMetrics.disabledAlpha

    onValueChanged: displayedValue = value
    onValuesChanged: updateValueForMixedState.call(root)
    onMixedChanged: updateValueForMixedState.call(root)

    Timer {
        id: endedTimer
    }

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
        border.width: Math.max(1, root.vynMetrics.sliderThumbBorder)
        border.color: (root.pressed ? root.vynMetrics.controlBorderColorOn : root.vynMetrics.controlBorderColor)
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

    function _press(p_x, p_y) {
        if (securityType === VynCommonConstants.VynSecurityTypeDisable || !shouldBeginSliding.call(root))
            return false
        _startPoint = Qt.point(_axis(p_x, p_y), _cross(p_x, p_y))
        virtualValue = value
        startValue = value
        setLastValue.call(root, value)
        _lastStepTime = 0
        if (_onThumb(p_x, p_y)) {
            pressed = true
            canStartDragging = true
            sliderBeganSliding.call(root)
        } else if (enableIncrementOutsideThumb) {
            incrementing = true
            sliderBeganSliding.call(root)
        } else {
            return false
        }
        return true
    }

    function _move(p_x, p_y) {
        if (!live)
            return
        const a = _axis(p_x, p_y)
        if (!dragging) {
            if (Math.abs(a - _startPoint.x) <= VynUIQmlConstants.sliderTrackingThreshold())
                return
            if (canStartDragging) {
                dragging = true
                _lastPoint = _startPoint
                _log("drag", "began at " + value)
            }
            incrementing = false
        }
        if (dragging)
            _dragStep(a, _cross(p_x, p_y))
    }

    function _dragStep(p_axis, p_cross) {
        let delta = p_axis - _lastPoint.x
        const now = Date.now()
        if (enableValueLimitation && _lastStepTime > 0) {
            const limit = VynUIQmlConstants.sliderMaxDistancePerSecond() * (now - _lastStepTime) / 1000
            if (Math.abs(delta) > limit)
                delta = Math.max(-limit, Math.min(limit, delta)) / 2
        }
        if (enableValueAttenuation) {
            const y = p_cross - _startPoint.y
            const sigma = VynUIQmlConstants.sliderYAttenuationFactor()
            delta *= Math.exp(-(y * y) / (2 * sigma * sigma))
        }
        let newValue = virtualValue + (reverse ? -1 : 1) * delta / _trackLength * valueRange
        newValue = _clamped(newValue)
        if (isNaN(newValue))
            return
        if (newValue !== virtualValue) {
            const previousLastValue = lastValue
            setLastValue.call(root, value)
            const isFinal = securityType === VynCommonConstants.VynSecurityTypeNone
            if (!sliderExpectsValue.call(root, newValue, false, lastValue, isFinal))
                setLastValue.call(root, previousLastValue)
        }
        virtualValue = newValue
        if (newValue !== from && newValue !== to) {
            _lastPoint = Qt.point(p_axis, p_cross)
            _lastStepTime = now
        }
    }

    // p_click: {x, y, modifiers, inside} of the release, or null for a cancel.
    function _release(p_cancelled, p_click) {
        if (securityType === VynCommonConstants.VynSecurityTypeDisable)
            return
        if (isLongPressed) {
            _endGesture(false, p_cancelled, null)
            return
        }
        if (securityType === VynCommonConstants.VynSecurityTypeShouldAlert && !p_cancelled) {
            _confirmThen(function () {
                root._endGesture(true, false, p_click)
            }, function () {
                root._endGesture(false, false, p_click)
            })
            return
        }
        _endGesture(true, p_cancelled, p_click)
    }

    function _endGesture(p_accepted, p_cancelled, p_click) {
        if (dragging) {
            if (securityType === VynCommonConstants.VynSecurityTypeShouldAlert
                    && p_accepted && !p_cancelled && virtualValue !== startValue) {
                setLastValue.call(root, startValue)
                if (!sliderExpectsValue.call(root, virtualValue, false, lastValue, true))
                    setValue(startValue)
            }
            dragging = false
        } else if (incrementing && p_accepted && !p_cancelled && p_click && p_click.inside) {
            const thumbCentre = root.vertical ? thumb.centreY : thumb.centreX
            const clickPosition = root.vertical ? p_click.y : p_click.x
            // Before the thumb's centre on screen: left, or below on a vertical slider.
            const before = root.vertical ? clickPosition >= thumbCentre : clickPosition <= thumbCentre
            increment(before ? -1 : 1, p_click.modifiers)
        }
        if (!p_accepted || p_cancelled) {
            setValue(startValue, true, false)
            virtualValue = startValue
        }
        gestureAccepted = p_accepted && !p_cancelled
        pressed = false
        canStartDragging = false
        if (!incrementing && !isLongPressed) {
            sliderEndedSliding.call(root)
        } else {
            incrementing = false
            isLongPressed = false
            _endSlidingDebounced()
        }
        _log("gesture", "ended " + (gestureAccepted ? "accepted" : "refused"))
    }

    function _doubleClick(p_x, p_y) {
        if (!enableDoubleClicking || dragging || !_onThumb(p_x, p_y)
                || securityType === VynCommonConstants.VynSecurityTypeDisable)
            return
        _offerFinal(defaultValue)
    }

    // p_angleDelta: the wheel's vertical angle delta; a sideways turn has none and is not taken.
    function _wheel(p_angleDelta, p_modifiers) {
        const steps = p_angleDelta / 120
        if (!enableWheeling || steps === 0 || securityType === VynCommonConstants.VynSecurityTypeDisable
                || !shouldBeginSliding.call(root))
            return false
        const now = Date.now()
        if (enableValueLimitation && _wheelLastTime > 0) {
            const limit = VynUIQmlConstants.sliderMaxAnglePerSecond() * (now - _wheelLastTime) / 1000
            if (Math.abs(p_angleDelta / 8) > limit)
                return true
        }
        incrementing = true
        startValue = value
        sliderBeganSliding.call(root)
        increment(steps, p_modifiers)
        if (value !== from && value !== to)
            _wheelLastTime = now
        incrementing = false
        gestureAccepted = true
        _endSlidingDebounced()
        return true
    }

    MouseArea {
        id: mouseArea
        objectName: "sliderArea"
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton
        preventStealing: true
        hoverEnabled: true
        onPressed: function (mouse) {
            root._gestureOpen = root._press(mouse.x, mouse.y)
        }
        onPositionChanged: function (mouse) {
            if (!root._gestureOpen || !(mouse.buttons & Qt.LeftButton))
                return
            root._move(mouse.x, mouse.y)
        }
        onReleased: function (mouse) {
            if (!root._gestureOpen)
                return
            root._gestureOpen = false
            root._release(false, {
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
            root._release(true, null)
        }
        onDoubleClicked: function (mouse) {
            root._doubleClick(mouse.x, mouse.y)
        }
        onPressAndHold: function (mouse) {
            if (!root._gestureOpen || root.dragging)
                return
            root.incrementing = false
            root.isLongPressed = true
            root.longPressed(mouse)
        }
        onWheel: function (wheel) {
            wheel.accepted = root._wheel(wheel.angleDelta.y, wheel.modifiers)
        }
    }
}
