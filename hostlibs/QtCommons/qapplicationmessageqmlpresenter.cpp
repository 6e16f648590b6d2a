#include "qapplicationmessageqmlpresenter.h"

#include "qapplicationmessage.h"

#include <QCoreApplication>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

// The message in the VynUI look: a modal panel in the popover colours of the dark style
// holding a VynApplicationMessageItem. Enter answers the first action (the default one),
// Escape the second one of a two-button message (cancel) or NoResponse.
const char kVynDialogDocument[] = R"QML(
import QtQuick
import QtQuick.Controls
import VynUI 1.2

Popup {
    id: dialog
    required property var message
    property bool answered: false
    readonly property string title: dialog.message ? dialog.message.title : ""
    objectName: "qApplicationMessageDialog"
    modal: true
    focus: true
    closePolicy: Popup.CloseOnEscape
    anchors.centerIn: parent
    padding: VynUIQmlConstants.marginPopover(VynViewUtils.VynControlSizeRegular, 1.0) * 2
    width: Math.min(Math.max(360, implicitContentWidth + leftPadding + rightPadding),
                    parent ? parent.width - 24 : 480)
    onClosed: if (!dialog.answered) dialog.message.respond(-1)

    function popupButtonClickedCallback(p_index, p_button) {
        if (dialog.answered)
            return
        if (p_index >= 0)
            dialog.answered = true
        dialog.close()
        if (p_index >= 0)
            dialog.message.respond(p_index)
    }

    Overlay.modal: Rectangle {
        color: Qt.rgba(0, 0, 0, 0.35)
    }

    background: Rectangle {
        color: VynUIQmlConstants.noAlphaColorOverColor(
                   VynUIQmlConstants.popoverBackgroundColorForStyle(VynColorUtils.VynStyleDark),
                   VynUIQmlConstants.windowBackgroundColorForStyle(VynColorUtils.VynStyleDark))
        border.color: VynUIQmlConstants.popoverBorderColorForStyle(VynColorUtils.VynStyleDark)
        border.width: VynUIQmlConstants.popoverBorderWidth(1.0)
        radius: VynUIQmlConstants.popoverCornerRadius(1.0)
    }

    contentItem: VynApplicationMessageItem {
        focus: true
        vynStyle: VynColorUtils.VynStyleDark
        parentObject: dialog
        buttonObjectNamePrefix: "qApplicationMessageButton"
        level: dialog.message ? dialog.message.level : 0
        type: dialog.message ? dialog.message.type : 0
        title: dialog.title
        message: dialog.message ? dialog.message.string : ""
        componentModel: dialog.message ? dialog.message.actions : []
        hasCheckbox: dialog.message ? dialog.message.hasCheckbox : false
        checkboxText: dialog.message ? dialog.message.checkboxText : ""
        isChecked: dialog.message ? dialog.message.isChecked : false
        cancelButtonIndex: dialog.message && dialog.message.actionCount === 2 ? 1 : -1
        onIsCheckedChanged: if (dialog.message) dialog.message.isChecked = isChecked
    }
}
)QML";

// The plain Qt Quick Controls dialog, for an application without the VynUI module.
const char kDialogDocument[] = R"QML(
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Dialog {
    id: dialog
    required property var message
    property bool answered: false
    objectName: "qApplicationMessageDialog"
    modal: true
    closePolicy: Popup.CloseOnEscape
    anchors.centerIn: parent
    width: Math.min(420, parent ? parent.width - 24 : 420)
    title: dialog.message ? dialog.message.title : ""
    onClosed: if (!dialog.answered) dialog.message.respond(-1)

    contentItem: ColumnLayout {
        spacing: 12
        Label {
            Layout.fillWidth: true
            text: dialog.message ? dialog.message.string : ""
            wrapMode: Text.WordWrap
            visible: text.length > 0
        }
        CheckBox {
            visible: dialog.message ? dialog.message.hasCheckbox : false
            text: dialog.message ? dialog.message.checkboxText : ""
            checked: dialog.message ? dialog.message.isChecked : false
            onToggled: dialog.message.isChecked = checked
        }
    }

    footer: Pane {
        RowLayout {
            anchors.right: parent.right
            spacing: 8
            Repeater {
                model: dialog.message ? dialog.message.actions : []
                Button {
                    required property var modelData
                    required property int index
                    objectName: "qApplicationMessageButton" + index
                    text: modelData.text
                    highlighted: index === 0
                    onClicked: {
                        dialog.answered = true
                        dialog.close()
                        dialog.message.respond(index)
                    }
                }
            }
        }
    }
}
)QML";

QQmlEngine* engineOfScene(QQuickWindow* window)
{
    if (QQmlEngine* engine = qmlEngine(window))
        return engine;
    const QList<QQuickItem*> items = window->contentItem()->childItems();
    for (QQuickItem* item : items) {
        if (QQmlEngine* engine = qmlEngine(item))
            return engine;
    }
    return nullptr;
}

} // namespace

QApplicationMessageQmlPresenter::QApplicationMessageQmlPresenter() = default;

QApplicationMessageQmlPresenter::~QApplicationMessageQmlPresenter() = default;

QQmlEngine* QApplicationMessageQmlPresenter::engineFor(QQuickWindow* window)
{
    if (QQmlEngine* engine = engineOfScene(window))
        return engine;
    if (!m_ownEngine)
        m_ownEngine = new QQmlEngine(QCoreApplication::instance());
    return m_ownEngine;
}

void QApplicationMessageQmlPresenter::present(QApplicationMessage* p_message)
{
    if (!p_message || p_message->isFinished())
        return;
    const QPointer<QApplicationMessage> message(p_message);

    auto* window = qobject_cast<QQuickWindow*>(message->window());
    QQuickWindow* ownWindow = nullptr;
    if (!window) {
        ownWindow = new QQuickWindow();
        ownWindow->setTitle(message->title());
        ownWindow->resize(440, 220);
        ownWindow->setModality(Qt::ApplicationModal);
        QObject::connect(message, &QApplicationMessage::finished, ownWindow, &QObject::deleteLater);
        window = ownWindow;
    }

    QQmlEngine* engine = engineFor(window);
    const QVariantMap initial{
        {QStringLiteral("message"), QVariant::fromValue<QObject*>(message.data())}};
    // The VynUI look when the module can be imported, else the plain dialog.
    QQmlComponent vynComponent(engine);
    vynComponent.setData(QByteArray(kVynDialogDocument),
                         QUrl(QStringLiteral("qapplicationmessagevyndialog.qml")));
    QObject* dialog =
        vynComponent.isReady() ? vynComponent.createWithInitialProperties(initial) : nullptr;
    QQmlComponent component(engine);
    if (!dialog) {
        component.setData(QByteArray(kDialogDocument),
                          QUrl(QStringLiteral("qapplicationmessagedialog.qml")));
        dialog = component.createWithInitialProperties(initial);
    }
    if (!dialog) {
        qWarning("QApplicationMessageQmlPresenter: cannot create the message dialog: %s",
                 qPrintable(component.errorString()));
        delete ownWindow;
        message->respond(QApplicationMessage::NoResponse);
        return;
    }
    QQmlEngine::setObjectOwnership(dialog, QQmlEngine::CppOwnership);
    dialog->setParent(window->contentItem());
    dialog->setProperty("parent", QVariant::fromValue(window->contentItem()));
    QObject::connect(message, &QApplicationMessage::finished, dialog, &QObject::deleteLater);
    QObject::connect(window, &QObject::destroyed, message, [message] {
        if (message)
            message->respond(QApplicationMessage::NoResponse);
    });

    if (ownWindow)
        ownWindow->show();
    QMetaObject::invokeMethod(dialog, "open");
}
