#pragma once

#include "vynuiglobal.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

/*!
    One value label along an axis: an interval of the axis given by its anchor
    (`position`, the centre of the unshifted label) and its extent (`length`),
    together with the result of the last placement: the shift of its centre
    from the anchor (delta) and whether it can be shown (`visible`).

    Ends of the placed label: left end = position + delta - length / 2 (the
    property `optimizedPosition`), right end = left end + length.

    The static functions place a list of labels inside an allowed interval
    [min, max] of the axis. VynLabelOptimizer drives them for QML; they are
    usable alone on any list of labels:

    - optimize(): the whole placement. Every label starts from delta 0 and
      visible; labels whose length is not greater than 0, or whose position or
      length is not a finite number, are hidden and take no part (give a label
      the length -1 to hide it on purpose). The
      others are relaxed (minimizeEnery), hidden where they still overflow or
      collide (hideOverlapping), then relaxed and hidden once more from zero
      deltas, with the labels hidden by the first pass no longer acting as
      neighbours. An empty or inverted interval (min >= max, or a NaN
      bound) hides every label. Afterwards each label emits visibleChanged() and
      optimizedPositionChanged() when its visibility or delta differs from
      what it was before the call.
    - minimizeEnery(): the relaxation alone (at most 50 sweeps, stopping as
      soon as a sweep leaves every delta exactly unchanged). A label is shifted
      by at most half its length from its anchor, except by the small-collision
      step (overlap under 2 with the next visible label), which moves it left
      by half the overlap without any clamping. A label that overflows on the
      right is shifted to delta = -length / 2 (right end on the anchor),
      whatever the size of the overflow; a label that overflows on the left is
      shifted only as far as needed to start at min. Labels at a position of
      -1 or lower are never moved. Only visible labels act as neighbours.
    - hideOverlapping(): hides the labels that stick out of [min, max], that
      are shifted beyond half their length other than outwards at the two
      ends of the list, or that overlap the previous visible label by 1 or
      more (the earlier label wins). It never shows a label.

    The list is expected in ascending order of position; the functions visit
    it in list order and do not sort it. Null entries are not allowed, and a
    label appears in a list at most once. The
    relaxation and hiding functions change deltas and visibility without
    emitting signals; only optimize() emits.

    Slots connected to the change signals emitted by optimize() may delete
    labels of the list synchronously, the emitting one included: a deleted
    label emits nothing more, and the others still emit theirs. The list
    itself must then not be used again by the caller.
*/
class VYNUI_EXPORT VynOptimizedLabel : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(double position READ position WRITE setPosition NOTIFY positionChanged)
    Q_PROPERTY(double length READ length WRITE setLength NOTIFY lengthChanged)
    Q_PROPERTY(double optimizedPosition READ optimizedPosition NOTIFY optimizedPositionChanged)
    Q_PROPERTY(bool visible READ isVisible NOTIFY visibleChanged)

public:
    explicit VynOptimizedLabel(QObject* parent = nullptr);
    ~VynOptimizedLabel() override;

    QString text() const { return m_text; }
    void setText(const QString& text);

    double position() const { return m_position; }
    //! Emits positionChanged() then optimizedPositionChanged() on a change.
    void setPosition(double position);

    double length() const { return m_length; }
    //! Also sets the half length; emits lengthChanged() then optimizedPositionChanged().
    void setLength(double length);

    double halfLength() const { return m_halfLength; }
    double delta() const { return m_delta; }
    bool isVisible() const { return m_visible; }

    //! Extra room on both sides of the label when overlaps are measured (0 by default).
    double margin() const { return m_margin; }
    void setMargin(double margin) { m_margin = margin; }

    //! Left end of the placed label: position + delta - halfLength.
    double optimizedPosition() const { return m_position + m_delta - m_halfLength; }
    double leftEnd() const { return optimizedPosition(); }
    double rightEnd() const { return optimizedPosition() + m_length; }

    //! The overlap of this label with \a other along the axis, both widened by their
    //! margins: never negative, 0 for labels that merely touch or for a null \a other.
    double getIntersectionWithLabel(const VynOptimizedLabel* other) const;

    //! "<address> position=.. length=.. delta=.. opt.=.. visible=0|1", for logs.
    QString getDescription() const;

    static void optimize(const QList<VynOptimizedLabel*>& labels, double min, double max);
    static void minimizeEnery(const QList<VynOptimizedLabel*>& labels, double min, double max);
    static void hideOverlapping(const QList<VynOptimizedLabel*>& labels, double min, double max);

    //! Clamps *index to at least 0, then returns the first visible label from there on and
    //! leaves its index in *index; returns null with *index = size when there is none
    //! (also when *index started beyond the end).
    //! A null \a index starts at 0 and reports nothing back.
    static VynOptimizedLabel* nextVisible(int* index, const QList<VynOptimizedLabel*>& labels);
    //! Clamps *index to at most size - 1, then returns the first visible label walking
    //! backwards and leaves its index in *index; returns null with *index = -1 when there
    //! is none (also when *index started below 0). A null \a index starts at the end and reports
    //! nothing back.
    static VynOptimizedLabel* prevVisible(int* index, const QList<VynOptimizedLabel*>& labels);

signals:
    void textChanged();
    void positionChanged();
    void lengthChanged();
    void visibleChanged();
    void optimizedPositionChanged();

private:
    friend struct VynOptimizedLabelAccess;

    QString m_text;
    double m_position = 0.0;
    double m_length = 0.0;
    double m_halfLength = 0.0;
    double m_delta = 0.0;
    double m_margin = 0.0;
    bool m_visible = true;
    double m_previousDelta = 0.0;
    bool m_previousVisible = false;
};
