#include "vyneqcurvemodel.h"

#include <cmath>

VynEQCurveModel::VynEQCurveModel(QObject* parent) : QObject(parent) {}

VynEQCurveModel::~VynEQCurveModel() = default;

void VynEQCurveModel::setEq(VynEQCommonEQ* p_eq)
{
    if (m_eq == p_eq)
        return;
    if (m_eq)
        disconnect(m_eq, nullptr, this, nullptr);
    m_eq = p_eq;
    if (m_eq) {
        connect(m_eq, &VynEQCommonEQ::bandsChanged, this, [this] {
            connectBands();
            updateAll();
        });
        connect(m_eq, &QObject::destroyed, this, [this] {
            m_bandConnections.clear();
            updateAll();
        });
    }
    connectBands();
    emit eqChanged();
    updateAll();
}

void VynEQCurveModel::connectBands()
{
    for (const auto& c : std::as_const(m_bandConnections))
        disconnect(c);
    m_bandConnections.clear();
    if (!m_eq)
        return;
    const QList<VynEQBand*>& bands = m_eq->bands();
    for (int i = 0; i < bands.size(); ++i) {
        m_bandConnections.append(
            connect(bands[i], &VynEQBand::valuesChanged, this, [this, i] { updateBand(i); }));
    }
}

void VynEQCurveModel::setGeometryValue(double* p_field, double p_value)
{
    if (*p_field == p_value || std::isnan(p_value))
        return;
    *p_field = p_value;
    emit geometryChanged();
    updateAll();
}

void VynEQCurveModel::setWidth(double p_value)
{
    setGeometryValue(&m_width, p_value);
}

void VynEQCurveModel::setHeight(double p_value)
{
    // The height only maps dB to y: no band needs computing again.
    if (m_height == p_value || std::isnan(p_value))
        return;
    m_height = p_value;
    emit geometryChanged();
    sumAndMap();
}

void VynEQCurveModel::setInsetLeft(double p_value)
{
    setGeometryValue(&m_insetLeft, p_value);
}

void VynEQCurveModel::setInsetRight(double p_value)
{
    setGeometryValue(&m_insetRight, p_value);
}

void VynEQCurveModel::setInsetTop(double p_value)
{
    if (m_insetTop == p_value || std::isnan(p_value))
        return;
    m_insetTop = p_value;
    emit geometryChanged();
    sumAndMap();
}

void VynEQCurveModel::setInsetBottom(double p_value)
{
    if (m_insetBottom == p_value || std::isnan(p_value))
        return;
    m_insetBottom = p_value;
    emit geometryChanged();
    sumAndMap();
}

void VynEQCurveModel::setFreqMin(double p_value)
{
    setGeometryValue(&m_freqMin, p_value);
}

void VynEQCurveModel::setFreqMax(double p_value)
{
    setGeometryValue(&m_freqMax, p_value);
}

void VynEQCurveModel::setGainMin(double p_value)
{
    if (m_gainMin == p_value || std::isnan(p_value))
        return;
    m_gainMin = p_value;
    emit geometryChanged();
    sumAndMap();
}

void VynEQCurveModel::setGainMax(double p_value)
{
    if (m_gainMax == p_value || std::isnan(p_value))
        return;
    m_gainMax = p_value;
    emit geometryChanged();
    sumAndMap();
}

void VynEQCurveModel::setCount(int p_count)
{
    const int count = qMax(0, p_count);
    if (m_count == count)
        return;
    m_count = count;
    emit geometryChanged();
    updateAll();
}

void VynEQCurveModel::setSampleRate(double p_value)
{
    setGeometryValue(&m_sampleRate, p_value);
}

double VynEQCurveModel::xForFrequency(double p_frequency) const
{
    const double plot = m_width - m_insetLeft - m_insetRight;
    return m_insetLeft +
           plot * std::log2(p_frequency / m_freqMin) / std::log2(m_freqMax / m_freqMin);
}

double VynEQCurveModel::frequencyForX(double p_x) const
{
    const double plot = m_width - m_insetLeft - m_insetRight;
    if (plot <= 0.0)
        return m_freqMin;
    return m_freqMin * std::pow(m_freqMax / m_freqMin, (p_x - m_insetLeft) / plot);
}

double VynEQCurveModel::yForGain(double p_gain) const
{
    const double plot = m_height - m_insetTop - m_insetBottom;
    return m_insetTop + plot * (m_gainMax - p_gain) / (m_gainMax - m_gainMin);
}

double VynEQCurveModel::gainForY(double p_y) const
{
    const double plot = m_height - m_insetTop - m_insetBottom;
    if (plot <= 0.0)
        return 0.0;
    return m_gainMax - (p_y - m_insetTop) / plot * (m_gainMax - m_gainMin);
}

void VynEQCurveModel::rebuildGrid()
{
    // count points from freqMin to freqMax, one x per point.
    const int count = m_count;
    QList<double> frequencies;
    m_xs.clear();
    if (count >= 2 && m_freqMin > 0.0 && m_freqMax > m_freqMin) {
        const double pointsPerOctave = (count - 1) / std::log2(m_freqMax / m_freqMin);
        frequencies = VynCommonUtils::eqNormalizedFrequenciesLog(m_freqMin, pointsPerOctave, count,
                                                                 m_sampleRate);
        const double plot = m_width - m_insetLeft - m_insetRight;
        m_xs.reserve(count);
        for (int i = 0; i < count; ++i)
            m_xs.append(m_insetLeft + plot * i / (count - 1));
    }
    m_grid = VynCommonUtils::eqGrid(frequencies);
}

bool VynEQCurveModel::computeBand(int p_index)
{
    const VynEQBand* band = m_eq ? m_eq->band(p_index) : nullptr;
    QList<double>& db = m_bandDB[p_index];
    if (!band || !band->isEnabled() || !band->isUsed()) {
        db.clear();
        return true;
    }
    return VynCommonUtils::eqCalculateMagnitudes({band->values()}, m_grid, m_sampleRate, &db);
}

void VynEQCurveModel::updateBand(int p_index)
{
    if (p_index < 0 || p_index >= m_bandDB.size())
        return;
    if (!computeBand(p_index))
        return;
    sumAndMap();
}

void VynEQCurveModel::updateAll()
{
    rebuildGrid();
    const int bands = m_eq ? m_eq->bandCount() : 0;
    QList<QList<double>> previous = m_bandDB;
    m_bandDB.resize(bands);
    for (int i = 0; i < bands; ++i) {
        if (!computeBand(i)) {
            m_bandDB = previous;
            return;
        }
    }
    sumAndMap();
}

void VynEQCurveModel::sumAndMap()
{
    const qsizetype count = m_xs.size();
    m_sumDB.fill(0.0, count);
    double* sum = m_sumDB.data();
    for (const QList<double>& db : std::as_const(m_bandDB)) {
        if (db.size() != count)
            continue;
        const double* d = db.constData();
        for (qsizetype i = 0; i < count; ++i)
            sum[i] += d[i];
    }
    m_sumPoints.resize(count);
    QPointF* points = m_sumPoints.data();
    const double a = -(m_height - m_insetTop - m_insetBottom) / (m_gainMax - m_gainMin);
    const double b = m_insetTop - m_gainMax * a;
    for (qsizetype i = 0; i < count; ++i)
        points[i] = QPointF(m_xs[i], a * std::max(sum[i], VynCommonUtils::kVynEQMinimumDB) + b);
    emit curvesChanged();
}

QVariantList VynEQCurveModel::sumPointsQml() const
{
    QVariantList result;
    result.reserve(m_sumPoints.size());
    for (const QPointF& p : m_sumPoints)
        result.append(p);
    return result;
}

QVariantList VynEQCurveModel::bandPoints(int p_index) const
{
    QVariantList result;
    if (p_index < 0 || p_index >= m_bandDB.size())
        return result;
    const QList<double>& db = m_bandDB[p_index];
    if (db.size() != m_xs.size())
        return result;
    result.reserve(db.size());
    const double a = -(m_height - m_insetTop - m_insetBottom) / (m_gainMax - m_gainMin);
    const double b = m_insetTop - m_gainMax * a;
    for (qsizetype i = 0; i < db.size(); ++i)
        result.append(QPointF(m_xs[i], a * db[i] + b));
    return result;
}
