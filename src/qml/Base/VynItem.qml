import QtQuick
import VynUI 1.2

// The base of the module's controls: an Item that carries the look every control is drawn
// in. A control reads its metrics and colours from VynUIQmlConstants for these values and
// passes them on to the controls it is made of.
//
// - vynStyle: VynColorUtils.VynStyleLight or VynColorUtils.VynStyleDark (default dark).
// - vynControlSize: a VynViewUtils.VynControlSize (default Regular).
// - vynPixelRatio: the scale of the control's metrics (sizes, margins, radii; default 1.0).
// - vynPixelRatioFont: the scale of its font sizes, kept apart so that text can grow
//   without the control's frame (default 1.0).
// - vynMetrics: the catalogue's metrics and colours for this look (a VynUIMetrics, shared by
//   every item with the same look). Bindings read `vynMetrics.marginSpace` rather than
//   calling the catalogue, so they run again only when the look changes.
Item {
    property int vynStyle: VynColorUtils.VynStyleDark
    property int vynControlSize: VynViewUtils.VynControlSizeRegular
    property real vynPixelRatio: 1.0
    property real vynPixelRatioFont: 1.0
    readonly property VynUIMetrics vynMetrics: VynUIQmlConstants.metrics(vynControlSize, vynPixelRatio,
                                                                         vynPixelRatioFont, vynStyle)
}
