pragma Singleton

import QtQuick

// The fonts of the module's controls: the Inter typeface (SIL Open Font License, see
// LICENSE-Inter.txt beside the font files), carried in the module's resources and loaded once
// per engine in four weights: Regular, Medium, SemiBold and Bold.
//
// A face is chosen by its family and its weight together:
//     font.family: VynFonts.vynFamilySemiBold
//     font.weight: VynFonts.vynWeightSemiBold
// Qt 6.4's FontLoader files all four static faces under the one family "Inter" (its `font`
// reports family "Inter" with weights 400, 500, 600 and 700), so the family alone always
// draws the Regular face: the weight is what selects Medium, SemiBold or Bold. The
// `vynFont...` members carry both, for a `font:` binding that then overrides the size.
//
// When a face cannot be loaded (a resource missing, a font database that refuses it), its
// family falls back to the application's font, so that text is always drawn; the weight
// still applies to that font. `vynLoaded` tells whether all four faces are the module's own.
QtObject {
    id: fonts

    readonly property string vynFamilyRegular: familyOf(regularLoader)
    readonly property string vynFamilyMedium: familyOf(mediumLoader)
    readonly property string vynFamilySemiBold: familyOf(semiBoldLoader)
    readonly property string vynFamilyBold: familyOf(boldLoader)

    readonly property int vynWeightRegular: Font.Normal
    readonly property int vynWeightMedium: Font.Medium
    readonly property int vynWeightSemiBold: Font.DemiBold
    readonly property int vynWeightBold: Font.Bold

    readonly property font vynFontRegular: Qt.font({ family: vynFamilyRegular, weight: vynWeightRegular })
    readonly property font vynFontMedium: Qt.font({ family: vynFamilyMedium, weight: vynWeightMedium })
    readonly property font vynFontSemiBold: Qt.font({ family: vynFamilySemiBold, weight: vynWeightSemiBold })
    readonly property font vynFontBold: Qt.font({ family: vynFamilyBold, weight: vynWeightBold })

    // The family of the application's font, used for a face that did not load.
    readonly property string vynFallbackFamily: defaultFont.font.family

    readonly property bool vynLoaded: regularLoader.status === FontLoader.Ready
                                      && mediumLoader.status === FontLoader.Ready
                                      && semiBoldLoader.status === FontLoader.Ready
                                      && boldLoader.status === FontLoader.Ready

    function familyOf(p_loader) {
        if (p_loader.status === FontLoader.Ready && p_loader.font.family !== "")
            return p_loader.font.family
        return vynFallbackFamily
    }

    // The application's default font.
    readonly property FontMetrics defaultFont: FontMetrics {}

    readonly property FontLoader regularLoader: FontLoader {
        source: Qt.resolvedUrl("Inter-Regular.otf")
    }
    readonly property FontLoader mediumLoader: FontLoader {
        source: Qt.resolvedUrl("Inter-Medium.otf")
    }
    readonly property FontLoader semiBoldLoader: FontLoader {
        source: Qt.resolvedUrl("Inter-SemiBold.otf")
    }
    readonly property FontLoader boldLoader: FontLoader {
        source: Qt.resolvedUrl("Inter-Bold.otf")
    }
}
