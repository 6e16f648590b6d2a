#pragma once

#include "vynoptimizedlabel.h"
#include "vynuiglobal.h"

#include <QList>
#include <QObject>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/*!
    Places a set of VynOptimizedLabel along one axis inside [positionMin,
    positionMax] (see VynOptimizedLabel for the placement rules).

    The optimizer does not own its labels. A full placement from zero deltas
    runs synchronously whenever the interval changes, a label is added or
    removed, or a registered label's position or length changes, provided
    expectedLabelCount is -1 or equals the number of registered labels (any
    other value, negative ones included, holds placement back). Changing
    expectedLabelCount alone never starts a placement, and neither does a
    change of a label's text. Before each placement the labels are sorted by
    ascending position; labels at equal positions keep the order in which they
    were added, and a label whose position is NaN goes last.

    A registered label that is destroyed leaves the set silently: no signal, no
    new placement. A placement requested from a slot while a placement is
    running (for instance by a slot on a label's change signal that moves
    another label) is not nested: it runs again once the current one has
    finished, at most eight times in a row. Slots on the labels' signals may
    also delete labels, or the optimizer itself, synchronously: a placement
    whose optimizer is gone ends after its labels have emitted.
*/
class VYNUI_EXPORT VynLabelOptimizer : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(int expectedLabelCount READ expectedLabelCount WRITE setExpectedLabelCount NOTIFY
                   expectedLabelCountChanged)
    Q_PROPERTY(double positionMin READ positionMin WRITE setPositionMin NOTIFY positionMinChanged)
    Q_PROPERTY(double positionMax READ positionMax WRITE setPositionMax NOTIFY positionMaxChanged)

public:
    explicit VynLabelOptimizer(QObject* parent = nullptr);
    ~VynLabelOptimizer() override;

    int expectedLabelCount() const { return m_expectedLabelCount; }
    void setExpectedLabelCount(int expectedLabelCount);

    double positionMin() const { return m_positionMin; }
    void setPositionMin(double positionMin);

    double positionMax() const { return m_positionMax; }
    void setPositionMax(double positionMax);

    //! The registered labels, sorted by position as of the last placement.
    QList<VynOptimizedLabel*> optimizedLabels() const { return m_labels; }

    //! Registers a label (null and already registered labels are ignored).
    Q_INVOKABLE void addOptimizedLabel(VynOptimizedLabel* p_optimizedLabel);
    //! Unregisters a label (labels not registered are ignored).
    Q_INVOKABLE void removeOptimizedLabel(VynOptimizedLabel* p_optimizedLabel);

signals:
    void expectedLabelCountChanged();
    void optimizedLabelsChanged();
    void positionMinChanged();
    void positionMaxChanged();

public slots:
    void optimizeIfNeeded();
    void onOptimizedLabelDestroyed(QObject* p_sender);

private:
    // The labels in the order they were added, and the same labels sorted by position as
    // of the last placement (sorted afresh from the first list each time).
    QList<VynOptimizedLabel*> m_addedLabels;
    QList<VynOptimizedLabel*> m_labels;
    int m_expectedLabelCount = -1;
    double m_positionMin = 0.0;
    double m_positionMax = 0.0;
    bool m_placing = false;
    bool m_placementPending = false;
};
