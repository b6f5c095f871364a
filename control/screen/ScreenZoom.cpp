#include "screen/ScreenZoom.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

double autoZoomFactor(double logicalDpi, double designDpi)
{
    const double factor = logicalDpi / designDpi;
    if (!(logicalDpi > 0.0) || !(designDpi > 0.0) || !std::isfinite(factor))
        return 1.0;
    // Dividing by 20 instead of multiplying by 0.05 keeps 1.15 the number that is written so.
    return std::clamp(std::round(factor * 20.0) / 20.0, 0.5, 3.0);
}

} // namespace tamble::client
