#pragma once

#include "bodeplot/response/ResponseColumns.h"
#include "scenegraph/FrameClip.h"

#include <span>

namespace tamble::client {

/// A response and its pixel columns.
struct ResponseCurve
{
    std::span<const double> values;
    std::span<const int> samples;    ///< See columnSamples().
    std::span<const double> columns; ///< See scaleColumns().
    LevelScale scale;
    /// Values that stand for angles in degrees: a step of more than half a turn is the way over +-180.
    bool wraps = false;
};

/// The line through a response, in pixels and not yet cut to the frame.
///
/// It has a vertex for the value of each pixel column, at the place of that value's frequency, and one for each higher
/// or lower value between two columns, so that no width hides a narrow notch or shortens a peak; only vertices that the
/// line passes anyway, within a twentieth of a pixel, are left out. Where there are fewer values than columns, every
/// value is a vertex. The line reaches one value beyond the frame on each side and ends with the computed range. An
/// angle that wraps leaves at one end of the scale and comes back at the other.
void responseOutline(const ResponseCurve &curve, const ResponseView &view, PolylineRuns &outline);

/// Upper edge of the filled area between a line and the level of 0 dB.
///
/// The line is held within the frame, with vertices where it crosses the frame's edges and the axis, so that a strip
/// between these points and the axis covers the visible part of the area. Its edge, which lies below the drawn line,
/// has fewer vertices than that and may be a fiftieth of its height off, from a twentieth of a pixel to 0.4.
void areaOutline(const PolylineRuns &line, const QRectF &frame, double axisY, PolylineRuns &outline);

} // namespace tamble::client
