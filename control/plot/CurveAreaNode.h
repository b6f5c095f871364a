#pragma once

#include "plot/AreaStrip.h"
#include "plot/CustomMaterial.h"
#include "scenegraph/PictureShape.h"

#include <QtQuick/QSGGeometry>
#include <QtQuick/QSGGeometryNode>

#include <span>
#include <vector>

namespace tamble::client {

/// Scene-graph node of the area between a curve and a horizontal axis, fading from one to the other; owns geometry and
/// material and updates them in place.
class CurveAreaNode : public QSGGeometryNode, public PictureShape
{
public:
    CurveAreaNode();

    /// Marks the material only when the colour differs.
    void setColor(const QColor &color);

    /// Rewrites the area between the two calls; in between come its pieces, from left to right.
    void begin(double axisY, const AreaSaturation &saturation);
    void add(std::span<const QPointF> curve);
    void end();

    void paint(PictureCanvas &canvas) const override;

    /// Number of vertices that draw something.
    int usedVertexCount() const { return int(m_vertices.size()); }

private:
    QSGGeometry m_geometry;
    CustomMaterial m_material;
    std::vector<AreaVertex> m_vertices;
    double m_axisY = 0.0;
    AreaSaturation m_saturation;
};

} // namespace tamble::client
