#include "workspace/ZoomTravel.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

// Of the whole way: two pixels of a short slider.
constexpr double detentWidth = 0.03;

} // namespace

double ZoomTravel::placeOf(double zoom) const
{
    const double place = std::log(zoom / minimum) / std::log(maximum / minimum);
    return std::isfinite(place) ? std::clamp(place, 0.0, 1.0) : 0.0;
}

double ZoomTravel::zoomAt(double place, bool detent) const
{
    if (detent && minimum <= 1.0 && maximum >= 1.0 && std::abs(place - placeOf(1.0)) <= detentWidth)
        return 1.0;
    const double zoom = minimum * std::pow(maximum / minimum, place);
    return std::isfinite(zoom) ? zoom : minimum;
}

} // namespace tamble::client
