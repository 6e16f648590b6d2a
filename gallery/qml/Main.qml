import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2
import Gallery

ApplicationWindow {
    id: window

    // Set by the host application from the command line.
    property bool darkStyle: true
    property string initialPage: ""


    // Pages of the gallery, in the order of the side bar. A new page is a file in pages/
    // and one entry here; pages take the style from GalleryTheme.vynStyle.
    readonly property var pages: [
        { title: "Overview", source: "pages/OverviewPage.qml" },
        { title: "Style", source: "pages/StylePage.qml" },
        { title: "Components", source: "pages/ComponentsPage.qml" },
        { title: "Labels", source: "pages/LabelsPage.qml" },
        { title: "Controls", source: "pages/ControlsPage.qml" },
        { title: "Hints", source: "pages/HintsPage.qml" },
        { title: "Meters", source: "pages/MetersPage.qml" },
        { title: "EQ & Dynamics", source: "pages/EQDynamicsPage.qml" },
        { title: "Buttons & LEDs", source: "pages/ButtonsPage.qml" }
    ]

    width: 1280
    height: 800
    visible: true
    title: qsTr("VynUI Gallery")
    font.family: VynFonts.vynFamilyRegular
    color: GalleryTheme.windowColor

    onDarkStyleChanged: GalleryTheme.dark = darkStyle
    Component.onCompleted: GalleryTheme.dark = darkStyle

    header: Rectangle {
        implicitHeight: 44
        color: GalleryTheme.sideBarColor

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 16
            anchors.rightMargin: 16
            spacing: 12

            Label {
                text: qsTr("VynUI Gallery")
                color: GalleryTheme.textColor
                font.pixelSize: 15
                font.bold: true
            }
            Label {
                text: pageList.currentIndex >= 0 ? "/  " + window.pages[pageList.currentIndex].title : ""
                color: GalleryTheme.secondaryTextColor
                font.pixelSize: 15
            }
            Item {
                Layout.fillWidth: true
            }
            Label {
                text: qsTr("Dark")
                color: GalleryTheme.secondaryTextColor
            }
            Switch {
                id: styleSwitch
                checked: window.darkStyle
                onToggled: window.darkStyle = checked
            }
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: GalleryTheme.separatorColor
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        Rectangle {
            Layout.fillHeight: true
            Layout.preferredWidth: 200
            color: GalleryTheme.sideBarColor

            ListView {
                id: pageList
                anchors.fill: parent
                anchors.topMargin: 8
                model: window.pages
                currentIndex: Math.max(0, window.pages.findIndex(p => p.title === window.initialPage))
                delegate: ItemDelegate {
                    id: pageDelegate
                    required property var modelData
                    required property int index
                    width: ListView.view.width
                    height: 34
                    highlighted: ListView.isCurrentItem
                    onClicked: pageDelegate.ListView.view.currentIndex = pageDelegate.index
                    background: Rectangle {
                        color: pageDelegate.highlighted ? GalleryTheme.accentColor : "transparent"
                        radius: 4
                        anchors.fill: parent
                        anchors.leftMargin: 8
                        anchors.rightMargin: 8
                    }
                    contentItem: Label {
                        leftPadding: 12
                        text: pageDelegate.modelData.title
                        color: pageDelegate.highlighted ? "white" : GalleryTheme.textColor
                        verticalAlignment: Text.AlignVCenter
                    }
                }
            }
            Rectangle {
                anchors.right: parent.right
                width: 1
                height: parent.height
                color: GalleryTheme.separatorColor
            }
        }

        Loader {
            id: pageLoader
            objectName: "pageLoader"
            Layout.fillWidth: true
            Layout.fillHeight: true
            source: window.pages[pageList.currentIndex].source
        }
    }
}
