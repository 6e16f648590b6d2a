#pragma once

#include "vyncommonglobal.h"

#include <QMetaType>
#include <QObject>
#include <QString>

/*!
    A colour as four doubles red, green, blue and alpha, each in [0, 1].

    The record is a plain aggregate, so colour tables are written as constant
    arrays of it: { 0.12, 0.51, 0.88, 0.9 }. The default record is transparent
    black (all zero), the same as VynRGBColorMake(0, 0, 0, 0).

    Nothing in the record itself enforces the [0, 1] range; VynRGBColorMake()
    and VynRGBColorFromString() only ever produce records inside it.
*/
struct VYNCOMMON_EXPORT VynRGBColor
{
    Q_GADGET
    Q_PROPERTY(double red MEMBER red)
    Q_PROPERTY(double green MEMBER green)
    Q_PROPERTY(double blue MEMBER blue)
    Q_PROPERTY(double alpha MEMBER alpha)

public:
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 0.0;

    //! Exact comparison of the four channels; see VynRGBColorEqualsColor() for the tolerant one.
    constexpr bool operator==(const VynRGBColor& o) const
    {
        return red == o.red && green == o.green && blue == o.blue && alpha == o.alpha;
    }
    constexpr bool operator!=(const VynRGBColor& o) const { return !(*this == o); }
};

Q_DECLARE_METATYPE(VynRGBColor)

/*!
    Makes a record from four channels. Each channel is clamped to [0, 1]; a NaN
    channel becomes 0.
*/
VYNCOMMON_EXPORT VynRGBColor VynRGBColorMake(double red, double green, double blue,
                                             double alpha = 1.0);

/*!
    Parses the text form of a colour. Leading and trailing white space is ignored.
    Accepted forms:

    - "#rrggbb": two hexadecimal digits per channel, alpha 1 ("#1f82e0").
    - "#rrggbbaa": the same with an alpha byte ("#1f82e0e6").
    - "r,g,b" or "r,g,b,a": three or four decimal numbers in [0, 1] separated by
      commas, spaces allowed around each ("0.12, 0.51, 0.88, 0.9"); alpha 1
      when left out.

    Hexadecimal digits are case-insensitive. Any other text, an empty text, a
    number outside [0, 1], a non-finite number or a wrong count of channels is
    bad text: the result is the zero record (transparent black) and \a ok, when
    given, is set to false. On success \a ok is set to true.
*/
VYNCOMMON_EXPORT VynRGBColor VynRGBColorFromString(const QString& text, bool* ok = nullptr);

/*!
    Writes the canonical text form "#rrggbbaa" (each channel rounded to the
    nearest byte), which VynRGBColorFromString() reads back.
*/
VYNCOMMON_EXPORT QString VynRGBColorToString(const VynRGBColor& color);

/*!
    True when every channel of \a a is within half an 8-bit step (0.5 / 255)
    of the same channel of \a b. A colour written as decimals and the same
    colour read back from 8-bit or 16-bit storage compare equal; colours one
    8-bit step apart do not.
*/
VYNCOMMON_EXPORT bool VynRGBColorEqualsColor(const VynRGBColor& a, const VynRGBColor& b);
