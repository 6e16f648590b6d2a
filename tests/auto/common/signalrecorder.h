#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

#include <utility>

// Records, in order, the names of the argument-less signals it watches. A test's recorder
// derives from it and watches the signals of the objects under test in its constructor;
// take() answers the names recorded since the last take().
class SignalRecorder
{
public:
    SignalRecorder() = default;
    SignalRecorder(const SignalRecorder&) = delete;
    SignalRecorder& operator=(const SignalRecorder&) = delete;
    ~SignalRecorder()
    {
        for (const auto& c : m_connections)
            QObject::disconnect(c);
    }

    QStringList take() { return std::exchange(m_names, {}); }

protected:
    // For signals with arguments: record() a name from a slot whose connection is kept().
    void record(const QString& p_name) { m_names.append(p_name); }
    void keep(const QMetaObject::Connection& p_connection) { m_connections.append(p_connection); }

    template <typename T> void watch(T* object, void (T::*signal)(), const char* name)
    {
        m_connections.append(QObject::connect(
            object, signal, [this, name] { m_names.append(QString::fromLatin1(name)); }));
    }

private:
    QStringList m_names;
    QList<QMetaObject::Connection> m_connections;
};
