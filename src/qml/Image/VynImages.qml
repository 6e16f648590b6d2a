pragma Singleton

import QtQuick

// The catalogue of the module's own images, by name.
//
//     Image {
//         source: VynImages.url("chevronDown", root.vynStyle)
//         sourceSize: Qt.size(16 * root.vynPixelRatio, 16 * root.vynPixelRatio)
//     }
//
// Every icon is an SVG drawn on a 16 x 16 grid, in one variant per style: for the dark style
// a light glyph, for the light style a dark one (the warning sign looks the same in both).
// Set `sourceSize` to the size the icon is shown at so that it is rasterised crisply at that
// size. SVG images need Qt's SVG image-format plugin at run time (Debian: libqt6svg6).
//
// url(name, style) returns the icon's URL for the style (dark when the style is left out);
// an unknown name gives an empty URL and a warning on the console, so an Image shows nothing
// rather than failing. `vynImageNames` lists every name the catalogue knows.
QtObject {
    id: images

    // name: file base for each style; a variant without a style suffix serves both.
    readonly property var __catalogue: ({
        "panHandle": { dark: "pan_handle_dark.svg", light: "pan_handle_light.svg" },
        "chevronDown": { dark: "chevron_down_dark.svg", light: "chevron_down_light.svg" },
        "chevronUp": { dark: "chevron_up_dark.svg", light: "chevron_up_light.svg" },
        "chevronUpDown": { dark: "chevron_up_down_dark.svg", light: "chevron_up_down_light.svg" },
        "lock": { dark: "lock_dark.svg", light: "lock_light.svg" },
        "warning": { dark: "warning.svg", light: "warning.svg" }
    })

    // The names of all images, in catalogue order.
    readonly property var vynImageNames: Object.keys(__catalogue)

    // The side of the square grid the icons are drawn on, in pixels at ratio 1.
    readonly property int vynIconSize: 16

    function hasImage(p_name) {
        return vynImageNames.indexOf(p_name) >= 0
    }

    function url(p_name, p_vynStyle) {
        if (!hasImage(p_name)) {
            console.warn("VynImages: no image named", JSON.stringify(p_name))
            return ""
        }
        const entry = __catalogue[p_name]
        // 0 is VynColorUtils.VynStyleLight (see the import note in sources.cmake).
        const file = p_vynStyle === 0 ? entry.light : entry.dark
        return Qt.resolvedUrl(file)
    }
}
