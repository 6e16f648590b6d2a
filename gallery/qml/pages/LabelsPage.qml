import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// The label optimizer at work: value labels riding along a bar with its handle, pushed apart
// and hidden by a VynLabelOptimizer, in both styles. Drag a handle towards a mark to see the
// labels collide.
Flickable {
    id: page

    contentWidth: width
    contentHeight: column.implicitHeight + 48
    clip: true
    ScrollBar.vertical: ScrollBar {}

    component StylePanel: Rectangle {
        id: panel

        required property int vynStyle
        required property string title
        // Where the handles start: the first bar with a hidden label, the second with two
        // labels pushed apart.
        property real levelValue: 9
        property real thresholdValue: -27
        property real kneeValue: -11.5

        implicitHeight: panelColumn.implicitHeight + 40
        radius: 6
        color: VynUIQmlConstants.viewBackgroundColorForStyle(panel.vynStyle, 0)
        border.color: VynUIQmlConstants.tableViewBorderColorForStyle(panel.vynStyle)

        ColumnLayout {
            id: panelColumn

            x: 20
            y: 20
            width: panel.width - 40
            spacing: 22

            VynLabel {
                text: panel.title
                vynStyle: panel.vynStyle
                fontFamily: VynFonts.vynFamilyBold
                font.weight: VynFonts.vynWeightBold
                fontSize: VynUIQmlConstants.fontSizeTitleQuaternary()
            }

            LabelledBar {
                objectName: "levelBar"
                Layout.fillWidth: true
                vynStyle: panel.vynStyle
                caption: qsTr("Output level: labels at the ends of the range")
                from: -60
                to: 12
                value: panel.levelValue
            }

            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 1
                color: VynUIQmlConstants.tableViewBorderColorForStyle(panel.vynStyle)
            }

            LabelledBar {
                objectName: "thresholdBar"
                Layout.fillWidth: true
                vynStyle: panel.vynStyle
                caption: qsTr("Limiter threshold: a window inside the range")
                from: -48
                to: 0
                minimum: -30
                maximum: -6
                value: panel.thresholdValue
            }

            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 1
                color: VynUIQmlConstants.tableViewBorderColorForStyle(panel.vynStyle)
            }

            LabelledBar {
                objectName: "windowBar"
                Layout.fillWidth: true
                vynStyle: panel.vynStyle
                caption: qsTr("Compressor knee: three marks close together")
                from: -24
                to: 0
                minimum: -14
                maximum: -9
                value: panel.kneeValue
            }
        }
    }

    ColumnLayout {
        id: column

        x: 24
        y: 24
        width: page.width - 48
        spacing: 16

        Label {
            text: qsTr("Label optimizer")
            color: GalleryTheme.textColor
            font.pixelSize: 20
            font.bold: true
        }
        Label {
            Layout.fillWidth: true
            Layout.maximumWidth: 900
            text: qsTr("Each bar places the labels of its value, minimum and maximum with one "
                       + "VynLabelOptimizer. A label may move up to half its width away from its "
                       + "mark to make room; one that still overlaps a neighbour or sticks out "
                       + "of the bar is hidden, and of two colliding labels the one further "
                       + "left wins. Drag a handle towards a mark.")
            wrapMode: Text.WordWrap
            color: GalleryTheme.secondaryTextColor
        }

        RowLayout {
            Layout.fillWidth: true
            spacing: 16

            StylePanel {
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                vynStyle: VynColorUtils.VynStyleLight
                title: qsTr("Light style")
            }
            StylePanel {
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                vynStyle: VynColorUtils.VynStyleDark
                title: qsTr("Dark style")
                levelValue: -56
                thresholdValue: -8.5
                kneeValue: -16
            }
        }
    }
}
