#pragma once

#include "vynuiglobal.h"

#include <vyncommonutils.h>
#include <vyneqcommoneq.h>

#include <QList>
#include <QObject>
#include <QPointer>
#include <QPointF>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

/*!
    The curves of one EQ in a graph view: the response of every band and their sum, in item
    coordinates (x to the right along a logarithmic frequency axis from freqMin at insetLeft to
    freqMax at width - insetRight, y downward from gainMax at insetTop to gainMin at
    height - insetBottom).

    The response is computed with VynCommonUtils on a grid of `count` points spread over the
    plot: the trigonometry of the grid once per geometry change, each band's magnitudes only
    when that band changed, the sum by adding the bands' dB. Dragging one band of a 16-band EQ
    thus costs one band's evaluation and a sum.

    A band whose frequency, gain or q is not a finite number stops the update: the curves keep
    their previous points. curvesChanged() is emitted after every recomputation.
*/
class VYNUI_EXPORT VynEQCurveModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(VynEQCommonEQ* eq READ eq WRITE setEq NOTIFY eqChanged)
    Q_PROPERTY(double width READ width WRITE setWidth NOTIFY geometryChanged)
    Q_PROPERTY(double height READ height WRITE setHeight NOTIFY geometryChanged)
    Q_PROPERTY(double insetLeft READ insetLeft WRITE setInsetLeft NOTIFY geometryChanged)
    Q_PROPERTY(double insetRight READ insetRight WRITE setInsetRight NOTIFY geometryChanged)
    Q_PROPERTY(double insetTop READ insetTop WRITE setInsetTop NOTIFY geometryChanged)
    Q_PROPERTY(double insetBottom READ insetBottom WRITE setInsetBottom NOTIFY geometryChanged)
    Q_PROPERTY(double freqMin READ freqMin WRITE setFreqMin NOTIFY geometryChanged)
    Q_PROPERTY(double freqMax READ freqMax WRITE setFreqMax NOTIFY geometryChanged)
    Q_PROPERTY(double gainMin READ gainMin WRITE setGainMin NOTIFY geometryChanged)
    Q_PROPERTY(double gainMax READ gainMax WRITE setGainMax NOTIFY geometryChanged)
    Q_PROPERTY(int count READ count WRITE setCount NOTIFY geometryChanged)
    Q_PROPERTY(double sampleRate READ sampleRate WRITE setSampleRate NOTIFY geometryChanged)
    Q_PROPERTY(QVariantList sumPoints READ sumPointsQml NOTIFY curvesChanged)
    Q_PROPERTY(int bandCount READ bandCount NOTIFY curvesChanged)

public:
    explicit VynEQCurveModel(QObject* parent = nullptr);
    ~VynEQCurveModel() override;

    VynEQCommonEQ* eq() const { return m_eq; }
    void setEq(VynEQCommonEQ* p_eq);

    double width() const { return m_width; }
    void setWidth(double p_value);
    double height() const { return m_height; }
    void setHeight(double p_value);
    double insetLeft() const { return m_insetLeft; }
    void setInsetLeft(double p_value);
    double insetRight() const { return m_insetRight; }
    void setInsetRight(double p_value);
    double insetTop() const { return m_insetTop; }
    void setInsetTop(double p_value);
    double insetBottom() const { return m_insetBottom; }
    void setInsetBottom(double p_value);
    double freqMin() const { return m_freqMin; }
    void setFreqMin(double p_value);
    double freqMax() const { return m_freqMax; }
    void setFreqMax(double p_value);
    double gainMin() const { return m_gainMin; }
    void setGainMin(double p_value);
    double gainMax() const { return m_gainMax; }
    void setGainMax(double p_value);
    int count() const { return m_count; }
    void setCount(int p_count);
    double sampleRate() const { return m_sampleRate; }
    void setSampleRate(double p_value);

    int bandCount() const { return int(m_bandDB.size()); }
    //! The summed curve, count points from insetLeft to width - insetRight.
    const QList<QPointF>& sumPoints() const { return m_sumPoints; }
    QVariantList sumPointsQml() const;
    //! The curve of band \a p_index alone (empty for a band that does not count).
    Q_INVOKABLE QVariantList bandPoints(int p_index) const;
    //! The summed response in dB at every grid point.
    const QList<double>& sumDB() const { return m_sumDB; }

    Q_INVOKABLE double xForFrequency(double p_frequency) const;
    Q_INVOKABLE double frequencyForX(double p_x) const;
    Q_INVOKABLE double yForGain(double p_gain) const;
    Q_INVOKABLE double gainForY(double p_y) const;

    //! Recomputes band \a p_index and the sum now (the EQ's band signals do this by themselves).
    void updateBand(int p_index);
    //! Recomputes every band and the sum now.
    Q_INVOKABLE void updateAll();

signals:
    void eqChanged();
    void geometryChanged();
    void curvesChanged();

private:
    void setGeometryValue(double* p_field, double p_value);
    void rebuildGrid();
    void connectBands();
    bool computeBand(int p_index);
    void sumAndMap();

    QPointer<VynEQCommonEQ> m_eq;
    QList<QMetaObject::Connection> m_bandConnections;
    double m_width = 0.0;
    double m_height = 0.0;
    double m_insetLeft = 0.0;
    double m_insetRight = 0.0;
    double m_insetTop = 0.0;
    double m_insetBottom = 0.0;
    double m_freqMin = 20.0;
    double m_freqMax = 20000.0;
    double m_gainMin = -18.0;
    double m_gainMax = 18.0;
    int m_count = 256;
    double m_sampleRate = VynCommonUtils::kVynEQDefaultSampleRate;

    VynCommonUtils::VynEQGrid m_grid;
    QList<double> m_xs;
    QList<QList<double>> m_bandDB;
    QList<double> m_sumDB;
    QList<QPointF> m_sumPoints;
};
