#pragma once

#include "qtcommonsglobal.h"

#include "qapplicationmessagepresenter.h"

#include <QPointer>

class QQmlEngine;
class QQuickWindow;

/*!
    The default presenter: a modal Qt Quick Controls dialog (objectName
    "qApplicationMessageDialog") centred over the message's window, with the
    title, the text, the check box when the message has one and one button per
    action (objectNames "qApplicationMessageButton0", "...1", ...). A button
    answers its index; closing the dialog any other way (Escape) answers
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
