#include "plot/StrokeGeometry.h"

#include <cmath>
#include <limits>

namespace tamble::client {

namespace {

/// Mitres reach at most this many half widths from the corner.
constexpr double mitreLimit = 4.0;

/// The scene graph stores single precision, where larger numbers are infinite.
bool isDrawable(double coordinate)
{
    return std::abs(coordinate) <= double(std::numeric_limits<float>::max());
}

bool isDrawable(const QPointF &point)
{
    return isDrawable(point.x()) && isDrawable(point.y());
}

bool isWidth(double width)
{
    return width > 0.0 && std::isfinite(width);
}

/// Unit vector at right angles to the line from one point to another; null when they coincide.
QPointF normal(const QPointF &from, const QPointF &to)
{
    const QPointF along = to - from;
    const double length = std::hypot(along.x(), along.y());
    return length > 0.0 ? QPointF(-along.y() / length, along.x() / length) : QPointF();
}

void appendPair(QList<QPointF> &vertices, const QPointF &centre, const QPointF &offset)
{
    vertices << centre + offset << centre - offset;
}

void appendCorner(QList<QPointF> &vertices, const QPointF &corner, const QPointF &before, const QPointF &after,
                  double halfWidth)
{
    const double shared = 1.0 + QPointF::dotProduct(before, after);
    if (shared * mitreLimit * mitreLimit >= 2.0) {
        appendPair(vertices, corner, (before + after) * (halfWidth / shared));
    } else {
        appendPair(vertices, corner, before * halfWidth);
        appendPair(vertices, corner, after * halfWidth);
    }
}

QList<QPointF> drawablePoints(const QList<QPointF> &points)
{
    QList<QPointF> drawable;
    drawable.reserve(points.size());
    for (const QPointF &point : points) {
        if (isDrawable(point))
            drawable.append(point);
    }
    return drawable;
}

QList<QPointF> polylineTriangleStrip(const QList<QPointF> &points, double width)
{
    const double halfWidth = width / 2.0;
    QList<QPointF> vertices;
    vertices.reserve(points.size() * 2);
    QPointF last = points.first();
    QPointF lastNormal;
    for (const QPointF &point : points) {
        const QPointF currentNormal = normal(last, point);
        if (currentNormal.isNull())
            continue; // repeated point: no direction of its own
        if (lastNormal.isNull())
            appendPair(vertices, last, currentNormal * halfWidth);
        else
            appendCorner(vertices, last, lastNormal, currentNormal, halfWidth);
        last = point;
        lastNormal = currentNormal;
    }
    if (!lastNormal.isNull())
        appendPair(vertices, last, lastNormal * halfWidth);
    return vertices;
}

} // namespace

StrokeGeometry polylineStroke(const QList<QPointF> &points, double width)
{
    const QList<QPointF> drawable = isWidth(width) ? drawablePoints(points) : QList<QPointF>();
    if (drawable.size() < 2)
        return {};
    if (width <= 1.0)
        return {StrokeMode::LineStrip, drawable, width};
    return {StrokeMode::TriangleStrip, polylineTriangleStrip(drawable, width), 1.0};
}

StrokeGeometry segmentsStroke(const QList<QLineF> &segments, double width)
{
    StrokeGeometry stroke{StrokeMode::Lines, {}, 1.0};
    if (!isWidth(width))
        return stroke;
    if (width > 1.0) {
        stroke.mode = StrokeMode::Triangles;
        for (const QLineF &segment : segments)
            appendSegmentTriangles(stroke.vertices, segment, width);
        return stroke;
    }
    stroke.lineWidth = width;
    for (const QLineF &segment : segments) {
        if (isDrawable(segment.p1()) && isDrawable(segment.p2()))
            stroke.vertices << segment.p1() << segment.p2();
    }
    return stroke;
}

void appendSegmentTriangles(QList<QPointF> &vertices, const QLineF &segment, double width)
{
    const QPointF offset = normal(segment.p1(), segment.p2()) * (width / 2.0);
    if (!isWidth(width) || !isDrawable(segment.p1()) || !isDrawable(segment.p2()) || offset.isNull())
        return;
    vertices << segment.p1() + offset << segment.p1() - offset << segment.p2() + offset;
    vertices << segment.p2() + offset << segment.p1() - offset << segment.p2() - offset;
}

} // namespace tamble::client
