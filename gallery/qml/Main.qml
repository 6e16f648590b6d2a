import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import VynUI 1.2

ApplicationWindow {
    id: window

    // Set by the host application from the command line.
    property bool darkStyle: true
    property string initialPage: ""

    readonly property int vynStyle: darkStyle ? VynColorUtils.VynStyleDark : VynColorUtils.VynStyleLight
    readonly property alias palette_: chrome

    // Pages of the gallery, in the order of the side bar. A new page is a file in pages/
    // and one entry here.
    readonly property var pages: [
        { title: "Overview", source: "pages/OverviewPage.qml" }
    ]

    width: 1280
    height: 800
    visible: true
    title: qsTr("VynUI Gallery")
    color: chrome.windowColor

    QtObject {
        id: chrome

        readonly property color windowColor: window.darkStyle ? "#17181a" : "#ececec"
        readonly property color sideBarColor: window.darkStyle ? "#202124" : "#f6f6f6"
        readonly property color panelColor: window.darkStyle ? "#26272b" : "#ffffff"
        readonly property color separatorColor: window.darkStyle ? "#34353a" : "#d2d2d2"
        readonly property color textColor: window.darkStyle ? "#e8e8e8" : "#1c1c1c"
        readonly property color secondaryTextColor: window.darkStyle ? "#9a9ca3" : "#6b6b6b"
        readonly property color accentColor: window.darkStyle ? "#2f8cff" : "#1a6fe0"
    }

    header: Rectangle {
        implicitHeight: 44
        color: chrome.sideBarColor

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 16
            anchors.rightMargin: 16
            spacing: 12

            Label {
                text: qsTr("VynUI Gallery")
                color: chrome.textColor
                font.pixelSize: 15
                font.bold: true
            }
            Label {
                text: pageList.currentIndex >= 0 ? "/  " + window.pages[pageList.currentIndex].title : ""
                color: chrome.secondaryTextColor
                font.pixelSize: 15
            }
            Item {
                Layout.fillWidth: true
            }
            Label {
                text: qsTr("Dark")
                color: chrome.secondaryTextColor
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
            color: chrome.separatorColor
        }
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        Rectangle {
            Layout.fillHeight: true
            Layout.preferredWidth: 200
            color: chrome.sideBarColor

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
                    onClicked: pageList.currentIndex = index
                    background: Rectangle {
                        color: pageDelegate.highlighted ? chrome.accentColor : "transparent"
                        radius: 4
                        anchors.fill: parent
                        anchors.leftMargin: 8
                        anchors.rightMargin: 8
                    }
                    contentItem: Label {
                        leftPadding: 12
                        text: pageDelegate.modelData.title
                        color: pageDelegate.highlighted ? "white" : chrome.textColor
                        verticalAlignment: Text.AlignVCenter
                    }
                }
            }
            Rectangle {
                anchors.right: parent.right
                width: 1
                height: parent.height
                color: chrome.separatorColor
            }
        }

        Loader {
            id: pageLoader
            Layout.fillWidth: true
            Layout.fillHeight: true
            source: window.pages[pageList.currentIndex].source
            onLoaded: {
                item.chrome = chrome
                item.vynStyle = Qt.binding(() => window.vynStyle)
            }
        }
    }
}
