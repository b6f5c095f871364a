#pragma once

#include <QtCore/QLineF>
#include <QtCore/QList>
#include <QtCore/QPointF>

namespace tamble::client {

/// How the vertices of a stroke are joined.
enum class StrokeMode { LineStrip, Lines, TriangleStrip, Triangles };

/// Vertices, in pixels, that draw lines of some width.
///
/// Widths up to 1 are lines. Wider ones are triangles, because graphics APIs need not support wide lines and the scene
/// graph may draw line strips of one colour with each other's width.
struct StrokeGeometry
{
    StrokeMode mode = StrokeMode::LineStrip;
    QList<QPointF> vertices;
    double lineWidth = 1.0;

    bool operator==(const StrokeGeometry &) const = default;
};

/// One line through the points, with mitred corners where it is wide (bevelled where the mitre would grow too long).
///
/// Points that are not finite are left out. Without two points or with a width that is not positive there are no
/// vertices.
StrokeGeometry polylineStroke(const QList<QPointF> &points, double width);

/// Separate lines; lines that are not finite are left out, a width that is not positive gives no vertices.
StrokeGeometry segmentsStroke(const QList<QLineF> &segments, double width);

/// Appends the two triangles of one line; nothing for a line without length or with a coordinate that is not finite.
void appendSegmentTriangles(QList<QPointF> &vertices, const QLineF &segment, double width);

} // namespace tamble::client
