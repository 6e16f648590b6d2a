import QtQuick

// A rounded colour swatch: the tint a user gave to a zone, group or device.
//
// The swatch is filled with `color` under a faint top-to-bottom shade and framed by a border
// derived from the tint (darker in the light style, lighter in the dark style), with a soft
// one-pixel drop shadow. A swatch without a colour (transparent, or setIndex(-1)) shows an
// empty well crossed by a thin diagonal line. When `allowsMixed` and `mixed` are both set
// (a selection whose members carry different colours) the well shows diagonal stripes of
// the tint, or of a neutral grey when there is no tint.
//
// setIndex(i) picks entry i (modulo the palette size) of `colors`, the palette of tints the
// user chooses from; a negative index clears the colour. Metrics scale with vynPixelRatio.
Item {
    id: root

    property color color: "transparent"
    // Palette entry last chosen with setIndex(); -1 for none. Not named `index`, so that an icon
    // inside a delegate still sees the delegate's model index.
    property int colorIndex: -1
    property bool allowsMixed: false
    property bool mixed: false
    property int vynStyle: 1 // VynColorUtils.VynStyleDark
    property real vynPixelRatio: 1.0
    property real size: 20 * vynPixelRatio

    // The user-selectable tints, in palette order.
    property var colors: ["#e5484d", "#f76b15", "#ffc53d", "#99d52a", "#30a46c", "#12a594",
        "#05a2c2", "#0090ff", "#3e63dd", "#8e4ec6", "#d6409f", "#ad7f58"]

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

    onColorChanged: canvas.requestPaint()
    onShowsMixedChanged: canvas.requestPaint()
    onVynStyleChanged: canvas.requestPaint()
    onVynPixelRatioChanged: canvas.requestPaint()

    Canvas {
        id: canvas

        readonly property bool dark: root.vynStyle === 1
        readonly property real ratio: Math.max(root.vynPixelRatio, 0.1)
        readonly property real borderWidth: 1 * ratio
        readonly property real shadowOffset: 1 * ratio
        readonly property real stripeWidth: 2 * ratio
        readonly property real stripePeriod: 4 * stripeWidth + 1 * ratio
        readonly property color neutral: dark ? Qt.rgba(0.55, 0.55, 0.55, 1)
                                              : Qt.rgba(0.6, 0.6, 0.6, 1)
        readonly property color wellColor: dark ? Qt.rgba(0.16, 0.16, 0.16, 1)
                                                : Qt.rgba(0.98, 0.98, 0.98, 1)

        anchors.fill: parent
        onWidthChanged: requestPaint()
        onHeightChanged: requestPaint()

        function clamp01(p_value) {
            return Math.min(1, Math.max(0, p_value))
        }

        // The border: the tint's brightness scaled and offset (light style x0.8 - 0.2, dark
        // style x1.1 + 0.1), hue and saturation kept.
        function borderColorFor(p_tint) {
            const hue = Math.max(p_tint.hsvHue, 0)
            const value = dark ? p_tint.hsvValue * 1.1 + 0.1 : p_tint.hsvValue * 0.8 - 0.2
            return Qt.hsva(hue, p_tint.hsvSaturation, clamp01(value), 1)
        }

        function roundedRect(p_ctx, p_x, p_y, p_w, p_h, p_r) {
            p_ctx.beginPath()
            p_ctx.moveTo(p_x + p_r, p_y)
            p_ctx.arcTo(p_x + p_w, p_y, p_x + p_w, p_y + p_h, p_r)
            p_ctx.arcTo(p_x + p_w, p_y + p_h, p_x, p_y + p_h, p_r)
            p_ctx.arcTo(p_x, p_y + p_h, p_x, p_y, p_r)
            p_ctx.arcTo(p_x, p_y, p_x + p_w, p_y, p_r)
            p_ctx.closePath()
        }

        onPaint: {
            const ctx = getContext("2d")
            ctx.reset()
            const w = width
            const h = height - shadowOffset
            if (w <= 0 || h <= 0)
                return
            const radius = Math.min(w, h) * 0.2
            const tint = root.color
            const hasTint = root.hasColor

            // Drop shadow, visible only along the bottom edge.
            ctx.fillStyle = Qt.rgba(0, 0, 0, dark ? 0.5 : 0.25)
            roundedRect(ctx, 0, shadowOffset, w, h, radius)
            ctx.fill()

            ctx.save()
            roundedRect(ctx, 0, 0, w, h, radius)
            ctx.clip()

            if (root.showsMixed) {
                ctx.fillStyle = wellColor
                ctx.fillRect(0, 0, w, h)
                ctx.strokeStyle = hasTint ? tint : neutral
                ctx.lineWidth = stripeWidth
                ctx.beginPath()
                for (let x = -h; x < w + h; x += stripePeriod) {
                    ctx.moveTo(x, h)
                    ctx.lineTo(x + h, 0)
                }
                ctx.stroke()
            } else if (hasTint) {
                ctx.fillStyle = tint
                ctx.fillRect(0, 0, w, h)
            } else {
                ctx.fillStyle = wellColor
                ctx.fillRect(0, 0, w, h)
                ctx.strokeStyle = Qt.rgba(0.85, 0.2, 0.2, 1)
                ctx.lineWidth = borderWidth
                ctx.beginPath()
                ctx.moveTo(0, h)
                ctx.lineTo(w, 0)
                ctx.stroke()
            }

            // Faint shade from top to bottom gives the swatch some depth.
            const shade = ctx.createLinearGradient(0, 0, 0, h)
            shade.addColorStop(0, Qt.rgba(0, 0, 0, 0.05))
            shade.addColorStop(1, Qt.rgba(0, 0, 0, 0.2))
            ctx.fillStyle = shade
            ctx.fillRect(0, 0, w, h)
            ctx.restore()

            const inset = borderWidth / 2
            ctx.strokeStyle = hasTint ? borderColorFor(tint) : neutral
            ctx.lineWidth = borderWidth
            roundedRect(ctx, inset, inset, w - borderWidth, h - borderWidth,
                        Math.max(radius - inset, 0))
            ctx.stroke()
        }
    }
}
