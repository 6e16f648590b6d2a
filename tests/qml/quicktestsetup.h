#pragma once

#include <QObject>

class QQmlEngine;

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
};
