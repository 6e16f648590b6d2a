#include "vynvumeterconstants.h"

#include <cmath>
#include <cstdlib>

namespace VynVUMeterConstants {

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
