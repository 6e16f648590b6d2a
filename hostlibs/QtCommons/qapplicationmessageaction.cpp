#include "qapplicationmessageaction.h"

#include <QPointer>

QApplicationMessageAction::QApplicationMessageAction(QObject* parent) : QObject(parent) {}

QApplicationMessageAction::QApplicationMessageAction(const QString& text, Handler handler,
                                                     QObject* parent)
    : QObject(parent), m_text(text), m_handler(std::move(handler))
{}

QApplicationMessageAction::~QApplicationMessageAction() = default;

void QApplicationMessageAction::setText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    emit textChanged();
}

void QApplicationMessageAction::trigger()
{
    // A copy: the handler may replace itself or delete the message that owns this action.
    const Handler handler = m_handler;
    const QPointer<QApplicationMessageAction> guard(this);
    if (handler)
        handler();
    if (guard)
        emit triggered();
}
