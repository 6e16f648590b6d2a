#pragma once

#include <qapplicationmessagepresenter.h>

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTemporaryDir>
#include <QVariantList>

class QQmlEngine;
class QCoreWindowController;

// Test-only services a host provides, exposed to QML as the context property "testHost":
// - installAnsweringPresenter(response): every message presented from then on is answered at
//   once with `response` (QApplicationMessage.Response_Confirm, Response_Cancel or
//   NoResponse); presentedCount, lastTitle and lastMessage record what was shown.
//   removePresenter() puts the application's default presenter back.
// - attachWindowController(item): gives the window showing `item` a QCoreWindowController, as
//   a host does for each of its windows; detachWindowController() removes it.
// - pushValue(component, value, values): what a host does with device echoes,
//   component->setValue(value, mixed, values), mixed when the values differ.
// - watchEditing(component): counts the component's editedWhileMultiple(bool) as a host
//   connected in C++ sees it (QML cannot tell the two overloads apart); editedCount and
//   lastAutoClose report it.
// - setLedState(component, state, mixed): what a host does once it has worked out an LED's
//   state from its parameters.
// - makeEQ(bandCount), makeDynamics(threshold, ratio): EQ and dynamics objects as a host
//   hands them to the graph views.
class TestHost : public QObject, public QApplicationMessagePresenter
{
    Q_OBJECT
    Q_PROPERTY(int presentedCount READ presentedCount NOTIFY presented)
    Q_PROPERTY(QString lastTitle READ lastTitle NOTIFY presented)
    Q_PROPERTY(QString lastMessage READ lastMessage NOTIFY presented)

public:
    explicit TestHost(QObject* parent = nullptr);
    ~TestHost() override;

    void present(QApplicationMessage* p_message) override;

    int presentedCount() const { return m_presentedCount; }
    QString lastTitle() const { return m_lastTitle; }
    QString lastMessage() const { return m_lastMessage; }

    Q_INVOKABLE void installAnsweringPresenter(int p_response);
    Q_INVOKABLE void removePresenter();
    Q_INVOKABLE void resetHiddenHints();
    Q_INVOKABLE bool attachWindowController(QObject* p_item);
    Q_INVOKABLE void detachWindowController();
    Q_INVOKABLE void watchEditing(QObject* p_component);
    Q_INVOKABLE int editedCount() const { return m_editedCount; }
    Q_INVOKABLE bool lastAutoClose() const { return m_lastAutoClose; }
    Q_INVOKABLE void pushValue(QObject* p_component, double p_value, const QVariantList& p_values);
    // The display name a host gives a component (native-only on the component).
    Q_INVOKABLE void nameComponent(QObject* p_component, const QString& p_name);
    // The state a host works out for a status LED (native-only on the LED component).
    Q_INVOKABLE void setLedState(QObject* p_component, int p_state, bool p_mixed);
    // An EQ of p_bandCount bells at 1 kHz, 0 dB, q 1, owned by the caller's JS engine (the
    // host's EQ objects are not creatable from QML).
    Q_INVOKABLE QObject* makeEQ(int p_bandCount);
    // A dynamics block at p_threshold dB with p_ratio (the output slope), owned likewise.
    Q_INVOKABLE QObject* makeDynamics(double p_threshold, double p_ratio);

signals:
    void presented();

private:
    int m_response = -1;
    int m_editedCount = 0;
    bool m_lastAutoClose = true;
    QMetaObject::Connection m_editedConnection;
    int m_presentedCount = 0;
    QString m_lastTitle;
    QString m_lastMessage;
    QPointer<QCoreWindowController> m_controller;
};

// What a host does before loading VynUI documents: register the types, open the module and
// make the build tree's import path known. Test-only helpers are exposed to QML as the
// context property "testHost".
class QuickTestSetup : public QObject
{
    Q_OBJECT

public:
    QuickTestSetup();

public slots:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine* engine);
    void cleanupTestCase();

private:
    TestHost m_host;
    // The hidden hints the tests store go here, never to the user's settings.
    QTemporaryDir m_settingsDir;
};
