pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// The module's buttons, LEDs, labels and combos on a simulated amplifier's switches: per
// channel a cabinet label, a status LED worked out from the clip, limit and protect
// parameters (protect first, then clip, then limit; green when all are clear), mute and solo,
// stand-by and the input source, and a row for all channels whose input source and cabinet
// are mixed while the channels differ. Every click and choice goes to the device and shows
// only once the device echoes it. Below, the generic controls in each of their states; their
// changes go through the same echo.
Flickable {
    id: page

    readonly property int vynStyle: GalleryTheme.vynStyle
    readonly property real gap: VynUIQmlConstants.marginWindow()
    readonly property real pad: VynUIQmlConstants.marginPopover()
    readonly property real cellGap: VynUIQmlConstants.marginParent()
    // The cards stack in one column, each at least this wide.
    readonly property real channelCardWidth: 560
    readonly property real controlsCardWidth: 470
    readonly property bool twoColumns: false

    contentWidth: Math.max(width, (twoColumns ? channelCardWidth + gap + controlsCardWidth
                                              : Math.max(channelCardWidth, controlsCardWidth)) + 2 * gap)
    contentHeight: content.implicitHeight + 2 * gap
    clip: true
    ScrollBar.vertical: ScrollBar {}
    ScrollBar.horizontal: ScrollBar {}

    VynSimulatedSwitchboard {
        id: board
        running: peaksSwitch.checkState === 1
    }

    Component.onCompleted: board.attachToWindowOf(page)

    // Sends a generic control's toggle to the device; the control changes with the echo.
    function echoToggle(p_button) {
        const next = p_button.checkState === 1 ? 0 : 1
        board.echo(function () {
            p_button.checkState = next
        })
    }

    // Widths of the channel table's fixed columns; the cabinet column takes the rest.
    readonly property real channelColumn: 28
    readonly property real statusColumn: 48
    readonly property real muteColumn: 76
    readonly property real standByColumn: 64
    readonly property real inputColumn: 128

    // One channel of the table: cabinet, status LED, mute and solo, stand-by, input source.
    component ChannelRow: RowLayout {
        id: channelRow
        required property int channel
        spacing: page.cellGap
        VynLabel {
            Layout.preferredWidth: page.channelColumn
            vynStyle: page.vynStyle
            text: String(channelRow.channel)
            font.bold: true
        }
        VynUICabLabel {
            Layout.fillWidth: true
            vynStyle: page.vynStyle
            uiCabLabelComponent: board.cabinet(channelRow.channel)
        }
        Item {
            Layout.preferredWidth: page.statusColumn
            implicitHeight: statusLed.implicitHeight
            VynUILed {
                id: statusLed
                anchors.centerIn: parent
                vynStyle: page.vynStyle
                vynControlSize: VynViewUtils.VynControlSizeLarge
                uiLedComponent: board.statusLed(channelRow.channel)
            }
        }
        Item {
            Layout.preferredWidth: page.muteColumn
            implicitHeight: muteSolo.implicitHeight
            VynUIHandyButton {
                id: muteSolo
                anchors.verticalCenter: parent.verticalCenter
                vynStyle: page.vynStyle
                vynControlSize: VynViewUtils.VynControlSizeLarge
                uiHandyButtonComponent: board.muteSolo(channelRow.channel)
            }
        }
        Item {
            Layout.preferredWidth: page.standByColumn
            implicitHeight: standBy.implicitHeight
            VynUIHandyButton {
                id: standBy
                anchors.verticalCenter: parent.verticalCenter
                vynStyle: page.vynStyle
                vynControlSize: VynViewUtils.VynControlSizeLarge
                uiHandyButtonComponent: board.standBy(channelRow.channel)
            }
        }
        VynUIComboBox {
            Layout.preferredWidth: page.inputColumn
            vynStyle: page.vynStyle
            uiComboComponent: board.inputSource(channelRow.channel)
        }
    }

    // A titled panel.
    component Card: Rectangle {
        id: card
        property string title
        property string detail
        default property alias body: cardBody.data
        radius: VynUIQmlConstants.borderViewCornerRadius()
        color: VynUIQmlConstants.viewBackgroundColorForStyle(page.vynStyle, 1)
        border.width: VynUIQmlConstants.borderViewBorderSize()
        border.color: VynUIQmlConstants.tableViewBorderColorForStyle(page.vynStyle)
        implicitHeight: cardColumn.implicitHeight + 2 * page.pad
        implicitWidth: cardColumn.implicitWidth + 2 * page.pad

        ColumnLayout {
            id: cardColumn
            x: page.pad
            y: page.pad
            width: card.width - 2 * x
            spacing: page.cellGap
            RowLayout {
                Layout.fillWidth: true
                VynLabel {
                    text: card.title
                    font.pixelSize: VynUIQmlConstants.fontSizeCellTitle()
                    font.bold: true
                    font.capitalization: Font.AllUppercase
                    font.letterSpacing: 1
                    color: VynUIQmlConstants.labelColorForStyle(page.vynStyle, 1)
                }
                Item {
                    Layout.fillWidth: true
                }
                VynLabel {
                    text: card.detail
                    font.pixelSize: VynUIQmlConstants.fontSizeCellDetail()
                    color: VynUIQmlConstants.labelColorForStyle(page.vynStyle, 2)
                }
            }
            Rectangle {
                Layout.fillWidth: true
                implicitHeight: VynUIQmlConstants.lineViewWidth()
                color: VynUIQmlConstants.lineViewColorForStyle(page.vynStyle)
            }
            Item {
                id: cardBody
                Layout.fillWidth: true
                implicitHeight: childrenRect.height
                implicitWidth: childrenRect.width
            }
        }
    }

    // A column heading of the channel table.
    component Heading: VynLabel {
        vynStyle: page.vynStyle
        level: 2
        font.pixelSize: VynUIQmlConstants.fontSizeCellDetail()
        font.capitalization: Font.AllUppercase
        font.letterSpacing: 0.5
    }

    // The row title of a line of generic controls.
    component RowTitle: VynLabel {
        vynStyle: page.vynStyle
        level: 1
        Layout.preferredWidth: 92
        font.pixelSize: VynUIQmlConstants.fontSize()
    }

    // Generic buttons whose clicks go through the device echo.
    component EchoBezel: VynBezelButton {
        vynStyle: page.vynStyle
        onClicked: page.echoToggle(this)
    }
    component EchoFlat: VynFlatButton {
        vynStyle: page.vynStyle
        onClicked: page.echoToggle(this)
    }
    component EchoInline: VynInlineButton {
        vynStyle: page.vynStyle
        onClicked: page.echoToggle(this)
    }
    component EchoTemplate: VynTemplateButton {
        vynStyle: page.vynStyle
        onClicked: page.echoToggle(this)
    }
    component EchoCheck: VynCheckBox {
        vynStyle: page.vynStyle
        onClicked: page.echoToggle(this)
    }
    component EchoSwitch: VynSwitch {
        vynStyle: page.vynStyle
        onClicked: page.echoToggle(this)
    }

    ColumnLayout {
        id: content
        x: page.gap
        y: page.gap
        width: page.contentWidth - 2 * page.gap
        spacing: page.gap

        ColumnLayout {
            spacing: VynUIQmlConstants.marginSpace()
            VynLabel {
                text: qsTr("Buttons & LEDs")
                font.pixelSize: VynUIQmlConstants.fontSizeTitleSecondary()
                font.bold: true
                color: VynUIQmlConstants.labelColorForStyle(page.vynStyle, 0)
            }
            VynLabel {
                Layout.fillWidth: true
                Layout.preferredWidth: content.width
                Layout.maximumWidth: content.width
                wrapMode: Text.WordWrap
                font.pixelSize: VynUIQmlConstants.fontSize()
                color: VynUIQmlConstants.labelColorForStyle(page.vynStyle, 1)
                text: qsTr("Mute, solo, stand-by and input source of Amp[1], sent to the amplifier and shown when it answers (%1 ms). The status LED lights for protect, clip and limit in that order of priority. Channel 4's stand-by asks first. Tab moves between controls; Space or Enter presses, arrows choose.")
                      .arg(board.latency)
            }
        }

        GridLayout {
            Layout.fillWidth: true
            columns: page.twoColumns ? 2 : 1
            columnSpacing: page.gap
            rowSpacing: page.gap

            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.minimumWidth: page.channelCardWidth
                spacing: page.gap

                Card {
                    Layout.fillWidth: true
                    title: qsTr("Channels")
                    detail: qsTr("Amp[1] \u00B7 4 channels")

                    Column {
                        width: parent.width
                        spacing: page.cellGap

                        RowLayout {
                            width: parent.width
                            spacing: page.cellGap
                            Heading { text: qsTr("Ch"); Layout.preferredWidth: page.channelColumn }
                            Heading { text: qsTr("Cabinet"); Layout.fillWidth: true }
                            Heading { text: qsTr("Status"); Layout.preferredWidth: page.statusColumn }
                            Heading { text: qsTr("Mute / Solo"); Layout.preferredWidth: page.muteColumn }
                            Heading { text: qsTr("Stand-by"); Layout.preferredWidth: page.standByColumn }
                            Heading { text: qsTr("Input"); Layout.preferredWidth: page.inputColumn }
                        }
                        Repeater {
                            model: board.channelCount
                            delegate: ChannelRow {
                                required property int index
                                width: parent.width
                                channel: index + 1
                            }
                        }
                        Rectangle {
                            width: parent.width
                            height: VynUIQmlConstants.lineViewWidth()
                            color: VynUIQmlConstants.lineViewColorForStyle(page.vynStyle)
                        }
                        RowLayout {
                            width: parent.width
                            spacing: page.cellGap
                            VynLabel {
                                Layout.preferredWidth: page.channelColumn
                                vynStyle: page.vynStyle
                                text: qsTr("All")
                                font.bold: true
                            }
                            VynUICabLabel {
                                Layout.fillWidth: true
                                vynStyle: page.vynStyle
                                uiCabLabelComponent: board.allCabinets()
                            }
                            Item {
                                Layout.preferredWidth: page.statusColumn + page.muteColumn + page.standByColumn + 2 * page.cellGap
                                implicitHeight: 1
                            }
                            VynUIPopoverCombo {
                                Layout.preferredWidth: page.inputColumn
                                vynStyle: page.vynStyle
                                uiComboComponent: board.allInputs()
                            }
                        }
                    }
                }

                Card {
                    Layout.fillWidth: true
                    title: qsTr("Amplifier status")
                    detail: qsTr("protect \u203A clip \u203A limit")

                    ColumnLayout {
                        width: parent.width
                        spacing: page.cellGap

                        RowLayout {
                            spacing: page.cellGap
                            RowTitle { text: qsTr("Protect") }
                            Repeater {
                                model: board.channelCount
                                delegate: RowLayout {
                                    id: protectCell
                                    required property int index
                                    spacing: VynUIQmlConstants.marginSpace()
                                    VynSwitch {
                                        id: protectSwitch
                                        vynStyle: page.vynStyle
                                        vynControlSize: VynViewUtils.VynControlSizeSmall
                                        Accessible.name: qsTr("Protect channel %1").arg(protectCell.index + 1)
                                        onClicked: {
                                            const next = checkState === 1 ? 0 : 1
                                            board.echo(function () {
                                                protectSwitch.checkState = next
                                                board.setStatus(protectCell.index + 1, "Protect", next === 1)
                                            })
                                        }
                                    }
                                    VynLabel {
                                        vynStyle: page.vynStyle
                                        level: 2
                                        text: qsTr("%1").arg(protectCell.index + 1)
                                    }
                                }
                            }
                        }
                        RowLayout {
                            spacing: page.cellGap
                            RowTitle { text: qsTr("Signal peaks") }
                            VynSwitch {
                                id: peaksSwitch
                                vynStyle: page.vynStyle
                                vynControlSize: VynViewUtils.VynControlSizeSmall
                                checkState: 1
                                Accessible.name: qsTr("Signal peaks")
                                onClicked: page.echoToggle(this)
                            }
                            VynLabel {
                                vynStyle: page.vynStyle
                                level: 2
                                text: qsTr("random clip and limit events")
                            }
                        }
                    }
                }

                Card {
                    Layout.fillWidth: true
                    title: qsTr("Device traffic")
                    detail: qsTr("latency %1 ms").arg(board.latency)

                    Rectangle {
                        width: parent.width
                        implicitHeight: trafficColumn.implicitHeight + 2 * page.cellGap
                        height: implicitHeight
                        radius: VynUIQmlConstants.popupButtonCornerRadius()
                        color: VynUIQmlConstants.textViewBackgroundColorForStyle(page.vynStyle)
                        border.width: Math.max(1, VynUIQmlConstants.textFieldBorder())
                        border.color: VynUIQmlConstants.tableViewBorderColorForStyle(page.vynStyle)
                        Column {
                            id: trafficColumn
                            x: page.cellGap
                            y: page.cellGap
                            Repeater {
                                model: board.traffic
                                VynLabel {
                                    required property string modelData
                                    text: modelData
                                    font.family: "monospace"
                                    font.pixelSize: VynUIQmlConstants.fontSizeCellDetail()
                                    color: modelData.startsWith("\u2190")
                                           ? VynUIQmlConstants.labelColorForStyle(page.vynStyle, 1)
                                           : VynUIQmlConstants.textViewTextColorForStyle(page.vynStyle, 0)
                                }
                            }
                        }
                    }
                }
            }

            Card {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.minimumWidth: page.controlsCardWidth
                title: qsTr("Generic controls")
                detail: qsTr("off \u00B7 on \u00B7 mixed \u00B7 disabled")

                GridLayout {
                    width: parent.width
                    columns: 5
                    columnSpacing: page.cellGap
                    rowSpacing: page.cellGap

                    RowTitle { text: qsTr("Bezel") }
                    EchoBezel { text: qsTr("Off") }
                    EchoBezel { text: qsTr("On"); checkState: 1 }
                    EchoBezel { text: qsTr("Mixed"); checkState: 2 }
                    EchoBezel { text: qsTr("Locked"); enabled: false }

                    RowTitle { text: qsTr("Flat") }
                    EchoFlat { text: qsTr("Off") }
                    EchoFlat { text: qsTr("On"); checkState: 1 }
                    EchoFlat { text: qsTr("Mixed"); checkState: 2 }
                    EchoFlat { text: qsTr("Locked"); enabled: false }

                    RowTitle { text: qsTr("Template") }
                    EchoTemplate { text: qsTr("Flat") }
                    EchoTemplate { text: qsTr("Bright"); checkState: 1 }
                    EchoTemplate { text: qsTr("Mixed"); checkState: 2 }
                    EchoTemplate { text: qsTr("Voice"); enabled: false }

                    RowTitle { text: qsTr("Inline") }
                    EchoInline { text: "M" }
                    EchoInline { text: "S"; checkState: 1 }
                    EchoInline { text: "M"; checkState: 2 }
                    EchoInline { text: "STBY"; enabled: false }

                    RowTitle { text: qsTr("Check box") }
                    EchoCheck { text: qsTr("Off") }
                    EchoCheck { text: qsTr("On"); checkState: 1 }
                    EchoCheck { text: qsTr("Mixed"); checkState: 2 }
                    EchoCheck { text: qsTr("Locked"); checkState: 1; enabled: false }

                    RowTitle { text: qsTr("Switch") }
                    EchoSwitch { Accessible.name: qsTr("Switch off") }
                    EchoSwitch { checkState: 1; Accessible.name: qsTr("Switch on") }
                    EchoSwitch { checkState: 2; Accessible.name: qsTr("Switch mixed") }
                    EchoSwitch { enabled: false; Accessible.name: qsTr("Switch locked") }

                    RowTitle { text: qsTr("Spin box") }
                    VynSpinBox {
                        id: presetSpin
                        Layout.columnSpan: 2
                        Layout.fillWidth: true
                        vynStyle: page.vynStyle
                        from: 1
                        to: 64
                        value: 12
                        textFromValue: function (p_value) { return qsTr("Preset %1").arg(p_value) }
                        onValueModified: function (p_value) {
                            // The device answers with the value it stored.
                            const sent = p_value
                            presetSpin.value = NaN
                            board.echo(function () { presetSpin.value = sent })
                        }
                    }
                    VynSpinBox {
                        Layout.columnSpan: 2
                        Layout.fillWidth: true
                        vynStyle: page.vynStyle
                        mixed: true
                        value: 3
                    }

                    RowTitle { text: qsTr("Combo") }
                    VynComboBox {
                        id: genericCombo
                        Layout.columnSpan: 2
                        Layout.fillWidth: true
                        vynStyle: page.vynStyle
                        model: [qsTr("Low cut"), qsTr("Band pass"), qsTr("High cut")]
                        selectedIndexes: [0]
                        onActivated: function (p_index) {
                            board.echo(function () { genericCombo.selectedIndexes = [p_index] })
                        }
                    }
                    VynPopoverCombo {
                        id: genericPopover
                        Layout.columnSpan: 2
                        Layout.fillWidth: true
                        vynStyle: page.vynStyle
                        model: [qsTr("48 kHz"), qsTr("96 kHz"), qsTr("192 kHz")]
                        selectedIndexes: [0, 1]
                        onActivated: function (p_index) {
                            board.echo(function () { genericPopover.selectedIndexes = [p_index] })
                        }
                    }

                    RowTitle { text: qsTr("LEDs") }
                    GridLayout {
                        Layout.columnSpan: 4
                        columns: 6
                        columnSpacing: page.cellGap * 1.5
                        rowSpacing: page.cellGap
                        Repeater {
                            model: 18
                            delegate: VynLed {
                                required property int index
                                vynStyle: page.vynStyle
                                vynControlSize: VynViewUtils.VynControlSizeLarge
                                ledShape: Math.floor(index / 6)
                                ledState: [VynViewUtils.VynLedStateGray, VynViewUtils.VynLedStateOrange,
                                           VynViewUtils.VynLedStateRed, VynViewUtils.VynLedStateGreen,
                                           VynViewUtils.VynLedStateBlue, VynViewUtils.VynLedStateGreen][index % 6]
                                mixed: index % 6 === 5
                            }
                        }
                    }
                }
            }
        }
    }
}
