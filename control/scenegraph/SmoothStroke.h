#pragma once

#include <QtCore/QPointF>

#include <span>
#include <vector>

namespace tamble::client {

/// Vertex of a smooth stroke: position in pixels of the item, and distance from the middle of the line in pixels of the
/// device, which the shader turns into coverage.
struct StrokeVertex
{
    float x;
    float y;
    float offset;

    bool operator==(const StrokeVertex &) const = default;
};

/// Width of a stroke and how many device pixels a pixel of the item has.
struct StrokeWidth
{
    double width = 1.0;
    double pixelRatio = 1.0;

    /// Distance in device pixels from the middle of the line to where its smooth edge ends.
    double reach() const { return width * pixelRatio / 2.0 + 0.5; }
    bool isDrawable() const { return width > 0.0 && pixelRatio > 0.0 && width * pixelRatio < 1e4; }

    bool operator==(const StrokeWidth &) const = default;
};

/// Appends a line as a triangle strip, after what is there already.
///
/// Corners are mitred, sharp ones bevelled, so that the tip of a peak ends where its point is. Points have to be
/// finite; repeated ones are left out, and fewer than two different ones append nothing. Coordinates are those of a
/// curve in its frame, small enough for single precision.
void appendSmoothStroke(std::span<const QPointF> points, const StrokeWidth &width, std::vector<StrokeVertex> &strip);

} // namespace tamble::client
