pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic as Basic
import VynUI 1.2

import "../Script/ComponentUtils.js" as ComponentUtils

// The slide field: a numeric text field with an optional panning handle on its left, a unit
// label or unit chooser on its right, and optional minus and plus buttons after it.
//
// The control never commits a value itself. Every change goes through the replaceable
// function properties below (the validator functions), which a parameter-bound wrapper
// (VynUISlideField) overrides to talk to its component model:
//   shouldBeginSliding()                     may a gesture start?           default true
//   slideFieldBeganSliding()                 a gesture or a click began     default nothing
//   setLastValue(v)                          remember the value for undo    default lastValue = v
//   slideFieldExpectsValue(v, forceAbsolute, prevValue, isFinal)
//                                            offer a value, answer accepted default setValue(v), true
//   slideFieldEndedSliding()                 the gesture (or burst) ended   default nothing
// and the actions minusAction(), plusAction() and acceptAction(p_text) (by default setValue of
// the number in the full text; a wrapper replaces it to offer the entry to its model).
//
// Panning. Pressing the handle and moving more than sliderTrackingThreshold() (3) pixels
// horizontally starts a pan. The value is the pan's start value (truncated to a whole
// number) plus the acceleration of the distance travelled: four zones starting at
// slideFieldFrom(i) pixels with slideFieldRate(i) value units per pixel, the last one without
// end, rounded to a whole number. The first movement counts twice (it starts the pan and is
// the pan's first step), and distance moved while the value is pinned at `from` or `to` is not
// kept, so turning back moves the value at once. With `enableValueLimitation` a step faster
// than sliderMaxDistancePerSecond() is clamped to that speed and halved; with
// `enableValueAttenuation` a step is attenuated by exp(-y^2 / (2 sigma^2)), y the vertical
// distance from the press and sigma sliderYAttenuationFactor(), for fine control.
//
// Security. With VynSecurityTypeDisable presses, clicks and releases are ignored. With
// VynSecurityTypeShouldAlert intermediate values are offered as not final and every release
// of the handle that was not cancelled asks for a confirmation through the host's message
// service (VynUIQmlConstants.presentConfirmMessage over the control's window, with the bound
// component's alert texts), a press that did not pan included; refused, or when the user
// cannot be asked, the gesture ends unaccepted and the value goes back to `startValue`. Minus
// and plus clicks are not confirmed: a click is ignored only when disabled, when
// shouldBeginSliding() refuses or during a long press, and its value is offered as final
// through slideFieldExpectsValue, where the host decides.
//
// Ending. A pan ends with slideFieldEndedSliding() at once. Clicks on minus and plus (and
// long presses) end through a 600 ms debounce: a burst of clicks makes one end call, 600 ms
// after the last click, so the host records a single undo step.
//
// Keyboard. The field takes focus with Tab, for typing (its frame shows the focus). Up and
// Down step like plus and minus (whether or not those buttons are shown), Page Up and Page
// Down ten steps; each burst ends once, through the same debounce.
VynTextField {
    id: root

    // --- Values ---
    property real defaultValue: 0.0
    property real value: defaultValue
    property real displayedValue: value
    property real virtualValue: value
    property real startValue: value
    property real lastValue: value
    property real from: 0.0
    property real to: 1000.0
    property real stepSize: 1.0
    property int securityType: VynCommonConstants.VynSecurityTypeNone
    property bool enableValueAttenuation: false
    property bool enableValueLimitation: false
    property bool enableLogs: false
    property bool isLongPressed: false
    property VynUISlideFieldComponent uiSlideFieldComponent: null
    // The value's text; the field shows it unless a text-field value or "mixed" says otherwise.
    property string stringValue: isNaN(displayedValue) ? "" : String(displayedValue)
    // A vynTextFieldValue from the model, or null.
    property var textFieldValue: null
    // Whether the last gesture ended accepted (false after a refusal, a long press, a cancel).
    property bool gestureAccepted: true

    // --- Slide field state ---
    property bool canStartPanning: false
    property bool panning: false
    property bool incrementing: false
    property bool hasMinus: false
    property bool hasPlus: false
    property bool allowsPanning: false
    property bool isReverse: false
    property string title: ""
    readonly property bool hasTitle: title.length > 0
    property var unitModel: []
    property int unitIndex: 0
    property string unitText: allowsUnitChoosing ? String(unitModel[Math.max(0, unitIndex)]) : ""
    readonly property bool allowsUnitChoosing: unitModel !== null && unitModel !== undefined
                                               && unitModel.length > 1
    property bool displaysUnit: allowsUnitChoosing
    // Compressed: no title, no unit; for tight rows.
    property bool compressed: false
    // Title column width; 0 sizes it to the title.
    property real titleWidth: 0

    // --- Text field (see VynTextField) ---
    defaultText: textFieldValue && textFieldValue.text !== undefined && textFieldValue.text.length > 0
                 ? textFieldValue.text
                 : (mixed ? VynUIQmlConstants.localizedString("MULTIPLE_SHORT") : stringValue)
    // The full text of an accepted entry goes to acceptAction as it is.
    // (Set imperatively: a binding named on... would read as a signal handler.)
    function _acceptEntry(p_fullText, p_byKey) {
        root.acceptAction.call(root, p_fullText)
    }
    Component.onCompleted: {
        onAcceptedCallback = _acceptEntry
        _makeParts()
    }

    // Parts made on first need and kept: the title, the panning handle, the unit button (its
    // menu on first opening) and each step button. A field that never shows them never pays
    // for them.
    property Item _titleItem: null
    property Item _panHandleItem: null
    property Item _unitItem: null
    property Item _minusItem: null
    property Item _plusItem: null
    function _makeParts() {
        if (!_titleItem && hasTitle && !compressed)
            _titleItem = titleComponent.createObject(root)
        if (!_panHandleItem && allowsPanning)
            _panHandleItem = panHandleComponent.createObject(root)
        if (!_unitItem && _showsUnit)
            _unitItem = unitButtonComponent.createObject(root)
        if (!_minusItem && hasMinus)
            _minusItem = minusComponent.createObject(root)
        if (!_plusItem && hasPlus)
            _plusItem = plusComponent.createObject(root)
    }
    onHasTitleChanged: _makeParts()
    onCompressedChanged: _makeParts()
    onAllowsPanningChanged: _makeParts()
    on_ShowsUnitChanged: _makeParts()
    onHasMinusChanged: _makeParts()
    onHasPlusChanged: _makeParts()

    signal minusClicked()
    signal plusClicked()
    signal panningClicked()
    signal unitClicked(int p_index)
    signal longPressed(var p_mouse)

    // --- Validator functions ---
    property var shouldBeginSliding: function () {
        return true
    }
    property var slideFieldBeganSliding: function () {}
    property var setLastValue: function (p_value) {
        root.lastValue = p_value
    }
    property var slideFieldExpectsValue: function (p_newValue, p_forceAbsolute, p_prevValue, p_isFinal) {
        root.setValue(p_newValue)
        return true
    }
    property var slideFieldEndedSliding: function () {}

    // --- Actions ---
    property var minusAction: function () {
        root._offerStep(root.isReverse ? root.stepSize : -root.stepSize)
    }
    property var plusAction: function () {
        root._offerStep(root.isReverse ? -root.stepSize : root.stepSize)
    }
    // Sets the value read from the text; a text without a number leaves it alone.
    property var acceptAction: function (p_text) {
        const typed = parseFloat(String(p_text).trim())
        if (!isNaN(typed))
            root.setValue(typed)
    }

    readonly property int _slideFieldEndedTimerDelay: 600

    function setValue(p_value, p_truncate = true) {
        if (isNaN(p_value)) {
            console.warn("VynSlideField11: refused a value that is not a number")
            return
        }
        const v = p_truncate ? _clamped(p_value) : p_value
        value = v
        if (!panning)
            virtualValue = v
    }

    // The value increase of the acceleration zones for a pan distance (signed, rounded).
    function valueIncreaseForDistance(p_distance) {
        const distance = Math.abs(p_distance)
        const zones = VynUIQmlConstants.slideFieldZoneCount()
        let sum = 0
        for (let i = 0; i < zones; ++i) {
            const start = VynUIQmlConstants.slideFieldFrom(i)
            if (distance <= start)
                break
            const end = i + 1 < zones ? VynUIQmlConstants.slideFieldFrom(i + 1) : Infinity
            sum += (Math.min(distance, end) - start) * VynUIQmlConstants.slideFieldRate(i)
        }
        let signed = p_distance < 0 ? -sum : sum
        if (isReverse)
            signed = -signed
        return Math.floor(signed + 0.5)
    }

    function _clamped(p_value) {
        return Math.max(from, Math.min(to, p_value))
    }

    function _log(p_event, p_message) {
        if (enableLogs)
            console.log("VynSlideField11", p_event, p_message)
    }

    // Offers a final value outside a pan (a minus or plus step), restoring lastValue when it
    // is refused.
    function _offerFinal(p_value, p_forceAbsolute) {
        if (p_value === value || isNaN(p_value))
            return p_value === value
        const previousLastValue = lastValue
        setLastValue.call(root, value)
        const accepted = slideFieldExpectsValue.call(root, p_value, p_forceAbsolute, lastValue, true)
        if (!accepted)
            setLastValue.call(root, previousLastValue)
        _log("offer", p_value + (accepted ? " accepted" : " refused"))
        return accepted
    }

    function _offerStep(p_delta) {
        _offerFinal(_clamped(value + p_delta), false)
    }

    // Runs p_action at once, or after the user confirmed when the security type asks for it;
    // p_refused runs when the user refuses or cannot be asked.
    function _confirmThen(p_action, p_refused) {
        if (securityType !== VynCommonConstants.VynSecurityTypeShouldAlert) {
            p_action()
            return
        }
        const controller = VynUIQmlConstants.windowControllerForQmlObject(root)
        const window = VynUIQmlConstants.windowForQmlObject(root)
        if (!uiSlideFieldComponent || !controller || !window) {
            console.warn("Error: cannot display alert. Security type is set should alert and the windowController or parentWindow reference is null.")
            p_refused()
            return
        }
        VynUIQmlConstants.presentConfirmMessage(uiSlideFieldComponent.securityAlertTitle,
                                                uiSlideFieldComponent.securityAlertMessage, 0,
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
        ComponentUtils.delayFunction(endedTimer, _slideFieldEndedTimerDelay, function () {
            root.slideFieldEndedSliding.call(root)
        }, true)
    }

    // --- Panning ---
    property point _panStartPoint: Qt.point(0, 0)
    property point _panLastPoint: Qt.point(0, 0)
    property real _panDistance: 0
    property int _panStartValue: 0
    property real _panLastStepTime: 0

    function _panPress(p_x, p_y) {
        // A value not known yet (NaN) has no start to pan from.
        if (securityType === VynCommonConstants.VynSecurityTypeDisable || isNaN(value)
                || !shouldBeginSliding.call(root))
            return false
        _panStartPoint = Qt.point(p_x, p_y)
        startValue = value
        setLastValue.call(root, value)
        canStartPanning = true
        return true
    }

    function _panMove(p_x, p_y) {
        if (!panning) {
            if (!canStartPanning
                    || Math.abs(p_x - _panStartPoint.x) <= VynUIQmlConstants.sliderTrackingThreshold())
                return
            panning = true
            _panLastPoint = _panStartPoint
            _panStartValue = Math.trunc(value)
            _panDistance = p_x - _panStartPoint.x
            _panLastStepTime = 0
            virtualValue = value
            slideFieldBeganSliding.call(root)
            _log("pan", "began at " + value)
        }
        _panStep(p_x, p_y)
    }

    function _panStep(p_x, p_y) {
        let delta = p_x - _panLastPoint.x
        const now = Date.now()
        if (enableValueLimitation && _panLastStepTime > 0) {
            const limit = VynUIQmlConstants.sliderMaxDistancePerSecond() * (now - _panLastStepTime) / 1000
            if (Math.abs(delta) > limit)
                delta = Math.max(-limit, Math.min(limit, delta)) / 2
        }
        if (enableValueAttenuation) {
            const y = p_y - _panStartPoint.y
            const sigma = VynUIQmlConstants.sliderYAttenuationFactor()
            delta *= Math.exp(-(y * y) / (2 * sigma * sigma))
        }
        let newValue = _panStartValue + valueIncreaseForDistance(_panDistance + delta)
        if (newValue !== virtualValue) {
            newValue = _clamped(newValue)
            if (newValue !== virtualValue) {
                const previousLastValue = lastValue
                setLastValue.call(root, virtualValue)
                const isFinal = securityType === VynCommonConstants.VynSecurityTypeNone
                if (!slideFieldExpectsValue.call(root, newValue, false, lastValue, isFinal))
                    setLastValue.call(root, previousLastValue)
            }
        }
        virtualValue = newValue
        if (newValue !== from && newValue !== to) {
            _panLastPoint = Qt.point(p_x, p_y)
            _panLastStepTime = now
            _panDistance += delta
        }
    }

    function _release(p_cancelled) {
        if (securityType === VynCommonConstants.VynSecurityTypeDisable)
            return
        if (isLongPressed) {
            _endGesture(false, p_cancelled)
            return
        }
        if (securityType === VynCommonConstants.VynSecurityTypeShouldAlert && !p_cancelled) {
            _confirmThen(function () {
                root._endGesture(true, false)
            }, function () {
                root._endGesture(false, false)
            })
            return
        }
        _endGesture(true, p_cancelled)
    }

    function _endGesture(p_accepted, p_cancelled) {
        if (panning) {
            if (securityType === VynCommonConstants.VynSecurityTypeShouldAlert && p_accepted
                    && !p_cancelled && virtualValue !== startValue) {
                setLastValue.call(root, startValue)
                if (!slideFieldExpectsValue.call(root, virtualValue, false, lastValue, true))
                    setValue(startValue)
            }
            panning = false
        }
        if (!p_accepted || p_cancelled)
            setValue(startValue)
        gestureAccepted = p_accepted && !p_cancelled
        canStartPanning = false
        if (!incrementing && !isLongPressed) {
            slideFieldEndedSliding.call(root)
        } else {
            incrementing = false
            isLongPressed = false
            _endSlidingDebounced()
        }
        _log("pan", "ended " + (gestureAccepted ? "accepted" : "refused"))
    }

    // --- Minus and plus ---
    function _click(p_plus, p_button) {
        if (securityType === VynCommonConstants.VynSecurityTypeDisable || isLongPressed
                || !shouldBeginSliding.call(root))
            return
        incrementing = true
        focus = false
        p_button.forceActiveFocus()
        startValue = value
        slideFieldBeganSliding.call(root)
        if (p_plus)
            plusClicked()
        else
            minusClicked()
        incrementing = false
        gestureAccepted = true
        _endSlidingDebounced()
    }

    onMinusClicked: minusAction.call(root)
    onPlusClicked: plusAction.call(root)

    // --- Keyboard ---
    // Up and Down are the plus and minus steps, Page Up and Page Down ten steps at once; the
    // field keeps the focus and shows the stepped value (a half-typed entry is dropped).
    Keys.onPressed: function (event) {
        const key = event.key
        if (key !== Qt.Key_Up && key !== Qt.Key_Down && key !== Qt.Key_PageUp && key !== Qt.Key_PageDown)
            return
        event.accepted = true
        root._keyStep(key === Qt.Key_Up || key === Qt.Key_PageUp,
                      key === Qt.Key_PageUp || key === Qt.Key_PageDown)
    }
    function _keyStep(p_up, p_page) {
        if (securityType === VynCommonConstants.VynSecurityTypeDisable || isLongPressed || panning
                || !(value === value) || !shouldBeginSliding.call(root))
            return
        incrementing = true
        startValue = value
        slideFieldBeganSliding.call(root)
        if (p_page)
            _offerStep((p_up !== isReverse ? 10 : -10) * stepSize)
        else if (p_up)
            plusClicked()
        else
            minusClicked()
        incrementing = false
        gestureAccepted = true
        _endSlidingDebounced()
        fullText = Qt.binding(() => root.defaultText)
        if (editing) {
            text = fullText
            selectAll()
        }
    }

    // Assistive tools read the field's name, its value and unit.
    property string accessibleName: title
    Accessible.name: accessibleName
    Accessible.description: mixed ? qsTr("Multiple values") : (unitText.length > 0 ? fullText + " " + unitText : fullText)

    // --- Geometry ---
    readonly property real _fieldHeight: vynMetrics.textFieldHeight
    readonly property real _border: Math.max(1, vynMetrics.textFieldBorder)
    readonly property real _titleRoom: hasTitle && !compressed
                                       ? (titleWidth > 0 ? titleWidth
                                                         : Math.ceil(_titleItem ? _titleItem.implicitWidth : 0))
                                         + vynMetrics.textFieldLabelTextSpacing
                                       : 0
    readonly property real _handleSize: allowsPanning
                                        ? Math.max(vynMetrics.textFieldPanningIconHeightMin,
                                                   Math.round(height * vynMetrics.textFieldPanningIconHeightRatio))
                                        : 0
    readonly property real _handleRoom: allowsPanning
                                        ? vynMetrics.textFieldPanningIconInsetsL
                                          + _handleSize
                                          + vynMetrics.textFieldPanningIconTextSpacing
                                        : 0
    readonly property bool _showsUnit: (displaysUnit || unitText.length > 0) && !compressed
                                       && unitText.length > 0
    readonly property real _unitRoom: _showsUnit
                                      ? (_unitItem ? _unitItem.width : 0) + vynMetrics.textFieldUnitButtonTextSpacing
                                        + vynMetrics.textFieldUnitButtonInsetsTBL
                                      : 0
    readonly property real _minusWidth: _minusItem ? _minusItem.width : 0
    readonly property real _plusWidth: _plusItem ? _plusItem.width : 0
    readonly property real _buttonsRoom: (hasMinus ? _minusWidth : 0) + (hasPlus ? _plusWidth : 0)

    readonly property real _buttonsGap: hasMinus || hasPlus
                                        ? vynMetrics.marginSpace : 0

    implicitHeight: _fieldHeight
    implicitWidth: autoResize
                   ? leftPadding + rightPadding + Math.ceil(root.advanceWidth(root.editing ? root.text : root.fullText))
                   : _titleRoom + _buttonsRoom + _buttonsGap + 4 * _fieldHeight + _handleRoom + _unitRoom
    leftInset: _titleRoom
    rightInset: _buttonsRoom + _buttonsGap
    textInsetLeft: allowsPanning ? _handleRoom - vynMetrics.textFieldTextInsetsH : 0
    textInsetRight: _unitRoom

    maximumLength: 100
    validator: DoubleValidator {
        locale: "en_EN"
    }
    horizontalAlignment: TextInput.AlignRight

    Timer {
        id: endedTimer
    }

    // --- Title ---
    Component {
        id: titleComponent
        VynLabel {
            objectName: "titleLabel"
            visible: root.hasTitle && !root.compressed
            x: 0
            width: root.titleWidth > 0 ? root.titleWidth : implicitWidth
            height: root.height
            text: root.title
            vynStyle: root.vynStyle
            vynControlSize: root.vynControlSize
            vynPixelRatio: root.vynPixelRatio
            vynPixelRatioFont: root.vynPixelRatioFont
            level: 1
        }
    }

    // --- Panning handle ---
    Component {
        id: panHandleComponent
        Item {
            id: panHandle
            objectName: "panningHandle"
            visible: root.allowsPanning
            x: root.leftInset + root.vynMetrics.textFieldPanningIconInsetsL
            height: root._handleSize
            width: height
            y: Math.round((root.height - height) / 2)

            // The catalogue's pan handle (arrows left and right: drag sideways); brighter while
            // hovered or panning.
            Image {
                anchors.fill: parent
                source: VynImages.url("panHandle", root.vynStyle)
                sourceSize.width: width
                sourceSize.height: height
                fillMode: Image.PreserveAspectFit
                smooth: true
                opacity: root.panning || handleArea.containsMouse ? 1.0 : root.vynMetrics.offlineAlpha
            }

            MouseArea {
                id: handleArea
                objectName: "panningArea"
                anchors.fill: parent
                anchors.margins: -Math.round(root.height * 0.1)
                hoverEnabled: true
                preventStealing: true
                cursorShape: Qt.SizeHorCursor
                acceptedButtons: Qt.LeftButton
                property bool gestureOpen: false
                // Whether this press panned: the pan has ended by the time `clicked` arrives.
                property bool panned: false
                onPressed: function (mouse) {
                    const p = mapToItem(root, mouse.x, mouse.y)
                    panned = false
                    gestureOpen = root._panPress(p.x, p.y)
                }
                onPositionChanged: function (mouse) {
                    if (!gestureOpen)
                        return
                    const p = mapToItem(root, mouse.x, mouse.y)
                    root._panMove(p.x, p.y)
                    panned = panned || root.panning
                }
                onReleased: function (mouse) {
                    if (!gestureOpen)
                        return
                    gestureOpen = false
                    root._release(false)
                }
                onCanceled: {
                    if (!gestureOpen)
                        return
                    gestureOpen = false
                    root._release(true)
                }
                // A press released on the handle without panning.
                onClicked: function (mouse) {
                    if (!panned)
                        root.panningClicked()
                }
                // Reported even when the press itself was ignored (a disabled field); only an open
                // gesture stays long-pressed until its release, which then ends it unaccepted.
                onPressAndHold: function (mouse) {
                    if (root.panning)
                        return
                    root.isLongPressed = true
                    root.longPressed(mouse)
                    if (!gestureOpen)
                        root.isLongPressed = false
                }
            }
        }

    }

    // --- Unit label or chooser ---
    Component {
        id: unitButtonComponent
        Basic.AbstractButton {
            id: unitButton
            objectName: "unitButton"
            visible: root._showsUnit
            enabled: root.allowsUnitChoosing && root.enabled
            focusPolicy: Qt.NoFocus
            readonly property real insetTBL: root.vynMetrics.textFieldUnitButtonInsetsTBL
            x: root.width - root.rightInset - width - insetTBL
            y: insetTBL + root._border
            height: root.height - 2 * (insetTBL + root._border)
            readonly property real chevronSize: root.allowsUnitChoosing
                                                ? Math.round(root.vynMetrics.fontSize * 0.8) : 0
            width: Math.ceil(unitMetrics.advanceWidth) + chevronSize
                   + (root.allowsUnitChoosing ? root.vynMetrics.textFieldUnitButtonTextSpacing : 0)
                   + 2 * root.vynMetrics.textFieldUnitButtonTitleInsetsH
            TextMetrics {
                id: unitMetrics
                font.pixelSize: root.vynMetrics.fontSize
                font.family: VynFonts.vynFamilyRegular
                text: root.unitText
            }
            background: Rectangle {
                visible: root.allowsUnitChoosing
                radius: root.vynMetrics.popupButtonCornerRadius
                color: unitButton.pressed || (unitButton.menu !== null && unitButton.menu.visible)
                       ? root.vynMetrics.controlColorOn
                       : unitButton.hovered ? root.vynMetrics.controlTouchOverColor : "transparent"
            }
            contentItem: Row {
                leftPadding: root.vynMetrics.textFieldUnitButtonTitleInsetsH
                spacing: root.vynMetrics.textFieldUnitButtonTextSpacing
                VynLabel {
                    height: unitButton.height
                    text: root.unitText
                    vynStyle: root.vynStyle
                    vynControlSize: root.vynControlSize
                    vynPixelRatioFont: root.vynPixelRatioFont
                    level: 1
                }
                Image {
                    visible: root.allowsUnitChoosing
                    anchors.verticalCenter: parent.verticalCenter
                    width: unitButton.chevronSize
                    height: width
                    sourceSize.width: width
                    sourceSize.height: height
                    source: root.allowsUnitChoosing ? VynImages.url("chevronUpDown", root.vynStyle) : ""
                    opacity: root.vynMetrics.offlineAlpha
                }
            }
            property Basic.Menu menu: null
            onClicked: {
                if (!menu)
                    menu = unitMenuComponent.createObject(unitButton)
                menu.popup(unitButton, 0, unitButton.height)
            }

            Component {
                id: unitMenuComponent
                Basic.Menu {
                    Repeater {
                        model: root.allowsUnitChoosing ? root.unitModel : []
                        Basic.MenuItem {
                            required property var modelData
                            required property int index
                            text: String(modelData)
                            checkable: true
                            checked: index === root.unitIndex
                            onTriggered: root.unitClicked(index)
                        }
                    }
                }
            }
        }
    }

    // --- Minus and plus buttons ---
    component StepButton: Basic.AbstractButton {
        id: stepButton
        property string glyph
        property bool leftRounded: true
        property bool rightRounded: true
        readonly property int glyphWidth: glyphMetrics.font.pixelSize > 0
                                          ? Math.round(glyphMetrics.advanceWidth(glyph)) : 0
        // Minus: 1.9 x its glyph's width, rounded, raised by one to the glyph's parity; plus: the
        // minus width raised likewise to the parity of its own glyph.
        readonly property int minusWidth: {
            const g = glyphMetrics.font.pixelSize > 0 ? Math.round(glyphMetrics.advanceWidth("\u2013")) : 0
            const w = Math.round(1.9 * g)
            return (w % 2) === (g % 2) ? w : w + 1
        }
        width: (minusWidth % 2) === (glyphWidth % 2) ? minusWidth : minusWidth + 1
        readonly property real radius: root.vynMetrics.bezelButtonCornerRadius
        readonly property real borderWidth: Math.max(1, root.vynMetrics.bezelButtonBorder)
        height: root.height
        focusPolicy: Qt.TabFocus
        FontMetrics {
            id: glyphMetrics
            font.pixelSize: root.vynMetrics.fontSize
            font.family: VynFonts.vynFamilyRegular
        }
        // A rounded face clipped so that only the outer corners stay round; a separator line
        // closes the inner side.
        background: Item {
            clip: true
            Rectangle {
                x: stepButton.leftRounded ? 0 : -stepButton.radius - stepButton.borderWidth
                width: parent.width + (stepButton.leftRounded ? 0 : stepButton.radius + stepButton.borderWidth)
                       + (stepButton.rightRounded ? 0 : stepButton.radius + stepButton.borderWidth)
                height: parent.height
                radius: stepButton.radius
                border.width: stepButton.borderWidth
                border.color: stepButton.down ? root.vynMetrics.controlBorderColorOn : root.vynMetrics.controlBorderColor
                gradient: stepButton.down ? VynGradients.onVertical
                                          : root.vynMetrics.style === VynColorUtils.VynStyleLight
                                            ? VynGradients.offLightVertical : VynGradients.offDarkVertical
            }
            Rectangle {
                visible: !stepButton.rightRounded
                x: parent.width - width
                width: stepButton.borderWidth
                height: parent.height
                color: root.vynMetrics.controlBorderColor
            }
        }
        contentItem: Text {
            text: stepButton.glyph
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: root.vynMetrics.fontSize
            font.family: VynFonts.vynFamilyRegular
            color: stepButton.down ? root.vynMetrics.controlTextColorOn : root.vynMetrics.controlTextColor
        }
        onPressAndHold: {
            if (root.panning)
                return
            root.isLongPressed = true
            root.longPressed(null)
            root.isLongPressed = false
        }
    }

    Component {
        id: minusComponent
        StepButton {
            id: minusButton
            objectName: "minusButton"
            glyph: "\u2013"
            visible: root.hasMinus
            x: root.width - root._buttonsRoom
            leftRounded: true
            rightRounded: !root.hasPlus
            onClicked: root._click(false, minusButton)
        }
    }
    Component {
        id: plusComponent
        StepButton {
            id: plusButton
            objectName: "plusButton"
            glyph: "+"
            visible: root.hasPlus
            x: root.width - width
            leftRounded: !root.hasMinus
            rightRounded: true
            onClicked: root._click(true, plusButton)
        }
    }
}
