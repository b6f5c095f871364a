#include "plot/LinePlotter.h"

#include "plot/GridLines.h"
#include "plot/StrokeNode.h"

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

void LinePlotter::fillNode(StrokeNode &node) const
{
    QList<QLineF> lines;
    lines.reserve(m_values.size());
    for (const qreal value : m_values)
        lines.append(m_orientation == Horizontal ? horizontalLine(value, size()) : verticalLine(value, size()));
    node.setStroke(segmentsStroke(lines, lineWidth()));
}

} // namespace tamble::client
