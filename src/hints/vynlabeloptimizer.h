#pragma once

#include "vynoptimizedlabel.h"
#include "vynuiglobal.h"

#include <QList>
#include <QObject>
#include <QSet>
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

    Cost: a placement is linear in the number of labels (plus the sort), and
    registering, unregistering or losing a label costs O(1) apart from the
    placement it starts. Since every single change runs a full placement,
    adding n labels one by one costs n placements, O(n^2). A host that adds
    or changes many labels at once brackets the changes with beginUpdate() and
    endUpdate() (or calls addOptimizedLabels()): placements requested in
    between are held back and run as one placement when the outermost
    endUpdate() returns, with the same result as the last of the placements
    held back would have given. Signals other than the labels' placement
    results (optimizedLabelsChanged() on each add) are emitted as usual.
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
    QList<VynOptimizedLabel*> optimizedLabels() const;

    //! Registers a label (null and already registered labels are ignored).
    Q_INVOKABLE void addOptimizedLabel(VynOptimizedLabel* p_optimizedLabel);
    //! Unregisters a label (labels not registered are ignored).
    Q_INVOKABLE void removeOptimizedLabel(VynOptimizedLabel* p_optimizedLabel);
    //! Registers every label of \a p_labels in order, as addOptimizedLabel() does, within
    //! one beginUpdate() / endUpdate() pair: the labels are placed once.
    Q_INVOKABLE void addOptimizedLabels(const QList<VynOptimizedLabel*>& p_labels);

    //! Holds placements back until the matching endUpdate(); pairs nest.
    Q_INVOKABLE void beginUpdate();
    //! Ends a beginUpdate(); the outermost one runs the placements requested meanwhile as
    //! one. An endUpdate() without a beginUpdate() is ignored.
    Q_INVOKABLE void endUpdate();
    bool isUpdating() const { return m_updateDepth > 0; }

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
    // A destroyed label is taken out of m_members at once and out of both lists on their
    // next use (see compact()), so that destroying many labels stays linear.
    void compact();

    QList<VynOptimizedLabel*> m_addedLabels;
    QList<VynOptimizedLabel*> m_labels;
    QSet<const void*> m_members;
    qsizetype m_destroyedPending = 0;
    int m_updateDepth = 0;
    bool m_updateRequested = false;
    int m_expectedLabelCount = -1;
    double m_positionMin = 0.0;
    double m_positionMax = 0.0;
    bool m_placing = false;
    bool m_placementPending = false;
};
