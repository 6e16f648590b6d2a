#pragma once

#include "vyncommonglobal.h"
#include "vyncommonutils.h"
#include "vyneqconstants.h"

#include <QObject>

/*!
    One band of a parametric EQ as the device reports it: its shape, frequency (Hz), gain (dB)
    and q, whether the user enabled it and whether the device uses it at all.

    Setters compare first (doubles by the fuzzy rule) and emit only on a real change: the
    property's own signal, then valuesChanged(). A value that is not a finite number is refused:
    the band keeps its old value, emits nothing and logs one warning.
*/
class VYNCOMMON_EXPORT VynEQBand : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int type READ type WRITE setType NOTIFY typeChanged)
    Q_PROPERTY(double frequency READ frequency WRITE setFrequency NOTIFY frequencyChanged)
    Q_PROPERTY(double gain READ gain WRITE setGain NOTIFY gainChanged)
    Q_PROPERTY(double q READ q WRITE setQ NOTIFY qChanged)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool used READ isUsed WRITE setUsed NOTIFY usedChanged)

public:
    explicit VynEQBand(QObject* parent = nullptr);
    ~VynEQBand() override;

    int type() const { return m_type; }
    void setType(int p_type);
    double frequency() const { return m_frequency; }
    void setFrequency(double p_frequency);
    double gain() const { return m_gain; }
    void setGain(double p_gain);
    double q() const { return m_q; }
    void setQ(double p_q);
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool p_enabled);
    bool isUsed() const { return m_used; }
    void setUsed(bool p_used);

    //! The band as the response sums read it.
    VynCommonUtils::VynEQBandValues values() const;

signals:
    void typeChanged();
    void frequencyChanged();
    void gainChanged();
    void qChanged();
    void enabledChanged();
    void usedChanged();
    //! Any of the six properties changed.
    void valuesChanged();

private:
    bool setDouble(double* p_field, double p_value, const char* p_name);

    int m_type = VynEQConstants::VynEQTypeBell;
    double m_frequency = 1000.0;
    double m_gain = 0.0;
    double m_q = 1.0;
    bool m_enabled = true;
    bool m_used = true;
};
