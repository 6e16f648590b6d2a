// A minimal host: registers the types, opens the module and loads its own document (Host.qml),
// which uses the module from the installed import path.

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
    QQmlComponent component(&engine, QUrl::fromLocalFile(QStringLiteral(HOST_DOCUMENT)));
    QObject* item = component.create();
    if (!item) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        return 1;
    }
    const bool loaded =
        item->property("testString").toString() == QLatin1String("This is a very big test!") &&
        item->property("side").toInt() == VynViewUtils::VynSideRight &&
        item->property("title").toString() == QLatin1String("Gain");
    const bool scripted =
        item->property("mean").toDouble() == 5.0 && item->property("fieldValue").toDouble() == 5.0;
    const bool opposite =
        VynViewUtils::vynSideOpposite(VynViewUtils::VynSideRight) == VynViewUtils::VynSideLeft;
    const bool localized = QtCommonsConstants::qLocalizedString(
                               QStringLiteral("STATUS_MULT"), QStringLiteral("VynUILocalizable")) ==
                           QLatin1String("Mult.");
    const bool path =
        VynProxyParamPath::fromString(QStringLiteral("Amp[1]/Gain")).getLastName() != 0;
    delete item;
    module.onLeavingModule();
    std::printf("loaded %d, scripts %d, geometry %d, localisation %d, path %d\n", loaded, scripted,
                opposite, localized, path);
    return loaded && scripted && opposite && localized && path ? 0 : 1;
}
