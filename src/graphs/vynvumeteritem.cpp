#include "vynvumeteritem.h"

#include "vynuiqmlconstants.h"
#include "vynvumeterconstants.h"
#include "vynvumetermanager.h"

#include <QHash>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QQuickWindow>
#include <QSGGeometryNode>
#include <QSGRendererInterface>
#include <QSGRenderNode>
#include <QSGVertexColorMaterial>
#include <QVariantMap>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

// A level falls by this share of the full scale per tick.
constexpr double kFallPerTick = 0.12;
// Growth of the short-hold mark's fall acceleration per tick.
constexpr double kShortHoldAcceleration = 0.00002;
// A press held this long is a long press.
constexpr int kLongPressInterval = 800;

double clampBetween(double value, double low, double high)
{
    // As a QML Math.min(Math.max(...)) does: the upper bound wins when they cross.
    return std::min(std::max(value, low), high);
}

// What one frame of a meter shows, in item coordinates.
struct Frame
{
    QRectF bounds;
    double radius = 0;
    double border = 0;
    QColor fill;
    QColor borderColor;
    QVector<QRectF> cells;
    QVector<QColor> colors;
    struct Glow
    {
        QRectF rect;
        QColor color;
    };
    QVector<Glow> glows;
    double glowRadius = 0;
};

// Pictures shared by every meter of the same look: antialiased rounded shapes are the dear
// part of a meter's painting, and a wall of meters has few distinct sizes and colours.
QImage& cachedImage(const QString& key, const std::function<void(QImage&)>& paint,
                    const QSizeF& size, qreal dpr)
{
    static QHash<QString, QImage> cache;
    auto found = cache.find(key);
    if (found != cache.end())
        return *found;
    // A host animating sizes would grow the cache without end: start again past a bound.
    if (cache.size() > 256)
        cache.clear();
    QImage image(QSize(int(std::ceil(size.width() * dpr)), int(std::ceil(size.height() * dpr))),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::transparent);
    paint(image);
    return *cache.insert(key, image);
}

const QImage& bodyImage(const Frame& frame, qreal dpr)
{
    const QString key = QStringLiteral("body %1 %2 %3 %4 %5 %6 %7")
                            .arg(frame.bounds.width())
                            .arg(frame.bounds.height())
                            .arg(frame.radius)
                            .arg(frame.border)
                            .arg(frame.fill.rgba())
                            .arg(frame.borderColor.rgba())
                            .arg(dpr);
    return cachedImage(
        key,
        [&](QImage& image) {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing, true);
            const double half = frame.border / 2;
            painter.setPen(frame.border > 0 ? QPen(frame.borderColor, frame.border)
                                            : QPen(Qt::NoPen));
            painter.setBrush(frame.fill);
            painter.drawRoundedRect(frame.bounds.adjusted(half, half, -half, -half), frame.radius,
                                    frame.radius);
        },
        frame.bounds.size(), dpr);
}

const QImage& glowImage(const QSizeF& cell, double radius, const QColor& color, qreal dpr)
{
    const QString key = QStringLiteral("glow %1 %2 %3 %4 %5")
                            .arg(cell.width())
                            .arg(cell.height())
                            .arg(radius)
                            .arg(color.rgba())
                            .arg(dpr);
    const QSizeF size(cell.width() + 2 * radius, cell.height() + 2 * radius);
    return cachedImage(
        key,
        [&](QImage& image) {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing, true);
            painter.setPen(Qt::NoPen);
            // A few rings fading out around the cell.
            constexpr int rings = 3;
            QColor ring = color;
            ring.setAlphaF(0.22f);
            painter.setBrush(ring);
            const QRectF rect(radius, radius, cell.width(), cell.height());
            for (int i = rings; i >= 1; --i) {
                const double grow = radius * i / rings;
                painter.drawRoundedRect(rect.adjusted(-grow, -grow, grow, grow), grow, grow);
            }
        },
        size, dpr);
}

// The meter drawn with QPainter by the software renderer.
class PainterMeterNode : public QSGRenderNode
{
public:
    explicit PainterMeterNode(QQuickWindow* window) : m_window(window) {}

    Frame frame;

    StateFlags changedStates() const override { return {}; }
    RenderingFlags flags() const override { return BoundedRectRendering; }
    QRectF rect() const override
    {
        const double glow = frame.glowRadius + 1;
        return frame.bounds.adjusted(-glow, -glow, glow, glow);
    }

    void render(const RenderState* state) override
    {
        QSGRendererInterface* interface = m_window->rendererInterface();
        auto* painter = static_cast<QPainter*>(
            interface->getResource(m_window, QSGRendererInterface::PainterResource));
        if (!painter)
            return;
        painter->save();
        // The clip region is in window coordinates: set it before the item's transform.
        const QRegion* clip = state->clipRegion();
        if (clip && !clip->isEmpty())
            painter->setClipRegion(*clip, Qt::ReplaceClip);
        painter->setTransform(matrix()->toTransform());
        painter->setOpacity(inheritedOpacity());

        const qreal dpr = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        // Glows lie under the body.
        for (const Frame::Glow& glow : std::as_const(frame.glows)) {
            const double r = frame.glowRadius;
            painter->drawImage(glow.rect.adjusted(-r, -r, r, r),
                               glowImage(glow.rect.size(), r, glow.color, dpr));
        }
        painter->drawImage(frame.bounds, bodyImage(frame, dpr));
        painter->setRenderHint(QPainter::Antialiasing, false);
        for (qsizetype i = 0; i < frame.cells.size(); ++i)
            painter->fillRect(frame.cells.at(i), frame.colors.at(i));
        painter->restore();
    }

private:
    QQuickWindow* m_window;
};

// The meter as one geometry node of coloured triangles, for the hardware renderers:
// the body, one quad per cell and one quad per glow. A new frame with the same layout
// only re-colours the cells that changed.
class GeometryMeterNode : public QSGGeometryNode
{
public:
    GeometryMeterNode() : m_geometry(QSGGeometry::defaultAttributes_ColoredPoint2D(), 0)
    {
        m_geometry.setDrawingMode(QSGGeometry::DrawTriangles);
        setGeometry(&m_geometry);
        setMaterial(&m_material);
    }

    void apply(const Frame& frame)
    {
        const bool sameLayout = frame.bounds == m_frame.bounds && frame.cells == m_frame.cells &&
                                frame.fill == m_frame.fill &&
                                frame.borderColor == m_frame.borderColor &&
                                frame.glows.size() == 0 && m_frame.glows.size() == 0;
        if (sameLayout) {
            auto* vertices = m_geometry.vertexDataAsColoredPoint2D();
            bool changed = false;
            for (qsizetype i = 0; i < frame.colors.size(); ++i) {
                if (frame.colors.at(i) == m_frame.colors.at(i))
                    continue;
                setQuadColor(vertices + m_firstCellVertex + 6 * i, frame.colors.at(i));
                changed = true;
            }
            m_frame = frame;
            if (changed)
                markDirty(QSGNode::DirtyGeometry);
            return;
        }
        m_frame = frame;
        const int quads = 2 + 4 + int(frame.cells.size()) + int(frame.glows.size());
        m_geometry.allocate(6 * quads);
        auto* v = m_geometry.vertexDataAsColoredPoint2D();
        int at = 0;
        for (const Frame::Glow& glow : frame.glows) {
            QColor color = glow.color;
            color.setAlphaF(0.35f);
            const double r = frame.glowRadius;
            setQuad(v + 6 * at++, glow.rect.adjusted(-r, -r, r, r), color);
        }
        const QRectF b = frame.bounds;
        const double w = frame.border;
        setQuad(v + 6 * at++, b.adjusted(w, w, -w, -w), frame.fill);
        setQuad(v + 6 * at++, QRectF(b.left(), b.top(), b.width(), w), frame.borderColor);
        setQuad(v + 6 * at++, QRectF(b.left(), b.bottom() - w, b.width(), w), frame.borderColor);
        setQuad(v + 6 * at++, QRectF(b.left(), b.top() + w, w, b.height() - 2 * w),
                frame.borderColor);
        setQuad(v + 6 * at++, QRectF(b.right() - w, b.top() + w, w, b.height() - 2 * w),
                frame.borderColor);
        // The sixth quad stays empty: a place for nothing keeps the cells' offset simple.
        setQuad(v + 6 * at++, QRectF(), Qt::transparent);
        m_firstCellVertex = 6 * at;
        for (qsizetype i = 0; i < frame.cells.size(); ++i)
            setQuad(v + 6 * at++, frame.cells.at(i), frame.colors.at(i));
        markDirty(QSGNode::DirtyGeometry);
    }

private:
    static void setQuadColor(QSGGeometry::ColoredPoint2D* v, const QColor& color)
    {
        const float a = color.alphaF();
        const uchar r = uchar(color.red() * a), g = uchar(color.green() * a),
                    bl = uchar(color.blue() * a), al = uchar(color.alpha());
        for (int i = 0; i < 6; ++i) {
            v[i].r = r;
            v[i].g = g;
            v[i].b = bl;
            v[i].a = al;
        }
    }
    static void setQuad(QSGGeometry::ColoredPoint2D* v, const QRectF& rect, const QColor& color)
    {
        const float l = float(rect.left()), t = float(rect.top()), r = float(rect.right()),
                    b = float(rect.bottom());
        v[0].x = l, v[0].y = t;
        v[1].x = r, v[1].y = t;
        v[2].x = l, v[2].y = b;
        v[3].x = r, v[3].y = t;
        v[4].x = r, v[4].y = b;
        v[5].x = l, v[5].y = b;
        setQuadColor(v, color);
    }

    QSGGeometry m_geometry;
    QSGVertexColorMaterial m_material;
    Frame m_frame;
    int m_firstCellVertex = 0;
};

} // namespace

VynVUMeterItem::VynVUMeterItem(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents, true);
    setAcceptedMouseButtons(Qt::LeftButton);
    m_animated = isVisible();
    connect(VynVUMeterManager::instance(), &VynVUMeterManager::resetIntervalChanged, this, [this] {
        if (m_resetIntervalFollowsManager)
            emit resetIntervalChanged();
    });
}

VynVUMeterItem::~VynVUMeterItem()
{
    if (m_registered)
        VynVUMeterManager::instance()->unregisterVUMeter(this);
}

void VynVUMeterItem::componentComplete()
{
    QQuickItem::componentComplete();
    updateGeometry();
    reset();
    VynVUMeterManager::instance()->registerVUMeter(this);
    m_registered = true;
}

bool VynVUMeterItem::refuses(double value, bool finiteOnly, const char* function) const
{
    if (std::isnan(value) || (finiteOnly && !std::isfinite(value))) {
        qWarning("%s: refused %g, the meter keeps its value", function, value);
        return true;
    }
    return false;
}

void VynVUMeterItem::setMinValue(double value)
{
    if (refuses(value, true, Q_FUNC_INFO) || value == m_minValue)
        return;
    m_minValue = value;
    emit minValueChanged();
    if (m_defaultFollowsMin)
        emit defaultValueChanged();
    reset();
}

void VynVUMeterItem::setMaxValue(double value)
{
    if (refuses(value, true, Q_FUNC_INFO) || value == m_maxValue)
        return;
    m_maxValue = value;
    emit maxValueChanged();
    reset();
}

void VynVUMeterItem::setDefaultValue(double value)
{
    if (refuses(value, true, Q_FUNC_INFO))
        return;
    const bool changed = value != defaultValue();
    m_defaultFollowsMin = false;
    m_defaultValue = value;
    if (!changed)
        return;
    emit defaultValueChanged();
    reset();
}

void VynVUMeterItem::setReversed(bool reversed)
{
    if (reversed == m_reversed)
        return;
    m_reversed = reversed;
    emit isReversedChanged();
    m_lookDirty = true;
    reset();
}

void VynVUMeterItem::setDisplaysHoldValues(bool on)
{
    if (on == m_displaysHold)
        return;
    m_displaysHold = on;
    emit displaysHoldValuesChanged();
    if (m_shortHoldFollowsHold)
        emit displaysShortHoldValueChanged();
    refreshDisplay();
}

void VynVUMeterItem::setDisplaysShortHoldValue(bool on)
{
    const bool changed = on != displaysShortHoldValue();
    m_shortHoldFollowsHold = false;
    m_displaysShortHold = on;
    if (!changed)
        return;
    emit displaysShortHoldValueChanged();
    refreshDisplay();
}

void VynVUMeterItem::setCurrentValue(double value)
{
    if (refuses(value, false, Q_FUNC_INFO))
        return;
    if (std::isinf(value))
        value = (value > 0) == (m_maxValue >= m_minValue) ? m_maxValue : m_minValue;
    if (value == m_currentValue)
        return;
    m_currentValue = value;
    updateHoldValues();
    if (!m_animated) {
        m_displayed = normalValue(value);
        m_shortHoldIndex = 0;
    }
    emit currentValueChanged();
    refreshDisplay();
}

void VynVUMeterItem::updateHoldValues()
{
    bool changed = false;
    if (m_resetPending || m_currentValue < m_minHold) {
        changed = changed || m_minHold != m_currentValue;
        m_minHold = m_currentValue;
        m_holdTime = 0;
    }
    if (m_resetPending || m_currentValue > m_maxHold) {
        changed = changed || m_maxHold != m_currentValue;
        m_maxHold = m_currentValue;
        m_holdTime = 0;
    }
    if (changed)
        emit holdValuesChanged();
}

void VynVUMeterItem::setAnimated(bool on)
{
    m_animatedFollowsVisible = false;
    if (on == m_animated)
        return;
    m_animated = on;
    emit animatedChanged();
}

void VynVUMeterItem::setDt(int ms)
{
    if (ms == m_dt)
        return;
    m_dt = ms;
    emit dtChanged();
}

void VynVUMeterItem::setShortHoldDuration(int ms)
{
    if (ms == m_shortHoldDuration)
        return;
    m_shortHoldDuration = ms;
    emit shortHoldDurationChanged();
}

double VynVUMeterItem::resetInterval() const
{
    if (m_resetIntervalFollowsManager)
        return double(VynVUMeterManager::instance()->resetInterval()) * 1000.0;
    return m_resetInterval;
}

void VynVUMeterItem::setResetInterval(double ms)
{
    if (refuses(ms, false, Q_FUNC_INFO))
        return;
    const bool changed = ms != resetInterval();
    m_resetIntervalFollowsManager = false;
    m_resetInterval = ms;
    if (changed)
        emit resetIntervalChanged();
}

void VynVUMeterItem::setAutoHorizontal(bool on)
{
    if (on == m_autoHorizontal)
        return;
    m_autoHorizontal = on;
    emit autoHorizontalChanged();
    updateGeometry();
}

void VynVUMeterItem::setVynPixelRatio(double ratio)
{
    if (refuses(ratio, true, Q_FUNC_INFO) || ratio == m_ratio)
        return;
    m_ratio = ratio;
    emit vynPixelRatioChanged();
    updateGeometry();
}

void VynVUMeterItem::setVynControlSize(VynViewUtils::VynControlSize size)
{
    if (size == m_controlSize)
        return;
    m_controlSize = size;
    emit vynControlSizeChanged();
}

void VynVUMeterItem::setVynStyle(VynColorUtils::VynStyle style)
{
    if (style == m_style)
        return;
    m_style = style;
    emit vynStyleChanged();
    m_lookDirty = true;
    update();
}

void VynVUMeterItem::setConstrainedNumberOfCells(int cells)
{
    if (cells == m_constrainedCells)
        return;
    m_constrainedCells = cells;
    emit constrainedNumberOfCellsChanged();
    updateGeometry();
}

void VynVUMeterItem::setAllowsRightClick(bool on)
{
    if (on == m_allowsRightClick)
        return;
    m_allowsRightClick = on;
    emit allowsRightClickChanged();
    updateAcceptedButtons();
}

void VynVUMeterItem::setAllowsLongPress(bool on)
{
    if (on == m_allowsLongPress)
        return;
    m_allowsLongPress = on;
    emit allowsLongPressChanged();
}

double VynVUMeterItem::normalValue(double p_value) const
{
    const double n =
        m_minValue == m_maxValue ? 0.0 : (p_value - m_minValue) / (m_maxValue - m_minValue);
    return m_reversed ? 1.0 - n : n;
}

int VynVUMeterItem::indexOfLevel(double level) const
{
    if (m_cells <= 0)
        return -1;
    return int(std::floor(level * (m_cells - 1)));
}

int VynVUMeterItem::indexOfValue(double value) const
{
    if (m_cells <= 0)
        return -1;
    int index = 0;
    if (m_minValue != m_maxValue) {
        const double position =
            std::floor((value - m_minValue) / (m_maxValue - m_minValue) * (m_cells - 1));
        index = int(std::clamp(position, 0.0, double(m_cells)));
    }
    return m_reversed ? m_cells - 1 - index : index;
}

void VynVUMeterItem::animate()
{
    m_holdTime += m_dt;
    if (m_holdTime > resetInterval()) {
        m_holdTime = 0;
        reset();
    }

    const double target = normalValue(m_currentValue);
    if (m_resetPending || m_displayed < target) {
        m_displayed = target;
    } else if (m_displayed > target) {
        if (m_displayed < target + kFallPerTick)
            m_displayed = target;
        else
            m_displayed = std::max(m_displayed - kFallPerTick, target);
    }

    if (displaysShortHoldValue()) {
        const int index = displayedIndex();
        if (m_resetPending || index > m_shortHoldIndex) {
            m_shortHoldIndex = index;
            m_shortHoldVelocity = 0;
            m_shortHoldAcceleration = 0;
            m_shortHoldTime = 0;
        } else if (index < m_shortHoldIndex) {
            if (m_shortHoldTime < m_shortHoldDuration) {
                m_shortHoldTime += m_dt;
            } else {
                m_shortHoldAcceleration += kShortHoldAcceleration;
                m_shortHoldVelocity += m_dt * m_shortHoldAcceleration;
                if (m_shortHoldIndex > 0) {
                    const int drop = int(std::lround(m_shortHoldVelocity * m_dt));
                    m_shortHoldIndex = std::max(0, m_shortHoldIndex - drop);
                }
            }
        }
    }
    m_resetPending = false;
    refreshDisplay();
}

void VynVUMeterItem::reset()
{
    const double hold = m_animated ? m_currentValue : defaultValue();
    const bool holdsChanged = hold != m_minHold || hold != m_maxHold;
    m_minHold = hold;
    m_maxHold = hold;
    m_shortHoldIndex = 0;
    m_displayed = normalValue(m_animated ? defaultValue() : m_currentValue);
    m_resetPending = true;
    if (holdsChanged)
        emit holdValuesChanged();
    refreshDisplay();
}

double VynVUMeterItem::meterRound(double p_value, double p_ratio)
{
    if (p_ratio == 1.0)
        return std::floor(p_value + 0.5);
    const double j = std::fmod(p_value, 0.5);
    return j / 0.5 >= 0.25 ? p_value - j + 0.5 : p_value - j;
}

double VynVUMeterItem::meterCeil(double p_value, double p_ratio)
{
    if (p_ratio == 1.0)
        return std::ceil(p_value);
    return meterRound(p_value, p_ratio);
}

void VynVUMeterItem::updateGeometry()
{
    const bool horizontal = isHorizontal();
    const double thickness = horizontal ? height() : width();
    const double length = horizontal ? width() : height();
    const double r = m_ratio;
    using C = VynUIQmlConstants;

    const double thicknessMargin = meterRound(
        clampBetween(0.1 * thickness, C::vuMeterMarginHMin(r), C::vuMeterMarginHMax(r)), r);
    const double lengthMargin = meterRound(
        clampBetween(0.4 * thickness, C::vuMeterMarginVMin(r), C::vuMeterMarginVMax(r)), r);
    double cellLength;
    if (m_constrainedCells > 0) {
        const int n = m_constrainedCells;
        cellLength = meterRound((length - 2 * lengthMargin) / (n + 0.2 * (n - 1)), r);
    } else {
        cellLength = meterRound(
            clampBetween(0.15 * thickness, C::vuMeterCellHeightMin(r), C::vuMeterCellHeightMax(r)),
            r);
    }
    const double space = meterCeil(0.2 * cellLength, r);
    const double fit = std::floor((length - 2 * lengthMargin + space) / (cellLength + space));
    const int cells = cellLength + space > 0 && std::isfinite(fit) ? int(std::max(0.0, fit)) : 0;
    const double radius =
        clampBetween(0.3 * thickness, C::vuMeterCornerRadiusMin(r), C::vuMeterCornerRadiusMax(r));
    const double used = cells > 0 ? cells * cellLength + (cells - 1) * space : 0.0;
    const double offset = meterRound((length - used) / 2, r);

    const bool changed = cells != m_cells || cellLength != m_cellLength || space != m_cellSpace ||
                         thicknessMargin != m_thicknessMargin || lengthMargin != m_lengthMargin ||
                         radius != m_cornerRadius || offset != m_cellsOffset;
    if (horizontal != m_horizontal) {
        m_horizontal = horizontal;
        emit isHorizontalChanged();
    }
    m_lookDirty = true;
    if (changed) {
        m_cells = cells;
        m_cellLength = cellLength;
        m_cellSpace = space;
        m_thicknessMargin = thicknessMargin;
        m_lengthMargin = lengthMargin;
        m_cornerRadius = radius;
        m_cellsOffset = offset;
        emit geometryChanged();
    }
    refreshDisplay();
    update();
}

double VynVUMeterItem::cellsLength() const
{
    return m_cells > 0 ? m_cells * m_cellLength + (m_cells - 1) * m_cellSpace : 0.0;
}

QRectF VynVUMeterItem::cellRect(int p_index) const
{
    if (p_index < 0 || p_index >= m_cells)
        return QRectF();
    const bool horizontal = isHorizontal();
    const int position = m_reversed == horizontal ? m_cells - 1 - p_index : p_index;
    const double along = m_cellsOffset + position * (m_cellLength + m_cellSpace);
    if (horizontal)
        return QRectF(along, m_thicknessMargin, m_cellLength, height() - 2 * m_thicknessMargin);
    return QRectF(m_thicknessMargin, along, width() - 2 * m_thicknessMargin, m_cellLength);
}

QColor VynVUMeterItem::cellColor(int p_index) const
{
    if (p_index < 0 || p_index >= m_cells)
        return QColor();
    const bool lit = p_index <= displayedIndex() ||
                     (displaysShortHoldValue() && p_index == m_shortHoldIndex) ||
                     (m_displaysHold && (p_index == minHoldIndex() || p_index == maxHoldIndex()));
    if (!lit)
        return VynUIQmlConstants::vuMeterOffColor(m_style);
    const int level = m_cells > 1 ? int(std::floor(double(p_index) / (m_cells - 1) * 31 + 0.5)) : 0;
    return VynUIQmlConstants::vuMeterOnColorForIndex(level);
}

void VynVUMeterItem::refreshDisplay()
{
    const int index = displayedIndex();
    const int shortHold = displaysShortHoldValue() ? m_shortHoldIndex : -1;
    const int minHold = m_displaysHold ? minHoldIndex() : -1;
    const int maxHold = m_displaysHold ? maxHoldIndex() : -1;
    if (index == m_shownIndex && shortHold == m_shownShortHold && minHold == m_shownMinHold &&
        maxHold == m_shownMaxHold && !m_lookDirty)
        return;
    m_shownIndex = index;
    m_shownShortHold = shortHold;
    m_shownMinHold = minHold;
    m_shownMaxHold = maxHold;
    emit displayChanged();
    update();
}

QSGNode* VynVUMeterItem::updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* data)
{
    Q_UNUSED(data)
    if (width() <= 0 || height() <= 0) {
        delete oldNode;
        return nullptr;
    }
    m_lookDirty = false;

    Frame frame;
    frame.bounds = QRectF(0, 0, width(), height());
    frame.radius = m_cornerRadius;
    frame.border = VynUIQmlConstants::vuMeterBorder(m_ratio);
    frame.fill = VynUIQmlConstants::vuMeterFillColor(m_style);
    frame.borderColor = VynUIQmlConstants::vuMeterBorderColor(m_style);
    frame.glowRadius = VynUIQmlConstants::vuMeterGlowRadius(m_ratio);
    frame.cells.resize(m_cells);
    frame.colors.resize(m_cells);
    // The lit colours depend on the cell only: compute the two cases once per cell.
    const QColor off = VynUIQmlConstants::vuMeterOffColor(m_style);
    const int index = m_shownIndex;
    for (int k = 0; k < m_cells; ++k) {
        frame.cells[k] = cellRect(k);
        const bool lit =
            k <= index || k == m_shownShortHold || k == m_shownMinHold || k == m_shownMaxHold;
        if (lit) {
            const int level =
                m_cells > 1 ? int(std::floor(double(k) / (m_cells - 1) * 31 + 0.5)) : 0;
            frame.colors[k] = VynUIQmlConstants::vuMeterOnColorForIndex(level);
        } else {
            frame.colors[k] = off;
        }
    }
    const auto addGlow = [&](int k) {
        if (k < 0 || k >= m_cells)
            return;
        const int level = m_cells > 1 ? int(std::floor(double(k) / (m_cells - 1) * 31 + 0.5)) : 0;
        // Spread 0.2: the glow starts a fifth of its radius out from the cell.
        const double spread = 0.2 * frame.glowRadius;
        frame.glows.append({frame.cells.at(k).adjusted(-spread, -spread, spread, spread),
                            VynUIQmlConstants::vuMeterGlowColorForIndex(level, m_style)});
    };
    if (m_displaysHold) {
        addGlow(m_shownMinHold);
        if (m_minHold != m_maxHold)
            addGlow(m_shownMaxHold);
    }

    const bool software =
        window() && window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
    if (software) {
        auto* node = dynamic_cast<PainterMeterNode*>(oldNode);
        if (!node) {
            delete oldNode;
            node = new PainterMeterNode(window());
        }
        node->frame = std::move(frame);
        node->markDirty(QSGNode::DirtyMaterial);
        return node;
    }
    auto* node = dynamic_cast<GeometryMeterNode*>(oldNode);
    if (!node) {
        delete oldNode;
        node = new GeometryMeterNode;
    }
    node->apply(frame);
    return node;
}

void VynVUMeterItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        updateGeometry();
}

void VynVUMeterItem::itemChange(ItemChange change, const ItemChangeData& value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged && m_animatedFollowsVisible &&
        value.boolValue != m_animated) {
        m_animated = value.boolValue;
        emit animatedChanged();
    }
}

void VynVUMeterItem::updateAcceptedButtons()
{
    setAcceptedMouseButtons(m_allowsRightClick ? Qt::LeftButton | Qt::RightButton : Qt::LeftButton);
}

QVariant VynVUMeterItem::mouseObject(const QPointF& position, Qt::MouseButton button,
                                     Qt::KeyboardModifiers modifiers) const
{
    return QVariantMap{{QStringLiteral("x"), position.x()},
                       {QStringLiteral("y"), position.y()},
                       {QStringLiteral("button"), int(button)},
                       {QStringLiteral("modifiers"), int(modifiers)}};
}

void VynVUMeterItem::mousePressEvent(QMouseEvent* event)
{
    if (!isEnabled() || m_pressButton != Qt::NoButton) {
        event->ignore();
        return;
    }
    m_pressButton = event->button();
    m_pressPosition = event->position();
    m_pressModifiers = event->modifiers();
    m_longPressed = false;
    if (m_pressButton == Qt::LeftButton && m_allowsLongPress)
        m_longPressTimer.start(kLongPressInterval, this);
    event->accept();
}

void VynVUMeterItem::mouseReleaseEvent(QMouseEvent* event)
{
    const Qt::MouseButton button = m_pressButton;
    const bool longPressed = m_longPressed;
    m_pressButton = Qt::NoButton;
    m_longPressTimer.stop();
    m_longPressed = false;
    if (button != event->button()) {
        event->ignore();
        return;
    }
    event->accept();
    if (!isEnabled() || !contains(event->position()))
        return;
    if (button == Qt::LeftButton && !longPressed)
        emit clicked();
    else if (button == Qt::RightButton && m_allowsRightClick)
        emit rightClicked(mouseObject(event->position(), button, event->modifiers()));
}

void VynVUMeterItem::mouseUngrabEvent()
{
    m_pressButton = Qt::NoButton;
    m_longPressTimer.stop();
    m_longPressed = false;
}

void VynVUMeterItem::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_longPressTimer.timerId()) {
        QQuickItem::timerEvent(event);
        return;
    }
    m_longPressTimer.stop();
    if (m_pressButton != Qt::LeftButton || !m_allowsLongPress)
        return;
    m_longPressed = true;
    emit longPressed(mouseObject(m_pressPosition, m_pressButton, m_pressModifiers));
}

void VynVUMeterItem::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isEnabled() && !event->isAutoRepeat()) {
            event->accept();
            emit clicked();
            return;
        }
        break;
    default:
        break;
    }
    QQuickItem::keyPressEvent(event);
}
