pragma ComponentBehavior: Bound

import QtQuick
import VynUI 1.2

// A small dynamics thumbnail bound to a VynUIDynThumbnailComponent: the transfer curves of the
// component's dynamics blocks over its threshold range, in both directions.
//
// A click shows the details layer. Its on/off button runs the component's confirmation
// (presentConfirmChangeAlertIfNeededQml) and then emits activationClicked(turnOn) on the
// component; its magnifier emits the component's clicked().
VynItem {
    id: root

    property VynUIDynThumbnailComponent uiComponent: null
    property bool detailsShown: false

    readonly property int isOn: uiComponent ? uiComponent.isOn : 0
    readonly property bool isEmpty: uiComponent ? uiComponent.isEmpty : true

    implicitWidth: vynMetrics.dynThumbnailStandardWidth
    implicitHeight: vynMetrics.dynThumbnailStandardHeight

    function refresh() {
        curves.model = root.uiComponent ? root.uiComponent.commonDynamics : null
        curves.rebuild()
    }

    Connections {
        target: root.uiComponent
        function onCommonDynamicsChanged() { root.refresh() }
        function onCommonDynamicsValuesChanged() { root.refresh() }
        function onIsOnChanged() { curves.rebuild() }
    }
    onUiComponentChanged: refresh()

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop {
                position: 0
                color: root.isOn === 1 ? VynUIQmlConstants.eqThumbnailOnBkgGradientColorForStyle(0, root.vynStyle)
                       : root.isOn === 2 ? VynUIQmlConstants.eqThumbnailMixedBkgGradientColorForStyle(0, root.vynStyle)
                                         : VynUIQmlConstants.eqThumbnailOffBkgGradientColorForStyle(0, root.vynStyle)
            }
            GradientStop {
                position: 1
                color: root.isOn === 1 ? VynUIQmlConstants.eqThumbnailOnBkgGradientColorForStyle(1, root.vynStyle)
                       : root.isOn === 2 ? VynUIQmlConstants.eqThumbnailMixedBkgGradientColorForStyle(1, root.vynStyle)
                                         : VynUIQmlConstants.eqThumbnailOffBkgGradientColorForStyle(1, root.vynStyle)
            }
        }
        border.width: root.vynMetrics.graphThumbnailBorder
        border.color: VynUIQmlConstants.eqThumbnailBorderColorForStyle(root.vynStyle)
    }

    // The unity line, for reference.
    Rectangle {
        width: Math.hypot(root.width, root.height)
        height: 1
        x: (root.width - width) / 2
        y: root.height / 2
        rotation: -Math.atan2(root.height, root.width) * 180 / Math.PI
        color: VynUIQmlConstants.eqThumbnailGridColorsForStyle(root.vynStyle)
        opacity: 0.6
    }

    VynDynCurves {
        id: curves

        anchors.fill: parent
        vynStyle: root.vynStyle
        visible: !root.isEmpty
        inMin: root.uiComponent ? root.uiComponent.thresholdMin : -36
        inMax: root.uiComponent ? root.uiComponent.thresholdMax : 0
        outMin: inMin
        outMax: inMax
        lineWidth: root.vynMetrics.graphThumbnailCurveWidth
    }

    MouseArea {
        anchors.fill: parent
        enabled: !root.detailsShown && root.uiComponent !== null && root.uiComponent.enabled
        onClicked: root.detailsShown = true
    }

    VynGraphThumbnailDetails {
        anchors.fill: parent
        vynStyle: root.vynStyle
        shown: root.detailsShown
        isOn: root.isOn
        onOnOffClicked: {
            root.detailsShown = false
            const component = root.uiComponent
            const turnOn = component.isOn !== 1
            component.presentConfirmChangeAlertIfNeededQml(function () {
                component.activationClicked(turnOn)
            })
        }
        onMagnifierClicked: {
            root.detailsShown = false
            root.uiComponent.clicked()
        }
    }
}
