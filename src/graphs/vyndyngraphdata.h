#pragma once

#include "vynuiglobal.h"

#include <QObject>
#include <QPointF>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

/*!
    The affine scaling between levels (dB) and pixels of a dynamics graph.

    Input levels run along x, output levels along y (growing downward): inMin maps to
    insetLeft, outMax to insetTop. The ten inputs are plain properties without notify signals;
    every real change (and the construction) (re)starts a 10 ms single-shot timer, so a burst of
    changes costs one updateScales(). Callers that need the scales at once call updateScales()
    themselves; it does not emit scalesChanged(), which is there for QML bindings that choose to
    emit or watch it.

    With a width or height of 0 every scale and offset is 0, the left-edge level reads inMax and
    the right-edge level inMin (swapped on purpose), the bottom and top levels keep their values
    and the origin is (0, height).
*/
class VYNUI_EXPORT VynDynGraphData : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double width READ width WRITE setWidth)
    Q_PROPERTY(double height READ height WRITE setHeight)
    Q_PROPERTY(double insetLeft READ insetLeft WRITE setInsetLeft)
    Q_PROPERTY(double insetRight READ insetRight WRITE setInsetRight)
    Q_PROPERTY(double insetBottom READ insetBottom WRITE setInsetBottom)
    Q_PROPERTY(double insetTop READ insetTop WRITE setInsetTop)
    Q_PROPERTY(double inMin READ inMin WRITE setInMin)
    Q_PROPERTY(double inMax READ inMax WRITE setInMax)
    Q_PROPERTY(double outMin READ outMin WRITE setOutMin)
    Q_PROPERTY(double outMax READ outMax WRITE setOutMax)

public:
    explicit VynDynGraphData(QObject* parent = nullptr);
    ~VynDynGraphData() override;

    double width() const { return m_width; }
    void setWidth(double p_width);
    double height() const { return m_height; }
    void setHeight(double p_height);
    double insetLeft() const { return m_insetLeft; }
    void setInsetLeft(double p_inset);
    double insetRight() const { return m_insetRight; }
    void setInsetRight(double p_inset);
    double insetBottom() const { return m_insetBottom; }
    void setInsetBottom(double p_inset);
    double insetTop() const { return m_insetTop; }
    void setInsetTop(double p_inset);
    double inMin() const { return m_inMin; }
    void setInMin(double p_value);
    double inMax() const { return m_inMax; }
    void setInMax(double p_value);
    double outMin() const { return m_outMin; }
    void setOutMin(double p_value);
    double outMax() const { return m_outMax; }
    void setOutMax(double p_value);

    Q_INVOKABLE double xForIn(double p_in) const;
    Q_INVOKABLE double yForOut(double p_out) const;
    Q_INVOKABLE double inForX(double p_x) const;
    Q_INVOKABLE double outForY(double p_y) const;

    //! Derived state, for views and tests.
    double inLeft() const { return m_inLeft; }
    double inRight() const { return m_inRight; }
    double outBottom() const { return m_outBottom; }
    double outTop() const { return m_outTop; }
    QPointF origin() const { return m_origin; }
    //! The coalescing timer, so that tests can drive it deterministically.
    QTimer* updateTimer() { return &m_timer; }

signals:
    void scalesChanged();

public slots:
    void setNeedsUpdateScales();
    void updateScales();

private:
    void setInput(double* p_field, double p_value);

    double m_width = 0.0;
    double m_height = 0.0;
    double m_insetLeft = 0.0;
    double m_insetRight = 0.0;
    double m_insetBottom = 0.0;
    double m_insetTop = 0.0;
    double m_inMin = 0.0;
    double m_inMax = 1.0;
    double m_outMin = 0.0;
    double m_outMax = 1.0;

    double m_inScale = 1.0;
    double m_inOffset = 0.0;
    double m_outScale = 1.0;
    double m_outOffset = 0.0;
    double m_xScale = 1.0;
    double m_xOffset = 0.0;
    double m_yScale = 1.0;
    double m_yOffset = 0.0;
    double m_inLeft = 1.0;
    double m_inRight = 0.0;
    double m_outBottom = 0.0;
    double m_outTop = 1.0;
    QPointF m_origin;

    QTimer m_timer;
};
