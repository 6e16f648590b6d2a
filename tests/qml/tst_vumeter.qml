import QtQuick
import QtTest
import VynUI 1.2

// Level meters as a user meets them: real clicks, right clicks, long presses and keys, with
// the shared clock driven tick by tick (the manager's own timer is paused for the test).
TestCase {
    id: testCase
    name: "VUMeter"
    width: 400
    height: 300
    visible: true
    when: windowShown

    Component {
        id: meterComponent
        VynVUMeter11 {
            width: 12
            height: 160
            displaysHoldValues: true
        }
    }

    Component {
        id: olderMeterComponent
        VynVUMeter {
            width: 10
            height: 120
        }
    }

    Component {
        id: scaleComponent
        VynVUTickMarks {}
    }

    SignalSpy {
        id: spy
    }

    function initTestCase() {
        VynVUMeterManager.pause(testCase)
    }

    function cleanupTestCase() {
        VynVUMeterManager.restart(testCase)
    }

    function makeMeter(p_x) {
        const meter = createTemporaryObject(meterComponent, testCase, { "x": p_x, "y": 20 })
        verify(meter)
        return meter
    }

    // Pushes a series of values into each meter, with one tick after the first values (which
    // take both holds after a meter's creation), so that the holds then widen.
    function feed(p_meters, p_series) {
        for (let m = 0; m < p_meters.length; ++m)
            p_meters[m].currentValue = p_series[m][0]
        VynVUMeterManager.animateVUMeters()
        for (let m = 0; m < p_meters.length; ++m) {
            for (let i = 1; i < p_series[m].length; ++i)
                p_meters[m].currentValue = p_series[m][i]
        }
    }

    function test_clickResetsAllMeters_data() {
        return [
            { tag: "click on the first", target: 0 },
            { tag: "click on the second", target: 1 },
        ]
    }

    function test_clickResetsAllMeters(data) {
        const meters = [makeMeter(20), makeMeter(60)]
        feed(meters, [[-30, -3, -50, -20], [-40, -10, -45, -42]])
        compare(meters[0].maxHoldValue, -3)
        compare(meters[1].minHoldValue, -45)

        spy.clear()
        spy.target = meters[data.target]
        spy.signalName = "clicked"
        mouseClick(meters[data.target])
        compare(spy.count, 1)
        // Animated meters restart their holds from their current value.
        compare(meters[0].minHoldValue, -20)
        compare(meters[0].maxHoldValue, -20)
        compare(meters[1].minHoldValue, -42)
        compare(meters[1].maxHoldValue, -42)
    }

    function test_pressesByPermission_data() {
        return [
            { tag: "right click refused", allowRight: false, allowLong: false, button: Qt.RightButton,
              hold: 0, clicked: 0, rightClicked: 0, longPressed: 0 },
            { tag: "right click allowed", allowRight: true, allowLong: false, button: Qt.RightButton,
              hold: 0, clicked: 0, rightClicked: 1, longPressed: 0 },
            { tag: "long press refused is a click", allowRight: false, allowLong: false,
              button: Qt.LeftButton, hold: 900, clicked: 1, rightClicked: 0, longPressed: 0 },
            { tag: "long press allowed is no click", allowRight: false, allowLong: true,
              button: Qt.LeftButton, hold: 900, clicked: 0, rightClicked: 0, longPressed: 1 },
            { tag: "short press with long press allowed", allowRight: false, allowLong: true,
              button: Qt.LeftButton, hold: 0, clicked: 1, rightClicked: 0, longPressed: 0 },
        ]
    }

    function test_pressesByPermission(data) {
        const meter = makeMeter(20)
        meter.allowsRightClick = data.allowRight
        meter.allowsLongPress = data.allowLong
        const counts = { "clicked": 0, "rightClicked": 0, "longPressed": 0 }
        let where = null
        meter.clicked.connect(function () { ++counts.clicked })
        meter.rightClicked.connect(function (mouse) { ++counts.rightClicked; where = mouse })
        meter.longPressed.connect(function (mouse) { ++counts.longPressed; where = mouse })

        mousePress(meter, 6, 50, data.button)
        if (data.hold > 0)
            wait(data.hold)
        mouseRelease(meter, 6, 50, data.button)
        compare(counts.clicked, data.clicked)
        compare(counts.rightClicked, data.rightClicked)
        compare(counts.longPressed, data.longPressed)
        if (data.rightClicked + data.longPressed > 0) {
            compare(where.x, 6)
            compare(where.y, 50)
        }
    }

    function test_keyboard_data() {
        return [
            { tag: "space", key: Qt.Key_Space, clicks: 1 },
            { tag: "return", key: Qt.Key_Return, clicks: 1 },
            { tag: "other key", key: Qt.Key_A, clicks: 0 },
        ]
    }

    function test_keyboard(data) {
        const meter = makeMeter(20)
        spy.clear()
        spy.target = meter
        spy.signalName = "clicked"
        meter.forceActiveFocus()
        verify(meter.activeFocus)
        keyClick(data.key)
        compare(spy.count, data.clicks)
        compare(meter.Accessible.role, Accessible.Button)
        verify(meter.Accessible.name.length > 0)
    }

    function test_disabledMeterIgnoresClicks() {
        const meter = makeMeter(20)
        meter.enabled = false
        spy.clear()
        spy.target = meter
        spy.signalName = "clicked"
        mouseClick(meter)
        compare(spy.count, 0)
    }

    function test_animatedFollowsVisibility() {
        const meter = makeMeter(20)
        verify(meter.animated)
        meter.visible = false
        verify(!meter.animated)
        meter.visible = true
        verify(meter.animated)
        meter.animated = false
        meter.visible = false
        meter.visible = true
        verify(!meter.animated)
    }

    function test_olderMeterFollowsTheClock() {
        const meter = createTemporaryObject(olderMeterComponent, testCase, { "x": 100 })
        meter.currentValue = 0
        VynVUMeterManager.animateVUMeters()
        compare(meter.displayedLevel, 1)
        meter.currentValue = -60
        let ticks = 0
        while (meter.displayedLevel > 0 && ticks < 20) {
            VynVUMeterManager.animateVUMeters()
            ++ticks
        }
        compare(ticks, 9)
    }

    function test_scale_data() {
        return [
            // 100 px over 60 dB: 25 dB labelled, 5 dB short ticks.
            { tag: "100 px", length: 100, primary: 25, secondary: 5, labels: ["0", "-25", "-50"] },
            // 1000 px: 2.5 dB labelled, 0.5 dB short ticks.
            { tag: "1000 px", length: 1000, primary: 2.5, secondary: 0.5, labels: ["0", "-2.5", "-5"] },
        ]
    }

    function test_scale(data) {
        const scale = createTemporaryObject(scaleComponent, testCase,
                                            { "cellsLength": data.length, "height": data.length })
        compare(scale.config.primaryInterval, data.primary)
        compare(scale.config.secondaryInterval, data.secondary)
        compare(scale.primaryCount, Math.floor(60 / data.primary) + 1)
        compare(scale.secondaryCount, Math.floor(60 / data.secondary) + 1)
        for (let k = 0; k < data.labels.length; ++k)
            compare(scale.labelText(k), data.labels[k])
        scale.isReversed = true
        compare(scale.labelText(0), "-60")
        // Ticks are spread over the cells' length.
        compare(scale.tickPosition(scale.secondaryCount - 1, 0) - scale.tickPosition(0, 0),
                data.length)
    }
}
