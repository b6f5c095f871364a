#include "meter/MeterLevels.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

/// The smaller of two distances from the section's origin, as fractions of its length.
double litFraction(double levelDistance, double zoneDistance, double length)
{
    const double level = std::min(levelDistance / length, 1.0);
    const double zone = std::min(zoneDistance / length, 1.0);
    const double lit = level > zone ? zone : level;
    return std::isfinite(lit) ? lit : 0.0;
}

} // namespace

double displayedLevel(const MeterRange &range, double level)
{
    // The order of the comparisons decides for NaN: it fails the first one.
    const double raised = level > range.minimum ? level : range.minimum;
    return range.maximum > raised ? raised : range.maximum;
}

double fallenLevel(double displayed, double target, double step)
{
    if (!(displayed > target))
        return target;
    const double fallen = displayed - step;
    return fallen < target ? target : fallen;
}

double barFraction(const MeterRange &range, double level, double zoneLimit)
{
    if (range.minimum >= level || range.minimum >= zoneLimit || range.minimum >= range.maximum)
        return 0.0;
    return litFraction(level - range.minimum, zoneLimit - range.minimum, range.maximum - range.minimum);
}

double upperFraction(const MeterRange &range, double level, double zoneLimit)
{
    if (range.minimum >= level || range.minimum >= zoneLimit || range.split >= range.maximum)
        return 0.0;
    return litFraction(level - range.split, zoneLimit - range.split, range.maximum - range.split);
}

double lowerFraction(const MeterRange &range, double level, double zoneLimit)
{
    // Strict, unlike above: a level at the minimum fills the section.
    if (range.minimum > level || range.minimum > zoneLimit || range.minimum >= range.split)
        return 0.0;
    return litFraction(range.split - level, range.split - zoneLimit, range.split - range.minimum);
}

} // namespace tamble::client
