// The EQ response as the script library and the native sums compute it: every band shape
// against the textbook biquad evaluated independently here, the edge cases the devices have,
// the frequency grids, native equal to script, and the drawing and compressor helpers.

#include <vyncommonutils.h>

#include <QFile>
#include <QJSEngine>
#include <QTest>

#include <cmath>

namespace {

constexpr double kSampleRate = 96000.0;
constexpr double kToleranceDB = 1e-9;

QJSValue loadLibrary(QJSEngine& engine, const char* name)
{
    QFile file(QStringLiteral(VYNUI_SOURCE_DIR "/src/qml/Script/") + QLatin1String(name));
    if (!file.open(QIODevice::ReadOnly))
        return QJSValue(QStringLiteral("cannot open ") + file.fileName());
    QString source = QString::fromUtf8(file.readAll());
    source.replace(QStringLiteral(".pragma library"), QString());
    return engine.evaluate(source, file.fileName());
}

// The textbook second-order sections of the bilinear transform with K = tan(w0 / 2), each
// written as numerator and denominator polynomials in z^-1 before normalisation.
struct Section
{
    double n0, n1, n2, d0, d1, d2;
};

Section textbookSection(int type, double fNorm, double q, double gainDB)
{
    const double k = std::tan(M_PI * fNorm / 2.0);
    const double v = std::pow(10.0, std::abs(gainDB) / 20.0);
    const double sv = std::sqrt(v);
    const double kk = k * k;
    const bool boost = gainDB >= 0.0;
    switch (type) {
    case 1: // bell
        if (boost)
            return {1 + v * k / q + kk, 2 * (kk - 1), 1 - v * k / q + kk,
                    1 + k / q + kk,     2 * (kk - 1), 1 - k / q + kk};
        return {1 + k / q + kk,     2 * (kk - 1), 1 - k / q + kk,
                1 + v * k / q + kk, 2 * (kk - 1), 1 - v * k / q + kk};
    case 2: // high-pass
        return {1, -2, 1, 1 + k / q + kk, 2 * (kk - 1), 1 - k / q + kk};
    case 3: // low-pass
        return {kk, 2 * kk, kk, 1 + k / q + kk, 2 * (kk - 1), 1 - k / q + kk};
    case 4: // high shelf
        if (boost)
            return {v + sv * k / q + kk, 2 * (kk - v), v - sv * k / q + kk,
                    1 + k / q + kk,      2 * (kk - 1), 1 - k / q + kk};
        return {1 + k / q + kk,      2 * (kk - 1), 1 - k / q + kk,
                v + sv * k / q + kk, 2 * (kk - v), v - sv * k / q + kk};
    case 5: // low shelf
        if (boost)
            return {1 + sv * k / q + v * kk, 2 * (v * kk - 1), 1 - sv * k / q + v * kk,
                    1 + k / q + kk,          2 * (kk - 1),     1 - k / q + kk};
        return {1 + k / q + kk,          2 * (kk - 1),     1 - k / q + kk,
                1 + sv * k / q + v * kk, 2 * (v * kk - 1), 1 - sv * k / q + v * kk};
    case 6: // notch
        return {1 + kk, 2 * (kk - 1), 1 + kk, 1 + k / q + kk, 2 * (kk - 1), 1 - k / q + kk};
    case 7: // band-pass
        return {k / q, 0, -k / q, 1 + k / q + kk, 2 * (kk - 1), 1 - k / q + kk};
    default:
        return {1, 0, 0, 1, 0, 0};
    }
}

// |H(e^jw)| in dB: the section normalised by 1 / d0, then H(e^jw) = sum(b_k e^-jwk) /
// sum(a_k e^-jwk) expanded into cosines and sines. Near DC the numerator of a high-pass is a
// difference of nearly equal numbers, so the evaluation is written out term by term the way
// a textbook does, not through a complex exponential whose rounding differs by far more than
// the 1e-9 dB the curves are held to.
double textbookDB(const Section& s, double fNorm)
{
    const double norm = 1.0 / s.d0;
    const double b0 = s.n0 * norm, b1 = s.n1 * norm, b2 = s.n2 * norm;
    const double a1 = s.d1 * norm, a2 = s.d2 * norm;
    const double w = M_PI * fNorm;
    const double numRe = b0 + b1 * std::cos(w) + b2 * std::cos(2 * w);
    const double numIm = -(b1 * std::sin(w) + b2 * std::sin(2 * w));
    const double denRe = 1 + a1 * std::cos(w) + a2 * std::cos(2 * w);
    const double denIm = -(a1 * std::sin(w) + a2 * std::sin(2 * w));
    const double magnitude = std::hypot(numRe, numIm) / std::hypot(denRe, denIm);
    return magnitude > 0 ? 20.0 * std::log10(magnitude) : -1000.0;
}

QList<double> testFrequencies()
{
    QList<double> result;
    for (double f = 20.0; f < 48000.0; f *= 1.37)
        result.append(f / (kSampleRate / 2.0));
    return result;
}

QJSValue toJSArray(QJSEngine& engine, const QList<double>& values)
{
    QJSValue array = engine.newArray(uint(values.size()));
    for (int i = 0; i < values.size(); ++i)
        array.setProperty(quint32(i), values[i]);
    return array;
}

struct Band
{
    int type;
    double frequency;
    double q;
    double gain;
};

} // namespace

Q_DECLARE_METATYPE(QList<Band>)

class tst_EQResponse : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void bandShapes_data();
    void bandShapes();
    void analogLandmarks_data();
    void analogLandmarks();
    void edgeCases_data();
    void edgeCases();
    void phaseFolding_data();
    void phaseFolding();
    void grids_data();
    void grids();

    void nativeEqualsScript_data();
    void nativeEqualsScript();
    void nativePointsEqualScriptPoints_data();
    void nativePointsEqualScriptPoints();
    void nativeRefusesNonFiniteBands();

    void plotHelperCalls_data();
    void plotHelperCalls();
    void segmentsIntersect_data();
    void segmentsIntersect();
    void plotHelperDebugLines();
    void compressorHelper_data();
    void compressorHelper();

private:
    double scriptNumber(const QString& expression);
    QList<double> scriptSumDB(const QList<Band>& bands, const QList<double>& frequencies);

    QJSEngine m_eq;
    QJSEngine m_plot;
    QJSEngine m_compressor;
};

void tst_EQResponse::initTestCase()
{
    for (auto [engine, name] :
         {std::pair{&m_eq, "VynEQBiquadFilter.js"}, std::pair{&m_plot, "PlotHelper.js"},
          std::pair{&m_compressor, "CompressorHelper.js"}}) {
        engine->installExtensions(QJSEngine::ConsoleExtension);
        const QJSValue result = loadLibrary(*engine, name);
        QVERIFY2(!result.isError() && !result.isString(), qPrintable(result.toString()));
    }
}

double tst_EQResponse::scriptNumber(const QString& expression)
{
    const QJSValue value = m_eq.evaluate(expression);
    if (value.isError())
        qWarning("%s: %s", qPrintable(expression), qPrintable(value.toString()));
    return value.toNumber();
}

QList<double> tst_EQResponse::scriptSumDB(const QList<Band>& bands,
                                          const QList<double>& frequencies)
{
    QJSValue magnitudes = m_eq.newArray(uint(frequencies.size()));
    for (int i = 0; i < frequencies.size(); ++i)
        magnitudes.setProperty(quint32(i), 1.0);
    const QJSValue jsFrequencies = toJSArray(m_eq, frequencies);
    QJSValue global = m_eq.globalObject();
    for (const Band& band : bands) {
        const QJSValue coefs =
            global.property("vynEQBiquadCoefsMakeWithType")
                .call({band.type, band.frequency / (kSampleRate / 2.0), band.q, band.gain});
        global.property("vynEQAddBiquadResponses")
            .call({coefs, magnitudes, -1, jsFrequencies, int(frequencies.size())});
    }
    QList<double> result;
    for (int i = 0; i < frequencies.size(); ++i)
        result.append(
            global.property("vynEQLinearToDB").call({magnitudes.property(quint32(i))}).toNumber());
    return result;
}

void tst_EQResponse::bandShapes_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("q");
    QTest::addColumn<double>("gain");

    const char* names[] = {"thru",       "bell",      "highpass", "lowpass",
                           "high shelf", "low shelf", "notch",    "bandpass"};
    for (int type = 0; type <= 7; ++type) {
        for (double frequency : {31.5, 1000.0, 12000.0}) {
            for (double q : {0.3, 0.707, 4.0}) {
                for (double gain : {-15.0, -0.5, 0.0, 6.0, 18.0}) {
                    QTest::addRow("%s %g Hz q %g %g dB", names[type], frequency, q, gain)
                        << type << frequency << q << gain;
                }
            }
        }
    }
}

void tst_EQResponse::bandShapes()
{
    QFETCH(int, type);
    QFETCH(double, frequency);
    QFETCH(double, q);
    QFETCH(double, gain);

    const Section section = textbookSection(type, frequency / (kSampleRate / 2.0), q, gain);
    const QList<double> frequencies = testFrequencies();
    const QList<double> script = scriptSumDB({{type, frequency, q, gain}}, frequencies);
    for (int i = 0; i < frequencies.size(); ++i) {
        const double expected = textbookDB(section, frequencies[i]);
        QVERIFY2(std::abs(script[i] - expected) <= kToleranceDB,
                 qPrintable(QStringLiteral("at %1: %2 dB, expected %3 dB")
                                .arg(frequencies[i])
                                .arg(script[i], 0, 'g', 17)
                                .arg(expected, 0, 'g', 17)));
    }
}

// Values every audio engineer knows: the gain of a bell at its centre, the level of a
// resonant low- or high-pass at its cut-off (20 log10 q), a shelf's full gain at its far end.
void tst_EQResponse::analogLandmarks_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("q");
    QTest::addColumn<double>("gain");
    QTest::addColumn<double>("at");
    QTest::addColumn<double>("expectedDB");

    QTest::newRow("bell boost at centre") << 1 << 1000.0 << 2.0 << 9.0 << 1000.0 << 9.0;
    QTest::newRow("bell cut at centre") << 1 << 250.0 << 0.5 << -12.0 << 250.0 << -12.0;
    QTest::newRow("low-pass at cut-off")
        << 3 << 2000.0 << 2.0 << 0.0 << 2000.0 << 20.0 * std::log10(2.0);
    QTest::newRow("high-pass at cut-off")
        << 2 << 80.0 << 0.5 << 0.0 << 80.0 << 20.0 * std::log10(0.5);
    QTest::newRow("band-pass at centre") << 7 << 500.0 << 3.0 << 0.0 << 500.0 << 0.0;
    QTest::newRow("low shelf boost at DC") << 5 << 200.0 << 0.7 << 6.0 << 0.0 << 6.0;
    QTest::newRow("low shelf cut at DC") << 5 << 200.0 << 0.7 << -10.0 << 0.0 << -10.0;
    QTest::newRow("high shelf boost at Nyquist") << 4 << 5000.0 << 0.7 << 4.0 << 48000.0 << 4.0;
    QTest::newRow("high shelf cut at Nyquist") << 4 << 5000.0 << 0.7 << -8.0 << 48000.0 << -8.0;
    QTest::newRow("low shelf at Nyquist") << 5 << 200.0 << 0.7 << 6.0 << 48000.0 << 0.0;
}

void tst_EQResponse::analogLandmarks()
{
    QFETCH(int, type);
    QFETCH(double, frequency);
    QFETCH(double, q);
    QFETCH(double, gain);
    QFETCH(double, at);
    QFETCH(double, expectedDB);

    const QList<double> db = scriptSumDB({{type, frequency, q, gain}}, {at / 48000.0});
    QVERIFY2(std::abs(db[0] - expectedDB) < 1e-9, qPrintable(QString::number(db[0], 'g', 17)));
}

void tst_EQResponse::edgeCases_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<double>("expected");

    // A bell of 0 dB makes numerator and denominator equal: exactly 1, not nearly.
    QTest::newRow("bell 0 dB low") << "vynEQBiquadResponse(vynEQPeakingCoefs(0.01, 1.5, 0), "
                                      "0.003)[0]"
                                   << 1.0;
    QTest::newRow("bell 0 dB high") << "vynEQBiquadResponse(vynEQPeakingCoefs(0.4, 9, 0), "
                                       "0.77)[0]"
                                    << 1.0;
    QTest::newRow("bell q 0 is flat 12 dB")
        << "vynEQLinearToDB(vynEQBiquadResponse(vynEQPeakingCoefs(0.1, 0, 6), 0.6)[0])" << 12.0;
    QTest::newRow("bell q 0 cut squares the same gain")
        << "vynEQBiquadCoefsMakeWithType(1, 0.1, -1, -6).b0" << std::pow(10.0, 12.0 / 20.0);
    QTest::newRow("bell at 0 passes") << "vynEQPeakingCoefs(0, 1, 12).b0" << 1.0;
    QTest::newRow("bell at Nyquist passes") << "vynEQPeakingCoefs(1, 1, 12).a2" << 0.0;
    QTest::newRow("high-pass at Nyquist is -1000 dB")
        << "vynEQLinearToDB(vynEQBiquadResponse(vynEQBiquadCoefsMakeWithType(2, 1, 0.7, 0), "
           "0.2)[0])"
        << -1000.0;
    QTest::newRow("high-pass at 0 passes") << "vynEQHighPassCoefs(0, 0.7).b0" << 1.0;
    QTest::newRow("low-pass at Nyquist passes")
        << "vynEQBiquadResponse(vynEQBiquadCoefsMakeWithType(3, 1, 0.7, 0), 0.9)[0]" << 1.0;
    QTest::newRow("notch at Nyquist passes")
        << "vynEQBiquadResponse(vynEQBiquadCoefsMakeWithType(6, 1, 4, 0), 0.999)[0]" << 1.0;
    QTest::newRow("notch q 0 is zero") << "vynEQNotchCoefs(0.2, 0).b0" << 0.0;
    QTest::newRow("band-pass at 0 is zero") << "vynEQBandPassCoefs(0, 2).b0" << 0.0;
    QTest::newRow("band-pass above Nyquist is zero") << "vynEQBandPassCoefs(1.2, 2).b0" << 0.0;
    QTest::newRow("band-pass q 0 passes") << "vynEQBandPassCoefs(0.3, 0).b0" << 1.0;
    QTest::newRow("low shelf at Nyquist squares the signed gain")
        << "vynEQLowShelfCoefs(1, 0.7, -6).b0" << std::pow(10.0, -12.0 / 20.0);
    QTest::newRow("low shelf at 0 passes") << "vynEQLowShelfCoefs(0, 0.7, -6).b0" << 1.0;
    QTest::newRow("high shelf at 0 squares the signed gain")
        << "vynEQHighShelfCoefs(0, 0.7, 3).b0" << std::pow(10.0, 6.0 / 20.0);
    QTest::newRow("high shelf at Nyquist passes") << "vynEQHighShelfCoefs(1, 0.7, 3).b0" << 1.0;
    QTest::newRow("thru passes") << "vynEQBiquadCoefsMakeWithType(0, 0.3, 2, 12).b0" << 1.0;
    QTest::newRow("unknown type passes")
        << "vynEQBiquadCoefsMakeWithType(42, 0.3, 2, 12).b0" << 1.0;
    QTest::newRow("default coefs") << "vynEQDefaultCoefs().a1" << 0.0;
    QTest::newRow("linear to dB of 0") << "vynEQLinearToDB(0)" << -1000.0;
    QTest::newRow("linear to dB of a negative") << "vynEQLinearToDB(-3)" << -1000.0;
    QTest::newRow("linear to dB of 10") << "vynEQLinearToDB(10)" << 20.0;
    QTest::newRow("summed phase folds pi to -pi")
        << "vynEQAddBiquadResponses({b0: 1, b1: 0, b2: 0, a1: -3, a2: 0}, -1, [0.25], [0], 1)[1][0]"
        << -M_PI + 0.25;
    QTest::newRow("summed phases skip magnitudes")
        << "vynEQAddBiquadResponses(vynEQPeakingCoefs(0.1, 2, 6), -1, [0], [0.3], 1)[0]" << -1.0;
    QTest::newRow("log2") << "log2(8)" << 3.0;
    QTest::newRow("log10") << "log10(1000)" << 3.0;
}

void tst_EQResponse::edgeCases()
{
    QFETCH(QString, expression);
    QFETCH(double, expected);

    const double value = scriptNumber(expression);
    if (expected == 1.0 && expression.contains(QLatin1String("vynEQPeakingCoefs(0.")))
        QCOMPARE(value, 1.0); // exactly
    else
        QVERIFY2(std::abs(value - expected) <= 1e-12 * std::max(1.0, std::abs(expected)),
                 qPrintable(QString::number(value, 'g', 17)));
}

// The phase is folded into (-pi, pi) once; a raw phase of exactly pi comes back as -pi.
void tst_EQResponse::phaseFolding_data()
{
    QTest::addColumn<QString>("coefs");
    QTest::addColumn<double>("freq");
    QTest::addColumn<double>("expected");

    // Denominator 1 - 3 at DC points at -pi (a negative zero imaginary part); the numerator at 0.
    QTest::newRow("pi becomes -pi") << "{b0: 1, b1: 0, b2: 0, a1: -3, a2: 0}" << 0.0 << -M_PI;
    // A pure delay of two samples at 0.75 Nyquist: -1.5 pi folds to 0.5 pi.
    QTest::newRow("below -pi folds up")
        << "{b0: 0, b1: 0, b2: 1, a1: 0, a2: 0}" << 0.75 << 0.5 * M_PI;
    // One sample of delay against a two-sample delay denominator: +0.75 pi stays.
    QTest::newRow("inside stays") << "{b0: 0, b1: 1, b2: 0, a1: 0, a2: -1}" << 0.0 << 0.0;
}

void tst_EQResponse::phaseFolding()
{
    QFETCH(QString, coefs);
    QFETCH(double, freq);
    QFETCH(double, expected);

    const double phase =
        scriptNumber(QStringLiteral("vynEQBiquadResponse(%1, %2)[1]").arg(coefs).arg(freq));
    QVERIFY2(std::abs(phase - expected) < 1e-12, qPrintable(QString::number(phase, 'g', 17)));
    QVERIFY(phase > -M_PI - 1e-12 && phase < M_PI);
}

void tst_EQResponse::grids_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<double>("expected");

    // The linear grid runs downward from freqMin: its step is (min - max) / count.
    QTest::newRow("lin first") << "vynEQNormalizedFrequenciesLin(1000, 2000, 4, 96000)[0]"
                               << 1000.0 / 48000.0;
    QTest::newRow("lin last") << "vynEQNormalizedFrequenciesLin(1000, 2000, 4, 96000)[3]"
                              << (1000.0 - 3 * 250.0) / 48000.0;
    QTest::newRow("lin count") << "vynEQNormalizedFrequenciesLin(1000, 2000, 4, 96000).length"
                               << 4.0;
    QTest::newRow("log point 12") << "vynEQNormalizedFrequenciesLog(20, 12, 25, 96000)[12]"
                                  << 40.0 / 48000.0;
    QTest::newRow("log point 24") << "vynEQNormalizedFrequenciesLog(20, 12, 25, 96000)[24]"
                                  << 80.0 / 48000.0;
    QTest::newRow("log count") << "vynEQNormalizedFrequenciesLog(20, 12, 25, 96000).length" << 25.0;
    QTest::newRow("given frequencies cut at count")
        << "vynEQNormalizedFrequencies([100, 200, 300], 2, 96000).length" << 2.0;
    QTest::newRow("given frequencies cut at length")
        << "vynEQNormalizedFrequencies([100, 200, 300], 9, 96000)[2]" << 300.0 / 48000.0;
    QTest::newRow("normalized frequency") << "vynEQNormalizedFrequency(12000, 96000)" << 0.25;
    QTest::newRow("points per octave") << "vynEQNumberOfPointsPerOctave(20, 20480, 51)" << 5.0;
    QTest::newRow("delta") << "vynEQLogarithmicDeltaFreq(2)" << std::sqrt(2.0);
    QTest::newRow("log freq") << "vynEQLogarithmicFreq(100, 6, 3)" << 400.0;
    QTest::newRow("log freq index") << "vynEQLogarithmicFreqIndex(800, 100, 4)" << 12.0;
    QTest::newRow("log freq x") << "vynEQLogarithmicFreqX(800, 100, 4, 48, 96)" << 24.0;
    // With insets the grid puts fMin at nLeft = insetLeft / width * (C - 1) points from its
    // left end and fMax at nRight points from its right end.
    const char* insets = "vynEQNumberOfPointsPerOctaveWithInsets(20, 20000, 51, 10, 30, 200)";
    QTest::newRow("insets fMin index")
        << QStringLiteral("(function (g) { return vynEQLogarithmicFreqIndex(20, g[1], g[0]) })(%1)")
               .arg(QLatin1String(insets))
        << 10.0 / 200.0 * 50.0;
    QTest::newRow("insets fMax index")
        << QStringLiteral(
               "(function (g) { return vynEQLogarithmicFreqIndex(20000, g[1], g[0]) })(%1)")
               .arg(QLatin1String(insets))
        << 50.0 - 30.0 / 200.0 * 50.0;
    QTest::newRow("no insets") << "vynEQNumberOfPointsPerOctaveWithInsets(20, 20480, 51, 0, 0, "
                                  "100)[1]"
                               << 20.0;
}

void tst_EQResponse::grids()
{
    QFETCH(QString, expression);
    QFETCH(double, expected);

    const double value = scriptNumber(expression);
    QVERIFY2(std::abs(value - expected) <= 1e-12 * std::max(1.0, std::abs(expected)),
             qPrintable(QString::number(value, 'g', 17)));
}

void tst_EQResponse::nativeEqualsScript_data()
{
    QTest::addColumn<QList<Band>>("bands");

    for (int type = 0; type <= 8; ++type) {
        for (const Band& band : {Band{type, 1000.0, 0.707, 6.0}, Band{type, 63.0, 3.0, -9.0},
                                 Band{type, 0.0, 1.0, 6.0}, Band{type, 48000.0, 1.0, -6.0},
                                 Band{type, 60000.0, 1.0, 3.0}, Band{type, 2000.0, 0.0, 6.0},
                                 Band{type, 2000.0, -1.0, -6.0}, Band{type, 150.0, 2.0, 0.0}}) {
            QTest::addRow("type %d %g Hz q %g %g dB", band.type, band.frequency, band.q, band.gain)
                << QList<Band>{band};
        }
    }
    QTest::newRow("sixteen bands")
        << QList<Band>{{1, 40, 1, 3},     {2, 30, 0.7, 0},   {3, 18000, 0.7, 0}, {4, 8000, 0.7, 4},
                       {5, 120, 0.7, -3}, {6, 3000, 8, 0},   {7, 700, 2, 0},     {1, 250, 4, -6},
                       {1, 500, 0.5, 2},  {1, 1000, 1, -12}, {1, 2000, 2, 9},    {1, 4000, 3, -4},
                       {1, 8000, 6, 1},   {1, 16000, 1, -2}, {0, 1000, 1, 18},   {1, 90, 0.3, 15}};
}

void tst_EQResponse::nativeEqualsScript()
{
    QFETCH(QList<Band>, bands);

    const QList<double> frequencies =
        VynCommonUtils::eqNormalizedFrequenciesLog(20.0, 7.3, 80, kSampleRate);
    const QList<double> script = scriptSumDB(bands, frequencies);
    QList<VynCommonUtils::VynEQBandValues> values;
    for (const Band& band : bands) {
        VynCommonUtils::VynEQBandValues v;
        v.type = VynEQConstants::VynEQBandType(band.type);
        v.frequency = band.frequency;
        v.q = band.q;
        v.gain = band.gain;
        values.append(v);
    }
    // A band that is disabled or unused does not count.
    VynCommonUtils::VynEQBandValues disabled;
    disabled.type = VynEQConstants::VynEQTypeBell;
    disabled.gain = 12.0;
    disabled.enabled = false;
    VynCommonUtils::VynEQBandValues unused = disabled;
    unused.enabled = true;
    unused.used = false;
    values << disabled << unused;

    QList<double> native;
    QVERIFY(VynCommonUtils::eqCalculateMagnitudes(values, VynCommonUtils::eqGrid(frequencies),
                                                  kSampleRate, &native));
    QCOMPARE(native.size(), script.size());
    for (int i = 0; i < native.size(); ++i) {
        QVERIFY2(std::abs(native[i] - script[i]) <= kToleranceDB,
                 qPrintable(QStringLiteral("point %1: native %2, script %3")
                                .arg(i)
                                .arg(native[i], 0, 'g', 17)
                                .arg(script[i], 0, 'g', 17)));
    }
    // The grid itself is the script's.
    const QJSValue scriptGrid = m_eq.evaluate(QStringLiteral("vynEQNormalizedFrequenciesLog(20, "
                                                             "7.3, 80, 96000)"));
    for (int i = 0; i < frequencies.size(); ++i)
        QCOMPARE(frequencies[i], scriptGrid.property(quint32(i)).toNumber());
}

void tst_EQResponse::nativePointsEqualScriptPoints_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("insetLeft");
    QTest::addColumn<double>("insetRight");

    QTest::newRow("thumbnail") << 92.0 << 50 << 0.0 << 0.0;
    QTest::newRow("narrow skips points") << 30.0 << 50 << 2.0 << 3.0;
    QTest::newRow("graph with insets") << 600.0 << 512 << 40.0 << 12.0;
    QTest::newRow("no points") << 100.0 << 0 << 0.0 << 0.0;
}

// The thumbnail's point list, built in script from the library, against the native one.
void tst_EQResponse::nativePointsEqualScriptPoints()
{
    QFETCH(double, width);
    QFETCH(int, count);
    QFETCH(double, insetLeft);
    QFETCH(double, insetRight);

    const QJSValue build = m_eq.evaluate(QStringLiteral(R"(
        (function (width, height, count, insetLeft, insetRight, insetTop, insetBottom) {
            const g = vynEQNumberOfPointsPerOctaveWithInsets(20, 20000, count, insetLeft,
                                                             insetRight, width)
            const f = vynEQNormalizedFrequenciesLog(g[1], g[0], count, 96000)
            const m = []
            for (let i = 0; i < count; ++i)
                m.push(1)
            vynEQAddBiquadResponses(vynEQBiquadCoefsMakeWithType(1, 1000 / 48000, 2, 9), m,
                                    -1, f, count)
            vynEQAddBiquadResponses(vynEQBiquadCoefsMakeWithType(2, 80 / 48000, 0.7, 0), m,
                                    -1, f, count)
            const a = (height - insetTop - insetBottom) / (18 - -18)
            const b = insetTop + 18 * a
            const points = []
            for (let i = 0; i < count; ++i) {
                const x = i * width / count
                if (points.length > 0 && x - points[points.length - 1].x < 1)
                    continue
                points.push({x: x, y: a * vynEQLinearToDB(m[i]) + b})
            }
            return points
        }))"));
    const QJSValue scriptPoints = build.call({width, 120.0, count, insetLeft, insetRight, 4, 6});

    VynCommonUtils::VynEQPlotSettings settings;
    settings.width = width;
    settings.height = 120.0;
    settings.count = count;
    settings.insetLeft = insetLeft;
    settings.insetRight = insetRight;
    settings.insetTop = 4;
    settings.insetBottom = 6;
    VynCommonUtils::VynEQBandValues bell;
    bell.type = VynEQConstants::VynEQTypeBell;
    bell.q = 2;
    bell.gain = 9;
    VynCommonUtils::VynEQBandValues highPass;
    highPass.type = VynEQConstants::VynEQTypeHighPass;
    highPass.frequency = 80;
    highPass.q = 0.7;
    QList<QPointF> points{QPointF(-1, -1)};
    QVERIFY(VynCommonUtils::eqCalculateAndGeneratePoints({bell, highPass}, settings, &points));
    QCOMPARE(points.size(), scriptPoints.property("length").toInt());
    for (int i = 0; i < points.size(); ++i) {
        QCOMPARE(points[i].x(), scriptPoints.property(quint32(i)).property("x").toNumber());
        QVERIFY(std::abs(points[i].y() -
                         scriptPoints.property(quint32(i)).property("y").toNumber()) < 1e-9);
    }
}

void tst_EQResponse::nativeRefusesNonFiniteBands()
{
    const VynCommonUtils::VynEQGrid grid =
        VynCommonUtils::eqGrid(VynCommonUtils::eqNormalizedFrequenciesLog(20, 5, 50, kSampleRate));
    VynCommonUtils::VynEQBandValues band;
    band.type = VynEQConstants::VynEQTypeBell;
    band.gain = std::nan("");
    QList<double> magnitudes{42.0};
    QVERIFY(!VynCommonUtils::eqCalculateMagnitudes({band}, grid, kSampleRate, &magnitudes));
    QCOMPARE(magnitudes, QList<double>{42.0});
    // The same band switched off no longer stops the update.
    band.enabled = false;
    QVERIFY(VynCommonUtils::eqCalculateMagnitudes({band}, grid, kSampleRate, &magnitudes));
    QCOMPARE(magnitudes.size(), 50);
    QCOMPARE(magnitudes[17], 0.0);
}

// A recording context: every call is written as "name(args)" into ctx.log.
static const char* const kRecordingContext = R"js(
    (function () {
        const ctx = { log: [] }
        for (const name of ["beginPath", "moveTo", "lineTo", "arcTo", "closePath", "stroke",
                            "fill", "save", "restore"]) {
            ctx[name] = function () {
                ctx.log.push(name + "(" + Array.prototype.slice.call(arguments).join(",") + ")")
            }
        }
        return ctx
    })())js";

void tst_EQResponse::plotHelperCalls_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("expectedPathCalls");

    // Only whole dashes are drawn: 0-3 and 4-7 fit before 10, the dash at 8 would not.
    QTest::newRow("dashed along x") << "drawDashedLine(ctx, 0, 5, 10, 5, 3, 4, 1, 'red')"
                                    << "moveTo(0,5) lineTo(3,5) moveTo(4,5) lineTo(7,5)";
    QTest::newRow("dashed along x from the left end")
        << "drawDashedLine(ctx, 10, 0, 0, 5, 3, 4, 1, 'red')"
        << "moveTo(0,5) lineTo(3,3.5) moveTo(4,3) lineTo(7,1.5)";
    QTest::newRow("dashed along y") << "drawDashedLine(ctx, 2, 0, 2, 9, 2, 5, 1, 'red')"
                                    << "moveTo(2,0) lineTo(2,2) moveTo(2,5) lineTo(2,7)";
    QTest::newRow("dashed of no length") << "drawDashedLine(ctx, 3, 3, 3, 3, 2, 5, 1, 'red')"
                                         << "";
    QTest::newRow("dotted") << "drawDottedLine(ctx, 0, 0, 6, 0, 2, 1, 'red')"
                            << "moveTo(0,0) lineTo(1,0) moveTo(2,0) lineTo(3,0) moveTo(4,0) "
                               "lineTo(5,0)";
    QTest::newRow("line") << "drawLine(ctx, 1, 2, 3, 4, 1, 'red')"
                          << "moveTo(1,2) lineTo(3,4)";
    QTest::newRow("polyline of one point") << "drawPolyline(ctx, [{x: 1, y: 1}], 1, 'red')"
                                           << "";
    QTest::newRow("polyline") << "drawPolyline(ctx, [{x: 1, y: 1}, {x: 2, y: 3}], 1, 'red')"
                              << "moveTo(1,1) lineTo(2,3)";
    QTest::newRow("fill of two points") << "drawFillPath(ctx, [{x: 1, y: 1}, {x: 2, y: 3}], 'red')"
                                        << "";
    QTest::newRow("fill starts over point 0")
        << "drawFillPath(ctx, [{x: 0, y: 0}, {x: 4, y: 0}, {x: 4, y: 4}], 'red')"
        << "moveTo(0,0) lineTo(0,0) lineTo(4,0) lineTo(4,4) closePath()";
    QTest::newRow("stroke polylines shift by the origin and replace NaN")
        << "strokePolylines(ctx, [{linePoints: [{x: 5, y: NaN}, {x: 7, y: 9}], origin: {x: 1, y: "
           "2}, lineThickness: 2, lineColor: 'red'}], false)"
        << "moveTo(4,0) lineTo(6,7)";
    QTest::newRow("fill polylines")
        << "fillPolylines(ctx, [{fillPoints: [{x: 1, y: 1}, {x: 3, y: 1}, {x: 3, y: 3}], origin: "
           "{x: 1, y: 1}, fillColor: 'red'}], false)"
        << "moveTo(0,0) lineTo(2,0) lineTo(2,2) closePath()";
    QTest::newRow("round rect") << "roundRect(ctx, 0, 0, 10, 20, 2)"
                                << "moveTo(2,0) arcTo(10,0,10,20,2) arcTo(10,20,0,20,2) "
                                   "arcTo(0,20,0,0,2) arcTo(0,0,10,0,2) "
                                   "closePath()";
    QTest::newRow("round rect radius shrinks")
        << "roundRectFromRect(ctx, {x: 1, y: 1, width: 4, height: 20}, 5)"
        << "moveTo(3,1) arcTo(5,1,5,21,2) arcTo(5,21,1,21,2) arcTo(1,21,1,1,2) arcTo(1,1,5,1,2) "
           "closePath()";
}

void tst_EQResponse::plotHelperCalls()
{
    QFETCH(QString, call);
    QFETCH(QString, expectedPathCalls);

    QJSValue ctx = m_plot.evaluate(QLatin1String(kRecordingContext));
    m_plot.globalObject().setProperty("ctx", ctx);
    const QJSValue result = m_plot.evaluate(call);
    QVERIFY2(!result.isError(), qPrintable(result.toString()));
    QStringList pathCalls;
    const int length = ctx.property("log").property("length").toInt();
    for (int i = 0; i < length; ++i) {
        const QString entry = ctx.property("log").property(quint32(i)).toString();
        if (!entry.startsWith(QLatin1String("save")) &&
            !entry.startsWith(QLatin1String("restore")) &&
            !entry.startsWith(QLatin1String("beginPath")) &&
            !entry.startsWith(QLatin1String("stroke")) && !entry.startsWith(QLatin1String("fill(")))
            pathCalls << entry;
    }
    QCOMPARE(pathCalls.join(QLatin1Char(' ')), expectedPathCalls);
}

void tst_EQResponse::segmentsIntersect_data()
{
    QTest::addColumn<QString>("segments");
    QTest::addColumn<bool>("expected");

    QTest::newRow("crossing") << "{x: 0, y: 0}, {x: 4, y: 4}, {x: 0, y: 4}, {x: 4, y: 0}" << true;
    QTest::newRow("parallel apart")
        << "{x: 0, y: 0}, {x: 4, y: 0}, {x: 0, y: 1}, {x: 4, y: 1}" << false;
    QTest::newRow("parallel overlapping")
        << "{x: 0, y: 0}, {x: 4, y: 0}, {x: 2, y: 0}, {x: 6, y: 0}" << false;
    QTest::newRow("meets AB only beyond D counts")
        << "{x: 0, y: 0}, {x: 4, y: 0}, {x: 2, y: 4}, {x: 2, y: 2}" << true;
    QTest::newRow("meets CD beyond B does not")
        << "{x: 0, y: 0}, {x: 1, y: 0}, {x: 2, y: -1}, {x: 2, y: 1}" << false;
    QTest::newRow("meets before C does not")
        << "{x: 0, y: 0}, {x: 4, y: 0}, {x: 2, y: 2}, {x: 2, y: 4}" << false;
}

void tst_EQResponse::segmentsIntersect()
{
    QFETCH(QString, segments);
    QFETCH(bool, expected);

    const QJSValue result = m_plot.evaluate(QStringLiteral("segmentsIntersect(%1)").arg(segments));
    QVERIFY(result.isBool());
    QCOMPARE(result.toBool(), expected);
}

void tst_EQResponse::plotHelperDebugLines()
{
    QJSValue ctx = m_plot.evaluate(QLatin1String(kRecordingContext));
    m_plot.globalObject().setProperty("ctx", ctx);
    QTest::ignoreMessage(QtDebugMsg, "drawing line from (0,1) to (2,3)");
    QTest::ignoreMessage(QtDebugMsg, "drawing fill line from (0,1) to (2,3)");
    QTest::ignoreMessage(QtDebugMsg, "drawing fill line from (2,3) to (4,0)");
    m_plot.evaluate("strokePolylines(ctx, [{linePoints: [{x: 0, y: 1}, {x: 2, y: 3}], origin: "
                    "{x: 0, y: 0}, lineThickness: 1, lineColor: 'red'}], true);"
                    "fillPolylines(ctx, [{fillPoints: [{x: 0, y: 1}, {x: 2, y: 3}, {x: 4, y: 0}],"
                    " origin: {x: 0, y: 0}, fillColor: 'red'}], true)");
    const QJSValue point = m_plot.evaluate("checkAndReplaceNaN({x: NaN, y: 7})");
    QCOMPARE(point.property("x").toNumber(), 0.0);
    QCOMPARE(point.property("y").toNumber(), 7.0);
}

void tst_EQResponse::compressorHelper_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<double>("expected");

    QTest::newRow("threshold in the middle") << "getXThreshold(0, 18, -18, 80)" << 40.0;
    QTest::newRow("threshold at the bottom") << "getXThreshold(-18, 18, -18, 80)" << 0.0;
    QTest::newRow("threshold at the top") << "getXThreshold(18, 18, -18, 80)" << 80.0;
    QTest::newRow("compression 4:1") << "getYCompression(0.25, 40, 80)" << 50.0;
    QTest::newRow("no compression") << "getYCompression(1, 40, 80)" << 80.0;
    QTest::newRow("defaults") << "getYCompression(defaultInverseCompressionRatio, "
                                 "getXThreshold(defaultThreshold, defaultMaxThreshold, "
                                 "defaultMinThreshold, 80), 80)"
                              << 50.0;
}

void tst_EQResponse::compressorHelper()
{
    QFETCH(QString, expression);
    QFETCH(double, expected);

    QCOMPARE(m_compressor.evaluate(expression).toNumber(), expected);
}

QTEST_GUILESS_MAIN(tst_EQResponse)
#include "tst_eqresponse.moc"
