#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <vynfamilyutils.h>
#include <vynproxyparampath.h>

#include <QtQml/qqmlregistration.h>

/*!
    The model of a level meter bound to a device reading: the scale (minValue,
    maxValue, defaultValue), the current value and the lowest and highest
    values the device reported since the last reset (the holds).

    - setLimits(min, max, default) does nothing when all three equal the
      stored ones exactly; otherwise it stores them, emits limitsChanged(),
      then puts value and both holds on the default and emits valueChanged().
    - setValue(v, minHold, maxHold) does nothing when v equals the stored
      value and neither hold widens the stored ones. Otherwise the value
      becomes v limited to maxValue and then raised to minValue (so minValue
      wins when the limits cross), the holds take the wider of stored and
      given, and valueChanged() is emitted once. Holds only widen until
      resetValues() or setLimits() puts them back on the default.
    - A fresh component holds +FLT_MAX and -FLT_MAX, so that the first
      setValue() takes the holds it is given.

    Values that are not numbers: a NaN limit, value or hold, or an infinite
    limit, is refused (nothing stored, nothing emitted, one logged line).

    The second path and the two integers are the host's: stored and copied by
    restoreFromUIComponent(), never read here.
*/
class VYNUI_EXPORT VynUIVUMeterComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double minValue READ minValue NOTIFY limitsChanged)
    Q_PROPERTY(double maxValue READ maxValue NOTIFY limitsChanged)
    Q_PROPERTY(double defaultValue READ defaultValue NOTIFY limitsChanged)
    Q_PROPERTY(bool reverse READ reverse NOTIFY reverseChanged)
    Q_PROPERTY(bool displaysHoldValue READ displaysHoldValue NOTIFY displaysHoldValueChanged)
    Q_PROPERTY(bool animating READ animating NOTIFY animatingChanged)
    Q_PROPERTY(double value READ value NOTIFY valueChanged)
    Q_PROPERTY(double minHoldValue READ minHoldValue NOTIFY valueChanged)
    Q_PROPERTY(double maxHoldValue READ maxHoldValue NOTIFY valueChanged)

public:
    //! The hold of a fresh component: the largest single-precision float.
    static constexpr double kUnsetHold = 3.4028234663852886e38;

    explicit VynUIVUMeterComponent(QObject* parent = nullptr);
    ~VynUIVUMeterComponent() override;

    double minValue() const { return m_minValue; }
    double maxValue() const { return m_maxValue; }
    double defaultValue() const { return m_defaultValue; }
    void setLimits(double minValue, double maxValue, double defaultValue);
    double value() const { return m_value; }
    double minHoldValue() const { return m_minHoldValue; }
    double maxHoldValue() const { return m_maxHoldValue; }
    void setValue(double value, double minHold, double maxHold);
    void resetValues();
    bool reverse() const { return m_reverse; }
    void setReverse(bool on);
    bool displaysHoldValue() const { return m_displaysHoldValue; }
    void setDisplaysHoldValue(bool on);
    bool animating() const { return m_animating; }
    void setAnimating(bool on);

    const VynProxyParamPath& secondParamPath() const { return m_secondParamPath; }
    void setSecondParamPath(const VynProxyParamPath& path) { m_secondParamPath = path; }
    int firstHostValue() const { return m_firstHostValue; }
    void setFirstHostValue(int value) { m_firstHostValue = value; }
    int secondHostValue() const { return m_secondHostValue; }
    void setSecondHostValue(int value) { m_secondHostValue = value; }

    Q_INVOKABLE void restoreFromUIComponent(VynUIComponent* p_other) override;
    Q_INVOKABLE QString toStringValue() override;

    /*!
        The caption of a meter of \a path. At Mini size a fixed abbreviation by
        the id of the path's last name: 111 "V", 112 "A", 113 "D", 114 "Pt",
        115 "T", 116 and 117 "Cp", any other "Lv". At other sizes the path's
        localised name for \a family (short form at Small size), the path first
        put under the "Meter" element (id 6) when \a prefixed.
    */
    static QString vuMeterNameForParamPath(const VynProxyParamPath& path, bool prefixed,
                                           VynFamilyUtils::VynDeviceFamily family,
                                           VynViewUtils::VynControlSize size);

signals:
    void limitsChanged();
    void reverseChanged();
    void displaysHoldValueChanged();
    void animatingChanged();
    void valueChanged();

private:
    VynProxyParamPath m_secondParamPath = VynProxyParamPath::EmptyPath;
    int m_firstHostValue = 0;
    int m_secondHostValue = 0;
    double m_minValue = 0.0;
    double m_maxValue = 0.0;
    double m_defaultValue = 0.0;
    double m_value = 0.0;
    double m_minHoldValue = kUnsetHold;
    double m_maxHoldValue = -kUnsetHold;
    bool m_reverse = false;
    bool m_displaysHoldValue = false;
    bool m_animating = false;
};
