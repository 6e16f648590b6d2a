#include "vynoptimizedlabel.h"

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
// doubles from one array instead of chasing object pointers; the results are copied
// back once. Every formula is evaluated in the same order as the label's own
// accessors so that the copy gives bit-identical results.
struct Item
{
    double position;
    double length;
    double half;
    double delta;
    double margin;
    bool visible;

    double left() const { return position + delta - half; }
    double right() const { return left() + length; }
};

double overlap(const Item& a, const Item& b)
{
    const double aLeft = a.left() - a.margin;
    const double aRight = a.left() + a.length + a.margin;
    const double bLeft = b.left() - b.margin;
    const double bRight = b.left() + b.length + b.margin;
    const double result = aLeft > bLeft ? bRight - aLeft : aRight - bLeft;
    return result < 0.0 ? 0.0 : result;
}

// Clamps a step of item s so that it stays inside [min, max] and within half its
// length of its anchor, the bounds applied in this order.
double clampStep(double d, const Item& s, double min, double max)
{
    const double left = s.left();
    const double right = left + s.length;
    d = std::min(d, max - right);
    d = std::max(d, min - left);
    d = std::min(d, s.half - s.delta);
    d = std::max(d, -s.half - s.delta);
    return d;
}

void relax(std::vector<Item>& items, double min, double max)
{
    const int count = int(items.size());
    if (count == 0)
        return;

    // Visibility does not change during the relaxation, so the next visible
    // neighbour of every item is found once.
    std::vector<int> nextVisible(count);
    int next = count;
    for (int i = count - 1; i >= 0; --i) {
        nextVisible[i] = next;
        if (items[i].visible)
            next = i;
    }

    std::vector<double> before(count);
    for (int sweep = 0; sweep < kMaxSweeps; ++sweep) {
        for (int i = 0; i < count; ++i)
            before[i] = items[i].delta;

        for (int i = 0; i < count; ++i) {
            Item& l = items[i];
            if (!(l.position > -1.0))
                continue;
            const double left = l.left();
            const double right = left + l.length;
            if (min > left) {
                double d = std::min(min - left, l.half - l.delta);
                d = std::max(d, -l.half - l.delta);
                if (d != 0.0)
                    l.delta += d;
            } else if (right > max) {
                double d = std::max(l.half - l.delta, max - right);
                if (d > -l.half - l.delta)
                    d = -l.half - l.delta;
                if (d != 0.0)
                    l.delta += d;
            } else {
                const int j = nextVisible[i];
                if (j >= count)
                    continue;
                Item& n = items[j];
                const double o = overlap(l, n);
                const double s = -o * 0.5;
                if (!(s < 0.0))
                    continue;
                if (s > -1.0) {
                    l.delta += s;
                    continue;
                }
                double dL = clampStep(s, l, min, max);
                const double dN = clampStep(dL + o, n, min, max);
                dL = clampStep(dN - o, l, min, max);
                if (dN != 0.0)
                    n.delta += dN;
                if (dL != 0.0)
                    l.delta += dL;
            }
        }

        bool changed = false;
        for (int i = 0; i < count && !changed; ++i)
            changed = before[i] != items[i].delta;
        if (!changed)
            break;
    }
}

void hide(std::vector<Item>& items, double min, double max)
{
    const int count = int(items.size());
    int previousVisible = -1;
    for (int i = 0; i < count; ++i) {
        Item& l = items[i];
        const double left = l.left();
        const double right = left + l.length;
        if (min > left) {
            l.visible = false;
        } else if (right > max) {
            l.visible = false;
        } else if ((l.delta < -l.half && i != count - 1) || (l.delta > l.half && i != 0)) {
            l.visible = false;
        } else if (l.visible && previousVisible >= 0 && overlap(l, items[previousVisible]) >= 1.0) {
            l.visible = false;
        }
        if (l.visible)
            previousVisible = i;
    }
}

} // namespace

// The static functions are members so that they reach the private state; these two
// helpers move that state between the labels and the compact copy.
struct VynOptimizedLabelAccess
{
    static std::vector<Item> gather(const QList<VynOptimizedLabel*>& labels)
    {
        std::vector<Item> items;
        items.reserve(size_t(labels.size()));
        for (const VynOptimizedLabel* label : labels)
            items.push_back({label->m_position, label->m_length, label->m_halfLength,
                             label->m_delta, label->m_margin, label->m_visible});
        return items;
    }
    static void scatter(const std::vector<Item>& items, const QList<VynOptimizedLabel*>& labels)
    {
        for (qsizetype i = 0; i < labels.size(); ++i) {
            labels[i]->m_delta = items[size_t(i)].delta;
            labels[i]->m_visible = items[size_t(i)].visible;
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
    const Item a{m_position, m_length, m_halfLength, m_delta, m_margin, m_visible};
    const Item b{other->m_position, other->m_length, other->m_halfLength,
                 other->m_delta,    other->m_margin, other->m_visible};
    return overlap(a, b);
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
            const bool placeable = label->m_length > 0.0;
            VynOptimizedLabelAccess::setState(label, 0.0, placeable);
            if (placeable)
                working.append(label);
        }
        if (!working.isEmpty()) {
            std::vector<Item> items = VynOptimizedLabelAccess::gather(working);
            relax(items, min, max);
            hide(items, min, max);
            // Second pass from the anchors: the labels hidden so far stay hidden and
            // no longer push their neighbours away.
            for (Item& item : items)
                item.delta = 0.0;
            relax(items, min, max);
            hide(items, min, max);
            VynOptimizedLabelAccess::scatter(items, working);
        }
    }

    for (VynOptimizedLabel* label : labels) {
        if (label->m_visible != label->m_previousVisible)
            emit label->visibleChanged();
        if (!(label->m_delta == label->m_previousDelta))
            emit label->optimizedPositionChanged();
    }
}

void VynOptimizedLabel::minimizeEnery(const QList<VynOptimizedLabel*>& labels, double min,
                                      double max)
{
    std::vector<Item> items = VynOptimizedLabelAccess::gather(labels);
    relax(items, min, max);
    VynOptimizedLabelAccess::scatter(items, labels);
}

void VynOptimizedLabel::hideOverlapping(const QList<VynOptimizedLabel*>& labels, double min,
                                        double max)
{
    std::vector<Item> items = VynOptimizedLabelAccess::gather(labels);
    hide(items, min, max);
    VynOptimizedLabelAccess::scatter(items, labels);
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
