import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

// What the module is, that it loaded, and the vocabulary of view enums every control uses.
Flickable {
    id: page

    contentWidth: width
    contentHeight: column.implicitHeight + 48
    clip: true
    ScrollBar.vertical: ScrollBar {}

    KORU_UI {
        id: probe
    }

    ColumnLayout {
        id: column
        x: 24
        y: 24
        width: page.width - 48
        spacing: 16

        Label {
            text: qsTr("VynUI %1").arg(GalleryModuleInfo.moduleVersion())
            color: GalleryTheme.textColor
            font.pixelSize: 26
            font.bold: true
        }
        Label {
            Layout.fillWidth: true
            wrapMode: Text.WordWrap
            color: GalleryTheme.secondaryTextColor
            text: qsTr("The shared user-interface layer for networked amplifiers and loudspeaker processors: parameter-bound control models, scaled metrics and light/dark colours, curve maths and a library of controls.")
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 56
            radius: 6
            color: GalleryTheme.panelColor
            border.color: GalleryTheme.separatorColor

            Row {
                anchors.verticalCenter: parent.verticalCenter
                x: 16
                spacing: 12
                Rectangle {
                    width: 10
                    height: 10
                    radius: 5
                    anchors.verticalCenter: parent.verticalCenter
                    color: "#3ccf6e"
                }
                Label {
                    text: qsTr("Module loaded. KORU_UI.testString:")
                    color: GalleryTheme.secondaryTextColor
                }
                Label {
                    text: "\u201C" + probe.testString + "\u201D"
                    color: GalleryTheme.textColor
                    font.bold: true
                }
            }
        }

        Label {
            text: qsTr("View enums (VynViewUtils)")
            color: GalleryTheme.textColor
            font.pixelSize: 17
            font.bold: true
            topPadding: 8
        }

        Flow {
            Layout.fillWidth: true
            spacing: 12

            Repeater {
                model: GalleryModuleInfo.viewEnums()

                Rectangle {
                    id: card
                    required property var modelData
                    width: 280
                    height: cardColumn.implicitHeight + 20
                    radius: 6
                    color: GalleryTheme.panelColor
                    border.color: GalleryTheme.separatorColor

                    Column {
                        id: cardColumn
                        x: 12
                        y: 10
                        width: card.width - 24
                        spacing: 2

                        Label {
                            text: card.modelData.name
                            color: GalleryTheme.accentColor
                            font.bold: true
                            bottomPadding: 4
                        }
                        Repeater {
                            model: card.modelData.keys
                            RowLayout {
                                id: keyRow
                                required property var modelData
                                width: 256
                                Label {
                                    Layout.fillWidth: true
                                    text: keyRow.modelData.key
                                    color: GalleryTheme.textColor
                                    font.pixelSize: 11
                                    elide: Text.ElideRight
                                }
                                Label {
                                    text: keyRow.modelData.value
                                    color: GalleryTheme.secondaryTextColor
                                    font.pixelSize: 11
                                    font.family: "monospace"
                                }
                            }
                        }
                    }
                }
            }
        }
    }
}
