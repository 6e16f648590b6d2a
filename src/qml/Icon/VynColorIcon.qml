import QtQuick
import VynUI 1.2

// A rounded colour swatch: the tint a user gave to a zone, group or device.
//
// The swatch is filled with `color` under a faint top-to-bottom shade and framed by the
// catalogue's colour-icon border for the tint (darker in the light style, lighter in the dark
// style), with the catalogue's colour-icon shadow along its bottom edge. A swatch without a colour (transparent, or setIndex(-1)) shows an
// empty well crossed by a thin diagonal line. When `allowsMixed` and `mixed` are both set
// (a selection whose members carry different colours) the well shows diagonal stripes of
// the tint, or of a neutral grey when there is no tint.
//
// setIndex(i) picks entry i (modulo the palette size) of `colors`, the palette of tints the
// user chooses from (by default the catalogue's colour factory); a negative index clears the
// colour. Metrics and colours come from VynUIQmlConstants and scale with vynPixelRatio.
//
// The swatch is built from scene-graph items (rounded rectangles, and thin rotated rectangles
// for the lines), so it draws the same way in every renderer and keeps no painting surface of
// its own. The lines are cut to the rounded outline of the well by lineSegments().
Item {
    id: root

    property color color: "transparent"
    // Palette entry last chosen with setIndex(); -1 for none. Not named `index`, so that an icon
    // inside a delegate still sees the delegate's model index.
    property int colorIndex: -1
    property bool allowsMixed: false
    property bool mixed: false
    property int vynStyle: VynColorUtils.VynStyleDark
    property real vynPixelRatio: 1.0
    property real size: VynUIQmlConstants.colorIconHeight(VynViewUtils.VynControlSizeRegular, vynPixelRatio)

    // The user-selectable tints, in palette order.
    property var colors: {
        const palette = []
        for (let i = 0; i < VynUIQmlConstants.colorFactoryCount(); ++i)
            palette.push(VynUIQmlConstants.colorFactory(i))
        return palette
    }

    readonly property bool showsMixed: allowsMixed && mixed
    readonly property bool hasColor: color.a > 0

    function setIndex(p_index) {
        colorIndex = p_index
        if (p_index >= 0 && colors && colors.length > 0)
            color = colors[p_index % colors.length]
        else
            color = "transparent"
    }

    implicitWidth: size
    implicitHeight: size

    Item {
        id: swatch

        readonly property int style: root.vynStyle
        readonly property real ratio: Math.max(root.vynPixelRatio, 0.1)
        readonly property real borderWidth: VynUIQmlConstants.colorIconBorder(ratio)
        readonly property real shadowOffset: VynUIQmlConstants.colorIconBorder(ratio)
        readonly property real stripeWidth: VynUIQmlConstants.colorIconMixedLineWidth(ratio)
        readonly property real stripePeriod: 4 * stripeWidth + VynUIQmlConstants.colorIconMixedLineOffset(ratio)
        readonly property color neutral: VynUIQmlConstants.labelColorForStyle(style, 2)
        readonly property color wellColor: VynUIQmlConstants.textViewBackgroundColorForStyle(style)
        readonly property color shadowColor: VynUIQmlConstants.colorIconShadowColorForStyle(style)
        readonly property color clearedColor: VynUIQmlConstants.controlBorderRedColorForStyle(style)

        // The well: the whole width, the height less the shadow below it.
        readonly property real wellWidth: width
        readonly property real wellHeight: height - shadowOffset
        readonly property bool drawable: wellWidth > 0 && wellHeight > 0
        readonly property real radius: Math.min(wellWidth, wellHeight) * 0.2

        function shadowWithAlpha(p_alpha) {
            return Qt.rgba(shadowColor.r, shadowColor.g, shadowColor.b, p_alpha)
        }

        // Whether (p_x, p_y) lies inside the well's rounded outline drawn p_inset inwards.
        function insideWell(p_x, p_y, p_inset) {
            const left = p_inset
            const top = p_inset
            const right = wellWidth - p_inset
            const bottom = wellHeight - p_inset
            const r = Math.max(radius - p_inset, 0)
            if (p_x < left || p_y < top || p_x > right || p_y > bottom)
                return false
            const dx = Math.max(left + r - p_x, 0, p_x - (right - r))
            const dy = Math.max(top + r - p_y, 0, p_y - (bottom - r))
            return dx * dx + dy * dy <= r * r
        }

        // The part of the segment (x1, y1)-(x2, y2) inside the well's outline drawn p_inset
        // inwards, as the fractions [t0, t1] of its length, or null when it misses it. The
        // outline is convex, so the inside part is one piece: found by sampling, its ends
        // refined by bisection.
        function insideFractions(p_x1, p_y1, p_x2, p_y2, p_inset) {
            const at = t => insideWell(p_x1 + (p_x2 - p_x1) * t, p_y1 + (p_y2 - p_y1) * t, p_inset)
            const samples = 32
            let inside = -1
            for (let i = 0; i <= samples && inside < 0; ++i) {
                if (at(i / samples))
                    inside = i / samples
            }
            if (inside < 0)
                return null
            let outLow = 0, inLow = inside, inHigh = inside, outHigh = 1
            if (at(0))
                inLow = 0
            if (at(1))
                inHigh = 1
            for (let k = 0; k < 24; ++k) {
                if (inLow > 0) {
                    const middle = (outLow + inLow) / 2
                    if (at(middle))
                        inLow = middle
                    else
                        outLow = middle
                }
                if (inHigh < 1) {
                    const middle = (inHigh + outHigh) / 2
                    if (at(middle))
                        inHigh = middle
                    else
                        outHigh = middle
                }
            }
            return [inLow, inHigh]
        }

        // The lines drawn in the well, cut to its outline: the tint's (or a neutral grey's)
        // diagonal stripes for a mixed selection, a red diagonal for no colour, none for a
        // plain tint.
        function lineSegments() {
            if (!drawable || (!root.showsMixed && root.hasColor))
                return []
            const w = wellWidth
            const h = wellHeight
            const lines = []
            const add = (p_x1, p_y1, p_x2, p_y2, p_color, p_width) => {
                // Cut half a line width inside the outline, so that the square ends of the
                // line stay within it.
                const t = insideFractions(p_x1, p_y1, p_x2, p_y2, p_width / 2)
                if (!t || t[1] <= t[0])
                    return
                const dx = p_x2 - p_x1
                const dy = p_y2 - p_y1
                const length = Math.sqrt(dx * dx + dy * dy)
                const middle = (t[0] + t[1]) / 2
                lines.push({
                    "centerX": p_x1 + dx * middle,
                    "centerY": p_y1 + dy * middle,
                    "length": length * (t[1] - t[0]),
                    "angle": Math.atan2(dy, dx) * 180 / Math.PI,
                    "color": p_color,
                    "lineWidth": p_width
                })
            }
            if (root.showsMixed) {
                const tint = root.hasColor ? root.color : neutral
                for (let x = -h; x < w + h; x += Math.max(stripePeriod, 0.5))
                    add(x, h, x + h, 0, tint, stripeWidth)
            } else {
                add(0, h, w, 0, clearedColor, borderWidth)
            }
            return lines
        }

        anchors.fill: parent
        visible: drawable

        // Drop shadow, visible only along the bottom edge.
        Rectangle {
            y: swatch.shadowOffset
            width: swatch.wellWidth
            height: swatch.wellHeight
            radius: swatch.radius
            color: swatch.shadowColor
        }

        Rectangle {
            width: swatch.wellWidth
            height: swatch.wellHeight
            radius: swatch.radius
            color: root.hasColor && !root.showsMixed ? root.color : swatch.wellColor
        }

        Repeater {
            model: swatch.lineSegments()

            Rectangle {
                required property var modelData

                x: modelData.centerX - width / 2
                y: modelData.centerY - height / 2
                width: modelData.length
                height: modelData.lineWidth
                rotation: modelData.angle
                color: modelData.color
                antialiasing: true
            }
        }

        // Faint shade from top to bottom gives the swatch some depth.
        Rectangle {
            width: swatch.wellWidth
            height: swatch.wellHeight
            radius: swatch.radius
            gradient: Gradient {
                GradientStop {
                    position: 0
                    color: swatch.shadowWithAlpha(0.05)
                }
                GradientStop {
                    position: 1
                    color: swatch.shadowWithAlpha(0.2)
                }
            }
        }

        Rectangle {
            width: swatch.wellWidth
            height: swatch.wellHeight
            radius: swatch.radius
            color: "transparent"
            border.width: swatch.borderWidth
            border.color: root.hasColor ? VynUIQmlConstants.colorIconBorderColorForStyle(root.color, swatch.style)
                                        : swatch.neutral
        }
    }
}
