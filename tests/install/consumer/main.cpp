// A minimal host: registers the types, opens the module and loads a VynUI document from the
// installed import path.

#include <qtcommonsconstants.h>
#include <vynproxyparampath.h>
#include <vynuiplugin.h>
#include <vynviewutils.h>

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>

#include <cstdio>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    VynUIPlugin::initializeTypes();
    VynUIPlugin module;
    module.onOpeningModule();

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(QML_IMPORT_DIR));
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport VynUI 1.2\n"
                      "KORU_UI { property int side: VynViewUtils.VynSideRight }",
                      QUrl());
    QObject* item = component.create();
    if (!item) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        return 1;
    }
    const bool loaded =
        item->property("testString").toString() == QLatin1String("This is a very big test!") &&
        item->property("side").toInt() == VynViewUtils::VynSideRight;
    const bool opposite =
        VynViewUtils::vynSideOpposite(VynViewUtils::VynSideRight) == VynViewUtils::VynSideLeft;
    const bool localized = QtCommonsConstants::qLocalizedString(
                               QStringLiteral("STATUS_MULT"), QStringLiteral("VynUILocalizable")) ==
                           QLatin1String("Mult.");
    const bool path =
        VynProxyParamPath::fromString(QStringLiteral("Amp[1]/Gain")).getLastName() != 0;
    delete item;
    module.onLeavingModule();
    std::printf("loaded %d, geometry %d, localisation %d, path %d\n", loaded, opposite, localized,
                path);
    return loaded && opposite && localized && path ? 0 : 1;
}
