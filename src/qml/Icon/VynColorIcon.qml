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

    onColorChanged: canvas.requestPaint()
    onShowsMixedChanged: canvas.requestPaint()
    onVynStyleChanged: canvas.requestPaint()
    onColorsChanged: canvas.requestPaint()
    onVynPixelRatioChanged: canvas.requestPaint()

    Canvas {
        id: canvas

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

        anchors.fill: parent
        onWidthChanged: requestPaint()
        onHeightChanged: requestPaint()

        function borderColorFor(p_tint) {
            return VynUIQmlConstants.colorIconBorderColorForStyle(p_tint, style)
        }

        function shadowWithAlpha(p_alpha) {
            return Qt.rgba(shadowColor.r, shadowColor.g, shadowColor.b, p_alpha)
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
            ctx.fillStyle = shadowColor
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
                ctx.strokeStyle = clearedColor
                ctx.lineWidth = borderWidth
                ctx.beginPath()
                ctx.moveTo(0, h)
                ctx.lineTo(w, 0)
                ctx.stroke()
            }

            // Faint shade from top to bottom gives the swatch some depth.
            const shade = ctx.createLinearGradient(0, 0, 0, h)
            shade.addColorStop(0, shadowWithAlpha(0.05))
            shade.addColorStop(1, shadowWithAlpha(0.2))
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
