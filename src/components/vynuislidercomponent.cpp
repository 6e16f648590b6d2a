#include "vynuislidercomponent.h"

#include <qloggermanager.h>

#include <QJSEngine>

#include <algorithm>
#include <cmath>

VynUISliderComponent::VynUISliderComponent(QObject* parent, bool p_enableLogs)
    : VynUIComponent(parent, false), m_transformer(new VynTransformer(this))
{
    setComponentType(VynViewUtils::VynUIComponentTypeSlider);
    if (p_enableLogs)
        addLogDestination(&staticMetaObject, QLogger::Info);
    connect(this, &VynUISliderComponent::slidingBegan, this, &VynUISliderComponent::onSlidingBegan);
}

VynUISliderComponent::~VynUISliderComponent() = default;

bool VynUISliderComponent::refusesNonFiniteLimit(double value, const char* function) const
{
    if (std::isfinite(value))
        return false;
    logError(QStringLiteral("Refused a limit that is not a finite number"), function, __FILE__,
             __LINE__);
    return true;
}

double VynUISliderComponent::clampedInfinity(double value) const
{
    if (!std::isinf(value))
        return value;
    return value > 0 ? std::max(m_maxValue, m_minValue) : std::min(m_maxValue, m_minValue);
}

double VynUISliderComponent::firstNotANumber(const QList<double>& values)
{
    const auto found =
        std::find_if(values.cbegin(), values.cend(), [](double v) { return std::isnan(v); });
    return found == values.cend() ? 0.0 : *found;
}

bool VynUISliderComponent::fuzzyEquals(double a, double b)
{
    return std::fabs(a - b) * 1e12 <= std::min(std::fabs(a), std::fabs(b));
}

void VynUISliderComponent::setMixed(bool mixed)
{
    if (mixed == m_mixed)
        return;
    m_mixed = mixed;
    emit mixedChanged();
}

void VynUISliderComponent::setSliding(bool sliding)
{
    if (sliding == m_sliding)
        return;
    m_sliding = sliding;
    emit slidingChanged();
}

void VynUISliderComponent::setMinValue(double value)
{
    if (refusesNonFiniteLimit(value, "setMinValue") || fuzzyEquals(value, m_minValue))
        return;
    m_minValue = value;
    emit minValueChanged();
}

void VynUISliderComponent::setMaxValue(double value)
{
    if (refusesNonFiniteLimit(value, "setMaxValue") || fuzzyEquals(value, m_maxValue))
        return;
    m_maxValue = value;
    emit maxValueChanged();
}

void VynUISliderComponent::setInitValue(double value)
{
    if (refusesNotANumber(value, "setInitValue"))
        return;
    value = clampedInfinity(value);
    if (fuzzyEquals(value, m_initValue))
        return;
    m_initValue = value;
    emit initValueChanged();
}

void VynUISliderComponent::setPrevValue(double value)
{
    if (refusesNotANumber(value, "setPrevValue"))
        return;
    value = clampedInfinity(value);
    if (value == m_prevValue)
        return;
    m_prevValue = value;
    emit prevValueChanged();
}

void VynUISliderComponent::setValues(const QList<double>& values)
{
    if (refusesNotANumber(firstNotANumber(values), "setValues"))
        return;
    QVariantList list;
    list.reserve(values.size());
    for (double v : values)
        list.append(v);
    if (list == m_values)
        return;
    m_values = list;
    emit valuesChanged();
}

void VynUISliderComponent::setValue(double value, bool mixed, const QList<double>& values)
{
    // One refusal for the whole echo: nothing of a half-valid echo is stored.
    if (refusesNotANumber(std::isnan(value) ? value : firstNotANumber(values), "setValue"))
        return;
    // Slots on valuesChanged() or mixedChanged() may delete the component.
    const QPointer<VynUISliderComponent> self(this);
    setValues(values);
    if (!self)
        return;
    setMixed(mixed);
    if (!self)
        return;
    setValueQml(std::max(std::min(value, m_maxValue), m_minValue));
}

QString VynUISliderComponent::formatValue(double value) const
{
    if (!m_transformer)
        return QString::number(value, 'g', 6);
    return m_transformer->valueToString(static_cast<float>(value), m_textWithUnit, m_textAutoScale);
}

void VynUISliderComponent::setValueQml(double value)
{
    if (refusesNotANumber(value, "setValueQml"))
        return;
    value = clampedInfinity(value);
    if (fuzzyEquals(value, m_value) && !m_stringValue.isEmpty())
        return;
    m_value = value;
    m_stringValue = formatValue(value);
    emit valueChanged();
}

void VynUISliderComponent::refreshStringValue()
{
    // A value never formatted stays unformatted until it is set.
    if (m_stringValue.isEmpty())
        return;
    const QString text = formatValue(m_value);
    if (text == m_stringValue)
        return;
    m_stringValue = text;
    emit valueChanged();
}

void VynUISliderComponent::setTransformer(VynTransformer* transformer)
{
    // The previous clone stays a child: texts it made may still be shown.
    m_transformer = transformer ? transformer->clone(this) : nullptr;
    const QPointer<VynUISliderComponent> self(this);
    emit transformerChanged();
    if (self)
        refreshStringValue();
}

QString VynUISliderComponent::toStringValue()
{
    return m_stringValue;
}

void VynUISliderComponent::setSlidingValidator(SlidingValidator validator)
{
    m_slidingValidator = std::move(validator);
}

void VynUISliderComponent::setValueValidator(ValueValidator validator)
{
    m_valueValidator = std::move(validator);
}

QJSValue VynUISliderComponent::jsSelf()
{
    QJSEngine* engine = qjsEngine(this);
    return engine ? engine->newQObject(this) : QJSValue(QJSValue::NullValue);
}

void VynUISliderComponent::setSlidingValidatorQml(QJSValue p_validator)
{
    if (!p_validator.isCallable()) {
        setSlidingValidator(nullptr);
        return;
    }
    setSlidingValidator([p_validator](VynUISliderComponent* component) mutable {
        const QJSValue answer = p_validator.call({component->jsSelf()});
        if (answer.isError()) {
            component->logError(answer.toString(), "shouldBeginSliding", __FILE__, __LINE__);
            return false;
        }
        return answer.toBool();
    });
}

void VynUISliderComponent::setValueValidatorQml(QJSValue p_validator)
{
    if (!p_validator.isCallable()) {
        setValueValidator(nullptr);
        return;
    }
    setValueValidator([p_validator](VynUISliderComponent* component, double& value, bool isRelative,
                                    double prevValue, bool isFinal) mutable {
        const QJSValue answer =
            p_validator.call({component->jsSelf(), value, isRelative, prevValue, isFinal});
        if (answer.isError()) {
            component->logError(answer.toString(), "expectsValue", __FILE__, __LINE__);
            return false;
        }
        if (answer.isObject() && !answer.isCallable()) {
            const QJSValue replaced = answer.property(QStringLiteral("value"));
            if (replaced.isNumber())
                value = replaced.toNumber();
            return answer.property(QStringLiteral("accepted")).toBool();
        }
        return answer.toBool();
    });
}

bool VynUISliderComponent::shouldBeginSliding()
{
    if (!m_slidingValidator)
        return false;
    const SlidingValidator validator = m_slidingValidator;
    return validator(this);
}

bool VynUISliderComponent::expectsValue(double p_value, bool p_isRelative, double p_prevValue,
                                        bool p_isFinal)
{
    if (!m_valueValidator)
        return false;
    // A value that is not a number is never offered: the host could not send it anyway.
    if (refusesNotANumber(p_value, "expectsValue") ||
        refusesNotANumber(p_prevValue, "expectsValue"))
        return false;
    // A copy: the validator may install another one while it runs.
    const ValueValidator validator = m_valueValidator;
    double value = p_value;
    // The validator may delete the component (it answers for it to the host).
    const QPointer<VynUISliderComponent> self(this);
    const bool accepted = validator(this, value, p_isRelative, p_prevValue, p_isFinal);
    if (!self)
        return accepted;
    // A validator that answers NaN refuses: the value stays as it was.
    if (refusesNotANumber(value, "expectsValue"))
        return false;
    setValueQml(value);
    return accepted;
}

void VynUISliderComponent::onSlidingBegan()
{
    m_slideOffset = std::round(m_value) - m_value;
}
