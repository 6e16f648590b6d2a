#include "vynuicomponent.h"

#include "vynuiqmlconstants.h"

#include <qapplicationmessage.h>
#include <qloggermanager.h>

#include <QMetaEnum>
#include <QPointer>
#include <QQuickWindow>

#include <cmath>
#include <functional>

VynUIComponent::VynUIComponent(QObject* parent, bool p_enableLogs) : QObject(parent)
{
    if (p_enableLogs)
        addLogDestination(metaObject(), QLogger::Error);
}

VynUIComponent::~VynUIComponent() = default;

void VynUIComponent::addLogDestination(const QMetaObject* metaObject, int level)
{
    if (!QLogger::QLoggerManager::instanceIsAlive())
        return;
    QLogger::QLoggerManager::getInstance()->addDestination(
        QString(), QString::fromLatin1(metaObject->className()), level, QString(),
        QLogger::DefaultMode, QLogger::DefaultFileDisplay, QLogger::LogMessageDisplays());
}

void VynUIComponent::logError(const QString& message, const char* function, const char* file,
                              int line) const
{
    const QString module = QString::fromLatin1(metaObject()->className());
    if (QLogger::QLoggerManager::instanceIsAlive()) {
        QLogger::QLoggerManager::getInstance()->enqueueMessage(module, QLogger::Error, message,
                                                               QString::fromLatin1(function),
                                                               QString::fromLatin1(file), line);
    } else {
        qWarning("%s: %s (%s)", qPrintable(module), qPrintable(message), function);
    }
}

namespace {

// Whether \a value is one of the enumerators of E (QML hands any integer to an enum
// property).
template <typename E> bool isEnumerator(E value)
{
    return QMetaEnum::fromType<E>().valueToKey(int(value)) != nullptr;
}

} // namespace

bool VynUIComponent::refusesNotANumber(double value, const char* function) const
{
    if (!std::isnan(value))
        return false;
    logError(QStringLiteral("Refused a value that is not a number"), function, __FILE__, __LINE__);
    return true;
}

void VynUIComponent::setComponentType(VynViewUtils::VynUIComponentType type)
{
    if (!isEnumerator(type)) {
        logError(QStringLiteral("Ignored component type %1").arg(int(type)), "setComponentType",
                 __FILE__, __LINE__);
        return;
    }
    if (type == m_componentType)
        return;
    m_componentType = type;
    emit componentTypeChanged();
}

void VynUIComponent::setStyle(VynColorUtils::VynStyle style)
{
    if (!isEnumerator(style)) {
        logError(QStringLiteral("Ignored style %1").arg(int(style)), "setStyle", __FILE__,
                 __LINE__);
        return;
    }
    if (style == m_style)
        return;
    m_style = style;
    emit styleChanged();
}

void VynUIComponent::setParamPath(const VynProxyParamPath& path)
{
    if (!(path != m_paramPath))
        return;
    m_paramPath = path;
    emit paramPathChanged();
}

void VynUIComponent::setSecurityKey(const QString& key)
{
    if (key == m_securityKey)
        return;
    m_securityKey = key;
    // A slot on the first signal may delete the component.
    const QPointer<VynUIComponent> self(this);
    emit securityTypeChanged();
    if (self)
        emit enabledChanged();
}

void VynUIComponent::setSecurityType(VynCommonConstants::VynSecurityType type)
{
    if (!isEnumerator(type)) {
        logError(QStringLiteral("Ignored security type %1").arg(int(type)), "setSecurityType",
                 __FILE__, __LINE__);
        return;
    }
    if (type == m_securityType)
        return;
    m_securityType = type;
    const QPointer<VynUIComponent> self(this);
    emit securityTypeChanged();
    if (self)
        emit enabledChanged();
}

void VynUIComponent::setSecurityAlertTitleAndMessage(const QString& title, const QString& message)
{
    if (title == m_securityAlertTitle && message == m_securityAlertMessage)
        return;
    m_securityAlertTitle = title;
    m_securityAlertMessage = message;
    emit securityAlertChanged();
}

void VynUIComponent::setWindowController(QCoreWindowController* controller)
{
    if (controller == m_windowController)
        return;
    m_windowController = controller;
    emit windowControllerChanged();
}

void VynUIComponent::setTooltipText(const QString& text)
{
    if (text == m_tooltipText)
        return;
    m_tooltipText = text;
    emit tooltipTextChanged();
}

bool VynUIComponent::enabled() const
{
    return m_enabled && m_securityType != VynCommonConstants::VynSecurityTypeDisable;
}

void VynUIComponent::setEnabled(bool enabled)
{
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    emit enabledChanged();
}

void VynUIComponent::setPreviewMode(bool on)
{
    if (on == m_previewMode)
        return;
    m_previewMode = on;
    emit previewModeChanged();
}

void VynUIComponent::setExpecting(bool on)
{
    if (on == m_expecting)
        return;
    m_expecting = on;
    emit expectingChanged();
}

void VynUIComponent::setWantsName(bool on)
{
    if (on == m_wantsName)
        return;
    m_wantsName = on;
    emit wantsNameChanged();
}

void VynUIComponent::setNameSize(VynViewUtils::VynControlSize size)
{
    if (!isEnumerator(size)) {
        logError(QStringLiteral("Ignored name size %1").arg(int(size)), "setNameSize", __FILE__,
                 __LINE__);
        return;
    }
    if (size == m_nameSize)
        return;
    m_nameSize = size;
    emit wantsNameChanged();
}

void VynUIComponent::setName(const QString& name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit nameChanged();
}

void VynUIComponent::restoreFromUIComponent(VynUIComponent* p_other)
{
    if (!p_other || p_other == this)
        return;
    // Slots on the change signals may delete either component: the copy stops as soon as
    // one of them is gone.
    const QPointer<VynUIComponent> self(this);
    const QPointer<VynUIComponent> other(p_other);
    const std::function<void()> steps[] = {
        [&] { setComponentType(other->componentType()); },
        [&] { setParamPath(other->paramPath()); },
        [&] { setSecurityKey(other->securityKey()); },
        [&] { setSecurityType(other->securityType()); },
        [&] {
            setSecurityAlertTitleAndMessage(other->securityAlertTitle(),
                                            other->securityAlertMessage());
        },
        [&] { setTooltipText(other->tooltipText()); },
        [&] { setEnabled(other->storedEnabled()); },
        [&] { setPreviewMode(other->previewMode()); },
        [&] { setWindowController(other->windowController()); },
        [&] { setWantsName(other->wantsName()); },
        [&] { setNameSize(other->nameSize()); },
        [&] { setName(other->name()); },
    };
    for (const auto& step : steps) {
        if (!self || !other)
            return;
        step();
    }
}

QString VynUIComponent::toStringValue()
{
    return kVynNullString;
}

void VynUIComponent::presentConfirmChangeAlertIfNeeded(std::function<void()> completion)
{
    QCoreWindowController* controller = m_windowController;
    if (!controller)
        controller = VynUIQmlConstants::windowControllerForQmlObject(this);
    if (!controller)
        return;
    QQuickWindow* window = VynUIQmlConstants::windowForQmlObject(this);

    QApplicationMessage::presentConfirmMessageIfNeededForSecurityType(
        m_securityType, m_securityAlertTitle, m_securityAlertMessage, -1,
        QApplicationMessage::Level_Warn, QApplicationMessage::Type_Popup, QPair<QString, QString>(),
        {controller}, window,
        [completion](int, bool, const QVariant&) {
            if (completion)
                completion();
        },
        QVariant());
}

void VynUIComponent::presentConfirmChangeAlertIfNeededQml(QJSValue p_completion)
{
    presentConfirmChangeAlertIfNeeded([p_completion]() mutable {
        if (!p_completion.isNull() && p_completion.isCallable())
            p_completion.call();
    });
}

void VynUIComponent::onComponentIsAboutToComplete() {}

void VynUIComponent::onComponentComplete() {}

void VynUIComponent::onComponentIsAboutToDestroy() {}

void VynUIComponent::onComponentDestroy() {}

void VynUIComponent::updateData() {}

void VynUIComponent::didUpdateSynchronizing() {}
