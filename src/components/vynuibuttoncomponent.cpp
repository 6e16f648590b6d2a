#include "vynuibuttoncomponent.h"

#include <qloggermanager.h>
#include <vynlocalizable.h>

#include <QPointer>

#include <cmath>

using QtCommonsConstants::VynBOOL;

VynUIButtonComponent::VynUIButtonComponent(QObject* parent) : VynUIComponent(parent, false)
{
    setComponentType(VynViewUtils::VynUIComponentTypeButton);
    addLogDestination(&staticMetaObject, QLogger::Error);
}

VynUIButtonComponent::~VynUIButtonComponent() = default;

VynBOOL VynUIButtonComponent::nextOnForOn(VynBOOL on)
{
    return on == QtCommonsConstants::VynNO ? QtCommonsConstants::VynYES : QtCommonsConstants::VynNO;
}

bool VynUIButtonComponent::refusesNotANumberIn(const QVariant& value, const char* function) const
{
    const int type = value.metaType().id();
    if (type != QMetaType::Double && type != QMetaType::Float)
        return false;
    return refusesNotANumber(value.toDouble(), function);
}

void VynUIButtonComponent::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    emit textChanged();
}

void VynUIButtonComponent::setIsOn(VynBOOL on)
{
    if (on < QtCommonsConstants::VynBOOLFalse || on > QtCommonsConstants::VynBOOLMixed) {
        logError(QStringLiteral("Ignored on state %1").arg(int(on)), "setIsOn", __FILE__, __LINE__);
        return;
    }
    if (on == m_isOn)
        return;
    m_isOn = on;
    emit onChanged();
}

void VynUIButtonComponent::setAnimating(bool animating)
{
    if (animating == m_animating)
        return;
    m_animating = animating;
    emit animatingChanged();
}

void VynUIButtonComponent::setRate(double rate)
{
    if (refusesNotANumber(rate, "setRate"))
        return;
    if (std::isinf(rate)) {
        logError(QStringLiteral("Refused an infinite rate"), "setRate", __FILE__, __LINE__);
        return;
    }
    if (rate == m_rate)
        return;
    m_rate = rate;
    emit rateChanged();
}

void VynUIButtonComponent::setAction(int action)
{
    if (action == m_config.action)
        return;
    m_config.action = action;
    emit configChanged();
}

void VynUIButtonComponent::setTitleDependsOnAction(bool depends)
{
    if (depends == m_titleDependsOnAction)
        return;
    m_titleDependsOnAction = depends;
    emit titleDependsOnActionChanged();
}

void VynUIButtonComponent::setOptionStep(int step)
{
    if (step == m_config.optionStep)
        return;
    m_config.optionStep = step;
    emit configChanged();
}

void VynUIButtonComponent::setOptionValue(const QVariant& value)
{
    if (refusesNotANumberIn(value, "setOptionValue") || value == m_config.optionValue)
        return;
    m_config.optionValue = value;
    emit configChanged();
}

void VynUIButtonComponent::setOptionAltValue(const QVariant& value)
{
    if (refusesNotANumberIn(value, "setOptionAltValue") || value == m_config.optionAltValue)
        return;
    m_config.optionAltValue = value;
    emit configChanged();
}

void VynUIButtonComponent::setToggleBitMask(int mask)
{
    if (mask == m_config.toggleBitMask)
        return;
    m_config.toggleBitMask = mask;
    emit toggleBitMaskChanged();
}

VynUIButtonConfig VynUIButtonComponent::buttonConfig() const
{
    VynUIButtonConfig config = m_config;
    config.source = qint64(reinterpret_cast<quintptr>(this));
    return config;
}

void VynUIButtonComponent::setButtonConfig(const VynUIButtonConfig& config)
{
    if (refusesNotANumberIn(config.optionValue, "setButtonConfig") ||
        refusesNotANumberIn(config.optionAltValue, "setButtonConfig"))
        return;
    if (!config.sameAction(m_config)) {
        m_config.action = config.action;
        m_config.optionStep = config.optionStep;
        m_config.optionValue = config.optionValue;
        m_config.optionAltValue = config.optionAltValue;
        // A slot may delete the button.
        const QPointer<VynUIButtonComponent> self(this);
        emit configChanged();
        if (!self)
            return;
    }
    setToggleBitMask(config.toggleBitMask);
}

void VynUIButtonComponent::setTextAndTip(const QString& p_string)
{
    const QPointer<VynUIButtonComponent> self(this);
    setText(p_string);
    if (self)
        setTooltipText(p_string);
}

void VynUIButtonComponent::restoreFromUIComponent(VynUIComponent* p_other)
{
    const QPointer<VynUIButtonComponent> self(this);
    const QPointer<VynUIComponent> other(p_other);
    VynUIComponent::restoreFromUIComponent(p_other);
    if (!self || !other || p_other == this)
        return;
    auto* button = qobject_cast<VynUIButtonComponent*>(p_other);
    if (!button)
        return;
    setText(button->text());
    if (!self || !other)
        return;
    setTitleDependsOnAction(button->titleDependsOnAction());
    if (!self || !other)
        return;
    setButtonConfig(button->m_config);
}

QString VynUIButtonComponent::toStringValue()
{
    switch (m_isOn) {
    case QtCommonsConstants::VynBOOLFalse:
        return kVynNullString;
    case QtCommonsConstants::VynBOOLTrue:
        return m_text;
    default:
        return QStringLiteral("%1 %2").arg(
            QtCommonsConstants::qLocalizedString(QStringLiteral("MULTIPLE_SHORT"),
                                                 VynLocalizable::kContext),
            m_text);
    }
}

void VynUIButtonComponent::onStyleChanged() {}
