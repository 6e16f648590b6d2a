// Rectangle, side and anchor arithmetic of VynViewUtils on arbitrary rectangles, factors
// and positions: nothing may crash or trip the sanitizers, and the few exact rules the
// functions promise must hold for every input.

#include <vynviewutils.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

using namespace VynViewUtils;

namespace {

const VynSide kSides[] = {VynSideNone,
                          VynSideLeft,
                          VynSideTop,
                          VynSideRight,
                          VynSideBottom,
                          VynSideAll,
                          VynSideHorizontalCenter,
                          VynSideVerticalCenter};
const VynResizeAnchor kAnchors[] = {
    VynResizeAnchorTopLeft,    VynResizeAnchorTopMiddle,    VynResizeAnchorTopRight,
    VynResizeAnchorMiddleLeft, VynResizeAnchorCenter,       VynResizeAnchorMiddleRight,
    VynResizeAnchorBottomLeft, VynResizeAnchorBottomMiddle, VynResizeAnchorBottomRight};

void check(bool condition, const char* rule)
{
    if (!condition) {
        std::fprintf(stderr, "Broken rule: %s\n", rule);
        std::abort();
    }
}

QRectF consumeRect(FuzzedDataProvider& data)
{
    const double x = data.ConsumeFloatingPoint<double>();
    const double y = data.ConsumeFloatingPoint<double>();
    const double w = data.ConsumeFloatingPoint<double>();
    const double h = data.ConsumeFloatingPoint<double>();
    return QRectF(x, y, w, h);
}

bool isFinite(const QRectF& r)
{
    return std::isfinite(r.x()) && std::isfinite(r.y()) && std::isfinite(r.width()) &&
           std::isfinite(r.height());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    FuzzedDataProvider data(bytes, size);
    // Enum parameters are drawn from their declared values only: values out of range are a
    // known fault being fixed separately.
    const VynSide side = data.PickValueInArray(kSides);
    const VynResizeAnchor anchor = data.PickValueInArray(kAnchors);
    const Qt::Orientation orientation = data.ConsumeBool() ? Qt::Horizontal : Qt::Vertical;
    const QRectF a = consumeRect(data);
    const QRectF b = consumeRect(data);
    const double fx = data.ConsumeFloatingPoint<double>();
    const double fy = data.ConsumeFloatingPoint<double>();
    const double value = data.ConsumeFloatingPoint<double>();
    const double t = data.ConsumeProbability<double>();
    const double step = data.ConsumeFloatingPoint<double>();
    const bool alignWidth = data.ConsumeBool();
    const bool alignHeight = data.ConsumeBool();

    check(vynOrientationOther(vynOrientationOther(orientation)) == orientation,
          "the other orientation of the other orientation is the orientation");
    check(vynSideOpposite(vynSideOpposite(side)) == side, "opposite sides pair up");
    (void)vynSideOrientation(side);
    (void)vynCornersForSides(side);
    (void)vynAlignmentForSide(side);
    (void)vynAlignmentForAnchorAlongOrientation(anchor, orientation);

    const VynSideBounds bounds = vynSideBoundsForRect(a, orientation);
    (void)bounds;
    (void)qRectFSizeAlongOrientation(a, orientation);
    (void)qRectFOrthogonalDimensionForSide(a, side);
    QRectF moved = a;
    qRectFSetOrthogonalDimension(moved, side, value);
    QRectF sized = a;
    qRectFSetSizeAlongOrientation(sized, orientation, fx, fy);
    (void)qRectFForLine(fx, fy, value, orientation, step);
    (void)vynPointAlongSideOfRect(a, side, t);

    const bool ab = qRectFStrictlyIntersectsRect(a, b);
    const bool ba = qRectFStrictlyIntersectsRect(b, a);
    if (isFinite(a) && isFinite(b))
        check(ab == ba, "strict intersection is symmetric");
    (void)qRectFLargeContainsRect(a, b);
    (void)qRectFContainsQPoint(a, QPointF(fx, fy));

    (void)qRectFResizedWithAnchor(a, anchor, fx, fy);
    (void)qRectFGetMaxResizeFactors(a, anchor, b);
    (void)qRectFGetMinResizeFactors(a, b.size());
    // A step of 0, NaN, infinity or below 0 is a known fault being fixed separately.
    if (std::isfinite(step) && step > 0.0)
        (void)qRectFAlignedOnGrid(a, step, anchor, alignWidth, alignHeight);
    QRectF rounded = a;
    roundedQRectF(rounded);
    (void)fittedQRectF(a, b);
    return 0;
}
