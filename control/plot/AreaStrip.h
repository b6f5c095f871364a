#pragma once

#include <QtCore/QPointF>

#include <span>
#include <vector>

namespace tamble::client {

/// Strength of an area's colour, 0 to 1, where it meets the curve and where it meets the axis.
struct AreaSaturation
{
    double nearCurve = 1.0;
    double nearAxis = 1.0;

    bool operator==(const AreaSaturation &) const = default;
};

/// Vertex of an area, in pixels of the item. The saturation at a place is the product of the two other values, each
/// interpolated for itself.
struct AreaVertex
{
    float x;
    float y;
    float weightedHeight;
    float inverseHeight;

    bool operator==(const AreaVertex &) const = default;
};

/// Appends the area between a curve and a horizontal axis as a triangle strip, after what is there already.
///
/// Within each column the saturation goes evenly from the one at the curve to the one at the axis, however steep the
/// curve is: within 4.2 %, where the area is more than two pixels high. The curve must not cross the axis between two
/// points; points have to be finite, and fewer than two append nothing.
void appendAreaStrip(std::span<const QPointF> curve, double axisY, const AreaSaturation &saturation,
                     std::vector<AreaVertex> &strip);

} // namespace tamble::client
