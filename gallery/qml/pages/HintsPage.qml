import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// Hints at work: help buttons that explain the controls of an amplifier channel, a guided
// tour that queues one hint per control, a hint the user can hide for good (and the button
// that shows hidden hints again), and a status indicator that explains itself. One
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

    // A control of the channel with its name and the "?" that explains it.
    component ChannelRow: RowLayout {
        id: row
        required property string name
        required property string unit
        required property string hintIdentifier
        required property string hintString
        property bool hideable: false
        property alias field: field
        spacing: 12

        VynLabel {
            Layout.preferredWidth: 110
            text: row.name
            vynStyle: GalleryTheme.vynStyle
        }
        VynSlideField11 {
            id: field
            Layout.preferredWidth: 140
            vynStyle: GalleryTheme.vynStyle
            unitModel: [row.unit]
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
            text: qsTr("Channel A")
            vynStyle: GalleryTheme.vynStyle
            fontFamily: VynFonts.vynFamilyBold
            font.weight: VynFonts.vynWeightBold
            fontSize: VynUIQmlConstants.fontSizeTitleQuaternary()
        }

        ChannelRow {
            id: gainRow
            Layout.fillWidth: true
            name: qsTr("Gain")
            unit: "dB"
            hintIdentifier: "gallery.gain"
            hintString: qsTr("Sets the level of the channel before the limiter. Drag the field sideways, or type a value.")
        }
        ChannelRow {
            id: delayRow
            Layout.fillWidth: true
            name: qsTr("Delay")
            unit: "ms"
            hintIdentifier: "gallery.delay"
            hintString: qsTr("Aligns this loudspeaker with the main system. 1 ms is about 34 cm of air.")
        }
        ChannelRow {
            id: limiterRow
            Layout.fillWidth: true
            name: qsTr("Limiter")
            unit: "dBu"
            hintIdentifier: "gallery.limiter"
            hintString: qsTr("Keeps the output below this level. This hint offers \"Don't show again\".")
            hideable: true
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

            Button {
                text: qsTr("Start the tour")
                onClicked: {
                    hintManager.scheduleHint("gallery.tour.gain", gainRow.field, qsTr("1 of 3: Gain"),
                                             qsTr("Start here: set the gain so that the meters peak around -6 dB."), false, 0)
                    hintManager.scheduleHint("gallery.tour.delay", delayRow.field, qsTr("2 of 3: Delay"),
                                             qsTr("Then time-align the fill loudspeakers with the main system."), false, 0)
                    hintManager.scheduleHint("gallery.tour.status", status, qsTr("3 of 3: Status"),
                                             qsTr("Keep an eye on the status: click it for details."), false, 0)
                }
            }
            Button {
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
