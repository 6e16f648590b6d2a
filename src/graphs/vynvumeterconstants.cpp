#include "vynvumeterconstants.h"

#include <cmath>
#include <cstdlib>

namespace VynVUMeterConstants {

const VynRGBColor kVynVUMeterOnColors[kVynVUMeterOnColorsCount] = {
    {0.55, 0.55, 0.55, 1}, {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1},
    {0.31, 0.57, 1, 1},    {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1},
    {0.31, 0.57, 1, 1},    {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1},
    {0.31, 0.57, 1, 1},    {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1},
    {0.31, 0.57, 1, 1},    {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1}, {0.31, 0.57, 1, 1},
    {0.31, 0.57, 1, 1},    {0.31, 0.57, 1, 1}, {0.78, 0.23, 1, 1}, {0.89, 0.21, 1, 1},
    {1, 0.2, 1, 1},        {1, 0.18, 0.89, 1}, {1, 0.17, 0.77, 1}, {1, 0.16, 0.65, 1},
    {1, 0.14, 0.52, 1},    {1, 0.13, 0.39, 1}, {1, 0.11, 0.26, 1}, {1, 0.1, 0.12, 1},
};

const VynRGBColor kVynVUMeterGlowColors[2 * kVynVUMeterOnColorsCount] = {
    // VynStyleLight
    {0.81, 0.81, 0.81, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {0.56, 0.88, 1, 1},
    {1, 0.48, 0.96, 1},
    {1, 0.46, 0.88, 1},
    {1, 0.45, 0.8, 1},
    {1, 0.43, 0.72, 1},
    {1, 0.42, 0.63, 1},
    {1, 0.41, 0.54, 1},
    {1, 0.39, 0.44, 1},
    {1, 0.41, 0.38, 1},
    {1, 0.49, 0.36, 1},
    {1, 0.57, 0.35, 1},
    // VynStyleDark
    {0.81, 0.81, 0.81, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {0.36, 0.83, 1, 1},
    {1, 0.28, 0.94, 1},
    {1, 0.26, 0.84, 1},
    {1, 0.25, 0.73, 1},
    {1, 0.23, 0.62, 1},
    {1, 0.22, 0.5, 1},
    {1, 0.21, 0.38, 1},
    {1, 0.19, 0.26, 1},
    {1, 0.23, 0.18, 1},
    {1, 0.33, 0.16, 1},
    {1, 0.44, 0.15, 1},
};

const VynRGBColor kVynVUMeterOffColor[2] = {
    {0.3, 0.3, 0.35, 1},
    {0.2, 0.2, 0.25, 1},
};

const VynVUMetreTickMarkConfig kVynVUMetreTickMarkConfigs[kVynVUMetreTickMarkConfigsCount] = {
    {0.5, 0.25, 2}, {1, 0.5, 1}, {2.5, 0.5, 1}, {4, 1, 0},    {5, 2.5, 1}, {6, 2, 0},
    {7.5, 2.5, 1},  {10, 5, 0},  {20, 5, 0},    {25, 5, 0},   {30, 10, 0}, {50, 25, 0},
    {60, 20, 0},    {75, 25, 0}, {100, 25, 0},  {200, 50, 0},
};

double toNearestHalfPixel(double value)
{
    if (!std::isfinite(value))
        return value;
    return value - std::remainder(value, 0.5);
}

VynVUMetreTickMarkConfig tickMarksConfigForValues(int cellsLength, int minValue, int maxValue,
                                                  int maxSpacing)
{
    constexpr int last = kVynVUMetreTickMarkConfigsCount - 1;
    // In double: the difference of two ints may not fit in an int.
    const double range = std::fabs(double(maxValue) - double(minValue));
    const auto spacing = [&](int k) {
        if (range == 0.0)
            return HUGE_VAL;
        return toNearestHalfPixel(kVynVUMetreTickMarkConfigs[k].secondaryInterval *
                                  double(cellsLength) / range);
    };

    int k = 0;
    while (k < last && !(spacing(k) >= 2.0))
        ++k;
    double p = spacing(k);
    int i = k + 1;
    while (i < last && p < maxSpacing) {
        p = spacing(i + 1);
        if (p >= maxSpacing)
            break;
        ++i;
    }
    return kVynVUMetreTickMarkConfigs[i > last ? last : i];
}

} // namespace VynVUMeterConstants
