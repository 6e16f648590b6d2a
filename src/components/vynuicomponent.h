#pragma once

#include "vynuiglobal.h"

#include "vyncolorutils.h"
#include "vynviewutils.h"

#include <qcorewindowcontroller.h>
#include <vyncommonconstants.h>
#include <vynproxyparampath.h>

#include <QJSValue>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

#include <functional>

/*!
    The model behind every parameter-bound control: which kind of control it
    is, its style, the device parameter it stands for (paramPath), the access
    rules of that parameter (security key, type and confirmation texts), a
    tooltip, a display name, and the life-cycle hooks the host drives.

    The base is not a QML element; it reaches QML as the type of properties
    and arguments. Concrete components (VynUISliderComponent, ...) derive from it.

    Rules a host relies on:
    - `enabled` reads the stored flag AND securityType != VynSecurityTypeDisable.
      setSecurityKey() and setSecurityType() therefore emit
      securityTypeChanged() and then enabledChanged() on every real change.
    - Slots may delete the component synchronously from any of its signals:
      a call that emits several signals stops at the first one after which the
      component is gone.
    - The enum setters (componentType, style, securityType, nameSize) take
      only the enumerators of their type: any other integer, which QML can
      write, is logged as an error and leaves the property unchanged.
    - Every setter compares first (strings by content, the path with !=) and
      emits nothing for an equal value. setNameSize() emits wantsNameChanged();
      setSecurityAlertTitleAndMessage() emits securityAlertChanged() once when
      either text changed.
    - restoreFromUIComponent() copies, through the setters and so with their
      signals: componentType, paramPath, securityKey, securityType, the alert
      title and message, tooltipText, the stored enabled flag, previewMode,
      windowController, wantsName, nameSize, name. It leaves style and
      expecting alone.
    - presentConfirmChangeAlertIfNeeded() runs a change through the
      security gate of QApplicationMessage: without a window controller (own
      or found from the QML scene) it returns at once, silently, and the
      completion is never called.

    Logging: a component built with its logging flag registers a QtCommons
    logger destination named after its class (level 2 for the base) when the
    host created the logger; errors are queued at level 2 with the function,
    file and line. Without a logger the message goes to qWarning() instead.
*/
class VYNUI_EXPORT VynUIComponent : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(VynViewUtils::VynUIComponentType componentType READ componentType WRITE
                   setComponentType NOTIFY componentTypeChanged)
    Q_PROPERTY(VynColorUtils::VynStyle style READ style WRITE setStyle NOTIFY styleChanged)
    Q_PROPERTY(
        VynProxyParamPath paramPath READ paramPath WRITE setParamPath NOTIFY paramPathChanged)
    Q_PROPERTY(QCoreWindowController* windowController READ windowController NOTIFY
                   windowControllerChanged)
    Q_PROPERTY(QString securityKey READ securityKey WRITE setSecurityKey NOTIFY securityTypeChanged)
    Q_PROPERTY(VynCommonConstants::VynSecurityType securityType READ securityType WRITE
                   setSecurityType NOTIFY securityTypeChanged)
    Q_PROPERTY(QString securityAlertTitle READ securityAlertTitle NOTIFY securityAlertChanged)
    Q_PROPERTY(QString securityAlertMessage READ securityAlertMessage NOTIFY securityAlertChanged)
    Q_PROPERTY(QString tooltipText READ tooltipText WRITE setTooltipText NOTIFY tooltipTextChanged)
    Q_PROPERTY(bool enabled READ enabled WRITE setEnabled NOTIFY enabledChanged)
    Q_PROPERTY(bool previewMode READ previewMode WRITE setPreviewMode NOTIFY previewModeChanged)
    Q_PROPERTY(bool expecting READ expecting WRITE setExpecting NOTIFY expectingChanged)
    Q_PROPERTY(bool wantsName READ wantsName WRITE setWantsName NOTIFY wantsNameChanged)
    Q_PROPERTY(VynViewUtils::VynControlSize nameSize READ nameSize WRITE setNameSize NOTIFY
                   wantsNameChanged)
    Q_PROPERTY(QString name READ name NOTIFY nameChanged)

public:
    explicit VynUIComponent(QObject* parent = nullptr, bool p_enableLogs = true);
    ~VynUIComponent() override;

    VynViewUtils::VynUIComponentType componentType() const { return m_componentType; }
    void setComponentType(VynViewUtils::VynUIComponentType type);
    VynColorUtils::VynStyle style() const { return m_style; }
    void setStyle(VynColorUtils::VynStyle style);
    const VynProxyParamPath& paramPath() const { return m_paramPath; }
    void setParamPath(const VynProxyParamPath& path);
    QString securityKey() const { return m_securityKey; }
    void setSecurityKey(const QString& key);
    VynCommonConstants::VynSecurityType securityType() const { return m_securityType; }
    void setSecurityType(VynCommonConstants::VynSecurityType type);
    QString securityAlertTitle() const { return m_securityAlertTitle; }
    QString securityAlertMessage() const { return m_securityAlertMessage; }
    void setSecurityAlertTitleAndMessage(const QString& title, const QString& message);
    QCoreWindowController* windowController() const { return m_windowController; }
    void setWindowController(QCoreWindowController* controller);
    QString tooltipText() const { return m_tooltipText; }
    void setTooltipText(const QString& text);
    //! The effective flag: the stored flag and a security type other than disable.
    bool enabled() const;
    //! The stored flag, whatever the security type says.
    bool storedEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    bool previewMode() const { return m_previewMode; }
    void setPreviewMode(bool on);
    bool expecting() const { return m_expecting; }
    void setExpecting(bool on);
    bool wantsName() const { return m_wantsName; }
    void setWantsName(bool on);
    VynViewUtils::VynControlSize nameSize() const { return m_nameSize; }
    void setNameSize(VynViewUtils::VynControlSize size);
    QString name() const { return m_name; }
    void setName(const QString& name);

    Q_INVOKABLE virtual void restoreFromUIComponent(VynUIComponent* p_other);
    Q_INVOKABLE virtual QString toStringValue();

    //! Asks for confirmation as the security type requires, then calls \a completion.
    void presentConfirmChangeAlertIfNeeded(std::function<void()> completion);
    //! QML form: \a p_completion is called with no arguments when it is callable.
    Q_INVOKABLE void presentConfirmChangeAlertIfNeededQml(QJSValue p_completion);

signals:
    void componentTypeChanged();
    void styleChanged();
    void securityTypeChanged();
    void securityAlertChanged();
    void windowControllerChanged();
    void tooltipTextChanged();
    void enabledChanged();
    void previewModeChanged();
    void expectingChanged();
    void paramPathChanged();
    void wantsNameChanged();
    void nameChanged();
    void longPressed();
    void editedWhileMultiple(bool p_autoClosePopover);
    void editedWhileMultiple();
    void doneEditingWhileMultiple();

public slots:
    virtual void onComponentIsAboutToComplete();
    virtual void onComponentComplete();
    virtual void onComponentIsAboutToDestroy();
    virtual void onComponentDestroy();
    virtual void updateData();
    virtual void didUpdateSynchronizing();

protected:
    //! Registers a logger destination named after the class of \a metaObject at \a level
    //! when the logger exists.
    static void addLogDestination(const QMetaObject* metaObject, int level);
    //! Queues \a message at level 2 under this object's class name.
    void logError(const QString& message, const char* function, const char* file, int line) const;
    //! True, after one logged line naming \a function, when \a value is NaN: a setter that
    //! gets this answer keeps its old value and emits nothing.
    bool refusesNotANumber(double value, const char* function) const;

private:
    void setSecurityKeyOrType(const QString& key, VynCommonConstants::VynSecurityType type);

    VynViewUtils::VynUIComponentType m_componentType = VynViewUtils::VynUIComponentTypeNone;
    VynColorUtils::VynStyle m_style = VynColorUtils::VynStyleDark;
    VynProxyParamPath m_paramPath = VynProxyParamPath::EmptyPath;
    QString m_securityKey;
    VynCommonConstants::VynSecurityType m_securityType = VynCommonConstants::VynSecurityTypeNone;
    QString m_securityAlertTitle;
    QString m_securityAlertMessage;
    QPointer<QCoreWindowController> m_windowController;
    QString m_tooltipText;
    bool m_enabled = true;
    bool m_previewMode = false;
    bool m_expecting = false;
    bool m_wantsName = false;
    VynViewUtils::VynControlSize m_nameSize = VynViewUtils::VynControlSizeRegular;
    QString m_name;
};
