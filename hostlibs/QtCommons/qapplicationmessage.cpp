#include "qapplicationmessage.h"

#include "qapplicationmessagepresenter.h"
#include "qapplicationmessageqmlpresenter.h"
#include "qcorewindowcontroller.h"
#include "qtcommons.h"
#include "qtcommonsconstants.h"

#include <QQuickWindow>

namespace {

const QString kTable = QStringLiteral("QtCommonsLocalizable");

QApplicationMessagePresenter* s_presenter = nullptr;

QString defaultText(const char* key)
{
    if (!QtCommons::hasQLocalTable(kTable)) {
        QtCommons::addQLocalTable(kTable, {{QStringLiteral("OK"), QStringLiteral("OK")},
                                           {QStringLiteral("CONFIRM"), QStringLiteral("Confirm")},
                                           {QStringLiteral("CANCEL"), QStringLiteral("Cancel")}});
    }
    return QtCommonsConstants::qLocalizedString(QString::fromLatin1(key), kTable);
}

QString orDefault(const QString& text, const char* key)
{
    return text.isEmpty() ? defaultText(key) : text;
}

} // namespace

QApplicationMessage::QApplicationMessage(QObject* parent) : QObject(parent) {}

QApplicationMessage::QApplicationMessage(const QApplicationMessage& other, QObject* parent)
    : QObject(parent), m_title(other.m_title), m_string(other.m_string), m_tag(other.m_tag),
      m_level(other.m_level), m_type(other.m_type), m_hasCheckbox(other.m_hasCheckbox),
      m_checkboxText(other.m_checkboxText), m_isChecked(other.m_isChecked),
      m_userData(other.m_userData), m_window(other.m_window),
      m_windowControllers(other.m_windowControllers)
{
    for (const QApplicationMessageAction* action : other.m_actions)
        addAction(new QApplicationMessageAction(action->text(), action->handler()));
}

QApplicationMessage::~QApplicationMessage() = default;

void QApplicationMessage::setTitle(const QString& title)
{
    if (title == m_title)
        return;
    m_title = title;
    emit titleChanged();
}

void QApplicationMessage::setString(const QString& string)
{
    if (string == m_string)
        return;
    m_string = string;
    emit stringChanged();
}

void QApplicationMessage::setTag(int tag)
{
    if (tag == m_tag)
        return;
    m_tag = tag;
    emit tagChanged();
}

void QApplicationMessage::setLevel(int level)
{
    if (level == m_level)
        return;
    m_level = level;
    emit levelChanged();
}

void QApplicationMessage::setType(int type)
{
    if (type == m_type)
        return;
    m_type = type;
    emit typeChanged();
}

void QApplicationMessage::addAction(QApplicationMessageAction* action)
{
    if (!action || m_actions.contains(action))
        return;
    action->setParent(this);
    m_actions.append(action);
    connect(action, &QObject::destroyed, this, [this, action] {
        if (m_actions.removeOne(action))
            emit actionsChanged();
    });
    emit actionsChanged();
}

QApplicationMessageAction*
QApplicationMessage::addAction(const QString& text, QApplicationMessageAction::Handler handler)
{
    auto* action = new QApplicationMessageAction(text, std::move(handler), this);
    addAction(action);
    return action;
}

bool QApplicationMessage::executeAction(int index)
{
    QApplicationMessageAction* action = m_actions.value(index);
    if (!action)
        return false;
    action->trigger();
    return true;
}

void QApplicationMessage::setHasCheckbox(bool on)
{
    if (on == m_hasCheckbox)
        return;
    m_hasCheckbox = on;
    emit checkboxChanged();
}

void QApplicationMessage::setCheckboxText(const QString& text)
{
    if (text == m_checkboxText)
        return;
    m_checkboxText = text;
    emit checkboxChanged();
}

void QApplicationMessage::setChecked(bool checked)
{
    if (checked == m_isChecked)
        return;
    m_isChecked = checked;
    emit checkboxChanged();
}

QList<QCoreWindowController*> QApplicationMessage::windowControllers() const
{
    QList<QCoreWindowController*> controllers;
    for (const auto& controller : m_windowControllers) {
        if (controller)
            controllers.append(controller);
    }
    return controllers;
}

void QApplicationMessage::setWindowControllers(const QList<QCoreWindowController*>& controllers)
{
    m_windowControllers.clear();
    for (QCoreWindowController* controller : controllers)
        m_windowControllers.append(controller);
}

QQmlListProperty<QApplicationMessageAction> QApplicationMessage::actionsQml()
{
    return QQmlListProperty<QApplicationMessageAction>(this, &m_actions);
}

void QApplicationMessage::present()
{
    presenter()->present(this);
}

void QApplicationMessage::respond(int response)
{
    if (m_finished)
        return;
    m_finished = true;
    if (response >= 0)
        executeAction(response);
    const Completion completion = std::move(m_completion);
    m_completion = nullptr;
    if (completion)
        completion(response, m_isChecked, m_userData);
    emit finished(response);
    deleteLater();
}

void QApplicationMessage::setPresenter(QApplicationMessagePresenter* presenter)
{
    s_presenter = presenter;
}

QApplicationMessagePresenter* QApplicationMessage::presenter()
{
    if (s_presenter)
        return s_presenter;
    static QApplicationMessageQmlPresenter s_default;
    return &s_default;
}

QWindow* QApplicationMessage::resolveWindow(const QList<QCoreWindowController*>& windowControllers,
                                            QObject* parent)
{
    if (auto* window = qobject_cast<QWindow*>(parent))
        return window;
    if (QWindow* window = QCoreWindowController::windowForQmlObject(parent))
        return window;
    for (QCoreWindowController* controller : windowControllers) {
        if (controller && controller->window())
            return controller->window();
    }
    return nullptr;
}

QApplicationMessage*
QApplicationMessage::make(const QString& title, const QString& message, int tag, int level,
                          int type, const QList<QCoreWindowController*>& windowControllers,
                          QObject* parent, Completion completion, const QVariant& context)
{
    auto* result = new QApplicationMessage();
    result->setTitle(title);
    result->setString(message);
    result->setTag(tag);
    result->setLevel(level);
    result->setType(type);
    result->setWindowControllers(windowControllers);
    result->setWindow(resolveWindow(windowControllers, parent));
    result->setCompletion(std::move(completion));
    result->setUserData(context);
    return result;
}

QApplicationMessage* QApplicationMessage::presentBasicMessage(
    const QString& title, const QString& message, int tag, int level, int type,
    const QString& actionTitle, const QList<QCoreWindowController*>& windowControllers,
    QObject* parent, Completion completion, const QVariant& context)
{
    QApplicationMessage* result = make(title, message, tag, level, type, windowControllers, parent,
                                       std::move(completion), context);
    result->addAction(orDefault(actionTitle, "OK"));
    result->present();
    return result;
}

QApplicationMessage* QApplicationMessage::presentConfirmMessage(
    const QString& title, const QString& message, int tag, int level, int type,
    const QPair<QString, QString>& buttonTitles,
    const QList<QCoreWindowController*>& windowControllers, QObject* parent, Completion completion,
    const QVariant& context)
{
    QApplicationMessage* result = make(title, message, tag, level, type, windowControllers, parent,
                                       std::move(completion), context);
    result->addAction(orDefault(buttonTitles.first, "CONFIRM"));
    result->addAction(orDefault(buttonTitles.second, "CANCEL"));
    result->present();
    return result;
}

QApplicationMessage* QApplicationMessage::presentCustomMessage(
    const QString& title, const QString& message, int tag, int level, int type,
    const QStringList& actionTitles, const QList<QCoreWindowController*>& windowControllers,
    QObject* parent, Completion completion, const QVariant& context)
{
    QApplicationMessage* result = make(title, message, tag, level, type, windowControllers, parent,
                                       std::move(completion), context);
    for (const QString& text : actionTitles)
        result->addAction(text);
    if (actionTitles.isEmpty())
        result->addAction(defaultText("OK"));
    result->present();
    return result;
}

QApplicationMessage* QApplicationMessage::presentConfirmMessageIfNeededForSecurityType(
    int securityType, const QString& title, const QString& message, int tag, int level, int type,
    const QPair<QString, QString>& buttonTitles,
    const QList<QCoreWindowController*>& windowControllers, QObject* parent, Completion completion,
    const QVariant& context)
{
    constexpr int kShouldAlert = 1;
    constexpr int kDisable = 2;
    if (securityType == kDisable)
        return nullptr;
    if (securityType != kShouldAlert) {
        if (completion)
            completion(Response_Confirm, false, context);
        return nullptr;
    }
    Completion onConfirm = [completion](int response, bool checked, const QVariant& data) {
        if (response == Response_Confirm && completion)
            completion(response, checked, data);
    };
    return presentConfirmMessage(title, message, tag, level, type, buttonTitles, windowControllers,
                                 parent, std::move(onConfirm), context);
}
