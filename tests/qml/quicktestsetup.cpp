#include "quicktestsetup.h"

#include <vynuiplugin.h>

#include <QQmlEngine>

QuickTestSetup::QuickTestSetup() = default;

void QuickTestSetup::applicationAvailable()
{
    VynUIPlugin::initializeTypes();
    VynUIPlugin plugin;
    plugin.onOpeningModule();
}

void QuickTestSetup::qmlEngineAvailable(QQmlEngine* engine)
{
    engine->addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
}

void QuickTestSetup::cleanupTestCase() {}
