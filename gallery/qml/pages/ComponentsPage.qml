pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// The parameter-bound component models at work: each row is bound to one model of a simulated
// amplifier. Edits go out through the models' validators and come back from the device after its
// latency; another operator changes values now and then.
Flickable {
    id: page

    contentWidth: width
    contentHeight: column.implicitHeight + 48
    clip: true
    ScrollBar.vertical: ScrollBar {}

    VynSimulatedAmplifier {
        id: amplifier
        running: operatorSwitch.checked
    }

    Component.onCompleted: amplifier.attachToWindowOf(page)

    // One parameter: the stand-in slider forwards gestures to the model the way the module's
    // controls do, and shows what the model says.
    component ParameterRow: RowLayout {
        id: row
        required property VynUISliderComponent model
        readonly property VynUISlideFieldComponent field: model as VynUISlideFieldComponent
        spacing: 12

        Label {
            Layout.preferredWidth: 80
            text: row.model.name
            color: GalleryTheme.textColor
        }
        Slider {
            id: slider
            Layout.fillWidth: true
            from: row.model.minValue
            to: row.model.maxValue
            enabled: row.model.enabled
            ToolTip.visible: hovered && row.model.tooltipText.length > 0
            ToolTip.text: row.model.tooltipText
            property bool accepted: false

            Binding on value {
                value: row.model.value
                when: !slider.pressed
            }
            onPressedChanged: {
                if (pressed) {
                    accepted = row.model.shouldBeginSliding()
                    if (accepted) {
                        row.model.slidingBegan()
                        row.model.sliding = true
                    }
                    return
                }
                if (!accepted)
                    return
                const model = row.model
                const finalValue = value
                const commit = function() {
                    model.expectsValue(finalValue, false, model.prevValue, true)
                    model.prevValue = model.value
                }
                model.slidingEnded()
                model.sliding = false
                if (model.securityType === VynCommonConstants.VynSecurityTypeShouldAlert)
                    model.presentConfirmChangeAlertIfNeededQml(commit)
                else
                    commit()
            }
            onMoved: {
                if (accepted && row.model.securityType !== VynCommonConstants.VynSecurityTypeShouldAlert)
                    row.model.expectsValue(value, false, row.model.prevValue, false)
            }
        }
        Label {
            Layout.preferredWidth: 90
            horizontalAlignment: Text.AlignRight
            text: row.model.stringValue
            color: GalleryTheme.textColor
            font.family: "monospace"
        }
        ComboBox {
            Layout.preferredWidth: 80
            // Kept in the layout for plain sliders, so that every row lines up.
            opacity: row.field !== null ? 1 : 0
            enabled: row.field !== null && row.field.allowsUnitChoosing
            model: row.field ? row.field.units : []
            currentIndex: row.field ? row.field.unitIndex : -1
            onActivated: function(index) { row.field.chooseUnitAction(index) }
        }
        Label {
            Layout.preferredWidth: 70
            horizontalAlignment: Text.AlignRight
            text: row.field ? row.field.displayedValue.toFixed(2) : ""
            color: GalleryTheme.secondaryTextColor
        }
        Rectangle {
            width: 8
            height: 8
            radius: 4
            color: row.model.expecting ? "#f0a030" : "#3ccf6e"
        }
        Label {
            Layout.preferredWidth: 70
            text: row.model.securityType === VynCommonConstants.VynSecurityTypeDisable
                  ? qsTr("locked")
                  : row.model.securityType === VynCommonConstants.VynSecurityTypeShouldAlert
                    ? qsTr("confirm") : ""
            color: GalleryTheme.secondaryTextColor
        }
    }

    ColumnLayout {
        id: column
        x: 24
        y: 24
        width: page.width - 48
        spacing: 16

        Label {
            text: qsTr("Component models")
            color: GalleryTheme.textColor
            font.pixelSize: 26
            font.bold: true
        }
        Label {
            Layout.fillWidth: true
            wrapMode: Text.WordWrap
            color: GalleryTheme.secondaryTextColor
            text: qsTr("Each row is a slider or slide-field model bound to one parameter of %1. Moving a slider offers values through the model's validator; the amplifier answers after %2 ms and the model's value and text follow. The gain of channel 1 asks for confirmation; the delay of channel %3 is locked.")
                  .arg(amplifier.name).arg(amplifier.latency).arg(amplifier.channelCount)
        }
        RowLayout {
            spacing: 12
            Switch {
                id: operatorSwitch
                checked: true
            }
            Label {
                text: qsTr("Another operator edits the amplifier")
                color: GalleryTheme.textColor
            }
        }

        Repeater {
            model: amplifier.channelCount

            Rectangle {
                id: channelPanel
                required property int index
                Layout.fillWidth: true
                implicitHeight: channelColumn.implicitHeight + 24
                radius: 6
                color: GalleryTheme.panelColor
                border.color: GalleryTheme.separatorColor

                ColumnLayout {
                    id: channelColumn
                    x: 16
                    y: 12
                    width: parent.width - 32
                    spacing: 4
                    Label {
                        text: qsTr("Channel %1").arg(channelPanel.index + 1)
                        color: GalleryTheme.textColor
                        font.bold: true
                    }
                    Repeater {
                        model: amplifier.parameterNames
                        ParameterRow {
                            required property string modelData
                            Layout.fillWidth: true
                            model: amplifier.component(channelPanel.index + 1, modelData)
                        }
                    }
                }
            }
        }

        Label {
            text: qsTr("Traffic")
            color: GalleryTheme.textColor
            font.bold: true
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: trafficColumn.implicitHeight + 16
            radius: 6
            color: GalleryTheme.panelColor
            border.color: GalleryTheme.separatorColor
            Column {
                id: trafficColumn
                x: 12
                y: 8
                Repeater {
                    model: amplifier.traffic
                    Label {
                        required property string modelData
                        text: modelData
                        color: GalleryTheme.secondaryTextColor
                        font.family: "monospace"
                    }
                }
            }
        }
    }
}
