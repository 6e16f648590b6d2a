#include <qapplicationsettings.h>
#include <vynhintdata.h>
#include <vynhintmanager.h>
#include <vynuikey.h>

#include <QCoreApplication>
#include <QMetaMethod>
#include <QPointer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

// Records, in order, what a manager and the hints it was handed report: "presented:<id>"
// (or "presented:-" for none) on presentedHintChanged, "completion:<id>" on completion.
class Recorder
{
public:
    explicit Recorder(VynHintManager* manager) : m_manager(manager)
    {
        m_connections.append(
            QObject::connect(manager, &VynHintManager::presentedHintChanged, [this] {
                VynHintData* hint = m_manager->presentedHint();
                m_events.append(QStringLiteral("presented:") +
                                (hint ? hint->identifier() : QStringLiteral("-")));
            }));
    }
    ~Recorder()
    {
        for (const auto& c : m_connections)
            QObject::disconnect(c);
    }
    VynHintData* watch(VynHintData* hint)
    {
        const QString id = hint->identifier();
        m_connections.append(QObject::connect(hint, &VynHintData::completion, [this, id](bool on) {
            m_events.append(QStringLiteral("completion:") + id);
            if (on)
                m_events.append(QStringLiteral("completion was true"));
        }));
        return hint;
    }
    QStringList take() { return std::exchange(m_events, {}); }

private:
    VynHintManager* m_manager;
    QStringList m_events;
    QList<QMetaObject::Connection> m_connections;
};

// A hint owned by the test (as a hint declared in QML is owned by its document).
VynHintData* makeHint(QObject* owner, const QString& id, QObject* view, int duration = 6000)
{
    auto* hint = new VynHintData(owner);
    hint->setIdentifier(id);
    hint->setTitle(id + QStringLiteral(" title"));
    hint->setPresentingView(view);
    hint->setDuration(duration);
    return hint;
}

QStringList idsOf(const QList<VynHintData*>& hints)
{
    QStringList ids;
    for (VynHintData* hint : hints)
        ids.append(hint->identifier());
    return ids;
}

QTimer* presentationTimer(VynHintManager* manager)
{
    return manager->findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
}

void flushDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QString settingsFile;

} // namespace

class tst_Hints : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void hintDefaultsAndMetaObject();
    void hintSettersNotifyOnChange_data();
    void hintSettersNotifyOnChange();
    void presentingViewIsWatched();
    void dontShowAgainActionIsOneWay();
    void copyAndSimilarity_data();
    void copyAndSimilarity();

    void convenienceForms_data();
    void convenienceForms();
    void scheduling_data();
    void scheduling();
    void presentationTimer();
    void closingByCopy();
    void invalidation();
    void destroyedViewAndHint();
    void ownership();
    void hiddenHints();
    void hiddenHintsSurviveRestart();

private:
    QTemporaryDir m_dir;
    QObject m_views;
};

void tst_Hints::initTestCase()
{
    QVERIFY(m_dir.isValid());
    settingsFile = m_dir.filePath(QStringLiteral("hints.settings"));
    QApplicationSettings::sharedSettings()->setFileName(settingsFile);
}

void tst_Hints::init()
{
    VynHintManager::resetHiddenHints();
}

void tst_Hints::hintDefaultsAndMetaObject()
{
    QCOMPARE(VynHintData::DefaultWidth, 200.0);
    QCOMPARE(VynHintData::DefaultDuration, 6000);
    QCOMPARE(VynHintData::LongDuration, 10000);

    VynHintData hint;
    QCOMPARE(hint.identifier(), QString());
    QCOMPARE(hint.presentingView(), nullptr);
    QCOMPARE(hint.preferredWidth(), 200.0);
    QCOMPARE(hint.hasDontShowAgainAction(), false);
    QCOMPARE(hint.duration(), 6000);
    QCOMPARE(hint.preferredArrowOrientation(), 0);
    QCOMPARE(hint.type(), int(QApplicationMessage::Type_Hint));
    QCOMPARE(hint.level(), int(QApplicationMessage::Level_Note));
    QVERIFY(!hint.hasAction());

    // QML and hosts address the members by name and order.
    const QMetaObject* meta = &VynHintData::staticMetaObject;
    QStringList properties;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i)
        properties.append(QString::fromLatin1(meta->property(i).name()));
    QCOMPARE(properties,
             QStringList({"identifier", "presentingView", "preferredWidth",
                          "hasDontShowAgainAction", "duration", "preferredArrowOrientation"}));
    QStringList methods;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
        methods.append(QString::fromLatin1(meta->method(i).methodSignature()));
    QCOMPARE(methods, QStringList({"identifierChanged()", "presentingViewChanged()",
                                   "preferredWidthChanged()", "presentingViewDestroyed()",
                                   "durationChanged()", "hasDontShowAgainActionChanged()",
                                   "preferredArrowOrientationChanged()", "completion(bool)",
                                   "onPresentingViewDestroyed()"}));

    const QMetaObject* managerMeta = &VynHintManager::staticMetaObject;
    QStringList managerMethods;
    for (int i = managerMeta->methodOffset(); i < managerMeta->methodCount(); ++i)
        managerMethods.append(QString::fromLatin1(managerMeta->method(i).methodSignature()));
    QCOMPARE(managerMethods,
             QStringList({"presentedHintChanged()", "onPresentingViewDestroyed()",
                          "onPresentationTimeout()", "onHintDestroyed()",
                          "scheduleHint(QString,QObject*,QString,QString,bool,int,double)",
                          "scheduleHint(QString,QObject*,QString,QString,bool,int)",
                          "scheduleHint(QString,QObject*,QString,QString,bool)",
                          "scheduleHint(QString,QObject*,QString,QString)",
                          "scheduleHint(QString,QObject*,QString)", "scheduleHint(VynHintData*)",
                          "invalidateHint(VynHintData*)", "invalidateHint(QString)",
                          "invalidateHintsWithPrefix(QString)", "shouldShowHint(VynHintData*)",
                          "getPresentedHintCopy(QObject*)", "getPresentedHintCopy()",
                          "onHintClosed(VynHintData*)"}));
    QCOMPARE(managerMeta->property(managerMeta->propertyOffset()).name(), "presentedHint");
}

void tst_Hints::hintSettersNotifyOnChange_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("identifier") << QByteArray("identifier") << QVariant(QStringLiteral("a.b"))
                                << QByteArray(SIGNAL(identifierChanged()));
    QTest::newRow("preferredWidth") << QByteArray("preferredWidth") << QVariant(320.5)
                                    << QByteArray(SIGNAL(preferredWidthChanged()));
    QTest::newRow("duration") << QByteArray("duration") << QVariant(0)
                              << QByteArray(SIGNAL(durationChanged()));
    QTest::newRow("preferredArrowOrientation")
        << QByteArray("preferredArrowOrientation") << QVariant(2)
        << QByteArray(SIGNAL(preferredArrowOrientationChanged()));
    QTest::newRow("presentingView")
        << QByteArray("presentingView") << QVariant::fromValue<QObject*>(&m_views)
        << QByteArray(SIGNAL(presentingViewChanged()));
}

void tst_Hints::hintSettersNotifyOnChange()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, signal);
    VynHintData hint;
    QSignalSpy spy(&hint, signal.constData());
    QVERIFY(hint.setProperty(property.constData(), value));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(hint.property(property.constData()), value);
    // The same value again (a string equal by content, not the same object) is no change.
    QVariant again = value;
    if (value.typeId() == QMetaType::QString)
        again = QVariant(QString(value.toString().data(), value.toString().size()));
    QVERIFY(hint.setProperty(property.constData(), again));
    QCOMPARE(spy.count(), 1);
}

void tst_Hints::presentingViewIsWatched()
{
    VynHintData hint;
    auto first = std::make_unique<QObject>();
    auto second = std::make_unique<QObject>();
    hint.setPresentingView(first.get());
    hint.setPresentingView(second.get());
    QSignalSpy changed(&hint, &VynHintData::presentingViewChanged);
    QSignalSpy destroyedSpy(&hint, &VynHintData::presentingViewDestroyed);

    // The view it no longer points at is not watched any more.
    first.reset();
    QCOMPARE(destroyedSpy.count(), 0);
    QCOMPARE(hint.presentingView(), second.get());

    second.reset();
    QCOMPARE(destroyedSpy.count(), 1);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(hint.presentingView(), nullptr);
}

void tst_Hints::dontShowAgainActionIsOneWay()
{
    VynHintData hint;
    hint.setIdentifier(QStringLiteral("first"));
    QSignalSpy spy(&hint, &VynHintData::hasDontShowAgainActionChanged);
    hint.setHasDontShowAgainAction(true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(hint.actionCount(), 1);
    QCOMPARE(hint.actions().first()->text(), QStringLiteral("DONT_SHOW_AGAIN"));
    hint.setHasDontShowAgainAction(true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(hint.actionCount(), 1);

    hint.setHasDontShowAgainAction(false);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(hint.actionCount(), 1);
    hint.setHasDontShowAgainAction(true);
    QCOMPARE(hint.actionCount(), 2);

    // The action hides the identifier the hint has when it runs, not when it was made.
    hint.setIdentifier(QStringLiteral("renamed"));
    QVERIFY(hint.executeAction(0));
    QVERIFY(!VynHintManager::shouldShowHint(QStringLiteral("renamed")));
    QVERIFY(VynHintManager::shouldShowHint(QStringLiteral("first")));
    // Hiding twice stores the identifier once.
    QVERIFY(hint.executeAction(1));
    const QVariantList stored =
        QApplicationSettings::sharedSettings()
            ->retrieveSetting(VynUIKey::Settings::HiddenHint, VynUIKey::Settings::HiddenHints,
                              QVariantList(), VynUIKey::Settings::VynUIGroup)
            .toList();
    QCOMPARE(stored, QVariantList({QVariant(QStringLiteral("renamed"))}));
}

void tst_Hints::copyAndSimilarity_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<bool>("similar");
    QTest::newRow("nothing") << "" << true;
    QTest::newRow("identifier") << "identifier" << false;
    QTest::newRow("title") << "title" << false;
    QTest::newRow("text") << "text" << false;
    QTest::newRow("presenting view") << "view" << false;
    QTest::newRow("action flag") << "action" << false;
    QTest::newRow("duration") << "duration" << true;
    QTest::newRow("width") << "width" << true;
    QTest::newRow("arrow") << "arrow" << true;
    QTest::newRow("level") << "level" << true;
}

void tst_Hints::copyAndSimilarity()
{
    QFETCH(QString, change);
    QFETCH(bool, similar);
    QObject view;
    QObject otherView;
    VynHintData original;
    original.setIdentifier(QStringLiteral("id"));
    original.setTitle(QStringLiteral("Title"));
    original.setString(QStringLiteral("Text"));
    original.setPresentingView(&view);
    original.setPreferredWidth(250);
    original.setDuration(1500);
    original.setPreferredArrowOrientation(1);
    original.setLevel(QApplicationMessage::Level_Warn);
    original.setHasDontShowAgainAction(true);

    QObject owner;
    std::unique_ptr<VynHintData> copy(new VynHintData(original, &owner));
    QCOMPARE(copy->parent(), &owner);
    copy->setParent(nullptr);
    QCOMPARE(copy->identifier(), original.identifier());
    QCOMPARE(copy->title(), original.title());
    QCOMPARE(copy->string(), original.string());
    QCOMPARE(copy->presentingView(), &view);
    QCOMPARE(copy->preferredWidth(), 250.0);
    QCOMPARE(copy->duration(), 1500);
    QCOMPARE(copy->preferredArrowOrientation(), 1);
    QCOMPARE(copy->level(), int(QApplicationMessage::Level_Warn));
    QCOMPARE(copy->hasDontShowAgainAction(), true);
    // The copy carries the original's action (the popover offers it), not a second one.
    QCOMPARE(copy->actionCount(), 1);
    QVERIFY(copy->isSimilarToHint(&original));

    if (change == "identifier")
        copy->setIdentifier(QStringLiteral("other"));
    else if (change == "title")
        copy->setTitle(QStringLiteral("Other"));
    else if (change == "text")
        copy->setString(QStringLiteral("Other"));
    else if (change == "view")
        copy->setPresentingView(&otherView);
    else if (change == "action")
        copy->setHasDontShowAgainAction(false);
    else if (change == "duration")
        copy->setDuration(0);
    else if (change == "width")
        copy->setPreferredWidth(100);
    else if (change == "arrow")
        copy->setPreferredArrowOrientation(2);
    else if (change == "level")
        copy->setLevel(QApplicationMessage::Level_Critical);
    QCOMPARE(copy->isSimilarToHint(&original), similar);
    QCOMPARE(original.isSimilarToHint(copy.get()), similar);
    QVERIFY(!original.isSimilarToHint(nullptr));
}

void tst_Hints::convenienceForms_data()
{
    QTest::addColumn<int>("arguments");
    QTest::addColumn<QString>("detail");
    QTest::addColumn<bool>("dontShowAgain");
    QTest::addColumn<int>("duration");
    QTest::addColumn<double>("width");
    QTest::newRow("7") << 7 << "detail" << true << 1234 << 321.0;
    QTest::newRow("6") << 6 << "detail" << true << 1234 << 200.0;
    QTest::newRow("5") << 5 << "detail" << true << 6000 << 200.0;
    QTest::newRow("4") << 4 << "detail" << false << 6000 << 200.0;
    QTest::newRow("3") << 3 << QString() << false << 6000 << 200.0;
}

void tst_Hints::convenienceForms()
{
    QFETCH(int, arguments);
    QFETCH(QString, detail);
    QFETCH(bool, dontShowAgain);
    QFETCH(int, duration);
    QFETCH(double, width);
    VynHintManager manager;
    QObject view;
    const QString id = QStringLiteral("form");
    const QString title = QStringLiteral("Title");
    const QString text = QStringLiteral("detail");
    const auto schedule = [&] {
        switch (arguments) {
        case 7:
            return manager.scheduleHint(id, &view, title, text, true, 1234, 321.0);
        case 6:
            return manager.scheduleHint(id, &view, title, text, true, 1234);
        case 5:
            return manager.scheduleHint(id, &view, title, text, true);
        case 4:
            return manager.scheduleHint(id, &view, title, text);
        default:
            return manager.scheduleHint(id, &view, title);
        }
    };
    QVERIFY(schedule());
    VynHintData* hint = manager.presentedHint();
    QVERIFY(hint);
    QCOMPARE(hint->parent(), &manager);
    QCOMPARE(hint->identifier(), id);
    QCOMPARE(hint->title(), title);
    QCOMPARE(hint->string(), detail);
    QCOMPARE(hint->string().isNull(), detail.isNull());
    QCOMPARE(hint->presentingView(), &view);
    QCOMPARE(hint->hasDontShowAgainAction(), dontShowAgain);
    QCOMPARE(hint->actionCount(), dontShowAgain ? 1 : 0);
    QCOMPARE(hint->duration(), duration);
    QCOMPARE(hint->preferredWidth(), width);

    // The same call again makes a similar hint: it toggles the presented one off.
    QVERIFY(!schedule());
    QCOMPARE(manager.presentedHint(), nullptr);
}

// Scheduling scenarios. Each step is "<verb> <id>": "new x" schedules a fresh hint x (its own
// object), "again x" schedules the object last made for x, "twin x" a new object similar to
// the last x, "other x" a new hint x with another title, "close" presents the next hint,
// "noview x" and "noid" schedule hints that must be rejected.
void tst_Hints::scheduling_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QList<bool>>("results");
    QTest::addColumn<QStringList>("events");
    QTest::addColumn<QStringList>("queue");

    QTest::newRow("first is shown, others queue in order")
        << QStringList{"new a", "new b", "new c"} << QList<bool>{true, true, true}
        << QStringList{"presented:a"} << QStringList{"b", "c"};
    QTest::newRow("closing shows the next, then none")
        << QStringList{"new a", "new b", "close", "close"} << QList<bool>{true, true, true, true}
        << QStringList{"presented:a", "completion:a", "presented:b", "completion:b", "presented:-"}
        << QStringList{};
    QTest::newRow("the presented hint again toggles it off")
        << QStringList{"new a", "new b", "again a"} << QList<bool>{true, true, false}
        << QStringList{"presented:a", "completion:a", "presented:b"} << QStringList{};
    QTest::newRow("a similar hint toggles the presented one off")
        << QStringList{"new a", "twin a"} << QList<bool>{true, false}
        << QStringList{"presented:a", "completion:a", "presented:-"} << QStringList{};
    QTest::newRow("same identifier, other text: shown at once, answered false")
        << QStringList{"new a", "new b", "other a"} << QList<bool>{true, true, false}
        << QStringList{"presented:a", "completion:a", "presented:a"} << QStringList{"b"};
    QTest::newRow("a queued identifier is replaced, without completion")
        << QStringList{"new a", "new b", "new c", "other b"} << QList<bool>{true, true, true, true}
        << QStringList{"presented:a"} << QStringList{"c", "b"};
    QTest::newRow("a queued hint scheduled again keeps its place")
        << QStringList{"new a", "new b", "new c", "again b"} << QList<bool>{true, true, true, true}
        << QStringList{"presented:a"} << QStringList{"b", "c"};
    QTest::newRow("no presenting view or no identifier: rejected")
        << QStringList{"new a", "noview b", "noid"} << QList<bool>{true, false, false}
        << QStringList{"presented:a", "completion:b", "completion:"} << QStringList{};
    QTest::newRow("rejected while nothing is shown")
        << QStringList{"noview b"} << QList<bool>{false} << QStringList{"completion:b"}
        << QStringList{};
}

void tst_Hints::scheduling()
{
    QFETCH(QStringList, steps);
    QFETCH(QList<bool>, results);
    QFETCH(QStringList, events);
    QFETCH(QStringList, queue);

    VynHintManager manager;
    QObject owner;
    QObject view;
    QHash<QString, VynHintData*> last;
    Recorder recorder(&manager);
    QList<bool> answers;
    for (const QString& step : std::as_const(steps)) {
        const QString verb = step.section(' ', 0, 0);
        const QString id = step.section(' ', 1);
        if (verb == "close") {
            manager.presentNextHint();
            answers.append(true);
            continue;
        }
        VynHintData* hint = nullptr;
        if (verb == "again") {
            hint = last.value(id);
        } else if (verb == "noview") {
            hint = recorder.watch(makeHint(&owner, id, nullptr));
        } else if (verb == "noid") {
            hint = recorder.watch(makeHint(&owner, QString(), &view));
        } else {
            hint = recorder.watch(makeHint(&owner, id, &view));
            if (verb == "other")
                hint->setTitle(QStringLiteral("another title"));
            else if (verb == "new")
                last.insert(id, hint);
        }
        answers.append(manager.scheduleHint(hint));
    }
    QCOMPARE(answers, results);
    QCOMPARE(recorder.take(), events);
    QCOMPARE(idsOf(manager.queuedHints()), queue);
    // Hints the manager does not own are never deleted by it.
    flushDeferredDeletes();
    QCOMPARE(owner.children().size(),
             steps.count() - steps.filter("again").count() - steps.filter("close").count());
}

void tst_Hints::presentationTimer()
{
    VynHintManager manager;
    QObject owner;
    QObject view;
    Recorder recorder(&manager);
    QVERIFY(!::presentationTimer(&manager));

    manager.scheduleHint(recorder.watch(makeHint(&owner, "a", &view, 2500)));
    QTimer* timer = ::presentationTimer(&manager);
    QVERIFY(timer);
    QVERIFY(timer->isSingleShot());
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 2500);

    // A hint with duration 0 stays: no timer runs while it is shown.
    manager.scheduleHint(recorder.watch(makeHint(&owner, "zero", &view, 0)));
    manager.scheduleHint(recorder.watch(makeHint(&owner, "b", &view, 700)));
    QCOMPARE(recorder.take(), QStringList({"presented:a"}));

    // The timer ends the hint on screen: run it now instead of waiting for it.
    timer->start(0);
    QTRY_COMPARE(manager.presentedHint() ? manager.presentedHint()->identifier() : QString(),
                 QStringLiteral("zero"));
    QCOMPARE(recorder.take(), QStringList({"completion:a", "presented:zero"}));
    QVERIFY(!timer->isActive());

    manager.onPresentationTimeout();
    QCOMPARE(recorder.take(), QStringList({"completion:zero", "presented:b"}));
    QCOMPARE(::presentationTimer(&manager), timer);
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 700);

    manager.presentNextHint();
    QVERIFY(!timer->isActive());
    QCOMPARE(recorder.take(), QStringList({"completion:b", "presented:-"}));
}

void tst_Hints::closingByCopy()
{
    VynHintManager manager;
    QObject owner;
    QObject view;
    Recorder recorder(&manager);
    QCOMPARE(manager.getPresentedHintCopy(), nullptr);
    manager.scheduleHint(recorder.watch(makeHint(&owner, "a", &view)));
    manager.scheduleHint(recorder.watch(makeHint(&owner, "b", &view)));
    recorder.take();

    std::unique_ptr<VynHintData> copy(manager.getPresentedHintCopy());
    QVERIFY(copy);
    QCOMPARE(copy->parent(), nullptr);
    QVERIFY(copy.get() != manager.presentedHint());

    // A closed popover whose hint is not the presented one changes nothing.
    VynHintData stranger;
    stranger.setIdentifier(QStringLiteral("a"));
    stranger.setPresentingView(&view);
    manager.onHintClosed(&stranger);
    manager.onHintClosed(nullptr);
    QCOMPARE(recorder.take(), QStringList());

    // The popover's copy identifies the presented hint by similarity.
    manager.onHintClosed(copy.get());
    QCOMPARE(recorder.take(), QStringList({"completion:a", "presented:b"}));
    QObject parent;
    VynHintData* owned = manager.getPresentedHintCopy(&parent);
    QCOMPARE(owned->parent(), &parent);
    QCOMPARE(owned->identifier(), QStringLiteral("b"));
}

void tst_Hints::invalidation()
{
    VynHintManager manager;
    QObject owner;
    QObject view;
    Recorder recorder(&manager);
    for (const char* id : {"a.3", "a.1", "b.1", "a.2"})
        manager.scheduleHint(recorder.watch(makeHint(&owner, QString::fromLatin1(id), &view)));
    recorder.take();

    manager.invalidateHintsWithPrefix(QStringLiteral("a."));
    QCOMPARE(recorder.take(),
             QStringList({"completion:a.1", "completion:a.2", "completion:a.3", "presented:b.1"}));
    QCOMPARE(idsOf(manager.queuedHints()), QStringList());

    manager.scheduleHint(recorder.watch(makeHint(&owner, "c", &view)));
    VynHintData* d = recorder.watch(makeHint(&owner, "d", &view));
    manager.scheduleHint(d);
    // By identifier, a queued hint is dropped; by object, one in neither place is ignored.
    manager.invalidateHint(QStringLiteral("c"));
    manager.invalidateHint(QStringLiteral("unknown"));
    manager.invalidateHint(static_cast<VynHintData*>(nullptr));
    VynHintData loose;
    manager.invalidateHint(&loose);
    QCOMPARE(recorder.take(), QStringList({"completion:c"}));
    QCOMPARE(idsOf(manager.queuedHints()), QStringList({"d"}));
    // The presented one is dismissed and the next shown.
    manager.invalidateHint(QStringLiteral("b.1"));
    QCOMPARE(recorder.take(), QStringList({"completion:b.1", "presented:d"}));
    manager.invalidateHint(d);
    QCOMPARE(recorder.take(), QStringList({"completion:d", "presented:-"}));
    // Prefixes are case-sensitive.
    manager.scheduleHint(recorder.watch(makeHint(&owner, "A.1", &view)));
    manager.invalidateHintsWithPrefix(QStringLiteral("a."));
    QCOMPARE(manager.presentedHint()->identifier(), QStringLiteral("A.1"));
}

void tst_Hints::destroyedViewAndHint()
{
    VynHintManager manager;
    QObject owner;
    QObject view;
    auto dyingView = std::make_unique<QObject>();
    Recorder recorder(&manager);
    manager.scheduleHint(recorder.watch(makeHint(&owner, "shown", dyingView.get())));
    manager.scheduleHint(recorder.watch(makeHint(&owner, "queued", dyingView.get())));
    VynHintData* doomed = recorder.watch(makeHint(&owner, "doomed", &view));
    manager.scheduleHint(doomed);
    manager.scheduleHint(recorder.watch(makeHint(&owner, "last", &view)));
    recorder.take();

    // Both hints of the view go: the presented one is dismissed, the queued one dropped.
    dyingView.reset();
    QCOMPARE(recorder.take(), QStringList({"completion:shown", "presented:queued",
                                           "completion:queued", "presented:doomed"}));

    // A destroyed presented hint gives way to the next one, without completion.
    delete doomed;
    QCOMPARE(recorder.take(), QStringList({"presented:last"}));
    // A destroyed queued hint leaves the queue.
    VynHintData* queued = recorder.watch(makeHint(&owner, "q", &view));
    manager.scheduleHint(queued);
    delete queued;
    QCOMPARE(idsOf(manager.queuedHints()), QStringList());
    manager.presentNextHint();
    QCOMPARE(recorder.take(), QStringList({"completion:last", "presented:-"}));
}

void tst_Hints::ownership()
{
    QObject view;
    QObject owner;
    QPointer<VynHintData> declared = makeHint(&owner, "declared", &view);
    QPointer<VynHintData> made;
    QPointer<VynHintData> replaced;
    QPointer<VynHintData> rejected;
    {
        VynHintManager manager;
        QVERIFY(manager.scheduleHint(QStringLiteral("made"), &view, QStringLiteral("t")));
        made = manager.presentedHint();
        QVERIFY(manager.scheduleHint(QStringLiteral("queued"), &view, QStringLiteral("t")));
        replaced = manager.queuedHints().first();
        QVERIFY(manager.scheduleHint(QStringLiteral("queued"), &view, QStringLiteral("other")));
        QVERIFY(!manager.scheduleHint(QStringLiteral("noview"), nullptr, QStringLiteral("t")));
        QVERIFY(manager.scheduleHint(declared));
        flushDeferredDeletes();
        // Owned hints let go are released later, never in place; owned ones still in use stay.
        QVERIFY(!replaced);
        QVERIFY(made);

        manager.presentNextHint();
        QVERIFY(made); // deleteLater, not delete
        flushDeferredDeletes();
        QVERIFY(!made);
        manager.invalidateHint(QStringLiteral("queued"));
        manager.invalidateHint(declared.data());
        flushDeferredDeletes();
        QVERIFY(declared);
        QCOMPARE(declared->parent(), &owner);

        rejected = new VynHintData(&manager);
        QVERIFY(!manager.scheduleHint(rejected.data()));
        flushDeferredDeletes();
        QVERIFY(!rejected);

        // The manager's end deletes no hint but its own.
        QVERIFY(manager.scheduleHint(declared));
    }
    QVERIFY(declared);
    VynHintManager other;
    QVERIFY(other.scheduleHint(declared));
    delete declared.data();
    QCOMPARE(other.presentedHint(), nullptr);
}

void tst_Hints::hiddenHints()
{
    VynHintManager manager;
    QObject owner;
    QObject view;
    QVERIFY(!VynHintManager::hasHiddenHints());
    VynHintData* withAction = makeHint(&owner, "x", &view);
    withAction->setHasDontShowAgainAction(true);
    QVERIFY(manager.shouldShowHint(withAction));
    QVERIFY(!manager.shouldShowHint(static_cast<VynHintData*>(nullptr)));
    QVERIFY(manager.scheduleHint(withAction));
    QVERIFY(withAction->executeAction(0));
    QVERIFY(VynHintManager::hasHiddenHints());
    QVERIFY(!manager.shouldShowHint(withAction));
    manager.presentNextHint();

    Recorder recorder(&manager);
    VynHintData* again = recorder.watch(makeHint(&owner, "x", &view));
    again->setHasDontShowAgainAction(true);
    QVERIFY(!manager.scheduleHint(again));
    QCOMPARE(recorder.take(), QStringList({"completion:x"}));
    // Without the action the same identifier is still shown.
    QVERIFY(manager.scheduleHint(recorder.watch(makeHint(&owner, "x", &view))));
    manager.presentNextHint();
    recorder.take();

    VynHintManager::resetHiddenHints();
    QVERIFY(!VynHintManager::hasHiddenHints());
    QVERIFY(manager.scheduleHint(again));
    QCOMPARE(recorder.take(), QStringList({"presented:x"}));
}

// The child process: "hide <id>" hides an identifier and exits; "ask <id>" prints
// "shown" or "hidden". Both use the settings file named on the command line.
static int runChild(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 5)
        return 2;
    QApplicationSettings::sharedSettings()->setFileName(QString::fromLocal8Bit(argv[2]));
    const QString command = QString::fromLocal8Bit(argv[3]);
    const QString id = QString::fromLocal8Bit(argv[4]);
    if (command == "hide") {
        VynHintManager::dontShowAgainHint(id);
        // The choice is on disk before anything else happens: end without any clean-up.
        std::_Exit(0);
    }
    if (command == "reset") {
        VynHintManager::resetHiddenHints();
        std::_Exit(0);
    }
    printf("%s\n", VynHintManager::shouldShowHint(id) ? "shown" : "hidden");
    fflush(stdout);
    return 0;
}

void tst_Hints::hiddenHintsSurviveRestart()
{
    const QString file = m_dir.filePath(QStringLiteral("restart/app.settings"));
    const auto run = [&file](const QString& command, const QString& id) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--child"), file, command, id});
        if (!process.waitForFinished(60000))
            return QStringLiteral("did not finish");
        if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
            return QStringLiteral("failed");
        return QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
    };
    QCOMPARE(run("ask", "tour.1"), QStringLiteral("shown"));
    QCOMPARE(run("hide", "tour.1"), QString());
    QCOMPARE(run("ask", "tour.1"), QStringLiteral("hidden"));
    QCOMPARE(run("ask", "tour.2"), QStringLiteral("shown"));
    QCOMPARE(run("reset", "-"), QString());
    QCOMPARE(run("ask", "tour.1"), QStringLiteral("shown"));
}

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--child") == 0)
        return runChild(argc, argv);
    QCoreApplication app(argc, argv);
    tst_Hints test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_hints.moc"
