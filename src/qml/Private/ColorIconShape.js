.pragma library

// The shapes of VynColorIcon's well, shared by every icon of an engine: a rounded rectangle
// w x h with corner radius r, with the lines drawn in it cut to its outline.

// Whether (p_x, p_y) lies inside the outline drawn p_inset inwards.
function insideWell(p_w, p_h, p_radius, p_x, p_y, p_inset) {
    const left = p_inset
    const top = p_inset
    const right = p_w - p_inset
    const bottom = p_h - p_inset
    const r = Math.max(p_radius - p_inset, 0)
    if (p_x < left || p_y < top || p_x > right || p_y > bottom)
        return false
    const dx = Math.max(left + r - p_x, 0, p_x - (right - r))
    const dy = Math.max(top + r - p_y, 0, p_y - (bottom - r))
    return dx * dx + dy * dy <= r * r
}

// The part of the segment (x1, y1)-(x2, y2) inside the outline drawn p_inset inwards, as the
// fractions [t0, t1] of its length, or null when it misses it. The outline is convex, so the
// inside part is one piece: found by sampling, its ends refined by bisection.
function insideFractions(p_w, p_h, p_radius, p_x1, p_y1, p_x2, p_y2, p_inset) {
    const at = t => insideWell(p_w, p_h, p_radius, p_x1 + (p_x2 - p_x1) * t,
                               p_y1 + (p_y2 - p_y1) * t, p_inset)
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

// The lines drawn in the well, cut to its outline: diagonal stripes of p_stripeColor every
// p_stripePeriod for a mixed selection (p_mixed), else one diagonal of p_crossColor (a swatch
// without a colour). Each line is {centerX, centerY, length, angle, color, lineWidth}.
function lineSegments(p_w, p_h, p_radius, p_mixed, p_stripeColor, p_stripeWidth, p_stripePeriod,
                      p_crossColor, p_crossWidth) {
    const lines = []
    const add = (p_x1, p_y1, p_x2, p_y2, p_color, p_width) => {
        // Cut half a line width inside the outline, so that the square ends of the line stay
        // within it.
        const t = insideFractions(p_w, p_h, p_radius, p_x1, p_y1, p_x2, p_y2, p_width / 2)
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
    if (p_mixed) {
        for (let x = -p_h; x < p_w + p_h; x += Math.max(p_stripePeriod, 0.5))
            add(x, p_h, x + p_h, 0, p_stripeColor, p_stripeWidth)
    } else {
        add(0, p_h, p_w, 0, p_crossColor, p_crossWidth)
    }
    return lines
}

let factoryPalette = null

// A copy of the catalogue's colour factory (read once per engine).
function palette(p_catalogue) {
    if (factoryPalette === null) {
        factoryPalette = []
        for (let i = 0; i < p_catalogue.colorFactoryCount(); ++i)
            factoryPalette.push(p_catalogue.colorFactory(i))
    }
    return factoryPalette.slice()
}
