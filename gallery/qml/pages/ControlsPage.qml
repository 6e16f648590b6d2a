pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// The module's slider and slide-field controls bound to a simulated amplifier: channel
// faders for the gains, slide fields for the delays and the high-pass corners, and a row bound
// to all channels at once (mixed while the channels differ). Every edit goes out through the
// models' validators; the amplifier stores it with its own resolution and echoes it back
// after its latency, which the orange lamp and the traffic list show. The gain of channel 1
// asks before committing (its sliders take drags and track clicks, which ask, and no wheel
// steps or double clicks, which would not); the delay of the last channel is locked.
Flickable {
    id: page

    readonly property int vynStyle: GalleryTheme.vynStyle
    readonly property real gap: VynUIQmlConstants.marginWindow()
    readonly property real faderHeight: 220

    // The delay card needs this much to keep every field and slider usable.
    readonly property real fieldCardMinimumWidth: 600
    // Side by side where both columns fit, else the gain column above the fields.
    readonly property bool twoColumns: width - 2 * gap >= gainCard.implicitWidth + gap + fieldCardMinimumWidth
    readonly property real contentMinimumWidth: twoColumns
                                                ? gainCard.implicitWidth + gap + fieldCardMinimumWidth
                                                : Math.max(gainCard.implicitWidth, fieldCardMinimumWidth)

    // Narrower than its content, the page scrolls sideways instead of squeezing.
    contentWidth: Math.max(width, contentMinimumWidth + 2 * gap)
    contentHeight: content.implicitHeight + 2 * gap
    clip: true
    ScrollBar.vertical: ScrollBar {}
    ScrollBar.horizontal: ScrollBar {}

    VynSimulatedAmplifier {
        id: amplifier
        running: operatorSwitch.checked
    }

    Component.onCompleted: amplifier.attachToWindowOf(page)

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
        implicitHeight: cardColumn.implicitHeight + 2 * VynUIQmlConstants.marginPopover()
        implicitWidth: cardColumn.implicitWidth + 2 * VynUIQmlConstants.marginPopover()

        ColumnLayout {
            id: cardColumn
            x: VynUIQmlConstants.marginPopover()
            y: VynUIQmlConstants.marginPopover()
            width: card.width - 2 * x
            spacing: VynUIQmlConstants.marginParent()
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

    // The lamp of a model waiting for its device's echo.
    component EchoLamp: Rectangle {
        required property VynUISliderComponent model
        width: VynUIQmlConstants.ledHeight(VynViewUtils.VynControlSizeMini)
        height: width
        radius: width / 2
        color: VynUIQmlConstants.ledFillColorForState(model && model.expecting ? VynViewUtils.VynLedStateOrange : VynViewUtils.VynLedStateGray)
        border.width: Math.max(1, VynUIQmlConstants.ledBorder())
        border.color: VynUIQmlConstants.ledBorderColorForState(model && model.expecting ? VynViewUtils.VynLedStateOrange : VynViewUtils.VynLedStateGray)
    }

    // One fader strip: name, gain fader with its scale, value, echo lamp.
    component Strip: ColumnLayout {
        id: strip
        required property VynUISliderComponent model
        property string caption
        property bool showsScale: false
        spacing: VynUIQmlConstants.marginSpace()

        VynLabel {
            Layout.alignment: Qt.AlignHCenter
            text: strip.caption
            font.pixelSize: VynUIQmlConstants.fontSizeCellTitle()
            font.bold: true
            color: VynUIQmlConstants.labelColorForStyle(page.vynStyle, 0)
        }
        Item {
            Layout.alignment: Qt.AlignHCenter
            implicitWidth: 2 * fader.implicitWidth + scale.width
            implicitHeight: page.faderHeight

            // dB marks beside the fader, placed with the fader's own mapping.
            Item {
                id: scale
                width: strip.showsScale ? 26 : 0
                height: parent.height
                visible: strip.showsScale
                Repeater {
                    model: [12, 0, -12, -24, -36, -48, -60]
                    VynLabel {
                        required property int modelData
                        anchors.right: parent.right
                        anchors.rightMargin: VynUIQmlConstants.marginSpace(VynViewUtils.VynControlSizeMini)
                        y: fader.height - fader.positionForValue(modelData) - height / 2
                        text: modelData > 0 ? "+" + modelData : String(modelData)
                        font.pixelSize: VynUIQmlConstants.vuMeterTickPrimaryFontSize()
                        color: VynUIQmlConstants.labelColorForStyle(page.vynStyle, 2)
                    }
                }
            }
            VynUISlider {
                id: fader
                x: scale.width + (parent.width - scale.width - width) / 2
                height: parent.height
                orientation: Qt.Vertical
                vynStyle: page.vynStyle
                vynControlSize: VynViewUtils.VynControlSizeLarge
                // Wheel steps and double clicks reach the amplifier without a confirmation, so a
                // gain that asks before committing takes only drags and track clicks.
                enableWheeling: strip.model.securityType !== VynCommonConstants.VynSecurityTypeShouldAlert
                enableDoubleClicking: strip.model.securityType !== VynCommonConstants.VynSecurityTypeShouldAlert
                enableValueLimitation: true
                enableValueAttenuation: true
                stepSize: 0.5
                drawsTicks: false
                uiSliderComponent: strip.model
            }
        }
        RowLayout {
            Layout.alignment: Qt.AlignHCenter
            spacing: VynUIQmlConstants.marginSpace(VynViewUtils.VynControlSizeSmall)
            EchoLamp {
                model: strip.model
            }
            VynLabel {
                text: strip.model.mixed ? VynUIQmlConstants.localizedString("MULTIPLE_SHORT")
                                        : strip.model.stringValue
                font.pixelSize: VynUIQmlConstants.fontSizeCellDetail()
                font.family: "monospace"
                color: VynUIQmlConstants.textViewTextColorForStyle(page.vynStyle, strip.model.mixed ? 1 : 0)
            }
        }
        VynLabel {
            Layout.alignment: Qt.AlignHCenter
            text: strip.model.securityType === VynCommonConstants.VynSecurityTypeShouldAlert
                  ? qsTr("CONFIRM") : strip.model.mixed ? qsTr("MIXED") : " "
            font.pixelSize: VynUIQmlConstants.fontSizeCellDetail()
            font.bold: true
            color: strip.model.securityType === VynCommonConstants.VynSecurityTypeShouldAlert
                   ? VynUIQmlConstants.controlBorderRedColorForStyle(page.vynStyle)
                   : VynUIQmlConstants.labelColorForStyle(page.vynStyle, 2)
        }
    }

    // A channel row of the delay and high-pass card.
    component FieldRow: RowLayout {
        id: fieldRow
        required property string caption
        required property VynUISlideFieldComponent delay
        required property VynUISlideFieldComponent frequency
        spacing: VynUIQmlConstants.marginParent()

        VynLabel {
            Layout.preferredWidth: 86
            text: fieldRow.caption
            font.pixelSize: VynUIQmlConstants.fontSize()
            color: VynUIQmlConstants.labelColorForStyle(page.vynStyle, 0)
            elide: Text.ElideRight
        }
        VynUISliderAndField {
            Layout.fillWidth: true
            Layout.minimumWidth: fieldWidth + 100
            Layout.preferredHeight: implicitHeight
            vynStyle: page.vynStyle
            uiSlideFieldComponent: fieldRow.delay
            title: ""
            fieldWidth: 118
            slider.enableWheeling: true
            field.stepSize: 1
            field.enableValueLimitation: true
        }
        EchoLamp {
            model: fieldRow.delay
        }
        VynUISlideField {
            Layout.preferredWidth: 150
            vynStyle: page.vynStyle
            uiSlideFieldComponent: fieldRow.frequency
            allowsPanning: true
            hasMinus: true
            hasPlus: true
            stepSize: 10
        }
        EchoLamp {
            model: fieldRow.frequency
        }
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
                text: qsTr("Controls")
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
                text: qsTr("Faders and slide fields bound to %1. Drag a fader or the \u25C2\u25B8 handle of a field, type a value, click \u2013 and +, or use the wheel (Ctrl: fine, Shift: coarse). The amplifier answers after %2 ms; the lamp is orange until its echo arrives. Channel 1's gain asks before committing and ignores the wheel; channel %3's delay is locked.")
                      .arg(amplifier.name).arg(amplifier.latency).arg(amplifier.channelCount)
            }
        }

        GridLayout {
            Layout.fillWidth: true
            columns: page.twoColumns ? 2 : 1
            columnSpacing: page.gap
            rowSpacing: page.gap

            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: gainCard.implicitWidth
                Layout.maximumWidth: page.twoColumns ? gainCard.implicitWidth : content.width
                spacing: page.gap

            Card {
                id: gainCard
                Layout.fillWidth: true
                title: qsTr("Output gain")
                detail: qsTr("dB")
                implicitWidth: faders.implicitWidth + 2 * VynUIQmlConstants.marginPopover()

                Row {
                    id: faders
                    spacing: VynUIQmlConstants.marginWindow()
                    Repeater {
                        model: amplifier.channelCount
                        Strip {
                            required property int index
                            caption: qsTr("CH %1").arg(index + 1)
                            model: amplifier.component(index + 1, "Gain")
                            showsScale: index === 0
                        }
                    }
                    Rectangle {
                        width: VynUIQmlConstants.lineViewWidth()
                        height: page.faderHeight + 60
                        color: VynUIQmlConstants.lineViewColorForStyle(page.vynStyle)
                    }
                    Strip {
                        caption: qsTr("ALL")
                        model: amplifier.selection("Gain")
                    }
                }
            }

            Card {
                Layout.fillWidth: true
                title: qsTr("Gain trim")
                detail: qsTr("6 dB steps")

                Column {
                    width: parent.width
                    spacing: VynUIQmlConstants.marginParent()
                    Repeater {
                        model: amplifier.channelCount
                        RowLayout {
                            id: trimRow
                            required property int index
                            readonly property VynUISliderComponent model: amplifier.component(index + 1, "Gain")
                            width: parent.width
                            spacing: VynUIQmlConstants.marginParent()
                            VynLabel {
                                text: qsTr("CH %1").arg(trimRow.index + 1)
                                font.pixelSize: VynUIQmlConstants.fontSizeCellTitle()
                                font.bold: true
                                color: VynUIQmlConstants.labelColorForStyle(page.vynStyle, 1)
                            }
                            VynUISlider {
                                Layout.fillWidth: true
                                Layout.preferredWidth: 100
                                vynStyle: page.vynStyle
                                stepSize: 6
                                drawsTicks: true
                                // As on the faders: a gain that asks takes no wheel steps or
                                // double clicks, which would not ask.
                                enableWheeling: trimRow.model.securityType !== VynCommonConstants.VynSecurityTypeShouldAlert
                                enableDoubleClicking: trimRow.model.securityType !== VynCommonConstants.VynSecurityTypeShouldAlert
                                uiSliderComponent: trimRow.model
                            }
                            VynLabel {
                                Layout.preferredWidth: 64
                                horizontalAlignment: Text.AlignRight
                                text: trimRow.model.stringValue
                                font.family: "monospace"
                                font.pixelSize: VynUIQmlConstants.fontSizeCellDetail()
                                color: VynUIQmlConstants.textViewTextColorForStyle(page.vynStyle, 0)
                            }
                        }
                    }
                }
            }
            }

            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                Layout.fillWidth: true
                Layout.minimumWidth: page.fieldCardMinimumWidth
                spacing: page.gap

                Card {
                    Layout.fillWidth: true
                    title: qsTr("Delay and high-pass")
                    detail: qsTr("ms \u00B7 m \u00B7 ft   |   Hz \u00B7 kHz")

                    Column {
                        width: parent.width
                        spacing: VynUIQmlConstants.marginParent()
                        Repeater {
                            model: amplifier.channelCount
                            FieldRow {
                                required property int index
                                width: parent.width
                                caption: qsTr("Channel %1").arg(index + 1)
                                delay: amplifier.component(index + 1, "Delay") as VynUISlideFieldComponent
                                frequency: amplifier.component(index + 1, "Frequency") as VynUISlideFieldComponent
                            }
                        }
                        Rectangle {
                            width: parent.width
                            height: VynUIQmlConstants.lineViewWidth()
                            color: VynUIQmlConstants.lineViewColorForStyle(page.vynStyle)
                        }
                        FieldRow {
                            width: parent.width
                            caption: qsTr("All channels")
                            delay: amplifier.selection("Delay") as VynUISlideFieldComponent
                            frequency: amplifier.selection("Frequency") as VynUISlideFieldComponent
                        }
                    }
                }

                Card {
                    Layout.fillWidth: true
                    title: qsTr("Device traffic")
                    detail: qsTr("%1 \u00B7 latency %2 ms").arg(amplifier.name).arg(amplifier.latency)

                    ColumnLayout {
                        width: parent.width
                        spacing: VynUIQmlConstants.marginSpace()
                        RowLayout {
                            spacing: VynUIQmlConstants.marginSpace()
                            Switch {
                                id: operatorSwitch
                                checked: true
                            }
                            VynLabel {
                                text: qsTr("Another operator edits the amplifier")
                                font.pixelSize: VynUIQmlConstants.fontSize()
                                color: VynUIQmlConstants.labelColorForStyle(page.vynStyle, 1)
                            }
                        }
                        Rectangle {
                            Layout.fillWidth: true
                            implicitHeight: trafficColumn.implicitHeight + 2 * VynUIQmlConstants.marginParent()
                            radius: VynUIQmlConstants.popupButtonCornerRadius()
                            color: VynUIQmlConstants.textViewBackgroundColorForStyle(page.vynStyle)
                            border.width: Math.max(1, VynUIQmlConstants.textFieldBorder())
                            border.color: VynUIQmlConstants.tableViewBorderColorForStyle(page.vynStyle)
                            Column {
                                id: trafficColumn
                                x: VynUIQmlConstants.marginParent()
                                y: VynUIQmlConstants.marginParent()
                                Repeater {
                                    model: amplifier.traffic
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
            }
        }
    }
}
