#pragma once

#include "qtcommonsglobal.h"

#include <QObject>
#include <QString>

#include <functional>

/*!
    One button of a QApplicationMessage: a text and a handler run when the
    user picks it. trigger() runs the handler (when set) and then emits
    triggered(); it may run any number of times.
*/
class QTCOMMONS_EXPORT QApplicationMessageAction : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    using Handler = std::function<void()>;

    explicit QApplicationMessageAction(QObject* parent = nullptr);
    QApplicationMessageAction(const QString& text, Handler handler, QObject* parent = nullptr);
    ~QApplicationMessageAction() override;

    QString text() const { return m_text; }
    void setText(const QString& text);

    void setHandler(Handler handler) { m_handler = std::move(handler); }
    Handler handler() const { return m_handler; }
    bool hasHandler() const { return static_cast<bool>(m_handler); }

    Q_INVOKABLE void trigger();

signals:
    void textChanged();
    void triggered();

private:
    QString m_text;
    Handler m_handler;
};
