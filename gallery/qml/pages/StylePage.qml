pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// The module's colours in both styles side by side, and its metrics at the five control sizes.
Flickable {
    id: page

    readonly property var swatches: [
        { group: "Surfaces", name: "View background", color: s => VynUIQmlConstants.viewBackgroundColorForStyle(s, 0) },
        { group: "Surfaces", name: "View background, level 1", color: s => VynUIQmlConstants.viewBackgroundColorForStyle(s, 1) },
        { group: "Surfaces", name: "Window background", color: s => VynUIQmlConstants.windowBackgroundColorForStyle(s) },
        { group: "Surfaces", name: "Popover background", color: s => VynUIQmlConstants.popoverBackgroundColorForStyle(s) },
        { group: "Surfaces", name: "Text view background", color: s => VynUIQmlConstants.textViewBackgroundColorForStyle(s) },
        { group: "Surfaces", name: "Table view background", color: s => VynUIQmlConstants.tableViewBackgroundColorForStyle(s) },
        { group: "Text", name: "Label", color: s => VynUIQmlConstants.labelColorForStyle(s, 0) },
        { group: "Text", name: "Label, secondary", color: s => VynUIQmlConstants.labelColorForStyle(s, 1) },
        { group: "Text", name: "Text view text", color: s => VynUIQmlConstants.textViewTextColorForStyle(s) },
        { group: "Controls", name: "Control, off", color: s => VynUIQmlConstants.controlColorForStyle(s, 0) },
        { group: "Controls", name: "Control, on", color: s => VynUIQmlConstants.controlColorForStyle(s, 1) },
        { group: "Controls", name: "Control, mixed", color: s => VynUIQmlConstants.controlColorForStyle(s, 2) },
        { group: "Controls", name: "Control border", color: s => VynUIQmlConstants.controlBorderColorForStyle(s, 0) },
        { group: "Controls", name: "Control text", color: s => VynUIQmlConstants.controlTextColorForStyle(s, 0) },
        { group: "Controls", name: "Text view border", color: s => VynUIQmlConstants.textViewBorderColorForStyle(s, 0, false) },
        { group: "Controls", name: "Split view line", color: s => VynUIQmlConstants.splitViewLineColorForStyle(s) }
    ]

    readonly property var sizes: [
        { name: "Mini", value: VynViewUtils.VynControlSizeMini },
        { name: "Small", value: VynViewUtils.VynControlSizeSmall },
        { name: "Regular", value: VynViewUtils.VynControlSizeRegular },
        { name: "Large", value: VynViewUtils.VynControlSizeLarge },
        { name: "Extra large", value: VynViewUtils.VynControlSizeExtraLarge }
    ]

    readonly property var metrics: [
        { name: "fontSize", value: z => VynUIQmlConstants.fontSize(z) },
        { name: "bezelButtonHeight", value: z => VynUIQmlConstants.bezelButtonHeight(z) },
        { name: "bezelButtonCornerRadius", value: z => VynUIQmlConstants.bezelButtonCornerRadius(z) },
        { name: "flatButtonHeight", value: z => VynUIQmlConstants.flatButtonHeight(z) },
        { name: "popupButtonHeight", value: z => VynUIQmlConstants.popupButtonHeight(z) },
        { name: "textFieldHeight", value: z => VynUIQmlConstants.textFieldHeight(z) },
        { name: "sliderTrackHeight", value: z => VynUIQmlConstants.sliderTrackHeight(z) },
        { name: "sliderThumbWidth", value: z => VynUIQmlConstants.sliderThumbWidth(z) },
        { name: "sliderThumbHeight", value: z => VynUIQmlConstants.sliderThumbHeight(z) }
    ]

    // Narrower than its content, the page scrolls sideways instead of squeezing.
    contentWidth: Math.max(width, column.implicitWidth + 48)
    contentHeight: column.implicitHeight + 48
    clip: true
    ScrollBar.vertical: ScrollBar {}
    ScrollBar.horizontal: ScrollBar {}

    // The narrowest row of a colour: swatch, shortest useful name, longest value.
    readonly property real swatchRowMinimum: 28 + 8 + 96 + 8 + 52

    component StylePanel: Rectangle {
        id: panel

        required property int vynStyle
        required property string title

        implicitHeight: panelColumn.implicitHeight + 24
        implicitWidth: panelColumn.implicitWidth + 24
        radius: 6
        color: VynUIQmlConstants.viewBackgroundColorForStyle(panel.vynStyle, 0)
        border.color: VynUIQmlConstants.tableViewBorderColorForStyle(panel.vynStyle)

        ColumnLayout {
            id: panelColumn
            x: 12
            y: 12
            width: panel.width - 24
            spacing: 6

            Label {
                text: panel.title
                font.pixelSize: VynUIQmlConstants.fontSizeTitleQuaternary()
                font.bold: true
                color: VynUIQmlConstants.labelColorForStyle(panel.vynStyle, 0)
                bottomPadding: 4
            }

            // A row of control looks: off, on and mixed, drawn only from the catalogue.
            Row {
                spacing: 8
                bottomPadding: 6
                Repeater {
                    model: [ { text: "Off", on: 0 }, { text: "On", on: 1 }, { text: "Mixed", on: 2 } ]
                    Rectangle {
                        id: sample
                        required property var modelData
                        width: 72
                        height: VynUIQmlConstants.bezelButtonHeight()
                        radius: VynUIQmlConstants.bezelButtonCornerRadius()
                        color: VynUIQmlConstants.controlColorForStyle(panel.vynStyle, sample.modelData.on)
                        border.color: VynUIQmlConstants.controlBorderColorForStyle(panel.vynStyle, sample.modelData.on)
                        border.width: 1
                        Label {
                            anchors.centerIn: parent
                            text: sample.modelData.text
                            font.pixelSize: VynUIQmlConstants.fontSize()
                            color: VynUIQmlConstants.controlTextColorForStyle(panel.vynStyle, sample.modelData.on)
                        }
                    }
                }
            }

            // The colour factory: the tints a user gives to zones and devices, a mixed
            // selection and no colour.
            Row {
                spacing: 6
                bottomPadding: 6
                Repeater {
                    model: VynUIQmlConstants.colorFactoryCount()
                    VynColorIcon {
                        required property int index
                        vynStyle: panel.vynStyle
                        Component.onCompleted: setIndex(index)
                    }
                }
                VynColorIcon {
                    vynStyle: panel.vynStyle
                    allowsMixed: true
                    mixed: true
                    Component.onCompleted: setIndex(7)
                }
                VynColorIcon {
                    vynStyle: panel.vynStyle
                }
            }

            GridLayout {
                Layout.fillWidth: true
                // Two columns of colours where two fit.
                columns: panelColumn.width >= 2 * page.swatchRowMinimum + 16 ? 2 : 1
                columnSpacing: 16
                rowSpacing: 6

                Repeater {
                    model: page.swatches
                    RowLayout {
                        id: swatchRow
                        required property var modelData
                        Layout.fillWidth: true
                        spacing: 8
                        Rectangle {
                            implicitWidth: 28
                            implicitHeight: 18
                            radius: 3
                            color: swatchRow.modelData.color(panel.vynStyle)
                            border.color: VynUIQmlConstants.controlBorderColorForStyle(panel.vynStyle, 0)
                        }
                        Label {
                            Layout.fillWidth: true
                            Layout.minimumWidth: 96
                            Layout.preferredWidth: 96
                            text: swatchRow.modelData.name
                            elide: Text.ElideRight
                            font.pixelSize: VynUIQmlConstants.fontSize(VynViewUtils.VynControlSizeSmall)
                            color: VynUIQmlConstants.labelColorForStyle(panel.vynStyle, 0)
                        }
                        Label {
                            Layout.preferredWidth: 52
                            horizontalAlignment: Text.AlignRight
                            text: String(swatchRow.modelData.color(panel.vynStyle))
                            font.pixelSize: VynUIQmlConstants.fontSize(VynViewUtils.VynControlSizeMini)
                            font.family: "monospace"
                            color: VynUIQmlConstants.labelColorForStyle(panel.vynStyle, 1)
                        }
                    }
                }
            }
        }
    }

    ColumnLayout {
        id: column
        x: 24
        y: 24
        width: page.contentWidth - 48
        spacing: 16

        Label {
            text: qsTr("Colours")
            color: GalleryTheme.textColor
            font.pixelSize: 20
            font.bold: true
        }
        Label {
            Layout.fillWidth: true
            // Wraps to the page; never widens it.
            Layout.preferredWidth: 320
            wrapMode: Text.WordWrap
            color: GalleryTheme.secondaryTextColor
            text: qsTr("Every colour is read from the tables by style, state and level (VynUIQmlConstants). The two styles side by side; the switch above turns the gallery's own frame light or dark.")
        }
        // The two styles side by side where both fit, else one above the other.
        GridLayout {
            Layout.fillWidth: true
            columns: page.width - 48 >= 2 * lightPanel.implicitWidth + 16 ? 2 : 1
            columnSpacing: 16
            rowSpacing: 16
            StylePanel {
                id: lightPanel
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                vynStyle: VynColorUtils.VynStyleLight
                title: qsTr("Light")
            }
            StylePanel {
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                vynStyle: VynColorUtils.VynStyleDark
                title: qsTr("Dark")
            }
        }

        Label {
            text: qsTr("Metrics at the five control sizes")
            color: GalleryTheme.textColor
            font.pixelSize: 20
            font.bold: true
            topPadding: 8
        }
        Rectangle {
            id: metricsTable
            Layout.fillWidth: true
            implicitHeight: metricsGrid.implicitHeight + 24
            implicitWidth: metricsGrid.implicitWidth + 24
            radius: 6
            color: GalleryTheme.panelColor
            border.color: GalleryTheme.separatorColor

            GridLayout {
                id: metricsGrid
                x: 12
                y: 12
                width: parent.width - 24
                columns: 1 + page.sizes.length
                columnSpacing: 12
                rowSpacing: 6

                Label {
                    text: qsTr("Metric (ratio 1)")
                    color: GalleryTheme.secondaryTextColor
                    Layout.fillWidth: true
                }
                Repeater {
                    model: page.sizes
                    Label {
                        required property var modelData
                        text: modelData.name
                        color: GalleryTheme.secondaryTextColor
                        Layout.preferredWidth: 96
                        Layout.fillWidth: true
                    }
                }

                Label {
                    text: qsTr("Sample")
                    color: GalleryTheme.textColor
                }
                Repeater {
                    model: page.sizes
                    Rectangle {
                        id: sizeSample
                        required property var modelData
                        Layout.preferredWidth: 96
                        Layout.fillWidth: true
                        implicitHeight: VynUIQmlConstants.bezelButtonHeight(sizeSample.modelData.value)
                        radius: VynUIQmlConstants.bezelButtonCornerRadius(sizeSample.modelData.value)
                        color: VynUIQmlConstants.controlColorForStyle(GalleryTheme.vynStyle, 1)
                        border.color: VynUIQmlConstants.controlBorderColorForStyle(GalleryTheme.vynStyle, 1)
                        Label {
                            anchors.centerIn: parent
                            text: qsTr("Gain")
                            font.pixelSize: VynUIQmlConstants.fontSize(sizeSample.modelData.value)
                            color: VynUIQmlConstants.controlTextColorForStyle(GalleryTheme.vynStyle, 1)
                        }
                    }
                }

                Repeater {
                    model: page.metrics.length * (1 + page.sizes.length)
                    Label {
                        required property int index
                        readonly property int metricIndex: Math.floor(index / (1 + page.sizes.length))
                        readonly property int sizeIndex: index % (1 + page.sizes.length) - 1
                        readonly property var metric: page.metrics[metricIndex]
                        text: sizeIndex < 0 ? metric.name : metric.value(page.sizes[sizeIndex].value)
                        font.family: sizeIndex < 0 ? "monospace" : font.family
                        color: sizeIndex < 0 ? GalleryTheme.textColor : GalleryTheme.secondaryTextColor
                    }
                }
            }
        }
    }
}
