#include "vynvumetermanager.h"

#include <QJSEngine>
#include <QMetaMethod>
#include <QQmlEngine>
#include <QVariant>

VynVUMeterManager* VynVUMeterManager::instance()
{
    static VynVUMeterManager s_instance;
    return &s_instance;
}

VynVUMeterManager* VynVUMeterManager::create(QQmlEngine* p_qmlEngine, QJSEngine* p_jsEngine)
{
    Q_UNUSED(p_qmlEngine)
    Q_UNUSED(p_jsEngine)
    VynVUMeterManager* manager = instance();
    QJSEngine::setObjectOwnership(manager, QJSEngine::CppOwnership);
    return manager;
}

void VynVUMeterManager::registerAsSingletonQML(const char* uri)
{
    qmlRegisterSingletonType<VynVUMeterManager>(uri, 1, 0, "VynVUMeterManager",
                                                &VynVUMeterManager::create);
}

VynVUMeterManager::VynVUMeterManager(QObject* parent) : QObject(parent)
{
    m_timer.setInterval(kTickInterval);
    m_timer.setSingleShot(false);
    connect(&m_timer, &QTimer::timeout, this, &VynVUMeterManager::animateVUMeters);
}

VynVUMeterManager::~VynVUMeterManager() = default;

void VynVUMeterManager::setResetInterval(qulonglong seconds)
{
    if (seconds == m_resetInterval)
        return;
    m_resetInterval = seconds;
    emit resetIntervalChanged();
}

void VynVUMeterManager::applyTimerRule()
{
    const bool run = !m_paused && !m_animated.isEmpty();
    if (run && !m_timer.isActive())
        m_timer.start();
    else if (!run && m_timer.isActive())
        m_timer.stop();
}

void VynVUMeterManager::updateAnimated(QObject* meter)
{
    const bool animated = meter->property("animated").toBool();
    if (animated && !m_animated.contains(meter)) {
        m_animated.insert(meter);
        const QMetaObject* type = meter->metaObject();
        const int index = type->indexOfMethod("animate()");
        m_animateOrder.append({meter, index < 0 ? QMetaMethod() : type->method(index)});
    } else if (!animated && m_animated.remove(meter)) {
        removeFromOrder(meter);
    }
}

void VynVUMeterManager::registerVUMeter(QObject* p_vuMeter)
{
    if (!p_vuMeter || m_registered.contains(p_vuMeter))
        return;
    m_registered.append(p_vuMeter);
    connect(p_vuMeter, SIGNAL(animatedChanged()), this, SLOT(onVUMeterAnimatedChanged()));
    connect(p_vuMeter, SIGNAL(clicked()), this, SLOT(resetAllVUMeters()));
    // A meter destroyed without unregistering must not be animated afterwards.
    connect(p_vuMeter, &QObject::destroyed, this, &VynVUMeterManager::onMeterDestroyed);
    updateAnimated(p_vuMeter);
    applyTimerRule();
}

void VynVUMeterManager::unregisterVUMeter(QObject* p_vuMeter)
{
    if (!p_vuMeter || !m_registered.removeOne(p_vuMeter))
        return;
    disconnect(p_vuMeter, SIGNAL(animatedChanged()), this, SLOT(onVUMeterAnimatedChanged()));
    disconnect(p_vuMeter, SIGNAL(clicked()), this, SLOT(resetAllVUMeters()));
    disconnect(p_vuMeter, &QObject::destroyed, this, &VynVUMeterManager::onMeterDestroyed);
    if (m_animated.remove(p_vuMeter))
        removeFromOrder(p_vuMeter);
    applyTimerRule();
}

void VynVUMeterManager::removeFromOrder(QObject* meter)
{
    for (qsizetype i = 0; i < m_animateOrder.size(); ++i) {
        if (m_animateOrder.at(i).first == meter) {
            m_animateOrder.remove(i);
            return;
        }
    }
}

void VynVUMeterManager::onMeterDestroyed(QObject* meter)
{
    m_registered.removeOne(meter);
    if (m_animated.remove(meter))
        removeFromOrder(meter);
    applyTimerRule();
}

void VynVUMeterManager::onVUMeterAnimatedChanged()
{
    QObject* meter = sender();
    if (!meter || !m_registered.contains(meter))
        return;
    updateAnimated(meter);
    applyTimerRule();
}

void VynVUMeterManager::animateVUMeters()
{
    // A meter's animate() may unregister meters: walk a copy.
    const QList<QPair<QObject*, QMetaMethod>> meters = m_animateOrder;
    for (const auto& [meter, animate] : meters) {
        if (m_animated.contains(meter))
            animate.invoke(meter, Qt::DirectConnection);
    }
}

void VynVUMeterManager::resetAllVUMeters()
{
    const QList<QObject*> meters = m_registered;
    for (QObject* meter : meters) {
        if (m_registered.contains(meter))
            QMetaObject::invokeMethod(meter, "reset", Qt::DirectConnection);
    }
}

void VynVUMeterManager::pause(QObject* p_pauser)
{
    if (p_pauser && !m_pausers.contains(p_pauser)) {
        m_pausers.insert(p_pauser);
        // A pauser destroyed without restarting would keep the clock stopped for good.
        connect(p_pauser, &QObject::destroyed, this, &VynVUMeterManager::onPauserDestroyed);
    }
    if (!m_paused) {
        m_paused = true;
        m_timer.stop();
    }
}

void VynVUMeterManager::onPauserDestroyed(QObject* pauser)
{
    if (!m_pausers.remove(pauser))
        return;
    if (m_paused && m_pausers.isEmpty()) {
        m_paused = false;
        applyTimerRule();
    }
}

void VynVUMeterManager::restart(QObject* p_pauser)
{
    if (p_pauser && m_pausers.remove(p_pauser))
        disconnect(p_pauser, &QObject::destroyed, this, &VynVUMeterManager::onPauserDestroyed);
    if (m_paused && m_pausers.isEmpty()) {
        m_paused = false;
        applyTimerRule();
    }
}
