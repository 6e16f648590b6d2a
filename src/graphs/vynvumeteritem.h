#pragma once

#include "vyncolorutils.h"
#include "vynuiglobal.h"
#include "vynviewutils.h"

#include <QBasicTimer>
#include <QColor>
#include <QPointF>
#include <QQuickItem>
#include <QRectF>
#include <QtQml/qqmlregistration.h>
#include <QVariant>
#include <QVector>

/*!
    A level meter: a column (or row) of cells lit up to a signal level in dB,
    with an optional falling short-hold mark and the marks of the lowest and
    highest level seen (long holds). The QML document VynVUMeter11 is this item.

    The item registers with VynVUMeterManager when its creation completes and
    unregisters when it is destroyed; the manager's 80 ms clock calls animate()
    while the item is animated (by default: while it is visible).

    Ballistics, per animate() call (one tick of dt ms):
    - holdTime grows by dt; past resetInterval it restarts from 0 and reset()
      runs (the default interval, the manager's 4294967295 s, never elapses).
    - The displayed level d rises to the target n = normal(currentValue) at
      once and falls by 0.12 of the full scale per tick, snapping to n when
      less than 0.12 above it: a fall over the whole scale takes 9 ticks.
    - The short-hold mark follows the highest displayed cell, stays
      shortHoldDuration ms once the level went below it, then falls with a
      growing speed (acceleration 0.00002 per tick, velocity += dt x
      acceleration, round(velocity x dt) cells per tick).
    When the meter is not animated a new currentValue is shown at once and the
    short-hold mark goes to cell 0.

    Long holds: every new currentValue below minHoldValue or above
    maxHoldValue (or any value right after a reset) becomes the new hold and
    restarts holdTime.

    Values: normal(v) = (v - min) / (max - min), 0 when min == max; reversed
    meters use 1 - normal(v). The displayed cell of a level n is
    floor(n x (cells - 1)). Values that are not numbers are refused (old value
    kept, nothing emitted, one warning); an infinite currentValue is clamped to
    the end of the scale on its side; limits must be finite.

    Geometry, with the meter's own rounding: at a pixel ratio of exactly 1 round
    is Math.round and ceil is Math.ceil; at any other ratio both move x to a
    half pixel: j = x mod 0.5 (sign of x), x - j + 0.5 when j / 0.5 >= 0.25,
    else x - j. With the thickness T across the meter and the length L along it:
    thickness margin round(clamp(0.1 T, vuMeterMarginHMin, vuMeterMarginHMax)),
    length margin round(clamp(0.4 T, vuMeterMarginVMin, vuMeterMarginVMax)),
    cell length round(clamp(0.15 T, vuMeterCellHeightMin, vuMeterCellHeightMax))
    or, for N constrained cells, round((L - 2 margin) / (N + 0.2 (N - 1))),
    cell space ceil(0.2 x cell length), cells
    max(0, floor((L - 2 margin + space) / (cell length + space))), corner radius
    clamp(0.3 T, vuMeterCornerRadiusMin, vuMeterCornerRadiusMax).

    Drawing: cell k is lit up to the displayed cell, at the short-hold cell and
    at the hold cells, in on colour round(k / (cells - 1) x 31); hold cells
    glow underneath (the max hold only when the holds differ). Vertical meters
    put the low end at the bottom and horizontal ones at the left; isReversed
    turns that around. The whole meter is one scene-graph node, and a tick that
    changes no cell leaves the node alone.

    Input: a left click (not ending a long press) or Space/Return with the
    focus emits clicked(), which makes the manager reset every meter; a right
    click and a press held 800 ms emit rightClicked(mouse) and
    longPressed(mouse) when allowed. mouse has x, y, button and modifiers.
*/
class VYNUI_EXPORT VynVUMeterItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double minValue READ minValue WRITE setMinValue NOTIFY minValueChanged)
    Q_PROPERTY(double maxValue READ maxValue WRITE setMaxValue NOTIFY maxValueChanged)
    Q_PROPERTY(
        double defaultValue READ defaultValue WRITE setDefaultValue NOTIFY defaultValueChanged)
    Q_PROPERTY(bool isReversed READ isReversed WRITE setReversed NOTIFY isReversedChanged)
    Q_PROPERTY(bool displaysHoldValues READ displaysHoldValues WRITE setDisplaysHoldValues NOTIFY
                   displaysHoldValuesChanged)
    Q_PROPERTY(bool displaysShortHoldValue READ displaysShortHoldValue WRITE
                   setDisplaysShortHoldValue NOTIFY displaysShortHoldValueChanged)
    Q_PROPERTY(
        double currentValue READ currentValue WRITE setCurrentValue NOTIFY currentValueChanged)
    Q_PROPERTY(double minHoldValue READ minHoldValue NOTIFY holdValuesChanged)
    Q_PROPERTY(double maxHoldValue READ maxHoldValue NOTIFY holdValuesChanged)
    Q_PROPERTY(bool animated READ animated WRITE setAnimated NOTIFY animatedChanged)
    Q_PROPERTY(int dt READ dt WRITE setDt NOTIFY dtChanged)
    Q_PROPERTY(int shortHoldDuration READ shortHoldDuration WRITE setShortHoldDuration NOTIFY
                   shortHoldDurationChanged)
    Q_PROPERTY(
        double resetInterval READ resetInterval WRITE setResetInterval NOTIFY resetIntervalChanged)
    Q_PROPERTY(bool autoHorizontal READ autoHorizontal WRITE setAutoHorizontal NOTIFY
                   autoHorizontalChanged)
    Q_PROPERTY(bool isHorizontal READ isHorizontal NOTIFY isHorizontalChanged)
    Q_PROPERTY(
        double vynPixelRatio READ vynPixelRatio WRITE setVynPixelRatio NOTIFY vynPixelRatioChanged)
    Q_PROPERTY(VynViewUtils::VynControlSize vynControlSize READ vynControlSize WRITE
                   setVynControlSize NOTIFY vynControlSizeChanged)
    Q_PROPERTY(
        VynColorUtils::VynStyle vynStyle READ vynStyle WRITE setVynStyle NOTIFY vynStyleChanged)
    Q_PROPERTY(int constrainedNumberOfCells READ constrainedNumberOfCells WRITE
                   setConstrainedNumberOfCells NOTIFY constrainedNumberOfCellsChanged)
    Q_PROPERTY(bool allowsRightClick READ allowsRightClick WRITE setAllowsRightClick NOTIFY
                   allowsRightClickChanged)
    Q_PROPERTY(bool allowsLongPress READ allowsLongPress WRITE setAllowsLongPress NOTIFY
                   allowsLongPressChanged)

    // Read-only state, for scales beside the meter and for tests.
    Q_PROPERTY(int numberOfCells READ numberOfCells NOTIFY geometryChanged)
    Q_PROPERTY(double cellLength READ cellLength NOTIFY geometryChanged)
    Q_PROPERTY(double cellSpace READ cellSpace NOTIFY geometryChanged)
    Q_PROPERTY(double thicknessMargin READ thicknessMargin NOTIFY geometryChanged)
    Q_PROPERTY(double lengthMargin READ lengthMargin NOTIFY geometryChanged)
    Q_PROPERTY(double cornerRadius READ cornerRadius NOTIFY geometryChanged)
    //! Length covered by the cells, from the first cell's edge to the last one's.
    Q_PROPERTY(double cellsLength READ cellsLength NOTIFY geometryChanged)
    //! Offset of the first cell from the item's edge along the length.
    Q_PROPERTY(double cellsOffset READ cellsOffset NOTIFY geometryChanged)
    Q_PROPERTY(double displayedLevel READ displayedLevel NOTIFY displayChanged)
    Q_PROPERTY(int displayedIndex READ displayedIndex NOTIFY displayChanged)
    Q_PROPERTY(int shortHoldIndex READ shortHoldIndex NOTIFY displayChanged)
    Q_PROPERTY(int minHoldIndex READ minHoldIndex NOTIFY displayChanged)
    Q_PROPERTY(int maxHoldIndex READ maxHoldIndex NOTIFY displayChanged)

public:
    explicit VynVUMeterItem(QQuickItem* parent = nullptr);
    ~VynVUMeterItem() override;

    double minValue() const { return m_minValue; }
    void setMinValue(double value);
    double maxValue() const { return m_maxValue; }
    void setMaxValue(double value);
    double defaultValue() const { return m_defaultFollowsMin ? m_minValue : m_defaultValue; }
    void setDefaultValue(double value);
    bool isReversed() const { return m_reversed; }
    void setReversed(bool reversed);
    bool displaysHoldValues() const { return m_displaysHold; }
    void setDisplaysHoldValues(bool on);
    bool displaysShortHoldValue() const
    {
        return m_shortHoldFollowsHold ? m_displaysHold : m_displaysShortHold;
    }
    void setDisplaysShortHoldValue(bool on);
    double currentValue() const { return m_currentValue; }
    void setCurrentValue(double value);
    double minHoldValue() const { return m_minHold; }
    double maxHoldValue() const { return m_maxHold; }
    bool animated() const { return m_animated; }
    void setAnimated(bool on);
    int dt() const { return m_dt; }
    void setDt(int ms);
    int shortHoldDuration() const { return m_shortHoldDuration; }
    void setShortHoldDuration(int ms);
    double resetInterval() const;
    void setResetInterval(double ms);
    bool autoHorizontal() const { return m_autoHorizontal; }
    void setAutoHorizontal(bool on);
    bool isHorizontal() const { return m_autoHorizontal && width() > height(); }
    double vynPixelRatio() const { return m_ratio; }
    void setVynPixelRatio(double ratio);
    VynViewUtils::VynControlSize vynControlSize() const { return m_controlSize; }
    void setVynControlSize(VynViewUtils::VynControlSize size);
    VynColorUtils::VynStyle vynStyle() const { return m_style; }
    void setVynStyle(VynColorUtils::VynStyle style);
    int constrainedNumberOfCells() const { return m_constrainedCells; }
    void setConstrainedNumberOfCells(int cells);
    bool allowsRightClick() const { return m_allowsRightClick; }
    void setAllowsRightClick(bool on);
    bool allowsLongPress() const { return m_allowsLongPress; }
    void setAllowsLongPress(bool on);

    int numberOfCells() const { return m_cells; }
    double cellLength() const { return m_cellLength; }
    double cellSpace() const { return m_cellSpace; }
    double thicknessMargin() const { return m_thicknessMargin; }
    double lengthMargin() const { return m_lengthMargin; }
    double cornerRadius() const { return m_cornerRadius; }
    double cellsLength() const;
    double cellsOffset() const { return m_cellsOffset; }
    double displayedLevel() const { return m_displayed; }
    int displayedIndex() const { return indexOfLevel(m_displayed); }
    int shortHoldIndex() const { return m_shortHoldIndex; }
    int minHoldIndex() const { return indexOfValue(m_minHold); }
    int maxHoldIndex() const { return indexOfValue(m_maxHold); }

    //! The level of \a value on the scale, 0 to 1 inside it, turned around when reversed.
    Q_INVOKABLE double normalValue(double p_value) const;
    //! The meter's rounding at \a p_ratio: Math.round at 1, else the half-pixel rule.
    Q_INVOKABLE static double meterRound(double p_value, double p_ratio);
    //! The meter's ceiling at \a p_ratio: Math.ceil at 1, else the half-pixel rule.
    Q_INVOKABLE static double meterCeil(double p_value, double p_ratio);
    //! Rectangle of cell \a p_index (0 at the low end of the scale) in item coordinates.
    Q_INVOKABLE QRectF cellRect(int p_index) const;
    //! Colour cell \a p_index is drawn with now.
    Q_INVOKABLE QColor cellColor(int p_index) const;

public slots:
    //! One step of the animation; the manager calls it every tick.
    void animate();
    //! Drops the holds and restarts the display from the default value.
    void reset();

signals:
    void minValueChanged();
    void maxValueChanged();
    void defaultValueChanged();
    void isReversedChanged();
    void displaysHoldValuesChanged();
    void displaysShortHoldValueChanged();
    void currentValueChanged();
    void holdValuesChanged();
    void animatedChanged();
    void dtChanged();
    void shortHoldDurationChanged();
    void resetIntervalChanged();
    void autoHorizontalChanged();
    void isHorizontalChanged();
    void vynPixelRatioChanged();
    void vynControlSizeChanged();
    void vynStyleChanged();
    void constrainedNumberOfCellsChanged();
    void allowsRightClickChanged();
    void allowsLongPressChanged();
    void geometryChanged();
    void displayChanged();
    void clicked();
    void rightClicked(QVariant mouse);
    void longPressed(QVariant mouse);

protected:
    void componentComplete() override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    QSGNode* updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* data) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    int indexOfLevel(double level) const;
    int indexOfValue(double value) const;
    bool refuses(double value, bool finiteOnly, const char* function) const;
    void updateHoldValues();
    void updateGeometry();
    //! Re-draws when a cell or a glow changed since the last frame; emits displayChanged().
    void refreshDisplay();
    void updateAcceptedButtons();
    QVariant mouseObject(const QPointF& position, Qt::MouseButton button,
                         Qt::KeyboardModifiers modifiers) const;

    double m_minValue = -60.0;
    double m_maxValue = 0.0;
    double m_defaultValue = -60.0;
    bool m_defaultFollowsMin = true;
    bool m_reversed = false;
    bool m_displaysHold = false;
    bool m_displaysShortHold = false;
    bool m_shortHoldFollowsHold = true;
    double m_currentValue = -60.0;
    double m_minHold = -60.0;
    double m_maxHold = -60.0;
    bool m_animated = false;
    bool m_animatedFollowsVisible = true;
    int m_dt = 80;
    int m_shortHoldDuration = 1000;
    double m_resetInterval = 0.0;
    bool m_resetIntervalFollowsManager = true;
    bool m_autoHorizontal = false;
    bool m_horizontal = false;
    double m_ratio = 1.0;
    VynViewUtils::VynControlSize m_controlSize = VynViewUtils::VynControlSizeRegular;
    VynColorUtils::VynStyle m_style = VynColorUtils::VynStyleLight;
    int m_constrainedCells = 0;
    bool m_allowsRightClick = false;
    bool m_allowsLongPress = false;

    // Animation state.
    double m_displayed = 0.0;
    double m_holdTime = 0.0;
    bool m_resetPending = true;
    int m_shortHoldIndex = 0;
    double m_shortHoldVelocity = 0.0;
    double m_shortHoldAcceleration = 0.0;
    double m_shortHoldTime = 0.0;

    // Geometry.
    int m_cells = 0;
    double m_cellLength = 0.0;
    double m_cellSpace = 0.0;
    double m_thicknessMargin = 0.0;
    double m_lengthMargin = 0.0;
    double m_cornerRadius = 0.0;
    double m_cellsOffset = 0.0;

    // What the last frame showed: the lit cells and the glows, so that a tick that
    // changes none of them does not touch the scene graph.
    int m_shownIndex = -2;
    int m_shownShortHold = -2;
    int m_shownMinHold = -2;
    int m_shownMaxHold = -2;
    bool m_shownHolds = false;
    bool m_lookDirty = true;

    // Press state.
    QBasicTimer m_longPressTimer;
    QPointF m_pressPosition;
    Qt::MouseButton m_pressButton = Qt::NoButton;
    Qt::KeyboardModifiers m_pressModifiers;
    bool m_longPressed = false;
    bool m_registered = false;
};
