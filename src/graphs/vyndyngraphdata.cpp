#include "vyndyngraphdata.h"

namespace {

constexpr int kCoalescingMilliseconds = 10;

} // namespace

VynDynGraphData::VynDynGraphData(QObject* parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &VynDynGraphData::updateScales);
    m_timer.start(kCoalescingMilliseconds);
}

VynDynGraphData::~VynDynGraphData() = default;

void VynDynGraphData::setInput(double* p_field, double p_value)
{
    // Exact comparison: any different value, NaN included, asks for new scales.
    if (*p_field == p_value)
        return;
    *p_field = p_value;
    m_timer.start(kCoalescingMilliseconds);
}

void VynDynGraphData::setWidth(double p_width)
{
    setInput(&m_width, p_width);
}

void VynDynGraphData::setHeight(double p_height)
{
    setInput(&m_height, p_height);
}

void VynDynGraphData::setInsetLeft(double p_inset)
{
    setInput(&m_insetLeft, p_inset);
}

void VynDynGraphData::setInsetRight(double p_inset)
{
    setInput(&m_insetRight, p_inset);
}

void VynDynGraphData::setInsetBottom(double p_inset)
{
    setInput(&m_insetBottom, p_inset);
}

void VynDynGraphData::setInsetTop(double p_inset)
{
    setInput(&m_insetTop, p_inset);
}

void VynDynGraphData::setInMin(double p_value)
{
    setInput(&m_inMin, p_value);
}

void VynDynGraphData::setInMax(double p_value)
{
    setInput(&m_inMax, p_value);
}

void VynDynGraphData::setOutMin(double p_value)
{
    setInput(&m_outMin, p_value);
}

void VynDynGraphData::setOutMax(double p_value)
{
    setInput(&m_outMax, p_value);
}

double VynDynGraphData::xForIn(double p_in) const
{
    return m_inOffset + p_in * m_inScale;
}

double VynDynGraphData::yForOut(double p_out) const
{
    return m_outOffset + p_out * m_outScale;
}

double VynDynGraphData::inForX(double p_x) const
{
    return m_xOffset + p_x * m_xScale;
}

double VynDynGraphData::outForY(double p_y) const
{
    return m_yOffset + p_y * m_yScale;
}

void VynDynGraphData::setNeedsUpdateScales()
{
    m_timer.start(kCoalescingMilliseconds);
}

void VynDynGraphData::updateScales()
{
    m_timer.stop();
    if (m_width == 0.0 || m_height == 0.0) {
        m_inScale = m_inOffset = m_outScale = m_outOffset = 0.0;
        m_xScale = m_xOffset = m_yScale = m_yOffset = 0.0;
        m_inLeft = m_inMax;
        m_inRight = m_inMin;
        m_origin = QPointF(0.0, m_height);
        return;
    }
    m_outScale = (m_height - m_insetTop - m_insetBottom) / (m_outMin - m_outMax);
    m_outOffset = m_insetTop - m_outMax * m_outScale;
    m_yScale = 1.0 / m_outScale;
    m_yOffset = -m_outOffset / m_outScale;
    m_outBottom = outForY(m_height);
    m_outTop = outForY(0.0);

    m_inScale = (m_width - m_insetLeft - m_insetRight) / (m_inMax - m_inMin);
    m_inOffset = m_insetLeft - m_inMin * m_inScale;
    m_xScale = 1.0 / m_inScale;
    m_xOffset = -m_inOffset / m_inScale;
    m_inLeft = inForX(0.0);
    m_inRight = inForX(m_width);

    m_origin = QPointF(xForIn(m_inMin), m_height);
}
