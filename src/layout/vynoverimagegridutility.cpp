#include "vynoverimagegridutility.h"

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace VynViewUtils;

namespace {

// Horizontal and vertical position codes of an anchor: 0 left or top, 1 middle, 2 right or
// bottom.
int horizontalCode(VynResizeAnchor anchor)
{
    return int(anchor) & 15;
}
int verticalCode(VynResizeAnchor anchor)
{
    return (int(anchor) >> 4) & 15;
}

bool isAnchor(int value)
{
    const int h = value & 15;
    const int v = (value >> 4) & 15;
    return h <= 2 && v <= 2 && (value & ~0xff) == 0;
}

} // namespace

VynOverImageGridUtility::VynOverImageGridUtility(QObject* parent) : QObject(parent) {}

VynOverImageGridUtility::~VynOverImageGridUtility() = default;

void VynOverImageGridUtility::logRefusal(const QString& message, const char* function) const
{
    qWarning("VynOverImageGridUtility: %s (%s)", qPrintable(message), function);
}

void VynOverImageGridUtility::setZoomScale(double scale)
{
    if (std::isnan(scale) || scale == std::numeric_limits<double>::infinity()) {
        logRefusal(QStringLiteral("Refused a zoom scale that is not a finite number"),
                   "setZoomScale");
        return;
    }
    m_zoomScale = std::max(kMinimumZoomScale, scale);
    emit zoomScaleChanged();
}

void VynOverImageGridUtility::setWidthIsSizable(bool sizable)
{
    if (m_widthIsSizable == sizable)
        return;
    m_widthIsSizable = sizable;
    emit widthIsSizableChanged();
}

void VynOverImageGridUtility::setHeightIsSizable(bool sizable)
{
    if (m_heightIsSizable == sizable)
        return;
    m_heightIsSizable = sizable;
    emit heightIsSizableChanged();
}

void VynOverImageGridUtility::setIsProportional(bool proportional)
{
    if (m_isProportional == proportional)
        return;
    m_isProportional = proportional;
    emit isProportionalChanged();
}

void VynOverImageGridUtility::setMinimumSize(const QSizeF& size)
{
    if (std::isnan(size.width()) || std::isnan(size.height())) {
        logRefusal(QStringLiteral("Refused a minimum size that is not a number"), "setMinimumSize");
        return;
    }
    m_minimumSize = size;
}

void VynOverImageGridUtility::setFirstFrame(const QRectF& frame)
{
    m_firstFrame = frame;
    emit firstFrameChanged();
}

void VynOverImageGridUtility::setShowsGrid(bool shows)
{
    if (m_showsGrid == shows)
        return;
    m_showsGrid = shows;
    emit showsGridChanged();
}

void VynOverImageGridUtility::setShowsGridAnimated(bool shows, bool animated)
{
    Q_UNUSED(animated)
    setShowsGrid(shows);
}

void VynOverImageGridUtility::setShowsAnchors(bool shows)
{
    if (m_showsAnchors == shows)
        return;
    m_showsAnchors = shows;
    emit showsAnchorsChanged();
}

VynResizeSettings VynOverImageGridUtility::settingsForTranslation(const QSizeF& translation,
                                                                  bool altIsPressed,
                                                                  bool shiftIsPressed) const
{
    VynResizeSettings settings;
    const double w = m_firstFrame.width();
    const double h = m_firstFrame.height();
    const int hx = horizontalCode(m_anchor);
    const int vy = verticalCode(m_anchor);

    if (m_isProportional || shiftIsPressed) {
        // The anchor, the dragged corner opposite it, and where the pointer took that corner;
        // all relative to the frame.
        const QPointF a(hx * w / 2.0, vy * h / 2.0);
        const QPointF d0((1.0 - hx / 2.0) * w, (1.0 - vy / 2.0) * h);
        const QPointF p = d0 + QPointF(translation.width(), translation.height());
        const QPointF axis = d0 - a;
        const double axisLength2 = QPointF::dotProduct(axis, axis);
        double ratio;
        if (axisLength2 == 0.0) {
            // The centre anchor has no diagonal: the ratio is 0/0.
            ratio = std::numeric_limits<double>::quiet_NaN();
        } else {
            QPointF q;
            if (axis.x() == 0.0)
                q = QPointF(a.x(), p.y());
            else if (axis.y() == 0.0)
                q = QPointF(p.x(), a.y());
            else
                q = a + axis * (QPointF::dotProduct(p - a, axis) / axisLength2);
            const QPointF aq = q - a;
            ratio = QPointF::dotProduct(aq, aq) / axisLength2;
        }
        const double factor = double(std::sqrt(float(ratio)));
        settings.widthFactor = factor;
        settings.heightFactor = factor;
    } else {
        const QSizeF minimum = qRectFGetMinResizeFactors(m_firstFrame, m_minimumSize);
        if (hx != 1 && m_widthIsSizable) {
            const double s = hx == 2 ? -1.0 : 1.0;
            settings.widthFactor = std::max(minimum.width(), (w + s * translation.width()) / w);
        }
        if (vy != 1 && m_heightIsSizable) {
            const double s = vy == 2 ? -1.0 : 1.0;
            settings.heightFactor = std::max(minimum.height(), (h + s * translation.height()) / h);
        }
    }

    settings.anchor = altIsPressed ? VynResizeAnchorCenter : m_anchor;
    settings.widthIsSizable = m_widthIsSizable;
    settings.heightIsSizable = m_heightIsSizable;
    settings.isProportional = m_isProportional;
    settings.isCentered = altIsPressed;
    return settings;
}

void VynOverImageGridUtility::beginResizingForAnchor(VynResizeAnchor p_anchor)
{
    if (!isAnchor(int(p_anchor))) {
        logRefusal(QStringLiteral("Refused resize anchor %1").arg(int(p_anchor)),
                   "beginResizingForAnchor");
        return;
    }
    m_anchor = p_anchor;
    m_isResizing = true;
    emit isResizingChanged();
    emit geometryUpdateRequested();
}

void VynOverImageGridUtility::resizeWithTranslation(QSizeF p_translation, bool p_altIsPressed,
                                                    bool p_shiftIsPressed, bool p_controlIsPressed)
{
    if (std::isnan(p_translation.width()) || std::isnan(p_translation.height())) {
        logRefusal(QStringLiteral("Refused a translation that is not a number"),
                   "resizeWithTranslation");
        return;
    }
    VynResizeSettings settings =
        settingsForTranslation(p_translation, p_altIsPressed, p_shiftIsPressed);
    emit isResizingWithSettings(settings, p_controlIsPressed, p_shiftIsPressed);
}

void VynOverImageGridUtility::endResizing()
{
    m_isResizing = false;
    emit isResizingChanged();
    emit didEndResizing();
}
