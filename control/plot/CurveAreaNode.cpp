#include "plot/CurveAreaNode.h"

#include "plot/VertexStore.h"

#include <cmath>

namespace tamble::client {

namespace {

QSGGeometry::TexturedPoint2D vertexOf(float x, float y, float saturation)
{
    QSGGeometry::TexturedPoint2D vertex;
    vertex.set(x, y, saturation, 1.0f); // the shader multiplies the two
    return vertex;
}

float saturationOf(double value)
{
    return value > 0.0 ? float(std::fmin(value, 1.0)) : 0.0f;
}

} // namespace

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
    m_axisY = float(axisY);
    m_nearCurve = saturationOf(saturation.nearCurve);
    m_nearAxis = saturationOf(saturation.nearAxis);
}

void CurveAreaNode::add(std::span<const QPointF> curve)
{
    if (curve.size() < 2)
        return;
    // Repeated vertices join the pieces to one strip.
    const bool joins = !m_vertices.empty();
    const auto first = vertexOf(float(curve.front().x()), float(curve.front().y()), m_nearCurve);
    if (joins) {
        m_vertices.push_back(m_vertices.back());
        m_vertices.push_back(first);
    }
    for (const QPointF &point : curve) {
        m_vertices.push_back(vertexOf(float(point.x()), float(point.y()), m_nearCurve));
        m_vertices.push_back(vertexOf(float(point.x()), m_axisY, m_nearAxis));
    }
}

void CurveAreaNode::end()
{
    storeStrip<QSGGeometry::TexturedPoint2D>(m_geometry, m_vertices);
    markDirty(DirtyGeometry);
}

} // namespace tamble::client
