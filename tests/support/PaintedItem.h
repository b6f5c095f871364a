#pragma once

#include "scenegraph/SmoothStrokeNode.h"

#include <QtCore/QPointF>
#include <QtQuick/QSGFlatColorMaterial>
#include <QtQuick/QSGGeometryNode>

#include <memory>
#include <span>

/// An item whose frames a test makes as the render loop would.
template <typename Item>
class PaintedItem : public Item
{
public:
    void paint()
    {
        this->updatePolish();
        m_node.reset(this->updatePaintNode(m_node.release(), nullptr));
    }
    /// The scene graph of the window is gone; the next frame starts anew.
    void loseNode() { m_node.reset(); }
    QSGNode *root() const { return m_node.get(); }
    QSGGeometryNode *node() const { return static_cast<QSGGeometryNode *>(m_node.get()); }

private:
    std::unique_ptr<QSGNode> m_node;
};

inline QList<QPointF> verticesOf(const QSGGeometryNode *node)
{
    QList<QPointF> points;
    for (int i = 0; i < node->geometry()->vertexCount(); ++i) {
        const QSGGeometry::Point2D &point = node->geometry()->vertexDataAsPoint2D()[i];
        points.append({double(point.x), double(point.y)});
    }
    return points;
}

/// The vertices of a wide line without the room behind them, which repeats the last one.
inline std::span<tamble::client::StrokeVertex> strokeVertices(QSGNode *node)
{
    auto *stroke = static_cast<tamble::client::SmoothStrokeNode *>(node);
    return {static_cast<tamble::client::StrokeVertex *>(stroke->geometry()->vertexData()),
            std::size_t(stroke->usedVertexCount())};
}

inline QColor colorOf(const QSGGeometryNode *node)
{
    return static_cast<QSGFlatColorMaterial *>(node->material())->color();
}

/// Writes a mark that the next rebuild of the vertices would overwrite.
inline void markVertices(QSGGeometryNode *node)
{
    node->geometry()->vertexDataAsPoint2D()[0].set(-77.0f, -77.0f);
}

inline bool isMarked(const QSGGeometryNode *node)
{
    return verticesOf(node).first() == QPointF(-77, -77);
}
