// Label placement on arbitrary label sets: the static placement of VynOptimizedLabel and the
// VynLabelOptimizer driving it through additions, removals, moves, resizes, interval changes
// and label deletions. Besides the sanitizers, every placement must leave the visible labels
// inside the interval, apart from each other by less than one unit of overlap, and the
// optimizer's labels sorted by position.

#include <vynlabeloptimizer.h>
#include <vynoptimizedlabel.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

void check(bool condition, const char* rule)
{
    if (!condition) {
        std::fprintf(stderr, "Broken rule: %s\n", rule);
        std::abort();
    }
}

// Moderate finite values: the rules below are about placement, not about overflow to
// infinity, which NaN and infinite inputs are documented to fall into.
double consumeCoordinate(FuzzedDataProvider& data)
{
    return data.ConsumeFloatingPointInRange<double>(-10000.0, 10000.0);
}

void checkPlacement(const QList<VynOptimizedLabel*>& labels, double min, double max)
{
    const VynOptimizedLabel* previous = nullptr;
    for (const VynOptimizedLabel* label : labels) {
        if (!label->isVisible())
            continue;
        check(label->leftEnd() >= min && label->rightEnd() <= max,
              "a visible label lies inside the interval");
        if (previous)
            check(label->getIntersectionWithLabel(previous) < 1.0,
                  "a visible label overlaps the previous visible one by less than 1");
        previous = label;
    }
}

void placeStatically(FuzzedDataProvider& data)
{
    const double min = consumeCoordinate(data);
    const double max = consumeCoordinate(data);
    const int count = data.ConsumeIntegralInRange(0, 24);
    std::vector<std::unique_ptr<VynOptimizedLabel>> owned;
    QList<VynOptimizedLabel*> labels;
    for (int i = 0; i < count; ++i) {
        owned.push_back(std::make_unique<VynOptimizedLabel>());
        VynOptimizedLabel* label = owned.back().get();
        label->setPosition(consumeCoordinate(data));
        label->setLength(data.ConsumeFloatingPointInRange<double>(-2.0, 500.0));
        label->setMargin(data.ConsumeFloatingPointInRange<double>(0.0, 20.0));
        labels.append(label);
    }
    std::stable_sort(labels.begin(), labels.end(),
                     [](const VynOptimizedLabel* a, const VynOptimizedLabel* b) {
                         return a->position() < b->position();
                     });
    VynOptimizedLabel::optimize(labels, min, max);
    checkPlacement(labels, min, max);
    if (!(min < max))
        for (const VynOptimizedLabel* label : labels)
            check(!label->isVisible(), "an empty or inverted interval hides every label");

    int index = data.ConsumeIntegralInRange(-3, count + 3);
    VynOptimizedLabel* next = VynOptimizedLabel::nextVisible(&index, labels);
    check(next ? labels.at(index) == next : index == count, "nextVisible reports its index");
    index = data.ConsumeIntegralInRange(-3, count + 3);
    VynOptimizedLabel* prev = VynOptimizedLabel::prevVisible(&index, labels);
    check(prev ? labels.at(index) == prev : index == -1, "prevVisible reports its index");
}

void driveOptimizer(FuzzedDataProvider& data)
{
    VynLabelOptimizer optimizer;
    // Labels deleted here are never deleted from one of their own signals: deletion from a
    // signal is a known fault being fixed separately.
    std::vector<std::unique_ptr<VynOptimizedLabel>> pool;
    for (int i = 0; i < 12; ++i)
        pool.push_back(std::make_unique<VynOptimizedLabel>());

    optimizer.setPositionMin(consumeCoordinate(data));
    optimizer.setPositionMax(consumeCoordinate(data));
    for (int step = 0; step < 64 && data.remaining_bytes() > 0; ++step) {
        const std::size_t which = data.ConsumeIntegralInRange<std::size_t>(0, pool.size() - 1);
        VynOptimizedLabel* label = pool[which].get();
        switch (data.ConsumeIntegralInRange(0, 8)) {
        case 0:
        case 1:
            optimizer.addOptimizedLabel(label);
            break;
        case 2:
            optimizer.removeOptimizedLabel(label);
            break;
        case 3:
            label->setPosition(consumeCoordinate(data));
            break;
        case 4:
            label->setLength(data.ConsumeFloatingPointInRange<double>(-2.0, 500.0));
            break;
        case 5:
            optimizer.setPositionMin(consumeCoordinate(data));
            break;
        case 6:
            optimizer.setPositionMax(consumeCoordinate(data));
            break;
        case 7:
            optimizer.setExpectedLabelCount(data.ConsumeIntegralInRange(-2, 12));
            break;
        default:
            pool[which] = std::make_unique<VynOptimizedLabel>();
            break;
        }
        for (const VynOptimizedLabel* registered : optimizer.optimizedLabels())
            check(std::any_of(pool.begin(), pool.end(),
                              [registered](const auto& live) { return live.get() == registered; }),
                  "a deleted label leaves the optimizer");
    }

    optimizer.setExpectedLabelCount(-1);
    optimizer.optimizeIfNeeded();
    const QList<VynOptimizedLabel*> labels = optimizer.optimizedLabels();
    for (qsizetype i = 1; i < labels.size(); ++i)
        check(labels.at(i - 1)->position() <= labels.at(i)->position(),
              "the optimizer's labels are sorted by position");
    checkPlacement(labels, optimizer.positionMin(), optimizer.positionMax());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    if (data.ConsumeBool())
        placeStatically(data);
    else
        driveOptimizer(data);
    return 0;
}
