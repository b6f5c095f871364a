#include "scale/ScaleSteps.h"

#include <cmath>
#include <initializer_list>

namespace tamble::client {

double snapped(double value, double step)
{
    const double size = std::abs(step);
    const double result = std::round(value / size) * size;
    return std::isfinite(result) ? result : value;
}

double niceStepAtLeast(double minimum)
{
    if (!(minimum > 0.0) || !std::isfinite(minimum))
        return 0.0;
    const double magnitude = std::pow(10.0, std::floor(std::log10(minimum)));
    // Quotients such as 0.3 / 0.1 lie a hair above their round number.
    const double relative = minimum / magnitude * (1.0 - 1e-12);
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (relative <= factor)
            return factor * magnitude;
    }
    return 10.0 * magnitude;
}

} // namespace tamble::client
