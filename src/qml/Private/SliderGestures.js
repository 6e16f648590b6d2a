.pragma library

.import QtQml as QtQml
.import VynUI 1.2 as VynUI
.import "../Script/ComponentUtils.js" as ComponentUtils

// The gesture logic of VynSlider12, shared by every slider of an engine: each function takes
// the slider (`s`) and reads and writes its properties, so that a slider carries no function
// objects of its own for it. See VynSlider12.qml for the rules.

const kEndedDelay = 600

function securityIs(s, p_type) {
    return s.securityType === p_type
}

function log(s, p_event, p_message) {
    if (s.enableLogs)
        console.log("VynSlider12", p_event, p_message)
}

// The multiple of stepSize nearest to p_value (see VynSlider12.setValue()).
function roundedToStep(s, p_value, p_keepInRange) {
    const step = s.stepSize
    if (!isFinite(p_value) || !(step > 0) || !isFinite(step))
        return p_value
    const clean = p_x => parseFloat(p_x.toPrecision(15))
    const sign = p_value < 0 ? -1 : 1
    let count = sign * Math.floor(clean(Math.abs(p_value) / step) + 0.5)
    const multiple = p_count => p_count === 0 ? sign * 0 : clean(p_count * step)
    if (!p_keepInRange)
        return multiple(count)
    const low = Math.min(s.from, s.to)
    const high = Math.max(s.from, s.to)
    if (multiple(count) > high)
        --count
    else if (multiple(count) < low)
        ++count
    const v = multiple(count)
    return v >= low && v <= high ? v : s._clamped(p_value)
}

function offerFinal(s, p_value) {
    if (p_value === s.value || isNaN(p_value))
        return p_value === s.value
    const previousLastValue = s.lastValue
    s.setLastValue.call(s, s.value)
    const accepted = s.sliderExpectsValue.call(s, p_value, false, s.lastValue, true)
    if (!accepted)
        s.setLastValue.call(s, previousLastValue)
    log(s, "offer", p_value + (accepted ? " accepted" : " refused"))
    return accepted
}

// Runs p_action once the user confirmed the change of a should-alert slider (at once for
// any other), p_refused when refused or when nobody can be asked.
function confirmThen(s, p_action, p_refused) {
    if (!securityIs(s, VynUI.VynCommonConstants.VynSecurityTypeShouldAlert)) {
        p_action()
        return
    }
    const constants = VynUI.VynUIQmlConstants
    const controller = constants.windowControllerForQmlObject(s)
    const window = constants.windowForQmlObject(s)
    const component = s.uiSliderComponent
    if (!component || !controller || !window) {
        console.warn("Error: cannot display alert. Security type is set should alert and the windowController or parentWindow reference is null.")
        p_refused()
        return
    }
    const message = VynUI.QApplicationMessage
    constants.presentConfirmMessage(component.securityAlertTitle, component.securityAlertMessage,
                                    0, message.Level_Warn, message.Type_Popup, [], controller,
                                    window, function (p_response) {
                                        if (p_response === message.Response_Confirm)
                                            p_action()
                                        else
                                            p_refused()
                                    })
}

// sliderEndedSliding() once per burst of clicks and wheel steps, kEndedDelay ms after the last.
function endSlidingDebounced(s) {
    if (!s._endedTimer)
        s._endedTimer = Qt.createQmlObject("import QtQml; Timer {}", s, "VynSlider12")
    ComponentUtils.delayFunction(s._endedTimer, kEndedDelay, function () {
        s.sliderEndedSliding.call(s)
    }, true)
}

// Axis coordinate of a point of the control, and the coordinate across the axis.
function axis(s, p_x, p_y) {
    if (s.vertical)
        return s.mirror ? p_y : s.height - p_y
    return s.mirror ? s.width - p_x : p_x
}

function cross(s, p_x, p_y) {
    return s.vertical ? p_x : p_y
}

function onThumb(s, p_x, p_y) {
    const half = Math.max(s._thumbLength, s.vynMetrics.sliderTouchAreaOffset) / 2
    return Math.abs(axis(s, p_x, p_y) - s._thumbPosition) <= half
}

function press(s, p_x, p_y) {
    if (securityIs(s, VynUI.VynCommonConstants.VynSecurityTypeDisable) || !s.shouldBeginSliding.call(s))
        return false
    s._startPoint = Qt.point(axis(s, p_x, p_y), cross(s, p_x, p_y))
    s.virtualValue = s.value
    s.startValue = s.value
    s.setLastValue.call(s, s.value)
    s._lastStepTime = 0
    if (onThumb(s, p_x, p_y)) {
        s.pressed = true
        s.canStartDragging = true
        s.sliderBeganSliding.call(s)
    } else if (s.enableIncrementOutsideThumb) {
        s.incrementing = true
        s.sliderBeganSliding.call(s)
    } else {
        return false
    }
    return true
}

function move(s, p_x, p_y) {
    if (!s.live)
        return
    const a = axis(s, p_x, p_y)
    if (!s.dragging) {
        if (Math.abs(a - s._startPoint.x) <= s.vynMetrics.sliderTrackingThreshold)
            return
        if (s.canStartDragging) {
            s.dragging = true
            s._lastPoint = s._startPoint
            log(s, "drag", "began at " + s.value)
        }
        s.incrementing = false
    }
    if (s.dragging)
        dragStep(s, a, cross(s, p_x, p_y))
}

function dragStep(s, p_axis, p_cross) {
    let delta = p_axis - s._lastPoint.x
    const now = Date.now()
    if (s.enableValueLimitation && s._lastStepTime > 0) {
        const limit = s.vynMetrics.sliderMaxDistancePerSecond * (now - s._lastStepTime) / 1000
        if (Math.abs(delta) > limit)
            delta = Math.max(-limit, Math.min(limit, delta)) / 2
    }
    if (s.enableValueAttenuation) {
        const y = p_cross - s._startPoint.y
        const sigma = s.vynMetrics.sliderYAttenuationFactor
        delta *= Math.exp(-(y * y) / (2 * sigma * sigma))
    }
    let newValue = s.virtualValue + (s.reverse ? -1 : 1) * delta / s._trackLength * s.valueRange
    newValue = s._clamped(newValue)
    if (isNaN(newValue))
        return
    if (newValue !== s.virtualValue) {
        const previousLastValue = s.lastValue
        s.setLastValue.call(s, s.value)
        const isFinal = securityIs(s, VynUI.VynCommonConstants.VynSecurityTypeNone)
        if (!s.sliderExpectsValue.call(s, newValue, false, s.lastValue, isFinal))
            s.setLastValue.call(s, previousLastValue)
    }
    s.virtualValue = newValue
    if (newValue !== s.from && newValue !== s.to) {
        s._lastPoint = Qt.point(p_axis, p_cross)
        s._lastStepTime = now
    }
}

// p_click: {x, y, modifiers, inside} of the release, or null for a cancel.
function release(s, p_cancelled, p_click) {
    if (securityIs(s, VynUI.VynCommonConstants.VynSecurityTypeDisable))
        return
    if (s.isLongPressed) {
        endGesture(s, false, p_cancelled, null)
        return
    }
    if (securityIs(s, VynUI.VynCommonConstants.VynSecurityTypeShouldAlert) && !p_cancelled) {
        confirmThen(s, function () {
            endGesture(s, true, false, p_click)
        }, function () {
            endGesture(s, false, false, p_click)
        })
        return
    }
    endGesture(s, true, p_cancelled, p_click)
}

function endGesture(s, p_accepted, p_cancelled, p_click) {
    if (s.dragging) {
        if (securityIs(s, VynUI.VynCommonConstants.VynSecurityTypeShouldAlert)
                && p_accepted && !p_cancelled && s.virtualValue !== s.startValue) {
            s.setLastValue.call(s, s.startValue)
            if (!s.sliderExpectsValue.call(s, s.virtualValue, false, s.lastValue, true))
                s.setValue(s.startValue)
        }
        s.dragging = false
    } else if (s.incrementing && p_accepted && !p_cancelled && p_click && p_click.inside) {
        const thumbCentre = s.vertical ? s._itemY(s._thumbPosition) : s._itemX(s._thumbPosition)
        const clickPosition = s.vertical ? p_click.y : p_click.x
        // Before the thumb's centre on screen: left, or below on a vertical slider.
        const before = s.vertical ? clickPosition >= thumbCentre : clickPosition <= thumbCentre
        s.increment(before ? -1 : 1, p_click.modifiers)
    }
    if (!p_accepted || p_cancelled) {
        s.setValue(s.startValue, true, false)
        s.virtualValue = s.startValue
    }
    s.gestureAccepted = p_accepted && !p_cancelled
    s.pressed = false
    s.canStartDragging = false
    if (!s.incrementing && !s.isLongPressed) {
        s.sliderEndedSliding.call(s)
    } else {
        s.incrementing = false
        s.isLongPressed = false
        endSlidingDebounced(s)
    }
    log(s, "gesture", "ended " + (s.gestureAccepted ? "accepted" : "refused"))
}

function doubleClick(s, p_x, p_y) {
    if (!s.enableDoubleClicking || s.dragging || !onThumb(s, p_x, p_y)
            || securityIs(s, VynUI.VynCommonConstants.VynSecurityTypeDisable))
        return
    offerFinal(s, s.defaultValue)
}

// p_angleDelta: the wheel's vertical angle delta; a sideways turn has none and is not taken.
function wheel(s, p_angleDelta, p_modifiers) {
    const steps = p_angleDelta / 120
    if (!s.enableWheeling || steps === 0 || securityIs(s, VynUI.VynCommonConstants.VynSecurityTypeDisable)
            || !s.shouldBeginSliding.call(s))
        return false
    const now = Date.now()
    if (s.enableValueLimitation && s._wheelLastTime > 0) {
        const limit = s.vynMetrics.sliderMaxAnglePerSecond * (now - s._wheelLastTime) / 1000
        if (Math.abs(p_angleDelta / 8) > limit)
            return true
    }
    s.incrementing = true
    s.startValue = s.value
    s.sliderBeganSliding.call(s)
    s.increment(steps, p_modifiers)
    if (s.value !== s.from && s.value !== s.to)
        s._wheelLastTime = now
    s.incrementing = false
    s.gestureAccepted = true
    endSlidingDebounced(s)
    return true
}

// A key pressed on the focused slider; true when the key is the slider's (even when the step
// was refused). See VynSlider12.qml for the keys.
function keyStep(s, p_key, p_modifiers) {
    let target
    switch (p_key) {
    case Qt.Key_Right:
    case Qt.Key_Up:
        target = s.incrementedValue(1, p_modifiers)
        break
    case Qt.Key_Left:
    case Qt.Key_Down:
        target = s.incrementedValue(-1, p_modifiers)
        break
    case Qt.Key_PageUp:
    case Qt.Key_PageDown: {
        const page = s.stepSize > 0 ? Math.max(1, Math.round(s.valueRange / 10 / s.stepSize)) : 1
        target = s.incrementedValue(p_key === Qt.Key_PageUp ? page : -page, Qt.NoModifier)
        break
    }
    case Qt.Key_Home:
        target = s.from
        break
    case Qt.Key_End:
        target = s.to
        break
    default:
        return false
    }
    if (!s.enabled || s.dragging || securityIs(s, VynUI.VynCommonConstants.VynSecurityTypeDisable)
            || !(s.value === s.value) || !s.shouldBeginSliding.call(s))
        return true
    const step = function () {
        s.incrementing = true
        s.startValue = s.value
        s.sliderBeganSliding.call(s)
        offerFinal(s, s._clamped(target))
        s.incrementing = false
        s.gestureAccepted = true
        endSlidingDebounced(s)
    }
    confirmThen(s, step, function () {})
    return true
}
