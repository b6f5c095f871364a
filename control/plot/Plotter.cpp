#include "plot/Plotter.h"

#include "plot/SmoothStrokeNode.h"
#include "plot/StrokeNode.h"

#include <QtQuick/QQuickWindow>

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

void Plotter::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    // Smooth edges are one pixel of the device wide.
    if (change == ItemDevicePixelRatioHasChanged)
        invalidateLines();
}

QSGNode *Plotter::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    const bool isWide = m_lineWidth > 1.0;
    if (oldNode && m_nodeIsWide != isWide) {
        delete oldNode;
        oldNode = nullptr;
    }
    m_nodeIsWide = isWide;
    return isWide ? updateWideNode(oldNode) : updateThinNode(oldNode);
}

// A fresh node (first frame, another kind of line, or the window lost its scene graph) is filled whatever the flag
// says.

QSGNode *Plotter::updateThinNode(QSGNode *oldNode)
{
    auto *node = oldNode ? static_cast<StrokeNode *>(oldNode) : new StrokeNode;
    node->setColor(m_color);
    if (std::exchange(m_linesStale, false) || !oldNode)
        node->setStroke(size().isEmpty() ? StrokeGeometry() : thinLines());
    return node;
}

QSGNode *Plotter::updateWideNode(QSGNode *oldNode)
{
    auto *node = oldNode ? static_cast<SmoothStrokeNode *>(oldNode) : new SmoothStrokeNode;
    node->setColor(m_color);
    if (std::exchange(m_linesStale, false) || !oldNode) {
        node->begin({m_lineWidth, window() ? window()->effectiveDevicePixelRatio() : 1.0});
        if (!size().isEmpty())
            addWideLines(*node);
        node->end();
    }
    return node;
}

} // namespace tamble::client
