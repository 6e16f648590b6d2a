#include "vynlabeloptimizer.h"

#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int kMaxPlacementRuns = 8;

bool fuzzyEqual(double a, double b)
{
    return std::abs(a - b) * 1000000000000.0 <= std::min(std::abs(a), std::abs(b));
}

// Ascending position, NaN after every number; a strict weak order even with NaN.
bool positionLess(const VynOptimizedLabel* a, const VynOptimizedLabel* b)
{
    const double pa = a->position();
    const double pb = b->position();
    if (std::isnan(pa))
        return false;
    if (std::isnan(pb))
        return true;
    return pa < pb;
}

} // namespace

VynLabelOptimizer::VynLabelOptimizer(QObject* parent) : QObject(parent)
{
    connect(this, &VynLabelOptimizer::optimizedLabelsChanged, this,
            &VynLabelOptimizer::optimizeIfNeeded);
    connect(this, &VynLabelOptimizer::positionMinChanged, this,
            &VynLabelOptimizer::optimizeIfNeeded);
    connect(this, &VynLabelOptimizer::positionMaxChanged, this,
            &VynLabelOptimizer::optimizeIfNeeded);
}

VynLabelOptimizer::~VynLabelOptimizer() = default;

void VynLabelOptimizer::setExpectedLabelCount(int expectedLabelCount)
{
    if (m_expectedLabelCount == expectedLabelCount)
        return;
    m_expectedLabelCount = expectedLabelCount;
    emit expectedLabelCountChanged();
}

void VynLabelOptimizer::setPositionMin(double positionMin)
{
    if (fuzzyEqual(m_positionMin, positionMin))
        return;
    m_positionMin = positionMin;
    emit positionMinChanged();
}

void VynLabelOptimizer::setPositionMax(double positionMax)
{
    if (fuzzyEqual(m_positionMax, positionMax))
        return;
    m_positionMax = positionMax;
    emit positionMaxChanged();
}

QList<VynOptimizedLabel*> VynLabelOptimizer::optimizedLabels() const
{
    if (m_destroyedPending == 0)
        return m_labels;
    QList<VynOptimizedLabel*> labels = m_labels;
    labels.removeIf([this](VynOptimizedLabel* label) { return !m_members.contains(label); });
    return labels;
}

void VynLabelOptimizer::compact()
{
    if (m_destroyedPending == 0)
        return;
    // The entries of destroyed labels are compared by address only, never dereferenced.
    const auto gone = [this](VynOptimizedLabel* label) { return !m_members.contains(label); };
    m_addedLabels.removeIf(gone);
    m_labels.removeIf(gone);
    m_destroyedPending = 0;
}

void VynLabelOptimizer::addOptimizedLabel(VynOptimizedLabel* p_optimizedLabel)
{
    if (!p_optimizedLabel || m_members.contains(p_optimizedLabel))
        return;
    // Before the new label joins: its address may be that of a label destroyed meanwhile.
    compact();
    m_members.insert(p_optimizedLabel);
    m_addedLabels.append(p_optimizedLabel);
    m_labels.append(p_optimizedLabel);
    connect(p_optimizedLabel, &VynOptimizedLabel::positionChanged, this,
            &VynLabelOptimizer::optimizeIfNeeded);
    connect(p_optimizedLabel, &VynOptimizedLabel::lengthChanged, this,
            &VynLabelOptimizer::optimizeIfNeeded);
    connect(p_optimizedLabel, &QObject::destroyed, this,
            &VynLabelOptimizer::onOptimizedLabelDestroyed);
    emit optimizedLabelsChanged();
}

void VynLabelOptimizer::removeOptimizedLabel(VynOptimizedLabel* p_optimizedLabel)
{
    if (!p_optimizedLabel || !m_members.contains(p_optimizedLabel))
        return;
    disconnect(p_optimizedLabel, &VynOptimizedLabel::positionChanged, this,
               &VynLabelOptimizer::optimizeIfNeeded);
    disconnect(p_optimizedLabel, &VynOptimizedLabel::lengthChanged, this,
               &VynLabelOptimizer::optimizeIfNeeded);
    disconnect(p_optimizedLabel, &QObject::destroyed, this,
               &VynLabelOptimizer::onOptimizedLabelDestroyed);
    m_members.remove(p_optimizedLabel);
    ++m_destroyedPending;
    compact();
    emit optimizedLabelsChanged();
}

void VynLabelOptimizer::addOptimizedLabels(const QList<VynOptimizedLabel*>& p_labels)
{
    // Slots on optimizedLabelsChanged() may delete the optimizer.
    const QPointer<VynLabelOptimizer> self(this);
    beginUpdate();
    for (VynOptimizedLabel* label : p_labels) {
        addOptimizedLabel(label);
        if (!self)
            return;
    }
    endUpdate();
}

void VynLabelOptimizer::beginUpdate()
{
    ++m_updateDepth;
}

void VynLabelOptimizer::endUpdate()
{
    if (m_updateDepth == 0 || --m_updateDepth > 0)
        return;
    if (std::exchange(m_updateRequested, false))
        optimizeIfNeeded();
}

void VynLabelOptimizer::optimizeIfNeeded()
{
    if (m_updateDepth > 0) {
        m_updateRequested = true;
        return;
    }
    if (m_placing) {
        m_placementPending = true;
        return;
    }
    m_placing = true;
    for (int run = 0; run < kMaxPlacementRuns; ++run) {
        m_placementPending = false;
        compact();
        if (m_expectedLabelCount != -1 && m_expectedLabelCount != m_labels.size())
            break;
        // Sorted from the order of addition, so that labels at equal positions always
        // come in that order, whatever order earlier placements left them in.
        m_labels = m_addedLabels;
        std::stable_sort(m_labels.begin(), m_labels.end(), positionLess);
        // A copy: slots on the labels' signals may add or remove labels meanwhile.
        const QList<VynOptimizedLabel*> labels = m_labels;
        // Slots on the labels' signals may also delete the optimizer.
        const QPointer<VynLabelOptimizer> self(this);
        VynOptimizedLabel::optimize(labels, m_positionMin, m_positionMax);
        if (!self)
            return;
        if (!m_placementPending)
            break;
    }
    m_placementPending = false;
    m_placing = false;
}

void VynLabelOptimizer::onOptimizedLabelDestroyed(QObject* p_sender)
{
    // The label's own part is already destroyed: it is looked up by address only, never
    // dereferenced or cast through (QObject is its only base, at offset 0). Its entries in
    // the lists go on their next use.
    if (m_members.remove(static_cast<const void*>(p_sender)))
        ++m_destroyedPending;
}
