#include "scenegraph/StrokeGeometry.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace tamble::client {

namespace {

bool isDrawable(double coordinate)
{
    return std::abs(coordinate) <= double(std::numeric_limits<float>::max());
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

} // namespace

bool isDrawable(const QPointF &point)
{
    return isDrawable(point.x()) && isDrawable(point.y());
}

StrokeGeometry polylineStroke(const QList<QPointF> &points, double width)
{
    if (!isWidth(width))
        return {};
    StrokeGeometry stroke{StrokeMode::LineStrip, {}, width};
    std::copy_if(points.begin(), points.end(), std::back_inserter(stroke.vertices),
                 [](const QPointF &point) { return isDrawable(point); });
    return stroke.vertices.size() < 2 ? StrokeGeometry() : stroke;
}

StrokeGeometry segmentsStroke(const QList<QLineF> &segments, double width)
{
    StrokeGeometry stroke{StrokeMode::Lines, {}, 1.0};
    if (!isWidth(width))
        return stroke;
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
