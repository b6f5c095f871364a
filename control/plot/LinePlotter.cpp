#include "plot/LinePlotter.h"

#include "plot/GridLines.h"
#include "scenegraph/SmoothStrokeNode.h"
#include "scenegraph/StrokeGeometry.h"

#include <array>

namespace tamble::client {

LinePlotter::LinePlotter(QQuickItem *parent)
    : Plotter(parent)
{}

void LinePlotter::setOrientation(ORIENTATION orientation)
{
    if (m_orientation == orientation)
        return;
    m_orientation = orientation;
    invalidateLines();
    Q_EMIT orientationChanged();
}

void LinePlotter::setColor(const QColor &color)
{
    if (assignColor(color))
        Q_EMIT colorChanged();
}

void LinePlotter::setLineWidth(qreal lineWidth)
{
    if (assignLineWidth(lineWidth))
        Q_EMIT lineWidthChanged();
}

void LinePlotter::setValues(const QList<qreal> &points)
{
    if (m_values == points)
        return;
    m_values = points;
    invalidateLines();
    Q_EMIT valuesChanged();
}

QList<QLineF> LinePlotter::lines() const
{
    QList<QLineF> lines;
    lines.reserve(m_values.size());
    for (const qreal value : m_values)
        lines.append(m_orientation == Horizontal ? horizontalLine(value, size()) : verticalLine(value, size()));
    return lines;
}

StrokeGeometry LinePlotter::thinLines() const
{
    return segmentsStroke(lines(), lineWidth());
}

void LinePlotter::addWideLines(SmoothStrokeNode &node) const
{
    for (const QLineF &line : lines()) {
        if (isDrawable(line.p1()) && isDrawable(line.p2()))
            node.add(std::array{line.p1(), line.p2()});
    }
}

} // namespace tamble::client
