pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

// The item list the combos open: one row per item text, a tick on the selected item, and a
// dash on each selected item of a mixed selection (several parameters with different
// choices). Up and Down move the highlight, Home and End jump to the ends, Enter, Return or
// Space choose the highlighted item (chosen(index)); a click chooses the item under it.
ListView {
    id: root

    property int vynStyle: VynColorUtils.VynStyleDark
    property int vynControlSize: VynViewUtils.VynControlSizeRegular
    property real vynPixelRatio: 1.0
    property real vynPixelRatioFont: 1.0
    readonly property VynUIMetrics vynMetrics: VynUIQmlConstants.metrics(vynControlSize, vynPixelRatio,
                                                                         vynPixelRatioFont, vynStyle)
    property var selectedIndexes: []
    readonly property bool mixed: selectedIndexes.length > 1
    readonly property real rowHeight: vynMetrics.popupButtonHeight
    // Rows shown before the list scrolls.
    property int maxVisibleRows: 10

    signal chosen(int index)

    implicitHeight: Math.min(count, maxVisibleRows) * rowHeight
    implicitWidth: 160
    clip: true
    focus: true
    keyNavigationWraps: false
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.List

    Keys.onPressed: function (p_event) {
        switch (p_event.key) {
        case Qt.Key_Home: root.currentIndex = 0; break
        case Qt.Key_End: root.currentIndex = root.count - 1; break
        case Qt.Key_Return: case Qt.Key_Enter: case Qt.Key_Space:
            if (root.currentIndex >= 0)
                root.chosen(root.currentIndex)
            break
        default: return
        }
        p_event.accepted = true
    }

    delegate: Item {
        id: _row
        required property int index
        required property string modelData
        readonly property bool selected: root.selectedIndexes.indexOf(index) >= 0
        readonly property bool current: ListView.isCurrentItem
        width: ListView.view.width
        height: root.rowHeight
        Accessible.role: Accessible.ListItem
        Accessible.name: modelData
        Accessible.selected: selected

        Rectangle {
            anchors.fill: parent
            visible: _row.current
            radius: root.vynMetrics.popupButtonCornerRadius
            color: root.vynMetrics.controlColorOn
        }
        Text {
            id: _mark
            x: root.vynMetrics.popupButtonInsetsH
            width: root.vynMetrics.fontSize
            anchors.verticalCenter: parent.verticalCenter
            text: !_row.selected ? "" : root.mixed ? "\u2013" : "\u2713"
            font.family: VynFonts.vynFamilySemiBold
            font.pixelSize: root.vynMetrics.fontSizePopupButton
            color: _row.current ? root.vynMetrics.controlTextColorOn : root.vynMetrics.labelColor
        }
        Text {
            anchors.left: _mark.right
            anchors.leftMargin: root.vynMetrics.popupButtonInsetsH
            anchors.right: parent.right
            anchors.rightMargin: root.vynMetrics.popupButtonInsetsH
            anchors.verticalCenter: parent.verticalCenter
            text: _row.modelData
            font.family: VynFonts.vynFamilyRegular
            font.pixelSize: root.vynMetrics.fontSizePopupButton
            color: _row.current ? root.vynMetrics.controlTextColorOn : root.vynMetrics.labelColor
            elide: Text.ElideRight
        }
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            onEntered: root.currentIndex = _row.index
            onClicked: root.chosen(_row.index)
        }
    }
}
