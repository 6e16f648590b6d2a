#include "vynoptimizedlabel.h"

#include <QPointer>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int kMaxSweeps = 50;

// Doubles are equal when |a - b| * 10^12 <= min(|a|, |b|).
bool fuzzyEqual(double a, double b)
{
    return std::abs(a - b) * 1000000000000.0 <= std::min(std::abs(a), std::abs(b));
}

// The placement works on a compact copy of the labels so that the sweeps read plain
// doubles from small arrays instead of chasing object pointers; the results are
// copied back once. Every formula is evaluated in the same order as the label's own
// accessors so that the copy gives bit-identical results.
struct Item
{
    double position;
    double length;
    double half;
    double delta;

    double left() const { return position + delta - half; }
};

struct Placement
{
    std::vector<Item> items;
    std::vector<double> margins;
    std::vector<char> visible;
    bool hasMargins = false;

    int count() const { return int(items.size()); }

    // The overlap of labels a and b, each widened by its margin; never negative.
    double overlap(int a, int b) const
    {
        const Item& ia = items[size_t(a)];
        const Item& ib = items[size_t(b)];
        double aLeft = ia.left();
        double aRight = aLeft + ia.length;
        double bLeft = ib.left();
        double bRight = bLeft + ib.length;
        // Without margins the widening is skipped: adding or subtracting 0 changes at
        // most the sign of a zero, which no comparison below distinguishes.
        if (hasMargins) {
            aLeft -= margins[size_t(a)];
            aRight += margins[size_t(a)];
            bLeft -= margins[size_t(b)];
            bRight += margins[size_t(b)];
        }
        const double result = aLeft > bLeft ? bRight - aLeft : aRight - bLeft;
        return result < 0.0 ? 0.0 : result;
    }
};

// Clamps a step of a label (ends left and right) so that it stays inside [min, max]
// and within half its length of its anchor, the bounds applied in this order.
double clampStep(double d, const Item& s, double left, double right, double min, double max)
{
    d = std::min(d, max - right);
    d = std::max(d, min - left);
    d = std::min(d, s.half - s.delta);
    d = std::max(d, -s.half - s.delta);
    return d;
}

// One step of the relaxation for label i with j its next visible neighbour (count when
// there is none). Returns whether it wrote the delta of i (bit 0) or of j (bit 1).
int relaxStep(Placement& p, int i, int j, double min, double max)
{
    Item& l = p.items[size_t(i)];
    const double left = l.left();
    const double right = left + l.length;
    if (min > left) {
        double d = std::min(min - left, l.half - l.delta);
        d = std::max(d, -l.half - l.delta);
        if (d == 0.0)
            return 0;
        l.delta += d;
        return 1;
    }
    if (right > max) {
        double d = std::max(l.half - l.delta, max - right);
        if (d > -l.half - l.delta)
            d = -l.half - l.delta;
        if (d == 0.0)
            return 0;
        l.delta += d;
        return 1;
    }
    if (j >= p.count())
        return 0;
    const double o = p.overlap(i, j);
    const double s = -o * 0.5;
    if (!(s < 0.0))
        return 0;
    if (s > -1.0) {
        // A small overlap: only l moves, by half of it, without clamping.
        l.delta += s;
        return 1;
    }
    Item& n = p.items[size_t(j)];
    const double leftN = n.left();
    const double rightN = leftN + n.length;
    double dL = clampStep(s, l, left, right, min, max);
    const double dN = clampStep(dL + o, n, leftN, rightN, min, max);
    dL = clampStep(dN - o, l, left, right, min, max);
    int written = 0;
    if (dN != 0.0) {
        n.delta += dN;
        written |= 2;
    }
    if (dL != 0.0) {
        l.delta += dL;
        written |= 1;
    }
    return written;
}

// The relaxation sweeps over the labels in list order. Visibility does not change
// during it, so the next visible neighbour of every label is found once, and a sweep
// is a plain pass over a compact array.
void relax(Placement& p, double min, double max)
{
    const int count = p.count();
    if (count == 0)
        return;

    // nextVisible[i]: the first visible label after i (count if none).
    std::vector<int> nextVisible(static_cast<size_t>(count));
    int next = count;
    for (int i = count - 1; i >= 0; --i) {
        nextVisible[size_t(i)] = next;
        if (p.visible[size_t(i)])
            next = i;
    }

    std::vector<double> before(static_cast<size_t>(count));
    for (int sweep = 0; sweep < kMaxSweeps; ++sweep) {
        for (int i = 0; i < count; ++i)
            before[size_t(i)] = p.items[size_t(i)].delta;

        for (int i = 0; i < count; ++i) {
            if (p.items[size_t(i)].position > -1.0)
                relaxStep(p, i, nextVisible[size_t(i)], min, max);
        }

        bool changed = false;
        for (int i = 0; i < count && !changed; ++i)
            changed = before[size_t(i)] != p.items[size_t(i)].delta;
        if (!changed)
            break;
    }
}

void hide(Placement& p, double min, double max)
{
    const int count = p.count();
    int previousVisible = -1;
    for (int i = 0; i < count; ++i) {
        const Item& l = p.items[size_t(i)];
        char& visible = p.visible[size_t(i)];
        const double left = l.left();
        const double right = left + l.length;
        if (min > left) {
            visible = false;
        } else if (right > max) {
            visible = false;
        } else if ((l.delta < -l.half && i != count - 1) || (l.delta > l.half && i != 0)) {
            visible = false;
        } else if (visible && previousVisible >= 0 && p.overlap(i, previousVisible) >= 1.0) {
            visible = false;
        }
        if (visible)
            previousVisible = i;
    }
}

} // namespace

// The static functions are members so that they reach the private state; these two
// helpers move that state between the labels and the compact copy.
struct VynOptimizedLabelAccess
{
    static Placement gather(const QList<VynOptimizedLabel*>& labels)
    {
        Placement p;
        p.items.reserve(size_t(labels.size()));
        p.margins.reserve(size_t(labels.size()));
        p.visible.reserve(size_t(labels.size()));
        for (const VynOptimizedLabel* label : labels) {
            p.items.push_back(
                {label->m_position, label->m_length, label->m_halfLength, label->m_delta});
            p.margins.push_back(label->m_margin);
            p.visible.push_back(label->m_visible);
            p.hasMargins = p.hasMargins || label->m_margin != 0.0;
        }
        return p;
    }
    static void scatter(const Placement& p, const QList<VynOptimizedLabel*>& labels)
    {
        for (qsizetype i = 0; i < labels.size(); ++i) {
            labels[i]->m_delta = p.items[size_t(i)].delta;
            labels[i]->m_visible = p.visible[size_t(i)];
        }
    }
    static void setState(VynOptimizedLabel* label, double delta, bool visible)
    {
        label->m_delta = delta;
        label->m_visible = visible;
    }
};

VynOptimizedLabel::VynOptimizedLabel(QObject* parent) : QObject(parent) {}

VynOptimizedLabel::~VynOptimizedLabel() = default;

void VynOptimizedLabel::setText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    emit textChanged();
}

void VynOptimizedLabel::setPosition(double position)
{
    if (fuzzyEqual(m_position, position))
        return;
    m_position = position;
    emit positionChanged();
    emit optimizedPositionChanged();
}

void VynOptimizedLabel::setLength(double length)
{
    if (fuzzyEqual(m_length, length))
        return;
    m_length = length;
    m_halfLength = length * 0.5;
    emit lengthChanged();
    emit optimizedPositionChanged();
}

double VynOptimizedLabel::getIntersectionWithLabel(const VynOptimizedLabel* other) const
{
    if (!other)
        return 0.0;
    Placement p;
    p.items = {{m_position, m_length, m_halfLength, m_delta},
               {other->m_position, other->m_length, other->m_halfLength, other->m_delta}};
    p.margins = {m_margin, other->m_margin};
    p.hasMargins = true;
    return p.overlap(0, 1);
}

QString VynOptimizedLabel::getDescription() const
{
    return QStringLiteral("%1 position=%2 length=%3 delta=%4 opt.=%5 visible=%6")
        .arg(QString::asprintf("%8p", static_cast<const void*>(this)))
        .arg(m_position, 0, 'g', 2)
        .arg(m_length, 0, 'g', 2)
        .arg(m_delta, 0, 'g', 2)
        .arg(optimizedPosition(), 0, 'g', 2)
        .arg(m_visible ? 1 : 0);
}

void VynOptimizedLabel::optimize(const QList<VynOptimizedLabel*>& labels, double min, double max)
{
    for (VynOptimizedLabel* label : labels) {
        label->m_previousDelta = label->m_delta;
        label->m_previousVisible = label->m_visible;
    }

    if (!(min < max)) {
        // An empty, inverted or undefined interval leaves no room for any label.
        for (VynOptimizedLabel* label : labels)
            VynOptimizedLabelAccess::setState(label, 0.0, false);
    } else {
        QList<VynOptimizedLabel*> working;
        working.reserve(labels.size());
        for (VynOptimizedLabel* label : labels) {
            // A position or length that is not a finite number (a device that has not
            // answered yet) cannot be placed: the label is hidden and pushes nobody.
            const bool placeable = label->m_length > 0.0 && std::isfinite(label->m_length) &&
                                   std::isfinite(label->m_position);
            VynOptimizedLabelAccess::setState(label, 0.0, placeable);
            if (placeable)
                working.append(label);
        }
        if (!working.isEmpty()) {
            Placement p = VynOptimizedLabelAccess::gather(working);
            relax(p, min, max);
            hide(p, min, max);
            // Second pass from the anchors: the labels hidden so far stay hidden and
            // no longer push their neighbours away.
            for (Item& item : p.items)
                item.delta = 0.0;
            relax(p, min, max);
            hide(p, min, max);
            VynOptimizedLabelAccess::scatter(p, working);
        }
    }

    // Slots on these signals may delete any label of the list (or what owns it), the one
    // emitting included: the labels due to emit are guarded, and one deleted meanwhile emits
    // nothing more.
    struct Pending
    {
        QPointer<VynOptimizedLabel> label;
        bool visibleChanged;
        bool positionChanged;
    };
    std::vector<Pending> pending;
    for (VynOptimizedLabel* label : labels) {
        const bool visibleChanged = label->m_visible != label->m_previousVisible;
        const bool positionChanged = !(label->m_delta == label->m_previousDelta);
        if (visibleChanged || positionChanged)
            pending.push_back({label, visibleChanged, positionChanged});
    }
    for (const Pending& p : pending) {
        if (p.visibleChanged && p.label)
            emit p.label->visibleChanged();
        if (p.positionChanged && p.label)
            emit p.label->optimizedPositionChanged();
    }
}

void VynOptimizedLabel::minimizeEnery(const QList<VynOptimizedLabel*>& labels, double min,
                                      double max)
{
    Placement p = VynOptimizedLabelAccess::gather(labels);
    relax(p, min, max);
    VynOptimizedLabelAccess::scatter(p, labels);
}

void VynOptimizedLabel::hideOverlapping(const QList<VynOptimizedLabel*>& labels, double min,
                                        double max)
{
    Placement p = VynOptimizedLabelAccess::gather(labels);
    hide(p, min, max);
    VynOptimizedLabelAccess::scatter(p, labels);
}

VynOptimizedLabel* VynOptimizedLabel::nextVisible(int* index,
                                                  const QList<VynOptimizedLabel*>& labels)
{
    const int count = int(labels.size());
    int i = index ? std::max(*index, 0) : 0;
    while (i < count && !labels[i]->m_visible)
        ++i;
    if (i >= count)
        i = count;
    if (index)
        *index = i;
    return i < count ? labels[i] : nullptr;
}

VynOptimizedLabel* VynOptimizedLabel::prevVisible(int* index,
                                                  const QList<VynOptimizedLabel*>& labels)
{
    const int count = int(labels.size());
    int i = index ? std::min(*index, count - 1) : count - 1;
    while (i >= 0 && !labels[i]->m_visible)
        --i;
    if (i < 0)
        i = -1;
    if (index)
        *index = i;
    return i >= 0 ? labels[i] : nullptr;
}
