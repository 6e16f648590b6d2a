#include "vynuislidefieldcomponent.h"

#include <qloggermanager.h>
#include <vyncommonconstants.h>

#include <QJSEngine>
#include <QPointer>

VynUISlideFieldComponent::VynUISlideFieldComponent(QObject* parent, bool p_enableLogs)
    : VynUISliderComponent(parent, false)
{
    setComponentType(VynViewUtils::VynUIComponentTypeSlideField);
    if (p_enableLogs)
        addLogDestination(&staticMetaObject, QLogger::Info);
    connect(this, &VynUISliderComponent::valueChanged, this,
            &VynUISlideFieldComponent::displayedValueChanged);
    watchTransformer();
}

VynUISlideFieldComponent::~VynUISlideFieldComponent() = default;

double VynUISlideFieldComponent::displayedValue() const
{
    return transformer() ? transformer()->rawToDisplayed(static_cast<float>(value())) : 0.0;
}

double VynUISlideFieldComponent::displayedMinValue() const
{
    return transformer() ? transformer()->rawToDisplayed(static_cast<float>(minValue())) : 0.0;
}

double VynUISlideFieldComponent::displayedMaxValue() const
{
    return transformer() ? transformer()->rawToDisplayed(static_cast<float>(maxValue())) : 0.0;
}

void VynUISlideFieldComponent::setRelative(bool relative)
{
    if (relative == m_relative)
        return;
    m_relative = relative;
    emit relativeChanged();
}

bool VynUISlideFieldComponent::allowsUnitChoosing() const
{
    return m_units.size() > 1 && m_unitValidator;
}

void VynUISlideFieldComponent::setAllowsUnitChoosingFrom(bool before)
{
    if (allowsUnitChoosing() != before)
        emit allowsUnitChoosingChanged();
}

void VynUISlideFieldComponent::setUnits(const QStringList& units)
{
    if (units == m_units)
        return;
    const bool allowedBefore = allowsUnitChoosing();
    const int indexBefore = unitIndex();
    m_units = units;
    const QPointer<VynUISlideFieldComponent> self(this);
    emit unitsChanged();
    if (self && unitIndex() != indexBefore)
        emit unitIndexChanged();
    if (self)
        setAllowsUnitChoosingFrom(allowedBefore);
}

int VynUISlideFieldComponent::unitIndex() const
{
    if (!transformer())
        return -1;
    return static_cast<int>(m_units.indexOf(transformer()->currentUnit()));
}

void VynUISlideFieldComponent::setUnitValidator(UnitValidator validator)
{
    const bool allowedBefore = allowsUnitChoosing();
    m_unitValidator = std::move(validator);
    setAllowsUnitChoosingFrom(allowedBefore);
}

void VynUISlideFieldComponent::setUnitValidatorQml(QJSValue p_validator)
{
    if (!p_validator.isCallable()) {
        setUnitValidator(nullptr);
        return;
    }
    setUnitValidator([p_validator](VynUISlideFieldComponent* component, QString& unit) mutable {
        const QJSValue answer = p_validator.call({component->jsSelf(), unit});
        if (answer.isError())
            component->logError(answer.toString(), "expectsUnit", __FILE__, __LINE__);
    });
}

void VynUISlideFieldComponent::watchTransformer()
{
    disconnect(m_unitConnection);
    if (transformer()) {
        m_unitConnection = connect(transformer(), &VynTransformer::currentUnitChanged, this,
                                   &VynUISlideFieldComponent::onTransformerUnitChanged);
    }
}

void VynUISlideFieldComponent::onTransformerUnitChanged()
{
    const QPointer<VynUISlideFieldComponent> self(this);
    refreshStringValue();
    if (self)
        emit unitIndexChanged();
    if (self)
        emitDisplayedValues();
}

void VynUISlideFieldComponent::emitDisplayedValues()
{
    // Each slot may delete the component: the next signal is emitted only if it survived.
    const QPointer<VynUISlideFieldComponent> self(this);
    emit displayedValueChanged();
    if (self)
        emit minValueChanged();
    if (self)
        emit maxValueChanged();
}

void VynUISlideFieldComponent::setTransformer(VynTransformer* transformer)
{
    const int indexBefore = unitIndex();
    const QPointer<VynUISlideFieldComponent> self(this);
    VynUISliderComponent::setTransformer(transformer);
    if (!self)
        return;
    watchTransformer();
    if (unitIndex() != indexBefore)
        emit unitIndexChanged();
    if (self)
        emitDisplayedValues();
}

void VynUISlideFieldComponent::setUnit(int p_index, bool p_force)
{
    if (p_index < 0 || p_index >= m_units.size()) {
        logError(QStringLiteral("Cannot set Unit. Index out of range"), "setUnit", __FILE__,
                 __LINE__);
        return;
    }
    if (!transformer()) {
        logError(QStringLiteral("Cannot set Unit. No transformer"), "setUnit", __FILE__, __LINE__);
        return;
    }
    const QString unit = m_units.at(p_index);
    if (!transformer()->units().contains(unit)) {
        logError(QStringLiteral("Cannot set Unit. The transformer has no unit \"%1\"").arg(unit),
                 "setUnit", __FILE__, __LINE__);
        return;
    }
    if (transformer()->currentUnit() == unit) {
        if (p_force)
            onTransformerUnitChanged();
        return;
    }
    // Emits currentUnitChanged, which lands in onTransformerUnitChanged().
    transformer()->setCurrentUnit(unit);
}

QString VynUISlideFieldComponent::getTransformerName() const
{
    return transformer() ? transformer()->getKeyRef() : kVynNullString;
}

void VynUISlideFieldComponent::chooseUnitAction(int p_index)
{
    if (p_index < 0 || p_index >= m_units.size()) {
        logError(QStringLiteral("Cannot select Unit. Index out of range"), "chooseUnitAction",
                 __FILE__, __LINE__);
        return;
    }
    if (!m_unitValidator)
        return;
    const UnitValidator validator = m_unitValidator;
    QString unit = m_units.at(p_index);
    validator(this, unit);
}

void VynUISlideFieldComponent::expectsUnit(QString p_unit)
{
    if (!m_unitValidator)
        return;
    const UnitValidator validator = m_unitValidator;
    validator(this, p_unit);
}

bool VynUISlideFieldComponent::shouldBeginSliding()
{
    const QPointer<VynUISlideFieldComponent> self(this);
    const bool allowed = VynUISliderComponent::shouldBeginSliding();
    if (allowed && self)
        emit scheduleSlideFieldPanHint();
    return allowed;
}

bool VynUISlideFieldComponent::expectsValue(double p_value, bool p_isRelative, double p_prevValue,
                                            bool p_isFinal)
{
    // The validator, or a slot on valueChanged(), may delete the component.
    const QPointer<VynUISlideFieldComponent> self(this);
    const bool accepted = VynUISliderComponent::expectsValue(p_value, p_isRelative || m_relative,
                                                             p_prevValue, p_isFinal);
    if (self && accepted && p_isFinal && !sliding())
        emit scheduleSlideFieldTextHint();
    return accepted;
}
