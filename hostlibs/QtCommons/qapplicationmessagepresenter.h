#pragma once

#include "qtcommonsglobal.h"

class QApplicationMessage;

/*!
    Shows messages to the user. A presenter receives each message in present()
    and must, now or later, call QApplicationMessage::respond() on it with the
    user's choice (an action index, or QApplicationMessage::NoResponse when the
    message was dismissed). Install one with QApplicationMessage::setPresenter().
*/
class QTCOMMONS_EXPORT QApplicationMessagePresenter
{
public:
    virtual ~QApplicationMessagePresenter();
    virtual void present(QApplicationMessage* p_message) = 0;
};
