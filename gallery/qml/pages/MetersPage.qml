pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// The meter bridge of a small fleet: four amplifiers of eight channels, each channel with its
// input level, output level and limiter gain reduction, fed by a simulated music signal. All
// meters run on the one VynVUMeterManager clock; a click on any of them resets every hold.
Flickable {
    id: page

    contentWidth: width
    contentHeight: column.implicitHeight + 48
    clip: true
    ScrollBar.vertical: ScrollBar {}

    readonly property int vynStyle: GalleryTheme.vynStyle
    readonly property real meterHeight: 180
    property bool paused: false

    VynSimulatedMeterBridge {
        id: bridge
    }

    Component.onDestruction: {
        if (page.paused)
            VynVUMeterManager.restart(page)
    }

    // One channel: input, output and gain-reduction meters over the channel's number.
    component ChannelStrip: Column {
        id: strip
        required property int amplifier
        required property int channel
        readonly property alias inputMeter: inputMeter
        spacing: 4

        Row {
            spacing: 2
            VynUIVUMeter {
                id: inputMeter
                width: 10
                height: page.meterHeight
                uiVUMeterComponent: bridge.inputMeter(strip.amplifier, strip.channel)
                vynStyle: page.vynStyle
            }
            VynUIVUMeter {
                width: 10
                height: page.meterHeight
                uiVUMeterComponent: bridge.outputMeter(strip.amplifier, strip.channel)
                vynStyle: page.vynStyle
            }
            VynUIVUMeter {
                width: 6
                height: page.meterHeight
                uiVUMeterComponent: bridge.limiterMeter(strip.amplifier, strip.channel)
                vynStyle: page.vynStyle
            }
        }
        VynLabel {
            width: 30
            horizontalAlignment: Text.AlignHCenter
            text: strip.channel
            vynStyle: page.vynStyle
            vynControlSize: VynViewUtils.VynControlSizeSmall
        }
        VynLabel {
            width: 30
            horizontalAlignment: Text.AlignHCenter
            text: bridge.instrument(strip.amplifier, strip.channel)
            vynStyle: page.vynStyle
            vynControlSize: VynViewUtils.VynControlSizeMini
            level: 2
        }
    }

    // One amplifier: its name, a scale and its eight channel strips.
    component AmplifierPanel: Rectangle {
        id: panel
        required property int amplifier
        implicitWidth: panelRow.implicitWidth + 28
        implicitHeight: panelColumn.implicitHeight + 24
        radius: 6
        color: GalleryTheme.dark ? "#1d1e21" : "#f7f7f7"
        border.color: GalleryTheme.separatorColor

        Column {
            id: panelColumn
            x: 14
            y: 10
            spacing: 8

            RowLayout {
                width: panelRow.implicitWidth
                VynLabel {
                    text: qsTr("Amp %1").arg(panel.amplifier)
                    vynStyle: page.vynStyle
                    font.bold: true
                }
                Item {
                    Layout.fillWidth: true
                }
                VynLabel {
                    text: qsTr("IN · OUT · GR")
                    vynStyle: page.vynStyle
                    vynControlSize: VynViewUtils.VynControlSizeMini
                    level: 2
                }
            }

            Row {
                id: panelRow
                spacing: 10

                VynVUTickMarks {
                    height: page.meterHeight
                    meter: firstStrip.inputMeter
                    labelsOnLeft: true
                    vynStyle: page.vynStyle
                    vynControlSize: VynViewUtils.VynControlSizeSmall
                }
                ChannelStrip {
                    id: firstStrip
                    amplifier: panel.amplifier
                    channel: 1
                }
                Repeater {
                    model: bridge.channelCount - 1
                    ChannelStrip {
                        required property int index
                        amplifier: panel.amplifier
                        channel: index + 2
                    }
                }
            }
        }
    }

    ColumnLayout {
        id: column
        x: 24
        y: 24
        width: page.width - 48
        spacing: 14

        Label {
            text: qsTr("Meters")
            color: GalleryTheme.textColor
            font.pixelSize: 22
            font.bold: true
        }
        Label {
            Layout.fillWidth: true
            wrapMode: Text.WordWrap
            color: GalleryTheme.secondaryTextColor
            text: qsTr("Input, output and limiter gain reduction of every channel of the fleet, on one shared 80 ms clock. Levels rise at once and fall 0.12 of the scale per tick; the falling mark holds one second; the brighter marks keep the lowest and highest level until a meter is clicked.")
        }

        RowLayout {
            spacing: 12
            VynBezelButton {
                vynStyle: GalleryTheme.vynStyle
                checkable: false
                text: page.paused ? qsTr("Restart") : qsTr("Pause")
                onClicked: {
                    if (page.paused)
                        VynVUMeterManager.restart(page)
                    else
                        VynVUMeterManager.pause(page)
                    page.paused = !page.paused
                }
            }
            VynBezelButton {
                vynStyle: GalleryTheme.vynStyle
                checkable: false
                text: qsTr("Reset holds")
                onClicked: {
                    VynVUMeterManager.resetAllVUMeters()
                    bridge.resetClips()
                }
            }
            Label {
                color: bridge.clipCount > 0 ? "#ff4d5e" : GalleryTheme.secondaryTextColor
                text: bridge.clipCount > 0 ? qsTr("%1 input clips").arg(bridge.clipCount)
                                           : qsTr("No clip")
            }
        }

        Flow {
            Layout.fillWidth: true
            spacing: 14
            Repeater {
                model: bridge.amplifierCount
                AmplifierPanel {
                    required property int index
                    amplifier: index + 1
                }
            }
        }

        Label {
            text: qsTr("Amplifier outputs")
            color: GalleryTheme.textColor
            font.pixelSize: 15
            font.bold: true
            topPadding: 4
        }
        Flow {
            Layout.fillWidth: true
            spacing: 32
            Repeater {
                model: bridge.amplifierCount
                VynUIVUMeterAndLabelRow {
                    required property int index
                    text: qsTr("Amp %1 ch 1").arg(index + 1)
                    meterLength: 300
                    uiVUMeterComponent: bridge.outputMeter(index + 1, 1)
                    vynStyle: page.vynStyle
                }
            }
        }
    }
}
