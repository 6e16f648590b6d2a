import QtQuick
import QtTest
import VynUI 1.2

import "../../src/qml/Private/ColorIconShape.js" as ColorIconShape

// The colour swatch draws its stripes and its "no colour" diagonal as separate line items cut
// to the rounded outline of the well: the right lines for each state, none of them reaching
// out of the well, and the lines following a change of state.
TestCase {
    id: testCase
    name: "ColorIcon"
    when: windowShown
    width: 200
    height: 200

    Component {
        id: iconComponent

        VynColorIcon {
        }
    }

    // The icon's drawing layer and the line items it shows.
    function swatchOf(p_icon) {
        return p_icon.children[0]
    }

    function linesOf(p_icon) {
        const lines = []
        const swatch = swatchOf(p_icon)
        for (let i = 0; i < swatch.children.length; ++i) {
            const child = swatch.children[i]
            if (child.rotation !== 0)
                lines.push(child)
        }
        return lines
    }

    function test_lines_data() {
        return [
            { tag: "a tint shows no line", index: 3, allowsMixed: false, mixed: false, size: 20,
              lines: "none" },
            { tag: "no colour shows one diagonal", index: -1, allowsMixed: false, mixed: false,
              size: 20, lines: "one" },
            { tag: "mixed without allowsMixed is a plain tint", index: 3, allowsMixed: false,
              mixed: true, size: 20, lines: "none" },
            { tag: "a mixed tint shows stripes", index: 3, allowsMixed: true, mixed: true,
              size: 20, lines: "stripes" },
            { tag: "a mixed selection without a tint shows stripes", index: -1, allowsMixed: true,
              mixed: true, size: 20, lines: "stripes" },
            { tag: "large mixed swatch", index: 5, allowsMixed: true, mixed: true, size: 64,
              lines: "stripes" },
            { tag: "tiny swatch without colour", index: -1, allowsMixed: false, mixed: false,
              size: 4, lines: "one" },
            { tag: "wide swatch without colour", index: -1, allowsMixed: false, mixed: false,
              size: 20, width: 60, lines: "one" },
        ]
    }

    function test_lines(data) {
        const icon = createTemporaryObject(iconComponent, testCase, {
            "allowsMixed": data.allowsMixed, "mixed": data.mixed, "size": data.size
        })
        verify(icon)
        if (data.width !== undefined)
            icon.width = data.width
        icon.setIndex(data.index)
        waitForRendering(icon)

        const segments = swatchOf(icon).segments
        const lines = linesOf(icon)
        compare(lines.length, segments.length, "one line item per segment")
        if (data.lines === "none")
            compare(segments.length, 0)
        else if (data.lines === "one")
            compare(segments.length, 1)
        else
            verify(segments.length > 1, "stripes are several lines")

        const swatch = swatchOf(icon)
        const expectedColor = data.lines === "one"
                            ? VynUIQmlConstants.controlBorderRedColorForStyle(icon.vynStyle)
                            : (icon.hasColor ? icon.color : VynUIQmlConstants.labelColorForStyle(icon.vynStyle, 2))
        for (const s of segments) {
            verify(Qt.colorEqual(s.color, expectedColor), "line colour")
            verify(s.length > 0)
            // Both ends of the line, its square corners included, lie in the well's outline.
            const dx = Math.cos(s.angle * Math.PI / 180) * s.length / 2
            const dy = Math.sin(s.angle * Math.PI / 180) * s.length / 2
            const nx = -Math.sin(s.angle * Math.PI / 180) * s.lineWidth / 2
            const ny = Math.cos(s.angle * Math.PI / 180) * s.lineWidth / 2
            for (const end of [1, -1]) {
                for (const side of [1, -1]) {
                    const x = s.centerX + end * dx + side * nx
                    const y = s.centerY + end * dy + side * ny
                    verify(ColorIconShape.insideWell(swatch.width, swatch.wellHeight, swatch.radius, x, y, -0.01),
                           "corner (" + x + ", " + y + ") lies in the well")
                }
            }
        }
    }

    function test_linesFollowTheState() {
        const icon = createTemporaryObject(iconComponent, testCase, { "allowsMixed": true })
        verify(icon)
        icon.setIndex(2)
        compare(linesOf(icon).length, 0)
        icon.mixed = true
        verify(linesOf(icon).length > 1, "stripes appear with the mixed state")
        icon.mixed = false
        icon.setIndex(-1)
        compare(linesOf(icon).length, 1, "clearing the colour leaves the diagonal")
        icon.size = 0
        compare(linesOf(icon).length, 0, "an empty swatch draws nothing")
    }
}
