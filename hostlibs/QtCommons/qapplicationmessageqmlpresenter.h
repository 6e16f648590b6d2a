#pragma once

#include "qtcommonsglobal.h"

#include "qapplicationmessagepresenter.h"

#include <QPointer>

class QQmlEngine;
class QQuickWindow;

/*!
    The default presenter. When the window's QML engine can import the VynUI
    module, the message is shown in the VynUI look: a modal panel holding a
    VynApplicationMessageItem (level icon, title, text, check box, one button
    per action), operable from the keyboard (Tab between the buttons, Enter for
    the first action, Escape for the second action of a two-button message, or
    for NoResponse otherwise). Without the module it is a modal Qt Quick
    Controls dialog. Either way the dialog (objectName
    "qApplicationMessageDialog") is centred over the message's window, with the
    title, the text, the check box when the message has one and one button per
    action (objectNames "qApplicationMessageButton0", "...1", ...). A button
    answers its index; closing the dialog any other way answers
    QApplicationMessage::NoResponse. A message without a window gets a small
    application-modal window of its own, deleted when the message ends.

    The dialog is created in the QML engine of the window's scene, or in an
    engine of the presenter's own (owned by the application object) when the
    window has no QML content. If the dialog cannot be created, the failure is
    printed as a warning and the message is answered with NoResponse, so its
    sender never waits forever. Destroying the window while the message is
    shown also answers NoResponse.
*/
class QTCOMMONS_EXPORT QApplicationMessageQmlPresenter : public QApplicationMessagePresenter
{
public:
    QApplicationMessageQmlPresenter();
    ~QApplicationMessageQmlPresenter() override;

    void present(QApplicationMessage* p_message) override;

private:
    QQmlEngine* engineFor(QQuickWindow* window);

    QPointer<QQmlEngine> m_ownEngine;
};
