pragma Singleton

import QtQuick

// The font families of the module's controls. Until the module carries font files of its
// own, every family is the application's default font.
QtObject {
    readonly property string vynFamilyRegular: defaultFont.font.family

    // Its font is a default font: the application's font.
    readonly property FontMetrics defaultFont: FontMetrics {}
}
