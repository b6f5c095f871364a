#include "controls/ProgressFraction.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

double progressFraction(double from, double to, double value)
{
    const double fraction = (value - from) / (to - from);
    return std::isnan(fraction) || from == to ? 0.0 : std::clamp(fraction, 0.0, 1.0);
}

} // namespace tamble::client
