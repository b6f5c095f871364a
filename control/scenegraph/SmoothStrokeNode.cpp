#include "scenegraph/SmoothStrokeNode.h"

#include "scenegraph/PictureCanvas.h"
#include "scenegraph/VertexStore.h"

#include <array>

namespace tamble::client {

namespace {

const QSGGeometry::AttributeSet &strokeAttributes()
{
    static const std::array<QSGGeometry::Attribute, 2> attributes{
        QSGGeometry::Attribute::createWithAttributeType(0, 2, QSGGeometry::FloatType, QSGGeometry::PositionAttribute),
        QSGGeometry::Attribute::createWithAttributeType(1, 1, QSGGeometry::FloatType, QSGGeometry::UnknownAttribute),
    };
    static const QSGGeometry::AttributeSet set{int(attributes.size()), sizeof(StrokeVertex), attributes.data()};
    return set;
}

} // namespace

SmoothStrokeNode::SmoothStrokeNode()
    : m_geometry(strokeAttributes(), 0)
{
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void SmoothStrokeNode::setColor(const QColor &color)
{
    if (m_material.setColor(color))
        markDirty(DirtyMaterial);
}

void SmoothStrokeNode::begin(const StrokeWidth &width)
{
    m_width = width;
    m_vertices.clear();
}

void SmoothStrokeNode::add(std::span<const QPointF> points)
{
    appendSmoothStroke(points, m_width, m_vertices);
}

void SmoothStrokeNode::end()
{
    markDirty(storeStrip<StrokeVertex>(m_geometry, m_vertices));
    if (m_material.setReach(float(m_width.reach())))
        markDirty(DirtyMaterial);
}

void SmoothStrokeNode::paint(PictureCanvas &canvas) const
{
    canvas.setColor(m_material.color(), CanvasStrength::Coverage);
    canvas.fillStrip<StrokeVertex>(m_vertices, [reach = double(m_material.reach())](const StrokeVertex &vertex) {
        return CanvasVertex{vertex.x, vertex.y, vertex.offset, reach};
    });
}

} // namespace tamble::client
