pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// EQ and dynamics of a simulated four-channel loudspeaker processor: an EQ and a compressor
// thumbnail per channel (click one, then its magnifier, to edit that channel), the 8-band EQ
// editor of the selected channel, and its compressor curve. Every edit goes to the simulated
// device and comes back with the device's resolution after its latency; the views follow the
// echo, not the hand.
Flickable {
    id: page

    property int channel: 0
    readonly property VynEQCommonEQ selectedEQ: processor.eqs[channel]
    readonly property VynDynamicCommon selectedDynamics: processor.dynamics[channel]

    contentWidth: width
    contentHeight: column.implicitHeight + 48
    clip: true
    ScrollBar.vertical: ScrollBar {}

    VynSimulatedProcessor {
        id: processor
    }

    ColumnLayout {
        id: column

        x: 24
        y: 24
        width: page.width - 48
        spacing: 14

        VynLabel {
            text: qsTr("Processor channels")
            vynStyle: GalleryTheme.vynStyle
            fontFamily: VynFonts.vynFamilyBold
            font.weight: VynFonts.vynWeightBold
            fontSize: VynUIQmlConstants.fontSizeTitleQuaternary()
        }

        Flow {
            Layout.fillWidth: true
            spacing: 12

            Repeater {
                model: processor.channelCount

                Rectangle {
                    id: strip

                    required property int index

                    width: stripRow.implicitWidth + 16
                    height: stripRow.implicitHeight + 16
                    radius: 6
                    color: GalleryTheme.panelColor
                    border.width: page.channel === index ? 2 : 1
                    border.color: page.channel === index ? GalleryTheme.accentColor : GalleryTheme.separatorColor

                    RowLayout {
                        id: stripRow

                        x: 8
                        y: 8
                        spacing: 8

                        VynLabel {
                            Layout.preferredWidth: 40
                            text: processor.channelName(strip.index)
                            vynStyle: GalleryTheme.vynStyle
                        }
                        VynUIEQThumbnail {
                            vynStyle: GalleryTheme.vynStyle
                            uiComponent: processor.eqThumbnails[strip.index]
                            Connections {
                                target: processor.eqThumbnails[strip.index]
                                function onClicked() { page.channel = strip.index }
                            }
                        }
                        VynUIDynThumbnail {
                            vynStyle: GalleryTheme.vynStyle
                            uiComponent: processor.dynThumbnails[strip.index]
                            Connections {
                                target: processor.dynThumbnails[strip.index]
                                function onClicked() { page.channel = strip.index }
                            }
                        }
                    }
                }
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 12

            VynLabel {
                text: qsTr("EQ \u2014 %1").arg(processor.channelName(page.channel))
                vynStyle: GalleryTheme.vynStyle
                fontFamily: VynFonts.vynFamilyBold
                font.weight: VynFonts.vynWeightBold
                fontSize: VynUIQmlConstants.fontSizeTitleQuaternary()
            }
            VynLabel {
                Layout.fillWidth: true
                text: qsTr("Drag a band, wheel for Q, double-click for 0 dB \u00b7 %1 messages sent").arg(processor.sentCount)
                vynStyle: GalleryTheme.vynStyle
                elide: Text.ElideRight
            }
        }

        VynEQGraphsView {
            Layout.fillWidth: true
            Layout.preferredHeight: 300
            vynStyle: GalleryTheme.vynStyle
            eq: page.selectedEQ
            bandExpectsValues: function (p_index, p_frequency, p_gain, p_q) {
                return processor.sendBand(page.channel, p_index, p_frequency, p_gain, p_q)
            }
        }

        VynLabel {
            text: qsTr("Compressor \u2014 %1").arg(processor.channelName(page.channel))
            vynStyle: GalleryTheme.vynStyle
            fontFamily: VynFonts.vynFamilyBold
            font.weight: VynFonts.vynWeightBold
            fontSize: VynUIQmlConstants.fontSizeTitleQuaternary()
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 16

            VynDynGraphsView {
                Layout.preferredWidth: 260
                Layout.preferredHeight: 260
                vynStyle: GalleryTheme.vynStyle
                model: page.selectedDynamics
                selectedBlock: page.selectedDynamics
                dynamicsExpectsValues: function (p_block, p_threshold, p_ratio) {
                    return processor.sendDynamics(page.channel, p_threshold, p_ratio)
                }
            }
            ColumnLayout {
                Layout.alignment: Qt.AlignTop
                spacing: 8

                VynCompressorThumbnail {
                    vynStyle: GalleryTheme.vynStyle
                    isOn: page.selectedDynamics ? page.selectedDynamics.isOn : false
                    threshold: page.selectedDynamics ? Math.max(-18, Math.min(18, page.selectedDynamics.threshold + 18)) : 0
                    inverseCompressionRatio: page.selectedDynamics ? page.selectedDynamics.ratio : 0.25
                    dottedGrid: true
                    onActivationClicked: function (p_turnOn) {
                        processor.dynThumbnails[page.channel].activationClicked(p_turnOn)
                    }
                }
                VynLabel {
                    text: page.selectedDynamics
                          ? qsTr("Threshold %1 dB\nRatio %2:1\nKnee %3 dB").arg(page.selectedDynamics.threshold.toFixed(1))
                            .arg((1 / Math.max(page.selectedDynamics.ratio, 0.001)).toFixed(1))
                            .arg(page.selectedDynamics.knee.toFixed(1))
                          : ""
                    vynStyle: GalleryTheme.vynStyle
                }
            }
            Item {
                Layout.fillWidth: true
            }
        }
    }
}
