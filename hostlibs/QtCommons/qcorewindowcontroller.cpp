#include "qcorewindowcontroller.h"

#include <QHash>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>

namespace {

// Window -> its controller. GUI thread only, like windows themselves.
QHash<const QWindow*, QCoreWindowController*>& registry()
{
    static QHash<const QWindow*, QCoreWindowController*> s_registry;
    return s_registry;
}

QQuickWindow* windowAlongParents(QObject* object)
{
    for (QObject* current = object; current; current = current->parent()) {
        if (auto* window = qobject_cast<QQuickWindow*>(current))
            return window;
        if (auto* item = qobject_cast<QQuickItem*>(current)) {
            if (item->window())
                return item->window();
        }
    }
    return nullptr;
}

} // namespace

QCoreWindowController::QCoreWindowController(QWindow* window, QObject* parent) : QObject(parent)
{
    setWindow(window);
}

QCoreWindowController::~QCoreWindowController()
{
    detach();
}

void QCoreWindowController::detach()
{
    if (m_window) {
        auto it = registry().find(m_window.data());
        if (it != registry().end() && it.value() == this)
            registry().erase(it);
    }
    disconnect(m_windowDestroyed);
    m_window = nullptr;
}

void QCoreWindowController::setWindow(QWindow* window)
{
    if (window == m_window)
        return;
    detach();
    if (window) {
        QCoreWindowController*& current = registry()[window];
        if (current && current != this) {
            current->m_window = nullptr;
            disconnect(current->m_windowDestroyed);
            emit current->windowChanged();
        }
        current = this;
        m_window = window;
        const QWindow* key = window;
        m_windowDestroyed = connect(window, &QObject::destroyed, this, [this, key] {
            registry().remove(key);
            m_window = nullptr;
            emit windowChanged();
        });
    }
    emit windowChanged();
}

QCoreWindowController* QCoreWindowController::controllerForWindow(QWindow* window)
{
    // Transient parents can form a cycle (Qt refuses only a window as its own parent): the
    // walk stops at the first window met twice.
    QSet<const QWindow*> visited;
    for (QWindow* current = window; current; current = current->transientParent()) {
        if (QCoreWindowController* controller = registry().value(current))
            return controller;
        if (visited.contains(current))
            break;
        visited.insert(current);
    }
    return nullptr;
}

QQuickWindow* QCoreWindowController::windowForQmlObject(QObject* object)
{
    if (!object)
        return nullptr;
    if (QQuickWindow* window = windowAlongParents(object))
        return window;
    for (QQmlContext* context = qmlContext(object); context; context = context->parentContext()) {
        QObject* contextObject = context->contextObject();
        if (contextObject && contextObject != object) {
            if (QQuickWindow* window = windowAlongParents(contextObject))
                return window;
        }
    }
    return nullptr;
}

QCoreWindowController* QCoreWindowController::controllerForQmlObject(QObject* object)
{
    return controllerForWindow(windowForQmlObject(object));
}
