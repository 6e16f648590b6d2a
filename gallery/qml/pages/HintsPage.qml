import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// Hints at work: help buttons that explain the controls of an amplifier channel, a guided
// tour that queues one hint per control, a hint the user can hide for good (and the button
// that shows hidden hints again), and a status indicator that explains itself. The controls are
// bound to channel 2 of a simulated amplifier; their first drag and first typed entry offer the
// slide field's own hints. One
// VynHintManagerQml serves the window: it shows one hint at a time, the others wait.
Flickable {
    id: page

    contentWidth: width
    contentHeight: column.implicitHeight + 48
    clip: true
    ScrollBar.vertical: ScrollBar {}

    VynHintManagerQml {
        id: hintManager
        vynStyle: GalleryTheme.vynStyle
    }

    // Channel 2 of a simulated amplifier: its edits go to the device and come back.
    VynSimulatedAmplifier {
        id: amplifier
    }

    Component.onCompleted: {
        amplifier.attachToWindowOf(page)
        // A first visit greets the user with a hint they can hide for good.
        hintManager.scheduleHint("gallery.hints.welcome", tourButton, qsTr("Hints"),
                                 qsTr("The \"?\" beside a control explains it. Start the tour for a walk through the channel."),
                                 true, 0)
    }

    // A control of the channel with its name, its value and the "?" that explains it.
    component ChannelRow: RowLayout {
        id: row
        required property string name
        required property string hintIdentifier
        required property string hintString
        property bool hideable: false
        default property alias control: controlSlot.data
        spacing: 12

        VynLabel {
            Layout.preferredWidth: 110
            text: row.name
            vynStyle: GalleryTheme.vynStyle
        }
        Item {
            id: controlSlot
            Layout.preferredWidth: 220
            implicitHeight: childrenRect.height
        }
        VynHelpButton {
            objectName: row.hintIdentifier
            vynStyle: GalleryTheme.vynStyle
            hintIdentifier: row.hintIdentifier
            hintTitle: row.name
            hintString: row.hintString
            hintHasDontShowAgainAction: row.hideable
        }
        Item {
            Layout.fillWidth: true
        }
    }

    ColumnLayout {
        id: column
        x: 24
        y: 24
        width: page.width - 48
        spacing: 18

        VynLabel {
            text: qsTr("%1, channel 2").arg(amplifier.name)
            vynStyle: GalleryTheme.vynStyle
            fontFamily: VynFonts.vynFamilyBold
            font.weight: VynFonts.vynWeightBold
            fontSize: VynUIQmlConstants.fontSizeTitleQuaternary()
        }

        ChannelRow {
            id: gainRow
            Layout.fillWidth: true
            name: qsTr("Gain")
            hintIdentifier: "gallery.gain"
            hintString: qsTr("Sets the level of the channel before the limiter. Drag the thumb, or click the track to step.")

            VynUISlider {
                id: gainSlider
                width: 150
                vynStyle: GalleryTheme.vynStyle
                uiSliderComponent: amplifier.component(2, "Gain")
            }
            VynLabel {
                x: 160
                width: 60
                anchors.verticalCenter: gainSlider.verticalCenter
                horizontalAlignment: Text.AlignRight
                vynStyle: GalleryTheme.vynStyle
                text: gainSlider.uiSliderComponent ? gainSlider.uiSliderComponent.stringValue : ""
            }
        }
        ChannelRow {
            id: delayRow
            Layout.fillWidth: true
            name: qsTr("Delay")
            hintIdentifier: "gallery.delay"
            hintString: qsTr("Aligns this loudspeaker with the main system. 1 ms is about 34 cm of air.")

            VynUISlideField {
                id: delayField
                width: 220
                vynStyle: GalleryTheme.vynStyle
                allowsPanning: true
                uiSlideFieldComponent: amplifier.component(2, "Delay")
            }
        }
        ChannelRow {
            id: frequencyRow
            Layout.fillWidth: true
            name: qsTr("High-pass")
            hintIdentifier: "gallery.highpass"
            hintString: qsTr("Removes the frequencies below this corner before they reach the loudspeaker. This hint offers \"Don't show again\".")
            hideable: true

            VynUISlideField {
                width: 220
                vynStyle: GalleryTheme.vynStyle
                allowsPanning: true
                uiSlideFieldComponent: amplifier.component(2, "Frequency")
            }
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 12

            VynLabel {
                Layout.preferredWidth: 110
                text: qsTr("Status")
                vynStyle: GalleryTheme.vynStyle
            }
            VynStatusIndicator {
                id: status
                vynStyle: GalleryTheme.vynStyle
                status: 2
                text: qsTr("Amplifier 2: heat sink at 78 \u00b0C, output reduced by 3 dB")
            }
            Item {
                Layout.fillWidth: true
            }
        }

        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: GalleryTheme.separatorColor
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 12

            VynBezelButton {
                id: tourButton
                vynStyle: GalleryTheme.vynStyle
                checkable: false
                text: qsTr("Start the tour")
                onClicked: {
                    hintManager.scheduleHint("gallery.tour.gain", gainSlider, qsTr("1 of 3: Gain"),
                                             qsTr("Start here: set the gain so that the meters peak around -6 dB."), false, 0)
                    hintManager.scheduleHint("gallery.tour.delay", delayField, qsTr("2 of 3: Delay"),
                                             qsTr("Then time-align the fill loudspeakers with the main system."), false, 0)
                    hintManager.scheduleHint("gallery.tour.status", status, qsTr("3 of 3: Status"),
                                             qsTr("Keep an eye on the status: click it for details."), false, 0)
                }
            }
            VynBezelButton {
                vynStyle: GalleryTheme.vynStyle
                checkable: false
                text: qsTr("Show hidden hints again")
                onClicked: GalleryModuleInfo.resetHiddenHints()
            }
            Item {
                Layout.fillWidth: true
            }
        }

        Label {
            Layout.fillWidth: true
            wrapMode: Text.Wrap
            color: GalleryTheme.secondaryTextColor
            text: qsTr("Each tour hint stays until it is closed (Escape, a click outside); the next one follows. "
                       + "Clicking a \"?\" again hides its hint.")
        }
    }
}
