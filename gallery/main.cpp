// VynUI gallery: every control of the module bound to a simulated amplifier fleet.
//
//   vynui-gallery                      open the window (offscreen with a screenshot when
//                                      there is no display)
//   vynui-gallery --screenshot F.png   render offscreen to F.png and exit
//   vynui-gallery --check-layout       show every page, report overlapping controls and
//                                      controls out of reach, exit 1 when there are any
//   options: --appearance light|dark, --page <title>, --size WxH, --delay ms

#include "gallerylayoutcheck.h"

#include <qtcommons.h>
#include <vynuiplugin.h>

#include <QCommandLineParser>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace {

bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

bool argumentGiven(int argc, char** argv, const char* name)
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], name) == 0 || QByteArray(argv[i]).startsWith(QByteArray(name) + '='))
            return true;
    }
    return false;
}

QSize parseSize(const QString& text, const QSize& fallback)
{
    const QStringList parts = text.split(QLatin1Char('x'));
    if (parts.size() != 2)
        return fallback;
    bool okW = false, okH = false;
    const QSize size(parts.at(0).toInt(&okW), parts.at(1).toInt(&okH));
    return okW && okH && size.width() > 0 && size.height() > 0 ? size : fallback;
}

} // namespace

int main(int argc, char** argv)
{
    // The platform has to be chosen before the application object exists.
    const bool platformGiven = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const bool screenshotAsked =
        argumentGiven(argc, argv, "--screenshot") || argumentGiven(argc, argv, "--check-layout");
    const bool headless = !platformGiven && !hasDisplay();
    if ((screenshotAsked || headless) && !platformGiven)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (screenshotAsked || headless) {
        // Software rendering needs no GPU and grabs the window reliably.
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    }

    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("VynUI Gallery"));
    QGuiApplication::setOrganizationName(QStringLiteral("VynUI"));
    QQuickStyle::setStyle(QStringLiteral("Basic"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "VynUI gallery: the module's controls bound to a simulated amplifier fleet."));
    parser.addHelpOption();
    const QCommandLineOption screenshotOption(
        QStringLiteral("screenshot"), QStringLiteral("Render offscreen to <file> (PNG) and exit."),
        QStringLiteral("file"));
    // Not "--style": QGuiApplication takes that one for the Qt Quick Controls style.
    const QCommandLineOption styleOption(QStringLiteral("appearance"),
                                         QStringLiteral("Appearance: dark (default) or light."),
                                         QStringLiteral("appearance"), QStringLiteral("dark"));
    const QCommandLineOption pageOption(QStringLiteral("page"),
                                        QStringLiteral("Title of the page to show first."),
                                        QStringLiteral("title"));
    const QCommandLineOption sizeOption(QStringLiteral("size"),
                                        QStringLiteral("Window size, WxH (default 1280x800)."),
                                        QStringLiteral("size"), QStringLiteral("1280x800"));
    const QCommandLineOption delayOption(
        QStringLiteral("delay"),
        QStringLiteral("Milliseconds to let the simulated devices settle before a screenshot."),
        QStringLiteral("ms"), QStringLiteral("2000"));
    const QCommandLineOption checkLayoutOption(
        QStringLiteral("check-layout"),
        QStringLiteral("Show every page offscreen, print overlapping controls and controls out of "
                       "reach, exit 1 when there are any."));
    parser.addOptions(
        {screenshotOption, styleOption, pageOption, sizeOption, delayOption, checkLayoutOption});
    parser.process(app);

    QString screenshot = parser.value(screenshotOption);
    const bool checkLayout = parser.isSet(checkLayoutOption);
    if (headless && screenshot.isEmpty() && !checkLayout) {
        screenshot = QStringLiteral("gallery.png");
        std::fprintf(stderr, "No display: rendering offscreen to %s\n", qPrintable(screenshot));
    }
    const QString style = parser.value(styleOption).toLower();
    if (style != QLatin1String("dark") && style != QLatin1String("light")) {
        std::fprintf(stderr, "Unknown appearance '%s': use dark or light.\n", qPrintable(style));
        return 2;
    }
    const QSize size = parseSize(parser.value(sizeOption), QSize(1280, 800));
    const int delay = qBound(0, parser.value(delayOption).toInt(), 60000);

    VynUIPlugin::initializeTypes();
    VynUIPlugin module;
    module.onOpeningModule();
    // The words the host application's translation data gives the module's hints.
    QtCommons::addQLocalTable(
        QString(), {{QStringLiteral("DONT_SHOW_AGAIN"), QStringLiteral("Don't show again")}});

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/"));
    const QString installedImports =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("../lib/qml"));
    if (QFileInfo::exists(installedImports + QStringLiteral("/VynUI/qmldir")))
        engine.addImportPath(installedImports);
    else
        engine.addImportPath(QStringLiteral(VYNUI_QML_BUILD_DIR));

    engine.setInitialProperties({{QStringLiteral("darkStyle"), style == QLatin1String("dark")},
                                 {QStringLiteral("initialPage"), parser.value(pageOption)},
                                 {QStringLiteral("width"), size.width()},
                                 {QStringLiteral("height"), size.height()}});
    engine.load(QUrl(QStringLiteral("qrc:/Gallery/qml/Main.qml")));
    if (engine.rootObjects().isEmpty()) {
        std::fprintf(stderr, "The gallery window could not be loaded.\n");
        return 1;
    }
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    if (!window) {
        std::fprintf(stderr, "The gallery's root object is not a window.\n");
        return 1;
    }

    if (checkLayout) {
        QTimer::singleShot(std::min(delay, 500), &app, [&]() {
            int faultCount = 0;
            const QVariantList pages = window->property("pages").toList();
            for (const QVariant& page : pages) {
                const QString title = page.toMap().value(QStringLiteral("title")).toString();
                window->setProperty("initialPage", title);
                QEventLoop settle;
                QTimer::singleShot(150, &settle, &QEventLoop::quit);
                settle.exec();
                window->grabWindow(); // polish and lay out as a frame would
                auto* loader = window->findChild<QQuickItem*>(QStringLiteral("pageLoader"));
                const QStringList faults = GalleryLayoutCheck::faults(
                    loader ? loader->property("item").value<QQuickItem*>() : nullptr);
                for (const QString& fault : faults)
                    std::fprintf(stdout, "%s: %s\n", qPrintable(title), qPrintable(fault));
                faultCount += int(faults.size());
            }
            std::fprintf(stdout, "Checked %d pages at %dx%d: %d layout faults\n", int(pages.size()),
                         window->width(), window->height(), faultCount);
            QCoreApplication::exit(faultCount == 0 ? 0 : 1);
        });
        QTimer::singleShot(120000, &app, []() {
            std::fprintf(stderr, "Timed out while checking the layout.\n");
            QCoreApplication::exit(3);
        });
    } else if (!screenshot.isEmpty()) {
        QTimer::singleShot(delay, &app, [&]() {
            const QImage image = window->grabWindow();
            const bool saved = !image.isNull() && image.save(screenshot, "PNG");
            if (saved)
                std::fprintf(stdout, "Saved %s (%dx%d)\n", qPrintable(screenshot), image.width(),
                             image.height());
            else
                std::fprintf(stderr, "Could not save the screenshot to %s\n",
                             qPrintable(screenshot));
            QCoreApplication::exit(saved ? 0 : 1);
        });
        // Never hang, whatever happens to the scene.
        QTimer::singleShot(delay + 30000, &app, []() {
            std::fprintf(stderr, "Timed out while rendering the screenshot.\n");
            QCoreApplication::exit(3);
        });
    }

    const int result = QCoreApplication::exec();
    module.onLeavingModule();
    return result;
}
