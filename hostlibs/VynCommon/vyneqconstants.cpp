#include "vyneqconstants.h"

namespace VynEQConstants {

const VynEQSuggestion kVynEQSuggestions[kVynEQSuggestionsCount] = {
    {"Bell", VynEQTypeBell},           {"LowShelf", VynEQTypeLowShelf},
    {"HighShelf", VynEQTypeHighShelf}, {"HighPass", VynEQTypeHighPass},
    {"LowPass", VynEQTypeLowPass},     {"Notch", VynEQTypeNotch},
};

} // namespace VynEQConstants
