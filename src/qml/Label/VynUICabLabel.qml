import QtQuick
import VynUI 1.2

import "../Private/DiscreteActions.js" as DiscreteActions

// A cabinet label bound to a VynUICabLabelComponent: the cabinet's model in the primary label
// colour and its preset in the secondary one, "× n" for several identical cabinets, a bridge
// badge for a bridged pair (when the component shows bridges) and the channels that drive it.
// The short style shows the model alone; a name that stands for several different cabinets
// reads the "MULTIPLE" text. The name's tooltip text is the accessible name. A long press
// emits the component's longPressed().
//
//     VynUICabLabel { uiCabLabelComponent: host.cabinetComponent(channel) }
VynItem {
    id: root

    property VynUICabLabelComponent uiCabLabelComponent: null
    readonly property VynUICabLabelComponent uiComponent: uiCabLabelComponent

    readonly property var _name: uiComponent ? uiComponent.multiPartName : null
    readonly property bool _mixed: _name ? _name.mixed : false
    readonly property bool _short: uiComponent ? uiComponent.usesShortStyle : false
    readonly property bool _bridge: _name !== null && _name.bridged && uiComponent.showsBridge
    readonly property string _channels: !_name || _name.firstChannel < 0 ? ""
                                        : _name.channelCount > 1
                                          ? "CH " + _name.firstChannel + "\u2013" + (_name.firstChannel + _name.channelCount - 1)
                                          : "CH " + _name.firstChannel

    implicitHeight: Math.max(_row.implicitHeight, vynMetrics.inlineButtonHeight)
    implicitWidth: _row.implicitWidth
    enabled: uiComponent ? uiComponent.enabled : false
    opacity: enabled ? 1 : vynMetrics.disabledAlpha
    clip: true

    Accessible.role: Accessible.StaticText
    Accessible.name: uiComponent ? uiComponent.toStringValue() : ""

    Row {
        id: _row
        anchors.verticalCenter: parent.verticalCenter
        spacing: root.vynMetrics.textFieldLabelTextSpacing
        Text {
            text: !root._name ? "" : root._mixed ? VynUIQmlConstants.localizedString("MULTIPLE") : root._name.model
            font.family: VynFonts.vynFamilySemiBold
            font.weight: VynFonts.vynWeightSemiBold
            font.italic: root._mixed
            font.pixelSize: root.vynMetrics.fontSize
            color: root.vynMetrics.labelColor
        }
        Text {
            visible: !root._short && !root._mixed && text.length > 0
            text: root._name ? root._name.preset : ""
            font.family: VynFonts.vynFamilyRegular
            font.pixelSize: root.vynMetrics.fontSize
            color: root.vynMetrics.labelColorSecondary
        }
        Text {
            visible: !root._mixed && root._name !== null && root._name.count > 1
            text: root._name ? "\u00D7 " + root._name.count : ""
            font.family: VynFonts.vynFamilyMedium
            font.pixelSize: root.vynMetrics.fontSize
            color: root.vynMetrics.labelColorSecondary
        }
        Rectangle {
            visible: root._bridge && !root._short
            anchors.verticalCenter: parent.verticalCenter
            width: _bridgeText.implicitWidth + 2 * root.vynMetrics.textFieldUnitButtonTitleInsetsH
            height: root.vynMetrics.inlineButtonHeight
            radius: height / 2
            color: root.vynMetrics.inlineButtonColor(0)
            Text {
                id: _bridgeText
                anchors.centerIn: parent
                text: qsTr("BRIDGE")
                font.family: VynFonts.vynFamilySemiBold
                font.weight: VynFonts.vynWeightSemiBold
                font.pixelSize: root.vynMetrics.fontSizeInlineButton
                color: root.vynMetrics.controlTextColorOn
            }
        }
        // The channels of one cabinet; a name that stands for several shows none.
        Text {
            objectName: "channels"
            visible: !root._short && !root._mixed && text.length > 0
            text: root._channels
            font.family: VynFonts.vynFamilyRegular
            font.pixelSize: root.vynMetrics.fontSizeInlineButton
            color: root.vynMetrics.labelColorTertiary
        }
    }
    MouseArea {
        anchors.fill: parent
        onPressAndHold: DiscreteActions.longPress(root.uiComponent)
    }
}
