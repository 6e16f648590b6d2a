pragma Singleton

import QtQuick
import VynUI 1.2

// The gallery's own chrome (side bar, page backgrounds, captions). The controls on the pages
// take their colours from the module; this only frames them.
QtObject {
    property bool dark: true

    readonly property int vynStyle: dark ? VynColorUtils.VynStyleDark : VynColorUtils.VynStyleLight
    readonly property color windowColor: dark ? "#17181a" : "#ececec"
    readonly property color sideBarColor: dark ? "#202124" : "#f6f6f6"
    readonly property color panelColor: dark ? "#26272b" : "#ffffff"
    readonly property color separatorColor: dark ? "#34353a" : "#d2d2d2"
    readonly property color textColor: dark ? "#e8e8e8" : "#1c1c1c"
    readonly property color secondaryTextColor: dark ? "#9a9ca3" : "#6b6b6b"
    readonly property color accentColor: dark ? "#2f8cff" : "#1a6fe0"
}
