import QtQuick
import QtTest
import VynUI 1.2

TestCase {
    id: testCase
    name: "Constants"
    width: 200
    height: 200
    when: windowShown
    visible: true

    // A control the way the library's documents build one: every metric comes from the
    // catalogue for the control's size and pixel ratio.
    Rectangle {
        id: control

        property int vynControlSize: VynViewUtils.VynControlSizeRegular
        property real vynPixelRatio: 1.0
        property int clicks: 0

        width: VynUIQmlConstants.flatButtonMinWidth(vynControlSize, vynPixelRatio) * 2
        height: VynUIQmlConstants.flatButtonHeight(vynControlSize, vynPixelRatio)
        radius: VynUIQmlConstants.flatButtonCornerRadius(vynControlSize, vynPixelRatio)

        Text {
            id: label
            anchors.centerIn: parent
            text: "Button"
            font.pixelSize: VynUIQmlConstants.fontSizeFlatButton(control.vynControlSize,
                                                                 control.vynPixelRatio)
        }

        MouseArea {
            anchors.fill: parent
            onClicked: control.clicks++
        }
    }

    function test_defaultArguments() {
        compare(VynUIQmlConstants.fontSize(), 13)
        compare(VynUIQmlConstants.fontSize(VynViewUtils.VynControlSizeMini), 9)
        compare(VynUIQmlConstants.fontSize(VynViewUtils.VynControlSizeMini, 2.0), 18)
        compare(VynUIQmlConstants.marginWindow(VynViewUtils.VynControlSizeSmall, 1.25), 13)
        compare(VynUIQmlConstants.flatButtonCornerRadius(VynViewUtils.VynControlSizeSmall, 1.5),
                5.25)
        compare(VynUIQmlConstants.popoverShadowOffsetH(), 1)
        compare(VynUIQmlConstants.popoverShadowOffsetH(0.5), 1)
        compare(VynUIQmlConstants.logGraphAxisShadowOffset(0.5), -1)
        compare(VynUIQmlConstants.slideFieldRate(2), 2.5)
        compare(VynUIQmlConstants.slideFieldRate(2, 2.0), 5)
        compare(VynUIQmlConstants.imageUrlsForEQTypeSelector().length, 6)
        compare(VynUIQmlConstants.imageUrlsForEQTypeSelector(VynColorUtils.VynStyleLight),
                VynUIQmlConstants.imageUrlsForEQTypeSelector())
    }

    function test_fixedValues() {
        compare(VynUIQmlConstants.disabledAlpha(), 0.75)
        compare(VynUIQmlConstants.offlineAlpha(), 0.62)
        compare(VynUIQmlConstants.eqThumbnailSizeRatio(), 1.67)
        compare(VynUIQmlConstants.zoneIconKernRatio(), -0.2)
        compare(VynUIQmlConstants.windowWidthOrlaMain(), 1240)
        compare(VynUIQmlConstants.windowHeightOrlaMain(), 768)
        compare(VynUIQmlConstants.minControlAmpOutHeightOrla(1.25), 162)
        compare(VynUIQmlConstants.fontSpaceWidth(13), 4)
        compare(VynUIQmlConstants.getMimeTypeVynZone(), "text/vynzone")
        compare(VynUIQmlConstants.getMimeTypeUrls(), "text/uri-list")
    }

    function test_outOfRangeAnswers() {
        // A four-row table asked for ExtraLarge reads Large.
        compare(VynUIQmlConstants.marginParent(VynViewUtils.VynControlSizeExtraLarge), 16)
        compare(VynUIQmlConstants.fontSize(VynViewUtils.VynControlSizeExtraLarge), 19)
        compare(VynUIQmlConstants.eqBandTypeForIndex(6), 65535)
        compare(VynUIQmlConstants.eqBandTypeStringForIndex(6), "")
        compare(VynUIQmlConstants.eqIndexForBandType(0), -1)
    }

    function test_valueTypes() {
        const labels = VynUIQmlConstants.eqXLabels()
        compare(labels.length, 10)
        compare(labels[0].position, 20)
        compare(labels[5].text, "1k")
        compare(labels[9].text, "20k")
        const gains = VynUIQmlConstants.eqYLabels()
        compare(gains[4].text, "+6")
        compare(gains[0].position, -18)

        const config = VynUIQmlConstants.vuMeterTickMarksConfigForValues(100, -60, 0, 10)
        compare(config.primaryInterval, 25)
        compare(config.secondaryInterval, 5)
        compare(config.precision, 0)

        const size = VynUIQmlConstants.minControlAmpOutTopSizeOrla(VynViewUtils.VynControlSizeMini,
                                                                   1.25)
        compare(size.width, 162.5)
        compare(size.height, 212.5)
    }

    function test_geometry() {
        compare(VynUIQmlConstants.cornersForSides(VynViewUtils.VynSideLeft | VynViewUtils.VynSideTop),
                VynViewUtils.VynCornerTopLeft)
        compare(VynUIQmlConstants.alignmentsViewVynSideOrientation(VynViewUtils.VynSideTop),
                Qt.Horizontal)
        const bounds = VynUIQmlConstants.alignmentsViewVynSideBoundsForRect(Qt.rect(1, 2, 3, 4),
                                                                            Qt.Horizontal)
        compare(bounds.min, 1)
        compare(bounds.max, 4)
        const lasso = VynUIQmlConstants.cellsViewCroppedLassoRectangle(Qt.rect(50, 40, -60, -70),
                                                                       Qt.rect(0, 0, 100, 100))
        compare(lasso, Qt.rect(0, 0, 50, 40))
        verify(VynUIQmlConstants.qRectFContainsQPoint(Qt.rect(0, 0, 10, 10), Qt.point(5, 5)))
    }

    // A document can pass any integer where a member takes an enumeration; each member has a
    // defined answer for it. An orientation other than Qt.Vertical reads as Qt.Horizontal.
    function test_orientationsOutOfRange_data() {
        return [0, 3, 7, -1, 2147483647, -2147483648].map(value => ({ tag: String(value),
                                                                    value: value }))
    }

    function test_orientationsOutOfRange(data) {
        const rect = Qt.rect(1, 2, 30, 40)
        compare(VynUIQmlConstants.alignmentsViewVynOrientationOther(data.value), Qt.Vertical)
        compare(VynUIQmlConstants.alignmentsViewQRectFSizeAlongOrientation(rect, data.value), 30)
        const bounds = VynUIQmlConstants.alignmentsViewVynSideBoundsForRect(rect, data.value)
        compare(bounds.min, 1)
        compare(bounds.max, 31)
        compare(VynUIQmlConstants.alignmentsViewQRectFForLine(0, 10, 5, data.value, 2),
                Qt.rect(0, 4, 10, 2))
    }

    function test_otherEnumerationsOutOfRange() {
        compare(VynUIQmlConstants.alignmentsViewVynSideOrientation(64), Qt.Horizontal)
        compare(VynUIQmlConstants.alignmentsViewVynSideOrientation(-1), Qt.Horizontal)
        compare(VynUIQmlConstants.cornersForSides(-1), VynViewUtils.VynCornerAllCorners)
        compare(VynUIQmlConstants.fontSize(7, 1), 19)
        compare(VynUIQmlConstants.fontSize(2147483647, 1), 19)
        compare(VynUIQmlConstants.fontSize(-7, 1), 9)
        compare(VynUIQmlConstants.controlFillColor(7),
                VynUIQmlConstants.controlFillColor(VynColorUtils.VynStyleDark))
        compare(VynUIQmlConstants.controlFillColor(-7),
                VynUIQmlConstants.controlFillColor(VynColorUtils.VynStyleLight))
        verify(!Qt.colorEqual(VynUIQmlConstants.controlFillColor(VynColorUtils.VynStyleDark),
                              VynUIQmlConstants.controlFillColor(VynColorUtils.VynStyleLight)))
        compare(VynUIQmlConstants.eqIndexForBandType(-3), -1)
        compare(VynUIQmlConstants.imageUrlForEQBandType(1000, 60), "")
    }

    function test_bindingsFollowSizeAndRatio() {
        control.vynControlSize = VynViewUtils.VynControlSizeRegular
        control.vynPixelRatio = 1.0
        compare(control.height, 24)
        compare(control.radius, 4)
        compare(label.font.pixelSize, 13)

        control.vynPixelRatio = 1.5
        compare(control.height, 36)
        compare(control.radius, 6)
        compare(label.font.pixelSize, 20) // 19.5 rounds up

        control.vynControlSize = VynViewUtils.VynControlSizeExtraLarge
        control.vynPixelRatio = 1.25
        compare(control.height, 45)
        compare(control.radius, 7.5)
        compare(control.width, 76) // Large row: 30 x 1.25 = 37.5 -> 38, twice

        // The metrics give the control its hit area: a click inside lands, one just outside not.
        control.clicks = 0
        mouseClick(control, control.width - 1, control.height - 1)
        compare(control.clicks, 1)
        mouseClick(testCase, control.width + 2, control.height + 2)
        compare(control.clicks, 1)
    }

    function test_colours() {
        // A left-out style is Dark.
        compare(VynUIQmlConstants.labelColorForStyle(),
                VynUIQmlConstants.labelColorForStyle(VynColorUtils.VynStyleDark))
        verify(VynUIQmlConstants.labelColorForStyle(VynColorUtils.VynStyleLight)
               !== VynUIQmlConstants.labelColorForStyle(VynColorUtils.VynStyleDark))
        compare(VynUIQmlConstants.vuMeterOffColor(), Qt.rgba(0.2, 0.2, 0.25, 1))
        compare(VynUIQmlConstants.vuMeterOffColor(VynColorUtils.VynStyleLight),
                Qt.rgba(0.3, 0.3, 0.35, 1))
        compare(VynUIQmlConstants.vuMeterOnColorForIndex(-1), Qt.rgba(1, 0.1, 0.12, 1))
        compare(VynUIQmlConstants.vuMeterGlowColorForIndex(1), Qt.rgba(0.36, 0.83, 1, 1))
        compare(VynUIQmlConstants.vuMeterOnColorsCount(), 32)
        compare(VynUIQmlConstants.styleForColor(Qt.rgba(0.5, 0.5, 0.5, 1)), VynColorUtils.VynStyleDark)
        compare(VynUIQmlConstants.styleForColor("white"), VynColorUtils.VynStyleLight)

        const stops = VynUIQmlConstants.backgroundColorsForStyleWithStops("#3366cc",
                                                                          VynColorUtils.VynStyleLight,
                                                                          [0.25, 0.75])
        compare(stops.length, 4)
        const ends = VynUIQmlConstants.backgroundColorsForStyleWithStops("#3366cc",
                                                                         VynColorUtils.VynStyleLight,
                                                                         [])
        compare(ends.length, 2)
        verify(Qt.colorEqual(stops[0], ends[0]))
        verify(Qt.colorEqual(stops[3], ends[1]))
        const rgb = VynUIQmlConstants.rgbColorMake(0.25, 0.5, 0.75)
        compare(rgb.alpha, 1)
        compare(VynUIQmlConstants.colorWithRGBColor(rgb), Qt.rgba(0.25, 0.5, 0.75, 1))
    }
}
