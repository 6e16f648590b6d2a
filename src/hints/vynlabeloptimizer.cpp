#include "vynlabeloptimizer.h"

#include <QPointer>

#include <algorithm>
#include <cmath>

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

void VynLabelOptimizer::addOptimizedLabel(VynOptimizedLabel* p_optimizedLabel)
{
    if (!p_optimizedLabel || m_addedLabels.contains(p_optimizedLabel))
        return;
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
    if (!p_optimizedLabel || !m_addedLabels.contains(p_optimizedLabel))
        return;
    disconnect(p_optimizedLabel, &VynOptimizedLabel::positionChanged, this,
               &VynLabelOptimizer::optimizeIfNeeded);
    disconnect(p_optimizedLabel, &VynOptimizedLabel::lengthChanged, this,
               &VynLabelOptimizer::optimizeIfNeeded);
    disconnect(p_optimizedLabel, &QObject::destroyed, this,
               &VynLabelOptimizer::onOptimizedLabelDestroyed);
    m_addedLabels.removeAll(p_optimizedLabel);
    m_labels.removeAll(p_optimizedLabel);
    emit optimizedLabelsChanged();
}

void VynLabelOptimizer::optimizeIfNeeded()
{
    if (m_placing) {
        m_placementPending = true;
        return;
    }
    m_placing = true;
    for (int run = 0; run < kMaxPlacementRuns; ++run) {
        m_placementPending = false;
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
    // The label's own part is already destroyed: compare addresses only, never
    // dereference or cast through the object (QObject is its only base, at offset 0).
    const void* sender = p_sender;
    const auto isSender = [sender](VynOptimizedLabel* label) {
        return static_cast<const void*>(label) == sender;
    };
    m_addedLabels.removeIf(isSender);
    m_labels.removeIf(isSender);
}
