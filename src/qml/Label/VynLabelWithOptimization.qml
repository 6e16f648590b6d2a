import QtQuick
import VynUI 1.2

// A value label placed along an axis by a VynLabelOptimizer shared with its siblings.
//
// Set `pos` (the centre of the label on the axis when it is not shifted) and `optimizer`.
// The label's extent `len` is its implicit width unless set; set it to -1 to hide the
// label. The optimizer shifts the label away from colliding neighbours and from the ends
// of its interval and hides it when it cannot be placed: `visible` follows that result,
// and `x` and `y` are both bound to `optimizedPosition`, the left end of the placed
// label. Rebind the coordinate that is not along the axis (y for a horizontal axis).
//
// The label joins its optimizer once it is complete, moves to a new optimizer when
// `optimizer` changes (leaving the previous one), and leaves it when destroyed.
VynLabelWithToolTip {
    id: root

    property alias pos: optimizedLabelItem.position
    property alias len: optimizedLabelItem.length
    property var optimizer: null
    readonly property alias optimizedPosition: optimizedLabelItem.optimizedPosition
    readonly property alias optimizedLabel: optimizedLabelItem

    // The optimizer the label is registered with, so that it can leave it again.
    property var __registeredOptimizer: null
    property bool __completed: false

    function __register() {
        if (!__completed || __registeredOptimizer === optimizer)
            return
        if (__registeredOptimizer)
            __registeredOptimizer.removeOptimizedLabel(optimizedLabelItem)
        __registeredOptimizer = optimizer
        if (optimizer)
            optimizer.addOptimizedLabel(optimizedLabelItem)
    }

    visible: optimizedLabelItem.visible
    x: optimizedPosition
    y: optimizedPosition

    onOptimizerChanged: __register()

    VynOptimizedLabel {
        id: optimizedLabelItem

        text: root.text
        length: root.implicitWidth

        Component.onCompleted: {
            root.__completed = true
            root.__register()
        }
        Component.onDestruction: {
            if (root.__registeredOptimizer)
                root.__registeredOptimizer.removeOptimizedLabel(optimizedLabelItem)
        }
    }
}
