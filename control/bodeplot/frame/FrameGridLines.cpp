#include "bodeplot/frame/FrameGridLines.h"

#include "scale/PlotAxes.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

struct Band
{
    double centre = 0.0;
    double width = 0.0;
};

/// The whole device pixels nearest to a line; in pixels.
Band snappedBand(double centre, double width, double length, double pixelRatio)
{
    const double pixels = std::max(1.0, std::round(width * pixelRatio));
    const double last = std::max(0.0, std::floor(length * pixelRatio) - pixels);
    const double first = std::clamp(std::round(centre * pixelRatio - pixels / 2.0), 0.0, last);
    return {(first + pixels / 2.0) / pixelRatio, pixels / pixelRatio};
}

bool isPositive(double number)
{
    return number > 0.0 && std::isfinite(number);
}

} // namespace

GridPlaces gridPlaces(const AxisRange &axis, double increment, const TickChoice &choice)
{
    const FrameTicks ticks = frameTicks(axis, increment);
    GridPlaces places;
    places.problem = ticks.problem;
    for (const double value : ticks.values) {
        if (value > axis.from && value < axis.to)
            (choice.contains(value) ? places.full : places.faint).append(axis.place(value));
    }
    return places;
}

StrokeGeometry crispLines(const QList<double> &places, Qt::Orientation orientation, const GridCanvas &canvas,
                          double width)
{
    StrokeGeometry lines{StrokeMode::Triangles, {}, 1.0};
    if (canvas.size.isEmpty() || !isPositive(width) || !isPositive(canvas.pixelRatio))
        return lines;
    const double right = canvas.size.width();
    const double bottom = canvas.size.height();
    for (const double place : places) {
        if (orientation == Qt::Horizontal) {
            const Band band = snappedBand((1.0 - place) * bottom, width, bottom, canvas.pixelRatio);
            appendSegmentTriangles(lines.vertices, {0.0, band.centre, right, band.centre}, band.width);
        } else {
            const Band band = snappedBand(place * right, width, right, canvas.pixelRatio);
            appendSegmentTriangles(lines.vertices, {band.centre, 0.0, band.centre, bottom}, band.width);
        }
    }
    return lines;
}

} // namespace tamble::client
