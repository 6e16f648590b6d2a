#include "benchtiming.h"
#include "vynlabeloptimizer.h"
#include "vynoptimizedlabel.h"

#include <QTest>

#include <algorithm>
#include <ctime>
#include <memory>
#include <random>
#include <vector>

namespace {

constexpr unsigned kSeed = 20241121u;

// Axis room per label: with labels of mean length 25, "mixed" makes about half of the
// neighbours collide, "crowded" about two thirds, with long chains of collisions.
constexpr double kMixedSpacing = 40.0;
constexpr double kCrowdedSpacing = 22.0;

// A deterministic set of labels on the axis [0, spacing * count]: scattered labels of
// length 10 to 40, one in eight stacked close to the previous one, one in twenty-five
// hidden on purpose (length -1), and some near or past both ends of the axis.
struct LabelSet
{
    std::vector<std::unique_ptr<VynOptimizedLabel>> owned;
    QList<VynOptimizedLabel*> list;
    double axis = 0.0;

    LabelSet(int count, double spacing)
    {
        std::mt19937 random(kSeed);
        auto uniform = [&random](double low, double high) {
            return low + (high - low) * (double(random()) / double(std::mt19937::max()));
        };
        axis = spacing * count;
        std::vector<double> positions;
        for (int i = 0; i < count; ++i) {
            double position = uniform(-15.0, axis + 15.0);
            if (random() % 8 == 0 && !positions.empty())
                position = positions.back() + uniform(0.0, 6.0);
            positions.push_back(position);
        }
        std::sort(positions.begin(), positions.end());
        for (double position : positions) {
            owned.push_back(std::make_unique<VynOptimizedLabel>());
            owned.back()->setPosition(position);
            owned.back()->setLength(random() % 25 == 0 ? -1.0 : uniform(10.0, 40.0));
            list.append(owned.back().get());
        }
    }

    int visibleCount() const
    {
        return int(std::count_if(list.cbegin(), list.cend(),
                                 [](const VynOptimizedLabel* l) { return l->isVisible(); }));
    }
};

// CPU time of this thread per placement: unlike wall time it does not count the time
// the thread waits for a core on a busy machine.
double cpuNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e9 + double(now.tv_nsec);
}

double cpuMillisecondsPerPlacement(LabelSet& set)
{
    const int rounds = std::max(20, 20000 / int(set.list.size()));
    VynOptimizedLabel::optimize(set.list, 0.0, set.axis);
    double best = 1e300;
    for (int repeat = 0; repeat < 7; ++repeat) {
        const double start = cpuNanoseconds();
        for (int i = 0; i < rounds; ++i)
            VynOptimizedLabel::optimize(set.list, 0.0, set.axis);
        best = std::min(best, (cpuNanoseconds() - start) / rounds);
    }
    return best / 1e6;
}

} // namespace

class BenchLabelOptimizer : public QObject
{
    Q_OBJECT

private slots:
    void optimize_data();
    void optimize();
    void optimizer_data() { optimize_data(); }
    void optimizer();
    void cpuTime();
    void addScaling();
};

void BenchLabelOptimizer::optimize_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<double>("spacing");
    for (int count : {10, 200, 1000})
        QTest::addRow("%d labels", count) << count << kMixedSpacing;
    for (int count : {200, 1000})
        QTest::addRow("%d labels crowded", count) << count << kCrowdedSpacing;
}

// The placement alone, on a list already sorted by position.
void BenchLabelOptimizer::optimize()
{
    QFETCH(int, count);
    QFETCH(double, spacing);
    LabelSet set(count, spacing);
    QBENCHMARK
    {
        VynOptimizedLabel::optimize(set.list, 0.0, set.axis);
    }
}

// Through the optimizer, as a change of the interval triggers it: sort, then place.
void BenchLabelOptimizer::optimizer()
{
    QFETCH(int, count);
    QFETCH(double, spacing);
    LabelSet set(count, spacing);
    VynLabelOptimizer optimizer;
    optimizer.setPositionMax(set.axis);
    for (auto* label : set.list)
        optimizer.addOptimizedLabel(label);
    QBENCHMARK
    {
        optimizer.optimizeIfNeeded();
    }
}

// Best CPU time per placement of the sets, measured back to back, and the ratio
// between 1000 and 200 labels.
void BenchLabelOptimizer::cpuTime()
{
    for (double spacing : {kMixedSpacing, kCrowdedSpacing}) {
        const char* name = spacing == kMixedSpacing ? "mixed" : "crowded";
        double ms[3] = {};
        int visible[3] = {};
        const int counts[3] = {10, 200, 1000};
        for (int i = 0; i < 3; ++i) {
            LabelSet set(counts[i], spacing);
            ms[i] = cpuMillisecondsPerPlacement(set);
            visible[i] = set.visibleCount();
        }
        qInfo("%s: 10 labels %.4f ms (%d shown), 200 labels %.4f ms (%d shown), "
              "1000 labels %.4f ms (%d shown), ratio 1000/200 %.2f",
              name, ms[0], visible[0], ms[1], visible[1], ms[2], visible[2], ms[2] / ms[1]);
    }
}

// A graph that puts n labels on its axis at once: registered in one batch
// (addOptimizedLabels(), one placement), at 1000 and 10000 labels, and the ratio. For
// comparison, the same labels added one by one (a placement per add) at 1000.
void BenchLabelOptimizer::addScaling()
{
    const auto batch = [](int count) {
        return benchBestOf(3, [count](auto measure) {
            LabelSet set(count, kMixedSpacing);
            VynLabelOptimizer optimizer;
            optimizer.setPositionMax(set.axis);
            measure([&] { optimizer.addOptimizedLabels(set.list); });
            QVERIFY(set.visibleCount() > 0);
        });
    };
    const double small = batch(1000);
    const double large = batch(10000);
    const double oneByOne = benchBestOf(1, [](auto measure) {
        LabelSet set(1000, kMixedSpacing);
        VynLabelOptimizer optimizer;
        optimizer.setPositionMax(set.axis);
        measure([&] {
            for (auto* label : set.list)
                optimizer.addOptimizedLabel(label);
        });
    });
    qInfo("batch add: 1000 labels %.2f ms, 10000 labels %.2f ms, ratio 10000/1000 %.2f; "
          "one by one: 1000 labels %.1f ms",
          small, large, large / small, oneByOne);
}

QTEST_GUILESS_MAIN(BenchLabelOptimizer)
#include "bench_labeloptimizer.moc"
