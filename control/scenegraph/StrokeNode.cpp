#include "scenegraph/StrokeNode.h"

#include "scenegraph/PictureCanvas.h"
#include "scenegraph/VertexStore.h"

namespace tamble::client {

namespace {

QSGGeometry::DrawingMode drawingMode(StrokeMode mode)
{
    switch (mode) {
    case StrokeMode::LineStrip:
        return QSGGeometry::DrawLineStrip;
    case StrokeMode::Lines:
        return QSGGeometry::DrawLines;
    case StrokeMode::Triangles:
        return QSGGeometry::DrawTriangles;
    }
    return QSGGeometry::DrawLines;
}

} // namespace

StrokeNode::StrokeNode()
    : m_geometry(QSGGeometry::defaultAttributes_Point2D(), 0)
{
    m_geometry.setDrawingMode(drawingMode(m_stroke.mode));
    setGeometry(&m_geometry);
    setMaterial(&m_material);
}

void StrokeNode::setColor(const QColor &color)
{
    if (m_material.color() == color)
        return;
    m_material.setColor(color);
    markDirty(DirtyMaterial);
}

void StrokeNode::setStroke(const StrokeGeometry &stroke)
{
    if (m_stroke == stroke)
        return;
    m_stroke = stroke;
    m_geometry.setDrawingMode(drawingMode(stroke.mode));
    m_geometry.setLineWidth(float(stroke.lineWidth));
    const int before = m_geometry.vertexCount();
    if (before != stroke.vertices.size())
        m_geometry.allocate(int(stroke.vertices.size()));
    QSGGeometry::Point2D *vertex = m_geometry.vertexDataAsPoint2D();
    for (const QPointF &point : stroke.vertices)
        (vertex++)->set(float(point.x()), float(point.y()));
    markDirty(writtenState(before));
}

void StrokeNode::paint(PictureCanvas &canvas) const
{
    canvas.setColor(m_material.color());
    if (m_stroke.mode != StrokeMode::Triangles) {
        canvas.drawThinLines(m_stroke.vertices, m_stroke.mode == StrokeMode::LineStrip);
        return;
    }
    const auto corner = [&](qsizetype i) {
        return CanvasVertex{.x = m_stroke.vertices[i].x(), .y = m_stroke.vertices[i].y()};
    };
    for (qsizetype i = 2; i < m_stroke.vertices.size(); i += 3)
        canvas.fillTriangle({corner(i - 2), corner(i - 1), corner(i)});
}

} // namespace tamble::client
