#include "plot/Plotter.h"

#include "scenegraph/SmoothStrokeNode.h"
#include "scenegraph/SoftwarePicture.h"
#include "scenegraph/StrokeNode.h"

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
    return SoftwarePicture::updated(*this, oldNode, [this](QSGNode *old) { return updateLines(old); });
}

QSGNode *Plotter::updateLines(QSGNode *oldNode)
{
    const bool isWide = m_lineWidth > 1.0;
    if (oldNode && m_nodeIsWide != isWide) {
        delete oldNode;
        oldNode = nullptr;
    }
    m_nodeIsWide = isWide;
    // A fresh node is empty: in the first frame, for another kind of line, or after the window lost its scene graph.
    const bool linesStale = std::exchange(m_linesStale, false) || !oldNode;
    return isWide ? updateWideNode(oldNode, linesStale) : updateThinNode(oldNode, linesStale);
}

QSGNode *Plotter::updateThinNode(QSGNode *oldNode, bool linesStale) const
{
    auto *node = oldNode ? static_cast<StrokeNode *>(oldNode) : new StrokeNode;
    node->setColor(m_color);
    if (linesStale)
        node->setStroke(size().isEmpty() ? StrokeGeometry() : thinLines());
    return node;
}

QSGNode *Plotter::updateWideNode(QSGNode *oldNode, bool linesStale) const
{
    auto *node = oldNode ? static_cast<SmoothStrokeNode *>(oldNode) : new SmoothStrokeNode;
    node->setColor(m_color);
    if (linesStale) {
        node->begin({m_lineWidth, window() ? window()->effectiveDevicePixelRatio() : 1.0});
        if (!size().isEmpty())
            addWideLines(*node);
        node->end();
    }
    return node;
}

} // namespace tamble::client
