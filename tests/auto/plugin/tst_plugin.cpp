#include <vyncolorutils.h>
#include <vynledparamconfig.h>
#include <vynuibuttoncomponent.h>
#include <vynuibuttonconfig.h>
#include <vynuihandybuttoncomponent.h>
#include <vynuikey.h>
#include <vynuiledcomponent.h>
#include <vynuilocalizable.h>
#include <vynuiplugin.h>
#include <vynviewutils.h>
#include <vynvumeterconstants.h>

#include <qtcommons.h>
#include <qtcommonsconstants.h>
#include <vyncommon.h>
#include <vynmultipartname.h>

#include <QPluginLoader>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtTest>

class TestPlugin : public QObject
{
    Q_OBJECT

private slots:
    void metadata();
    void slotsAndInstance();
    void registrationOrder();
    void shortTypeNames_data();
    void shortTypeNames();
    void localisationTable();
    void openingRegistersTable();
    void keys();
    void typesReachQml();
    void componentTypeNames_data();
    void componentTypeNames();
    void discreteModelsReachQml();
};

void TestPlugin::metadata()
{
    QPluginLoader loader(QStringLiteral(VYNUI_PLUGIN_FILE));
    const QJsonObject meta = loader.metaData();
    QCOMPARE(meta.value(QStringLiteral("IID")).toString(),
             QStringLiteral("org.qt-project.Qt.QQmlEngineExtensionInterface"));
    QCOMPARE(meta.value(QStringLiteral("className")).toString(), QStringLiteral("VynUIPlugin"));
    QCOMPARE(meta.value(QStringLiteral("uri")).toArray(), QJsonArray({QStringLiteral("VynUI")}));
}

void TestPlugin::slotsAndInstance()
{
    QPluginLoader loader(QStringLiteral(VYNUI_PLUGIN_FILE));
    QObject* instance = loader.instance();
    QVERIFY2(instance, qPrintable(loader.errorString()));
    // The loaded plugin is the class hosts call initializeTypes() on.
    auto* plugin = qobject_cast<VynUIPlugin*>(instance);
    QVERIFY(plugin);
    QVERIFY(qobject_cast<QQmlEngineExtensionPlugin*>(instance));
    QCOMPARE(loader.instance(), instance);

    const QMetaObject* meta = &VynUIPlugin::staticMetaObject;
    QCOMPARE(meta->methodCount() - meta->methodOffset(), 2);
    QCOMPARE(meta->method(meta->methodOffset()).methodSignature(), QByteArray("onOpeningModule()"));
    QCOMPARE(meta->method(meta->methodOffset() + 1).methodSignature(),
             QByteArray("onLeavingModule()"));
    QVERIFY(QMetaObject::invokeMethod(plugin, "onOpeningModule"));
    QVERIFY(QMetaObject::invokeMethod(plugin, "onLeavingModule"));
}

// The meta-types get their ids in the order initializeTypes() registers them, when nothing
// used them before: the value and enum types that wait for the component types come last, in
// a fixed order.
void TestPlugin::registrationOrder()
{
    VynUIPlugin::initializeTypes();
    using namespace VynViewUtils;
    const QList<QMetaType> order = {
        QMetaType::fromType<VynColorUtils::VynStyle>(),
        QMetaType::fromType<VynColorUtils::VynStylePreference>(),
        QMetaType::fromType<VynLiveButtonMode>(),
        QMetaType::fromType<VynControlSize>(),
        QMetaType::fromType<VynSelectorCellMode>(),
        QMetaType::fromType<VynLedState>(),
        QMetaType::fromType<VynLedShape>(),
        QMetaType::fromType<VynVerticalAlignment>(),
        QMetaType::fromType<VynAlignmentType>(),
        QMetaType::fromType<VynSide>(),
        QMetaType::fromType<VynCorner>(),
        QMetaType::fromType<VynSideBounds>(),
        QMetaType::fromType<VynGraphLabel>(),
        QMetaType::fromType<VynComboValue>(),
        QMetaType::fromType<VynParamSelectValue>(),
        QMetaType::fromType<VynTextFieldValue>(),
        QMetaType::fromType<VynResizeAnchor>(),
        QMetaType::fromType<VynModalResponse>(),
        QMetaType::fromType<VynResizeSettings>(),
        QMetaType::fromType<VynLedParamConfig>(),
        QMetaType::fromType<VynVUMeterConstants::VynVUMetreTickMarkConfig>(),
        QMetaType::fromType<VynUIHandyButtonComponent::ButtonType>(),
        QMetaType::fromType<VynUIHandyButtonComponent::ButtonTypes>(),
        QMetaType::fromType<VynUIButtonConfig>(),
    };
    for (qsizetype i = 1; i < order.size(); ++i) {
        QVERIFY2(order.at(i - 1).id() < order.at(i).id(), order.at(i).name());
    }
}

void TestPlugin::shortTypeNames_data()
{
    QTest::addColumn<QByteArray>("shortName");
    QTest::addColumn<QMetaType>("type");
    QTest::newRow("VynStyle") << QByteArray("VynStyle")
                              << QMetaType::fromType<VynColorUtils::VynStyle>();
    QTest::newRow("VynStylePreference") << QByteArray("VynStylePreference")
                                        << QMetaType::fromType<VynColorUtils::VynStylePreference>();
    QTest::newRow("VynLiveButtonMode") << QByteArray("VynLiveButtonMode")
                                       << QMetaType::fromType<VynViewUtils::VynLiveButtonMode>();
    QTest::newRow("VynControlSize")
        << QByteArray("VynControlSize") << QMetaType::fromType<VynViewUtils::VynControlSize>();
    QTest::newRow("VynSide") << QByteArray("VynSide")
                             << QMetaType::fromType<VynViewUtils::VynSide>();
    QTest::newRow("VynResizeAnchor")
        << QByteArray("VynResizeAnchor") << QMetaType::fromType<VynViewUtils::VynResizeAnchor>();
    QTest::newRow("VynSideBounds")
        << QByteArray("VynSideBounds") << QMetaType::fromType<VynViewUtils::VynSideBounds>();
    QTest::newRow("VynResizeSettings") << QByteArray("VynResizeSettings")
                                       << QMetaType::fromType<VynViewUtils::VynResizeSettings>();
    QTest::newRow("VynTextFieldValue") << QByteArray("VynTextFieldValue")
                                       << QMetaType::fromType<VynViewUtils::VynTextFieldValue>();
}

void TestPlugin::shortTypeNames()
{
    QFETCH(QByteArray, shortName);
    QFETCH(QMetaType, type);
    VynUIPlugin::initializeTypes();
    VynUIPlugin::initializeTypes(); // a second call is harmless
    QCOMPARE(QMetaType::fromName(shortName), type);
    QCOMPARE(QMetaType::fromName(type.name()), type);
    QVERIFY(QByteArray(type.name()).endsWith("::" + shortName));
}

void TestPlugin::localisationTable()
{
    const auto& entries = VynUILocalizable::entries();
    QCOMPARE(entries.size(), 48);
    QCOMPARE(VynUILocalizable::k_VynUILocalizableHash.size(), 48);
    QCOMPARE(entries.first(),
             qMakePair(QStringLiteral("CTXT"), QStringLiteral("VynUILocalizable")));
    QCOMPARE(entries.last().first, QStringLiteral("PRESS_FOR_DETAIL"));
    QCOMPARE(VynUILocalizable::context(), QStringLiteral("VynUILocalizable"));

    // Every "..._BUTTON" text that ends in an ellipsis uses the single character U+2026.
    const QChar ellipsis(0x2026);
    int ellipses = 0;
    for (const auto& entry : entries) {
        QVERIFY2(!entry.second.contains(QStringLiteral("...")), qPrintable(entry.first));
        if (entry.second.endsWith(ellipsis)) {
            QVERIFY(entry.first.endsWith(QStringLiteral("_BUTTON")));
            ++ellipses;
        }
    }
    QCOMPARE(ellipses, 7);
    QCOMPARE(VynUILocalizable::k_VynUILocalizableHash.value(QStringLiteral("ADD_BUTTON")),
             QStringLiteral("Add") + ellipsis);
    QCOMPARE(VynUILocalizable::k_VynUILocalizableHash.value(
                 QStringLiteral("DISTANTVERSION_NOTIF_MESSAGE_ALPHA")),
             QStringLiteral(" (alpha)"));
}

void TestPlugin::openingRegistersTable()
{
    using QtCommonsConstants::qLocalizedString;
    const QString table = QStringLiteral("VynUILocalizable");
    VynUIPlugin plugin;
    const int openBefore = VynCommon::openModuleCount();
    plugin.onOpeningModule();
    plugin.onOpeningModule(); // the same table registered twice is tolerated
    QCOMPARE(VynCommon::openModuleCount(), openBefore + 2);
    QVERIFY(QtCommons::hasQLocalTable(table));
    QCOMPARE(qLocalizedString(QStringLiteral("STATUS_MULT"), table), QStringLiteral("Mult."));
    QCOMPARE(qLocalizedString(QStringLiteral("NONE_FEM"), table), QStringLiteral("None"));
    QCOMPARE(qLocalizedString(QStringLiteral("NO_SUCH_KEY"), table), QStringLiteral("NO_SUCH_KEY"));

    plugin.onLeavingModule();
    plugin.onLeavingModule();
    QCOMPARE(VynCommon::openModuleCount(), openBefore);
    // Leaving keeps the table.
    QCOMPARE(qLocalizedString(QStringLiteral("DELETE_ALL"), table), QStringLiteral("Delete All"));
}

void TestPlugin::keys()
{
    QCOMPARE(VynUIKey::Settings::VynUIGroup, QStringLiteral("VynUI"));
    QCOMPARE(VynUIKey::Settings::HiddenHints, QStringLiteral("hiddenHints"));
    QCOMPARE(VynUIKey::Settings::HiddenHint, QStringLiteral("hiddenHint"));
    QCOMPARE(VynUIKey::Frame::X, QStringLiteral("x"));
    QCOMPARE(VynUIKey::Frame::Y, QStringLiteral("y"));
    QCOMPARE(VynUIKey::Frame::Width, QStringLiteral("width"));
    QCOMPARE(VynUIKey::Frame::Height, QStringLiteral("height"));
}

void TestPlugin::typesReachQml()
{
    // A fresh engine that only knows the import path loads the plugin from disk.
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport VynUI 1.2\n"
                      "KORU_UI { property int side: VynViewUtils.VynSideBottom\n"
                      "          property int style: VynColorUtils.VynStyleLight }",
                      QUrl());
    QScopedPointer<QObject> item(component.create());
    QVERIFY2(item, qPrintable(component.errorString()));
    QCOMPARE(item->property("testString").toString(), QStringLiteral("This is a very big test!"));
    QCOMPARE(item->property("side").toInt(), 8);
    QCOMPARE(item->property("style").toInt(), 0);
}

void TestPlugin::componentTypeNames_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QMetaType>("type");
    QTest::newRow("ButtonType") << QByteArray("ButtonType")
                                << QMetaType::fromType<VynUIHandyButtonComponent::ButtonType>();
    QTest::newRow("ButtonTypes") << QByteArray("ButtonTypes")
                                 << QMetaType::fromType<VynUIHandyButtonComponent::ButtonTypes>();
    QTest::newRow("VynUIButtonConfig")
        << QByteArray("VynUIButtonConfig") << QMetaType::fromType<VynUIButtonConfig>();
    QTest::newRow("VynLedParamConfig")
        << QByteArray("VynLedParamConfig") << QMetaType::fromType<VynLedParamConfig>();
    QTest::newRow("VynMultiPartName")
        << QByteArray("VynMultiPartName") << QMetaType::fromType<VynMultiPartName>();
}

void TestPlugin::componentTypeNames()
{
    QFETCH(QByteArray, name);
    QFETCH(QMetaType, type);
    VynUIPlugin::initializeTypes();
    QCOMPARE(QMetaType::fromName(name), type);
    // A flag set travels through a QVariant as its own type.
    const QVariant flags = QVariant::fromValue(VynUIHandyButtonComponent::ButtonTypes(
        VynUIHandyButtonComponent::Mute | VynUIHandyButtonComponent::Locate));
    QCOMPARE(flags.toInt(), 10);
}

// The discrete models, their records and enums, as the module's documents use them.
void TestPlugin::discreteModelsReachQml()
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(VYNUI_QML_IMPORT_PATH));
    QQmlComponent component(&engine);
    component.setData(R"(
import QtQuick
import VynUI 1.2
QtObject {
    property VynUIButtonComponent button: VynUIButtonComponent {
        text: "Mute"; isOn: QtCommonsConstants.VynBOOLMixed }
    property VynUILedComponent led: VynUILedComponent { allowsMixed: true }
    property VynUIHandyButtonComponent handy: VynUIHandyButtonComponent {
        visibleButtonType: VynUIHandyButtonComponent.Locate }
    property VynUILabelComponent label: VynUILabelComponent { textColor: "red" }
    property VynUICabLabelComponent cab: VynUICabLabelComponent { usesShortStyle: true }
    property VynUIComboComponent combo: VynUIComboComponent {
        itemTexts: ["Off", "On"]; selectedIndexes: [1] }
    property bool multiple: button.multiple
    property string buttonText: button.toStringValue()
    property int action: button.buttonConfig.action
    property string comboText: combo.text
    property string cabText: cab.multiPartName.tooltipText
    property int priority: -1
    Component.onCompleted: {
        const config = VynUIQmlConstants.createParamConfig(VynViewUtils.VynLedStateRed,
            button.paramPath, button.paramPath, 2, 0, 1, false)
        priority = config.priority
        config.isDefault = true
        led.addParamConfig(config)
        handy.insertVisibleComponent(button)
    }
}
)",
                      QUrl());
    QScopedPointer<QObject> root(component.create());
    QVERIFY2(root, qPrintable(component.errorString()));
    QCOMPARE(root->property("multiple").toBool(), true);
    QCOMPARE(root->property("buttonText").toString(), QStringLiteral("Mult. Mute"));
    QCOMPARE(root->property("action").toInt(), 0);
    QCOMPARE(root->property("comboText").toString(), QStringLiteral("On"));
    QCOMPARE(root->property("cabText").toString(), QString());
    QCOMPARE(root->property("priority").toInt(), 2);

    auto* led = root->property("led").value<VynUILedComponent*>();
    QVERIFY(led);
    QCOMPARE(led->getParamConfigs().size(), 1);
    QCOMPARE(led->getDefaultParamConfig().state, VynViewUtils::VynLedStateRed);
    auto* handy = root->property("handy").value<VynUIHandyButtonComponent*>();
    QVERIFY(handy);
    QCOMPARE(handy->getVisibleButtonComponent(0),
             root->property("button").value<VynUIButtonComponent*>());
    QCOMPARE(root->property("label").value<QObject*>()->property("textColor").value<QColor>(),
             QColor(Qt::red));
}

QTEST_MAIN(TestPlugin)
#include "tst_plugin.moc"
