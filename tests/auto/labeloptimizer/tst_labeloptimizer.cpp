#include "vynlabeloptimizer.h"
#include "vynoptimizedlabel.h"

#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

namespace {

using LabelList = QList<VynOptimizedLabel*>;

// Owns a list of labels built from (position, length) pairs.
struct Labels
{
    std::vector<std::unique_ptr<VynOptimizedLabel>> owned;
    LabelList list;

    Labels(const QList<double>& positions, const QList<double>& lengths)
    {
        for (qsizetype i = 0; i < positions.size(); ++i) {
            owned.push_back(std::make_unique<VynOptimizedLabel>());
            owned.back()->setPosition(positions[i]);
            owned.back()->setLength(lengths[i]);
            list.append(owned.back().get());
        }
    }
    QList<double> deltas() const
    {
        QList<double> result;
        for (auto* label : list)
            result.append(label->delta());
        return result;
    }
    QList<bool> visibility() const
    {
        QList<bool> result;
        for (auto* label : list)
            result.append(label->isVisible());
        return result;
    }
};

// A plain transcription of the placement rules, label by label, with the neighbours
// searched afresh at every step. The library's placement works on a compact copy with
// precomputed neighbours for speed; it must give bit-identical results.
struct RefLabel
{
    double position, length, half, delta, margin;
    bool visible;
    double left() const { return position + delta - half; }
    double right() const { return left() + length; }
};
using RefList = std::vector<RefLabel*>;

double refOverlap(const RefLabel& a, const RefLabel& b)
{
    const double aLeft = a.left() - a.margin, aRight = a.right() + a.margin;
    const double bLeft = b.left() - b.margin, bRight = b.right() + b.margin;
    const double o = aLeft > bLeft ? bRight - aLeft : aRight - bLeft;
    return o < 0.0 ? 0.0 : o;
}

double refClamp(double d, const RefLabel& s, double min, double max)
{
    d = std::min(d, max - s.right());
    d = std::max(d, min - s.left());
    d = std::min(d, s.half - s.delta);
    return std::max(d, -s.half - s.delta);
}

void refMinimize(const RefList& labels, double min, double max)
{
    for (int sweep = 0; sweep < 50; ++sweep) {
        std::vector<double> before;
        for (auto* l : labels)
            before.push_back(l->delta);
        for (size_t i = 0; i < labels.size(); ++i) {
            RefLabel& l = *labels[i];
            if (!(l.position > -1.0))
                continue;
            if (min > l.left()) {
                double d = std::max(std::min(min - l.left(), l.half - l.delta), -l.half - l.delta);
                if (d != 0.0)
                    l.delta += d;
            } else if (l.right() > max) {
                double d = std::max(l.half - l.delta, max - l.right());
                if (d > -l.half - l.delta)
                    d = -l.half - l.delta;
                if (d != 0.0)
                    l.delta += d;
            } else {
                size_t j = i + 1;
                while (j < labels.size() && !labels[j]->visible)
                    ++j;
                if (j == labels.size())
                    continue;
                RefLabel& n = *labels[j];
                const double o = refOverlap(l, n), s = -o * 0.5;
                if (s >= 0.0 || std::isnan(s))
                    continue;
                if (s > -1.0) {
                    l.delta += s;
                    continue;
                }
                double dL = refClamp(s, l, min, max);
                const double dN = refClamp(dL + o, n, min, max);
                dL = refClamp(dN - o, l, min, max);
                if (dN != 0.0)
                    n.delta += dN;
                if (dL != 0.0)
                    l.delta += dL;
            }
        }
        bool changed = false;
        for (size_t i = 0; i < labels.size(); ++i)
            changed = changed || before[i] != labels[i]->delta;
        if (!changed)
            break;
    }
}

void refHide(const RefList& labels, double min, double max)
{
    const int count = int(labels.size());
    for (int i = 0; i < count; ++i) {
        RefLabel& l = *labels[i];
        if (min > l.left() || l.right() > max)
            l.visible = false;
        else if ((l.delta < -l.half && i != count - 1) || (l.delta > l.half && i != 0))
            l.visible = false;
        else if (l.visible) {
            int p = i - 1;
            while (p >= 0 && !labels[p]->visible)
                --p;
            if (p >= 0 && refOverlap(l, *labels[p]) >= 1.0)
                l.visible = false;
        }
    }
}

void refOptimize(std::vector<RefLabel>& all, double min, double max)
{
    RefList working;
    for (auto& l : all) {
        l.delta = 0.0;
        l.visible =
            min < max && l.length > 0.0 && std::isfinite(l.length) && std::isfinite(l.position);
        if (l.visible)
            working.push_back(&l);
    }
    for (int pass = 0; pass < 2 && !working.empty(); ++pass) {
        for (auto* l : working)
            l->delta = 0.0;
        refMinimize(working, min, max);
        refHide(working, min, max);
    }
}

} // namespace

class TestLabelOptimizer : public QObject
{
    Q_OBJECT

private slots:
    void placement_data();
    void placement();
    void signalsOnlyOnChange();
    void matchesPlainTranscription_data();
    void matchesPlainTranscription();
    void oddValuesMatchPlainTranscription();
    void intersection_data();
    void intersection();
    void visibleWalks_data();
    void visibleWalks();
    void description();
    void optimizerSortsAndPlaces();
    void equalPositionsKeepAddOrder();
    void expectedCountGate();
    void addAndRemove();
    void destroyedLabelLeavesSilently();
    void placementRequestedDuringPlacement();
    void deletionFromPlacementSignals_data();
    void deletionFromPlacementSignals();
    void batchedChangesPlaceOnce_data();
    void batchedChangesPlaceOnce();
};

void TestLabelOptimizer::placement_data()
{
    QTest::addColumn<double>("max"); // min is 0
    QTest::addColumn<QList<double>>("positions");
    QTest::addColumn<QList<double>>("lengths");
    QTest::addColumn<QList<double>>("deltas");
    QTest::addColumn<QList<bool>>("visible");
    using D = QList<double>;
    using B = QList<bool>;

    // One label.
    QTest::newRow("inside") << 100.0 << D{50} << D{20} << D{0} << B{true};
    QTest::newRow("left overflow: moves just to min") << 100.0 << D{2} << D{20} << D{8} << B{true};
    QTest::newRow("left overflow: at most half its length")
        << 100.0 << D{-0.5} << D{20} << D{10} << B{false};
    QTest::newRow("position -1 is never moved") << 100.0 << D{-1} << D{20} << D{0} << B{false};
    QTest::newRow("right overflow: right end on anchor")
        << 100.0 << D{95} << D{20} << D{-10} << B{true};
    QTest::newRow("right overflow of 1 still shifts by half")
        << 100.0 << D{91} << D{20} << D{-10} << B{true};
    QTest::newRow("right overflow too large") << 100.0 << D{105} << D{20} << D{-10} << B{false};
    QTest::newRow("length 0") << 100.0 << D{50} << D{0} << D{0} << B{false};
    QTest::newRow("NaN length") << 100.0 << D{50} << D{qQNaN()} << D{0} << B{false};
    QTest::newRow("empty interval") << 0.0 << D{0} << D{2} << D{0} << B{false};
    QTest::newRow("inverted interval") << -100.0 << D{-50} << D{20} << D{0} << B{false};
    QTest::newRow("NaN interval") << qQNaN() << D{50} << D{20} << D{0} << B{false};
    // Alternates between both overflows for all 50 sweeps and ends on the right one.
    QTest::newRow("wider than the interval") << 10.0 << D{5} << D{20} << D{-10} << B{false};

    // Collisions.
    QTest::newRow("overlap 15 is shared")
        << 100.0 << D{50, 55} << D{20, 20} << D{-7.5, 7.5} << B{true, true};
    QTest::newRow("equal positions")
        << 100.0 << D{50, 50} << D{20, 20} << D{-10, 10} << B{true, true};
    QTest::newRow("touching") << 100.0 << D{50, 70} << D{20, 20} << D{0, 0} << B{true, true};
    QTest::newRow("next one blocked by max: first takes the rest")
        << 100.0 << D{80, 85} << D{20, 20} << D{-10, 5} << B{true, true};
    // Overlap 1: only the first moves, by half the remaining overlap per sweep, until
    // what remains is lost in rounding: almost exactly 1 in all.
    QTest::newRow("small overlap")
        << 100.0 << D{50, 69} << D{20, 20} << D{-0.99999999999999645, 0} << B{true, true};
    // The first is blocked at -10 by sharing, the remaining overlap of 0.5 carries it
    // beyond half its length, which only the last label may do: the later label wins.
    QTest::newRow("small step beyond half the length")
        << 70.0 << D{50.5, 60} << D{20, 20} << D{-10.499999999999996, 0} << B{false, true};
    // Neither can give way enough: the later one is hidden and, in the second pass, no
    // longer pushes the first, which returns to its anchor.
    QTest::newRow("overlap too large near max")
        << 100.0 << D{90, 95} << D{20, 20} << D{0, -10} << B{true, false};
    QTest::newRow("overlap too large near min")
        << 100.0 << D{10, 15} << D{20, 20} << D{0, 0} << B{true, false};
    QTest::newRow("a label of length -1 takes no part")
        << 100.0 << D{50, 52, 55} << D{20, -1, 20} << D{-7.5, 0, 7.5} << B{true, false, true};
}

void TestLabelOptimizer::placement()
{
    QFETCH(double, max);
    QFETCH(QList<double>, positions);
    QFETCH(QList<double>, lengths);
    QFETCH(QList<double>, deltas);
    QFETCH(QList<bool>, visible);

    Labels labels(positions, lengths);
    VynOptimizedLabel::optimize(labels.list, 0, max);
    QCOMPARE(labels.deltas(), deltas);
    QCOMPARE(labels.visibility(), visible);
    QCOMPARE(labels.list[0]->optimizedPosition(), positions[0] + deltas[0] - lengths[0] * 0.5);
}

void TestLabelOptimizer::signalsOnlyOnChange()
{
    Labels labels({2, 50}, {20, 20});
    QSignalSpy moved0(labels.list[0], &VynOptimizedLabel::optimizedPositionChanged);
    QSignalSpy moved1(labels.list[1], &VynOptimizedLabel::optimizedPositionChanged);
    QSignalSpy shown0(labels.list[0], &VynOptimizedLabel::visibleChanged);

    VynOptimizedLabel::optimize(labels.list, 0, 100);
    QCOMPARE(moved0.count(), 1);
    QCOMPARE(moved1.count(), 0);
    QCOMPARE(shown0.count(), 0);

    VynOptimizedLabel::optimize(labels.list, 0, 100);
    QCOMPARE(moved0.count(), 1);
    QCOMPARE(shown0.count(), 0);

    VynOptimizedLabel::optimize(labels.list, 0, 0);
    QCOMPARE(moved0.count(), 2);
    QCOMPARE(moved1.count(), 0);
    QCOMPARE(shown0.count(), 1);
    QCOMPARE(labels.list[0]->isVisible(), false);
}

void TestLabelOptimizer::matchesPlainTranscription_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<unsigned>("seed");
    for (int count : {1, 2, 3, 5, 8, 20, 60, 250}) {
        for (unsigned seed : {1u, 7u, 42u}) {
            QTest::addRow("%d labels, seed %u", count, seed) << count << seed;
        }
    }
}

void TestLabelOptimizer::matchesPlainTranscription()
{
    QFETCH(int, count);
    QFETCH(unsigned, seed);

    std::mt19937 random(seed);
    auto uniform = [&random](double low, double high) {
        return low + (high - low) * (double(random()) / double(std::mt19937::max()));
    };
    const double axis = 25.0 * count;
    QList<double> positions, lengths;
    for (int i = 0; i < count; ++i) {
        const unsigned kind = random() % 20;
        double position = uniform(-30, axis + 30);
        if (kind == 0 && !positions.isEmpty())
            position = positions.last(); // equal positions
        if (kind == 1)
            position = std::round(position); // exact, touching ends
        positions.append(position);
        lengths.append(kind == 2 ? -1.0 : std::round(uniform(4, 45)));
    }
    std::sort(positions.begin(), positions.end());

    Labels labels(positions, lengths);
    std::vector<RefLabel> reference;
    for (qsizetype i = 0; i < positions.size(); ++i)
        reference.push_back({positions[i], lengths[i], lengths[i] * 0.5, 0, 0, true});

    for (double max : {axis, axis * 0.5}) {
        VynOptimizedLabel::optimize(labels.list, 0, max);
        refOptimize(reference, 0, max);
        int visible = 0;
        for (qsizetype i = 0; i < positions.size(); ++i) {
            QCOMPARE(labels.list[i]->delta(), reference[size_t(i)].delta);
            QCOMPARE(labels.list[i]->isVisible(), reference[size_t(i)].visible);
            visible += labels.list[i]->isVisible();
        }
        if (count >= 20)
            QVERIFY(visible > 0 && visible < count); // the sets do exercise hiding
    }
}

void TestLabelOptimizer::oddValuesMatchPlainTranscription()
{
    const double inf = qInf();
    const QList<double> positions{-inf, -3, 10, 12, 12.5, 40, 41, 1e300, inf, qQNaN()};
    const QList<double> lengths{20, 8, inf, 6, 1e-300, 30, 30, 1e300, 5, 10};
    const QList<double> margins{0, 0.5, 0, 2, 0, 0, 1.5, 0, 0, 0};

    for (double max : {100.0, inf}) {
        Labels labels(positions, lengths);
        std::vector<RefLabel> reference;
        for (qsizetype i = 0; i < positions.size(); ++i) {
            labels.list[i]->setMargin(margins[i]);
            reference.push_back({positions[i], lengths[i], lengths[i] * 0.5, 0, margins[i], true});
        }
        VynOptimizedLabel::optimize(labels.list, 0, max);
        refOptimize(reference, 0, max);
        for (qsizetype i = 0; i < positions.size(); ++i) {
            const double delta = labels.list[i]->delta();
            const double expected = reference[size_t(i)].delta;
            QVERIFY2(delta == expected || (std::isnan(delta) && std::isnan(expected)),
                     qPrintable(labels.list[i]->getDescription()));
            QCOMPARE(labels.list[i]->isVisible(), reference[size_t(i)].visible);
        }
    }
}

void TestLabelOptimizer::intersection_data()
{
    QTest::addColumn<double>("positionA");
    QTest::addColumn<double>("positionB");
    QTest::addColumn<double>("marginA");
    QTest::addColumn<double>("marginB");
    QTest::addColumn<double>("overlap");

    // Length 20 each.
    QTest::newRow("touching") << 10.0 << 30.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("B to the right") << 10.0 << 25.0 << 0.0 << 0.0 << 5.0;
    QTest::newRow("same place") << 10.0 << 10.0 << 0.0 << 0.0 << 20.0;
    QTest::newRow("margins widen both") << 10.0 << 30.0 << 1.5 << 2.0 << 3.5;
}

void TestLabelOptimizer::intersection()
{
    QFETCH(double, positionA);
    QFETCH(double, positionB);
    QFETCH(double, marginA);
    QFETCH(double, marginB);
    QFETCH(double, overlap);

    Labels labels({positionA, positionB}, {20, 20});
    labels.list[0]->setMargin(marginA);
    labels.list[1]->setMargin(marginB);
    QCOMPARE(labels.list[0]->getIntersectionWithLabel(labels.list[1]), overlap);
    QCOMPARE(labels.list[0]->getIntersectionWithLabel(nullptr), 0.0);
}

void TestLabelOptimizer::visibleWalks_data()
{
    QTest::addColumn<QList<double>>("lengths"); // -1 hides a label
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("nextIndex");
    QTest::addColumn<int>("prevIndex");

    const QList<double> mixed{-1, 10, -1, -1, 10, -1};
    QTest::newRow("from below the list") << mixed << -5 << 1 << -1;
    QTest::newRow("on a visible label") << mixed << 1 << 1 << 1;
    QTest::newRow("between visible labels") << mixed << 2 << 4 << 1;
    QTest::newRow("after the last visible") << mixed << 5 << 6 << 4;
    QTest::newRow("beyond the list") << mixed << 40 << 6 << 4;
    QTest::newRow("none visible") << QList<double>{-1, -1} << 0 << 2 << -1;
    QTest::newRow("empty list") << QList<double>{} << 0 << 0 << -1;
}

void TestLabelOptimizer::visibleWalks()
{
    QFETCH(QList<double>, lengths);
    QFETCH(int, start);
    QFETCH(int, nextIndex);
    QFETCH(int, prevIndex);

    QList<double> positions;
    for (qsizetype i = 0; i < lengths.size(); ++i)
        positions.append(20.0 * double(i + 1));
    Labels labels(positions, lengths);
    VynOptimizedLabel::optimize(labels.list, 0, 1000);

    int index = start;
    VynOptimizedLabel* next = VynOptimizedLabel::nextVisible(&index, labels.list);
    QCOMPARE(index, nextIndex);
    QCOMPARE(next, index < labels.list.size() ? labels.list[index] : nullptr);

    index = start;
    VynOptimizedLabel* prev = VynOptimizedLabel::prevVisible(&index, labels.list);
    QCOMPARE(index, prevIndex);
    QCOMPARE(prev, index >= 0 ? labels.list[index] : nullptr);
}

void TestLabelOptimizer::description()
{
    Labels labels({2, 1234.5}, {20, 20});
    VynOptimizedLabel::optimize(labels.list, 0, 100);
    const QRegularExpression address(QStringLiteral("^ *0x[0-9a-f]+ "));
    const QString first = labels.list[0]->getDescription();
    QVERIFY2(address.match(first).hasMatch(), qPrintable(first));
    QVERIFY2(first.endsWith(QStringLiteral(" position=2 length=20 delta=8 opt.=0 visible=1")),
             qPrintable(first));
    const QString second = labels.list[1]->getDescription();
    QVERIFY2(second.endsWith(
                 QStringLiteral(" position=1.2e+03 length=20 delta=-10 opt.=1.2e+03 visible=0")),
             qPrintable(second));
}

void TestLabelOptimizer::optimizerSortsAndPlaces()
{
    VynLabelOptimizer optimizer;
    Labels labels({55, 50}, {20, 20});
    optimizer.addOptimizedLabel(labels.list[0]);
    optimizer.addOptimizedLabel(labels.list[1]);
    QCOMPARE(labels.visibility(), (QList<bool>{false, false})); // interval [0, 0]

    QSignalSpy moved(labels.list[0], &VynOptimizedLabel::optimizedPositionChanged);
    optimizer.setPositionMax(100);
    QCOMPARE(labels.deltas(), (QList<double>{7.5, -7.5}));
    QCOMPARE(labels.visibility(), (QList<bool>{true, true}));
    QCOMPARE(optimizer.optimizedLabels(), (LabelList{labels.list[1], labels.list[0]}));
    QCOMPARE(moved.count(), 1);

    // Moving a label re-places from zero deltas.
    labels.list[0]->setPosition(80);
    QCOMPARE(labels.deltas(), (QList<double>{0, 0}));

    // A text change alone does not place.
    labels.list[0]->setPosition(60);
    const QList<double> before = labels.deltas();
    labels.list[0]->setText(QStringLiteral("-3 dB"));
    QCOMPARE(labels.deltas(), before);
}

void TestLabelOptimizer::equalPositionsKeepAddOrder()
{
    // Of two labels at one position, the one added first is placed first (it moves left
    // and wins the hiding), whatever order earlier placements left them in.
    VynLabelOptimizer optimizer;
    optimizer.setPositionMax(100);
    Labels labels({60, 50}, {20, 20});
    optimizer.addOptimizedLabel(labels.list[0]);
    optimizer.addOptimizedLabel(labels.list[1]);
    QCOMPARE(optimizer.optimizedLabels(), (LabelList{labels.list[1], labels.list[0]}));

    labels.list[0]->setPosition(50);
    QCOMPARE(optimizer.optimizedLabels(), (LabelList{labels.list[0], labels.list[1]}));
    QCOMPARE(labels.deltas(), (QList<double>{-10, 10}));

    labels.list[1]->setLength(60);
    QCOMPARE(labels.visibility(), (QList<bool>{true, false}));
}

void TestLabelOptimizer::expectedCountGate()
{
    VynLabelOptimizer optimizer;
    optimizer.setExpectedLabelCount(3);
    optimizer.setPositionMax(100);
    Labels labels({2, 50, 98}, {20, 20, 20});

    optimizer.addOptimizedLabel(labels.list[0]);
    optimizer.addOptimizedLabel(labels.list[1]);
    labels.list[0]->setPosition(3);
    QCOMPARE(labels.deltas(), (QList<double>{0, 0, 0}));

    optimizer.addOptimizedLabel(labels.list[2]);
    QCOMPARE(labels.deltas(), (QList<double>{7, 0, -10}));

    // The expected count alone never starts a placement.
    labels.list[0]->setPosition(2);
    optimizer.setExpectedLabelCount(4);
    labels.list[0]->setPosition(4);
    QCOMPARE(labels.list[0]->delta(), 8.0);
    optimizer.setExpectedLabelCount(-1);
    QCOMPARE(labels.list[0]->delta(), 8.0);
    labels.list[0]->setPosition(5);
    QCOMPARE(labels.list[0]->delta(), 5.0);
}

void TestLabelOptimizer::addAndRemove()
{
    VynLabelOptimizer optimizer;
    optimizer.setPositionMax(100);
    Labels labels({50, 55}, {20, 20});
    QSignalSpy changed(&optimizer, &VynLabelOptimizer::optimizedLabelsChanged);

    optimizer.addOptimizedLabel(labels.list[0]);
    optimizer.addOptimizedLabel(labels.list[0]);
    optimizer.addOptimizedLabel(nullptr);
    QCOMPARE(changed.count(), 1);
    optimizer.addOptimizedLabel(labels.list[1]);
    QCOMPARE(labels.deltas(), (QList<double>{-7.5, 7.5}));

    optimizer.removeOptimizedLabel(labels.list[1]);
    QCOMPARE(changed.count(), 3);
    QCOMPARE(labels.list[0]->delta(), 0.0);
    optimizer.removeOptimizedLabel(labels.list[1]);
    QCOMPARE(changed.count(), 3);

    // A removed label no longer starts placements.
    labels.list[0]->setPosition(2);
    const double before = labels.list[0]->delta();
    labels.list[1]->setPosition(3);
    labels.list[1]->setLength(30);
    QCOMPARE(labels.list[0]->delta(), before);
    QCOMPARE(optimizer.optimizedLabels(), LabelList{labels.list[0]});
}

void TestLabelOptimizer::destroyedLabelLeavesSilently()
{
    VynLabelOptimizer optimizer;
    optimizer.setPositionMax(100);
    Labels labels({50, 55}, {20, 20});
    optimizer.addOptimizedLabel(labels.list[0]);
    optimizer.addOptimizedLabel(labels.list[1]);
    QSignalSpy changed(&optimizer, &VynLabelOptimizer::optimizedLabelsChanged);

    labels.owned[1].reset();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(labels.list[0]->delta(), -7.5); // not re-placed
    QCOMPARE(optimizer.optimizedLabels().size(), 1);

    labels.list[0]->setPosition(51);
    QCOMPARE(labels.list[0]->delta(), 0.0);

    // The optimizer may also go first.
    auto later = std::make_unique<VynOptimizedLabel>();
    {
        VynLabelOptimizer shortLived;
        shortLived.addOptimizedLabel(later.get());
    }
    later->setPosition(10);
    later.reset();
}

void TestLabelOptimizer::placementRequestedDuringPlacement()
{
    VynLabelOptimizer optimizer;
    optimizer.setPositionMax(100);
    Labels labels({2, 60}, {20, 20});
    optimizer.addOptimizedLabel(labels.list[0]);
    optimizer.addOptimizedLabel(labels.list[1]);

    // Whenever the first label moves, the second follows it: the placement that move
    // requests runs after the current one instead of inside it.
    int depth = 0, maxDepth = 0;
    connect(labels.list[0], &VynOptimizedLabel::optimizedPositionChanged, this, [&] {
        maxDepth = std::max(maxDepth, ++depth);
        labels.list[1]->setPosition(labels.list[0]->position() + 3);
        --depth;
    });
    labels.list[0]->setPosition(40);
    QCOMPARE(maxDepth, 1);
    QCOMPARE(labels.list[1]->position(), 43.0);
    QCOMPARE(labels.deltas(), (QList<double>{-8.5, 8.5}));
}

void TestLabelOptimizer::deletionFromPlacementSignals_data()
{
    // Labels a, b and c (indexes 0, 1, 2) at 10, 95 and 50, length 20, all hidden in the
    // empty interval, are placed in [0, 100]: all three become visible (in sorted order a,
    // c, b) and b moves left off the right end. On the first visibleChanged() of `trigger`
    // a slot deletes `doomed`: a label, or the optimizer (3), synchronously.
    QTest::addColumn<int>("trigger");
    QTest::addColumn<int>("doomed");
    QTest::addColumn<QStringList>("emitted");
    QTest::addColumn<QList<bool>>("alive");

    const QStringList all{"a.visible", "c.visible", "b.visible", "b.position"};
    QTest::newRow("nothing deleted") << 0 << -1 << all << QList<bool>{true, true, true};
    QTest::newRow("a deletes b, due later")
        << 0 << 1 << QStringList{"a.visible", "c.visible"} << QList<bool>{true, false, true};
    QTest::newRow("b deletes itself, its position signal still due")
        << 1 << 1 << QStringList{"a.visible", "c.visible", "b.visible"}
        << QList<bool>{true, false, true};
    QTest::newRow("b deletes a, done already") << 1 << 0 << all << QList<bool>{false, true, true};
    QTest::newRow("a deletes the optimizer") << 0 << 3 << all << QList<bool>{true, true, true};
}

void TestLabelOptimizer::deletionFromPlacementSignals()
{
    QFETCH(int, trigger);
    QFETCH(int, doomed);
    QFETCH(QStringList, emitted);
    QFETCH(QList<bool>, alive);

    QPointer<VynLabelOptimizer> optimizer(new VynLabelOptimizer);
    const QStringList names{"a", "b", "c"};
    QList<QPointer<VynOptimizedLabel>> labels;
    for (double position : {10.0, 95.0, 50.0}) {
        auto* label = new VynOptimizedLabel;
        label->setPosition(position);
        label->setLength(20);
        optimizer->addOptimizedLabel(label);
        labels.append(label);
    }
    QVERIFY(!labels[0]->isVisible());

    QStringList recorded;
    for (int i = 0; i < labels.size(); ++i) {
        const QString name = names[i];
        connect(labels[i], &VynOptimizedLabel::visibleChanged, labels[i],
                [&recorded, name] { recorded << name + ".visible"; });
        connect(labels[i], &VynOptimizedLabel::optimizedPositionChanged, labels[i],
                [&recorded, name] { recorded << name + ".position"; });
    }
    if (doomed >= 0) {
        QObject* victim = doomed == 3 ? static_cast<QObject*>(optimizer.data())
                                      : static_cast<QObject*>(labels[doomed].data());
        connect(
            labels[trigger], &VynOptimizedLabel::visibleChanged, this, [victim] { delete victim; },
            Qt::SingleShotConnection);
    }

    optimizer->setPositionMax(100);

    QCOMPARE(recorded, emitted);
    for (int i = 0; i < labels.size(); ++i)
        QCOMPARE(!labels[i].isNull(), alive[i]);
    QCOMPARE(optimizer.isNull(), doomed == 3);
    if (optimizer) {
        // The deleted label left the optimizer, which still places the others.
        QCOMPARE(optimizer->optimizedLabels().size(), alive.count(true));
        const int survivor = labels[0] ? 0 : 2;
        labels[survivor]->setPosition(2);
        QCOMPARE(labels[survivor]->delta(), 8.0);
    }
    for (const auto& label : std::as_const(labels))
        delete label.data();
    delete optimizer.data();
}

void TestLabelOptimizer::batchedChangesPlaceOnce_data()
{
    // How 40 crowded labels (random positions, fixed seed) reach the optimizer.
    QTest::addColumn<QString>("mode");
    QTest::newRow("one by one") << "single";
    QTest::newRow("bracketed adds") << "bracket";
    QTest::newRow("nested brackets, moves inside") << "nested";
    QTest::newRow("addOptimizedLabels") << "list";
    QTest::newRow("unmatched endUpdate ignored") << "unmatched";
}

void TestLabelOptimizer::batchedChangesPlaceOnce()
{
    QFETCH(QString, mode);

    std::mt19937 random(7);
    QList<double> positions, lengths;
    for (int i = 0; i < 40; ++i) {
        positions.append(double(random() % 400));
        lengths.append(10.0 + double(random() % 30));
    }
    // The result to match: every label added alone, each add placing all of them.
    Labels expected(positions, lengths);
    VynLabelOptimizer reference;
    reference.setPositionMax(400);
    for (auto* label : expected.list)
        reference.addOptimizedLabel(label);
    expected.list[3]->setPosition(positions[3] + 17);

    Labels labels(positions, lengths);
    VynLabelOptimizer optimizer;
    optimizer.setPositionMax(400);
    int placementSignals = 0;
    for (auto* label : labels.list)
        connect(label, &VynOptimizedLabel::optimizedPositionChanged, this,
                [&placementSignals] { ++placementSignals; });
    const auto heldBack = [&labels] {
        for (auto* label : labels.list) {
            if (label->delta() != 0.0 || !label->isVisible())
                return false;
        }
        return true;
    };

    if (mode == "single") {
        for (auto* label : labels.list)
            optimizer.addOptimizedLabel(label);
        labels.list[3]->setPosition(positions[3] + 17);
    } else if (mode == "list") {
        optimizer.addOptimizedLabels(labels.list);
        labels.list[3]->setPosition(positions[3] + 17);
    } else {
        optimizer.beginUpdate();
        if (mode == "nested")
            optimizer.beginUpdate();
        for (auto* label : labels.list)
            optimizer.addOptimizedLabel(label);
        if (mode == "nested") {
            labels.list[3]->setPosition(positions[3] + 17);
            optimizer.endUpdate();
            QVERIFY(optimizer.isUpdating());
        }
        QVERIFY(heldBack());
        // Nothing placed yet: the only signal is the nested move's own.
        QCOMPARE(placementSignals, mode == "nested" ? 1 : 0);
        optimizer.endUpdate();
        QVERIFY(!optimizer.isUpdating());
        if (mode != "nested")
            labels.list[3]->setPosition(positions[3] + 17);
        if (mode == "unmatched") {
            optimizer.endUpdate();
            QVERIFY(!optimizer.isUpdating());
            labels.list[5]->setPosition(positions[5] + 1);
            labels.list[5]->setPosition(positions[5]);
            QVERIFY(!heldBack()); // placements still run at once
        }
    }

    QCOMPARE(labels.deltas(), expected.deltas());
    QCOMPARE(labels.visibility(), expected.visibility());
    QCOMPARE(optimizer.optimizedLabels().size(), labels.list.size());
    if (mode == "list")
        QVERIFY(placementSignals <= 2 * labels.list.size() + 1); // two placements, one move
}

QTEST_GUILESS_MAIN(TestLabelOptimizer)
#include "tst_labeloptimizer.moc"
