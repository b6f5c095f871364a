#pragma once

#include "base/ControlExport.h"
#include "scenegraph/PictureShape.h"
#include "scenegraph/SmoothStroke.h"
#include "scenegraph/SmoothStrokeMaterial.h"

#include <QtQuick/QSGGeometry>
#include <QtQuick/QSGGeometryNode>

#include <span>
#include <vector>

namespace tamble::client {

/// Scene-graph node of a line with smooth edges, in one colour; owns geometry and material and updates them in place.
class TAMBLE_CLIENT_CONTROL_EXPORT SmoothStrokeNode : public QSGGeometryNode, public PictureShape
{
public:
    SmoothStrokeNode();

    /// Marks the material only when the colour differs.
    void setColor(const QColor &color);

    /// Rewrites the line between the two calls; in between come its pieces.
    void begin(const StrokeWidth &width);
    void add(std::span<const QPointF> points);
    void end();

    void paint(PictureCanvas &canvas) const override;

    /// Number of vertices that draw something. The geometry may hold more, so that it need not be allocated for
    /// every change.
    int usedVertexCount() const { return int(m_vertices.size()); }

private:
    QSGGeometry m_geometry;
    SmoothStrokeMaterial m_material;
    std::vector<StrokeVertex> m_vertices;
    StrokeWidth m_width;
};

} // namespace tamble::client
