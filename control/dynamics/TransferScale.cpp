#include "dynamics/TransferScale.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

double clampedScale(double value, double from, double to, double targetFrom, double targetTo)
{
    if (std::min(from, to) >= value)
        return targetFrom;
    if (value >= std::max(from, to))
        return targetTo;
    const double scaled = (value - from) * (targetTo - targetFrom) / (to - from) + targetFrom;
    return std::isfinite(scaled) ? scaled : targetFrom;
}

QPointF intersection(const Line &first, const Line &second)
{
    const double x = (second.intercept - first.intercept) / (first.slope - second.slope);
    return {x, first.slope * x + first.intercept};
}

} // namespace tamble::client
