#pragma once

#include "vyncommonglobal.h"
#include "vyneqconstants.h"

#include <QList>
#include <QPointF>

/*!
    The EQ response sums the graph views draw.

    A band is one biquad section of one of the shapes of VynEQConstants::VynEQBandType, given
    in display units (frequency in Hz, gain in dB, q). The response of a channel is the product
    of the magnitudes of its enabled and used bands on a logarithmic frequency grid, in dB;
    a point whose product is not positive reads -1000 dB.

    The coefficients and the response follow the QML script library VynEQBiquadFilter formula
    for formula, edge cases included, so that a thumbnail drawn by the script and a graph drawn
    from these functions show the same curve. The difference is the cost: the cosines and sines
    of a grid point do not depend on the band, so they are computed once per point and every
    band then costs a few multiplications per point.
*/
namespace VynCommonUtils {

//! One band of an EQ as the sums read it.
struct VynEQBandValues
{
    VynEQConstants::VynEQBandType type = VynEQConstants::VynEQTypeThru;
    double frequency = 1000.0;
    double gain = 0.0;
    double q = 1.0;
    bool enabled = true;
    bool used = true;
};

//! Coefficients of one biquad, a0 normalised to 1.
struct VynEQBiquadCoefs
{
    double b0 = 1.0;
    double b1 = 0.0;
    double b2 = 0.0;
    double a1 = 0.0;
    double a2 = 0.0;
};

//! The cosines and sines of a logarithmic grid, shared by every band evaluated on it.
struct VynEQGrid
{
    QList<double> normalizedFrequencies;
    QList<double> cos1;
    QList<double> cos2;
    QList<double> sin1;
    QList<double> sin2;
};

//! The plot a point list is generated for: size, insets, the frequency and gain ranges.
struct VynEQPlotSettings
{
    double width = 0.0;
    double height = 0.0;
    double insetLeft = 0.0;
    double insetRight = 0.0;
    double insetTop = 0.0;
    double insetBottom = 0.0;
    double freqMin = 20.0;
    double freqMax = 20000.0;
    int count = 50;
    double sampleRate = 96000.0;
    double gainMin = -18.0;
    double gainMax = 18.0;
};

//! The value a linear magnitude of 0 or less reads in dB.
constexpr double kVynEQMinimumDB = -1000.0;

//! The sample rate the views evaluate the response at.
constexpr double kVynEQDefaultSampleRate = 96000.0;

//! 20 log10(x) for x > 0, else kVynEQMinimumDB.
VYNCOMMON_EXPORT double eqLinearToDB(double p_linear);

//! Coefficients of a band of \a p_type at normalised frequency \a p_normalizedFreq (1 is Nyquist).
VYNCOMMON_EXPORT VynEQBiquadCoefs eqBiquadCoefs(VynEQConstants::VynEQBandType p_type,
                                                double p_normalizedFreq, double p_q, double p_gain);

//! \a p_count normalised frequencies freqMin * 2^(i / N) / Nyquist, by repeated multiplication.
VYNCOMMON_EXPORT QList<double> eqNormalizedFrequenciesLog(double p_freqMin,
                                                          double p_pointsPerOctave, int p_count,
                                                          double p_sampleRate);

//! [N, fL] of a grid of \a p_count points that puts freqMin at insetLeft and freqMax at
//! width - insetRight.
VYNCOMMON_EXPORT QPointF eqPointsPerOctaveWithInsets(double p_freqMin, double p_freqMax,
                                                     int p_count, double p_insetLeft,
                                                     double p_insetRight, double p_width);

//! The trigonometry of the grid of \a p_normalizedFrequencies, computed once.
VYNCOMMON_EXPORT VynEQGrid eqGrid(const QList<double>& p_normalizedFrequencies);

/*!
    The summed response in dB of the enabled and used bands of \a p_bands at every point of
    \a p_grid. False, and \a p_magnitudesDB untouched, when a band that counts has a frequency,
    gain or q that is not a finite number: the caller keeps its previous curve.
*/
VYNCOMMON_EXPORT bool eqCalculateMagnitudes(const QList<VynEQBandValues>& p_bands,
                                            const VynEQGrid& p_grid, double p_sampleRate,
                                            QList<double>* p_magnitudesDB);

/*!
    The curve of \a p_bands in plot coordinates: the grid of \a p_settings with its insets,
    point i at x = i * width / count and y = a * dB + b with a = (height - insetTop -
    insetBottom) / (gainMax - gainMin) and b = insetTop + gainMax * a. A point closer than
    one pixel in x to the previous kept point is skipped. False, and \a p_points untouched,
    when the magnitudes cannot be computed (see eqCalculateMagnitudes()).
*/
VYNCOMMON_EXPORT bool eqCalculateAndGeneratePoints(const QList<VynEQBandValues>& p_bands,
                                                   const VynEQPlotSettings& p_settings,
                                                   QList<QPointF>* p_points);

} // namespace VynCommonUtils
