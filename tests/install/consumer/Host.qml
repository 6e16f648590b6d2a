import QtQuick
import VynUI 1.2

// A host's document using the installed module: a native type, two of the module's documents
// and a script library. The install test lints it against the installed tree before the
// consumer loads it.
Item {
    id: root

    readonly property string testString: probe.testString
    readonly property int side: VynViewUtils.VynSideRight
    readonly property real mean: ArrayUtils.average([2, 4, 9])
    readonly property string title: caption.text
    readonly property real fieldValue: field.value

    width: 320
    height: 120

    KORU_UI {
        id: probe
    }

    VynLabel {
        id: caption
        text: "Gain"
    }

    VynSlideField11 {
        id: field
        anchors.top: caption.bottom
        from: 0
        to: 10
        value: root.mean
    }
}
