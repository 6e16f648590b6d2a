#pragma once

#include "vynuiglobal.h"

/*!
    A change of hue, saturation, brightness and alpha, applied to a colour by
    VynColorUtils::colorByApplyingHSBTransform(): each component x becomes
    x × scale + offset (the hue only when it is above 0, and wrapped into
    [0, 1]; the others clamped to [0, 1]).

    The eight numbers are in this order, so transform tables are written as
    constant arrays: { hueScale, hueOffset, saturationScale, saturationOffset,
    brightnessScale, brightnessOffset, alphaScale, alphaOffset }. The default
    value is the identity (1, 0, 1, 0, 1, 0, 1, 0).
*/
struct VYNUI_EXPORT VynHSBTransform
{
    double hueScale = 1.0;
    double hueOffset = 0.0;
    double saturationScale = 1.0;
    double saturationOffset = 0.0;
    double brightnessScale = 1.0;
    double brightnessOffset = 0.0;
    double alphaScale = 1.0;
    double alphaOffset = 0.0;

    //! The transform that changes nothing.
    static constexpr VynHSBTransform identity() { return VynHSBTransform{}; }

    //! (1 − t) × a + t × b, each of the eight numbers blended on its own.
    static constexpr VynHSBTransform blended(const VynHSBTransform& a, const VynHSBTransform& b,
                                             double t)
    {
        const double u = 1.0 - t;
        return VynHSBTransform{u * a.hueScale + t * b.hueScale,
                               u * a.hueOffset + t * b.hueOffset,
                               u * a.saturationScale + t * b.saturationScale,
                               u * a.saturationOffset + t * b.saturationOffset,
                               u * a.brightnessScale + t * b.brightnessScale,
                               u * a.brightnessOffset + t * b.brightnessOffset,
                               u * a.alphaScale + t * b.alphaScale,
                               u * a.alphaOffset + t * b.alphaOffset};
    }

    constexpr bool operator==(const VynHSBTransform& o) const
    {
        return hueScale == o.hueScale && hueOffset == o.hueOffset &&
               saturationScale == o.saturationScale && saturationOffset == o.saturationOffset &&
               brightnessScale == o.brightnessScale && brightnessOffset == o.brightnessOffset &&
               alphaScale == o.alphaScale && alphaOffset == o.alphaOffset;
    }
    constexpr bool operator!=(const VynHSBTransform& o) const { return !(*this == o); }
};
