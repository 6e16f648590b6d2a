import QtQuick
import VynUI 1.2

// A slider and a slide field side by side, both bound to one VynUISlideFieldComponent: the
// slider for coarse moves, the field for the exact number and the unit. Build it like
// VynUISlider: `VynUISliderAndField { uiSlideFieldComponent: host.delayComponent }`.
// `title` shows the parameter's name before the slider (the component's name by default).
VynItem {
    id: root
    property VynUISlideFieldComponent uiSlideFieldComponent: ownComponent
    property string title: uiSlideFieldComponent && uiSlideFieldComponent.wantsName
                           ? uiSlideFieldComponent.name : ""
    property real titleWidth: 0
    property real fieldWidth: 6 * vynMetrics.textFieldHeight
    property alias slider: sliderItem
    property alias field: fieldItem
    readonly property real _spacing: vynMetrics.marginSpace

    implicitHeight: Math.max(sliderItem.implicitHeight, fieldItem.implicitHeight)
    implicitWidth: titleItem.width + 12 * sliderItem.implicitHeight + fieldWidth + 2 * _spacing

    VynLabel {
        id: titleItem
        visible: root.title.length > 0
        width: visible ? (root.titleWidth > 0 ? root.titleWidth : implicitWidth + root._spacing) : 0
        height: root.height
        text: root.title
        vynStyle: root.vynStyle
        vynControlSize: root.vynControlSize
        vynPixelRatio: root.vynPixelRatio
        vynPixelRatioFont: root.vynPixelRatioFont
        level: 1
    }
    VynUISlider {
        id: sliderItem
        x: titleItem.width
        width: root.width - x - fieldItem.width - root._spacing
        anchors.verticalCenter: parent.verticalCenter
        vynStyle: root.vynStyle
        vynControlSize: root.vynControlSize
        vynPixelRatio: root.vynPixelRatio
        vynPixelRatioFont: root.vynPixelRatioFont
        uiSliderComponent: root.uiSlideFieldComponent
    }
    VynUISlideField {
        id: fieldItem
        x: root.width - width
        width: root.fieldWidth
        anchors.verticalCenter: parent.verticalCenter
        vynStyle: root.vynStyle
        vynControlSize: root.vynControlSize
        vynPixelRatio: root.vynPixelRatio
        vynPixelRatioFont: root.vynPixelRatioFont
        uiSlideFieldComponent: root.uiSlideFieldComponent
        allowsPanning: true
    }

    VynUISlideFieldComponent {
        id: ownComponent
    }
}
