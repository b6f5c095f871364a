#include "plot/RGrid.h"

#include "scenegraph/SoftwarePicture.h"
#include "scenegraph/StrokeNode.h"

#include <QtQuick/QQuickWindow>

#include <utility>

namespace tamble::client {

RGrid::RGrid(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void RGrid::setHorizontal(RGridLayout *horizontal)
{
    assignLayout(m_horizontal, horizontal, &RGrid::horizontalChanged);
}

void RGrid::setVertical(RGridLayout *vertical)
{
    assignLayout(m_vertical, vertical, &RGrid::verticalChanged);
}

void RGrid::setFrameVisible(bool frameVisible)
{
    if (m_frameVisible == frameVisible)
        return;
    m_frameVisible = frameVisible;
    invalidateLines();
    Q_EMIT frameVisibleChanged();
}

void RGrid::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemDevicePixelRatioHasChanged)
        invalidateLines();
}

void RGrid::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        invalidateLines();
}

QSGNode *RGrid::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    return SoftwarePicture::updated(*this, oldNode, [this](QSGNode *old) { return updateLines(old); });
}

QSGNode *RGrid::updateLines(QSGNode *oldNode)
{
    QSGNode *root = oldNode ? oldNode : new QSGNode;
    if (!std::exchange(m_linesStale, false) && oldNode)
        return root;

    GridDescription grid;
    grid.frameVisible = m_frameVisible;
    grid.pixelRatio = window() ? window()->effectiveDevicePixelRatio() : 1.0;
    if (m_horizontal)
        grid.horizontal = m_horizontal->lines();
    if (m_vertical)
        grid.vertical = m_vertical->lines();
    const QList<ColoredLines> lines = gridLines(grid, size());

    while (root->childCount() > lines.size()) {
        QSGNode *surplus = root->lastChild();
        root->removeChildNode(surplus);
        delete surplus;
    }
    while (root->childCount() < lines.size())
        root->appendChildNode(new StrokeNode);
    auto *node = static_cast<StrokeNode *>(root->firstChild());
    for (const ColoredLines &ofOneColor : lines) {
        node->setColor(ofOneColor.color);
        node->setStroke(ofOneColor.stroke);
        node = static_cast<StrokeNode *>(node->nextSibling());
    }
    return root;
}

void RGrid::assignLayout(QPointer<RGridLayout> &stored, RGridLayout *layout, void (RGrid::*changed)())
{
    if (stored == layout)
        return;
    // The other direction may show the same layout and then keeps its connections.
    const bool shared = m_horizontal == m_vertical;
    if (stored && !shared)
        stored->disconnect(this);
    stored = layout;
    if (layout && m_horizontal != m_vertical) {
        connect(layout, &RGridLayout::linesChanged, this, &RGrid::invalidateLines);
        connect(layout, &QObject::destroyed, this, &RGrid::invalidateLines);
    }
    invalidateLines();
    Q_EMIT(this->*changed)();
}

void RGrid::invalidateLines()
{
    m_linesStale = true;
    update();
}

} // namespace tamble::client
