import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "Foundation"
    width: 200
    height: 200
    visible: true
    when: windowShown

    // --- Fonts ---------------------------------------------------------------------------

    function test_fontsLoad_data() {
        return [
            { tag: "regular", family: () => VynFonts.vynFamilyRegular, weight: () => VynFonts.vynWeightRegular, expected: Font.Normal },
            { tag: "medium", family: () => VynFonts.vynFamilyMedium, weight: () => VynFonts.vynWeightMedium, expected: Font.Medium },
            { tag: "semibold", family: () => VynFonts.vynFamilySemiBold, weight: () => VynFonts.vynWeightSemiBold, expected: Font.DemiBold },
            { tag: "bold", family: () => VynFonts.vynFamilyBold, weight: () => VynFonts.vynWeightBold, expected: Font.Bold }
        ]
    }

    function test_fontsLoad(data) {
        tryCompare(VynFonts, "vynLoaded", true)
        const family = data.family()
        verify(family !== "", "family of " + data.tag)
        verify(VynFonts.vynFallbackFamily !== "", "fallback family")
        verify(family !== VynFonts.vynFallbackFamily,
               data.tag + " is the bundled font, not the fallback " + family)
        compare(data.weight(), data.expected)
    }

    // A face that is not ready, or ready without a family, takes the application's font.
    function test_familyFallback_data() {
        return [
            { tag: "ready", status: FontLoader.Ready, family: "Inter", fallback: false },
            { tag: "loading", status: FontLoader.Loading, family: "", fallback: true },
            { tag: "error", status: FontLoader.Error, family: "", fallback: true },
            { tag: "null", status: FontLoader.Null, family: "", fallback: true },
            { tag: "ready without family", status: FontLoader.Ready, family: "", fallback: true }
        ]
    }

    function test_familyFallback(data) {
        const loader = { status: data.status, font: { family: data.family } }
        compare(VynFonts.familyOf(loader), data.fallback ? VynFonts.vynFallbackFamily : data.family)
    }

    TextMetrics {
        id: metrics
        text: "Output gain \u2212120.5 dB"
        font.pixelSize: 40
    }

    // Each weight is drawn with its own face: the same text gets wider with every step of
    // weight (Inter's heavier faces are wider), and the bundled regular face differs from the
    // application's font.
    function test_weightsSelectDistinctFaces() {
        tryCompare(VynFonts, "vynLoaded", true)
        const faces = [VynFonts.vynFontRegular, VynFonts.vynFontMedium,
                       VynFonts.vynFontSemiBold, VynFonts.vynFontBold]
        let widths = []
        for (let i = 0; i < faces.length; ++i) {
            metrics.font.family = faces[i].family
            metrics.font.weight = faces[i].weight
            widths.push(metrics.advanceWidth)
        }
        for (let i = 1; i < widths.length; ++i)
            verify(widths[i] > widths[i - 1], "face " + i + " wider: " + widths.join(", "))

        metrics.font.family = VynFonts.vynFallbackFamily
        metrics.font.weight = Font.Normal
        verify(Math.abs(metrics.advanceWidth - widths[0]) > 0.5,
               "fallback " + metrics.advanceWidth + " vs bundled " + widths[0])
    }

    Component {
        id: labelComponent
        VynLabel {
            text: "Gain"
        }
    }

    function test_labelUsesBundledFont() {
        tryCompare(VynFonts, "vynLoaded", true)
        const label = createTemporaryObject(labelComponent, testCase)
        compare(label.font.family, VynFonts.vynFamilyRegular)
    }

    // A label draws a background only once it has a colour or a frame to show, also when it
    // is given one at creation.
    function test_labelBackgroundOnDemand_data() {
        return [
            { tag: "plain", props: {}, background: false },
            { tag: "colour at creation", props: { "vynBkgdColor": "red" }, background: true },
            { tag: "frame at creation", props: { "vynBorderColor": "blue" }, background: true },
            { tag: "transparent colour", props: { "vynBkgdColor": "#00ff0000" }, background: false }
        ]
    }
    function test_labelBackgroundOnDemand(data) {
        const label = createTemporaryObject(labelComponent, testCase, data.props)
        compare(label.background !== null, data.background)
        if (data.background)
            compare(label.background.color, label.vynBkgdColor)
        label.vynBkgdColor = "green"
        verify(label.background !== null)
        compare(label.background.color, Qt.color("green"))
    }

    // --- Base item -----------------------------------------------------------------------

    Component {
        id: itemComponent
        VynItem {}
    }

    function test_itemDefaults() {
        const item = createTemporaryObject(itemComponent, testCase)
        verify(item)
        compare(item.vynStyle, VynColorUtils.VynStyleDark)
        compare(item.vynControlSize, VynViewUtils.VynControlSizeRegular)
        compare(item.vynPixelRatio, 1.0)
        compare(item.vynPixelRatioFont, 1.0)

        item.vynStyle = VynColorUtils.VynStyleLight
        item.vynControlSize = VynViewUtils.VynControlSizeLarge
        item.vynPixelRatio = 2
        item.vynPixelRatioFont = 1.5
        compare(item.vynStyle, VynColorUtils.VynStyleLight)
        compare(item.vynControlSize, VynViewUtils.VynControlSizeLarge)
        compare(item.vynPixelRatio, 2)
        compare(item.vynPixelRatioFont, 1.5)
    }

    // --- Images --------------------------------------------------------------------------

    Component {
        id: imageComponent
        Image {
            sourceSize.width: 32
            sourceSize.height: 32
        }
    }

    function test_catalogueLists() {
        const names = VynImages.vynImageNames
        verify(names.length >= 6, names)
        for (const name of ["panHandle", "chevronDown", "chevronUp", "chevronUpDown", "lock", "warning"])
            verify(names.indexOf(name) >= 0, name)
        compare(VynImages.vynIconSize, 16)
    }

    function test_unknownImage() {
        ignoreWarning(/VynImages: no image named "nothing"/)
        compare(VynImages.url("nothing"), "")
        verify(!VynImages.hasImage("nothing"))
        verify(!VynImages.hasImage("hasOwnProperty"))
        ignoreWarning(/VynImages: no image named "toString"/)
        compare(VynImages.url("toString"), "")
    }

    function test_imagesLoad_data() {
        let rows = []
        for (const name of VynImages.vynImageNames) {
            rows.push({ tag: name + " light", name: name, style: VynColorUtils.VynStyleLight })
            rows.push({ tag: name + " dark", name: name, style: VynColorUtils.VynStyleDark })
        }
        return rows
    }

    function test_imagesLoad(data) {
        verify(VynImages.hasImage(data.name))
        const url = VynImages.url(data.name, data.style)
        verify(String(url).endsWith(".svg"), url)
        const image = createTemporaryObject(imageComponent, testCase, { source: url })
        tryCompare(image, "status", Image.Ready)
        // Rasterised at the requested size, so the icon stays crisp when scaled.
        compare(image.implicitWidth, 32)
        compare(image.implicitHeight, 32)
    }

    // The dark style's icons are light glyphs and the light style's dark ones; a style left
    // out means dark.
    function test_iconVariantFollowsStyle_data() {
        // Pixels at 32 x 32 that the glyph covers.
        return [
            { tag: "panHandle", name: "panHandle", x: 16, y: 16 },
            { tag: "chevronDown", name: "chevronDown", x: 16, y: 19 },
            { tag: "lock", name: "lock", x: 10, y: 24 }
        ]
    }

    function test_iconVariantFollowsStyle(data) {
        compare(VynImages.url(data.name), VynImages.url(data.name, VynColorUtils.VynStyleDark))
        verify(VynImages.url(data.name, VynColorUtils.VynStyleLight)
               !== VynImages.url(data.name, VynColorUtils.VynStyleDark))

        let lightness = []
        for (const style of [VynColorUtils.VynStyleLight, VynColorUtils.VynStyleDark]) {
            const image = createTemporaryObject(imageComponent, testCase,
                                                { source: VynImages.url(data.name, style) })
            tryCompare(image, "status", Image.Ready)
            waitForRendering(image)
            const pixel = grabImage(image).pixel(data.x, data.y)
            verify(pixel.a > 0.9, "glyph covers the pixel, alpha " + pixel.a)
            lightness.push(pixel.hslLightness)
        }
        verify(lightness[0] < 0.4, "light style: dark glyph " + lightness[0])
        verify(lightness[1] > 0.7, "dark style: light glyph " + lightness[1])
    }
}
