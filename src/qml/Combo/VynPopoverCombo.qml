import QtQuick
import VynUI 1.2

// A popover combo: a combo box whose item list opens in a VynPopover pointing at it, for
// longer lists and for choices that deserve a panel of their own. It behaves as VynComboBox
// (selection, mixed state, keys, long press); the popover is made on its first opening.
VynComboBox {
    usesPopover: true
}
