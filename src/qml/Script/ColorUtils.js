.pragma library

// ColorUtils: three colour helpers for documents, all with alphas and factors on the [0, 1]
// scale of QML colours (VynUIQmlConstants.colorBySettingAlpha works on 0 to 255 instead).
//
// A stateless shared library. Every function accepts a colour value or any text QML reads as
// a colour ("#1f82e0", "red") and returns a new colour; the argument is never changed. Text
// that is not a colour reads as transparent black. Results are clamped into [0, 1] per
// channel, as Qt.rgba() and Qt.hsla() do; an alpha, offset or factor that is not a number
// (NaN) makes the channels it reaches 0.

// Any colour-like value as a colour value: a tint with a transparent colour is the base
// colour itself, converted without loss. Qt.tint() answers null for what is not a colour.
function toColor(p_color) {
    const c = Qt.tint(p_color, "transparent")
    return c ? c : Qt.rgba(0, 0, 0, 0)
}

// p_value within [0, 1]; what does not read as a number (NaN, undefined) gives 0.
function clampUnit(p_value) {
    const value = Number(p_value)
    if (!(value >= 0))
        return 0
    return Math.min(value, 1)
}

// The colour's red, green and blue with the alpha p_alpha (in [0, 1]).
function colorWithAlpha(p_color, p_alpha) {
    const c = toColor(p_color)
    return Qt.rgba(c.r, c.g, c.b, clampUnit(p_alpha))
}

// The colour with its HSL lightness moved by p_db and clamped to [0, 1]; hue, saturation and
// alpha kept. An achromatic colour stays achromatic.
function colorWithBrightnessOffset(p_color, p_db) {
    const c = toColor(p_color)
    return Qt.hsla(c.hslHue, c.hslSaturation, clampUnit(c.hslLightness + p_db), c.a)
}

// Red, green and blue each multiplied by p_factor (clamped to [0, 1]); alpha kept.
function colorWithRGBFactor(p_color, p_factor) {
    const c = toColor(p_color)
    return Qt.rgba(clampUnit(c.r * p_factor), clampUnit(c.g * p_factor),
                   clampUnit(c.b * p_factor), c.a)
}
