import QtQuick
import QtTest
import VynUI 1.2

// The EQ editor graph under real pointer, wheel and key events: every gesture on a band's
// handle offers values through bandExpectsValues, and only the host's echo moves the band.
TestCase {
    id: testCase
    name: "EQGraph"
    width: 700
    height: 400
    visible: true
    when: windowShown

    Component {
        id: graphComponent
        VynEQGraphsView {
            x: 20
            y: 20
            width: 640
            height: 340
            property var offers: []
            property bool echoes: true
            bandExpectsValues: function (p_index, p_frequency, p_gain, p_q) {
                offers.push({ "index": p_index, "frequency": p_frequency, "gain": p_gain, "q": p_q })
                if (echoes) {
                    const band = eq.band(p_index)
                    band.frequency = p_frequency
                    band.gain = p_gain
                    band.q = p_q
                }
                return echoes
            }
        }
    }

    // A graph over two bells, 1 kHz and 100 Hz at 0 dB, q 1.
    function makeGraph(p_echoes) {
        const eq = testHost.makeEQ(2)
        eq.band(1).frequency = 100
        const graph = createTemporaryObject(graphComponent, testCase, { "eq": eq, "echoes": p_echoes })
        waitForRendering(graph)
        return graph
    }

    function handleCentre(p_graph, p_index) {
        for (let i = 0; i < p_graph.children.length; ++i) {
            const child = p_graph.children[i]
            if (child.band !== undefined && child.index === p_index)
                return child.mapToItem(p_graph, child.width / 2, child.height / 2)
        }
        fail("no handle " + p_index)
    }

    function test_dragMovesFrequencyAndGain() {
        const graph = makeGraph(true)
        const band = graph.eq.band(0)
        const c = handleCentre(graph, 0)
        mousePress(graph, c.x, c.y)
        for (let i = 1; i <= 4; ++i)
            mouseMove(graph, c.x + 15 * i, c.y - 10 * i, -1, Qt.LeftButton)
        mouseRelease(graph, c.x + 60, c.y - 40)
        verify(graph.offers.length >= 4)
        verify(graph.offers.every(o => o.index === 0 && o.q === 1))
        verify(band.frequency > 1000, band.frequency)
        verify(band.gain > 0, band.gain)
        // The handle followed the echo: it lies under the release point.
        const moved = handleCentre(graph, 0)
        fuzzyCompare(moved.x, c.x + 60, 1)
        fuzzyCompare(moved.y, c.y - 40, 1)
        // The other band was left alone.
        compare(graph.eq.band(1).frequency, 100)
    }

    function test_withoutEchoNothingMoves() {
        const graph = makeGraph(false)
        const c = handleCentre(graph, 0)
        mousePress(graph, c.x, c.y)
        mouseMove(graph, c.x + 40, c.y - 40, -1, Qt.LeftButton)
        mouseRelease(graph, c.x + 40, c.y - 40)
        verify(graph.offers.length > 0)
        compare(graph.eq.band(0).frequency, 1000)
        compare(graph.eq.band(0).gain, 0)
    }

    function test_wheelDoubleClickAndKeys_data() {
        const sixth = Math.pow(2, 1 / 6)
        const twelfth = Math.pow(2, 1 / 12)
        return [
            { tag: "wheel up widens q", gesture: "wheel", delta: 120, frequency: 1000, gain: 3, q: sixth },
            { tag: "wheel down", gesture: "wheel", delta: -120, frequency: 1000, gain: 3, q: 1 / sixth },
            { tag: "double click resets the gain", gesture: "double", frequency: 1000, gain: 0, q: 1 },
            { tag: "right", gesture: "key", key: Qt.Key_Right, frequency: 1000 * twelfth, gain: 3, q: 1 },
            { tag: "left", gesture: "key", key: Qt.Key_Left, frequency: 1000 / twelfth, gain: 3, q: 1 },
            { tag: "up", gesture: "key", key: Qt.Key_Up, frequency: 1000, gain: 3.5, q: 1 },
            { tag: "plus", gesture: "key", key: Qt.Key_Plus, frequency: 1000, gain: 3, q: sixth },
            { tag: "home", gesture: "key", key: Qt.Key_Home, frequency: 1000, gain: 0, q: 1 }
        ]
    }
    function test_wheelDoubleClickAndKeys(data) {
        const graph = makeGraph(true)
        const band = graph.eq.band(0)
        band.gain = 3
        waitForRendering(graph)
        const c = handleCentre(graph, 0)
        if (data.gesture === "wheel") {
            mouseWheel(graph, c.x, c.y, 0, data.delta)
        } else if (data.gesture === "double") {
            mouseDoubleClickSequence(graph, c.x, c.y)
        } else {
            mouseClick(graph, c.x, c.y)
            keyClick(data.key)
        }
        fuzzyCompare(band.frequency, data.frequency, 1e-6)
        fuzzyCompare(band.gain, data.gain, 1e-9)
        fuzzyCompare(band.q, data.q, 1e-9)
        // A press (of a click or a double click) selects the band; the wheel only changes q.
        compare(graph.selectedBand, data.gesture === "wheel" ? -1 : 0)
    }
}
