import QtQuick
import QtTest
import VynUI 1.2

// The dynamics editor graph under real pointer and key events: the threshold handle follows the
// diagonal, the ratio handle the right edge, and only the host's echo moves the block.
TestCase {
    id: testCase
    name: "DynGraph"
    width: 600
    height: 500
    visible: true
    when: windowShown

    Component {
        id: graphComponent
        VynDynGraphsView {
            x: 20
            y: 20
            width: 400
            height: 400
            property var offers: []
            dynamicsExpectsValues: function (p_block, p_threshold, p_ratio) {
                offers.push({ "threshold": p_threshold, "ratio": p_ratio })
                p_block.threshold = p_threshold
                p_block.ratio = p_ratio
                return true
            }
        }
    }

    function makeGraph() {
        const block = testHost.makeDynamics(-30, 0.5)
        const graph = createTemporaryObject(graphComponent, testCase, { "selectedBlock": block })
        waitForRendering(graph)
        return graph
    }

    // The handle whose accessible name starts with p_prefix ("Threshold", "Ratio").
    function handle(p_graph, p_prefix) {
        for (let i = 0; i < p_graph.children.length; ++i) {
            const child = p_graph.children[i]
            if (child.Accessible.role === Accessible.Slider && child.Accessible.name.indexOf(p_prefix) === 0)
                return child
        }
        fail("no " + p_prefix + " handle")
    }

    function drag(p_graph, p_item, p_dx, p_dy) {
        const c = p_item.mapToItem(p_graph, p_item.width / 2, p_item.height / 2)
        mousePress(p_graph, c.x, c.y)
        for (let i = 1; i <= 4; ++i)
            mouseMove(p_graph, c.x + p_dx * i / 4, c.y + p_dy * i / 4, -1, Qt.LeftButton)
        mouseRelease(p_graph, c.x + p_dx, c.y + p_dy)
    }

    function test_thresholdFollowsTheDiagonal() {
        const graph = makeGraph()
        // Up and right along the diagonal, and also off it: only the projection counts.
        drag(graph, handle(graph, "Threshold"), 40, -60)
        verify(graph.offers.length > 0)
        verify(graph.selectedBlock.threshold > -30, graph.selectedBlock.threshold)
        verify(graph.offers.every(o => o.ratio === 0.5))
        // The handle sits on the diagonal at the new threshold.
        const h = handle(graph, "Threshold")
        const c = h.mapToItem(graph, h.width / 2, h.height / 2)
        const plotWidth = graph.width - graph.insetLeft - graph.insetRight
        const expectedX = graph.insetLeft + (graph.selectedBlock.threshold - graph.levelMin) * plotWidth
                          / (graph.levelMax - graph.levelMin)
        fuzzyCompare(c.x, expectedX, 1.5)
    }

    function test_ratioFollowsTheEdge() {
        const graph = makeGraph()
        drag(graph, handle(graph, "Ratio"), 0, 60)
        verify(graph.offers.length > 0)
        verify(graph.offers.every(o => o.threshold === -30))
        verify(graph.selectedBlock.ratio < 0.5, graph.selectedBlock.ratio)
        verify(graph.selectedBlock.ratio >= graph.ratioMin)
    }

    function test_keys_data() {
        return [
            { tag: "threshold up", handle: "Threshold", key: Qt.Key_Up, threshold: -29.5, ratio: 0.5 },
            { tag: "threshold left", handle: "Threshold", key: Qt.Key_Left, threshold: -30.5, ratio: 0.5 },
            { tag: "ratio up", handle: "Ratio", key: Qt.Key_Up, threshold: -30, ratio: 0.55 },
            { tag: "ratio down", handle: "Ratio", key: Qt.Key_Down, threshold: -30, ratio: 0.45 }
        ]
    }
    function test_keys(data) {
        const graph = makeGraph()
        const h = handle(graph, data.handle)
        h.forceActiveFocus()
        keyClick(data.key)
        fuzzyCompare(graph.selectedBlock.threshold, data.threshold, 1e-9)
        fuzzyCompare(graph.selectedBlock.ratio, data.ratio, 1e-9)
    }
}
