#include "workspace/PlaneGrid.h"

#include <cmath>

namespace tamble::client {

namespace {

constexpr double leastPixels = 8.0;

// More lines than any screen shows; views that far off are not drawn.
constexpr double mostLines = 10000.0;

} // namespace

double shownGridSize(double gridSize, double pixelsPerUnit)
{
    const double pixels = gridSize * pixelsPerUnit;
    if (!(gridSize > 0.0 && pixels > 0.0 && std::isfinite(pixels)))
        return 0.0;
    return pixels >= leastPixels ? gridSize : std::ldexp(gridSize, int(std::ceil(std::log2(leastPixels / pixels))));
}

QList<double> gridPlaces(double begin, double end, double step)
{
    QList<double> places;
    const double first = std::ceil(begin / step);
    const double last = std::floor(end / step);
    if (!(step > 0.0 && last >= first && last - first < mostLines))
        return places;
    const int count = int(last - first) + 1;
    places.reserve(count);
    for (int line = 0; line < count; ++line)
        places.append(((first + line) * step - begin) / (end - begin));
    return places;
}

} // namespace tamble::client
