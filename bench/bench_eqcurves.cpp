#include "benchtiming.h"

#include "vyneqcurvemodel.h"

#include <vyneqcommoneq.h>

#include <QTest>

// Dragging one handle of a 16-band EQ drawn on 512 points: each step offers a new frequency
// and gain, the band is evaluated alone, the sum added again and the point list handed to the
// view. Reported against a 60 Hz frame, and beside a full recomputation of every band.
class BenchEQCurves : public QObject
{
    Q_OBJECT

private slots:
    void dragOneHandle();
};

void BenchEQCurves::dragOneHandle()
{
    VynEQCommonEQ eq;
    eq.setBandCount(16);
    for (int i = 0; i < 16; ++i) {
        VynEQBand* band = eq.band(i);
        band->setType(i == 0 ? 2 : (i == 15 ? 3 : 1));
        band->setFrequency(25.0 * std::pow(2.0, i * 0.62));
        band->setGain((i % 5) * 3.0 - 6.0);
        band->setQ(0.7 + (i % 3));
    }
    VynEQCurveModel model;
    model.setCount(512);
    model.setWidth(900);
    model.setHeight(300);
    model.setEq(&eq);
    QCOMPARE(model.sumPoints().size(), 512);

    constexpr int kSteps = 200;
    VynEQBand* dragged = eq.band(7);
    int step = 0;
    const double dragMs = benchBestOf(5, [&](auto measure) {
        measure([&] {
            for (int s = 0; s < kSteps; ++s, ++step) {
                dragged->setFrequency(500.0 + (step % 400));
                dragged->setGain(-6.0 + (step % 120) * 0.1);
                const QVariantList points = model.sumPointsQml();
                QVERIFY(points.size() == 512);
            }
        });
    });
    const double fullMs = benchBestOf(5, [&](auto measure) {
        measure([&] {
            for (int s = 0; s < kSteps; ++s)
                model.updateAll();
        });
    });
    // Each drag step changes two values: two band evaluations and two sums.
    const double perStepMs = dragMs / kSteps;
    qInfo("drag step of one band, 16 bands x 512 points: %.3f ms (%.1f %% of a 16.7 ms frame); "
          "full recomputation %.3f ms",
          perStepMs, perStepMs / 16.7 * 100.0, fullMs / kSteps);
}

QTEST_GUILESS_MAIN(BenchEQCurves)
#include "bench_eqcurves.moc"
