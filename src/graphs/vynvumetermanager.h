#pragma once

#include "vynuiglobal.h"

#include <QList>
#include <QMetaMethod>
#include <QObject>
#include <QPair>
#include <QSet>
#include <QTimer>
#include <QtQml/qqml.h>
#include <QtQml/qqmlregistration.h>

class QQmlEngine;
class QJSEngine;

/*!
    The one clock of every level meter: keeps the meters that registered, in
    registration order, and the set of those whose "animated" property is
    true, and while that set is not empty and nobody paused the animation runs
    one 80 ms repeating timer whose tick invokes "animate" on every animated
    meter. A click on any meter resets the holds of all meters.

    A meter is any object with a bool property "animated" notified by
    animatedChanged(), a signal clicked() and two invokable methods without
    arguments, animate() and reset(). The manager connects to them by their
    signatures, so QML documents and native items serve alike.

    Timer rule, applied after every change: the timer runs exactly when the
    manager is not paused and the animated set is not empty.

    Pausing is counted by pauser identity: pausing twice with the same object
    needs one restart, and with two pausers the animation resumes only when
    both have restarted. restart(nullptr) resumes only when no pauser is left.

    resetInterval: seconds after which a meter drops its hold marks when no
    new extreme was seen; 4294967295 by default, which keeps them for good.

    One object serves the whole process; QML engines receive it natively
    owned.
*/
class VYNUI_EXPORT VynVUMeterManager : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(qulonglong resetInterval READ resetInterval WRITE setResetInterval)

public:
    //! Interval of the animation clock, in milliseconds.
    static constexpr int kTickInterval = 80;
    //! The reset interval of a fresh manager, in seconds.
    static constexpr qulonglong kDefaultResetInterval = 4294967295ULL;

    static VynVUMeterManager* instance();
    //! Singleton provider for QML engines: answers instance(), natively owned.
    static VynVUMeterManager* create(QQmlEngine* p_qmlEngine, QJSEngine* p_jsEngine);
    //! Registers instance() as the singleton "VynVUMeterManager" under \a uri, version 1.0.
    static void registerAsSingletonQML(const char* uri);

    ~VynVUMeterManager() override;

    qulonglong resetInterval() const { return m_resetInterval; }
    void setResetInterval(qulonglong seconds);

    //! The registered meters, in registration order.
    const QList<QObject*>& registeredVUMeters() const { return m_registered; }
    //! True when \a meter is in the animated set.
    bool isAnimating(QObject* meter) const { return m_animated.contains(meter); }
    int animatedCount() const { return int(m_animated.size()); }
    bool isPaused() const { return m_paused; }
    //! True while the animation clock runs.
    bool isRunning() const { return m_timer.isActive(); }

signals:
    void resetIntervalChanged();

public slots:
    void resetAllVUMeters();
    void onVUMeterAnimatedChanged();
    void animateVUMeters();

public:
    Q_INVOKABLE void registerVUMeter(QObject* p_vuMeter);
    Q_INVOKABLE void unregisterVUMeter(QObject* p_vuMeter);
    Q_INVOKABLE void pause(QObject* p_pauser);
    Q_INVOKABLE void restart(QObject* p_pauser);

private:
    // Private: QML engines must take instance() through create(), not build their own.
    explicit VynVUMeterManager(QObject* parent = nullptr);
    Q_DISABLE_COPY_MOVE(VynVUMeterManager)

    void applyTimerRule();
    void updateAnimated(QObject* meter);
    void onMeterDestroyed(QObject* meter);
    void removeFromOrder(QObject* meter);
    void onPauserDestroyed(QObject* pauser);

    QList<QObject*> m_registered;
    QSet<QObject*> m_animated;
    QSet<QObject*> m_pausers;
    // The animated set in the order meters joined it, each with its animate() method.
    QList<QPair<QObject*, QMetaMethod>> m_animateOrder;
    bool m_paused = false;
    qulonglong m_resetInterval = kDefaultResetInterval;
    QTimer m_timer;
};
