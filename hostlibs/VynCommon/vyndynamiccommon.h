#pragma once

#include "vyncommonglobal.h"

#include <QObject>

/*!
    One dynamics block (compressor or limiter) as the device reports it: make-up gain (dB),
    threshold (dB), ratio as the output slope above the threshold (1 is no compression, 0.25
    is 4:1), knee (dB on each side of the threshold) and an on flag.

    Setters compare first (doubles by the fuzzy rule) and emit only on a real change: the
    property's own signal, then valuesChanged(). A value that is not a finite number is refused
    with one warning.
*/
class VYNCOMMON_EXPORT VynDynamicCommon : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double gain READ gain WRITE setGain NOTIFY gainChanged)
    Q_PROPERTY(double threshold READ threshold WRITE setThreshold NOTIFY thresholdChanged)
    Q_PROPERTY(double ratio READ ratio WRITE setRatio NOTIFY ratioChanged)
    Q_PROPERTY(double knee READ knee WRITE setKnee NOTIFY kneeChanged)
    Q_PROPERTY(bool isOn READ isOn WRITE setOn NOTIFY isOnChanged)

public:
    explicit VynDynamicCommon(QObject* parent = nullptr);
    ~VynDynamicCommon() override;

    double gain() const { return m_gain; }
    void setGain(double p_gain);
    double threshold() const { return m_threshold; }
    void setThreshold(double p_threshold);
    double ratio() const { return m_ratio; }
    void setRatio(double p_ratio);
    double knee() const { return m_knee; }
    void setKnee(double p_knee);
    bool isOn() const { return m_on; }
    void setOn(bool p_on);

signals:
    void gainChanged();
    void thresholdChanged();
    void ratioChanged();
    void kneeChanged();
    void isOnChanged();
    void valuesChanged();

private:
    bool setDouble(double* p_field, double p_value, const char* p_name);

    double m_gain = 0.0;
    double m_threshold = 0.0;
    double m_ratio = 1.0;
    double m_knee = 0.0;
    bool m_on = true;
};
