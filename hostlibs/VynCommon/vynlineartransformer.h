#pragma once

#include "vyntransformer.h"

#include <QList>

/*!
    A transformer whose displayed value is linear in the raw value, with one
    conversion per unit: displayed = raw * factor + offset.

    Each unit writes `decimals` digits after the point, or, when
    `significantDigits` is positive, that many significant digits ("125",
    "31.5", "1.00"). A unit may name a larger unit of its family for the
    autoScale text option: when |displayed| (rounded as it would be written)
    reaches `scaleThreshold`, the value is multiplied by `scaleFactor` and
    written with `scaledText` (or `scaledPrefix` when the unit is left out).

    delayTransformer() is the usual delay parameter: raw milliseconds shown in
    "ms" (2 decimals, "s" from 1000 ms on), "m" or "ft" (sound travelling at
    343 m/s).
*/
class VYNCOMMON_EXPORT VynLinearTransformer : public VynTransformer
{
    Q_OBJECT

public:
    struct Unit
    {
        QString text;
        double factor = 1.0;
        double offset = 0.0;
        int decimals = 2;
        int significantDigits = 0;
        double scaleThreshold = 0.0; //!< 0: no larger unit
        double scaleFactor = 1.0;
        QString scaledText;
        QString scaledPrefix;
    };

    //! \a units must not be empty; a unit with a zero factor converts back to 0.
    VynLinearTransformer(const QString& key, const QList<Unit>& units, QObject* parent = nullptr);
    VynLinearTransformer(const VynLinearTransformer& other, QObject* parent = nullptr);

    static VynLinearTransformer* delayTransformer(QObject* parent = nullptr);

    VynTransformer* clone(QObject* parent) const override;
    float rawToDisplayed(float p_raw) const override;
    float displayedToRaw(float p_displayed) const override;
    QString valueToString(float p_value, bool p_withUnit, bool p_autoScale) const override;

    const QList<Unit>& unitTable() const { return m_table; }

private:
    static QStringList unitTexts(const QList<Unit>& units);
    Unit currentEntry() const;

    QList<Unit> m_table;
};
