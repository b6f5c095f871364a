#pragma once

#include "plot/CustomMaterial.h"

#include <QtCore/QPointF>
#include <QtQuick/QSGGeometry>
#include <QtQuick/QSGGeometryNode>

#include <span>
#include <vector>

namespace tamble::client {

/// Strength of an area's colour, 0 to 1, where it meets the curve and where it meets the axis.
struct AreaSaturation
{
    double nearCurve = 1.0;
    double nearAxis = 1.0;

    bool operator==(const AreaSaturation &) const = default;
};

/// Scene-graph node of the area between a curve and a horizontal axis, fading from one to the other; owns geometry and
/// material and updates them in place.
class CurveAreaNode : public QSGGeometryNode
{
public:
    CurveAreaNode();

    /// Marks the material only when the colour differs.
    void setColor(const QColor &color);

    /// Rewrites the area between the two calls; in between come its pieces, from left to right.
    void begin(double axisY, const AreaSaturation &saturation);
    void add(std::span<const QPointF> curve);
    void end();

    /// Number of vertices that draw something.
    int usedVertexCount() const { return int(m_vertices.size()); }

private:
    QSGGeometry m_geometry;
    CustomMaterial m_material;
    std::vector<QSGGeometry::TexturedPoint2D> m_vertices;
    float m_axisY = 0.0f;
    float m_nearCurve = 1.0f;
    float m_nearAxis = 1.0f;
};

} // namespace tamble::client
