#include "vynuicomponent.h"
#include "vynuicomponentset.h"
#include "vynuislidefieldcomponent.h"
#include "vynuislidercomponent.h"

#include <qapplicationmessage.h>
#include <qapplicationmessagepresenter.h>
#include <qcorewindowcontroller.h>
#include <qloggermanager.h>
#include <vyndecibeltransformer.h>
#include <vynfrequencytransformer.h>

#include <QFile>
#include <QJSEngine>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "../common/signalrecorder.h"

#include <limits>

using Security = VynCommonConstants::VynSecurityType;

namespace {

VynProxyParamPath path(const char* text)
{
    return VynProxyParamPath::fromString(QString::fromLatin1(text));
}

// Records, in order, the names of the argument-less signals of a component.
class Recorder : public SignalRecorder
{
public:
    explicit Recorder(VynUIComponent* c)
    {
        watch(c, &VynUIComponent::componentTypeChanged, "componentType");
        watch(c, &VynUIComponent::styleChanged, "style");
        watch(c, &VynUIComponent::securityTypeChanged, "securityType");
        watch(c, &VynUIComponent::securityAlertChanged, "securityAlert");
        watch(c, &VynUIComponent::windowControllerChanged, "windowController");
        watch(c, &VynUIComponent::tooltipTextChanged, "tooltipText");
        watch(c, &VynUIComponent::enabledChanged, "enabled");
        watch(c, &VynUIComponent::previewModeChanged, "previewMode");
        watch(c, &VynUIComponent::expectingChanged, "expecting");
        watch(c, &VynUIComponent::paramPathChanged, "paramPath");
        watch(c, &VynUIComponent::wantsNameChanged, "wantsName");
        watch(c, &VynUIComponent::nameChanged, "name");
        if (auto* slider = qobject_cast<VynUISliderComponent*>(c)) {
            watch(slider, &VynUISliderComponent::valueChanged, "value");
            watch(slider, &VynUISliderComponent::valuesChanged, "values");
            watch(slider, &VynUISliderComponent::mixedChanged, "mixed");
            watch(slider, &VynUISliderComponent::minValueChanged, "minValue");
            watch(slider, &VynUISliderComponent::maxValueChanged, "maxValue");
            watch(slider, &VynUISliderComponent::initValueChanged, "initValue");
            watch(slider, &VynUISliderComponent::transformerChanged, "transformer");
        }
        if (auto* field = qobject_cast<VynUISlideFieldComponent*>(c)) {
            watch(field, &VynUISlideFieldComponent::unitIndexChanged, "unitIndex");
            watch(field, &VynUISlideFieldComponent::displayedValueChanged, "displayedValue");
            watch(field, &VynUISlideFieldComponent::unitsChanged, "units");
        }
    }
};

// Answers every message at once with a fixed response and remembers what it was shown.
class AnsweringPresenter : public QApplicationMessagePresenter
{
public:
    explicit AnsweringPresenter(int answer) : m_answer(answer) {}
    void present(QApplicationMessage* message) override
    {
        ++presented;
        title = message->title();
        text = message->string();
        level = message->level();
        type = message->type();
        window = message->window();
        message->respond(m_answer);
    }

    int presented = 0;
    QString title;
    QString text;
    int level = -1;
    int type = -1;
    QWindow* window = nullptr;

private:
    int m_answer;
};

struct PresenterScope
{
    explicit PresenterScope(QApplicationMessagePresenter* p)
    {
        QApplicationMessage::setPresenter(p);
    }
    ~PresenterScope() { QApplicationMessage::setPresenter(nullptr); }
};

QString readAll(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll());
}

} // namespace

class tst_Components : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    // Base
    void freshComponent();
    void effectiveEnabledFollowsSecurity();
    void settersIgnoreEqualValues();
    void signalCouplings();
    void restoreCopiesInOrder();
    void enumPropertiesTakeOnlyEnumerators_data();
    void enumPropertiesTakeOnlyEnumerators();
    void confirmation_data();
    void confirmation();
    void confirmationFindsControllerInScene();
    void confirmationWithoutControllerIsSilent();
    void confirmationQmlCompletion();

    // Set
    void setInsertAndRefile();
    void setInsertUnderPath();
    void setDestroyedComponentWarns();
    void setUpdatePathAndRemovePath();
    void setDescription();
    void setSurvivesDeletionFromPathSignal_data();
    void setSurvivesDeletionFromPathSignal();

    // Slider
    void sliderFirstValueFormats();
    void sliderClamp_data();
    void sliderClamp();
    void sliderFuzzyRange_data();
    void sliderFuzzyRange();
    void sliderValues();
    void sliderWithoutValidators();
    void sliderValidators();
    void sliderTransformerClones();
    void sliderSlideOffset_data();
    void sliderSlideOffset();

    // Slide field
    void slideFieldDisplayedValuesAndUnits();
    void slideFieldChooseUnitOutOfRange_data();
    void slideFieldChooseUnitOutOfRange();
    void slideFieldChooseUnit();
    void slideFieldRelativeAndHints();
    void slideFieldWithoutTransformer();
    void sliderSurvivesDeletionFromHost_data();
    void sliderSurvivesDeletionFromHost();

private:
    QTemporaryDir m_logs;
};

void tst_Components::initTestCase()
{
    QVERIFY(m_logs.isValid());
    QLogger::QLoggerManager* logger = QLogger::QLoggerManager::getInstance();
    logger->setDefaultFolder(m_logs.path());
    logger->setConsoleLevel(QLogger::Fatal + 1);
}

void tst_Components::cleanupTestCase()
{
    QLogger::QLoggerManager::destroyInstance();
}

void tst_Components::freshComponent()
{
    VynUIComponent c;
    QCOMPARE(c.componentType(), VynViewUtils::VynUIComponentTypeNone);
    QCOMPARE(c.style(), VynColorUtils::VynStyleDark);
    QCOMPARE(c.paramPath(), VynProxyParamPath::EmptyPath);
    QVERIFY(c.enabled());
    QCOMPARE(c.nameSize(), VynViewUtils::VynControlSizeRegular);
    QVERIFY(c.securityKey().isEmpty() && c.securityAlertTitle().isEmpty() &&
            c.securityAlertMessage().isEmpty() && c.tooltipText().isEmpty() && c.name().isEmpty());
    QVERIFY(c.toStringValue().isNull());
    // Built with logging on, the base registered its destination under its own class name.
    QVERIFY(QLogger::QLoggerManager::getInstance()->hasDestination("VynUIComponent"));
}

void tst_Components::effectiveEnabledFollowsSecurity()
{
    VynUIComponent c;
    Recorder recorder(&c);
    c.setSecurityType(VynCommonConstants::VynSecurityTypeDisable);
    QVERIFY(!c.enabled());
    QVERIFY(c.storedEnabled());
    QCOMPARE(c.property("enabled").toBool(), false);
    QCOMPARE(recorder.take(), QStringList({"securityType", "enabled"}));

    c.setSecurityType(VynCommonConstants::VynSecurityTypeShouldAlert);
    QVERIFY(c.enabled());
    QCOMPARE(recorder.take(), QStringList({"securityType", "enabled"}));

    c.setEnabled(false);
    QVERIFY(!c.enabled());
    QCOMPARE(recorder.take(), QStringList({"enabled"}));
}

void tst_Components::settersIgnoreEqualValues()
{
    QCoreWindowController controller;
    VynUIComponent c;
    const auto setEverything = [&c, &controller]() {
        c.setComponentType(VynViewUtils::VynUIComponentTypeLed);
        c.setStyle(VynColorUtils::VynStyleLight);
        c.setParamPath(path("Amp[1]/Channel[2]/Gain"));
        c.setSecurityKey(QString("gain"));
        c.setSecurityType(VynCommonConstants::VynSecurityTypeShouldAlert);
        c.setSecurityAlertTitleAndMessage("Title", "Message");
        c.setWindowController(&controller);
        c.setTooltipText("Tip");
        c.setEnabled(false);
        c.setPreviewMode(true);
        c.setExpecting(true);
        c.setWantsName(true);
        c.setNameSize(VynViewUtils::VynControlSizeSmall);
        c.setName("Gain");
    };
    setEverything();

    // The same values again: nothing is emitted.
    Recorder recorder(&c);
    setEverything();
    QCOMPARE(recorder.take(), QStringList());
}

void tst_Components::signalCouplings()
{
    VynUIComponent c;
    Recorder recorder(&c);
    c.setSecurityKey("amp.gain");
    QCOMPARE(recorder.take(), QStringList({"securityType", "enabled"}));
    c.setNameSize(VynViewUtils::VynControlSizeLarge);
    QCOMPARE(recorder.take(), QStringList({"wantsName"}));
    c.setSecurityAlertTitleAndMessage("Careful", QString());
    QCOMPARE(recorder.take(), QStringList({"securityAlert"}));
    c.setSecurityAlertTitleAndMessage("Careful", "Really?");
    QCOMPARE(recorder.take(), QStringList({"securityAlert"}));
    QCOMPARE(c.securityAlertMessage(), QString("Really?"));
}

void tst_Components::restoreCopiesInOrder()
{
    QCoreWindowController controller;
    VynUIComponent source;
    source.setComponentType(VynViewUtils::VynUIComponentTypeButton);
    source.setStyle(VynColorUtils::VynStyleLight);
    source.setParamPath(path("Amp[1]/Mute"));
    source.setSecurityKey("mute");
    source.setSecurityType(VynCommonConstants::VynSecurityTypeDisable);
    source.setSecurityAlertTitleAndMessage("T", "M");
    source.setTooltipText("Mute");
    source.setEnabled(false);
    source.setPreviewMode(true);
    source.setExpecting(true);
    source.setWindowController(&controller);
    source.setWantsName(true);
    source.setNameSize(VynViewUtils::VynControlSizeMini);
    source.setName("Mute");

    VynUIComponent target;
    Recorder recorder(&target);
    target.restoreFromUIComponent(&source);
    QCOMPARE(recorder.take(),
             QStringList({"componentType", "paramPath", "securityType", "enabled", "securityType",
                          "enabled", "securityAlert", "tooltipText", "enabled", "previewMode",
                          "windowController", "wantsName", "wantsName", "name"}));
    QCOMPARE(target.paramPath(), source.paramPath());
    QCOMPARE(target.securityType(), VynCommonConstants::VynSecurityTypeDisable);
    QVERIFY(!target.storedEnabled());
    QCOMPARE(target.windowController(), &controller);
    QCOMPARE(target.nameSize(), VynViewUtils::VynControlSizeMini);
    QCOMPARE(target.name(), QString("Mute"));
    // Style and expecting stay the target's own.
    QCOMPARE(target.style(), VynColorUtils::VynStyleDark);
    QVERIFY(!target.expecting());

    // The stored flag travels, not the effective one.
    VynUIComponent disabledBySecurity;
    disabledBySecurity.setSecurityType(VynCommonConstants::VynSecurityTypeDisable);
    VynUIComponent copy;
    copy.setEnabled(false);
    copy.restoreFromUIComponent(&disabledBySecurity);
    QVERIFY(copy.storedEnabled());

    // A slot may delete either component in the middle of the copy: the copy stops there.
    for (bool deleteTarget : {true, false}) {
        auto* from = new VynUIComponent;
        from->setParamPath(path("Amp[1]/Gain"));
        from->setName("Gain");
        auto* to = new VynUIComponent;
        QPointer<VynUIComponent> watched = deleteTarget ? to : from;
        QObject::connect(to, &VynUIComponent::paramPathChanged, [&] { delete watched.data(); });
        to->restoreFromUIComponent(from);
        QVERIFY(!watched);
        if (deleteTarget) {
            delete from;
        } else {
            QCOMPARE(to->name(), QString()); // nothing after the deletion was copied
            delete to;
        }
    }
}

void tst_Components::enumPropertiesTakeOnlyEnumerators_data()
{
    // Written as QML writes them: any integer through the property system.
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("style light") << QByteArray("style") << 0 << true;
    QTest::newRow("style 2") << QByteArray("style") << 2 << false;
    QTest::newRow("style -1") << QByteArray("style") << -1 << false;
    QTest::newRow("component type combo") << QByteArray("componentType") << 4 << true;
    QTest::newRow("component type 100000") << QByteArray("componentType") << 100000 << false;
    QTest::newRow("security type disable") << QByteArray("securityType") << 2 << true;
    QTest::newRow("security type 3") << QByteArray("securityType") << 3 << false;
    QTest::newRow("security type INT_MIN")
        << QByteArray("securityType") << std::numeric_limits<int>::min() << false;
    QTest::newRow("name size large") << QByteArray("nameSize") << 3 << true;
    QTest::newRow("name size 5") << QByteArray("nameSize") << 5 << false;
    QTest::newRow("name size INT_MAX")
        << QByteArray("nameSize") << std::numeric_limits<int>::max() << false;
}

void tst_Components::enumPropertiesTakeOnlyEnumerators()
{
    QFETCH(QByteArray, property);
    QFETCH(int, value);
    QFETCH(bool, accepted);

    VynUIComponent c;
    const int before = c.property(property.constData()).toInt();
    QVERIFY(before != value);
    Recorder recorder(&c);
    QSignalSpy logged(QLogger::QLoggerManager::getInstance(),
                      &QLogger::QLoggerManager::messageLogged);
    QVERIFY(c.setProperty(property.constData(), value));
    QCOMPARE(c.property(property.constData()).toInt(), accepted ? value : before);
    QCOMPARE(recorder.take().isEmpty(), !accepted);
    QCOMPARE(logged.size(), accepted ? 0 : 1);
}

void tst_Components::confirmation_data()
{
    QTest::addColumn<int>("securityType");
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("presented");
    QTest::addColumn<int>("completed");

    QTest::newRow("none") << 0 << int(QApplicationMessage::Response_Cancel) << 0 << 1;
    QTest::newRow("should alert, confirmed")
        << 1 << int(QApplicationMessage::Response_Confirm) << 1 << 1;
    QTest::newRow("should alert, cancelled")
        << 1 << int(QApplicationMessage::Response_Cancel) << 1 << 0;
    QTest::newRow("should alert, dismissed") << 1 << int(QApplicationMessage::NoResponse) << 1 << 0;
    QTest::newRow("disable") << 2 << int(QApplicationMessage::Response_Confirm) << 0 << 0;
}

void tst_Components::confirmation()
{
    QFETCH(int, securityType);
    QFETCH(int, answer);
    QFETCH(int, presented);
    QFETCH(int, completed);

    AnsweringPresenter presenter(answer);
    PresenterScope scope(&presenter);
    QCoreWindowController controller;
    VynUIComponent c;
    c.setWindowController(&controller);
    c.setSecurityType(static_cast<Security>(securityType));
    c.setSecurityAlertTitleAndMessage("Change gain?", "The amplifier is live.");

    int calls = 0;
    c.presentConfirmChangeAlertIfNeeded([&calls] { ++calls; });
    QCOMPARE(presenter.presented, presented);
    QCOMPARE(calls, completed);
    if (presented) {
        QCOMPARE(presenter.title, QString("Change gain?"));
        QCOMPARE(presenter.text, QString("The amplifier is live."));
        QCOMPARE(presenter.level, int(QApplicationMessage::Level_Warn));
        QCOMPARE(presenter.type, int(QApplicationMessage::Type_Popup));
    }
    // An empty completion is tolerated.
    c.presentConfirmChangeAlertIfNeeded({});
}

void tst_Components::confirmationFindsControllerInScene()
{
    AnsweringPresenter presenter(QApplicationMessage::Response_Confirm);
    PresenterScope scope(&presenter);
    QQuickWindow window;
    QCoreWindowController controller(&window);
    auto* item = new QQuickItem(window.contentItem());
    auto* c = new VynUIComponent(item);
    c->setSecurityType(VynCommonConstants::VynSecurityTypeShouldAlert);

    int calls = 0;
    c->presentConfirmChangeAlertIfNeeded([&calls] { ++calls; });
    QCOMPARE(calls, 1);
    QCOMPARE(presenter.window, &window);
}

void tst_Components::confirmationWithoutControllerIsSilent()
{
    AnsweringPresenter presenter(QApplicationMessage::Response_Confirm);
    PresenterScope scope(&presenter);
    for (int type : {0, 1, 2}) {
        VynUIComponent c;
        c.setSecurityType(static_cast<Security>(type));
        int calls = 0;
        c.presentConfirmChangeAlertIfNeeded([&calls] { ++calls; });
        QCOMPARE(calls, 0);
    }
    QCOMPARE(presenter.presented, 0);
}

void tst_Components::confirmationQmlCompletion()
{
    QJSEngine engine;
    QCoreWindowController controller;
    VynUIComponent c;
    c.setWindowController(&controller);
    const QJSValue counter = engine.evaluate("(function() { let n = 0; return { bump: function() { "
                                             "++n }, count: function() { return n } } })()");
    c.presentConfirmChangeAlertIfNeededQml(counter.property("bump"));
    QCOMPARE(counter.property("count").call().toInt(), 1);
    // Non-callable and null completions are ignored.
    c.presentConfirmChangeAlertIfNeededQml(QJSValue(42));
    c.presentConfirmChangeAlertIfNeededQml(QJSValue(QJSValue::NullValue));
    QCOMPARE(counter.property("count").call().toInt(), 1);
}

void tst_Components::setInsertAndRefile()
{
    VynUIComponentSet set;
    VynUISliderComponent a;
    a.setParamPath(path("Amp[1]/Gain"));
    set.insert(&a);
    set.insert(&a);
    set.insert(static_cast<VynUIComponent*>(nullptr));
    QCOMPARE(set.components().size(), 1);
    QCOMPARE(set.getComponents(path("Amp[1]/Gain")).size(), 1);

    QSignalSpy refiled(&set, &VynUIComponentSet::componentParamPathChanged);
    a.setParamPath(path("Amp[2]/Gain"));
    QCOMPARE(refiled.size(), 1);
    QCOMPARE(refiled.at(0).at(0).value<VynUIComponent*>(), &a);
    QVERIFY(set.getComponents(path("Amp[1]/Gain")).isEmpty());
    QCOMPARE(set.getComponents(path("Amp[2]/Gain")), QList<VynUIComponent*>({&a}));

    set.remove(&a);
    QVERIFY(set.components().isEmpty());
    a.setParamPath(path("Amp[3]/Gain"));
    QCOMPARE(refiled.size(), 1); // no longer followed
    QCOMPARE(set.getFirstParamPathForComponent(&a), path("Amp[3]/Gain"));
}

void tst_Components::setInsertUnderPath()
{
    VynUISliderComponent c;
    VynUIComponentSet set;
    QSignalSpy pathChanged(&c, &VynUIComponent::paramPathChanged);
    QSignalSpy refiled(&set, &VynUIComponentSet::componentParamPathChanged);
    set.insert(path("Amp[1]/Delay"), &c);
    QCOMPARE(c.paramPath(), path("Amp[1]/Delay"));
    QCOMPARE(pathChanged.size(), 1);
    QCOMPARE(refiled.size(), 0);
    QCOMPARE(set.getComponents(path("Amp[1]/Delay")).size(), 1);

    // Filed under a second path while keeping its own.
    set.insert(path("Group[1]/Delay"), &c);
    QCOMPARE(c.paramPath(), path("Amp[1]/Delay"));
    QCOMPARE(set.components().size(), 1);
    QCOMPARE(set.getParamPathsForComponent(&c).size(), 2);

    VynUISliderComponent stranger;
    QCOMPARE(set.getFirstParamPathForComponent(&stranger), VynProxyParamPath::EmptyPath);
    QVERIFY(set.getParamPathsForComponent(&stranger).isEmpty());
    set.remove(&stranger); // ignored
    QCOMPARE(set.components().size(), 1);
}

void tst_Components::setDestroyedComponentWarns()
{
    VynUIComponentSet set;
    auto* c = new VynUISliderComponent;
    set.insert(path("Amp[1]/Gain"), c);
    set.insert(path("Amp[2]/Gain"), c);
    auto* removed = new VynUISliderComponent;
    set.insert(path("Amp[3]/Gain"), removed);
    set.remove(removed);

    const QRegularExpression warning(
        "^WARNING VynUIComponentSet::onComponentDestroyed: UI component was destroyed without "
        "being removed from its component set: .* Amp\\[[12]\\]/Gain$");
    QTest::ignoreMessage(QtDebugMsg, warning);
    QTest::ignoreMessage(QtDebugMsg, warning);
    delete c;
    delete removed; // removed properly: no message
    QVERIFY(set.components().isEmpty());
    QVERIFY(set.getComponents(path("Amp[1]/Gain")).isEmpty());
    QVERIFY(set.getComponents(path("Amp[2]/Gain")).isEmpty());
}

void tst_Components::setUpdatePathAndRemovePath()
{
    VynUISliderComponent own;
    VynUISliderComponent guest;
    VynUISliderComponent twice;
    VynUIComponentSet set;
    own.setParamPath(path("Amp[1]/Gain"));
    guest.setParamPath(path("Amp[9]/Gain"));
    set.insert(&own);
    set.insert(path("Amp[1]/Gain"), &guest);

    set.updatePath(path("Amp[1]/Gain"), path("Amp[4]/Gain"));
    QCOMPARE(own.paramPath(), path("Amp[4]/Gain"));
    QCOMPARE(guest.paramPath(), path("Amp[9]/Gain"));
    QCOMPARE(set.getComponents(path("Amp[4]/Gain")), QList<VynUIComponent*>({&own, &guest}));
    QVERIFY(set.getComponents(path("Amp[1]/Gain")).isEmpty());

    set.insert(path("Amp[4]/Gain"), &twice);
    set.insert(path("Group[2]/Gain"), &twice);
    const QList<VynUIComponent*> taken = set.remove(path("Amp[4]/Gain"));
    QCOMPARE(taken, QList<VynUIComponent*>({&own, &guest, &twice}));
    // Only the component still filed under another path stays, and stays followed.
    QCOMPARE(set.components(), QList<VynUIComponent*>({&twice}));
    QSignalSpy refiled(&set, &VynUIComponentSet::componentParamPathChanged);
    own.setParamPath(path("Amp[5]/Gain"));
    QCOMPARE(refiled.size(), 0);
    twice.setParamPath(path("Amp[6]/Gain"));
    QCOMPARE(refiled.size(), 1);
    QCOMPARE(set.getParamPathsForComponent(&twice),
             QList<VynProxyParamPath>({path("Amp[6]/Gain")}));
}

void tst_Components::setDescription()
{
    VynUISliderComponent a;
    VynUISlideFieldComponent b;
    VynUIComponentSet set;
    set.insert(path("Amp[1]/Gain"), &a);
    set.insert(path("Amp[1]/Gain"), &b);
    const QString text = set.getDescription();
    const QRegularExpression format(
        "^VynUIComponentSet\\(\\s*0x[0-9a-f]+\\)\n  \\{ Amp\\[1\\]/Gain:"
        "VynUISliderComponent\\(\\s*0x[0-9a-f]+\\)VynUISlideFieldComponent\\(\\s*0x[0-9a-f]+\\) "
        "\\}$");
    QVERIFY2(format.match(text).hasMatch(), qPrintable(text));
}

void tst_Components::setSurvivesDeletionFromPathSignal_data()
{
    // Components a, b and c are filed under Amp[1]/Gain, then moved to Amp[4]/Gain by
    // updatePath(); on the paramPathChanged() of `trigger` a slot deletes `doomed` (a
    // component, or "set"). `moved` lists the components filed under the new path after.
    QTest::addColumn<QString>("trigger");
    QTest::addColumn<QString>("doomed");
    QTest::addColumn<QString>("moved");

    QTest::newRow("nothing deleted") << "a"
                                     << ""
                                     << "abc";
    QTest::newRow("b deletes itself") << "b"
                                      << "b"
                                      << "ac";
    QTest::newRow("a deletes c, still to move") << "a"
                                                << "c"
                                                << "ab";
    QTest::newRow("c deletes a, moved already") << "c"
                                                << "a"
                                                << "bc";
    QTest::newRow("a deletes the set") << "a"
                                       << "set"
                                       << "";
}

void tst_Components::setSurvivesDeletionFromPathSignal()
{
    QFETCH(QString, trigger);
    QFETCH(QString, doomed);
    QFETCH(QString, moved);

    QPointer<VynUIComponentSet> set(new VynUIComponentSet);
    QMap<QString, QPointer<VynUIComponent>> components;
    for (const char* name : {"a", "b", "c"}) {
        auto* c = new VynUISliderComponent;
        c->setParamPath(path("Amp[1]/Gain"));
        set->insert(c);
        components.insert(QString::fromLatin1(name), c);
    }
    if (!doomed.isEmpty()) {
        QObject* victim = doomed == "set" ? static_cast<QObject*>(set.data())
                                          : static_cast<QObject*>(components[doomed].data());
        connect(
            components[trigger], &VynUIComponent::paramPathChanged, this,
            [victim] { delete victim; }, Qt::SingleShotConnection);
    }

    set->updatePath(path("Amp[1]/Gain"), path("Amp[4]/Gain"));

    if (doomed == "set") {
        QVERIFY(set.isNull());
        // Only the component whose signal deleted the set took its new path.
        QCOMPARE(components["a"]->paramPath(), path("Amp[4]/Gain"));
        QCOMPARE(components["b"]->paramPath(), path("Amp[1]/Gain"));
    } else {
        QList<VynUIComponent*> expected;
        for (QChar name : moved)
            expected.append(components[QString(name)]);
        QCOMPARE(set->getComponents(path("Amp[4]/Gain")), expected);
        QCOMPARE(set->components(), expected);
        QVERIFY(set->paths() == QList<VynProxyParamPath>{path("Amp[4]/Gain")});
        for (VynUIComponent* c : std::as_const(expected))
            QCOMPARE(c->paramPath(), path("Amp[4]/Gain"));
        QVERIFY(doomed.isEmpty() || components[doomed].isNull());
    }
    delete set.data();
    qDeleteAll(components);
}

void tst_Components::sliderFirstValueFormats()
{
    VynUISliderComponent s;
    QCOMPARE(s.componentType(), VynViewUtils::VynUIComponentTypeSlider);
    QCOMPARE(s.minValue(), 0.0);
    QCOMPARE(s.maxValue(), 1.0);
    QVERIFY(s.stringValue().isEmpty());
    QSignalSpy changed(&s, &VynUISliderComponent::valueChanged);
    s.setValueQml(0.0);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(s.stringValue(), QString("0.00"));
    QCOMPARE(s.toStringValue(), QString("0.00"));
    s.setValueQml(0.0);
    QCOMPARE(changed.size(), 1);
}

void tst_Components::sliderClamp_data()
{
    QTest::addColumn<double>("minValue");
    QTest::addColumn<double>("maxValue");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("stored");

    QTest::newRow("above") << 0.0 << 1.0 << 5.0 << 1.0;
    QTest::newRow("below") << 0.0 << 1.0 << -3.0 << 0.0;
    QTest::newRow("inside") << -60.0 << 12.0 << -6.5 << -6.5;
    QTest::newRow("inverted range, above") << 2.0 << 1.0 << 7.0 << 2.0;
    QTest::newRow("inverted range, below") << 2.0 << 1.0 << -7.0 << 2.0;
    QTest::newRow("inverted range, between") << 2.0 << 1.0 << 1.5 << 2.0;
}

void tst_Components::sliderClamp()
{
    QFETCH(double, minValue);
    QFETCH(double, maxValue);
    QFETCH(double, value);
    QFETCH(double, stored);
    VynUISliderComponent s;
    s.setMinValue(minValue);
    s.setMaxValue(maxValue);
    s.setValue(value, true, {value, 0.25});
    QCOMPARE(s.value(), stored);
    QVERIFY(s.mixed());
    QCOMPARE(s.values(), QVariantList({value, 0.25}));
}

void tst_Components::sliderFuzzyRange_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<bool>("changes");

    QTest::newRow("0 to 1e-13") << 0.0 << 1e-13 << true;
    QTest::newRow("0 to 0") << 0.0 << 0.0 << false;
    QTest::newRow("1 to 1+1e-13") << 1.0 << 1.0 + 1e-13 << false;
    QTest::newRow("1 to 1+1e-11") << 1.0 << 1.0 + 1e-11 << true;
    QTest::newRow("twelfth digit") << 123456.789012 << 123456.789013 << true;
    QTest::newRow("sign change") << -1e-300 << 1e-300 << true;
}

void tst_Components::sliderFuzzyRange()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(bool, changes);
    VynUISliderComponent s;
    s.setMinValue(from);
    s.setMaxValue(from);
    s.setInitValue(from);
    s.setValueQml(from);
    Recorder recorder(&s);
    s.setMinValue(to);
    s.setMaxValue(to);
    s.setInitValue(to);
    s.setValueQml(to);
    const QStringList expected =
        changes ? QStringList({"minValue", "maxValue", "initValue", "value"}) : QStringList();
    QCOMPARE(recorder.take(), expected);
}

void tst_Components::sliderValues()
{
    VynUISliderComponent s;
    QSignalSpy spy(&s, &VynUISliderComponent::valuesChanged);
    s.setValues({0.5, 0.25});
    s.setValues({0.5, 0.25});
    QCOMPARE(spy.size(), 1);
    s.setValues({0.25, 0.5});
    QCOMPARE(spy.size(), 2);
    s.setValues({});
    QCOMPARE(spy.size(), 3);
    QVERIFY(s.values().isEmpty());
}

void tst_Components::sliderWithoutValidators()
{
    VynUISliderComponent s;
    s.setValueQml(0.5);
    QSignalSpy changed(&s, &VynUISliderComponent::valueChanged);
    QVERIFY(!s.shouldBeginSliding());
    QVERIFY(!s.expectsValue(0.75, false, 0.5, true));
    QCOMPARE(s.value(), 0.5);
    QCOMPARE(changed.size(), 0);
}

void tst_Components::sliderValidators()
{
    VynUISliderComponent s;
    s.setMaxValue(10.0);
    VynUISliderComponent* seen = nullptr;
    s.setSlidingValidator([&seen](VynUISliderComponent* c) {
        seen = c;
        return true;
    });
    QVERIFY(s.shouldBeginSliding());
    QCOMPARE(seen, &s);

    struct Call
    {
        double value;
        bool relative;
        double prev;
        bool final;
    };
    QList<Call> calls;
    bool answer = true;
    s.setValueValidator(
        [&](VynUISliderComponent*, double& value, bool relative, double prev, bool final) {
            calls.append({value, relative, prev, final});
            value = std::round(value); // the host rounds to its step
            return answer;
        });
    QVERIFY(s.expectsValue(3.4, true, 2.0, false));
    QCOMPARE(s.value(), 3.0);
    QCOMPARE(calls.size(), 1);
    QCOMPARE(calls[0].value, 3.4);
    QVERIFY(calls[0].relative);
    QCOMPARE(calls[0].prev, 2.0);
    QVERIFY(!calls[0].final);

    // A refusal is returned, but the (modified) value is still stored.
    answer = false;
    QVERIFY(!s.expectsValue(6.6, false, 3.0, true));
    QCOMPARE(s.value(), 7.0);

    s.setValueValidator(nullptr);
    QVERIFY(!s.expectsValue(1.0, false, 7.0, true));
    QCOMPARE(s.value(), 7.0);
}

void tst_Components::sliderTransformerClones()
{
    auto* slider = new VynUISliderComponent;
    QPointer<VynTransformer> initial = slider->transformer();
    QVERIFY(initial);
    QCOMPARE(initial->parent(), slider);

    QSignalSpy changed(slider, &VynUISliderComponent::transformerChanged);
    QPointer<VynTransformer> original = new VynDecibelTransformer;
    slider->setTransformer(original);
    QCOMPARE(changed.size(), 1);
    QPointer<VynTransformer> clone = slider->transformer();
    QVERIFY(clone && clone != original);
    QVERIFY(qobject_cast<VynDecibelTransformer*>(clone));
    QCOMPARE(clone->parent(), slider);
    delete original;
    QVERIFY(clone);

    slider->setValueQml(6.0);
    QCOMPARE(slider->stringValue(), QString("+6.0 dB"));
    VynFrequencyTransformer frequency;
    slider->setTransformer(&frequency);
    // The replaced clones stay children until the component goes.
    QVERIFY(clone && initial);
    QCOMPARE(clone->parent(), slider);
    // The text follows the new transformer.
    QCOMPARE(slider->stringValue(), QString("6.00 Hz"));

    delete slider;
    QVERIFY(!clone && !initial);
}

void tst_Components::sliderSlideOffset_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("offset");
    QTest::newRow("2.5") << 2.5 << 0.5;
    QTest::newRow("-2.5") << -2.5 << -0.5;
    QTest::newRow("0.25") << 0.25 << -0.25;
    QTest::newRow("7") << 7.0 << 0.0;
}

void tst_Components::sliderSlideOffset()
{
    QFETCH(double, value);
    QFETCH(double, offset);
    VynUISliderComponent s;
    s.setMinValue(-10);
    s.setMaxValue(10);
    s.setValueQml(value);
    emit s.slidingBegan();
    QCOMPARE(s.slideOffset(), offset);
}

void tst_Components::slideFieldDisplayedValuesAndUnits()
{
    VynUISlideFieldComponent f;
    QCOMPARE(f.componentType(), VynViewUtils::VynUIComponentTypeSlideField);
    VynFrequencyTransformer frequency;
    frequency.setCurrentUnit("kHz");
    f.setMinValue(20.0);
    f.setMaxValue(20000.0);
    f.setTransformer(&frequency);
    f.setValue(1250.0, false, {1250.0});
    QCOMPARE(f.displayedValue(), double(1.25f));
    QCOMPARE(f.displayedMinValue(), double(0.02f));
    QCOMPARE(f.displayedMaxValue(), 20.0);
    QCOMPARE(f.getTransformerName(), QString("frequency"));
    QCOMPARE(f.unitIndex(), -1);
    f.setUnits({"Hz", "kHz"});
    QCOMPARE(f.unitIndex(), 1);
    f.setUnits({"kHz", "kHz"});
    QCOMPARE(f.unitIndex(), 0); // first match
    f.setUnits({});
    QCOMPARE(f.unitIndex(), -1);
}

void tst_Components::slideFieldChooseUnitOutOfRange_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("negative") << -1;
    QTest::newRow("count") << 2;
    QTest::newRow("beyond") << 9;
}

void tst_Components::slideFieldChooseUnitOutOfRange()
{
    QFETCH(int, index);
    QLogger::QLoggerManager* logger = QLogger::QLoggerManager::getInstance();
    VynUISlideFieldComponent f;
    f.setUnits({"Hz", "kHz"});
    int validatorCalls = 0;
    f.setUnitValidator(
        [&validatorCalls](VynUISlideFieldComponent*, QString&) { ++validatorCalls; });
    QSignalSpy logged(logger, &QLogger::QLoggerManager::messageLogged);
    Recorder recorder(&f);
    f.chooseUnitAction(index);
    QCOMPARE(validatorCalls, 0);
    QCOMPARE(recorder.take(), QStringList());
    QCOMPARE(logged.size(), 1);
    QCOMPARE(logged.at(0).at(0).toString(), QString("VynUISlideFieldComponent"));
    QCOMPARE(logged.at(0).at(1).toInt(), int(QLogger::Error));
    const QString line = logged.at(0).at(2).toString();
    QVERIFY2(line.contains("Cannot select Unit. Index out of range") &&
                 line.contains("chooseUnitAction"),
             qPrintable(line));
    // The line is in the class's own log file.
    const QString file = logger->fileNameForModule("VynUISlideFieldComponent");
    QVERIFY(file.startsWith(m_logs.path()));
    QVERIFY(readAll(file).contains(line));
}

void tst_Components::slideFieldChooseUnit()
{
    VynUISlideFieldComponent f;
    VynFrequencyTransformer frequency;
    f.setTransformer(&frequency);
    f.setMaxValue(20000.0);
    f.setValue(2500.0, false, {});
    QCOMPARE(f.stringValue(), QString("2.50 kHz"));
    QSignalSpy allows(&f, &VynUISlideFieldComponent::allowsUnitChoosingChanged);
    f.setUnits({"Hz", "kHz"});
    QVERIFY(!f.allowsUnitChoosing());
    QStringList asked;
    f.setUnitValidator([&asked](VynUISlideFieldComponent* c, QString& unit) {
        asked.append(unit);
        c->setUnit(static_cast<int>(c->units().indexOf(unit)), false);
    });
    QVERIFY(f.allowsUnitChoosing());
    QCOMPARE(allows.size(), 1);
    QCOMPARE(f.unitIndex(), 0);

    Recorder recorder(&f);
    f.chooseUnitAction(1);
    QCOMPARE(asked, QStringList({"kHz"}));
    QCOMPARE(f.unitIndex(), 1);
    QCOMPARE(f.displayedValue(), 2.5);
    QCOMPARE(f.displayedMaxValue(), 20.0);
    QCOMPARE(recorder.take(), QStringList({"unitIndex", "displayedValue", "minValue", "maxValue"}));

    // Choosing the current unit again changes nothing unless forced.
    f.chooseUnitAction(1);
    QCOMPARE(recorder.take(), QStringList());
    f.setUnit(1, true);
    QCOMPARE(recorder.take(), QStringList({"unitIndex", "displayedValue", "minValue", "maxValue"}));

    f.expectsUnit("Hz");
    QCOMPARE(asked, QStringList({"kHz", "kHz", "Hz"}));
    QCOMPARE(f.unitIndex(), 0);
    QCOMPARE(f.stringValue(), QString("2.50 kHz")); // auto-scaled text in Hz reads the same
}

void tst_Components::slideFieldRelativeAndHints()
{
    VynUISlideFieldComponent f;
    f.setMaxValue(100.0);
    QSignalSpy panHint(&f, &VynUISlideFieldComponent::scheduleSlideFieldPanHint);
    QSignalSpy textHint(&f, &VynUISlideFieldComponent::scheduleSlideFieldTextHint);
    QVERIFY(!f.shouldBeginSliding());
    QCOMPARE(panHint.size(), 0);
    f.setSlidingValidator([](VynUISliderComponent*) { return true; });
    QVERIFY(f.shouldBeginSliding());
    QCOMPARE(panHint.size(), 1);

    QList<bool> relativeSeen;
    f.setValueValidator(
        [&relativeSeen](VynUISliderComponent*, double&, bool relative, double, bool) {
            relativeSeen.append(relative);
            return true;
        });
    QSignalSpy relativeChanged(&f, &VynUISlideFieldComponent::relativeChanged);
    f.setRelative(true);
    f.setRelative(true);
    QCOMPARE(relativeChanged.size(), 1);
    QVERIFY(f.expectsValue(4.0, false, 0.0, false));
    f.setRelative(false);
    QVERIFY(f.expectsValue(5.0, false, 4.0, true));
    QCOMPARE(relativeSeen, QList<bool>({true, false}));
    QCOMPARE(textHint.size(), 1); // a final value typed while not sliding

    f.setSliding(true);
    QVERIFY(f.expectsValue(6.0, false, 5.0, true));
    QCOMPARE(textHint.size(), 1);
}

void tst_Components::slideFieldWithoutTransformer()
{
    VynUISlideFieldComponent f;
    f.setUnits({"Hz"});
    f.setValue(0.5, false, {});
    f.setTransformer(nullptr);
    QVERIFY(!f.transformer());
    QVERIFY(f.getTransformerName().isNull());
    QCOMPARE(f.displayedValue(), 0.0);
    QCOMPARE(f.displayedMaxValue(), 0.0);
    QCOMPARE(f.unitIndex(), -1);
    QCOMPARE(f.stringValue(), QString("0.5"));
    QSignalSpy logged(QLogger::QLoggerManager::getInstance(),
                      &QLogger::QLoggerManager::messageLogged);
    f.setUnit(0, true);
    QCOMPARE(logged.size(), 1);
}

void tst_Components::sliderSurvivesDeletionFromHost_data()
{
    // The host deletes the component synchronously, from a validator or from the signal
    // `deleteOn`, inside `call`. `emitted` is what the component emitted up to then.
    QTest::addColumn<bool>("slideField");
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("deleteOn");
    QTest::addColumn<QStringList>("emitted");

    QTest::newRow("setValue, on valuesChanged") << false << "setValue"
                                                << "values" << QStringList{"values"};
    QTest::newRow("setValue, on mixedChanged") << false << "setValue"
                                               << "mixed" << QStringList{"values", "mixed"};
    QTest::newRow("slide field setValue, on valuesChanged") << true << "setValue"
                                                            << "values" << QStringList{"values"};
    QTest::newRow("expectsValue, in the value validator") << false << "expectsValue"
                                                          << "validator" << QStringList{};
    QTest::newRow("expectsValue, on valueChanged") << false << "expectsValue"
                                                   << "value" << QStringList{"value"};
    QTest::newRow("slide field expectsValue, in the value validator")
        << true << "expectsValue"
        << "validator" << QStringList{};
    QTest::newRow("slide field expectsValue, on valueChanged")
        << true << "expectsValue"
        << "value" << QStringList{"displayedValue", "value"};
    QTest::newRow("slide field shouldBeginSliding, in the sliding validator")
        << true << "shouldBeginSliding"
        << "validator" << QStringList{};
    QTest::newRow("setSecurityType, on securityTypeChanged")
        << false << "setSecurityType"
        << "securityType" << QStringList{"securityType"};
    QTest::newRow("slide field setTransformer, on transformerChanged")
        << true << "setTransformer"
        << "transformer" << QStringList{"transformer"};
}

void tst_Components::sliderSurvivesDeletionFromHost()
{
    QFETCH(bool, slideField);
    QFETCH(QString, call);
    QFETCH(QString, deleteOn);
    QFETCH(QStringList, emitted);

    VynUISliderComponent* c = slideField ? new VynUISlideFieldComponent : new VynUISliderComponent;
    c->setValueQml(0.25);
    const QPointer<VynUISliderComponent> guard(c);
    int hints = 0;
    if (auto* field = qobject_cast<VynUISlideFieldComponent*>(c)) {
        connect(field, &VynUISlideFieldComponent::scheduleSlideFieldTextHint,
                [&hints] { ++hints; });
        connect(field, &VynUISlideFieldComponent::scheduleSlideFieldPanHint, [&hints] { ++hints; });
    }
    Recorder recorder(c);
    const auto destroy = [c] { delete c; };
    if (deleteOn == "values")
        connect(c, &VynUISliderComponent::valuesChanged, destroy);
    else if (deleteOn == "mixed")
        connect(c, &VynUISliderComponent::mixedChanged, destroy);
    else if (deleteOn == "value")
        connect(c, &VynUISliderComponent::valueChanged, destroy);
    else if (deleteOn == "securityType")
        connect(c, &VynUIComponent::securityTypeChanged, destroy);
    else if (deleteOn == "transformer")
        connect(c, &VynUISliderComponent::transformerChanged, destroy);
    const bool inValidator = deleteOn == "validator";
    c->setSlidingValidator([inValidator](VynUISliderComponent* self) {
        if (inValidator)
            delete self;
        return true;
    });
    c->setValueValidator([inValidator](VynUISliderComponent* self, double&, bool, double, bool) {
        if (inValidator)
            delete self;
        return true;
    });

    bool answer = true;
    VynDecibelTransformer decibels;
    if (call == "setValue")
        c->setValue(0.5, true, {0.25, 0.75});
    else if (call == "expectsValue")
        answer = c->expectsValue(0.75, false, 0.25, true);
    else if (call == "shouldBeginSliding")
        answer = c->shouldBeginSliding();
    else if (call == "setSecurityType")
        c->setSecurityType(Security::VynSecurityTypeDisable);
    else if (call == "setTransformer")
        c->setTransformer(&decibels);

    QVERIFY(guard.isNull());
    QCOMPARE(recorder.take(), emitted);
    QVERIFY(answer); // the validator's answer comes back even though the component is gone
    QCOMPARE(hints, 0);
}

QTEST_MAIN(tst_Components)
#include "tst_components.moc"
