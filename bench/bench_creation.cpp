// Creation and host-push cost of the module's QML controls, each measured side by side with
// its nearest Qt Quick Controls (Basic style) counterpart in the same run.
//
// Every control is created N times (default 500) into one offscreen window, then the window
// renders one frame (polish, layout, sync, software render): "time to appear". Each pair is
// measured in alternation for several rounds and the median of each side is kept, so that
// drift of the machine affects both sides alike. The printed ratio is vyn / anchor.
//
//   bench_creation                 every pair, 500 instances, 3 rounds
//   bench_creation -n 300 -r 5     other counts
//   bench_creation -f Slider       only the pairs whose name contains "Slider"
//   bench_creation --pair 'VynSlideField11 { hasPlus: true }|SpinBox {}'
//                                  one pair of QML bodies given on the command line
//   bench_creation --check 2       exit code 1 when a creation ratio exceeds 2
//                                  (the host-push ratio is checked against twice the limit)

#include <vynuiplugin.h>
#include <vynuislidefieldcomponent.h>

#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

struct Pair
{
    const char* name;
    const char* vyn;    // QML body of one instance of the module's control
    const char* anchor; // QML body of one instance of its Qt Quick Controls counterpart
};

// The module's controls and their nearest Qt Quick Controls counterparts. A control added
// to the module joins this table.
const Pair kPairs[] = {
    {"VynSlideField11 / SpinBox", "VynSlideField11 { width: 120 }", "SpinBox { width: 120 }"},
    {"VynSlideField11 dressed / SpinBox",
     "VynSlideField11 { width: 200; allowsPanning: true; hasMinus: true; hasPlus: true;"
     " title: \"Delay\"; unitModel: [\"ms\", \"m\"] }",
     "SpinBox { width: 200 }"},
    {"VynSlider12 / Slider", "VynSlider12 { width: 200 }", "Slider { width: 200 }"},
    {"VynUISlider / Slider", "VynUISlider { width: 200 }", "Slider { width: 200 }"},
    {"VynUISlideField / SpinBox", "VynUISlideField { width: 120 }", "SpinBox { width: 120 }"},
    {"VynUISliderAndField / Slider+SpinBox", "VynUISliderAndField { width: 400 }",
     "Row { Slider { width: 280 } SpinBox { width: 120 } }"},
    {"VynUILabelAndField / Label+SpinBox", "VynUILabelAndField { width: 300 }",
     "Row { Label { text: \"Gain\" } SpinBox { width: 120 } }"},
    {"VynSlideField / SpinBox", "VynSlideField { width: 120 }", "SpinBox { width: 120 }"},
    {"VynTextField / TextField", "VynTextField { width: 120; text: \"Amp 1\" }",
     "TextField { width: 120; text: \"Amp 1\" }"},
    {"VynLabel / Label", "VynLabel { text: \"Channel 1\" }", "Label { text: \"Channel 1\" }"},
    {"VynLabelWithToolTip / Label+ToolTip", "VynLabelWithToolTip { text: \"Channel 1\" }",
     "Label { text: \"Channel 1\"; ToolTip.text: \"Channel 1\" }"},
    {"VynColorIcon / Image (SVG)", "VynColorIcon { width: 16; height: 16; color: \"#d04040\" }",
     "Image { width: 16; height: 16; sourceSize: Qt.size(16, 16);"
     " source: VynImages.url(\"lock\", 0) }"},
    {"VynPopover / Popup", "VynPopover { preferredWidth: 200; contentHeight: 60 }",
     "Popup { width: 200; height: 60 }"},
    {"VynApplicationMessageItem / Dialog",
     "VynApplicationMessageItem { title: \"Delete the preset?\"; message: \"It is removed from"
     " every amplifier.\"; componentModel: [\"Delete\", \"Cancel\"] }",
     "Dialog { title: \"Delete the preset?\"; standardButtons: Dialog.Ok | Dialog.Cancel;"
     " Label { text: \"It is removed from every amplifier.\" } }"},
    {"VynHelpButton / RoundButton", "VynHelpButton { hintIdentifier: \"a\"; hintString: \"b\" }",
     "RoundButton { text: \"?\" }"},
    {"VynVUMeter11 / ProgressBar", "VynVUMeter11 { width: 12; height: 160 }",
     "ProgressBar { width: 160; value: 0.5 }"},
    // Discrete controls.
    {"VynBezelButton / Button", "VynBezelButton { text: \"Mute\" }", "Button { text: \"Mute\" }"},
    {"VynFlatButton / Button", "VynFlatButton { text: \"Mute\" }", "Button { text: \"Mute\" }"},
    {"VynInlineButton / Button", "VynInlineButton { text: \"M\" }", "Button { text: \"M\" }"},
    {"VynTemplateButton / Button", "VynTemplateButton { text: \"Voice\" }",
     "Button { text: \"Voice\" }"},
    {"VynUICommonButton / Button", "VynUICommonButton { }", "Button { text: \"Mute\" }"},
    {"VynCheckBox / CheckBox", "VynCheckBox { text: \"Link\" }", "CheckBox { text: \"Link\" }"},
    {"VynSwitch / Switch", "VynSwitch { }", "Switch { }"},
    {"VynSpinBox / SpinBox", "VynSpinBox { width: 120 }", "SpinBox { width: 120 }"},
    {"VynComboBox / ComboBox", "VynComboBox { width: 140; model: [\"Analog\", \"Dante\"] }",
     "ComboBox { width: 140; model: [\"Analog\", \"Dante\"] }"},
    {"VynPopoverCombo / ComboBox", "VynPopoverCombo { width: 140; model: [\"Analog\", \"Dante\"] }",
     "ComboBox { width: 140; model: [\"Analog\", \"Dante\"] }"},
    {"VynUIComboBox / ComboBox", "VynUIComboBox { width: 140 }", "ComboBox { width: 140 }"},
    {"VynLed / Rectangle", "VynLed { ledState: 3 }",
     "Rectangle { width: 13; height: 13; radius: 6.5; color: \"green\" }"},
    {"VynUILed / Rectangle", "VynUILed { }",
     "Rectangle { width: 13; height: 13; radius: 6.5; color: \"green\" }"},
    {"VynUIHandyButton / Button", "VynUIHandyButton { }", "Button { text: \"M\" }"},
    {"VynUILabel / Label", "VynUILabel { }", "Label { text: \"Channel 1\" }"},
    {"VynUICabLabel / Label", "VynUICabLabel { }", "Label { text: \"K2 110\" }"},
};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

class Bench
{
public:
    Bench()
    {
        m_engine.addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
        m_window.resize(1280, 800);
        m_window.create();
    }

    // Milliseconds to create \a count instances of \a body and show them in one frame.
    double creation(const QByteArray& body, int count)
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport QtQuick.Controls.Basic\nimport VynUI 1.2\n" +
                              body + "\n",
                          QUrl());
        if (component.isError()) {
            std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
            std::exit(2);
        }
        std::vector<std::unique_ptr<QObject>> objects;
        objects.reserve(size_t(count));
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < count; ++i) {
            QObject* object = component.beginCreate(m_engine.rootContext());
            if (auto* item = qobject_cast<QQuickItem*>(object))
                item->setParentItem(m_window.contentItem());
            component.completeCreate();
            objects.emplace_back(object);
        }
        frame();
        const double ms = double(timer.nsecsElapsed()) / 1e6;
        objects.clear();
        frame();
        return ms;
    }

    // Milliseconds for \a writes value writes spread over \a count bound controls, until one
    // frame shows them all. \a vyn: VynUISliderAndField bound to VynUISlideFieldComponents;
    // else a Basic Slider and SpinBox bound to the same kind of model.
    double hostPush(bool vyn, int count, int writes)
    {
        std::vector<std::unique_ptr<VynUISlideFieldComponent>> models;
        QQmlComponent component(&m_engine);
        component.setData(vyn ? "import VynUI 1.2\n"
                                "VynUISliderAndField { width: 400; property var model: null;"
                                " uiSlideFieldComponent: model }\n"
                              : "import QtQuick\nimport QtQuick.Controls.Basic\n"
                                "Row { property var model: null;"
                                " Slider { width: 280; from: -60; to: 12;"
                                " value: model ? model.value : 0 }"
                                " SpinBox { width: 120; from: -60; to: 12;"
                                " value: model ? Math.round(model.value) : 0 } }\n",
                          QUrl());
        if (component.isError()) {
            std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
            std::exit(2);
        }
        std::vector<std::unique_ptr<QObject>> objects;
        for (int i = 0; i < count; ++i) {
            models.push_back(std::make_unique<VynUISlideFieldComponent>(nullptr, false));
            models.back()->setMinValue(-60.0);
            models.back()->setMaxValue(12.0);
            models.back()->setValue(0.0, false, {0.0});
            QObject* object = component.beginCreate(m_engine.rootContext());
            object->setProperty("model", QVariant::fromValue<QObject*>(models.back().get()));
            qobject_cast<QQuickItem*>(object)->setParentItem(m_window.contentItem());
            component.completeCreate();
            objects.emplace_back(object);
        }
        frame();
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < writes; ++i) {
            const double value = -60.0 + double((i * 7) % 72) + 0.25;
            models[size_t(i % count)]->setValue(value, false, {value});
        }
        frame();
        const double ms = double(timer.nsecsElapsed()) / 1e6;
        objects.clear();
        frame();
        return ms;
    }

private:
    void frame()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_window.grabWindow();
    }

    QQmlEngine m_engine;
    QQuickWindow m_window;
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
    QCommandLineOption countOption({"n", "count"}, "Instances per measurement.", "n", "500");
    QCommandLineOption roundsOption({"r", "rounds"}, "Rounds (median kept).", "r", "3");
    QCommandLineOption filterOption({"f", "filter"}, "Only pairs whose name contains this.",
                                    "text");
    QCommandLineOption checkOption("check", "Exit 1 when a creation ratio exceeds this.", "ratio");
    QCommandLineOption sideOption("push-side",
                                  "Run only this side of the host push (vyn or qt), for a "
                                  "profiler; no ratio is printed.",
                                  "side");
    QCommandLineOption pairOption("pair", "Measure only this pair: 'vyn body|anchor body'.",
                                  "bodies");
    parser.addOptions(
        {countOption, roundsOption, filterOption, checkOption, pairOption, sideOption});
    parser.process(app);
    const int count = std::max(1, parser.value(countOption).toInt());
    const int rounds = std::max(1, parser.value(roundsOption).toInt());
    const QString filter = parser.value(filterOption);
    const double limit = parser.isSet(checkOption) ? parser.value(checkOption).toDouble() : 0.0;

    VynUIPlugin::initializeTypes();
    VynUIPlugin module;
    module.onOpeningModule();

    Bench bench;
    bool withinLimit = true;
    std::vector<Pair> pairs(std::begin(kPairs), std::end(kPairs));
    const QStringList given = parser.value(pairOption).split(QLatin1Char('|'));
    std::vector<QByteArray> givenBodies;
    if (parser.isSet(pairOption) && given.size() == 2) {
        givenBodies = {given.at(0).toUtf8(), given.at(1).toUtf8()};
        pairs = {{"given pair", givenBodies[0].constData(), givenBodies[1].constData()}};
    }
    std::printf("%-40s %12s %12s %8s\n", "control / anchor", "vyn ms", "anchor ms", "ratio");
    for (const Pair& pair : pairs) {
        if (!filter.isEmpty() && !QString::fromUtf8(pair.name).contains(filter))
            continue;
        bench.creation(pair.vyn, 10); // warm-up: type loading, caches, fonts
        bench.creation(pair.anchor, 10);
        std::vector<double> vyn, anchor;
        for (int round = 0; round < rounds; ++round) {
            vyn.push_back(bench.creation(pair.vyn, count));
            anchor.push_back(bench.creation(pair.anchor, count));
        }
        const double ratio = median(vyn) / median(anchor);
        std::printf("%-40s %12.1f %12.1f %7.2fx\n", pair.name, median(vyn), median(anchor), ratio);
        if (limit > 0.0 && ratio > limit)
            withinLimit = false;
    }

    if (!parser.isSet(pairOption) &&
        (filter.isEmpty() || QStringLiteral("host push").contains(filter))) {
        constexpr int kControls = 300;
        constexpr int kWrites = 3000;
        if (parser.isSet(sideOption)) {
            const bool vyn = parser.value(sideOption) == QLatin1String("vyn");
            std::printf("host push, %s side only: %.1f ms\n", vyn ? "module" : "Qt",
                        bench.hostPush(vyn, kControls, kWrites));
            module.onLeavingModule();
            return 0;
        }
        bench.hostPush(true, 10, 100);
        bench.hostPush(false, 10, 100);
        std::vector<double> vyn, anchor;
        for (int round = 0; round < rounds; ++round) {
            vyn.push_back(bench.hostPush(true, kControls, kWrites));
            anchor.push_back(bench.hostPush(false, kControls, kWrites));
        }
        const double ratio = median(vyn) / median(anchor);
        std::printf("%-40s %12.1f %12.1f %7.2fx   (%d writes on %d bound controls)\n",
                    "host push / Slider+SpinBox", median(vyn), median(anchor), ratio, kWrites,
                    kControls);
        if (limit > 0.0 && ratio > 2.0 * limit)
            withinLimit = false;
    }

    module.onLeavingModule();
    return withinLimit ? 0 : 1;
}
