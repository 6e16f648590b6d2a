#include "vynviewutils.h"

#include <qtcommonsconstants.h>
#include <vyncommonconstants.h>

#include <QVariantList>

#include <cfloat>
#include <cmath>
#include <limits>

namespace VynViewUtils {

namespace {

int horizontalCode(VynResizeAnchor anchor)
{
    return static_cast<int>(anchor) & 0xF;
}

int verticalCode(VynResizeAnchor anchor)
{
    return (static_cast<int>(anchor) >> 4) & 0xF;
}

QString localizedMultiple()
{
    return QtCommonsConstants::qLocalizedString(QStringLiteral("MULTIPLE"),
                                                QStringLiteral("VynLocalizable"), QString());
}

// floor(v / step) * step with the quotient floored in single precision; a quotient of
// magnitude 2^23 or more has no fraction left in single precision and is used as it is.
// Expects a finite step > 0. A value whose quotient is not finite in single precision (a
// non-finite value, or one too large for the step) is left as it is.
double snapDown(double v, double step)
{
    const double exact = v / step;
    if (!(std::fabs(exact) <= double(std::numeric_limits<float>::max())))
        return v;
    float quotient = static_cast<float>(exact);
    if (std::fabs(quotient) < 8388608.0f)
        quotient = std::floor(quotient);
    return static_cast<double>(quotient) * step;
}

double roundSingle(double v)
{
    return static_cast<double>(std::round(static_cast<float>(v)));
}

} // namespace

bool VynResizeSettings::operator==(const VynResizeSettings& o) const
{
    return widthFactor == o.widthFactor && heightFactor == o.heightFactor && anchor == o.anchor &&
           widthIsSizable == o.widthIsSizable && heightIsSizable == o.heightIsSizable &&
           isProportional == o.isProportional && isCentered == o.isCentered;
}

Qt::Orientation vynOrientationOther(Qt::Orientation orientation)
{
    return orientation == Qt::Vertical ? Qt::Horizontal : Qt::Vertical;
}

VynSide vynSideOpposite(VynSide side)
{
    switch (side) {
    case VynSideLeft:
        return VynSideRight;
    case VynSideRight:
        return VynSideLeft;
    case VynSideTop:
        return VynSideBottom;
    case VynSideBottom:
        return VynSideTop;
    default:
        return side;
    }
}

Qt::Orientation vynSideOrientation(VynSide side)
{
    switch (side) {
    case VynSideLeft:
    case VynSideRight:
    case VynSideHorizontalCenter:
        return Qt::Vertical;
    default:
        return Qt::Horizontal;
    }
}

VynSideBounds vynSideBoundsMake(double min, double max)
{
    VynSideBounds bounds;
    bounds.min = min;
    bounds.max = max;
    return bounds;
}

VynSideBounds vynSideBoundsForRect(const QRectF& rect, const Qt::Orientation& orientation)
{
    if (orientation == Qt::Horizontal)
        return vynSideBoundsMake(rect.x(), rect.x() + rect.width());
    return vynSideBoundsMake(rect.y(), rect.y() + rect.height());
}

VynCorner vynCornersForSides(VynSide sides)
{
    const int s = static_cast<int>(sides);
    const auto has = [s](VynSide edge) { return (s & edge) != 0; };
    int corners = VynCornerNone;
    if (has(VynSideLeft) && has(VynSideTop))
        corners |= VynCornerTopLeft;
    if (has(VynSideTop) && has(VynSideRight))
        corners |= VynCornerTopRight;
    if (has(VynSideLeft) && has(VynSideBottom))
        corners |= VynCornerBottomLeft;
    if (has(VynSideRight) && has(VynSideBottom))
        corners |= VynCornerBottomRight;
    return static_cast<VynCorner>(corners);
}

int vynAlignmentForSide(const VynSide& side)
{
    switch (side) {
    case VynSideLeft:
    case VynSideTop:
        return 0;
    case VynSideHorizontalCenter:
    case VynSideVerticalCenter:
        return 1;
    default:
        return 2;
    }
}

int vynAlignmentForAnchorAlongOrientation(const VynResizeAnchor& anchor,
                                          Qt::Orientation orientation)
{
    return orientation == Qt::Vertical ? horizontalCode(anchor) : verticalCode(anchor);
}

double qRectFSizeAlongOrientation(const QRectF& rect, const Qt::Orientation& orientation)
{
    return orientation == Qt::Vertical ? rect.height() : rect.width();
}

double qRectFOrthogonalDimensionForSide(const QRectF& rect, const VynSide& side)
{
    switch (side) {
    case VynSideLeft:
        return rect.x();
    case VynSideTop:
        return rect.y();
    case VynSideRight:
        return rect.x() + rect.width();
    case VynSideBottom:
        return rect.y() + rect.height();
    case VynSideVerticalCenter:
        return rect.y() + 0.5 * rect.height();
    default:
        return rect.x() + 0.5 * rect.width();
    }
}

QRectF& qRectFSetOrthogonalDimension(QRectF& rect, const VynSide& side, const double& value)
{
    switch (side) {
    case VynSideLeft:
        rect.moveLeft(value);
        break;
    case VynSideTop:
        rect.moveTop(value);
        break;
    case VynSideRight:
        rect.moveLeft(value - rect.width());
        break;
    case VynSideBottom:
        rect.moveTop(value - rect.height());
        break;
    case VynSideHorizontalCenter:
        rect.moveLeft(value - 0.5 * rect.width());
        break;
    case VynSideVerticalCenter:
        rect.moveTop(value - 0.5 * rect.height());
        break;
    default:
        break;
    }
    return rect;
}

QRectF& qRectFSetSizeAlongOrientation(QRectF& rect, Qt::Orientation orientation, double size,
                                      double shift)
{
    if (orientation == Qt::Vertical) {
        rect.setHeight(size);
        rect.moveTop(rect.y() + shift);
    } else {
        rect.setWidth(size);
        rect.moveLeft(rect.x() + shift);
    }
    return rect;
}

QRectF qRectFForLine(double start, double end, double position, Qt::Orientation orientation,
                     double thickness)
{
    const double low = std::min(start, end);
    const double length = std::fabs(end - start);
    if (orientation == Qt::Vertical)
        return QRectF(position - 0.5 * thickness, low, thickness, length);
    return QRectF(low, position - 0.5 * thickness, length, thickness);
}

QPointF vynPointAlongSideOfRect(const QRectF& rect, VynSide side, double t)
{
    const double x = rect.x(), y = rect.y(), w = rect.width(), h = rect.height();
    switch (side) {
    case VynSideLeft:
        return QPointF(x, y + h * t);
    case VynSideRight:
        return QPointF(x + w, y + h * t);
    case VynSideTop:
        return QPointF(x + w * t, y);
    case VynSideBottom:
        return QPointF(x + w * t, y + h);
    default:
        return QPointF(x + 0.5 * w, y + 0.5 * h);
    }
}

bool qRectFStrictlyIntersectsRect(const QRectF& a, const QRectF& b)
{
    if (b.x() >= a.x() + a.width())
        return false;
    if (a.x() >= b.x() + b.width())
        return false;
    if (b.y() >= a.y() + a.height())
        return false;
    if (a.y() >= b.y() + b.height())
        return false;
    return true;
}

bool qRectFLargeContainsRect(const QRectF& outer, const QRectF& inner)
{
    return inner.x() >= outer.x() && outer.x() + outer.width() >= inner.x() + inner.width() &&
           inner.y() >= outer.y() && outer.y() + outer.height() >= inner.y() + inner.height();
}

bool qRectFContainsQPoint(const QRectF& rect, const QPointF& point)
{
    return rect.contains(point);
}

QRectF qRectFResizedWithAnchor(const QRectF& rect, const VynResizeAnchor& anchor, double fx,
                               double fy)
{
    const double w = rect.width() * fx;
    const double h = rect.height() * fy;
    const double x = rect.x() - (w - rect.width()) * horizontalCode(anchor) * 0.5;
    const double y = rect.y() - (h - rect.height()) * verticalCode(anchor) * 0.5;
    return QRectF(x, y, w, h);
}

QSizeF qRectFGetMaxResizeFactors(const QRectF& rect, const VynResizeAnchor& anchor,
                                 const QRectF& bounds)
{
    const double kx = horizontalCode(anchor) * 0.5;
    const double ky = verticalCode(anchor) * 0.5;
    const double x = rect.x(), y = rect.y(), w = rect.width(), h = rect.height();
    const double left = kx * w;
    const double top = ky * h;
    const double right = (1.0 - kx) * w;
    const double bottom = (1.0 - ky) * h;

    double widthFactor = DBL_MAX;
    double heightFactor = DBL_MAX;
    // A side whose room is zero or negative sets no limit: the anchor point already lies on
    // or beyond that edge of the bounds.
    if (left > 0) {
        const double room = left + x - bounds.x();
        if (room > 0)
            widthFactor = std::min(widthFactor, room / left);
    }
    if (top > 0) {
        const double room = top + y - bounds.y();
        if (room > 0)
            heightFactor = std::min(heightFactor, room / top);
    }
    if (right > 0) {
        const double room = (bounds.x() + bounds.width()) - (x + w) + right;
        if (room > 0)
            widthFactor = std::min(widthFactor, room / right);
    }
    if (bottom > 0) {
        const double room = (bounds.y() + bounds.height()) - (y + h) + bottom;
        if (room > 0)
            heightFactor = std::min(heightFactor, room / bottom);
    }
    return QSizeF(widthFactor, heightFactor);
}

QSizeF qRectFGetMinResizeFactors(const QRectF& rect, const QSizeF& minimum)
{
    return QSizeF(minimum.width() / rect.width(), minimum.height() / rect.height());
}

QRectF qRectFAlignedOnGrid(const QRectF& rect, double step, const VynResizeAnchor& anchor,
                           bool alignWidth, bool alignHeight, bool unused)
{
    Q_UNUSED(anchor)
    Q_UNUSED(unused)
    if (!(step > 0.0) || !std::isfinite(step))
        return rect;
    const double x = snapDown(rect.x(), step);
    const double y = snapDown(rect.y(), step);
    double w = rect.width();
    double h = rect.height();
    if (alignHeight)
        h = snapDown(h + y, step) - y;
    if (alignWidth)
        w = snapDown(w + x, step) - x;
    return QRectF(x, y, w, h);
}

QRectF roundedQRectF(QRectF& rect)
{
    rect = QRectF(roundSingle(rect.x()), roundSingle(rect.y()), roundSingle(rect.width()),
                  roundSingle(rect.height()));
    return rect;
}

QRectF fittedQRectF(QRectF rect, QRectF bounds)
{
    double x = rect.x(), y = rect.y(), w = rect.width(), h = rect.height();
    if (bounds.x() > x) {
        w -= bounds.x() - x;
        x = bounds.x();
    }
    if (bounds.y() > y) {
        h -= bounds.y() - y;
        y = bounds.y();
    }
    if (x + w > bounds.x() + bounds.width())
        w = bounds.x() + bounds.width() - x;
    if (y + h > bounds.y() + bounds.height())
        h = bounds.y() + bounds.height() - y;
    return QRectF(x, y, w, h);
}

VynSpinBoxValue VynSpinBoxValueMake(float value, float minValue, float maxValue, bool unused)
{
    Q_UNUSED(unused)
    VynSpinBoxValue record;
    record.value = value;
    record.minValue = minValue;
    record.maxValue = maxValue;
    record.isMultiple = false;
    return record;
}

VynTextFieldValue VynTextFieldValueMake(const QString& text, bool isMultiple)
{
    VynTextFieldValue record;
    if (isMultiple) {
        record.text = kVynNullString;
        record.placeholder = localizedMultiple();
    } else {
        record.text = text;
        record.placeholder = kVynNullString;
    }
    record.isMultiple = isMultiple;
    return record;
}

VynComboValue VynComboValueMake(QSet<int> indexes)
{
    VynComboValue record;
    record.selectedIndexes = indexes;
    if (indexes.size() > 1) {
        record.text = localizedMultiple();
        record.isMultiple = true;
    }
    return record;
}

void registerConverters()
{
    if (!QMetaType::hasRegisteredConverterFunction<QSet<int>, QVariantList>()) {
        QMetaType::registerConverter<QSet<int>, QVariantList>([](const QSet<int>& set) {
            QList<int> sorted(set.cbegin(), set.cend());
            std::sort(sorted.begin(), sorted.end());
            QVariantList list;
            for (int index : std::as_const(sorted))
                list.append(index);
            return list;
        });
    }
    if (!QMetaType::hasRegisteredConverterFunction<QVariantList, QSet<int>>()) {
        QMetaType::registerConverter<QVariantList, QSet<int>>([](const QVariantList& list) {
            QSet<int> set;
            for (const QVariant& v : list)
                set.insert(v.toInt());
            return set;
        });
    }
}

} // namespace VynViewUtils
