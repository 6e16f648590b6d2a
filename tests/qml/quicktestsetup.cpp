#include "quicktestsetup.h"

#include <qapplicationmessage.h>
#include <qapplicationsettings.h>
#include <qcorewindowcontroller.h>
#include <vyndynamiccommon.h>
#include <vyneqcommoneq.h>
#include <vynhintmanager.h>
#include <vynuiledcomponent.h>
#include <vynuiplugin.h>
#include <vynuislidercomponent.h>

#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickWindow>

TestHost::TestHost(QObject* parent) : QObject(parent) {}

TestHost::~TestHost()
{
    removePresenter();
    detachWindowController();
}

void TestHost::present(QApplicationMessage* p_message)
{
    ++m_presentedCount;
    m_lastTitle = p_message->title();
    m_lastMessage = p_message->string();
    emit presented();
    p_message->respond(m_response);
}

void TestHost::resetHiddenHints()
{
    VynHintManager::resetHiddenHints();
}

void TestHost::installAnsweringPresenter(int p_response)
{
    m_response = p_response;
    m_presentedCount = 0;
    m_lastTitle.clear();
    m_lastMessage.clear();
    QApplicationMessage::setPresenter(this);
    emit presented();
}

void TestHost::removePresenter()
{
    if (QApplicationMessage::presenter() == this)
        QApplicationMessage::setPresenter(nullptr);
}

bool TestHost::attachWindowController(QObject* p_item)
{
    QQuickWindow* window = QCoreWindowController::windowForQmlObject(p_item);
    if (!window)
        return false;
    detachWindowController();
    m_controller = new QCoreWindowController(window, this);
    return true;
}

void TestHost::detachWindowController()
{
    delete m_controller.data();
}

void TestHost::pushValue(QObject* p_component, double p_value, const QVariantList& p_values)
{
    auto* component = qobject_cast<VynUISliderComponent*>(p_component);
    if (!component)
        return;
    QList<double> values;
    bool mixed = false;
    for (const QVariant& v : p_values) {
        values.append(v.toDouble());
        mixed = mixed || values.last() != values.first();
    }
    component->setValue(p_value, mixed, values);
}

void TestHost::nameComponent(QObject* p_component, const QString& p_name)
{
    if (auto* component = qobject_cast<VynUIComponent*>(p_component))
        component->setName(p_name);
}

void TestHost::setLedState(QObject* p_component, int p_state, bool p_mixed)
{
    if (auto* led = qobject_cast<VynUILedComponent*>(p_component))
        led->setLedState(static_cast<VynViewUtils::VynLedState>(p_state), p_mixed);
}

void TestHost::watchEditing(QObject* p_component)
{
    disconnect(m_editedConnection);
    m_editedCount = 0;
    m_lastAutoClose = true;
    auto* component = qobject_cast<VynUIComponent*>(p_component);
    if (!component)
        return;
    m_editedConnection = connect(component, qOverload<bool>(&VynUIComponent::editedWhileMultiple),
                                 this, [this](bool autoClose) {
                                     ++m_editedCount;
                                     m_lastAutoClose = autoClose;
                                 });
}

QuickTestSetup::QuickTestSetup() = default;

void QuickTestSetup::applicationAvailable()
{
    VynUIPlugin::initializeTypes();
    VynUIPlugin plugin;
    plugin.onOpeningModule();
    QApplicationSettings::sharedSettings()->setFileName(
        m_settingsDir.filePath(QStringLiteral("settings")));
}

void QuickTestSetup::qmlEngineAvailable(QQmlEngine* engine)
{
    engine->addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
    engine->rootContext()->setContextProperty(QStringLiteral("testHost"), &m_host);
}

void QuickTestSetup::cleanupTestCase()
{
    m_host.removePresenter();
    m_host.detachWindowController();
}

QObject* TestHost::makeEQ(int p_bandCount)
{
    auto* eq = new VynEQCommonEQ;
    eq->setBandCount(p_bandCount);
    QQmlEngine::setObjectOwnership(eq, QQmlEngine::JavaScriptOwnership);
    return eq;
}

QObject* TestHost::makeDynamics(double p_threshold, double p_ratio)
{
    auto* block = new VynDynamicCommon;
    block->setThreshold(p_threshold);
    block->setRatio(p_ratio);
    QQmlEngine::setObjectOwnership(block, QQmlEngine::JavaScriptOwnership);
    return block;
}
