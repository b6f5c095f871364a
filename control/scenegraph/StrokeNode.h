#pragma once

#include "scenegraph/PictureShape.h"
#include "scenegraph/StrokeGeometry.h"

#include <QtQuick/QSGFlatColorMaterial>
#include <QtQuick/QSGGeometry>
#include <QtQuick/QSGGeometryNode>

namespace tamble::client {

/// Scene-graph node of lines with hard edges, in one colour; owns geometry and material and updates them in place.
class StrokeNode : public QSGGeometryNode, public PictureShape
{
public:
    StrokeNode();

    /// Marks the material only when the colour differs.
    void setColor(const QColor &color);
    /// Rewrites the vertices only when the stroke differs, and reallocates them only when their number does.
    void setStroke(const StrokeGeometry &stroke);

    void paint(PictureCanvas &canvas) const override;

private:
    QSGGeometry m_geometry;
    QSGFlatColorMaterial m_material;
    StrokeGeometry m_stroke;
};

} // namespace tamble::client
