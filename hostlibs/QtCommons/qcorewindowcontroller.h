#pragma once

#include "qtcommonsglobal.h"

#include <QObject>
#include <QPointer>
#include <QWindow>

class QQuickWindow;

/*!
    The host's controller of one window: the object that message presenters
    use as the window's context (which window a confirmation belongs to, the
    window to present it over).

    A host creates one per window, either with the window
    (QCoreWindowController(window, parent)) or later with setWindow(). A window
    has at most one controller: attaching a second one takes the window over
    from the first. The association ends when either the controller or the
    window is destroyed.

    Look-ups:
    - controllerForWindow(window): the controller attached to that window, or,
      for a window without one, to its transient parent (a dialog answers for
      the window it belongs to), and so on up the chain of transient
      parents, else null. The walk ends on any window graph: a cycle of
      transient parents without a controller answers null.
    - windowForQmlObject(object): the QQuickWindow an object of a QML scene is
      shown in: the object itself when it is a window; else the window of the
      first QQuickItem, or the first QWindow, met going up its QObject parents;
      else the same search from the context object of its QML context and of
      each enclosing context. Null when nothing is found (an object not shown
      in any window).
    - controllerForQmlObject(object): controllerForWindow(windowForQmlObject(object)).
*/
class QTCOMMONS_EXPORT QCoreWindowController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QWindow* window READ window NOTIFY windowChanged)

public:
    explicit QCoreWindowController(QWindow* window = nullptr, QObject* parent = nullptr);
    ~QCoreWindowController() override;

    QWindow* window() const { return m_window; }
    //! Attaches the controller to \a window (null detaches it).
    void setWindow(QWindow* window);

    static QCoreWindowController* controllerForWindow(QWindow* window);
    static QQuickWindow* windowForQmlObject(QObject* object);
    static QCoreWindowController* controllerForQmlObject(QObject* object);

signals:
    void windowChanged();

private:
    void detach();

    QPointer<QWindow> m_window;
    QMetaObject::Connection m_windowDestroyed;
};
