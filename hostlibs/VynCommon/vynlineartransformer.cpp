#include "vynlineartransformer.h"

#include <cmath>

VynLinearTransformer::VynLinearTransformer(const QString& key, const QList<Unit>& units,
                                           QObject* parent)
    : VynTransformer(key, unitTexts(units), parent), m_table(units)
{}

VynLinearTransformer::VynLinearTransformer(const VynLinearTransformer& other, QObject* parent)
    : VynTransformer(other, parent), m_table(other.m_table)
{}

VynLinearTransformer* VynLinearTransformer::delayTransformer(QObject* parent)
{
    constexpr double kMetresPerMillisecond = 0.343;
    constexpr double kFeetPerMetre = 1.0 / 0.3048;
    Unit ms{QStringLiteral("ms"), 1.0, 0.0, 2, 0, 1000.0, 0.001, QStringLiteral("s"),
            QStringLiteral("s")};
    Unit metres{QStringLiteral("m"), kMetresPerMillisecond, 0.0, 2, 0, 0.0, 1.0, {}, {}};
    Unit feet{
        QStringLiteral("ft"), kMetresPerMillisecond * kFeetPerMetre, 0.0, 2, 0, 0.0, 1.0, {}, {}};
    return new VynLinearTransformer(QStringLiteral("delay"), {ms, metres, feet}, parent);
}

VynTransformer* VynLinearTransformer::clone(QObject* parent) const
{
    return new VynLinearTransformer(*this, parent);
}

QStringList VynLinearTransformer::unitTexts(const QList<Unit>& units)
{
    QStringList texts;
    for (const Unit& unit : units)
        texts.append(unit.text);
    return texts;
}

VynLinearTransformer::Unit VynLinearTransformer::currentEntry() const
{
    return m_table.value(currentUnitIndex());
}

float VynLinearTransformer::rawToDisplayed(float p_raw) const
{
    const Unit unit = currentEntry();
    return static_cast<float>(p_raw * unit.factor + unit.offset);
}

float VynLinearTransformer::displayedToRaw(float p_displayed) const
{
    const Unit unit = currentEntry();
    if (unit.factor == 0.0)
        return 0.0f;
    return static_cast<float>((p_displayed - unit.offset) / unit.factor);
}

QString VynLinearTransformer::valueToString(float p_value, bool p_withUnit, bool p_autoScale) const
{
    const Unit unit = currentEntry();
    double displayed = rawToDisplayed(p_value);
    const QString nonFinite = nonFiniteText(static_cast<float>(displayed));
    if (!nonFinite.isNull())
        return withUnitText(nonFinite, unit.text, p_withUnit);

    auto format = [&unit](double value) {
        return unit.significantDigits > 0 ? significantText(value, unit.significantDigits)
                                          : fixedText(value, unit.decimals);
    };
    auto rounded = [&unit](double value) {
        if (unit.significantDigits > 0)
            return roundedToSignificant(value, unit.significantDigits);
        const double scale = std::pow(10.0, unit.decimals);
        return std::round(value * scale) / scale;
    };

    if (p_autoScale && unit.scaleThreshold > 0.0 &&
        std::fabs(rounded(displayed)) >= unit.scaleThreshold) {
        displayed *= unit.scaleFactor;
        const QString number = format(displayed);
        if (p_withUnit)
            return withUnitText(number, unit.scaledText, true);
        return number + unit.scaledPrefix;
    }
    return withUnitText(format(displayed), unit.text, p_withUnit);
}
