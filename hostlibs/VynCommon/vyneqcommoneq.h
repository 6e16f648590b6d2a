#pragma once

#include "vyncommonglobal.h"
#include "vyneqband.h"

#include <QList>
#include <QObject>
#include <QVariantList>

/*!
    The parametric EQ of one channel: an on flag and an ordered list of bands, owned by the EQ.

    setBandCount() grows or shrinks the list (new bands are bells at 1 kHz, 0 dB, q 1) and emits
    bandsChanged(). A change of any value of any band is forwarded as bandValuesChanged(), so a
    view needs one connection per EQ. setOn() compares and emits onChanged().
*/
class VYNCOMMON_EXPORT VynEQCommonEQ : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool on READ isOn WRITE setOn NOTIFY onChanged)
    Q_PROPERTY(QVariantList bands READ bandsQml NOTIFY bandsChanged)
    Q_PROPERTY(int bandCount READ bandCount NOTIFY bandsChanged)

public:
    explicit VynEQCommonEQ(QObject* parent = nullptr);
    ~VynEQCommonEQ() override;

    bool isOn() const { return m_on; }
    void setOn(bool p_on);

    int bandCount() const { return int(m_bands.size()); }
    void setBandCount(int p_count);
    Q_INVOKABLE VynEQBand* band(int p_index) const;
    const QList<VynEQBand*>& bands() const { return m_bands; }
    QVariantList bandsQml() const;

    //! The values of every band, in order, as the response sums read them.
    QList<VynCommonUtils::VynEQBandValues> bandValues() const;

signals:
    void onChanged();
    void bandsChanged();
    void bandValuesChanged();

private:
    bool m_on = true;
    QList<VynEQBand*> m_bands;
};
