.pragma library

// VynEQBiquadFilter: the magnitude and phase response of a parametric EQ.
//
// Every band is one second-order section (a biquad) of one of seven shapes. A coefficient set
// is an object { b0, b1, b2, a1, a2 } with a0 normalised to 1:
//   H(z) = (b0 + b1 z^-1 + b2 z^-2) / (1 + a1 z^-1 + a2 z^-2)
// Frequencies handed to the coefficient and response functions are normalised: 1 is the
// Nyquist frequency (sampleRate / 2).
//
// A logarithmic grid is described by its left frequency fL, a density N (points per octave)
// and a point count C: point i sits at fL * 2^(i / N).
//
// A channel's curve is built by starting from C magnitudes of 1, multiplying in the response of
// every enabled and used band (vynEQAddBiquadResponses) and converting each point to dB
// (vynEQLinearToDB) at the end.
//
// The edge cases of each shape (a band at 0 or at the Nyquist frequency, a q of 0) are part of
// the devices' behaviour and are reproduced as they are, including the squared linear gain the
// shelves give at their far edge.

var VynEQTypeThru = 0
var VynEQTypeBell = 1
var VynEQTypeHighPass = 2
var VynEQTypeLowPass = 3
var VynEQTypeHighShelf = 4
var VynEQTypeLowShelf = 5
var VynEQTypeNotch = 6
var VynEQTypeBandPassParallel = 7

function log10(x) {
    return Math.log(x) / Math.LN10
}

function log2(x) {
    return Math.log(x) / Math.LN2
}

function vynEQNormalizedFrequency(frequencyHz, sampleRate) {
    return frequencyHz / (sampleRate / 2)
}

// The step runs downward from freqMin ((min - max) / count); no view uses this grid.
function vynEQNormalizedFrequenciesLin(freqMin, freqMax, count, sampleRate) {
    const nyquist = sampleRate / 2
    const start = freqMin / nyquist
    const step = (freqMin / nyquist - freqMax / nyquist) / count
    const result = []
    let f = start
    for (let i = 0; i < count; ++i) {
        result.push(f)
        f += step
    }
    return result
}

function vynEQNormalizedFrequenciesLog(freqMin, numberOfPointsPerOctave, count, sampleRate) {
    const nyquist = sampleRate / 2
    const delta = vynEQLogarithmicDeltaFreq(numberOfPointsPerOctave)
    const result = []
    let f = freqMin
    for (let i = 0; i < count; ++i) {
        result.push(f / nyquist)
        f *= delta
    }
    return result
}

function vynEQNormalizedFrequencies(frequenciesHz, count, sampleRate) {
    const nyquist = sampleRate / 2
    const result = []
    if (!frequenciesHz)
        return result
    const n = Math.min(count, frequenciesHz.length)
    for (let i = 0; i < n; ++i)
        result.push(frequenciesHz[i] / nyquist)
    return result
}

function vynEQNumberOfPointsPerOctave(freqMin, freqMax, count) {
    return (count - 1) / log2(freqMax / freqMin)
}

// The grid that puts freqMin at insetLeft and freqMax at width - insetRight, with its count
// points spread over the whole width. Returns [N, fL].
function vynEQNumberOfPointsPerOctaveWithInsets(freqMin, freqMax, count, insetLeft, insetRight, width) {
    const nLeft = insetLeft / width * (count - 1)
    const nRight = insetRight / width * (count - 1)
    const n = (count - 1 - nLeft - nRight) / log2(freqMax / freqMin)
    const freqLeft = freqMin * Math.pow(2, -nLeft / n)
    return [n, freqLeft]
}

function vynEQLogarithmicDeltaFreq(numberOfPointsPerOctave) {
    return Math.pow(2, 1 / numberOfPointsPerOctave)
}

function vynEQLogarithmicFreq(f0, n, numberOfPointsPerOctave) {
    return f0 * Math.pow(2, n / numberOfPointsPerOctave)
}

function vynEQLogarithmicFreqIndex(f, freqLeft, numberOfPointsPerOctave) {
    return numberOfPointsPerOctave * log2(f / freqLeft)
}

function vynEQLogarithmicFreqX(f, freqLeft, numberOfPointsPerOctave, count, width) {
    return width / count * vynEQLogarithmicFreqIndex(f, freqLeft, numberOfPointsPerOctave)
}

function vynEQLinearToDB(x) {
    if (x > 0)
        return 20 * log10(x)
    return -1000
}

function passThroughCoefs() {
    return { "b0": 1, "b1": 0, "b2": 0, "a1": 0, "a2": 0 }
}

function zeroCoefs() {
    return { "b0": 0, "b1": 0, "b2": 0, "a1": 0, "a2": 0 }
}

function constantCoefs(b0) {
    return { "b0": b0, "b1": 0, "b2": 0, "a1": 0, "a2": 0 }
}

function tanK(normalizedFreq) {
    return Math.tan(Math.PI * normalizedFreq / 2)
}

function vynEQDefaultCoefs() {
    return passThroughCoefs()
}

function vynEQPeakingCoefs(normalizedFreq, q, gain) {
    if (normalizedFreq <= 0 || normalizedFreq >= 1)
        return passThroughCoefs()
    if (q <= 0) {
        const a = Math.pow(10, Math.abs(gain) / 20)
        return constantCoefs(a * a)
    }
    const k = tanK(normalizedFreq)
    const v = Math.pow(10, Math.abs(gain) / 20)
    const k2 = k * k
    const c = zeroCoefs()
    if (gain >= 0) {
        const norm = 1 / (1 + k / q + k2)
        c.b0 = (1 + v / q * k + k2) * norm
        c.b1 = 2 * (k2 - 1) * norm
        c.b2 = (1 - v / q * k + k2) * norm
        c.a1 = c.b1
        c.a2 = (1 - k / q + k2) * norm
    } else {
        const norm = 1 / (1 + v / q * k + k2)
        c.b0 = (1 + k / q + k2) * norm
        c.b1 = 2 * (k2 - 1) * norm
        c.b2 = (1 - k / q + k2) * norm
        c.a1 = c.b1
        c.a2 = (1 - v / q * k + k2) * norm
    }
    return c
}

function vynEQHighPassCoefs(normalizedFreq, q) {
    if (normalizedFreq === 1)
        return zeroCoefs()
    if (normalizedFreq === 0)
        return passThroughCoefs()
    const k = tanK(normalizedFreq)
    const k2 = k * k
    const norm = 1 / (1 + k / q + k2)
    const c = zeroCoefs()
    c.b0 = norm
    c.b1 = -2 * c.b0
    c.b2 = c.b0
    c.a1 = 2 * (k2 - 1) * norm
    c.a2 = (1 - k / q + k2) * norm
    return c
}

function vynEQLowPassCoefs(normalizedFreq, q) {
    if (normalizedFreq === 1)
        return passThroughCoefs()
    const k = tanK(normalizedFreq)
    const k2 = k * k
    const norm = 1 / (1 + k / q + k2)
    const c = zeroCoefs()
    c.b0 = k2 * norm
    c.b1 = 2 * c.b0
    c.b2 = c.b0
    c.a1 = 2 * (k2 - 1) * norm
    c.a2 = (1 - k / q + k2) * norm
    return c
}

function vynEQBandPassCoefs(normalizedFreq, q) {
    if (normalizedFreq <= 0 || normalizedFreq >= 1)
        return zeroCoefs()
    if (q <= 0)
        return passThroughCoefs()
    const k = tanK(normalizedFreq)
    const k2 = k * k
    const norm = 1 / (1 + k / q + k2)
    const c = zeroCoefs()
    c.b0 = k / q * norm
    c.b1 = 0
    c.b2 = -c.b0
    c.a1 = 2 * (k2 - 1) * norm
    c.a2 = (1 - k / q + k2) * norm
    return c
}

function vynEQLowShelfCoefs(normalizedFreq, q, gain) {
    if (normalizedFreq === 1) {
        const a = Math.pow(10, gain / 20)
        return constantCoefs(a * a)
    }
    if (normalizedFreq === 0)
        return passThroughCoefs()
    const k = tanK(normalizedFreq)
    const k2 = k * k
    const v = Math.pow(10, Math.abs(gain) / 20)
    const sv = Math.sqrt(v)
    const c = zeroCoefs()
    if (gain >= 0) {
        const norm = 1 / (1 + k / q + k2)
        c.b0 = (1 + sv / q * k + v * k2) * norm
        c.b1 = 2 * (v * k2 - 1) * norm
        c.b2 = (1 - sv / q * k + v * k2) * norm
        c.a1 = 2 * (k2 - 1) * norm
        c.a2 = (1 - k / q + k2) * norm
    } else {
        const norm = 1 / (1 + sv / q * k + v * k2)
        c.b0 = (1 + k / q + k2) * norm
        c.b1 = 2 * (k2 - 1) * norm
        c.b2 = (1 - k / q + k2) * norm
        c.a1 = 2 * (v * k2 - 1) * norm
        c.a2 = (1 - sv / q * k + v * k2) * norm
    }
    return c
}

function vynEQHighShelfCoefs(normalizedFreq, q, gain) {
    if (normalizedFreq === 1)
        return passThroughCoefs()
    if (normalizedFreq === 0) {
        const a = Math.pow(10, gain / 20)
        return constantCoefs(a * a)
    }
    const k = tanK(normalizedFreq)
    const k2 = k * k
    const v = Math.pow(10, Math.abs(gain) / 20)
    const sv = Math.sqrt(v)
    const c = zeroCoefs()
    if (gain >= 0) {
        const norm = 1 / (1 + k / q + k2)
        c.b0 = (v + sv / q * k + k2) * norm
        c.b1 = 2 * (k2 - v) * norm
        c.b2 = (v - sv / q * k + k2) * norm
        c.a1 = 2 * (k2 - 1) * norm
        c.a2 = (1 - k / q + k2) * norm
    } else {
        const norm = 1 / (v + sv / q * k + k2)
        c.b0 = (1 + k / q + k2) * norm
        c.b1 = 2 * (k2 - 1) * norm
        c.b2 = (1 - k / q + k2) * norm
        c.a1 = 2 * (k2 - v) * norm
        c.a2 = (v - sv / q * k + k2) * norm
    }
    return c
}

function vynEQNotchCoefs(normalizedFreq, q) {
    if (normalizedFreq <= 0 || normalizedFreq >= 1)
        return passThroughCoefs()
    if (q <= 0)
        return zeroCoefs()
    const k = tanK(normalizedFreq)
    const k2 = k * k
    const norm = 1 / (1 + k / q + k2)
    const c = zeroCoefs()
    c.b0 = (1 + k2) * norm
    c.b1 = 2 * (k2 - 1) * norm
    c.b2 = c.b0
    c.a1 = c.b1
    c.a2 = (1 - k / q + k2) * norm
    return c
}

function vynEQBiquadCoefsMakeWithType(type, normalizedFreq, q, gain) {
    switch (type) {
    case VynEQTypeBell:
        return vynEQPeakingCoefs(normalizedFreq, q, gain)
    case VynEQTypeHighPass:
        return vynEQHighPassCoefs(normalizedFreq, q)
    case VynEQTypeLowPass:
        return vynEQLowPassCoefs(normalizedFreq, q)
    case VynEQTypeBandPassParallel:
        return vynEQBandPassCoefs(normalizedFreq, q)
    case VynEQTypeLowShelf:
        return vynEQLowShelfCoefs(normalizedFreq, q, gain)
    case VynEQTypeHighShelf:
        return vynEQHighShelfCoefs(normalizedFreq, q, gain)
    case VynEQTypeNotch:
        return vynEQNotchCoefs(normalizedFreq, q)
    default:
        return vynEQDefaultCoefs()
    }
}

// [magnitude, phase] of H at exp(i * pi * freq). The phase is folded into (-pi, pi) by one
// turn at most, so a phase of exactly pi comes back as -pi.
function vynEQBiquadResponse(coefs, freq) {
    const w = Math.PI * freq
    const cw = Math.cos(w)
    const c2w = Math.cos(2 * w)
    const sw = Math.sin(w)
    const s2w = Math.sin(2 * w)
    const numRe = coefs.b0 + coefs.b1 * cw + coefs.b2 * c2w
    const numIm = -(coefs.b1 * sw + coefs.b2 * s2w)
    const denRe = 1 + coefs.a1 * cw + coefs.a2 * c2w
    const denIm = -(coefs.a1 * sw + coefs.a2 * s2w)
    const magnitude = Math.sqrt((numRe * numRe + numIm * numIm) / (denRe * denRe + denIm * denIm))
    let phase = Math.atan2(numIm, numRe) - Math.atan2(denIm, denRe)
    if (phase >= Math.PI)
        phase -= 2 * Math.PI
    else if (phase <= -Math.PI)
        phase += 2 * Math.PI
    return [magnitude, phase]
}

// Multiplies the band's magnitudes into `magnitudes` and adds its phases to `phases`, in place,
// over the first `count` frequencies. Either array may be the number -1 to leave it out.
// The arithmetic is vynEQBiquadResponse()'s, written out so that no pair is allocated per
// point and no phase is computed when none is asked for.
function vynEQAddBiquadResponses(coefs, magnitudes, phases, normalizedFrequencies, count) {
    const withMagnitudes = magnitudes !== -1
    const withPhases = phases !== -1
    const b0 = coefs.b0
    const b1 = coefs.b1
    const b2 = coefs.b2
    const a1 = coefs.a1
    const a2 = coefs.a2
    for (let i = 0; i < count; ++i) {
        const w = Math.PI * normalizedFrequencies[i]
        const cw = Math.cos(w)
        const c2w = Math.cos(2 * w)
        const sw = Math.sin(w)
        const s2w = Math.sin(2 * w)
        const numRe = b0 + b1 * cw + b2 * c2w
        const numIm = -(b1 * sw + b2 * s2w)
        const denRe = 1 + a1 * cw + a2 * c2w
        const denIm = -(a1 * sw + a2 * s2w)
        if (withMagnitudes)
            magnitudes[i] *= Math.sqrt((numRe * numRe + numIm * numIm) / (denRe * denRe + denIm * denIm))
        if (withPhases) {
            let phase = Math.atan2(numIm, numRe) - Math.atan2(denIm, denRe)
            if (phase >= Math.PI)
                phase -= 2 * Math.PI
            else if (phase <= -Math.PI)
                phase += 2 * Math.PI
            phases[i] += phase
        }
    }
    return [magnitudes, phases]
}
