import QtQuick
import QtTest
import VynUI 1.2

// The parameter-bound buttons, LEDs, labels and combos under real pointer and key events:
// what reaches their component (and in which order), the confirmation asked before acting,
// the input a disabled component refuses, long presses, keyboard operation and mixed states.
TestCase {
    id: testCase
    name: "DiscreteControls"
    width: 800
    height: 500
    visible: true
    when: windowShown

    Component {
        id: buttonModel
        VynUIButtonComponent {}
    }
    Component {
        id: comboModel
        VynUIComboComponent {}
    }
    Component {
        id: ledModel
        VynUILedComponent {}
    }
    Component {
        id: labelModel
        VynUILabelComponent {}
    }
    Component {
        id: handyModel
        VynUIHandyButtonComponent {}
    }
    Component {
        id: commonButton
        VynUICommonButton { x: 40; y: 40 }
    }
    Component {
        id: bezelButton
        VynUIBezelButton { x: 40; y: 40 }
    }
    Component {
        id: inlineButton
        VynUIInlineButton { x: 40; y: 40 }
    }
    Component {
        id: templateButton
        VynUITemplateButton { x: 40; y: 40 }
    }
    Component {
        id: comboBox
        VynUIComboBox { x: 40; y: 40; width: 160 }
    }
    Component {
        id: popoverCombo
        VynUIPopoverCombo { x: 40; y: 40; width: 160 }
    }
    Component {
        id: uiLed
        VynUILed { x: 40; y: 40 }
    }
    Component {
        id: uiLabel
        VynUILabel { x: 40; y: 40; width: 120 }
    }
    Component {
        id: handyButton
        VynUIHandyButton { x: 40; y: 40 }
    }
    Component {
        id: spinBox
        VynSpinBox { x: 40; y: 40; width: 120; from: 0; to: 100; value: 50; pageStep: 10 }
    }
    Component {
        id: genericButtons
        Row {
            x: 40
            y: 120
            property alias first: _first
            property alias second: _second
            VynBezelButton { id: _first; text: "A" }
            VynCheckBox { id: _second; text: "B" }
        }
    }

    readonly property var buttonKinds: [
        { name: "common", component: commonButton },
        { name: "bezel", component: bezelButton },
        { name: "inline", component: inlineButton },
        { name: "template", component: templateButton }
    ]
    readonly property var comboKinds: [
        { name: "combo box", component: comboBox },
        { name: "popover combo", component: popoverCombo }
    ]

    // The signals a host sees on a component, in order: names, with the index for itemClicked.
    function record(p_model) {
        const log = []
        if (p_model.clicked)
            p_model.clicked.connect(function () { log.push("clicked") })
        if (p_model.itemClicked)
            p_model.itemClicked.connect(function (p_index) { log.push("itemClicked " + p_index) })
        p_model.longPressed.connect(function () { log.push("longPressed") })
        return log
    }

    function makeButton(p_kind, p_isOn) {
        const model = createTemporaryObject(buttonModel, testCase, { "text": "Mute" })
        model.isOn = p_isOn === undefined ? 0 : p_isOn
        const button = createTemporaryObject(p_kind.component, testCase, { "uiButtonComponent": model })
        verify(button)
        waitForRendering(button)
        verify(testHost.attachWindowController(button))
        return { "model": model, "control": button, "log": record(model) }
    }

    function makeCombo(p_kind, p_selected) {
        const model = createTemporaryObject(comboModel, testCase)
        model.itemTexts = ["Analog", "AES", "Network", "Noise"]
        model.selectedIndexes = p_selected === undefined ? [1] : p_selected
        const combo = createTemporaryObject(p_kind.component, testCase, { "uiComboComponent": model })
        verify(combo)
        waitForRendering(combo)
        verify(testHost.attachWindowController(combo))
        return { "model": model, "control": combo, "log": record(model) }
    }

    function ringShown(p_control) {
        const ring = findChild(p_control, "focusRing")
        return ring !== null && ring.visible
    }

    function init() {
        testHost.installAnsweringPresenter(QApplicationMessage.Response_Confirm)
    }
    function cleanup() {
        testHost.removePresenter()
        testHost.detachWindowController()
    }

    // --- Acting: the confirmation comes first, and a refusal leaves the component alone ---

    function test_clickAsksFirst_data() {
        const none = VynCommonConstants.VynSecurityTypeNone
        const alert = VynCommonConstants.VynSecurityTypeShouldAlert
        const confirm = QApplicationMessage.Response_Confirm
        const cancel = QApplicationMessage.Response_Cancel
        const rows = []
        for (const kind of buttonKinds) {
            rows.push({ tag: kind.name + ", free", kind: kind, security: none, response: cancel, log: ["clicked"], asked: 0 })
            rows.push({ tag: kind.name + ", confirmed", kind: kind, security: alert, response: confirm, log: ["clicked"], asked: 1 })
            rows.push({ tag: kind.name + ", refused", kind: kind, security: alert, response: cancel, log: [], asked: 1 })
        }
        return rows
    }
    function test_clickAsksFirst(data) {
        const b = makeButton(data.kind, 0)
        b.model.securityType = data.security
        testHost.installAnsweringPresenter(data.response)
        mouseClick(b.control)
        compare(b.log, data.log)
        compare(testHost.presentedCount, data.asked)
        // The button shows what the host echoes, never a state of its own.
        compare(b.control.checkState, 0)
        b.model.isOn = 1
        compare(b.control.checkState, 1)
    }

    function test_choiceAsksFirst_data() {
        const rows = []
        for (const kind of comboKinds) {
            rows.push({ tag: kind.name + ", confirmed", kind: kind, response: QApplicationMessage.Response_Confirm, log: ["itemClicked 2"] })
            rows.push({ tag: kind.name + ", refused", kind: kind, response: QApplicationMessage.Response_Cancel, log: [] })
        }
        return rows
    }
    function test_choiceAsksFirst(data) {
        const c = makeCombo(data.kind, [0])
        c.model.securityType = VynCommonConstants.VynSecurityTypeShouldAlert
        testHost.installAnsweringPresenter(data.response)
        mouseClick(c.control)
        tryVerify(() => c.control.popupVisible)
        const list = c.control.listView
        verify(list)
        waitForRendering(list)
        const item = list.itemAtIndex(2)
        verify(item)
        mouseClick(item)
        compare(c.log, data.log)
        compare(testHost.presentedCount, 1)
        tryVerify(() => !c.control.popupVisible)
        compare(c.control.selectedIndexes, [0])
    }

    // --- A disabled component takes no input at all ---

    function test_disabledIgnoresInput_data() {
        const rows = []
        for (const kind of buttonKinds) {
            rows.push({ tag: kind.name + ", flag off", kind: kind, combo: false, byFlag: true })
            rows.push({ tag: kind.name + ", security disable", kind: kind, combo: false, byFlag: false })
        }
        for (const kind of comboKinds) {
            rows.push({ tag: kind.name + ", flag off", kind: kind, combo: true, byFlag: true })
            rows.push({ tag: kind.name + ", security disable", kind: kind, combo: true, byFlag: false })
        }
        return rows
    }
    function test_disabledIgnoresInput(data) {
        const b = data.combo ? makeCombo(data.kind) : makeButton(data.kind)
        if (data.byFlag)
            b.model.enabled = false
        else
            b.model.securityType = VynCommonConstants.VynSecurityTypeDisable
        verify(!b.control.enabled)
        mouseClick(b.control)
        b.control.forceActiveFocus()
        verify(!b.control.activeFocus)
        keyClick(Qt.Key_Space)
        keyClick(Qt.Key_Down)
        mousePress(b.control)
        wait(Qt.styleHints.mousePressAndHoldInterval + 200)
        mouseRelease(b.control)
        compare(b.log, [])
        compare(testHost.presentedCount, 0)
        if (data.combo)
            verify(!b.control.popupVisible)
        // Enabled again, the same click acts.
        b.model.enabled = true
        b.model.securityType = VynCommonConstants.VynSecurityTypeNone
        verify(b.control.enabled)
    }

    // --- A long press is reported as such, never as a click or a choice ---

    function test_longPress_data() {
        const rows = []
        for (const kind of buttonKinds)
            rows.push({ tag: kind.name, kind: kind, type: "button" })
        for (const kind of comboKinds)
            rows.push({ tag: kind.name, kind: kind, type: "combo" })
        rows.push({ tag: "led", type: "led" })
        rows.push({ tag: "label", type: "label" })
        return rows
    }
    function test_longPress(data) {
        let b
        if (data.type === "button") {
            b = makeButton(data.kind)
        } else if (data.type === "combo") {
            b = makeCombo(data.kind)
        } else {
            const model = createTemporaryObject(data.type === "led" ? ledModel : labelModel, testCase)
            if (data.type === "label")
                model.text = "Preset 1"
            const control = createTemporaryObject(data.type === "led" ? uiLed : uiLabel, testCase,
                                                  data.type === "led" ? { "uiLedComponent": model }
                                                                      : { "uiLabelComponent": model })
            waitForRendering(control)
            b = { "model": model, "control": control, "log": record(model) }
        }
        mousePress(b.control)
        tryVerify(() => b.log.length > 0, 3000)
        mouseRelease(b.control)
        compare(b.log, ["longPressed"])
        compare(testHost.presentedCount, 0)
        if (data.type === "combo")
            verify(!b.control.popupVisible)
    }

    // --- Keyboard: Tab reaches the control and shows its ring; keys act as clicks ---

    function test_buttonKeys_data() {
        const rows = []
        for (const kind of buttonKinds) {
            for (const key of [{ n: "space", k: Qt.Key_Space }, { n: "return", k: Qt.Key_Return },
                               { n: "enter", k: Qt.Key_Enter }])
                rows.push({ tag: kind.name + ", " + key.n, kind: kind, key: key.k, log: ["clicked"] })
            rows.push({ tag: kind.name + ", other key", kind: kind, key: Qt.Key_A, log: [] })
        }
        return rows
    }
    function test_buttonKeys(data) {
        const b = makeButton(data.kind)
        b.control.forceActiveFocus(Qt.TabFocusReason)
        verify(b.control.activeFocus)
        verify(ringShown(b.control))
        keyClick(data.key)
        compare(b.log, data.log)
        // One click per press, reported at the release.
        if (data.log.length > 0) {
            keyPress(data.key)
            keyPress(data.key, Qt.NoModifier, -1)
            compare(b.log.length, 1)
            keyRelease(data.key)
            compare(b.log.length, 2)
        }
    }

    function test_tabMovesTheFocusRing() {
        const row = createTemporaryObject(genericButtons, testCase)
        waitForRendering(row)
        row.first.forceActiveFocus(Qt.TabFocusReason)
        verify(ringShown(row.first))
        verify(!ringShown(row.second))
        keyClick(Qt.Key_Tab)
        verify(row.second.activeFocus)
        verify(!ringShown(row.first))
        verify(ringShown(row.second))
    }

    function test_comboKeys_data() {
        const rows = []
        for (const kind of comboKinds) {
            rows.push({ tag: kind.name + ", down", kind: kind, selected: [1], keys: [Qt.Key_Down], log: ["itemClicked 2"], open: false })
            rows.push({ tag: kind.name + ", up", kind: kind, selected: [1], keys: [Qt.Key_Up], log: ["itemClicked 0"], open: false })
            rows.push({ tag: kind.name + ", up at the top", kind: kind, selected: [0], keys: [Qt.Key_Up], log: ["itemClicked 0"], open: false })
            rows.push({ tag: kind.name + ", down from a mixed selection", kind: kind, selected: [0, 2], keys: [Qt.Key_Down], log: ["itemClicked 0"], open: false })
            rows.push({ tag: kind.name + ", space opens", kind: kind, selected: [1], keys: [Qt.Key_Space], log: [], open: true })
            rows.push({ tag: kind.name + ", open, down, return", kind: kind, selected: [1], keys: [Qt.Key_Space, Qt.Key_Down, Qt.Key_Return], log: ["itemClicked 2"], open: false })
            rows.push({ tag: kind.name + ", open, end, enter", kind: kind, selected: [0], keys: [Qt.Key_Return, Qt.Key_End, Qt.Key_Enter], log: ["itemClicked 3"], open: false })
            rows.push({ tag: kind.name + ", open, escape", kind: kind, selected: [1], keys: [Qt.Key_Space, Qt.Key_Down, Qt.Key_Escape], log: [], open: false })
        }
        return rows
    }
    function test_comboKeys(data) {
        const c = makeCombo(data.kind, data.selected)
        c.control.forceActiveFocus(Qt.TabFocusReason)
        verify(ringShown(c.control))
        for (const key of data.keys) {
            keyClick(key)
            if (key === Qt.Key_Space || key === Qt.Key_Return)
                tryVerify(() => c.control.popupVisible || c.log.length > 0)
        }
        compare(c.log, data.log)
        tryCompare(c.control, "popupVisible", data.open)
    }

    function test_spinBoxKeys_data() {
        return [
            { tag: "up", key: Qt.Key_Up, start: 50, expected: 51, reported: [51] },
            { tag: "down", key: Qt.Key_Down, start: 50, expected: 49, reported: [49] },
            { tag: "page up", key: Qt.Key_PageUp, start: 50, expected: 60, reported: [60] },
            { tag: "page down", key: Qt.Key_PageDown, start: 50, expected: 40, reported: [40] },
            { tag: "page up clamps", key: Qt.Key_PageUp, start: 95, expected: 100, reported: [100] },
            { tag: "home", key: Qt.Key_Home, start: 50, expected: 0, reported: [0] },
            { tag: "end", key: Qt.Key_End, start: 50, expected: 100, reported: [100] },
            { tag: "up at the end", key: Qt.Key_Up, start: 100, expected: 100, reported: [] },
            { tag: "unknown value is not stepped", key: Qt.Key_Up, start: NaN, expected: NaN, reported: [] }
        ]
    }
    function test_spinBoxKeys(data) {
        const box = createTemporaryObject(spinBox, testCase, { "value": data.start })
        waitForRendering(box)
        const reported = []
        box.valueModified.connect(v => reported.push(v))
        box.forceActiveFocus(Qt.TabFocusReason)
        if (isNaN(data.start))
            ignoreWarning(/not a number/)
        keyClick(data.key)
        if (isNaN(data.expected)) {
            verify(isNaN(box.value))
            compare(box.displayText, "")
        } else {
            compare(box.value, data.expected)
            compare(box.displayText, String(data.expected))
        }
        compare(reported, data.reported)
    }

    function test_spinBoxSteppers_data() {
        return [
            { tag: "upper half", fraction: 0.25, expected: 51 },
            { tag: "lower half", fraction: 0.75, expected: 49 }
        ]
    }
    function test_spinBoxSteppers(data) {
        const box = createTemporaryObject(spinBox, testCase)
        waitForRendering(box)
        mouseClick(box, box.width - 4, box.height * data.fraction)
        compare(box.value, data.expected)
    }

    // --- Mixed states are shown as such, and a click on one still asks the host ---

    function test_mixedState_data() {
        const rows = []
        for (const kind of buttonKinds)
            rows.push({ tag: kind.name, kind: kind, type: "button" })
        for (const kind of comboKinds)
            rows.push({ tag: kind.name, kind: kind, type: "combo" })
        rows.push({ tag: "led", type: "led" })
        return rows
    }
    function test_mixedState(data) {
        const multiple = VynUIQmlConstants.localizedString("MULTIPLE")
        if (data.type === "button") {
            const b = makeButton(data.kind, 2)
            verify(b.control.mixed)
            verify(!b.control.checked)
            compare(b.control.Accessible.description, multiple)
            mouseClick(b.control)
            compare(b.log, ["clicked"])
            b.model.isOn = 0
            verify(!b.control.mixed)
        } else if (data.type === "combo") {
            const c = makeCombo(data.kind, [0, 2])
            verify(c.control.mixed)
            compare(c.control.displayText, multiple)
            c.model.selectedIndexes = [3]
            verify(!c.control.mixed)
            compare(c.control.displayText, "Noise")
        } else {
            const model = createTemporaryObject(ledModel, testCase, { "allowsMixed": true })
            const led = createTemporaryObject(uiLed, testCase, { "uiLedComponent": model })
            testHost.setLedState(model, VynViewUtils.VynLedStateRed, true)
            verify(led.mixed)
            compare(led.ledState, VynViewUtils.VynLedStateRed)
            compare(led.Accessible.description, multiple)
            testHost.setLedState(model, VynViewUtils.VynLedStateRed, false)
            verify(!led.mixed)
        }
    }

    // --- LED states: which are lit, and in which colour row ---

    function test_ledStates_data() {
        return [
            { tag: "gray", state: VynViewUtils.VynLedStateGray, lit: false, row: 0 },
            { tag: "none", state: VynViewUtils.VynLedStateNone, lit: false, row: 0 },
            { tag: "orange", state: VynViewUtils.VynLedStateOrange, lit: true, row: 1 },
            { tag: "red", state: VynViewUtils.VynLedStateRed, lit: true, row: 2 },
            { tag: "green", state: VynViewUtils.VynLedStateGreen, lit: true, row: 3 },
            { tag: "blue", state: VynViewUtils.VynLedStateBlue, lit: true, row: 4 },
            { tag: "protect", state: VynViewUtils.VynLedStateProtect, lit: true, row: 2 },
            { tag: "peak", state: VynViewUtils.VynLedStatePeak, lit: true, row: 2 },
            { tag: "sense", state: VynViewUtils.VynLedStateSense, lit: true, row: 3 },
            { tag: "mute", state: VynViewUtils.VynLedStateMute, lit: true, row: 4 },
            { tag: "alert status", state: VynViewUtils.VynLedStateDefaultAlertStatus, lit: true, row: 1 },
            { tag: "custom", state: VynViewUtils.VynLedStateCustom, lit: true, row: -1 }
        ]
    }
    function test_ledStates(data) {
        const model = createTemporaryObject(ledModel, testCase)
        const led = createTemporaryObject(uiLed, testCase, { "uiLedComponent": model })
        testHost.setLedState(model, data.state, false)
        compare(led.ledState, data.state)
        compare(led.lit, data.lit)
        compare(led._row, data.row)
        if (data.row > 0)
            compare(led._borderColor, led.vynMetrics.ledBorderColor(data.row))
    }

    // --- The handy button shows the visible type's buttons, each bound to its component ---

    function test_handyButton_data() {
        return [
            { tag: "mute and solo, solo clicked", type: VynUIHandyButtonComponent.MuteSolo, count: 2, click: 1, titles: ["M", "S"] },
            { tag: "mute", type: VynUIHandyButtonComponent.Mute, count: 1, click: 0, titles: ["M"] },
            { tag: "stand-by", type: VynUIHandyButtonComponent.StandBy, count: 1, click: 0, titles: ["STBY"] }
        ]
    }
    function test_handyButton(data) {
        const handy = createTemporaryObject(handyModel, testCase)
        handy.capabilities = VynUIHandyButtonComponent.MuteSolo | VynUIHandyButtonComponent.Mute
                | VynUIHandyButtonComponent.StandBy
        handy.visibleButtonType = data.type
        const logs = []
        const models = []
        for (let i = 0; i < data.count; ++i) {
            const m = createTemporaryObject(buttonModel, testCase)
            models.push(m)
            logs.push(record(m))
        }
        const control = createTemporaryObject(handyButton, testCase, { "uiHandyButtonComponent": handy })
        // Components filed after the control exists show up too.
        for (const m of models)
            handy.insertVisibleComponent(m)
        verify(testHost.attachWindowController(control))
        waitForRendering(control)
        compare(control.visibleComponents.length, data.count)
        const row = findChild(control, "buttonRow")
        const shown = []
        for (let i = 0; i < row.children.length; ++i) {
            if (row.children[i].uiButtonComponent !== undefined)
                shown.push(row.children[i])
        }
        compare(shown.map(b => b.text), data.titles)
        mouseClick(shown[data.click])
        for (let i = 0; i < data.count; ++i)
            compare(logs[i], i === data.click ? ["clicked"] : [])
        // Another visible type with no components of its own empties the row.
        handy.visibleButtonType = VynUIHandyButtonComponent.Locate
        compare(control.visibleComponents.length, 0)
    }
}
