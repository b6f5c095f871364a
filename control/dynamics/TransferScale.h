#pragma once

#include <QtCore/QPointF>

namespace tamble::client {

/// Maps `value` from `from`…`to` to `targetFrom`…`targetTo`, clamped at both ends.
///
/// The ends are compared in numeric order, so with a reversed source range the clamps give the ends opposite to those
/// that the interpolation tends to; the curves rely on nothing else. Where the arithmetic has no number as its result
/// (a NaN value or bound, an infinite bound), `targetFrom` is returned: a point that cannot be placed sits at the low
/// end of its axis.
double clampedScale(double value, double from, double to, double targetFrom, double targetTo);

/// Straight line output = slope · input + intercept, both levels in dB.
struct Line
{
    double slope = 0.0;
    double intercept = 0.0;
};

/// Point where two lines meet; parallel lines give non-finite coordinates, which `clampedScale` later places.
QPointF intersection(const Line &first, const Line &second);

/// Plotted level range in dB; maps levels to normalised plot coordinates.
struct LevelRange
{
    double minimum = 0.0;
    double maximum = 0.0;

    /// 0 (left, `minimum`) to 1 (right, `maximum`).
    double x(double level) const { return clampedScale(level, minimum, maximum, 0.0, 1.0); }
    /// 1 (bottom, `minimum`) to 0 (top, `maximum`).
    double y(double level) const { return clampedScale(level, minimum, maximum, 1.0, 0.0); }
    /// The point with these input and output levels.
    QPointF point(double input, double output) const { return {x(input), y(output)}; }
};

} // namespace tamble::client
