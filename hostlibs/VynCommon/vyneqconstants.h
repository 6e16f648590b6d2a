#pragma once

#include "vyncommonglobal.h"

#include <QObject>

/*!
    Constants of the parametric EQ: the band shapes a device knows and the short
    list of bands suggested to the user when a band is added.

    The band-type codes are the device's parameter values and never change.
    VynEQTypeNone (65535) is not a device value: lookups answer it when there is
    no band type to give.
*/
namespace VynEQConstants {
Q_NAMESPACE_EXPORT(VYNCOMMON_EXPORT)

enum VynEQBandType : int {
    VynEQTypeThru = 0,
    VynEQTypeBell = 1,
    VynEQTypeHighPass = 2,
    VynEQTypeLowPass = 3,
    VynEQTypeHighShelf = 4,
    VynEQTypeLowShelf = 5,
    VynEQTypeNotch = 6,
    VynEQTypeBandPassParallel = 7,
    VynEQTypeNone = 65535,
};
Q_ENUM_NS(VynEQBandType)

//! One suggested band: its short name (also the stem of its image names) and its shape.
struct VynEQSuggestion
{
    const char* name;
    VynEQBandType type;
};

//! Number of rows of kVynEQSuggestions.
constexpr int kVynEQSuggestionsCount = 6;

/*!
    The suggested bands in the order the band-type selector shows them:
    "Bell", "LowShelf", "HighShelf", "HighPass", "LowPass", "Notch".
    Every band type appears at most once.
*/
VYNCOMMON_EXPORT extern const VynEQSuggestion kVynEQSuggestions[kVynEQSuggestionsCount];

} // namespace VynEQConstants
