#include "plot/GraphPlotter.h"

#include "scenegraph/SmoothStrokeNode.h"
#include "scenegraph/StrokeGeometry.h"

namespace tamble::client {

GraphPlotter::GraphPlotter(QQuickItem *parent)
    : Plotter(parent)
{}

void GraphPlotter::setColor(const QColor &color)
{
    if (assignColor(color))
        Q_EMIT colorChanged();
}

void GraphPlotter::setLineWidth(qreal lineWidth)
{
    if (assignLineWidth(lineWidth))
        Q_EMIT lineWidthChanged();
}

void GraphPlotter::setValues(const QVariantList &points)
{
    if (m_values == points)
        return;
    m_values = points;
    invalidateLines();
    Q_EMIT valuesChanged();
}

QList<QPointF> GraphPlotter::pixels() const
{
    QList<QPointF> pixels;
    pixels.reserve(m_values.size());
    for (const QVariant &entry : m_values) {
        if (!entry.canConvert<QPointF>())
            continue;
        const QPointF point = entry.toPointF();
        pixels.append({width() * point.x(), height() * point.y()});
    }
    return pixels;
}

StrokeGeometry GraphPlotter::thinLines() const
{
    return polylineStroke(pixels(), lineWidth());
}

void GraphPlotter::addWideLines(SmoothStrokeNode &node) const
{
    QList<QPointF> points = pixels();
    points.removeIf([](const QPointF &point) { return !isDrawable(point); });
    node.add(points);
}

} // namespace tamble::client
