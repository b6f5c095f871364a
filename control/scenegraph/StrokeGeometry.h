#pragma once

#include <QtCore/QLineF>
#include <QtCore/QList>
#include <QtCore/QPointF>

namespace tamble::client {

/// How the vertices of a stroke are joined.
enum class StrokeMode { LineStrip, Lines, Triangles };

/// Vertices, in pixels, that draw lines with hard edges: as lines up to a width of 1, which every graphics API
/// supports, or as triangles.
struct StrokeGeometry
{
    StrokeMode mode = StrokeMode::LineStrip;
    QList<QPointF> vertices;
    double lineWidth = 1.0;

    bool operator==(const StrokeGeometry &) const = default;
};

/// Whether the scene graph, which stores single precision, can hold the point; never when it is not finite.
bool isDrawable(const QPointF &point);

/// One line through the points, for widths up to 1.
///
/// Points that are not drawable are left out. Without two points or with a width that is not positive there are no
/// vertices.
StrokeGeometry polylineStroke(const QList<QPointF> &points, double width);

/// Separate lines, for widths up to 1; those with a point that is not drawable are left out, a width that is not
/// positive gives no vertices.
StrokeGeometry segmentsStroke(const QList<QLineF> &segments, double width);

/// Appends the two triangles of one line; nothing for a line without length or with a coordinate that is not finite.
void appendSegmentTriangles(QList<QPointF> &vertices, const QLineF &segment, double width);

} // namespace tamble::client
