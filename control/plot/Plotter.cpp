#include "plot/Plotter.h"

#include "plot/StrokeNode.h"

#include <utility>

namespace tamble::client {

Plotter::Plotter(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void Plotter::invalidateLines()
{
    m_linesStale = true;
    update();
}

bool Plotter::assignColor(const QColor &color)
{
    if (m_color == color)
        return false;
    m_color = color;
    update();
    return true;
}

bool Plotter::assignLineWidth(double lineWidth)
{
    if (m_lineWidth == lineWidth)
        return false;
    m_lineWidth = lineWidth;
    invalidateLines();
    return true;
}

void Plotter::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        invalidateLines();
}

QSGNode *Plotter::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    auto *node = oldNode ? static_cast<StrokeNode *>(oldNode) : new StrokeNode;
    node->setColor(m_color);
    // A fresh node (first frame, or the window lost its scene graph) is filled whatever the flag says.
    if (std::exchange(m_linesStale, false) || !oldNode) {
        if (size().isEmpty())
            node->setStroke({});
        else
            fillNode(*node);
    }
    return node;
}

} // namespace tamble::client
