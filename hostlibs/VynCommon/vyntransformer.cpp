#include "vyntransformer.h"

#include <cmath>

VynTransformer::VynTransformer(QObject* parent)
    : VynTransformer(QStringLiteral("identity"), QStringList(), parent)
{}

VynTransformer::VynTransformer(const QString& key, const QStringList& units, QObject* parent)
    : QObject(parent), m_key(key), m_units(units), m_unitIndex(units.isEmpty() ? -1 : 0)
{}

VynTransformer::VynTransformer(const VynTransformer& other, QObject* parent)
    : QObject(parent), m_key(other.m_key), m_units(other.m_units), m_unitIndex(other.m_unitIndex),
      m_decimals(other.m_decimals)
{}

VynTransformer::~VynTransformer() = default;

VynTransformer* VynTransformer::clone(QObject* parent) const
{
    return new VynTransformer(*this, parent);
}

float VynTransformer::rawToDisplayed(float p_raw) const
{
    return p_raw;
}

float VynTransformer::displayedToRaw(float p_displayed) const
{
    return p_displayed;
}

QString VynTransformer::currentUnit() const
{
    return m_units.value(m_unitIndex);
}

bool VynTransformer::setCurrentUnit(const QString& unit)
{
    const int index = static_cast<int>(m_units.indexOf(unit));
    return index >= 0 && setCurrentUnitIndex(index);
}

bool VynTransformer::setCurrentUnitIndex(int index)
{
    if (index < 0 || index >= m_units.size())
        return false;
    if (index != m_unitIndex) {
        m_unitIndex = index;
        emit currentUnitChanged();
    }
    return true;
}

void VynTransformer::setDecimals(int decimals)
{
    decimals = qBound(0, decimals, 9);
    if (decimals == m_decimals)
        return;
    m_decimals = decimals;
    emit decimalsChanged();
}

QString VynTransformer::valueToString(float p_value, bool p_withUnit, bool p_autoScale) const
{
    Q_UNUSED(p_autoScale)
    const float displayed = rawToDisplayed(p_value);
    QString number = nonFiniteText(displayed);
    if (number.isNull())
        number = fixedText(displayed, m_decimals);
    return withUnitText(number, currentUnit(), p_withUnit);
}

QString VynTransformer::nonFiniteText(float value)
{
    if (std::isnan(value))
        return QStringLiteral("-");
    if (std::isinf(value))
        return value < 0 ? QStringLiteral("-inf") : QStringLiteral("+inf");
    return QString();
}

QString VynTransformer::withUnitText(const QString& number, const QString& unit, bool withUnit)
{
    if (!withUnit || unit.isEmpty())
        return number;
    return number + QLatin1Char(' ') + unit;
}

QString VynTransformer::fixedText(double value, int decimals)
{
    QString text = QString::number(value, 'f', decimals);
    // A negative value that rounds to zero must not read "-0.0".
    if (text.startsWith(QLatin1Char('-'))) {
        bool allZero = true;
        for (int i = 1; i < text.size() && allZero; ++i)
            allZero = text.at(i) == QLatin1Char('0') || text.at(i) == QLatin1Char('.');
        if (allZero)
            text.remove(0, 1);
    }
    return text;
}

double VynTransformer::roundedToSignificant(double value, int digits)
{
    if (value == 0.0 || !std::isfinite(value))
        return value;
    const int magnitude = static_cast<int>(std::floor(std::log10(std::fabs(value))));
    const double scale = std::pow(10.0, digits - 1 - magnitude);
    return std::round(value * scale) / scale;
}

QString VynTransformer::significantText(double value, int digits)
{
    const double rounded = roundedToSignificant(value, digits);
    if (rounded == 0.0)
        return fixedText(0.0, qMax(0, digits - 1));
    const int magnitude = static_cast<int>(std::floor(std::log10(std::fabs(rounded))));
    return fixedText(rounded, qMax(0, digits - 1 - magnitude));
}
