#pragma once

#include "vynuiglobal.h"

#include "vynuicomponent.h"

#include <vyntransformer.h>

#include <QJSValue>
#include <QList>
#include <QPointer>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

#include <functional>

/*!
    The model of a continuous control bound to one numeric parameter, or to
    several at once ("mixed" when their values differ).

    Value in, from the devices: setValue(value, mixed, values) stores the
    values list (valuesChanged only when it differs element by element), the
    mixed flag, and the value clamped to the range, against maxValue first and
    then minValue, so that minValue wins when the range is inverted. The value
    goes through setValueQml(), which does nothing when the value is equal
    under the fuzzy rule |a - b| * 1e12 <= min(|a|, |b|) and the text is not
    empty; otherwise it stores the value, makes stringValue with the
    transformer (value narrowed to float, both text options true) and emits
    valueChanged() once for both. minValue, maxValue and initValue use the same
    fuzzy rule; prevValue and sliding compare exactly.

    Values that are not numbers: a NaN handed to any setter (value, values,
    limits, initValue, prevValue) is refused: the old state stays, nothing is
    emitted, one line is logged; setValue() with a NaN in its values list is
    refused as a whole. minValue and maxValue also refuse infinities. An
    infinite value, initValue or prevValue becomes the end of the range on its
    side. expectsValue() never offers NaN to the validator (it answers false),
    and a NaN that a validator answers is refused in the same way.

    Edit out, from the user: shouldBeginSliding() and expectsValue() ask the
    host's validators. Without a sliding validator sliding never begins;
    without a value validator every proposed value is refused (false) and
    nothing changes. With one, the validator gets the component and a
    modifiable copy of the value; the component then stores the (possibly
    modified) value through setValueQml() and returns the validator's answer.

    QML installs validators with setSlidingValidatorQml(fn) and
    setValueValidatorQml(fn); null or undefined removes them. The sliding
    function is called with the component and answers a boolean. The value
    function is called with (component, value, isRelative, prevValue, isFinal)
    and answers a boolean, or an object { accepted: bool, value: number } to
    replace the value. A component created outside any QML engine passes null
    as the component argument.

    The host may delete the component synchronously from a validator or from
    any of its signals (valuesChanged() in setValue(), valueChanged() in
    expectsValue(), ...): the call then returns at once, expectsValue() and
    shouldBeginSliding() with the validator's answer.

    Transformer: setTransformer(t) keeps t's clone as a child and emits
    transformerChanged(); null removes the transformer (stringValue then
    writes the bare number). Replaced clones stay children of the component
    until it is destroyed, since texts made by them may still be in use. The
    text is re-made with the new transformer (valueChanged() when it differs).
*/
class VYNUI_EXPORT VynUISliderComponent : public VynUIComponent
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool mixed READ mixed NOTIFY mixedChanged)
    Q_PROPERTY(bool sliding READ sliding WRITE setSliding NOTIFY slidingChanged)
    Q_PROPERTY(double minValue READ minValue WRITE setMinValue NOTIFY minValueChanged)
    Q_PROPERTY(double maxValue READ maxValue WRITE setMaxValue NOTIFY maxValueChanged)
    Q_PROPERTY(double initValue READ initValue WRITE setInitValue NOTIFY initValueChanged)
    Q_PROPERTY(double prevValue READ prevValue WRITE setPrevValue NOTIFY prevValueChanged)
    Q_PROPERTY(double value READ value WRITE setValueQml NOTIFY valueChanged)
    Q_PROPERTY(QString stringValue READ stringValue NOTIFY valueChanged)
    Q_PROPERTY(QVariantList values READ values NOTIFY valuesChanged)
    Q_PROPERTY(VynTransformer* transformer READ transformer NOTIFY transformerChanged)

public:
    using SlidingValidator = std::function<bool(VynUISliderComponent* p_component)>;
    using ValueValidator =
        std::function<bool(VynUISliderComponent* p_component, double& p_value, bool p_isRelative,
                           double p_prevValue, bool p_isFinal)>;

    explicit VynUISliderComponent(QObject* parent = nullptr, bool p_enableLogs = true);
    ~VynUISliderComponent() override;

    //! The fuzzy equality of values: |a - b| * 1e12 <= min(|a|, |b|).
    static bool fuzzyEquals(double a, double b);

    bool mixed() const { return m_mixed; }
    void setMixed(bool mixed);
    bool sliding() const { return m_sliding; }
    void setSliding(bool sliding);
    double minValue() const { return m_minValue; }
    void setMinValue(double value);
    double maxValue() const { return m_maxValue; }
    void setMaxValue(double value);
    double initValue() const { return m_initValue; }
    void setInitValue(double value);
    double prevValue() const { return m_prevValue; }
    void setPrevValue(double value);
    double value() const { return m_value; }
    QString stringValue() const { return m_stringValue; }
    QVariantList values() const { return m_values; }
    void setValues(const QList<double>& values);
    VynTransformer* transformer() const { return m_transformer; }
    //! Offset recorded when sliding began: the value rounded half away from zero, minus it.
    double slideOffset() const { return m_slideOffset; }

    //! The two text options handed to the transformer (both true by default).
    bool textOptionWithUnit() const { return m_textWithUnit; }
    bool textOptionAutoScale() const { return m_textAutoScale; }

    void setSlidingValidator(SlidingValidator validator);
    void setValueValidator(ValueValidator validator);
    bool hasSlidingValidator() const { return static_cast<bool>(m_slidingValidator); }
    bool hasValueValidator() const { return static_cast<bool>(m_valueValidator); }
    Q_INVOKABLE void setSlidingValidatorQml(QJSValue p_validator);
    Q_INVOKABLE void setValueValidatorQml(QJSValue p_validator);

    Q_INVOKABLE QString toStringValue() override;

    virtual void setTransformer(VynTransformer* transformer);
    virtual void setValue(double value, bool mixed, const QList<double>& values);

public slots:
    virtual bool shouldBeginSliding();
    virtual bool expectsValue(double p_value, bool p_isRelative, double p_prevValue,
                              bool p_isFinal);
    void onSlidingBegan();

public:
    virtual void setValueQml(double value);

signals:
    void transformerChanged();
    void mixedChanged();
    void slidingChanged();
    void minValueChanged();
    void maxValueChanged();
    void initValueChanged();
    void prevValueChanged();
    void valueChanged();
    void valuesChanged();
    void slidingBegan();
    void slidingEnded();

protected:
    //! The text of \a value by the current transformer.
    QString formatValue(double value) const;
    //! Re-makes stringValue (after a transformer or unit change); emits valueChanged() when
    //! the text differs.
    void refreshStringValue();
    //! A JavaScript handle on this component, null outside any engine.
    QJSValue jsSelf();
    //! True, after one logged line, when \a value is NaN or infinite.
    bool refusesNonFiniteLimit(double value, const char* function) const;
    //! \a value, with an infinity replaced by the end of the range on its side.
    double clampedInfinity(double value) const;
    //! The first NaN of \a values, else 0.
    static double firstNotANumber(const QList<double>& values);

private:
    bool m_mixed = false;
    bool m_sliding = false;
    double m_minValue = 0.0;
    double m_maxValue = 1.0;
    double m_initValue = 0.0;
    double m_prevValue = 0.0;
    double m_value = 0.0;
    QVariantList m_values;
    QString m_stringValue;
    bool m_textWithUnit = true;
    bool m_textAutoScale = true;
    QPointer<VynTransformer> m_transformer;
    SlidingValidator m_slidingValidator;
    ValueValidator m_valueValidator;
    double m_slideOffset = 0.0;
};
