#pragma once

#include "vyncommonglobal.h"

#include <QObject>
#include <QString>
#include <QStringList>

/*!
    Converts a raw parameter value (the number the device stores) into the
    value shown to the user and into text.

    A transformer has a key naming its kind (getKeyRef(): "identity",
    "decibel", "frequency", or the key a linear transformer was given), a list
    of units it can display in and a current unit. rawToDisplayed() and
    displayedToRaw() convert in single precision through the current unit.

    Text: valueToString(raw, withUnit, autoScale) formats a raw value the way
    an audio application shows it.
    - withUnit: the unit text follows the number after a space ("-6.0 dB").
      Without it only the number is written, plus the scale letter when
      autoScale changed the scale ("1.20k").
    - autoScale: a value that reads better in the next larger unit of its
      family is written in it ("1.20 kHz" for 1200 Hz, "1.50 s" for 1500 ms).
      The current unit is not changed. Transformers without a larger unit
      ignore the option.
    NaN writes "-", infinities "-inf" and "+inf" (followed by the unit when
    asked); a result that rounds to zero never carries a minus sign.

    The base class is the identity without a unit, writing `decimals` digits
    after the point (2 by default). Subclasses override clone() so that a copy
    keeps its kind; a subclass that does not override it is copied as a plain
    identity transformer with the same key, units and decimals.
*/
class VYNCOMMON_EXPORT VynTransformer : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString key READ getKeyRef CONSTANT)
    Q_PROPERTY(QStringList units READ units CONSTANT)
    Q_PROPERTY(QString currentUnit READ currentUnit WRITE setCurrentUnit NOTIFY currentUnitChanged)
    Q_PROPERTY(int currentUnitIndex READ currentUnitIndex WRITE setCurrentUnitIndex NOTIFY
                   currentUnitChanged)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals NOTIFY decimalsChanged)

public:
    explicit VynTransformer(QObject* parent = nullptr);
    //! Copies key, units, current unit and decimals of \a other; the parent is not copied.
    VynTransformer(const VynTransformer& other, QObject* parent = nullptr);
    ~VynTransformer() override;

    //! A new transformer of the same kind and state, owned by \a parent.
    virtual VynTransformer* clone(QObject* parent) const;

    const QString& getKeyRef() const { return m_key; }

    Q_INVOKABLE virtual float rawToDisplayed(float p_raw) const;
    Q_INVOKABLE virtual float displayedToRaw(float p_displayed) const;

    //! The units this transformer can display in; empty for a unit-less value.
    QStringList units() const { return m_units; }
    //! The current unit's text, empty when the transformer has no unit.
    QString currentUnit() const;
    int currentUnitIndex() const { return m_unitIndex; }
    //! Selects the unit named \a unit; false (and nothing changes) when it is not one of units().
    bool setCurrentUnit(const QString& unit);
    //! Selects the unit at \a index; false (and nothing changes) when out of range.
    bool setCurrentUnitIndex(int index);

    //! Digits after the point in the base formatting; clamped to 0..9.
    int decimals() const { return m_decimals; }
    void setDecimals(int decimals);

    //! The text of raw value \a p_value, see the class description for the two options.
    Q_INVOKABLE virtual QString valueToString(float p_value, bool p_withUnit,
                                              bool p_autoScale) const;

signals:
    void currentUnitChanged();
    void decimalsChanged();

protected:
    VynTransformer(const QString& key, const QStringList& units, QObject* parent);

    //! "-", "-inf" or "+inf" for a non-finite value, else a null string.
    static QString nonFiniteText(float value);
    //! \a number followed by " unit" when \a withUnit and the unit is not empty.
    static QString withUnitText(const QString& number, const QString& unit, bool withUnit);
    //! \a value with \a decimals digits after the point, never "-0".
    static QString fixedText(double value, int decimals);
    //! \a value rounded to \a digits significant digits, written without exponent.
    static QString significantText(double value, int digits);
    //! \a value rounded to \a digits significant digits.
    static double roundedToSignificant(double value, int digits);

private:
    QString m_key;
    QStringList m_units;
    int m_unitIndex = -1;
    int m_decimals = 2;
};
