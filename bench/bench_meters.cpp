// Cost of a wall of level meters: 256 meters of 32 cells animated together, VynVUMeter11
// beside a meter built the obvious way in QML (a Repeater of 32 Rectangles, with the same
// ballistics in JavaScript), both driven by the same VynVUMeterManager tick in the same run.
//
// Measured, as CPU time of the GUI thread (benchtiming.h), best of the rounds:
//   creation  create 256 meters into an offscreen window and show them in one frame
//   tick      one manager tick (animate() on every meter) plus the frame that shows it,
//             after the host pushed a new level into every meter
// The ratio is VynVUMeter11 / Repeater meter. Goals: creation <= 100 ms, tick <= 2 ms.
//
//   bench_meters               256 meters, 40 ticks per round, 5 rounds
//   bench_meters -n 512        other counts
//   bench_meters --check       exit code 1 when a goal is missed

#include "benchtiming.h"

#include <vynuiplugin.h>
#include <vynvumetermanager.h>

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <cmath>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

const char* const kVynMeter = "VynVUMeter11 { width: 12; height: 105; displaysHoldValues: true;"
                              " vynStyle: VynColorUtils.VynStyleDark }";

// The obvious meter: 32 cells of a Repeater, lit by a binding on the displayed level.
const char* const kRepeaterMeter = R"(Rectangle {
    id: m
    width: 12; height: 105; radius: 3.6
    color: "#707070"; border.color: "#808080"
    property real currentValue: -60
    property real shown: 0
    property bool animated: true
    signal clicked()
    function animate() {
        const n = (currentValue + 60) / 60
        if (shown <= n || shown < n + 0.12) shown = n
        else shown = Math.max(shown - 0.12, n)
    }
    function reset() { shown = 0 }
    Column {
        x: 2; y: 6; spacing: 1
        Repeater {
            model: 32
            Rectangle {
                required property int index
                width: 8; height: 2
                color: 31 - index <= Math.floor(m.shown * 31)
                       ? VynUIQmlConstants.vuMeterOnColorForIndex(31 - index)
                       : VynUIQmlConstants.vuMeterOffColor(VynColorUtils.VynStyleDark)
            }
        }
    }
    Component.onCompleted: VynVUMeterManager.registerVUMeter(m)
    Component.onDestruction: VynVUMeterManager.unregisterVUMeter(m)
})";

// A music-like level for meter \a i at tick \a t: a beat, a slower swell and a per-meter phase.
double level(int i, int t)
{
    const double beat = std::pow(std::fabs(std::sin(0.9 * t + 0.37 * i)), 6.0);
    const double swell = 0.5 + 0.5 * std::sin(0.05 * t + 0.11 * i);
    return -60.0 + 60.0 * std::min(1.0, 0.35 + 0.45 * swell + 0.3 * beat);
}

class Wall
{
public:
    explicit Wall(QQmlEngine* engine) : m_engine(engine)
    {
        m_window.resize(1280, 900);
        m_window.create();
    }

    // Creates \a count meters of \a body in a grid; answers the CPU milliseconds to appear.
    double create(const char* body, int count)
    {
        clear();
        QQmlComponent component(m_engine);
        component.setData(QByteArray("import QtQuick\nimport VynUI 1.2\n") + body + "\n", QUrl());
        if (component.isError()) {
            std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
            std::exit(2);
        }
        const double start = benchCpuMilliseconds();
        for (int i = 0; i < count; ++i) {
            QObject* object = component.beginCreate(m_engine->rootContext());
            auto* item = qobject_cast<QQuickItem*>(object);
            item->setParentItem(m_window.contentItem());
            item->setPosition(QPointF(8 + (i % 64) * 19, 8 + (i / 64) * 112));
            component.completeCreate();
            m_meters.emplace_back(object);
        }
        frame();
        return benchCpuMilliseconds() - start;
    }

    // Pushes the levels of tick \a t into every meter (not measured).
    void push(int t)
    {
        for (size_t i = 0; i < m_meters.size(); ++i)
            m_meters[i]->setProperty("currentValue", level(int(i), t));
    }

    // One manager tick and the frame that shows it; answers CPU milliseconds of both and,
    // in \a animation, of the tick alone.
    double tick(double* animation)
    {
        const double start = benchCpuMilliseconds();
        VynVUMeterManager::instance()->animateVUMeters();
        *animation = benchCpuMilliseconds() - start;
        frame();
        return benchCpuMilliseconds() - start;
    }

    // A frame of the window with nothing changed: what any frame costs the software
    // renderer (the whole window is drawn and read back).
    double idleFrame()
    {
        const double start = benchCpuMilliseconds();
        frame();
        return benchCpuMilliseconds() - start;
    }

    void clear()
    {
        m_meters.clear();
        frame();
    }

private:
    void frame()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_window.grabWindow();
    }

    QQmlEngine* m_engine;
    QQuickWindow m_window;
    std::vector<std::unique_ptr<QObject>> m_meters;
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication app(argc, argv);

    QCommandLineParser parser;
    parser.addHelpOption();
    QCommandLineOption countOption({"n", "count"}, "Meters.", "n", "256");
    QCommandLineOption ticksOption({"t", "ticks"}, "Ticks per round.", "t", "40");
    QCommandLineOption roundsOption({"r", "rounds"}, "Rounds (best kept).", "r", "5");
    QCommandLineOption checkOption("check", "Exit 1 when a goal is missed.");
    parser.addOptions({countOption, ticksOption, roundsOption, checkOption});
    parser.process(app);
    const int count = std::max(1, parser.value(countOption).toInt());
    const int ticks = std::max(1, parser.value(ticksOption).toInt());
    const int rounds = std::max(1, parser.value(roundsOption).toInt());

    VynUIPlugin::initializeTypes();
    VynUIPlugin module;
    module.onOpeningModule();
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
    // The manager's own timer stays out of the way: ticks are driven by hand.
    VynVUMeterManager::instance()->pause(&app);

    Wall wall(&engine);
    const char* bodies[2] = {kVynMeter, kRepeaterMeter};
    wall.create(bodies[0], 16); // warm-up: type loading, caches
    wall.create(bodies[1], 16);

    double creation[2] = {1e300, 1e300};
    double tick[2] = {1e300, 1e300};
    double tickMean[2] = {0, 0};
    double animation[2] = {1e300, 1e300};
    double idle[2] = {1e300, 1e300};
    for (int round = 0; round < rounds; ++round) {
        for (int side = 0; side < 2; ++side) {
            creation[side] = std::min(creation[side], wall.create(bodies[side], count));
            double sum = 0;
            for (int t = 0; t < ticks; ++t) {
                wall.push(t);
                double animationMs = 0;
                const double ms = wall.tick(&animationMs);
                sum += ms;
                tick[side] = std::min(tick[side], ms);
                animation[side] = std::min(animation[side], animationMs);
                idle[side] = std::min(idle[side], wall.idleFrame());
            }
            tickMean[side] += sum / ticks / rounds;
        }
    }
    wall.clear();

    std::printf("%d meters of 32 cells, %d ticks x %d rounds (CPU ms)\n", count, ticks, rounds);
    std::printf("%-28s %12s %12s %8s\n", "", "VynVUMeter11", "Repeater", "ratio");
    std::printf("%-28s %12.2f %12.2f %7.2fx\n", "creation (best)", creation[0], creation[1],
                creation[0] / creation[1]);
    std::printf("%-28s %12.3f %12.3f %7.2fx\n", "tick + frame (best)", tick[0], tick[1],
                tick[0] / tick[1]);
    std::printf("%-28s %12.3f %12.3f %7.2fx\n", "tick + frame (mean)", tickMean[0], tickMean[1],
                tickMean[0] / tickMean[1]);
    std::printf("%-28s %12.3f %12.3f %7.2fx\n", "tick alone (best)", animation[0], animation[1],
                animation[0] / animation[1]);
    std::printf("%-28s %12.3f %12.3f\n", "unchanged frame (best)", idle[0], idle[1]);
    std::printf("%-28s %12.3f %12.3f %7.2fx\n", "tick + frame - unchanged", tick[0] - idle[0],
                tick[1] - idle[1], (tick[0] - idle[0]) / (tick[1] - idle[1]));
    module.onLeavingModule();
    if (parser.isSet(checkOption) && (creation[0] > 100.0 || tickMean[0] > 2.0))
        return 1;
    return 0;
}
