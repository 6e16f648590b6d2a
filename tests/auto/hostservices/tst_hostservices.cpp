#include <qapplicationmessage.h>
#include <qapplicationmessagepresenter.h>
#include <qcorewindowcontroller.h>
#include <qloggermanager.h>
#include <vyndecibeltransformer.h>
#include <vynfrequencytransformer.h>
#include <vynlineartransformer.h>
#include <vyntransformer.h>

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

std::unique_ptr<VynTransformer> makeTransformer(const QString& kind)
{
    if (kind == "identity")
        return std::make_unique<VynTransformer>();
    if (kind == "decibel")
        return std::make_unique<VynDecibelTransformer>();
    if (kind == "amplitude")
        return std::make_unique<VynDecibelTransformer>(VynDecibelTransformer::RawAmplitude);
    if (kind == "frequency")
        return std::make_unique<VynFrequencyTransformer>();
    return std::unique_ptr<VynTransformer>(VynLinearTransformer::delayTransformer());
}

QStringList linesOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

class AnsweringPresenter : public QApplicationMessagePresenter
{
public:
    explicit AnsweringPresenter(int answer) : answer(answer) {}
    void present(QApplicationMessage* message) override
    {
        shown.append(message);
        for (QApplicationMessageAction* action : message->actions())
            buttons.append(action->text());
        message->respond(answer);
    }
    int answer;
    QList<QPointer<QApplicationMessage>> shown;
    QStringList buttons;
};

// Searches the visual tree, where Repeater-made items live (they need not be QObject children).
QQuickItem* findItem(QQuickItem* root, const QString& objectName)
{
    if (root->objectName() == objectName)
        return root;
    const QList<QQuickItem*> children = root->childItems();
    for (QQuickItem* child : children) {
        if (QQuickItem* found = findItem(child, objectName))
            return found;
    }
    return nullptr;
}

struct PresenterScope
{
    explicit PresenterScope(QApplicationMessagePresenter* p)
    {
        QApplicationMessage::setPresenter(p);
    }
    ~PresenterScope() { QApplicationMessage::setPresenter(nullptr); }
};

} // namespace

class tst_HostServices : public QObject
{
    Q_OBJECT

private slots:
    void transformerText_data();
    void transformerText();
    void transformerConversions();
    void transformerCloneKeepsKindAndUnit();

    void loggerWritesModuleFiles();
    void loggerRotatesFullFiles_data();
    void loggerRotatesFullFiles();

    void messageResponses_data();
    void messageResponses();
    void messageSecurityGate_data();
    void messageSecurityGate();
    void messageActionsRunOnce();
    void defaultPresenterShowsDialog();
    void defaultPresenterKeyboard_data();
    void defaultPresenterKeyboard();

    void windowControllerLookups();
    void catalogueForwardsFromQml();
};

void tst_HostServices::transformerText_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<float>("raw");
    QTest::addColumn<bool>("withUnit");
    QTest::addColumn<bool>("autoScale");
    QTest::addColumn<QString>("text");

    QTest::newRow("identity") << "identity"
                              << "" << 0.5f << true << true << "0.50";
    QTest::newRow("identity -0") << "identity"
                                 << "" << -0.001f << true << true << "0.00";
    QTest::newRow("dB positive") << "decibel"
                                 << "dB" << 6.0f << true << true << "+6.0 dB";
    QTest::newRow("dB zero") << "decibel"
                             << "dB" << -0.02f << true << true << "0.0 dB";
    QTest::newRow("dB negative") << "decibel"
                                 << "dB" << -12.5f << false << true << "-12.5";
    QTest::newRow("dB floor") << "decibel"
                              << "dB" << -200.0f << true << true << "-inf dB";
    QTest::newRow("amplitude half") << "amplitude"
                                    << "dB" << 0.5f << true << true << "-6.0 dB";
    QTest::newRow("amplitude zero") << "amplitude"
                                    << "dB" << 0.0f << true << false << "-inf dB";
    QTest::newRow("Hz low") << "frequency"
                            << "Hz" << 20.0f << true << true << "20.0 Hz";
    QTest::newRow("Hz mid") << "frequency"
                            << "Hz" << 125.0f << true << true << "125 Hz";
    QTest::newRow("Hz scaled") << "frequency"
                               << "Hz" << 1200.0f << true << true << "1.20 kHz";
    QTest::newRow("Hz scaled bare") << "frequency"
                                    << "Hz" << 12500.0f << false << true << "12.5k";
    QTest::newRow("Hz rounds up") << "frequency"
                                  << "Hz" << 999.7f << true << true << "1.00 kHz";
    QTest::newRow("Hz unscaled") << "frequency"
                                 << "Hz" << 1200.0f << true << false << "1200 Hz";
    QTest::newRow("kHz") << "frequency"
                         << "kHz" << 31.5f << true << true << "0.0315 kHz";
    QTest::newRow("ms") << "delay"
                        << "ms" << 12.5f << true << true << "12.50 ms";
    QTest::newRow("ms scaled") << "delay"
                               << "ms" << 1500.0f << true << true << "1.50 s";
    QTest::newRow("metres") << "delay"
                            << "m" << 10.0f << true << true << "3.43 m";
    QTest::newRow("nan") << "delay"
                         << "ms" << float(qQNaN()) << true << true << "- ms";
}

void tst_HostServices::transformerText()
{
    QFETCH(QString, kind);
    QFETCH(QString, unit);
    QFETCH(float, raw);
    QFETCH(bool, withUnit);
    QFETCH(bool, autoScale);
    QFETCH(QString, text);
    auto transformer = makeTransformer(kind);
    if (!unit.isEmpty())
        QVERIFY(transformer->setCurrentUnit(unit));
    QCOMPARE(transformer->valueToString(raw, withUnit, autoScale), text);
}

void tst_HostServices::transformerConversions()
{
    VynDecibelTransformer amplitude(VynDecibelTransformer::RawAmplitude);
    QCOMPARE(amplitude.rawToDisplayed(10.0f), 20.0f);
    QCOMPARE(amplitude.displayedToRaw(20.0f), 10.0f);
    QCOMPARE(amplitude.displayedToRaw(-500.0f), 0.0f);

    std::unique_ptr<VynTransformer> delay(VynLinearTransformer::delayTransformer());
    QVERIFY(!delay->setCurrentUnit("furlong"));
    QCOMPARE(delay->currentUnit(), QString("ms"));
    QVERIFY(delay->setCurrentUnit("m"));
    QCOMPARE(delay->displayedToRaw(delay->rawToDisplayed(40.0f)), 40.0f);
    QVERIFY(!delay->setCurrentUnitIndex(3));
    QCOMPARE(delay->currentUnitIndex(), 1);
}

void tst_HostServices::transformerCloneKeepsKindAndUnit()
{
    VynFrequencyTransformer frequency;
    frequency.setCurrentUnit("kHz");
    QObject owner;
    VynTransformer* clone = frequency.clone(&owner);
    QVERIFY(qobject_cast<VynFrequencyTransformer*>(clone));
    QCOMPARE(clone->parent(), &owner);
    QCOMPARE(clone->getKeyRef(), QString("frequency"));
    QCOMPARE(clone->currentUnit(), QString("kHz"));
    QCOMPARE(clone->valueToString(2000.0f, true, true),
             frequency.valueToString(2000.0f, true, true));
    frequency.setCurrentUnit("Hz");
    QCOMPARE(clone->currentUnit(), QString("kHz"));

    VynDecibelTransformer decibel;
    decibel.setMinusInfinityThreshold(-90.0);
    std::unique_ptr<VynTransformer> decibelClone(decibel.clone(nullptr));
    QCOMPARE(decibelClone->valueToString(-95.0f, true, true), QString("-inf dB"));
}

void tst_HostServices::loggerWritesModuleFiles()
{
    QTemporaryDir folder;
    QVERIFY(QLogger::QLoggerManager::instanceIsAlive() == false);
    QLogger::QLoggerManager* logger = QLogger::QLoggerManager::getInstance();
    QVERIFY(QLogger::QLoggerManager::instanceIsAlive());
    logger->setDefaultFolder(folder.path());
    logger->setConsoleLevel(QLogger::Fatal + 1);

    QVERIFY(logger->addDestination(QString(), "Amp", QLogger::Error));
    QVERIFY(!logger->addDestination("other.log", "Amp", QLogger::Debug)); // first one stays
    QVERIFY(logger->addDestination("custom.txt", "Net", QLogger::Debug, folder.filePath("sub"),
                                   QLogger::DefaultMode, QLogger::DefaultFileDisplay,
                                   QLogger::ShowLevel));

    logger->enqueueMessage("Amp", QLogger::Info, "ignored below the level");
    logger->enqueueMessage("Amp", QLogger::Error, "Gain out of range", "setGain", "/x/amp.cpp", 42);
    logger->enqueueMessage("Net", QLogger::Debug, "connected");
    logger->enqueueMessage("Nobody", QLogger::Fatal, "no file for this one");

    const QStringList amp = linesOf(folder.filePath("Amp.log"));
    QCOMPARE(amp.size(), 1);
    QVERIFY2(
        amp[0].contains(QRegularExpression(
            "^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} Error \\[Amp\\] \\{0x[0-9a-f]+\\} "
            "Gain out of range \\(setGain amp\\.cpp:42\\)$")),
        qPrintable(amp[0]));
    QCOMPARE(linesOf(folder.filePath("sub/custom.txt")), QStringList({"Debug connected"}));
    QCOMPARE(logger->fileNameForModule("Net"),
             QDir(folder.filePath("sub")).absoluteFilePath("custom.txt"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList({"Amp.log"}));

    QVERIFY(logger->removeDestination("Amp"));
    QVERIFY(!logger->removeDestination("Amp"));
    QLogger::QLoggerManager::destroyInstance();
    QVERIFY(!QLogger::QLoggerManager::instanceIsAlive());
}

void tst_HostServices::loggerRotatesFullFiles_data()
{
    QTest::addColumn<int>("display");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("rotatedPattern");
    QTest::newRow("numbers") << int(QLogger::Number) << 25 << "^Rot\\.\\d+\\.log$";
    // Many rotations fall within the same millisecond.
    QTest::newRow("date and time, many rotations")
        << int(QLogger::DateTime) << 3000 << "^Rot_\\d{8}-\\d{6}-\\d{3}(-\\d+)?\\.log$";
}

void tst_HostServices::loggerRotatesFullFiles()
{
    QFETCH(int, display);
    QFETCH(int, count);
    QFETCH(QString, rotatedPattern);

    QTemporaryDir folder;
    QLogger::QLoggerManager* logger = QLogger::QLoggerManager::getInstance();
    logger->setConsoleLevel(QLogger::Fatal + 1);
    logger->setMaximumFileSize(1); // raised to the 1 KiB minimum
    QCOMPARE(logger->maximumFileSize(), 1024);
    logger->addDestination(QString(), "Rot", QLogger::Debug, folder.path(), QLogger::OnlyFile,
                           QLogger::LogFileDisplay(display), QLogger::ShowLevel);
    const QString text(100, QLatin1Char('x'));
    for (int i = 0; i < count; ++i)
        logger->enqueueMessage("Rot", QLogger::Info, text + QString::number(i));
    const QStringList files = QDir(folder.path()).entryList(QDir::Files, QDir::Name);
    if (display == QLogger::Number)
        QCOMPARE(files, QStringList({"Rot.1.log", "Rot.2.log", "Rot.log"}));
    const QRegularExpression rotated(rotatedPattern);
    QSet<QString> seen;
    for (const QString& file : files) {
        QVERIFY2(file == "Rot.log" || rotated.match(file).hasMatch(), qPrintable(file));
        QVERIFY(QFileInfo(folder.filePath(file)).size() <= 1024 + 110);
        for (const QString& line : linesOf(folder.filePath(file)))
            seen.insert(line);
    }
    QCOMPARE(seen.size(), count); // nothing lost
    QLogger::QLoggerManager::destroyInstance();
}

void tst_HostServices::messageResponses_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("buttons");

    QTest::newRow("basic") << "basic" << 0 << QStringList({"OK"});
    QTest::newRow("confirm") << "confirm" << 0 << QStringList({"Confirm", "Cancel"});
    QTest::newRow("confirm cancelled") << "confirm" << 1 << QStringList({"Confirm", "Cancel"});
    QTest::newRow("custom") << "custom" << 2 << QStringList({"Save", "Discard", "Keep"});
    QTest::newRow("dismissed") << "custom" << -1 << QStringList({"Save", "Discard", "Keep"});
}

void tst_HostServices::messageResponses()
{
    QFETCH(QString, kind);
    QFETCH(int, answer);
    QFETCH(QStringList, buttons);
    AnsweringPresenter presenter(answer);
    PresenterScope scope(&presenter);

    QList<int> responses;
    QVariant data;
    auto completion = [&](int response, bool, const QVariant& userData) {
        responses.append(response);
        data = userData;
    };
    QApplicationMessage* message = nullptr;
    if (kind == "basic")
        message = QApplicationMessage::presentBasicMessage("T", "M", 7, 0, 0, QString(), {},
                                                           nullptr, completion, 99);
    else if (kind == "confirm")
        message = QApplicationMessage::presentConfirmMessage("T", "M", 7, 2, 3, {}, {}, nullptr,
                                                             completion, 99);
    else
        message = QApplicationMessage::presentCustomMessage("T", "M", 7, 1, 2, buttons, {}, nullptr,
                                                            completion, 99);
    QCOMPARE(presenter.buttons, buttons);
    QCOMPARE(responses, QList<int>({answer}));
    QCOMPARE(data, QVariant(99));
    QVERIFY(message->isFinished());
    message->respond(0); // answered once only
    QCOMPARE(responses.size(), 1);
    QPointer<QApplicationMessage> guard(message);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!guard);
}

void tst_HostServices::messageSecurityGate_data()
{
    QTest::addColumn<int>("securityType");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("goesAhead");

    QTest::newRow("none") << 0 << 1 << false << true;
    QTest::newRow("unknown type") << 7 << 1 << false << true;
    QTest::newRow("alert confirmed") << 1 << 0 << true << true;
    QTest::newRow("alert cancelled") << 1 << 1 << true << false;
    QTest::newRow("alert dismissed") << 1 << -1 << true << false;
    QTest::newRow("disable") << 2 << 0 << false << false;
}

void tst_HostServices::messageSecurityGate()
{
    QFETCH(int, securityType);
    QFETCH(int, answer);
    QFETCH(bool, shown);
    QFETCH(bool, goesAhead);
    AnsweringPresenter presenter(answer);
    PresenterScope scope(&presenter);
    bool wentAhead = false;
    QApplicationMessage* message =
        QApplicationMessage::presentConfirmMessageIfNeededForSecurityType(
            securityType, "Title", "Text", -1, 2, 3, {"Do it", QString()}, {}, nullptr,
            [&wentAhead](int, bool, const QVariant&) { wentAhead = true; }, QVariant());
    QCOMPARE(presenter.shown.size(), shown ? 1 : 0);
    QCOMPARE(message != nullptr, shown);
    QCOMPARE(wentAhead, goesAhead);
    if (shown)
        QCOMPARE(presenter.buttons, QStringList({"Do it", "Cancel"}));
}

void tst_HostServices::messageActionsRunOnce()
{
    QApplicationMessage message;
    int first = 0;
    int second = 0;
    message.addAction("A", [&first] { ++first; });
    QApplicationMessageAction* b = message.addAction("B", [&second] { ++second; });
    QVERIFY(message.hasAction());
    QVERIFY(!message.executeAction(5));
    QSignalSpy finished(&message, &QApplicationMessage::finished);
    message.respond(1);
    message.respond(0);
    QCOMPARE(first, 0);
    QCOMPARE(second, 1);
    QCOMPARE(finished.size(), 1);
    delete b;
    QCOMPARE(message.actionCount(), 1);
}

void tst_HostServices::defaultPresenterShowsDialog()
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport QtQuick.Window\n"
                      "Window { width: 480; height: 320; visible: true }",
                      QUrl());
    std::unique_ptr<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    auto* window = qobject_cast<QQuickWindow*>(root.get());
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QCoreWindowController controller(window);

    for (int button : {0, 1}) {
        int response = -2;
        QApplicationMessage::presentConfirmMessage(
            "Change gain?", "Channel 1 is live.", -1, 2, 3, {}, {&controller}, nullptr,
            [&response](int r, bool, const QVariant&) { response = r; }, QVariant());
        auto* dialog = window->findChild<QObject*>("qApplicationMessageDialog");
        QVERIFY(dialog);
        QCOMPARE(dialog->property("title").toString(), QString("Change gain?"));
        QTRY_VERIFY(dialog->property("opened").toBool());
        QQuickItem* item =
            findItem(window->contentItem(), QString("qApplicationMessageButton%1").arg(button));
        QVERIFY(item);
        const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(window, Qt::LeftButton, {}, centre.toPoint());
        QTRY_COMPARE(response, button);
        QTRY_VERIFY(!window->findChild<QObject*>("qApplicationMessageDialog"));
    }
}

void tst_HostServices::defaultPresenterKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<int>("response");
    QTest::newRow("enter confirms") << int(Qt::Key_Return) << QStringList() << 0;
    QTest::newRow("escape cancels") << int(Qt::Key_Escape) << QStringList() << 1;
    QTest::newRow("enter, one button") << int(Qt::Key_Enter) << QStringList({"OK"}) << 0;
    QTest::newRow("escape, three buttons: no choice")
        << int(Qt::Key_Escape) << QStringList({"Apply", "Keep", "Cancel"}) << -1;
}

void tst_HostServices::defaultPresenterKeyboard()
{
    QFETCH(int, key);
    QFETCH(QStringList, buttons);
    QFETCH(int, response);
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport QtQuick.Window\n"
                      "Window { width: 480; height: 320; visible: true }",
                      QUrl());
    std::unique_ptr<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    auto* window = qobject_cast<QQuickWindow*>(root.get());
    QVERIFY(QTest::qWaitForWindowExposed(window));
    QCoreWindowController controller(window);

    int answer = -2;
    const auto completion = [&answer](int r, bool, const QVariant&) { answer = r; };
    if (buttons.isEmpty()) {
        QApplicationMessage::presentConfirmMessage("Recall the preset?", "", -1, 2, 1, {},
                                                   {&controller}, nullptr, completion, QVariant());
    } else {
        QApplicationMessage::presentCustomMessage("Apply?", "", -1, 1, 2, buttons, {&controller},
                                                  nullptr, completion, QVariant());
    }
    auto* dialog = window->findChild<QObject*>("qApplicationMessageDialog");
    QVERIFY(dialog);
    QTRY_VERIFY(dialog->property("opened").toBool());
    QTest::keyClick(window, Qt::Key(key));
    QTRY_COMPARE(answer, response);
    QTRY_VERIFY(!window->findChild<QObject*>("qApplicationMessageDialog"));
}

void tst_HostServices::windowControllerLookups()
{
    QQuickWindow window;
    auto* item = new QQuickItem(window.contentItem());
    auto* child = new QObject(item);
    QVERIFY(!QCoreWindowController::controllerForQmlObject(child));
    QCOMPARE(QCoreWindowController::windowForQmlObject(child), &window);

    auto* controller = new QCoreWindowController(&window);
    QCOMPARE(QCoreWindowController::controllerForQmlObject(child), controller);
    QCOMPARE(QCoreWindowController::controllerForWindow(&window), controller);

    QQuickWindow dialog;
    dialog.setTransientParent(&window);
    QCOMPARE(QCoreWindowController::controllerForWindow(&dialog), controller);

    // A cycle of transient parents without a controller ends the walk.
    QWindow first;
    QWindow second;
    QWindow third;
    first.setTransientParent(&second);
    second.setTransientParent(&third);
    third.setTransientParent(&first);
    QVERIFY(!QCoreWindowController::controllerForWindow(&first));
    // ... and one with a controller finds it from anywhere in the cycle.
    QCoreWindowController cycleController(&third);
    QCOMPARE(QCoreWindowController::controllerForWindow(&first), &cycleController);
    third.setTransientParent(nullptr);
    second.setTransientParent(nullptr);
    first.setTransientParent(nullptr);

    // A second controller takes the window over.
    QCoreWindowController other(&window);
    QVERIFY(!controller->window());
    QCOMPARE(QCoreWindowController::controllerForWindow(&window), &other);
    delete controller;
    QCOMPARE(QCoreWindowController::controllerForWindow(&window), &other);

    QObject loose;
    QVERIFY(!QCoreWindowController::windowForQmlObject(&loose));
    QVERIFY(!QCoreWindowController::windowForQmlObject(nullptr));

    {
        QQuickWindow shortLived;
        other.setWindow(&shortLived);
    }
    QVERIFY(!other.window());
}

void tst_HostServices::catalogueForwardsFromQml()
{
    // What a control does on release of a protected parameter: find the window's controller
    // and window through the catalogue and ask through the message service.
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import VynUI 1.2
        Window {
            property var answers: []
            property bool foundController: false
            property bool foundWindow: false
            Item {
                id: control
            }
            function ask(securityType, asList) {
                const controller = VynUIQmlConstants.windowControllerForQmlObject(control)
                foundController = controller !== null
                foundWindow = VynUIQmlConstants.windowForQmlObject(control) !== null
                VynUIQmlConstants.presentConfirmMessageIfNeededForSecurityType(
                    securityType, "Protected", "Change the gain?", -1,
                    QApplicationMessage.Level_Warn, QApplicationMessage.Type_Popup, [],
                    asList ? [controller] : controller, control,
                    function(response) { answers = answers.concat([response]) })
            }
        })",
                      QUrl());
    QScopedPointer<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    auto* window = qobject_cast<QQuickWindow*>(root.data());
    QVERIFY(window);

    QMetaObject::invokeMethod(root.data(), "ask", Q_ARG(QVariant, 1), Q_ARG(QVariant, false));
    QVERIFY(root->property("foundWindow").toBool());
    QVERIFY(!root->property("foundController").toBool());

    QCoreWindowController controller(window);
    AnsweringPresenter confirming(QApplicationMessage::Response_Confirm);
    {
        PresenterScope scope(&confirming);
        QMetaObject::invokeMethod(root.data(), "ask", Q_ARG(QVariant, 1), Q_ARG(QVariant, true));
        QVERIFY(root->property("foundController").toBool());
        QCOMPARE(confirming.shown.size(), 1);
        QCOMPARE(root->property("answers").toList(), QVariantList({0}));
        // No confirmation needed: the completion runs at once, nothing is shown.
        QMetaObject::invokeMethod(root.data(), "ask", Q_ARG(QVariant, 0), Q_ARG(QVariant, false));
        QCOMPARE(confirming.shown.size(), 1);
        QCOMPARE(root->property("answers").toList(), QVariantList({0, 0}));
    }
    AnsweringPresenter refusing(QApplicationMessage::Response_Cancel);
    PresenterScope scope(&refusing);
    QMetaObject::invokeMethod(root.data(), "ask", Q_ARG(QVariant, 1), Q_ARG(QVariant, false));
    QCOMPARE(refusing.shown.size(), 1);
    QCOMPARE(root->property("answers").toList(), QVariantList({0, 0}));
}

QTEST_MAIN(tst_HostServices)
#include "tst_hostservices.moc"
