#include "vyncommonutils.h"

#include <cmath>

namespace VynCommonUtils {

namespace {

constexpr double kPi = 3.14159265358979323846;

VynEQBiquadCoefs passThrough()
{
    return VynEQBiquadCoefs{};
}

VynEQBiquadCoefs constant(double b0)
{
    VynEQBiquadCoefs c;
    c.b0 = b0;
    return c;
}

VynEQBiquadCoefs zero()
{
    return constant(0.0);
}

double tanK(double f)
{
    return std::tan(kPi * f / 2.0);
}

VynEQBiquadCoefs peaking(double f, double q, double gain)
{
    if (f <= 0.0 || f >= 1.0)
        return passThrough();
    if (q <= 0.0) {
        const double a = std::pow(10.0, std::fabs(gain) / 20.0);
        return constant(a * a);
    }
    const double k = tanK(f);
    const double k2 = k * k;
    const double v = std::pow(10.0, std::fabs(gain) / 20.0);
    VynEQBiquadCoefs c;
    if (gain >= 0.0) {
        const double norm = 1.0 / (1.0 + k / q + k2);
        c.b0 = (1.0 + v / q * k + k2) * norm;
        c.b1 = 2.0 * (k2 - 1.0) * norm;
        c.b2 = (1.0 - v / q * k + k2) * norm;
        c.a1 = c.b1;
        c.a2 = (1.0 - k / q + k2) * norm;
    } else {
        const double norm = 1.0 / (1.0 + v / q * k + k2);
        c.b0 = (1.0 + k / q + k2) * norm;
        c.b1 = 2.0 * (k2 - 1.0) * norm;
        c.b2 = (1.0 - k / q + k2) * norm;
        c.a1 = c.b1;
        c.a2 = (1.0 - v / q * k + k2) * norm;
    }
    return c;
}

// The denominator shared by the high-pass, low-pass, band-pass and notch shapes.
void secondOrderPoles(double k, double q, double norm, VynEQBiquadCoefs* c)
{
    const double k2 = k * k;
    c->a1 = 2.0 * (k2 - 1.0) * norm;
    c->a2 = (1.0 - k / q + k2) * norm;
}

VynEQBiquadCoefs highPass(double f, double q)
{
    if (f == 1.0)
        return zero();
    if (f == 0.0)
        return passThrough();
    const double k = tanK(f);
    const double norm = 1.0 / (1.0 + k / q + k * k);
    VynEQBiquadCoefs c;
    c.b0 = norm;
    c.b1 = -2.0 * c.b0;
    c.b2 = c.b0;
    secondOrderPoles(k, q, norm, &c);
    return c;
}

VynEQBiquadCoefs lowPass(double f, double q)
{
    if (f == 1.0)
        return passThrough();
    const double k = tanK(f);
    const double norm = 1.0 / (1.0 + k / q + k * k);
    VynEQBiquadCoefs c;
    c.b0 = k * k * norm;
    c.b1 = 2.0 * c.b0;
    c.b2 = c.b0;
    secondOrderPoles(k, q, norm, &c);
    return c;
}

VynEQBiquadCoefs bandPass(double f, double q)
{
    if (f <= 0.0 || f >= 1.0)
        return zero();
    if (q <= 0.0)
        return passThrough();
    const double k = tanK(f);
    const double norm = 1.0 / (1.0 + k / q + k * k);
    VynEQBiquadCoefs c;
    c.b0 = k / q * norm;
    c.b1 = 0.0;
    c.b2 = -c.b0;
    secondOrderPoles(k, q, norm, &c);
    return c;
}

VynEQBiquadCoefs notch(double f, double q)
{
    if (f <= 0.0 || f >= 1.0)
        return passThrough();
    if (q <= 0.0)
        return zero();
    const double k = tanK(f);
    const double k2 = k * k;
    const double norm = 1.0 / (1.0 + k / q + k2);
    VynEQBiquadCoefs c;
    c.b0 = (1.0 + k2) * norm;
    c.b1 = 2.0 * (k2 - 1.0) * norm;
    c.b2 = c.b0;
    c.a1 = c.b1;
    c.a2 = (1.0 - k / q + k2) * norm;
    return c;
}

VynEQBiquadCoefs lowShelf(double f, double q, double gain)
{
    if (f == 1.0) {
        const double a = std::pow(10.0, gain / 20.0);
        return constant(a * a);
    }
    if (f == 0.0)
        return passThrough();
    const double k = tanK(f);
    const double k2 = k * k;
    const double v = std::pow(10.0, std::fabs(gain) / 20.0);
    const double sv = std::sqrt(v);
    VynEQBiquadCoefs c;
    if (gain >= 0.0) {
        const double norm = 1.0 / (1.0 + k / q + k2);
        c.b0 = (1.0 + sv / q * k + v * k2) * norm;
        c.b1 = 2.0 * (v * k2 - 1.0) * norm;
        c.b2 = (1.0 - sv / q * k + v * k2) * norm;
        c.a1 = 2.0 * (k2 - 1.0) * norm;
        c.a2 = (1.0 - k / q + k2) * norm;
    } else {
        const double norm = 1.0 / (1.0 + sv / q * k + v * k2);
        c.b0 = (1.0 + k / q + k2) * norm;
        c.b1 = 2.0 * (k2 - 1.0) * norm;
        c.b2 = (1.0 - k / q + k2) * norm;
        c.a1 = 2.0 * (v * k2 - 1.0) * norm;
        c.a2 = (1.0 - sv / q * k + v * k2) * norm;
    }
    return c;
}

VynEQBiquadCoefs highShelf(double f, double q, double gain)
{
    if (f == 1.0)
        return passThrough();
    if (f == 0.0) {
        const double a = std::pow(10.0, gain / 20.0);
        return constant(a * a);
    }
    const double k = tanK(f);
    const double k2 = k * k;
    const double v = std::pow(10.0, std::fabs(gain) / 20.0);
    const double sv = std::sqrt(v);
    VynEQBiquadCoefs c;
    if (gain >= 0.0) {
        const double norm = 1.0 / (1.0 + k / q + k2);
        c.b0 = (v + sv / q * k + k2) * norm;
        c.b1 = 2.0 * (k2 - v) * norm;
        c.b2 = (v - sv / q * k + k2) * norm;
        c.a1 = 2.0 * (k2 - 1.0) * norm;
        c.a2 = (1.0 - k / q + k2) * norm;
    } else {
        const double norm = 1.0 / (v + sv / q * k + k2);
        c.b0 = (1.0 + k / q + k2) * norm;
        c.b1 = 2.0 * (k2 - 1.0) * norm;
        c.b2 = (1.0 - k / q + k2) * norm;
        c.a1 = 2.0 * (k2 - v) * norm;
        c.a2 = (v - sv / q * k + k2) * norm;
    }
    return c;
}

bool counts(const VynEQBandValues& band)
{
    return band.enabled && band.used;
}

} // namespace

double eqLinearToDB(double p_linear)
{
    if (p_linear > 0.0)
        return 20.0 * (std::log(p_linear) / std::log(10.0));
    return kVynEQMinimumDB;
}

VynEQBiquadCoefs eqBiquadCoefs(VynEQConstants::VynEQBandType p_type, double p_normalizedFreq,
                               double p_q, double p_gain)
{
    switch (p_type) {
    case VynEQConstants::VynEQTypeBell:
        return peaking(p_normalizedFreq, p_q, p_gain);
    case VynEQConstants::VynEQTypeHighPass:
        return highPass(p_normalizedFreq, p_q);
    case VynEQConstants::VynEQTypeLowPass:
        return lowPass(p_normalizedFreq, p_q);
    case VynEQConstants::VynEQTypeBandPassParallel:
        return bandPass(p_normalizedFreq, p_q);
    case VynEQConstants::VynEQTypeLowShelf:
        return lowShelf(p_normalizedFreq, p_q, p_gain);
    case VynEQConstants::VynEQTypeHighShelf:
        return highShelf(p_normalizedFreq, p_q, p_gain);
    case VynEQConstants::VynEQTypeNotch:
        return notch(p_normalizedFreq, p_q);
    default:
        return passThrough();
    }
}

QList<double> eqNormalizedFrequenciesLog(double p_freqMin, double p_pointsPerOctave, int p_count,
                                         double p_sampleRate)
{
    QList<double> result;
    if (p_count <= 0)
        return result;
    result.reserve(p_count);
    const double nyquist = p_sampleRate / 2.0;
    const double delta = std::pow(2.0, 1.0 / p_pointsPerOctave);
    double f = p_freqMin;
    for (int i = 0; i < p_count; ++i) {
        result.append(f / nyquist);
        f *= delta;
    }
    return result;
}

QPointF eqPointsPerOctaveWithInsets(double p_freqMin, double p_freqMax, int p_count,
                                    double p_insetLeft, double p_insetRight, double p_width)
{
    const double nLeft = p_insetLeft / p_width * (p_count - 1);
    const double nRight = p_insetRight / p_width * (p_count - 1);
    const double n =
        (p_count - 1 - nLeft - nRight) / (std::log(p_freqMax / p_freqMin) / std::log(2.0));
    const double freqLeft = p_freqMin * std::pow(2.0, -nLeft / n);
    return QPointF(n, freqLeft);
}

VynEQGrid eqGrid(const QList<double>& p_normalizedFrequencies)
{
    VynEQGrid grid;
    const qsizetype count = p_normalizedFrequencies.size();
    grid.normalizedFrequencies = p_normalizedFrequencies;
    grid.cos1.resize(count);
    grid.cos2.resize(count);
    grid.sin1.resize(count);
    grid.sin2.resize(count);
    for (qsizetype i = 0; i < count; ++i) {
        const double w = kPi * p_normalizedFrequencies[i];
        grid.cos1[i] = std::cos(w);
        grid.cos2[i] = std::cos(2.0 * w);
        grid.sin1[i] = std::sin(w);
        grid.sin2[i] = std::sin(2.0 * w);
    }
    return grid;
}

bool eqCalculateMagnitudes(const QList<VynEQBandValues>& p_bands, const VynEQGrid& p_grid,
                           double p_sampleRate, QList<double>* p_magnitudesDB)
{
    for (const VynEQBandValues& band : p_bands) {
        if (counts(band) &&
            (!std::isfinite(band.frequency) || !std::isfinite(band.gain) || !std::isfinite(band.q)))
            return false;
    }
    const qsizetype count = p_grid.cos1.size();
    // The squared magnitude of every band is |num|^2 / |den|^2; numerators and denominators
    // are multiplied separately so that each point divides once, at the end.
    QList<double> numerators(count, 1.0);
    QList<double> denominators(count, 1.0);
    double* num = numerators.data();
    double* den = denominators.data();
    const double* c1 = p_grid.cos1.constData();
    const double* c2 = p_grid.cos2.constData();
    const double* s1 = p_grid.sin1.constData();
    const double* s2 = p_grid.sin2.constData();
    const double nyquist = p_sampleRate / 2.0;
    for (const VynEQBandValues& band : p_bands) {
        if (!counts(band))
            continue;
        const VynEQBiquadCoefs c =
            eqBiquadCoefs(band.type, band.frequency / nyquist, band.q, band.gain);
        if (c.b0 == 1.0 && c.b1 == 0.0 && c.b2 == 0.0 && c.a1 == 0.0 && c.a2 == 0.0)
            continue;
        for (qsizetype i = 0; i < count; ++i) {
            const double numRe = c.b0 + c.b1 * c1[i] + c.b2 * c2[i];
            const double numIm = c.b1 * s1[i] + c.b2 * s2[i];
            const double denRe = 1.0 + c.a1 * c1[i] + c.a2 * c2[i];
            const double denIm = c.a1 * s1[i] + c.a2 * s2[i];
            num[i] *= numRe * numRe + numIm * numIm;
            den[i] *= denRe * denRe + denIm * denIm;
        }
    }
    p_magnitudesDB->resize(count);
    double* out = p_magnitudesDB->data();
    for (qsizetype i = 0; i < count; ++i) {
        const double squared = num[i] / den[i];
        out[i] = squared > 0.0 ? 10.0 * (std::log(squared) / std::log(10.0)) : kVynEQMinimumDB;
    }
    return true;
}

bool eqCalculateAndGeneratePoints(const QList<VynEQBandValues>& p_bands,
                                  const VynEQPlotSettings& p_settings, QList<QPointF>* p_points)
{
    const int count = p_settings.count;
    if (count <= 0) {
        p_points->clear();
        return true;
    }
    const QPointF grid =
        eqPointsPerOctaveWithInsets(p_settings.freqMin, p_settings.freqMax, count,
                                    p_settings.insetLeft, p_settings.insetRight, p_settings.width);
    const VynEQGrid trig =
        eqGrid(eqNormalizedFrequenciesLog(grid.y(), grid.x(), count, p_settings.sampleRate));
    QList<double> magnitudes;
    if (!eqCalculateMagnitudes(p_bands, trig, p_settings.sampleRate, &magnitudes))
        return false;
    const double a = (p_settings.height - p_settings.insetTop - p_settings.insetBottom) /
                     (p_settings.gainMax - p_settings.gainMin);
    const double b = p_settings.insetTop + p_settings.gainMax * a;
    QList<QPointF> points;
    points.reserve(count);
    const double step = p_settings.width / count;
    for (int i = 0; i < count; ++i) {
        const double x = i * step;
        if (!points.isEmpty() && x - points.constLast().x() < 1.0)
            continue;
        points.append(QPointF(x, a * magnitudes[i] + b));
    }
    *p_points = points;
    return true;
}

} // namespace VynCommonUtils
