#include "benchtiming.h"

#include <vyncommonutils.h>

#include <QFile>
#include <QJSEngine>
#include <QTest>

#include <cmath>

// The cost of one full EQ response: 512 points x 16 bands through VynCommonUtils (the grid's
// trigonometry computed once per grid, each band a few multiplications per point) beside the
// plain evaluation that computes two cosines and two sines per band and point, in the same run;
// and 50 points x 10 bands through the script library, as the thumbnails compute it.

namespace {

QList<VynCommonUtils::VynEQBandValues> sixteenBands()
{
    using namespace VynEQConstants;
    const VynEQBandType types[] = {VynEQTypeHighPass, VynEQTypeLowShelf,        VynEQTypeBell,
                                   VynEQTypeBell,     VynEQTypeNotch,           VynEQTypeBell,
                                   VynEQTypeBell,     VynEQTypeBandPassParallel};
    QList<VynCommonUtils::VynEQBandValues> bands;
    for (int i = 0; i < 16; ++i) {
        VynCommonUtils::VynEQBandValues band;
        band.type = i == 15 ? VynEQTypeHighShelf : (i == 14 ? VynEQTypeLowPass : types[i % 8]);
        band.frequency = 25.0 * std::pow(2.0, i * 0.62);
        band.gain = (i % 5) * 3.0 - 6.0;
        band.q = 0.5 + (i % 4);
        bands.append(band);
    }
    return bands;
}

// The per-band evaluation: what a straightforward port of the script's loop does.
void perBandResponse(const QList<VynCommonUtils::VynEQBandValues>& bands,
                     const QList<double>& frequencies, double sampleRate, QList<double>* out)
{
    const qsizetype count = frequencies.size();
    QList<double> magnitudes(count, 1.0);
    for (const auto& band : bands) {
        const auto c = VynCommonUtils::eqBiquadCoefs(band.type, band.frequency / (sampleRate / 2),
                                                     band.q, band.gain);
        for (qsizetype i = 0; i < count; ++i) {
            const double w = M_PI * frequencies[i];
            const double numRe = c.b0 + c.b1 * std::cos(w) + c.b2 * std::cos(2 * w);
            const double numIm = -(c.b1 * std::sin(w) + c.b2 * std::sin(2 * w));
            const double denRe = 1 + c.a1 * std::cos(w) + c.a2 * std::cos(2 * w);
            const double denIm = -(c.a1 * std::sin(w) + c.a2 * std::sin(2 * w));
            magnitudes[i] *=
                std::sqrt((numRe * numRe + numIm * numIm) / (denRe * denRe + denIm * denIm));
        }
    }
    out->resize(count);
    for (qsizetype i = 0; i < count; ++i)
        (*out)[i] = VynCommonUtils::eqLinearToDB(magnitudes[i]);
}

} // namespace

class BenchEQResponse : public QObject
{
    Q_OBJECT

private slots:
    void nativeResponse();
    void scriptResponse();
};

void BenchEQResponse::nativeResponse()
{
    const auto bands = sixteenBands();
    const QList<double> frequencies = VynCommonUtils::eqNormalizedFrequenciesLog(
        20.0, 511 / std::log2(1000.0), 512, VynCommonUtils::kVynEQDefaultSampleRate);
    const VynCommonUtils::VynEQGrid grid = VynCommonUtils::eqGrid(frequencies);
    QList<double> fast;
    QList<double> plain;
    constexpr int kRuns = 200;
    const double fastMs = benchBestOf(7, [&](auto measure) {
        measure([&] {
            for (int r = 0; r < kRuns; ++r)
                VynCommonUtils::eqCalculateMagnitudes(
                    bands, grid, VynCommonUtils::kVynEQDefaultSampleRate, &fast);
        });
    });
    const double gridMs = benchBestOf(7, [&](auto measure) {
        measure([&] {
            for (int r = 0; r < kRuns; ++r) {
                const VynCommonUtils::VynEQGrid g = VynCommonUtils::eqGrid(frequencies);
                VynCommonUtils::eqCalculateMagnitudes(
                    bands, g, VynCommonUtils::kVynEQDefaultSampleRate, &fast);
            }
        });
    });
    const double plainMs = benchBestOf(7, [&](auto measure) {
        measure([&] {
            for (int r = 0; r < kRuns; ++r)
                perBandResponse(bands, frequencies, VynCommonUtils::kVynEQDefaultSampleRate,
                                &plain);
        });
    });
    for (int i = 0; i < fast.size(); ++i)
        QVERIFY(std::abs(fast[i] - plain[i]) < 1e-9);
    const double fastUs = fastMs * 1000 / kRuns;
    const double gridUs = gridMs * 1000 / kRuns;
    const double plainUs = plainMs * 1000 / kRuns;
    qInfo("512 points x 16 bands: %.1f us per response (grid shared), %.1f us with the grid "
          "built, per-band trigonometry %.1f us; ratio per-band / shared %.1f",
          fastUs, gridUs, plainUs, plainUs / fastUs);
}

void BenchEQResponse::scriptResponse()
{
    QJSEngine engine;
    QFile file(QStringLiteral(VYNUI_SOURCE_DIR "/src/qml/Script/VynEQBiquadFilter.js"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QString source = QString::fromUtf8(file.readAll());
    source.replace(QStringLiteral(".pragma library"), QString());
    QVERIFY(!engine.evaluate(source).isError());
    QJSValue run = engine.evaluate(QStringLiteral(R"(
        (function () {
            const count = 50
            const g = vynEQNumberOfPointsPerOctaveWithInsets(20, 20000, count, 0, 0, 92)
            const f = vynEQNormalizedFrequenciesLog(g[1], g[0], count, 96000)
            const m = []
            for (let i = 0; i < count; ++i)
                m.push(1)
            for (let b = 0; b < 10; ++b) {
                const c = vynEQBiquadCoefsMakeWithType(1 + b % 7, 30 * Math.pow(2, b) / 48000,
                                                       1.2, b - 4)
                vynEQAddBiquadResponses(c, m, -1, f, count)
            }
            let sum = 0
            for (let i = 0; i < count; ++i)
                sum += vynEQLinearToDB(m[i])
            return sum
        }))"));
    QVERIFY(run.isCallable());
    for (int i = 0; i < 20; ++i)
        QVERIFY(run.call().isNumber());
    constexpr int kRuns = 50;
    const double ms = benchBestOf(7, [&](auto measure) {
        measure([&] {
            for (int r = 0; r < kRuns; ++r)
                run.call();
        });
    });
    qInfo("script library, 50 points x 10 bands: %.3f ms per response", ms / kRuns);
}

QTEST_GUILESS_MAIN(BenchEQResponse)
#include "bench_eqresponse.moc"
