#include "plot/CurveAreaNode.h"

#include "scenegraph/PictureCanvas.h"
#include "scenegraph/VertexStore.h"

namespace tamble::client {

static_assert(sizeof(AreaVertex) == sizeof(QSGGeometry::TexturedPoint2D), "the same four numbers");

CurveAreaNode::CurveAreaNode()
    : m_geometry(QSGGeometry::defaultAttributes_TexturedPoint2D(), 0)
{
    m_geometry.setDrawingMode(QSGGeometry::DrawTriangleStrip);
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void CurveAreaNode::setColor(const QColor &color)
{
    m_material.setColor(color);
    if (m_material.isDirty())
        markDirty(DirtyMaterial);
}

void CurveAreaNode::begin(double axisY, const AreaSaturation &saturation)
{
    m_vertices.clear();
    m_axisY = axisY;
    m_saturation = saturation;
}

void CurveAreaNode::add(std::span<const QPointF> curve)
{
    appendAreaStrip(curve, m_axisY, m_saturation, m_vertices);
}

void CurveAreaNode::end()
{
    markDirty(storeStrip<AreaVertex>(m_geometry, m_vertices));
}

void CurveAreaNode::paint(PictureCanvas &canvas) const
{
    const CustomMaterialFields &fields = m_material.fields();
    canvas.setColor(QColor::fromRgbF(fields.red, fields.green, fields.blue, fields.alpha), CanvasStrength::Product);
    canvas.fillStrip<AreaVertex>(m_vertices, [](const AreaVertex &vertex) {
        return CanvasVertex{vertex.x, vertex.y, vertex.weightedHeight, vertex.inverseHeight};
    });
}

} // namespace tamble::client
